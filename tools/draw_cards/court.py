"""The court of the French deck: twelve half figures, each drawn once and turned about the middle of its card."""

import math

import pips
from card import HEIGHT, WIDTH, french_index, paper
from figure import *
from geometry import pts, spline
from palette import *
from sotas import mark

CX, CY = WIDTH / 2, HEIGHT / 2
LEFT, RIGHT, TOP, LOW = 47, WIDTH - 47, 24, HEIGHT - 24
SLOPE = 24  # the sash falls this much from the middle to each side


def sash_y(x):
    """Where the two halves meet."""
    return CY + (CX - x) / (CX - LEFT) * SLOPE


def half(points):
    """An outline that closes along the sash: its first and last points are dropped onto it."""
    (x0, *_), (x1, *_) = points[0], points[-1]
    return spline([(x0, sash_y(x0), 0)] + points[1:-1] + [(x1, sash_y(x1), 0)], closed=True)


def mantle(g, colour, motif=None, dx=20, dy=18):
    """Shoulders and arms down to the sash, as wide as the frame."""
    shape = half([(LEFT + 3, 0), (LEFT + 3, 214, 0), (66, 176), (98, 152), (132, 142, 0), (171, 142, 0), (205, 152),
                  (237, 170), (RIGHT - 3, 184, 0), (RIGHT - 3, 0)])
    g.path(shape, colour)
    if motif:
        g.scatter(shape, dx, dy, 7.5, motif, 6, 14)
    g.path(shape, None, INK, 3)
    return shape


def panel(g, left, right, top_left, top_right, colour, motif=None, gap=18):
    """A vertical part of the dress, from the neck to the sash."""
    shape = half([(left, 0), (top_left, 144, 0), (top_right, 144, 0), (right, 0)])
    g.path(shape, colour)
    if motif:
        g.scatter(shape, gap, gap, 7, motif, 4, 10)
    g.path(shape, None, INK, 2.8)
    return shape


def lapel(g, x0, x1, top0, top1, fill, motif=None):
    """The two edges of a mantle, mirrored about the middle."""
    for m in (False, True):
        a, b, c, d = (x0, x1, top0, top1) if not m else (2 * CX - x0, 2 * CX - x1, 2 * CX - top0, 2 * CX - top1)
        lo, hi = min(a, b), max(a, b)
        tlo, thi = (c, d) if c < d else (d, c)
        shape = half([(lo, 0), (tlo, 148, 0), (thi, 144, 0), (hi, 0)])
        g.path(shape, fill)
        if motif:
            g.scatter(shape, 17, 17, 5, motif, 3, 8)
        g.path(shape, None, INK, 2.6)


def ermine_tail(g):
    return lambda x, y: g.path(spline([(x, y - 5, 0), (x + 3, y + 2), (x, y + 6, 0), (x - 3, y + 2)], closed=True), INK)


def lozenge(g, colour, size=6.5):
    return lambda x, y: mark(g, x, y, size, colour)


def ring(g, colour, inner=None):
    def draw(x, y):
        g.circle(x, y, 5.2, None, colour, 2.2)
        g.circle(x, y, 1.9, inner or colour)
    return draw


def quatrefoil(g, colour, heart):
    def draw(x, y):
        for a in range(4):
            with g.at(x, y, turn=90 * a):
                g.ellipse(0, -4.2, 2.8, 3.8, colour)
        g.circle(x, y, 2, heart)
    return draw


def sleeve(g, points, widths, colour, cuff, motif=None):
    shape = limb(points, widths, cap=0)
    g.path(shape, colour)
    if motif:
        g.scatter(shape, 17, 16, 6, motif, 4, 8)
    g.path(shape, None, INK, 3)
    (x0, y0), (x1, y1) = points[-2], points[-1]
    size = math.hypot(x1 - x0, y1 - y0)
    ux, uy = (x1 - x0) / size, (y1 - y0) / size
    w = widths[-1] / 2 + 3
    g.path(spline([(x1 - uy * w, y1 + ux * w, 0), (x1 + uy * w, y1 - ux * w, 0), (x1 + uy * w + ux * 9, y1 - ux * w + uy * 9, 0),
                   (x1 - uy * w + ux * 9, y1 + ux * w + uy * 9, 0)], closed=True), cuff, INK, 2.6)


