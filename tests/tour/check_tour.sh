#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Lets the city host make its tour, and compares each picture with its reference: NAME-actual.png, NAME-expected.png and
# NAME-difference.png show what differs.
#   check_tour.sh BUILD FOLDER [--remake] [PART]
#   FOLDER     for the pictures; what is in it goes
#   --remake   the pictures become the references
#   PART       chrome, bars, objects, documents or looks; all of them without it
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
references=$here/reference
winelib=$here/../../platform/winelib
build=$(cd "$1" && pwd)
folder=$2
shift 2
option=--tour-references
if [ "${1:-}" = --remake ]; then
    option=--new-references
    shift
fi
part=${1:-}

rm -rf "$folder"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
# What an earlier tour left: the list shows the views, perhaps of another city, and the dialog for publishing the texts.
rm -rf "$build/bin/data/views" "$build/bin/sysmid/tavmemory.ini"
if [ -z "${WINEPREFIX:-}" ] && [ -e "$build/wineprefix/fresh" ]; then
    "$winelib/copy_prefix.sh" "$build/wineprefix" "$folder/prefix"
    export WINEPREFIX=$folder/prefix
fi
if [ "$option" = --new-references ]; then
    mkdir -p "$references"
    [ -n "$part" ] || rm -f "$references"/*.jpg
fi
cd "$build/bin"
result=0
# The interface traces each release of a mouse button.
env -u DISPLAY "$winelib/run_wine.sh" "$build/bin/CityHost.exe" --tour "Z:$folder" ${part:+--tour-part "$part"} \
    "$option" "Z:$references" 2>&1 | sed -u '/^release:/d' || result=$?
# A reference that no stop is compared with any more would look like one.
if [ -z "$part" ] && [ "$result" = 0 ]; then
    for picture in "$references"/*.jpg; do
        name=$(basename "$picture" .jpg)
        if ! grep -q "\"id\": \"$name\"" "$folder/tour.json"; then
            echo "tour: there is no stop for the reference $name"
            result=1
        fi
    done
fi
exit "$result"
