#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything, and runs every test.
#   test.sh [CTEST OPTIONS...]
#   test.sh --sanitize [CTEST OPTIONS...]   the suites under the address sanitizer and the one for undefined behaviour, in a
#                                           build folder of their own
#   test.sh --poison [CTEST OPTIONS...]     the suites that draw scenes and read foreign files, with an allocator that fills fresh
#                                           and freed memory and looks behind each block, in the system's libraries as well
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
if [ "${1:-}" = --poison ]; then
    shift
    export NX_WINE=$root/platform/winelib/run_poisoned.sh
    [ $# -gt 0 ] || set -- -R '^(FuzzCorpus|GuiHostTests|OldSkinTests|WidgetTests)$'
    set -- -L suite "$@"
fi
"$root/platform/winelib/setup.sh"
echo "==> testing"
cd "$NX_BUILD"
# Each test program gets a display of its own: they would take the mouse and the keyboard from each other.
mkdir -p tests
started=tests/started
touch "$started"
status=0
env -u DISPLAY ctest -j2 --output-on-failure "$@" || status=$?
# A test that had to be skipped has proved nothing, which the summary of ctest does not show.
mapfile -d '' -t results < <(find tests/run -name results.xml -newer "$started" -print0)
if [ ${#results[@]} -gt 0 ] && ! skipped=$("$root/tests/list_not_run.sh" "${results[@]}"); then
    echo "==> $(wc -l <<<"$skipped") tests were not run:"
    echo "$skipped"
fi
exit "$status"
