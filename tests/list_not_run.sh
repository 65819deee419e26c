#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Lists the tests that were skipped in every run that there was of them, with the reason: they count as not run.
#   list_not_run.sh RESULTS.xml...   the results that GoogleTest wrote
# Prints nothing, and exits with 0, when there is none; else exits with 1.
set -euo pipefail
export LC_ALL=C
# SUITE.TEST, how it went, and why, a line each. The reason of one that was skipped stands on the line after it.
awk '
    function value(name,   text) {
        if (!match($0, " " name "=\"[^\"]*\"")) return ""
        text = substr($0, RSTART, RLENGTH)
        sub(/^[^"]*"/, "", text)
        sub(/"$/, "", text)
        return text
    }
    /<testcase / {
        test = value("classname") "." value("name")
        if (value("result") == "completed") ran[test] = 1
        if (value("result") == "skipped") skipped[test] = "no reason given"
    }
    /<skipped / {
        reason = value("message")
        sub(/^[^&]*&#x0A;/, "", reason)
        if (reason != "") skipped[test] = reason
    }
    END {
        for (test in skipped) if (!(test in ran)) {
            print test ": " skipped[test]
            some = 1
        }
        exit some
    }' "$@" | sort
