"""The signs of the eight suits. Each is drawn around (0, 0), in thirds of a pixel.

Nominal sizes (half width, half height): coin 36 x 36, cup 31 x 44, sword 24 x 66,
club 24 x 66, French signs 30 x 33.
"""

from geometry import num, pts, regular, spline
from palette import *


def coin(g, x, y, scale=1.0, rich=False):
    gold = g.radial("coin", [(0, "#fff0b0"), (0.45, GOLD_LIGHT), (0.8, GOLD), (1, "#c98a1c")],
                    fx=0.36, fy=0.32)
    with g.at(x, y, scale):
        g.circle(0, 0, 35, gold, INK, 3)
        g.circle(0, 0, 30.5, None, GOLD_DARK, 1.6)
        beads = 28 if rich else 16
        for px, py in regular(0, 0, 27, beads):
            g.circle(px, py, 1.5 if rich else 2.1, GOLD_DARK)
        g.circle(0, 0, 22.5, RED, GOLD_DEEP, 2)
        petal = spline([(0, -5, 0), (5.6, -12), (0, -20.5, 0), (-5.6, -12)], closed=True)
        for k in range(8):
            with g.group(f"rotate({k * 45})"):
                g.path(petal, GOLD_LIGHT, GOLD_DEEP, 1.3)
        g.circle(0, 0, 6.4, GOLD_LIGHT, GOLD_DEEP, 1.8)
        g.circle(0, 0, 2.6, RED_DARK)
        shine = spline([(-29, -13), (-22, -24), (-11, -30.5)])
        g.path(shine, None, "#fff8dc", 3, 0.85)


def cup(g, x, y, scale=1.0, flip=False):
    gold = g.linear("gold_across", [(0, "#c98a1c"), (0.28, "#fdeca8"), (0.6, GOLD), (1, "#a9690f")], 0, 0, 1, 0)
    red = g.linear("red_across", [(0, "#99161f"), (0.3, "#ea6152"), (0.62, RED), (1, "#7d0f1b")], 0, 0, 1, 0)
    with g.at(x, y, scale, turn=180 if flip else 0):
        foot = spline([(-6, 19, 0), (-8, 27), (-24, 35), (-25, 42, 0), (25, 42, 0), (24, 35), (8, 27), (6, 19, 0)],
                      closed=True)
        g.path(foot, gold, INK, 3)
        g.path(spline([(-23, 37), (0, 40.5), (23, 37)]), None, GOLD_DEEP, 1.6)
        bowl = spline([(-30, -36, 0), (-29, -20), (-22, -2), (-7, 11, 0), (7, 11, 0), (22, -2), (29, -20),
                       (30, -36, 0)], closed=True)
        g.path(bowl, red, INK, 3)
        calyx = spline([(-24.5, -6, 0), (-16, -13), (-9, -5, 0), (0, -15), (9, -5, 0), (16, -13), (24.5, -6, 0),
                        (17, 4), (7, 11, 0), (-7, 11, 0), (-17, 4)], closed=True)
        g.path(calyx, gold, INK, 2)
        g.ellipse(0, 15, 11, 6, gold, INK, 2.6)
        g.ellipse(0, -36, 30, 8, gold, INK, 3)
        g.ellipse(0, -35, 23, 4.6, RED_DARK, GOLD_DEEP, 1.4)
        for px in (-15, 0, 15):
            g.circle(px, -21.5 + abs(px) * -0.06, 3.2, GOLD_LIGHT, GOLD_DEEP, 1.2)


