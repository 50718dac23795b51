#!/usr/bin/python3
"""Builds the TrueType font whose letter "A" is the silhouette of the main window.

Usage: make_font.py OUT.ttf

The program turns the glyph into the window region (CreateFont at -320 px,
BeginPath, TextOutA at the origin, EndPath, PathToRegion), so one font unit is
0.32 px and the outline is designed here in window pixels, y growing downwards.
The shape is a folder: a tab across the top left holding the drag strip and the
logo, a slanted shoulder, and the body below it.
"""

import math
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.misc.timeTools import timestampFromString
from fontTools.pens.ttGlyphPen import TTGlyphPen

FAMILY = "XFont Morvane"
UNITS_PER_EM = 1000
PX_PER_UNIT = 0.32  # a 320 px em
ASCENT = 1000  # the top of the em is the top of the text cell, i.e. window y = 0

CLIENT_WIDTH = 577
CLIENT_HEIGHT = 428
WINDOW_ADVANCE = 1810  # a little over the client width, never seen

# Tab top edge ends past the decoration line at x = 255 and the shoulder
# reaches x >= 300 by y = 42 so the etched line under the logo stays whole.
TAB_RIGHT = 270
BODY_TOP = 44
SHOULDER_RIGHT = 312

# Corners of the silhouette with the radius of each rounding, in pixels, in
# screen-clockwise order: the glyph appears upright on screen, so TrueType sees
# a clockwise, filled contour.  The top-left radius is small because the drag
# strip starts at (3, 0).
WINDOW_CORNERS = [
    (0, 0, 3),
    (TAB_RIGHT, 0, 16),
    (SHOULDER_RIGHT, BODY_TOP, 14),
    (CLIENT_WIDTH, BODY_TOP, 14),
    (CLIENT_WIDTH, CLIENT_HEIGHT, 14),
    (0, CLIENT_HEIGHT, 14),
]

# Longest arc one quadratic segment may span; at 30 degrees the curve stays
# within 0.06 % of the radius of the true circle.
MAX_ARC_STEP = math.radians(30)


def to_units(x, y):
    return (round(x / PX_PER_UNIT), round(ASCENT - y / PX_PER_UNIT))


def _unit(dx, dy):
    length = math.hypot(dx, dy)
    return dx / length, dy / length


def rounded_polygon(corners):
    """Returns the closed contour as ("line", end) and ("qcurve", control, end) steps
    in pixels, starting at the point where the first corner's arc begins."""
    count = len(corners)
    arcs = []
    for i, (vx, vy, radius) in enumerate(corners):
        px, py, _ = corners[i - 1]
        nx, ny, _ = corners[(i + 1) % count]
        to_prev = _unit(px - vx, py - vy)
        to_next = _unit(nx - vx, ny - vy)
        cosine = to_prev[0] * to_next[0] + to_prev[1] * to_next[1]
        half = math.acos(max(-1.0, min(1.0, cosine))) / 2
        reach = radius / math.tan(half)
        start = (vx + to_prev[0] * reach, vy + to_prev[1] * reach)
        end = (vx + to_next[0] * reach, vy + to_next[1] * reach)
        bisector = _unit(to_prev[0] + to_next[0], to_prev[1] + to_next[1])
        centre_dist = radius / math.sin(half)
        centre = (vx + bisector[0] * centre_dist, vy + bisector[1] * centre_dist)
        a0 = math.atan2(start[1] - centre[1], start[0] - centre[0])
        a1 = math.atan2(end[1] - centre[1], end[0] - centre[0])
        sweep = (a1 - a0 + math.pi) % (2 * math.pi) - math.pi  # the short way round
        steps = max(1, math.ceil(abs(sweep) / MAX_ARC_STEP))
        step = sweep / steps
        pieces = []
        for k in range(steps):
            mid = a0 + step * (k + 0.5)
            ctrl_dist = radius / math.cos(step / 2)
            ctrl = (centre[0] + ctrl_dist * math.cos(mid), centre[1] + ctrl_dist * math.sin(mid))
            stop = a0 + step * (k + 1)
            pieces.append((ctrl, (centre[0] + radius * math.cos(stop),
                                  centre[1] + radius * math.sin(stop))))
        arcs.append((start, pieces))

    steps = []
    for i, (start, pieces) in enumerate(arcs):
        if i:
            steps.append(("line", start))
        steps.extend(("qcurve", ctrl, end) for ctrl, end in pieces)
    return arcs[0][0], steps


