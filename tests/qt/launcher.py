#!/usr/bin/env python3
"""The launcher in an installed tree, mostly with a stand-in for the editor that tells what it finds: launcher.py CMAKE BUILD"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "samples")
# Takes the hand-over and ends with 7, or before that, or never; or does not take it.
STAND_IN = r"""#!/bin/sh
sleep "${SLOW:-0}"
test -s dabase.txt || { echo "no dabase.txt"; exit 9; }
pwd
cat sorptemp.dat
grep SigBlk /proc/self/status
[ "$DOES" = leave ] || rm sorptemp.dat
case $DOES in leave | stay) exec sleep 60 ;; esac
exit 7
"""
NOT_BLOCKED = "SigBlk:\t0000000000000000"
NOBODY = 65534

root = tempfile.TemporaryDirectory()
os.chmod(root.name, 0o755)
tree, work = os.path.join(root.name, "tree"), os.path.join(root.name, "wörk, here")
subprocess.run([sys.argv[1], "--install", sys.argv[2], "--prefix", tree], check=True, stdout=subprocess.DEVNULL)
launcher, editor = (os.path.join(tree, "bin", name) for name in ("kelmar-dbedit-open", "kelmar-dbedit"))
installed = os.path.join(tree, "share", "kelmar-dbedit", "samples")
for name in os.listdir(installed):
    os.chmod(os.path.join(installed, name), 0o444)


def start(*arguments, does="end", user=None, ignored=None, **variables):
    usual = {name: value for name, value in os.environ.items()
             if name not in ("DISPLAY", "WAYLAND_DISPLAY", "XDG_DATA_HOME")}
    changed = {"QT_QPA_PLATFORM": "offscreen", "HOME": root.name, "XDG_RUNTIME_DIR": root.name, "DOES": does, **variables}
    env = {name: value for name, value in {**usual, **changed}.items() if value is not None}
    as_user = {"user": user, "group": user, "extra_groups": []} if user else {}
    return subprocess.Popen([launcher, *arguments], cwd=root.name, env=env, text=True, stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, restore_signals=ignored is None, **as_user,
                            preexec_fn=(lambda: signal.signal(ignored, signal.SIG_IGN)) if ignored else None)


def until(condition, what):
    for _ in range(2000):
        if condition():
            return
        time.sleep(.01)
    raise AssertionError(what)


def ended(program, status, *lines):
    said, errors = program.communicate(timeout=30)
    assert program.returncode == status and said.splitlines() == list(lines), (program.returncode, said, errors)
    return errors


def opened(path):
    return [os.path.dirname(path), f'"{path}"', NOT_BLOCKED]


def says(program, *parts):
    """It shows a box, which the test ends."""
    said = program.stderr.readline()
    time.sleep(.2)
    assert program.poll() is None, said
    program.terminate()
    ended(program, -signal.SIGTERM)
    assert said.startswith("kelmar-dbedit-open: ") and all(part in said for part in parts), said


def is_there(name):
    return os.path.exists(os.path.join(work, name))


def clean():
    assert sorted(os.listdir(work)) == databases, os.listdir(work)


os.mkdir(work)
databases = sorted(["comp.mdb", "-x.MDB", "a b,ü.MDB"])
for name in databases:
    shutil.copy(os.path.join(SAMPLES, "comp.mdb"), os.path.join(work, name))
first, second = os.path.join(work, "a b,ü.MDB"), os.path.join(work, "-x.MDB")

# With the editor itself, which takes the hand-over and shows its window.
program = start(first)
until(lambda: is_there("dabase.txt") and not is_there("sorptemp.dat"), "the editor takes the hand-over")
time.sleep(.3)
assert program.poll() is None
program.terminate()
ended(program, 128 + signal.SIGTERM)
clean()

os.remove(editor)
says(start(first), f"cannot start {editor}: No such file or directory.")
clean()
with open(editor, "w") as file:
    file.write(STAND_IN)
os.chmod(editor, 0o755)

# The command line.
for arguments in ([first, second], ["-x"], ["--", first, second], ["--version"]):
    assert "Usage: kelmar-dbedit-open [FILE]\n" in ended(start(*arguments), 2)
program = start("--help")
assert program.communicate()[0].startswith("Usage: kelmar-dbedit-open [FILE]\n") and program.returncode == 0
ended(start(os.path.relpath(first, root.name)), 7, *opened(first))
os.chdir(work)
program = subprocess.run([launcher, "--", "-x.MDB"], capture_output=True, text=True)
assert program.returncode == 7 and program.stdout.splitlines() == opened(second), program
os.chdir("/")
clean()

# What ends it ends the editor, and it cleans up; what it was told to ignore it ignores.
for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
    for does in ("leave", "stay"):
        program = start(first, does=does)
        assert program.stdout.readline() == work + "\n"
        until(lambda: is_there("sorptemp.dat") == (does == "leave"), "it stays")
        program.send_signal(number)
        assert program.wait(20) == 128 + number, (number, program.returncode)
        program.communicate()
        clean()
program = start(first, does="stay", ignored=signal.SIGHUP)
assert program.stdout.readline() == work + "\n"
program.send_signal(signal.SIGHUP)
time.sleep(.3)
assert program.poll() is None
program.terminate()
assert program.wait(20) == 128 + signal.SIGTERM
program.communicate()
clean()

# Killed, it leaves both files; the next start names the one and removes the other.
program = start(first, does="leave")
program.stdout.readline()
children = open(f"/proc/{program.pid}/task/{program.pid}/children").read().split()
program.kill()
for child in children:
    os.kill(int(child), signal.SIGKILL)
program.communicate()
assert is_there("sorptemp.dat") and is_there("dabase.txt")
says(start(second), f"The editor cannot start in {work}: a sorptemp.dat waits there.")
assert "there is no display" in ended(start(second, QT_QPA_PLATFORM=None), 1)
os.remove(os.path.join(work, "sorptemp.dat"))
ended(start(second), 7, *opened(second))
clean()

# Two at once, in one folder: in turn, and at the same moment.
one = start(first, does="stay")
assert one.stdout.readline() == work + "\n"
until(lambda: not is_there("sorptemp.dat"), "it is taken")
two = start(second, does="stay", SLOW=".5")
until(lambda: is_there("sorptemp.dat"), "the second is handed over")
one.terminate()
assert one.wait(20) == 128 + signal.SIGTERM
assert two.stdout.readline() == work + "\n"
until(lambda: not is_there("sorptemp.dat"), "it is taken")
two.terminate()
two.wait(20)
one.communicate(), two.communicate()
clean()
for _ in range(20):
    one, two = start(first), start(second)
    ended(one, 7, *opened(first))
    ended(two, 7, *opened(second))
    clean()

# A folder that it may not write, and no component database.
if os.geteuid() == 0:
    says(start(first, user=NOBODY), f"The editor cannot start in {work}: cannot create sorptemp.dat: Permission denied.")
else:
    os.chmod(work, 0o500)
    says(start(first), f"The editor cannot start in {work}: cannot create sorptemp.dat: Permission denied.")
    os.chmod(work, 0o700)
says(start(os.path.join(work, "none.MDB")), f"cannot open {work}/none.MDB: No such file or directory.")
os.rename(os.path.join(work, "comp.mdb"), os.path.join(root.name, "comp.mdb"))
says(start(first), f"There is no component database, comp.mdb, in {work}: components will show as numbers")
os.rename(os.path.join(root.name, "comp.mdb"), os.path.join(work, "comp.mdb"))
clean()

# The samples, copied once, even by several at once, and whatever a kill left of an earlier copy.
data = os.path.join(root.name, "data")
own = os.path.join(data, "kelmar-dbedit", "samples")
os.makedirs(os.path.join(os.path.dirname(own), ".samples.new", "half"))
for program in [start(XDG_DATA_HOME=data) for _ in range(4)]:
    ended(program, 7, *opened(os.path.join(own, "complex.MDB")))
assert os.listdir(os.path.dirname(own)) == ["samples"]
for name in os.listdir(installed):
    with open(os.path.join(installed, name), "rb") as sample, open(os.path.join(own, name), "rb") as copy:
        assert sample.read() == copy.read(), name
    assert os.stat(os.path.join(own, name)).st_mode & 0o200, name
assert sorted(os.listdir(own)) == sorted(os.listdir(installed))
os.remove(os.path.join(own, "goethite.MDB"))
with open(os.path.join(own, "complex.MDB"), "w") as file:
    file.write("changed")
ended(start(XDG_DATA_HOME=data), 7, *opened(os.path.join(own, "complex.MDB")))
assert not os.path.exists(os.path.join(own, "goethite.MDB")) and os.path.getsize(os.path.join(own, "complex.MDB")) == 7
os.remove(os.path.join(own, "complex.MDB"))
says(start(XDG_DATA_HOME=data), f"there is no {own}/complex.MDB."[:60])
for unusable in ("", "relative"):
    ended(start(XDG_DATA_HOME=unusable), 7, *opened(os.path.join(root.name, ".local/share/kelmar-dbedit/samples/complex.MDB")))
says(start(HOME=None), "neither HOME nor XDG_DATA_HOME")
shutil.rmtree(own)
os.rename(installed, installed + ".away")
says(start(XDG_DATA_HOME=data), "The samples cannot be opened: cannot copy them from ", "No such file or directory")
assert os.listdir(os.path.dirname(own)) == [], os.listdir(os.path.dirname(own))
