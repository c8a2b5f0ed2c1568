"""Writes every drawing of the suite under assets/. Run: python3 tools/draw_cards"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
ASSETS = Path(__file__).resolve().parents[2] / "assets"


def drawings():
    """(path below assets/, drawing) of everything."""
    import back
    import cursors
    import french
    import icon
    import jokers
    import sheet
    import spanish

    for name, drawing in spanish.deck():
        yield f"cards/spanish/{name}", drawing
    for name, drawing in french.deck():
        yield f"cards/french/{name}", drawing
    yield "cards/comodin1.svg", jokers.joker_juggler()
    yield "cards/comodin2.svg", jokers.joker_drummer()
    yield "cards/dorso.svg", back.back()
    for name, drawing in sheet.pieces():
        yield f"sheet/{name}.svg", drawing
    for name, draw in cursors.CURSORS.items():
        yield f"cursors/{name}.svg", draw()
    yield "icon/zovin.svg", icon.icon()


def main():
    for path, drawing in drawings():
        drawing.save(ASSETS / path)


if __name__ == "__main__":
    sys.exit(main())
