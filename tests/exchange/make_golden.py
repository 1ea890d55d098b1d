#!/usr/bin/env python3
"""Writes the golden Shapefiles below the folder that is named, from the field tables of docs/formats/shapefile.md and
of the published format description. Shares nothing with the program."""

import struct
import sys
from pathlib import Path


def own(kind, points):
    """The program's own .shp and .shx."""
    n = len(points)
    if kind == 1:
        (x, y), = points
        length, content, box = 64, 10, (0, 0, 2 * x, 2 * y)
        record = struct.pack("<i2d", kind, x, y)
    else:
        xs, ys = zip(*points)
        length, content, box = n * 8 + 78, n * 8 + 24, (min(xs), min(ys), max(xs), max(ys))
        record = struct.pack("<i4d3i", kind, *box, 1, n, 0) + b"".join(struct.pack("<2d", *p) for p in points)
    header = struct.pack(">7i", 9994, 0, 0, 0, 0, 0, length) + struct.pack("<2i4d", 1000, kind, *box) + bytes(32)
    return header + struct.pack(">2i", 1, content) + record, header + struct.pack(">2i", 51, content)


def published(kind, points):
    """A .shp and .shx of one shape as the format description has them."""
    xs, ys = zip(*points)
    box = (min(xs), min(ys), max(xs), max(ys))
    if kind == 1:
        record = struct.pack("<i2d", kind, *points[0])
    else:
        record = struct.pack("<i4d3i", kind, *box, 1, len(points), 0)
        record += b"".join(struct.pack("<2d", *p) for p in points)
    shp = struct.pack(">2i", 1, len(record) // 2) + record
    shx = struct.pack(">2i", 50, len(record) // 2)

    def headed(body):
        words = (100 + len(body)) // 2
        return struct.pack(">7i", 9994, 0, 0, 0, 0, 0, words) + struct.pack("<2i4d", 1000, kind, *box) + bytes(32) + body

    return headed(shp), headed(shx)


def table(text):
    """The attribute table of the second set: 2024-05-06, one column NAME of 254 bytes."""
    header = struct.pack("<4BIHH17xBxx", 3, 124, 5, 6, 1, 65, 255, 0x13)
    column = b"NAME".ljust(11, b"\0") + b"C" + bytes(4) + bytes([254]) + bytes(15)
    return header + column + b"\r" + b" " + text.ljust(254, b" ") + b"\x1a"


def laid_over(new, old):
    return new + old[len(new):]


folder = Path(sys.argv[1])


def put(name, pair):
    for ending, content in zip((".shp", ".shx"), pair):
        (folder / (name + ending)).write_bytes(content)


point = own(1, [(10.0, 20.0)])
line = own(3, [(0.0, 0.0), (10.0, 0.0)])
longer = own(3, [(1.5, -2.25), (3.0, 4.0), (-5.0, 6.0), (7.0, 8.125)])
put("point", point)
put("line", line)
put("polygon", own(5, [(0.0, 0.0), (10.0, 0.0), (10.0, 10.0)]))
put("point_over_line", tuple(laid_over(new, old) for new, old in zip(point, longer)))
# The triangle turned clockwise and closed.
put("metres_gis", published(5, [(10.0, 10.0), (10.0, 0.0), (0.0, 0.0), (10.0, 10.0)]))
put("degrees_gis", published(3, [(139.5, 35.5), (139.25, 36.25)]))
put("point_gis", published(1, [(10.0, 20.0)]))
# "谷" in code page 932.
(folder / "tani_gis.dbf").write_bytes(table(b"\x92\x4a"))
