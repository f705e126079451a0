#!/usr/bin/env python3
"""Several editors at once: editors.py PLAYER [SECONDS]

They save other species each, into one database, from one working folder and from two, by its plain path, a symbolic link and
a relative path. Every success that was told is in the file afterwards, and no species is lost.
"""
import os
import re
import sys
import threading
import time

from outside import *

SECONDS = float(sys.argv[2]) if len(sys.argv) > 2 else 30


def story(path, species, value):
    return ("load\nchoose %s\nclick mnuFileOpen\nselect %d\ntype txtlogk %d\nanswer Yes\nclick cmdSavedb\n"
            % (path, species, value))


def log_k(content, species):
    found = re.search(rb'"Sp%d",0,([0-9.]+),' % species, content)
    return found and float(found[1])


class Editor(threading.Thread):
    """Saves one species again and again, each time with the next value."""

    def __init__(self, folder, path, species, until):
        super().__init__()
        self.folder, self.path, self.species, self.until = folder, path, species, until
        self.told = self.refused = self.value = self.wrong = 0

    def run(self):
        while time.time() < self.until and not self.wrong:
            self.value += 1
            _, lines = play(self.folder, story(self.path, self.species, self.value), timeout=60)
            messages = boxes(lines)[1:]  # after the question
            if not messages:
                self.told += 1
                with open(os.path.join(self.folder, self.path), "rb") as f:
                    if log_k(f.read(), self.species) != self.value:
                        self.wrong += 1
            else:
                self.refused += 1
                if not re.search("is in use|was changed by another program", messages[0]):
                    fail("an editor was told: %s" % messages[0])


told = refused = 0
# Each works in a folder of its own, so that they share the database alone; or all of them in one, where they share the
# temporary file too.
for shared, paths in ((False, ["x.mdb", "link.mdb", "../data/x.mdb", "{}/data/x.mdb"]), (True, ["{}/data/x.mdb"] * 4)):
    with Folder(None) as root:
        os.mkdir(root.file("data"))
        with open(root.file("data/x.mdb"), "wb") as f:
            f.write(DATABASE)
        editors, until = [], time.time() + SECONDS / 2
        for i, path in enumerate(paths):
            if WINE and path == "link.mdb":
                continue  # to a program under wine it is no link: saving would replace it
            home = root.file("data" if path == "x.mdb" else "home%d" % (0 if shared else i))
            os.makedirs(home, exist_ok=True)
            for name in ("dabase.txt", "comp.mdb"):
                with open(os.path.join(home, name), "wb") as f:
                    f.write(b"C:\r\n" if name == "dabase.txt" else COMPONENTS)
            if path == "link.mdb":
                os.symlink("../data/x.mdb", os.path.join(home, path))
            editors.append(Editor(home, path.format(root.path), 3 * i + 1, until))
        for editor in editors:
            editor.start()
        for editor in editors:
            editor.join()
        with open(root.file("data/x.mdb"), "rb") as f:
            content = f.read()
        if content.count(b'"Sp') != 40 or not content.endswith(TRAILER):
            fail("a species was lost")
        for editor in editors:
            if editor.wrong or log_k(content, editor.species) is None:
                fail("a success was told and the change is not in the file (%s)" % editor.path)
            told += editor.told
            refused += editor.refused

# A database of two names is always refused and never changed.
with Folder() as folder:
    os.link(folder.file("x.mdb"), folder.file("y.mdb"))
    for _ in range(20):
        folder.write("sorptemp.dat", b"x.mdb")
        _, lines = folder.play(STORIES["change"])
        if "several names" not in boxes(lines)[-1] or folder.read("y.mdb") != DATABASE:
            fail("a file with two names was not refused")

finish("%d savings told as done by several editors at once, %d refused" % (told, refused))
