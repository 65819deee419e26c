#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Debian's libosgViewer holds only the X11 window. OSG's own Win32 window comes with the distribution's source package:
# this takes the four files that are needed out of it into the folder given, and OSG's examples, which tests use as hosts.
#   fetch_osg_win32.sh FOLDER
set -euo pipefail
exec "$(dirname "$0")/../fetch_source.sh" openscenegraph "$1" '*/include/osgViewer/api/Win32' \
    '*/src/osgViewer/GraphicsWindowWin32.cpp' '*/src/osgViewer/PixelBufferWin32.cpp' '*/examples/*'
