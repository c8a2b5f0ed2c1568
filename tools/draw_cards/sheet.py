"""The small pieces of the sheet: digits, chips, marks, panels, arrows. Sizes are those of table/sheet_layout.h."""

import math

import buttons
import glyphs
import pips
from buttons import plain_button
from figure import crown
from geometry import mirror, pts, regular, spline
from palette import *
from svg import Drawing


def canvas(width, height):
    return Drawing(width, height, (0, 0, 3 * width, 3 * height))


# -- displays

SEGMENTS = {  # top, upper right, lower right, bottom, lower left, upper left, middle
    "0": "1111110", "1": "0110000", "2": "1101101", "3": "1111001", "4": "0110011", "5": "1011011", "6": "1011111",
    "7": "1110000", "8": "1111111", "9": "1111011", " ": "0000000"}


def digit(figure):
    g = canvas(10, 17)
    g.rect(0, 0, 30, 51, "#160a0c")
    lit = "#ff5a3c"
    off = "#3a1418"
    left, right, top, bottom = 6.5, 23.5, 6.5, 44.5
    middle = (top + bottom) / 2
    lines = [((left, top), (right, top)), ((right, top), (right, middle)), ((right, middle), (right, bottom)),
             ((left, bottom), (right, bottom)), ((left, middle), (left, bottom)), ((left, top), (left, middle)),
             ((left, middle), (right, middle))]
    pieces = []
    for (a, b), on in zip(lines, SEGMENTS[figure]):
        dx, dy = (b[0] - a[0]), (b[1] - a[1])
        size = math.hypot(dx, dy)
        ux, uy = dx / size, dy / size
        w, cut = 2.7, 1.0
        p, q = (a[0] + ux * cut, a[1] + uy * cut), (b[0] - ux * cut, b[1] - uy * cut)
        outline = [p, (p[0] + ux * w - uy * w, p[1] + uy * w + ux * w), (q[0] - ux * w - uy * w, q[1] - uy * w + ux * w), q,
                   (q[0] - ux * w + uy * w, q[1] - uy * w - ux * w), (p[0] + ux * w + uy * w, p[1] + uy * w - ux * w)]
        pieces.append((on == "1", outline))
    for on, outline in sorted(pieces):
        g.poly(outline, lit if on else off, "#ffa27c" if on else None, 0.9)
    return g


def well(width, height):
    """The sunk dark window behind the digits."""
    g = canvas(width, height)
    w, h = 3 * width, 3 * height
    bezel = g.linear("bezel", [(0, "#7c4c0a"), (0.5, "#d79a28"), (1, "#fff1b8")])
    g.rect(0.8, 0.8, w - 1.6, h - 1.6, INK, None, r=11)
    g.rect(2.6, 2.6, w - 5.2, h - 5.2, bezel, None, r=10)
    g.rect(8, 8, w - 16, h - 16, "#160a0c", INK, 2, r=5)
    return g


def score_plate(width, height):
    g = canvas(width, height)
    w, h = 3 * width, 3 * height
    bezel = g.linear("bezel", [(0, "#fff1b8"), (0.5, GOLD), (1, "#8a560c")])
    face = g.linear("face", [(0, "#fffdf4"), (1, "#ecdcb2")])
    g.rect(0.8, 0.8, w - 1.6, h - 1.6, INK, None, r=15)
    g.rect(3, 3, w - 6, h - 6, bezel, None, r=13)
    g.rect(9, 9, w - 18, h - 18, face, INK, 2.2, r=8)
    return g


# -- chips

CHIPS = {1: ("#eef0f2", "#4d5a6b", "#24303f"), 2: ("#e9b93a", "#80500c", "#4a2c05"), 5: ("#cf2f33", "#fff3dc", "#7a0f18"),
         10: ("#2e68bb", "#fff3dc", "#12305f"), 20: ("#2f9a4c", "#fff3dc", "#0f5526"), 50: ("#2d2a36", "#f2cf6a", "#15121a")}


