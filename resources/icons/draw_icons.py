#!/usr/bin/python3
"""Draws every icon of the product and writes the .ico files next to this script.

    draw_icons.py             writes the icons
    draw_icons.py SHEET.png   writes a contact sheet of all icons, enlarged, and no icon

A state is told by its shape, not by its colour alone: each picture has an outline of its own that
can be told apart at 16 pixels, in grey, and on light and dark task bars. Needs python3-pil.
"""

import io
import math
import os
import struct
import sys

from PIL import Image, ImageDraw

# Every picture is drawn in a square of 64 units, many times enlarged, and then made small.
UNITS = 64
ENLARGE = 8

SIZES = (16, 20, 24, 32, 40, 48, 64)
LARGE = (256,)  # for the program's own icon; kept as PNG
BADGE_UP_TO = 24  # small pictures have a larger badge and fewer details

BLUE = (0x1B, 0x74, 0xD0)
DEEP_BLUE = (0x0E, 0x4E, 0x93)
PALE_BLUE = (0x8F, 0xC4, 0xF4)
AMBER = (0xF2, 0xA3, 0x0F)
BROWN = (0x6B, 0x3E, 0x00)
RED = (0xD9, 0x2D, 0x20)
GREEN = (0x2E, 0x8B, 0x1E)
SLATE = (0x5A, 0x67, 0x75)
WHITE = (0xFF, 0xFF, 0xFF)


class Canvas:
    """A square of 64 units with a transparent ground."""

    def __init__(self, size):
        self.size = size
        self.small = size <= BADGE_UP_TO
        self.scale = size * ENLARGE / UNITS
        self.image = Image.new("RGBA", (size * ENLARGE, size * ENLARGE), (0, 0, 0, 0))
        self.draw = ImageDraw.Draw(self.image)

    def at(self, points):
        return [(x * self.scale, y * self.scale) for x, y in points]

    def disc(self, x, y, radius, colour):
        self.draw.ellipse(self.at([(x - radius, y - radius), (x + radius, y + radius)]), fill=colour)

    def box(self, left, top, right, bottom, radius, colour):
        self.draw.rounded_rectangle(
            self.at([(left, top), (right, bottom)]), radius * self.scale, fill=colour)

    def polygon(self, points, colour):
        self.draw.polygon(self.at(points), fill=colour)

    def line(self, points, width, colour):
        """A line with round ends and corners."""
        self.draw.line(self.at(points), fill=colour, width=round(width * self.scale))
        for x, y in points:
            self.disc(x, y, width / 2, colour)

    def arc(self, x, y, radius, width, start, end, colour):
        box = self.at([(x - radius, y - radius), (x + radius, y + radius)])
        self.draw.arc(box, start, end, fill=colour, width=round(width * self.scale))

    def erase(self, shape):
        """Takes `shape` (a function that draws on a canvas) out of the picture."""
        stencil = Canvas(self.size)
        shape(stencil)
        hole = stencil.image.getchannel("A")
        alpha = self.image.getchannel("A")
        alpha.paste(0, mask=hole)
        self.image.putalpha(alpha)

    def finished(self):
        # Weighted by alpha, so that edges do not darken.
        return self.image.convert("RGBa").resize((self.size, self.size), Image.BOX).convert("RGBA")


def around(x, y, radius, count, turn=0.0):
    return [(x + radius * math.cos(math.radians(turn + 360 * step / count)),
             y + radius * math.sin(math.radians(turn + 360 * step / count)))
            for step in range(count)]


def cloud(canvas, colour, grow=0.0):
    canvas.disc(18, 39, 14 + grow, colour)
    canvas.disc(33, 27, 17 + grow, colour)
    canvas.disc(48, 39, 13 + grow, colour)
    canvas.box(17 - grow, 30, 49 + grow, 53 + grow, 4, colour)


def up_arrow(canvas, colour, x=33.0, top=22.0, bottom=46.0):
    width = 7 if canvas.small else 6
    canvas.line([(x, top + 4), (x, bottom)], width, colour)
    canvas.line([(x - 9, top + 12), (x, top + 2), (x + 9, top + 12)], width, colour)


def badge_place(canvas):
    """Middle and radius of the badge in the lower right."""
    return (44, 44, 20) if canvas.small else (46, 46, 17)


def badge(canvas, shape):
    """A badge with a clear rim around it; `shape(canvas, x, y, radius, colour)` is its outline."""
    x, y, radius = badge_place(canvas)
    canvas.erase(lambda stencil: shape(stencil, x, y, radius + 4, WHITE))
    return x, y, radius


def round_badge(canvas, x, y, radius, colour):
    canvas.disc(x, y, radius, colour)


def octagon_badge(canvas, x, y, radius, colour):
    canvas.polygon(around(x, y, radius * 1.06, 8, 22.5), colour)


