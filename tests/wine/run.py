#!/usr/bin/env python3
"""Runs a program for Windows under wine: run.py PROGRAM [ARGUMENT...], or run.py --prepare

CMake puts it before every program that it built for Windows and runs. It gives the program's output and exit status. The
wine prefix lies in build/wine and is made at the first call (--prepare makes it and does nothing else). Windows need no
display there. Standard input is passed on when it is a file, and is empty otherwise.
"""
import fcntl
import os
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

BUILD = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "build")
PREFIX = os.path.join(os.path.realpath(BUILD), "wine")
READY = os.path.join(PREFIX, "ready")
LIMIT = 100  # seconds for a program; twice that lies within the limit of a test
# Wine's services end this many seconds after the last program, so that not every program has to start them.
KEPT = 20
# What wine says of itself, but for what it says of a program that crashed.
COMPLAINT = re.compile(rb"^wine(server|device)?(:(?! Unhandled)| client error)", re.MULTILINE)


class WineFailed(Exception):
    """Wine, and not the program that it runs; or a program that does not end."""


def environment(graphics_display=None):
    usual = {name: value for name, value in os.environ.items()
             if name not in ("DISPLAY", "WAYLAND_DISPLAY") and not name.startswith(("LC_", "LANG"))}
    # No offers to download what no test needs, no debugger for a program that crashed, nothing in the desktop's menus; the
    # code page of Western Europe, and file names in UTF-8.
    return {**usual, "WINEPREFIX": PREFIX, "WINEDEBUG": "-all", "HOME": PREFIX, "LC_ALL": "C.UTF-8",
            "WINEDLLOVERRIDES": "mscoree,mshtml,winedbg.exe,winemenubuilder.exe="}


def attempt(command, cwd, stdin, limit):
    """Exit status, output, errors. Through files: wine's services inherit a pipe and keep it open long after the program."""
    with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
        process = subprocess.Popen(command, cwd=cwd, env=environment(), stdin=stdin, stdout=out, stderr=err,
                                   start_new_session=True)
        try:
            status = process.wait(limit)
        except subprocess.TimeoutExpired:
            raise WineFailed("no end within %d s: %s" % (limit, " ".join(command)))
        finally:
            process.kill()  # and not its group, in which may be services that other programs need
            process.wait()
        out.seek(0)
        err.seek(0)
        told, complaints = out.read(), err.read()
    if status < 0 or (status > 0 and COMPLAINT.search(complaints)):
        raise WineFailed("status %d: %s: %s" % (status, " ".join(command), complaints.decode(errors="replace").strip()))
    if status == 0 and b"\nwine: Unhandled" in b"\n" + complaints:
        status = 1  # it crashed, whatever status wine makes of that
    return status, told, complaints


def twice(call):
    """Wine has moods."""
    try:
        return call()
    except WineFailed as failure:
        print("once again, for wine: %s" % failure, file=sys.stderr)
        return call()


def keep_server():
    # Without effect, and at once, where there is one.
    subprocess.run(["wineserver", "-p%d" % KEPT], env=environment(), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, start_new_session=True, timeout=LIMIT)


def make_prefix():
    shutil.rmtree(PREFIX, ignore_errors=True)
    for drive in ("d", "e"):
        os.makedirs(os.path.join(PREFIX, "drive_" + drive))
    for command, limit in (("wineboot -i", 200), (r"reg add HKCU\Software\Wine\Drivers /f /v Graphics /d null", LIMIT)):
        if attempt(["wine", *command.split()], PREFIX, subprocess.DEVNULL, limit)[0] != 0:
            raise WineFailed(command)
    for drive in ("d", "e"):
        os.symlink("../drive_" + drive, os.path.join(PREFIX, "dosdevices", drive + ":"))
    # Those that run already know of no drives and no driver.
    subprocess.run(["wineserver", "-k"], env=environment(), stderr=subprocess.DEVNULL, timeout=LIMIT)
    subprocess.run(["wineserver", "-w"], env=environment(), stderr=subprocess.DEVNULL, timeout=LIMIT)
    open(READY, "w").close()


def prepare():
    os.makedirs(BUILD, exist_ok=True)
    with open(PREFIX + ".lock", "w") as lock:  # of several tests that come first at once, one makes it
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not os.path.exists(READY):
            twice(make_prefix)
        keep_server()


def run(command, cwd=None, stdin=subprocess.DEVNULL, limit=LIMIT):
    """Exit status, output, errors of a program and its arguments. Throws WineFailed."""
    with open(command[0], "rb") as program:  # another one wine starts and does not wait for
        if program.read(2) != b"MZ":
            sys.exit("%s is no program for Windows" % command[0])
    prepare()
    return attempt(["wine", *command], cwd, stdin, limit)


def main():
    if sys.argv[1:] == ["--prepare"]:
        return prepare()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # takes the program with it
    stdin = sys.stdin if sys.stdin and stat.S_ISREG(os.fstat(0).st_mode) else subprocess.DEVNULL
    try:
        status, out, err = twice(lambda: run(sys.argv[1:], stdin=stdin))
    except WineFailed as failure:
        sys.exit(str(failure))
    sys.stdout.buffer.write(out)
    sys.stderr.buffer.write(err)
    sys.stdout.flush()
    sys.exit(status)


if __name__ == "__main__":
    main()
