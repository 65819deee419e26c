#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Debian's libosgViewer holds only the X11 window. OSG's own Win32 window comes with the distribution's source package:
# this takes the four files that are needed out of it into the folder given.
#   fetch_osg_win32.sh FOLDER
set -euo pipefail
target=$1
marker=$target/complete
[ -e "$marker" ] && exit 0
mkdir -p "$target/apt/lists/partial" "$target/apt/cache/archives/partial"
work=$(cd "$target" && pwd)

# A deb-src list and lists directory of its own, so that the machine's own configuration stays as it is.
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(sed -nE 's/^URIs: *([^ ]*debian)\/?$/\1/p; s/^deb (\[[^]]*\] )?([^ ]*debian)\/? .*/\2/p' \
    /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1 || true)
printf 'deb-src %s %s main\n' "${mirror:-http://deb.debian.org/debian}" "$release" > "$work/apt/sources.list"
# apt splits option values at blanks, so the folder is given in apt's own configuration format.
cat > "$work/apt/apt.conf" <<CONF
Dir::Etc::SourceList "$work/apt/sources.list";
Dir::Etc::SourceParts "/dev/null";
Dir::State::Lists "$work/apt/lists";
Dir::Cache "$work/apt/cache";
APT::Sandbox::User "root";
CONF
export APT_CONFIG=$work/apt/apt.conf
apt-get -qq update
(cd "$work" && apt-get -qq source --download-only openscenegraph)
archive=$(ls "$work"/openscenegraph_*.orig.tar.* | head -n 1)
tar -xf "$archive" -C "$work" --strip-components=1 --wildcards \
    '*/include/osgViewer/api/Win32' \
    '*/src/osgViewer/GraphicsWindowWin32.cpp' '*/src/osgViewer/PixelBufferWin32.cpp'
rm -rf "$work/apt" "$work"/openscenegraph_*
touch "$marker"
