#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy 14 with .clang-tidy over the tests, the benchmark and what belongs to Winelib, as wineg++ compiles them. The
# library itself is looked at as Windows code, by platform/mingw/tidy.sh. Needs the packages of test.sh and bench.sh, no build.
#   tidy.sh [FOLDER [SOURCES...]]   (build-tidy, every source)
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${1:-$root/build-tidy}
shift || true
command -v clang-tidy-14 >/dev/null || { echo "tidy.sh: clang-tidy-14 is not installed" >&2; exit 1; }
mkdir -p "$build"
build=$(cd "$build" && pwd)
cd "$root"
# Each source by itself, and no precompiled headers, which clang cannot read.
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/winelib/toolchain.cmake" -DNX_UNITY_BUILD=OFF \
    -DNX_PRECOMPILED_HEADERS=OFF -DNX_BENCHMARK=ON -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$build/tidy.log" 2>&1 ||
    { cat "$build/tidy.log"; exit 1; }
# One command for each source: some belong to several programs.
python3 - "$build" <<'CODE'
import json, sys
path = sys.argv[1] + "/compile_commands.json"
commands = {entry["file"]: entry for entry in reversed(json.load(open(path)))}
json.dump(list(commands.values()), open(path, "w"))
CODE
sources=("$@")
[ $# -gt 0 ] || mapfile -t sources < <(python3 -c '
import json, sys
for entry in json.load(open(sys.argv[1] + "/compile_commands.json")):
    name = entry["file"].replace(sys.argv[2] + "/", "")
    if name.startswith(("tests/", "bench/", "platform/winelib/")):
        print(name)' "$build" "$root" | sort)

# What wineg++ adds to a command before it calls g++.
winelib=()
mapfile -t words < <(/usr/lib/wine/wineg++ -### -x c++ -c /dev/null -o "$build/none.o" 2>&1 |
    sed -n 's/^COLLECT_GCC_OPTIONS=//p' | tail -n 1 | xargs -n 1 printf '%s\n')
for ((i = 0; i < ${#words[@]}; ++i)); do
    case ${words[i]} in
    -D | -isystem | -idirafter) winelib+=("--extra-arg-before=${words[i]}" "--extra-arg-before=${words[++i]}") ;;
    -fshort-wchar | -fPIC | -m64) winelib+=("--extra-arg-before=${words[i]}") ;;
    esac
done
printf '%s\n' "${sources[@]}" | xargs -P "${NX_JOBS:-$(nproc)}" -n 1 clang-tidy-14 -p "$build" --quiet "${winelib[@]}" \
    --extra-arg=-Wno-unknown-warning-option 2>/dev/null || { echo "tidy.sh: see above"; exit 1; }
echo "${#sources[@]} sources pass .clang-tidy"
[ $# -eq 0 ] || exit 0
# The benchmark's peers are plain native code (bench/CMakeLists.txt).
gui=$(find /usr/include -maxdepth 3 -type d -name 'cegui-0*' | head -n 1)
printf '%s\n' bench/native/*.cpp | xargs -P "${NX_JOBS:-$(nproc)}" -I '{}' clang-tidy-14 --quiet '{}' -- -std=c++17 \
    -isystem /usr/include/imgui -isystem /usr/include/MYGUI -isystem "$gui" 2>/dev/null || { echo "tidy.sh: see above"; exit 1; }
echo "and so does bench/native"
