#!/usr/bin/env python3
"""How long the program for Windows takes to start under wine, against one that shows an empty window and has the same
libraries: windows_start.py BUILD. Status 1 when it takes more than it may. Against one without these libraries, most of all
the common controls, the ratio is told too.

All are told to be painted as in processes.py. Wine's services run already, in a prefix of its own, whose windows are on a
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
PROGRAMS = [os.path.join(BUILD, *path) for path in (("app", "kelmar-dbedit.exe"), ("bench", "empty_window.exe"),
                                                   ("bench", "bare_window.exe"))]
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
        ours, empty, bare = processes.interleaved_starts(
            [processes.Program(screen, "wine", path, database="goethite.MDB", **WINE) for path in PROGRAMS], STARTS)
    finally:
        call("wineserver", "-k")
    os.chdir(BUILD)
met = ours <= AT_MOST * empty
print("| start under wine to the painted window, against an empty window with the same libraries | %.2f | %.2f | %s |" %
      (AT_MOST, ours / empty, "met" if met else "FALLS SHORT"))
print("| the same, against an empty window without them | - | %.2f | - |" % (ours / bare))
sys.exit(0 if met else 1)
