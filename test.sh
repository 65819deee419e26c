#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything, and runs every test.
#   test.sh [CTEST OPTIONS...]
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
"$root/platform/winelib/setup.sh"
echo "==> testing"
cd "$root/build"
# Each test program gets a display of its own: they would take the mouse and the keyboard from each other.
exec env -u DISPLAY ctest -j2 --output-on-failure "$@"
