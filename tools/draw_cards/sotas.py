"""The four pages (number 10): four bearings, four dresses, each with the sign of the suit."""

import pips
from figure import *
from geometry import mirror, spline
from palette import *

C = 152  # the page's middle line


def both(points, axis=C):
    """A symmetric outline from its left half, top to bottom."""
    return points + [(2 * axis - p[0], *p[1:]) for p in reversed(points)]


def mark(g, x, y, size, colour):
    """A small lozenge of brocade."""
    g.path(f"M {pts((x, y - size))} L {pts((x + size * 0.75, y))} L {pts((x, y + size))} L {pts((x - size * 0.75, y))} Z",
           colour)


def legs(g, left, right, shoe, stripe=None, boots=False):
    for colour, m in ((left, False), (right, True)):
        fix = (lambda d: mirror(d, C)) if m else (lambda d: d)
        leg = fix(spline([(122, 262, 0), (121, 300), (127, 328), (122, 350), (129, 382, 0), (145, 382, 0), (148, 350),
                          (149, 322), (152, 262, 0)], closed=True))
        g.path(leg, colour, INK, 3)
        if stripe and not m:
            g.hatch(leg, 90, 9, stripe, 3.4, inset=0)
            g.path(leg, None, INK, 3)
        g.path(fix(spline([(126, 300), (130, 328), (127, 350), (131, 378)])), None, INK, 1.2, 0.35)
        g.path(fix(spline([(149, 372, 0), (127, 372, 0), (120, 381), (101, 388), (94, 395), (102, 400), (149, 400, 0)],
                          closed=True)), shoe, INK, 3)
        if boots:
            g.path(fix(spline([(119, 330, 0), (124, 352), (127, 376), (148, 376), (149, 352), (152, 330, 0), (136, 336)],
                              closed=True)), shoe)
            g.path(fix(spline([(121, 330), (122, 352), (127, 372)])), None, INK, 3)
            g.path(fix(spline([(148, 372), (149, 352), (152, 332)])), None, INK, 3)
            g.path(fix(spline([(115, 326, 0), (136, 332), (153, 326, 0), (153, 339, 0), (136, 345), (116, 339, 0)],
                              closed=True)), WOOD_LIGHT, INK, 2.6)


def neck(g, y=118, x=C):
    g.path(spline([(x - 12, y, 0), (x - 14, y + 30, 0), (x + 14, y + 30, 0), (x + 12, y, 0)], closed=True), SKIN_SHADE,
           INK, 2.6)


def belt(g, y=214, half=31, colour=GOLD, buckle=GOLD_LIGHT):
    g.path(spline([(C - half, y, 0), (C, y + 5), (C + half, y, 0), (C + half, y + 12, 0), (C, y + 17), (C - half, y + 12, 0)],
                  closed=True), colour, INK, 2.6)
    g.rect(C - 8, y + 1, 16, 17, buckle, INK, 2.4, r=2)


