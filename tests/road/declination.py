#!/usr/bin/env python3
"""declination.py <coefficient file> <degrees north> <degrees east>: the declination at sea level, degrees east positive.

Worked out apart from the program, straight from the definition of the field: the gradient of the potential

  V = a sum_n sum_m (a / r)^(n + 1) (g_nm cos(m lon) + h_nm sin(m lon)) P_nm(cos(colatitude))

with a = 6371.2 km and the Schmidt quasi-normalised functions P_nm, which are made here from the polynomials of Legendre
themselves (P_n by Rodrigues' formula, differentiated m times), not by a recursion. Source: Langel, The main field, in
Jacobs (editor), Geomagnetism, volume 1, Academic Press 1987. Coefficients of the epoch of the file.
"""

import math
import sys
from fractions import Fraction


def coefficients(path):
    rows = []
    with open(path, encoding="ascii") as file:
        next(file)
        for line in file:
            fields = line.split()
            if len(fields) < 6:
                break
            n, m = int(fields[0]), int(fields[1])
            rows.append((n, m, float(fields[2]), float(fields[3])))
    return rows


def differentiated(polynomial):
    return [power * factor for power, factor in enumerate(polynomial)][1:] or [Fraction(0)]


def legendre(n, m):
    """The coefficients of the m-th derivative of P_n, lowest power first."""
    polynomial = [Fraction(0)] * (2 * n + 1)
    for k in range(n + 1):
        polynomial[2 * k] = Fraction((-1) ** (n - k) * math.comb(n, k), 2**n * math.factorial(n))
    for _ in range(n + m):
        polynomial = differentiated(polynomial)
    return polynomial


def value(polynomial, x):
    return math.fsum(float(factor) * x**power for power, factor in enumerate(polynomial))


def schmidt(n, m, colatitude):
    """P_nm of the cosine of a colatitude, and its derivative by the colatitude."""
    norm = math.sqrt((1 if m == 0 else 2) * math.factorial(n - m) / math.factorial(n + m))
    polynomial = legendre(n, m)
    sine, cosine = math.sin(colatitude), math.cos(colatitude)
    inner, slope = value(polynomial, cosine), value(differentiated(polynomial), cosine)
    turned = (m * sine ** (m - 1) * cosine * inner if m > 0 else 0.0) - sine ** (m + 1) * slope
    return norm * sine**m * inner, norm * turned


def geocentric(latitude):
    """Radius in km and colatitude of a place at sea level on the WGS-84 ellipsoid."""
    axis, squash = 6378.137, 1 - 1 / 298.25722
    across = axis * math.cos(latitude) / math.hypot(math.cos(latitude), squash * math.sin(latitude))
    along = axis * squash**2 * math.sin(latitude) / math.hypot(math.cos(latitude), squash * math.sin(latitude))
    return math.hypot(across, along), math.atan2(across, along)


def declination(rows, latitude, longitude):
    latitude, longitude = math.radians(latitude), math.radians(longitude)
    radius, colatitude = geocentric(latitude)
    north = east = down = 0.0
    for n, m, g, h in rows:
        scale = (6371.2 / radius) ** (n + 2)
        function, slope = schmidt(n, m, colatitude)
        along = g * math.cos(m * longitude) + h * math.sin(m * longitude)
        across = m * (g * math.sin(m * longitude) - h * math.cos(m * longitude))
        north += scale * along * slope
        east += scale * across * function / math.sin(colatitude)
        down -= scale * (n + 1) * along * function
    # From the direction of the centre of the Earth to the plumb line of the ellipsoid.
    tilt = latitude - (math.pi / 2 - colatitude)
    return math.degrees(math.atan2(east, north * math.cos(tilt) + down * math.sin(tilt)))


if __name__ == "__main__":
    print(f"{declination(coefficients(sys.argv[1]), float(sys.argv[2]), float(sys.argv[3])):.6f}")
