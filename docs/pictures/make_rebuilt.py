#!/usr/bin/env python3
"""Makes the picture of over-driven stretches before and after: make_rebuilt.py LUMORA OUT.png

The vowels that bench/restoration.py measures with, 4 dB too loud and cut off just above 0.8 of full
scale, go through `lumora declip --plot`.
"""
import pathlib
import subprocess
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "bench"))
from restoration import LIMIT, speech, write  # noqa: E402

RATE = 44100
OVER = 10 ** (4 / 20)


def main(lumora, out):
    vowels = speech(RATE)
    scale = LIMIT * OVER / max(map(abs, vowels))
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "over-driven vowels.wav")
        write(source, [max(-LIMIT, min(LIMIT, x * scale)) for x in vowels], RATE, 1)
        subprocess.run([lumora, "declip", source, source.with_name("out.wav"), "--keep-length",
                        "--force", "--plot", out], check=True)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
