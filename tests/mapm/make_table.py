#!/usr/bin/env python3
"""Writes DecimalTable.inc: arithmetic on generated numbers, with the hash of the exact result's text.

The operands are made from a seed by `digits`, which DecimalTableTest.cpp repeats; the results come from Python's
integers and its decimal module.
"""
import decimal
import random
import sys
from decimal import ROUND_DOWN, ROUND_HALF_UP, Decimal

decimal.setcontext(decimal.Context(prec=100_000, Emax=10**9, Emin=-10**9))
sys.set_int_max_str_digits(0)
MASK = 2**64 - 1


def digits(seed, count):
    """Every fourth number has only zeros and nines; the first digit is never 0."""
    state, text = seed, []
    for _ in range(count):
        state = (state * 6364136223846793005 + 1442695040888963407) & MASK
        digit = (state >> 33) % 10
        text.append(digit if seed % 4 else (0, 9)[digit % 2])
    text[0] = text[0] or 9
    return text


def number(seed, count, exponent):
    return Decimal((seed // 4 % 2, digits(seed, count), exponent))


def kept(x, count, mode):
    """The first `count` significant digits."""
    return x.quantize(Decimal(1).scaleb(x.adjusted() - count + 1), rounding=mode) if x else x


def quotient(a, b, count, mode):
    """a / b, never rounded twice: integer division and a sticky digit."""
    x, y = (int(''.join(map(str, n.as_tuple().digits))) for n in (a, b))
    shift = max(0, count + len(str(y)) - len(str(x)) + 2)
    whole, rest = divmod(x * 10**shift, y)
    exponent = a.as_tuple().exponent - b.as_tuple().exponent - shift
    exact = Decimal(whole * 10 + (rest > 0)).scaleb(exponent - 1)
    return kept(exact.copy_sign(-1 if a.is_signed() != b.is_signed() else 1), count, mode)


def divide(a, b, places):
    count = places + max(0, a.adjusted() - b.adjusted())
    if places < 250:
        return quotient(a, b, count, ROUND_DOWN)
    return kept(a * quotient(Decimal(1), b, count + 8, ROUND_HALF_UP), count, ROUND_HALF_UP)


OPERATIONS = {
    '+': lambda a, b, places: a + b,
    '-': lambda a, b, places: a - b,
    '*': lambda a, b, places: a * b,
    '/': divide,
    'i': lambda a, b, places: a // b,
    '%': lambda a, b, places: a % b,
    'r': lambda a, b, places: kept(a, places + 1, ROUND_HALF_UP),
}


def text(x):
    """d.dddE+n, all digits."""
    if not x:
        return '0.0E+0'
    mantissa = ''.join(map(str, x.as_tuple().digits)).rstrip('0')
    return '%s%s.%sE%+d' % ('-' if x < 0 else '', mantissa[0], mantissa[1:] or '0', x.adjusted())


def fnv(s):
    value = 14695981039346656037
    for byte in s.encode():
        value = ((value ^ byte) * 1099511628211) & MASK
    return value


def main():
    rng = random.Random(20)
    short = [1, 2, 8, 9, 15, 16, 17, 30, 31, 32, 33, 64]
    middle = [94, 95, 96, 97, 100, 192, 250, 640]
    long = [1000, 1500, 2999, 3000]
    rows = [('/', (5, 30, 0), (7, 700, 0), 9000)]  # a reciprocal much longer than its divisor
    for row in range(154):
        operation = '+-*/+-*/i%r'[row % 11]
        pool = short if row % 3 == 0 else short + middle if row % 3 == 1 else middle + long
        a, b = ((rng.randrange(1000), rng.choice(pool), rng.choice([0, 0, -1, 7, -rng.randrange(700)])) for _ in '12')
        places = rng.choice([1, 4, 30, 100, 249, 250, 251, 1000])
        rows.append((operation, a, b, places))
    table = []
    for operation, a, b, places in rows:
        result = OPERATIONS[operation](number(*a), number(*b), places)
        table.append("{'%s',{%d,%d,%d},{%d,%d,%d},%d,0x%x}," % (operation, *a, *b, places, fnv(text(result))))
    print('// Made by make_table.py.')
    for at in range(0, len(table), 2):
        print(' '.join(table[at:at + 2]))


main()
