#!/usr/bin/env python3
"""Computes the bits of the results that the contracts of the numeric routines promise.

make.py FOLDER writes three files to FOLDER. reference.py computes the results with MPFR (by gmpy2) and
rounds each operation to a double. Neither the library nor the processor's doubles are used.

own.txt: routines that call no function of the platform.
platform.txt: routines that call the platform's log, exp, pow, log10 or atan.
functions.txt: these calls with their correctly rounded results. With these results the rows of
platform.txt have the same bits on every platform.

A line with a name starts the rows of a routine. A row has the arguments, the result and, for the
interpolations, the values of the variables after the call. Integers are decimal. Doubles are the
hexadecimal digits of their bits without trailing zeros.

Most rows are edge cases; some are random. Tests compare the routines that have a reference in
Tests/support/NumericReferences.h on many more arguments.
"""
import itertools
import pathlib
import random
import sys

from gmpy2 import floor, mpfr

import reference
from reference import EXTREME, HIGHEST, INF, LOWEST, NAN, TINY, TOLERANCE, above, below, of_bits, shown

# Only getrandbits is used: its results are the same in every version of Python.
chance = random.Random(1)


def integer():
    """Of either sign. Each number of bits is equally likely."""
    return (chance.getrandbits(32) + LOWEST) >> chance.getrandbits(5)


def any_double():
    return of_bits(chance.getrandbits(64))


def small_integral():
    return mpfr(chance.getrandbits(3) - 4)


def any_edge():
    return EDGES[chance.getrandbits(20) % len(EDGES)]


def within(low, high):
    return lambda: mpfr(low) + (mpfr(high) - mpfr(low)) * chance.getrandbits(53) / 2**53


def draw(count, *sources):
    return [tuple(source() for source in sources) for _ in range(count)]


def ones(*values):
    return [(mpfr(v),) for v in values]


def doubles(rows):
    return [tuple(map(mpfr, row)) for row in rows]


def of_both_signs(*values):
    return [s * mpfr(v) for v in values for s in (1, -1)]


def with_neighbours(*values):
    return of_both_signs(*(x for v in map(mpfr, values) for x in (v, above(v), below(v))))


# Negative zero is a number here because gmpy2 drops the sign of the text "-0.0".
EDGES = [mpfr(v) for v in (0, -0.0, NAN, INF, -INF)]
EDGES += of_both_signs(TINY, mpfr(2) ** -1022, 0.1, 1.5, 100, 1e300, below(INF)) + with_neighbours(1)
INTEGERS = [0, 1, -1, 2, -2, 3, -5, 6, 7, -12, 18, 2**30, HIGHEST, -HIGHEST, LOWEST]
FLAGS = [0, -1, 1, 0x7FFF, 0x8000, 0xFFFE, 0xFFFF, 0x10000, 0x1FFFF, LOWEST]

SPECIAL = [mpfr(v) for v in (0, -0.0, 1, -1.5, INF, NAN)]
FEW_PAIRS = list(itertools.product(SPECIAL, SPECIAL))
PAIRS = FEW_PAIRS + [
    pair
    for i, v in enumerate(map(mpfr, (-1, 2, 0.5, 3e9, 1e300, TINY, -TINY, -INF)))
    for pair in ((v, v), (v, SPECIAL[i % 6]), (SPECIAL[i % 6], v), (-v, mpfr(2)), (mpfr(2), v))
]
TWO_INTEGERS = draw(9, integer, integer) + [
    (a, b)
    for i, a in enumerate(INTEGERS)
    for j, b in enumerate(INTEGERS)
    if a in (0, LOWEST) or b in (0, -1) or (i + j) % 8 == 0
]


def roundable():
    yield from EDGES
    yield from with_neighbours(TOLERANCE, 0.25, 0.5, 2**31, 2**31 - 1, 2**52)
    for n in map(mpfr, (0, 2, 15, 16, 2**31 - 2, 2**31 - 1, 2**31, 2**51)):
        if n < 15:
            for fraction in ("0.1", 0.25, "0.2500000000009", "0.250000000001", "0.3", "0.4"):
                yield from (n + mpfr(fraction), -(n + 1 - mpfr(fraction)))
        for fraction in ("0.4999999999995", "0.4999999999985", "0.49999999999999956", 0.5):
            yield from (n + mpfr(fraction), -above(n + mpfr(fraction)))
        yield from (below(n), -below(n + 1))
    yield from (x for (x,) in draw(9, within(-20, 20)))


