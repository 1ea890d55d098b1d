#!/usr/bin/env python3
"""Writes tests/golden/observations/declination.csv: the field of igrf10.coef at 2005.0 and sea level, worked out by other
means than the program's: the Legendre functions are exact polynomials from Rodrigues' formula, evaluated in fractions,
with no recursion.

    tests/observations/make_declination_table.py [folder]
"""

import math
import pathlib
import sys
from fractions import Fraction

RADIUS, AXIS, INVERSE_FLATTENING = 6371.2, 6378.137, 298.25722

LATITUDES = [-90, -89.9999999, -78.5, -45.25, -23.4, -1, 0, 0.001, 24.4667, 33.56, 35.681, 43.0642, 60, 77.4667, 85,
             89.9999999, 90]
LONGITUDES = [-180, -120.5, -77.03, -0.1, 0, 45, 90, 123, 139.767, 146, 179.99]


def coefficients(path):
    rows = [line.split() for line in path.read_text().splitlines()[1:]]
    return [(int(row[0]), int(row[1]), float(row[2]), float(row[3])) for row in rows]


def derivative(polynomial):
    return [power * factor for power, factor in enumerate(polynomial)][1:]


def rodrigues(n, m):
    """d^(n+m)/dx^(n+m) of (x*x - 1)^n / (2^n n!), its factors by ascending power."""
    polynomial = [Fraction(0)] * (2 * n + 1)
    for k in range(n + 1):
        polynomial[2 * k] = Fraction(math.comb(n, k) * (-1) ** (n - k), 2**n * math.factorial(n))
    for _ in range(n + m):
        polynomial = derivative(polynomial)
    return polynomial


def value(polynomial, x):
    total = Fraction(0)
    for factor in reversed(polynomial):
        total = total * x + factor
    return float(total)


def tables(rows):
    found = []
    for n, m, g, h in rows:
        schmidt = 1.0 if m == 0 else math.sqrt(2.0 * math.factorial(n - m) / math.factorial(n + m))
        polynomial = rodrigues(n, m)
        found.append((n, m, g, h, schmidt, polynomial, derivative(polynomial)))
    return found


def geocentric(latitude):
    axis_b = AXIS * (1 - 1 / INVERSE_FLATTENING)
    a_cos, b_sin = AXIS * math.cos(latitude), axis_b * math.sin(latitude)
    length = math.hypot(a_cos, b_sin)
    out, along = AXIS * a_cos / length, axis_b * b_sin / length
    return math.hypot(out, along), math.atan2(along, out)


def field(found, latitude, longitude):
    phi, east = math.radians(latitude), math.radians(longitude)
    radius, sphere = geocentric(phi)
    x, s = math.sin(sphere), math.cos(sphere)
    exact = Fraction(x)
    north = along = down = 0.0
    for n, m, g, h, schmidt, polynomial, slope in found:
        size = schmidt * (RADIUS / radius) ** (n + 2)
        p, dp = value(polynomial, exact), value(slope, exact)
        turn = g * math.cos(m * east) + h * math.sin(m * east)
        theta = -(s ** (m + 1)) * dp + (m * s ** (m - 1) * x * p if m else 0.0)
        north += size * turn * theta
        if m:
            along += size * m * (g * math.sin(m * east) - h * math.cos(m * east)) * s ** (m - 1) * p
        down -= size * (n + 1) * turn * s**m * p
    tilt = phi - sphere
    return (north * math.cos(tilt) + down * math.sin(tilt), along,
            down * math.cos(tilt) - north * math.sin(tilt))


def main():
    default = pathlib.Path(__file__).resolve().parent.parent / "golden" / "observations"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    found = tables(coefficients(default / "igrf10.coef"))
    lines = ["latitude,longitude,x,y,z,declination"]
    for latitude in LATITUDES:
        for longitude in LONGITUDES:
            x, y, z = field(found, latitude, longitude)
            lines.append(f"{latitude},{longitude},{x:.6f},{y:.6f},{z:.6f},{math.degrees(math.atan(y / x)):.9f}")
    (folder / "declination.csv").write_text("\n".join(lines) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
