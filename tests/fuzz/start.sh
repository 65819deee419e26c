#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Starts a program that was built for fuzzing; run_wine.sh calls it in place of Wine.
#   NX_FUZZ_LIBRARIES  the fuzzer's library and the address sanitizer's, in this order
# Not looked for: leaks, since Wine keeps what it has until its process ends, and faults on the stack, since the threads' stacks
# are Wine's own. Signals stay Wine's, which makes exceptions of them; those that nobody handles end the program.
set -euo pipefail
export ASAN_OPTIONS=detect_leaks=0:handle_segv=0:handle_sigbus=0:handle_sigill=0:handle_sigfpe=0:handle_abort=0:use_sigaltstack=0
# The fuzzer's functions stand in for those of the same names that the sanitizer has for programs without a fuzzer.
ASAN_OPTIONS=$ASAN_OPTIONS:alloc_dealloc_mismatch=0:verify_asan_link_order=0:allocator_may_return_null=1
export UBSAN_OPTIONS=print_stacktrace=1
# Such a process cannot start Wine's desktop, which ends with the last window on it.
wine notepad >/dev/null 2>&1 &
keeper=$!
trap 'kill $keeper 2>/dev/null || true' EXIT
# This one makes a window before it finds that there is nothing to do, so that the desktop is there when it ends.
wine rundll32.exe user32.dll,Nothing >/dev/null 2>&1 || true
WINELOADERNOEXEC=1 /lib64/ld-linux-x86-64.so.2 --preload "$NX_FUZZ_LIBRARIES" /usr/lib/wine/wine64 "$@"
