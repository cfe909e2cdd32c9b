"""Disks as a power loss may leave them, built from what the shim has written down."""

import pathlib
import shutil
import sqlite3
import threading

from program import copied
from verifier import contents

SECTOR = 512


def disk_after(scenario, cut, chance, folder):
    """The folder after the first `cut` calls and a power loss: what was synced, and of what came after the last
    sync any part, by sectors. Of the names made, removed and changed since the folder's last sync any number of
    each name's first changes. Without `chance` everything has reached the disk."""
    folder = pathlib.Path(folder)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    (folder / "exports").mkdir()
    files = {}  # the number of a file -> [bytes on disk, changes since its last sync]
    now, on_disk, renamed = {}, {}, []  # name -> file; changes of names since the folder's last sync
    for file in scenario.start.rglob("*"):
        if file.is_file():
            name = str(file.relative_to(scenario.start))
            now[name] = on_disk[name] = len(files)
            files[len(files)] = [bytearray(file.read_bytes()), []]
    for kind, name, number, second, data in scenario.calls[:cut]:
        is_unnamed = name.endswith(" (deleted)")
        if kind == "create" or (is_unnamed and name not in now):
            now[name] = len(files)
            files[len(files)] = [bytearray(), []]
        if kind == "create":
            renamed.append((name, now[name], None))
        if kind == "remove":
            now.pop(name, None)
            renamed.append((name, None, None))
        elif kind == "rename":
            now[second] = now.pop(name)
            renamed.append((second, now[second], None if is_unnamed else name))
        elif kind in ("write", "resize") and name in now:
            files[now[name]][1].append((kind, number, data))
        elif kind == "sync" and name in now:
            settle(files[now[name]], lambda: True)
        elif kind == "sync":
            rename(on_disk, renamed, {})
            renamed = []
    names = {name for name, _, _ in renamed}
    counts = {name: sum(1 for other in renamed if other[0] == name) for name in names}
    rename(on_disk, renamed, {name: chance.randint(0, counts[name]) for name in sorted(names)} if chance else {})
    share = chance.choice((0.1, 0.5, 0.9)) if chance else 1
    for name, number in on_disk.items():
        settle(files[number], (lambda: chance.random() < share) if chance else (lambda: True))
        (folder / name).parent.mkdir(exist_ok=True)
        (folder / name).write_bytes(files[number][0])
    return folder


def rename(names, changes, limits):
    done = {}
    for name, file, old in changes:
        done[name] = done.get(name, 0) + 1
        if done[name] > limits.get(name, len(changes)):
            continue
        if old is not None and names.get(old) == file:
            del names[old]
        if file is None:
            names.pop(name, None)
        else:
            names[name] = file


def settle(file, reaches_disk):
    content, changes = file
    for kind, number, data in changes:
        if kind == "resize":
            if reaches_disk():
                del content[number:]
                content.extend(bytes(number - len(content)))
            continue
        for start in range(0, len(data), SECTOR):
            if reaches_disk():
                part = data[start : start + SECTOR]
                at = number + start
                content.extend(bytes(max(0, at - len(content))))
                content[at : at + len(part)] = part
    file[1] = []


def kept_contents(scenario, scratch):
    """What was stored when the last sync before the power loss returned is there, or what came next."""
    known = {}
    one_at_a_time = threading.Lock()

    def content_at(cut):
        with one_at_a_time:
            if cut not in known:
                place = disk_after(scenario, cut, None, pathlib.Path(scratch) / f"whole {cut}")
                known[cut] = contents(place)
                shutil.rmtree(place)
            return known[cut]

    def check(folder, cut):
        store = [number + 1 for number, call in enumerate(scenario.calls[:cut])
                 if call[0] == "sync" and call[1].startswith("vantrell.sqlite")]
        allowed = [content_at(max(store, default=0)), content_at(cut)]
        try:
            found = contents(folder)
        except sqlite3.Error as error:
            return [("refused", f"a plain client: {error}")]
        return [] if found in allowed else [("lost", "what was stored before the last sync isn't there")]

    return check
