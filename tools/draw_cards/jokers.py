"""The two jokers: the same court fool twice, once juggling the four suits, once resting on his drum."""

import math

import glyphs
import pips
from card import both_corners, paper
from figure import *
from geometry import mirror, pts, spline
from palette import *
from sotas import mark, neck

C = 152


def star(x, y, r, colour, g, edge=INK, w=2.4):
    points = []
    for k in range(10):
        q = r if k % 2 == 0 else r * 0.42
        points.append((x + q * math.sin(math.pi * k / 5), y - q * math.cos(math.pi * k / 5)))
    g.poly(points, colour, edge, w)


def corner(g, colour):
    def draw():
        star(27, 32, 13.5, GOLD, g, colour, 2.4)
        for letter, y in zip("COMODÍN", (62, 82, 102, 122, 142, 167, 187)):
            glyphs.write(g, letter, 27, y, 15.5, colour, pen=3.0, squeeze=0.95)
    both_corners(g, draw)


def bell(g, x, y, r=6.4):
    g.circle(x, y, r, GOLD_LIGHT, INK, 2.4)
    g.line([(x - r * 0.6, y + 0.6), (x + r * 0.6, y + 0.6)], INK, 1.6)
    g.circle(x, y + r * 0.5, 1.5, INK)


def fool_cap(g, one, two, three):
    """Three points with bells, around a head at (0, 0)."""
    left = spline([(-30, -8, 0), (-34, -34), (-52, -42), (-62, -18), (-66, -6, 0), (-74, -34), (-58, -64), (-28, -66),
                   (-6, -46, 0), (-12, -22, 0)], closed=True)
    right = mirror(left, 0)
    middle = spline([(-22, -20, 0), (-24, -48), (-12, -74), (8, -92, 0), (10, -76), (24, -52), (22, -20, 0), (0, -26)],
                    closed=True)
    g.path(left, one, INK, 3.2)
    g.path(right, two, INK, 3.2)
    g.path(middle, three, INK, 3.2)
    g.path(spline([(-31, -9), (-16, -22), (0, -25), (16, -22), (31, -9)]), None, INK, 9)
    g.path(spline([(-31, -9), (-16, -22), (0, -25), (16, -22), (31, -9)]), None, GOLD, 4.6)
    bell(g, -66, -2)
    bell(g, 66, -2)
    bell(g, 9, -95)


def ruff(g, y, half, one, two, x=C):
    """A collar of points with bells."""
    for k in range(6):
        u = -1 + 2 * (k + 0.5) / 6
        cx, low = x + u * half, y + 34 - 12 * u * u
        wide = half / 6 + 3
        g.path(spline([(cx - wide, y + 6 - 6 * u * u, 0), (cx, low, 0), (cx + wide, y + 6 - 6 * u * u, 0), (cx, y - 4)],
                      closed=True), one if k % 2 else two, INK, 2.6)
        bell(g, cx, low + 3, 4.6)
    g.path(spline([(x - half * 0.8, y + 4), (x - half * 0.4, y - 4), (x, y - 6), (x + half * 0.4, y - 4), (x + half * 0.8, y + 4),
                   (x + half * 0.4, y + 11), (x, y + 13), (x - half * 0.4, y + 11)], closed=True), WHITE, INK, 2.6)


def grin(g):
    g.path(spline([(-11, 19, 0), (0, 23), (12, 17, 0), (8, 27), (-2, 30)], closed=True), WHITE, RED_DARK, 2.4)
    g.path(spline([(-13, 17), (-10, 20)]), None, RED_DARK, 2)


def motley(g, left, one, two, x=C):
    """A tunic of two colours, the right half the mirror of the left."""
    right = mirror(left, x)
    g.path(left, one)
    g.path(right, two)
    g.scatter(left, 20, 20, 7.4, lambda a, b: mark(g, a, b, 7, two), 4, 14)
    g.scatter(right, 20, 20, 7.4, lambda a, b: mark(g, a, b, 7, one), 8, 14)
    for shape in (left, right):
        g.path(shape, None, INK, 3)


def pointed_shoe(g, x, y, flip, colour):
    with g.at(x, y, flip=flip):
        g.path(spline([(-12, -14, 0), (-14, 2), (-12, 10, 0), (22, 10), (42, 2), (46, -12, 0), (36, -6), (18, -4), (12, -14, 0)],
                      closed=True), colour, INK, 3)
        bell(g, 47, -16, 5)


