"""The four aces (number 1): one large sign each, crowned, wreathed or beribboned."""

import math

from figure import crown
from geometry import mirror, pts, regular, spline
from palette import *

C = 151.5


def wreath(g, cx, cy, radius, start, end, leaves, colour=GREEN, light=GREEN_LIGHT, size=1.0, berries=True):
    """Laurel along an arc, both sides of the upright axis; angles in degrees from the bottom."""
    leaf = spline([(0, 0, 0), (10 * size, -9 * size), (27 * size, -5 * size, 0), (12 * size, 6 * size)], closed=True)
    for m in (1, -1):
        arc = []
        for k in range(25):
            a = math.radians(90 - m * (start + (end - start) * k / 24))
            arc.append((cx + radius * math.cos(a), cy + radius * math.sin(a)))
        g.path(spline(arc), None, INK, 6)
        g.path(spline(arc), None, GREEN_DARK, 2.6)
        for k in range(leaves):
            grade = start + (end - start) * (k + 0.4) / leaves
            a = math.radians(90 - m * grade)
            x, y = cx + radius * math.cos(a), cy + radius * math.sin(a)
            forward = math.degrees(a) - m * 90
            for side in (1, -1):
                with g.at(x, y, turn=forward + side * 32):
                    g.path(leaf, colour if side == m else light, INK, 2.4)
            if berries and k % 2:
                g.circle(x, y, 4.2 * size, RED, INK, 1.8)
        a = math.radians(90 - m * end)
        with g.at(cx + radius * math.cos(a), cy + radius * math.sin(a), turn=math.degrees(a) - m * 90):
            g.path(leaf, light, INK, 2.4)


def bow(g, x, y, colour, dark, scale=1.0):
    """A ribbon tied in a bow with two tails."""
    with g.at(x, y, scale):
        for m in (False, True):
            fix = mirror if m else (lambda d: d)
            g.path(fix(spline([(2, 2, 0), (-18, 18), (-44, 26), (-56, 44, 0), (-46, 44, 0), (-40, 54, 0), (-24, 38), (2, 16, 0)],
                              closed=True)), dark, INK, 3)
            g.path(fix(spline([(0, 0, 0), (-16, -16), (-36, -18), (-44, -4), (-34, 10), (-16, 8)], closed=True)), colour, INK,
                   3)
            g.path(fix(spline([(-6, 0), (-20, -5), (-34, -4)]), ), None, dark, 2.4)
        g.rect(-9, -9, 18, 18, colour, INK, 3, r=6)


def ace_oros(g):
    wreath(g, C, 214, 110, 14, 150, 10, size=0.92)
    gold = g.radial("disc", [(0, "#fff3c0"), (0.5, GOLD_LIGHT), (0.82, GOLD), (1, "#bf7f18")], fx=0.38, fy=0.34)
    g.circle(C, 214, 96, gold, INK, 4)
    g.circle(C, 214, 89, None, GOLD_DEEP, 2)
    for x, y in regular(C, 214, 81.5, 44):
        g.circle(x, y, 3.4, GOLD_DARK)
    g.circle(C, 214, 74, BLUE, GOLD_DEEP, 3)
    for k in range(24):
        with g.at(C, 214, turn=k * 15):
            g.path("M -4,-57 L 0,-71 L 4,-57 Z", GOLD_LIGHT)
    g.circle(C, 214, 57, gold, GOLD_DEEP, 3)
    petal = spline([(0, -14, 0), (11, -30), (0, -53, 0), (-11, -30)], closed=True)
    inner = spline([(0, -10, 0), (7, -20), (0, -35, 0), (-7, -20)], closed=True)
    for k in range(8):
        with g.at(C, 214, turn=k * 45 + 22.5):
            g.path(petal, GOLD, GOLD_DEEP, 2)
    for k in range(8):
        with g.at(C, 214, turn=k * 45):
            g.path(petal, RED, GOLD_DEEP, 2.4)
            g.path(inner, RED_LIGHT, RED_DARK, 1.6)
    g.circle(C, 214, 17, GOLD_LIGHT, GOLD_DEEP, 3)
    for x, y in regular(C, 214, 10.5, 8):
        g.circle(x, y, 2.6, GOLD_DARK)
    g.circle(C, 214, 5.4, RED, GOLD_DEEP, 2)
    g.path(spline([(C - 80, 180), (C - 62, 148), (C - 34, 130)]), None, "#fffbe6", 6, 0.8)
    with g.at(C, 118, 1.25):
        crown(g, 5, "lily")
    bow(g, C, 328, RED, RED_DARK, 1.12)


