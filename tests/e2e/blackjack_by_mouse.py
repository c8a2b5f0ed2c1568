"""Three hands of Black Jack by mouse, from a shoe that is known: a natural, an insured hand that goes over, and a pair
that becomes four series, one of them doubled."""

from lib.bank_player import ASK, STAND, BankPlayer
from lib.prepared import FRENCH, ME, OPPONENT, SavedMatch, prepare, shuffle
from lib.table import expect, run, wait_for

GAME = "31"
AS, REINA, REY = 1, 12, 13
# As the cards are dealt: the player, the bank, the player; then what each draws.
NATURAL = [(1, AS), (1, 5), (1, REY), (2, 10), (2, 3)]
INSURED = [(1, 9), (2, AS), (2, 7), (3, 10)]
FOUR_SERIES = [(1, 8), (1, 6), (2, 8), (3, 8), (4, 8), (1, 3), (1, 10), (2, REY), (2, 5), (3, REINA),
               (3, AS), (4, 10), (4, 9)]


def end_of_hand(table, player, shot):
    table.wait_for_box("Final de la mano", 60)
    table.shot(shot)
    table.answer("Final de la mano", 0, count=1)
    wait_for(lambda: not player.is_mine(table.shot()) and table.green_button(table.shot()), 60,
             "the end of the hand")
    table.shot(shot + "-settled")
    return SavedMatch(table, GAME)


def natural(table, player):
    """No choice to make: it is paid one and a half, less the half point."""
    player.bet(10, 5)
    saved = end_of_hand(table, player, "natural")
    record = saved.records[0]
    expect(record.words == {ME: ["Black J"], OPPONENT: ["18"]}, f"the hand: {record.words}")
    expect(saved.funds == {ME: 222, OPPONENT: 178}, f"22 are won: {saved.funds}")


def insured_and_over(table, player):
    player.bet(20)
    picture = player.wait_for_cards([(1, 9), (2, 7)], "insurance-offered")
    expect(player.offers(player.extra_button(), picture), "the insurance is offered")
    player.click(player.extra_button())
    player.settled(lambda picture: not player.offers(player.extra_button(), picture),
                   "the insurance placed, and not offered again")
    table.shot("insured")
    player.click(player.button(ASK))
    saved = end_of_hand(table, player, "over")
    record = saved.records[1]
    expect(record.words == {ME: ["Se pasó"], OPPONENT: ["11"]}, f"the hand: {record.words}")
    expect(saved.funds == {ME: 192, OPPONENT: 208}, f"bet and insurance are lost: {saved.funds}")


def four_series(table, player):
    player.bet(10)
    for series in range(1, 4):
        picture = player.wait_for_cards([(1, 8), (series + 1, 8)], f"a-pair-in-{series}-series")
        expect(player.offers(player.button(STAND), picture), "the pair may be kept")
        player.click(player.card(1, 2))
    picture = player.wait_for_cards([(1, 8), (1, 3)], "doubling-offered")
    expect(player.offers(player.extra_button(), picture), "doubling is offered")
    player.click(player.extra_button())
    player.wait_for_cards([(2, 8), (2, REY)], "second-serie")
    player.click(player.button(STAND))
    player.wait_for_cards([(3, 8), (2, 5)], "third-serie")
    player.click(player.button(ASK))
    player.wait_for_cards([(4, 8), (3, AS)], "fourth-serie")
    player.click(player.button(STAND))
    saved = end_of_hand(table, player, "four-series")
    record = saved.records[2]
    expect(record.words == {ME: ["21", "18", "Se pasó", "19"], OPPONENT: ["Se pasó"]},
           f"the hand: {record.words}")
    expect(record.won[ME] == [True, True, False, True], f"the series: {record.won}")
    expect(saved.funds == {ME: 222, OPPONENT: 178}, f"20, 10 and 10 won, 10 lost: {saved.funds}")


def play(table):
    player = BankPlayer(table, "Baraja01.bmp")
    first_bet = [0.5]  # is made before the cards are shuffled
    prepare(table, GAME, first_bet + shuffle(NATURAL + INSURED + FOUR_SERIES, FRENCH, 6))
    table.begin_empty()
    table.press_main("nueva")
    natural(table, player)
    table.press_green()
    insured_and_over(table, player)
    table.press_green()
    four_series(table, player)


run(play, prepared=True)