def page_oros(g):
    """Coin aloft; parted tunic of lozenges and stripes, beret with a plume."""
    turf(g)
    cape = spline([(C - 34, 146), (C - 66, 200), (C - 72, 264), (C - 40, 280), (C + 40, 280), (C + 62, 264), (C + 54, 200),
                   (C + 34, 146)], closed=True)
    g.path(cape, BLUE_DARK, INK, 3)
    legs(g, RED, BLUE, WOOD)
    with g.at(C - 3, 90, 0.98):
        hair_back(g, HAIR_BLOND, 32, 36)
    neck(g)
    left = spline([(C, 140, 0), (C - 14, 140, 0), (C - 42, 150), (C - 36, 190), (C - 31, 222, 0), (C - 48, 262),
                   (C - 56, 292, 0), (C - 37, 300, 0), (C - 19, 292, 0), (C, 302, 0)], closed=True)
    right = mirror(left, C)
    g.path(left, RED)
    g.path(right, BLUE)
    g.scatter(left, 18, 18, 6.5, lambda x, y: mark(g, x, y, 6, GOLD_LIGHT))
    g.hatch(right, 90, 13, GOLD_LIGHT, 2.6, inset=0)
    g.path(left, None, INK, 3)
    g.path(right, None, INK, 3)
    for y in (163, 180, 197):
        g.circle(C, y, 3.8, GOLD_LIGHT, INK, 1.8)
    belt(g)
    rod(g, [(C - 38, 162), (C - 66, 192), (C - 70, 204), (C - 52, 216), (C - 36, 223)], [32, 32, 25, 18, 15], BLUE)
    g.path(spline([(C - 83, 190), (C - 70, 201), (C - 55, 196)]), None, GOLD_LIGHT, 3)
    fist(g, C - 31, 225, 60, 0.85)
    rod(g, [(C + 36, 162), (C + 64, 180), (C + 76, 170), (C + 82, 146), (C + 84, 130)], [32, 34, 25, 18, 15], RED)
    g.path(spline([(C + 66, 160), (C + 78, 167), (C + 91, 163)]), None, GOLD_LIGHT, 3)
    collar = spline(both([(C - 4, 137, 0), (C - 26, 139), (C - 42, 151), (C - 24, 158), (C - 6, 153, 0)]), closed=True)
    g.path(collar, WHITE, INK, 2.6)
    pips.coin(g, C + 85, 84, 1.15)
    palm_up(g, C + 85, 126, 0, 0.95)
    with g.at(C - 3, 90, 0.98):
        face(g, 1, brow=HAIR_BROWN, soft=True)
        fringe(g, HAIR_BLOND, -19, "#a86c1f")
        hat = spline([(-40, -26), (-45, -43), (-18, -60), (22, -58), (46, -38), (39, -24), (0, -33)], closed=True)
        g.path(hat, RED, INK, 3.2)
        g.path(spline([(-39, -25), (0, -34), (38, -24)]), None, INK, 9)
        g.path(spline([(-38, -25.5), (0, -34.5), (37, -24.5)]), None, GOLD, 4)
        feather(g, [(20, -40), (4, -60), (-24, -66), (-52, -58)], WHITE, HAIR_GREY, 20)
        g.circle(20, -39, 6, GOLD_LIGHT, INK, 2.6)


