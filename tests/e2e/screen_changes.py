"""The screen becomes another while the table stands on it: the table is whole and inside each time, and keeps the size
that the player has given it where there is room."""

import subprocess

from lib.table import expect, run, wait_for, xdotool

START = "1280x800"
MODES = (START, "1024x768", "800x600", "1600x900")


def xrandr(*words):
    done = subprocess.run(["xrandr", *words], capture_output=True, text=True)
    expect(done.returncode == 0, f"xrandr {' '.join(words)}: {done.stderr}")


def add_modes():
    for mode in MODES:
        width, height = mode.split("x")
        xrandr("--newmode", mode, "60", width, width, width, width, height, height, height, height)
        xrandr("--addmode", "screen", mode)


def turn_to(mode):
    xrandr("--output", "screen", "--mode", mode)
    return tuple(int(part) for part in mode.split("x"))


def inside(table, size):
    x, y, width, height = table.place()
    return x >= 0 and y >= 0 and x + width <= size[0] and y + height <= size[1]


def whole(table, size):
    """Inside, and its lowest button, in the last corner, is drawn in colour."""
    wait_for(lambda: inside(table, size), 10, f"the table inside {size}")
    wait_for(lambda: table.main_button_lit("ayuda", table.shot()), 10, f"the buttons at {size}")


def play(table):
    add_modes()
    size = turn_to(START)
    table.begin_empty()
    whole(table, size)
    # Maximized: as large as the screen has become. None of these holds the table at more than its own size, where
    # the buttons would stand elsewhere.
    for mode in ("1024x768", "800x600", "1280x800"):
        size = turn_to(mode)
        whole(table, size)
        table.shot(mode)
    # A window of a size of its own on a screen that has no room for it.
    xdotool("key", "super+Down")
    size = turn_to("1600x900")
    wait_for(lambda: inside(table, size), 10, "the table on the larger screen")
    table.shot("1600x900")
    size = turn_to("800x600")
    whole(table, size)
    table.shot("800x600-again")
    table.close_window()
    expect(table.wait_for_end(20) == 0, "closing is no failure")


run(play)
