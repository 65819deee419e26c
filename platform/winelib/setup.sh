#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes a Debian 12 machine ready and builds: what run.sh and test.sh have in common. Says what it does, and stops with one
# line at the first thing that fails.
#   setup.sh [TARGET...]   without a target: everything
#   NX_BUILD        the build folder (build)
#   NX_CONFIGURE    options for CMake, when that folder is configured
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${NX_BUILD:-$root/build}
packages=(wine wine64 libwine-dev wine64-tools g++ cmake ninja-build pkg-config libopenscenegraph-dev libcegui-mk2-dev
    libglew-dev libglm-dev libgl1-mesa-dri libx11-dev libxcomposite1 libxcursor1 libxi6 libxrandr2 xvfb xauth imagemagick
    libgtest-dev libpugixml-dev librsvg2-bin libspng-dev libtiff-dev fonts-noto-cjk fonts-dejavu-core fonts-wine dpkg-dev
    clang-format-14)

say()
{
    printf '==> %s\n' "$*"
}

fail()
{
    printf 'setup failed: %s\n' "$*" >&2
    exit 1
}

as_root()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "installing packages needs root or sudo: ${missing[*]}"
    fi
}

# One line of progress for so many lines that match a pattern.
every()
{
    awk -v step="$1" -v pattern="$2" -v what="$3" \
        '$0 ~ pattern { if (++n % step == 0) { print "    " n " " what; fflush() } }'
}

install_packages()
{
    missing=()
    local package
    for package in "${packages[@]}"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    command -v apt-get >/dev/null || fail "apt-get is not here; these packages are wanted: ${missing[*]}"
    say "installing ${#missing[@]} packages and what they need: ${missing[*]}"
    as_root apt-get -q update >"$build/apt.log" 2>&1 || fail "apt-get update (see $build/apt.log)"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" 2>&1 |
        tee -a "$build/apt.log" | every 50 '^(Get:|Unpacking|Setting up)' "steps of fetching, unpacking and setting up" ||
        fail "apt-get install (see $build/apt.log)"
}

configure()
{
    # A folder that was configured somewhere else, or not to its end, is configured anew.
    if [ -e "$build/build.ninja" ] && grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt"; then
        return 0
    fi
    say "configuring (fetches the source package of OpenSceneGraph the first time)"
    rm -rf "$build/CMakeCache.txt" "$build/CMakeFiles"
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/winelib/toolchain.cmake" ${NX_CONFIGURE:-} \
        >"$build/configure.log" 2>&1 || fail "configuring (see $build/configure.log)"
}

build_targets()
{
    say "building ${*:-everything}"
    # Ninja's status lines, one in five; whatever else it says is worth reading.
    NINJA_STATUS='[%f/%t] ' ninja -C "$build" "$@" 2>&1 |
        awk '/^ninja: (Entering|no work)/ { next }
             /^\[[0-9]+\/[0-9]+\] / && !/FAILED/ { if (++n % 5 == 0) { print "    " $0; fflush() } next }
             { print; fflush() }' || fail "the build"
}

# Wine's own complaints go to the log: they tell why it fails.
fill_prefix()
{
    local display=()
    [ -n "${DISPLAY:-}" ] || display=("$root/platform/winelib/with_display.sh")
    # Programs here run on displays without a window manager; run_wine.sh tells what that means.
    WINEDEBUG=err+all "${display[@]}" wine wineboot --init &&
        "${display[@]}" wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
}

make_prefix()
{
    . "$root/platform/winelib/wine_env.sh" "$build/wineprefix"
    [ ! -e "$WINEPREFIX/fresh" ] || return 0
    say "making the Wine prefix (about 15 seconds)"
    # A prefix asks much of a machine that has just built: a server, a display and a dozen processes, each with its own limit
    # of time. One that did not get ready is of no use, so that each try begins with nothing; a prefix that the environment
    # names may hold somebody's programs and stays as it is.
    local try
    for try in 1 2 3; do
        if [ "$WINEPREFIX" = "$build/wineprefix" ]; then
            wineserver -k 2>/dev/null || true
            rm -rf "$WINEPREFIX"
        fi
        if fill_prefix >"$build/wineboot.log" 2>&1; then
            break
        fi
        tail -n 5 "$build/wineboot.log" | cut -c1-200 | sed 's/^/    /' >&2
        [ $try -lt 3 ] || fail "the Wine prefix (see $build/wineboot.log)"
        say "once more"
    done
    echo N >"$WINEPREFIX/managed"
    # The registry is written when the last program has gone.
    wineserver -w
    mkdir "$WINEPREFIX/fresh.new"
    cp "$WINEPREFIX"/*.reg "$WINEPREFIX/managed" "$WINEPREFIX/fresh.new"
    mv "$WINEPREFIX/fresh.new" "$WINEPREFIX/fresh"
}

mkdir -p "$build"
install_packages
configure
build_targets "$@"
make_prefix
