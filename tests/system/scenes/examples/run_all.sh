#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles every example of the table, runs each in every setting, in a process of its own, and prints what came of it as a table.
#   run_all.sh [NAME...]   (all)
#   NX_BUILD   the build folder (build)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../../../.." && pwd)
build=${NX_BUILD:-$root/build}
"$root/platform/winelib/setup.sh" >&2
cmake -S "$root" -B "$build" -DNX_ALL_SCENES=ON >/dev/null
cmake --build "$build" --target SceneExamples >&2
[ $# -gt 0 ] || mapfile -t names < <(sed -nE 's/^([a-zA-Z0-9]+) .*/\1/p' "$here/examples.txt")
[ $# -eq 0 ] || names=("$@")
out=$build/tests/scenes
mkdir -p "$out"
settings="plain buffer_objects vertex_array_objects uniforms uniforms_and_aliasing in_its_root"
echo "| example | ${settings// / | } |"
echo "|---|---|---|---|---|---|---|"
failed=0
for name in "${names[@]}"; do
    log=$out/$name.log
    NX_SCENES=all timeout 600 "$root/tests/run_suite.sh" "$build/bin/SceneExamples.exe" "$root/app" "$out/$name" \
        "--gtest_filter=*/${name}_*" >"$log" 2>&1 || failed=$((failed + 1))
    row="| $name |"
    for setting in $settings; do
        if grep -q "^\[       OK \] .*/${name}_$setting " "$log"; then
            row+=" right |"
        elif grep -q "^\[  FAILED  \] .*/${name}_$setting," "$log"; then
            row+=" wrong |"
        else
            row+=" ended |"
        fi
    done
    echo "$row"
done
cmake -S "$root" -B "$build" -DNX_ALL_SCENES=OFF >/dev/null
echo "$((${#names[@]} - failed)) of ${#names[@]} examples are right in every setting; logs: $out"
[ "$failed" = 0 ]
