#!/usr/bin/env python3
"""Disturbs the program wherever it stores something: kills, faults, power losses, full disks, races of starts,
damaged stores. Each harness prints one line of figures, and before it each violation."""

import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

from bad_stores import bad_stores
from power import disk_after, kept_contents
from program import Program, copied
from scenarios import Tally, all_scenarios, says_why


def spread(numbers, most):
    """At most so many of them, evenly, with the first and the last."""
    numbers = list(numbers)
    if len(numbers) <= most:
        return numbers
    return [numbers[index * (len(numbers) - 1) // (most - 1)] for index in range(most)]


def disturbed(scenario, fault):
    def run(folder):
        outcome = scenario.run(copied(scenario.start, folder), fault)
        return scenario.judge(folder, None if fault["fault"] in ("kill", "half") else outcome)

    return run


def at_calls(program, short, chosen):
    """Each of the (fault, lasting) at each call; in the short form one of them at a few."""
    for scenario, most in all_scenarios(program, short):
        for number, call in enumerate(spread(range(1, len(scenario.calls) + 1), most)):
            for fault, lasting in [chosen[number % len(chosen)]] if short else chosen:
                yield (scenario.name, f"{fault}{' for ever' * bool(lasting)} at call {call}",
                       disturbed(scenario, {"at": call, "fault": fault, "lasting": lasting}))


def kills(program, short):
    return at_calls(program, short, [("half", ""), ("kill", "")])


def faults(program, short):
    return at_calls(program, short, [("ENOSPC", ""), ("ENOSPC", "1"), ("EIO", ""), ("EIO", "1")])


def power_losses(program, short):
    chance = random.Random(20)
    for scenario, most in all_scenarios(program, short):
        kept = kept_contents(scenario, program.scratch)
        for number in range(4 if short else 340 if most > 1000 else 100):
            cut = len(scenario.calls) if number == 0 else chance.randint(1, len(scenario.calls))

            def run(folder, scenario=scenario, cut=cut, seed=number, kept=kept):
                disk_after(scenario, cut, random.Random(seed), folder)
                return kept(folder, cut) + scenario.judge(folder, None)

            yield scenario.name, f"after call {cut}, disk {number}", run


def random_kills(program, short):
    chance = random.Random(21)
    for number in range(6 if short else 2000):
        scenario, _ = chance.choice(all_scenarios(program, short))

        def run(folder, scenario=scenario, after=chance.uniform(0, scenario.seconds)):
            process = scenario.started(copied(scenario.start, folder))
            time.sleep(after)
            process.kill()
            program.finish(process)
            return scenario.judge(folder, None)

        yield scenario.name, f"kill {number}", run


def small_disks(program, short):
    """Real ones where a file system may be mounted, and else files that can't grow after some call."""
    for number in range(2 if short else 8):
        scenario, _ = all_scenarios(program, short)[number % 3]
        least, most = (sum(file.stat().st_size // 4096 * 4096 + 4096 for file in folder.rglob("*"))
                       for folder in (scenario.start, scenario.end))
        size = max(least + (most - least) * (number % 4) // 4, 4096)

        def run(folder, scenario=scenario, size=size):
            folder.mkdir()
            mount = ["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", str(folder)]
            if subprocess.run(mount, stderr=subprocess.DEVNULL, check=False).returncode != 0:
                return disturbed(scenario, {"at": 1 + size // 4096, "fault": "ENOSPC", "lasting": 1})(folder)
            try:
                shutil.copytree(scenario.start, folder, dirs_exist_ok=True)
                outcome = scenario.run(folder)
                subprocess.run(["mount", "-o", "remount,size=64m", str(folder)], check=True)
                return scenario.judge(folder, outcome)
            finally:
                subprocess.run(["umount", str(folder)], check=True)

        yield scenario.name, f"{size} bytes", run


def races(program, short):
    """Four starts at once, half of them on what a kill has left: at least one does it all, the others say that
    the store is in use."""
    chance = random.Random(22)
    for number in range(3 if short else 100):
        scenario, _ = chance.choice(all_scenarios(program, short))

        def run(folder, scenario=scenario, killed_at=number % 2 * chance.randint(1, len(scenario.calls))):
            copied(scenario.start, folder)
            if killed_at:
                scenario.run(folder, {"at": killed_at, "fault": "half"})
            outcomes = [program.finish(process) for process in [scenario.started(folder) for _ in range(4)]]
            refused = [outcome for outcome in outcomes if outcome.code != 0]
            violations = [("unsaid", f"exit {outcome.code}: {outcome.reason}") for outcome in refused
                          if outcome.code != 1 or "in use" not in outcome.reason]
            if len(refused) == len(outcomes):
                violations.append(("refused", f"all four: {[outcome.reason for outcome in outcomes]}"))
            return violations + scenario.judge(folder, None)

        yield scenario.name, f"race {number}", run


def stored_figures(program, short):
    """A store that can't be written shows what it holds all the same, in the long form in the window too."""
    stored = all_scenarios(program, short)[0][0].end

    def shown(folder, fault):
        pictures = folder.with_name(f"{folder.name} pictures")
        settings = fault and {"at": 1, "fault": fault, "lasting": 1}
        arguments = ["--do", "rates"] + ([] if short else ["--screens", str(pictures)])
        outcome = program.run(copied(stored, folder), arguments, 0, settings)
        text = outcome.output if short else (pictures / "dashboard.txt").read_text()
        shutil.rmtree(pictures, ignore_errors=True)
        return outcome, re.findall(r"[$€¥]\d[\d,.]*|[A-Z]{3} [\d,.]+|units \d+", text)

    _, wanted = shown(program.scratch / "can be written", None)
    for fault, label in (("ENOSPC", "0 bytes free"), ("EROFS", "read-only")):
        def run(folder, fault=fault):
            outcome, amounts = shown(folder, fault)
            violations = [] if amounts == wanted and len(set(amounts)) > 1 else [("lost", f"shown {amounts}")]
            if outcome.code != 5 or not says_why(outcome):
                violations.append(("unsaid", f"exit {outcome.code}: {outcome.reason}"))
            return violations

        yield label, "the dashboard", run


HARNESSES = {
    "kills": ("kills at storage calls", kills),
    "faults": ("faults at storage calls", faults),
    "power": ("power losses", power_losses),
    "random": ("random kills", random_kills),
    "disks": ("small disks", small_disks),
    "races": ("races of starts", races),
    "shown": ("figures of stores that can't be written", stored_figures),
    "bad": ("bad stores", bad_stores),
}


def main():
    options = argparse.ArgumentParser()
    options.add_argument("harness", choices=HARNESSES, nargs="+")
    options.add_argument("--program", type=pathlib.Path, required=True)
    options.add_argument("--shim", type=pathlib.Path, required=True)
    options.add_argument("--short", action="store_true")
    chosen = options.parse_args()
    place = "/dev/shm" if pathlib.Path("/dev/shm").is_dir() else None
    is_good = True
    with tempfile.TemporaryDirectory(dir=place) as scratch:
        program = Program(chosen.program, chosen.shim, scratch)
        for name in chosen.harness:
            title, jobs = HARNESSES[name]
            is_good = Tally(title).run(jobs(program, chosen.short), program.scratch) and is_good
    return 0 if is_good else 1


if __name__ == "__main__":
    sys.exit(main())
