#!/usr/bin/env python3
"""Compiles small pieces of code with the flags of a layer, and expects each to be refused for its reason."""

import json
import pathlib
import shlex
import subprocess
import sys

# layer whose flags are used, code, part of the compiler's message (None: it must compile)
CASES = [
    ("data", '#include "platform/Decimal.h"\nvantrell::Decimal money(3);', None),
    ("platform", '#include "data/SalesRow.h"', "data/SalesRow.h: No such file"),
    ("data", '#include "reports/ASCClient.h"', "reports/ASCClient.h: No such file"),
    ("reports", '#include "sync/SyncEngine.h"', "sync/SyncEngine.h: No such file"),
    ("sync", '#include "earnings/EarningsStore.h"', "earnings/EarningsStore.h: No such file"),
    ("earnings", '#include "sync/SyncEngine.h"', "sync/SyncEngine.h: No such file"),
    ("earnings", '#include "reports/ASCClient.h"', "reports/ASCClient.h: No such file"),
    ("icons", '#include "data/SalesRow.h"', "data/SalesRow.h: No such file"),
    ("data", '#include "platform/Decimal.h"\nvantrell::Decimal money(0.5);', "use of deleted function"),
    ("data", '#include "platform/Decimal.h"\nvantrell::Decimal money = 0.5F;', "use of deleted function"),
    ("data", '#include "data/ModelContext.h"\nvoid f(vantrell::ModelContext& c) { c.save(); }', "nodiscard"),
]


def flags_of_layers(commands, source):
    """The compiler call of one file of each layer, without its input and output."""
    flags = {}
    for command in commands:
        path = pathlib.Path(command["file"])
        if path.parent.parent == source / "src" and path.parent.name not in flags:
            words = shlex.split(command["command"])
            words = [word for word in words if not word.endswith("ccache")]
            del words[words.index("-o") : words.index("-o") + 2]
            del words[words.index("-c") :]
            flags[path.parent.name] = (command["directory"], words)
    return flags


def problem(directory, words, code, expected):
    # Dependencies must not be written, and a name would have to be removed again.
    call = [word for word in words if word not in {"-MD"}] + ["-fsyntax-only", "-x", "c++", "-"]
    result = subprocess.run(call, input=code + "\n", cwd=directory, capture_output=True, text=True, check=False)
    if expected is None:
        return None if result.returncode == 0 else "does not compile:\n" + result.stderr
    if result.returncode == 0:
        return "compiles"
    return None if expected in result.stderr else f"is refused, but not for '{expected}':\n" + result.stderr


def main():
    commands = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    flags = flags_of_layers(commands, pathlib.Path(sys.argv[2]))
    failed = 0
    for layer, code, expected in CASES:
        directory, words = flags[layer]
        words = [word for word in words if not word.startswith("-MF") and not word.startswith("-MT")]
        words = [word for word in words if not word.endswith((".o.d", ".o"))]
        found = problem(directory, words, code, expected)
        if found:
            failed += 1
            print(f"{layer}: {code!r} {found}")
    print(f"{len(CASES) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
