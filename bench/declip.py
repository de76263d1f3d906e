#!/usr/bin/env python3
"""Times whole runs of the over-range filter beside ffmpeg's adeclip.

    bench/declip.py LUMORA

Five minutes of 44.1 kHz stereo, as bench/make_music.py makes them and driven 10 dB over. Medians of
five runs in turns, processor time of the process with its children.
"""
import array
import pathlib
import random
import resource
import statistics
import subprocess
import sys
import tempfile
import wave

SECONDS = 300
ROUNDS = 5
CLEAN_PEAK = 0.79


def music(folder):
    path = folder / "music.wav"
    maker = pathlib.Path(__file__).with_name("make_music.py")
    subprocess.run([sys.executable, maker, path, "20"], check=True)
    with wave.open(str(path)) as file:
        return array.array("h", file.readframes(file.getnframes()))


def write(path, samples, peak):
    """Twenty seconds again and again, their peak brought to this share of full scale; what lies
    beyond it is cut off."""
    scale = peak * 32767 / max(abs(x) for x in samples)
    level = array.array("h", (max(-32768, min(32767, round(x * scale))) for x in samples))
    with wave.open(str(path), "wb") as file:
        file.setparams((2, 2, 44100, 0, "NONE", None))
        for _ in range(SECONDS // 20):
            file.writeframes(level.tobytes())


def seconds_of(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def main(lumora):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        sound = music(folder)
        commands = {}
        for kind, peak in (("clean", CLEAN_PEAK), ("10 dB over", 10 ** 0.5)):
            path, out = folder / f"{kind}.wav", folder / "out.wav"
            write(path, sound, peak)
            commands[kind, "lumora declip"] = [lumora, "declip", path, out, "--force"]
            commands[kind, "adeclip"] = ["ffmpeg", "-y", "-v", "error", "-i", path,
                                         "-af", "adeclip", out]
        times = {key: [] for key in commands}
        for _ in range(ROUNDS):
            for key in random.sample(list(commands), len(commands)):
                times[key].append(seconds_of(commands[key]))
        for (kind, program), taken in times.items():
            print(f"{kind:11} {program:14} {SECONDS / statistics.median(taken):7.0f} times real time")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