def round_collar(g, fill, jewel=None, half_width=40, drop=22):
    g.path(spline([(CX - 14, 138, 0), (CX - half_width, 148), (CX - half_width + 6, 160), (CX, 160 + drop * 0.5),
                   (CX + half_width - 6, 160), (CX + half_width, 148), (CX + 14, 138, 0), (CX, 146)], closed=True), fill, INK, 2.8)
    if jewel:
        for k in range(-3, 4):
            g.circle(CX + k * 10.4, 157 + 5 - abs(k) * 1.9, 3, jewel, INK, 1.4)


def throat(g, y=124):
    g.poly([(CX - 12, y), (CX - 14, 152), (CX + 14, 152), (CX + 12, y)], SKIN_SHADE, INK, 2.6)


# -- what they bear; each stands upright on x, from the top of the frame to the sash

def staff(g, x, top, colour=WOOD_LIGHT, w=5.0):
    g.line([(x, top), (x, sash_y(x) + 2)], INK, w + 5)
    g.line([(x, top), (x, sash_y(x) + 2)], colour, w)


def halberd(g, x):
    staff(g, x, 60)
    g.path(spline([(x, 30, 0), (x + 6, 52), (x, 66, 0), (x - 6, 52)], closed=True), STEEL_LIGHT, INK, 2.8)
    g.path(spline([(x + 3, 62, 0), (x + 14, 58), (x + 30, 50, 0), (x + 32, 72), (x + 26, 92, 0), (x + 14, 82), (x + 3, 84, 0)],
                  closed=True), STEEL, INK, 2.8)
    g.path(spline([(x - 3, 66, 0), (x - 14, 66), (x - 22, 76, 0), (x - 12, 80), (x - 3, 82, 0)], closed=True), STEEL, INK, 2.8)
    g.rect(x - 5, 60, 10, 28, GOLD, INK, 2.4, r=2)


def pennon(g, x, one, two):
    staff(g, x, 56)
    g.path(spline([(x, 28, 0), (x + 6, 48), (x, 62, 0), (x - 6, 48)], closed=True), STEEL_LIGHT, INK, 2.8)
    flag = spline([(x - 2, 64, 0), (x - 14, 60), (x - 26, 67), (x - 38, 62, 0), (x - 31, 76, 0), (x - 39, 88, 0), (x - 26, 91),
                   (x - 14, 86), (x - 2, 90, 0)], closed=True)
    g.path(flag, one, INK, 2.8)
    g.path(spline([(x - 4, 77), (x - 14, 73), (x - 27, 79)]), None, two, 5)


def arrow_up(g, x):
    staff(g, x, 56, WOOD_LIGHT, 4)
    g.path(f"M {pts((x, 28))} L {pts((x + 12, 58))} L {pts((x, 51))} L {pts((x - 12, 58))} Z", STEEL, INK, 2.8)


def long_sword(g, x, grip=RED, y=128):
    pips.sword(g, x, y, 1.2, 0, 0.98, grip=grip)


def axe(g, x):
    staff(g, x, 40, WOOD)
    g.path(spline([(x + 3, 52, 0), (x + 16, 46), (x + 30, 36, 0), (x + 38, 62), (x + 30, 90, 0), (x + 16, 80), (x + 3, 76, 0)],
                  closed=True), STEEL, INK, 3)
    g.path(spline([(x + 31, 42), (x + 33, 63), (x + 29, 84)]), None, STEEL_LIGHT, 3)
    g.path(spline([(x - 3, 56, 0), (x - 18, 58), (x - 26, 64, 0), (x - 16, 70), (x - 3, 72, 0)], closed=True), STEEL, INK, 2.8)
    g.rect(x - 6, 50, 12, 28, GOLD, INK, 2.4, r=2)
    g.circle(x, 40, 6, GOLD_LIGHT, INK, 2.4)


