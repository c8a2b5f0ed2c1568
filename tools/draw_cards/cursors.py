"""The eight pointers of the table, 32 by 32, and a light rim so that they stand out on felt."""

from figure import limb
from geometry import spline, transform
from palette import *
from svg import Drawing

RIM = "#fffdf7"
GLOVE = "#fffaf0"
HOT_GREEN = "#4fc65d"
HOT_RED = "#e2463c"


def sheet():
    return Drawing(32, 32, (0, 0, 96, 96))


def shape(g, d, fill, w=4):
    """Ink outline on a light rim: the rim of every part goes below the ink of all."""
    g.items.insert(g.rims, f'<path d="{d}" fill="{RIM}" stroke="{RIM}" stroke-width="{w + 6}" stroke-linejoin="round" '
                           f'opacity="0.9"/>')
    g.rims += 1
    g.path(d, fill, INK, w)


def start():
    g = sheet()
    g.rims = 0
    return g


POINTING = [(34, 10), (40, 6), (46, 10), (47, 34, 0), (54, 31), (59, 36, 0), (66, 33), (70, 39, 0), (77, 38), (80, 45),
            (79, 62), (72, 78), (71, 90, 0), (38, 90, 0), (36, 80), (26, 66), (17, 52), (21, 45), (29, 49), (34, 57, 0)]


def pointing(g, fill, dx=0.0, dy=0.0, k=1.0):
    def move(d):
        return transform(d, lambda x, y: (dx + x * k, dy + y * k))
    shape(g, move(spline(POINTING, closed=True)), fill, 4 * min(1, k + 0.15))
    for x, y in ((47, 34), (59, 37), (70, 41)):
        g.path(move(spline([(x, y), (x + 0.5, y + 14)])), None, INK, 3 * k)
    g.path(move("M 37,81 L 72,81"), None, INK, 3 * k)


OPEN = [(24, 62), (14, 50), (8, 40), (12, 34), (20, 39), (28, 48, 0), (24, 30), (23, 17), (29, 13), (34, 18), (38, 40, 0),
        (39, 22), (41, 9), (47, 6), (51, 11), (51, 40, 0), (55, 22), (59, 13), (65, 14), (66, 20), (63, 44, 0), (69, 33),
        (75, 26), (81, 28), (81, 35), (76, 52), (70, 70), (64, 80), (64, 90, 0), (34, 90, 0), (34, 80)]


def open_hand(g, fill, dark):
    shape(g, spline(OPEN, closed=True), fill)
    g.path(spline([(36, 60), (46, 54), (60, 55)]), None, dark, 3)
    g.path(spline([(40, 72), (42, 62), (50, 57)]), None, dark, 3)
    g.path("M 35,81 L 63,81", None, INK, 3)


def badge(g, fill):
    g.circle(76, 76, 17, RIM)
    g.circle(76, 76, 15, fill, INK, 3.4)


def arrow(x0, y0, x1, y1, width=8, head=18):
    """A straight arrow as an outline."""
    import math
    size = math.hypot(x1 - x0, y1 - y0)
    ux, uy = (x1 - x0) / size, (y1 - y0) / size
    nx, ny = -uy, ux
    bx, by = x1 - ux * head, y1 - uy * head
    w, h = width / 2, head * 0.72
    points = [(x0 + nx * w, y0 + ny * w), (bx + nx * w, by + ny * w), (bx + nx * h, by + ny * h), (x1, y1),
              (bx - nx * h, by - ny * h), (bx - nx * w, by - ny * w), (x0 - nx * w, y0 - ny * w)]
    return "M " + " L ".join(f"{x:.2f},{y:.2f}" for x, y in points) + " Z"


def bent_arrow(points, width, head, tip):
    """A curved arrow: a rod along `points` and a head that ends at `tip`."""
    import math
    (x0, y0), (x1, y1) = points[-1], tip
    size = math.hypot(x1 - x0, y1 - y0)
    ux, uy = (x1 - x0) / size, (y1 - y0) / size
    nx, ny = -uy, ux
    rod = limb(points, [width] * len(points), cap=0)
    cone = "M " + " L ".join(f"{x:.2f},{y:.2f}" for x, y in
                             ((x0 + nx * head, y0 + ny * head), (x1, y1), (x0 - nx * head, y0 - ny * head))) + " Z"
    return rod, cone


def bent(g, points, width, head, tip, fill):
    rod, cone = bent_arrow(points, width, head, tip)
    shape(g, rod, fill, 3.6)
    shape(g, cone, fill, 3.6)
    g.path(spline(points + [((points[-1][0] + tip[0]) / 2, (points[-1][1] + tip[1]) / 2)]), None, fill, width - 3, cap="butt")


