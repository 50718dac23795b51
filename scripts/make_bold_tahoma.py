#!/usr/bin/python3
"""Makes Wine's Tahoma Bold draw bold.

Usage: make_bold_tahoma.py WINE_TAHOMABD.ttf OUT.ttf

Wine's tahomabd.ttf has the bold face's names, flags and advance widths, but
its outlines and its embedded bitmaps are those of the regular face: text set
in it is spaced as bold and looks regular, so labels that Windows draws in
Tahoma Bold look regular under Wine. This keeps the names, flags and widths
and thickens every outline, as a bold face is drawn. The embedded bitmaps go,
so the thickened outlines are drawn at every size. So do the hints written for
the thin outlines; a no-op pre-program stays, because FreeType auto-hints a
TrueType font without any program, and its auto-hinter widens the advances.
"""

import math
import sys

from fontTools.ttLib import TTFont, newTable
from fontTools.ttLib.tables import ttProgram
from fontTools.ttLib.tables._g_l_y_f import GlyphCoordinates

# Font units of 2048 to the em added to vertical and horizontal strokes:
# Wine's regular stems are 184 units, Tahoma Bold's about 330.
STEM_GAIN = 150
BAR_GAIN = 90
# Corners sharper than this (the cosine of the turn) are not moved: their
# bisector points nowhere useful.
SHARPEST_TURN = -0.9375
NO_OP_PROGRAM = bytes([0xB0, 0x00, 0x21])  # PUSHB[0] 0, POP
# Grey smoothing at every size, as the thickened outlines need it without hints.
SMOOTH_AT_ALL_SIZES = {0xFFFF: 0x000A}
DROPPED_TABLES = ("EBDT", "EBLC", "BDF ", "VDMX", "cvt ", "fpgm", "prep")


def thicken_contour(points):
    """Moves each point out along its corner's bisector, by half the gain on
    each side, so that every stroke grows by the whole gain and the glyph keeps
    its centre."""
    moved = list(points)
    count = len(points)
    for i, (x, y) in enumerate(points):
        px, py = points[i - 1]
        nx, ny = points[(i + 1) % count]
        ix, iy, ox, oy = x - px, y - py, nx - x, ny - y
        in_length, out_length = math.hypot(ix, iy), math.hypot(ox, oy)
        if not in_length or not out_length:
            continue
        ix, iy, ox, oy = ix / in_length, iy / in_length, ox / out_length, oy / out_length
        turn = ix * ox + iy * oy
        if turn <= SHARPEST_TURN:
            continue
        # TrueType contours run clockwise around ink: outward is to the left.
        scale = 1 + turn
        moved[i] = (
            x - (iy + oy) * STEM_GAIN / 2 / scale,
            y + (ix + ox) * BAR_GAIN / 2 / scale,
        )
    return moved


def main(source, target):
    font = TTFont(source)
    glyphs = font["glyf"]
    metrics = font["hmtx"]
    names = font.getGlyphOrder()
    for name in names:
        glyph = glyphs[name]
        if glyph.numberOfContours > 0:
            points = list(glyph.coordinates)
            thick = []
            start = 0
            for end in glyph.endPtsOfContours:
                thick += thicken_contour(points[start : end + 1])
                start = end + 1
            glyph.coordinates = GlyphCoordinates([(round(x), round(y)) for x, y in thick])
        if hasattr(glyph, "program"):
            glyph.program.fromBytecode(b"")
    # Accented letters are built of other glyphs: their bounds follow once
    # every outline is thick. The left side bearing places the outline.
    for name in names:
        glyph = glyphs[name]
        if glyph.numberOfContours:
            glyph.recalcBounds(glyphs)
            metrics[name] = (metrics[name][0], glyph.xMin)
    for tag in DROPPED_TABLES:
        if tag in font:
            del font[tag]
    prep = newTable("prep")
    prep.program = ttProgram.Program()
    prep.program.fromBytecode(NO_OP_PROGRAM)
    font["prep"] = prep
    font["gasp"].gaspRange = SMOOTH_AT_ALL_SIZES
    font.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
