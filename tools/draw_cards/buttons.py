"""The round main buttons and the plain faces of all other buttons, each in its states."""

import re

import cursors
import glyphs
import pips
from geometry import mirror, pts, spline
from palette import *
from svg import Drawing

HEX = re.compile(r"#([0-9a-f]{6})")


def dimmed(g):
    """The same drawing with its colours drained, for a button that is disabled."""
    def drain(match):
        value = int(match.group(1), 16)
        r, gr, b = value >> 16, value >> 8 & 255, value & 255
        grey = 0.3 * r + 0.59 * gr + 0.11 * b
        out = [round(0.62 * (0.8 * grey + 0.2 * c) + 0.38 * 128) for c in (r, gr, b)]
        return "#%02x%02x%02x" % tuple(out)
    g.items = [HEX.sub(drain, item) for item in g.items]
    g.defs = {name: HEX.sub(drain, text) for name, text in g.defs.items()}
    return g


def small_card(g, x, y, turn, sign, k=1.0):
    with g.at(x, y, k, turn):
        g.rect(-20, -28, 40, 56, PAPER, INK, 3.4, r=5)
        pips.mini(g, sign, 0, 0, 1.15)


def icon_new(g):
    small_card(g, 46, 80, -24, "copas")
    small_card(g, 104, 80, 24, "espadas")
    small_card(g, 75, 72, 0, "oros", 1.16)


def person(g, x, y, k, coat, hair, skin=SKIN):
    with g.at(x, y, k):
        g.path(spline([(-30, 46, 0), (-28, 22), (-14, 12), (14, 12), (28, 22), (30, 46, 0)], closed=True), coat, INK, 3.6)
        g.path("M -9,12 L 0,24 L 9,12 Z", WHITE, INK, 2.4)
        g.circle(0, -8, 19, skin, INK, 3.6)
        g.path(spline([(-19, -6, 0), (-18, -22), (0, -30), (18, -22), (19, -6, 0), (10, -15), (-8, -14)], closed=True), hair,
               INK, 3)


def icon_seats(g):
    person(g, 42, 72, 0.72, BLUE_LIGHT, HAIR_BLOND)
    person(g, 108, 72, 0.72, GREEN_LIGHT, HAIR_RED)
    person(g, 75, 76, 0.98, RED, HAIR_BLACK)


def icon_rules(g):
    for m in (False, True):
        fix = (lambda d: mirror(d, 75)) if m else (lambda d: d)
        g.path(fix(spline([(75, 48, 0), (56, 40), (28, 44, 0), (28, 106, 0), (56, 102), (75, 112, 0)], closed=True)), RED,
               INK, 4)
        g.path(fix(spline([(75, 46, 0), (58, 36), (34, 39, 0), (34, 98, 0), (58, 95), (75, 104, 0)], closed=True)), PAPER, INK,
               3.4)
        for k in range(4):
            g.path(fix(spline([(41, 52 + 12 * k), (54, 50 + 12 * k), (67, 55 + 12 * k)])), None, BLUE, 4)
    g.line([(75, 46), (75, 108)], INK, 3)
    g.path("M 86,40 L 98,37 L 98,68 L 92,61 L 86,70 Z", GOLD, INK, 3)


def icon_tutor(g):
    g.path(spline([(46, 72, 0), (46, 94), (75, 106), (104, 94), (104, 72, 0), (75, 90, 0)], closed=True), "#3a4b78", INK, 4)
    g.poly([(75, 40), (130, 64), (75, 90), (20, 64)], "#50659c", INK, 4)
    g.poly([(75, 46), (116, 64), (75, 83), (34, 64)], None, BLUE_LIGHT, 2.4)
    g.path(spline([(75, 64), (98, 70), (114, 80), (116, 98)]), None, INK, 7)
    g.path(spline([(75, 64), (98, 70), (114, 80), (116, 98)]), None, GOLD, 3.6)
    g.path("M 111,97 L 121,97 L 125,117 L 107,117 Z", GOLD_LIGHT, INK, 3)
    g.circle(75, 64, 5, GOLD, INK, 2.6)


def icon_score(g):
    g.line([(50, 100), (44, 122)], INK, 8)
    g.line([(100, 100), (106, 122)], INK, 8)
    g.line([(50, 100), (44, 121)], WOOD_LIGHT, 4)
    g.line([(100, 100), (106, 121)], WOOD_LIGHT, 4)
    g.rect(25, 36, 100, 68, WOOD, INK, 4, r=8)
    for x, text, colour in ((52, "7", RED), (98, "5", BLUE)):
        g.rect(x - 19, 45, 38, 50, PAPER, INK, 3.4, r=4)
        glyphs.write(g, text, x, 70, 37, colour, pen=3.4, squeeze=0.95)
        g.line([(x - 18, 70), (x + 18, 70)], INK, 1.4, 0.45)
    for y in (60, 80):
        g.circle(75, y, 3.6, GOLD_LIGHT, INK, 1.8)
    for x in (50, 75, 100):
        g.path(spline([(x - 5, 40), (x - 6, 27), (x, 24), (x + 6, 27), (x + 5, 40)]), None, STEEL_DARK, 3.4)


def icon_help(g):
    glyphs.write(g, "?", 75, 75, 78, GOLD_LIGHT, pen=3.6, squeeze=1.0, under=INK, under_pen=1.8)


