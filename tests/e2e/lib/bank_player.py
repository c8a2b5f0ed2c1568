"""A player of the games with a bank, at the bottom: bets chips, asks for cards and stands, clicks the own cards."""

import time

from .player import Player
from .table import CARD_HEIGHT, CARD_WIDTH, COLUMN, Deck, expect, is_felt, wait_for

ZONE, DEEP, BAND = 250, 160, 18  # of a seat's zone: along the edge, into the table, and the band of its name
CHIP, CHIP_STEP = 33, 38
DENOMINATIONS = (1, 2, 5, 10, 20, 50)
STRIP = 22  # between the zone and the buttons
WIDE, HIGH = 90, 24  # of the buttons to ask and to stand
DOUBLE_WIDE = 76
BOARD = (146, 172)
END_BET = 3  # button of the bet board
ASK, STAND = 1, 2


class BankPlayer(Player):
    def __init__(self, table, deck):
        super().__init__(table)
        self.deck = Deck(table.folder / deck)
        self.is_bank = False

    def zone(self):
        """The corner of the own zone."""
        x, y, width, height = self.table.place()
        return x + (width - COLUMN - ZONE) // 2, y + height - DEEP - 2

    # Places to click.

    def chip(self, value):
        left, _ = self.zone()
        _, y, _, height = self.table.place()
        column, row = divmod(DENOMINATIONS.index(value), 3)
        top = y + height - 4 - 2 * CHIP_STEP - CHIP
        return left + ZONE + 8 + column * CHIP_STEP + CHIP // 2, top + row * CHIP_STEP + CHIP // 2

    def board(self, button):
        x, y, width, height = self.table.place()
        left, top = x + width - COLUMN - 2 - BOARD[0], y + height - 2 - BOARD[1]
        return left + BOARD[0] // 2, top + 50 + 30 * (button - 1) + 12

    def button(self, which):
        """The button to ask or to stand."""
        left, top = self.zone()
        apart = 60 if self.is_bank else 2  # the pile lies between them
        along = -apart - WIDE // 2 if which == ASK else apart + WIDE // 2
        return left + ZONE // 2 + along, top - STRIP - HIGH // 2

    def extra_button(self):
        """The button to double or to insure."""
        left, top = self.zone()
        return left + ZONE // 2 - 53 - DOUBLE_WIDE // 2, top - STRIP - HIGH - 4 - HIGH // 2

    def card(self, place, cards):
        """A point of a card that no other covers."""
        left, top = self.zone()
        step = CARD_WIDTH if cards == 1 else min((ZONE - CARD_WIDTH) // (cards - 1), CARD_WIDTH)
        strip = step * (cards - 1) + CARD_WIDTH
        return left + (ZONE - strip) // 2 + step * (place - 1) + 8, top + DEEP - BAND - 40

    # What shows.

    def offers(self, point, picture):
        """Whether something stands there: it is no felt."""
        x, y = point
        return not all(is_felt(picture.pixel(x + across, y + 8)) for across in (-30, -10, 10, 30))

    def cards(self, picture):
        return [card for card, _ in self.hand(picture)]

    def settled(self, ready, what):
        """A picture in which the player is waited for, the table stands still and ready says yes."""
        def seen():
            box = self.table.box()
            expect(not box, f"{what}: an unexpected box {box}")
            picture = self.table.shot()
            good = self.is_mine(picture) and ready(picture)
            return picture if good and self.table.shot().data == picture.data else None
        return wait_for(seen, 60, what, every=0.1)

    # What the player does.

    def click(self, point):
        self.table.click(*point)

    def bet(self, *values):
        """Chip by chip, and the end of the bet."""
        self.settled(lambda picture: self.offers(self.board(END_BET), picture), "the bet board")
        for value in values:
            before = self.table.shot().crop(*self._display()).data
            self.click(self.chip(value))
            wait_for(lambda: self.table.shot().crop(*self._display()).data != before, 10,
                     f"the chip of {value} on the board")
        time.sleep(0.2)
        self.click(self.board(END_BET))

    def _display(self):
        """Where the board says what is bet."""
        x, y = self.board(1)
        return x - 20, y - 32, 40, 17

    def wait_for_cards(self, cards, shot=None):
        picture = self.settled(lambda picture: self.cards(picture) == cards, f"the cards {cards}")
        if shot:
            self.table.shot(shot)
        return picture

    def is_covered(self, picture, place, cards):
        """Whether a card lies there of which a part shows its back."""
        x, y = self.card(place, cards)
        column = [picture.pixel(x + 20, y - down) for down in range(0, CARD_HEIGHT - 50)]
        back = sum(red > 100 and green < 60 and blue < 60 for red, green, blue in column)
        return back > 20
