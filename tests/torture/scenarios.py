"""What the program is disturbed in, and what must be true whenever it was."""

import collections
import concurrent.futures
import functools
import json
import pathlib
import shutil
import time

from program import copied, month
from verifier import contents, inconsistencies, same_content, verify

KINDS = ("refused", "lost", "half stored", "unsaid", "crashed")
WORKERS = 2
STORES = pathlib.Path(__file__).parents[1] / "data/data/stores"


class Scenario:
    """A run from a known state, and how it ends when nothing disturbs it."""

    def __init__(self, program, name, before, arguments, edition):
        self.program, self.name, self.start, self.edition = program, name, before, edition
        self.arguments = arguments
        self.before = contents(before)
        self.end = copied(before, program.scratch / f"{name} end")
        self.log = program.scratch / f"{name} log"
        began = time.monotonic()
        outcome = self.run(self.end, {"log": self.log})
        self.seconds = time.monotonic() - began
        if outcome.code != 0:
            raise SystemExit(f"{name}: the undisturbed run ended with {outcome.code}: {outcome.errors}")
        self.after = contents(self.end)
        if inconsistencies(self.after) or not any(found for _, _, found, _ in self.after.values()):
            raise SystemExit(f"{name}: the undisturbed run stored {self.after}")
        self.calls = read_log(self.log)
        self.exports = exports_of(self.end)

    def started(self, data, fault=None):
        return self.program.start(data, [*self.arguments, "--export", str(data / "exports")], self.edition, fault)

    def run(self, data, fault=None):
        return self.program.finish(self.started(data, fault))

    def judge(self, data, outcome):
        """The violations that a disturbed run has left. `outcome` is None if it had no chance to say anything."""
        violations = verify(data, self.before, self.after)
        if outcome is not None:
            violations += self.unsaid(data, outcome)
        violations += damaged_files(data, self)
        repaired = self.run(data)
        if repaired.code != 0:
            violations.append(("refused", f"the next start ends with {repaired.code}: {repaired.reason}"))
        elif not same_content(data, self.after) or exports_of(data) != self.exports:
            violations.append(("lost", "the next good run doesn't end as an undisturbed one"))
        return violations

    def unsaid(self, data, outcome):
        if outcome.is_crash:
            return [("crashed", f"{outcome.code}: {outcome.errors[-2000:]}")]
        if outcome.code == 0 and (not same_content(data, self.after) or exports_of(data) != self.exports):
            return [("unsaid", "exit 0, and not everything is stored")]
        if outcome.code in (2, 3) or (outcome.code != 0 and not says_why(outcome)):
            return [("unsaid", f"exit {outcome.code}: {outcome.reason}")]
        return []


def says_why(outcome):
    return len(outcome.reason) > 10 and "in use" not in outcome.reason and not outcome.reason.endswith("%)")


def read_log(file):
    """(kind, name, offset or length, second name, bytes) of each call."""
    calls, data, at = [], file.read_bytes(), 0
    while at < len(data):
        line = data.index(b"\n", at)
        kind, name, number, second, size = data[at:line].decode().split("\t")
        at = line + 1 + int(size)
        calls.append((kind, name, int(number), second, data[line + 1 : at]))
    return calls


def exports_of(data):
    return {file.name: file.read_bytes() for file in (data / "exports").glob("*.csv")}


def damaged_files(data, scenario):
    """Files that are replaced whole are as before or as after."""
    good = [exports_of(scenario.start), scenario.exports]
    for name, content in exports_of(data).items():
        if content not in [exports.get(name) for exports in good]:
            yield ("half stored", f"{name} has {len(content)} bytes")
    settings = data / "defaults.json"
    if settings.exists():
        try:
            json.loads(settings.read_text())
        except ValueError as error:
            yield ("half stored", f"settings of {settings.stat().st_size} bytes: {error}")


def scenarios_of(program, name, ask):
    empty = program.scratch / f"{name} empty"
    empty.mkdir()
    first = Scenario(program, f"first start{name}", empty, [*ask(2), "--currency", "EUR"], 0)
    return [first, Scenario(program, f"growing{name}", first.end, ask(3), 2),
            Scenario(program, f"replacing{name}", first.end, [*ask(2), "--currency", "JPY"], 1),
            *(Scenario(program, f"migrating {version}{name}", older, ask(2), 0)
              for version, older in older_stores(program))]


def older_stores(program):
    """A folder with the store of each older version, by its number."""
    for kept in sorted(STORES.glob("vantrell-*.sqlite")):
        folder = program.scratch / kept.stem
        folder.mkdir(exist_ok=True)
        shutil.copy(kept, folder / "vantrell.sqlite")
        yield kept.stem.removeprefix("vantrell-"), folder


@functools.cache
def all_scenarios(program, short):
    """(scenario, at how many calls at most to disturb it). In the long form also runs of many saves, so that
    what a save couldn't store meets a next one."""
    single = scenarios_of(program, "", lambda back: ["--do", f"day={month(back)}-07"])
    if short:
        return [(scenario, 6) for scenario in single]
    many = scenarios_of(program, " of a month", lambda back: ["--do", f"month={month(back)}"])
    return [(scenario, 10**6) for scenario in single] + [(scenario, 150) for scenario in many]


class Tally:
    """Counts runs and violations of one harness, shows each violation, and prints the line of figures."""

    def __init__(self, title):
        self.title, self.runs, self.violations = title, collections.Counter(), collections.Counter()

    def add(self, part, label, violations):
        self.runs[part] += 1
        # A run counts once, by the worst of what it did.
        for kind in KINDS:
            texts = [text for found, text in violations if found == kind]
            if texts:
                self.violations[kind] += 1
                print(f"  {part}, {label}: {kind}: {' '.join(texts[0].split())[:400]}", flush=True)
                return

    def run(self, jobs, scratch):
        """Each job is (part, label, call), the call being given a folder of its own that isn't there yet."""

        def done(numbered):
            number, (part, label, call) = numbered
            folder = scratch / f"{self.title} {number}"
            violations = call(folder)
            shutil.rmtree(folder, ignore_errors=True)
            return part, label, violations

        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            for result in pool.map(done, enumerate(jobs)):
                self.add(*result)
        parts = ", ".join(f"{part} {count}" for part, count in self.runs.items())
        shown = ", ".join(f"{self.violations[kind]} {kind}" for kind in KINDS)
        print(f"{self.title}: {self.runs.total()} ({parts}): {shown}", flush=True)
        return self.violations.total() == 0 and self.runs.total() > 0
