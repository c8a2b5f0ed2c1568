"""A match of Cinquillo as a player plays it: by what the screen shows, with mouse and keys, left in the
middle and continued."""

import time

from lib.player import Player
from lib.table import COLUMN, expect, run, wait_for

# Columns of the game's settings, counted from 1: PausaEntreJugadas, LimitePartida.
PAUSE, LIMIT = 65, 119


class CinquilloPlayer(Player):
    def __init__(self, table):
        super().__init__(table)
        self.played = []
        self.hands = 0

    def felt(self):
        """The middle of the table, where the cards are laid out."""
        x, y, width, height = self.table.place()
        return x + 165, y + 20, width - COLUMN - 330, height - 185

    def play_a_card(self, picture):
        """Tries the cards of the hand from the right until the game takes one."""
        hand = self.hand(picture)
        expect(hand, "no card of the player's is found in the picture")
        for card, (x, y) in reversed(hand):
            corner = self.deck.corner_in(picture, x, y)
            self.table.click(x + 6, y + 90)
            time.sleep(0.3)
            if not self.is_mine(self.table.shot()):
                wait_for(lambda: self.is_laid(card, corner, len(hand)), 6,
                         f"card {card} of {len(hand)} on the felt and out of the hand", every=0.2)
                self.played.append(card)
                print("laid", card, "of", len(hand), flush=True)
                return
        expect(False, "the game waits for a card and takes none")

    def is_laid(self, card, corner, before):
        x, y, width, height = self.felt()
        picture = self.table.shot()
        left = self.hand(picture)
        return (picture.find(corner, x, y, width, height) and len(left) == before - 1
                and card not in [mine for mine, _ in left])

    def turn(self):
        """Lays a card when it is the player's turn. Answers the title of a box, if one is open."""
        seen = self.my_turn()
        if isinstance(seen, str):
            return seen
        expect(self.table.green_button(seen), "the green button stands by in the player's turn")
        self.play_a_card(seen)
        return None

    def play_until(self, done):
        """Plays until done, or to the end of the hand, which has ten turns of a seat at most."""
        for _ in range(11):
            if done():
                return
            box = self.turn()
            if box == "Final de la mano":
                self.table.shot("end-of-hand")
                self.table.answer(box, 0, count=1)
                self.hands += 1
                return
            expect(box is None, f"an unexpected box «{box}»")
        expect(False, "the hand does not end")


def first_run(table):
    """The program is there with its files and can be left at once."""
    table.start()
    time.sleep(0.7)
    table.shot("splash")
    table.wait_for_window()
    table.answer("Descripción general", 1, count=2)
    table.shot("empty-table")
    table.press_main("salir")
    expect(table.wait_for_end() == 0, "leaving the empty table is no failure")


def set_column(table, column, text):
    path = table.folder / "ZOV7031.INI"
    data = bytearray(path.read_bytes())
    data[column - 1:column - 1 + len(text)] = text
    path.write_bytes(data)


def set_speed(table, speed):
    """VelocidadJuego, from 0 to 100."""
    path = table.folder / "ZOV31.INI"
    data = bytearray(path.read_bytes())
    data[4:7] = b"%03d" % speed
    path.write_bytes(data)


def begin_match(table):
    table.start()
    table.wait_for_window()
    table.shot("welcome")
    table.answer("Descripción general", 1, count=2)
    table.press_main("nueva")
    time.sleep(1)
    table.shot("draw")
    window = table.wait_for_box("Comienza la Partida", 60)
    table.shot("who-begins")
    expect(len(table.box_buttons(window)) == 1, "one button")
    table.answer("Comienza la Partida", 0)


def leave_in_the_middle(table, player):
    cards = len(player.played)
    player.play_until(lambda: len(player.played) >= cards + 3)
    expect(player.hands == 0, "the hand is still on")
    expect(not isinstance(player.my_turn(), str), "the game waits")
    table.shot("in-the-middle")
    table.press_main("salir")
    window = table.wait_for_box("Posponer la partida en curso", 5)
    table.shot("leave")
    expect(len(table.box_buttons(window)) == 2, "Si and No")
    table.answer("Posponer la partida en curso", 1)
    expect(table.process.poll() is None, "No stays at the table")
    table.press_main("salir")
    table.answer("Posponer la partida en curso", 0)
    expect(table.wait_for_end() == 0, "leaving is no failure")
    expect(table.match_on(), "the match is kept")


def go_on(table):
    table.start()
    table.wait_for_window()
    table.wait_for_box("Continuar la partida anterior", 10)
    table.shot("goes-on")
    table.answer("Continuar la partida anterior", 0, count=1)
    table.answer("Descripción general", 1)


def finish_match(table, player):
    hands = player.hands
    player.play_until(lambda: False)
    expect(player.hands == hands + 1, "a hand was played to its end")
    time.sleep(0.5)
    expect(table.green_button(table.shot("continue")), "the green button waits")
    table.press_green()
    box = "Final de Partida"
    table.wait_for_box(box, 20)
    table.shot("end-of-match")
    table.answer(box, 0, count=1)
    table.answer("Histórico de partidas jugadas", 0, count=2)


def play_more(table, player):
    """Another match, until ten cards were played by mouse."""
    while len(player.played) < 10:
        wait_for(lambda: not table.box(), 5, "the table")
        table.press_main("nueva")
        table.answer("Comienza la Partida", 0, seconds=60)
        finish_match(table, player)


def close_the_window(table):
    wait_for(lambda: not table.box(), 5, "the idle table")
    time.sleep(0.5)
    expect(not table.match_on(), "no match is on")
    table.close_window()
    expect(table.wait_for_end() == 0, "closing the window ends the program")


def play(table):
    first_run(table)
    # One hand decides the match; the green button waits for the player only.
    set_column(table, LIMIT, b"001")
    set_column(table, PAUSE, b" 0")
    player = CinquilloPlayer(table)
    begin_match(table)
    leave_in_the_middle(table, player)
    # The first half goes at the pace of a first start; who plays on likes it quicker.
    set_speed(table, 80)
    go_on(table)
    finish_match(table, player)
    play_more(table, player)
    print("played by mouse:", player.played)
    close_the_window(table)


run(play)
