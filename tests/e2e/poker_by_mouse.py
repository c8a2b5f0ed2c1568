"""A match of Póker by mouse and picture, its cards dealt by hand: the law of opening, a void hand, a raise with the
tutor asked and the board's undo used, discards, a fold of each, and all chips on the last hand."""

import time

from lib.dealer import ME, OPPONENT
from lib.poker_player import (CHIPS, CLUBS, DIAMONDS, HEARTS, MEET, PASS, SPADES, UNDO,
                              PokerPlayer)
from lib.table import expect, run, wait_for

FILE = "ZOV0131.INI"
VALUES = (1, 2, 5, 10, 20, 50)
STAKE, ANTE, LIMIT = 40, 5, 40
# Columns of the game's settings, counted from 1. A seat's state, control and character stand 13, 15 and 16 from the
# end of the seat before.
SEAT, STATE, CHARACTER = 16, 13, 16
PAUSE, DEAL, RULES = 65, 72, 109

AS, KING = 1, 13
NOTHING = [(DIAMONDS, 9), (HEARTS, 7), (SPADES, 5), (CLUBS, 3), (DIAMONDS, 2)]
NOTHING_EITHER = [(HEARTS, 10), (DIAMONDS, 8), (CLUBS, 6), (HEARTS, 4), (SPADES, 2)]
ASES = [(DIAMONDS, AS), (HEARTS, AS), (SPADES, 9), (CLUBS, 6), (DIAMONDS, 3)]
LOOSE = [(CLUBS, 8)]
KINGS = [(suit, KING) for suit in (DIAMONDS, HEARTS, SPADES, CLUBS)] + LOOSE
STRAIGHT = [(DIAMONDS, 5), (HEARTS, 6), (SPADES, 7), (DIAMONDS, 8), (CLUBS, 9)]


def settings(table):
    """Two cautious seats, cards dealt by hand, small stakes, quick play: a cautious seat with a strong hand meets any
    bet, with nothing it folds, and never does otherwise."""
    path = table.folder / FILE
    data = bytearray(path.read_bytes())

    def put(column, text):
        data[column - 1:column - 1 + len(text)] = text
    for seat in (1, 3):
        put(SEAT * (seat - 1) + STATE, b"2")
    for seat in (ME, OPPONENT):
        put(SEAT * (seat - 1) + CHARACTER, b"1")
    put(PAUSE, b" 0")
    put(DEAL, b"2")
    put(RULES, b"%04d%03d%03d" % (STAKE, ANTE, LIMIT))
    path.write_bytes(data)
    general = table.folder / "ZOV31.INI"
    general.write_bytes(b"010 080" + general.read_bytes()[7:])


