#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a test program in a fresh folder with a copy of the application's data in "app", on a Wine prefix of its own.
#   run_suite.sh PROGRAM.exe APP_DATA FOLDER [GOOGLETEST ARGUMENTS...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# A suite that mounts disks of its own asks for it (NX_OWN_MOUNTS=1): it does so where nobody else sees them, and they go with
# it. Where that is not allowed it runs without.
if [ "${NX_OWN_MOUNTS:-}" = 1 ]; then
    unset NX_OWN_MOUNTS
    for apart in "unshare --mount" "unshare --map-root-user --mount"; do
        if $apart true 2>/dev/null; then
            NX_OWN_MOUNTS=private exec $apart "$here/run_suite.sh" "$@"
        fi
    done
fi
program=$1
data=$2
folder=$3
shift 3
rm -rf "$folder"
mkdir -p "$folder"
cp -R "$data" "$folder/app"
base=$(cd "$(dirname "$program")/.." && pwd)/wineprefix
if [ -z "${WINEPREFIX:-}" ] && [ -e "$base/fresh" ]; then
    "$here/../platform/winelib/copy_prefix.sh" "$base" "$folder/prefix"
    export WINEPREFIX=$folder/prefix
fi
cd "$folder"
exec "$here/../platform/winelib/run_wine.sh" "$program" "$@"
