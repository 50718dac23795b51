"""Checks what scripts/make_art.py, make_font.py and make_folder_icons.py
generate. Run from the repository root:
/usr/bin/python3 -m unittest discover -s tests/scripts -v
"""

import math
import os
import struct
import subprocess
import sys
import tempfile
import unittest

from fontTools.misc.timeTools import timestampNow
from fontTools.pens.areaPen import AreaPen
from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont
from PIL import Image

SCRIPTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts")
# Folder icons without a symbol.
PLAIN_FOLDERS = ("folder", "blue", "green", "red", "purple", "orange", "pink", "teal", "graphite")
YELLOW = (255, 255, 0)
CLIENT = (577, 428)
# Window elements (left, top, right, bottom; right and bottom exclusive); the
# framed ones carry a one-pixel 3-D border.
PLAIN = [(3, 0, 253, 37), (255, 0, 256, 33), (41, 51, 249, 83), (41, 90, 249, 122),
         (41, 129, 249, 161), (8, 174, 252, 190), (9, 342, 253, 355), (519, 48, 568, 67),
         (48, 390, 188, 415), (261, 390, 341, 415), (492, 390, 572, 415),
         (50, 5, 250, 39), (0, 42, 300, 43)]  # last two: logo, etched line
FRAMED = [(9, 51, 41, 83), (9, 90, 41, 122), (9, 129, 41, 161), (8, 195, 255, 328),
          (8, 360, 255, 381), (264, 72, 569, 385), (351, 390, 486, 415)]


def build(script, target):
    subprocess.run([sys.executable, os.path.join(SCRIPTS, script), target], check=True)


def read(path):
    with open(path, "rb") as f:
        return f.read()


def read_all(folder):
    return {name: read(os.path.join(folder, name)) for name in sorted(os.listdir(folder))}


def ico_images(path):
    """(width, height, bits per pixel) of each image of an .ico, sorted."""
    data = read(path)
    kind, count = struct.unpack_from("<HH", data, 2)
    entries = [struct.unpack_from("<BBBBHH", data, 6 + 16 * i) for i in range(count)]
    return [kind] + sorted((e[0], e[1], e[5]) for e in entries)


# An icon file (type 1) with 16, 32 and 48 pixel images of 32 bits.
THREE_SIZES = [1, (16, 16, 32), (32, 32, 32), (48, 48, 32)]


def luminance(rgb):
    lin = [c / 255 / 12.92 if c <= 10 else ((c / 255 + 0.055) / 1.055) ** 2.4 for c in rgb]
    return 0.2126 * lin[0] + 0.7152 * lin[1] + 0.0722 * lin[2]


class _Polygons(BasePen):
    """Flattens contours into polygons in window pixels (0.32 px per unit)."""

    def __init__(self, glyph_set):
        super().__init__(glyph_set)
        self.polygons = []

    def _moveTo(self, pt):
        self.polygons.append([(pt[0] * 0.32, (1000 - pt[1]) * 0.32)])

    def _lineTo(self, pt):
        self.polygons[-1].append((pt[0] * 0.32, (1000 - pt[1]) * 0.32))

    def _qCurveToOne(self, c, pt):
        p0 = self._getCurrentPoint()
        for t in (i / 16 for i in range(1, 17)):
            self._lineTo(tuple((1 - t) ** 2 * a + 2 * t * (1 - t) * b + t * t * e
                               for a, b, e in zip(p0, c, pt)))


def window_pixels(glyph_set):
    """Pixels whose centres lie inside glyph "A" (even-odd, as PathToRegion fills)."""
    pen = _Polygons(glyph_set)
    glyph_set["A"].draw(pen)
    edges = [(poly[i - 1], poly[i]) for poly in pen.polygons for i in range(len(poly))]
    inside = set()
    for y in range(-20, CLIENT[1] + 20):
        yc = y + 0.5
        xs = sorted(x0 + (yc - y0) * (x1 - x0) / (y1 - y0)
                    for (x0, y0), (x1, y1) in edges if (y0 <= yc) != (y1 <= yc))
        for left, right in zip(xs[::2], xs[1::2]):
            inside.update((x, y) for x in range(math.ceil(left - 0.5), math.ceil(right - 0.5)))
    return inside


class ArtTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        for run in "ab":
            build("make_art.py", os.path.join(cls.tmp.name, run))

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def open(self, name):
        path = os.path.join(self.tmp.name, "a", name)
        if name.endswith(".bmp"):
            with open(path, "rb") as f:
                self.assertEqual(struct.unpack_from("<H", f.read(30), 28)[0], 24, name)
        return Image.open(path)

    def test_rebuild_gives_identical_bytes(self):
        for name in ("skin.bmp", "logo.bmp", "morvane.ico"):
            self.assertEqual(*(read(os.path.join(self.tmp.name, run, name)) for run in "ab"))

    def test_skin_covers_a_button_face_and_tiles_seamlessly(self):
        skin = self.open("skin.bmp").convert("RGB")
        size = skin.size[0]
        # Button faces are cut from one 197 x 38 px copy of the texture.
        self.assertTrue(skin.size[0] == skin.size[1] and size >= 197, skin.size)
        px = skin.load()
        # White labels and black captions are both drawn on it.
        mean = sum(luminance(px[x, y]) for x in range(size) for y in range(size)) / size ** 2
        self.assertGreaterEqual(1.05 / (mean + 0.05), 3.0, "white text")
        self.assertGreaterEqual((mean + 0.05) / 0.05, 4.5, "black text")

        for axis in ("column", "row"):
            def line(i):
                return [px[i, j] if axis == "column" else px[j, i] for j in range(size)]

            def gap(i, k):
                diffs = [max(abs(p - q) for p, q in zip(a, b)) for a, b in zip(line(i), line(k))]
                return max(diffs), sum(diffs) / size

            inner = [gap(i, i + 1) for i in range(size - 1)]
            seam_max, seam_mean = gap(size - 1, 0)
            self.assertLessEqual(seam_max, max(m for m, _ in inner), axis)
            self.assertLessEqual(seam_mean, 1.5 * sum(a for _, a in inner) / (size - 1), axis)

    def test_logo_uses_exact_yellow_only_for_background(self):
        logo = self.open("logo.bmp").convert("RGB")
        w, h = logo.size
        self.assertTrue(190 <= w <= 210 and 30 <= h <= 37, logo.size)
        px = logo.load()
        rim = [(x, y) for x in range(w) for y in (0, h - 1)] + \
              [(x, y) for x in (0, w - 1) for y in range(h)]
        self.assertTrue(all(px[p] == YELLOW for p in rim))
        art = [px[x, y] for x in range(w) for y in range(h) if px[x, y] != YELLOW]
        self.assertGreater(len(art), w * h // 10)
        # Near-yellow pixels are edges smoothed against the key colour: they
        # would show as a yellow fringe over the skin.
        self.assertEqual([p for p in art if max(abs(c - k) for c, k in zip(p, YELLOW)) <= 40], [])

    def test_icon_holds_three_sizes_with_alpha(self):
        self.assertEqual(ico_images(os.path.join(self.tmp.name, "a", "morvane.ico")), THREE_SIZES)
        with self.open("morvane.ico") as icon:
            for size in (16, 32, 48):
                alpha = icon.ico.getimage((size, size)).convert("RGBA").getchannel("A")
                self.assertEqual(alpha.getextrema(), (0, 255), size)


class FontTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        cls.paths = [os.path.join(cls.tmp.name, run + ".ttf") for run in "ab"]
        for path in cls.paths:
            build("make_font.py", path)
        cls.font = TTFont(cls.paths[0])
        cls.inside = window_pixels(cls.font.getGlyphSet())

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def test_rebuild_gives_identical_bytes(self):
        self.assertEqual(*(read(path) for path in self.paths))
        # Two quick builds can share a clock second; a build-time stamp would
        # still make later rebuilds differ.
        head = self.font["head"]
        self.assertLess(max(head.created, head.modified), timestampNow() - 86400)

    def test_wine_finds_the_face_and_the_letters(self):
        font = self.font
        for name_id in (1, 4, 16):
            self.assertEqual(font["name"].getDebugName(name_id), "XFont Morvane")
        self.assertTrue(font["OS/2"].ulCodePageRange1 & 1, "no Latin 1: Wine swaps the face")
        cmap = font.getBestCmap()
        self.assertEqual((cmap[0x41], cmap[0x61], cmap[0x20]), ("A", "A", "space"))
        self.assertAlmostEqual(font["hmtx"]["A"][0], 1810, delta=20)

    def test_text_cell_starts_at_the_top_of_the_em_and_holds_the_outline(self):
        font, glyph = self.font, self.font["glyf"]["A"]
        self.assertEqual(font["head"].unitsPerEm, 1000)
        self.assertEqual((font["OS/2"].usWinAscent, font["hhea"].ascent), (1000, 1000))
        self.assertLessEqual(glyph.yMax, 1000)
        self.assertGreaterEqual(min(font["OS/2"].usWinDescent, -font["hhea"].descent), -glyph.yMin)

    def test_outline_is_one_clockwise_contour(self):
        glyph_set = self.font.getGlyphSet()
        self.assertEqual(self.font["glyf"]["A"].numberOfContours, 1)
        pen = AreaPen(glyph_set)
        glyph_set["A"].draw(pen)
        self.assertLess(pen.value, 0, "counter-clockwise: the window would be a hole")

    def test_silhouette_covers_every_element(self):
        grown = [(l - 1, t - 1, r + 1, b + 1) for l, t, r, b in FRAMED]
        for left, top, right, bottom in PLAIN + grown:
            missing = [(x, y) for x in range(left, right) for y in range(top, bottom)
                       if (x, y) not in self.inside]
            self.assertEqual(missing[:5], [], (left, top, right, bottom))

    def test_silhouette_is_a_folder_within_the_client_area(self):
        self.assertTrue(all(0 <= x < CLIENT[0] and 0 <= y < CLIENT[1] for x, y in self.inside))
        self.assertIn((3, 0), self.inside)
        # The tab leaves the top right open, with a clean notch where the
        # shoulder meets the body; rounded corners cut the rest.
        for outside in ((570, 5), (400, 20), (320, 30), (576, 44), (576, 427), (0, 427)):
            self.assertNotIn(outside, self.inside)
        self.assertGreater(len(self.inside), 0.85 * CLIENT[0] * CLIENT[1])


class FolderIconsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        cls.out = os.path.join(cls.tmp.name, "a")
        build("make_folder_icons.py", cls.out)
        with open(os.path.join(cls.out, "iconos.rc")) as f:
            cls.listed = [line.split('"')[1] for line in f if " ICON " in line]
        cls.images = {}  # name -> {size: RGBA image}
        for name in cls.listed:
            icon = Image.open(os.path.join(cls.out, name))
            cls.images[name] = {}
            for size in icon.info["sizes"]:
                icon.size = size
                cls.images[name][size[0]] = icon.convert("RGBA").copy()

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def test_rebuild_gives_identical_bytes(self):
        again = os.path.join(self.tmp.name, "b")
        build("make_folder_icons.py", again)
        self.assertEqual(read_all(self.out), read_all(again))

    def test_enough_distinct_icons_of_three_sizes_in_32_bits_clear_around_the_folder(self):
        self.assertGreaterEqual(len(self.listed), 24)
        for name in self.listed:
            self.assertEqual(ico_images(os.path.join(self.out, name)), THREE_SIZES, name)
            large = self.images[name][32]
            self.assertEqual((large.getpixel((0, 0))[3], large.getpixel((16, 16))[3]), (0, 255))
        larges = [self.images[name][32].tobytes() for name in self.listed]
        self.assertEqual(len(set(larges)), len(larges), "an icon repeats another")

    def test_symbols_stand_out_at_every_size(self):
        # A folder with a symbol carries near-white pixels on its front flap
        # at every size; a plain one carries none there.
        for name in self.listed:
            plain = name.split("_", 1)[1][:-4] in PLAIN_FOLDERS
            for size, image in self.images[name].items():
                flap = image.crop((size // 4, size * 11 // 20, size * 3 // 4, size * 17 // 20))
                white = sum(1 for r, g, b, a in flap.getdata() if min(r, g, b) > 225 and a > 200)
                self.assertEqual(white == 0, plain, "%s at %d" % (name, size))


if __name__ == "__main__":
    unittest.main()
