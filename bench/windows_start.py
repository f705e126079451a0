#!/usr/bin/env python3
"""How long the program for Windows takes to start under wine, against one that shows an empty window:
windows_start.py BUILD. Status 1 when it takes more than it may.

Both are told to be painted as in processes.py. Wine's services run already, in a prefix of its own, whose windows are on a
virtual display.
"""
import os
import shutil
import subprocess
import sys
import tempfile

import processes

BUILD = os.path.abspath(sys.argv[1])
SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "samples")
PROGRAM, EMPTY = os.path.join(BUILD, "app", "kelmar-dbedit.exe"), os.path.join(BUILD, "bench", "empty_window.exe")
WINE = {"WINEPREFIX": os.path.join(BUILD, "wine-display"), "WINEDEBUG": "-all",
        "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe="}
LONGEST_WAIT = 200  # seconds
STARTS, AT_MOST = 51, 1.5


def call(*command, **variables):
    subprocess.run(command, env={**os.environ, **WINE, **variables}, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=LONGEST_WAIT, check=False)


with tempfile.TemporaryDirectory(dir=BUILD) as folder, processes.Screen() as screen:
    shutil.copytree(SAMPLES, folder, dirs_exist_ok=True)
    os.chdir(folder)
    call("wineboot", "-i", DISPLAY=screen.name)
    call("wineserver", "-p", DISPLAY=screen.name)
    try:
        both = [processes.Program(screen, "wine", path, database="goethite.MDB", **WINE) for path in (PROGRAM, EMPTY)]
        ours, empty = processes.interleaved_starts(both, STARTS)
    finally:
        call("wineserver", "-k")
    os.chdir(BUILD)
print("| start of the program under wine to its painted window, against a program with an empty one | %.2f | %.2f | %s |" %
      (AT_MOST, ours / empty, "met" if ours <= AT_MOST * empty else "FALLS SHORT"))
print("(%.0f ms and %.0f ms)" % (ours * 1e3, empty * 1e3))
sys.exit(0 if ours <= AT_MOST * empty else 1)
