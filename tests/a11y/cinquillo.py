"""A match of Cinquillo by ear and by the keys of the accessibility bus alone: what nobody has laid at the end is what
counts against its holders."""

from lib.cards import IN_ORDER, deck
from lib.match import Match, NAMES, expect, run


def against(card):
    """The Cinco six, one less with each step away from it."""
    return 6 - abs(IN_ORDER.index(card.split(" ")[0]) - IN_ORDER.index("Cinco"))


def play():
    match = Match("70", (1, 2, 3, 4), ["LimitePartida = 1"], Match.play_a_card)
    match.play()
    laid = [words.split(" juega ") for words in match.said(" juega ")]
    cards = [words.split(" ", 1)[1] for _, words in laid]
    expect(len(set(cards)) == len(cards) and set(cards) <= set(deck()), "every card falls once")
    counts = {name: sum(who == name for who, _ in laid) for name in NAMES.values()}
    winner = laid[-1][0]
    expect(counts[winner] == 10, f"{winner} has laid ten cards: {counts}")
    left = sum(against(card) for card in deck() if card not in cards)
    record = match.folder.records()[-1]
    expect(record.first[winner] == str(left), f"{left} points heard, {record.first[winner]} written")
    for name in counts.keys() - {winner}:
        expect(len(record.second[name].split()) == 10 - counts[name], f"{name}: {counts[name]} cards heard")
    expect(winner in match.last_box("Final de Partida"), "the box tells the same winner")
    expect(match.folder.winner() == winner, f"{winner} heard, {match.folder.winner()} in the history")
    expect(match.said(" pasa"), "it is told who passes")


run(play)
