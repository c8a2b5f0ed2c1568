"""A match of Tute or Brisca by ear: the points of each seat are reckoned from the cards and tricks that were told."""

from .cards import points
from .match import Match, NAMES, expect

SONGS = {"veinte": 20, "cuarenta": 40}
LAST_TRICK = 10


def tricks_by_ear(heard, counts_last):
    """For each hand the points of each seat."""
    hands, trick = [], 0
    for words in heard:
        if words.startswith("Mano "):
            hands.append(dict.fromkeys(NAMES.values(), 0))
            trick = tricks = 0
        elif " juega " in words:
            trick += points(words.split(" juega ")[1].split(" ", 1)[1])
        elif words.endswith(" gana la baza"):
            tricks += 1
            trick += LAST_TRICK if counts_last and tricks == 20 else 0
            hands[-1][words.removesuffix(" gana la baza")] += trick
            trick = 0
        elif " canta " in words:
            name, song = words.split(" canta ")
            hands[-1][name] += SONGS.get(song.split(" ")[0], 0)
    return hands


def play(game, counts_last):
    match = Match(game, (2, 4), ["LimitePartida = 1"], Match.play_a_card)
    match.play()
    reckoned = tricks_by_ear(match.heard, counts_last)
    records = match.folder.records()
    expect(len(reckoned) == len(records), f"{len(reckoned)} hands heard, {len(records)} written")
    for told, written in zip(reckoned, records):
        if not any("Tute" in text for text in written.second.values()):
            for name in (NAMES[2], NAMES[4]):
                expect(written.first[name] == str(told[name]), f"{name}: {told[name]} heard, {written.first[name]} written")
    expect(len(match.said("Triunfo: ")) == len(records), "the trump of each hand is told")
    winner = max(reckoned[-1], key=reckoned[-1].get)
    expect(winner in match.last_box("Final de Partida"), "the box tells the same winner")
    expect(match.folder.winner() == winner, f"{winner} heard, {match.folder.winner()} in the history")
    return match
