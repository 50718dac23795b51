#!/usr/bin/python3
"""Draws the folder icons of iconos.dll, the icon library Morvane ships.

Usage: make_folder_icons.py OUTDIR [--sheet SHEET.png]

Writes one .ico per folder (16, 32 and 48 pixel images, 32-bit with alpha)
and iconos.rc, which lists them in the order the browser shows them. With
--sheet it also renders every icon at 16, 32 and 48 pixels on a light and a
dark backing into one picture, for looking them over.
"""

import math
import os
import sys

from PIL import Image, ImageChops, ImageDraw, ImageFilter

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from make_art import write_ico  # noqa: E402  (one .ico writer for the project)

# The large icon's sizes at 100, 125, 150 and 200 % besides the small one:
# each drawn for itself, never enlarged from a smaller one.
SIZES = (16, 32, 40, 48, 64)
SUPERSAMPLE = 8

# Front colours. Back panel, outline and symbol shadow are derived from them.
AMBER = (247, 190, 58)
BLUE = (66, 139, 226)
GREEN = (72, 170, 90)
RED = (226, 74, 70)
PURPLE = (145, 98, 210)
ORANGE = (243, 139, 46)
PINK = (234, 98, 156)
TEAL = (34, 165, 158)
GRAPHITE = (112, 122, 136)
BROWN = (170, 118, 76)
SKY = (74, 178, 236)
INDIGO = (94, 106, 198)
NAVY = (58, 88, 156)
LIME = (132, 184, 60)
GOLD = (238, 170, 30)


# ---------------------------------------------------------------- colour

def _mix(a, b, t):
    return tuple(round(p + (q - p) * t) for p, q in zip(a, b))


def _lighter(c, t):
    return _mix(c, (255, 255, 255), t)


def _darker(c, t):
    return _mix(c, (0, 0, 0), t)


# ---------------------------------------------------------------- layers

class Canvas:
    """A supersampled drawing of one icon: masks are drawn in `unit` space
    (0..1 across the icon) and painted onto an RGBA layer."""

    def __init__(self, size):
        self.size = size
        self.side = size * SUPERSAMPLE
        self.image = Image.new("RGBA", (self.side, self.side), (0, 0, 0, 0))

    def px(self, value):
        """Target pixels to canvas pixels."""
        return value * SUPERSAMPLE

    def mask(self):
        return Image.new("L", (self.side, self.side), 0)

    def paint(self, mask, fill, opacity=1.0):
        if isinstance(fill, tuple):
            layer = Image.new("RGBA", self.image.size, fill + (255,))
        else:
            layer = fill
        alpha = ImageChops.multiply(layer.getchannel("A"), mask)
        if opacity < 1.0:
            alpha = alpha.point(lambda v: round(v * opacity))
        layer = layer.copy()
        layer.putalpha(alpha)
        self.image.alpha_composite(layer)

    def gradient(self, top_y, bottom_y, top, bottom):
        layer = Image.new("RGBA", self.image.size)
        draw = ImageDraw.Draw(layer)
        span = max(1.0, bottom_y - top_y)
        for y in range(self.side):
            t = min(1.0, max(0.0, (y - top_y) / span))
            draw.line([(0, y), (self.side, y)], fill=_mix(top, bottom, t) + (255,))
        return layer

    def finish(self):
        return self.image.resize((self.size, self.size), Image.BOX)


# ---------------------------------------------------------------- the folder

def _geometry(size):
    """Edges of the folder in target pixels, on whole pixels so that they
    stay crisp; the small icon fills its square, the others leave room for
    the shadow."""
    if size <= 16:
        return dict(left=0, right=16, tab_top=1.5, back_top=3, front_top=5, bottom=15,
                    tab_right=6.5, radius=1.2, stroke=1.0)
    k = size / 32
    return dict(left=round(1 * k), right=size - round(1 * k), tab_top=round(4 * k),
                back_top=round(6.5 * k), front_top=round(10 * k), bottom=size - round(3.5 * k),
                tab_right=round(13 * k), radius=2.2 * k, stroke=k)


