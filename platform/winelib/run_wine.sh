#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Starts a program built with Winelib, or a true Windows one: a Wine prefix of the build's own, the Chinese ANSI code page, and an
# X display of its own where there is none.
#   run_wine.sh PROGRAM.exe [ARGUMENTS...]
#   NX_CODE_PAGE_LOCALE  the locale whose ANSI code page Wine takes (zh_CN.UTF-8: 936)
#   NX_WINE              what starts it (wine); run_sanitized.sh is one such
#   NX_SCREEN            size of the display that is started where there is none (1920x1200x24)
set -euo pipefail
program=$1
shift
folder=$(cd "$(dirname "$program")" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
. "$here/wine_env.sh" "$(dirname "$folder")/wineprefix"
# The locale's name gives Wine its ANSI code page, its character set the encoding of file names. A machine need not have it:
# glibc finds it in a folder of the build's own, where it is the C locale in UTF-8. Given to Wine alone, since a shell would
# complain about a name that it cannot find.
locale=${NX_CODE_PAGE_LOCALE:-zh_CN.UTF-8}
locales=$(dirname "$folder")/locale
if [ ! -e "$locales/$locale" ]; then
    mkdir -p "$locales"
    ln -sfn /usr/lib/locale/C.utf8 "$locales/$locale"
fi
if [ -z "${DISPLAY:-}" ]; then
    exec "$here/with_display.sh" "$0" "$program" "$@"
fi
# On a display without a window manager Wine draws captions itself and gives the focus itself, when it is told not to leave
# them to one; else each dialog waits about two seconds for an answer that does not come.
managed=Y
[ "${NX_BARE_DISPLAY:-}" != "$DISPLAY" ] || managed=N
if [ "$(cat "$WINEPREFIX/managed" 2>/dev/null)" != "$managed" ]; then
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d "$managed" /f >/dev/null 2>&1
    echo "$managed" >"$WINEPREFIX/managed"
fi
# A Winelib program is a library beside the script of its name.
program=$folder/$(basename "$program")
[ ! -e "$program.so" ] || program=$program.so
# OpenGL in software takes megabytes for each frame and gives them back. Let the C library keep them: the system takes nearly a
# millisecond to hand them out again, page by page. The second setting is where the C library's own adapting ends, which the
# first one turns off.
export MALLOC_TRIM_THRESHOLD_=${MALLOC_TRIM_THRESHOLD_:-1073741824} MALLOC_MMAP_THRESHOLD_=${MALLOC_MMAP_THRESHOLD_:-33554432}
# Numbers stay in the C locale, which CEGUI insists on.
exec env -u LC_ALL LANG=C LOCPATH="$locales" LC_CTYPE="$locale" "${NX_WINE:-wine}" "$program" "$@"
