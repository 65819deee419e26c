#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything, and runs every test.
#   test.sh [CTEST OPTIONS...]
#   test.sh --sanitize [CTEST OPTIONS...]   the suites under the address sanitizer and the one for undefined behaviour, in a
#                                           build folder of their own
#   test.sh --scenes                        every one of OpenSceneGraph's examples in the table as a host, in every setting
#   test.sh --windows                       after a plain run: library, services and host as true Windows programs, linked, and
#                                           the tests that need no scene, run under Wine and counted against that run
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
if [ "${1:-}" = --windows ]; then
    "$root/platform/mingw/check.sh"
    exec "$root/platform/mingw/test.sh"
fi
export NX_BUILD=$root/build
if [ "${1:-}" = --scenes ]; then
    exec "$root/tests/system/scenes/examples/run_all.sh"
fi
if [ "${1:-}" = --sanitize ]; then
    shift
    export NX_BUILD=$root/build-sanitize
    export NX_CONFIGURE=-DNX_SANITIZE=ON
    export NX_WINE=$root/platform/winelib/run_sanitized.sh
    excluded=$(grep -vE '^(#|$)' "$root/tests/sanitizer_exclusions.txt" | paste -sd:)
    export GTEST_FILTER="-$excluded"
    set -- -L suite "$@"
fi
"$root/platform/winelib/setup.sh"
echo "==> testing"
cd "$NX_BUILD"
# Each test program gets a display of its own: they would take the mouse and the keyboard from each other.
exec env -u DISPLAY ctest -j2 --output-on-failure "$@"
