#!/usr/bin/env python3
"""Prints what must be reached beside what was measured: measure.py BUILD. Status 1 when a row falls short."""
import json
import os
import shutil
import subprocess
import sys
import tempfile

import processes

BUILD = os.path.abspath(sys.argv[1])
PROGRAM = os.path.join(BUILD, "app", "kelmar-dbedit")
FILES, WINDOW, PLAIN, MAKE_FILES = (os.path.join(BUILD, "bench", name)
                                    for name in ("files_bench", "window_bench", "plain_window", "make_files"))
LONGEST_RUN = 120  # seconds
IN_MEMORY = "/dev/shm"


def medians(program, only, time="real_time", repetitions=301):
    """Medians of benchmarks, repeated and interleaved, in microseconds."""
    out = subprocess.run([program, "--benchmark_filter=^(%s)$" % "|".join(only), "--benchmark_format=json",
                          "--benchmark_repetitions=%d" % repetitions, "--benchmark_enable_random_interleaving=true",
                          "--benchmark_min_time=0.0005", "--benchmark_report_aggregates_only=true",
                          "--benchmark_time_unit=us"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True,
                         timeout=LONGEST_RUN).stdout
    found = {b["run_name"]: b for b in json.loads(out)["benchmarks"] if b.get("aggregate_name") == "median"}
    if any(b.get("waits") for b in found.values()):
        raise RuntimeError("a save waits, and its processor time is not the time that it takes")
    return [found[name][time] for name in only]


def memory(database):
    """The most resident memory of a process of its own that loads the database."""
    return int(subprocess.run([FILES, database], stdout=subprocess.PIPE, check=True, timeout=LONGEST_RUN).stdout)


met = True


def row(what, measured, baseline, at_most):
    global met
    ratio = measured / baseline
    met = met and ratio <= at_most
    print("| %s | %.2f | %.2f | %s |" % (what, at_most, ratio, "met" if ratio <= at_most else "FALLS SHORT"), flush=True)


def measure_files():
    floor, naive, load, click, suggest, check, million, first = medians(
        FILES, ["floor_scan", "naive_names", "load", "click_last", "suggest_id", "check_all", "load_million", "load_4000"])
    row("loading: all names out of the file, against the floor", load, floor, 1.5)
    row("loading, against the naive reader", load, naive, .1)
    row("a click on the last species, 8 lookups in 400 components, against loading", click, load, 1.5)
    row("ID suggestion with 3999 candidates in use, against loading", suggest, load, 1.5)
    row("checking all species, against loading them", check, load, 3)
    row("loading the first 4000 of 1,000,000 records, against a file of these: time", million, first, 1.3)
    row("the same: memory", memory("million.mdb"), memory("first4000.mdb"), 1.1)


def measure_saving():
    here = os.getcwd()
    # A flush costs nothing there, and so its milliseconds, which differ from one to the next, do not hide the program's own.
    # Nothing waits there either: processor time, which does not count what else runs on the machine, is all the time that a
    # save takes.
    with tempfile.TemporaryDirectory(dir=IN_MEMORY) as folder:
        for name in ("bench.mdb", "comp.mdb"):
            shutil.copy(name, folder)
        os.chdir(folder)
        try:
            floor, content, save, operations = medians(
                FILES, ["floor_scan", "new_content", "save", "file_operations"], "cpu_time")
        finally:
            os.chdir(here)
    row("save: read, replace one record, format all, against the floor", content, floor, 5)
    row("save as a whole on a disk in memory, less its file operations alone, against the floor", save - operations,
        floor, 5)


def measure_window():
    list_, plain_list = medians(WINDOW, ["shown_list", "plain_list"])
    row("4000 names into the shown list, against a plain list model with equal row heights", list_, plain_list, 1.5)
    with processes.Screen() as screen:
        found = processes.compare(screen, PROGRAM, PLAIN)
        row("start of the program to its painted window, against a plain program with the same widgets", found["start"],
            found["plain start"], 1.15)
        row("resident memory of the program with 3999 species, against the plain program", found["rss"], found["plain rss"],
            1.1)
        row("the same: proportional memory", found["pss"], found["plain pss"], 1.1)
        held = processes.hold_key(screen, PROGRAM, lambda: medians(FILES, ["load"], "cpu_time", 3)[0] / 1e6)
        row("processor time of a key, Down held in a list of 3999 species, against that of a loading", held["key"],
            held["loading"], 10)


print("| operation | must be at most | measured | |\n|---|---|---|---|", flush=True)
with tempfile.TemporaryDirectory(dir=BUILD) as working:
    os.chdir(working)
    subprocess.run([MAKE_FILES], check=True, timeout=LONGEST_RUN)
    measure_files()
    measure_saving()
    measure_window()
    os.chdir(BUILD)
sys.exit(0 if met else 1)
