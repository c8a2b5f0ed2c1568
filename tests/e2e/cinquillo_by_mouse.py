"""A match of Cinquillo as a player plays it: by what the screen shows, with mouse and keys, left in the
middle and continued."""

import time

from lib.table import COLUMN, Deck, expect, hand_at_the_bottom, run, wait_for, xdotool

LIMIT_COLUMN = 119  # LimitePartida in the game's settings, three columns, counted from 1
MATCH_ON_COLUMN = 90


class Player:
    def __init__(self, table):
        self.table = table
        self.deck = Deck(table.folder / "Baraja02.bmp")
        self.played = []
        self.hands = 0

    def felt(self):
        """The middle of the table, where the cards are laid out."""
        x, y, width, height = self.table.place()
        return x + 165, y + 20, width - COLUMN - 330, height - 185

    def hand(self, picture):
        return hand_at_the_bottom(self.table, self.deck, picture)

    def my_turn(self):
        """A picture of the table in which the game waits for the player, or the title of a box."""
        def seen():
            box = self.table.box()
            if box:
                return box[0]
            picture = self.table.shot()
            return picture if self.table.green_button(picture) else None
        return wait_for(seen, 60, "the player's turn", every=0.25)

    def play_a_card(self, picture):
        """Tries the cards of the hand from the right until the game takes one. False when it takes none."""
        hand = self.hand(picture)
        expect(hand, "no card of the player's is found in the picture")
        for card, (x, y) in reversed(hand):
            corner = self.deck.corner_in(picture, x, y)
            self.table.click(x + 6, y + 90)
            time.sleep(0.3)
            if not self.table.green_button(self.table.shot()):
                self.sees_it_laid(card, corner, len(hand))
                self.played.append(card)
                print("played", card, "of", len(hand), flush=True)
                return True
        return False

    def sees_it_laid(self, card, corner, before):
        x, y, width, height = self.felt()
        wait_for(lambda: self.table.shot().find(corner, x, y, width, height), 6,
                 f"card {card} in the middle of the table", every=0.2)
        left = self.hand(self.table.shot())
        expect(card not in [mine for mine, _ in left], f"card {card} is still in the hand")
        expect(len(left) == before - 1, f"{before} cards in hand, then {len(left)}")

    def turn(self):
        """Plays a turn, or goes on with the green button. Answers the title of a box, if one is open."""
        seen = self.my_turn()
        if isinstance(seen, str):
            return seen
        if not self.play_a_card(seen):
            print("no card was taken", flush=True)
            self.table.press_green()
            time.sleep(0.6)
        return None

    def play_until(self, done):
        while not done():
            box = self.turn()
            if box == "Final de la mano":
                self.table.shot("end-of-hand")
                self.table.answer(box, 0, count=1)
                self.hands += 1
                return
            expect(box is None, f"an unexpected box «{box}»")


def first_run(table):
    """Nothing is there yet: the program tells it, writes its files and can be left at once."""
    table.start()
    time.sleep(0.7)
    table.shot("splash")
    table.answer("Error en la carga de datos iniciales", 0, count=1)
    table.wait_for_window()
    table.answer("Error en la carga de datos iniciales", 0, count=1)
    table.answer("Descripción general", 1, count=2)
    table.shot("empty-table")
    table.press_main("salir")
    expect(table.wait_for_end() == 0, "leaving the empty table is no failure")


def make_it_one_hand(table):
    """A match that one hand decides, as Normas would set it."""
    path = table.folder / "ZOV7031.INI"
    data = bytearray(path.read_bytes())
    data[LIMIT_COLUMN - 1:LIMIT_COLUMN + 2] = b"001"
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
    expect(not isinstance(player.my_turn(), str), "it is the player's turn")
    table.shot("in-the-middle")
    table.press_main("salir")
    window = table.wait_for_box("Posponer la partida en curso", 5)
    table.shot("leave")
    expect(len(table.box_buttons(window)) == 2, "Sí and No")
    table.answer("Posponer la partida en curso", 1)
    expect(table.process.poll() is None, "No stays at the table")
    table.press_main("salir")
    table.answer("Posponer la partida en curso", 0)
    expect(table.wait_for_end() == 0, "leaving is no failure")
    line = table.settings("ZOV7031.INI").split("\r\n")[0]
    expect(line[MATCH_ON_COLUMN - 1:MATCH_ON_COLUMN + 1] == "-1", "the match is kept")


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
    box = player.turn()
    while box is None:
        box = player.turn()
    expect(box == "Final de Partida", f"the end of the match, not «{box}»")
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
    line = table.settings("ZOV7031.INI").split("\r\n")[0]
    expect(line[MATCH_ON_COLUMN - 1:MATCH_ON_COLUMN + 1] == " 0", "no match is on")
    expect((table.folder / "ZOV7031.HIS").exists(), "the history was written")
    xdotool("windowactivate", "--sync", table.window, "key", "alt+F4")
    expect(table.wait_for_end() == 0, "closing the window ends the program")


def play(table):
    first_run(table)
    make_it_one_hand(table)
    player = Player(table)
    begin_match(table)
    leave_in_the_middle(table, player)
    go_on(table)
    finish_match(table, player)
    play_more(table, player)
    print("played by mouse:", player.played)
    close_the_window(table)


run(play)
