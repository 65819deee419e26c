#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The list of tests that were not run: what it names and what it leaves out.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
cat >one.xml <<'XML'
    <testcase name="needs_a_mount" file="a.cpp" line="9" status="run" result="skipped" time="0." classname="Disk">
      <skipped message="a.cpp:9&#x0A;no mounts of its own"><![CDATA[a.cpp:9
no mounts of its own]]></skipped>
    </testcase>
    <testcase name="needs_936" file="a.cpp" line="9" status="run" result="skipped" time="0." classname="Pages">
      <skipped message="a.cpp:9&#x0A;needs the code page 936"><![CDATA[]]></skipped>
    </testcase>
    <testcase name="left_out" file="a.cpp" line="1" status="notrun" result="suppressed" time="0." classname="Disk" />
XML
cat >two.xml <<'XML'
    <testcase name="needs_936" file="a.cpp" line="9" status="run" result="completed" time="0." classname="Pages" />
XML
# expect EXIT WORDS RESULTS...
expect()
{
    local wanted=$1 words=$2 said got=0
    shift 2
    said=$("$here/../list_not_run.sh" "$@") || got=$?
    if [ "$got" -ne "$wanted" ] || [ "$said" != "$words" ]; then
        echo "for $*: exit $got instead of $wanted, or not '$words': $said"
        exit 1
    fi
}
expect 1 $'Disk.needs_a_mount: no mounts of its own\nPages.needs_936: needs the code page 936' one.xml
expect 1 'Disk.needs_a_mount: no mounts of its own' one.xml two.xml
expect 0 '' two.xml
echo "the list names what it should"
