#!/usr/bin/env python3
"""Makes examples/phrase.wav: five seconds of a plucked string, 44,100 Hz, 16 bits, stereo.

make_phrase.py [OUT]

Each note is a burst of noise that circulates in a delay line as long as its period and loses a
little of its treble on every round, as a string does. The same samples come out on every run.
"""
import array
import pathlib
import random
import sys
import wave

RATE = 44100
SECONDS = 5.0
PEAK = 10 ** (-3 / 20)  # -3 dBFS
FADE_SECONDS = 0.4      # at the end, so that the last chord does not break off

SOFTNESS = 0.35         # of the finger: 1 plucks with all treble that there is
DAMPING = 0.2           # treble lost on a round: 0 none, 0.5 most
RING_SECONDS = 4.0      # until a string is down by 60 dB

# Seconds from the start, semitones from A at 220 Hz, loudness, place from 0 (left) to 1 (right).
NOTES = [
    (0.05, -7, 1.00, 0.35), (0.05, 0, 0.55, 0.50),
    (0.35, 5, 0.70, 0.60), (0.65, 9, 0.75, 0.70), (0.95, 12, 0.85, 0.55),
    (1.25, -10, 0.95, 0.35), (1.25, 14, 0.80, 0.60), (1.55, 9, 0.60, 0.70),
    (1.85, 5, 0.65, 0.50),
    (2.15, -5, 0.95, 0.40), (2.15, 10, 0.80, 0.60), (2.45, 7, 0.60, 0.70),
    (2.75, 4, 0.65, 0.50), (2.95, 7, 0.60, 0.65),
    (3.15, -7, 1.00, 0.35), (3.19, 0, 0.60, 0.45), (3.23, 5, 0.60, 0.55),
    (3.27, 9, 0.65, 0.62), (3.31, 17, 0.70, 0.70),
]

# A small room: (milliseconds, gain) of what each ear hears again, from its own and the other side.
ECHOES = {
    "left": ([(11.3, 0.20), (29.1, 0.13), (47.9, 0.08)], [(17.7, 0.14), (37.3, 0.10)]),
    "right": ([(13.1, 0.20), (31.7, 0.13), (53.3, 0.08)], [(19.9, 0.14), (41.3, 0.10)]),
}


def excitation(length, rng):
    """One period of noise without offset, softened twice, plucked at a fifth of the string."""
    soft = [rng.uniform(-1.0, 1.0) for _ in range(length)]
    for _ in range(2):
        last = soft[-1]
        for i, value in enumerate(soft):
            last += SOFTNESS * (value - last)
            soft[i] = last
    comb = max(1, length // 5)
    plucked = [soft[i] - soft[i - comb] for i in range(length)]
    mean = sum(plucked) / length
    return [value - mean for value in plucked]


def pluck(frequency, count, rng):
    """`count` samples of a string at `frequency` Hz."""
    period = RATE / frequency - DAMPING  # the loss of treble delays by as much
    length = int(period - 0.3)           # leaves 0.3 to 1.3 samples to the all-pass, where it is good
    rest = period - length
    allpass = (1.0 - rest) / (1.0 + rest)
    kept = 0.001 ** (1.0 / (frequency * RING_SECONDS))
    line = excitation(length, rng)
    sound = array.array("d", bytes(8 * count))
    last_in = last_dull = last_out = 0.0
    place = 0
    for i in range(count):
        value = line[place]
        sound[i] = value
        dull = kept * (value + DAMPING * (last_in - value))
        last_in = value
        last_out = allpass * (dull - last_out) + last_dull
        last_dull = dull
        line[place] = last_out
        place = place + 1 if place + 1 < length else 0
    return sound


def dry_mix():
    """The notes in their places, as a left and a right channel."""
    count = round(RATE * SECONDS)
    left, right = [0.0] * count, [0.0] * count
    rng = random.Random(1)
    for start_seconds, semitones, gain, place in NOTES:
        start = round(RATE * start_seconds)
        sound = pluck(220.0 * 2 ** (semitones / 12), count - start, rng)
        gain_left, gain_right = gain * (1 - place) ** 0.5, gain * place**0.5
        for i, value in enumerate(sound, start):
            left[i] += gain_left * value
            right[i] += gain_right * value
    return left, right


def with_echoes(own, other, echoes):
    mixed = own[:]
    for source, taps in zip((own, other), echoes):
        for milliseconds, gain in taps:
            delay = round(RATE * milliseconds / 1000)
            late = [0.0] * delay + source[:-delay]
            mixed = [a + gain * b for a, b in zip(mixed, late)]
    return mixed


def main():
    default = pathlib.Path(__file__).with_name("phrase.wav")
    out = sys.argv[1] if len(sys.argv) > 1 else str(default)
    dry_left, dry_right = dry_mix()
    left = with_echoes(dry_left, dry_right, ECHOES["left"])
    right = with_echoes(dry_right, dry_left, ECHOES["right"])
    scale = 32767 * PEAK / max(max(map(abs, left)), max(map(abs, right)))
    fade = RATE * FADE_SECONDS
    samples = array.array("h")
    for i, pair in enumerate(zip(left, right)):
        gain = scale * min(1.0, (len(left) - i) / fade)
        samples.extend(round(gain * value) for value in pair)
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(out, "wb") as file:
        file.setnchannels(2)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


if __name__ == "__main__":
    main()
