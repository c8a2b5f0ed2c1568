"""Parts of people: limbs, heads, hair, beards, hats, crowns, hands.

Heads are drawn around (0, 0), the face 54 wide and 73 high, the chin at y = 37; `look` turns the
face: -1 to the left, 0 straight, 1 to the right.
"""

import math

from geometry import pts, spline
from palette import *


def limb(points, widths, cap=0.35, closed=True):
    """The outline of a bent rod: a width at each point of its middle line."""
    count = len(points)
    left, right = [], []
    for i, (x, y) in enumerate(points):
        x0, y0 = points[max(i - 1, 0)]
        x1, y1 = points[min(i + 1, count - 1)]
        size = math.hypot(x1 - x0, y1 - y0) or 1.0
        nx, ny = -(y1 - y0) / size, (x1 - x0) / size
        h = widths[i] / 2
        left.append((x + nx * h, y + ny * h))
        right.append((x - nx * h, y - ny * h))

    def end(a, b, w):
        size = math.hypot(b[0] - a[0], b[1] - a[1]) or 1.0
        return (b[0] + (b[0] - a[0]) / size * w * cap, b[1] + (b[1] - a[1]) / size * w * cap)

    tip = [end(points[-2], points[-1], widths[-1])] if cap else []
    tail = [end(points[1], points[0], widths[0])] if cap else []
    return spline(left + tip + right[::-1] + tail, closed=closed)


def rod(g, points, widths, fill, w=3.0, cap=0.35):
    """A limb whose ink lies wholly outside: the crease of a sharp bend leaves no mark on the cloth."""
    shape = limb(points, widths, cap)
    g.path(shape, None, INK, 1.75 * w)
    g.path(shape, fill)
    return shape


def face(g, look=0, skin=SKIN, eye="#3a2a22", brow=HAIR_BROWN, mouth=True, soft=False, blush=0.5):
    """`soft` draws a woman's or a boy's face: thin brows, lashes, fuller lips."""
    outline = spline([(0, -36), (20, -30), (27, -8), (25, 12), (14, 30), (0, 37), (-14, 30), (-25, 12), (-27, -8),
                      (-20, -30)], closed=True)
    g.path(outline, skin, INK, 3)
    side = -1 if look > 0 else 1
    shade = [(20, -28), (25.6, -8), (23.6, 11.5), (13, 29), (2, 35), (12, 24), (17, 8), (19, -8)]
    g.path(spline([(side * x, y) for x, y in shade], closed=True), SKIN_SHADE, opacity=0.55)
    for s in (-1, 1):
        g.ellipse(s * 14 + look * (2 if s == look else 5), 12, 6.2, 4.8, CHEEK, opacity=blush)
    for s in (-1, 1):
        x, y = s * 11.5 + look * 5, -3
        squeeze = 0.86 if look and s == look else 1.0
        g.path(spline([(x - 7.5 * squeeze, y + 1.5, 0), (x, y - 4.5), (x + 7.5 * squeeze, y + 1.5, 0), (x, y + 4.5)],
                      closed=True), WHITE)
        g.circle(x + look * 1.6, y + 0.3, 3.9, eye)
        g.circle(x + look * 1.6 - 1.2, y - 1.2, 1.1, WHITE)
        g.path(spline([(x - s * 7.5 * squeeze, y + 0.5), (x, y - 4.6), (x + s * 9 * squeeze, y + 0.5)]), None, INK,
               3.0 if soft else 2.6)
        by = y - (11 if soft else 10)
        g.path(spline([(x - s * 7.5 * squeeze, by - 0.5), (x + s, by - 2), (x + s * 10 * squeeze, by + 2.5)]), None,
               brow, 2.4 if soft else 4)
    n = look or 1
    g.path(f"M {pts((look * 5 + 0.5 * n, -3))} C {pts((look * 5 + 2 * n, 4), (look * 5 + 7 * n, 8), (look * 5 + 4 * n, 11))} "
           f"Q {pts((look * 5 + 1 * n, 13), (look * 5 - 3 * n, 11))}", None, "#a4623c", 2.6)
    if mouth:
        m = look * 4.5
        lips = spline([(m - 8, 20.5, 0), (m - 3, 18.8), (m, 19.8), (m + 3, 18.8), (m + 8, 20.5, 0), (m, 25.5)], closed=True)
        g.path(lips, RED if soft else "#b54a40")
        g.path(spline([(m - 8.5, 20.3), (m, 21.4), (m + 8.5, 20.3)]), None, RED_DARK, 1.8)


