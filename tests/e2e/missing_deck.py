"""Without the picture of its deck the program says which file is missing and ends with a status of its own."""

import os
import subprocess

from lib.table import expect, run, xdotool

TITLE = "Zovin no puede continuar"


def is_told(words, where):
    expect("Baraja02.bmp" in words and "no existe" in words, f"{where} names file and reason: {words}")


def play(table):
    (table.folder / "Baraja02.bmp").unlink()
    table.start(stderr=subprocess.PIPE, text=True)
    table.wait_for_box(TITLE, 10)
    table.shot("report")
    xdotool("key", "Return")
    expect(table.wait_for_end() == 1, "the status tells a failure")
    is_told(table.process.stderr.read(), "the error stream")

    quiet = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    table.start(stderr=subprocess.PIPE, text=True, env=quiet)
    expect(table.wait_for_end(20) == 1, "no screen, the same status and no box that waits")
    is_told(table.process.stderr.read(), "the error stream")


run(play)
