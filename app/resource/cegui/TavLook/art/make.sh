#!/usr/bin/env bash
# Remakes every picture of the skin from the drawings beside this script, each at its exact size in pixels.
# Needs rsvg-convert 2.48 or later (Debian, Ubuntu: librsvg2-bin).
#
#   frame/    one drawing a picture
#   buttons/  24x24, three states a drawing
#   tools/    62x62, three states a drawing
#   states/   what a state changes: which plate is shown, how bright the ink is
set -euo pipefail
art=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
look=$(dirname -- "$art")
skin=$look/new_skin
mkdir -p "$skin"

# picture DRAWING WIDTH HEIGHT FILE [STATE]
picture() {
    local more=()
    [[ $# -lt 5 ]] || more=(--stylesheet "$art/states/$5.css")
    rsvg-convert --width "$2" --height "$3" ${more[@]+"${more[@]}"} --format png --output "$4" "$art/$1.svg"
}

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
