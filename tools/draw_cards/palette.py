"""The colours of the whole suite: few, rich, and shared by every drawing."""

INK = "#1e1a24"
PAPER = "#fbf5e6"
PAPER_SHADE = "#efe4c8"
PAPER_EDGE = "#8d8068"
WHITE = "#fffdf7"

GOLD_LIGHT = "#fbe08a"
GOLD = "#e8b233"
GOLD_DARK = "#a9690f"
GOLD_DEEP = "#6e4209"

RED_LIGHT = "#e2574a"
RED = "#c3272b"
RED_DARK = "#84141f"

BLUE_LIGHT = "#6f9fd8"
BLUE = "#27559b"
BLUE_DARK = "#142f60"

GREEN_LIGHT = "#86bd5c"
GREEN = "#2f8040"
GREEN_DARK = "#17502a"

STEEL_LIGHT = "#eef3f8"
STEEL = "#c2cedb"
STEEL_DARK = "#7b8a9e"

WOOD_LIGHT = "#b97a3f"
WOOD = "#8a5428"
WOOD_DARK = "#54301a"

SKIN = "#f6d3ab"
SKIN_SHADE = "#e2ab7c"
CHEEK = "#e58a70"

HAIR_BLACK = "#2c2228"
HAIR_BROWN = "#6d3f1f"
HAIR_BLOND = "#d99a3a"
HAIR_GREY = "#b9b6b4"
HAIR_WHITE = "#efece6"
HAIR_RED = "#b1512a"

# The four suits of each deck: colour of the index and of the frame line.
SUIT_COLOUR = {
    "oros": "#a8660a",
    "copas": "#b3202a",
    "espadas": "#1d4a94",
    "bastos": "#1f6b33",
    "diamantes": "#c8202c",
    "corazones": "#c8202c",
    "picas": "#1b1b26",
    "treboles": "#1b1b26",
}
