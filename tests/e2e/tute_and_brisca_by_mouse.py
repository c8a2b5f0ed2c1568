"""Matches of Tute and Brisca by mouse and picture: cards dealt by hand, the turned card exchanged, a cante;
from one game to the other and back in the middle of their matches."""

from lib.dealer import ME, OPPONENT
from lib.forms import Normas, Personal, sit_two
from lib.table import expect, run, wait_for
from lib.trick_player import (AS, BASTOS, CABALLO, COPAS, ESPADAS, OROS, POINTS, REY, TrickPlayer)

ANOTHER_MATCH = "Abandonar la partida en curso"
SLOW = 60  # slow enough for cards that stand out of the hand for a moment to be seen
SEVENS = [(suit, 7) for suit in (OROS, COPAS, ESPADAS, BASTOS)]
PAIR = [(OROS, REY), (OROS, CABALLO)]
LOW = [(OROS, 4), (OROS, 5), (OROS, 6), (COPAS, 4), (COPAS, 5), (COPAS, 6)]
REYES = [(suit, REY) for suit in (OROS, COPAS, ESPADAS, BASTOS)]


class Match:
    """A match of one of the two games against the seat at the top."""

    def __init__(self, table, player, game, file):
        self.table, self.player, self.game, self.file = table, player, game, file
        self.sung = False

    def hands_won(self):
        """What the game's file keeps of the match: the hands that each of the four seats has won."""
        line = self.table.settings(self.file).split("\r\n")[2].ljust(28)
        return [int(line[7 * seat + 4:7 * seat + 7]) for seat in range(4)]

    def cantes(self, hand):
        """The cantes of the player in a finished hand, as the game's file keeps them."""
        record = self.table.settings(self.file).split("\r\n")[2 + hand]
        return int(record[37 * (ME - 1) + 50])

    def begin(self):
        self.table.press_main("nueva")
        seen = wait_for(lambda: self.table.box(), 60, "a box")[0]
        if seen == ANOTHER_MATCH:
            self.table.answer(ANOTHER_MATCH, 0, count=2)
        self.table.answer("Comienza la Partida", 0, seconds=60, count=1)

    def begin_with_a_useful_trump(self, mine, theirs):
        """Deals until the turned card can be exchanged for one of the sevens in the hand."""
        for _ in range(40):
            self.begin()
            self.player.deal(mine, theirs)
            picture = self.my_turn()
            trump = self.player.trump(picture)
            expect(trump, "the turned card is not seen")
            if trump[1] in POINTS and (trump[0], 7) in mine:
                print(self.game, "turned up:", trump, flush=True)
                return trump
        expect(False, "no useful card is turned up in forty deals")

    def my_turn(self, watch=None):
        seen = self.player.my_turn(watch)
        expect(not isinstance(seen, str), f"an unexpected box «{seen}»")
        return seen

    def take_a_trick(self, trump, keep):
        """Plays until the pile may be clicked: the player leads after a trick of the own."""
        keep = [*keep, (trump[0], 7)]
        self.play_a_card(keep)
        for _ in range(13):
            if self.player.led(self.my_turn(self.watch_for_a_cante)) is None:
                return
            self.play_a_card(keep)
        expect(False, "no trick is taken")

    def watch_for_a_cante(self, picture):
        if not self.sung and self.is_sung(picture):
            self.table.shot("cante")
            self.sung = True

    def is_sung(self, picture):
        """The Rey and the Caballo stand out of the hand."""
        tops = {card: y for card, (_, y) in self.player.hand(picture)}
        return all(card in tops and tops[card] < max(tops.values()) - 10 for card in PAIR)

    def play_a_card(self, keep):
        picture = self.my_turn()
        card = self.player.choose(picture, keep)
        print(self.game, "laid", card, "upon", self.player.led(picture), flush=True)
        self.player.lay(card, picture)

    def exchange(self, trump):
        """The seven goes under the pile and the turned card comes to its place in the hand."""
        seven = (trump[0], 7)
        before = [card for card, _ in self.player.hand(self.my_turn())]
        expect(seven in before, "the seven is in the hand")
        self.table.shot(f"before-the-exchange-{self.game}")
        after = [trump if card == seven else card for card in before]
        self.player.click_pile()

        def exchanged():
            picture = self.table.shot()
            return (self.player.trump(picture) == seven
                    and [card for card, _ in self.player.hand(picture)] == after)
        wait_for(exchanged, 30, "the exchange")
        self.table.shot(f"exchanged-{self.game}")
        expect(self.player.is_mine(self.table.shot()), "it is still the player's turn")

    def change_speed(self, old, new):
        form = Personal(self.table)
        form.change_speed(old, new)
        form.leave()

    def change_control(self):
        """From here on the program plays for the player too, or no more."""
        form = Personal(self.table)
        form.change_control(ME)
        form.leave()

    def press_green(self):
        wait_for(lambda: self.table.green_button(self.table.shot()), 20, "the green button")
        self.table.press_green()

    def end_of_hand(self):
        box = "Final de la mano"
        self.table.wait_for_box(box, 120)
        self.table.shot(f"end-of-hand-{self.game}")
        self.table.answer(box, 0, count=1)

    def play_on_by_itself(self):
        """To the end of the hand."""
        self.change_control()
        self.press_green()
        self.end_of_hand()

    def match_is_over(self):
        box = self.table.box()
        return "over" if box and box[0] == "Final de Partida" else None

    def end_of_match(self):
        box = "Final de Partida"
        self.table.wait_for_box(box, 30)
        self.table.shot(f"end-of-match-{self.game}")
        self.table.answer(box, 0, count=1)
        self.table.answer("Histórico de partidas jugadas", 0, count=2)

    def leave_for(self, game):
        Normas(self.table).choose(game)

    def go_on(self):
        box = "Continuar la partida anterior"
        self.table.wait_for_box(box, 20)
        self.table.shot(f"goes-on-{self.game}")
        self.table.answer(box, 0, count=1)


