#!/usr/bin/env python3
"""Runs the checker as a user does: checker.py PROGRAM. What it says of a file's content stands in tests/cases/check.cases."""
import os
import shutil
import subprocess
import sys
import tempfile

from wine.run import run as run_under_wine

PROGRAM = os.path.abspath(sys.argv[1])
WINDOWS = PROGRAM.endswith(".exe")
SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "samples")
TRAILER = b'0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n0,"For KELMAR",0,0,0,0,0,0,0,0\r\n0,0\r\n0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n'
ONE = b'1,"a",0,0,0,0,0,0,0,0,0,1\r\n1,%d\r\n'
USAGE = "Usage: kelmar-dbcheck [-c COMPONENTS] [--charge] FILE...\n"
NO_COMPONENTS = "%s:1: note: its components are not checked, for want of comp.mdb [no-components]\n"
UNKNOWN = '%s:2: warning: record 1 "a": component 7 is not in %s: it shows as #7 [component-unknown]\n'
NO_END = "%s:%d: warning: the file ends without an end marker [no-end-marker]\n"
CUT = '%s:1: error: record 1 "a": the file ends inside the record; the editor reads no further; no save is made [unreadable-record]\n'
MISSING = "kelmar-dbcheck: cannot open %s: No such file or directory.\n"
FILES = {
    "sound.mdb": ONE % 330 + TRAILER,
    "seven.mdb": ONE % 7 + TRAILER,
    "endless.mdb": ONE % 330,
    "cut.mdb": ONE[:20],
    "B\u00f6den, neu.mdb": ONE % 330,
    "many.mdb": b"".join(b'%d,"a%d",0,0,0,0,0,0,0,0,0,0\r\n' % (i, i) for i in range(1, 4002)) + TRAILER,
    "full.mdb": b"".join(b'%d,"a%d",0,0,0,0,0,0,0,0,0,0\r\n' % (i, i) for i in range(1, 4000)) + TRAILER,
    "seven": b"7,Seven,0,0,0,x\r\n330,H+,1,0,0,x\r\n",
    "broken": b"330,H+,1\r\n",
    os.path.join("deep", "comp.mdb"): b"7,Seven,0,0,0,x\r\n",
    os.path.join("deep", "seven.mdb"): ONE % 7 + TRAILER,
    os.path.join("deep", "sound.mdb"): ONE % 330 + TRAILER,
}
DEEP = os.path.join("deep", "")
# With the component database of the samples in the folder, or without one: arguments, status, what it says, first line of errors.
CASES = [
    (True, ["sound.mdb"], 0, "", ""),
    (True, ["seven.mdb"], 1, UNKNOWN % ("seven.mdb", "comp.mdb"), ""),
    (True, ["endless.mdb"], 1, NO_END % ("endless.mdb", 2), ""),
    (True, ["cut.mdb"], 2, CUT % "cut.mdb", ""),
    (True, ["cut.mdb", "endless.mdb", "sound.mdb"], 2, CUT % "cut.mdb" + NO_END % ("endless.mdb", 2), ""),
    (True, ["full.mdb", "many.mdb"], 2,
     "many.mdb:4001: error: the editor reads 4000 records, and no further; no save is made [too-many-records]\n", ""),
    (True, ["nowhere.mdb", "endless.mdb"], 3, NO_END % ("endless.mdb", 2), MISSING % "nowhere.mdb"),
    (True, ["B\u00f6den, neu.mdb"], 1, NO_END % ("B\u00f6den, neu.mdb", 2), ""),
    (True, ["comp.mdb", "sound.mdb"], 0, "", ""),
    (True, ["-c", "broken", "broken"], 2,
     "broken:1: error: record 1: the file ends inside the record [unreadable-record]\n", ""),
    (True, ["--charge", "sound.mdb"], 1, 'sound.mdb:1: warning: record 1 "a": its charge is 0, that of its components 1 [charge]\n', ""),
    # Each database has the component database of its own folder, or all have the one that is given.
    (True, [DEEP + "seven.mdb", "seven.mdb"], 1, UNKNOWN % ("seven.mdb", "comp.mdb"), ""),
    (True, ["-c", "seven", "seven.mdb", DEEP + "sound.mdb"], 0, "", ""),
    (True, ["-c", "nowhere", "endless.mdb"], 3,
     NO_COMPONENTS.replace("comp.mdb", "nowhere") % "endless.mdb" + NO_END % ("endless.mdb", 2), MISSING % "nowhere"),
    # What is wrong with it is said once.
    (True, ["-c", "broken", "sound.mdb", "seven.mdb"], 2,
     "broken:1: error: record 1: the file ends inside the record [unreadable-record]\n" +
     UNKNOWN.replace("7", "330") % ("sound.mdb", "broken") + UNKNOWN % ("seven.mdb", "broken"), ""),
    (False, ["seven.mdb"], 0, NO_COMPONENTS % "seven.mdb", ""),
    (False, ["--charge", "seven.mdb"], 0, NO_COMPONENTS % "seven.mdb", ""),
    (True, ["--help"], 0, USAGE, ""),
    (True, [], 3, "", USAGE),
    (True, ["-c"], 3, "", USAGE),
    (True, ["--chrage", "sound.mdb"], 3, "", USAGE),
    (True, ["--", "-.mdb"], 3, "", MISSING % "-.mdb"),
]


def outcome(arguments, folder, stdout=None):
    """Status, output, first line of what it says of itself."""
    if WINDOWS:
        status, out, errors = run_under_wine([PROGRAM] + arguments, folder)
    else:
        done = subprocess.run([PROGRAM] + arguments, cwd=folder, stdout=stdout or subprocess.PIPE, stderr=subprocess.PIPE,
                              timeout=60)
        status, out, errors = done.returncode, done.stdout or b"", done.stderr
    text = [stream.decode().replace("\r\n", "\n") for stream in (out, errors)]
    return status, text[0], text[1][:text[1].find("\n") + 1]


def main():
    failures = 0

    def expect(what, expected, got):
        nonlocal failures
        if expected != got:
            failures += 1
            print("%s:\n  expected %r\n  got      %r" % (what, expected, got))

    samples = sorted(name for name in os.listdir(SAMPLES) if name.rpartition(".")[2] in ("mdb", "MDB", "CDB", "ISO", "NIC", "BLI"))
    expect("the samples", (0, "", ""), outcome(samples, SAMPLES))
    for has_components, arguments, status, out, errors in CASES:
        with tempfile.TemporaryDirectory() as folder:
            os.mkdir(os.path.join(folder, "deep"))
            for name, content in FILES.items():
                with open(os.path.join(folder, name), "wb") as f:
                    f.write(content)
            if has_components:
                shutil.copy(os.path.join(SAMPLES, "comp.mdb"), folder)
            got = outcome(arguments, folder)
            usage = arguments == ["--help"]  # of which the first line is enough
            expect(" ".join(arguments), (status, out, errors), (got[0], got[1][:len(out)] if usage else got[1], got[2]))
            if WINDOWS and arguments == ["sound.mdb"]:
                expect("a pattern", (1, NO_END % ("endless.mdb", 2), ""), outcome(["e*.mdb"], folder))
            if not WINDOWS and arguments == ["endless.mdb"]:
                with open("/dev/full", "wb") as full:
                    expect("a full disk", (3, "", "kelmar-dbcheck: the findings cannot be written.\n"),
                           outcome(arguments, folder, full))
    print("%d cases, %d otherwise than expected" % (len(CASES), failures))
    sys.exit(1 if failures else 0)


main()
