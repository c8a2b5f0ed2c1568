"""The four kings (number 12): crowned, in long robes and cloaks with ermine."""

import pips
from figure import *
from geometry import mirror, spline
from palette import *
from sotas import both, mark

C = 152


def cloak(g, colour, dark, wide=100, top=150):
    """The cloak behind the king, down to the ground."""
    shape = spline(both([(C - 30, top - 8, 0), (C - 62, top + 14), (C - 78, top + 90), (C - wide + 4, top + 190),
                         (C - wide, 396, 0), (C - wide * 0.5, 402)]), closed=True)
    g.path(shape, colour, INK, 3)
    for s in (-1, 1):
        g.path(spline([(C + s * 66, top + 50), (C + s * 78, top + 130), (C + s * (wide - 14), 388)]), None, dark, 3)
    return shape


def ermine(g, shape, dx=22, dy=22, ox=6, oy=8):
    """White fur with black tails."""
    g.path(shape, WHITE)

    def tail(x, y):
        g.path(spline([(x, y - 5, 0), (x + 3, y + 2), (x, y + 6, 0), (x - 3, y + 2)], closed=True), INK)
    g.scatter(shape, dx, dy, 6, tail, ox, oy)
    g.path(shape, None, INK, 2.8)


def robe(g, colour, half=56, top=142):
    shape = spline(both([(C - 14, top, 0), (C - 40, top + 10), (C - 36, top + 50), (C - 33, top + 84, 0),
                         (C - half + 8, top + 170), (C - half, 392, 0), (C - half * 0.5, 400)]), closed=True)
    g.path(shape, colour, INK, 3)
    return shape


def lapels(g, far=74, width=19):
    """The two ermine edges of the cloak, from the neck to the ground."""
    for m in (False, True):
        fix = (lambda d: mirror(d, C)) if m else (lambda d: d)
        ermine(g, fix(spline([(C - 36, 156, 0), (C - 50, 210), (C - 58, 300), (C - far + width * 0.4, 394, 0),
                              (C - far - width * 0.6, 396, 0), (C - 76, 300), (C - 66, 210), (C - 54, 158, 0)],
                             closed=True)), 16, 24, 8, 16)


def tippet(g, low=186, half=62):
    """The shoulder cape of ermine."""
    ermine(g, spline(both([(C - 18, 136, 0), (C - half + 12, 148), (C - half, 172), (C - half + 4, low - 4, 0),
                           (C - 30, low + 4)]), closed=True), 21, 17, 10, 16)


def shoes(g, colour):
    for m in (False, True):
        fix = (lambda d: mirror(d, C)) if m else (lambda d: d)
        g.path(fix(spline([(C - 8, 392, 0), (C - 36, 392, 0), (C - 46, 400), (C - 40, 404, 0), (C - 8, 404, 0)],
                          closed=True)), colour, INK, 2.8)


def orphrey(g, half=11, top=180, low=396, colour=GOLD, motif=RED):
    """The embroidered band down the middle of a robe."""
    g.path(spline([(C - half, top, 0), (C - half - 4, low, 0), (C, low + 4), (C + half + 4, low, 0), (C + half, top, 0)],
                  closed=True), colour, INK, 2.4)
    y = top + 18
    while y < low - 8:
        mark(g, C, y, 8, motif)
        y += 22


