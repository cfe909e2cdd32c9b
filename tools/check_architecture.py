#!/usr/bin/env python3
"""Holds the arrows of docs/architecture.md against CMake and against the includes in the sources, and finds
coroutines whose result may be forgotten: they would end, unseen, at their first wait.

The table of the document has a row per layer: its name in the first cell, the layers that it may use in the
second. A layer may include itself and everything that can be reached along the arrows.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\| `(\w+)` \| ([^|]*) \|")
LAYER_CALL = re.compile(r"vantrell_layer\(\s*(\w+)(.*?)\)", re.DOTALL)
INCLUDE = re.compile(r'^\s*#\s*include\s+"(?:(\w+)/)?([^"]+)"', re.MULTILINE)

FORGETTABLE = re.compile(r"^\s+(?:static |virtual )*QCoro::Task<.*>\s+\w+\(.*", re.MULTILINE)


def documented_arrows():
    text = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
    rows = (ROW.match(line) for line in text.splitlines())
    return {row[1]: set(re.findall(r"`(\w+)`", row[2])) for row in rows if row}


def built_arrows():
    arrows = {}
    for file in sorted((ROOT / "src").glob("*/CMakeLists.txt")):
        for name, body in LAYER_CALL.findall(file.read_text(encoding="utf-8")):
            uses = re.search(r"\bUSES\b(.*?)(?:\bLIBRARIES\b|\bINSIDE\b|\bMOC\b|$)", body, re.DOTALL)
            arrows[name] = set(uses[1].split()) if uses else set()
    return arrows


def reachable(layer, arrows):
    found, waiting = {layer}, [layer]
    while waiting:
        for below in arrows.get(waiting.pop(), ()):
            if below not in found:
                found.add(below)
                waiting.append(below)
    return found


def wrong_includes(arrows):
    for layer in arrows:
        allowed = reachable(layer, arrows)
        for file in sorted((ROOT / "src" / layer).rglob("*")):
            if file.suffix not in {".h", ".cpp"}:
                continue
            for included, name in INCLUDE.findall(file.read_text(encoding="utf-8")):
                if not included and (ROOT / "src" / layer / name).exists():
                    continue
                if included not in allowed:
                    yield f"{file.relative_to(ROOT)} includes {included or '(no layer)'}/{name}"


def forgettable_tasks():
    for file in sorted((ROOT / "src").rglob("*.h")):
        for task in FORGETTABLE.findall(file.read_text(encoding="utf-8")):
            yield f"{file.relative_to(ROOT)} lacks [[nodiscard]]: {task.strip()}"


def main():
    documented, built = documented_arrows(), built_arrows()
    problems = [
        f"{layer}: docs/architecture.md says {sorted(documented.get(layer, []))}, CMake says {sorted(built.get(layer, []))}"
        for layer in sorted(documented.keys() | built.keys())
        if documented.get(layer) != built.get(layer)
    ]
    problems += wrong_includes(documented)
    problems += forgettable_tasks()
    for layer in documented:
        if layer in set().union(*(reachable(below, documented) for below in documented[layer]), set()):
            problems.append(f"{layer} reaches itself")
    if not documented:
        problems.append("docs/architecture.md has no table of layers")
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