def begin_tute(table, tute):
    """The first hand: a cante and an exchange."""
    table.begin_empty()
    tute.leave_for("Tute")
    tute.change_speed(50, 100)
    sit_two(table, tute.game)
    trump = tute.begin_with_a_useful_trump([*SEVENS, *PAIR], LOW)
    tute.change_speed(100, SLOW)
    tute.take_a_trick(trump, PAIR)
    expect(tute.sung, "the Rey and the Caballo were shown after the trick")
    tute.exchange(trump)
    tute.change_speed(SLOW, 100)
    tute.play_on_by_itself()


def leave_tute_in_a_deal(table, tute):
    """Half of the cards are given out when the game is changed."""
    tute.player.wait_for_spread()
    tute.change_control()
    tute.player.give((OROS, REY), ME)
    tute.player.give((COPAS, AS), OPPONENT)
    table.shot("left-in-a-deal")
    tute.leave_for("Brisca")
    expect(table.match_on("51"), "the match of Tute is kept")
    expect(sum(tute.hands_won()) == 1, f"one hand of Tute is won: {tute.hands_won()}")
    expect(tute.cantes(1) >= 1, "the cante stands in the record of the hand")


def begin_brisca(table, brisca):
    sit_two(table, brisca.game)
    trump = brisca.begin_with_a_useful_trump(SEVENS[:3], [(BASTOS, 2), (BASTOS, 4), (BASTOS, 5)])
    brisca.take_a_trick(trump, [])
    brisca.exchange(trump)
    brisca.play_on_by_itself()


def leave_brisca_in_a_hand(table, brisca, tute):
    brisca.player.wait_for_spread()
    brisca.change_control()
    brisca.player.deal(SEVENS[1:], LOW[:3])
    brisca.play_a_card([])
    brisca.my_turn()
    table.shot("left-in-a-hand")
    brisca.leave_for("Tute")
    tute.go_on()
    expect(table.match_on("58"), "the match of Brisca is kept")
    expect(sum(brisca.hands_won()) == 1, f"one hand of Brisca is won: {brisca.hands_won()}")


def finish_tute(tute):
    """Four Reyes win a hand at once: as many as the player lacks end the match."""
    for _ in range(2 - tute.hands_won()[ME - 1]):
        tute.player.deal([*REYES, *LOW[:2]], SEVENS + LOW[2:4])
        tute.end_of_hand()
        tute.press_green()
    tute.end_of_match()


def finish_brisca(table, brisca):
    """The hand that was on is dealt anew, and all hands count that were won before and after."""
    brisca.leave_for("Brisca")
    brisca.go_on()
    brisca.player.wait_for_spread()
    brisca.change_control()
    hands = 1
    while True:
        brisca.player.deal(SEVENS[1:], LOW[:3])
        brisca.end_of_hand()
        hands += 1
        if wait_for(lambda: brisca.match_is_over() or brisca.player.is_spread(table.shot()), 60,
                    "another deal or the end of the match") == "over":
            break
        expect(hands < 3, "somebody has won two hands")
    brisca.end_of_match()
    wait_for(lambda: not table.box(), 10, "the idle table")
    table.press_main("salir")
    expect(table.wait_for_end(20) == 0, "leaving the idle table is no failure")
    won = brisca.hands_won()
    expect(max(won) == 2 and sum(won) == hands, f"{hands} hands were played, won: {won}")


def play(table):
    player = TrickPlayer(table)
    tute = Match(table, player, "Tute", "ZOV5131.INI")
    brisca = Match(table, player, "Brisca", "ZOV5831.INI")
    begin_tute(table, tute)
    leave_tute_in_a_deal(table, tute)
    begin_brisca(table, brisca)
    leave_brisca_in_a_hand(table, brisca, tute)
    finish_tute(tute)
    finish_brisca(table, brisca)


run(play)
