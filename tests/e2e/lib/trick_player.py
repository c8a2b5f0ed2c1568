"""A player of Tute and Brisca against one opponent, who sits at the top: deals by hand, finds the turned
card and the cards of the trick in the picture, clicks cards and the pile."""

from .dealer import Dealer
from .screen import distance
from .table import CARD_HEIGHT, CARD_WIDTH, expect, wait_for
from . import screen

OROS, COPAS, ESPADAS, BASTOS = 1, 2, 3, 4
AS, SOTA, CABALLO, REY = 1, 10, 11, 12
RANKS = (*range(1, 8), SOTA, CABALLO, REY)
STRENGTH = {AS: 10, 3: 9, REY: 8, CABALLO: 7, SOTA: 6, 7: 5, 6: 4, 5: 3, 4: 2, 2: 1}
POINTS = (AS, 3, REY, CABALLO, SOTA)


def beats(card, other, trump):
    """Whether a card laid behind another one takes the trick."""
    if card[0] == other[0]:
        return STRENGTH[card[1]] > STRENGTH[other[1]]
    return card[0] == trump


class TurnedCards:
    """How the cards look that lie on their right side under the pile: what shows is a strip at their lower
    edge, with the index that stands on its head there."""

    ALONG, DEEP = range(2, 29), range(3, 17)  # the box of the index, from the lower right corner
    LIKENESS = 5  # mean difference below which two pictures are the same index

    def __init__(self, path):
        image = screen.read_bmp(path)
        times = image.height // (4 * CARD_HEIGHT)
        self.indices = {}
        for suit in range(1, 5):
            for rank in RANKS:
                wide, deep = self.ALONG.stop, self.DEEP.stop
                corner = screen.shrink(image, (rank * CARD_WIDTH - wide) * times,
                                       (suit * CARD_HEIGHT - deep) * times, wide, deep, times)
                self.indices[suit, rank] = self._box(
                    lambda across, down, corner=corner, wide=wide, deep=deep:
                    corner.pixel(wide - 1 - across, deep - 1 - down))

    def _box(self, pixel):
        return [part for across in self.ALONG for down in self.DEEP for part in pixel(across, down)]

    def card_at(self, picture, x, y):
        """The card that lies with its upper left corner as it is seen at (x, y)."""
        seen = self._box(lambda across, down: picture.pixel(x + down, y + CARD_WIDTH - 1 - across))
        best = min(self.indices, key=lambda card: distance(seen, self.indices[card]))
        return best if distance(seen, self.indices[best]) < self.LIKENESS else None


class TrickPlayer(Dealer):
    RANKS = RANKS

    def __init__(self, table):
        super().__init__(table)
        self.turned = TurnedCards(table.folder / self.DECK)

    # The table.

    def middle(self):
        x, y, width, height = self.felt()
        return x + width // 2, y + height // 2

    def pile_corner(self):
        x, y, width, height = self.felt()
        return x + (width - CARD_WIDTH) // 2, y + (height - CARD_HEIGHT) // 2

    def trump(self, picture):
        """The turned card, or None."""
        x, y = self.pile_corner()
        return self.turned.card_at(picture, x - 18, y + 33)

    def led(self, picture):
        """The opponent's card in the trick, or None."""
        x, y, width, height = self.felt()
        for left in (width // 2 - 50, width // 2 - 51):
            for top in (height // 2 - 136, height // 2 - 135):
                card = self.deck.card_at(picture, x + left, y + top)
                if card:
                    return card
        return None

    # A turn.

    def my_turn(self, watch=None):
        """A picture in which the game waits for the player, who holds a full hand as long as there is a
        pile; or the title of a box. Every picture on the way is shown to watch."""
        def seen():
            box = self.table.box()
            if box:
                return box[0]
            picture = self.table.shot()
            if watch:
                watch(picture)
            return picture if self.waits_for_me(picture) else None
        return wait_for(seen, 60, "the player's turn", every=0.02)

    def waits_for_me(self, picture):
        """What is caught while the game goes on is not the same a moment later."""
        return (self.is_mine(picture) and len(self.hand(picture)) == self.cards
                and self.table.shot().data == picture.data)

    def lay(self, card, picture):
        """Clicks a card of the hand and waits until it has left it."""
        hand = dict(self.hand(picture))
        expect(card in hand, f"{card} is not in the hand {list(hand)}")
        x, y = hand[card]
        self.table.click(x + 6, y + 90)
        wait_for(lambda: self.is_out(card), 60, f"card {card} to leave the hand", every=0.02)

    def is_out(self, card):
        left = [mine for mine, _ in self.hand(self.table.shot())]
        return card not in left and len(left) >= self.cards - 1

    def click_pile(self):
        x, y = self.pile_corner()
        self.table.click(x + 50, y + 70)

    def choose(self, picture, keep):
        """A card that takes the trick if one can be spared for it."""
        trump = self.trump(picture)
        expect(trump, "the turned card is not seen")
        spare = [card for card, _ in self.hand(picture) if card not in keep]
        expect(spare, "no card to play")
        led = self.led(picture)
        if led is None:
            return max(spare, key=lambda card: (card[0] != trump[0], STRENGTH[card[1]]))
        winning = [card for card in spare if beats(card, led, trump[0])]
        return min(winning or spare, key=lambda card: STRENGTH[card[1]])
