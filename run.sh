#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds, and opens the city host: in a window where there is a display, else as a tour.
#   run.sh [--tour DIR] [HOST OPTIONS...]
#   --tour DIR   lets the host show itself on a display of its own; pictures and index.html go to DIR (out/tour)
#   --tour-part chrome|bars|objects|documents|looks   makes only this part of it
#   --publication DIR   shows what the host has published into this folder: its start page first, then the scene
#   --skin TavLook|TavLookLight|DIR   the skin; changes in its folder are followed
#   --size WIDTHxHEIGHT, --scale 1..4, --user NUMBER, --language zh-CN|en, --samples NUMBER   for the host
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
tour=
options=()
while [ $# -gt 0 ]; do
    if [ "$1" = --tour ]; then
        [ $# -ge 2 ] && [ -n "$2" ] || { echo "run.sh: --tour wants a folder" >&2; exit 2; }
        tour=$2
        shift 2
    elif [ "$1" = --skin ] && [ -d "${2:-}" ]; then
        options+=(--skin "Z:$(cd "$2" && pwd)")
        shift 2
    else
        options+=("$1")
        shift
    fi
done
if [ -z "$tour" ] && [ -z "${DISPLAY:-}" ]; then
    tour=$root/out/tour
fi
if [ -n "$tour" ]; then
    mkdir -p "$tour"
    tour=$(cd "$tour" && pwd)
fi

"$root/platform/winelib/setup.sh" CityHost

host=("$root/platform/winelib/run_wine.sh" "$root/build/bin/CityHost.exe" "${options[@]}")
# CEGUI.log lies where the program is started.
cd "$root/build/bin"
if [ -z "$tour" ]; then
    echo "==> opening the city host"
    exec "${host[@]}"
fi
echo "==> touring into $tour"
rm -f "$tour"/[0-9][0-9]-*.png "$tour"/tour.json "$tour"/index.html
# The interface traces each release of a mouse button.
if ! env -u DISPLAY "${host[@]}" --tour "Z:$tour" | sed -u '/^release:/d'; then
    echo "run.sh failed: the tour (see the line above)" >&2
    exit 1
fi
echo "==> $(find "$tour" -name '[0-9][0-9]-*.png' | wc -l) pictures, $tour/index.html"
