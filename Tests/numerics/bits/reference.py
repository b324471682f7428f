"""Reference implementations of the numeric routines. Each operation is rounded to a double."""
import struct

import gmpy2
from gmpy2 import floor, mpfr, sqrt, trunc

gmpy2.set_context(gmpy2.ieee(64))

NAN = gmpy2.nan()
INF = gmpy2.inf()
LOWEST, HIGHEST = -(2**31), 2**31 - 1


def of_bits(bits):
    return mpfr(struct.unpack(">d", struct.pack(">Q", bits))[0])


def bits_of(x):
    return struct.unpack(">Q", struct.pack(">d", float(x)))[0]


EXTREME = of_bits(0x7FEFFFFFFFFFFFE2)
TINY = of_bits(1)
TOLERANCE = of_bits(0x3D719799812DEA11)  # 1e-12
HALF_PI = of_bits(0x3FF921FB54442D11)


def above(x):
    return gmpy2.next_above(mpfr(x))


def below(x):
    return gmpy2.next_below(mpfr(x))


def trunc_lng(x):
    return int(trunc(x)) if -2147483649 < x < 2147483648 else LOWEST


def wrapped(n):
    return (n - LOWEST) % 2**32 + LOWEST


def host_bool(condition):
    return -1 if condition else 0


def is_set(flag):
    return flag % 0x10000 != 0


def is_true(flag):
    return flag % 0x10000 == 0xFFFF


def root(x):
    return -EXTREME if 0 > x else sqrt(x)


def sign(x):
    return mpfr(0) if x == 0 else abs(x) / x


def minimum(a, b):
    return a if a < b else b


def maximum(a, b):
    return a if a > b else b


def with_sign(a, b):
    return -abs(a) if b < 0 else abs(a)


def factorial(n):
    r, i = mpfr(1), mpfr(2)
    while i <= n and r < INF:
        r, i = r * i, i + 1
    return r


def coefficient(n, k):
    if k > n:
        return mpfr(0)
    if k == n or k == 0:
        return mpfr(1)
    m, q = trunc_lng(n - k), k
    if m > k:
        m = trunc_lng(k)
        q = n - m
    r, i = 1 + q, mpfr(2)
    while i <= m and r < INF:
        r, i = ((q + i) * r) / i, i + 1
    return r


def coefficient_sum(n, first, last):
    total, k = mpfr(0), mpfr(trunc_lng(first))
    while last >= k and k <= HIGHEST:
        total, k = total + coefficient(n, k), k + 1
    return total


def remainder(a, b):
    if b == 0:
        return a
    quotient = trunc_lng(floor(mpfr(a) / mpfr(b)))
    return wrapped(a - wrapped(quotient * b))


def remainder_of_doubles(a, b):
    return a - floor(a / b) * b


def divisor(a, b):
    while b != 0:
        a, b = b, remainder(a, b)
    return wrapped(abs(a))


def divisor_of_doubles(a, b):
    while b != 0:
        a, b = b, mpfr(remainder(trunc_lng(a), trunc_lng(b)))
    return abs(a)


def is_nearly_integral(t):
    return abs(t - gmpy2.rint(t)) <= abs(t) * mpfr(2) ** -48


def places(t):
    count = mpfr(0)
    while abs(gmpy2.frac(t)) > TOLERANCE and not is_nearly_integral(t):
        count, t = count + 1, t * 10
    return count


def to_integral(t):
    return gmpy2.rint(t) if is_nearly_integral(t) else trunc(t)


def divisor_of_decimals(a, b):
    most = max(places(a), places(b))
    scale = call("pow", mpfr(10), most)
    common = divisor_of_doubles(to_integral(a * scale), to_integral(b * scale))
    return call("pow", mpfr(10), -most) * common


def is_long_within(x, tolerance):
    fraction = abs(gmpy2.frac(x))
    rest = 1 - fraction
    return host_bool(not (rest if rest < fraction else fraction) > tolerance)


def is_long(x):
    return is_long_within(x, TOLERANCE)


def is_even(x):
    half = x * mpfr(0.5)
    return host_bool(mpfr(2) ** -52 > abs(floor(half) - half))


def is_even_integer(n):
    return is_even(mpfr(n))


def away_from_zero(v, half):
    m, s = abs(v), sign(v)
    if floor(m) == m:
        return s * m
    n = floor(m + 1)
    if not is_set(half):
        return s * n
    d = (trunc_lng(m + 1) - m) + mpfr(-0.5)
    return s * n if TOLERANCE > d else s * (n + mpfr(-0.5))


def to_closest(v, half):
    m, s = abs(v), sign(v)
    if floor(m) == m:
        return s * m
    n = floor(of_bits(0x3FDFFFFFFFFFFFEE) + m)  # 0.499999999999999
    t = m - n
    if not is_set(half) or TOLERANCE > mpfr(-0.25) + abs(t):
        return s * n
    return s * (n + mpfr(0.5) if t > 0 else n - mpfr(0.5))


