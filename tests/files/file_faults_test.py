#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A file is replaced whole or stays as it was, whichever system call fails and wherever the program
is killed.

Called with the program replace_file. Every call between the creation of the new file and the end
fails once, and once it is the program's last.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

OLD, NEW = b"old\r\n" * 3000, b"new\r\n" * 4000
CALLS = "openat,chmod,fchmodat,write,fsync,close,rename,renameat,renameat2"


class Trial:
    """The program, under strace with these options, in a folder where a link leads to the file."""

    def __init__(self, *options):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            file = folder / "file"
            file.write_bytes(OLD)
            file.chmod(0o600)
            (folder / "link").symlink_to("file")
            log = folder / "log"
            done = subprocess.run(
                ["strace", "-o", log, "-e", f"trace={CALLS}", *options, sys.argv[1], folder / "link",
                 NEW], capture_output=True, text=True)
            self.status = done.returncode
            self.message = done.stderr
            self.calls = re.findall(r"^(\w+)\((.*)$", log.read_text(), re.MULTILINE)
            self.content = file.read_bytes()
            self.mode = file.stat().st_mode & 0o777
            self.is_link = os.path.islink(folder / "link")
            self.left_over = {entry.name for entry in folder.iterdir()} - {"file", "link", "log"}


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


def calls_of_the_write(calls):
    """(name, number among its like, is before the change of name)"""
    counts, found, began, renamed = {}, [], False, False
    for name, rest in calls:
        counts[name] = counts.get(name, 0) + 1
        began = began or "O_EXCL" in rest
        if began and not rest.startswith("2,"):
            found.append((name, counts[name], not renamed))
        renamed = renamed or name.startswith("rename")
    return found


whole = Trial()
expect(whole.status == 0 and whole.content == NEW and not whole.left_over, whole.message)
expect(whole.mode == 0o600 and whole.is_link, "mode and link are kept")
calls = calls_of_the_write(whole.calls)
names = [name for name, _, _ in calls]
for needed in ("openat", "write", "fsync", "close"):
    expect(needed in names, f"{needed} in {whole.calls}")
last_write, first_fsync = max(i for i, n in enumerate(names) if n == "write"), names.index("fsync")
rename = next(i for i, n in enumerate(names) if n.startswith("rename"))
mode = next(i for i, n in enumerate(names) if "chmod" in n)
expect(mode < names.index("write") and last_write < first_fsync < rename, names)
expect("fsync" in names[rename:], "the folder is flushed, too")

for name, number, is_before in calls:
    for fault in ("error=EIO", "error=ENOSPC", "signal=KILL"):
        what = f"{name} {number}, {fault}"
        trial = Trial("-e", f"inject={name}:{fault}:when={number}")
        is_killed = "KILL" in fault
        expect(trial.content in (OLD, NEW), f"{what}: the file is damaged")
        expect(trial.mode == 0o600 and trial.is_link, f"{what}: mode or link is gone")
        expect(trial.status != 0 or trial.content == NEW, f"{what}: reported as written")
        if is_killed:
            # Killed while the call is made, which is then still carried out.
            expect(trial.status != 0, f"{what}: was not killed")
            continue
        expect(not trial.left_over, f"{what}: leaves {trial.left_over}")
        if is_before:
            expect(trial.status == 1 and trial.content == OLD, f"{what}: not noticed")
            expect("link" in trial.message, f"{what}: says {trial.message}")
print(f"{len(calls)} system calls: {' '.join(names)}")