def king_oros(g):
    """Old and white-bearded; red cloak, blue robe, coin in the right hand and sceptre in the left."""
    turf(g)
    cloak(g, RED, RED_DARK)
    shoes(g, GOLD_DARK)
    blue = robe(g, BLUE)
    g.scatter(blue, 24, 22, 9, lambda x, y: (g.circle(x, y, 5.4, None, GOLD_LIGHT, 2), g.circle(x, y, 1.8, GOLD_LIGHT)),
              ox=10, oy=22)
    orphrey(g, motif=RED_DARK)
    g.path(spline([(C - 54, 380), (C, 388), (C + 54, 380)]), None, GOLD, 5)
    g.path(blue, None, INK, 3)
    lapels(g)
    with g.at(C, 92, 1.0):
        hair_back(g, HAIR_WHITE, 44, 37)
    # sceptre
    g.line([(C - 66, 118), (C - 58, 300)], INK, 9)
    g.line([(C - 66, 118), (C - 58, 300)], GOLD, 4.4)
    g.path(spline([(C - 67, 84, 0), (C - 58, 100), (C - 66, 116, 0), (C - 76, 100)], closed=True), GOLD_LIGHT, INK, 2.6)
    g.path(spline([(C - 66, 114, 0), (C - 84, 112), (C - 84, 96, 0), (C - 74, 104)], closed=True), GOLD, INK, 2.4)
    g.path(spline([(C - 66, 114, 0), (C - 48, 110), (C - 50, 94, 0), (C - 58, 103)], closed=True), GOLD, INK, 2.4)
    g.circle(C - 66, 118, 6, RED, INK, 2.4)
    rod(g, [(C - 46, 168), (C - 74, 208), (C - 76, 226), (C - 64, 232)], [34, 42, 30, 18], BLUE)
    g.path(spline([(C - 76, 240), (C - 66, 232), (C - 64, 219)]), None, GOLD_LIGHT, 4)
    fist(g, C - 60, 232, 0, 0.92)
    rod(g, [(C + 46, 168), (C + 72, 190), (C + 82, 174), (C + 84, 150)], [34, 40, 30, 18], BLUE)
    g.path(spline([(C + 72, 158), (C + 84, 164), (C + 97, 158)]), None, GOLD_LIGHT, 4)
    tippet(g)
    pips.coin(g, C + 84, 98, 1.18)
    palm_up(g, C + 84, 142, 0, 0.95)
    with g.at(C, 92, 1.0):
        face(g, 0, brow=HAIR_GREY, blush=0.6)
        side_locks(g, HAIR_WHITE, HAIR_GREY, 40)
        beard(g, HAIR_WHITE, HAIR_GREY, "long")
        crown(g, 5, "lily")


def king_copas(g):
    """Portly and brown-bearded; green cloak over a red gown with gold flowers, the cup before his breast."""
    turf(g)
    cloak(g, GREEN, GREEN_DARK, 98)
    shoes(g, WOOD)
    red = robe(g, RED, 62)

    def flower(x, y):
        for a in range(4):
            with g.at(x, y, turn=a * 90 + 45):
                g.ellipse(0, -4.6, 2.7, 4.4, GOLD_LIGHT, RED_DARK, 1)
        g.circle(x, y, 2.2, RED_DARK)
    g.scatter(red, 30, 24, 10, flower, ox=6, oy=26)
    hem = spline([(C - 62, 376, 0), (C, 384), (C + 62, 376, 0), (C + 62, 393, 0), (C, 401), (C - 62, 393, 0)], closed=True)
    ermine(g, hem, 20, 30, 8, 12)
    g.path(red, None, INK, 3)
    g.path(spline([(C - 34, 224, 0), (C, 231), (C + 34, 224, 0), (C + 35, 238, 0), (C, 246), (C - 35, 238, 0)], closed=True),
           GOLD, INK, 2.6)
    for x in (-22, 0, 22):
        g.circle(C + x, 237 - abs(x) * 0.13, 4.4, GREEN if x else BLUE, INK, 1.8)
    g.line([(C - 4, 244), (C - 6, 300)], INK, 8)
    g.line([(C - 4, 244), (C - 6, 300)], GOLD, 4)
    g.circle(C - 6, 306, 7, GOLD_LIGHT, INK, 2.4)
    with g.at(C, 92, 1.0):
        hair_back(g, HAIR_BROWN, 38, 38)
    # left arm gathers the cloak
    rod(g, [(C - 46, 172), (C - 76, 206), (C - 74, 236), (C - 56, 252)], [38, 44, 32, 18], GREEN)
    g.path(spline([(C - 72, 262), (C - 60, 250), (C - 58, 234)]), None, GOLD_LIGHT, 4)
    fist(g, C - 49, 256, 60, 0.95)
    rod(g, [(C + 46, 172), (C + 78, 214), (C + 70, 222), (C + 72, 196)], [38, 40, 34, 18], GREEN)
    g.path(spline([(C + 58, 204), (C + 72, 210), (C + 86, 203)]), None, GOLD_LIGHT, 4)
    g.path(spline(both([(C - 18, 138, 0), (C - 48, 150), (C - 62, 176), (C - 52, 190, 0), (C - 28, 180)]), closed=True),
           GREEN_DARK, INK, 2.8)
    chain = [(C - 44, 158), (C - 30, 182), (C, 194), (C + 30, 182), (C + 44, 158)]
    g.path(spline(chain), None, INK, 9)
    g.path(spline(chain), None, GOLD, 5)
    for x, y in ((C - 38, 172), (C - 17, 190), (C + 17, 190), (C + 38, 172)):
        g.circle(x, y, 5.4, RED, INK, 2)
    g.circle(C, 199, 9, GOLD_LIGHT, INK, 2.6)
    g.circle(C, 199, 3.6, BLUE)
    pips.cup(g, C + 74, 140, 1.18)
    palm_up(g, C + 74, 192, 0, 0.95)
    with g.at(C, 92, 1.0):
        face(g, 1, brow=HAIR_BROWN, blush=0.85)
        side_locks(g, HAIR_BROWN, "#3f2310", 34)
        beard(g, HAIR_BROWN, "#3f2310", "full", 1)
        crown(g, 5, "round", GREEN, (BLUE, RED, BLUE))


