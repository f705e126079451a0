#!/usr/bin/env python3
"""The stories in tests/stories, and those of widgets in tests/qt/stories: stories.py [--record] PLAYER [STORY|FOLDER...]

A story tells what a user does on the sample databases, and what the window shows and the files hold then.
"put NAME" makes a file of the lines "| ..." that follow ("| trailer" being the six lines that end a database; \\x1a and the
like are characters, a \\ at the end leaves the line's end out), "folder", "link", "hardlink" and "remove" do that. A line "> EVENT" is
played; below it stands what it brings about. `state` tells what has changed in the window since the last one, or since the
program began; "+" and "-" at the end tell lines of files that have come and gone.
With --record the files are written anew: read every line of the difference before you commit it.
A PLAYER for Windows (*.exe) is played under wine; a story that then comes out otherwise is played once again, so that wine's
moods do not decide.
"""
import os
import shutil
import subprocess
import sys
import tempfile

from wine.run import WineFailed, run as run_under_wine

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLES = os.path.join(HERE, "..", "samples")
TRAILER = ('0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n0,"For KELMAR",0,0,0,0,0,0,0,0\r\n0,0\r\n'
           '0,"",0,0,0,0,0,0,0,0\r\n0,0\r\n')


def plain(text):
    return text.encode("latin-1").decode("unicode_escape") if "\\" in text else text


def escaped(text):
    return text.encode("latin-1").decode("latin-1").replace("\\", "\\\\").encode("unicode_escape").decode().replace("\\\\\\\\", "\\")


def read_files(folder):
    files = {}
    for at, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(at, name)
            with open(path, "rb") as f:
                files[os.path.relpath(path, folder).replace(os.sep, "/")] = f.read().decode("latin-1")
    return files


def put(folder, lines):
    """Makes the files of a story."""
    path = None
    for line in lines:
        word, _, rest = line.partition(" ")
        if word == "put":
            path = os.path.join(folder, rest)
            open(path, "w").close()
        elif word == "|":
            text = TRAILER if rest == "trailer" else rest[:-1] if rest.endswith("\\") else rest + "\r\n"
            with open(path, "ab") as f:
                f.write(plain(text).encode("latin-1"))
        elif word == "remove":
            os.remove(os.path.join(folder, rest))
        elif word == "folder":
            os.mkdir(os.path.join(folder, rest))
        elif word == "link":
            os.symlink(rest.split()[1], os.path.join(folder, rest.split()[0]))
        elif word == "hardlink":
            os.link(os.path.join(folder, rest.split()[1]), os.path.join(folder, rest.split()[0]))


def units(block):
    """The state by control or value; the entries of a list belong to it."""
    by_name, name = {}, None
    for line in block:
        if not line.startswith(" "):
            name = line.partition(" ")[0]
        by_name.setdefault(name, []).append(line)
    return by_name


def without_states(lines, whole):
    """Each state as what has changed in it since the one before; the first is told only if `whole`."""
    shown, block, out = None, None, []
    for line in lines:
        if line == "state" and block is None:
            block = []
        elif line == "end" and block is not None:
            now = units(block)
            if shown is not None or whole:
                out += [l for name in sorted(now) if (shown or {}).get(name) != now[name] for l in now[name]]
            shown, block = now, None
        elif block is not None:
            block.append(line)
        else:
            out.append(line)
    return out


def changes(before, after):
    out = []
    for name in sorted(after):
        if before.get(name) == after[name]:
            continue
        out.append("file " + name)
        gone = before.get(name, "").split("\n")
        for line in after[name].split("\n"):
            if line in gone:
                gone.remove(line)
            elif line:
                out.append("+ " + escaped(line.removesuffix("\r")) + ("" if line.endswith("\r") else "\\"))
        out += ["- " + escaped(line.removesuffix("\r")) for line in gone if line]
    return out + ["gone " + name for name in sorted(before) if name not in after]


def output(player, script, folder):
    """What the player writes, with FOLDER for the folder in which it runs."""
    with tempfile.TemporaryFile() as stdin:
        stdin.write(script.encode("latin-1"))
        stdin.seek(0)
        if player.endswith(".exe"):
            out, folder = run_under_wine([player, "--echo"], folder, stdin)[1], "Z:" + folder.replace("/", "\\")
        else:
            out = subprocess.run([player, "--echo"], cwd=folder, stdin=stdin, stdout=subprocess.PIPE,
                                 stderr=subprocess.DEVNULL, timeout=60).stdout
        return out.decode("latin-1").replace(folder, "FOLDER")


def played(player, story):
    lines = story.split("\n")
    with tempfile.TemporaryDirectory() as folder:
        for name in os.listdir(SAMPLES):
            shutil.copy(os.path.join(SAMPLES, name), folder)
        put(folder, lines)
        before = read_files(folder)
        events = [line[2:] for line in lines if line.startswith("> ")]
        told = output(player, "\n".join(events), folder).replace("\r\n", "\n").split("\n")[:-1]
        head = [line for line in lines[:-1] if not line.startswith(">")]
        head = head[:next((i for i, line in enumerate(head) if not line.startswith(("#", "put ", "|", "folder ", "link ", "hardlink ", "remove "))),
                          len(head))]
        return "\n".join(head + without_states(told, events[0] == "state") + changes(before, read_files(folder))) + "\n"


def played_as(player, recorded):
    """As recorded, or how else."""
    for last in (False, True) if player.endswith(".exe") else (True,):
        try:
            told = played(player, recorded)
        except WineFailed as failure:
            told = str(failure)
        if told == recorded or last:
            return told


def main():
    record = "--record" in sys.argv
    player, *names = [a for a in sys.argv[1:] if a != "--record"]
    paths = []
    for name in names or [os.path.join(HERE, "stories")]:
        paths += sorted(os.path.join(name, story) for story in os.listdir(name)) if os.path.isdir(name) else [name]
    failures = 0
    for path in paths:
        with open(path, encoding="latin-1", newline="\n") as f:
            recorded = f.read()
        told = played_as(os.path.abspath(player), recorded)
        if record:
            with open(path, "w", encoding="latin-1", newline="\n") as f:
                f.write(told)
        elif told != recorded:
            failures += 1
            pairs = zip(recorded.split("\n") + [""], told.split("\n") + [""])
            line, (want, got) = next((i, pair) for i, pair in enumerate(pairs) if pair[0] != pair[1])
            print("%s:%d: expected %r, got %r" % (os.path.basename(path), line + 1, want, got))
    print("%d of %d stories come out as recorded" % (len(paths) - failures, len(paths)))
    sys.exit(1 if failures else 0)


main()
