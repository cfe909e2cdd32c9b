#!/usr/bin/env python3
"""Runs the harnesses, each of which prints lines of figures and ends with 0 if nothing was violated.

torture.py --program FILE --tests FOLDER [--short] [NAME ...]: the program to be disturbed, the folder of the
build that holds what the harnesses need besides, and which of them; without a name all of them."""

import argparse
import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SHIM = "{tests}/libvantrell_storage_shim.so"
STORAGE = ["storage.py", "--program", "{program}", "--shim", SHIM]

# Name -> script of this folder with its arguments; --short is added.
HARNESSES = {
    "storage": [*STORAGE, "kills", "faults", "power", "random", "disks", "races", "shown"],
    "fuzzing": ["fuzzing.py"],
    "bad-stores": [*STORAGE, "bad"],
    "hostile": ["hostile.py", "--program", "{program}", "--shim", SHIM],
    "secrets": ["secrets.py", "--program", "{program}"],
}
# Name -> program of the build, what it needs and its arguments in the long form. Each is a suite besides: of clicks,
# keys and quits at random in the window, and of the labels of reports in all zones held against the C library's.
PROGRAMS = {
    "monkey": ("monkey_tests", ["2000", "100"], {
        "TZ": "Europe/Berlin", "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
        "LSAN_OPTIONS": f"suppressions={HERE.parent / 'window/leaks.txt'}:print_suppressions=0"}),
    "labels": ("calendar_tests", [], {"TZ": "UTC", "GTEST_FILTER": "*LabelsInAllZones*", "GTEST_BRIEF": "1"}),
}


def ended(name, chosen):
    """The exit code of a harness."""
    if name in PROGRAMS:
        program, arguments, environment = PROGRAMS[name]
        command = [chosen.tests.resolve().parents[1] / "bin" / program, *arguments * (not chosen.short)]
        steps = {} if chosen.short else {"VANTRELL_LABEL_STEP": "86413"}
        return subprocess.run(command, env={**os.environ, **environment, **steps}, check=False).returncode
    script, *arguments = HARNESSES[name]
    command = [sys.executable, str(HERE / script)]
    command += [argument.format(program=chosen.program, tests=chosen.tests) for argument in arguments]
    return subprocess.run(command + ["--short"] * chosen.short, check=False).returncode


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--program", type=pathlib.Path, required=True)
    options.add_argument("--tests", type=pathlib.Path, required=True)
    options.add_argument("--short", action="store_true")
    options.add_argument("names", nargs="*", metavar="NAME", help=" ".join((*HARNESSES, *PROGRAMS)))
    chosen = options.parse_args()
    if unknown := set(chosen.names) - {*HARNESSES, *PROGRAMS}:
        options.error(f"unknown: {' '.join(sorted(unknown))}; there are {' '.join((*HARNESSES, *PROGRAMS))}")
    failed = [name for name in chosen.names or (*HARNESSES, *PROGRAMS) if ended(name, chosen) != 0]
    if failed:
        print("Violations in: " + " ".join(failed))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
