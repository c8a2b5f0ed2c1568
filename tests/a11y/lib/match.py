"""A match of one game, played by ear to its end, and what was learnt on the way."""

import os
import pathlib
import shutil
import subprocess
import sys
import time

from .reader import Failure, Reader, expect

NAMES = {1: "Luis", 2: "Ana", 3: "Pepa", 4: "Eva"}
ME = NAMES[4]
HISTORY = "Histórico de partidas jugadas"
SECONDS = 150


class Folder:
    """A game folder of its own: the program with its chance prepared, and settings written by the console."""

    def __init__(self, game, seats, settings):
        programs = pathlib.Path(os.environ["ZOVIN_BIN"])
        self.game = game
        self.path = pathlib.Path.home() / "juego"
        self.path.mkdir()
        (self.path / "zovin").symlink_to(programs.parent / "tests" / "zovin_prepared")
        for piece in ("Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV", "ayuda"):
            (self.path / piece).symlink_to(programs / piece)
        for made in (programs.parent / "ajustes").glob("*.INI"):
            shutil.copy(made, self.path)
        orders = [f"juego {int(game)}", "pon VelocidadJuego = 100", "pon PausaEntreJugadas = false", "pon VentanaInfo = 2",
                  f"pon NumJugadores = {len(seats)}",
                  *(f"pon EstadoJugador({seat}) = {1 if seat in seats else 2}" for seat in NAMES),
                  *(f'pon NombreJugador({seat}) = "{name}"' for seat, name in NAMES.items()),
                  *(f"pon {setting}" for setting in settings), "llama GrabarIniGeneral", "llama GrabarIniJuego"]
        done = subprocess.run([programs / "sonda", "--carpeta", self.path], input="\n".join(orders), text=True,
                              capture_output=True)
        expect(done.returncode == 0, f"the settings: {done.stdout}")

    def bytes(self, kind):
        path = self.path / f"ZOV{self.game}31.{kind}"
        return path.read_bytes().decode("cp1252") if path.exists() else ""

    def records(self):
        """The hands of the match as the game's file keeps them."""
        return [Record(line.ljust(170)) for line in self.bytes("INI").split("\r\n")[3:] if line.strip()]

    def funds(self):
        """The chips of each seat in points, as the file keeps them."""
        line = self.bytes("INI").split("\r\n")[1].ljust(60)
        return {name: sum(int(line[12 * seat + 2 * i:12 * seat + 2 * i + 2] or 0) * value
                          for i, value in enumerate((1, 2, 5, 10, 20, 50)))
                for seat, name in NAMES.items()}

    def winner(self):
        """Of the match that entered the history last."""
        return self.bytes("HIS")[12:21].strip()


class Record:
    """A hand of the match as it stands in the file."""

    def __init__(self, line):
        self.total = int(line[9:14])
        self.winner = None  # the seat whose mark stands alone
        self.first, self.second = {}, {}
        for seat, name in NAMES.items():
            at = 37 * (seat - 1)
            if line[at + 14] == "1":
                self.winner = name
            self.first[name] = line[at + 18:at + 35].strip()
            self.second[name] = line[at + 35:at + 50].strip()


def is_winner(name, of, words):
    return (f"{name}, has ganado {of}." if name == ME else f"Ha ganado {of} {name}") in words


