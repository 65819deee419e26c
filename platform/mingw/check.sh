#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles every source of the library, the services, the MFC subset and the city host to Windows objects with MinGW-w64, warnings
# as errors, and links them and the tests that need neither OpenSceneGraph nor CEGUI as true Windows programs.
#   check.sh [FOLDER]   (build-mingw)
# No OpenSceneGraph and no CEGUI for Windows are to be had here. Their headers are the Linux distribution's, which are the same;
# what is linked with are libraries made from the names that the objects want (stand_ins.sh).
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
here=$root/platform/mingw
build=${1:-$root/build-mingw}
mkdir -p "$build"
build=$(cd "$build" && pwd)
prefix=$build/prefix

. "$here/packages.sh"
install_mingw_packages "$build"
"$here/prefix.sh" "$prefix"
# A folder that was not configured to its end is configured anew.
if [ ! -e "$build/build.ninja" ]; then
    rm -f "$build/CMakeCache.txt"
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DNX_PRECOMPILED_HEADERS=OFF >"$build/configure.log" 2>&1 ||
        { cat "$build/configure.log"; exit 1; }
fi
# What has changed in the project's files since may add sources.
ninja -C "$build" build.ninja >"$build/configure.log" 2>&1 || { cat "$build/configure.log"; exit 1; }

mapfile -t objects < <(ninja -C "$build" -t targets all | sed -nE 's/^([^:]*\.(obj|res)): .*/\1/p')
[ ${#objects[@]} -gt 0 ] || { echo "check.sh: no objects to make" >&2; exit 1; }
NINJA_STATUS='[%f/%t] ' ninja -C "$build" -k 0 "${objects[@]}"
echo "${#objects[@]} Windows objects"
(cd "$build" && "$here/stand_ins.sh" "$prefix" "${objects[@]}")
NINJA_STATUS='[%f/%t] ' ninja -C "$build" -k 0
echo "linked as Windows programs, with stand-ins for $(wc -l <"$prefix/stand-ins/names") names of OpenSceneGraph and CEGUI"
