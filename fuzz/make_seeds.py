#!/usr/bin/env python3
"""Writes the first inputs of the fuzz targets: valid, odd and damaged WAVE files and matrix files,
and programs over matrix objects.

make_seeds.py OUTDIR   writes OUTDIR/TARGET/* for every target.
"""
import pathlib
import struct
import sys


def chunk(name, body, size=None):
    """A chunk that states its true size, or the one told."""
    return name + struct.pack("<i", len(body) if size is None else size) + body


def fmt(tag=1, channels=1, rate=22050, bits=16, size=16):
    """A format body, cut off or filled up to `size` bytes."""
    frame = channels * bits // 8
    fields = struct.pack("<hhiihhh", tag, channels, rate, rate * frame, frame, bits, 0)
    return (fields + bytes(40))[:size]


def wave(*chunks, riff=b"RIFF", kind=b"WAVE", size=None):
    return chunk(riff, kind + b"".join(chunks), size)


def plain(data=bytes(range(64)), size=None, **fields):
    """A format chunk and a data chunk."""
    return wave(chunk(b"fmt ", fmt(**fields)), chunk(b"data", data, size))


FMT = chunk(b"fmt ", fmt())
DATA = chunk(b"data", bytes(range(64)))
FACT = chunk(b"fact", struct.pack("<i", 32))
LEAST, MOST = -(2**31), 2**31 - 1


