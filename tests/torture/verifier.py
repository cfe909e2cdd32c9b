"""Reads a store with a plain SQLite client, and says what a fault has cost. Knows nothing of the program but
its documented views."""

import contextlib
import hashlib
import pathlib
import shutil
import sqlite3
import tempfile

WITHOUT_RECORD = "without a record"
KINDS = {
    "sales": ("SELECT frequencyRaw, reportDate, statusRaw, rowCount, message FROM SalesReport",
              "SELECT frequencyRaw, reportDate, * FROM SalesRow"),
    "finance": ("SELECT region, fiscalPeriod, statusRaw, rowCount, message FROM FinanceReport",
                "SELECT region, fiscalPeriod, * FROM FinanceRow"),
}


@contextlib.contextmanager
def plain_client(folder):
    """On a copy, so that it is left to the program to recover the store itself."""
    with tempfile.TemporaryDirectory(dir=pathlib.Path(folder).parent) as place:
        for file in pathlib.Path(folder).glob("vantrell.sqlite*"):
            shutil.copy(file, place)
        database = sqlite3.connect(pathlib.Path(place) / "vantrell.sqlite")
        database.text_factory = lambda text: text.decode(errors="replace")
        try:
            yield database
        finally:
            database.close()


def contents(folder):
    """(kind, group, label) -> (status, row count, rows found, their digest); raises sqlite3.Error."""
    if not (pathlib.Path(folder) / "vantrell.sqlite").exists():
        return {}
    with plain_client(folder) as database:
        found = database.execute("PRAGMA quick_check(1)").fetchall()
        if found != [("ok",)]:
            raise sqlite3.DatabaseError(f"quick check: {found[0][0]}")
        if not database.execute("SELECT count(*) FROM sqlite_schema").fetchone()[0]:
            return {}
        reports = {}
        for kind, (records, rows) in KINDS.items():
            digests, counts = {}, {}
            for group, label, *row in database.execute(rows):
                key = (kind, group, label)
                counts[key] = counts.get(key, 0) + 1
                digests.setdefault(key, hashlib.md5()).update(repr(row).encode())
            for group, label, status, count, _ in database.execute(records):
                key = (kind, group, label)
                digest = digests.pop(key).hexdigest() if key in digests else ""
                reports[key] = (status, count, counts.get(key, 0), digest)
            for key in digests:
                reports[key] = (WITHOUT_RECORD, 0, counts[key], digests[key].hexdigest())
        return reports


def inconsistencies(reports):
    return [f"{key}: {status}, {count} rows told, {found} there"
            for key, (status, count, found, _) in reports.items() if count != found]


def same_content(folder, wanted):
    try:
        return contents(folder) == wanted
    except sqlite3.Error:
        return False


def verify(folder, before, after):
    """Each report is as before or as after, wholly; a new one may also be missing, and one that couldn't be
    stored may say `error` beside its old rows. Returns (kind of violation, text) pairs."""
    try:
        found = contents(folder)
    except sqlite3.Error as error:
        return [("refused", f"a plain client: {error}")]
    violations = [("half stored", text) for text in inconsistencies(found)]
    for key in before.keys() | after.keys() | found.keys():
        old, new, now = before.get(key), after.get(key), found.get(key)
        if now in (old, new) or (now and now[0] == "error" and now[1:] == (old or (0, 0, 0, ""))[1:]):
            continue
        kind = "lost" if old and (now is None or now[2] < old[2]) else "half stored"
        violations.append((kind, f"{key}: {old} -> {new}, found {now}"))
    return violations
