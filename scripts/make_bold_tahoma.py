#!/usr/bin/python3
"""Makes a Tahoma Bold that draws bold at every size from Wine's.

Usage: make_bold_tahoma.py WINE_TAHOMA.ttf WINE_TAHOMABD.ttf OUT.ttf

Wine's tahomabd.ttf has the bold face's names, flags and advance widths, but
only its bitmaps of 9 to 12 pixels are bold: its larger bitmaps are mostly the
regular face's, and so are all its outlines. Text of 10 points (13 pixels) and
more set in it is spaced as bold and looks regular. This keeps the names,
flags, widths and bold bitmaps, drops the regular ones, and thickens every
outline, as a bold face is drawn, for the sizes without a bitmap. The hints
written for the thin outlines go too; a no-op pre-program stays, because
FreeType auto-hints a TrueType font without any program, and its auto-hinter
widens the advances.
"""

import math
import sys

from fontTools.ttLib import TTFont, newTable
from fontTools.ttLib.tables import ttProgram
from fontTools.ttLib.tables._g_l_y_f import GlyphCoordinates

# Font units of 2048 to the em added to vertical and horizontal strokes. The
# regular vertical stems are 184 units; with 150 more, text of 13 pixels looks
# as heavy as the face's own bold bitmaps of 12.
STEM_GAIN = 150
BAR_GAIN = 90
# Corners sharper than this (the cosine of the turn) are not moved: their
# bisector points nowhere useful.
SHARPEST_TURN = -0.9375
NO_OP_PROGRAM = bytes([0xB0, 0x00, 0x21])  # PUSHB[0] 0, POP
# Wine draws a font's bitmaps only where its "gasp" table asks for no grey
# smoothing: crisp bitmaps up to 12 pixels, smoothed unhinted outlines above.
LARGEST_BITMAP = 12
GASP_GRIDFIT, GASP_SMOOTH = 0x0001, 0x000A
SIZE_RANGES = {8: GASP_SMOOTH, LARGEST_BITMAP: GASP_GRIDFIT, 0xFFFF: GASP_SMOOTH}
DROPPED_TABLES = ("BDF ", "VDMX", "cvt ", "fpgm", "prep")


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


def strikes(font):
    """The bitmap strikes by their size in pixels."""
    return {
        strike.bitmapSizeTable.ppemX: (strike, glyphs)
        for strike, glyphs in zip(font["EBLC"].strikes, font["EBDT"].strikeData)
    }


def drop_regular_bitmaps(font, regular):
    """Keeps the strikes whose glyphs mostly differ from the regular face's
    of the same size."""
    regular_strikes = strikes(regular)
    kept = []
    for size, (strike, glyphs) in strikes(font).items():
        twins = regular_strikes.get(size, (None, {}))[1]
        same = sum(
            1 for name, glyph in glyphs.items() if name in twins and twins[name].data == glyph.data
        )
        if same * 2 < len(glyphs):
            kept.append((strike, glyphs))
    font["EBLC"].strikes = [strike for strike, _ in kept]
    font["EBDT"].strikeData = [glyphs for _, glyphs in kept]


def main(regular_source, source, target):
    font = TTFont(source, recalcTimestamp=False)
    drop_regular_bitmaps(font, TTFont(regular_source))
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
    font["gasp"].gaspRange = SIZE_RANGES
    font.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2], sys.argv[3])
