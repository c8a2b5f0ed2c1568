"""The program on the screen, and a player who sees it by its picture and moves it by mouse and key."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

from . import screen

CARD_WIDTH, CARD_HEIGHT = 101, 141
BUTTONS = {"nueva": (45, 30), "normas": (45, 90), "personal": (49, 150), "estadis": (45, 210),
           "tutor": (45, 270), "marcador": (45, 330), "ayuda": (45, 390), "salir": (45, 450)}
COLUMN = 90  # width of the button column


class Failure(Exception):
    pass


def expect(truth, what):
    if not truth:
        raise Failure(what)


def wait_for(probe, seconds, what, every=0.1):
    """The first answer of the probe that is true."""
    end = time.monotonic() + seconds
    while True:
        answer = probe()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"{what}: not within {seconds} s")
        time.sleep(every)


def xdotool(*words):
    done = subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True)
    return done.stdout.strip() if done.returncode == 0 else ""


class Table:
    """A game folder of its own with links to the program and its pictures and the settings of a first start, and the
    program in it; or the program whose chance is prepared in its place."""

    def __init__(self, name, prepared=False):
        programs = pathlib.Path(os.environ["ZOVIN_BIN"])
        self.shots = programs.parent / "e2e" / name
        self.shots.mkdir(parents=True, exist_ok=True)
        for old in self.shots.glob("*.png"):
            old.unlink()
        self.count = 0
        self.process = None
        self.window = None
        self.lay_out(programs, prepared)

    def lay_out(self, programs, prepared):
        self.folder = pathlib.Path.home() / "juego"
        self.folder.mkdir(exist_ok=True)
        self.program = self.folder / "zovin"
        self.console = programs / "sonda"
        if prepared:
            self.program.symlink_to(programs.parent / "tests" / "zovin_prepared")
        for piece in ("zovin", "Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV", "ayuda"):
            link = self.folder / piece
            if not link.is_symlink():
                link.symlink_to(programs / piece)
        for made in (programs.parent / "ajustes").glob("*.INI"):
            if not (self.folder / made.name).exists():
                shutil.copy(made, self.folder)
        self.begin_with("70")

    def begin_with(self, game):
        """The table comes up with this game; a first start would bring Póker."""
        general = self.folder / "ZOV31.INI"
        general.write_bytes(game.encode() + general.read_bytes()[2:])

    # The program.

    def start(self, **how):
        self.process = subprocess.Popen([self.program], **how)

    def wait_for_window(self, seconds=10):
        def found():
            expect(self.process.poll() is None, "the program has ended")
            return self.windows()
        self.window = wait_for(found, seconds, "the table")[0]
        return self.window

    @staticmethod
    def windows():
        """The windows of all tables that stand open."""
        return xdotool("search", "--onlyvisible", "--name", "^Zovin · ").split()

    def begin_empty(self):
        """Starts the program for the first time and comes to the empty table."""
        self.start()
        self.wait_for_window()
        self.answer("Descripción general", 1)

    def close_window(self):
        xdotool("windowactivate", "--sync", self.window, "key", "alt+F4")

    def match_on(self, game="70"):
        """Whether the game's file keeps an unfinished match: PartidaEnCurso in its columns 90 and 91."""
        return self.settings(f"ZOV{game}31.INI")[89:91] == "-1"

    def wait_for_end(self, seconds=5):
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise Failure(f"the program did not end within {seconds} s") from None

    def stop(self):
        if self.process is not None and self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def settings(self, name):
        return (self.folder / name).read_bytes().decode("cp1252")

    # What the player sees.

    def shot(self, name=None):
        picture = screen.take()
        if name:
            self.count += 1
            picture.save(self.shots / f"{self.count:02}-{name}.png")
        return picture

    def place(self, window=None):
        """Corner and size of a window's inside."""
        said = subprocess.run(["xwininfo", "-id", window or self.window], capture_output=True,
                              text=True).stdout
        fields = (r"Absolute upper-left X: +(-?\d+)", r"Absolute upper-left Y: +(-?\d+)",
                  r"Width: (\d+)", r"Height: (\d+)")
        found = [re.search(field, said) for field in fields]
        expect(all(found), "the window is gone")
        return tuple(int(value.group(1)) for value in found)

    def box(self):
        """The title of the box that is open, and its window."""
        window = xdotool("getactivewindow")
        if not window or window == self.window:
            return None
        title = xdotool("getwindowname", window)
        return (title, window) if title else None

    def wait_for_box(self, title, seconds):
        def found():
            expect(self.process.poll() is None, "the program has ended")
            box = self.box()
            return box if box and box[0] == title else None
        return wait_for(found, seconds, f"the box «{title}»")[1]

    def box_buttons(self, window):
        """Centres of the buttons near the lower edge of a box, from left to right."""
        x, y, width, height = self.place(window)
        margin = 12  # the rim
        row = self.shot().row(x + margin, y + height - 29, width - 2 * margin)
        x, width = x + margin, width - 2 * margin
        tan = [at for at in range(width) if row[3 * at] > row[3 * at + 2] + 35]
        # Letters and the line of the focus interrupt the colour by less than the gap between buttons.
        buttons, start = [], None
        for at, after in zip(tan, tan[1:] + [width + 99]):
            start = at if start is None else start
            if after - at > 12:
                if at - start > 60:
                    buttons.append((x + (start + at) // 2, y + height - 38))
                start = None
        return buttons

    def green_button(self, picture):
        """Whether Pic_BotContinuar shows, with its yellow words."""
        x, y, width, height = self.place()
        words = picture.crop(x + width - 88, y + height - 52, 86, 36)
        yellow = sum(words.data[i] > 220 and words.data[i + 1] > 220 and words.data[i + 2] < 90
                     for i in range(0, len(words.data), 3))
        return yellow > 20

    def main_button_lit(self, button, picture):
        """Whether a main button is drawn in colour: the others are grey and do nothing."""
        x, y, width, _ = self.place()
        across, down = BUTTONS[button]
        drawn = picture.crop(x + width - COLUMN + across - 20, y + down - 20, 40, 40)
        pixels = (drawn.data[i:i + 3] for i in range(0, len(drawn.data), 3))
        coloured = sum(max(p) - min(p) > 60 and not is_felt(p) for p in pixels)
        return coloured > 200

    # What the player does.

    def click(self, x, y):
        xdotool("mousemove", x, y, "click", 1)
        self.look_away()

    def look_away(self):
        """The pointer leaves the cards: the one under it is framed. Where there is no table, or it has gone, it stays."""
        if self.window is None:
            return
        try:
            x, y, width, _ = self.place()
        except Failure:
            return
        xdotool("mousemove", x + width - COLUMN - 6, y + 6)

    def press_main(self, button):
        x, y, width, _ = self.place()
        across, down = BUTTONS[button]
        self.click(x + width - COLUMN + across, y + down)

    def press_green(self):
        x, y, width, height = self.place()
        self.click(x + width - 45, y + height - 34)

    def answer(self, title, button, seconds=10, count=None):
        """Waits for the box and clicks its button, counted from 0."""
        window = self.wait_for_box(title, seconds)
        time.sleep(0.15)
        buttons = self.box_buttons(window)
        expect(len(buttons) > button, f"«{title}» shows {len(buttons)} buttons")
        expect(count is None or len(buttons) == count, f"«{title}»: {len(buttons)} buttons")
        self.click(*buttons[button])
        wait_for(lambda: self.box() != (title, window), 5, f"«{title}» to close")


class Deck:
    """The corners of the cards, by which a card is told in a fan: its number and suit."""

    LEFT, TOP, WIDTH, HEIGHT = 3, 4, 11, 27
    LIKENESS = 14  # mean difference below which two pictures are the same card

    def __init__(self, path):
        image = screen.read_bmp(path)
        times = image.height // (4 * CARD_HEIGHT)
        columns = image.width // (times * CARD_WIDTH)
        self.corners = {}
        for suit in range(1, 5):
            for rank in range(1, columns + 1):
                x = ((rank - 1) * CARD_WIDTH + self.LEFT) * times
                y = ((suit - 1) * CARD_HEIGHT + self.TOP) * times
                self.corners[suit, rank] = screen.shrink(image, x, y, self.WIDTH, self.HEIGHT,
                                                         times)

    def corner_in(self, picture, x, y):
        """The corner of a card whose own corner is at (x, y)."""
        return picture.crop(x + self.LEFT, y + self.TOP, self.WIDTH, self.HEIGHT)

    def card_at(self, picture, x, y):
        """The card whose corner is at (x, y), or None."""
        seen = self.corner_in(picture, x, y)
        best = min(self.corners, key=lambda card: self._coarse(seen, card))
        if screen.distance(seen.data, self.corners[best].data) > self.LIKENESS:
            return None
        return best

    def _coarse(self, seen, card):
        return sum(screen.distance(seen.row(0, y, self.WIDTH),
                                   self.corners[card].row(0, y, self.WIDTH))
                   for y in range(0, self.HEIGHT, 2))


def is_felt(pixel):
    red, green, blue = pixel
    return red < 24 and blue < 24 and 80 < green < 145  # the light falls from above


def hand_at_the_bottom(table, deck, picture):
    """The player's own cards from left to right: card, and the corner where it lies."""
    x, y, width, height = table.place()
    middle = x + (width - COLUMN) // 2
    left, right, low = middle - 135, middle + 135, y + height
    found = []
    at = left
    while at < right:
        top = _top_of_card(picture, at, low)
        card = top is not None and _starts_here(picture, at, top) and deck.card_at(picture, at, top)
        if card:
            found.append((card, (at, top)))
            at += 8
        else:
            at += 1
    return found


def _top_of_card(picture, x, low):
    """The upper edge of a card of the hand: up from its middle, the last row that is no felt."""
    for y in range(low - 100, low - 185, -1):
        if is_felt(picture.pixel(x + 8, y)):
            return y + 1 if y < low - 130 else None
    return None


def _starts_here(picture, x, y):
    """A card's left edge: dark line, then paper."""
    red, green, blue = picture.pixel(x + 2, y + 60)
    paper = red > 225 and green > 220 and blue > 195
    edge = sum(picture.pixel(x, y + 60)) < sum((red, green, blue)) - 40
    return paper and edge


def run(play, prepared=False, kind=Table):
    """Runs a test and tells its end."""
    table = kind(pathlib.Path(sys.argv[0]).stem, prepared)
    try:
        play(table)
    except Failure as failure:
        table.shot("failure")
        print(f"FAILED: {failure}\npictures in {table.shots}", file=sys.stderr)
        table.stop()
        sys.exit(1)
    finally:
        table.stop()
    print(f"good; pictures in {table.shots}")