def _folder_shapes(c, g, inset=0.0):
    """Masks of the back panel (with its tab) and of the front flap, shrunk
    by `inset` canvas pixels on every side."""
    p = c.px
    k = inset
    left, right, bottom = p(g["left"]) + k, p(g["right"]) - k, p(g["bottom"]) - k
    tab_top, back_top, front_top = p(g["tab_top"]) + k, p(g["back_top"]) + k, p(g["front_top"])
    tab_right = p(g["tab_right"]) - k
    r = max(1.0, p(g["radius"]) - k)
    back = c.mask()
    d = ImageDraw.Draw(back)
    d.rounded_rectangle([left, tab_top, tab_right, front_top], r, fill=255)
    # The tab's right edge slopes down into the panel.
    drop = back_top - tab_top
    d.polygon([(tab_right - r, tab_top), (tab_right + drop * 0.2, tab_top),
               (tab_right + drop * 1.3, back_top), (tab_right + drop * 1.3, back_top + r),
               (tab_right - r, back_top + r)], fill=255)
    d.rounded_rectangle([left, back_top, right, bottom], r, fill=255)
    front = c.mask()
    ImageDraw.Draw(front).rounded_rectangle([left, front_top + k, right, bottom], r, fill=255)
    return back, front


def draw_folder(size, colour, symbol):
    c = Canvas(size)
    g = _geometry(size)
    p = c.px
    stroke = p(g["stroke"])
    back, front = _folder_shapes(c, g)
    inner_back, inner = _folder_shapes(c, g, inset=stroke)
    outline = _darker(colour, 0.42)

    if size > 16:
        # A soft shadow under the folder lifts it off light backgrounds.
        shadow = ImageChops.offset(ImageChops.lighter(back, front), 0, int(p(1.0 * size / 32)))
        shadow = shadow.filter(ImageFilter.GaussianBlur(p(0.9 * size / 32)))
        c.paint(shadow, (0, 0, 0), opacity=0.28)

    # Back panel: an outline and a darker fill.
    c.paint(back, outline)
    c.paint(inner_back, c.gradient(p(g["tab_top"]), p(g["bottom"]),
                                             _darker(colour, 0.10), _darker(colour, 0.24)))
    # A sheet of paper showing between the panels.
    sheet = c.mask()
    ImageDraw.Draw(sheet).rectangle(
        [p(g["left"] + (g["right"] - g["left"]) * 0.12), p(g["back_top"] + g["stroke"] * 1.5),
         p(g["right"] - (g["right"] - g["left"]) * 0.12), p(g["bottom"] - 2)], fill=255)
    c.paint(sheet, (250, 250, 247))

    # Front flap, lit from above.
    c.paint(front, outline)
    c.paint(inner, c.gradient(p(g["front_top"]), p(g["bottom"]),
                              _lighter(colour, 0.22), _darker(colour, 0.04)))
    rim = ImageChops.subtract(inner, ImageChops.offset(inner, 0, int(max(stroke, p(1)))))
    c.paint(rim, _lighter(colour, 0.55), opacity=0.9)

    if symbol:
        _draw_symbol(c, g, colour, symbol)
    return c.finish()


# ---------------------------------------------------------------- symbols

def _symbol_box(c, g):
    """Where a symbol goes: centred on the front flap, in canvas pixels."""
    p = c.px
    top, bottom = g["front_top"], g["bottom"]
    height = bottom - top
    if c.size <= 16:
        return p(4), p(6), p(8)  # whole pixels: the only way to stay sharp
    side = height * 0.72
    cx = (g["left"] + g["right"]) / 2
    cy = top + height * 0.52
    return p(cx - side / 2), p(cy - side / 2), p(side)


def _draw_symbol(c, g, colour, symbol):
    x0, y0, side = _symbol_box(c, g)
    mask = c.mask()
    draw = ImageDraw.Draw(mask)

    def at(u, v):
        return (x0 + u * side, y0 + v * side)

    def box(u0, v0, u1, v1):
        return [x0 + u0 * side, y0 + v0 * side, x0 + u1 * side, y0 + v1 * side]

    SYMBOLS[symbol](draw, at, box, side, c.size)
    if c.size > 16:
        # Pressed into the flap: a darker copy a little lower, then the symbol.
        drop = int(c.px(c.size / 32))
        c.paint(ImageChops.offset(mask, 0, drop), _darker(colour, 0.38), opacity=0.7)
    c.paint(mask, (255, 255, 255), opacity=0.96)


def _width(side, share, size):
    """A stroke width; never under one target pixel, which would only blur."""
    return max(SUPERSAMPLE, int(side * share)) if size <= 16 else max(1, int(side * share))


def sym_music(d, at, box, side, size):
    d.ellipse(box(0.06, 0.64, 0.42, 0.92), fill=255)
    d.ellipse(box(0.54, 0.56, 0.90, 0.84), fill=255)
    w = 0.11
    d.rectangle(box(0.42 - w, 0.16, 0.42, 0.78), fill=255)
    d.rectangle(box(0.90 - w, 0.08, 0.90, 0.70), fill=255)
    d.polygon([at(0.42 - w, 0.16), at(0.90, 0.04), at(0.90, 0.26), at(0.42 - w, 0.38)],
              fill=255)


