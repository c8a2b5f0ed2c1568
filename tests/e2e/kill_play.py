"""The power goes, at any moment of fast play: each start goes on from the last finished hand, with every file
whole, and a match that was given up never comes back. ZOVIN_LARGO=1 does it thirty times.

The seed is printed; ZOVIN_SEMILLA=<number> chooses the same moments again."""

import os
import random
import signal
import subprocess
import time

from lib.table import expect, run, wait_for, xdotool

LONG = "ZOVIN_LARGO" in os.environ
GAMES = ("70", "51", "58")
KILLS = 10 if LONG else 5  # for each game that is played
SEATS = 4
LINE, MONEY, SCORE, RECORD = 125, 60, 28, 170


class Saved:
    """What a game's file keeps of the match."""

    def __init__(self, text):
        lines = text.split("\r\n")
        expect(lines.pop() == "", "the file ends with a line's end")
        expect([len(line) for line in lines[:3]] == [LINE, MONEY, SCORE], "three lines, all whole")
        self.on = lines[0][89:91] == "-1"
        self.games = int(lines[0][96:99])
        self.limit = int(lines[0][118:121])
        self.won = [int(lines[2][7 * seat + 4:7 * seat + 7]) for seat in range(SEATS)]
        self.records = lines[3:]
        expect(all(len(line) == RECORD for line in self.records), "every record is whole")
        if not self.on:
            return
        expect(self.games == len(self.records),
               f"{self.games} games are counted and {len(self.records)} recorded")
        expect(sum(self.won) == self.games, f"{self.games} games, won {self.won}")
        expect(all(record[:9].strip() for record in self.records), "each record says who led")

    def goes_on_from(self, older):
        return self.on and self.records[:len(older.records)] == older.records


class FastTable:
    """A table whose automatic seats play as fast as the machine can, for a match without an end."""

    def __init__(self, table, game):
        self.table, self.name = table, f"ZOV{game}31.INI"
        self.path = table.folder / self.name
        (table.folder / "ZOV31.INI").write_bytes(f"{game}0 100".ljust(LINE).encode() + b"\r\n")
        table.start()
        table.answer("Descripción general", 1)
        self.end_well()
        self.path.write_bytes(fast(self.path.read_bytes()))

    def read(self):
        return Saved(self.path.read_bytes().decode("cp1252"))

    def begin(self, match_on):
        self.table.start()
        self.table.wait_for_window()
        if match_on:
            self.table.answer("Continuar la partida anterior", 0)
        self.table.answer("Descripción general", 1)

    def end_well(self):
        self.table.process.send_signal(signal.SIGTERM)
        expect(self.table.wait_for_end(8) == 0, "a signal saves and leaves")

    def play(self, seconds):
        """Answers every box and every wait by a key; each state of the file follows from the one before."""
        keys = subprocess.Popen(["xdotool", "key", "--delay", "25", "--repeat", "2000",
                                 "--repeat-delay", "25", "x"])
        last = self.read()
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            now = self.read()
            expect(not last.on or now.goes_on_from(last), "the match goes on hand by hand")
            last = now
            time.sleep(0.004)
        keys.kill()
        keys.wait()
        xdotool("keyup", "x")  # it may have been caught with the key down
        return last

    def kill(self):
        self.table.process.kill()
        self.table.process.wait()

    def give_up(self):
        """A new match instead of the one under way."""
        title = "Abandonar la partida en curso"

        def asked():
            open_box = (self.table.box() or ("",))[0]
            if open_box and open_box != title:
                xdotool("key", "Return")
            elif not open_box:
                self.table.press_main("nueva")
            return open_box == title
        wait_for(asked, 20, "the question", every=0.2)
        xdotool("key", "Return")


def fast(settings):
    """All seats automatic, no wait between plays, a match of 999 games."""
    text = bytearray(settings)
    for seat in range(SEATS):
        text[16 * seat + 14:16 * seat + 15] = b"1"
    text[64:66] = b"0 "
    text[118:121] = b"999"
    return bytes(text)


def no_litter(folder):
    known = {"zovin", "ayuda", "ZOV31.INI", "PkFDes.ZOV"}
    litter = [path.name for path in folder.iterdir()
              if path.name not in known and not path.name.endswith((".bmp", "31.INI", ".HIS"))]
    expect(len(litter) <= 2, f"what was half written piles up: {litter}")


def kill_often(table, game):
    fast_table = FastTable(table, game)
    before = fast_table.read()
    for kill in range(1, KILLS + 1):
        fast_table.begin(before.on)
        expect(fast_table.read().records == before.records, "a start changes nothing of the match")
        seen = fast_table.play(random.uniform(0.2, 2.5))
        if kill % 3 == 0 and seen.on:
            fast_table.give_up()
            given_up = seen
            time.sleep(random.uniform(0.3, 1.0))
            fast_table.kill()
            seen = fast_table.read()
            expect(seen.on and not (given_up.records and seen.goes_on_from(given_up)),
                   "the match that was given up is gone")
        else:
            fast_table.kill()
        after = fast_table.read()
        expect(not seen.on or after.goes_on_from(seen), "no finished hand is lost")
        no_litter(table.folder)
        print(f"game {game}, kill {kill}: {len(after.records)} hands kept", flush=True)
        before = after
    fast_table.begin(before.on)
    seen = fast_table.play(1.5)
    for _ in range(15): # a busy machine may not have finished a hand yet
        if not seen.records:
            seen = fast_table.play(3)
    fast_table.end_well()
    expect(fast_table.read().goes_on_from(seen) or not seen.on, "a signal loses no finished hand")
    expect(len(fast_table.read().records) > 0, "hands were played")


def play(table):
    seed = int(os.environ.get("ZOVIN_SEMILLA", random.randrange(10**9)))
    print(f"ZOVIN_SEMILLA={seed}", flush=True)
    random.seed(seed)
    for game in GAMES if LONG else [random.choice(GAMES)]:
        kill_often(table, game)


run(play)