def square_badge(canvas, x, y, radius, colour):
    side = radius * 0.92
    canvas.box(x - side, y - side, x + side, y + side, 5, colour)


def tvlog(canvas):
    """At rest: a cloud with an arrow into it."""
    cloud(canvas, BLUE)
    up_arrow(canvas, WHITE)


def play(canvas, x, y, radius, colour):
    reach = radius * 0.62
    canvas.polygon([(x - reach * 0.7, y - reach), (x + reach, y), (x - reach * 0.7, y + reach)],
                   colour)


def tvlogyellow(canvas):
    """A job runs: the cloud with a play badge."""
    cloud(canvas, AMBER)
    x, y, radius = badge(canvas, square_badge)
    square_badge(canvas, x, y, radius, BROWN)
    play(canvas, x, y, radius, WHITE)


def tvlogyellowp(canvas):
    """A job runs in a branded edition: no cloud, a disc with the play sign."""
    canvas.disc(32, 32, 30, BROWN)
    canvas.disc(32, 32, 25, AMBER)
    play(canvas, 33, 32, 25, BROWN)


def tvlogred(canvas):
    """Cancelled or failed: an octagon with a cross."""
    cloud(canvas, SLATE)
    x, y, radius = badge(canvas, octagon_badge)
    octagon_badge(canvas, x, y, radius, RED)
    arm = radius * 0.42
    width = 6.5 if canvas.small else 5
    canvas.line([(x - arm, y - arm), (x + arm, y + arm)], width, WHITE)
    canvas.line([(x - arm, y + arm), (x + arm, y - arm)], width, WHITE)


def tvloggreen(canvas):
    """Finished: a disc with a tick."""
    cloud(canvas, SLATE)
    x, y, radius = badge(canvas, round_badge)
    canvas.disc(x, y, radius, GREEN)
    width = 6.5 if canvas.small else 5
    canvas.line([(x - radius * 0.48, y + radius * 0.02), (x - radius * 0.1, y + radius * 0.42),
                 (x + radius * 0.52, y - radius * 0.36)], width, WHITE)


def arrow_head(canvas, angle, radius, reach, colour):
    x, y = 32 + radius * math.cos(math.radians(angle)), 32 + radius * math.sin(math.radians(angle))
    canvas.polygon(around(x, y, reach, 3, angle + 90), colour)


def turning_arrows(canvas, turn, colour, core):
    """Two arrows chasing each other around `core`."""
    for start in (turn, turn + 180):
        canvas.arc(32, 32, 29, 9, start, start + 118, colour)
        arrow_head(canvas, start + 126, 24.5, 14, colour)
    canvas.disc(32, 32, 9 if canvas.small else 10, core)


def cdp_blue_1(canvas):
    """Continuous backup, first phase."""
    turning_arrows(canvas, 10, BLUE, DEEP_BLUE)


def cdp_blue_2(canvas):
    """Continuous backup, second phase: turned on."""
    turning_arrows(canvas, 100, BLUE, PALE_BLUE)


def triangle(canvas, colour, shrink=0.0):
    """With round corners; `shrink` moves every side inwards."""
    points = [(32, 9 + 2.1 * shrink), (57 - 1.75 * shrink, 54 - shrink),
              (7 + 1.75 * shrink, 54 - shrink)]
    if shrink == 0:
        canvas.line(points + points[:1], 10, colour)
    canvas.polygon(points, colour)


def exclamation(canvas, colour):
    width = 8 if canvas.small else 7
    canvas.line([(32, 23), (32, 38)], width, colour)
    canvas.disc(32, 49.5, width * 0.6, colour)


def q_exceed_1(canvas):
    """The quota is used up, first phase: a full triangle."""
    triangle(canvas, RED)
    exclamation(canvas, WHITE)


def q_exceed_2(canvas):
    """Second phase: its outline."""
    triangle(canvas, RED)
    triangle(canvas, WHITE, 1)
    exclamation(canvas, RED)


def info(canvas):
    canvas.disc(32, 32, 30, BLUE)
    canvas.disc(32, 19, 4.6, WHITE)
    canvas.line([(32, 31), (32, 47)], 7.5, WHITE)


def warn(canvas):
    triangle(canvas, AMBER)
    exclamation(canvas, (0x3A, 0x22, 0x00))


def question(canvas):
    canvas.disc(32, 32, 30, BLUE)
    canvas.arc(32, 25.5, 13, 7, 175, 400, WHITE)
    start = [(32 + 9.5 * math.cos(math.radians(angle)), 25.5 + 9.5 * math.sin(math.radians(angle)))
             for angle in (175, 400)]
    canvas.disc(*start[0], 3.5, WHITE)
    canvas.line([start[1], (32.6, 35.5), (32, 39)], 7, WHITE)
    canvas.disc(32, 49, 4.4, WHITE)


