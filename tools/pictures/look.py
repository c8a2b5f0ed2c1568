"""Pictures of the program in play, on the screen that tools/pictures/make has put up: each game in several moments, and
the forms. The keys do all of it, so that no place on the table has to be known at any size."""

import os
import pathlib
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

# pylint: disable=wrong-import-position
from lib import screen  # noqa: E402
from lib.table import Failure, Table, expect, wait_for, xdotool  # noqa: E402

# The game's number, and how often the green button is pressed before the picture in the middle of the hand.
GAMES = {"poker": ("01", 0), "blackjack": ("31", 1), "tute": ("51", 4), "brisca": ("58", 6),
         "siete-y-media": ("65", 3), "cinquillo": ("70", 9)}
# Their keys; the history is opened from the score.
FORMS = {"normas": "F3", "personal": "F4", "estadis": "F5", "marcador": "F7", "ayuda": "F8"}
FORMS_OF = {"poker": ("normas", "estadis"), "blackjack": ("estadis",), "tute": ("normas", "personal", "estadis", "ayuda"),
            "siete-y-media": ("estadis",), "cinquillo": ("normas", "estadis")}
# On the others one moment of each game is enough, and the forms of one game; on the largest one form.
WHOLE_SCREEN, LARGE_SCREENS = "1280x800", ("2560x1440", "2560x1600@2")
PRESS = "c"  # any character presses the green button, or begins a match
COLOURS = 64


class Look:
    """One game on one screen, from the empty table to the end of a hand."""

    def __init__(self, table, folder, name):
        self.table, self.folder, self.name = table, folder, name

    def key(self, word):
        xdotool("key", word)

    def still(self, seconds=60, quiet=0.8):
        """The picture of a screen on which nothing moves any more."""
        last = [screen.take(), time.monotonic()]

        def stands():
            now = screen.take()
            if now.data != last[0].data:
                last[:] = [now, time.monotonic()]
            return time.monotonic() - last[1] > quiet
        wait_for(stands, seconds, "a screen that stands still", every=0.2)
        return last[0]

    def keep(self, moment):
        path = self.folder / f"{self.name}-{moment}.png"
        raw = path.with_suffix(".raw.png")
        self.still().save(raw)
        subprocess.run(["convert", raw, "+dither", "-colors", str(COLOURS), "-strip",
                        "-define", "png:compression-level=9", f"png8:{path}"], check=True)
        raw.unlink()
        print(path.name, flush=True)

    def title(self):
        box = self.table.box()
        return box[0] if box else None

    def close_boxes(self):
        """Every box that stands open is taken as it is offered."""
        while self.title():
            before = self.title()
            self.key("Return")
            wait_for(lambda: self.title() != before, 10, f"«{before}» to close")

    def begin(self):
        self.table.start()
        self.table.wait_for_window(20)
        wait_for(self.title, 20, "the first box")
        self.key("Tab")  # past its first button, which opens the help
        self.key("Return")
        wait_for(lambda: not self.title(), 10, "the first box to close")
        self.still()

    def deal(self):
        """Up to the first thing that the player is asked; the draw for the first seat pauses on its way."""
        self.key(PRESS)
        self.still(120, quiet=2.5)
        self.close_boxes()
        self.still(quiet=1.5)

    def play_on(self, presses):
        for _ in range(presses):
            if self.title():
                return
            self.key(PRESS)
            self.still()

    def finish_hand(self):
        wait_for(lambda: self.title() or self.play_on(1), 180, "the end of the hand", every=0)

    def next_hand(self):
        """The finished one enters the score with it."""
        self.close_boxes()
        self.still()
        self.key(PRESS)
        self.still(quiet=1.5)

    def form(self, name):
        if self.title():
            self.close_boxes()
            self.still()
        self.key(FORMS[name])
        wait_for(self.title, 20, f"the form {name}")
        self.keep(name)
        if name == "marcador":
            self.history()
        self.leave()
        wait_for(lambda: not self.title(), 10, f"«{name}» to close")
        self.still()

    def leave(self):
        xdotool("key", "alt+F4")

    def history(self):
        """Its button is the first of the score that opens anything."""
        score = self.title()
        for _ in range(10):
            self.key("Tab")
            self.key("space")
            self.still()
            if self.title() != score:
                break
        expect(self.title() != score, "the history opens")
        self.keep("historico")
        self.leave()
        wait_for(lambda: self.title() == score, 10, "the history to close")


def settings(table, game):
    """A match against three seats of the program that waits for nobody but the player."""
    orders = [f"juego {int(game)}", "pon PausaEntreJugadas = false", "pon VelocidadJuego = 94",
              'pon NombreJugador(2) = "Banca"' if game == "31" else "",
              "llama GrabarIniGeneral", "llama GrabarIniJuego"]
    subprocess.run([table.console, "--carpeta", table.folder], input="\n".join(orders), text=True, check=True,
                   capture_output=True)
    for history in (ROOT / "tests" / "golden" / "history").glob("*.HIS"):
        shutil.copy(history, table.folder)


def forms_of(name, place):
    if place in LARGE_SCREENS:
        return ("personal",) if name == "tute" else ()
    return FORMS_OF.get(name, ()) if place == WHOLE_SCREEN or name == "tute" else ()


def pictures_of(table, folder, name):
    game, presses = GAMES[name]
    whole = folder.name == WHOLE_SCREEN
    settings(table, game)
    look = Look(table, folder, name)
    look.begin()
    if whole:
        look.keep("vacia")
    look.deal()
    if whole:
        look.keep("reparto")
    look.play_on(presses)
    look.keep("mano")
    for form in forms_of(name, folder.name):
        look.form(form)
    if whole or "ayuda" in forms_of(name, folder.name):
        look.finish_hand()
        look.keep("final")
    if "ayuda" in forms_of(name, folder.name):
        look.next_hand()
        look.form("marcador")


def main():
    folder = pathlib.Path(os.environ["ZOVIN_PICTURES"])
    wanted = os.environ.get("ZOVIN_GAMES", "").split() or list(GAMES)
    folder.mkdir(parents=True, exist_ok=True)
    for name in wanted:
        table = Table("pictures", prepared=True)
        try:
            pictures_of(table, folder, name)
        except Failure as failure:
            screen.take().save(folder / f"{name}-failure.png")
            expect(False, f"{name}: {failure}")
        finally:
            table.stop()
            for made in table.folder.iterdir():
                made.unlink()


main()