def king_espadas(g):
    """The warrior: black forked beard, breastplate, blue cloak, sword upright."""
    turf(g)
    cloak(g, BLUE, BLUE_DARK, 96)
    shoes(g, STEEL_DARK)
    gown = robe(g, RED_DARK, 54)
    g.hatch(gown, 90, 18, GOLD, 3, inset=0)
    orphrey(g, 12, 230, 396, BLUE, GOLD_LIGHT)
    g.path(spline([(C - 52, 378), (C, 386), (C + 52, 378)]), None, INK, 10)
    g.path(spline([(C - 52, 378), (C, 386), (C + 52, 378)]), None, GOLD, 5)
    g.path(gown, None, INK, 3)
    lapels(g, 72)
    plate = g.linear("plate", [(0, STEEL_DARK), (0.3, STEEL_LIGHT), (0.6, STEEL), (1, "#8796aa")], 0, 0, 1, 0)
    g.path(spline(both([(C - 14, 142, 0), (C - 40, 152), (C - 41, 186), (C - 33, 226, 0), (C - 16, 234)]), closed=True),
           plate, INK, 3)
    g.path(spline([(C - 20, 172), (C - 12, 200), (C, 208), (C + 12, 200), (C + 20, 172)]), None, GOLD_DARK, 3)
    lion = spline([(C, 178, 0), (C + 9, 188), (C, 204, 0), (C - 9, 188)], closed=True)
    g.path(lion, GOLD, INK, 2)
    g.path(spline([(C - 34, 218, 0), (C, 224), (C + 34, 218, 0), (C + 34, 231, 0), (C, 238), (C - 34, 231, 0)], closed=True),
           GOLD, INK, 2.6)
    with g.at(C - 2, 92, 1.0):
        hair_back(g, HAIR_BLACK, 46, 36)
    # orb in the left hand
    rod(g, [(C - 46, 168), (C - 74, 204), (C - 72, 230), (C - 52, 238)], [32, 38, 28, 18], BLUE)
    g.path(spline([(C - 62, 248), (C - 54, 238), (C - 54, 227)]), None, GOLD_LIGHT, 4)
    palm_up(g, C - 42, 240, 10, 0.9)
    with g.at(C - 41, 216):
        g.circle(0, 0, 16, BLUE, INK, 2.8)
        g.path(spline([(-15, -2), (0, 3), (15, -2)]), None, GOLD, 4)
        g.line([(0, -15), (0, 1)], GOLD, 4)
        g.line([(0, -18), (0, -30)], INK, 8)
        g.line([(-6, -24), (6, -24)], INK, 8)
        g.line([(0, -17), (0, -29)], GOLD_LIGHT, 4)
        g.line([(-5, -24), (5, -24)], GOLD_LIGHT, 4)
    rod(g, [(C + 46, 168), (C + 66, 206), (C + 74, 216), (C + 90, 214)], [32, 38, 30, 18], BLUE)
    g.path(spline([(C + 76, 204), (C + 80, 215), (C + 76, 226)]), None, GOLD_LIGHT, 4)
    tippet(g, 176, 60)
    g.circle(C, 172, 8, GOLD_LIGHT, INK, 2.6)
    g.circle(C, 172, 3.4, RED)
    pips.sword(g, C + 96, 160, 1.5, 0, 1.0, grip=RED)
    fist(g, C + 96, 220, 0, 1.0)
    with g.at(C - 2, 92, 1.0):
        face(g, 1, brow=HAIR_BLACK)
        side_locks(g, HAIR_BLACK, "#5a4650", 34)
        beard(g, HAIR_BLACK, "#5a4650", "forked", 1)
        crown(g, 5, "ray", BLUE, (RED, GREEN, RED))


