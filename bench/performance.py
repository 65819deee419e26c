#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes docs/performance.md of the benchmark's bench.json: performance.py bench.json [renderer]"""
import datetime
import json
import os
import re
import sys


def cpu():
    with open("/proc/cpuinfo", encoding="utf-8") as info:
        found = re.search(r"model name\s*:\s*(.*)", info.read())
    return found.group(1) if found else "unknown processor"


def number(value):
    return f"{value:,.0f}" if abs(value) >= 100 else f"{value:.3g}"


def spread(row, side):
    quartiles = row.get("spread", {}).get(side)
    return f" ({number(quartiles[0])} - {number(quartiles[1])})" if quartiles else ""


def table(rows):
    yield "| row | what | unit | measured (quartiles) | reference (quartiles) | ratio | limit | holds |"
    yield "|---|---|---|---|---|---|---|---|"
    for row in rows:
        yield (f"| {row['name']} | {row['what']} | {row['unit']} | {number(row['measured'])}{spread(row, 'measured')} | "
               f"{number(row['reference'])}{spread(row, 'reference')} | {row['ratio']:.3f} | {row['limit']:g} | "
               f"{'yes' if row['holds'] else 'no'} |")


def growth(rows):
    counts = sorted({int(count) for row in rows for count in row.get("growth", {})})
    if not counts:
        return
    yield ""
    yield "## Growth"
    yield ""
    yield "The measured figure by the number of entries, buttons or rows, in the unit of its row: of a start the first one"
    yield "with so many, which makes their thumbnails; of memory with so many buttons and so many rows."
    yield ""
    yield "| row | " + " | ".join(f"{count:,}" for count in counts) + " |"
    yield "|---" * (len(counts) + 1) + "|"
    for row in rows:
        if "growth" in row:
            series = row["growth"]
            yield f"| {row['name']} | " + " | ".join(number(series[str(c)]) if str(c) in series else "" for c in counts) + " |"


def misses(rows, notes):
    """What is known of the rows that do not hold; the notes are "name: text", one a line."""
    failing = [row for row in rows if not row["holds"]]
    if not failing:
        return
    known = dict(line.split(": ", 1) for line in notes.splitlines() if ": " in line)
    yield ""
    yield "## Where the time of the others goes"
    yield ""
    for row in failing:
        yield f"- {row['name']} ({row['ratio']:.2f} in place of {row['limit']:g}): {known.get(row['name'], 'not looked into yet')}"


def details(rows):
    yield ""
    yield "## Beside the medians"
    yield ""
    for row in rows:
        parts = [f"{key.replace('_', ' ')} {number(value)}" for key, value in row.get("extra", {}).items()]
        if row.get("note"):
            parts.append(row["note"])
        yield f"- {row['name']}: {'; '.join(parts)}"


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        rows = json.load(file)
    renderer = sys.argv[2] if len(sys.argv) > 2 else ""
    here = os.path.dirname(os.path.abspath(__file__))
    with open(os.path.join(here, "performance_head.md"), encoding="utf-8") as head:
        print(head.read().rstrip())
    print()
    print(f"Measured on {datetime.date.today()}: {cpu()}, {os.cpu_count()} cores. {renderer}".rstrip())
    print(f"{sum(row['holds'] for row in rows)} of {len(rows)} rows hold.")
    print()
    with open(os.path.join(here, "performance_notes.txt"), encoding="utf-8") as file:
        notes = file.read()
    for part in (table(rows), misses(rows, notes), growth(rows), details(rows)):
        for line in part:
            print(line)


main()
