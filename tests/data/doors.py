#!/usr/bin/env python3
"""Compiles what a screen may write about the store, and what it may not: each line of doors.tsv that names an error
has to fail with it, and all others compile. Takes the folder of the build, which knows how a screen is compiled."""

import json
import pathlib
import re
import shlex
import subprocess
import sys

HEAD = """#include "ScreenParts.h"
#include "data/ModelContainer.h"
#if __has_include("data/Sqlite.h") || __has_include("Sqlite.h") || __has_include("Layouts.h")
#error "the store's insides can be reached"
#endif
namespace vantrell {
"""
SCREENS = pathlib.Path(__file__).parents[2] / "src/screens"
commands = json.loads((pathlib.Path(sys.argv[1]) / "compile_commands.json").read_text())
words = shlex.split(next(entry["command"] for entry in commands if "vantrell_screens.dir" in entry["command"]))
compiler = next(word for word in words if "++" in word)
flags = [flag + path for flag, path in zip(words, words[1:]) if flag == "-isystem"]
flags += [word for word in words if word.startswith(("-I", "-D", "-f", "-std"))]
lines = [line.split("\t") for line in (pathlib.Path(__file__).parent / "data/doors.tsv").read_text().splitlines()
         if not line.startswith("#")]


def errors_of(statements):
    """By the number of the statement."""
    functions = [f"void screen{number}([[maybe_unused]] const ScreenParts& parts) {{ {statement} }}"
                 for number, statement in enumerate(statements)]
    source = HEAD + "\n".join(functions) + "\n}\n"
    run = subprocess.run([compiler, *flags, f"-I{SCREENS}", "-fsyntax-only", "-xc++", "-"], input=source, text=True,
                         stderr=subprocess.PIPE, check=False)
    first = HEAD.count("\n") + 1
    errors = {}
    for number, text in re.findall(r"^<stdin>:(\d+):\d+: (?:fatal )?error: (.*)", run.stderr, re.M):
        errors.setdefault(int(number) - first, text)
    if run.returncode != 0 and not errors:
        sys.exit(run.stderr)
    return errors


failures = 0
allowed = [statement for statement, error in lines if not error]
forbidden = [(statement, error) for statement, error in lines if error]
for number, text in errors_of(allowed).items():
    failures += 1
    print(f"{allowed[number]}: {text}")
errors = errors_of([statement for statement, _ in forbidden])
for number, (statement, error) in enumerate(forbidden):
    if not re.search(error, errors.get(number, "")):
        failures += 1
        print(f"{statement}: {errors.get(number, 'compiles')}, not {error}")
sys.exit(1 if failures or not allowed or not forbidden else 0)
