# SPDX-License-Identifier: MIT
# How Wine is used here; to be sourced.
#   . wine_env.sh PREFIX
export WINEPREFIX=${WINEPREFIX:-$1}
export WINEDEBUG=${WINEDEBUG:--all}
# Nothing here uses .NET or HTML, and their installers would ask for a download when the prefix is made.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
