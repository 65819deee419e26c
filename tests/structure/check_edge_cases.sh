#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that every test that a list names is there and was run, that none failed, and that every case of the list names one.
#   check_edge_cases.sh LIST.md RESULTS.xml...   the results that GoogleTest wrote
set -euo pipefail
export LC_ALL=C
list=$1
shift
failed=0
complain()
{
    printf '%s\n' "$*"
    failed=1
}

for results in "$@"; do
    [ -s "$results" ] || { echo "no results, its suite has not come to its end: $results"; exit 1; }
done
while IFS= read -r results; do
    complain "tests failed: $results"
done < <(grep -lE '<testsuites [^>]*(failures|errors)="[1-9]' "$@" || true)
# SUITE.TEST and how it went, a line each.
tests=$(sed -nE 's/^ *<testcase name="([^"]*)".* status="([^"]*)" result="([^"]*)".* classname="([^"]*)".*/\4.\1 \2 \3/p' "$@")
ran=$(awk '$2 == "run" && $3 == "completed" { print $1 }' <<<"$tests" | sort -u)
cases=$(grep -c '^- ' "$list") || { echo "no cases in $list"; exit 1; }
name='`[A-Za-z0-9_]+\.[A-Za-z0-9_]+`'

while IFS= read -r line; do
    complain "no test is named: $line"
done < <(grep '^- ' "$list" | grep -vE "$name" || true)
named=$(grep '^- ' "$list" | grep -oE "$name" | tr -d '`' | sort -u)
while IFS= read -r test; do
    if grep -qF "$test " <<<"$tests"; then
        complain "did not run: $test"
    else
        complain "there is no such test: $test"
    fi
done < <(comm -23 <(printf '%s\n' "$named") <(printf '%s\n' "$ran") | grep . || true)
[ $failed -eq 0 ] || exit 1
echo "$cases cases, proved by $(grep -c . <<<"$named") tests; all of them ran"
