#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A file is replaced whole or stays as it was, whichever system call fails and wherever the program
is killed; and one that is to be kept aside is never lost, also where the file system has no links.

Called with the program replace_file. Every call that has to do with the file fails once, and once it
is the program's last.
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

OLD, NEW = b"old\r\n" * 3000, b"new\r\n" * 4000
CALLS = ("openat,chmod,fchmodat,write,fsync,close,rename,renameat,renameat2,link,linkat,unlink,unlinkat,"
         "stat,lstat,newfstatat,readlink,readlinkat,access")
NO_LINKS = ("-e", "inject=link,linkat:error=EPERM")


class Trial:
    """The program, under strace with these options, in a folder where a link leads to the file."""

    def __init__(self, *options, arguments=(), others=()):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            file = folder / "file"
            file.write_bytes(OLD)
            file.chmod(0o600)
            (folder / "link").symlink_to("file")
            others = [folder / other for other in others]
            for other in others[:1]:
                other.write_bytes(OLD)
            log = folder / "log"
            done = subprocess.run(
                ["strace", "-o", log, "-e", f"trace={CALLS}", *options, sys.argv[1], folder / "link",
                 NEW, *arguments, *others], capture_output=True, text=True)
            self.status = done.returncode
            self.message = done.stderr
            self.calls = re.findall(r"^(\w+)\((.*)$", log.read_text(), re.MULTILINE)
            self.content = file.read_bytes() if file.exists() else None
            self.mode = file.stat().st_mode & 0o777 if file.exists() else None
            self.is_link = os.path.islink(folder / "link")
            self.others = [other.read_bytes() if other.exists() else None for other in others]
            self.left_over = {entry.name for entry in folder.iterdir()} - {
                "file", "link", "log", *(other.name for other in others)}
            self.kept = [path.read_bytes() for path in folder.glob("file.bad*")]


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


def calls_on_the_file(calls):
    """(name, number among its like, is before the change of name)"""
    counts, found, began, renamed = {}, [], False, False
    for name, rest in calls:
        counts[name] = counts.get(name, 0) + 1
        began = began or "/link" in rest
        # Not what is said, and not the library's question how large a buffer should be.
        if began and not rest.startswith("2,") and "AT_EMPTY_PATH" not in rest:
            found.append((name, counts[name], not renamed))
        renamed = renamed or (name.startswith("rename") and ".new" in rest)
    return found


whole = Trial()
expect(whole.status == 0 and whole.content == NEW and not whole.left_over, whole.message)
expect(whole.mode == 0o600 and whole.is_link, "mode and link are kept")
calls = calls_on_the_file(whole.calls)
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
        # Where a question has failed that another one answers, the file may be written.
        if is_before and not ("stat" in name and trial.status == 0):
            expect(trial.status == 1 and trial.content == OLD, f"{what}: not noticed")
            expect("link" in trial.message, f"{what}: says {trial.message}")
print(f"{len(calls)} system calls: {' '.join(names)}")

for links in ((), NO_LINKS):
    whole = Trial(*links, arguments=["keep"])
    expect(whole.status == 0 and whole.content == NEW and whole.kept == [OLD], whole.message)
    calls = calls_on_the_file(whole.calls)
    for name, number, _ in calls:
        for fault in ("error=EIO", "signal=KILL"):
            if links and name.startswith("link"):
                continue
            what = f"keep aside, {name} {number}, {fault}, {links}"
            trial = Trial(*links, "-e", f"inject={name}:{fault}:when={number}", arguments=["keep"])
            expect(OLD in [trial.content, *trial.kept], f"{what}: the file is lost")
            expect(trial.status != 0 or trial.content == NEW and OLD in trial.kept, f"{what}: not noticed")
            if "KILL" not in fault:
                rest = [name for name in trial.left_over if not name.startswith("file.bad")]
                expect(not rest and b"" not in trial.kept, f"{what}: leaves {trial.left_over}")
    print(f"{len(calls)} system calls: {' '.join(name for name, _, _ in calls)}")

# Three files of a set, of which the last was not there: all new, or all as they were.
SET = ("second", "third")
for links in ((), NO_LINKS):
    whole = Trial(*links, others=SET)
    expect(whole.status == 0 and [whole.content, *whole.others] == [NEW] * 3, whole.message)
    expect(not whole.left_over, whole.left_over)
    calls = [call for call in calls_on_the_file(whole.calls) if call[0].startswith(("rename", "link"))]
    expect(len(calls) >= 5, calls)
    for name, number, _ in calls:
        trial = Trial(*links, "-e", f"inject={name}:error=EPERM:when={number}", others=SET)
        what = f"a set, {name} {number}, {links}: {trial.message}"
        expect([trial.content, *trial.others] in ([NEW] * 3, [OLD, OLD, None]), what)
        expect(trial.status != 0 or trial.content == NEW, what)
        expect(not trial.left_over, f"{what} leaves {trial.left_over}")
    print(f"a set: {' '.join(name for name, _, _ in calls)}")
