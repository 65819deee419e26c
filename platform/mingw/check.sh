#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compiles every source of the library, the services, the MFC subset and the city host to Windows objects with MinGW-w64,
# warnings as errors: are they honest Windows code? It stops at objects, since no CEGUI for Windows is to be had here; the headers
# of OpenSceneGraph, CEGUI and pugixml are the Linux distribution's, which are the same.
#   check.sh [FOLDER]   (build-mingw)
# Debian: g++-mingw-w64-x86-64-posix, beside what setup.sh of the Linux build installs.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${1:-$root/build-mingw}
command -v x86_64-w64-mingw32-g++-posix >/dev/null || { echo "check.sh: g++-mingw-w64-x86-64-posix is not installed" >&2; exit 1; }
mkdir -p "$build"
build=$(cd "$build" && pwd)
headers=$build/headers

# A folder of links: /usr/include as a whole would bring Linux's own headers.
if [ ! -d "$headers" ]; then
    mkdir -p "$headers/GL"
    for name in osg osgDB osgGA osgText osgUtil osgViewer osgManipulator osgSim osgFX OpenThreads; do
        for place in /usr/include /usr/include/x86_64-linux-gnu; do
            [ ! -d "$place/$name" ] || ln -s "$place/$name" "$headers/$name"
        done
    done
    ln -s /usr/include/glm /usr/include/pugixml.hpp /usr/include/pugiconfig.hpp "$headers/"
    # GLEW's is the one OpenGL header that OpenSceneGraph and CEGUI both live with; Windows' own stops at OpenGL 1.1.
    ln -s /usr/include/GL/glew.h /usr/include/GL/wglew.h "$headers/GL/"
    cegui=$(find /usr/include -maxdepth 3 -type d -name 'cegui-0*' | head -n 1)
    ln -s "$cegui/CEGUI" "$headers/CEGUI"
fi

# Debian's OpenSceneGraph leaves the headers of its Win32 window out.
"$root/platform/winelib/fetch_osg_win32.sh" "$build/osg-win32"
mkdir -p "$build/pugixml"
cat >"$build/pugixml/pugixml-config.cmake" <<CONFIG
add_library(pugixml::pugixml INTERFACE IMPORTED)
target_include_directories(pugixml::pugixml INTERFACE "$headers")
CONFIG

# Libraries by names that nothing is linked with.
libraries=()
for name in OSG OSGDB OSGGA OSGUTIL OSGVIEWER OPENTHREADS; do
    libraries+=("-D${name}_INCLUDE_DIR=$headers" "-D${name}_LIBRARY_RELEASE=not-linked")
done
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/mingw/toolchain.cmake" -DBUILD_TESTING=OFF \
    "${libraries[@]}" -DCEGUI_INCLUDE_DIR="$headers" -DCEGUI_BASE_LIBRARY=not-linked -DCEGUI_OPENGL_LIBRARY=not-linked \
    -Dpugixml_DIR="$build/pugixml" \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_CXX_FLAGS="-isystem $headers -isystem $build/osg-win32/include -include windows.h -include GL/glew.h" >"$build/configure.log" 2>&1 ||
    { cat "$build/configure.log"; exit 1; }

mapfile -t objects < <(ninja -C "$build" -t targets all | sed -nE 's/^([^:]*\.(obj|res)): .*/\1/p')
[ ${#objects[@]} -gt 0 ] || { echo "check.sh: no objects to make" >&2; exit 1; }
NINJA_STATUS='[%f/%t] ' ninja -C "$build" -k 0 "${objects[@]}"
echo "${#objects[@]} Windows objects"