def king_bastos(g):
    """Broad, red-haired, in green with brown fur; the club on the ground beside him, fist on the hip."""
    turf(g)
    cloak(g, RED_DARK, "#5c0c15", 96)
    shoes(g, WOOD_DARK)
    green = robe(g, GREEN, 58)

    def trefoil(x, y):
        for a in (0, 120, 240):
            with g.at(x, y, turn=a):
                g.circle(0, -4.4, 3.3, GREEN_LIGHT)
        g.circle(x, y, 1.8, GOLD_LIGHT)
    g.scatter(green, 27, 23, 9.5, trefoil, ox=8, oy=24)
    hem = spline([(C - 59, 374, 0), (C, 382), (C + 59, 374, 0), (C + 59, 393, 0), (C, 401), (C - 59, 393, 0)], closed=True)
    g.path(hem, GOLD, INK, 2.8)
    for k in range(-3, 4):
        mark(g, C + k * 16, 389 - abs(k) * 1.1, 6, RED_DARK)
    g.path(green, None, INK, 3)
    g.path(spline([(C - 34, 222, 0), (C, 229), (C + 34, 222, 0), (C + 36, 238, 0), (C, 246), (C - 36, 238, 0)], closed=True),
           WOOD, INK, 2.6)
    g.rect(C - 11, 225, 22, 22, GOLD_LIGHT, INK, 2.6, r=3)
    g.circle(C, 236, 5, RED, INK, 1.8)
    with g.at(C - 4, 92, 1.0):
        hair_back(g, HAIR_RED, 44, 38)
    rod(g, [(C - 50, 172), (C - 82, 206), (C - 84, 220), (C - 62, 232), (C - 42, 238)], [40, 40, 32, 22, 17], RED)
    g.path(spline([(C - 66, 244), (C - 58, 234), (C - 62, 222)]), None, GOLD_LIGHT, 4)
    fist(g, C - 37, 239, 60, 0.95)
    pips.club(g, C + 86, 240, 1.85, turn=3, leaves=False)
    rod(g, [(C + 46, 172), (C + 66, 202), (C + 76, 210), (C + 90, 206)], [38, 40, 30, 18], RED)
    g.path(spline([(C + 76, 196), (C + 80, 208), (C + 76, 219)]), None, GOLD_LIGHT, 4)
    fist(g, C + 94, 206, 0, 1.08)
    fur = spline(both([(C - 18, 136, 0), (C - 50, 146), (C - 66, 172), (C - 58, 190, 0), (C - 44, 184, 0), (C - 34, 198, 0),
                       (C - 22, 188, 0), (C - 10, 202, 0)]) , closed=True)
    g.path(fur, WOOD, INK, 3)
    g.scatter(fur, 13, 13, 5, lambda x, y: g.line([(x - 1, y - 4), (x + 1, y + 4)], WOOD_DARK, 2.2), ox=4, oy=6)
    g.path(fur, None, INK, 3)
    with g.at(C - 4, 92, 1.0):
        face(g, -1, brow=HAIR_RED, blush=0.7)
        side_locks(g, HAIR_RED, "#7c3216", 38)
        beard(g, HAIR_RED, "#7c3216", "long", -1)
        crown(g, 3, "lily", GREEN, (GREEN, RED, GREEN))


KINGS = {"oros": king_oros, "copas": king_copas, "espadas": king_espadas, "bastos": king_bastos}
