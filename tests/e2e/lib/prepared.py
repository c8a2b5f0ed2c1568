"""A match whose cards are known: the numbers of chance that the prepared program draws, and the settings that seat
one player at the bottom against one seat of the program at the top."""

import os
import random

ME, OPPONENT = 4, 2
SPANISH = (*range(1, 8), 10, 11, 12)
FRENCH = tuple(range(1, 14))
SUITS = range(1, 5)


def lay_out(order, top):
    """Numbers by which the cards, put in at random in this order, lie with those of top on top."""
    wanted = {}
    for place, card in enumerate(top):
        wanted.setdefault(card, []).append(place)
    rest = list(range(len(top), len(order)))
    random.Random(1).shuffle(rest)
    places = [wanted[card].pop(0) if wanted.get(card) else rest.pop() for card in order]
    return [(place + 0.5) / len(order) for place in places]


def shuffle(top, values=SPANISH, packs=1):
    """Of a shuffle, which goes by suits."""
    return lay_out([(suit, value) for suit in SUITS for value in values for _ in range(packs)], top)


def draw(seat):
    """Of the draw for the first bank, which goes by values and ends at the first As."""
    low = [(suit, 2) for suit in range(1, seat)]
    return lay_out([(suit, value) for value in SPANISH for suit in SUITS], [*low, (1, 1)])


def prepare(table, game, numbers):
    """The program will draw these numbers; two seats, no information, no pause between the turns."""
    chance = table.folder / "chance.txt"
    chance.write_text("\n".join(f"{number:.6f}" for number in numbers))
    os.environ["ZOVIN_AZAR"] = str(chance)
    table.begin_with(game)
    general = table.folder / "ZOV31.INI"
    general.write_bytes(f"{game}0 100".encode() + general.read_bytes()[7:])
    path = table.folder / f"ZOV{game}31.INI"
    text = bytearray(path.read_bytes())
    for seat in (1, 3):
        text[16 * seat - 4:16 * seat - 3] = b"2"
    text[64:66] = b"0 "
    text[73:76] = b"212"
    path.write_bytes(text)


class Record:
    """A finished hand as the game's file keeps it."""

    def __init__(self, line):
        self.bank = line[:9].strip()
        self.total = int(line[9:14])
        self.won, self.words = {}, {}
        for seat in (ME, OPPONENT):
            at = 37 * (seat - 1) + 14
            texts = line[at + 4:at + 18] + line[at + 21:at + 35]
            series = int(line[at + 36])
            self.won[seat] = [line[at + serie] == "1" for serie in range(series)]
            self.words[seat] = [texts[7 * serie:7 * serie + 7].strip() for serie in range(series)]


class SavedMatch:
    """The match as the game's file keeps it after a hand."""

    CHIPS = (1, 2, 5, 10, 20, 50)

    def __init__(self, table, game):
        lines = table.settings(f"ZOV{game}31.INI").split("\r\n")
        self.bank = int(lines[0][102])
        self.funds = {seat: sum(int(lines[1][12 * seat + 2 * i:12 * seat + 2 * i + 2]) * value
                                for i, value in enumerate(self.CHIPS))
                      for seat in (ME, OPPONENT)}
        self.records = [Record(line) for line in lines[3:] if line]
