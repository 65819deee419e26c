#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the targets with Clang's sanitizers and lets libFuzzer look for bytes that they do not stand, each for a while. Ends
# with 1 when it found some; they lie in build/fuzz/run/TARGET/found, and belong into the corpus once the library is mended.
#   run.sh [SECONDS [TARGETS...]]
#   run.sh 0 TARGET FILE...   runs a target on these files alone
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
seconds=${1:-60}
shift $(($# > 0))
build=$root/build/fuzz
compiler=$(command -v clang++-14 || true)
runtime=$([ -z "$compiler" ] || "$compiler" -print-resource-dir)/lib/linux
if [ ! -e "$runtime/libclang_rt.fuzzer_no_main-x86_64.a" ] || [ ! -e "$runtime/libclang_rt.asan-x86_64.so" ]; then
    echo "run.sh: fuzzing needs Clang 14 and its runtime: apt-get install clang-14 libclang-rt-14-dev" >&2
    exit 2
fi
if [ ! -e "$root/build/wineprefix/fresh" ]; then
    echo "run.sh: build the project first: platform/winelib/setup.sh" >&2
    exit 2
fi

# winegcc calls the g++ that it finds first.
mkdir -p "$build/compiler"
ln -sf "$compiler" "$build/compiler/g++"
export PATH=$build/compiler:$PATH
# One fuzzer for the program and all modules.
fuzzer=$build/libNxFuzzer.so
sanitizer=$runtime/libclang_rt.asan-x86_64.so
[ -e "$fuzzer" ] || "$compiler" -shared -o "$fuzzer" -Wl,--whole-archive "$runtime/libclang_rt.fuzzer_no_main-x86_64.a" \
    -Wl,--no-whole-archive -lpthread -ldl -lm
[ -e "$build/osg-win32" ] || cp -R "$root/build/osg-win32" "$build/osg-win32"
# The ordinary build is the one that warns.
flags="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function -fno-sanitize-recover=undefined"
flags="$flags -mllvm -asan-stack=0 -fno-omit-frame-pointer -w -Wno-narrowing"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/platform/winelib/toolchain.cmake" -DNX_FUZZ=ON \
    -DNX_PRECOMPILED_HEADERS=OFF "-DCMAKE_CXX_FLAGS=$flags" "-DCMAKE_CXX_STANDARD_LIBRARIES=$fuzzer $sanitizer" \
    >"$build/configure.log"
echo "==> building"
ninja -C "$build" Fuzz | tail -n 1
export NX_WINE=$here/start.sh NX_FUZZ_LIBRARIES="$fuzzer $sanitizer"
export ASAN_SYMBOLIZER_PATH=${ASAN_SYMBOLIZER_PATH:-$(command -v llvm-symbolizer-14 || true)}

# fuzz TARGET ARGUMENTS...: in a folder of its own, with its own copy of the application's data and its own Wine prefix.
fuzz()
{
    local run=$build/run/$1
    mkdir -p "$run/corpus" "$run/found"
    rm -rf "$run/app" "$run/last_bytes" "$run/prefix" "$run/scratch"
    cp -R "$root/app" "$run/app"
    "$root/platform/winelib/copy_prefix.sh" "$root/build/wineprefix" "$run/prefix"
    (cd "$run" && WINEPREFIX=$run/prefix "$root/platform/winelib/run_wine.sh" "$build/bin/Fuzz.exe" "$@" \
        -artifact_prefix="$run/found/" -rss_limit_mb=0 -timeout=20 -print_final_stats=1 \
        -handle_segv=0 -handle_bus=0 -handle_ill=0 -handle_fpe=0 -handle_int=0 -handle_term=0)
}

if [ "$seconds" = 0 ]; then
    target=$1
    shift
    files=()
    for file in "$@"; do files+=("$(realpath "$file")"); done
    fuzz "$target" "${files[@]}"
    exit
fi
[ $# -gt 0 ] || set -- $(ls "$here/corpus")
found=0
for target in "$@"; do
    log=$build/run/$target.log
    mkdir -p "$build/run"
    code=0
    fuzz "$target" "$build/run/$target/corpus" "$here/corpus/$target" -max_total_time="$seconds" >"$log" 2>&1 || code=$?
    runs=$(sed -nE 's/^stat::number_of_executed_units: *//p' "$log")
    speed=$(sed -nE 's/^stat::average_exec_per_sec: *//p' "$log")
    edges=$(sed -nE 's/.* cov: ([0-9]+) .*/\1/p' "$log" | tail -n 1)
    features=$(sed -nE 's/.* ft: ([0-9]+) .*/\1/p' "$log" | tail -n 1)
    echo "$target: ${runs:-?} runs, ${speed:-?} a second, ${edges:-?} edges, ${features:-?} features"
    if [ $code -ne 0 ] || [ -z "$runs" ]; then
        found=1
        bytes=$build/run/$target/last_bytes
        [ ! -e "$bytes" ] || cp "$bytes" "$build/run/$target/found/$(sha1sum "$bytes" | cut -c 1-12)"
        grep -E 'FOUND|ERROR|SUMMARY|runtime error' "$log" | sed 's/^/    /' || tail -n 5 "$log"
    fi
done
exit $found
