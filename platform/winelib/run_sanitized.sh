#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Starts a program that was built with the sanitizers (NX_SANITIZE); run_wine.sh calls it in place of Wine.
#   run_sanitized.sh PROGRAM.exe.so [ARGUMENTS...]
# docs/testing.md has the reason of each switch.
set -euo pipefail
preloaded="$(gcc -print-file-name=libasan.so) $(gcc -print-file-name=libstdc++.so.6)"
export ASAN_OPTIONS=detect_leaks=0:handle_segv=0:use_sigaltstack=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}
export UBSAN_OPTIONS=print_stacktrace=1${UBSAN_OPTIONS:+:$UBSAN_OPTIONS}
# A sanitized process cannot start Wine's desktop process, so that another program's is kept alive beside it. The sanitizer's
# library is handed to this process alone, without the environment that Wine's own processes inherit.
wine notepad >/dev/null 2>&1 &
keeper=$!
trap 'kill $keeper 2>/dev/null || true' EXIT

# Whether the prefix has its desktop process.
has_desktop()
{
    local process
    for process in $(pgrep -f 'explorer.exe /desktop'); do
        ! grep -qzxF "WINEPREFIX=$WINEPREFIX" "/proc/$process/environ" 2>/dev/null || return 0
    done
    return 1
}
for ((i = 0; i < 300; ++i)); do
    ! has_desktop || break
    sleep 0.1
done
has_desktop || { echo "run_sanitized.sh: Wine's desktop does not start" >&2; exit 1; }
# Its window comes a moment after it.
sleep 2
WINELOADERNOEXEC=1 /lib64/ld-linux-x86-64.so.2 --preload "$preloaded" /usr/lib/wine/wine64 "$@"
