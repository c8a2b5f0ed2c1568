"""A match of Tute or Brisca by ear: the points of each seat are reckoned from the cards and tricks that were told, and
from the points who wins."""

from .cards import points
from .match import Match, NAMES, expect

SONGS = {"veinte": 20, "cuarenta": 40}
LAST_TRICK = 10
SEATS = (2, 4)
HANDS = 2  # win the match


class Hand:
    """A hand as it was told."""

    def __init__(self, said, counts_last):
        self.points = {NAMES[seat]: 0 for seat in SEATS}
        self.tricks = []  # who took them
        self.tute = None  # who sang it
        on_the_table = 0
        for words in said:
            if " juega " in words:
                on_the_table += points(words.split(" juega ")[1].split(" ", 1)[1])
            elif words.endswith(" gana la baza"):
                self.tricks.append(words.removesuffix(" gana la baza"))
                if counts_last and len(self.tricks) == 20:
                    on_the_table += LAST_TRICK
                self.points[self.tricks[-1]] += on_the_table
                on_the_table = 0
            elif " canta " in words:
                self._sing(*words.split(" canta "))

    def _sing(self, name, song):
        if song.startswith("Tute"):
            self.tute = name
        else:
            self.points[name] += SONGS[song.split(" ")[0]]

    def winner(self):
        """Who sings Tute; else who has most points, and of two with as many who took the last trick."""
        return self.tute or max(self.points, key=lambda name: (self.points[name], name == self.tricks[-1]))


def play(game, counts_last):
    match = Match(game, SEATS, [f"LimitePartida = {HANDS}"], Match.play_a_card)
    match.play()
    hands = [Hand(said, counts_last) for said in match.hands()]
    for told, written in zip(hands, match.folder.records()):
        if not told.tute:
            for name, heard in told.points.items():
                expect(written.first[name] == str(heard), f"{name}: {heard} heard, {written.first[name]} written")
    expect(len(match.said("Triunfo: ")) == len(hands), "the trump of each hand is told")
    match.expect_winners([hand.winner() for hand in hands], HANDS)
