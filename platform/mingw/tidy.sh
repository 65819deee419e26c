#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy 14 with .clang-tidy over the library, the services, the MFC subset and the example hosts, as Windows code:
# after check.sh, whose headers it takes.
#   tidy.sh [FOLDER [SOURCES...]]   (build-mingw, every source)
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "${1:-$root/build-mingw}" && pwd)
shift || true
command -v clang-tidy-14 >/dev/null || { echo "tidy.sh: clang-tidy-14 is not installed" >&2; exit 1; }
cd "$root"
sources=("$@")
[ $# -gt 0 ] || mapfile -t sources < <(find examples/city_host mfc services src -name '*.cpp' | sort)
# Each source by itself, and no precompiled headers, which clang cannot read.
cmake -S "$root" -B "$build/tidy" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/mingw/toolchain.cmake" \
    -DCMAKE_PREFIX_PATH="$build/prefix" -DNX_UNITY_BUILD=OFF -DNX_PRECOMPILED_HEADERS=OFF -DCMAKE_EXPORT_COMPILE_COMMANDS=ON \
    -DCMAKE_BUILD_TYPE=Debug >"$build/tidy.log" 2>&1 || { cat "$build/tidy.log"; exit 1; }
standard=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 1 clang-tidy-14 -p "$build/tidy" --quiet \
    --extra-arg=--target=x86_64-w64-windows-gnu --extra-arg=-Wno-unknown-warning-option \
    --extra-arg="-isystem$standard" \
    --extra-arg="-isystem$standard/x86_64-w64-mingw32" --extra-arg="-isystem$standard/backward" 2>/dev/null ||
    { echo "tidy.sh: see above"; exit 1; }
echo "${#sources[@]} sources pass .clang-tidy"
