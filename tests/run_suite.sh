#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a test program in a fresh folder with a copy of the application's data in "app".
#   run_suite.sh PROGRAM.exe APP_DATA FOLDER [GOOGLETEST ARGUMENTS...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$1
data=$2
folder=$3
shift 3
rm -rf "$folder"
mkdir -p "$folder"
cp -R "$data" "$folder/app"
cd "$folder"
exec "$here/../platform/winelib/run_wine.sh" "$program" "$@"
