#!/usr/bin/env python3
"""Faults from outside: faults.py PLAYER

strace makes each system call of a story fail, at each of its occurrences and with each error, and kills the player before
each call. The database must be the whole old or the whole new one, a failure told, and the next saving must work.
"""
import collections
import re
import tempfile

from outside import *

CALLS = {
    "openat": ["EIO", "EACCES", "EINTR"], "pread64": ["EIO", "EINTR"], "write": ["ENOSPC", "EIO", "EDQUOT", "EFBIG", "EINTR"],
    "fsync": ["EIO", "ENOSPC"], "close": ["EIO"], "rename": ["EIO", "EACCES", "EXDEV", "ENOSPC"],
    "unlink": ["EIO", "EACCES"], "flock": ["EAGAIN", "ENOLCK", "EIO"], "fchmod": ["EPERM", "EIO"], "fchown": ["EPERM", "EIO"],
    "newfstatat": ["EIO", "EACCES"], "getcwd": ["ENOENT"], "chdir": ["EACCES"], "listxattr": ["EIO", "ENOTSUP"],
    "fremovexattr": ["EIO"],
}
SIGNALS = ["SIGKILL", "SIGTERM", "SIGHUP"]


def run(folder, story, inject=()):
    options = [o for i in inject for o in ("-e", "inject=" + i)]
    if any(i.startswith("write:") for i in inject):  # of the temporary files, not of the transcript
        options += ["-P", folder.file("dbnamep.mdb"), "-P", folder.file("new.mdb.dbnamep")]
    with tempfile.NamedTemporaryFile() as log:
        # The standard streams of the player itself are left alone: only what follows the working folder counts.
        status, lines = folder.play(story, ["strace", "-qq", "-o", log.name, "-e", "trace=" + ",".join(CALLS), *options])
        return status, lines, log.read().decode("latin-1").split("\n")


def own_calls(log):
    """How often each call occurs before the player's first own call, and in all."""
    count, before, began = collections.Counter(), collections.Counter(), False
    for line in log:
        name = re.match(r"(\w+)\(", line)
        if not name:
            continue
        if not began and name[1] == "getcwd":
            began, before = True, count.copy()
        count[name[1]] += 1
    return before, count


def check(name, story, folder, what, lines, usual, new, killed):
    database = folder.read("x.mdb")
    if database not in (DATABASE, new["x.mdb"]):
        fail("%s, %s: the database is damaged" % (name, what))
    copy = folder.read("new.mdb")
    if copy not in (None, DATABASE, new.get("new.mdb")):
        fail("%s, %s: the new database is damaged" % (name, what))
    if not killed:
        asked = any("Are you really sure" in box for box in boxes(lines))  # else the fault came before the operation
        if asked and database == DATABASE and len(boxes(lines)) <= len(usual):
            fail("%s, %s: the user was not told" % (name, what))
        if folder.read("dbnamep.mdb") is not None and "unlink" not in what and "flock" not in what:
            fail("%s, %s: a temporary file is left behind" % (name, what))
    folder.write("sorptemp.dat", b"x.mdb")
    if name == "change":
        _, again = folder.play(story)
        if folder.read("x.mdb") != new["x.mdb"] or len(boxes(again)) != 1:
            fail("%s, %s: the next saving does not work: %s" % (name, what, boxes(again)[-1:]))


count = 0
for name, story in STORIES.items():
    with Folder() as folder:
        _, lines, log = run(folder, story)
        usual = boxes(lines)
        new = {f: folder.read(f) for f in ("x.mdb", "new.mdb")}
    before, all_calls = own_calls(log)
    for call, errors in CALLS.items():
        injections = [":error=" + e for e in errors] + [":signal=" + s for s in SIGNALS]
        first, last = (1, 3) if call == "write" else (before[call] + 1, all_calls[call])
        for injection in injections:
            for nth in range(first, last + 1):
                with Folder() as folder:
                    what = "%s%s no. %d" % (call, injection, nth)
                    status, lines, _ = run(folder, story, [call + injection + ":when=%d" % nth])
                    killed = "signal" in injection
                    if status not in (0, 1) and not killed:
                        fail("%s, %s: ended with %s" % (name, what, status))
                    check(name, story, folder, what, lines, usual, new, killed)
                    count += 1

# The size of files limited: an error of the write, not the end of the program.
with Folder() as folder:
    status, lines = folder.play(STORIES["change"], ["bash", "-c", 'ulimit -f 1; exec "$0"'])
    if status != 0 or "cannot write dbnamep.mdb: File too large" not in boxes(lines)[-1] or folder.read("x.mdb") != DATABASE:
        fail("a limit on the size of files: %s %s" % (status, boxes(lines)))

finish("%d faults injected from outside" % count)