def page_copas(g):
    """Bears the cup on a cloth before him; long surcoat with a scalloped hem, dark hair, circlet of roses."""
    turf(g)
    legs(g, WHITE, WHITE, RED_DARK, stripe=RED)
    with g.at(C + 6, 90, 0.98):
        hair_back(g, HAIR_BLACK, 38, 37)
    neck(g, x=C + 4)
    sur = spline([(C - 14, 140, 0), (C - 40, 150), (C - 36, 188), (C - 33, 220, 0), (C - 50, 272), (C - 60, 316, 0),
                  (C - 48, 328), (C - 36, 318, 0), (C - 24, 332), (C - 12, 320, 0), (C, 334), (C + 12, 320, 0), (C + 24, 332),
                  (C + 36, 318, 0), (C + 48, 328), (C + 60, 316, 0), (C + 50, 272), (C + 33, 220, 0), (C + 36, 188),
                  (C + 40, 150), (C + 14, 140, 0)], closed=True)
    g.path(sur, RED)

    def rose(x, y):
        g.circle(x, y, 6.4, GOLD_LIGHT, RED_DARK, 1.4)
        g.circle(x, y, 2.4, RED_DARK)
    g.scatter(sur, 30, 21, 9, rose, ox=0, oy=12)
    panel = spline([(C - 9, 228, 0), (C - 15, 322, 0), (C, 334), (C + 15, 322, 0), (C + 9, 228, 0)], closed=True)
    g.path(panel, GREEN, INK, 2.4)
    for y in (246, 266, 286, 306):
        mark(g, C, y, 6, GOLD_LIGHT)
    g.path(spline([(C - 57, 303), (C - 36, 308), (C - 16, 310)]), None, GOLD, 4)
    g.path(spline([(C + 57, 303), (C + 36, 308), (C + 16, 310)]), None, GOLD, 4)
    g.path(sur, None, INK, 3)
    belt(g, 212, 33, GREEN_DARK, GOLD)
    # the arm behind comes from the right to steady the cup
    rod(g, [(C + 38, 162), (C + 68, 196), (C + 66, 232), (C + 62, 250)], [32, 36, 22, 16], GREEN)
    g.path(spline([(C + 54, 218), (C + 66, 224), (C + 78, 218)]), None, GOLD_LIGHT, 3)
    fist(g, C + 60, 258, 100, 0.85)
    rod(g, [(C - 36, 162), (C - 62, 190), (C - 70, 188), (C - 73, 172)], [32, 34, 22, 16], GREEN)
    collar = spline(both([(C - 2, 138, 0), (C - 24, 140), (C - 40, 152), (C - 30, 160), (C - 14, 156), (C, 164)]), closed=True)
    g.path(collar, GOLD, INK, 2.6)
    for x, y in ((C - 27, 150), (C - 12, 150), (C + 4, 153), (C + 18, 150), (C + 30, 150)):
        g.circle(x, y, 2.6, RED_DARK)
    pips.cup(g, C - 72, 118, 1.02)
    cloth = spline([(C - 89, 156, 0), (C - 72, 162), (C - 55, 156, 0), (C - 51, 190), (C - 59, 200, 0), (C - 69, 180, 0),
                    (C - 79, 204, 0), (C - 91, 186)], closed=True)
    g.path(cloth, WHITE, INK, 2.6)
    palm_up(g, C - 72, 166, 0, 0.8)
    with g.at(C + 6, 90, 0.98):
        face(g, -1, brow=HAIR_BLACK, soft=True)
        fringe(g, HAIR_BLACK, -20, "#5a4650")
        side_locks(g, HAIR_BLACK, "#5a4650", 36)
        for x, y in ((-30, -20), (-20, -30), (-7, -35), (7, -35), (20, -30), (30, -20)):
            g.circle(x, y, 7.4, GREEN_LIGHT, INK, 2.4)
        for x, y in ((-25.5, -25.5), (-13.5, -33.5), (0, -36), (13.5, -33.5), (25.5, -25.5)):
            g.circle(x, y, 7.6, RED_LIGHT, INK, 2.4)
            g.circle(x, y, 2.6, GOLD_LIGHT)