def sword(g, x, y, scale=1.0, turn=0.0, length=1.0, grip=BLUE):
    """Point up; `length` stretches the blade only."""
    steel = g.linear("steel", [(0, STEEL_LIGHT), (0.5, "#d5e0ec"), (0.51, "#93a5bd"), (1, "#b3c2d3")], 0, 0, 1, 0)
    gold = g.linear("gold_across", [(0, "#c98a1c"), (0.28, "#fdeca8"), (0.6, GOLD), (1, "#a9690f")], 0, 0, 1, 0)
    tip = 26 - 92 * length
    with g.at(x, y, scale, turn), g.group(f"translate(0,{num(46 * (length - 1))})" if length != 1 else None):
        g.path(f"M {pts((-8, 28))} L {pts((-7.4, tip + 16))} L {pts((0, tip))} "
               f"L {pts((7.4, tip + 16))} L {pts((8, 28))} Z", steel, INK, 3)
        g.line([(0, tip + 18), (0, 10)], BLUE_DARK, 1.4)
        g.rect(-5, 30, 10, 24, grip, INK, 2.6, r=2)
        for k in range(3):
            g.line([(-4.5, 37 + 6 * k), (4.5, 34 + 6 * k)], GOLD_LIGHT, 1.6)
        guard = spline([(-25, 23), (-20, 21), (-8, 26), (0, 24), (8, 26), (20, 21), (25, 23), (24, 30), (12, 33.5),
                        (0, 32), (-12, 33.5), (-24, 30)], closed=True)
        g.path(guard, gold, INK, 2.8)
        g.circle(0, 59, 7, gold, INK, 2.8)
        g.circle(0, 59, 2.4, RED, GOLD_DEEP, 1)


def club(g, x, y, scale=1.0, turn=0.0, flip=False, leaves=True, length=1.0):
    """Thick end up; `length` stretches the shaft."""
    green = g.linear("club", [(0, "#1d5f2f"), (0.28, "#8cc65e"), (0.55, "#3f9247"), (1, "#134324")], 0, 0, 1, 0)
    cut = "#f2dfae"

    def stretched(points):
        return [(p[0], p[1] * length, *p[2:]) for p in points]

    with g.at(x, y, scale, turn, flip):
        for y0, points, cx, cy, angle in (
                (-30, [(10, -4, 0), (19, -14), (25, -10), (13, 10, 0)], 22.3, -12.5, 40),
                (8, [(-10, -6, 0), (-19, -17), (-24, -12), (-10, 8, 0)], -21.7, -15, -42)):
            with g.group(f"translate(0,{num(y0 * length)})"):
                g.path(spline(points, closed=True), green, INK, 2.6)
                with g.at(cx, cy, turn=angle):
                    g.ellipse(0, 0, 4.6, 3, cut, INK, 1.8)
        body = spline(stretched(
            [(-13, -60), (-15, -44), (-11, -30), (-13, -14), (-9, 2), (-11, 18), (-7, 34), (-8, 54), (-5, 64), (5, 64),
             (8, 52), (7, 36), (11, 22), (9, 6), (13, -8), (11, -24), (15, -40), (13, -60)]), closed=True)
        g.path(body, green, INK, 3)
        g.ellipse(0, -60 * length, 13, 5.5, cut, INK, 2.6)
        g.ellipse(0, -60 * length, 6, 2.2, None, WOOD, 1.4)
        for points in ([(-6, -46), (-4, -34), (-6, -24)], [(5, -28), (3, -16), (5, -4)], [(-4, -6), (-2, 10), (-4, 22)],
                       [(3, 16), (2, 30), (3, 46)], [(6, -50), (7, -42), (5, -36)]):
            g.path(spline(stretched(points)), None, GREEN_DARK, 1.8)
        g.ellipse(4, 8 * length, 3, 4, GREEN_DARK)
        if leaves:
            leaf = spline([(0, 0, 0), (8, -9), (17, -7, 0), (11, 2)], closed=True)
            for px, py, angle in ((8, 24, 10), (-8, 38, -170)):
                with g.at(px, py * length, turn=angle):
                    g.path(leaf, GREEN_LIGHT, INK, 2.2)


# -- French signs, half size 30 x 33

