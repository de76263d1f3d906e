#!/usr/bin/env python3
"""Times lumora beside its peers: peers.py [--runs N] LUMORA COPY_SAMPLES FOLDER

Whole processes, processor seconds (user and system) as the kernel accounts for them, every tool
once in each round, medians over the rounds; the ratio is the median of the ratios within a round,
so that a machine whose speed drifts does not tilt it. What is slow runs once, and its ratio is to
lumora's median. Prints tables in Markdown. FOLDER holds the
sound and the results while it runs. Called by bench/peers.sh.
"""
import argparse
import math
import os
import shutil
import statistics
import subprocess
import sys
from pathlib import Path

SECONDS = 300
SLOW = 1.8  # seconds; what takes longer is run once, for its ratio needs no second digit
TONES = ["+1", "-1", "+6", "-6"]


def tools(lumora, copy, source, result, tones):
    whole = int(tones)
    ratio = 2 ** (whole / 6)
    pitch = f"asetrate=44100*{ratio:.9f},aresample=44100,atempo={1 / ratio:.9f}"
    return {
        "lumora pitch": [lumora, "pitch", source, result, "--tones", tones, "--force"],
        "plain copy of the samples": [copy, source, result],
        "soundstretch -quick -naa": ["soundstretch", source, result, f"-pitch={2 * whole}",
                                     "-quick", "-naa"],
        "soundstretch": ["soundstretch", source, result, f"-pitch={2 * whole}"],
        "sox pitch": ["sox", source, result, "pitch", str(200 * whole)],
        "ffmpeg asetrate, atempo": ["ffmpeg", "-v", "error", "-y", "-threads", "1", "-i", source,
                                    "-af", pitch, result],
        "rubberband --fast": ["rubberband", "--fast", "-q", "-p", str(2 * whole), source, result],
    }


def run(command):
    """Processor seconds of one process and those it waited for."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(command)} ended with status {process.returncode}")
    return usage.ru_utime + usage.ru_stime


def peak_memory(command, report):
    """Peak memory of a process in MiB. time(1) is asked because a process counts the memory of
    the one that started it as its own, and ours is larger than lumora's."""
    run(["/usr/bin/time", "-f", "%M", "-o", str(report), *command])
    return int(report.read_text()) / 1024


def check_length(name, source, result):
    """What ends early is not fast: the sound must be there, give or take a hundredth."""
    if not math.isclose(os.path.getsize(result), os.path.getsize(source), rel_tol=0.01):
        sys.exit(f"{name} wrote a sound of another length")


def time_setting(lumora, copy, source, result, tones, runs):
    commands = tools(lumora, copy, source, result, tones)
    seconds = {name: [] for name in commands}
    for round_number in range(runs + 1):
        for name, command in commands.items():
            if seconds[name] and seconds[name][0] > SLOW:
                continue
            Path(result).unlink(missing_ok=True)
            spent = run(command)
            check_length(name, source, result)
            if round_number > 0 or spent > SLOW:  # the first round warms the caches
                seconds[name].append(spent)
    own = seconds["lumora pitch"]
    return {name: (statistics.median(theirs), ratio(theirs, own))
            for name, theirs in seconds.items()}


def ratio(theirs, own):
    if theirs[0] > SLOW:
        return theirs[0] / statistics.median(own)
    return statistics.median(a / b for a, b in zip(theirs, own, strict=True))


def print_speed(table):
    print("| processor seconds (times lumora) |" + "".join(f" {t} tones |" for t in TONES))
    print("|---|" + "---:|" * len(TONES))
    for name in table[TONES[0]]:
        cells = "".join(f" {table[t][name][0]:.3f} ({table[t][name][1]:.2f}) |" for t in TONES)
        print(f"| {name} |{cells}")


def print_memory(lumora, music, folder, result):
    print("\n| length | peak memory of lumora pitch, MiB |\n|---|---:|")
    for label, seconds in (("1 minute", 60), ("1 hour", 3600)):
        source = str(folder / "long.wav")
        subprocess.run([str(music), source, str(seconds)], check=True)
        peak = peak_memory([lumora, "pitch", source, result, "--tones", "+1", "--force"],
                           folder / "peak")
        Path(source).unlink()
        print(f"| {label} | {peak:.1f} |")


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--runs", type=int, default=7)
    arguments.add_argument("lumora")
    arguments.add_argument("copy_samples")
    arguments.add_argument("folder", type=Path)
    given = arguments.parse_args()
    needed = ("soundstretch", "sox", "ffmpeg", "rubberband", "/usr/bin/time")
    missing = [tool for tool in needed if not shutil.which(tool)]
    if missing:
        sys.exit("missing: " + " ".join(missing) +
                 "; apt-get install soundstretch sox ffmpeg rubberband-cli time")
    music = Path(__file__).with_name("make_music.py")
    source, result = str(given.folder / "music.wav"), str(given.folder / "result.wav")
    subprocess.run([str(music), source, str(SECONDS)], check=True)
    print_speed({tones: time_setting(given.lumora, given.copy_samples, source, result, tones,
                                     given.runs) for tones in TONES})
    print_memory(given.lumora, music, given.folder, result)


main()
