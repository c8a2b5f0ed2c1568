"""What every card has in common: paper, edge, frame line and corner indices."""

import glyphs
import pips
from palette import *
from svg import Drawing

WIDTH, HEIGHT = 303, 423  # thirds of a pixel: a cell of 101 by 141

BREAKS = {"oros": 0, "copas": 1, "espadas": 2, "bastos": 3}  # the "pintas" of the frame line


def paper():
    g = Drawing(101, 141, (0, 0, WIDTH, HEIGHT))
    g.rect(1.5, 1.5, WIDTH - 3, HEIGHT - 3, PAPER, PAPER_EDGE, 3, r=17)
    return g


def both_corners(g, draw):
    """Draws the top left corner, then the same one turned for the bottom right."""
    draw()
    with g.group(f"rotate(180 {WIDTH / 2} {HEIGHT / 2})"):
        draw()


def spanish_frame(g, suit):
    """The traditional line, broken at top and bottom: the suit shows without the face."""
    colour, left, right, top, bottom, r = SUIT_COLOUR[suit], 11, 292, 11, 412, 9
    breaks, gap = BREAKS[suit], 26
    middle, step = (left + right) / 2, 62
    cuts = [middle + (k - (breaks - 1) / 2) * step for k in range(breaks)]
    for y, turn in ((top, 1), (bottom, -1)):
        edges = [left] + [e for c in cuts for e in (c - gap / 2, c + gap / 2)] + [right]
        for a, b in zip(edges[0::2], edges[1::2]):
            start = f"M {a},{y + turn * r} Q {a},{y} {a + r},{y}" if a == left else f"M {a},{y}"
            end = f"L {b - r},{y} Q {b},{y} {b},{y + turn * r}" if b == right else f"L {b},{y}"
            g.path(f"{start} {end}", None, colour, 3)
    for x in (left, right):
        g.line([(x, top + r), (x, bottom - r)], colour, 3)


def spanish_index(g, suit, number):
    text = str(number) if number < 10 else str(number).replace("1", "i")

    def draw():
        squeeze = 0.92 if len(text) == 1 else 0.62
        glyphs.write(g, text, 30.5 if len(text) == 1 else 31, 36, 33, SUIT_COLOUR[suit], pen=3.1, squeeze=squeeze,
                     gap=-2.4 if text == "ii" else 1.0, under=PAPER, under_pen=2.2)
        pips.mini(g, suit, 30.5, 74 if suit in ("espadas", "bastos") else 71, 0.92)

    both_corners(g, draw)


def french_index(g, suit, text):
    def draw():
        squeeze = 0.95 if len(text) == 1 else 0.56
        glyphs.write(g, text, 25 if len(text) == 1 else 26, 33, 37, SUIT_COLOUR[suit], pen=3.0, squeeze=squeeze, gap=1.4)
        pips.mini(g, suit, 25, 72, 1.05)

    both_corners(g, draw)