def sceptre(g, x, top=72, jewel=RED):
    staff(g, x, top, GOLD, 5)
    g.path(spline([(x, top - 40, 0), (x + 8, top - 24), (x, top - 8, 0), (x - 8, top - 24)], closed=True), GOLD_LIGHT, INK, 2.8)
    for s in (-1, 1):
        g.path(spline([(x, top - 4, 0), (x + s * 18, top - 8), (x + s * 17, top - 26, 0), (x + s * 8, top - 16)], closed=True), GOLD,
               INK, 2.6)
    g.circle(x, top, 6.4, jewel, INK, 2.4)


def orb(g, x, y, colour=BLUE, r=19):
    g.circle(x, y, r, colour, INK, 3)
    g.path(spline([(x - r + 1, y - 2), (x, y + 4), (x + r - 1, y - 2)]), None, GOLD, 5)
    g.line([(x, y - r + 1), (x, y + 2)], GOLD, 5)
    g.path(f"M {x},{y - r - 16} L {x},{y - r + 1} M {x - 7},{y - r - 10} L {x + 7},{y - r - 10}", None, INK, 9)
    g.path(f"M {x},{y - r - 16} L {x},{y - r + 1} M {x - 7},{y - r - 10} L {x + 7},{y - r - 10}", None, GOLD_LIGHT, 4.4)
    g.path(spline([(x - r * 0.6, y - r * 0.5), (x - r * 0.3, y - r * 0.75)]), None, WHITE, 3, 0.7)


def rose(g, x, y, colour=RED, dark=RED_DARK, k=1.0, stem=True):
    if stem:
        stalk = [(x, y + 8), (x - 3, y + 40), (x + 1, y + 74)]
        g.path(spline(stalk), None, INK, 7.6)
        g.path(spline(stalk), None, GREEN, 4)
        for px, py, t in ((x - 2, y + 34, 205), (x - 1, y + 46, -25)):
            with g.at(px, py, turn=t):
                g.path(spline([(0, 0, 0), (8, -8), (20, -5, 0), (10, 4)], closed=True), GREEN_LIGHT, INK, 2.2)
    with g.at(x, y, k):
        for a in range(5):
            with g.at(0, 0, turn=72 * a):
                g.path(spline([(-4, 0, 0), (-11, -13), (0, -20), (11, -13), (4, 0, 0)], closed=True), colour, INK, 2.4)
        g.circle(0, 0, 8.4, dark, INK, 2)
        g.circle(0, 0, 3.4, GOLD_LIGHT)


def tulip(g, x, y, colour, dark):
    stalk = [(x, y + 10), (x + 2, y + 40), (x, y + 74)]
    g.path(spline(stalk), None, INK, 7.6)
    g.path(spline(stalk), None, GREEN, 4)
    g.path(spline([(x + 1, y + 62, 0), (x + 16, y + 44), (x + 20, y + 20, 0), (x + 5, y + 36)], closed=True), GREEN_LIGHT, INK, 2.4)
    g.path(spline([(x - 17, y - 20, 0), (x - 18, y + 4), (x, y + 14), (x + 18, y + 4), (x + 17, y - 20, 0), (x + 8, y - 8, 0),
                   (x, y - 24, 0), (x - 8, y - 8, 0)], closed=True), colour, INK, 2.8)
    g.path(spline([(x, y - 18), (x + 3, y - 2), (x, y + 10)]), None, dark, 2.4)


def fan(g, x, y, one, two):
    """An open fan, its rivet at (x, y)."""
    with g.at(x, y):
        for k in range(7):
            a, b = math.radians(-66 + 132 * k / 7), math.radians(-66 + 132 * (k + 1) / 7)
            r = 58
            g.path(f"M 0,0 L {pts((r * math.sin(a), -r * math.cos(a)))} "
                   f"Q {pts(((r + 7) * math.sin((a + b) / 2), -(r + 7) * math.cos((a + b) / 2)), (r * math.sin(b), -r * math.cos(b)))} Z",
                   one if k % 2 else two, INK, 2.4)
        for k in range(7):
            a = math.radians(-66 + 132 * (k + 0.5) / 7)
            g.circle(47 * math.sin(a), -47 * math.cos(a), 3, GOLD)
        g.circle(0, 0, 4.4, GOLD_LIGHT, INK, 2.2)


