#!/usr/bin/python3
"""Draws what a run does to a sound: one spectrogram above the other, on one scale of colours.

make_spectrogram.py BEFORE.wav AFTER.wav "TITLE OF AFTER" OUT.png

Needs the Debian packages python3-matplotlib and python3-numpy. docs/pictures/phrase.png is
    ./run pitch examples/phrase.wav higher.wav --tones +2
    docs/pictures/make_spectrogram.py examples/phrase.wav higher.wav \\
        "lumora pitch phrase.wav higher.wav --tones +2" docs/pictures/phrase.png
"""
import sys
import wave

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
import numpy as np

WINDOW = 4096  # samples: 93 ms at 44,100 Hz, so that the partials of two strings stand apart
STEP = 256
LOWEST_HZ, HIGHEST_HZ = 100, 4000
RANGE_DB = 60


def read_mono(name):
    """The rate and the mean of the channels of a 16-bit WAVE file, full scale being 1."""
    with wave.open(name) as file:
        raw = np.frombuffer(file.readframes(file.getnframes()), dtype="<i2")
        return file.getframerate(), raw.reshape(-1, file.getnchannels()).mean(axis=1) / 32768


def spectrogram(samples):
    """Levels in dB relative to a full-scale sine, frequency by time; frames are centred."""
    padded = np.pad(samples, WINDOW // 2)
    frames = np.lib.stride_tricks.sliding_window_view(padded, WINDOW)[::STEP]
    taper = np.hanning(WINDOW)
    magnitude = np.abs(np.fft.rfft(frames * taper, axis=1)) * 2 / taper.sum()
    return 20 * np.log10(magnitude.T + 1e-9)


def draw(axes, name, title, top_db=None):
    rate, samples = read_mono(name)
    levels = spectrogram(samples)
    top_db = levels.max() if top_db is None else top_db
    times = np.arange(levels.shape[1]) * STEP / rate
    frequencies = np.arange(levels.shape[0]) * rate / WINDOW
    shown = frequencies <= HIGHEST_HZ * 1.02
    mesh = axes.pcolormesh(times, frequencies[shown], levels[shown], cmap="magma",
                           vmin=top_db - RANGE_DB, vmax=top_db, shading="nearest", rasterized=True)
    axes.set_yscale("log")
    axes.set_ylim(LOWEST_HZ, HIGHEST_HZ)
    axes.set_yticks([125, 250, 500, 1000, 2000, 4000],
                    ["125", "250", "500", "1k", "2k", "4k"])
    axes.minorticks_off()
    axes.set_ylabel("frequency in Hz")
    axes.set_title(title, loc="left", fontsize=12, family="monospace")
    return mesh, top_db


def main():
    before, after, title_after, out = sys.argv[1:]
    figure, (above, below) = plt.subplots(2, 1, figsize=(10, 6.4), sharex=True,
                                          layout="constrained")
    mesh, top_db = draw(above, before, before.rpartition("/")[2])
    draw(below, after, title_after, top_db)
    below.set_xlabel("seconds")
    figure.colorbar(mesh, ax=[above, below], label="level in dB", pad=0.01)
    figure.savefig(out, dpi=100, metadata={"Software": None})


if __name__ == "__main__":
    main()
