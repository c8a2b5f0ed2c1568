"""A deal by hand and the order of a hand by mouse: what is given, given back and refused, the pop-up, cards
moved within the hand."""

from lib.dealer import ME, OPPONENT
from lib.forms import Normas, Personal, sit_two
from lib.table import expect, run, wait_for, xdotool
from lib.trick_player import (AS, BASTOS, CABALLO, COPAS, ESPADAS, OROS, RANKS, REY, SOTA, STRENGTH,
                              TrickPlayer)

MINE = [(BASTOS, 3), (OROS, 2), (COPAS, REY), (OROS, AS), (ESPADAS, SOTA), (COPAS, 7)]
ONE_TOO_MANY = (ESPADAS, CABALLO)
THEIRS = [(suit, rank) for suit in (ESPADAS, BASTOS) for rank in (4, 5, 6)]
ENTRY, ENTRIES_HEIGHT = 18, 40  # of the pop-up
BY_HAND, BY_ITSELF = 1, 2  # its entries


class Dealer(TrickPlayer):
    def cards_of(self, picture):
        return [card for card, _ in self.hand(picture)]

    def wait_for_hand(self, cards, what):
        wait_for(lambda: self.cards_of(self.table.shot()) == cards, 20, f"{what}: {cards}")

    def take(self, card, *places):
        """Presses on a card of the spread and leads it along these places, without letting go."""
        x, y = self.mini(card)
        xdotool("mousemove", x, y, "mousedown", 1)
        for place in places:
            xdotool("mousemove", *place)

    def let_go(self, card, what):
        xdotool("mouseup", 1)
        self.table.look_away()
        wait_for(lambda: self.in_spread(card, self.table.shot()), 20, what)

    def card_in_hand(self, card):
        """A point of a card that no other card covers."""
        x, y = dict(self.hand(self.table.shot()))[card]
        return x + 6, y + 90

    def holds(self, card, left, up, place):
        """Whether the small card that is held stands so far left of the pointer and above it."""
        return self.deck.card_at(self.table.shot(), place[0] - left, place[1] - up) == card


