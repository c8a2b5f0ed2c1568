"""The forms of the table as a player moves them: by mouse, at the places where their controls stand."""

from . import screen
from .table import expect, wait_for, xdotool

GAMES = {"Tute": 182, "Brisca": 207, "Cinquillo": 257}  # heights of their lines


class Form:
    """An open form. Places are counted from its corner."""

    def __init__(self, table, button, title, leave):
        table.press_main(button)
        self.table = table
        self.title = title
        self.window = table.wait_for_box(title, 10)
        self.x, self.y, self.width, self.height = table.place(self.window)
        self.leave_button = leave
        self.wait_until_drawn()

    def wait_until_drawn(self):
        """Two pictures of the form that are alike: it stands still."""
        def still():
            before, now = self.picture(), self.picture()
            return before.data == now.data
        wait_for(still, 10, f"«{self.title}» to stand still")

    def picture(self):
        return screen.take().crop(self.x, self.y, self.width, self.height)

    def click(self, place):
        self.table.click(self.x + place[0], self.y + place[1])

    def change(self, place, area):
        """Clicks and waits until an area of the form (x, y, width, height) looks otherwise."""
        before = self.picture().crop(*area).data
        self.click(place)
        wait_for(lambda: self.picture().crop(*area).data != before, 10,
                 f"a click at {place} of «{self.title}»")

    def leave(self):
        self.click(self.leave_button)
        wait_for(lambda: (self.table.box() or ("",))[0] != self.title, 10,
                 f"«{self.title}» to close")


class Personal(Form):
    STATE = {1: (157, 240), 2: (508, 93), 3: (710, 240), 4: (508, 425)}  # arrows of the selectors
    CONTROL = {1: (157, 290), 2: (359, 143), 3: (710, 290), 4: (359, 475)}
    SPEED_KNOB, SPEED_RAIL = (85, 81), 110  # the knob at 50, and its way from 0 to 100
    SPEED_VALUE = (160, 65, 30, 30)
    PAUSE, INFORMATION = (589, 85), (538, 359)

    def __init__(self, table):
        super().__init__(table, "personal", "Personalizar", (656, 537))

    def change_speed(self, old, new):
        """Drags the knob from where it stands."""
        before = self.picture().crop(*self.SPEED_VALUE).data
        start, end = (self.x + self.SPEED_KNOB[0] + round((speed - 50) * self.SPEED_RAIL / 100)
                      for speed in (old, new))
        y = self.y + self.SPEED_KNOB[1]
        xdotool("mousemove", start, y, "mousedown", 1, "mousemove", (start + end) // 2, y,
                "mousemove", end, y, "mouseup", 1)
        wait_for(lambda: self.picture().crop(*self.SPEED_VALUE).data != before, 10, "the speed")

    def turn_off(self, seat):
        """Turns a seat off: the controls behind its state go."""
        x, y = self.CONTROL[seat]
        area = (x - 8, y - 8, 16, 16)
        self.change(self.STATE[seat], area)
        gone = self.picture().crop(*area)
        expect(len(set(gone.data[i:i + 3] for i in range(0, len(gone.data), 3))) < 8,
               f"seat {seat} still shows its control")

    def change_control(self, seat):
        x, y = self.CONTROL[seat]
        self.change((x, y), (x - 118, y - 9, 100, 18))

    def change_pause(self):
        x, y = self.PAUSE
        self.change(self.PAUSE, (x - 7, y - 7, 14, 14))

    def change_information(self):
        x, y = self.INFORMATION
        self.change(self.INFORMATION, (x - 148, y - 9, 130, 18))


class Normas(Form):
    DEAL, LIMIT_DOWN, LIMIT = (363, 83), (290, 150), (220, 136, 50, 18)

    def __init__(self, table):
        super().__init__(table, "normas", "Normas", (266, 311))

    def change_deal(self):
        x, y = self.DEAL
        self.change(self.DEAL, (x - 148, y - 9, 130, 18))

    def lower_limit(self):
        self.change(self.LIMIT_DOWN, self.LIMIT)

    def choose(self, game):
        """Another game, and Aceptar to the question about it: the form closes by itself."""
        self.click((40, GAMES[game]))
        self.table.answer("Lista 'Juego Activado'", 0, count=2)
        wait_for(lambda: (self.table.box() or ("",))[0] != self.title, 10, "«Normas» to close")


def sit_two(table, game):
    """Two seats, no pauses between their turns, no information, cards dealt by hand, two hands to win."""
    form = Personal(table)
    for seat in (1, 3):
        form.turn_off(seat)
    form.change_pause()
    form.change_information()
    table.shot(f"personal-{game}")
    form.leave()
    form = Normas(table)
    form.change_deal()
    form.lower_limit()
    table.shot(f"normas-{game}")
    form.leave()