def icon_exit(g):
    g.rect(34, 26, 58, 98, INK, INK, 4, r=2)
    g.rect(39, 31, 48, 88, "#f0c66a", None)
    g.path("M 36,28 L 70,40 L 70,126 L 36,122 Z", WOOD_LIGHT, INK, 4)
    g.path("M 42,40 L 63,47 L 63,75 L 42,72 Z M 42,82 L 63,84 L 63,114 L 42,112 Z", WOOD, WOOD_DARK, 2.4)
    g.circle(64, 80, 4, GOLD_LIGHT, INK, 2)
    g.path(cursors.arrow(78, 76, 128, 76, 15, 25), HOT, INK, 4)


HOT = "#7ddb6c"


def icon_stats(g):
    g.path("M 32,32 L 32,112 L 122,112", None, INK, 9)
    g.path("M 32,32 L 32,112 L 122,112", None, PAPER, 4)
    for x, top, colour in ((43, 86, RED), (62, 70, GOLD), (81, 78, GREEN_LIGHT), (100, 54, BLUE_LIGHT)):
        g.rect(x, top, 15, 110 - top, colour, INK, 3.2)
    line = [(46, 68), (69, 50), (88, 58), (112, 34)]
    g.path("M " + " L ".join(pts(p) for p in line), None, INK, 7.4)
    g.path("M " + " L ".join(pts(p) for p in line), None, WHITE, 3.4)
    for x, y in line:
        g.circle(x, y, 5, WHITE, INK, 2.6)


ICONS = {1: icon_new, 2: icon_seats, 3: icon_rules, 4: icon_tutor, 5: icon_score, 6: icon_help, 7: icon_exit, 8: icon_stats}


def round_button(number, state):
    g = Drawing(50, 50, (0, 0, 150, 150))
    down = state == "pulsado"
    top, low = ("#2c5aa8", "#0d2450") if number != 7 else ("#c63a3a", "#5c0b14")
    if down:
        top, low = low, top
    bezel = g.linear("bezel", [(0, "#fff1b8"), (0.35, GOLD), (0.7, "#9c6210"), (1, "#e3b04a")] if not down else
                     [(0, "#8a560c"), (0.5, "#c48d25"), (1, "#f2d27c")], 0.2, 0, 0.8, 1)
    face = g.radial("face", [(0, top), (0.65, low), (1, "#081733" if number != 7 else "#3a060c")] if not down else
                    [(0, top), (1, low)], 0.5, 0.38, 0.68)
    g.circle(75, 76, 73.5, INK, opacity=0.9)
    g.circle(75, 75, 71.5, bezel, INK, 2.6)
    g.circle(75, 75, 61, face, INK, 3.2)
    if not down:
        g.path(spline([(20, 60), (34, 30), (75, 17), (116, 30), (130, 60), (104, 48), (75, 45), (46, 48)], closed=True), WHITE,
               opacity=0.2)
    if down:
        with g.group("translate(6.5,8) scale(0.94)"):
            ICONS[number](g)
    else:
        ICONS[number](g)
        g.path(spline([(30, 44), (48, 26), (75, 20)]), None, WHITE, 3.4, 0.5)
    return dimmed(g) if state == "apagado" else g


COLOURS = {  # light, middle, dark
    "verde": ("#8fe08a", "#1a6e30", "#0c4a20"),
    "azul": ("#9cc3ee", "#2f63ad", "#12305f"),
    "rojo": ("#f2958a", "#bf2d30", "#6a0f18"),
    "oro": ("#fdeca8", "#d79a28", "#80500c"),
    "gris": ("#d6dce3", "#56606c", "#2b323a"),
    "marfil": ("#fffdf4", "#ecdfbd", "#b49f6c"),
}


# Faces that carry light letters: only a breath of gloss, so that the letters keep their contrast.
DARK_FACES = {"verde", "azul", "rojo", "gris"}


def plain_button(width, height, colour, down, r=5.0):
    """A blank face with a bezel; the program prints the caption."""
    light, middle, dark = COLOURS[colour]
    w, h = 3 * width, 3 * height
    g = Drawing(width, height, (0, 0, w, h))
    bezel = g.linear("bezel", [(0, "#fff1b8"), (0.5, GOLD), (1, "#8a560c")] if not down else
                     [(0, "#7c4c0a"), (0.5, "#b98220"), (1, "#f2d27c")])
    face = g.linear("face", [(0, light), (0.03, middle), (1, dark)] if not down else [(0, dark), (0.85, middle), (1, middle)])
    k = 3 * r
    g.rect(0.8, 0.8, w - 1.6, h - 1.6, INK, None, r=k + 2)
    g.rect(3, 3, w - 6, h - 6, bezel, None, r=k)
    g.rect(8.5, 8.5, w - 17, h - 17, face, INK, 2.4, r=k - 5)
    if not down:
        g.rect(12.5, 12, w - 25, (h - 24) * 0.36, WHITE, None, r=k - 8,
               opacity=0.1 if colour in DARK_FACES else 0.22)
    return g


def own_move_button(width, height, down):
    """The green face in a frame of loose studs: the program would move for the player."""
    g = plain_button(width, height, "verde", down, 7)
    w, h = 3 * width, 3 * height
    g.rect(1.6, 1.6, w - 3.2, h - 3.2, None, INK, 3.2, r=22)
    g.rect(5.6, 5.6, w - 11.2, h - 11.2, None, "#5a1108", 7.2, r=18)
    studs = "#ffd27a" if not down else "#c48d25"
    step = (w - 36) / 12
    for k in range(13):
        for y in (5.6, h - 5.6):
            g.rect(18 + step * k - 5, y - 2.5, 10, 5, studs, None, r=2)
    for y in (h * 0.28, h * 0.5, h * 0.72):
        for x in (5.6, w - 5.6):
            g.rect(x - 2.5, y - 5, 5, 10, studs, None, r=2)
    return g
