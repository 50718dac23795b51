#!/usr/bin/env python3
"""Writes the small binary files that the test resource library embeds:
a bitmap, an icon, a cursor and two raw data blobs."""
import struct
import sys
from pathlib import Path


def bmp_24(width, height, rgb):
    row = bytes(rgb[::-1]) * width
    row += b"\0" * ((4 - len(row) % 4) % 4)
    pixels = row * height
    header = struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    return header + info + pixels


def icon_like(kind, size, hotspot=(0, 0)):
    """An .ico (kind 1) or .cur (kind 2) with one 32-bit image."""
    xor = bytes([0x20, 0x80, 0xE0, 0xFF]) * size * size
    mask = b"\0" * (((size + 31) // 32) * 4 * size)
    info = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(xor) + len(mask), 0, 0, 0, 0)
    image = info + xor + mask
    planes_or_x, bits_or_y = (1, 32) if kind == 1 else hotspot
    entry = struct.pack("<BBBBHHII", size, size, 0, 0, planes_or_x, bits_or_y, len(image), 22)
    return struct.pack("<HHH", 0, kind, 1) + entry + image


def main(out):
    out = Path(out)
    out.mkdir(parents=True, exist_ok=True)
    (out / "test.bmp").write_bytes(bmp_24(8, 4, (10, 200, 30)))
    (out / "test.ico").write_bytes(icon_like(1, 32))
    (out / "test.cur").write_bytes(icon_like(2, 32, (3, 5)))
    # Bytes 0 and 255 check that raw data travels unchanged, NUL included.
    (out / "blob.bin").write_bytes(bytes([0x4D, 0x00, 0xFF, 0x0A, 0x80, 0x41]))
    (out / "empty.bin").write_bytes(b"")

if __name__ == "__main__":
    main(sys.argv[1])