def hair_back(g, colour, length=34, spread=36, curl=4):
    """Hair behind the head, down to `length` below its centre."""
    shape = spline([(0, -43), (24, -36), (spread - 3, -8), (spread, length - 10), (spread - 8 + curl, length),
                    (16, length + 2), (-16, length + 2), (-(spread - 8 + curl), length), (-spread, length - 10),
                    (-(spread - 3), -8), (-24, -36)], closed=True)
    g.path(shape, colour, INK, 3)


def fringe(g, colour, low=-19, dark=None):
    """Hair over the forehead, a page's cut."""
    shape = spline([(-29, 4, 0), (-31, -18), (-22, -37), (0, -43), (22, -37), (31, -18), (29, 4, 0), (24, -11), (19, low),
                    (0, low - 2), (-19, low), (-24, -11)], closed=True)
    g.path(shape, colour, INK, 3)
    if dark:
        for x in (-14, -5, 5, 14):
            g.path(spline([(x * 0.7, -39), (x, -28), (x * 1.1, low - 3)]), None, dark, 1.6)


def side_locks(g, colour, dark, length=26):
    """Wavy locks at both sides of a face."""
    for s in (-1, 1):
        lock = [(22, -30), (34, -14), (32, 4), (38, length - 10), (32, length), (24, length - 4), (27, 6), (22, -8),
                (17, -24)]
        g.path(spline([(s * x, y) for x, y in lock], closed=True), colour, INK, 2.8)
        g.path(spline([(s * 26, -18), (s * 29.5, 0), (s * 31, length - 8)]), None, dark, 1.6)


def beard(g, colour, dark, style="full", look=0):
    m = look * 4
    reach = {"full": 60, "long": 86, "forked": 72, "short": 48}[style]
    if style == "forked":
        shape = [(-28, -6), (-27, 18), (-24, 40), (-16, reach, 0), (-4, 54), (0, 50, 0), (4, 54), (16, reach, 0), (24, 40),
                 (27, 18), (28, -6), (20, 8), (9, 14), (0, 13), (-9, 14), (-20, 8)]
    else:
        wide = 20 if style == "long" else 17
        shape = [(-28, -6), (-27, 16), (-24, 34), (-wide * 0.8, reach - 14), (m * 0.5, reach), (wide * 0.8, reach - 14),
                 (24, 34), (27, 16), (28, -6), (20, 8), (9, 14), (0, 13), (-9, 14), (-20, 8)]
    g.path(spline(shape, closed=True), colour, INK, 3)
    for x in (-15, -7, 0, 7, 15):
        low = reach - 12 - abs(x) * 0.8
        if style == "forked":
            low = 44 if abs(x) < 4 else reach - 18
        g.path(spline([(x * 1.1 + m, 29), (x * 1.25 + m * 0.8, (29 + low) / 2), (x * 0.75 + m * 0.5, low)]), None, dark, 1.8)
    lips = spline([(m - 7, 21, 0), (m, 20), (m + 7, 21, 0), (m, 26)], closed=True)
    g.path(lips, "#b54a40", RED_DARK, 1.4)
    for s in (-1, 1):
        tash = [(m, 15, 0), (m + s * 9, 13.5), (m + s * 19, 19), (m + s * 24, 25, 0), (m + s * 15, 24), (m + s * 7, 21.5),
                (m, 19, 0)]
        g.path(spline(tash, closed=True), colour, INK, 2.2)


def moustache(g, colour, look=0):
    m = look * 4.5
    for s in (-1, 1):
        tash = [(m, 15.5, 0), (m + s * 9, 13.5), (m + s * 18, 17), (m + s * 23, 12, 0), (m + s * 18, 22), (m + s * 8, 20),
                (m, 18.5, 0)]
        g.path(spline(tash, closed=True), colour, INK, 1.8)


