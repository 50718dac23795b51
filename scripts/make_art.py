#!/usr/bin/python3
"""Draws the program's bitmaps and window icon.

Usage: make_art.py OUTDIR

Writes skin.bmp (window texture, also the button faces), logo.bmp (yellow is
its transparent colour) with its larger copies logo125.bmp to logo200.bmp for
displays scaled to 125 % and more, and morvane.ico.  Every random choice comes from a
fixed seed so a rebuild gives the same bytes.
"""

import math
import os
import random
import struct
import sys

from PIL import Image, ImageChops, ImageDraw, ImageFont

# Warm stone of middle tone: the window's labels are white over black, the
# button captions black, and both must read on it. Also the colour the logo's
# edges are smoothed against, because the logo is always drawn over it.
PAPER = (150, 144, 134)
TRANSPARENT = (255, 255, 0)

# At least as wide and high as the window's skin surface (197 x 38 px), so
# that a button face cut from it is textured all the way across.
SKIN_SIZE = 256
LOGO_SIZE = (200, 34)
ICON_SIZES = (16, 32, 48)
SUPERSAMPLE = 4
# Display scales in percent the logo is drawn for, besides 100 %; each is
# drawn on its own, since an enlarged copy of the small one would blur.
LOGO_SCALES = (125, 150, 175, 200)

LOGO_FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf"  # fonts-dejavu-core


# ---------------------------------------------------------------- skin

def _periodic_noise(rng, cells_x, cells_y, size):
    """Smooth value noise on a lattice that wraps, so it repeats every `size` px."""
    lattice = [[rng.uniform(-1.0, 1.0) for _ in range(cells_x)] for _ in range(cells_y)]
    step_x, step_y = size / cells_x, size / cells_y

    def smooth(t):
        return t * t * (3 - 2 * t)

    rows = []
    for y in range(size):
        gy, fy = divmod(y / step_y, 1.0)
        y0, y1 = int(gy) % cells_y, (int(gy) + 1) % cells_y
        sy = smooth(fy)
        row = []
        for x in range(size):
            gx, fx = divmod(x / step_x, 1.0)
            x0, x1 = int(gx) % cells_x, (int(gx) + 1) % cells_x
            sx = smooth(fx)
            top = lattice[y0][x0] + (lattice[y0][x1] - lattice[y0][x0]) * sx
            bottom = lattice[y1][x0] + (lattice[y1][x1] - lattice[y1][x0]) * sx
            row.append(top + (bottom - top) * sy)
        rows.append(row)
    return rows


def make_skin():
    size = SKIN_SIZE
    rng = random.Random(2000)
    mottle = _periodic_noise(rng, 4, 4, size)
    cloud = _periodic_noise(rng, 8, 8, size)
    # Long thin cells read as paper fibres lying across the sheet.
    fibres = _periodic_noise(rng, 4, 64, size)
    fibres_cross = _periodic_noise(rng, 32, 4, size)
    tau = 2 * math.pi
    img = Image.new("RGB", (size, size))
    pixels = img.load()
    for y in range(size):
        for x in range(size):
            # Whole numbers of waves per tile keep the wrap invisible.
            wave = (math.sin(tau * (x + 2 * y) / size) * 0.8
                    + math.sin(tau * (3 * x - y) / size + 1.3) * 0.5)
            shade = (mottle[y][x] * 2.6 + cloud[y][x] * 1.6 + fibres[y][x] * 1.5
                     + fibres_cross[y][x] * 0.8 + wave + rng.gauss(0.0, 0.9))
            warmth = mottle[(y + 64) % size][(x + 32) % size] * 1.2
            pixels[x, y] = tuple(max(0, min(255, round(c + shade + k * warmth)))
                                 for c, k in zip(PAPER, (0.6, 0.0, -0.8)))
    return img


# ---------------------------------------------------------------- shared drawing

def _lerp(a, b, t):
    return tuple(round(p + (q - p) * t) for p, q in zip(a, b))


def _vertical_gradient(size, box, top, bottom):
    """An RGBA layer filled with a top-to-bottom gradient inside `box`."""
    layer = Image.new("RGBA", size, (0, 0, 0, 0))
    draw = ImageDraw.Draw(layer)
    x0, y0, x1, y1 = box
    span = max(1, y1 - y0)
    for y in range(int(y0), int(y1) + 1):
        draw.line([(x0, y), (x1, y)], fill=_lerp(top, bottom, (y - y0) / span) + (255,))
    return layer


def _paint(canvas, shape_mask, fill_layer):
    """Composites `fill_layer` onto `canvas` wherever `shape_mask` is set."""
    layer = fill_layer.copy()
    layer.putalpha(ImageChops.multiply(fill_layer.getchannel("A"), shape_mask))
    canvas.alpha_composite(layer)


def _star(cx, cy, outer, inner, points=5, rotation=-math.pi / 2):
    return [(cx + (outer if i % 2 == 0 else inner) * math.cos(rotation + i * math.pi / points),
             cy + (outer if i % 2 == 0 else inner) * math.sin(rotation + i * math.pi / points))
            for i in range(points * 2)]