class Match:
    def __init__(self, table, player):
        self.table, self.player = table, player

    def points(self, seat):
        """What the game's file keeps of a seat's chips; 0 is the pot."""
        line = self.table.settings(FILE).split("\r\n")[1]
        row = line[12 * seat:12 * seat + 12]
        return sum(int(row[2 * d:2 * d + 2]) * value for d, value in enumerate(VALUES))

    def expect_points(self, pot, mine, theirs):
        wait_for(lambda: (self.points(0), self.points(ME), self.points(OPPONENT))
                 == (pot, mine, theirs), 10, f"a pot of {pot}, {mine} and {theirs} points")

    def begin(self):
        self.table.press_main("nueva")
        self.table.answer("Comienza la Partida", 0, seconds=60, count=1)

    def answer(self, title, shot):
        self.table.wait_for_box(title, 60)
        self.table.shot(shot)
        self.table.answer(title, 0, count=1)

    def next_hand(self):
        wait_for(lambda: self.table.green_button(self.table.shot()), 20, "the green button")
        self.table.press_green()

    def wait_for_their_bet(self):
        """Passes, if nobody has bet, until the opponent has."""
        if not self.player.offers(MEET, self.player.my_bet()):
            self.player.press_board(PASS)
            expect(self.player.offers(MEET, self.player.my_bet()), "the opponent has bet")

    def void_hand(self):
        """Nobody has anything: the law keeps the first chip out, both pass, and the pot stays."""
        self.player.deal(NOTHING, NOTHING_EITHER)
        self.player.my_bet()
        self.table.shot("first-turn")
        self.table.click(*self.player.chip(5))
        self.answer("Ley de apertura", "law-of-opening")
        self.player.press_board(PASS)
        self.answer("Fin de la mano", "void-hand")
        self.expect_points(2 * ANTE, STAKE - ANTE, STAKE - ANTE)

    def ask_about_the_bet(self):
        before = self.player.my_bet()
        self.table.press_main("tutor")
        wait_for(lambda: self.player.captioned(self.table.shot()), 10, "the tutor's advice",
                 every=0.02)
        self.table.shot("tutor-bet")
        wait_for(lambda: not self.player.captioned(self.table.shot()), 10, "the advice is gone")
        after = self.player.my_bet()
        for box in (self.player.chips_box(), self.player.pot_box(), self.player.board_box()):
            expect(before.crop(*box).data == after.crop(*box).data, "the advice places no chips")

    def change_the_mind(self):
        """Chips placed and taken back leave the table as it was."""
        before = self.player.my_bet()
        self.player.place_chip(5)
        self.player.place_chip(2)
        self.table.shot("seven-placed")
        self.player.press_board(UNDO)
        after = self.player.my_bet()
        self.table.shot("undone")
        for box in (self.player.chips_box(), self.player.pot_box(), self.player.board_box()):
            expect(before.crop(*box).data == after.crop(*box).data, "all chips are back")

    def ask_about_the_discards(self):
        """The tutor raises for a moment the card that should go."""
        def raised():
            picture = self.table.shot()
            tops = dict(self.player.hand(picture))
            return (all(card in tops for card in LOOSE)
                    and {tops[card][1] for card in LOOSE} == {min(y for _, y in tops.values())}
                    and len({y for _, y in tops.values()}) == 2 and picture)
        self.player.my_discard()
        self.table.press_main("tutor")
        wait_for(raised, 10, "the loose card standing out", every=0.02)
        self.table.shot("tutor-discards")

    def long_hand(self):
        """Four Reyes against a straight: a raise, a discard, a bet in the second round, a showdown."""
        self.player.deal(KINGS, STRAIGHT)
        self.wait_for_their_bet()
        self.table.shot("they-have-bet")
        self.ask_about_the_bet()
        self.change_the_mind()
        self.player.bet(10)
        self.ask_about_the_discards()
        self.player.discard(LOOSE)
        picture = self.player.my_bet()
        self.table.shot("second-round")
        if self.player.offers(MEET, picture):
            self.player.press_board(MEET)
        self.player.bet(5)
        self.answer("Final de la mano", "showdown")
        wait_for(lambda: self.points(0) == 0 and self.points(ME) > STAKE, 10, "the pot is mine")
        self.next_hand()

    def they_fold(self):
        mine, theirs = self.points(ME), self.points(OPPONENT)
        self.player.deal(ASES, NOTHING)
        self.player.my_bet()
        self.player.bet(5)
        self.answer("Final de la mano", "they-have-folded")
        self.expect_points(0, mine + ANTE, theirs - ANTE)
        self.next_hand()

    def i_fold(self):
        mine, theirs = self.points(ME), self.points(OPPONENT)
        self.player.deal(NOTHING, STRAIGHT)
        self.wait_for_their_bet()
        self.player.press_board(PASS)
        self.answer("Final de la mano", "i-have-folded")
        self.expect_points(0, mine - ANTE, theirs + ANTE)
        self.next_hand()

    def place_all_that_goes(self):
        """Chips from the largest down, until nothing more can be bet: what the opponent cannot meet is refused."""
        for points in sorted(CHIPS, reverse=True):
            while self.fits(points):
                continue

    def fits(self, points):
        before = self.player.my_bet().crop(*self.player.pot_box()).data
        self.table.click(*self.player.chip(points))
        time.sleep(0.3)
        box = self.table.box()
        if box:
            self.table.shot("refused")
            self.table.answer(box[0], 0, count=1)
            return False
        return self.player.my_bet().crop(*self.player.pot_box()).data != before

    def everything(self):
        """All that the opponent can meet, who has less; a chip more is refused."""
        self.player.deal(KINGS, STRAIGHT)
        self.player.my_bet()
        self.place_all_that_goes()
        self.table.shot("everything")
        self.player.press_board(3)
        self.player.discard([])
        self.answer("Final de la mano", "all-in")
        self.next_hand()

    def finish(self):
        """The opponent has nothing left."""
        self.everything()
        self.answer("Final de Partida", "end-of-match")
        self.table.answer("Histórico de partidas jugadas", 1, count=2)
        self.expect_points(0, 2 * STAKE, 0)


def play(table):
    table.begin_with("01")
    settings(table)
    table.begin_empty()
    match = Match(table, PokerPlayer(table))
    match.begin()
    match.void_hand()
    match.long_hand()
    match.they_fold()
    match.i_fold()
    match.finish()
    wait_for(lambda: not table.box(), 5, "the idle table")
    table.shot("idle-table")
    expect(not table.match_on("01"), "no match is on")
    table.close_window()
    expect(table.wait_for_end() == 0, "closing the window ends the program")


run(play)
