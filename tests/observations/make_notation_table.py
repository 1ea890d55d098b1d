#!/usr/bin/env python3
"""Writes the tables that the notation tests compare with, tests/golden/observations/notation_*.csv.

    tests/observations/make_notation_table.py [folder]

The rules are worked out here a second time, from the notation as docs/strike_and_dip.md tells it and by other means than
the program's: angles are exact decimals, texts are taken apart by patterns, the tables are lists of rows. Nothing is read
from the program.
"""

import pathlib
import re
import sys
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Decimal

ZERO = Decimal(0)


def val(text):
    """The longest numeric prefix; the texts of these tables hold no blanks inside and no exponents."""
    found = re.match(r"[-+]?(\d+\.?\d*|\.\d+)", text)
    return Decimal(found.group(0)) if found else ZERO


def text_of(angle):
    """Plain digits without needless zeros."""
    plain = format(angle.normalize(), "f")
    return "0" if plain in ("-0", "0") else plain


def fixed(angle, least, most):
    """Rounded half away from zero to `most` decimals, at least `least` of them shown."""
    rounded = angle.quantize(Decimal(1).scaleb(-most), rounding=ROUND_HALF_UP)
    whole, _, decimals = format(abs(rounded), "f").partition(".")
    decimals = decimals.rstrip("0").ljust(least, "0")
    sign = "-" if rounded < 0 else ""
    return sign + whole + ("." + decimals if decimals else "")


def ends_in_letter(text):
    return text != "" and ord(text[-1]) >= 58


# ---- parsers -------------------------------------------------------------------------------------------------------


def north_value(strike):
    """The signed number of a strike that begins with N."""
    if strike == "NS":
        return ZERO
    east = re.fullmatch(r"N(.+)E", strike)
    if east:
        return val(east.group(1))
    west = re.fullmatch(r"N(.*)W", strike)
    if west:
        return val("-" + west.group(1))
    return val(strike[1:])


def signed_side(strike, dip):
    """The dip of a text with a letter, by the strike's last letter; None where no rule takes it."""
    number, side = dip[:-1], dip[-1]
    end = strike[-1:]
    positive = {("E", ""), ("N", "W"), ("S", "E")}
    negative = {("W", ""), ("S", "W"), ("N", "E")}
    for strike_end in ("", end):
        if (side, strike_end) in positive:
            return val(number) if number else None
        if (side, strike_end) in negative:
            return val("-" + number)
    return None


def turned(azimuth, dip):
    if dip < 0:
        dip, azimuth = -dip, azimuth + 180
        if azimuth > 360:
            azimuth -= 360
        if azimuth < 0:
            azimuth += 360
    return azimuth, dip


def parse_main(strike, dip):
    if strike.strip(" ") == "":
        return ZERO, ZERO
    strike, dip = strike.upper(), dip.upper()
    if strike[0] == "S":
        last = {"E": "W", "W": "E"}.get(strike[-1], strike[-1])
        strike = "N" + strike[1:-1] + last if len(strike) > 1 else "N"
    azimuth = north_value(strike) if strike[0] == "N" else val(strike)
    plunge = ZERO
    if ends_in_letter(dip):
        plunge = signed_side(strike, dip) or ZERO
    elif dip[-1:].isdigit():
        plunge = val(dip)
    return turned(azimuth, plunge)


def parse_batch(strike, dip, declination):
    strike, dip = strike.upper(), dip.upper()
    azimuth = north_value(strike) if strike[:1] == "N" else val(strike)
    plunge = ZERO
    if dip and ord(dip[-1]) > 57:
        plunge = signed_side(strike, dip) or ZERO
    elif dip and ord(dip[-1]) < 57:
        plunge = val(dip)
    return azimuth + declination, plunge


def parse_b(strike, dip, before):
    """`before` is what the dip holds before the call."""
    if strike.strip(" ") == "":
        return ZERO, ZERO
    strike, dip = strike.upper(), dip.upper()
    if not ends_in_letter(strike) and not ends_in_letter(dip):
        return val(strike), val(dip)
    if re.fullmatch(r"N.*E", strike):
        return val(strike[1:-1]), val(dip) if dip.endswith("E") else before
    if re.fullmatch(r"N.*W", strike):
        return 180 - val(strike[1:-1]), val(dip)
    if strike[0] == "N":
        azimuth = north_value(strike)
    elif strike == "SN":
        azimuth = Decimal(180)
    elif re.fullmatch(r"S.*E", strike):
        azimuth = val(strike[1:-1])
    elif re.fullmatch(r"S.*W", strike):
        azimuth = val("-" + strike[1:-1])
    else:
        azimuth = val(strike[1:]) if strike[0] == "S" else val(strike)
    if azimuth < 0:
        azimuth += 360
    side = signed_side(strike, dip) if ends_in_letter(dip) else None
    return azimuth, before if side is None else side


