#!/usr/bin/env python3
"""Clicks, types and quits at random in the window, on the build with sanitizers: the suite's own program, which
prints the line of figures.

monkey.py --tests FOLDER [--short]"""

import argparse
import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--tests", type=pathlib.Path, required=True)
    options.add_argument("--short", action="store_true")
    chosen = options.parse_args()
    leaks = HERE.parent / "window" / "leaks.txt"
    surroundings = {"TZ": "Europe/Berlin", "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
                    "LSAN_OPTIONS": f"suppressions={leaks}:print_suppressions=0"}
    program = chosen.tests.resolve().parent.parent / "bin" / "monkey_tests"
    plan = [] if chosen.short else ["--actions", "2000", "--quits", "100"]
    return subprocess.run([program, *plan], env=os.environ | surroundings, check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
