"""A match of Cinquillo by ear and by the keys of the accessibility bus alone: what nobody has laid at the end of a hand
is what counts against its holders."""

from lib.cards import IN_ORDER, deck
from lib.match import Match, NAMES, expect, run

HANDS = 2  # win the match


def against(card):
    """The Cinco six, one less with each step away from it."""
    return 6 - abs(IN_ORDER.index(card.split(" ")[0]) - IN_ORDER.index("Cinco"))


def winner_by_ear(said, record):
    """Who laid the last of ten cards, once the record has been held to what was told of the hand."""
    laid = [words.split(" juega ") for words in said if " juega " in words]
    cards = [words.split(" ", 1)[1] for _, words in laid]
    expect(len(set(cards)) == len(cards) and set(cards) <= set(deck()), "every card falls once")
    counts = {name: sum(who == name for who, _ in laid) for name in NAMES.values()}
    winner = laid[-1][0]
    expect(counts[winner] == 10, f"{winner} has laid ten cards: {counts}")
    left = sum(against(card) for card in deck() if card not in cards)
    expect(record.first[winner] == str(left), f"{left} points heard, {record.first[winner]} written")
    for name in counts.keys() - {winner}:
        expect(len(record.second[name].split()) == 10 - counts[name], f"{name}: {counts[name]} cards heard")
    return winner


def play():
    match = Match("70", tuple(NAMES), [f"LimitePartida = {HANDS}"], Match.play_a_card)
    match.play()
    winners = [winner_by_ear(said, record) for said, record in zip(match.hands(), match.folder.records())]
    match.expect_winners(winners, HANDS)
    expect(match.said(" pasa"), "it is told who passes")


run(play)
