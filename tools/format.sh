#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings every C++ source into the form of .clang-format, or says which are not in it. Other versions of clang-format than 14
# differ in details.
#   format.sh [--check]
set -euo pipefail
cd "$(dirname "$0")/.."
format=$(command -v clang-format-14) || { echo "format.sh: clang-format-14 is not installed" >&2; exit 1; }
mapfile -t files < <(find bench examples include mfc platform services src tests \( -name '*.cpp' -o -name '*.h' \) 2>/dev/null | sort)
[ ${#files[@]} -gt 100 ] || { echo "format.sh: only ${#files[@]} sources found" >&2; exit 1; }
if [ "${1:-}" = --check ]; then
    wrong=$("$format" --dry-run "${files[@]}" 2>&1 | sed -nE 's/^([^ :]+):[0-9]+:[0-9]+: warning: code should be clang-formatted.*/\1/p' | sort -u)
    [ -z "$wrong" ] || { printf '%s\n' "$wrong" "not in the form of .clang-format; tools/format.sh mends it"; exit 1; }
    echo "${#files[@]} sources are in the form of .clang-format"
else
    "$format" -i "${files[@]}"
fi