def crown(g, points=5, style="lily", lining=RED, jewels=(RED, BLUE, GREEN)):
    """A king's crown: the band sits on the forehead at y = -20."""
    gold = g.linear("gold_down", [(0, "#fdeca8"), (0.5, GOLD), (1, "#b9791a")])
    g.path(spline([(-27, -34), (-30, -56), (0, -66), (30, -56), (27, -34)], closed=True), lining, INK, 2.6)
    spread, base, top = 29.0, -30, -62
    outline = [(-27, -17, 0)]
    for k in range(points):
        u = -1 + 2 * (k + 0.5) / points
        x, half = u * (spread + 3), spread / points
        lift = top - 8 * (1 - abs(u))
        if style == "lily":
            outline += [(x - half, base - 6, 0), (x - half * 0.35, lift + 16), (x - half * 0.75, lift + 9), (x, lift, 0),
                        (x + half * 0.75, lift + 9), (x + half * 0.35, lift + 16)]
        elif style == "ray":
            outline += [(x - half, base - 6, 0), (x, lift + 2, 0)]
        else:
            outline += [(x - half, base - 6, 0), (x - half * 0.8, lift + 12), (x, lift + 7), (x + half * 0.8, lift + 12)]
    outline += [(spread, base - 6, 0), (27, -17, 0), (14, -22), (0, -23.5), (-14, -22)]
    g.path(spline(outline, closed=True), gold, INK, 3)
    for k in range(points):
        u = -1 + 2 * (k + 0.5) / points
        if style != "lily":
            g.circle(u * (spread + 3), top - 8 * (1 - abs(u)) + (1 if style == "ray" else 7), 4, WHITE, INK, 2)
    g.path(spline([(-28, -36), (-14, -40.5), (0, -42), (14, -40.5), (28, -36)]), None, GOLD_DEEP, 1.8)
    for k, x in enumerate((-19, -10, 0, 10, 19)):
        colour = jewels[(abs(k - 2)) % len(jewels)]
        g.ellipse(x, -31.5 + abs(x) * 0.16, 3.8 if k == 2 else 3, 4.4 if k == 2 else 3.2, colour, INK, 1.4)


def feather(g, points, colour, dark, w0=14):
    count = len(points)
    widths = [w0 * (0.35 + 0.65 * math.sin(math.pi * (0.12 + 0.8 * k / (count - 1)))) for k in range(count)]
    g.path(limb(points, widths, cap=0.5), colour, INK, 2.6)
    g.path(spline(points), None, dark, 1.6)


def fist(g, x, y, turn=0.0, scale=1.0, skin=SKIN, flip=False):
    """A hand closed round an upright shaft at (x, y), knuckles to the right."""
    with g.at(x, y, scale, turn, flip):
        palm = spline([(-11, -9), (-4, -12.5), (8, -11), (12, -4), (11.5, 6), (6, 12), (-5, 12), (-11, 8), (-12.5, 0)],
                      closed=True)
        g.path(palm, skin, INK, 2.8)
        for k in (-5.2, 0.6, 6.4):
            g.path(spline([(0, k - 0.5), (6, k), (11, k - 0.6)]), None, "#a4623c", 1.8)
        thumb = spline([(-10, 2), (-4, -4.5), (3, -5), (3.5, -0.5), (-3, 3), (-7, 8)], closed=True)
        g.path(thumb, skin, INK, 2)


def palm_up(g, x, y, turn=0.0, scale=1.0, skin=SKIN, flip=False):
    """A hand holding something up from below."""
    with g.at(x, y, scale, turn, flip):
        shape = spline([(-10, 10), (-15, -1), (-17, -10), (-12, -12), (-7, -5), (0, -7), (8, -5), (13, -13), (17, -11),
                        (15, 0), (9, 10), (0, 13)], closed=True)
        g.path(shape, skin, INK, 2.8)
        g.path(spline([(-7, -4), (0, -1), (7, -4)]), None, "#a4623c", 1.8)


def turf(g, left=44, right=259, y=396, colour=GREEN, dark=GREEN_DARK, light=GREEN_LIGHT):
    """The patch of ground under a standing figure."""
    shape = spline([(left, y + 8, 0), (left + 14, y - 3), (left + 50, y - 8), ((left + right) / 2, y - 4),
                    (right - 50, y - 9), (right - 14, y - 2), (right, y + 8, 0)], closed=False) + " Z"
    g.path(shape, colour, INK, 2.6)
    for k in range(7):
        x = left + 16 + k * (right - left - 32) / 6
        g.path(f"M {pts((x - 5, y + 5))} L {pts((x - 4, y - 2))} M {pts((x, y + 5))} L {pts((x + 2, y - 3))}", None,
               light if k % 2 else dark, 2)
