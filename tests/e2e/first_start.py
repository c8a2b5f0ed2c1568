"""A first start comes to the table at once: its settings came with the program. A file that was lost is told."""

from lib.forms import Normas
from lib.table import expect, run

LOST = "Error en la carga de datos iniciales"


def play(table):
    pristine = {path.name: path.read_bytes() for path in table.folder.glob("*.INI")}
    expect({"ZOV31.INI", "ZOV0131.INI", "ZOV7031.INI"} <= set(pristine), f"they come with the program: {sorted(pristine)}")
    table.start()
    table.wait_for_window()
    table.wait_for_box("Descripción general", 10)
    table.shot("first-box")
    table.answer("Descripción general", 1, count=2)
    # A box would keep the form from opening again.
    Normas(table).choose("Tute")
    Normas(table).choose("Brisca")
    (table.folder / "ZOV7031.INI").unlink()
    Normas(table).choose("Cinquillo")
    table.wait_for_box(LOST, 10)
    table.shot("lost-file")
    table.answer(LOST, 0, count=1)
    table.press_main("salir")
    expect(table.wait_for_end() == 0, "a good end")
    expect((table.folder / "ZOV7031.INI").read_bytes() == pristine["ZOV7031.INI"], "what was lost is there again")


run(play)
