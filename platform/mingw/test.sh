#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the tests that check.sh has built as true Windows programs under Wine, and counts them against the same suites of the
# Winelib build. It fails when a test fails, and when a suite's tests are not the same ones; those of not_run.txt are left out.
#   test.sh [FOLDER [RESULTS [SUITE...]]]
#     FOLDER    what check.sh has made (build-mingw)
#     RESULTS   where the Winelib build's suites have left their results (build/tests/run, which ./test.sh fills)
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "${1:-$root/build-mingw}" && pwd)
results=${2:-$root/build/tests/run}
shift $(($# < 2 ? $# : 2))
wanted=" $* "
base=$root/build/wineprefix
[ -e "$base/fresh" ] || { echo "test.sh: no Wine prefix; platform/winelib/setup.sh makes it" >&2; exit 1; }

# Where Wine finds the DLLs: this build's own, the stand-ins, and the compiler's.
runtime=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
threads=$(dirname "$(find /usr/x86_64-w64-mingw32 -name libwinpthread-1.dll | head -n 1)")
WINEPATH="Z:$build/bin;Z:$build/prefix/bin;Z:$runtime;Z:$threads"
export WINEPATH

# The tests that a suite has run to their end, skipped ones left out.
ran()
{
    sed -nE 's/.*<testcase name="([^"]*)".* status="run" result="completed".* classname="([^"]*)".*/\2.\1/p' "$1" | sort
}

failed=0
complain()
{
    printf 'test.sh: %s\n' "$*" >&2
    failed=1
}

printf '%-22s %8s %8s %8s\n' suite Winelib Windows left-out
while read -r suite program locale; do
    [ "$wanted" = "  " ] || [[ "$wanted" == *" $suite "* ]] || continue
    mapfile -t patterns < <(awk -v program="$program" '$1 == program { print $2 }' "$root/platform/mingw/not_run.txt")
    folder=$build/tests/run/$suite
    mkdir -p "$build/tests/run"
    rm -rf "$folder" "$folder.prefix"
    "$root/platform/winelib/copy_prefix.sh" "$base" "$folder.prefix"
    filter=$(IFS=:; echo "${patterns[*]:-}")
    if ! env -u DISPLAY WINEPREFIX="$folder.prefix" ${locale:+NX_CODE_PAGE_LOCALE="$locale"} timeout 300 \
        "$root/tests/run_suite.sh" "$build/tests/bin/$program.exe" "$root/app" "$folder" --gtest_output=xml:results.xml \
        --gtest_filter="*${filter:+-$filter}" >"$folder.log" 2>&1 </dev/null; then
        complain "$suite fails:"
        grep -E 'Failure|FAILED|not here' -A 3 "$folder.log" >&2 || tail -n 20 "$folder.log" >&2
    fi
    if [ ! -e "$results/$suite/results.xml" ] || [ ! -e "$folder/results.xml" ]; then
        complain "no results of $suite in $results or $folder"
        continue
    fi
    ran "$results/$suite/results.xml" >"$folder.winelib"
    ran "$folder/results.xml" >"$folder.windows"
    left_out=0
    : >"$folder.expected"
    declare -A used=()
    while read -r name; do
        match=
        for pattern in ${patterns[@]+"${patterns[@]}"}; do
            # shellcheck disable=SC2053 -- the pattern is one
            [[ $name != $pattern ]] || { match=1 used[$pattern]=1; }
        done
        if [ -n "$match" ]; then
            left_out=$((left_out + 1))
        else
            echo "$name" >>"$folder.expected"
        fi
    done <"$folder.winelib"
    printf '%-22s %8d %8d %8d\n' "$suite" "$(wc -l <"$folder.winelib")" "$(wc -l <"$folder.windows")" "$left_out"
    while read -r name; do
        complain "$suite: only one of the builds runs $name"
    done < <(comm -3 "$folder.expected" "$folder.windows" | tr -d '\t')
    for pattern in ${patterns[@]+"${patterns[@]}"}; do
        [ -n "${used[$pattern]:-}" ] || complain "$suite: not_run.txt names $pattern, which no test matches"
    done
    unset used
done <"$build/tests/suites.txt"
exit $failed
