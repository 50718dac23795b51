"""Checks what scripts/make_art.py, make_font.py and make_folder_icons.py
generate: /usr/bin/python3 -m unittest discover -s tests/scripts -v"""
import os
import struct
import subprocess
import sys
import tempfile
import unittest

from fontTools.pens.areaPen import AreaPen
from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont
from PIL import Image, ImageDraw

SCRIPTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts")
# The main window's elements in client pixels (right and bottom exclusive),
# frames included: the window's shape must not cut any of them.
ELEMENTS = [(3, 0, 253, 37), (41, 51, 249, 83), (8, 174, 252, 190), (519, 48, 568, 67),
            (48, 390, 188, 415), (492, 390, 572, 415), (8, 50, 42, 162), (7, 194, 256, 329),
            (263, 71, 570, 386), (350, 389, 487, 416)]
THREE_SIZES = [(16, 16, 32), (32, 32, 32), (48, 48, 32)]
FOLDER_SIZES = [(n, n, 32) for n in (16, 32, 40, 48, 64)]
TMP = tempfile.TemporaryDirectory()  # removed when the run ends


def build(test, script, name):
    """Builds twice into fresh places, checks both give the same bytes, and
    returns the first."""
    runs = [os.path.join(TMP.name, run + name) for run in "ab"]
    for target in runs:
        subprocess.run([sys.executable, os.path.join(SCRIPTS, script), target], check=True)
    for path in [""] + (sorted(os.listdir(runs[0])) if os.path.isdir(runs[0]) else []):
        if os.path.isfile(os.path.join(runs[0], path)):
            with open(os.path.join(runs[0], path), "rb") as x, \
                    open(os.path.join(runs[1], path), "rb") as y:
                test.assertEqual(x.read(), y.read(), path)
    return runs[0]


def ico_images(path):
    with open(path, "rb") as f:
        data = f.read()
    count = struct.unpack_from("<H", data, 4)[0]
    entries = [struct.unpack_from("<BBBBHH", data, 6 + 16 * i) for i in range(count)]
    return sorted((e[0], e[1], e[5]) for e in entries)


class Outline(BasePen):
    """The glyph's contours as polygons in window pixels (0.32 px per unit)."""

    def __init__(self, glyphs):
        super().__init__(glyphs)
        self.points = []

    def _moveTo(self, pt):
        self.points.append((pt[0] * 0.32, (1000 - pt[1]) * 0.32))

    _lineTo = _moveTo

    def _qCurveToOne(self, c, pt):
        p0 = self._getCurrentPoint()
        for t in (i / 16 for i in range(1, 17)):
            self._moveTo([(1 - t) ** 2 * a + 2 * t * (1 - t) * b + t * t * e
                          for a, b, e in zip(p0, c, pt)])


class GeneratorsTest(unittest.TestCase):
    def test_art_is_reproducible_and_keyed_cleanly(self):
        a = build(self, "make_art.py", "art")
        for name, width in (("logo", 200), ("logo150", 300), ("logo200", 400)):
            with Image.open(os.path.join(a, name + ".bmp")) as image:
                logo = image.convert("RGB")
            self.assertEqual(logo.width, width)
            # Near-yellow pixels would show as a fringe around the transparent key.
            fringe = [p for p in logo.getdata() if p != (255, 255, 0)
                      and max(abs(c - k) for c, k in zip(p, (255, 255, 0))) <= 40]
            self.assertEqual(fringe, [], name)
        self.assertEqual(ico_images(os.path.join(a, "morvane.ico")), THREE_SIZES)

    def test_font_is_found_by_wine_and_shapes_the_window_around_every_element(self):
        a = build(self, "make_font.py", "font.ttf")
        font = TTFont(a)
        self.assertEqual(font["name"].getDebugName(1), "XFont Morvane")
        self.assertTrue(font["OS/2"].ulCodePageRange1 & 1, "no Latin 1: Wine swaps the face")
        self.assertEqual(font["glyf"]["A"].numberOfContours, 1)
        glyphs = font.getGlyphSet()
        area, outline = AreaPen(glyphs), Outline(glyphs)
        glyphs["A"].draw(area)
        glyphs["A"].draw(outline)
        self.assertLess(area.value, 0, "counter-clockwise: the window would be a hole")
        shape = Image.new("1", (577, 428))
        ImageDraw.Draw(shape).polygon(outline.points, fill=1)
        for left, top, right, bottom in ELEMENTS:
            box = shape.crop((left, top, right, bottom))
            self.assertEqual(box.getextrema(), (1, 1), (left, top, right, bottom))

    def test_folder_icons_are_reproducible_distinct_and_clear_around_the_folder(self):
        a = build(self, "make_folder_icons.py", "folders")
        with open(os.path.join(a, "iconos.rc")) as f:
            listed = [line.split('"')[1] for line in f if " ICON " in line]
        self.assertGreaterEqual(len(listed), 24)
        larges = set()
        for name in listed:
            self.assertEqual(ico_images(os.path.join(a, name)), FOLDER_SIZES, name)
            with Image.open(os.path.join(a, name)) as icon:
                icon.size = (32, 32)
                large = icon.convert("RGBA")
            self.assertEqual((large.getpixel((0, 0))[3], large.getpixel((16, 16))[3]), (0, 255))
            larges.add(large.tobytes())
        self.assertEqual(len(larges), len(listed), "an icon repeats another")


if __name__ == "__main__":
    unittest.main()
