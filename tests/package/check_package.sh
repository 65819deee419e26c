#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the build into a folder, moves that, builds two projects from it alone, and runs them: one that asks for the
# version, and the smallest host, whose source is taken out of README.md.
#   check_package.sh BUILD SOURCE VERSION
set -euo pipefail
build=$(cd "$1" && pwd)
source=$(cd "$2" && pwd)
version=$3
work=$build/tests/run/package
fail()
{
    echo "package: $*" >&2
    exit 1
}

# Inside the display that is started below.
if [ "${4:-}" = on-display ]; then
    cd "$work/host/build/bin"
    "$work/moved/lib/cmake/NxOsgCeGui/platform/winelib/run_wine.sh" "$PWD/SmallestHost.exe" >"$work/host.log" 2>&1 &
    host=$!
    # The title bar is dark, the box in the scene below it is light.
    for ((tries = 0; ; ++tries)); do
        [ $tries -lt 60 ] || { kill $host; fail "the smallest host shows nothing (see $work/host.log and $work/screen.png)"; }
        kill -0 $host 2>/dev/null || fail "the smallest host has ended by itself (see $work/host.log)"
        sleep 0.5
        import -window root "$work/screen.png"
        read -r bar box < <(convert "$work/screen.png" -colorspace gray -format \
            '%[fx:int(255*p{500,25})] %[fx:int(255*p{512,320})]\n' info:)
        [ "$bar" -gt 15 ] && [ "$bar" -lt 80 ] && [ "$box" -gt 180 ] && break
    done
    wine taskkill /im SmallestHost.exe >/dev/null 2>&1 || fail "the smallest host cannot be asked to close"
    for ((tries = 0; tries < 40; ++tries)); do
        kill -0 $host 2>/dev/null || break
        sleep 0.25
    done
    ! kill -0 $host 2>/dev/null || { kill $host; fail "the smallest host does not end when its window is closed"; }
    wait $host || fail "the smallest host ends with $?"
    exit 0
fi

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/first" >"$work/install.log" || fail "installing (see $work/install.log)"
mv "$work/first" "$work/moved"
if grep -rIl "$work/first\|$build\|$source" "$work/moved"; then
    fail "these installed files name the folder that they were made in"
fi
package=$work/moved/lib/cmake/NxOsgCeGui

# make_project FOLDER [CMAKE OPTIONS...]
make_project()
{
    local folder=$1
    shift
    cmake -S "$folder" -B "$folder/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$package/platform/winelib/toolchain.cmake" \
        -DCMAKE_PREFIX_PATH="$work/moved" "$@" >"$folder/build.log" 2>&1 &&
        ninja -C "$folder/build" >>"$folder/build.log" 2>&1 || { cat "$folder/build.log"; fail "building $folder"; }
}

cp -R "$source/tests/package/version" "$work/version"
make_project "$work/version" -DWANTED_VERSION="$version"
export WINEPREFIX=$build/wineprefix
"$package/platform/winelib/run_wine.sh" "$work/version/build/bin/VersionCheck.exe" || fail "the version"

cp -R "$source/examples/smallest_host" "$work/host"
{
    echo "// SPDX-License-Identifier: MIT"
    awk '/^```cpp$/ { inside = 1; next } /^```$/ { if (inside) exit } inside' "$source/README.md"
} >"$work/host/main.cpp"
diff "$source/examples/smallest_host/main.cpp" "$work/host/main.cpp" || fail "README.md shows another host than the example"
make_project "$work/host"
. "$package/platform/winelib/wine_env.sh" "$WINEPREFIX"
env -u DISPLAY NX_SCREEN=1280x800x24 "$package/platform/winelib/with_display.sh" "$0" "$build" "$source" "$version" on-display
grep -q "CEGUI System destruction completed" "$work/host/build/bin/CEGUI.log" || fail "the smallest host leaves CEGUI behind"
echo "installed, moved, and used by two projects"
