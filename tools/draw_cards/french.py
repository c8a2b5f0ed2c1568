"""The French deck: fifty-two cards of diamantes, corazones, picas and tréboles."""

import pips
from card import HEIGHT, WIDTH, french_index, paper
from geometry import spline
from palette import *

SUITS = ("diamantes", "corazones", "picas", "treboles")
INDEX = {1: "A", 10: "i0", 11: "J", 12: "Q", 13: "K"}

CX, CY = WIDTH / 2, HEIGHT / 2
L, R = 93, 210
TOP, BOTTOM = 62, HEIGHT - 62  # the upper row shows over a card laid 16 pixels lower
THIRD = (BOTTOM - TOP) / 3


def places(number):
    """(x, y) of each pip; those below the middle hang head down."""
    ends, middle = [TOP, BOTTOM], CY
    sides = {2: [], 3: [], 4: ends, 5: ends, 6: ends + [middle], 7: ends + [middle], 8: ends + [middle],
             9: [TOP + k * THIRD for k in range(4)], 10: [TOP + k * THIRD for k in range(4)]}[number]
    centre = {2: ends, 3: ends + [middle], 5: [middle], 7: [(TOP + middle) / 2], 8: [(TOP + middle) / 2, (BOTTOM + middle) / 2],
              9: [middle], 10: [TOP + THIRD / 2, BOTTOM - THIRD / 2]}.get(number, [])
    return [(x, y) for y in sides for x in (L, R)] + [(CX, y) for y in centre]


def pip_card(suit, number):
    g = paper()
    for x, y in places(number):
        pips.french(g, suit, x, y, 1.0 if number < 9 else 0.86, flip=y > CY + 1)
    french_index(g, suit, INDEX.get(number, str(number)))
    return g


# -- aces

def scroll(g, colour):
    """A flourish to the right of (0, 0), for the aces."""
    for d in (spline([(0, 0), (22, -10), (40, -2), (42, 14), (32, 18), (28, 10)]),
              spline([(4, 0), (16, 12), (20, 26), (12, 32), (8, 26)])):
        g.path(d, None, colour, 3)
    for x, y, t in ((18, -9, -30), (38, -4, 20), (19, 18, 70)):
        with g.at(x, y, turn=t):
            g.path(spline([(0, 0, 0), (6, -5), (15, 0, 0), (6, 4)], closed=True), colour)


def ace(suit):
    g = paper()
    shape, colour = pips.FRENCH[suit]
    dark = "#7a0f18" if colour != "#1b1b26" else "#05050a"
    gold = g.linear("gold_down", [(0, "#fdeca8"), (0.5, GOLD), (1, "#b9791a")])
    for k in range(4):
        with g.group(f"translate({CX},{CY}) scale({1 if k % 2 else -1},{1 if k < 2 else -1})"):
            with g.at(20, 152):
                scroll(g, GOLD_DARK)
    for y, s in ((CY - 160, 1), (CY + 160, -1)):
        with g.group(f"translate({CX},{y}) scale(0.5,{0.5 * s})"):
            g.path(shape, colour)
    with g.at(CX, CY, 2.75):
        g.path(shape, gold, INK, 1.2)
    with g.at(CX, CY, 2.48):
        g.path(shape, colour, dark, 1)
    # a window in the sign with a rosette
    cy = CY + {"diamantes": 0, "corazones": -10, "picas": 12, "treboles": 6}[suit]
    r = {"diamantes": 27, "corazones": 31, "picas": 30, "treboles": 26}[suit]
    g.circle(CX, cy, r, PAPER, GOLD_DEEP, 3)
    petal = spline([(0, -r * 0.2, 0), (r * 0.22, -r * 0.5), (0, -r * 0.88, 0), (-r * 0.22, -r * 0.5)], closed=True)
    for k in range(8):
        with g.at(CX, cy, turn=45 * k):
            g.path(petal, (colour, GOLD)[k % 2], GOLD_DEEP, 1.4)
    g.circle(CX, cy, r * 0.2, GOLD_LIGHT, GOLD_DEEP, 2)
    french_index(g, suit, "A")
    return g


def deck():
    """(file name, drawing) of the fifty-two cards."""
    from court import court_card
    for suit in SUITS:
        for number in range(1, 14):
            if number == 1:
                card = ace(suit)
            elif number <= 10:
                card = pip_card(suit, number)
            else:
                card = court_card(suit, number, INDEX[number])
            yield f"{suit}-{number:02}.svg", card
