#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Remakes the start page's pictures, 500 x 300, from their source: the pristine copy, and the background that is printed on.
set -euo pipefail
cd "$(dirname "$0")"
for file in ../exeGuiImage2.bmp ../pics/kwexeGuiImage.bmp; do
    mkdir -p "$(dirname "$file")"
    rsvg-convert startpage.svg | convert png:- -alpha off -type TrueColor "BMP3:$file"
done
