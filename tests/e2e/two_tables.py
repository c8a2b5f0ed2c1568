"""Two copies of the program on one folder: the second one says so, and leaves or plays without saving. A copy that was
killed holds nothing."""

from lib.forms import Normas
from lib.table import expect, run, wait_for

IN_USE = "Zovin ya está en uso"
FIRST_TIME = "Descripción general"


def files(table):
    return {path.name: path.read_bytes() for path in table.folder.glob("*.*") if not path.is_symlink()}


def play(table):
    table.begin_empty()
    first, first_window = table.process, table.window
    before = files(table)

    # Cancel leaves; the table that was there stands.
    table.start()
    table.wait_for_box(IN_USE, 10)
    table.shot("in-use")
    table.answer(IN_USE, 1, count=2)
    expect(table.wait_for_end() == 0, "leaving is no failure")
    expect(first.poll() is None, "the first table stands")

    # Accept plays, and whatever is done there changes no file.
    table.start()
    table.answer(IN_USE, 0, count=2)
    second_window = wait_for(lambda: [found for found in table.windows() if found != first_window], 10,
                             "the second table")[0]
    table.window = second_window
    table.answer(FIRST_TIME, 1, count=2)
    Normas(table).choose("Tute")
    table.press_main("nueva")
    table.answer("Comienza la Partida", 0, seconds=60)
    table.shot("second-table")
    table.press_main("salir")
    table.answer("Posponer la partida en curso", 0, seconds=20, count=2)
    expect(table.wait_for_end() == 0, "nothing was to be saved, so nothing failed")
    expect(files(table) == before, "the second table has changed no file")

    # The first one is killed: the next one is the first again, and saves.
    first.kill()
    first.wait()
    table.start()
    table.wait_for_window()
    table.answer(FIRST_TIME, 1, count=2)
    Normas(table).choose("Tute")
    table.press_main("salir")
    expect(table.wait_for_end() == 0, "a good end")
    expect(files(table) != before, "the first table saves")


run(play)
