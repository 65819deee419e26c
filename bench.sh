#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds, and measures the interface beside other ways to the same picture: prints a table, writes
# out/bench.json and docs/performance.md. Fails when one of the others draws another picture, or something cannot be measured.
#   bench.sh [--plain] [--only GROUP]
#   --plain        over a plain background in place of the city
#   --only GROUP   one group of rows: docs/performance.md then stays as it is
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
build=$root/build
packages=(libimgui-dev libstb-dev libmygui-dev libmygui.openglplatform0debian1v5 python3)

"$root/platform/winelib/setup.sh" NxOsgCeGui
missing=()
for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "==> installing the toolkits to measure against: ${missing[*]}"
    as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" \
        >"$build/apt.log" 2>&1 || { echo "bench.sh failed: apt-get install (see $build/apt.log)" >&2; exit 1; }
fi
grep -q '^NX_BENCHMARK:BOOL=ON$' "$build/CMakeCache.txt" || cmake -DNX_BENCHMARK=ON "$build" >"$build/configure.log" 2>&1 ||
    { echo "bench.sh failed: configuring (see $build/configure.log)" >&2; exit 1; }
"$root/platform/winelib/setup.sh" NxBench

echo "==> measuring"
mkdir -p "$root/out/bench"
# A display of its own, and the library that counts allocations. It is named without its folder: LD_PRELOAD splits at blanks, which
# a list of folders may hold.
env -u DISPLAY LD_LIBRARY_PATH="$build/bin${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" LD_PRELOAD=libNxBenchCount.so \
    "$root/tests/run_suite.sh" "$build/bin/NxBench.exe" "$root/app" "$build/bench/run" "$@" "$root/out/bench"
case " $* " in
*" --only "*) ;;
*)
    cp "$root/out/bench/bench.json" "$root/out/bench.json"
    python3 "$root/bench/performance.py" "$root/out/bench.json" "$(cat "$root/out/bench/renderer.txt")" >"$root/docs/performance.md"
    ;;
esac
