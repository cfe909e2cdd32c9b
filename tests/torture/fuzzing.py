"""Each target of the fuzzer for ten minutes, or for as many seconds as FUZZ_SECONDS says; in the short form the
corpora are replayed by a suite of their own, and this has nothing to do. What ends a run is kept beside the fuzzer."""

import concurrent.futures
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
    seconds = int(os.environ.get("FUZZ_SECONDS", 600))

    def fuzzed(target):
        with tempfile.TemporaryDirectory() as new:
            command = [FUZZER, f"--target={target}", f"-max_total_time={seconds}", "-timeout=20", "-rss_limit_mb=2048",
                       f"-artifact_prefix={FUZZER.parent}/{target}-", "-print_final_stats=1", new, CORPUS / target]
            result = subprocess.run(command, capture_output=True, text=True, errors="replace", check=False)
        executed = re.search(r"number_of_executed_units: (\d+)", result.stderr)
        crash = f"{target}: {result.stderr[-1500:]}" if result.returncode else ""
        return int(executed[1]) if executed else 0, crash

    targets = sorted(folder.name for folder in CORPUS.iterdir())
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(fuzzed, targets))
    runs, found = sum(count for count, _ in results), [crash for _, crash in results if crash]
    print(f"fuzzing: {len(targets)} targets for {seconds} s each, {runs:,} inputs, {len(found)} crashes")
    for crash in found:
        print(crash)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
