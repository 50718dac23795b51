#!/usr/bin/python3
"""Writes the icon files of the tests and the benchmark into OUTDIR:
icons.ico (16, 32 and 48 pixels; the 32 pixel image a checkerboard of opaque
and transparent 4 x 4 squares), notes.txt (no icons), NOICONS.rc (a library
without icons) and for each COUNT an ICONS<n>.rc of n icons, identifiers 1 to
n, whose icon at position i has the centre pixel RGB(i % 256, i // 256, 0);
and for the test resource library test.bmp, test.cur and two data blobs.
Usage: make_icon_files.py OUTDIR COUNT..."""

import colorsys
import os
import struct
import sys

from PIL import Image

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
from make_art import ico_bytes  # noqa: E402  (one .ico writer for the project)

CHECKER = 4
SIZE = 32
CENTRE = 16


def ico_file(images, kind=1):
    """`images` are (size, pixels) with pixels a list of rows of (r, g, b, a),
    top row first."""
    pictures = []
    for size, rows in images:
        pictures.append(Image.new("RGBA", (size, size)))
        pictures[-1].putdata([pixel for row in rows for pixel in row])
    return ico_bytes(pictures, kind)


def checkerboard(size):
    return [[(0, 0, 0, 0) if (x // CHECKER + y // CHECKER) % 2
             else (40 + x * 6 % 200, 200 - y * 5 % 180, 90, 255) for x in range(size)]
            for y in range(size)]


# Thousands of icons of one layout: each is the same file with its own
# colour in place of the placeholder's and its number in the centre pixel.
PLACEHOLDER = (3, 2, 1, 255)
TEMPLATE = ico_file([(SIZE, [[PLACEHOLDER] * SIZE] * SIZE)])
CENTRE_AT = 6 + 16 + 40 + ((SIZE - 1 - CENTRE) * SIZE + CENTRE) * 4  # rows bottom-up, BGRA


def numbered_icon(index):
    hue = (index * 0.618034) % 1.0
    bgra = bytes(round(c * 255) for c in colorsys.hsv_to_rgb(hue, 0.65, 0.9)[::-1]) + b"\xff"
    data = bytearray(TEMPLATE.replace(bytes((1, 2, 3, 255)), bgra))
    data[CENTRE_AT:CENTRE_AT + 4] = bytes((0, index // 256, index % 256, 255))
    return bytes(data)


def bmp_24(width, height, rgb):
    row = bytes(rgb[::-1]) * width
    pixels = (row + b"\0" * ((4 - len(row) % 4) % 4)) * height
    return (struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54) + struct.pack(
        "<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0) + pixels)


def write(path, data):
    with open(path, "wb" if isinstance(data, bytes) else "w") as f:
        f.write(data)


def main(argv):
    out = argv[1]
    counts = [int(n) for n in argv[2:]]
    os.makedirs(os.path.join(out, "numbered"), exist_ok=True)
    write(os.path.join(out, "icons.ico"), ico_file([(n, checkerboard(n)) for n in (16, 32, 48)]))
    write(os.path.join(out, "notes.txt"), "No icons in here.\r\n")
    write(os.path.join(out, "test.bmp"), bmp_24(8, 4, (10, 200, 30)))
    write(os.path.join(out, "test.cur"), ico_file([(32, checkerboard(32))], kind=2))
    # Bytes 0 and 255 check that raw data travels unchanged, NUL included.
    write(os.path.join(out, "blob.bin"), bytes([0x4D, 0x00, 0xFF, 0x0A, 0x80, 0x41]))
    write(os.path.join(out, "empty.bin"), b"")
    write(os.path.join(out, "NOICONS.rc"),
          "// A resource library without icons.\nSTRINGTABLE\nBEGIN\n  1 \"no icons\"\nEND\n")
    for i in range(max(counts, default=0)):
        write(os.path.join(out, "numbered", "%04d.ico" % i), numbered_icon(i))
    for n in counts:
        lines = ["// %d icons; the icon at position i has identifier i + 1." % n]
        lines += ['%d ICON "numbered/%04d.ico"' % (i + 1, i) for i in range(n)]
        write(os.path.join(out, "ICONS%d.rc" % n), "\n".join(lines) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