def chip(value):
    body, spot, dark = CHIPS[value]
    g = canvas(33, 33)
    c = 49.5
    g.circle(c, c + 1.2, 47.5, INK, opacity=0.55)
    g.circle(c, c - 0.4, 46, body, INK, 3)
    for k in range(6):
        with g.at(c, c - 0.4, turn=60 * k + 30):
            a = math.radians(12)
            outer, inner = 44.4, 34
            g.path(f"M {pts((outer * math.sin(-a), -outer * math.cos(a)))} "
                   f"Q {pts((0, -outer - 1.4), (outer * math.sin(a), -outer * math.cos(a)))} "
                   f"L {pts((inner * math.sin(a), -inner * math.cos(a)))} "
                   f"Q {pts((0, -inner - 0.8), (inner * math.sin(-a), -inner * math.cos(a)))} Z", spot)
    g.circle(c, c - 0.4, 33, None, dark, 2)
    face = PAPER if value != 50 else "#f6dc8c"
    g.circle(c, c - 0.4, 30.5, face, dark, 2.4)
    text = str(value)
    if len(text) == 1:
        glyphs.write(g, text, c, c, 37, dark if value != 1 else "#24303f", pen=3.3, squeeze=0.96)
    else:
        glyphs.write(g, text.replace("1", "i"), c, c, 33, dark, pen=3.2, squeeze=0.84, gap=2.8)
    g.path(spline([(c - 39, c - 16), (c - 27, c - 33), (c - 10, c - 42)]), None, WHITE, 3, 0.5)
    return g


# -- marks: the winner's is seen from afar, the others are 32 by 32

def mark_winner():
    """A gold star in a laurel, on a dark disc that keeps it apart from the cards below."""
    from ases import wreath
    g = canvas(92, 92)
    c = 138
    rim = g.linear("rim", [(0, "#fff1b8"), (0.5, GOLD), (1, "#8a560c")])
    g.circle(c, c, 135, INK, opacity=0.8)
    g.circle(c, c, 131, rim, INK, 3)
    g.circle(c, c, 121, g.radial("disc", [(0, "#1d7a3a"), (0.7, "#0d5426"), (1, "#06351a")], 0.5, 0.42, 0.6), INK, 3)
    wreath(g, c, c + 2, 98, 14, 152, 9, GOLD, GOLD_LIGHT, size=1.05, berries=False)
    star = []
    for k in range(10):
        r = 82 if k % 2 == 0 else 35
        star.append((c + r * math.sin(math.pi * k / 5), c + 3 - r * math.cos(math.pi * k / 5)))
    g.poly(star, g.linear("star", [(0, "#fffbe6"), (0.5, "#ffd95a"), (1, "#e79a1c")]), INK, 5)
    return g


def suit_tile(suit):
    """The sign of a suit on a scrap of card."""
    g = canvas(22, 22)
    g.rect(1.5, 1.5, 63, 63, PAPER, INK, 3, r=11)
    pips.mini(g, suit, 33, 33, 1.42)
    return g


def mark_bust():
    """A burst with a cross: the serie has gone over."""
    g = canvas(32, 32)
    burst = []
    for k in range(24):
        r = (46 if k % 4 == 0 else 41) if k % 2 == 0 else 29
        burst.append((48 + r * math.sin(math.pi * k / 12), 48 - r * math.cos(math.pi * k / 12)))
    g.poly(burst, "#ffb62e", INK, 3.4)
    burst = [(48 + (x - 48) * 0.74, 48 + (y - 48) * 0.74) for x, y in burst]
    g.poly(burst, RED, None)
    g.path("M 36,36 L 60,60 M 60,36 L 36,60", None, INK, 14)
    g.path("M 36,36 L 60,60 M 60,36 L 36,60", None, WHITE, 8)
    return g


def round_mark(face, draw):
    g = canvas(32, 32)
    bezel = g.linear("bezel", [(0, "#fff1b8"), (0.5, GOLD), (1, "#8a560c")])
    g.circle(48, 48, 45, bezel, INK, 3)
    g.circle(48, 48, 36, face, INK, 2.6)
    draw(g)
    return g


def mark_turn():
    """An hourglass: it is this seat's turn."""
    def draw(g):
        g.path("M 34,24 L 62,24 L 62,30 L 51,47 L 62,66 L 62,72 L 34,72 L 34,66 L 45,47 L 34,30 Z", "#e8f3fb", INK, 3.4)
        g.path("M 39,36 L 57,36 L 48,47 Z", GOLD)
        g.path("M 38,68 L 48,56 L 58,68 Z", GOLD)
        g.line([(32, 24), (64, 24)], INK, 8)
        g.line([(32, 72), (64, 72)], INK, 8)
        g.line([(33, 24), (63, 24)], WOOD_LIGHT, 3.6)
        g.line([(33, 72), (63, 72)], WOOD_LIGHT, 3.6)
    return round_mark(GREEN, draw)


# -- small buttons

def square_button(width, height, colour, down, draw, r=4.0):
    g = plain_button(width, height, colour, down, r)
    if down:
        with g.group("translate(1.5,2)"):
            draw(g, 1.5 * width, 1.5 * height)
    else:
        draw(g, 1.5 * width, 1.5 * height)
    return g


