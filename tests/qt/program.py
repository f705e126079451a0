#!/usr/bin/env python3
"""The program itself, started as Kelmar starts it: program.py PROGRAM"""
import os
import shutil
import subprocess
import sys
import tempfile
import time

PROGRAM = os.path.abspath(sys.argv[1])
SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "samples")


def start(folder, home, **variables):
    """The program in a folder of samples, with a home of its own and no display but what is given."""
    shutil.copytree(SAMPLES, folder, dirs_exist_ok=True)
    usual = {name: value for name, value in os.environ.items()
             if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    return subprocess.Popen([PROGRAM], cwd=folder, stderr=subprocess.PIPE, text=True,
                            env={**usual, "HOME": home, "TMPDIR": home, "XDG_RUNTIME_DIR": home, **variables})


def says(**variables):
    """What it says when it cannot start."""
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as home:
        program = start(folder, home, **variables)
        said = program.communicate(timeout=20)[1]
        assert program.returncode == 1, (program.returncode, said)
        return said


said = says()
assert said == "kelmar-dbedit: the window cannot be opened: there is no display.\n", said
said = says(QT_QPA_PLATFORM="nonsense")
assert said.startswith("kelmar-dbedit: the window cannot be opened: ") and '"nonsense"' in said, said

# It leaves nothing behind when it is killed.
with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as home:
    program = start(folder, home, QT_QPA_PLATFORM="offscreen")
    hand_over = os.path.join(folder, "sorptemp.dat")
    for _ in range(500):
        if not os.path.exists(hand_over):
            break
        time.sleep(.01)
    time.sleep(.3)  # the window is open
    assert not os.path.exists(hand_over)
    assert program.poll() is None, program.returncode
    program.kill()
    program.communicate()
    assert os.listdir(home) == [], os.listdir(home)
