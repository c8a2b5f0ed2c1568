"""The back of the cards: a woven lattice of crimson and gold, the same whichever end is up."""

import math

from card import HEIGHT, WIDTH, paper
from geometry import regular, spline
from palette import *

FIELD = (16, 16, WIDTH - 32, HEIGHT - 32)


def back():
    g = paper()
    x, y, w, h = FIELD
    g.rect(x, y, w, h, "#8e1622", GOLD_DEEP, 3, r=9)
    cx, cy, step = WIDTH / 2, HEIGHT / 2, 27.1
    left, top, right, bottom = x + 9, y + 9, x + w - 9, y + h - 9
    columns, rows = 5, 7
    dx, dy = (right - left) / (2 * columns), (bottom - top) / (2 * rows)
    # the lattice: lozenges two steps wide and high
    thin = []
    for k in range(-2 * rows - 2 * columns, 2 * rows + 2 * columns + 1, 2):
        for m in (1, -1):
            run = []
            for t in range(0, 2 * columns + 1):
                v = k + m * t
                if 0 <= v <= 2 * rows:
                    run.append((left + t * dx, top + v * dy))
            if len(run) > 1:
                thin.append((run[0], run[-1]))
    for a, b in thin:
        g.line([a, b], "#5d0a14", 5)
    for a, b in thin:
        g.line([a, b], GOLD, 2)
    petal = spline([(0, -2, 0), (4.4, -7), (0, -13, 0), (-4.4, -7)], closed=True)
    for i in range(0, 2 * columns + 1):
        for j in range(0, 2 * rows + 1):
            px, py = left + i * dx, top + j * dy
            if not (left < px < right and top < py < bottom):
                continue
            if (i + j) % 2 == 0:
                g.circle(px, py, 4.4, GOLD_LIGHT, "#5d0a14", 1.8)
            elif i % 2:
                for a in range(4):
                    with g.at(px, py, turn=45 + 90 * a):
                        g.path(petal, "#f3d9b0", "#5d0a14", 1.2)
                g.circle(px, py, 2.6, RED_LIGHT)
            else:
                for a in range(4):
                    with g.at(px, py, turn=90 * a):
                        g.path(petal, "#d9544f", "#5d0a14", 1.2)
                g.circle(px, py, 2.6, GOLD_LIGHT)
    g.rect(x + 4, y + 4, w - 8, h - 8, None, GOLD, 2, r=6)
    g.rect(x + 9, y + 9, w - 18, h - 18, None, "#f3d9b0", 2.4, r=3)
    # the medallion
    lobes = []
    for k in range(48):
        a = 2 * math.pi * k / 48
        r = 62 + 5 * math.cos(8 * a)
        lobes.append((cx + r * math.cos(a), cy + r * math.sin(a)))
    g.path(spline(lobes, closed=True), GOLD, INK, 3)
    g.circle(cx, cy, 52, BLUE_DARK, GOLD_DEEP, 3)
    for px, py in regular(cx, cy, 59.5, 32):
        g.circle(px, py, 2, GOLD_DEEP)
    star = []
    for k in range(16):
        r = 48 if k % 2 == 0 else 22
        a = math.pi * k / 8
        star.append((cx + r * math.sin(a), cy - r * math.cos(a)))
    g.poly(star, "#f3d9b0", GOLD_DEEP, 2)
    for k in range(8):
        a = math.pi * k / 4
        g.poly([(cx, cy), (cx + 48 * math.sin(a), cy - 48 * math.cos(a)),
                (cx + 22 * math.sin(a + math.pi / 8), cy - 22 * math.cos(a + math.pi / 8))], RED if k % 2 else RED_DARK)
    g.poly(star, None, GOLD_DEEP, 2.4)
    g.circle(cx, cy, 15, GOLD, GOLD_DEEP, 2.6)
    for k in range(8):
        with g.at(cx, cy, 0.9, turn=45 * k):
            g.path(petal, "#fff3c8", GOLD_DEEP, 1.2)
    g.circle(cx, cy, 3.6, RED)
    return g
