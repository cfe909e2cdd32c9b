"""Stores that are damaged by bytes and by SQL: opened as what they hold, with what is missing said, or refused
with not a byte changed."""

import csv
import random
import sqlite3
from decimal import Decimal, DecimalException

from program import copied, month
from scenarios import exports_of, says_why
from verifier import WITHOUT_RECORD, contents, inconsistencies, plain_client

PAGE = 4096
VALUES = (None, 0, -1, 1, 2**31, 2**63 - 1, -(2**63), 1e308, "", "abc", "2026-99-99", b"\x00\xff\xfe", "x" * 5000)


def damage_bytes(file, chance):
    data = bytearray(file.read_bytes())
    pages = len(data) // PAGE
    what = chance.choice(("bytes", "bytes", "bytes", "page", "swap", "cut", "header", "header", "fill", "journal"))
    at = chance.randrange(pages) * PAGE
    if what == "bytes":
        for _ in range(chance.choice((1, 2, 8, 64))):
            data[chance.randrange(len(data))] = chance.randrange(256)
    elif what == "page":
        data[at : at + PAGE] = bytes(PAGE)
    elif what == "swap":
        other = chance.randrange(pages) * PAGE
        data[at : at + PAGE] = data[other : other + PAGE]
    elif what == "cut":
        del data[chance.randrange(1, len(data)) :]
    elif what == "header":
        for _ in range(chance.choice((1, 1, 4))):
            data[chance.randrange(100)] = chance.randrange(256)
    elif what == "fill":
        start, size = chance.randrange(len(data)), chance.choice((16, 512, PAGE, 3 * PAGE))
        data[start : start + size] = chance.randbytes(len(data[start : start + size]))
    else:
        magic = bytes.fromhex("d9d505f920a163d7") if chance.random() < 0.5 else b""
        journal = file.with_name(file.name + "-journal")
        journal.write_bytes(magic + chance.randbytes(chance.choice((0, 20, 3000, 9000))))
    file.write_bytes(data)
    return what


def damage_by_sql(file, chance):
    database = sqlite3.connect(file)
    database.execute("PRAGMA locking_mode = EXCLUSIVE")
    tables = [name for (name,) in database.execute("SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY 1")]
    table = chance.choice(tables)
    columns = [row[1] for row in database.execute(f"PRAGMA table_info({table})")]
    some = f"rowid IN (SELECT rowid FROM {table} ORDER BY (rowid * {chance.randrange(1, 10**6)}) % 10007 LIMIT {chance.choice((1, 3, 100))})"
    column, value = chance.choice(columns), chance.choice(VALUES)
    statement, values = chance.choice((
        (f"DELETE FROM {table} WHERE {some}", ()),
        (f"DELETE FROM {table}", ()),
        (f"UPDATE OR IGNORE {table} SET {column} = ? WHERE {some}", (value,)),
        (f"UPDATE OR IGNORE {table} SET {column} = ? WHERE {some}", (value,)),
        (f"UPDATE OR IGNORE {table} SET {column} = {column} + 1 WHERE {some}", ()),
        (f"UPDATE OR IGNORE {table} SET {column} = ?", (value,)),
        (f"INSERT OR IGNORE INTO {table} SELECT id + 100000, {', '.join(columns[1:])} FROM {table} WHERE {some}", ()),
        (f"DROP TABLE {table}", ()),
        (f"ALTER TABLE {table} RENAME TO other", ()),
        (f"ALTER TABLE {table} ADD COLUMN added", ()),
        (f"PRAGMA user_version = {chance.randrange(-3, 9)}", ()),
        (f"PRAGMA application_id = {chance.randrange(-3, 9)}", ()),
    ))
    try:
        database.execute("PRAGMA legacy_alter_table = ON")
        database.execute(statement, values)
        database.commit()
    except sqlite3.Error as error:
        statement += f" ({error})"
    database.close()
    return f"{statement[:150]} {values!r:.40}"