def tiny_button(width, height, down, draw):
    """A face without bezel, for pieces of a few pixels."""
    g = canvas(width, height)
    w, h = 3 * width, 3 * height
    face = g.linear("face", [(0, "#fdeca8"), (0.5, GOLD), (1, "#a9690f")] if not down else
                    [(0, "#8a560c"), (1, "#d79a28")])
    g.rect(1.5, 1.5, w - 3, h - 3, face, INK, 3, r=6)
    draw(g, w / 2, h / 2 + (1.5 if down else 0))
    return g


def triangle(direction, size, colour=INK):
    turn = {"up": 0, "right": 90, "down": 180, "left": 270}[direction]

    def draw(g, x, y):
        with g.at(x, y, turn=turn):
            g.path(f"M 0,{-size * 0.75} L {size},{size * 0.65} L {-size},{size * 0.65} Z", colour, colour, 2)
    return draw


def cross(g, x, y):
    g.path(f"M {pts((x - 8, y - 8))} L {pts((x + 8, y + 8))} M {pts((x + 8, y - 8))} L {pts((x - 8, y + 8))}", None, WHITE, 6)


def close_button(down):
    g = canvas(16, 16)
    face = g.linear("face", [(0, "#f2958a"), (0.25, RED), (1, RED_DARK)] if not down else [(0, "#5c0b14"), (1, RED)])
    g.rect(1.5, 1.5, 45, 45, face, INK, 3, r=9)
    cross(g, 24, 24 + (1.5 if down else 0))
    return g


def check(marked):
    g = canvas(16, 16)
    g.rect(2.5, 2.5, 43, 43, WHITE, INK, 3, r=8)
    g.path("M 6,12 Q 6,6 12,6 L 38,6", None, "#b9ad90", 2.4)
    if marked:
        g.path("M 12,25 L 21,34 L 38,12", None, GREEN_DARK, 8)
        g.path("M 12,25 L 21,34 L 38,12", None, GREEN, 5)
    return g


def radio(marked):
    g = canvas(16, 16)
    g.circle(24, 24, 21.5, WHITE, INK, 3)
    g.path(spline([(9, 20), (14, 11), (24, 7)]), None, "#b9ad90", 2.4)
    if marked:
        g.circle(24, 24, 11.5, RED, RED_DARK, 2.6)
        g.circle(21, 20.5, 3, "#f7b4aa")
    return g


def rail():
    g = canvas(110, 9)
    groove = g.linear("groove", [(0, "#2a1a10"), (1, "#8a6a3c")])
    g.rect(1.5, 6, 327, 15, groove, INK, 2.6, r=7.5)
    g.rect(6, 11, 318, 5, "#e8b233", None, r=2.5, opacity=0.75)
    return g


def knob():
    g = canvas(13, 22)
    face = g.linear("face", [(0, "#fff1b8"), (0.45, GOLD), (1, "#8a560c")], 0, 0, 1, 0)
    g.rect(1.5, 1.5, 36, 63, face, INK, 3, r=9)
    for y in (25, 33, 41):
        g.line([(12, y), (27, y)], GOLD_DEEP, 3)
    return g


# -- frames and panels

def frame_bar(part):
    """A bar 24 high with a gold rim: left end, strip, right end."""
    width = {"left": 5, "strip": 1, "right": 5}[part]
    g = canvas(width, 24)
    face = g.linear("face", [(0, "#2c5aa8"), (1, "#0d2450")])
    w = 3 * width
    if part == "strip":
        g.rect(0, 0, w, 72, INK)
        g.rect(0, 2.4, w, 67.2, GOLD)
        g.rect(0, 7.6, w, 56.8, INK)
        g.rect(0, 9.6, w, 52.8, face)
        return g

    def end(inset, colour, r):
        d = f"M {w},{inset} L {inset + r},{inset} Q {inset},{inset} {inset},{inset + r} L {inset},{72 - inset - r} " \
            f"Q {inset},{72 - inset} {inset + r},{72 - inset} L {w},{72 - inset} Z"
        g.path(d if part == "left" else mirror(d, w / 2), colour)
    end(0, INK, 11)
    end(2.4, GOLD, 10)
    end(7.6, INK, 7)
    end(9.6, face, 5)
    return g