# The sides on which a plane falls to the left, for each range of the azimuth: lower bound, upper bound, letter.
LEFT_BETWEEN = [(0, 180, "N"), (0, 90, "W"), (180, 360, "S"), (90, 270, "E"), (270, 360, "W")]
LEFT_AT = [(0, "W"), (180, "E"), (90, "N"), (270, "S")]


def parse_clinometer(strike, dip):
    if strike.strip(" ") == "":
        return ZERO, ZERO
    strike, dip = strike.upper(), dip.upper()
    azimuth = ZERO
    quadrant = re.fullmatch(r"([NS])(.*?)([EW]?)", strike)
    if strike in ("EW", "E0W"):
        azimuth = Decimal(90)
    elif strike in ("WE", "W0E"):
        azimuth = Decimal(270)
    elif strike in ("N", "S", "NS"):
        azimuth = ZERO
    elif strike == "SN":
        azimuth = Decimal(360)
    elif quadrant:
        first, number, last = quadrant.groups()
        west_of_north = last == ("W" if first == "N" else "E")
        azimuth = val("-" + number) if west_of_north else val(number)
        if first == "S":
            azimuth += 180
        if azimuth < 0:
            azimuth += 360
    elif strike[0] not in "WESN":
        azimuth = val(strike)
    plunge = ZERO
    if ends_in_letter(dip):
        side = dip[-1]
        left = any(low < azimuth < high and side == letter for low, high, letter in LEFT_BETWEEN)
        left = left or (azimuth, side) in [(Decimal(at), letter) for at, letter in LEFT_AT]
        plunge = val(dip[:-1]) * (-1 if left else 1)
    elif dip:
        plunge = val(dip)
    if plunge < 0:
        plunge, azimuth = -plunge, azimuth + 180
        if azimuth > 360:
            azimuth -= 360
    return azimuth, plunge


# ---- displays ------------------------------------------------------------------------------------------------------

# From (excluded), to (included), first letter, number from the azimuth, last letter, dip letter.
MAIN_ROWS = [
    (0, 45, "N", lambda az: az, "E", "E"),
    (45, 90, "N", lambda az: az, "E", "S"),
    (90, 135, "S", lambda az: 180 - az, "W", "S"),
    (135, 180, "S", lambda az: 180 - az, "W", "W"),
    (180, 225, "S", lambda az: az - 180, "E", "W"),
    (225, 270, "S", lambda az: az - 180, "E", "N"),
    (270, 315, "N", lambda az: 360 - az, "W", "N"),
    (315, 360, "N", lambda az: 360 - az, "W", "E"),
]

ROCKVIEW_POINTS = {0: ("NS", "E"), 180: ("NS", "W"), 90: ("N90E", "S"), 270: ("N90W", "N")}
ROCKVIEW_ROWS = [
    (0, 90, "N", lambda az: az, "E", "E"),
    (90, 180, "N", lambda az: 180 - az, "W", "W"),
    (180, 270, "N", lambda az: az - 180, "E", "W"),
    (270, 360, "N", lambda az: 360 - az, "W", "E"),
]


def in_rows(rows, azimuth, dip):
    for low, high, first, number, last, side in rows:
        if low < azimuth <= high:
            return first + text_of(number(azimuth)) + last, text_of(dip) + side
    return "", ""


def main_azimuth(strike, dip, declination):
    azimuth, plunge = parse_main(strike, dip)
    azimuth += declination.quantize(Decimal("0.1"), rounding=ROUND_HALF_EVEN)
    return (azimuth + 360 if azimuth < 0 else azimuth), plunge


def display_main(strike, dip, declination):
    azimuth, plunge = main_azimuth(strike, dip, declination)
    if azimuth == 0:
        return "NS", text_of(plunge) + "E"
    return in_rows(MAIN_ROWS, azimuth, plunge)