class Match:
    """Plays by the announcements: a turn begins with «Le toca a Eva». move(match) plays one."""

    def __init__(self, game, seats, settings, move):
        self.folder = Folder(game, seats, settings)
        self.reader = Reader()
        self.move = move
        self.boxes = []
        self.taken = 0  # of what was heard

    @property
    def heard(self):
        return self.reader.heard

    def play(self):
        process = subprocess.Popen([self.folder.path / "zovin"])
        try:
            self.reader.attach(process)
            self.reader.wait_for(self.reader.find_table, 20, "the table")
            self._play()
            self.press("Salir")
            expect(process.wait(20) == 0, "a good end")
        finally:
            if process.poll() is None:
                process.kill()
                process.wait()

    def _play(self):
        end = time.monotonic() + SECONDS
        begun = False
        while time.monotonic() < end:
            box = self.reader.box()
            if box:
                if self.answer(*box) == HISTORY:
                    return
            elif not begun:
                self.press("Nueva partida")
                begun = True
            elif not self.follow():
                self.reader.listen(0.05)
        raise Failure("the match comes to its end")

    def answer(self, title, words, buttons):
        if not buttons:
            return title
        self.boxes.append((title, words))
        print(f"[{title}] {words}", flush=True)
        wanted = "Si" if "Si" in buttons else list(buttons)[-1]
        buttons[wanted].press()
        self.reader.wait_for(lambda: (self.reader.box() or ("", ""))[:2] != (title, words), 20, f"«{title}» to close")
        return title

    def follow(self):
        """Does what the last words ask for; False when nothing new was said."""
        self.reader.listen(0.01)
        if self.taken == len(self.heard):
            return False
        for words in self.heard[self.taken:]:
            print(words, flush=True)
        self.taken = len(self.heard)
        last = self.heard[-1]
        if last == "Pulse Continuar":
            self.press("Continuar")
        elif last.startswith(f"Le toca a {ME}"):
            self.move(self)
        return True

    # What a player does.

    def press(self, name):
        def found():
            return next((thing for thing in self.reader.on_the_table() if thing.name == name and thing.can_be_used), None)
        self.reader.wait_for(found, 20, f"«{name}»").press()

    def offered(self, wanted):
        """What can be pressed on the table now."""
        return [thing for thing in self.reader.on_the_table()
                if wanted(thing.name) and thing.role == "push button" and thing.can_be_used]

    def play_a_card(self):
        """The first of the own cards that may be played; before it the exchange that is offered."""
        def choose():
            return self.reader.lying(lambda name: name.endswith(", se puede jugar") or ", se puede cambiar" in name)
        chosen = self.reader.wait_for(choose, 20, "a card that may be played")
        change = next((thing for thing in chosen if ", se puede cambiar" in thing.name), None)
        if change:
            self.do(change, f"{ME} cambia ")
            chosen = self.reader.wait_for(choose, 20, "a card that may be played")
        self.do(chosen[0], f"{ME} juega ")

    def do(self, thing, heard):
        """Presses it and waits until it is told that it was done."""
        before = len(self.said(heard))
        thing.press()
        self.reader.wait_for(lambda: len(self.said(heard)) > before, 20, f"«{heard}»")

    # What is known by ear.

    def said(self, words):
        return [told for told in self.heard if words in told]

    def hands(self):
        """What was said in each hand."""
        hands = []
        for words in self.heard:
            if words.startswith("Mano "):
                hands.append([])
            elif hands:
                hands[-1].append(words)
        return hands

    def boxes_of(self, title):
        return [words for name, words in self.boxes if name == title]

    def last_box(self, title):
        told = self.boxes_of(title)
        expect(told, f"the box «{title}»")
        return told[-1]

    def expect_winners(self, winners, needed):
        """The hands have been won by these, each hand as it was told and written; the last of them has won the match."""
        records, told = self.folder.records(), self.boxes_of("Final de la mano")
        expect(len(winners) == len(told) == len(records),
               f"{len(winners)} hands heard, {len(told)} in boxes, {len(records)} written")
        for winner, words, record in zip(winners, told, records):
            expect(is_winner(winner, "la mano", words), f"{winner} heard, in the box: {words}")
            expect(record.winner == winner, f"{winner} heard, {record.winner} written")
        winner = winners[-1]
        won = {name: winners.count(name) for name in NAMES.values()}
        expect(won.pop(winner) == needed and max(won.values()) < needed, f"{needed} hands win: {winners}")
        expect(is_winner(winner, "la partida", self.last_box("Final de Partida")), "the box tells the same winner")
        expect(self.folder.winner() == winner, f"{winner} heard, {self.folder.winner()} in the history")


def run(test):
    try:
        test()
    except Failure as failure:
        print(f"FAILED: {failure}", file=sys.stderr)
        sys.exit(1)
    print("good")