def page_espadas(g):
    """Sword upright before the shoulder; breastplate over a pleated skirt, brimmed hat with two plumes."""
    turf(g)
    cape = spline([(C - 30, 150), (C - 58, 196), (C - 74, 290), (C - 82, 344), (C - 40, 352), (C + 36, 352), (C + 60, 300),
                   (C + 46, 196), (C + 30, 150)], closed=True)
    g.path(cape, RED_DARK, INK, 3)
    g.hatch(cape, 84, 24, RED, 3, inset=4)
    legs(g, BLUE, BLUE, STEEL_DARK, boots=False)
    for m in (False, True):
        fix = (lambda d: mirror(d, C)) if m else (lambda d: d)
        g.path(fix(spline([(120, 318, 0), (124, 346), (127, 372), (148, 372), (149, 346), (152, 318, 0), (136, 308)],
                          closed=True)), STEEL, INK, 2.8)
        g.path(fix(spline([(136, 312), (135, 340), (138, 370)])), None, STEEL_DARK, 1.8)
    with g.at(C - 3, 92, 0.98):
        hair_back(g, HAIR_BROWN, 36, 35)
    neck(g)
    skirt = spline([(C - 30, 218, 0), (C - 48, 256), (C - 58, 296, 0), (C - 30, 306), (C, 308), (C + 30, 306),
                    (C + 58, 296, 0), (C + 48, 256), (C + 30, 218, 0)], closed=True)
    g.path(skirt, BLUE, INK, 3)
    for k in (-3, -1, 1, 3):
        pleat = spline([(C + k * 8, 220, 0), (C + k * 14.2, 303, 0), (C + (k + 1) * 14.2, 303, 0), (C + (k + 1) * 8, 220, 0)],
                       closed=True)
        g.path(pleat, WHITE, INK, 2)
    g.path(skirt, None, INK, 3)
    plate = g.linear("plate", [(0, STEEL_DARK), (0.3, STEEL_LIGHT), (0.6, STEEL), (1, "#8796aa")], 0, 0, 1, 0)
    chest = spline(both([(C - 14, 142, 0), (C - 38, 150), (C - 39, 184), (C - 30, 222, 0), (C - 15, 228)]), closed=True)
    g.path(chest, plate, INK, 3)
    g.path(spline([(C, 156), (C + 2, 190), (C, 226)]), None, STEEL_DARK, 2.4)
    for s in (-1, 1):
        g.path(spline([(C + s * 34, 172), (C + s * 16, 190), (C + s * 4, 186)]), None, STEEL_DARK, 2)
    belt(g, 214, 32, GOLD_DARK, GOLD_LIGHT)
    rod(g, [(C - 38, 164), (C - 66, 194), (C - 70, 206), (C - 52, 218), (C - 36, 225)], [28, 28, 23, 18, 15], BLUE)
    fist(g, C - 31, 226, 60, 0.85)
    shoulder = spline([(C - 60, 178, 0), (C - 62, 158), (C - 44, 146), (C - 24, 152, 0), (C - 34, 168), (C - 44, 184, 0)],
                      closed=True)
    rod(g, [(C + 36, 164), (C + 52, 200), (C + 64, 208), (C + 80, 206)], [28, 28, 22, 16], BLUE)
    for s in (shoulder, mirror(shoulder, C)):
        g.path(s, STEEL, INK, 2.8)
    for x, y, t in ((C - 47, 163, 0), (C + 47, 163, 0)):
        g.circle(x, y, 3, GOLD, INK, 1.6)
    collar = spline(both([(C - 4, 138, 0), (C - 24, 140), (C - 32, 150), (C - 18, 156), (C - 6, 154, 0)]), closed=True)
    g.path(collar, WHITE, INK, 2.6)
    pips.sword(g, C + 88, 163, 1.28, 0, 1.0, grip=RED)
    fist(g, C + 88, 212, 0, 0.95)
    with g.at(C - 3, 92, 0.98):
        face(g, 1, brow=HAIR_BROWN, soft=True)
        side_locks(g, HAIR_BROWN, "#3d2412", 32)
        feather(g, [(-22, -36), (-38, -50), (-54, -48), (-64, -34)], WHITE, HAIR_GREY, 20)
        feather(g, [(-18, -40), (-30, -62), (-48, -72), (-66, -62)], RED, RED_DARK, 20)
        dome = spline([(-30, -26, 0), (-28, -50), (-8, -62), (16, -60), (30, -46), (31, -26, 0)], closed=True)
        g.path(dome, BLUE, INK, 3.2)
        brim = spline([(-40, -22), (-34, -34, 0), (0, -30), (34, -34, 0), (41, -22), (30, -18), (0, -21), (-30, -18)],
                      closed=True)
        g.path(brim, BLUE_DARK, INK, 3)
        g.path(spline([(-28, -38), (0, -34), (29, -38)]), None, GOLD, 4)
        g.circle(-22, -37, 6.4, GOLD_LIGHT, INK, 2.4)


