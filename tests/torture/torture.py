#!/usr/bin/env python3
"""Runs the harnesses, each of which prints lines of figures and ends with 0 if nothing was violated.

torture.py --program FILE --tests FOLDER [--short] [NAME ...]: the program to be disturbed, the folder of the
build that holds what the harnesses need besides, and which of them; without a name all of them."""

import argparse
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
    "monkey": ["monkey.py", "--tests", "{tests}"],
    "secrets": ["secrets.py", "--program", "{program}"],
    "labels": ["labels.py", "--tests", "{tests}"],
}


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--program", type=pathlib.Path, required=True)
    options.add_argument("--tests", type=pathlib.Path, required=True)
    options.add_argument("--short", action="store_true")
    options.add_argument("names", nargs="*", metavar="NAME", help=" ".join(HARNESSES))
    chosen = options.parse_args()
    if unknown := set(chosen.names) - HARNESSES.keys():
        options.error(f"unknown: {' '.join(sorted(unknown))}; there are {' '.join(HARNESSES)}")
    failed = []
    for name in chosen.names or HARNESSES:
        script, *arguments = HARNESSES[name]
        command = [sys.executable, str(HERE / script)]
        command += [argument.format(program=chosen.program, tests=chosen.tests) for argument in arguments]
        if subprocess.run(command + ["--short"] * chosen.short, check=False).returncode != 0:
            failed.append(name)
    if failed:
        print("Violations in: " + " ".join(failed))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