def sym_photo(d, at, box, side, size):
    if size <= 16:  # no room for the frame: the landscape alone
        d.polygon([at(0.0, 0.94), at(0.36, 0.38), at(0.62, 0.72), at(0.74, 0.56),
                   at(1.0, 0.94)], fill=255)
        d.ellipse(box(0.62, 0.06, 0.94, 0.38), fill=255)
        return
    d.rounded_rectangle(box(0.02, 0.12, 0.98, 0.90), side * 0.1, fill=255)
    d.rounded_rectangle(box(0.12, 0.22, 0.88, 0.80), side * 0.04, fill=0)
    d.polygon([at(0.12, 0.80), at(0.38, 0.44), at(0.58, 0.70), at(0.68, 0.58),
               at(0.88, 0.80)], fill=255)
    d.ellipse(box(0.62, 0.28, 0.78, 0.44), fill=255)


def sym_video(d, at, box, side, size):
    d.rounded_rectangle(box(0.02, 0.16, 0.98, 0.86), side * 0.14, fill=255)
    d.polygon([at(0.38, 0.32), at(0.38, 0.70), at(0.70, 0.51)], fill=0)


def sym_document(d, at, box, side, size):
    d.polygon([at(0.16, 0.02), at(0.62, 0.02), at(0.86, 0.26), at(0.86, 0.98),
               at(0.16, 0.98)], fill=255)
    d.polygon([at(0.58, 0.04), at(0.58, 0.30), at(0.84, 0.30)], fill=0)
    if size > 16:
        for v in (0.46, 0.62, 0.78):
            d.rectangle(box(0.28, v, 0.74, v + 0.07), fill=0)


def sym_code(d, at, box, side, size):
    w = _width(side, 0.13, size)
    d.line([at(0.30, 0.20), at(0.06, 0.50), at(0.30, 0.80)], fill=255, width=w, joint="curve")
    d.line([at(0.70, 0.20), at(0.94, 0.50), at(0.70, 0.80)], fill=255, width=w, joint="curve")
    if size > 16:
        d.line([at(0.58, 0.10), at(0.42, 0.90)], fill=255, width=w)


def sym_download(d, at, box, side, size):
    d.rectangle(box(0.39, 0.02, 0.61, 0.46), fill=255)
    d.polygon([at(0.14, 0.40), at(0.86, 0.40), at(0.50, 0.78)], fill=255)
    d.rounded_rectangle(box(0.08, 0.84, 0.92, 0.98), side * 0.05, fill=255)


def _star(cx, cy, outer, inner, points=5):
    turn = -math.pi / 2
    return [(cx + (outer if i % 2 == 0 else inner) * math.cos(turn + i * math.pi / points),
             cy + (outer if i % 2 == 0 else inner) * math.sin(turn + i * math.pi / points))
            for i in range(points * 2)]


def sym_star(d, at, box, side, size):
    cx, cy = at(0.5, 0.55)
    d.polygon(_star(cx, cy, side * 0.52, side * 0.23), fill=255)


def sym_heart(d, at, box, side, size):
    d.ellipse(box(0.04, 0.10, 0.54, 0.60), fill=255)
    d.ellipse(box(0.46, 0.10, 0.96, 0.60), fill=255)
    d.polygon([at(0.08, 0.46), at(0.92, 0.46), at(0.50, 0.94)], fill=255)


def sym_lock(d, at, box, side, size):
    w = _width(side, 0.14, size)
    d.arc(box(0.24, 0.02, 0.76, 0.62), 180, 360, fill=255, width=w)
    d.rectangle(box(0.24, 0.30, 0.24 + w / side, 0.50), fill=255)
    d.rectangle(box(0.76 - w / side, 0.30, 0.76, 0.50), fill=255)
    d.rounded_rectangle(box(0.10, 0.44, 0.90, 0.98), side * 0.1, fill=255)
    if size > 16:
        d.ellipse(box(0.42, 0.56, 0.58, 0.72), fill=0)
        d.rectangle(box(0.465, 0.64, 0.535, 0.84), fill=0)
    else:
        d.rectangle(box(0.42, 0.60, 0.58, 0.80), fill=0)