class PopUp:
    """The pop-up with the two ways to put a hand in order, opened over a seat."""

    def __init__(self, table, player, seat):
        self.table = table
        x, y, width, height = player.felt()
        self.x, self.y = player.seat_place(seat)
        xdotool("mousemove", self.x, self.y, "click", 3)
        self.y = min(self.y, y + height - ENTRIES_HEIGHT)

    def is_open(self):
        """Its right end is paper where no card lies."""
        picture = self.table.shot()
        return all(min(picture.pixel(self.x + 236, self.y + down)) > 180 for down in range(4, 36, 6))

    def is_marked(self):
        """Whether an X stands before the first entry."""
        wait_for(self.is_open, 20, "the pop-up")
        picture = self.table.shot().crop(self.x + 18, self.y + 3, 14, 15)
        return any(max(picture.data[i:i + 3]) < 90 for i in range(0, len(picture.data), 3))

    def choose(self, entry, shot):
        wait_for(self.is_open, 20, "the pop-up")
        xdotool("mousemove", self.x + 120, self.y + 2 + ENTRY * entry - ENTRY // 2)
        wait_for(lambda: self.is_lit(entry), 20, "the entry under the pointer lit")
        self.table.shot(shot)
        xdotool("click", 1)
        self.table.look_away()
        wait_for(lambda: not self.is_open(), 20, "the pop-up to close")

    def is_lit(self, entry):
        red, _, blue = self.table.shot().pixel(self.x + 236, self.y + 2 + ENTRY * entry - ENTRY // 2)
        return blue > red + 40


def begin(table):
    table.begin_empty()
    Normas(table).choose("Tute")
    form = Personal(table)
    form.change_speed(50, 100)
    form.leave()
    sit_two(table, "Tute")
    table.press_main("nueva")
    table.answer("Comienza la Partida", 0, seconds=60, count=1)


def the_deck_is_spread(table, player):
    player.wait_for_spread()
    picture = table.shot("spread")
    for suit in range(1, 5):
        for rank in RANKS:
            seen = player.deck.card_at(picture, *player.mini_corner((suit, rank)))
            expect(seen == (suit, rank), f"{seen} lies at the place of {suit, rank}")
        for rank in (8, 9):
            expect(not player.in_spread((suit, rank), picture), f"no card {rank} in this deck")


def a_card_over_nobody_goes_back(table, player):
    """Over the felt and over a seat that is turned off."""
    x, y, width, height = player.felt()
    for place in ((x + 300, y + height // 2 + 130), (x + 60, y + height // 2)):
        player.take((OROS, REY), place)
        wait_for(lambda: not player.in_spread((OROS, REY), table.shot()), 20, "its place empty")
        wait_for(lambda place=place: player.holds((OROS, REY), 12, 12, place), 20,
                 "the small card at the pointer")
        table.shot("held")
        player.let_go((OROS, REY), "the card back in its place")
    expect(not player.hand(table.shot()), "nobody has a card")


def deal(table, player):
    for count, card in enumerate(MINE, 1):
        player.give(card, ME)
        player.wait_for_hand(MINE[:count], "the hand so far")
    table.shot("full-hand")
    # A full seat refuses: the card hangs on until the button is let go.
    player.take(ONE_TOO_MANY, player.seat_place(ME))
    wait_for(lambda: not player.in_spread(ONE_TOO_MANY, table.shot()), 20, "the card taken")
    table.shot("refused")
    player.let_go(ONE_TOO_MANY, "the refused card back in its place")
    player.wait_for_hand(MINE, "the hand as it was")
    # A card given back leaves no gap and can be given again, behind the others.
    back = MINE[2]
    table.click(*player.card_in_hand(back))
    wait_for(lambda: player.in_spread(back, table.shot()), 20, "the card given back")
    rest = [card for card in MINE if card != back]
    player.wait_for_hand(rest, "the hand without it")
    table.shot("given-back")
    player.give(back, ME)
    player.wait_for_hand([*rest, back], "the card given again")
    for card in THEIRS[:-1]:
        player.give(card, OPPONENT)
    table.shot("nearly-dealt")
    player.drag(THEIRS[-1], OPPONENT)
    player.cards = len(MINE)
    picture = player.my_turn()
    table.shot("dealt")
    expect(player.cards_of(picture) == [*rest, back], "the hand lies as it was dealt")
    expect(player.trump(picture) not in [None, *MINE, *THEIRS], "another card is turned up")
    return [*rest, back]


def order_by_itself(table, player, hand):
    PopUp(table, player, ME).choose(BY_ITSELF, "pop-up-by-itself")
    ordered = sorted(hand, key=lambda card: (card[0], -STRENGTH[card[1]]))
    expect(ordered != hand, "the hand was not in order")
    player.wait_for_hand(ordered, "the hand in order")
    table.shot("in-order")
    return ordered


def move(table, player, hand, old, onto):
    """Drops the card at one place of the hand, counted from 0, upon another, or upon its own: coming from the
    left it takes that place, from the right the one behind it."""
    card = hand[old]
    start, end = player.card_in_hand(card), player.card_in_hand(hand[onto])
    moved = [other for other in hand if other != card]
    xdotool("mousemove", *start, "mousedown", 1)
    player.wait_for_hand(moved, "the hand without the card that is held")
    xdotool("mousemove", (start[0] + end[0]) // 2, start[1] - 10, "mousemove", *end)
    wait_for(lambda: player.holds(card, 13, 18, end), 20, "the held card under the pointer")
    table.shot("moving")
    xdotool("mouseup", 1)
    table.look_away()
    moved.insert(onto + 1 if onto < old else onto, card)
    player.wait_for_hand(moved, "the card in its new place")
    return moved


def order_by_hand(table, player, hand):
    pop_up = PopUp(table, player, ME)
    expect(not pop_up.is_marked(), "the hand is not in order by hand yet")
    pop_up.choose(BY_HAND, "pop-up-by-hand")
    for old, onto in ((0, 3), (5, 1), (2, 2)):
        hand = move(table, player, hand, old, onto)
    pop_up = PopUp(table, player, ME)
    expect(pop_up.is_marked(), "an X tells that the hand is put in order by hand")
    pop_up.choose(BY_HAND, "pop-up-marked")
    return hand


def hidden_hands_have_no_pop_up(table, player):
    before = table.shot()
    x, y = player.seat_place(OPPONENT)
    xdotool("mousemove", x, y, "click", 3)
    # The table answers to what comes after the click: so it has been dealt with.
    pop_up = PopUp(table, player, ME)
    wait_for(pop_up.is_open, 20, "the pop-up over the own hand")
    picture = table.shot()
    expect(picture.row(0, y, picture.width) == before.row(0, y, before.width),
           "nothing opens over a hidden hand")
    pop_up.choose(BY_ITSELF, "pop-up-again")


def play_a_card(table, player, hand):
    """After all that a click plays the card it falls on."""
    ordered = sorted(hand, key=lambda card: (card[0], -STRENGTH[card[1]]))
    player.wait_for_hand(ordered, "the hand in order again")
    picture = player.my_turn()
    player.lay(ordered[2], picture)
    picture = player.my_turn()
    left = [card for card in player.cards_of(picture) if card in ordered]
    expect(left == [card for card in ordered if card != ordered[2]], f"left in the hand: {left}")
    table.shot("played")


def play(table):
    player = Dealer(table)
    begin(table)
    the_deck_is_spread(table, player)
    a_card_over_nobody_goes_back(table, player)
    hand = deal(table, player)
    hand = order_by_itself(table, player, hand)
    hand = order_by_hand(table, player, hand)
    hidden_hands_have_no_pop_up(table, player)
    play_a_card(table, player, hand)
    table.press_main("salir")
    table.answer("Posponer la partida en curso", 0, count=2)
    expect(table.wait_for_end(20) == 0, "leaving is no failure")


run(play)