def window_glyph():
    start, steps = rounded_polygon(WINDOW_CORNERS)
    pen = TTGlyphPen(None)
    current = to_units(*start)
    pen.moveTo(current)
    for kind, *points in steps:
        points = [to_units(*p) for p in points]
        if kind == "line":
            # Rounding to whole units can make an edge vanish; a zero-length
            # segment would only add a stray point.
            if points[0] != current:
                pen.lineTo(points[0])
        else:
            pen.qCurveTo(*points)
        current = points[-1]
    pen.closePath()
    return pen.glyph()


def box_glyph(left, bottom, right, top, stroke):
    pen = TTGlyphPen(None)
    # Outer clockwise, inner counter-clockwise so the middle stays a hole.
    for (x0, y0, x1, y1), clockwise in (((left, bottom, right, top), True),
                                        ((left + stroke, bottom + stroke,
                                          right - stroke, top - stroke), False)):
        corners = [(x0, y0), (x0, y1), (x1, y1), (x1, y0)]
        if not clockwise:
            corners.reverse()
        pen.moveTo(corners[0])
        for p in corners[1:]:
            pen.lineTo(p)
        pen.closePath()
    return pen.glyph()


def build(path):
    glyphs = {
        ".notdef": box_glyph(50, 0, 450, 700, 50),
        "space": TTGlyphPen(None).glyph(),
        "A": window_glyph(),
    }
    advances = {".notdef": 500, "space": 300, "A": WINDOW_ADVANCE}

    fb = FontBuilder(UNITS_PER_EM, isTTF=True)
    # Fixed dates keep the output byte-identical from build to build.
    stamp = timestampFromString("Mon Jan  1 00:00:00 2024")
    fb.updateHead(created=stamp, modified=stamp, fontRevision=1.0)
    fb.setupGlyphOrder(list(glyphs))
    fb.setupCharacterMap({0x20: "space", 0x41: "A", 0x61: "A"})
    fb.setupGlyf(glyphs)
    glyf = fb.font["glyf"]
    fb.setupHorizontalMetrics({name: (advances[name], getattr(glyf[name], "xMin", 0))
                               for name in glyphs})

    lowest = min(getattr(glyf[name], "yMin", 0) for name in glyphs)
    descent = -(lowest // 10) * 10 + 10  # whole tens, with room to spare
    fb.setupHorizontalHeader(ascent=ASCENT, descent=-descent)
    fb.setupNameTable({
        "familyName": FAMILY,
        "styleName": "Regular",
        "uniqueFontIdentifier": FAMILY + " Regular 1.0",
        "fullName": FAMILY,
        "version": "Version 1.000",
        "psName": FAMILY.replace(" ", "") + "-Regular",
        "typographicFamily": FAMILY,
        "typographicSubfamily": "Regular",
    })
    fb.setupOS2(
        version=4,
        achVendID="MRVN",
        fsType=0,
        fsSelection=0x40,  # regular
        usFirstCharIndex=0x20,
        usLastCharIndex=0x61,
        sTypoAscender=ASCENT,
        sTypoDescender=-descent,
        sTypoLineGap=0,
        usWinAscent=ASCENT,
        usWinDescent=descent,
        # Wine picks another face for a font that claims no code page.
        ulCodePageRange1=1 << 0,
        ulCodePageRange2=0,
        sxHeight=500,
        sCapHeight=700,
    )
    fb.setupPost()
    fb.save(path)


def main(argv):
    if len(argv) != 2:
        sys.stderr.write("usage: make_font.py OUT.ttf\n")
        return 2
    build(argv[1])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