def mini_card(g, x, y, turn, back=False, w=34, h=47):
    import math
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))

    def move(d):
        return transform(d, lambda u, v: (x + u * c - v * s, y + u * s + v * c))
    a, b, r = w / 2, h / 2, 5
    d = (f"M {-a + r},{-b} L {a - r},{-b} Q {a},{-b} {a},{-b + r} L {a},{b - r} Q {a},{b} {a - r},{b} "
         f"L {-a + r},{b} Q {-a},{b} {-a},{b - r} L {-a},{-b + r} Q {-a},{-b} {-a + r},{-b} Z")
    shape(g, move(d), PAPER, 3.6)
    if back:
        inner = f"M {-a + 5},{-b + 5} L {a - 5},{-b + 5} L {a - 5},{b - 5} L {-a + 5},{b - 5} Z"
        g.path(move(inner), RED, RED_DARK, 2)
        for k in (-1, 0, 1):
            g.path(move(f"M {-a + 6},{k * 13 - 6} L {a - 6},{k * 13 + 6} M {a - 6},{k * 13 - 6} L {-a + 6},{k * 13 + 6}"), None,
                   GOLD, 2)
    else:
        px, py = x, y
        g.circle(px, py, 9, GOLD, GOLD_DEEP, 3)
        g.circle(px, py, 3.6, RED)


def mano_indice():
    g = start()
    pointing(g, GLOVE)
    return g


def mano_verde():
    g = start()
    open_hand(g, HOT_GREEN, "#1f7a35")
    badge(g, WHITE)
    g.path("M 68,76 L 74,83 L 84,69", None, GREEN, 6)
    return g


def mano_roja():
    g = start()
    open_hand(g, HOT_RED, "#8c1a18")
    badge(g, RED)
    g.path("M 67,76 L 85,76", None, WHITE, 7, cap="butt")
    return g


def mano_cerrada():
    g = start()
    fist = spline([(18, 46), (22, 30), (32, 25), (42, 27, 0), (50, 22), (58, 27, 0), (66, 25), (72, 31, 0), (80, 32), (84, 40),
                   (82, 58), (74, 72), (72, 88, 0), (36, 88, 0), (34, 76), (22, 62)], closed=True)
    shape(g, fist, GLOVE)
    for x in (42, 57, 71):
        g.path(spline([(x, 28 + (x - 42) * 0.1), (x + 1, 46)]), None, INK, 3)
    thumb = spline([(20, 50), (28, 42), (48, 46), (60, 52), (56, 60), (42, 58), (34, 62)], closed=True)
    g.path(thumb, GLOVE, INK, 3.4)
    g.path("M 36,79 L 73,79", None, INK, 3)
    return g


def ordenar():
    g = start()
    pointing(g, GLOVE, 17, 2, 0.66)
    shape(g, arrow(44, 78, 4, 78, 9, 20), GOLD, 3.6)
    shape(g, arrow(52, 78, 92, 78, 9, 20), GOLD, 3.6)
    g.rect(40, 73.5, 16, 9, GOLD)
    g.line([(40, 73.5), (56, 73.5)], INK, 3.6)
    g.line([(40, 82.5), (56, 82.5)], INK, 3.6)
    return g


def cambiar():
    g = start()
    mini_card(g, 30, 56, -8, back=True)
    mini_card(g, 66, 42, 8)
    bent(g, [(20, 26), (30, 13), (46, 10)], 9, 11, (64, 14), HOT_GREEN)
    bent(g, [(78, 72), (68, 84), (52, 87)], 9, 11, (34, 83), HOT_GREEN)
    return g


def voltear():
    g = start()
    mini_card(g, 58, 60, 0, back=True, w=42, h=56)
    bent(g, [(74, 24), (56, 10), (34, 14), (22, 30)], 10, 13, (19, 52), GOLD)
    return g


def abrirse():
    g = start()
    mini_card(g, 27, 40, -14, w=34, h=48)
    mini_card(g, 69, 40, 14, w=34, h=48)
    shape(g, arrow(42, 82, 6, 82, 8, 18), GOLD, 3.4)
    shape(g, arrow(54, 82, 90, 82, 8, 18), GOLD, 3.4)
    return g


CURSORS = {"mano_indice": mano_indice, "mano_verde": mano_verde, "mano_roja": mano_roja, "ordenar": ordenar,
           "cambiar": cambiar, "mano_cerrada": mano_cerrada, "voltear": voltear, "abrirse": abrirse}
