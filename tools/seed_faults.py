#!/usr/bin/env python3
"""A test of the tests: seeds the faults of faults.txt, one at a time, into a copy of the sources, and counts those
that the suites catch. Each is one that a developer could make. What no suite catches is named.

    tools/seed_faults.py [--only text | --drawn N --below folder[,folder] [--seed N]] [cmake option ...]

--only takes the faults whose line has this text; --drawn seeds faults drawn at random from the sources below the
folders instead, until so many that build are counted. Options such as -DVANTRELL_SANITIZE=ON go to the build, which
is a debug build without sanitizers at first and stays in build/faults.
"""

import argparse
import functools
import os
import pathlib
import subprocess
import sys

import draw_faults

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "build/faults"
BUILD = COPY / "build/dev"
MARK = 0.9  # the share that must be caught
# Suites wait for the disk more than for anything else.
ENVIRONMENT = os.environ | ({"TMPDIR": "/dev/shm"} if os.access("/dev/shm", os.W_OK) else {})

# The suites that are asked about a fault below a folder, the quickest first.
SUITES = {
    "src/data/Sqlite": ["store", "sync", "torture_storage"],
    "src/data": ["store", "sync", "earnings", "torture_storage", "torture_bad-stores"],
    "src/calendar": ["calendar", "sync", "earnings", "exports"],
    "src/currency": ["currency", "sync", "earnings", "exports"],
    "src/reports": ["reports", "sync", "exports"],
    "src/figures": ["earnings", "figures_of_any_account", "exports", "transcripts", "window"],
    "src/sync": ["sync", "screens", "secrets_in_memory", "torture_storage"],
    "src/files": ["json_defaults", "files", "settings", "torture_storage"],
    "src/screens": ["charts", "settings", "screens", "transcripts", "window", "drive", "trial"],
}
TORTURE = ["vantrell-demo", "vantrell_storage_shim"]


def read_faults():
    """Of each line that is no comment: the file, the text that stands there once, and what comes in its place."""
    lines = (ROOT / "tools/faults.txt").read_text(encoding="utf-8").splitlines()
    texts = [line.replace("\\n", "\n").split(" @@") for line in lines if line and line[0] != "#"]
    return [tuple(part.strip() for part in parts) for parts in texts]


def suites_for(file):
    return next(suites for folder, suites in SUITES.items() if file.startswith(folder))


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False, env=ENVIRONMENT)


def copy_sources():
    names = run("git", "-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard").stdout.split("\0")
    for name in filter(None, names):
        source, target = ROOT / name, COPY / name
        if source.exists() and not (target.exists() and target.read_bytes() == source.read_bytes()):
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(source.read_bytes())
            target.chmod(source.stat().st_mode)


def builds(suite):
    targets = TORTURE if suite.startswith("torture_") else [f"{suite}_tests"]
    return run("ninja", "-C", BUILD, *targets).returncode == 0


def passes(suite):
    return run("ctest", "--test-dir", BUILD, "-R", f"^{suite}$").returncode == 0


@functools.cache
def is_sound(suite):
    """Whether the suite is there; without any fault it has to pass."""
    if f": {suite}\n" not in run("ctest", "--test-dir", BUILD, "-N").stdout:
        return False
    if not (builds(suite) and passes(suite)):
        raise SystemExit(f"{suite} fails without any fault")
    return True


def outcome(file, old, new):
    """What becomes of this fault."""
    target = COPY / file
    sound = target.read_text(encoding="utf-8")
    if sound.count(old) != 1:
        return f"NOT SEEDED, the text stands there {sound.count(old)} times"
    for suite in filter(is_sound, suites_for(file)):
        target.write_text(sound.replace(old, new), encoding="utf-8")
        try:
            if not builds(suite):
                return "NOT SEEDED, it doesn't build"
            if not passes(suite):
                return f"caught by {suite}"
        finally:
            target.write_text(sound, encoding="utf-8")
    return "SURVIVES"


def count_drawn(chosen):
    """Until so many were seeded; a fault that doesn't build was sprung by the compiler."""
    seeded = caught = 0
    faults = draw_faults.drawn(ROOT, chosen.below.split(","), 4 * chosen.drawn, chosen.seed)
    while seeded < chosen.drawn:
        fault = next(faults)
        told = outcome(*fault)
        show(told, fault)
        seeded += not told.startswith("NOT SEEDED")
        caught += told.startswith("caught")
    return seeded, caught


def count_listed(only):
    faults = [fault for fault in read_faults() if only in " @@ ".join(fault)]
    told = []
    for fault in faults:
        told.append(outcome(*fault))
        show(told[-1], fault)
    return len(faults), sum(one.startswith("caught") for one in told)


def show(told, fault):
    file, old, new = fault
    common = len(os.path.commonprefix([old, new]))
    start = old.rfind("\n", 0, common) + 1
    print(f"{told}: {file}: {old[start:].strip()} => {new[start:].strip() or '(nothing)'}".replace("\n", " "),
          flush=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--only", default="")
    parser.add_argument("--drawn", type=int, default=0)
    parser.add_argument("--below", default="src/screens")
    parser.add_argument("--seed", type=int, default=1)
    chosen, options = parser.parse_known_args()
    copy_sources()
    # One source a compilation, since one at a time is changed.
    configured = run("cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                     "-DVANTRELL_UNITY=OFF", *options)
    if configured.returncode != 0:
        raise SystemExit(configured.stderr)
    seeded, caught = count_drawn(chosen) if chosen.drawn else count_listed(chosen.only)
    print(f"seeded faults: {seeded}, caught {caught}")
    return 0 if caught >= MARK * seeded else 1


if __name__ == "__main__":
    sys.exit(main())
