#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the gallery's pictures anew from the tour.
#   make.sh [TOUR]   a folder with a whole tour; without one the tour is made first
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
stops=(city list-chosen panel evening scene-menu title-dialog-changed tools-environment published-start light-panel)
tour=${1:-}
if [ -z "$tour" ]; then
    tour=$(mktemp -d)
    trap 'rm -rf "$tour"' EXIT
    "$here/../../run.sh" --tour "$tour"
fi
for stop in "${stops[@]}"; do
    picture=$(find "$tour" -name "[0-9]*-$stop.png" | head -n 1)
    [ -n "$picture" ] || { echo "make.sh: the tour has no stop '$stop'" >&2; exit 1; }
    # As wide as a page of text shows it.
    convert "$picture" -resize '960x>' -strip -interlace Plane -quality 86 "$here/$stop.jpg"
done
# A quarter of it, so that each of its pixels shows.
picture=$(find "$tour" -name "[0-9]*-density-192.png" | head -n 1)
[ -n "$picture" ] || { echo "make.sh: the tour has no stop 'density-192'" >&2; exit 1; }
convert "$picture" -crop 1280x800+0+0 +repage -strip -colors 256 "PNG8:$here/density-192.png"
du -ch "$here"/*.jpg "$here"/*.png | tail -n 1