def mirror_glass(g, x, y):
    g.line([(x, y + 20), (x, y + 66)], INK, 11)
    g.line([(x, y + 20), (x, y + 66)], GOLD, 6)
    g.ellipse(x, y, 23, 27, GOLD, INK, 3)
    g.ellipse(x, y, 16, 20, "#cfe3f2", GOLD_DEEP, 2.4)
    g.path(spline([(x - 9, y + 4), (x - 4, y - 8), (x + 6, y - 13)]), None, WHITE, 4)
    g.circle(x, y - 27, 4.4, RED, INK, 2)


# -- heads of the queens and knaves

def queen_crown(g, lining=RED, jewel=BLUE):
    gold = g.linear("gold_down", [(0, "#fdeca8"), (0.5, GOLD), (1, "#b9791a")])
    outline = [(-27, -26, 0), (-34, -54, 0), (-20, -42), (-14, -58, 0), (-6, -44), (0, -66, 0), (6, -44), (14, -58, 0), (20, -42),
               (34, -54, 0), (27, -26, 0), (0, -33)]
    g.path(spline(outline, closed=True), gold, INK, 3)
    for x, y in ((-34, -56), (-14, -60), (0, -68), (14, -60), (34, -56)):
        g.circle(x, y, 4, WHITE, INK, 2)
    for x in (-17, 0, 17):
        g.ellipse(x, -36.5 + abs(x) * 0.14, 3.6, 4.2, jewel if x else lining, INK, 1.5)


def long_hair(g, colour, dark):
    """Waves down to the shoulders, behind the face."""
    shape = spline([(0, -44), (27, -36), (38, -8), (37, 22), (46, 44), (38, 66), (20, 58), (-20, 58), (-38, 66), (-46, 44), (-37, 22),
                    (-38, -8), (-27, -36)], closed=True)
    g.path(shape, colour, INK, 3)
    for s in (-1, 1):
        g.path(spline([(s * 33, 0), (s * 33, 26), (s * 40, 46), (s * 34, 60)]), None, dark, 2)


def parted(g, colour, dark):
    """A woman's parting over the forehead."""
    for s in (-1, 1):
        g.path(spline([(s * -1, -41, 0), (s * 18, -38), (s * 31, -20), (s * 31, 8, 0), (s * 24, -6), (s * 14, -20), (s * -1, -27, 0)],
                      closed=True), colour, INK, 2.8)
        g.path(spline([(s * 5, -36), (s * 19, -24), (s * 27, -6)]), None, dark, 1.8)


def ear_rings(g, colour=GOLD_LIGHT):
    for s in (-1, 1):
        g.circle(s * 29, 20, 4.2, colour, INK, 2)


def beret(g, colour, dark, plume, plume_dark, side=1):
    with g.group("scale(-1,1)" if side < 0 else None):
        feather(g, [(-16, -44), (-28, -57), (-40, -55), (-47, -42)], plume, plume_dark, 15)
        g.path(spline([(-38, -22), (-42, -42), (-14, -58), (24, -54), (44, -34), (38, -20), (0, -30)], closed=True), colour, INK, 3.2)
        g.path(spline([(-37, -22), (0, -32), (37, -20)]), None, INK, 9)
        g.path(spline([(-37, -22.5), (0, -32.5), (36, -20.5)]), None, GOLD, 4.4)
        g.circle(-18, -40, 6, GOLD_LIGHT, INK, 2.4)


def flat_cap(g, colour, band, plume=None, plume_dark=None):
    if plume:
        feather(g, [(20, -40), (36, -50), (48, -42), (52, -26)], plume, plume_dark, 15)
    g.path(spline([(-32, -26, 0), (-34, -52, 0), (0, -60), (34, -52, 0), (32, -26, 0), (0, -34)], closed=True), colour, INK, 3.2)
    g.path(spline([(-42, -24), (-30, -36, 0), (0, -42), (30, -36, 0), (42, -24), (0, -32)], closed=True), band, INK, 3)
    g.circle(20, -40, 5.4, GOLD_LIGHT, INK, 2.4)