def roundings():
    for i, x in enumerate(roundable()):
        yield from ((x, -1), (x, 0))[: 1 + (i % 5 == 0)]
    yield from itertools.product([mpfr(2.1)], FLAGS)


def directed_roundings():
    for i, x in enumerate(roundable()):
        yield from ((x, -1, -(i % 2)), (x, -(i // 2 % 2), (i % 2) - 1))[: 1 + (i % 3 == 0)]
    yield from ((mpfr(2.3), *flags) for f in FLAGS for flags in ((f, 0), (f, -1), (0, f), (-1, f)))


def nearly_integral():
    yield from with_neighbours(TOLERANCE, 0.5, 2, 3, 2**31, 2**52, 2**53)
    for n in map(mpfr, (0, 1, 2, 1000, 2**20 + 1)):
        for off in map(mpfr, (9e-13, 1.1e-12, 2.0**-52, 2.0**-51, 2.0**-40)):
            yield from (n + off, -(n - off))


def distances():
    yield from PAIRS
    for x, tolerance in ((2.25, 0.25), (-2.75, 0.25), (2.5, 0.5), (3, 0)):
        yield from ((mpfr(x), t) for t in (*with_neighbours(tolerance), NAN, INF))


def coefficients():
    # Some results are in tables, others are computed from the shorter side.
    for n in (0, 1, 2, 5, 8, 11):
        yield from doubles((n, k) for k in range(n + 2))
    for n in (67, 68, 127, 128, 129, 1000, 1019, 1020, 1023, 1024):
        for k in (1, 3, 4, 62, 63, 64, 65, 127, 128, 449, 510, 511):
            yield from doubles([(n, k if k % 2 else n - k)] if k <= n // 2 else ())
    named = (
        *((2147483649, 2), (2147483650, 2), (5.5, 2), (5.5, 3), (4.5, 2), (10.5, 5), (5, 2.5)),
        *((5, 1.5), (5, 0.5)),
        *((5, 4.5), (5, -2.5), (-3, -5), (-3, -2), (5.5, 5.5), (1e11, 1e10), (5e9, -2147483648.5)),
        *((4294967294, 2147483647), (4294967294.5, 2147483647.25), (2.0**53, 2.0**53 - 9)),
    )
    yield from doubles(named) + FEW_PAIRS
    yield from draw(9, within(-20, 1200), within(-20, 40))
    yield from ((floor(n), floor(k)) for n, k in draw(20, within(128, 1100), within(0, 700)))
    yield from ((n, floor(k)) for n, k in draw(9, within(100, 300), within(0, 140)))


def sums():
    named = (
        *((5, 0, 5), (5, 2, 3), (5, 2.7, 3.9), (5, 4, 9), (5, 3, 2), (5, -2, 1), (5, -0.5, 1)),
        *((5, 0, NAN), (NAN, 0, 5), (5, NAN, LOWEST + 0.5), (5, -1e10, LOWEST)),
        *((5, 1e10, LOWEST - 1), (5, HIGHEST, INF), (NAN, HIGHEST + 0.75, HIGHEST)),
        (INF, HIGHEST - 1, 1e10),
        *((1e300, HIGHEST - 700, INF), (2000, 0, 2000), (2000, 990, 1010), (100, 0, 100)),
        *((1020.5, 0, 600), (-5, -60, 0), (0.3, -40, 20), (-0.5, HIGHEST - 69, INF)),
        *((2.0**31 - 20, -60, 10), (2.0**31 + 0.25, -30, 40), (7.697700821666311, -191, -66)),
    )
    yield from doubles(named)
    for n, a, count in draw(8, within(-60, 60), within(-80, 80), within(-2, 90)):
        yield from ((n, a, a + count), (floor(n), a, a + count), (n + 2**31, a, a + count))
    # Many terms. The larger a sum, the coarser its rounding.
    for n in (-1, 0.1, 1e-20, 1234567.890123, 1e9 + 2 / 3, 2.0**31 + 2.0**20 + 0.5, INF):
        for first, count in draw(1, within(-(2.0**31), -1e6), within(1e4, 3e4)):
            yield mpfr(n), first, first + count
        yield mpfr(n), mpfr(-20000), mpfr(40)


def divisors():
    yield from PAIRS
    yield from doubles(draw(15, integer, integer)) + draw(15, within(-3e9, 3e9), within(-99, 99))
    # The limits of 32 bits.
    yield from ((x, mpfr(HIGHEST)) for x in with_neighbours(HIGHEST, 2**31, 2**31 + 1))


def with_flags(rows, flags=itertools.cycle((-1, 0, 0xFFFF, 1, 0x1FFFF, 0x7FFF, 0))):
    return [(*row, next(flags)) for row in rows]


def lines():
    """The flags alternate between both directions."""
    yield from with_flags(draw(20, *[within(-9, 9)] * 6) + draw(30, *[small_integral] * 6))
    yield from with_flags(draw(20, *[any_edge] * 6))


def parabolas():
    rows = draw(12, *[within(-9, 9)] * 9) + draw(20, *[any_edge] * 9)
    for unit in map(mpfr, ("1", "1e-160", "1e160")):
        rows += [[x * unit for x in row] for row in draw(15, *[small_integral] * 9)]
    for points in (
        *((1, 2, 4, 0, 0, 6), (0, 2, 4, 2, 0, 6), (1, 0, 2, 0, 2, 0), (1, 2, 3, 3, 0, -5)),
        *((1, 2, 3, 1, 0, 1), (1, 2, 3, 3, 5, 7), (1, 2, 3, 2, 5, 10), (1, 2, 3, 4, 4, 4)),
        *(("0.1", "0.2", "0.3", "0.2", "0.4", "0.6"), ("1e-20", 1, 2, 2, 0, 0)),
        ("1e-200", "2e-200", "3e-200", 1, 2, 3),
    ):
        rows += [tuple(map(mpfr, (*points, 5, 77, y))) for y in (6, -1, 0, -0.25)]
    for row in with_flags(rows):
        yield from (row, (*row[:-1], ~row[-1]))


def exponents():
    yield from EDGES + with_neighbours("1e-6", 709, 708)
    yield from map(mpfr, (-750, -745.5, -1074.5, 40, -40))
    yield from of_both_signs(*(mpfr(2) ** e for e in range(-60, 10, 10)))
    yield from of_both_signs(*(mpfr(10) ** e for (e,) in draw(6, within(-9, 2.8))))


def sines():
    yield from EDGES + of_both_signs(*(1 - mpfr(2) ** e for e in range(-53, 0, 8)))
    yield from (x for (x,) in draw(15, within(-1.1, 1.1)))


def logarithms():
    named = ((1, 2), (2, 1), (1000, 1000), (-1000, -1000), (1000, 0), (-800, -801), (0, -30))
    yield from doubles(named) + FEW_PAIRS
    yield from draw(15, within(-40, 40), within(-40, 40)) + draw(5, within(-1e6, 1e6), within(-1e6, 1e6))


def gammas():
    yield from EDGES + with_neighbours(*range(1, 7), 6.5, 1e-15, 4.4e-16)
    yield from map(mpfr, (-6.18, 4.5e-16, above(above(-2)), above(above(above(-2)))))
    yield from map(mpfr, (below(below(-1)), below(below(below(-1))), below(below(-2))))
    yield from map(mpfr, (*(i / 2 for i in range(-14, 8)), 100, 2.5e305, 2.56e305, 2.6e305))
    yield from (x for (x,) in draw(15, within(-6.6, 10)) + draw(5, within(0, 300)))
    yield from (mpfr(10) ** e for (e,) in draw(5, within(-16, 306)))


def decimals():
    named = (
        *(("0.5", "0.75"), (6, 4), (2.5, 7.5), ("0.1", 0.25), ("0.001", "0.0025"), ("-0.5", 0.75)),
        *(("1.2", "0.3"), ("1e-13", 1), ("1e-12", 1), ("1.1e-12", 1), ("1000000000.5", 1)),
        *(("0.29", "0.29"), ("0.29", 1), ("4.35", "1.45"), ("0.57", 1), ("123456.789", "0.001")),
        *((2.0**47 + 0.5, 3), (0, 2.0**51 + 1.5)),
    )
    yield from doubles(named) + FEW_PAIRS
    for scale in (mpfr(10) ** places for places in range(10)):
        yield from ((a / scale, b / scale) for a, b in draw(2, integer, integer))
    yield from draw(9, within(-9, 9), within(-9, 9)) + draw(5, within(0, 1e-9), small_integral)
    yield from draw(9, within(-1e15, 1e16), within(-1e4, 1e4))


def powers():
    yield from FEW_PAIRS + doubles(((2, 10), (10, -1), (-2, 3), (10, 308.5), (10, -330)))
    yield from draw(10, within(0, 30), within(-20, 20))


OWN = {
    "Pi": (lambda: of_bits(0x400921FB54442D11), [()]),
    "sqr": (reference.root, ones(*EDGES) + draw(9, any_double)),
    "Min": (reference.minimum, FEW_PAIRS),
    "Max": (reference.maximum, FEW_PAIRS),
    "FSgn": (reference.sign, ones(*EDGES)),
    "FSign": (reference.with_sign, FEW_PAIRS),
    "Fact": (reference.factorial, [(n,) for n in (LOWEST, HIGHEST, *range(-1, 30), *range(165, 174))]),
    "Cnk": (reference.coefficient, coefficients()),
    "SumCnk": (reference.coefficient_sum, sums()),
    "Mod": (reference.remainder, TWO_INTEGERS),
    "ModDbl": (reference.remainder_of_doubles, PAIRS + draw(20, within(-9, 9), within(-2, 2))),
    "LCD": (reference.divisor, TWO_INTEGERS),
    "LCD2": (reference.divisor_of_doubles, divisors()),
    "IsLong": (reference.is_long, ones(*EDGES, *nearly_integral())),
    "IsLongP": (reference.is_long_within, distances()),
    "IsEven": (reference.is_even, ones(*EDGES, *nearly_integral())),
    "IsEvenLng": (reference.is_even_integer, [(n,) for n in INTEGERS]),
    "Int05": (reference.away_from_zero, roundings()),
    "Int05c": (reference.to_closest, roundings()),
    "Int05LU": (reference.down_or_up, directed_roundings()),
    "LinearInterpol": (reference.linear, lines()),
    "QuadraticInterpol": (reference.quadratic, parabolas()),
}
PLATFORM = {
    "Log10": (lambda x: reference.call("log10", x), ones(*EDGES, 1000) + draw(5, any_double)),
    "spow": (lambda x, y: reference.call("pow", x, y), powers()),
    "expm1x": (reference.exp_minus_one, ones(*exponents())),
    "ASin": (reference.arcsine, ones(*sines())),
    "LogExpAPlusExpB": (reference.log_of_sum, logarithms()),
    "GammaLn": (reference.log_gamma, ones(*gammas())),
    "LCDDbl": (reference.divisor_of_decimals, decimals()),
}


def lines_of(routines):
    for name, (routine, rows) in routines.items():
        yield name + ":"
        for arguments in {tuple(map(shown, row)): row for row in rows}.values():
            results = routine(*arguments)
            results = results if isinstance(results, tuple) else (results,)
            yield " ".join(map(shown, (*arguments, *results)))


def lines_of_calls():
    for name, made in reference.calls.items():
        yield name + ":"
        for arguments, result in made.values():
            yield " ".join(map(shown, (*arguments, result)))


if len(sys.argv) != 2:
    sys.exit(__doc__)
folder = pathlib.Path(sys.argv[1])
for file, lines in (
    ("own.txt", lines_of(OWN)),
    ("platform.txt", lines_of(PLATFORM)),
    ("functions.txt", lines_of_calls()),
):
    (folder / file).write_text("".join(line + "\n" for line in lines), "ascii")