def amounts(rows):
    """Key -> currency -> sum, without zeros."""
    sums = {}
    for key, currency, amount in rows:
        of_key = sums.setdefault(key, {})
        of_key[currency] = of_key.get(currency, 0) + amount
    return {key: kept for key, of_key in sums.items() if (kept := {c: a for c, a in of_key.items() if a})}


def computed(folder):
    """What a plain client makes of the damaged store: sums by day and by fiscal period."""
    with plain_client(folder) as database:
        days = database.execute(
            "SELECT reportDate, proceedsCurrency, units, proceedsPerUnit FROM SalesRow WHERE frequencyRaw = 'DAILY'"
            " AND substr(productType, 1, 1) NOT IN ('3', '7')")
        yield amounts((day, currency, units * Decimal(price)) for day, currency, units, price in days)
        periods = database.execute("SELECT fiscalPeriod, partnerShareCurrency, extendedPartnerShare FROM FinanceRow")
        yield amounts((period, currency, Decimal(share)) for period, currency, share in periods)


def exported(exports):
    for name in ("vantrell-daily.csv", "vantrell-payouts.csv"):
        rows = csv.DictReader(exports[name].decode(errors="replace").splitlines())
        column = "proceeds_by_currency" if "daily" in name else "paid_by_currency"
        key = "date" if "daily" in name else "fiscal_period"
        cells = [(row[key], part) for row in rows for part in row[column].split("; ") if part]
        yield amounts((day, part.rpartition(" ")[0], Decimal(part.rpartition(" ")[2])) for day, part in cells)


def silent_problem(folder, damaged, good):
    """What a run that ended with 0 has not said, or None."""
    now = exports_of(folder)
    try:
        found = contents(damaged)
        # Lines whose report's record is gone still count; those that a record tells of must be there.
        problems = inconsistencies({key: report for key, report in found.items() if report[0] != WITHOUT_RECORD})
        same = list(computed(damaged)) == list(exported(now))
    except (sqlite3.Error, DecimalException, TypeError, ValueError) as error:
        problems, same = [], False
        cause = f"a plain client: {error}"
    else:
        cause = "the exports are neither the good ones nor what the store holds"
    if problems:
        return problems[0]
    return None if same or now == good else cause


def tried(program, base, good, seed, how):
    def run(folder):
        file = copied(base, folder) / "vantrell.sqlite"
        damage = how(file, random.Random(seed))
        damaged = copied(folder, folder / "damaged")
        before = file.read_bytes()
        outcome = program.run(folder, ["--do", "rates", "--export", str(folder / "exports")])
        violations = []
        if outcome.is_crash:
            violations = [("crashed", f"{outcome.code}: {outcome.errors[-2000:]}")]
        elif outcome.code == 0:
            problem = silent_problem(folder, damaged, good)
            violations = [("unsaid", f"exit 0: {problem}")] if problem else []
        elif outcome.code not in (1, 5) or not says_why(outcome):
            violations = [("unsaid", f"exit {outcome.code}: {outcome.reason}")]
        elif exports_of(folder) != good:
            violations = [("lost", f"exit {outcome.code}, and exports changed")]
        elif file.read_bytes() != before:
            violations = [("lost", f"exit {outcome.code}, and the store changed: {outcome.reason}")]
        return [(kind, f"{text} [{damage}]") for kind, text in violations]

    return run


def bad_stores(program, short):
    base = program.scratch / "base"
    base.mkdir()
    for what in (f"month={month(2)}", "finance=2026-01", "rates"):
        outcome = program.run(base, ["--do", what, "--export", str(base / "exports")])
        if outcome.code != 0:
            raise SystemExit(f"the store to be damaged: {outcome.errors}")
    good = exports_of(base)
    if list(computed(base)) != list(exported(good)) or not all(exported(good)):
        raise SystemExit("a plain client and the exports don't agree on the good store")
    for seed in range(30 if short else 10000):
        for part, how in (("by bytes", damage_bytes), ("by SQL", damage_by_sql)):
            yield part, f"seed {seed}", tried(program, base, good, seed, how)
