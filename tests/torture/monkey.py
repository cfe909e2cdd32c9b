#!/usr/bin/env python3
"""Clicks, types and quits at random in the window, on the build with sanitizers: the suite's own program, which
prints the line of figures.

monkey.py --tests FOLDER [--short]"""

import argparse
import os
import pathlib
import subprocess
import sys

options = argparse.ArgumentParser()
options.add_argument("--tests", type=pathlib.Path, required=True)
options.add_argument("--short", action="store_true")
chosen = options.parse_args()
leaks = pathlib.Path(__file__).resolve().parents[1] / "window/leaks.txt"
environment = {**os.environ, "TZ": "Europe/Berlin", "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
               "LSAN_OPTIONS": f"suppressions={leaks}:print_suppressions=0"}
program = chosen.tests.resolve().parents[1] / "bin/monkey_tests"
plan = [] if chosen.short else ["2000", "100"]
sys.exit(subprocess.run([program, *plan], env=environment, check=False).returncode)