def valid_files():
    for channels in (1, 2, 3):
        for bits in (8, 16):
            yield f"plain-{channels}ch-{bits}bit", plain(channels=channels, bits=bits)
    for rate in (0, -1, 8000, 44100, 192000, 820510, MOST // 8):
        yield f"rate-{rate}", plain(rate=rate, data=bytes(8))
    for size in (16, 17, 18, 40):
        yield f"fmt-{size}", wave(chunk(b"fmt ", fmt(size=size)), DATA)
    yield "streamed", wave(chunk(b"fmt ", fmt(size=18)), FACT, DATA)
    yield "fact-first", wave(FACT, FMT, DATA)
    yield "info", wave(FMT, chunk(b"INFO", b"artist"), FACT, DATA)
    yield "lower-case", wave(FMT, DATA, riff=b"riff", kind=b"wave")
    yield "text-behind", wave(FMT, DATA, chunk(b"LIST", b"INFOISFT")) + b"odd"
    yield "no-data", plain(data=b"")


def odd_files():
    for tag, size in ((3, 14), (3, 16), (-2, 40)):
        yield f"tag{tag}-{size}", wave(chunk(b"fmt ", fmt(tag=tag, size=size)), DATA)
    for bits in (0, 1, 12, 24, 32, -16, -32768):
        yield f"bits{bits}", wave(
            chunk(b"fmt ", struct.pack("<hhiihhh", 1, 1, 22050, 44100, 2, bits, 0)), DATA)
    for channels in (0, -1, 4, 32767, -32768):
        yield f"channels{channels}", wave(
            chunk(b"fmt ", struct.pack("<hhiihhh", 1, channels, 22050, 44100, 2, 16, 0)), DATA)
    yield "list-first", wave(FMT, chunk(b"LIST", b"INFO"), DATA)
    yield "data-first", wave(DATA, FMT)
    yield "two-formats", wave(FMT, chunk(b"fmt ", fmt(channels=2, bits=8)), DATA)
    yield "two-infos", wave(FMT, chunk(b"INFO", b""), chunk(b"INFO", b""), DATA)
    yield "avi", wave(FMT, DATA, kind=b"AVI ")
    yield "flac", b"fLaC" + bytes(40)


def damaged_files():
    whole = wave(FACT, chunk(b"fmt ", fmt(size=18)), DATA)
    for length in range(0, len(whole) - 60):
        yield f"cut-{length:02}", whole[:length]
    yield "cut-in-data", whole[:-7]
    for size in (LEAST, -8, -1, 0, 3, 13, 15, 65, 10000, MOST - 44, MOST):
        yield f"riff-size{size}", wave(FMT, DATA, size=size)
        yield f"fmt-size{size}", wave(chunk(b"fmt ", fmt(), size), DATA)
        yield f"fact-size{size}", wave(FMT, chunk(b"fact", bytes(4), size), DATA)
        yield f"info-size{size}", wave(FMT, chunk(b"INFO", b"", size), DATA)
        yield f"data-size{size}", plain(size=size)


def ranges():
    """Name, choice of reader and of the ends that are given, First, Last."""
    for reader in range(5):
        yield f"{reader}-all", reader, 0, 0
        yield f"{reader}-middle", reader | 0x30, 3, 9
        yield f"{reader}-swapped", reader | 0x30, 9, -3
        yield f"{reader}-stereo", reader | 0x50, 45, 0
        yield f"{reader}-beyond", reader | 0x30, 70000, MOST


def whole_files():
    """What only the whole-file reader looks at."""
    for bits in (4, 12, 25, 32):
        yield f"width{bits}", plain(bits=bits)
    for tag in (2, 17, 259):
        yield f"format{tag}", plain(tag=tag)
    for size in (63, 61, 2):
        yield f"odd{size}", plain(bits=8, size=size)
        yield f"part{size}", plain(channels=2, size=size)


def forms():
    """Name, form of the arguments, Arg1 and Arg2."""
    yield "all", 0, 0, 0
    yield "size", 1, 0, 0
    yield "part", 2, 2, 5
    yield "swapped", 2, 9, 3


def programs():
    """Two objects of each pair of classes and sizes, and one operation on them in each group."""
    for kind in range(10):
        for other in range(10):
            for group in range(1, 8):
                create = bytes([0, 0, 0, kind, 2, 3, *range(12), 0, 1, 0, other, 2, 3, *range(9, 21)])
                steps = b"".join(bytes([group, 0, 1, which, 3, 4, 3, 4])
                                 for which in range(kind, 32, 10))
                yield f"{kind}-{other}-{group}", create + steps


def arr(rows, columns, tag, elements=b"", letter=b""):
    return struct.pack("<iii", rows, columns, tag) + elements + letter


def matrix_files():
    text = struct.pack("<H", 2) + b"\xe9\x80" + struct.pack("<H", 0)
    for rows, columns in ((1, 6), (3, 2), (6, 1)):
        for tag, elements in ((3, bytes(48)), (4, bytes(96)), (5, 3 * text), (7, bytes(range(24)))):
            yield f"tag{tag}-{rows}by{columns}", arr(rows, columns, tag, elements)
        for letter, each in ((b"r", 8), (b"c", 8), (b"d", 8), (b"l", 4), (b"s", 4), (b"i", 2),
                             (b"b", 1)):
            yield (f"letter-{letter.decode()}-{rows}by{columns}",
                   arr(rows, columns, 100, bytes(range(6 * each)), letter))
        yield f"letter-5-{rows}by{columns}", arr(rows, columns, 100, 3 * text, b"5")
    yield "unknown-tag", arr(1, 1, 6, bytes(8))
    yield "unknown-letter", arr(1, 1, 100, bytes(8), b"x")
    yield "no-letter", arr(1, 1, 100)
    for length in range(12):
        yield f"cut-{length}", arr(1, 1, 3)[:length]
    for tag in (3, 4, 5, 7, 100):
        yield f"cut-in-{tag}", arr(2, 2, tag, bytes(7), b"b")[:-5]
        for rows, columns in ((MOST, MOST), (MOST, 1), (1, MOST), (65536, 65536), (0, 1), (1, 0),
                              (-1, -1), (LEAST, LEAST), (1, 100), (1, 10**6)):
            yield f"lie-{tag}-{rows}by{columns}", arr(rows, columns, tag, bytes(64), b"r")
    yield "long-text", arr(1, 1, 5, b"\xff\xff" + bytes(100))


def tables():
    numbers = b"1,-2.5,3e5\n0.1,NaN,-Inf\n"
    whole = b"1,2147483647\r\n-2147483648,0\r\n"
    texts = b'\xef\xbb\xbf"a ""b"", c",d\n\n"two\nlines"," e"\n'
    parts = b"1+2i,-i,3\n1e-3-1e+3i,Inf-NaNi,0\n"
    faults = (b"1,2\n3\n", b'"open', b'"closed"x\n', b"\n\n", b"2147483648\n", b"1.5\n",
              b"\xe6\x97\xa5,\xff\n", b",\n", b"1", b'""')
    for kind in range(4):
        for k, table in enumerate((numbers, whole, texts, parts, *faults)):
            yield f"class{kind}-{k}", bytes([kind]) + table


def write_all(folder, files):
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in files:
        (folder / name).write_bytes(content)


def main(out):
    headers = [*valid_files(), *odd_files(), *damaged_files()]
    write_all(out / "FuzzWaveHeader", headers)
    bodies = [*valid_files(), *odd_files(),
              ("promise", plain(size=60000)), ("big-promise", plain(size=10**8)),
              ("half-sample", plain(data=bytes(7), size=10))]
    write_all(out / "FuzzMatrixProgram", programs())
    write_all(out / "FuzzCsv", tables())
    write_all(out / "FuzzArrFile",
              ((f"{name}-{first}-{last}", struct.pack("<ii", first, last) + content)
               for name, content in matrix_files()
               for first, last in ((0, 0), (2, 3), (3, 2), (1, 1), (MOST, LEAST))))
    write_all(out / "FuzzWaveSamples",
              ((f"{name}-{which}", struct.pack("<Bii", choice, first, last) + content)
               for name, content in bodies for which, choice, first, last in ranges()))
    whole = [*headers, *whole_files()]
    write_all(out / "FuzzWavread",
              ((f"{name}-{which}", struct.pack("<Bii", form, first, last) + content)
               for name, content in whole for which, form, first, last in forms()))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
