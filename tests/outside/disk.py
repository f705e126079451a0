#!/usr/bin/env python3
"""Real file systems: disk.py PLAYER

A disk that fills up at every step of a saving, a database on another file system than the working folder, a database that
the user may not write, and the file that a saving must leave what it is for others. Needs root.
"""
import os
import subprocess
import tempfile

from outside import *


def mount(size):
    path = tempfile.mkdtemp()
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=%d" % size, "tmpfs", path], check=True)
    return path


def unmount(path):
    subprocess.run(["umount", path], check=True)
    os.rmdir(path)


with Folder() as folder:
    folder.play(STORIES["change"])
    new = folder.read("x.mdb")

# Every number of free pages from none to more than a saving takes.
steps = 0
big = b"".join(b'%d,"Sp%d",0,1.5,0,0,2,0,0,0,0,1\r\n1,231\r\n' % (501 + i, i) for i in range(2000)) + TRAILER
disk = mount(2 * 1024 * 1024)
try:
    told_of_full_disk = False
    for free in range(0, len(big) + 8 * 4096, 4096):
        with Folder(big, where=disk) as folder:
            room = os.statvfs(disk)
            with open(folder.file("filler"), "wb") as filler:
                filler.write(bytes(max(0, room.f_bavail * room.f_frsize - free)))
            _, lines = folder.play(STORIES["change"])
            after = folder.read("x.mdb")
            changed = after != big and after.count(b'"Sp') == 2000 and after.endswith(TRAILER) and b'"Sp1",0,7' in after
            told = len(boxes(lines)) == 2
            told_of_full_disk |= told and "No space left" in boxes(lines)[-1]
            if not changed and (after != big or not told):
                fail("%d bytes free: the database is damaged, or the user was not told" % free)
            if folder.read("dbnamep.mdb") is not None:
                fail("%d bytes free: a temporary file is left behind" % free)
            steps += 1
    if not told_of_full_disk:
        fail("no step filled the disk")

    # The database on another file system than the working folder.
    with Folder(None, name="far.mdb") as folder, Folder(where=disk) as far:
        folder.write("sorptemp.dat", far.file("x.mdb").encode())
        os.chmod(far.file("x.mdb"), 0o640)
        _, lines = folder.play(STORIES["change"])
        if far.read("x.mdb") != new or os.stat(far.file("x.mdb")).st_mode & 0o777 != 0o640:
            fail("another file system: not saved as it should: %s" % lines)
        if sorted(os.listdir(far.path)) != ["comp.mdb", "dabase.txt", "sorptemp.dat", "x.mdb"]:
            fail("another file system: something is left behind")
finally:
    unmount(disk)

# What the file is for others: links, names, permissions, owner.
with Folder() as folder:
    os.mkdir(folder.file("data"))
    os.rename(folder.file("x.mdb"), folder.file("data/real.mdb"))
    os.symlink("data/real.mdb", folder.file("x.mdb"))
    os.chmod(folder.file("data/real.mdb"), 0o664)
    os.chown(folder.file("data/real.mdb"), 65534, 65534)
    folder.play(STORIES["change"])
    status = os.stat(folder.file("data/real.mdb"))
    if not os.path.islink(folder.file("x.mdb")) or folder.read("data/real.mdb") != new:
        fail("a symbolic link was not followed and kept")
    if (status.st_mode & 0o777, status.st_uid, status.st_gid) != (0o664, 65534, 65534):
        fail("permissions or owner were lost")
with Folder() as folder:
    os.link(folder.file("x.mdb"), folder.file("y.mdb"))
    _, lines = folder.play(STORIES["change"])
    if "several names" not in boxes(lines)[-1] or folder.read("y.mdb") != DATABASE:
        fail("a file with two names was not refused")

# As a user who may not write: a read-only database is refused, and so is one in a closed folder.
with Folder() as folder:
    as_nobody = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
    os.chmod(folder.path, 0o777)
    os.chmod(folder.file("x.mdb"), 0o444)
    _, lines = folder.play(STORIES["change"], as_nobody)
    if "x.mdb is read-only" not in boxes(lines)[-1] or folder.read("x.mdb") != DATABASE:
        fail("a read-only database was not refused: %s" % lines)
    os.mkdir(folder.file("closed"))
    os.rename(folder.file("x.mdb"), folder.file("closed/x.mdb"))
    os.chmod(folder.file("closed/x.mdb"), 0o666)
    folder.write("sorptemp.dat", b"closed/x.mdb")
    _, lines = folder.play(STORIES["change"], as_nobody)
    if "does not let a file be replaced" not in boxes(lines)[-1] or folder.read("closed/x.mdb") != DATABASE:
        fail("a database in a closed folder was not refused: %s" % lines)

# In a folder shared with others: another user's leftover is told as that, and in a sticky folder another's file stays.
with Folder() as folder:
    os.chmod(folder.path, 0o777)
    folder.write("dbnamep.mdb", b"half")
    os.chmod(folder.file("dbnamep.mdb"), 0o600)
    os.chmod(folder.file("x.mdb"), 0o666)
    _, lines = folder.play(STORIES["change"], as_nobody)
    if "dbnamep.mdb belongs to root" not in boxes(lines)[-1] or folder.read("x.mdb") != DATABASE:
        fail("another user's leftover was not told as that: %s" % lines)
    os.remove(folder.file("dbnamep.mdb"))
    os.chmod(folder.path, 0o1777)
    folder.write("sorptemp.dat", b"x.mdb")
    _, lines = folder.play(STORIES["change"], as_nobody)
    if "does not let a file be replaced" not in boxes(lines)[-1] or folder.read("x.mdb") != DATABASE:
        fail("another's file in a sticky folder was not refused: %s" % lines)

# A group that cannot be kept matters only where it can do more than everybody.
for mode, saved in ((0o664, False), (0o666, True), (0o644, True), (0o660, False)):
    with Folder() as folder:
        os.chmod(folder.path, 0o777)
        os.chmod(folder.file("x.mdb"), mode)
        os.chown(folder.file("x.mdb"), 65534, 12345)
        os.remove(folder.file("sorptemp.dat"))
        folder.write("sorptemp.dat", b"x.mdb")
        _, lines = folder.play(STORIES["change"], as_nobody)
        if (folder.read("x.mdb") == new) != saved or (len(boxes(lines)) == 1) != saved:
            fail("a group that cannot be kept, mode %o: %s" % (mode, boxes(lines)))

finish("a full disk in %d steps, and other file systems" % steps)