def panel(rim, face, shine, depth):
    """A panel to be stretched: nine pixels of rim, the middle plain."""
    g = canvas(30, 30)
    g.rect(0, 0, 90, 90, INK, None, r=14)
    g.rect(2.6, 2.6, 84.8, 84.8, rim, None, r=12)
    g.path("M 6,78 L 6,15 Q 6,6 15,6 L 78,6", None, shine, 3, 0.8)
    g.rect(14, 14, 62, 62, INK, None, r=6)
    g.rect(16.4, 16.4, 57.2, 57.2, face, None, r=4.5)
    if depth:
        g.path("M 18,74 L 18,18 L 74,18", None, INK, 3, 0.35)
    return g


def bet_board():
    """The bet board: stitched leather in a wooden frame, a dark head for name and displays, brass at the corners."""
    g = canvas(146, 172)
    w, h = 3 * 146, 3 * 172
    wood = g.linear("wood", [(0, WOOD_LIGHT), (0.5, WOOD), (1, WOOD_DARK)])
    leather = g.radial("leather", [(0, "#7c3a22"), (0.7, "#5f2816"), (1, "#43190d")], 0.5, 0.4, 0.75)
    brass = g.linear("brass", [(0, "#fff1b8"), (0.5, GOLD), (1, "#8a560c")])
    g.rect(0.8, 0.8, w - 1.6, h - 1.6, INK, None, r=18)
    g.rect(3, 3, w - 6, h - 6, wood, None, r=16)
    g.path(f"M 8,{h - 20} L 8,20 Q 8,8 20,8 L {w - 20},8", None, WOOD_LIGHT, 2.4, 0.9)
    for k, y in enumerate((90, 215, 330, 452)):
        g.path(spline([(5, y), (9, y + 26 + 6 * k), (6, y + 60)]), None, WOOD_DARK, 1.6, 0.55)
        g.path(spline([(w - 6, y - 20), (w - 10, y + 12), (w - 6, y + 50)]), None, WOOD_DARK, 1.6, 0.55)
    g.rect(13, 13, w - 26, h - 26, INK, None, r=11)
    g.rect(15, 15, w - 30, h - 30, leather, None, r=10)
    seam = "#d9a46a"
    for x in range(26, w - 34, 13):
        g.path(f"M {x},{h - 21} L {x + 7},{h - 21}", None, seam, 2, 0.7)
    for y in range(160, h - 34, 13):
        g.path(f"M 21,{y} L 21,{y + 7}", None, seam, 2, 0.7)
        g.path(f"M {w - 21},{y} L {w - 21},{y + 7}", None, seam, 2, 0.7)
    g.rect(16, 16, w - 32, 130, "#2a120a", None, r=8)
    g.path(f"M 16,147 L {w - 16},147", None, brass, 3.4)
    for x, y in ((10, 10), (w - 10, 10), (10, h - 10), (w - 10, h - 10)):
        g.circle(x, y, 5.6, brass, INK, 1.6)
    return g


def direction(inverse):
    """The table from above with the way round; the direct game goes with the clock: left, top, right, bottom."""
    g = canvas(96, 96)
    felt = g.radial("felt", [(0, "#2fa04a"), (0.75, "#137a30"), (1, "#0a4f1e")], 0.5, 0.42, 0.6)
    wood = g.linear("wood", [(0, WOOD_LIGHT), (1, WOOD_DARK)])
    g.rect(32, 32, 224, 224, wood, INK, 4, r=44)
    g.rect(48, 48, 192, 192, felt, INK, 3.4, r=32)
    for k, colour in enumerate((RED, BLUE, GOLD, GREEN_LIGHT)):
        with g.at(144, 144, turn=90 * k):
            g.circle(0, -120, 20, colour, INK, 3.6)
            g.circle(0, -120, 9, SKIN, INK, 2.6)
    arrows = []
    for k in range(4):
        start, stop = math.radians(90 * k + 16), math.radians(90 * k + 58)
        run = [(66 * math.cos(start + (stop - start) * t / 6), 66 * math.sin(start + (stop - start) * t / 6)) for t in range(7)]
        tip_angle = math.radians(90 * k + 78)
        arrows.append((run, (68 * math.cos(tip_angle), 68 * math.sin(tip_angle))))
    from cursors import bent_arrow
    with g.at(144, 144, flip=inverse):
        for run, tip in arrows:
            rod, cone = bent_arrow(run, 16, 20, tip)
            g.path(rod, GOLD_LIGHT, INK, 4)
            g.path(cone, GOLD_LIGHT, INK, 4)
            g.path(spline(run + [((run[-1][0] + tip[0]) / 2, (run[-1][1] + tip[1]) / 2)]), None, GOLD_LIGHT, 12, cap="butt")
    return g


