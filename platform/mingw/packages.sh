# SPDX-License-Identifier: MIT
# What the Windows build wants beside the packages of the Linux build; to be sourced.
mingw_packages=(g++-mingw-w64-x86-64-posix googletest libgtest-dev libpugixml-dev libopenscenegraph-dev libcegui-mk2-dev
    libglew-dev libglm-dev libspng-dev libz-mingw-w64-dev cmake ninja-build dpkg-dev)

# install_mingw_packages FOLDER: those that are missing, with apt's output in FOLDER/apt.log.
install_mingw_packages()
{
    local missing=() package sudo=()
    for package in "${mingw_packages[@]}"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "installing packages needs root or sudo: ${missing[*]}" >&2; return 1; }
        sudo=(sudo)
    fi
    echo "==> installing for the Windows build: ${missing[*]}"
    { "${sudo[@]}" apt-get -q update &&
        "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}"; } \
        >"$1/apt.log" 2>&1 || { echo "apt-get failed (see $1/apt.log)" >&2; return 1; }
}
