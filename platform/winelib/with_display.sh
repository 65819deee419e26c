#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command on an X display of its own, so that programs side by side share neither mouse nor keyboard.
#   with_display.sh COMMAND [ARGUMENTS...]
#   NX_SCREEN   size of the display (1920x1200x24)
set -euo pipefail
folder=$(mktemp -d)
server=
finish()
{
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$folder"
}
trap finish EXIT
trap 'exit 130' INT TERM

# The server picks a free number itself: two that start at once never take the same one.
mkfifo "$folder/number"
Xvfb -displayfd 3 -screen 0 "${NX_SCREEN:-1920x1200x24}" +extension GLX -nolisten tcp 3>"$folder/number" 2>"$folder/log" &
server=$!
if ! read -r -t 30 number <"$folder/number"; then
    echo "with_display.sh: Xvfb does not start: $(tail -n 1 "$folder/log")" >&2
    exit 1
fi
export DISPLAY=:$number
# There is no window manager on it.
export NX_BARE_DISPLAY=$DISPLAY
# Wine's desktop process complains about the end of its display whenever that is taken away.
"$@" 2> >(sed -u '/^X connection to .* broken/d' >&2)
