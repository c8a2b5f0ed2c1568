"""A match of each game between four seats of the computer, to its end: it enters the history, and the folder that is
opened from the score shows it first."""

import time

from lib.forms import Form
from lib.short_match import play_to_the_end, prepare
from lib.table import expect, run, wait_for, xdotool

GAMES = {"01": "Póker", "31": "Black Jack", "51": "Tute", "58": "Brisca", "65": "Siete y media",
         "70": "Cinquillo"}
BLOCK = 182
HISTORY_TITLE = "Histórico de partidas de "


def history_of(table, game):
    path = table.folder / f"ZOV{game}31.HIS"
    return path.read_bytes() if path.exists() else b""


def ink(picture, x, y, width, height):
    """Dark points in a part of a picture."""
    part = picture.crop(x, y, width, height)
    return sum(sum(part.data[i:i + 3]) < 200 for i in range(0, len(part.data), 3))


def look_at_the_history(table, name):
    score = Form(table, "marcador", "Marcador", (0, 0))
    table.shot(f"score-{name}")
    score.click((score.width - 16 - 46 - 5 * 100, score.height - 29))
    window = table.wait_for_box(HISTORY_TITLE + name, 10)
    time.sleep(0.5)
    table.shot(f"history-{name}")
    x, y, width, height = table.place(window)
    picture = table.shot().crop(x, y, width, height)
    # The lines of the first match, below the heading; there is no second one.
    expect(ink(picture, 60, 130, 200, height // 10) > 30, f"{name}: the match stands first")
    expect(ink(picture, 60, height // 2, 200, height // 10) == 0, f"{name}: it stands alone")
    xdotool("key", "Escape")
    table.wait_for_box("Marcador", 10)
    xdotool("key", "Escape")
    wait_for(lambda: table.box() is None, 10, "the score to close")


def play(table):
    for game, name in GAMES.items():
        prepare(table, game)
        table.start()
        table.wait_for_window()
        table.answer("Descripción general", 1)
        table.press_main("nueva")
        play_to_the_end(table)
        block = wait_for(lambda: history_of(table, game), 5, f"{name}: the history")
        expect(len(block) == BLOCK and block.endswith(b"\r\n"), f"{name}: one block")
        expect(block[:4].isdigit() and int(block[:4]) >= 2020, f"{name}: the year")
        expect(block[12:21].strip(), f"{name}: a winner")
        look_at_the_history(table, name)
        table.close_window()
        expect(table.wait_for_end() == 0, f"{name}: the program ends")
        print(name, block[:97].decode("cp1252"), flush=True)


run(play)
