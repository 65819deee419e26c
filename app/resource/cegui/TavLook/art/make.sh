#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Remakes every picture of both skins, the dark one beside this folder and the light one beside that, from the same drawings,
# each at its exact size in pixels. Needs rsvg-convert 2.48 or later (Debian, Ubuntu: librsvg2-bin).
#   make.sh [DARK_FOLDER LIGHT_FOLDER]
#
#   frame/      one drawing a picture
#   buttons/    24x24, three states a drawing
#   tools/      62x62, three states a drawing
#   palettes/   a skin's colours by the drawings' classes, and what a state changes: which plate is shown, how bright the ink is
set -euo pipefail
art=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
dark=$(dirname -- "$art")
light=${dark}Light
if [ $# -eq 2 ]; then
    dark=$1
    light=$2
elif [ $# -ne 0 ]; then
    echo "make.sh [DARK_FOLDER LIGHT_FOLDER]" >&2
    exit 2
fi
sheet=$(mktemp)
trap 'rm -f "$sheet"' EXIT

# picture DRAWING WIDTH HEIGHT FILE [STATE]
picture() {
    cat "$art/palettes/$palette/all.css" ${5:+"$art/palettes/$palette/$5.css"} >"$sheet"
    rsvg-convert --width "$2" --height "$3" --stylesheet "$sheet" --format png --output "$4" "$art/$1.svg"
}

# skin PALETTE FOLDER
skin() {
    local palette=$1 look=$2 name width height
    local skin=$look/new_skin
    mkdir -p "$skin"

    while read -r name width height; do
        picture "frame/$name" "$width" "$height" "$skin/$name.png"
    done <<'LIST'
topBG 64 50
logo 30 30
leftborder 5 64
rightborder 5 64
bottomborder 64 5
bottomBG 583 90
leftBG 152 64
verticalscrollbar 6 48
verticalscrollbar_hover 6 48
borderN 126 96
borderP 126 96
empty 120 90
videoplay 41 41
textBGN 64 30
textBGP 64 30
DlgPropertyTemple 260 74
LIST

    for name in close minimize full fullesc; do
        picture "buttons/$name" 24 24 "$skin/$name.png" normal
        picture "buttons/$name" 24 24 "$skin/${name}H.png" hover
        picture "buttons/$name" 24 24 "$skin/${name}P.png" pushed
    done

    for name in viewvideoset roam environment property obliquepathmanage browser music antialiasing; do
        picture "tools/$name" 62 62 "$look/${name}N.png" normal
        picture "tools/$name" 62 62 "$look/${name}H.png" hover
        picture "tools/$name" 62 62 "$look/${name}P.png" pushed
    done

    cp -- "$look"/property[NP].png "$skin/"
    cp -- "$skin/bottomBG.png" "$look/"
    picture frame/TavLook 64 64 "$look/TavLook.png"
}

skin dark "$dark"
skin light "$light"
# What a skin is besides its pictures is the same in both.
for file in TavLookSkin.scheme TavLook.imageset TavLook.looknfeel; do
    for look in "$dark" "$light"; do
        [ "$look/$file" -ef "$art/../$file" ] || cp -- "$art/../$file" "$look/"
    done
done
