#!/usr/bin/env python3
"""Makes music-like sound to measure with: make_music.py OUT.wav SECONDS

44,100 Hz, 16-bit stereo; chords of plucked tones with a little noise, never silent, the same bytes
at every call. Twenty seconds are made, the rest repeats them.
"""
import array
import math
import random
import sys
import wave

RATE = 44100
PHRASE_SECONDS = 20
CHORDS = [(110.0, 220.0, 277.2, 329.6), (146.8, 220.0, 293.7, 370.0),
          (123.5, 246.9, 311.1, 370.0), (98.0, 196.0, 246.9, 293.7)]


def phrase():
    chance = random.Random(7)
    frames = array.array("h", bytes(4 * RATE * PHRASE_SECONDS))
    for beat in range(2 * PHRASE_SECONDS):
        chord = CHORDS[beat // 4 % len(CHORDS)]
        partials = [(f * k * 2 * math.pi / RATE, 0.16 / k, (0.3 + 0.1 * n) / (k + 1))
                    for n, f in enumerate(chord) for k in (1, 2, 3)]
        for i in range(RATE // 2):
            fade = 0.25 + 0.75 * math.exp(-6.0 * i / RATE)
            left = right = chance.uniform(-0.01, 0.01)
            for omega, level, pan in partials:
                value = level * math.sin(omega * i) * fade
                left += value * (1 - pan)
                right += value * pan
            at = 2 * (beat * (RATE // 2) + i)
            frames[at] = int(max(-1, min(1, left)) * 32000)
            frames[at + 1] = int(max(-1, min(1, right)) * 32000)
    return frames.tobytes()


def main():
    name, seconds = sys.argv[1], int(sys.argv[2])
    sound = phrase()
    with wave.open(name, "wb") as file:
        file.setnchannels(2)
        file.setsampwidth(2)
        file.setframerate(RATE)
        left = seconds * RATE * 4
        while left > 0:
            file.writeframes(sound[:left])
            left -= len(sound)


main()