def joker_juggler():
    g = paper()
    corner(g, RED)
    g.rect(52, 14, 199, 395, None, RED, 2.4, r=8)
    # the four suits in the air
    pips.coin(g, 80, 98, 0.66)
    pips.cup(g, 112, 49, 0.64)
    pips.sword(g, 190, 52, 0.6, turn=48)
    pips.club(g, 222, 104, 0.6, turn=38, leaves=False)
    # dancing legs
    rod(g, [(C + 10, 268), (C + 40, 296), (C + 52, 320), (C + 28, 352)], [40, 34, 26, 20], BLUE)
    pointed_shoe(g, C + 20, 362, True, RED)
    shin = rod(g, [(C - 12, 268), (C - 22, 318), (C - 16, 350), (C - 18, 380)], [42, 34, 26, 19], RED)
    g.hatch(shin, 90, 13, GOLD_LIGHT, 4, inset=0)
    g.path(shin, None, INK, 2.6)
    pointed_shoe(g, C - 20, 388, True, BLUE)
    neck(g, y=166)
    left = spline([(C, 190, 0), (C - 18, 190, 0), (C - 40, 204), (C - 32, 240, 0), (C - 46, 268), (C - 52, 288, 0),
                   (C - 40, 304, 0), (C - 28, 284, 0), (C - 14, 308, 0), (C, 284, 0)], closed=True)
    motley(g, left, RED, BLUE)
    for x, y in ((C - 53, 292), (C - 40, 308), (C - 14, 312), (C + 14, 312), (C + 40, 308), (C + 53, 292)):
        bell(g, x, y, 4.8)
    g.path(spline([(C - 33, 236, 0), (C, 242), (C + 33, 236, 0), (C + 33, 247, 0), (C, 253), (C - 33, 247, 0)], closed=True), GOLD,
           INK, 2.6)
    rod(g, [(C - 36, 210), (C - 62, 206), (C - 70, 184), (C - 70, 160)], [30, 32, 24, 16], BLUE)
    g.path(spline([(C - 83, 176), (C - 70, 180), (C - 58, 176)]), None, GOLD_LIGHT, 3.4)
    palm_up(g, C - 70, 152, -6, 0.94)
    rod(g, [(C + 36, 210), (C + 60, 210), (C + 70, 192), (C + 70, 172)], [30, 32, 24, 16], RED)
    g.path(spline([(C + 58, 186), (C + 70, 192), (C + 83, 188)]), None, GOLD_LIGHT, 3.4)
    palm_up(g, C + 70, 164, 6, 0.94)
    ruff(g, 186, 50, RED, GOLD)
    with g.at(C, 148, 0.86):
        face(g, 1, brow=HAIR_BROWN, mouth=False, blush=0.85)
        grin(g)
        fool_cap(g, RED, BLUE, GOLD)
    return g


def joker_drummer():
    g = paper()
    corner(g, "#1b1b26")
    g.rect(52, 14, 199, 395, None, "#1b1b26", 2.4, r=8)
    # the drum
    drum = spline([(C - 62, 296, 0), (C - 56, 340), (C - 62, 384, 0), (C, 396), (C + 62, 384, 0), (C + 56, 340), (C + 62, 296, 0)],
                  closed=True)
    g.path(drum, RED_DARK, INK, 3)
    zig = [(C - 60 + 20 * k, 310 if k % 2 == 0 else 372) for k in range(7)]
    g.path("M " + " L ".join(pts(p) for p in zig), None, INK, 6)
    g.path("M " + " L ".join(pts(p) for p in zig), None, WHITE, 3)
    for y in (298, 380):
        band = spline([(C - 64, y - 6, 0), (C, y + 6), (C + 64, y - 6, 0), (C + 64, y + 8, 0), (C, y + 20), (C - 64, y + 8, 0)],
                      closed=True)
        g.path(band, GOLD, INK, 3)
    g.ellipse(C, 294, 63, 13, PAPER_SHADE, INK, 3)
    # crossed legs
    rod(g, [(C + 18, 276), (C + 56, 286), (C + 50, 318), (C + 16, 346)], [40, 36, 28, 20], GREEN)
    pointed_shoe(g, C + 2, 352, True, GOLD)
    rod(g, [(C - 18, 276), (C - 58, 288), (C - 40, 326), (C - 8, 356)], [42, 38, 28, 20], GOLD)
    pointed_shoe(g, C + 8, 368, False, GREEN)
    neck(g, y=146, x=C - 8)
    left = spline([(C, 174, 0), (C - 18, 174, 0), (C - 42, 188), (C - 34, 232, 0), (C - 46, 262), (C - 50, 286, 0),
                   (C - 36, 300, 0), (C - 24, 284, 0), (C - 12, 304, 0), (C, 282, 0)], closed=True)
    motley(g, left, GOLD, GREEN)
    for x, y in ((C - 36, 304), (C - 12, 308), (C + 12, 308), (C + 36, 304)):
        bell(g, x, y, 4.8)
    g.path(spline([(C - 35, 226, 0), (C, 232), (C + 35, 226, 0), (C + 35, 238, 0), (C, 244), (C - 35, 238, 0)], closed=True), RED,
           INK, 2.6)
    # one hand on the knee, the other lifts the fool's staff
    rod(g, [(C - 38, 194), (C - 66, 226), (C - 66, 250), (C - 46, 268)], [30, 32, 24, 17], GREEN)
    g.path(spline([(C - 66, 272), (C - 56, 258), (C - 50, 250)]), None, GOLD_LIGHT, 3.4)
    fist(g, C - 40, 272, 60, 0.9)
    g.line([(C + 66, 84), (C + 72, 262)], INK, 10)
    g.line([(C + 66, 84), (C + 72, 262)], WOOD_LIGHT, 5)
    rod(g, [(C + 38, 194), (C + 62, 214), (C + 74, 206), (C + 74, 190)], [30, 32, 24, 17], GOLD)
    g.path(spline([(C + 60, 198), (C + 74, 204), (C + 88, 198)]), None, RED, 3.4)
    fist(g, C + 72, 180, 0, 0.95)
    with g.at(C + 64, 72, 0.4):
        face(g, -1, brow=HAIR_BROWN, mouth=False, blush=0.9)
        grin(g)
        fool_cap(g, GREEN, GOLD, RED)
        ruff(g, 42, 34, GREEN, GOLD, x=0)
    ruff(g, 168, 50, GREEN, RED)
    with g.at(C - 12, 128, 0.88):
        face(g, 1, brow=HAIR_BLACK, mouth=False, blush=0.85)
        grin(g)
        fool_cap(g, GREEN, RED, GOLD)
    return g
