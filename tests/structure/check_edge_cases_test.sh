#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The check of edge cases itself: what it takes and what it refuses.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

result()
{
    printf '    <testcase name="%s" file="a.cpp" line="1" status="%s" result="%s" time="0." classname="%s" />\n' "$2" "$3" "$4" "$1"
}
{
    result Bars first run completed
    result Bars second run skipped
    result Bars third notrun suppressed
} >bars.xml
printf '    <testcase name="fails" file="a" line="1" status="run" result="completed" time="0" classname="Other">\n' >other.xml
: >empty.xml
{
    printf '<testsuites tests="3" failures="1" disabled="0" errors="0" time="1" name="AllTests">\n'
    result Bars fails run completed
} >failed.xml

# expect EXIT WORDS LIST RESULTS...
expect()
{
    local wanted=$1 words=$2 text=$3 said got=0
    shift 3
    printf '%s\n' "$text" >list.md
    said=$("$here/check_edge_cases.sh" list.md "$@") || got=$?
    if [ "$got" -ne "$wanted" ] || [[ $said != *"$words"* ]]; then
        echo "for '$text': exit $got instead of $wanted, or not '$words': $said"
        exit 1
    fi
}
expect 0 '2 cases, proved by 2 tests' $'# Head `Not.counted`\n- one `Bars.first`\n- two `Bars.first` `Other.fails`' bars.xml other.xml
expect 1 'did not run: Bars.second' '- skipped `Bars.second`' bars.xml
expect 1 'did not run: Bars.third' '- disabled `Bars.third`' bars.xml
expect 1 'there is no such test: Bars.firs' '- misspelt `Bars.firs`' bars.xml
expect 1 'there is no such test: Bars.gone' '- one of two `Bars.first` `Bars.gone`' bars.xml
expect 1 'no test is named: - bare' '- bare' bars.xml
expect 1 'no cases' 'nothing' bars.xml
expect 1 'no results' '- one `Bars.first`' bars.xml missing.xml
expect 1 'no results' '- one `Bars.first`' bars.xml empty.xml
expect 1 'tests failed: failed.xml' '- one `Bars.first`' bars.xml failed.xml
echo "the check takes and refuses what it should"
