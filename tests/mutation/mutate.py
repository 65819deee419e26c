#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Do the tests notice small faults? Makes one small change at a time to a source of the library - a comparison, a sign, a
constant, a condition, a dropped call -, builds, and runs the suites that deal with that source until one fails.

It works on a copy of a commit in a build folder of its own, and leaves the tree alone. What it has tried stands in
results.tsv there: started again it goes on where it stopped, so a run may be cut off at any time.

    tests/mutation/mutate.py [--count 160] [--seed 1] [--folder build-mutation] [--revision HEAD] [--only TEXT] [--list]
    tests/mutation/mutate.py --survivors     each survivor against every suite, and what is left
    tests/mutation/mutate.py --again         each survivor against its own suites once more, with the working tree's tests
"""
import argparse
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]

# The suites for a source, by the longest matching beginning of its path; those that fail soonest first.
SUITES = {
    "src/widgets/": ["Widget", "Chrome", "Frame", "Panel"],
    "src/widgets/BmpFile": ["Widget", "Panel", "ControlButton"],
    "src/widgets/FileStamp": ["ControlButton", "Panel", "Chrome"],
    "src/widgets/Gdiplus": ["Widget", "ControlButton", "Panel", "StartPage"],
    "src/widgets/GuiImageCodec": ["Widget", "GuiHost", "Chrome"],
    "src/widgets/GuiResourceProvider": ["GuiHost", "Chrome"],
    "src/widgets/ImageEncoder": ["Widget", "Panel", "StartPage"],
    "src/widgets/Text": ["Widget", "Panel", "Frame"],
    "src/panels/": ["Panel", "Frame"],
    "src/panels/ColorSelButton": ["TitleDialog"],
    "src/panels/FontNames": ["TitleDialog", "FontInstall"],
    "src/panels/HoverEvents": ["Panel", "Frame", "ControlButton"],
    "src/panels/Sta": ["StartPage"],
    "src/panels/Thumbnails": ["ControlButton", "Frame"],
    "src/panels/TitleEditDialog": ["TitleDialog"],
    "src/control_buttons/": ["ControlButton", "ButtonEditing", "Frame"],
    "src/control_buttons/ButtonEditing": ["ButtonEditing", "ControlButton"],
    "src/control_buttons/PopupMenus": ["ButtonEditing"],
    "src/frame/": ["Chrome", "Frame"],
    "src/frame/FullScene": ["Frame", "Chrome"],
    "src/frame/LeftList": ["Frame", "ControlButton"],
    "src/frame/BottomToolBar": ["Frame", "Chrome", "Panel"],
    "src/frame/SceneTitle": ["Frame", "TitleDialog"],
    "src/frame/RootEvents": ["Frame", "ButtonEditing", "GuiHost"],
    "src/gui_host/": ["GuiHost", "Chrome", "Frame"],
    "src/gui_host/CeGuiEventHandler": ["GuiHost", "Frame", "ButtonEditing"],
    "src/gui_host/FontInstallation": ["FontInstall"],
    "src/gui_host/OldSkin": ["OldSkin"],
}
EVERY_SUITE = ["Widget", "StartPage", "Services", "FontInstall", "OldSkin", "ControlButton", "TitleDialog", "Chrome",
               "ButtonEditing", "GuiHost", "LiveSkin", "Frame", "Panel"]
# Long ones, which find what the others of their suites find; the survivors meet them, too.
SLOW_TESTS = {"Frame": "-LongListTest.*", "Panel": "-PanelWalkTest.*:LongListTest.*", "Chrome": "-ManyResizes.*"}

# Kind, what is replaced, by what, and how many in a hundred of all changes.
CHANGES = [
    ("comparison", r" < ", " <= ", 6), ("comparison", r" <= ", " < ", 3), ("comparison", r" > ", " >= ", 5),
    ("comparison", r" >= ", " > ", 3), ("comparison", r" == ", " != ", 6), ("comparison", r" != ", " == ", 5),
    ("sign", r" \+ ", " - ", 9), ("sign", r" - ", " + ", 9), ("sign", r" \* ", " / ", 2), ("sign", r" / ", " * ", 3),
    ("condition", r" && ", " || ", 6), ("condition", r" \|\| ", " && ", 5), ("condition", r"!(?=[A-Za-z_])", "", 6),
    ("constant", r"(?<![\w.])(\d+)(?![\w.])", None, 14), ("constant", r"(?<![\w.])(\d+\.\d+)(?=f?\b)", None, 3),
    ("constant", r"\btrue\b", "false", 5), ("constant", r"\bfalse\b", "true", 4),
    ("call", None, None, 20),
]
NO_CODE = re.compile(r"^\s*(#|//|/\*|\*|using |namespace|template|class |struct |enum |static_assert|friend |default:|case )")


def blank_texts(line):
    """The line without what stands in quotation marks and comments, of the same length."""
    line = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', lambda m: '"' * len(m.group()), line)
    return re.sub(r"//.*", lambda m: " " * len(m.group()), line)


def candidates(tree):
    found = {i: [] for i in range(len(CHANGES))}
    for path in sorted(tree.glob("src/*/*.cpp")):
        name = str(path.relative_to(tree))
        lines = path.read_text(encoding="utf-8").splitlines()
        before = ""
        for number, line in enumerate(lines):
            plain = blank_texts(line)
            if plain.strip() and not NO_CODE.match(line):
                for i, (kind, pattern, by, _) in enumerate(CHANGES):
                    if kind == "call":
                        whole = re.match(r"^\s+[A-Za-z_][\w:.>\[\]*-]*\(.*\);$", plain.rstrip())
                        if whole and before.endswith((";", "{", "}")) and not re.match(r"^\s+(return|delete|throw)\b", plain):
                            indent = re.match(r"\s*", line).group()
                            found[i].append((name, number, kind, line, indent + ";"))
                        continue
                    for match in re.finditer(pattern, plain):
                        new = by if by is not None else next_number(match.group())
                        found[i].append((name, number, kind, line, line[:match.start()] + new + line[match.end():]))
            if plain.strip():
                before = plain.rstrip()
    return found


def next_number(text):
    return str(int(text) + 1) if "." not in text else str(float(text) + 1.0)


def choose(tree, count, seed):
    chance = random.Random(seed)
    found = candidates(tree)
    chosen = []
    for i, (_, _, _, share) in enumerate(CHANGES):
        chance.shuffle(found[i])
        chosen += found[i][:max(1, round(count * share / 100 * 1.15))]
    chance.shuffle(chosen)
    return chosen


def suites_for(name):
    return SUITES[max((key for key in SUITES if name.startswith(key)), key=len)]


class Workshop:
    def __init__(self, folder, revision):
        self.revision = revision
        self.tree = folder / "tree"
        self.build = folder / "tree" / "build"
        self.log = folder / "log.txt"

    def copy(self):
        if not self.tree.exists():
            self.tree.mkdir(parents=True)
            archive = subprocess.Popen(["git", "-C", ROOT, "archive", self.revision], stdout=subprocess.PIPE)
            subprocess.run(["tar", "-x", "-C", self.tree], stdin=archive.stdout, check=True)

    def make(self):
        if not (self.build / "build.ninja").exists():
            self.run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja",
                      f"-DCMAKE_TOOLCHAIN_FILE={self.tree}/platform/winelib/toolchain.cmake",
                      "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"], check=True)
        self.run(["ninja", "-C", self.build] + [suite + "Tests" for suite in EVERY_SUITE], check=True)
        prefix = self.build / "wineprefix"
        if not (prefix / "fresh").exists():
            self.run([self.tree / "platform/winelib/setup.sh", "NxMfc"], check=True)

    def run(self, command, check=False):
        with open(self.log, "ab") as log:
            return subprocess.run([str(c) for c in command], stdout=log, stderr=log, check=check).returncode

    def compiles(self):
        return self.run(["ninja", "-C", self.build, "NxOsgCeGui"]) == 0

    def notices(self, suite, whole):
        """Whether a suite fails, or does not end."""
        arguments = ["--gtest_brief=1", "--gtest_fail_fast"]
        if not whole and suite in SLOW_TESTS:
            arguments.append("--gtest_filter=" + SLOW_TESTS[suite])
        environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WINEPREFIX")}
        process = subprocess.Popen(
            [str(self.tree / "tests/run_suite.sh"), str(self.build / f"bin/{suite}Tests.exe"), str(self.tree / "app"),
             str(self.build / f"tests/run/{suite}")] + arguments,
            stdout=open(self.log, "ab"), stderr=subprocess.STDOUT, env=environment, start_new_session=True)
        try:
            return process.wait(timeout=400) != 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, 9)
            return True

    def try_change(self, change, suites, whole=False):
        name, number, _, old, new = change
        path = self.tree / name
        text = path.read_text(encoding="utf-8")
        lines = text.splitlines()
        if number >= len(lines) or lines[number] != old:
            return "gone"
        lines[number] = new
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        try:
            if not self.compiles():
                return "not compiled"
            for suite in suites:
                if self.notices(suite, whole):
                    return suite
            return "SURVIVED"
        finally:
            path.write_text(text, encoding="utf-8")


def key(change):
    name, number, kind, old, new = change
    return f"{name}:{number + 1}\t{kind}\t{old.strip()}\t{new.strip()}"


def read_results(path):
    if not path.exists():
        return {}
    rows = (line.rsplit("\t", 1) for line in path.read_text(encoding="utf-8").splitlines())
    return {row[0]: row[1] for row in rows}


def report(results):
    tried = {k: v for k, v in results.items() if v not in ("not compiled", "gone")}
    left = [k for k, v in tried.items() if v == "SURVIVED"]
    print(f"{len(tried)} changes, {len(tried) - len(left)} noticed, {len(left)} survived"
          f" ({100 * len(left) / max(1, len(tried)):.1f} in 100)")
    for line in left:
        print("  " + line)
    return len(left) * 10 < len(tried)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=160)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folder", type=pathlib.Path, default=ROOT / "build-mutation")
    parser.add_argument("--revision", default="HEAD", help="what is copied")
    parser.add_argument("--only", default="", help="changes whose description holds this text")
    parser.add_argument("--part", default="1/1",
                        help="K/N: each Nth change from the Kth on, for runs side by side in folders of their own")
    parser.add_argument("--list", action="store_true", help="say what would be changed")
    parser.add_argument("--survivors", action="store_true", help="run every suite for each survivor")
    parser.add_argument("--again", action="store_true", help="run the working tree's tests for each survivor")
    options = parser.parse_args()
    folder = options.folder.resolve()
    folder.mkdir(parents=True, exist_ok=True)
    results_file = folder / "results.tsv"
    results = read_results(results_file)
    workshop = Workshop(folder, options.revision)
    workshop.copy()
    if options.again:
        shutil.rmtree(workshop.tree / "tests")
        shutil.copytree(ROOT / "tests", workshop.tree / "tests")
    changes = [c for c in choose(workshop.tree, options.count, options.seed) if options.only in key(c)]
    part, parts = map(int, options.part.split("/"))
    changes = changes[part - 1::parts]
    if options.list:
        print("\n".join(key(c) for c in changes))
        return 0
    workshop.make()
    for change in changes:
        known = results.get(key(change))
        survivors = options.survivors or options.again
        if survivors != (known == "SURVIVED") or (known is not None and not survivors):
            continue
        start = time.time()
        suites = EVERY_SUITE if options.survivors else suites_for(change[0])
        outcome = workshop.try_change(change, suites, whole=options.survivors)
        results[key(change)] = outcome
        results_file.write_text("".join(f"{k}\t{v}\n" for k, v in results.items()), encoding="utf-8")
        print(f"{time.time() - start:5.0f} s  {outcome:14} {key(change)}", flush=True)
    workshop.compiles()
    return 0 if report(results) else 1


if __name__ == "__main__":
    sys.exit(main())
