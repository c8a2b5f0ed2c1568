"""The Spanish deck: forty-eight cards of oros, copas, espadas and bastos."""

import pips
from card import paper, spanish_frame, spanish_index
from palette import *

SUITS = ("oros", "copas", "espadas", "bastos")

L, C, R = 82, 151.5, 221  # columns of the pips

# (x, y, upside down) of each pip, for the round signs and for the long ones
ROUND = {
    2: [(C, 122), (C, 301)],
    3: [(C, 92), (C, 211.5), (C, 331)],
    4: [(L + 12, 118), (R - 12, 118), (L + 12, 305), (R - 12, 305)],
    5: [(L + 6, 100), (R - 6, 100), (C, 211.5), (L + 6, 323), (R - 6, 323)],
    6: [(L + 6, 95), (R - 6, 95), (L + 6, 211.5), (R - 6, 211.5), (L + 6, 328), (R - 6, 328)],
    7: [(L, 88), (R, 88), (C, 150), (L, 211.5), (R, 211.5), (L, 335), (R, 335)],
    8: [(L, 88), (R, 88), (C, 150), (L, 211.5), (R, 211.5), (C, 273), (L, 335), (R, 335)],
    9: [(x, y) for y in (92, 211.5, 331) for x in (L - 3, C, R + 3)],
}
ROUND_SCALE = {2: 1.75, 3: 1.42, 4: 1.4, 5: 1.26, 6: 1.26, 7: 0.99, 8: 0.99, 9: 0.95}
CUP_SCALE = {2: 1.9, 3: 1.3, 4: 1.4, 5: 1.18, 6: 1.2, 7: 1.02, 8: 1.02, 9: 0.99}

# (x, y, upside down) of the long signs, in rows: the top row stands, the bottom row hangs
A, Z = 84, 219


def row(y, columns, down=0):
    return [(x, y, down) for x in columns]


LONG = {
    2: row(211.5, (106, 197)),
    3: row(211.5, (A, C, Z)),
    4: row(119, (104, 199)) + row(304, (104, 199), 1),
    5: row(119, (88, 215)) + row(211.5, (C,)) + row(304, (88, 215), 1),
    6: row(119, (A, C, Z)) + row(304, (A, C, Z), 1),
    7: row(94, (104, 199)) + row(211.5, (A, C, Z)) + row(329, (104, 199), 1),
    8: row(94, (A, C, Z)) + row(211.5, (104, 199)) + row(329, (A, C, Z), 1),
    9: row(94, (A, C, Z)) + row(211.5, (A, C, Z)) + row(329, (A, C, Z), 1),
}
LONG_SHAPE = {2: (1.55, 1.8), 3: (1.28, 2.2), 4: (1.25, 0.95), 5: (1.2, 0.95), 6: (1.15, 1.02), 7: (1.02, 0.78), 8: (1.02, 0.78),
              9: (1.02, 0.78)}  # scale, stretch of the shaft


def base(suit, number):
    g = paper()
    spanish_frame(g, suit)
    return g


def pip_card(suit, number):
    g = base(suit, number)
    if suit in ("oros", "copas"):
        draw = pips.coin if suit == "oros" else pips.cup
        k = (ROUND_SCALE if suit == "oros" else CUP_SCALE)[number]
        for x, y in ROUND[number]:
            draw(g, x, y, k)
    else:
        long_pips(g, suit, number)
    spanish_index(g, suit, number)
    return g


def long_pips(g, suit, number):
    draw = pips.sword if suit == "espadas" else pips.club
    k, length = LONG_SHAPE[number]
    for x, y, down in LONG[number]:
        draw(g, x, y, k, turn=180 if down else 0, length=length)


def face_card(suit, number, draw):
    g = base(suit, number)
    draw(g)
    spanish_index(g, suit, number)
    return g


def deck():
    """(file name, drawing) of the forty-eight cards."""
    from ases import ACES
    from caballos import RIDERS
    from reyes import KINGS
    from sotas import PAGES
    figures = {1: ACES, 10: PAGES, 11: RIDERS, 12: KINGS}
    for suit in SUITS:
        for number in range(1, 13):
            card = face_card(suit, number, figures[number][suit]) if number in figures else pip_card(suit, number)
            yield f"{suit}-{number:02}.svg", card
