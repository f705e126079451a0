#!/usr/bin/env python3
"""Hostile files in place of every file that the editor reads: hostile.py PLAYER

No crash, no hang, no memory beyond a fixed bound, and no change of a file that was not understood.
"""
import os

from outside import *

MEMORY = 80 * 1024 * 1024  # of data, far more than a reader may take and far less than the largest file here
HEAD = b'501,"a",0,1,0,0,2,0,0,0,0,'
STORY = ("load\nselect 0\nselect 1\nclick cmdAddnew\npick cboComp 0\ntype txtStoicn 1\nclick cmdNextcomp\ntype txtSpname n\n"
         "click cmdSuggest\ntype txtlogk 1\ntype txtCharge 0\nanswer Yes\nclick cmdSavedb\nselect 0\nanswer Yes\nclick cmdDelete\n"
         "choose new.mdb\nclick cmdNewDb\nstate\n")
CONTENTS = {
    "empty": b"", "NUL bytes": bytes(100000), "one long line": b"x" * 100_000_000, "one long text": b'"' + b"x" * 100_000_000,
    "100 MB of commas": b"1," * 50_000_000, "100 MB of blanks": b" " * 100_000_000, "100 MB of line ends": b"\r\n" * 50_000_000,
    "a quote that is not closed": HEAD + b'0\r\n502,"b,0,1\r\n' + TRAILER,
    "all bytes": bytes(range(256)) * 100, "a quoted end": b'"' * 999,
    **{"a count of " + n.decode(): HEAD + n + b"\r\n1,231\r\n" + TRAILER
       for n in (b"1E9", b"-5", b"1E308", b"-1E308", b"9.99", b"101", b"110.5", b"nan", b"inf", b"0x2", b"99999999999999999999")},
    **{"an M.B. count of " + n.decode(): HEAD + b"101\r\n1,231\r\n" + n + b"\r\n.5,231\r\n" + TRAILER
       for n in (b"1E9", b"-5", b"1E308", b"0", b"x")},
    "large fields": (HEAD + b"10\r\n" + b",".join([b'"' + b"y" * 65000 + b'"'] * 20) + b"\r\n") * 50,
}


def check(what, folder, status):
    if status != 0:
        fail("%s: ended with %s" % (what, status))
    if folder.read("dbnamep.mdb") is not None:
        fail("%s: a temporary file is left behind" % what)


for what, content in CONTENTS.items():
    for name in ("x.mdb", "x.iso", "x.bli"):
        with Folder(content, name=name) as folder:
            status, lines = folder.play(STORY, memory=MEMORY)
            check("%s as %s" % (what, name), folder, status)
            blank = not content.strip(b" \r\n")  # is as good as no content
            if len(content) >= 100_000_000 and not blank and folder.read(name) != content:
                fail("%s as %s: the file was changed" % (what, name))
    with Folder() as folder:
        folder.write("comp.mdb", content)
        status, lines = folder.play(STORIES["change"] + STORY.replace("load\n", ""), memory=MEMORY)
        check(what + " as component database", folder, status)
        if folder.read("x.mdb").count(b'"Sp') < 39:
            fail(what + " as component database: a species was lost")
    for hand_over in ("dabase.txt", "sorptemp.dat"):
        with Folder() as folder:
            folder.write(hand_over, content)
            status, lines = folder.play("load\nstate\n", memory=MEMORY)
            if status not in (0, 1):
                fail("%s as %s: ended with %s" % (what, hand_over, status))

# Folders and pipes in place of files.
for name in ("x.mdb", "comp.mdb", "sorptemp.dat", "dabase.txt", "dbnamep.mdb", "new.mdb"):
    for what, make in (("folder", os.mkdir), ("pipe", os.mkfifo), ("dangling link", lambda p: os.symlink("nowhere", p))):
        with Folder() as folder:
            if os.path.lexists(folder.file(name)):
                os.remove(folder.file(name))
            make(folder.file(name))
            status, lines = folder.play(STORIES["change"] + "choose new.mdb\nclick cmdNewDb\n")
            if status not in (0, 1):
                fail("a %s as %s: ended with %s" % (what, name, status))
            if os.path.isfile(folder.file("x.mdb")) and folder.read("x.mdb").count(b'"Sp') != 40:
                fail("a %s as %s: a species was lost" % (what, name))
            if name.startswith("dbnamep") and len(boxes(lines)) < 2:
                fail("a %s as %s: the user was not told" % (what, name))

# A database cut at every byte keeps every byte that it had, or loses none that could be read.
whole = DATABASE[:400]
for cut in range(len(whole)):
    with Folder(whole[:cut]) as folder:
        status, lines = folder.play("load\nselect 0\ntype txtlogk 7\nanswer Yes\nclick cmdSavedb\n")
        after = folder.read("x.mdb")
        complete = whole[:cut].count(b"\r\n1,231")
        if status != 0 or after.count(b'"Sp') < complete:
            fail("cut at %d: %s" % (cut, after))

finish("hostile files")