def emblem():
    """The crest of the splash: the four suits round a crowned coin."""
    from ases import wreath
    g = canvas(150, 150)
    c = 225
    wreath(g, c, c + 12, 176, 12, 152, 13, GOLD, GOLD_LIGHT, size=1.35)
    gold = g.radial("disc", [(0, "#fff3c0"), (0.5, GOLD_LIGHT), (0.82, GOLD), (1, "#bf7f18")], fx=0.38, fy=0.34)
    g.circle(c, c + 12, 146, gold, INK, 5)
    for x, y in regular(c, c + 12, 134, 52):
        g.circle(x, y, 4, GOLD_DARK)
    felt = g.radial("felt", [(0, "#2fa04a"), (0.75, "#137a30"), (1, "#0a4f1e")], 0.5, 0.42, 0.6)
    g.circle(c, c + 12, 122, felt, INK, 4)
    g.path(f"M {c - 122},{c + 12} L {c + 122},{c + 12} M {c},{c - 110} L {c},{c + 134}", None, GOLD, 5, cap="butt")
    pips.coin(g, c - 52, c - 38, 1.02)
    pips.cup(g, c + 52, c - 36, 0.98)
    pips.sword(g, c - 50, c + 66, 0.72)
    pips.club(g, c + 50, c + 64, 0.72)
    g.circle(c, c + 12, 24, gold, INK, 4)
    petal = spline([(0, -4, 0), (6, -10), (0, -19, 0), (-6, -10)], closed=True)
    for k in range(8):
        with g.at(c, c + 12, turn=45 * k):
            g.path(petal, RED, GOLD_DEEP, 1.6)
    with g.at(c, 96, 1.35):
        crown(g, 5, "lily")
    return g


def pieces():
    """(name, drawing) of every piece of the sheet."""
    for number in buttons.ICONS:
        for state in ("arriba", "apagado", "pulsado"):
            yield f"boton{number}_{state}", buttons.round_button(number, state)
    for figure in "0123456789":
        yield f"digito{figure}", digit(figure)
    yield "digito_vacio", digit(" ")
    for value in CHIPS:
        yield f"ficha{value}", chip(value)
    yield from (("marca_ganador", mark_winner()), ("marca_pasado", mark_bust()), ("marca_turno", mark_turn()))
    for state, down in (("arriba", False), ("pulsado", True)):
        yield f"cerrar_{state}", close_button(down)
        yield f"mas_ayuda_{state}", plain_button(76, 20, "azul", down, 4)
        yield f"spin_sube_{state}", tiny_button(15, 9, down, triangle("up", 7))
        yield f"spin_baja_{state}", tiny_button(15, 9, down, triangle("down", 7))
        yield f"selector_{state}", square_button(22, 22, "azul", down, triangle("right", 12, GOLD_LIGHT))
        yield f"continuar_{state}", plain_button(86, 36, "verde", down, 7)
        yield f"continuar_solo_{state}", buttons.own_move_button(86, 36, down)
        yield f"boton_superior_{state}", plain_button(90, 24, "azul", down, 5)
        yield f"boton_dobseg_{state}", plain_button(76, 24, "rojo", down, 5)
        yield f"mensaje_{state}", plain_button(84, 28, "marfil", down, 5)
        for number, colour in ((1, "gris"), (2, "azul"), (3, "verde"), (4, "rojo")):
            yield f"apuesta{number}_{state}", plain_button(124, 27, colour, down, 5)
        for name, way in (("izquierda", "left"), ("derecha", "right"), ("sube", "up"), ("baja", "down")):
            yield f"lateral_{name}_{state}", square_button(23, 23, "verde", down, triangle(way, 12, GOLD_LIGHT))
    for suit in ("oros", "copas", "espadas", "bastos"):
        yield f"palo_{suit}", suit_tile(suit)
    yield from (("casilla_vacia", check(False)), ("casilla_marcada", check(True)), ("opcion_vacia", radio(False)),
                ("opcion_marcada", radio(True)), ("carril_deslizador", rail()), ("pomo_deslizador", knob()))
    yield from (("marco_extremo_izquierdo", frame_bar("left")), ("marco_tira", frame_bar("strip")),
                ("marco_extremo_derecho", frame_bar("right")),
                ("panel_madera", panel(WOOD, "#3b2413", WOOD_LIGHT, True)),
                ("panel_pergamino", panel(GOLD, PAPER, "#fff1b8", False)),
                ("panel_hundido", panel("#6d7f4a", "#0b5a1e", "#b8c98a", True)))
    yield from (("placa_tantos", score_plate(66, 27)), ("visor", well(66, 27)), ("sentido_directo", direction(False)),
                ("sentido_inverso", direction(True)), ("emblema_portada", emblem()),
                ("apostadora", bet_board()))