def hood(g, colour, dark):
    g.path(spline([(-34, 30, 0), (-40, -6), (-30, -42), (0, -54), (30, -42), (40, -6), (34, 30, 0), (46, 52, 0), (0, 62), (-46, 52, 0)],
                  closed=True), colour, INK, 3.2)
    g.path(spline([(-38, 0), (-30, -38), (-4, -50)]), None, dark, 2)


def jack_diamantes(g):
    mantle(g, RED, lozenge(g, GOLD_LIGHT))
    panel(g, 118, 186, 130, 174, BLUE, None)
    for x in (134, 152, 170):
        g.line([(x, 146), (x - 2, sash_y(x) - 2)], GOLD_LIGHT, 3)
    with g.at(CX - 4, 99, 1.05):
        hair_back(g, HAIR_BLOND, 40, 37)
    throat(g)
    halberd(g, 220)
    sleeve(g, [(200, 158), (206, 190), (222, 186), (221, 172)], [36, 36, 28, 20], GOLD, WHITE)
    fist(g, 222, 156, 0, 0.95)
    round_collar(g, WHITE, None, 36, 16)
    with g.at(CX - 4, 99, 1.05):
        face(g, 1, brow=HAIR_BROWN, soft=True)
        fringe(g, HAIR_BLOND, -19, "#a86c1f")
        beret(g, RED, RED_DARK, WHITE, HAIR_GREY, -1)


def jack_corazones(g):
    mantle(g, BLUE, ring(g, GOLD_LIGHT))
    panel(g, 112, 190, 128, 176, RED, quatrefoil(g, GOLD_LIGHT, RED_DARK), 20)
    with g.at(CX - 4, 99, 1.05):
        hair_back(g, HAIR_BROWN, 40, 37)
    throat(g)
    rose(g, 218, 92)
    sleeve(g, [(202, 158), (210, 192), (224, 188), (221, 176)], [36, 36, 28, 20], RED, GOLD_LIGHT)
    fist(g, 219, 160, 0, 0.92)
    round_collar(g, GOLD, RED, 36, 16)
    with g.at(CX - 4, 99, 1.05):
        face(g, 1, brow=HAIR_BROWN, soft=True)
        fringe(g, HAIR_BROWN, -19, "#3f2310")
        moustache(g, HAIR_BROWN, 1)
        flat_cap(g, BLUE, RED, GOLD_LIGHT, GOLD_DARK)


def jack_picas(g):
    mantle(g, "#2b2a3a", quatrefoil(g, GOLD, RED))
    panel(g, 116, 186, 130, 174, RED, None)
    for k in range(3):
        g.path(spline([(131, 158 + k * 20), (CX, 168 + k * 20), (172, 158 + k * 20)]), None, GOLD_LIGHT, 3)
    with g.at(CX + 2, 99, 1.05):
        hair_back(g, HAIR_BLACK, 40, 37)
    throat(g)
    pennon(g, 236, RED, GOLD_LIGHT)
    sleeve(g, [(204, 158), (212, 192), (232, 186), (235, 176)], [36, 36, 28, 20], BLUE, WHITE)
    fist(g, 236, 160, 0, 0.92)
    round_collar(g, WHITE, None, 36, 16)
    with g.at(CX - 6, 99, 1.05):
        face(g, -1, brow=HAIR_BLACK, soft=False)
        fringe(g, HAIR_BLACK, -19, "#5a4650")
        moustache(g, HAIR_BLACK, -1)
        flat_cap(g, "#2b2a3a", RED)


