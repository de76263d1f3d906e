#!/usr/bin/env python3
"""Prints docs/accuracy.md: the pitch change that a setting really makes at a sample rate.

    python3 docs/make_accuracy.py > docs/accuracy.md

Everything is computed here from the rule itself, in 50 digits, and nothing is asked of lumora, so
that the page can be held against the program.
"""
from decimal import ROUND_HALF_EVEN, Decimal, getcontext
from fractions import Fraction

getcontext().prec = 50

RATES = [8000, 11025, 16000, 22050, 32000, 44100, 48000, 88200, 96000, 192000]
STEPS = [Fraction(1, 64), Fraction(1, 32), Fraction(1, 16), Fraction(1, 8), Fraction(1, 4),
         Fraction(1, 2), Fraction(1), Fraction(6)]

HEAD = """\
# What a setting really changes

The engine works on blocks of about 10 milliseconds. A block of N samples is stretched to a whole
number K of samples and resampled back to N, so the pitch moves by exactly K / N, and the finest
step is one sample in a block: 1200 log2((N + 1) / N) cents. A setting in between is rounded to the
nearest step, and one below half a step changes nothing at all. Higher rates have longer blocks and
so finer steps: a recording that needs a finer change than its rate allows can be brought to 96,000
or 192,000 Hz first.

`lumora pitch` says in its closing line what it has made of the setting, and `--json` gives it as
`effective_cents`.

In the tables, N = CInt(rate x 220 / 22050) and K = Round(N x 2^(tones / 6)), both to the nearest
and half to even; six tones make an octave, a tone is 200 cents. **Bold**: the pitch stays as it is.
Made by `docs/make_accuracy.py`; edit that, not this page."""


def rounded(value):
    """To the nearest whole number, half to even."""
    return int(value.to_integral_value(ROUND_HALF_EVEN))


def block_length(rate):
    return rounded(Decimal(rate * 220) / 22050)


def stretched_length(block, tones):
    octaves = Decimal(tones.numerator) / (tones.denominator * 6)
    return rounded(block * Decimal(2) ** octaves)


def cents(block, stretched):
    return 1200 * (Decimal(stretched) / block).ln() / Decimal(2).ln()


def signed(value, places):
    text = f"{value:+.{places}f}"
    return text[1:] if set(text[1:]) <= set("0.") else text


def cell(rate, tones):
    block = block_length(rate)
    stretched = stretched_length(block, tones)
    return "**0.00**" if stretched == block else signed(cents(block, stretched), 2)


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---:|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def steps_table():
    rows = [(f"{rate:,}", str(block), f"{cents(block, block + 1):.2f}")
            for rate, block in ((rate, block_length(rate)) for rate in RATES)]
    return table(("Rate in Hz", "Block N", "Finest step in cents"), rows)


def settings_table(sign):
    head = ("Tones", "Asked", *(f"{rate:,} Hz" for rate in RATES))
    rows = [(f"{'+' if sign > 0 else '-'}{step}", signed(float(sign * step * 200), 3),
             *(cell(rate, sign * step) for rate in RATES)) for step in STEPS]
    return table(head, rows)


if __name__ == "__main__":
    print(HEAD)
    print("\n## Steps\n\n" + steps_table())
    print("\n## Up: cents made\n\n" + settings_table(1))
    print("\n## Down: cents made\n\n" + settings_table(-1))
