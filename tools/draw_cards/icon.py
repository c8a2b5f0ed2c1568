"""The program's icon: two cards and a coin on a round table of green felt."""

import pips
from geometry import regular
from palette import *
from svg import Drawing


def icon():
    g = Drawing(128, 128, (0, 0, 384, 384))
    felt = g.radial("felt", [(0, "#2fa04a"), (0.7, "#137a30"), (1, "#0a4f1e")], 0.5, 0.42, 0.6)
    rim = g.linear("rim", [(0, "#fff1b8"), (0.35, GOLD), (0.75, "#8a560c"), (1, "#e3b04a")], 0.2, 0, 0.8, 1)
    g.circle(192, 192, 186, INK)
    g.circle(192, 192, 181, rim)
    g.circle(192, 192, 160, felt, INK, 6)
    for x, y in regular(192, 192, 170.5, 40):
        g.circle(x, y, 3.4, GOLD_DEEP)
    for x, turn, kind in ((140, -16, 0), (244, 14, 1)):
        with g.at(x, 186, turn=turn):
            g.rect(-72, -104, 144, 208, INK, None, r=16, opacity=0.35)
            g.rect(-76, -110, 144, 208, PAPER, INK, 7, r=16)
            if kind == 0:
                g.rect(-63, -97, 118, 182, None, SUIT_COLOUR["espadas"], 3.4, r=7)
                pips.sword(g, -4, -8, 1.3, turn=0)
            else:
                pips.french(g, "corazones", -4, -6, 1.75)
                pips.french(g, "corazones", -52, -82, 0.5)
                pips.french(g, "corazones", 44, 72, 0.5, flip=True)
    pips.coin(g, 192, 282, 1.75, rich=True)
    return g