def close(canvas):
    canvas.line([(18, 18), (46, 46)], 6, SLATE)
    canvas.line([(18, 46), (46, 18)], 6, SLATE)


def hide(canvas):
    canvas.line([(16, 44), (48, 44)], 6, SLATE)


def slider_knob_1(canvas):
    canvas.disc(32, 32, 31, BLUE)
    canvas.disc(32, 32, 23, WHITE)
    canvas.disc(32, 32, 13, BLUE)


def sorvane(canvas):
    """The program's own icon: the cloud on a tile."""
    canvas.box(2, 2, 62, 62, 14, DEEP_BLUE)
    small = Canvas(canvas.size)
    cloud(small, WHITE)
    up_arrow(small, BLUE)
    side = round(small.image.width * 0.82)
    inner = small.image.resize((side, side), Image.LANCZOS)
    offset = (small.image.width - side) // 2
    canvas.image.alpha_composite(inner, (offset, offset))


# File name, picture, sizes.
ICONS = (
    ("tvlog", tvlog, SIZES),
    ("tvlogyellow", tvlogyellow, SIZES),
    ("tvlogyellowp", tvlogyellowp, SIZES),
    ("tvlogred", tvlogred, SIZES),
    ("tvloggreen", tvloggreen, SIZES),
    ("CDPBlue1", cdp_blue_1, SIZES),
    ("CDPBlue2", cdp_blue_2, SIZES),
    ("QExceed1", q_exceed_1, SIZES),
    ("QExceed2", q_exceed_2, SIZES),
    ("info", info, SIZES),
    ("warn", warn, SIZES),
    ("question", question, SIZES),
    ("slider_knob1", slider_knob_1, SIZES),
    ("close", close, SIZES),
    ("hide", hide, SIZES),
    ("sorvane", sorvane, SIZES + LARGE),
)


def drawn(picture, size):
    canvas = Canvas(size)
    picture(canvas)
    return canvas.finished()


def as_bitmap(image):
    """An image of an icon file: header, pixels from the bottom up, and the mask of old systems."""
    size = image.width
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = image.transpose(Image.FLIP_TOP_BOTTOM).tobytes("raw", "BGRA")
    stride = (size + 31) // 32 * 4
    mask = bytearray(stride * size)
    for row in range(size):
        for column in range(size):
            if image.getpixel((column, size - 1 - row))[3] == 0:
                mask[row * stride + column // 8] |= 0x80 >> column % 8
    return header + pixels + bytes(mask)


def as_png(image):
    data = io.BytesIO()
    image.save(data, "PNG", optimize=True)
    return data.getvalue()


def write_icon(path, picture, sizes):
    images = [(size, drawn(picture, size)) for size in sizes]
    blocks = [as_png(image) if size in LARGE else as_bitmap(image) for size, image in images]
    offset = 6 + 16 * len(blocks)
    directory = struct.pack("<HHH", 0, 1, len(blocks))
    for (size, _), block in zip(images, blocks):
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(block), offset)
        offset += len(block)
    with open(path, "wb") as file:
        file.write(directory + b"".join(blocks))


def write_sheet(path):
    """All icons on a light, a dark and a grey ground, at 16 pixels four times and at 48 as they are."""
    grounds = ((0xF3, 0xF3, 0xF3), (0x20, 0x24, 0x28))
    cell = 64 + 48 + 32 + 24
    sheet = Image.new("RGB", (len(ICONS) * 80, len(grounds) * cell + 80), WHITE)
    for column, (_, picture, _) in enumerate(ICONS):
        enlarged = drawn(picture, 16).resize((64, 64), Image.NEAREST)
        for row, ground in enumerate(grounds):
            top = row * cell
            sheet.paste(ground, (column * 80, top, column * 80 + 80, top + cell))
            for image, left, below in ((enlarged, 8, 4), (drawn(picture, 48), 16, 72),
                                       (drawn(picture, 16), 12, 136), (drawn(picture, 24), 40, 132)):
                sheet.paste(image, (column * 80 + left, top + below), image)
        grey = Image.new("RGB", (64, 64), (0xF3, 0xF3, 0xF3))
        grey.paste(enlarged, (0, 0), enlarged)
        sheet.paste(grey.convert("L"), (column * 80 + 8, len(grounds) * cell + 8))
    sheet.save(path)


def main():
    if len(sys.argv) > 1:
        write_sheet(sys.argv[1])
        return
    folder = os.path.dirname(os.path.abspath(__file__))
    for name, picture, sizes in ICONS:
        write_icon(os.path.join(folder, name + ".ico"), picture, sizes)


if __name__ == "__main__":
    main()
