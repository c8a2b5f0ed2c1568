"""The smallest screen the table is made for: all of it is seen, no frame takes any of it away."""

from lib.forms import Normas, Personal
from lib.table import expect, run, wait_for

SCREEN = (0, 0, 800, 600)


def inside(table, form):
    """A form or a box lies on the screen with all its edges."""
    x, y, width, height = table.place(form)
    expect(x >= 0 and y >= 0 and x + width <= SCREEN[2] and y + height <= SCREEN[3],
           f"a box of {width} by {height} at {x}, {y} is cut off")


def play(table):
    table.begin_empty()
    wait_for(lambda: table.place() == SCREEN, 10, "the table on the whole screen")
    for form, name in ((Personal, "personal"), (Normas, "normas")):
        opened = form(table)
        table.shot(name)
        inside(table, opened.window)
        opened.leave()
    table.press_main("nueva")
    inside(table, table.wait_for_box("Comienza la Partida", 60))
    table.answer("Comienza la Partida", 0, count=1)
    # The green button stands in the lowest corner.
    wait_for(lambda: table.green_button(table.shot()), 60, "the green button")
    table.shot("table")
    table.press_main("salir")
    inside(table, table.wait_for_box("Posponer la partida en curso", 20))
    table.answer("Posponer la partida en curso", 0, count=2)
    expect(table.wait_for_end(20) == 0, "leaving is no failure")
    # A second start, with what the first has remembered.
    table.start()
    table.wait_for_window()
    table.answer("Continuar la partida anterior", 0, seconds=20, count=1)
    table.answer("Descripción general", 1, seconds=20)
    wait_for(lambda: table.place() == SCREEN, 10, "the table on the whole screen again")
    table.close_window()
    table.answer("Posponer la partida en curso", 0, seconds=20, count=2)
    expect(table.wait_for_end(20) == 0, "closing is no failure")


run(play)