def page_bastos(g):
    """A forester leaning on his club: hood, short green tunic, high boots, pouch."""
    turf(g)
    legs(g, HAIR_BLOND, HAIR_BLOND, WOOD, boots=True)
    neck(g, x=C - 12)
    tunic = spline([(C - 26, 140, 0), (C - 50, 152), (C - 42, 188), (C - 34, 222, 0), (C - 44, 256), (C - 54, 290, 0),
                    (C - 40, 280, 0), (C - 28, 300, 0), (C - 14, 284, 0), (C, 304, 0), (C + 14, 284, 0), (C + 28, 300, 0),
                    (C + 40, 280, 0), (C + 54, 290, 0), (C + 42, 256), (C + 32, 222, 0), (C + 34, 188), (C + 32, 150),
                    (C + 6, 140, 0)], closed=True)
    g.path(tunic, GREEN)

    def leaf(x, y):
        g.path(spline([(x, y - 8, 0), (x + 5, y), (x, y + 8, 0), (x - 5, y)], closed=True), GREEN_LIGHT, GREEN_DARK, 1.4)
    g.scatter(tunic, 24, 19, 8.6, leaf, ox=2, oy=10)
    g.path(tunic, None, INK, 3)
    belt(g, 213, 33, WOOD, GOLD)
    pouch = spline([(C + 12, 226, 0), (C + 32, 224, 0), (C + 36, 246), (C + 22, 256), (C + 9, 246)], closed=True)
    g.path(pouch, WOOD_LIGHT, INK, 2.6)
    g.path(spline([(C + 12, 234), (C + 22, 240), (C + 33, 233)]), None, INK, 2)
    rod(g, [(C - 46, 164), (C - 72, 194), (C - 76, 206), (C - 58, 218), (C - 40, 224)], [32, 30, 24, 18, 15], RED)
    fist(g, C - 35, 225, 60, 0.85)
    pips.club(g, C + 80, 262, 1.85, turn=4, leaves=False)
    rod(g, [(C + 28, 164), (C + 52, 188), (C + 64, 198), (C + 80, 195)], [32, 32, 24, 17], RED)
    g.path(spline([(C + 70, 182), (C + 74, 194), (C + 70, 206)]), None, GOLD_LIGHT, 3)
    fist(g, C + 86, 195, 0, 1.05)
    cape = spline([(C - 46, 128), (C - 64, 158), (C - 52, 178, 0), (C - 36, 166, 0), (C - 22, 182, 0), (C - 8, 168, 0),
                   (C + 6, 182, 0), (C + 20, 166, 0), (C + 38, 176, 0), (C + 44, 156), (C + 24, 128)], closed=True)
    g.path(cape, GOLD, INK, 3)
    for x in (-52, -36, -8, 20, 32):
        g.path(spline([(C - 10 + (x + 10) * 0.7, 138), (C + x * 0.98, 164)]), None, GOLD_DARK, 1.8)
    with g.at(C - 12, 92, 0.98):
        hood = spline([(-30, 40, 0), (-38, 8), (-36, -24), (-16, -48), (6, -54), (30, -62, 0), (38, -48), (35, -22), (38, 8),
                       (30, 40, 0), (0, 50)], closed=True)
        g.path(hood, GREEN, INK, 3.2)
        face(g, 1, brow=HAIR_RED, soft=False)
        curl = spline([(-28, 2, 0), (-29, -16), (-16, -33), (4, -35), (20, -30), (28, -12, 0), (16, -21), (4, -18), (-8, -24),
                       (-20, -12)], closed=True)
        g.path(curl, HAIR_RED, INK, 2.6)
        rim = spline([(-30, 30, 0), (-33, 6), (-30, -20), (-14, -37), (6, -39), (24, -33), (31, -16), (33, 8), (28, 30, 0)])
        g.path(rim, None, INK, 10)
        g.path(rim, None, GOLD, 5.4)
        moustache(g, HAIR_RED, 1)


PAGES = {"oros": page_oros, "copas": page_copas, "espadas": page_espadas, "bastos": page_bastos}
