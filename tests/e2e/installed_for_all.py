"""Installed for everybody: a first start fills the player's own folder, where the match, the history and the decks are;
another player finds none of it, and nothing is written beside the program."""

import os
import pathlib
import subprocess
import time

from lib.installed import Installed
from lib.short_match import play_to_the_end, prepare
from lib.table import expect, run, wait_for

SETTINGS = {f"ZOV{game}31.INI" for game in ("", "01", "31", "51", "58", "65", "70")}
DATA = {"Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV"}
OVERVIEW = "Descripción general"


def files_of(folder):
    return {path.name for path in folder.iterdir()}


def come_to_the_table(table, **how):
    table.start(**how)
    table.wait_for_window()
    table.answer(OVERVIEW, 1)


def first_start(table):
    come_to_the_table(table)
    table.shot("first-start")
    expect(files_of(table.folder) == SETTINGS | DATA, f"the own folder: {files_of(table.folder)}")
    for name in files_of(table.folder):
        expect((table.folder / name).read_bytes() == (table.data / name).read_bytes(), f"{name} as it came")
    expect(table.leave() == 0, "a good end")


def put_a_match_off(table):
    table.begin_with("70")
    come_to_the_table(table)
    table.press_main("nueva")
    table.answer("Comienza la Partida", 0, seconds=60)
    time.sleep(1)
    table.close_window()
    table.answer("Posponer la partida en curso", 0, seconds=20, count=2)
    expect(table.wait_for_end() == 0 and table.match_on(), "the match is kept in the own folder")


def go_on_with_it(table):
    table.start()
    table.wait_for_window()
    table.answer("Continuar la partida anterior", 0)
    table.answer(OVERVIEW, 1)
    time.sleep(1)
    table.shot("goes-on")
    table.close_window()
    table.answer("Posponer la partida en curso", 0, seconds=20, count=2)
    expect(table.wait_for_end() == 0 and table.match_on(), "and is kept once more")


def finish_one(table):
    prepare(table, "58")
    come_to_the_table(table)
    table.press_main("nueva")
    play_to_the_end(table)
    wait_for((table.folder / "ZOV5831.HIS").exists, 5, "the history in the own folder")
    expect(table.leave() == 0, "a good end")


def a_deck_that_was_taken_away_comes_back(table):
    deck = table.folder / "Baraja02.bmp"
    own = table.folder / "Baraja01.bmp"
    deck.unlink()
    own.write_bytes(deck_of_another_colour(own.read_bytes()))
    changed = own.read_bytes()
    come_to_the_table(table)
    expect(table.leave() == 0, "a good end")
    expect(deck.read_bytes() == (table.data / deck.name).read_bytes(), "the deck is there again")
    expect(own.read_bytes() == changed, "a deck of the player's is left alone")


def deck_of_another_colour(bmp):
    start = int.from_bytes(bmp[10:14], "little")
    return bmp[:start] + bmp[start:].translate(bytes(255 - value for value in range(256)))


def another_player_begins_anew(table):
    others = pathlib.Path.home() / "otra"
    come_to_the_table(table, env=dict(os.environ, XDG_DATA_HOME=str(others)))
    expect(files_of(others / "zovin") == SETTINGS | DATA, "a folder of their own, with no match in it")
    expect(table.leave() == 0, "a good end")


def a_home_that_cannot_be_written(table):
    blocked = pathlib.Path.home() / "no-es-carpeta"
    blocked.write_text("")
    table.start(env=dict(os.environ, XDG_DATA_HOME=str(blocked)))
    table.answer("Zovin no puede guardar", 0, count=2)
    table.wait_for_window()
    table.answer(OVERVIEW, 1)
    table.shot("lent-folder")
    expect(table.leave() == 0, "a good end")
    table.start(env=dict(os.environ, XDG_DATA_HOME=str(blocked)))
    table.answer("Zovin no puede guardar", 1, count=2)
    expect(table.wait_for_end() == 0, "Cancelar leaves")


def the_tools_find_their_files(table):
    picture = pathlib.Path.home() / "mesa.png"
    orders = "semilla 3\njuego 1\npon ControlJugador(4) = 1\nsiempre continua\n" \
             f"llama NuevaPartida\npantalla {picture}\n"
    subprocess.run([table.console], input=orders, text=True, check=True, capture_output=True)
    expect(picture.read_bytes().startswith(b"\x89PNG"), "sonda paints")
    said = subprocess.run([table.programs / "simula", "--juego", "1", "--partidas", "2"], check=True,
                          capture_output=True, text=True).stdout
    expect("partidas 2" in said, f"simula plays: {said}")


def play(table):
    before = table.installed_files()
    first_start(table)
    put_a_match_off(table)
    go_on_with_it(table)
    finish_one(table)
    a_deck_that_was_taken_away_comes_back(table)
    another_player_begins_anew(table)
    a_home_that_cannot_be_written(table)
    the_tools_find_their_files(table)
    expect(table.installed_files() == before, "nothing is written beside the program")


run(play, kind=Installed)