def display_rockview(strike, dip, declination):
    azimuth, plunge = main_azimuth(strike, dip, declination)
    if azimuth in ROCKVIEW_POINTS:
        text, side = ROCKVIEW_POINTS[azimuth]
        return text, text_of(plunge) + side
    return in_rows(ROCKVIEW_ROWS, azimuth, plunge)


# Whether the lower bound belongs to the band, lower bound, upper bound, whether that belongs to it, letters, number, side.
BANDS = [
    (True, 0, 0, True, "NE", lambda az: ZERO, "S"),
    (False, 0, 10, False, "NE", lambda az: az, "N"),
    (True, 10, 80, False, "NE", lambda az: az, "E"),
    (True, 80, 90, True, "NE", lambda az: az, "S"),
    (False, 90, 100, True, "NW", lambda az: 180 - az, "S"),
    (False, 100, 180, True, "NW", lambda az: 180 - az, "W"),
    (False, 180, 260, False, "NE", lambda az: az - 180, "W"),
    (True, 260, 270, False, "NE", lambda az: az - 180, "N"),
    (True, 270, 280, False, "NW", lambda az: 360 - az, "N"),
    (True, 280, 360, True, "NW", lambda az: 360 - az, "E"),
]


def band(azimuth, dip):
    for with_low, low, high, with_high, letters, number, side in BANDS:
        above = azimuth >= low if with_low else azimuth > low
        below = azimuth <= high if with_high else azimuth < high
        if above and below:
            return letters[0], text_of(number(azimuth)), letters[1], text_of(dip), side
    return ("",) * 5


CLINOMETER_OVERRIDES = [(0, "NS", "E"), (180, "NS", "W"), (90, "EW", "S"), (180, "EW", "N")]


def display_clinometer(strike, dip, declination):
    if strike == "-0-":
        return "", ""
    azimuth, plunge = parse_clinometer(strike, dip)
    azimuth += declination
    if azimuth > 360:
        azimuth -= 360
    if azimuth < 0:
        azimuth += 360
    if strike[:1].upper() not in ("W", "E", "S", "N"):
        return text_of(azimuth), text_of(plunge)
    first, number, second, dip_number, side = band(azimuth, plunge)
    shown = first + number + second, dip_number + side
    for at, text, letter in CLINOMETER_OVERRIDES:
        if azimuth == at:
            shown = text, text_of(plunge) + letter
    return shown


# The last row that applies gives the text: test, strike letter, number, dip decimals (least, most), sides up to 90 and
# above. Strike letters are those with the first end north; with the first end south they change places.
SECTION_ROWS = [
    (lambda a: a == 0, None, None, {True: (1, 1), False: (0, 0)}, "WE"),
    (lambda a: 0 < a <= 90, "E", lambda a: a, {True: (0, 0), False: (0, 0)}, "WE"),
    (lambda a: -90 <= a < 0, "W", lambda a: -a, {True: (0, 0), False: (1, 4)}, "WE"),
    (lambda a: a == 180, None, None, {True: (0, 0), False: (0, 0)}, "EW"),
    (lambda a: 90 <= a < 180, "W", lambda a: 180 - a, {True: (1, 4), False: (1, 4)}, "EW"),
    (lambda a: -180 <= a <= -90, "E", lambda a: a + 180, {True: (1, 4), False: (1, 4)}, "EW"),
]


def section_text(first_end_north, azimuth, dip):
    shown = None
    for applies, letter, number, decimals, sides in SECTION_ROWS:
        if not applies(azimuth):
            continue
        if letter is None:
            strike = "NS"
        else:
            seen = letter if first_end_north else {"E": "W", "W": "E"}[letter]
            strike = "N" + fixed(number(azimuth), 1, 1) + seen
        if dip <= 90:
            shown = strike, fixed(dip, *decimals[first_end_north]) + sides[0]
        else:
            shown = strike, fixed(180 - dip, 0, 0) + sides[1]
    return shown


# ---- what the tables hold ------------------------------------------------------------------------------------------