def jack_treboles(g):
    mantle(g, GREEN, lozenge(g, GREEN_LIGHT))
    panel(g, 114, 188, 130, 174, GOLD, None)
    for y in (166, 184, 202):
        g.circle(CX, y, 4, RED, INK, 2)
        g.path(spline([(128, y - 6), (140, y), (147, y)]), None, INK, 2.6)
        g.path(spline([(176, y - 6), (164, y), (157, y)]), None, INK, 2.6)
    throat(g)
    with g.at(CX - 4, 99, 1.05):
        hood(g, RED, RED_DARK)
    arrow_up(g, 222)
    for s in (-1, 1):
        g.path(spline([(222, 128, 0), (222 + s * 12, 118), (222 + s * 12, 138, 0), (222, 150, 0)], closed=True), WHITE, INK, 2.4)
    sleeve(g, [(204, 158), (208, 194), (222, 190), (222, 180)], [36, 36, 28, 20], GREEN_DARK, GOLD_LIGHT)
    fist(g, 222, 164, 0, 0.92)
    with g.at(CX - 4, 99, 1.05):
        face(g, 1, brow=HAIR_RED, soft=True)
        curl = spline([(-28, 2, 0), (-29, -16), (-16, -33), (4, -35), (20, -30), (28, -8, 0), (16, -21), (4, -18), (-8, -24), (-20, -12)],
                      closed=True)
        g.path(curl, HAIR_RED, INK, 2.6)
        rim = spline([(-30, 30, 0), (-33, 4), (-29, -22), (-12, -38), (8, -39), (26, -30), (32, -10), (32, 10), (28, 30, 0)])
        g.path(rim, None, INK, 9)
        g.path(rim, None, GOLD, 4.6)
        feather(g, [(20, -42), (34, -52), (46, -44), (52, -28)], GREEN_LIGHT, GREEN_DARK, 14)
        g.circle(18, -42, 5.4, GOLD_LIGHT, INK, 2.4)


def queen(g, look, hair, hair_dark, crown_lining, jewel, veil=None):
    with g.at(CX - 4, 104, 1.0):
        face(g, look, brow=hair_dark, soft=True, blush=0.7)
        parted(g, hair, hair_dark)
        ear_rings(g)
        queen_crown(g, crown_lining, jewel)


def necklace(g, colour, pendant, y=172):
    chain = [(CX - 26, 152), (CX - 16, y - 8), (CX, y), (CX + 16, y - 8), (CX + 26, 152)]
    g.path(spline(chain), None, INK, 5.4)
    g.path(spline(chain), None, colour, 2.8)
    g.circle(CX, y + 5, 6, pendant, INK, 2.4)


def neckline(g):
    """Bare neck and shoulders above a dress."""
    g.path(spline([(CX - 12, 126, 0), (CX - 14, 142), (CX - 32, 152, 0), (CX - 24, 172), (CX, 180), (CX + 24, 172), (CX + 32, 152, 0),
                   (CX + 14, 142), (CX + 12, 126, 0)], closed=True), SKIN, INK, 2.8)


def queen_diamantes(g):
    with g.at(CX - 4, 104, 1.0):
        long_hair(g, HAIR_BLOND, "#a86c1f")
    mantle(g, BLUE, lozenge(g, GOLD_LIGHT))
    lapel(g, 92, 110, 118, 132, WHITE, ermine_tail(g))
    panel(g, 110, 193, 132, 171, RED, quatrefoil(g, GOLD_LIGHT, RED_DARK), 19)
    neckline(g)
    necklace(g, GOLD_LIGHT, BLUE)
    mirror_glass(g, 220, 96)
    sleeve(g, [(204, 160), (214, 194), (226, 188), (222, 178)], [34, 34, 28, 22], BLUE_DARK, WHITE)
    fist(g, 220, 160, 0, 0.9)
    queen(g, 1, HAIR_BLOND, "#a86c1f", RED, BLUE)


def queen_corazones(g):
    with g.at(CX - 4, 104, 1.0):
        long_hair(g, HAIR_RED, "#7c3216")
    mantle(g, RED, ring(g, GOLD_LIGHT))
    lapel(g, 90, 110, 114, 130, GOLD, lozenge(g, RED_DARK, 5))
    panel(g, 110, 193, 130, 173, BLUE, lozenge(g, WHITE, 5), 18)
    neckline(g)
    necklace(g, GOLD_LIGHT, RED)
    rose(g, 218, 90, WHITE, GOLD, 1.05)
    sleeve(g, [(204, 160), (212, 194), (224, 190), (220, 180)], [34, 34, 28, 22], RED_DARK, GOLD_LIGHT)
    fist(g, 219, 162, 0, 0.9)
    queen(g, 1, HAIR_RED, "#7c3216", BLUE, RED)


