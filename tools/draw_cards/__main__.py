"""Writes every drawing of the suite under assets/.

  python3 tools/draw_cards           writes the drawings anew
  python3 tools/draw_cards --check   says which files differ from what would be written, and writes nothing
"""

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


def stale():
    """The files that do not hold their drawing, and those that are no one's drawing."""
    expected = {ASSETS / path: drawing.text() for path, drawing in drawings()}
    present = {path for room in ("cards", "sheet", "cursors", "icon") for path in (ASSETS / room).rglob("*.svg")}
    for path in sorted(present | expected.keys()):
        if path not in expected:
            yield path, "no drawing makes it"
        elif path not in present or path.read_text(encoding="utf-8") != expected[path]:
            yield path, "not as drawn"


def main():
    if sys.argv[1:] == ["--check"]:
        found = list(stale())
        for path, complaint in found:
            print(f"{path.relative_to(ASSETS.parent)}: {complaint}")
        return 1 if found else 0
    for path, drawing in drawings():
        drawing.save(ASSETS / path)
    return 0


if __name__ == "__main__":
    sys.exit(main())