def ace_copas(g):
    gold = g.linear("gold_across", [(0, "#c98a1c"), (0.28, "#fdeca8"), (0.6, GOLD), (1, "#a9690f")], 0, 0, 1, 0)
    red = g.linear("red_across", [(0, "#99161f"), (0.3, "#ea6152"), (0.62, RED), (1, "#7d0f1b")], 0, 0, 1, 0)
    # handles
    for m in (False, True):
        fix = (lambda d: mirror(d, C)) if m else (lambda d: d)
        handle = spline([(C - 66, 168), (C - 96, 152), (C - 116, 172), (C - 104, 206), (C - 70, 226), (C - 50, 240)])
        g.path(fix(handle), None, INK, 17)
        g.path(fix(handle), None, GOLD, 11)
        g.path(fix(handle), None, GOLD_LIGHT, 3)
        curl = spline([(C - 96, 152), (C - 112, 144), (C - 116, 130), (C - 104, 126), (C - 100, 136)])
        g.path(fix(curl), None, INK, 13)
        g.path(fix(curl), None, GOLD, 7.4)
    foot = spline([(C - 14, 322, 0), (C - 20, 344), (C - 64, 362), (C - 76, 384, 0), (C - 70, 394), (C + 70, 394),
                   (C + 76, 384, 0), (C + 64, 362), (C + 20, 344), (C + 14, 322, 0)], closed=True)
    g.path(foot, gold, INK, 4)
    g.path(spline([(C - 72, 380), (C, 387), (C + 72, 380)]), None, GOLD_DEEP, 2.4)
    g.path(spline([(C - 62, 366), (C, 373), (C + 62, 366)]), None, GOLD_DEEP, 2.4)
    for x, c in ((-46, RED), (-24, BLUE), (0, RED), (24, BLUE), (46, RED)):
        g.ellipse(C + x, 374 - abs(x) * 0.1, 5.4, 4, c, INK, 1.8)
    g.rect(C - 11, 268, 22, 60, gold, INK, 4)
    for y, rx, ry in ((276, 24, 9), (300, 33, 15), (324, 24, 9)):
        g.ellipse(C, y, rx, ry, gold, INK, 4)
    for x in (-18, 0, 18):
        g.ellipse(C + x, 300, 5, 7, BLUE if x else RED, INK, 2)
    bowl = spline([(C - 74, 148, 0), (C - 74, 190), (C - 54, 240), (C - 16, 268, 0), (C + 16, 268, 0), (C + 54, 240),
                   (C + 74, 190), (C + 74, 148, 0)], closed=True)
    g.path(bowl, red, INK, 4)
    calyx = spline([(C - 63, 222, 0), (C - 48, 196), (C - 32, 222, 0), (C - 16, 192), (C, 220, 0), (C + 16, 192),
                    (C + 32, 222, 0), (C + 48, 196), (C + 63, 222, 0), (C + 44, 250), (C + 16, 268, 0), (C - 16, 268, 0),
                    (C - 44, 250)], closed=True)
    g.path(calyx, gold, INK, 3)
    for x in (-48, -16, 16, 48):
        g.path(spline([(C + x, 204), (C + x * 0.8, 226), (C + x * 0.45, 250)]), None, GOLD_DEEP, 1.8)
    rose = spline([(0, -4, 0), (4.5, -10), (0, -17, 0), (-4.5, -10)], closed=True)
    for x, y in ((-44, 178), (0, 180), (44, 178)):
        for k in range(6):
            with g.at(C + x, y, 0.86, turn=k * 60):
                g.path(rose, GOLD_LIGHT, GOLD_DEEP, 1.4)
        g.circle(C + x, y, 4.2, BLUE, GOLD_DEEP, 1.6)
    rim = spline([(C - 80, 140, 0), (C, 146), (C + 80, 140, 0), (C + 78, 156, 0), (C, 163), (C - 78, 156, 0)], closed=True)
    lid = spline([(C - 76, 141, 0), (C - 64, 114), (C - 36, 94), (C - 12, 84, 0), (C + 12, 84, 0), (C + 36, 94), (C + 64, 114),
                  (C + 76, 141, 0), (C, 147)], closed=True)
    g.path(lid, red, INK, 4)
    for s in (-1, 0, 1):
        g.path(spline([(C + s * 8, 88), (C + s * 28, 110), (C + s * 40, 140)]), None, GOLD_LIGHT, 3.4)
    g.path(rim, gold, INK, 3.4)
    for k in range(-5, 6):
        g.circle(C + k * 13, 154.5 - abs(k) * 0.8, 3.4, (WHITE, RED)[k % 2], INK, 1.6)
    g.ellipse(C, 84, 16, 6, gold, INK, 3)
    g.circle(C, 68, 12, gold, INK, 3.4)
    g.circle(C - 3, 65, 3, "#fff8dc")
    g.path(spline([(C, 34, 0), (C + 9, 46), (C, 57, 0), (C - 9, 46)], closed=True), BLUE, INK, 3)