def sym_cloud(d, at, box, side, size):
    d.ellipse(box(0.02, 0.42, 0.42, 0.86), fill=255)
    d.ellipse(box(0.22, 0.14, 0.70, 0.66), fill=255)
    d.ellipse(box(0.54, 0.34, 0.98, 0.86), fill=255)
    d.rectangle(box(0.22, 0.56, 0.78, 0.86), fill=255)


def sym_archive(d, at, box, side, size):
    d.rounded_rectangle(box(0.04, 0.08, 0.96, 0.32), side * 0.05, fill=255)
    d.rectangle(box(0.12, 0.38, 0.88, 0.96), fill=255)
    d.rounded_rectangle(box(0.34, 0.48, 0.66, 0.60), side * 0.04, fill=0)


def sym_games(d, at, box, side, size):
    d.rounded_rectangle(box(0.02, 0.24, 0.98, 0.72), side * 0.22, fill=255)
    d.ellipse(box(0.02, 0.40, 0.38, 0.90), fill=255)
    d.ellipse(box(0.62, 0.40, 0.98, 0.90), fill=255)
    t = 0.06
    d.rectangle(box(0.24 - t, 0.34, 0.24 + t, 0.62), fill=0)
    d.rectangle(box(0.10, 0.48 - t, 0.38, 0.48 + t), fill=0)
    r = 0.075
    d.ellipse(box(0.72 - r, 0.40 - r, 0.72 + r, 0.40 + r), fill=0)
    d.ellipse(box(0.84 - r, 0.54 - r, 0.84 + r, 0.54 + r), fill=0)


def sym_work(d, at, box, side, size):
    w = _width(side, 0.10, size)
    d.rounded_rectangle(box(0.32, 0.06, 0.68, 0.34), side * 0.06, outline=255, width=w)
    d.rounded_rectangle(box(0.04, 0.26, 0.96, 0.94), side * 0.1, fill=255)
    if size > 16:
        d.rectangle(box(0.04, 0.54, 0.96, 0.60), fill=0)
        d.rectangle(box(0.43, 0.50, 0.57, 0.66), fill=255)


def sym_home(d, at, box, side, size):
    d.polygon([at(0.50, 0.04), at(0.98, 0.50), at(0.02, 0.50)], fill=255)
    d.rectangle(box(0.16, 0.44, 0.84, 0.96), fill=255)
    d.rectangle(box(0.40, 0.62, 0.60, 0.96), fill=0)


def sym_settings(d, at, box, side, size):
    cx, cy = at(0.5, 0.5)
    teeth = 8
    for i in range(teeth):
        a = i * 2 * math.pi / teeth
        ca, sa = math.cos(a), math.sin(a)
        half, inner, outer = side * 0.10, side * 0.30, side * 0.50
        pts = [(-half, inner), (half, inner), (half * 0.8, outer), (-half * 0.8, outer)]
        d.polygon([(cx + u * ca - v * sa, cy + u * sa + v * ca) for u, v in pts], fill=255)
    d.ellipse(box(0.16, 0.16, 0.84, 0.84), fill=255)
    d.ellipse(box(0.36, 0.36, 0.64, 0.64), fill=0)


def sym_mail(d, at, box, side, size):
    d.rounded_rectangle(box(0.02, 0.16, 0.98, 0.86), side * 0.08, fill=255)
    w = _width(side, 0.08, size)
    d.line([at(0.06, 0.22), at(0.50, 0.56), at(0.94, 0.22)], fill=0, width=w, joint="curve")


def sym_important(d, at, box, side, size):
    d.polygon([at(0.36, 0.02), at(0.64, 0.02), at(0.58, 0.66), at(0.42, 0.66)], fill=255)
    d.ellipse(box(0.37, 0.74, 0.63, 1.0), fill=255)


def sym_done(d, at, box, side, size):
    w = _width(side, 0.17, size)
    d.line([at(0.06, 0.52), at(0.38, 0.82), at(0.94, 0.18)], fill=255, width=w, joint="curve")


def sym_people(d, at, box, side, size):
    d.ellipse(box(0.30, 0.02, 0.70, 0.42), fill=255)
    d.chord(box(0.08, 0.48, 0.92, 1.30), 180, 360, fill=255)


def sym_web(d, at, box, side, size):
    w = _width(side, 0.08, size)
    d.ellipse(box(0.04, 0.04, 0.96, 0.96), outline=255, width=w)
    d.ellipse(box(0.30, 0.04, 0.70, 0.96), outline=255, width=w)
    d.line([at(0.06, 0.50), at(0.94, 0.50)], fill=255, width=w)
    if size > 16:
        d.line([at(0.50, 0.06), at(0.50, 0.94)], fill=255, width=w)