HEART = "M 0,32 C -6,22 -31,4 -31,-13 C -31,-26 -22,-32 -14,-32 C -7,-32 -2,-28 0,-20 " \
        "C 2,-28 7,-32 14,-32 C 22,-32 31,-26 31,-13 C 31,4 6,22 0,32 Z"
DIAMOND = "M 0,-35 C 6,-23 16,-9 26,0 C 16,9 6,23 0,35 C -6,23 -16,9 -26,0 C -16,-9 -6,-23 0,-35 Z"
SPADE = "M 0,-34 C 5,-23 30,-8 30,10 C 30,20 23,26 15,26 C 9,26 5,23 3,19 C 4,25 7,31 12,34 L -12,34 " \
        "C -7,31 -4,25 -3,19 C -5,23 -9,26 -15,26 C -23,26 -30,20 -30,10 C -30,-8 -5,-23 0,-34 Z"
CLOVER = "M -3,15 C -6,22 -11,25 -17,25 C -26,25 -31,18 -31,10 C -31,2 -25,-5 -16,-5 C -14,-5 -12,-4.5 -10,-3.5 " \
         "C -14,-8 -16,-13 -16,-18 C -16,-28 -9,-34 0,-34 C 9,-34 16,-28 16,-18 C 16,-13 14,-8 10,-3.5 " \
         "C 12,-4.5 14,-5 16,-5 C 25,-5 31,2 31,10 C 31,18 26,25 17,25 C 11,25 6,22 3,15 C 3,23 6,31 12,34 " \
         "L -12,34 C -6,31 -3,23 -3,15 Z"

FRENCH = {"diamantes": (DIAMOND, "#c8202c"), "corazones": (HEART, "#c8202c"),
          "picas": (SPADE, "#1b1b26"), "treboles": (CLOVER, "#1b1b26")}


def french(g, suit, x, y, scale=1.0, flip=False):
    shape, colour = FRENCH[suit]
    with g.at(x, y, scale, turn=180 if flip else 0):
        g.path(shape, colour)


# -- small signs for the corners: few lines, strong contour

def mini(g, suit, x, y, scale=1.0):
    """A corner sign about 27 units across."""
    with g.at(x, y, scale):
        if suit == "oros":
            g.circle(0, 0, 12.5, GOLD, GOLD_DEEP, 3)
            g.circle(0, 0, 6, RED, GOLD_DEEP, 2)
        elif suit == "copas":
            bowl = spline([(-13, -14, 0), (-11, -3), (-3, 3, 0), (3, 3, 0), (11, -3), (13, -14, 0)], closed=True)
            g.path("M -2.5,2 L -2.5,9 L -10,14 L 10,14 L 2.5,9 L 2.5,2 Z", GOLD, "#6b0d18", 2.4)
            g.path(bowl, RED, "#6b0d18", 2.6)
            g.line([(-13, -14), (13, -14)], GOLD_DEEP, 3)
        elif suit == "espadas":
            with g.group("rotate(30)"):
                g.path("M -4,6 L -4,-13 L 0,-19 L 4,-13 L 4,6 Z", "#a9c3e6", BLUE_DARK, 2.4)
                g.path("M -10,6 L 10,6 L 10,10 L -10,10 Z", GOLD, BLUE_DARK, 2)
                g.path("M -2.5,10 L 2.5,10 L 2.5,19 L -2.5,19 Z", BLUE, BLUE_DARK, 2)
        elif suit == "bastos":
            with g.group("rotate(30)"):
                body = spline([(-7, -16), (-6, -4), (-3, 8), (-3, 18), (3, 18), (4, 8), (6, -4), (7, -16), (0, -19)],
                              closed=True)
                g.path("M 3,-4 L 12,-10 L 14,-6 L 4,4 Z", "#4da04c", GREEN_DARK, 2.2)
                g.path(body, "#4da04c", GREEN_DARK, 2.6)
        else:
            shape, colour = FRENCH[suit]
            with g.group("scale(0.42)"):
                g.path(shape, colour)
