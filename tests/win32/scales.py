#!/usr/bin/env python3
"""Windows of all sizes on screens of other scales: scales.py PLAYER

While it runs no other test may start a program under wine, for which the scale is one.
"""
import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
TESTS = os.path.join(HERE, "..")
sys.path.append(TESTS)
from wine.run import attempt, prepare, run, twice

PLAYER = os.path.abspath(sys.argv[1])
USUAL = 96  # dots an inch


def set_scale(dots):
    command = [r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(dots), "/f"]
    twice(lambda: attempt(["wine", "reg", "add", *command], HERE, subprocess.DEVNULL, 60))


prepare()
try:
    for dots in 120, 144, 192:
        set_scale(dots)
        with tempfile.TemporaryFile() as script:
            script.write(b"scale\n")

            def told_scale():
                script.seek(0)
                return run([PLAYER], HERE, script)[1]

            told = twice(told_scale)
        assert told == b"scale %d\n" % dots, told
        subprocess.run([sys.executable, os.path.join(TESTS, "stories.py"), PLAYER,
                        os.path.join(TESTS, "window", "stories", "sizes.story")], check=True)
finally:
    set_scale(USUAL)
