"""Each target of the fuzzer for ten minutes, or for as many seconds as FUZZ_SECONDS says; in the short form the
corpora are replayed by a suite of their own, and this has nothing to do. What ends a run is kept beside the fuzzer."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parents[2]
FUZZER = HERE / "build/fuzz/bin/vantrell-fuzz"
CORPUS = HERE / "fuzz/corpus"


def main():
    if "--short" in sys.argv:
        return 0
    seconds, found, runs = int(os.environ.get("FUZZ_SECONDS", 600)), [], 0
    targets = sorted(folder.name for folder in CORPUS.iterdir())
    for target in targets:
        with tempfile.TemporaryDirectory() as new:
            command = [FUZZER, f"--target={target}", f"-max_total_time={seconds}", "-timeout=20", "-rss_limit_mb=2048",
                       f"-artifact_prefix={FUZZER.parent}/{target}-", "-print_final_stats=1", new, CORPUS / target]  # fmt: skip
            result = subprocess.run(command, capture_output=True, text=True, errors="replace", check=False)
        executed = re.search(r"number_of_executed_units: (\d+)", result.stderr)
        runs += int(executed.group(1)) if executed else 0
        if result.returncode != 0:
            found.append(f"{target}: {result.stderr[-1500:]}")
    print(f"fuzzing: {len(targets)} targets for {seconds} s each, {runs:,} inputs, {len(found)} crashes")
    for crash in found:
        print(crash)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
