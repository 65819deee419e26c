#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes a folder like one with libraries for Windows in it: GoogleTest, pugixml, libspng and libtiff, built from the distribution's sources, and the
# headers of OpenSceneGraph and CEGUI, which are the Linux distribution's as far as they are the same.
#   prefix.sh FOLDER
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
mkdir -p "$1"
prefix=$(cd "$1" && pwd)
[ ! "$prefix/complete" -nt "$0" ] || exit 0
rm -rf "$prefix/include"
compiler=x86_64-w64-mingw32-g++-posix

# Links, one by one: /usr/include as a whole would bring Linux's own headers.
include=$prefix/include
mkdir -p "$include/GL" "$prefix/lib" "$prefix/bin"
for name in osg osgDB osgGA osgText osgUtil osgViewer osgManipulator OpenThreads; do
    mkdir -p "$include/$name"
    for place in /usr/include /usr/include/x86_64-linux-gnu; do
        [ ! -d "$place/$name" ] || ln -sf "$place/$name"/* "$include/$name/"
    done
done
ln -sf /usr/include/glm /usr/include/GL/glew.h "$include/"
mv "$include/glew.h" "$include/GL/"
ln -sfn "$(find /usr/include -maxdepth 3 -type d -name 'cegui-0*' | head -n 1)/CEGUI" "$include/CEGUI"
# OpenSceneGraph's configuration for Windows, whose OpenGL header has no 64-bit integers.
rm -f "$include/osg/GL"
sed '/define GL_HEADER_HAS_GL/d' "$(find /usr/include -maxdepth 3 -path '*/osg/GL')" >"$include/osg/GL"
# Debian's OpenSceneGraph leaves the headers of its Win32 window out.
"$root/platform/winelib/fetch_osg_win32.sh" "$prefix/osg-win32"
rm -f "$include/osgViewer/api"
mkdir "$include/osgViewer/api"
ln -sfn "$prefix/osg-win32/include/osgViewer/api/Win32" "$include/osgViewer/api/Win32"

"$root/platform/fetch_source.sh" pugixml "$prefix/pugixml" '*/src/pugi*'
ln -sf "$prefix"/pugixml/src/*.hpp "$include/"
"$root/platform/fetch_source.sh" libspng "$prefix/libspng" '*/spng/spng.*'
ln -sf "$prefix/libspng/spng/spng.h" "$include/"
"$root/platform/fetch_source.sh" tiff "$prefix/libtiff" '*'
ln -sfn /usr/src/googletest/googletest/include/gtest "$include/gtest"

objects=$prefix/objects
mkdir -p "$objects"
gtest=/usr/src/googletest/googletest
"$compiler" -std=c++17 -O0 -w -I"$gtest" -I"$include" -c "$gtest/src/gtest-all.cc" -o "$objects/gtest.o" &
"$compiler" -std=c++17 -O0 -w -I"$include" -c "$gtest/src/gtest_main.cc" -o "$objects/gtest_main.o"
"$compiler" -std=c++17 -O1 -w -c "$prefix/pugixml/src/pugixml.cpp" -o "$objects/pugixml.o"
x86_64-w64-mingw32-gcc-posix -O2 -w -DSPNG_STATIC -c "$prefix/libspng/spng/spng.c" -o "$objects/spng.o"
wait $!
for name in gtest gtest_main pugixml; do
    x86_64-w64-mingw32-ar rcs "$prefix/lib/lib$name.a" "$objects/$name.o"
done
# With zlib in it.
mkdir -p "$objects/zlib"
(cd "$objects/zlib" && x86_64-w64-mingw32-ar x "$(x86_64-w64-mingw32-gcc-posix -print-file-name=libz.a)")
x86_64-w64-mingw32-ar rcs "$prefix/lib/libspng.a" "$objects/spng.o" "$objects"/zlib/*.o
# With zlib in it, too, and without the codecs that want further libraries.
tiff_options=(-Dtiff-tools=OFF -Dtiff-tests=OFF -Dtiff-contrib=OFF -Dtiff-docs=OFF -Dcxx=OFF -DBUILD_SHARED_LIBS=OFF
    "-DZLIB_LIBRARY=$(x86_64-w64-mingw32-gcc-posix -print-file-name=libz.a)" -DZLIB_INCLUDE_DIR=/usr/x86_64-w64-mingw32/include)
for codec in libdeflate pixarlog jpeg old-jpeg jpeg12 jbig lerc lzma zstd webp; do tiff_options+=("-D$codec=OFF"); done
cmake -S "$prefix/libtiff" -B "$objects/tiff" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/mingw/toolchain.cmake" \
    -DCMAKE_C_FLAGS="-O2 -w" "${tiff_options[@]}" >"$objects/tiff.log" 2>&1 || { cat "$objects/tiff.log" >&2; exit 1; }
ninja -C "$objects/tiff" tiff >>"$objects/tiff.log" 2>&1 || { cat "$objects/tiff.log" >&2; exit 1; }
cp "$(find "$objects/tiff" -name 'libtiff*.a' | head -n 1)" "$prefix/lib/libtiff.a"
x86_64-w64-mingw32-ar rs "$prefix/lib/libtiff.a" "$objects"/zlib/*.o 2>/dev/null
cp "$prefix"/libtiff/libtiff/{tiff,tiffio,tiffvers}.h "$objects/tiff/libtiff/tiffconf.h" "$include/"
mkdir -p "$prefix/lib/cmake/pugixml"
cat >"$prefix/lib/cmake/pugixml/pugixml-config.cmake" <<CONFIG
add_library(pugixml::pugixml STATIC IMPORTED)
set_target_properties(pugixml::pugixml PROPERTIES IMPORTED_LOCATION "$prefix/lib/libpugixml.a")
target_include_directories(pugixml::pugixml INTERFACE "$include")
CONFIG
# Libraries that hold nothing yet, by the names that a search for them wants; stand_ins.sh makes them.
for name in OpenThreads osg osgDB osgGA osgUtil osgViewer CEGUIBase-0 CEGUIOpenGLRenderer-0; do
    x86_64-w64-mingw32-ar rcs "$prefix/lib/lib$name.dll.a"
done
touch "$prefix/complete"
