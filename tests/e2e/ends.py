"""The ways out: the close button asks, a signal saves and leaves, from the table as from under a box."""

import signal
import time

from lib.table import expect, run


def end_by(table, which):
    table.process.send_signal(which)
    expect(table.wait_for_end(8) == 0, "an end by a signal is no failure")


def play(table):
    table.begin_empty()
    table.close_window()
    expect(table.wait_for_end() == 0, "with no match on, the close button closes")

    table.start()
    table.wait_for_window()
    table.wait_for_box("Descripción general", 10)
    end_by(table, signal.SIGTERM)

    table.start()
    table.wait_for_window()
    table.answer("Descripción general", 1)
    table.press_main("nueva")
    table.answer("Comienza la Partida", 0, seconds=60)
    time.sleep(1)
    table.close_window()
    table.answer("Posponer la partida en curso", 1, seconds=20, count=2)
    expect(table.process.poll() is None, "No stays at the table")
    table.shot("still-there")
    table.press_main("nueva")
    table.wait_for_box("Abandonar la partida en curso", 20)
    end_by(table, signal.SIGTERM)
    expect(table.match_on(), "the match is kept")

    table.start()
    table.wait_for_window()
    table.answer("Continuar la partida anterior", 0)
    table.answer("Descripción general", 1)
    time.sleep(1)
    end_by(table, signal.SIGHUP)
    expect(table.match_on(), "the match is kept once more")
    leftovers = [path.name for path in table.folder.iterdir() if path.name.endswith((".WRK", ".tmp"))]
    expect(not leftovers, f"nothing is left lying about: {leftovers}")


run(play)