def sym_apps(d, at, box, side, size):
    r = side * 0.08
    for u, v in ((0.06, 0.06), (0.54, 0.06), (0.06, 0.54), (0.54, 0.54)):
        d.rounded_rectangle(box(u, v, u + 0.40, v + 0.40), r, fill=255)


def sym_clock(d, at, box, side, size):
    d.ellipse(box(0.04, 0.04, 0.96, 0.96), fill=255)
    w = _width(side, 0.10, size)
    d.line([at(0.50, 0.20), at(0.50, 0.52), at(0.72, 0.64)], fill=0, width=w, joint="curve")


SYMBOLS = {
    "music": sym_music, "photos": sym_photo, "videos": sym_video, "documents": sym_document,
    "code": sym_code, "downloads": sym_download, "favourites": sym_star, "loved": sym_heart,
    "private": sym_lock, "cloud": sym_cloud, "archive": sym_archive, "games": sym_games,
    "work": sym_work, "home": sym_home, "settings": sym_settings, "mail": sym_mail,
    "important": sym_important, "done": sym_done, "people": sym_people, "web": sym_web,
    "apps": sym_apps, "recent": sym_clock,
}

# In the order the browser shows them; the classic folder comes first.
FOLDERS = [
    ("folder", AMBER, None),
    ("blue", BLUE, None),
    ("green", GREEN, None),
    ("red", RED, None),
    ("purple", PURPLE, None),
    ("orange", ORANGE, None),
    ("pink", PINK, None),
    ("teal", TEAL, None),
    ("graphite", GRAPHITE, None),
    ("documents", BLUE, "documents"),
    ("photos", TEAL, "photos"),
    ("music", PURPLE, "music"),
    ("videos", RED, "videos"),
    ("downloads", GREEN, "downloads"),
    ("code", GRAPHITE, "code"),
    ("favourites", GOLD, "favourites"),
    ("loved", PINK, "loved"),
    ("private", NAVY, "private"),
    ("cloud", SKY, "cloud"),
    ("archive", BROWN, "archive"),
    ("games", INDIGO, "games"),
    ("work", NAVY, "work"),
    ("home", ORANGE, "home"),
    ("settings", GRAPHITE, "settings"),
    ("mail", SKY, "mail"),
    ("important", RED, "important"),
    ("done", GREEN, "done"),
    ("people", TEAL, "people"),
    ("web", BLUE, "web"),
    ("apps", INDIGO, "apps"),
    ("recent", LIME, "recent"),
]


# ---------------------------------------------------------------- output

def render_all():
    return [(name, [draw_folder(size, colour, symbol) for size in SIZES])
            for name, colour, symbol in FOLDERS]


def write_library_sources(out, rendered):
    lines = ["// Folder icons of iconos.dll, drawn by scripts/make_folder_icons.py."]
    for number, (name, images) in enumerate(rendered, start=1):
        file_name = "%02d_%s.ico" % (number, name)
        write_ico(os.path.join(out, file_name), images)
        lines.append('%d ICON "%s"' % (number, file_name))
    with open(os.path.join(out, "iconos.rc"), "w") as f:
        f.write("\n".join(lines) + "\n")


def contact_sheet(rendered, path):
    columns = 8
    cell = 16 + 32 + 48 + 4 * 8
    rows = (len(rendered) + columns - 1) // columns
    sheet = Image.new("RGBA", (columns * cell, rows * 2 * 56), (255, 255, 255, 255))
    for i, (_, images) in enumerate(rendered):
        x0, y0 = (i % columns) * cell, (i // columns) * 2 * 56
        for band, backing in enumerate(((246, 246, 246), (44, 48, 54))):
            top = y0 + band * 56
            ImageDraw.Draw(sheet).rectangle([x0, top, x0 + cell - 1, top + 55],
                                            fill=backing + (255,))
            x = x0 + 6
            for image in images:
                sheet.alpha_composite(image, (x, top + (56 - image.height) // 2))
                x += image.width + 8
    sheet.convert("RGB").save(path)


def main(argv):
    args = argv[1:]
    sheet = None
    if "--sheet" in args:
        at = args.index("--sheet")
        sheet = args[at + 1]
        del args[at:at + 2]
    if len(args) != 1:
        sys.stderr.write("usage: make_folder_icons.py OUTDIR [--sheet SHEET.png]\n")
        return 2
    out = args[0]
    os.makedirs(out, exist_ok=True)
    rendered = render_all()
    write_library_sources(out, rendered)
    if sheet:
        contact_sheet(rendered, sheet)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
