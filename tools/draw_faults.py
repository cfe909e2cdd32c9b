"""Faults drawn at random: each is one small change to one line that does something, of the kinds that slip into
code by hand. The same seed draws the same faults from the same sources."""

import random
import re

COMPARED = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
OTHERWISE = {"&&": "||", "||": "&&", "+": "-", "-": "+", "true": "false", "false": "true", **COMPARED}
OPERATOR = re.compile(r"(?<= )(==|!=|<=|>=|<|>|&&|\|\||\+|-)(?= )|\b(?:true|false)\b")
NEGATION = re.compile(r"(?<=[ (])!(?=[\w(])")
NUMBER = re.compile(r"(?<![\w.\"%#])\d+(?![\w.\"])")
CHOICE = re.compile(r"\? ([^?:]+) : ([^?:;]+)(?=[;,)]|$)")
ANSWER = re.compile(r"return (?!\{\};)[^;{]+;")
STATEMENT = re.compile(r"^ +(?!return\b|co_return\b|using\b|break\b|continue\b|const\b|auto\b|static\b|throw\b)"
                       r"[A-Za-z_][\w.:>\[\]-]*(?:\(.*\)| [-+]?= .*|\+\+);$")
# What of a layout a user meets by reading, pressing or typing; measures and colours are for the eye alone.
BINDING = re.compile(r"^ +(?:text|enabled|visible|checked|model|value|currentIndex|sourceComponent|active|focus|"
                     r"Accessible\.\w+|on[A-Z]\w*|Keys\.\w+|activeFocusOnTab): (?!\{$).+")
MEASURE = re.compile(r"property (?:real|int)|Theme\.|[wW]idth|[hH]eight|[mM]argin|padding|spacing|[xy]:")
NOTHING = re.compile(r"^\s*(?://|#|import\b|\*|$)")


def changes(line, is_qml):
    """All lines that a slip could have made of this one."""
    if NOTHING.match(line):
        return
    if is_qml:
        if BINDING.match(line) and line.count("{") == line.count("}"):
            yield ""
        if MEASURE.search(line):
            return
    elif STATEMENT.match(line):
        yield ""
    bare = re.sub(r'"(?:[^"\\]|\\.)*"', lambda text: "_" * len(text[0]), line.split("//")[0])
    for found in OPERATOR.finditer(bare):
        yield line[: found.start()] + OTHERWISE[found[0]] + line[found.end():]
    for found in NEGATION.finditer(bare):
        yield line[: found.start()] + line[found.end():]
    for found in CHOICE.finditer(bare):
        first, second = line[found.start(1): found.end(1)], line[found.start(2): found.end(2)]
        yield f"{line[: found.start()]}? {second} : {first}{line[found.end():]}"
    if not is_qml:
        for found in NUMBER.finditer(bare):
            yield f"{line[: found.start()]}{int(found[0]) + 1}{line[found.end():]}"
        for found in ANSWER.finditer(bare):
            yield f"{line[: found.start()]}return {{}};{line[found.end():]}"


def unique_place(lines, index):
    """The fewest lines up to this one that stand once in the file."""
    text = "\n".join(lines) + "\n"
    for first in range(index, -1, -1):
        place = "\n".join(lines[first: index + 1])
        if text.count(place) == 1:
            return place
    return None


def drawn(root, folders, count, seed):
    """File, text and what comes in its place, `count` times, no file and line twice."""
    possible = []
    for folder in folders:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in {".cpp", ".h", ".qml"}:
                for index, line in enumerate(file.read_text(encoding="utf-8").splitlines()):
                    slips = sorted(set(changes(line, file.suffix == ".qml")) - {line})
                    if slips:
                        possible.append((file, index, slips))
    chance = random.Random(seed)
    for file, index, slips in chance.sample(possible, len(possible)):
        if count == 0:
            return
        lines = file.read_text(encoding="utf-8").splitlines()
        place = unique_place(lines, index)
        if place is not None:
            count -= 1
            yield str(file.relative_to(root)), place, place[: len(place) - len(lines[index])] + chance.choice(slips)
