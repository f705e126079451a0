"""The program as a running process on a virtual display of its own, beside a plain one: start, memory, and keys."""
import os
import select
import signal
import statistics
import subprocess
import time

from Xlib import XK, X, display, error
from Xlib.ext import xtest

LONGEST_WAIT = 30  # seconds, for anything
STARTS, MEMORIES = 151, 5
SPECIES = 3999
PARTS, HELD, FAST = 20, 20, 179  # of the way down the list; keys in each that are held and measured, and that are not
PAUSE = 1 / 30  # seconds between the keys that a held key gives


def wait_for(what, condition, pause):
    end = time.perf_counter() + LONGEST_WAIT
    while not condition():
        if time.perf_counter() > end:
            raise TimeoutError("waited in vain for " + what)
        time.sleep(pause)


class Screen:
    def __enter__(self):
        told, tells = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(tells), "-screen", "0", "1366x768x24"],
                                       pass_fds=[tells], stderr=subprocess.DEVNULL)
        os.close(tells)
        if not select.select([told], [], [], LONGEST_WAIT)[0]:
            self.server.kill()
            raise TimeoutError("waited in vain for Xvfb")
        self.name = ":" + os.read(told, 20).decode().strip()
        self.display = display.Display(self.name)
        self.root = self.display.screen().root
        return self

    def __exit__(self, *_):
        self.display.close()
        self.server.terminate()
        self.server.wait()

    def window(self):
        for child in self.root.query_tree().children:
            try:
                if child.get_attributes().map_state == X.IsViewable:
                    return child
            except error.BadWindow:  # it has just gone
                pass
        return None

    def picture(self, left, top, width, height):
        return self.root.get_image(left, top, width, height, X.ZPixmap, 0xffffffff).data

    def press(self, key, times=1, pause=0.):
        code = self.display.keysym_to_keycode(XK.string_to_keysym(key))
        for _ in range(times):
            xtest.fake_input(self.display, X.KeyPress, code)
            xtest.fake_input(self.display, X.KeyRelease, code)
            self.display.sync()
            time.sleep(pause)

    def click(self, left, top):
        xtest.fake_input(self.display, X.MotionNotify, x=left, y=top)
        xtest.fake_input(self.display, X.ButtonPress, 1)
        xtest.fake_input(self.display, X.ButtonRelease, 1)
        self.display.sync()


class Program:
    """A program whose window is known, so that it can be told from outside when all of it is painted: its whole picture is
    the one that it came to when it was started for the first time. Looked at is a strip from top to bottom, through the
    list and the buttons, as that is quick, and once the strip is right the whole."""

    def __init__(self, screen, *command, database="bench.mdb", **variables):
        self.screen, self.command, self.database, self.pid = screen, command, database, None
        self.environment = {k: v for k, v in os.environ.items() if not k.startswith(("QT_", "WAYLAND_"))}
        self.environment.update(variables, DISPLAY=screen.name)
        self.start()
        wait_for("the window", screen.window, .01)
        place = screen.window().get_geometry()
        self.area = (place.x, place.y, place.width, place.height)
        self.strip = (place.x + place.width // 10, place.y, 8, place.height)
        self.wait_until_idle()
        self.painted, self.painted_strip = screen.picture(*self.area), screen.picture(*self.strip)
        self.end()

    def start(self):
        with open("sorptemp.dat", "w") as hand_over:
            hand_over.write(self.database)
        silent = [(os.POSIX_SPAWN_OPEN, stream, os.devnull, os.O_RDWR, 0) for stream in range(3)]
        begin = time.perf_counter()
        self.pid = os.posix_spawnp(self.command[0], self.command, self.environment, file_actions=silent)
        return begin

    def end(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        self.pid = None
        wait_for("the window to go", lambda: self.screen.window() is None, .002)

    def seconds_to_start(self):
        begin = self.start()
        wait_for("the painted window", lambda: self.screen.picture(*self.strip) == self.painted_strip and
                 self.screen.picture(*self.area) == self.painted, .0002)
        end = time.perf_counter()
        self.end()
        return end - begin

    def memory(self):
        """Resident and proportional memory in KiB, once it is idle."""
        self.start()
        wait_for("the window", self.screen.window, .01)
        self.wait_until_idle()
        with open("/proc/%d/smaps_rollup" % self.pid) as file:
            sizes = dict(line.split()[:2] for line in file if line.startswith(("Rss:", "Pss:")))
        self.end()
        return int(sizes["Rss:"]), int(sizes["Pss:"])

    def processor_seconds(self):
        """In user and system mode; and whether it waits for something to do."""
        with open("/proc/%d/stat" % self.pid) as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK"), fields[0] == "S"

    def wait_until_idle(self):
        """Until it has done nothing in ten looks in a row, and so has handled all that was sent."""
        looks = []

        def idle():
            looks.append(self.processor_seconds())
            return len(looks) > 10 and set(looks[-10:]) == {(looks[-1][0], True)}

        self.screen.display.sync()
        wait_for("the program to be idle", idle, .02)


def interleaved_starts(programs, count):
    """Median seconds from the start to the painted window of each."""
    times = {p: [] for p in programs}
    for i in range(count):
        for p in programs if i % 2 else programs[::-1]:
            times[p].append(p.seconds_to_start())
    return [statistics.median(times[p]) for p in programs]


def compare(screen, program, plain):
    """Seconds from the start to the painted window, and KiB of memory, of the program and of the plain one."""
    both = (Program(screen, program), Program(screen, plain))
    memories = {p: [] for p in both}
    median_times = interleaved_starts(both, STARTS)
    for _ in range(MEMORIES):
        for p in both:
            memories[p].append(p.memory())
    (rss, pss), (plain_rss, plain_pss) = ([statistics.median(sizes) for sizes in zip(*memories[p])] for p in both)
    return {"start": median_times[0], "plain start": median_times[1], "rss": rss, "plain rss": plain_rss, "pss": pss,
            "plain pss": plain_pss}


def hold_key(screen, path, load):
    """The processor time of one key, and of one loading (as load() measures it meanwhile), while Down is held from the first
    species of the list to the last: HELD keys at a time at the pace of a keyboard, and quickly on to the next part."""
    program = Program(screen, path)
    program.start()
    wait_for("the window", screen.window, .01)
    program.wait_until_idle()
    left, top, width, height = program.area

    def shown():
        program.wait_until_idle()
        return screen.picture(*program.area)

    screen.click(left + width // 10, top + height // 8)
    program.wait_until_idle()
    screen.press("End")
    last = shown()
    screen.press("Home")
    program.wait_until_idle()
    used, loadings = 0., []
    for _ in range(PARTS):
        before, _ = program.processor_seconds()
        screen.press("Down", HELD, PAUSE)
        program.wait_until_idle()
        used += program.processor_seconds()[0] - before
        screen.press("Down", FAST)
        program.wait_until_idle()
        loadings.append(load())
    # The list is as long as keys were sent: had one not been handled, the last species would not be reached now, and had
    # one done more, it would be too early.
    screen.press("Down", SPECIES - 2 - PARTS * (HELD + FAST))
    early = shown()
    screen.press("Down")
    if early == last or shown() != last:
        raise RuntimeError("the keys sent and the species shown differ")
    program.end()
    return {"key": used / PARTS / HELD, "loading": statistics.median(loadings)}