def down_or_up(v, half, lower):
    f = floor(v)
    if f == v:
        return v
    g = mpfr(0.5) + f
    if is_true(lower):
        return g if is_set(half) and g <= v else f
    return g if is_set(half) and g >= v else floor(1 + v)


def linear(x1, x2, y1, y2, x, y, forward):
    """The status, x and y after the call."""
    if x1 == x2:
        return -1, x1, (y1 + y2) * mpfr(0.5)
    a = (y2 - y1) / (x2 - x1)
    b = (x2 * y1 - x1 * y2) / (x2 - x1)
    if is_true(forward):
        return 0, x, b + a * x
    return (-1, x, y) if a == 0 else (0, (y - b) / a, y)


def quadratic(x1, x2, x3, y1, y2, y3, x, second, y, forward):
    """The status, x, xSecond and y after the call."""
    if x2 == x3 or x1 == x2 or x1 == x3:
        return -1, x, second, y
    points = [(x1, y1), (x2, y2), (x3, y3)]
    turns = [[points[(i + j) % 3] for j in range(3)] for i in range(3)]

    def first_turn(divides):
        return next((turn for turn in turns if divides(turn) < 0 or divides(turn) > 0), turns[2])

    def d(turn):
        (xi, _), (xj, _), (xk, _) = turn
        return (xi + xj) * xk - (xi + xk) * xj

    turn = first_turn(d)
    (xi, yi), (xj, yj), (xk, yk) = turn
    factor = (1 / d(turn)) / ((xj - xi) * (xk - xi))
    p = ((xj * xj) * yi - (xi * xi) * yj) * ((xk - xi) * xk)
    q = ((xi * xi) * yk - (xk * xk) * yi) * ((xj - xi) * xj)
    c = (q + p) * factor

    (xi, yi), (xj, yj), _ = first_turn(lambda turn: turn[0][0] * turn[1][0])
    b = (((xj * xj) * yi + ((xi * xi) - (xj * xj)) * c) - (xi * xi) * yj) / ((xi * xj) * (xj - xi))

    xi, yi = points[1] if x1 * x1 == 0 else points[0]
    a = ((yi - xi * b) - c) / (xi * xi)
    if is_true(forward):
        return 0, x, second, c + (b + a * x) * x
    if a == 0:
        return (-1, x, second, y) if b == 0 else (0, (y - c) / b, second, y)
    s = root((c - y) * (-4 * a) + b * b)
    p, q = (-b - s, s - b) if a > 0 else (s - b, -b - s)
    return 0, (p * mpfr(0.5)) / a, (mpfr(0.5) * q) / a, y


def exp_minus_one(x):
    if x > 709:
        return EXTREME
    if abs(x) > of_bits(0x3EB0C6F7A0B5ED8D):  # 1e-6
        return call("exp", x) + -1
    return (mpfr(0.5) * x) * x + x


def arcsine(x):
    if x == 0:
        return mpfr(0)
    if abs(x) == 1:
        return x * HALF_PI
    return call("atan", x / root((1 - x) * (x + 1)))


def log_of_sum(a, b):
    larger = b if b > a else a
    return call("log", call("exp", -abs(a - b)) + 1) + larger


LANCZOS = [
    of_bits(bits)
    for bits in (
        0x3E8645E569E1DBC8,
        0x3EE4D5C75C187EE3,
        0xBFC1BCB213BB7E41,
        0x402903C27E40123E,
        0xC06613AE519C9497,
        0x40881A9661D3740D,
        0xC093AC8E8ED41526,
        0x40852429B6C30AF7,
    )
]


def log_gamma(x):
    if x == 1:
        return mpfr(0)
    if mpfr(-6.5) > x:
        return -EXTREME
    d, s = 7 + x, mpfr(0)
    for a in LANCZOS:
        s, d = s + a / d, d + -1
    s = s + of_bits(0x3FEFFFFFFFFFEF0D)
    u = (call("log", s) + of_bits(0x3FED67F1C864BEB4)) - (mpfr(6.5) + x)
    return call("log", mpfr(6.5) + x) * (x + mpfr(-0.5)) + u


# The functions of the platform, and their calls with the results.
FUNCTIONS = {
    "atan": gmpy2.atan,
    "exp": gmpy2.exp,
    "log": gmpy2.log,
    "log10": gmpy2.log10,
    "pow": lambda x, y: x**y,
}
calls = {name: {} for name in FUNCTIONS}


def shown(value):
    if isinstance(value, int):
        return str(value)
    if value != value:
        return "nan"
    return f"{bits_of(value):016x}".rstrip("0") or "0"


def call(name, *arguments):
    made = arguments, FUNCTIONS[name](*arguments)
    return calls[name].setdefault(tuple(map(shown, arguments)), made)[1]