def draw_folder(size, box, outline_px, badge_scale=1.0):
    """A friendly amber folder with a blue star badge, on a transparent layer of
    `size`.  `box` is where the folder goes; `outline_px` is the stroke width in
    the layer's own pixels."""
    canvas = Image.new("RGBA", size, (0, 0, 0, 0))
    x0, y0, x1, y1 = box
    w, h = x1 - x0, y1 - y0
    o = outline_px
    radius = max(o, w * 0.08)
    ink = (128, 78, 14, 255)

    # Back panel with its tab.
    back = Image.new("L", size, 0)
    d = ImageDraw.Draw(back)
    d.rounded_rectangle([x0, y0 + h * 0.12, x0 + w * 0.45, y0 + h * 0.35], radius, fill=255)
    d.rounded_rectangle([x0, y0 + h * 0.22, x1, y1], radius, fill=255)
    _paint(canvas, back, Image.new("RGBA", size, ink))
    inner_back = Image.new("L", size, 0)
    d = ImageDraw.Draw(inner_back)
    d.rounded_rectangle([x0 + o, y0 + h * 0.12 + o, x0 + w * 0.45 - o, y0 + h * 0.35],
                        max(1, radius - o), fill=255)
    d.rounded_rectangle([x0 + o, y0 + h * 0.22 + o, x1 - o, y1 - o], max(1, radius - o), fill=255)
    _paint(canvas, inner_back, _vertical_gradient(size, (x0, y0, x1, y1),
                                                  (236, 168, 52), (206, 132, 30)))

    # A sheet of paper tucked inside.
    sheet = Image.new("L", size, 0)
    ImageDraw.Draw(sheet).rectangle([x0 + w * 0.1, y0 + h * 0.28, x1 - w * 0.1, y1 - h * 0.3],
                                    fill=255)
    _paint(canvas, sheet, Image.new("RGBA", size, (250, 250, 246, 255)))

    # Front flap, a little lower than the back so the paper shows.
    front = Image.new("L", size, 0)
    ImageDraw.Draw(front).rounded_rectangle([x0, y0 + h * 0.38, x1, y1], radius, fill=255)
    _paint(canvas, front, Image.new("RGBA", size, ink))
    front_inner = Image.new("L", size, 0)
    ImageDraw.Draw(front_inner).rounded_rectangle([x0 + o, y0 + h * 0.38 + o, x1 - o, y1 - o],
                                                  max(1, radius - o), fill=255)
    _paint(canvas, front_inner, _vertical_gradient(size, (x0, y0 + h * 0.38, x1, y1),
                                                   (255, 214, 102), (242, 168, 48)))
    # A light rim along the flap's top edge gives it a lifted look.
    rim = Image.new("L", size, 0)
    ImageDraw.Draw(rim).rectangle([x0 + radius, y0 + h * 0.38 + o, x1 - radius,
                                   y0 + h * 0.38 + o + max(1, o)], fill=170)
    _paint(canvas, rim, Image.new("RGBA", size, (255, 244, 200, 255)))

    # The badge: a blue disc with a white star.
    r = min(w, h) * 0.25 * badge_scale
    ring = r * 0.14  # thin enough to leave the star room at 16 px
    # Hangs a little off the folder's corner, but never off the canvas.
    cx = min(x1 - r * 0.9, size[0] - r)
    cy = min(y1 - r * 0.9, size[1] - r)
    badge = Image.new("L", size, 0)
    ImageDraw.Draw(badge).ellipse([cx - r, cy - r, cx + r, cy + r], fill=255)
    _paint(canvas, badge, Image.new("RGBA", size, (255, 255, 255, 255)))
    disc = Image.new("L", size, 0)
    ImageDraw.Draw(disc).ellipse([cx - r + ring, cy - r + ring, cx + r - ring, cy + r - ring],
                                 fill=255)
    _paint(canvas, disc, _vertical_gradient(size, (cx - r, cy - r, cx + r, cy + r),
                                            (74, 150, 250), (30, 92, 206)))
    points = Image.new("L", size, 0)
    ImageDraw.Draw(points).polygon(_star(cx, cy + r * 0.04, r * 0.76, r * 0.32), fill=255)
    _paint(canvas, points, Image.new("RGBA", size, (255, 255, 255, 255)))
    return canvas


# ---------------------------------------------------------------- logo

