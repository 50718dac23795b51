#!/usr/bin/python3
"""Writes the icon files the icon tests and benchmarks read.

Usage: make_icon_files.py OUTDIR COUNT...

  icons.ico        one icon with 16, 32 and 48 pixel images; the 32 pixel
                   image is a checkerboard of opaque and fully transparent
                   4 x 4 squares, so drawing it shows what transparency does
  notes.txt        a file with no icons in it
  NOICONS.rc       a resource library holding a string and no icon
  ICONS<n>.rc      for each COUNT, a resource library script holding n icons,
                   identifiers 1 to n in file order
  numbered/*.ico   the icons those scripts take in: the icon at 0-based
                   position i is a rounded square in a colour of its own whose
                   centre pixel reads RGB(i % 256, i // 256, 0)
"""

import colorsys
import os
import struct
import sys

CHECKER = 4
CENTRE = 16


def ico_file(images):
    """An .ico holding 32-bit DIB images with AND masks; `images` are
    (size, pixels) with pixels a list of rows of (r, g, b, a), top row first."""
    blobs = []
    for size, rows in images:
        header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
        stride = ((size + 31) // 32) * 4
        colour, mask = bytearray(), bytearray()
        for row in reversed(rows):  # DIBs run bottom-up
            bits = bytearray(stride)
            for x, (r, g, b, a) in enumerate(row):
                colour += bytes((b, g, r, a))
                if a == 0:
                    bits[x // 8] |= 0x80 >> (x % 8)
            mask += bits
        blobs.append((size, header + colour + mask))
    out = bytearray(struct.pack("<HHH", 0, 1, len(blobs)))
    offset = 6 + 16 * len(blobs)
    for size, blob in blobs:
        out += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(blob), offset)
        offset += len(blob)
    for _, blob in blobs:
        out += blob
    return bytes(out)


def checkerboard(size):
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            if (x // CHECKER + y // CHECKER) % 2:
                row.append((0, 0, 0, 0))
            else:
                row.append((40 + x * 6 % 200, 200 - y * 5 % 180, 90, 255))
        rows.append(row)
    return rows


BODY, EDGE = 1, 2


def numbered_shape(size=32):
    """Which pixels of the numbered icons are clear (0), edge or body."""
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            dx = max(3 - x, x - (size - 4), 0)
            dy = max(3 - y, y - (size - 4), 0)
            if x < 1 or y < 1 or x > size - 2 or y > size - 2 or dx * dx + dy * dy > 9:
                row.append(0)
            elif x in (1, size - 2) or y in (1, size - 2) or dx * dx + dy * dy > 4:
                row.append(EDGE)
            else:
                row.append(BODY)
        rows.append(row)
    return rows


class NumberedIcons:
    """Thousands of icons of one shape: the file is laid out once with
    placeholder pixels, and each icon only fills in its colours."""

    def __init__(self, size=32):
        self.size = size
        shape = numbered_shape(size)
        placeholder = {0: (0, 0, 0, 0), BODY: (BODY,) * 4, EDGE: (EDGE,) * 4}
        self.template = ico_file([(size, [[placeholder[c] for c in row] for row in shape])])
        # The centre pixel's place in the file: header, bottom-up rows, BGRA.
        row_from_bottom = size - 1 - CENTRE
        self.centre = 6 + 16 + 40 + (row_from_bottom * size + CENTRE) * 4

    def icon(self, index):
        hue = (index * 0.618034) % 1.0
        body = bytes(round(c * 255) for c in colorsys.hsv_to_rgb(hue, 0.65, 0.9)[::-1]) + b"\xff"
        edge = bytes(round(c * 255) for c in colorsys.hsv_to_rgb(hue, 0.8, 0.55)[::-1]) + b"\xff"
        data = bytearray(self.template.replace(bytes((BODY,)) * 4, body)
                         .replace(bytes((EDGE,)) * 4, edge))
        data[self.centre:self.centre + 4] = bytes((0, index // 256, index % 256, 255))
        return bytes(data)


def write(path, data):
    mode = "wb" if isinstance(data, bytes) else "w"
    with open(path, mode) as f:
        f.write(data)


def main(argv):
    if len(argv) < 2:
        sys.stderr.write("usage: make_icon_files.py OUTDIR COUNT...\n")
        return 2
    out = argv[1]
    counts = [int(n) for n in argv[2:]]
    numbered_dir = os.path.join(out, "numbered")
    os.makedirs(numbered_dir, exist_ok=True)

    write(os.path.join(out, "icons.ico"),
          ico_file([(n, checkerboard(n)) for n in (16, 32, 48)]))
    write(os.path.join(out, "notes.txt"), "No icons in here.\r\n")
    write(os.path.join(out, "NOICONS.rc"),
          "// A resource library without icons.\nSTRINGTABLE\nBEGIN\n  1 \"no icons\"\nEND\n")

    maker = NumberedIcons()
    for i in range(max(counts, default=0)):
        write(os.path.join(numbered_dir, "%04d.ico" % i), maker.icon(i))
    for n in counts:
        lines = ["// %d icons; the icon at position i has identifier i + 1." % n]
        lines += ['%d ICON "numbered/%04d.ico"' % (i + 1, i) for i in range(n)]
        write(os.path.join(out, "ICONS%d.rc" % n), "\n".join(lines) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
