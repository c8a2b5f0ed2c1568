"""A player of Póker against one opponent, who sits at the top: deals by hand, clicks chips, the bet board, cards
and the two buttons of the discards."""

from .dealer import Dealer
from .table import expect, is_felt, wait_for

DIAMONDS, HEARTS, SPADES, CLUBS = 1, 2, 3, 4
PASS, MEET, FINISH, UNDO = 1, 2, 3, 4  # buttons of the bet board, from the top
CHOSEN, SERVED = 1, 2  # buttons of the discards
CHIPS = {1: 1, 2: 2, 5: 3, 10: 4, 20: 5, 50: 6}  # points: place in the stack
CHIP, CHIP_STEP = 33, 38
BOARD_WIDTH, BOARD_HEIGHT, BOARD_EDGE = 146, 172, 2


class PokerPlayer(Dealer):
    DECK, MINI_COLUMNS, MINI_ROW, RANKS = "Baraja01.bmp", 13, 40, range(1, 14)

    # Places, on a table of any size.

    def chips_box(self):
        x, y, width, height = self.felt()
        return x + width // 2 + 133, y + height - 113 - 30, CHIP_STEP + CHIP, 2 * CHIP_STEP + CHIP + 30

    def pot_box(self):
        x, y, width, height = self.felt()
        return x + width // 2 - 60, y + height // 2 - 80, 190, 150

    def board_box(self):
        x, y, width, height = self.felt()
        return (x + width - BOARD_WIDTH - BOARD_EDGE, y + height - BOARD_HEIGHT - BOARD_EDGE,
                BOARD_WIDTH, BOARD_HEIGHT)

    def caption_box(self):
        x, y, width, height = self.felt()
        return x + width // 2 - 125, y + height - 178, 250, 18

    def chip(self, points):
        x, y, _, _ = self.chips_box()
        place = CHIPS[points] - 1
        return (x + CHIP_STEP * (place // 3) + CHIP // 2,
                y + 30 + CHIP_STEP * (place % 3) + CHIP // 2)

    def board_button(self, button):
        x, y, width, _ = self.board_box()
        return x + width // 2, y + 50 + 30 * (button - 1) + 13

    def discard_button(self, button):
        x, y, width, height = self.felt()
        return x + width // 2 + (-48 if button == CHOSEN else 48), y + height - 189

    # What is seen.

    def board_shows(self, picture):
        x, y, _, _ = self.board_box()
        return not is_felt(picture.pixel(x + 20, y + 60))

    def offers(self, button, picture):
        """Whether a button of the board shows: it has white letters, the bare board has none."""
        x, y = self.board_button(button)
        seen = picture.crop(x - 55, y - 8, 110, 16).data
        white = sum(min(seen[i:i + 3]) > 200 for i in range(0, len(seen), 3))
        return white > 30

    def discards_show(self, picture):
        x, y = self.discard_button(SERVED)
        return not is_felt(picture.pixel(x - 40, y))

    def captioned(self, picture):
        """Whether the player's seat says something."""
        x, y, width, height = self.caption_box()
        return not is_felt(picture.pixel(x + 4, y + height // 2))

    def my_turn(self):
        """A picture in which the game waits for the player, or the title of a box."""
        def seen():
            box = self.table.box()
            if box:
                return box[0]
            picture = self.table.shot()
            still = self.is_mine(picture) and self.table.shot().data == picture.data
            return picture if still else None
        return wait_for(seen, 60, "the player's turn", every=0.05)

    def my_bet(self):
        picture = self.my_turn()
        expect(not isinstance(picture, str), f"a box «{picture}» instead of the player's bet")
        expect(self.board_shows(picture), "the bet board is open")
        return picture

    def my_discard(self):
        picture = self.my_turn()
        expect(not isinstance(picture, str), f"a box «{picture}» instead of the discards")
        expect(self.discards_show(picture), "the buttons of the discards are there")
        expect(not self.board_shows(picture), "the bet board is gone")
        return picture

    # What is done.

    def press_board(self, button):
        expect(self.offers(button, self.my_turn()), f"button {button} of the board is offered")
        self.table.click(*self.board_button(button))

    def place_chip(self, points):
        """Clicks a chip of the stack and waits until it lies in the pot."""
        before = self.my_turn().crop(*self.pot_box()).data
        self.table.click(*self.chip(points))
        wait_for(lambda: self.table.shot().crop(*self.pot_box()).data != before, 10,
                 f"the chip of {points} in the pot")
        return self.my_bet()

    def bet(self, *chips):
        for points in chips:
            self.place_chip(points)
        self.press_board(FINISH)

    def discard(self, cards):
        """Raises the cards and throws them away; none: served."""
        hand = dict(self.hand(self.my_discard()))
        for card in cards:
            expect(card in hand, f"{card} is not in the hand {list(hand)}")
            x, y = hand[card]
            self.table.click(x + 6, y + 90)
            wait_for(lambda: not is_felt(self.table.shot().pixel(x + 6, y - 10)), 10,
                     f"{card} raised")
        self.table.shot("to-discard")
        self.table.click(*self.discard_button(CHOSEN if cards else SERVED))
