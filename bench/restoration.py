#!/usr/bin/env python3
"""Prints, as a table, how well over-driven sound is rebuilt.

    bench/restoration.py BUILD/bench/over_filter_curve

Known signals are hard-limited at 0.8 of full scale and stored with 16 bits; the figures are the
error inside the limited stretches, relative to the true signal there, in dB: less is better. Beside
the over-range filter stands ffmpeg's adeclip (package ffmpeg), with its defaults and with the best
of several thresholds for each file.
"""
import array
import cmath
import math
import pathlib
import random
import subprocess
import sys
import tempfile
import wave

LIMIT = 26215 / 32768  # the lowest 16-bit value above 0.8
SECONDS = 2
NOISE = 0.003  # of the peak: without it nothing would be easier to predict
THRESHOLDS = (1, 2, 5, 20, 50)  # of adeclip, whose default is 10


def tones(rate, seed=1):
    """Notes of four to ten harmonics that swell and fade, two at a time."""
    chance = random.Random(seed)
    sound = [0.0] * (rate * SECONDS)
    for start in range(0, 4 * SECONDS):
        note = 110.0 * 2 ** (chance.choice((0, 3, 5, 7, 10, 12, 15, 19)) / 12)
        partials = [(k, chance.uniform(0.5, 1.0) / k, chance.uniform(0, 2 * math.pi))
                    for k in range(1, chance.randint(4, 10) + 1)]
        length = rate // 2
        for i in range(min(length, len(sound) - start * rate // 4)):
            swell = math.sin(math.pi * i / length) ** 0.5
            turn = 2 * math.pi * note * i / rate
            sound[start * rate // 4 + i] += swell * sum(
                level * math.sin(k * turn + phase) for k, level, phase in partials)
    return sound


def two_sides(rate):
    """Other tones on the left than on the right."""
    return [x for frame in zip(tones(rate, 4), tones(rate, 5)) for x in frame]


def speech(rate):
    """Vowels: glottal pulses of a wandering pitch through three formant resonators."""
    chance = random.Random(2)
    vowels = ((730, 1090, 2440), (270, 2290, 3010), (300, 870, 2240), (530, 1840, 2480),
              (570, 840, 2410))
    source = [0.0] * (rate * SECONDS)
    at = 0.0
    while at < len(source) - rate // 100:
        pitch = 120 * (1 + 0.15 * math.sin(at / rate * 3)) * chance.uniform(0.98, 1.02)
        opening = int(0.4 * rate / pitch)
        for i in range(min(opening, len(source) - int(at))):
            source[int(at) + i] += math.sin(math.pi * i / opening) ** 2 * (1 - 2 * i / opening)
        at += rate / pitch
    sound = source
    for formant in range(3):
        y1 = y2 = 0.0
        filtered = []
        for i, x in enumerate(sound):
            vowel = vowels[i * 4 // rate % len(vowels)]
            pole = cmath.rect(math.exp(-math.pi * (60 + 40 * formant) / rate),
                              2 * math.pi * vowel[formant] / rate)
            y1, y2 = x + 2 * pole.real * y1 - abs(pole) ** 2 * y2, y1
            filtered.append(y1)
        sound = filtered
    syllable = rate // 4
    return [x * math.sin(math.pi * (i % syllable) / syllable) ** 0.5
            for i, x in enumerate(sound)]


def write(path, sound, rate, channels):
    with wave.open(str(path), "wb") as file:
        file.setparams((channels, 2, rate, 0, "NONE", None))
        file.writeframes(array.array("h", (round(x * 32768) for x in sound)).tobytes())


def doubles(data):
    values = array.array("d")
    values.frombytes(data)
    return values


def error_db(true, made, places):
    wrong = sum((true[i] - made[i]) ** 2 for i in places)
    return 10 * math.log10(wrong / sum(true[i] ** 2 for i in places))


def with_one_gain(true, made):
    """The whole file times the one number that brings it closest to the true signal."""
    gain = sum(t * m for t, m in zip(true, made)) / sum(m * m for m in made)
    return [gain * m for m in made]


def by_filter(program, path):
    out = path.with_suffix(".f64")
    subprocess.run([program, path, out], check=True)
    pairs = doubles(out.read_bytes())
    return pairs[::2], [y * gain for y, gain in zip(pairs[::2], pairs[1::2])]


def by_adeclip(path, options=""):
    run = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-af", "adeclip" + options,
                          "-f", "f64le", "-c:a", "pcm_f64le", "-"],
                         check=True, stdout=subprocess.PIPE)
    return doubles(run.stdout)


def row(program, folder, name, sound, rate, channels, over):
    peak = max(map(abs, sound))
    chance = random.Random(3)
    true = [(x / peak + chance.gauss(0, NOISE)) * LIMIT * 10 ** (over / 20) for x in sound]
    path = folder / "limited.wav"
    limited = [max(-LIMIT, min(LIMIT, x)) for x in true]
    write(path, limited, rate, channels)
    places = [i for i, x in enumerate(true) if abs(x) > LIMIT]
    made, curve_undone = by_filter(program, path)
    figures = [error_db(true, limited, places),
               error_db(true, with_one_gain(true, made), places),
               error_db(true, curve_undone, places)]
    peer = [error_db(true, by_adeclip(path), places)]
    peer += [error_db(true, by_adeclip(path, f"=t={t}"), places) for t in THRESHOLDS]
    figures += [peer[0], min(peer)]
    print(f"| {name}, {over} dB over | {100 * len(places) / len(true):.1f} % | "
          + " | ".join(f"{x:.1f}" for x in figures) + " |")


def main(program):
    print("| signal | limited | before | after, one gain | after, gain curve divided out | "
          "adeclip, defaults | adeclip, best threshold |\n|---|---:|---:|---:|---:|---:|---:|")
    with tempfile.TemporaryDirectory() as folder:
        for name, make, rate, channels in (
                ("harmonic tones, 44.1 kHz", tones, 44100, 1),
                ("other tones left than right, 44.1 kHz", two_sides, 44100, 2),
                ("speech-like, 44.1 kHz", speech, 44100, 1),
                ("speech-like, 22.05 kHz", speech, 22050, 1)):
            sound = make(rate)
            for over in (1, 3, 6, 10):
                row(program, pathlib.Path(folder), name, sound, rate, channels, over)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
