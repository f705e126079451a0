#!/usr/bin/env python3
"""Draws how loading and saving grow: growth_bench | plot_growth.py > doc/growth.svg"""
import csv
import math
import sys

points = {"loading": [], "saving": []}
for row in csv.reader(line for line in sys.stdin if "_median" in line):
    name, species = row[0].replace("_median", "").split("/")
    points[name].append((int(species), float(row[2])))
for series in points.values():
    series.sort()

WIDTH, HEIGHT, LEFT, BOTTOM = 640, 400, 70, 50
COLOURS = {"loading": "#1f5fa8", "saving": "#b03020"}
low = 10 ** math.floor(math.log10(min(t for series in points.values() for _, t in series)))
high = 10 ** math.ceil(math.log10(max(t for series in points.values() for _, t in series)))


def x(species):
    return LEFT + (WIDTH - LEFT - 20) * math.log10(species / 10) / math.log10(400)


def y(time):
    return HEIGHT - BOTTOM - (HEIGHT - BOTTOM - 20) * math.log10(time / low) / math.log10(high / low)


print('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" font-family="sans-serif" font-size="12">' % (WIDTH, HEIGHT))
print('<rect width="100%" height="100%" fill="white"/>')
for species in (10, 100, 1000, 4000):
    print('<path d="M%.1f 20V%d" stroke="#ddd"/>' % (x(species), HEIGHT - BOTTOM))
    print('<text x="%.1f" y="%d" text-anchor="middle">%d</text>' % (x(species), HEIGHT - BOTTOM + 18, species))
time = low
while time <= high:
    print('<path d="M%d %.1fH%d" stroke="#ddd"/>' % (LEFT, y(time), WIDTH - 20))
    print('<text x="%d" y="%.1f" text-anchor="end">%g µs</text>' % (LEFT - 6, y(time) + 4, time))
    time *= 10
for name, series in points.items():
    path = " ".join("%.1f,%.1f" % (x(s), y(t)) for s, t in series)
    print('<polyline points="%s" fill="none" stroke="%s" stroke-width="2"/>' % (path, COLOURS[name]))
    s, t = series[len(series) // 2]
    print('<text x="%.1f" y="%.1f" fill="%s">%s</text>' % (x(s), y(t) - 10, COLOURS[name], name))
print('<text x="%d" y="%d" text-anchor="middle">species in the database</text></svg>' % ((WIDTH + LEFT) / 2, HEIGHT - 12))