def ribbon_turn(g, y, half, colour, drop=22, width=24):
    """One visible turn of a ribbon across an upright shaft at height y."""
    g.path(spline([(C - half, y, 0), (C, y + drop * 0.62), (C + half, y + drop, 0), (C + half, y + drop + width, 0),
                   (C, y + drop * 0.62 + width), (C - half, y + width, 0)], closed=True), colour, INK, 3)


def ace_espadas(g):
    wreath(g, C, 228, 102, 16, 112, 7, size=1.0)
    # loops of the ribbon behind the blade
    for y, m in ((168, 1), (226, -1)):
        loop = spline([(C, y, 0), (C + m * 34, y - 14), (C + m * 70, y - 2), (C + m * 86, y - 28, 0), (C + m * 88, y + 4),
                       (C + m * 64, y + 22), (C + m * 34, y + 10), (C, y + 24, 0)], closed=True)
        g.path(loop, RED_DARK, INK, 3)
    steel = g.linear("steel", [(0, STEEL_LIGHT), (0.5, "#d5e0ec"), (0.51, "#93a5bd"), (1, "#b3c2d3")], 0, 0, 1, 0)
    gold = g.linear("gold_across", [(0, "#c98a1c"), (0.28, "#fdeca8"), (0.6, GOLD), (1, "#a9690f")], 0, 0, 1, 0)
    g.path(f"M {pts((C - 20, 296))} L {pts((C - 18, 66))} L {pts((C, 26))} L {pts((C + 18, 66))} L {pts((C + 20, 296))} Z",
           steel, INK, 4)
    g.line([(C, 70), (C, 250)], BLUE_DARK, 2.4)
    ribbon_turn(g, 150, 20, RED)
    ribbon_turn(g, 210, 20, RED)
    with g.at(C, 124, 0.95):
        crown(g, 5, "lily", BLUE)
    guard = spline([(C - 92, 276), (C - 78, 266), (C - 60, 278), (C - 28, 290), (C, 282), (C + 28, 290), (C + 60, 278),
                    (C + 78, 266), (C + 92, 276), (C + 84, 296), (C + 60, 300), (C + 30, 310), (C, 308), (C - 30, 310),
                    (C - 60, 300), (C - 84, 296)], closed=True)
    g.rect(C - 13, 304, 26, 66, BLUE, INK, 4, r=4)
    for k in range(5):
        g.line([(C - 11, 324 + 11 * k), (C + 11, 316 + 11 * k)], GOLD_LIGHT, 3)
    g.path(guard, gold, INK, 4)
    g.circle(C, 296, 10, RED, INK, 3)
    g.circle(C - 3, 293, 2.6, WHITE)
    for s in (-1, 1):
        g.circle(C + s * 78, 281, 6, BLUE, INK, 2.4)
        g.path(spline([(C + s * 22, 299), (C + s * 44, 296), (C + s * 62, 288)]), None, GOLD_DEEP, 2)
    g.circle(C, 384, 16, gold, INK, 4)
    for x, y in regular(C, 384, 9, 8):
        g.circle(x, y, 2, GOLD_DEEP)
    g.circle(C, 384, 5, RED, INK, 1.8)


def oak_leaf(g, x, y, turn, scale=1.0, flip=False, colour=GREEN_LIGHT):
    shape = spline([(0, 0, 0), (8, -9), (16, -6, 0), (18, -15), (28, -17), (32, -9, 0), (38, -15), (48, -11), (48, -4, 0),
                    (58, -2), (62, 2), (56, 6), (47, 6, 0), (46, 13), (36, 15), (31, 9, 0), (26, 16), (17, 13), (15, 7, 0),
                    (8, 8)], closed=True)
    with g.at(x, y, scale, turn, flip):
        g.path(shape, colour, INK, 3)
        g.path("M 2,0 L 52,1 M 16,0 L 24,-9 M 32,0 L 40,-7 M 16,1 L 22,9 M 32,1 L 38,9", None, GREEN_DARK, 1.8)