def queen_picas(g):
    with g.at(CX - 4, 104, 1.0):
        g.path(spline([(0, -48), (32, -36), (42, -4), (46, 44), (56, 66, 0), (-56, 66, 0), (-46, 44), (-42, -4), (-32, -36)],
                      closed=True), "#f4ead2", INK, 3)
        for s in (-1, 1):
            g.path(spline([(s * 34, -20), (s * 40, 20), (s * 46, 58)]), None, "#c3ae7e", 2)
    mantle(g, "#2b2a3a", lozenge(g, GOLD_LIGHT))
    lapel(g, 90, 108, 114, 128, WHITE, ermine_tail(g))
    panel(g, 108, 195, 128, 175, GREEN, quatrefoil(g, GOLD_LIGHT, GREEN_DARK), 19)
    neckline(g)
    necklace(g, WHITE, RED)
    sceptre(g, 222, 74, RED)
    sleeve(g, [(206, 160), (214, 194), (226, 190), (223, 180)], [34, 34, 28, 22], RED, GOLD_LIGHT)
    fist(g, 222, 162, 0, 0.9)
    queen(g, -1, HAIR_BLACK, "#5a4650", GREEN, RED)


def queen_treboles(g):
    with g.at(CX - 4, 104, 1.0):
        long_hair(g, HAIR_BROWN, "#3f2310")
    mantle(g, GREEN, quatrefoil(g, GOLD_LIGHT, RED))
    lapel(g, 92, 110, 116, 130, RED, lozenge(g, GOLD_LIGHT, 5))
    panel(g, 110, 193, 130, 173, GOLD, ring(g, RED_DARK), 19)
    neckline(g)
    necklace(g, WHITE, GREEN)
    tulip(g, 220, 88, RED, RED_DARK)
    sleeve(g, [(204, 160), (212, 194), (224, 190), (221, 180)], [34, 34, 28, 22], GREEN_DARK, GOLD_LIGHT)
    fist(g, 220, 162, 0, 0.9)
    queen(g, 1, HAIR_BROWN, "#3f2310", RED, GREEN)


def king(g, look, colour, dark, style, crown_style, points, lining, jewels):
    with g.at(CX - 4, 105, 0.98):
        face(g, look, brow=colour)
        side_locks(g, colour, dark, 32)
        beard(g, colour, dark, style, look)
        crown(g, points, crown_style, lining, jewels)


def king_diamantes(g):
    mantle(g, RED, lozenge(g, GOLD_LIGHT))
    lapel(g, 88, 108, 112, 128, WHITE, ermine_tail(g))
    panel(g, 108, 195, 128, 175, BLUE, ring(g, GOLD_LIGHT), 20)
    axe(g, 214)
    sleeve(g, [(204, 160), (204, 194), (216, 190), (215, 178)], [36, 34, 28, 22], RED_DARK, GOLD_LIGHT)
    fist(g, 214, 160, 0, 0.95)
    round_collar(g, WHITE, None, 44, 22)
    king(g, 1, HAIR_GREY, "#7d7a78", "full", "lily", 5, BLUE, (RED, BLUE, RED))


def king_corazones(g):
    mantle(g, BLUE, quatrefoil(g, GOLD_LIGHT, RED))
    lapel(g, 88, 108, 112, 128, WHITE, ermine_tail(g))
    panel(g, 108, 195, 128, 175, RED, lozenge(g, GOLD_LIGHT, 6), 18)
    long_sword(g, 220, RED, 110)
    sleeve(g, [(204, 160), (208, 196), (222, 190), (220, 180)], [36, 34, 28, 22], BLUE_DARK, GOLD_LIGHT)
    fist(g, 220, 160, 0, 0.95)
    round_collar(g, GOLD, RED, 44, 22)
    king(g, 1, HAIR_BLOND, "#a86c1f", "forked", "round", 5, RED, (BLUE, RED, BLUE))


