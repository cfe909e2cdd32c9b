#!/usr/bin/env python3
"""Compares the labels of reports in all zones from 2008 to 2030 with the C library's, once a day and some seconds.

labels.py --tests FOLDER [--short]: the folder of the build whose suite makes the comparison; prints its line."""

import argparse
import os
import pathlib
import re
import subprocess
import sys

options = argparse.ArgumentParser()
options.add_argument("--tests", type=pathlib.Path, required=True)
options.add_argument("--short", action="store_true")
chosen = options.parse_args()
suite = chosen.tests.parents[1] / "bin/calendar_tests"
environment = {**os.environ, "TZ": "UTC", "VANTRELL_LABEL_STEP": "7000003" if chosen.short else "86413"}
run = subprocess.run([suite, "--gtest_filter=*LabelsInAllZones*"], env=environment, check=False, text=True,
                     stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
print("".join(re.findall("^labels: .*\n", run.stdout, re.M)) or run.stdout, end="")
sys.exit(run.returncode)