def acorn(g, x, y, turn, scale=1.0):
    with g.at(x, y, scale, turn):
        g.path(spline([(-8, 2, 0), (-8, 12), (0, 23, 0), (8, 12), (8, 2, 0)], closed=True), GOLD, INK, 2.6)
        g.path(spline([(-11, 4, 0), (-9, -6), (0, -9), (9, -6), (11, 4, 0), (0, 6)], closed=True), WOOD, INK, 2.6)
        g.line([(0, -9), (0, -16)], INK, 4)


def ace_bastos(g):
    green = g.linear("club", [(0, "#1d5f2f"), (0.28, "#8cc65e"), (0.55, "#3f9247"), (1, "#134324")], 0, 0, 1, 0)
    for m, y in ((1, 196), (-1, 262)):
        loop = spline([(C, y, 0), (C + m * 44, y - 12), (C + m * 78, y + 4), (C + m * 98, y - 22, 0), (C + m * 98, y + 12),
                       (C + m * 70, y + 28), (C + m * 40, y + 14), (C, y + 26, 0)], closed=True)
        g.path(loop, RED_DARK, INK, 3)
    for x, y, t, f in ((C + 34, 114, -28, False), (C - 34, 138, -24, True), (C + 26, 312, 18, False), (C - 26, 330, 20, True)):
        oak_leaf(g, x, y, -t if f else t, 1.05, f)
    acorn(g, C + 84, 128, -24, 1.1)
    acorn(g, C - 86, 156, 24, 1.1)
    acorn(g, C - 74, 352, 34, 1.0)
    for points, cx, cy, angle in (([(C + 26, 96, 0), (C + 52, 66), (C + 66, 76), (C + 34, 138, 0)], C + 60, 69, 38),
                                  ([(C - 26, 212, 0), (C - 56, 184), (C - 68, 196), (C - 28, 252, 0)], C - 63, 188, -42),
                                  ([(C + 20, 268, 0), (C + 46, 246), (C + 56, 258), (C + 22, 304, 0)], C + 52, 250, 40)):
        g.path(spline(points, closed=True), green, INK, 4)
        with g.at(cx, cy, turn=angle):
            g.ellipse(0, 0, 10, 6.4, "#f2dfae", INK, 3)
    body = spline([(C - 40, 52), (C - 46, 92), (C - 36, 132), (C - 41, 176), (C - 28, 222), (C - 33, 266), (C - 22, 310),
                   (C - 24, 362), (C - 16, 394), (C + 16, 394), (C + 24, 360), (C + 22, 314), (C + 33, 276), (C + 27, 232),
                   (C + 40, 188), (C + 35, 144), (C + 46, 100), (C + 40, 52)], closed=True)
    g.path(body, green, INK, 4)
    g.ellipse(C, 52, 40, 15, "#f2dfae", INK, 4)
    for rx, ry in ((28, 9.4), (17, 5.4), (7, 2)):
        g.ellipse(C, 52, rx, ry, None, WOOD, 2)
    for points in ([(-22, 84), (-18, 120), (-24, 160)], [(10, 80), (6, 104), (12, 132)], [(20, 130), (14, 160), (20, 190)],
                   [(-12, 270), (-6, 300), (-14, 340)], [(12, 280), (8, 320), (12, 370)], [(-8, 150), (-2, 176), (-8, 196)],
                   [(28, 84), (30, 104), (26, 118)], [(-4, 340), (-2, 362), (-6, 384)]):
        g.path(spline([(C + x, y) for x, y in points]), None, GREEN_DARK, 3)
    for x, y in ((14, 150), (-14, 128), (8, 300)):
        g.ellipse(C + x, y, 6, 8.4, GREEN_DARK, INK, 2)
        g.ellipse(C + x, y, 2.4, 3.6, GREEN_LIGHT)
    ribbon_turn(g, 172, 39, RED)
    ribbon_turn(g, 240, 31, RED)
    oak_leaf(g, C + 20, 360, -16, 0.9, colour=GREEN_LIGHT)


ACES = {"oros": ace_oros, "copas": ace_copas, "espadas": ace_espadas, "bastos": ace_bastos}
