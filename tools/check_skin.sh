#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Names what a skin lacks: files that are missing, are no pictures or have the wrong size, and what its XML files leave out.
#   check_skin.sh SKIN_FOLDER
# The pictures and their sizes are those of the table in docs/skin.md. Wants ImageMagick (identify).
set -euo pipefail
[ $# -eq 1 ] && [ -d "$1" ] || { echo "check_skin.sh SKIN_FOLDER" >&2; exit 2; }
command -v identify >/dev/null || { echo "check_skin.sh: ImageMagick's identify is not here" >&2; exit 2; }
skin=${1%/}
guide=$(dirname "$0")/../docs/skin.md
faults=0
fault()
{
    printf '%s\n' "$*"
    faults=$((faults + 1))
}

# FILE WIDTH HEIGHT a line, for each picture of the table; "any" for a side that is free.
pictures()
{
    awk -F'|' '$2 ~ /`/ && $3 ~ /^ *(any|[0-9]+) x (any|[0-9]+) *$/ {
        split($3, size, " ")
        count = split($2, names, "`")
        for (i = 2; i <= count; i += 2) print names[i], size[1], size[3]
    }' "$guide"
}

count=0
while read -r file width height; do
    count=$((count + 1))
    if [ ! -f "$skin/$file" ]; then
        fault "missing: $file ($width x $height)"
        continue
    fi
    read -r has_width has_height < <(identify -format '%w %h\n' "$skin/$file[0]" 2>/dev/null) || has_width=
    if [ -z "${has_width:-}" ]; then
        fault "no picture: $file"
    elif { [ "$width" != any ] && [ "$width" != "$has_width" ]; } || { [ "$height" != any ] && [ "$height" != "$has_height" ]; }
    then
        fault "wrong size: $file is $has_width x $has_height, not $width x $height"
    fi
done < <(pictures)
[ "$count" -gt 0 ] || { echo "check_skin.sh: no table of pictures in $guide" >&2; exit 2; }

# names FILE ELEMENT ATTRIBUTE: the attribute's values in an XML file. Skins for CEGUI 0.6 begin most names with a capital.
names()
{
    tr '\n' ' ' <"$1" | grep -oE "<$2 [^>]*" | grep -oiE " $3=\"[^\"]*\"" | cut -d'"' -f2 || true
}

scheme=TavLookSkin.scheme
if [ ! -f "$skin/$scheme" ]; then
    fault "missing: $scheme"
else
    while read -r file; do
        [ -f "$skin/$file" ] || fault "missing: $file, which $scheme names"
    done < <(names "$skin/$scheme" '(Imageset|LookNFeel)' filename)
    types=$(names "$skin/$scheme" FalagardMapping windowType)
    for type in TavLook/StaticImage TavLook/ImageButton; do
        grep -qxF "$type" <<<"$types" || fault "no window type $type in $scheme"
    done
    looks=$(while read -r file; do
        [ ! -f "$skin/$file" ] || names "$skin/$file" WidgetLook name
    done < <(names "$skin/$scheme" LookNFeel filename))
    while read -r look; do
        grep -qxF "$look" <<<"$looks" || fault "no look $look, which $scheme names, in its looknfeel files"
    done < <(names "$skin/$scheme" FalagardMapping lookNFeel)
fi
imageset=TavLook.imageset
if [ ! -f "$skin/$imageset" ]; then
    fault "missing: $imageset"
else
    names "$skin/$imageset" Imageset name | grep -qxF TavLook || fault "no imageset named TavLook in $imageset"
    while read -r file; do
        [ -f "$skin/$file" ] || fault "missing: $file, which $imageset names"
    done < <(names "$skin/$imageset" Imageset imagefile)
fi
[ "$faults" -eq 0 ] || { echo "$faults faults in $skin"; exit 1; }
echo "$count pictures and the XML files are there: $skin"
