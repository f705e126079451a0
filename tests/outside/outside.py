"""What the checks from outside the program share: working folders, stories, and a player to run them, which under wine may be
one for Windows (*.exe)."""
import os
import resource
import shutil
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from wine.run import run as run_under_wine

PLAYER = os.path.abspath(sys.argv[1])
WINE = PLAYER.endswith(".exe")
TRAILER = ('0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n0,"For KELMAR",0,0,0,0,0,0,0,0\r\n0,0\r\n'
           '0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n').encode()
DATABASE = b"".join(b'%d,"Sp%d",0,1.5,0,0,2,0,0,0,0,1\r\n1,231\r\n' % (501 + i, i) for i in range(40)) + TRAILER
COMPONENTS = b'231,"Cu+2",2,0,0,""\r\n330,"H+",1,0,0,""\r\n'
STORIES = {
    "change": "load\nselect 1\ntype txtlogk 7\nanswer Yes\nclick cmdSavedb\n",
    "add": "load\nclick cmdAddnew\ntype cboComp Cu+2\ntype txtStoicn 1\ntype txtSpname New\nclick cmdSuggest\n"
           "type txtlogk 1\ntype txtCharge 0\nanswer Yes\nclick cmdSavedb\n",
    "deletion": "load\nselect 1\nanswer Yes\nclick cmdDelete\n",
    "to new": "load\nselect 1\ntype txtlogk 7\nchoose new.mdb\nclick cmdNewDb\n",
    "load": "load\nselect 3\n",
}

failures = 0


def fail(text):
    global failures
    failures += 1
    print("FAILED:", text)


def finish(text):
    print("%s: %d failures" % (text, failures))
    sys.exit(1 if failures else 0)


class Folder:
    """A working folder with hand-over files and one database, removed at the end."""

    def __init__(self, database=DATABASE, name="x.mdb", where=None):
        self.path = tempfile.mkdtemp(dir=where)
        self.write("dabase.txt", b"C:\r\n")
        self.write("comp.mdb", COMPONENTS)
        self.write("sorptemp.dat", name.encode())
        if database is not None:
            self.write(name, database)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)

    def file(self, name):
        return os.path.join(self.path, name)

    def write(self, name, content):
        with open(self.file(name), "wb") as f:
            f.write(content)

    def read(self, name):
        try:
            with open(self.file(name), "rb") as f:
                return f.read()
        except FileNotFoundError:
            return None

    def play(self, story, before=(), timeout=60, memory=None):
        """Runs the player, with at most `memory` bytes of data; gives its exit status and its lines."""
        return play(self.path, story, before, timeout, memory)


def play(folder, story, before=(), timeout=60, memory=None):
    if "ASAN_OPTIONS" in os.environ:
        memory = None  # a sanitizer takes terabytes of addresses
    limit = (lambda: resource.setrlimit(resource.RLIMIT_DATA, (memory, memory))) if memory else None
    with tempfile.TemporaryFile() as script, tempfile.TemporaryFile() as out:
        script.write(story.encode("latin-1"))
        script.seek(0)
        if WINE:
            status, told, _ = run_under_wine([PLAYER], folder, script)
            return status, told.decode("latin-1").split("\n")
        run = subprocess.Popen([*before, PLAYER], cwd=folder, stdin=script, stdout=out, stderr=subprocess.DEVNULL,
                               preexec_fn=limit)
        try:
            run.wait(timeout)
        except subprocess.TimeoutExpired:
            run.kill()
            run.wait()
            return "no end", []
        out.seek(0)
        return run.returncode, out.read().decode("latin-1").split("\n")


def boxes(lines):
    return [line for line in lines if line.startswith("box ")]
