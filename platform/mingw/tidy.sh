#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy 14 with .clang-tidy over the library, the services and the MFC subset, as Windows code: after check.sh, whose
# headers and options it takes.
#   tidy.sh [FOLDER [SOURCES...]]   (build-mingw, every source)
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "${1:-$root/build-mingw}" && pwd)
shift || true
command -v clang-tidy-14 >/dev/null || { echo "tidy.sh: clang-tidy-14 is not installed" >&2; exit 1; }
cd "$root"
sources=("$@")
[ $# -gt 0 ] || mapfile -t sources < <(find mfc services src -name '*.cpp' | sort)
# Without GCC's precompiled headers, which clang cannot read.
mkdir -p "$build/tidy"
ninja -C "$build" -t compdb | sed -E 's/-include [^ ]*cmake_pch[^ ]*//; s/-Winvalid-pch//' >"$build/tidy/compile_commands.json"
standard=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 1 clang-tidy-14 -p "$build/tidy" --quiet \
    --extra-arg=--target=x86_64-w64-windows-gnu --extra-arg="-isystem$standard" \
    --extra-arg="-isystem$standard/x86_64-w64-mingw32" --extra-arg="-isystem$standard/backward" 2>/dev/null ||
    { echo "tidy.sh: see above"; exit 1; }
echo "${#sources[@]} sources pass .clang-tidy"
