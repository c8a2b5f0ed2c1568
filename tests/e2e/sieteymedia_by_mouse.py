"""Two hands of Siete y media by mouse, from decks that are known: a Four is changed, two medias are opened, the covered
card is turned and so seven and a half sung, a serie goes over; the bank that passes is played, too."""

from lib.bank_player import ASK, STAND, BankPlayer
from lib.prepared import ME, OPPONENT, SavedMatch, draw, prepare, shuffle
from lib.table import expect, run, wait_for

GAME = "65"
OROS, COPAS, ESPADAS, BASTOS = 1, 2, 3, 4
SOTA, CABALLO, REY = 10, 11, 12
FOUR = (OROS, 4)
MIDDLE = 0.5
# The player and the bank; then what each draws. The Four goes for the card at the eighteenth place of those to come.
CHANGED = (COPAS, SOTA)
SUNG = [FOUR, (OROS, REY), (COPAS, CABALLO), (OROS, 7), (OROS, 3), (COPAS, 7), (OROS, 6), (OROS, 5)]
TO_THE_EIGHTEENTH = 15 / 34
# The other seat stands on six; the player, now the bank, changes a Four for a Siete.
AS_BANK = [(OROS, 6), FOUR]
TURNS_OF_SUNG = 9  # the seat bets twice and plays five steps, the bank two


def with_card_at(cards, place, card):
    """The cards on top, others below them, and the card at that place."""
    others = [(BASTOS, value) for value in (1, 2, 3, 5, 6, 7, 10, 11, 12)]
    others += [(ESPADAS, value) for value in (1, 2, 3, 5, 6, 7, 10, 11, 12)]
    return cards + others[:place - 1 - len(cards)] + [card]


def chance():
    """The numbers as they are drawn: the first bank, the cards, the bet, the change; then each turn."""
    first = with_card_at(SUNG, 20, CHANGED)
    second = with_card_at(AS_BANK, 20, (COPAS, 7))
    return [*draw(OPPONENT), *shuffle(first), MIDDLE, TO_THE_EIGHTEENTH, *[MIDDLE] * (TURNS_OF_SUNG - 1),
            *shuffle(second), MIDDLE, MIDDLE, MIDDLE, TO_THE_EIGHTEENTH]


def box(table, title, shot):
    table.wait_for_box(title, 60)
    table.shot(shot)
    table.answer(title, 0, count=1)


def hand_is_over(table, player):
    wait_for(lambda: not player.is_mine(table.shot()) and table.green_button(table.shot()), 60,
             "the end of the hand")
    return SavedMatch(table, GAME)


def change_the_four(table, player):
    player.settled(lambda picture: player.is_covered(picture, 1, 1), "the covered Four")
    table.shot("a-four")
    player.click(player.card(1, 1))
    player.wait_for_cards([CHANGED], "the-four-changed")


def open_the_medias(table, player):
    player.bet(10)
    player.wait_for_cards([CHANGED])
    player.click(player.button(ASK))
    player.settled(lambda picture: player.is_covered(picture, 2, 2), "a covered media")
    table.shot("two-medias")
    player.click(player.card(1, 2))
    player.wait_for_cards([CHANGED], "medias-opened")


def sing(table, player):
    """Asks in the first serie and turns what has come covered: seven and a half."""
    player.click(player.button(ASK))
    picture = player.settled(lambda picture: player.is_covered(picture, 2, 2), "a covered Siete")
    table.shot("seven-and-a-half-covered")
    expect(not player.offers(player.button(ASK), picture), "there is no card to ask for")
    player.click(player.card(2, 2))


def go_over(player):
    """The second serie has a bet of its own."""
    player.bet(5)
    player.settled(lambda picture: player.offers(player.button(ASK), picture), "the second serie")
    player.click(player.button(ASK))
    player.settled(lambda picture: player.is_covered(picture, 2, 2), "a covered Tres")
    player.click(player.button(ASK))


def take_the_bank(table, player):
    box(table, "Final de la mano", "sung")
    box(table, "Final de la mano", "the-bank-passes")
    saved = hand_is_over(table, player)
    record = saved.records[0]
    expect(record.words == {ME: ["7 y 1/2", "Se pasó"], OPPONENT: ["Se pasó"]},
           f"the hand: {record.words}")
    expect(saved.funds == {ME: 215, OPPONENT: 185}, f"20 won, 5 lost: {saved.funds}")
    expect(saved.bank == ME, "the next bank is the one that has sung")


def play_the_bank(table, player):
    player.is_bank = True
    player.wait_for_cards([FOUR], "as-bank")
    player.click(player.card(1, 1))
    picture = player.wait_for_cards([(COPAS, 7)], "the-bank-changed-its-four")
    expect(player.offers(player.button(STAND), picture), "the bank may stand")
    player.click(player.button(STAND))
    box(table, "Final de la mano", "the-bank-wins")
    saved = hand_is_over(table, player)
    table.shot("end")
    expect(saved.records[1].words == {ME: ["7"], OPPONENT: ["6"]},
           f"the hand: {saved.records[1].words}")
    # A Seis is bet on with half of 25, and chance 0.5 adds 1.25 for each step of character, an Agresivo's three.
    expect(saved.funds == {ME: 231, OPPONENT: 169}, f"the bank wins 16: {saved.funds}")


def play(table):
    player = BankPlayer(table, "Baraja02.bmp")
    prepare(table, GAME, chance())
    table.begin_empty()
    table.press_main("nueva")
    box(table, "Comienza la Partida", "the-first-bank")
    change_the_four(table, player)
    open_the_medias(table, player)
    sing(table, player)
    go_over(player)
    take_the_bank(table, player)
    table.press_green()
    play_the_bank(table, player)


run(play, prepared=True)