ODD_STRIKES = ["", " ", "NS", "SN", "EW", "E0W", "WE", "W0E", "SS", "NE", "NW", "SE", "SW", "N", "S", "E", "W", "-0-",
               "ns", "n15w", "s47e", "N15", "S15", "N7.5E", "S7.5W", "-15", "-15W", "15W", "N-15E", "N-15W", "N400E",
               "400", "-400", " N15E", "N15E ", "X15", "E30N", "N15N", "S15S", "15.25", "N15.25W", "走向", "N走W"]
ODD_DIPS = ["", " ", "E", "W", "S", "N", "-", "30X", "30 ", "30.", "-30", "-29", "-30E", "-30W", "+30E", "30.5e", "30w",
            "E30", "9", "19", "30e", "X", "30:", "30/", "-0-", "30度"]
SIDES = ["E", "W", "S", "N", ""]


def quadrant_strikes():
    return [f"{first}{number}{last}" for first, last in ("NE", "NW", "SE", "SW") for number in range(91)]


def all_strikes():
    return quadrant_strikes() + [str(azimuth) for azimuth in range(361)] + [f"N{n}" for n in range(0, 91, 15)]


def parse_pairs():
    for strike in all_strikes() + ODD_STRIKES:
        for dip in [number + side for number in ("30", "29") for side in SIDES]:
            yield strike, dip
    for strike in ["NS", "N30E", "N30W", "S30E", "S30W", "EW", "127"]:
        for dip in [f"{number}{side}" for number in range(91) for side in SIDES]:
            yield strike, dip
    for strike in ODD_STRIKES + ["N30E", "N30W"]:
        for dip in ODD_DIPS:
            yield strike, dip


BEFORE = Decimal(-7)  # what the dip of the 3D export's parser holds before each call


def parse_rows():
    yield "strike,dip,main_a,main_d,b_a,b_d,batch_a,batch_d,clinometer_a,clinometer_d"
    for strike, dip in parse_pairs():
        values = [*parse_main(strike, dip), *parse_b(strike, dip, BEFORE), *parse_batch(strike, dip, ZERO),
                  *parse_clinometer(strike, dip)]
        yield ",".join([strike, dip] + [text_of(value) for value in values])


DECLINATIONS = ["-9.4", "0", "7.04", "15.2", "-7.25", "0.05"]


def display_rows():
    yield "strike,dip,declination,main,main_dip,rockview,rockview_dip,clinometer,clinometer_dip"
    rows = [(strike, "30E") for strike in all_strikes()] + [(strike, "49S") for strike in quadrant_strikes()]
    rows += [(strike, dip) for strike in ODD_STRIKES for dip in ("30W", "29", "7.5N")]
    for strike, dip in rows:
        for declination in DECLINATIONS:
            drift = Decimal(declination)
            shown = [*display_main(strike, dip, drift), *display_rockview(strike, dip, drift),
                     *display_clinometer(strike, dip, drift)]
            yield ",".join([strike, dip, declination] + shown)


def section_rows():
    yield "azimuth,dip,north_strike,north_dip,south_strike,south_dip"
    azimuths = [Decimal(a) for a in range(-180, 181)] + [Decimal(a) for a in ("-89.95", "-0.04", "0.25", "89.95", "90.04",
                                                                             "179.96", "-179.96", "-90.05")]
    for azimuth in azimuths:
        for dip in [Decimal(d) for d in ("0", "0.5", "30", "30.12345", "90", "90.5", "120", "180")]:
            north, south = section_text(True, azimuth, dip), section_text(False, azimuth, dip)
            yield ",".join([text_of(azimuth), text_of(dip), *north, *south])


def band_rows():
    yield "azimuth,dip,first,number,second,dip_number,side"
    for tenth in list(range(0, 3601, 5)) + [1, 99, 101, 799, 801, 899, 901, 999, 1001, 1799, 1801, 2599, 2601, 2699, 2701,
                                            2799, 2801, 3599, 3601, -1, 4000]:
        azimuth = Decimal(tenth) / 10
        yield ",".join([text_of(azimuth), "30.5", *band(azimuth, Decimal("30.5"))])


def main():
    default = pathlib.Path(__file__).resolve().parent.parent / "golden" / "observations"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    folder.mkdir(parents=True, exist_ok=True)
    tables = {"parse": parse_rows, "display": display_rows, "section": section_rows, "bands": band_rows}
    for name, rows in tables.items():
        path = folder / f"notation_{name}.csv"
        path.write_text("\n".join(rows()) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