def king_picas(g):
    mantle(g, "#2b2a3a", ring(g, GOLD_LIGHT, RED))
    lapel(g, 88, 108, 112, 128, WHITE, ermine_tail(g))
    panel(g, 108, 195, 128, 175, GREEN, lozenge(g, GOLD_LIGHT, 6), 18)
    sceptre(g, 222, 76, RED)
    sleeve(g, [(204, 160), (210, 196), (224, 190), (222, 180)], [36, 34, 28, 22], RED, GOLD_LIGHT)
    fist(g, 222, 162, 0, 0.95)
    round_collar(g, WHITE, None, 44, 22)
    king(g, -1, HAIR_BLACK, "#5a4650", "long", "ray", 5, RED, (RED, GREEN, RED))


def king_treboles(g):
    mantle(g, GREEN, lozenge(g, GOLD_LIGHT))
    lapel(g, 88, 108, 112, 128, WOOD, lambda x, y: g.line([(x - 1, y - 4), (x + 1, y + 4)], WOOD_DARK, 2.2))
    panel(g, 108, 195, 128, 175, GOLD, quatrefoil(g, RED, RED_DARK), 20)
    sleeve(g, [(204, 160), (206, 196), (220, 190), (218, 176)], [36, 34, 28, 22], RED, GOLD_LIGHT)
    palm_up(g, 218, 156, 0, 1.0)
    orb(g, 218, 130, RED)
    round_collar(g, RED, GOLD_LIGHT, 44, 22)
    king(g, 1, HAIR_RED, "#7c3216", "full", "lily", 3, GREEN, (GREEN, BLUE, GREEN))


HALVES = {
    ("diamantes", 11): jack_diamantes, ("corazones", 11): jack_corazones, ("picas", 11): jack_picas,
    ("treboles", 11): jack_treboles, ("diamantes", 12): queen_diamantes, ("corazones", 12): queen_corazones,
    ("picas", 12): queen_picas, ("treboles", 12): queen_treboles, ("diamantes", 13): king_diamantes,
    ("corazones", 13): king_corazones, ("picas", 13): king_picas, ("treboles", 13): king_treboles,
}

SASH = {"diamantes": (RED_DARK, GOLD_LIGHT), "corazones": (BLUE_DARK, GOLD_LIGHT), "picas": ("#1b1b26", GOLD_LIGHT),
        "treboles": (GREEN_DARK, GOLD_LIGHT)}


def sash(g, suit):
    band, motif = SASH[suit]
    h = 9
    g.poly([(LEFT + 2, sash_y(LEFT) - h), (RIGHT - 2, sash_y(RIGHT) - h), (RIGHT - 2, sash_y(RIGHT) + h),
            (LEFT + 2, sash_y(LEFT) + h)], GOLD, INK, 2.8)
    h = 5.4
    g.poly([(LEFT + 2, sash_y(LEFT) - h), (RIGHT - 2, sash_y(RIGHT) - h), (RIGHT - 2, sash_y(RIGHT) + h),
            (LEFT + 2, sash_y(LEFT) + h)], band)
    for k in range(-5, 6):
        x = CX + k * 18.6
        mark(g, x, sash_y(x), 4.4, motif)


def court_card(suit, number, index):
    g = paper()
    shape, colour = pips.FRENCH[suit]
    g.rect(LEFT, TOP, RIGHT - LEFT, LOW - TOP, "#fdf9ee", None)

    def both_halves(draw):
        draw()
        with g.group(f"rotate(180 {CX} {CY})"):
            draw()

    both_halves(lambda: HALVES[suit, number](g))
    both_halves(lambda: pips.french(g, suit, 77, 58, 0.74))
    sash(g, suit)
    g.rect(LEFT, TOP, RIGHT - LEFT, LOW - TOP, None, BLUE_DARK, 3, r=3)
    french_index(g, suit, index)
    return g
