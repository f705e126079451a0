#!/usr/bin/env python3
"""What the programs are installed with holds together: installed.py CMAKE BUILD_FOLDER VERSION"""
import glob
import gzip
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile

CMAKE, BUILD, VERSION = sys.argv[1:]
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
NOT_FOR_USERS = {"sorptemp.dat", "dabase.txt", "NOTICE.txt", "README.md"}
ID = "org.kelmar.dbedit"


def read(*path):
    with open(os.path.join(*path), "rb") as f:
        data = f.read()
    return gzip.decompress(data) if path[-1].endswith(".gz") else data


def text(*path):
    return read(*path).decode()


def same(found, expected):
    assert found == expected, "%r, expected %r" % (found, expected)


with tempfile.TemporaryDirectory() as tree:
    subprocess.run([CMAKE, "--install", BUILD, "--prefix", tree], check=True, stdout=subprocess.DEVNULL)
    share, doc = os.path.join(tree, "share"), os.path.join(tree, "share/doc/kelmar-dbedit")

    # Every program has its page, and every page its program.
    programs = sorted(os.listdir(os.path.join(tree, "bin")))
    same(sorted(name[:-len(".1.gz")] for name in os.listdir(os.path.join(share, "man/man1"))), programs)
    for name in programs:
        page = text(share, "man/man1", name + ".1.gz")
        assert '"kelmar-dbedit %s"' % VERSION in page.split("\n")[0] and "@" not in page.replace("@example.org", ""), name

    # The samples, byte for byte, and nothing of what Kelmar hands over.
    samples = os.path.join(share, "kelmar-dbedit/samples")
    same(set(os.listdir(samples)), set(os.listdir(os.path.join(ROOT, "samples"))) - NOT_FOR_USERS)
    for name in os.listdir(samples):
        same(read(samples, name), read(ROOT, "samples", name))

    # What the desktop's entry names is there.
    entry = text(share, "applications", ID + ".desktop")
    assert re.search(r"^Exec=(\S+)", entry, re.M)[1] in programs, entry
    icon = re.search(r"^Icon=(.*)", entry, re.M)[1]
    sizes = {}
    for picture in glob.glob(os.path.join(share, "icons/hicolor/*/apps/*.png")):
        same(os.path.basename(picture), icon + ".png")
        sizes[picture.split("/")[-3]] = "%dx%d" % struct.unpack(">II", read(picture)[16:24])
    same(sizes, {size: size for size in ["%dx%d" % (n, n) for n in (16, 22, 24, 32, 48, 64, 128, 256)]})
    assert os.path.exists(os.path.join(share, "icons/hicolor/scalable/apps", icon + ".svg"))

    # One version.
    metainfo = os.path.join("metainfo", ID + ".metainfo.xml")
    same(re.findall(r'<release version="([^"]*)"', text(share, metainfo)), [VERSION])
    for name in re.findall(r"<binary>(.*)</binary>", text(share, metainfo)):
        assert name in programs, name
    same(re.match(r"kelmar-dbedit \((.*)\)", text(doc, "changelog.gz"))[1], VERSION)
    same(re.findall(r"^version: *[\"']?([^\"'\n]*)", text(ROOT, "CITATION.cff"), re.M) or [VERSION], [VERSION])

    # The samples' notice in full, and every file that the guide names.
    copyright_file = text(doc, "copyright")
    for line in text(ROOT, "samples/NOTICE.txt").split("\n"):
        assert line.strip() in copyright_file, line
    named = [name.partition("#")[0] for name in re.findall(r'(?:src="|\]\()([^")]*)["\)]', text(doc, "guide.md"))]
    assert any(name.endswith(".png") for name in named), named
    for name in named:
        assert os.path.exists(os.path.join(doc, name)), name

    for checker, file in (["desktop-file-validate"], "applications/%s.desktop" % ID), \
                         (["appstreamcli", "validate", "--no-net", "--pedantic"], metainfo):
        if shutil.which(checker[0]):
            done = subprocess.run([*checker, os.path.join(share, file)], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                  text=True)
            assert done.returncode == 0, done.stdout