def make_logo(percent=100):
    # Drawn SUPERSAMPLE times larger than it is shown; one pixel of the 100 %
    # design is s pixels there.
    s = SUPERSAMPLE * percent // 100
    width, height = (round(v * percent / 100) for v in LOGO_SIZE)
    big = (width * SUPERSAMPLE, height * SUPERSAMPLE)
    art = draw_folder(big, (2 * s, 3 * s, 38 * s, 31 * s), 1.4 * s, badge_scale=0.95)

    text = "Morvane"
    text_layer = Image.new("L", big, 0)
    tx = 45 * s
    if os.path.exists(LOGO_FONT):
        font = ImageFont.truetype(LOGO_FONT, 30 * s)
        left, top, right, bottom = font.getbbox(text)
        ty = (big[1] - (bottom - top)) // 2 - top
        ImageDraw.Draw(text_layer).text((tx - left, ty), text, font=font, fill=255)
    else:
        # Without DejaVu fall back to PIL's built-in face, enlarged; plainer
        # but the build still completes.
        sys.stderr.write("make_art: %s not found, using PIL's default font\n" % LOGO_FONT)
        plain = Image.new("L", (width, height), 0)
        ImageDraw.Draw(plain).text((0, 0), text, font=ImageFont.load_default(), fill=255)
        plain = plain.crop(plain.getbbox())
        scale = min((width - 48) * s / plain.width, 22 * s / plain.height)
        plain = plain.resize((int(plain.width * scale), int(plain.height * scale)), Image.NEAREST)
        text_layer.paste(plain, (tx, (big[1] - plain.height) // 2))

    # A dark copy just below the letters, as if they stood out of the stone.
    emboss = Image.new("L", big, 0)
    emboss.paste(text_layer, (s // 2 + 1, s))
    _paint(art, emboss, Image.new("RGBA", big, (40, 34, 28, 220)))
    _paint(art, text_layer, _vertical_gradient(big, (0, 6 * s, big[0], 28 * s),
                                               (255, 255, 255), (232, 224, 206)))

    small = art.resize((width, height), Image.LANCZOS)
    backing = Image.new("RGBA", (width, height), PAPER + (255,))
    backing.alpha_composite(small)
    logo = backing.convert("RGB")
    alpha = small.getchannel("A").load()
    pixels = logo.load()
    for y in range(height):
        for x in range(width):
            if alpha[x, y] < 96:
                pixels[x, y] = TRANSPARENT
            elif pixels[x, y] == TRANSPARENT:
                # Any art pixel in the key colour would be punched out.
                pixels[x, y] = (255, 255, 1)
    return logo


# ---------------------------------------------------------------- icon

def make_icon_image(size):
    s = 8
    big = (size * s, size * s)
    if size <= 16:
        # At 16 px detail turns to mush: fill the whole square, on whole pixels.
        box, stroke, badge = (0, 1, 16, 15), 1.0, 1.2
    else:
        box, stroke, badge = (size * 0.06, size * 0.1, size * 0.94, size * 0.9), size / 32, 1.1
    art = draw_folder(big, tuple(v * s for v in box), stroke * s, badge_scale=badge)
    # Box filtering averages whole cells: no ringing halo round the outline.
    return art.resize((size, size), Image.BOX)


def ico_bytes(images, kind=1):
    """Classic DIB icon entries, 32 bpp with an AND mask, which every Windows
    version and Wine load, unlike PNG-compressed entries: an .ico (kind 1) or
    a .cur (kind 2, hot spot 0, 0) of RGBA images."""
    entries, blobs = [], []
    for img in images:
        w, h = img.size
        header = struct.pack("<IiiHHIIiiII", 40, w, h * 2, 1, 32, 0, 0, 0, 0, 0, 0)
        rgba = img.load()
        colour = bytearray()
        mask = bytearray()
        mask_stride = ((w + 31) // 32) * 4
        for y in reversed(range(h)):
            row_mask = bytearray(mask_stride)
            for x in range(w):
                r, g, b, a = rgba[x, y]
                colour += bytes((b, g, r, a))
                if a == 0:
                    row_mask[x // 8] |= 0x80 >> (x % 8)
            mask += row_mask
        blob = header + bytes(colour) + bytes(mask)
        entries.append((w, h, len(blob)))
        blobs.append(blob)
    out = bytearray(struct.pack("<HHH", 0, kind, len(images)))
    offset = 6 + 16 * len(images)
    planes_bits_or_hot_spot = (1, 32) if kind == 1 else (0, 0)
    for (w, h, length), blob in zip(entries, blobs):
        out += struct.pack("<BBBBHHII", w % 256, h % 256, 0, 0, *planes_bits_or_hot_spot, length,
                           offset)
        offset += length
    for blob in blobs:
        out += blob
    return bytes(out)


def write_ico(path, images):
    with open(path, "wb") as f:
        f.write(ico_bytes(images))


# ---------------------------------------------------------------- main

def main(argv):
    if len(argv) != 2:
        sys.stderr.write("usage: make_art.py OUTDIR\n")
        return 2
    out = argv[1]
    os.makedirs(out, exist_ok=True)
    make_skin().save(os.path.join(out, "skin.bmp"))
    make_logo().save(os.path.join(out, "logo.bmp"))
    for percent in LOGO_SCALES:
        make_logo(percent).save(os.path.join(out, "logo%d.bmp" % percent))
    write_ico(os.path.join(out, "morvane.ico"), [make_icon_image(n) for n in ICON_SIZES])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
