#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes a Wine prefix like a fresh machine in no time: a registry, a folder of fonts and one for temporary files of its own, and
# Windows' other files linked. Programs in one prefix share the mouse and the focus, even on displays of their own.
#   copy_prefix.sh FROM TO
set -euo pipefail
from=$(cd "$1" && pwd)
to=$2
mkdir -p "$to/drive_c/windows/Fonts" "$to/dosdevices"
cp "$from"/fresh/*.reg "$from/.update-timestamp" "$to/"
[ ! -e "$from/fresh/managed" ] || cp "$from/fresh/managed" "$to/"
ln -s ../drive_c "$to/dosdevices/c:"
ln -s / "$to/dosdevices/z:"
for entry in "$from"/drive_c/*; do
    case ${entry##*/} in
    windows | users) ;;
    *) ln -s "$entry" "$to/drive_c/" ;;
    esac
done
# Temporary files are named by process and time, and processes of two prefixes have the same numbers.
for home in "$from"/drive_c/users/*; do
    mkdir -p "$to/drive_c/users/${home##*/}/Temp"
    for entry in "$home"/*; do
        [ "${entry##*/}" = Temp ] || ln -s "$entry" "$to/drive_c/users/${home##*/}/"
    done
done
for entry in "$from"/drive_c/windows/*; do
    [ "${entry##*/}" = Fonts ] || ln -s "$entry" "$to/drive_c/windows/"
done
