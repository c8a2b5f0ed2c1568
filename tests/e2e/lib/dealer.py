"""A player who deals by hand: takes the cards of the spread to the seats."""

from .player import Player
from .table import COLUMN, is_felt, wait_for, xdotool

MINI_STEP = 29
ME, OPPONENT = 4, 2


class Dealer(Player):
    DECK, MINI_COLUMNS, MINI_ROW, RANKS = "Baraja02.bmp", 12, 48, ()

    def __init__(self, table):
        super().__init__(table, self.DECK)
        self.cards = 0  # in a full hand

    def felt(self):
        """Corner and size of the felt."""
        x, y, width, height = self.table.place()
        return x, y, width - COLUMN, height

    def mini_corner(self, card):
        """The corner of a card's place in the spread."""
        x, y, width, height = self.felt()
        left = x + (width - self.MINI_COLUMNS * MINI_STEP) // 2
        top = y + (height - 4 * self.MINI_ROW) // 2
        return left + MINI_STEP * (card[1] - 1), top + self.MINI_ROW * (card[0] - 1)

    def mini(self, card):
        """A point of that place."""
        x, y = self.mini_corner(card)
        return x + 8, y + self.MINI_ROW - 8

    def in_spread(self, card, picture):
        return not is_felt(picture.pixel(*self.mini(card)))

    def seat_place(self, seat):
        """A point inside the seat's zone."""
        x, y, width, height = self.felt()
        return x + width // 2, y + (height - 90 if seat == ME else 90)

    def is_spread(self, picture):
        """Whether the whole deck lies there."""
        return all(self.in_spread((suit, rank), picture)
                   for suit in range(1, 5) for rank in self.RANKS)

    def wait_for_spread(self):
        wait_for(lambda: self.is_spread(self.table.shot()), 60, "the spread of a deal by hand")

    def drag(self, card, seat):
        """Takes a card of the spread to a seat and lets go."""
        (x, y), (end_x, end_y) = self.mini(card), self.seat_place(seat)
        xdotool("mousemove", x, y, "mousedown", 1, "mousemove", (x + end_x) // 2,
                (y + end_y) // 2, "mousemove", end_x, end_y, "mouseup", 1)
        self.table.look_away()

    def give(self, card, seat):
        self.drag(card, seat)
        wait_for(lambda: not self.in_spread(card, self.table.shot()), 20,
                 f"card {card} to leave the spread")

    def deal(self, mine, theirs):
        """Gives the cards out; with the last one the deal is over."""
        self.wait_for_spread()
        self.cards = len(mine)
        for card in theirs:
            self.give(card, OPPONENT)
        for card in mine[:-1]:
            self.give(card, ME)
        self.drag(mine[-1], ME)
