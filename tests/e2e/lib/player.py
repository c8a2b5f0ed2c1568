"""A player at the table of a game of cards: sees whose turn it is and the own cards."""

from .table import Deck, hand_at_the_bottom, wait_for


class Player:
    def __init__(self, table, deck="Baraja02.bmp"):
        self.table = table
        self.deck = Deck(table.folder / deck)

    def hand(self, picture):
        return hand_at_the_bottom(self.table, self.deck, picture)

    def is_mine(self, picture):
        """The tutor is there for the player's own turn only."""
        return self.table.main_button_lit("tutor", picture)

    def my_turn(self):
        """A picture of the table in which the game waits for the player, or the title of a box."""
        def seen():
            box = self.table.box()
            if box:
                return box[0]
            picture = self.table.shot()
            return picture if self.is_mine(picture) else None
        return wait_for(seen, 60, "the player's turn", every=0.25)
