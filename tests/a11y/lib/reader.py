"""A screen reader, as far as a test needs one: what it hears, what it finds, what it can press. It knows the program by
the accessibility bus alone; it never sees a picture and never moves a pointer."""

import functools
import subprocess
import time

import pyatspi
from gi.repository import GLib


class Failure(Exception):
    pass


def expect(truth, what):
    if not truth:
        raise Failure(what)


class Thing:
    """An object of the tree. It is asked only for what somebody wants to know: each question is a letter and its answer."""

    def __init__(self, accessible):
        self.accessible = accessible

    @functools.cached_property
    def name(self):
        return self.accessible.name

    @functools.cached_property
    def role(self):
        return self.accessible.getRoleName()

    @functools.cached_property
    def states(self):
        return self.accessible.getState()

    @property
    def can_be_used(self):
        return self.states.contains(pyatspi.STATE_SENSITIVE)

    @property
    def on_view(self):
        return self.states.contains(pyatspi.STATE_SHOWING)

    def do(self, wanted):
        action = self.accessible.queryAction()
        for at in range(action.nActions):
            if action.getName(at) == wanted:
                expect(action.doAction(at), f"«{self.name}»: {wanted}")
                return
        raise Failure(f"«{self.name}» has no action {wanted}")

    def press(self):
        self.do("Press")


class Reader:
    """Listens from its making on. heard holds all that was announced, in its order."""

    def __init__(self):
        switch_on()
        self.heard = []
        self.program = self.table = None
        pyatspi.Registry.registerEventListener(self._on_showing, "object:state-changed:showing")

    def _on_showing(self, event):
        try:
            if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
                self.heard.append(event.source.name)
        except LookupError:
            pass  # it came and went
        except GLib.Error:
            pass

    # Time passes only here: what the bus brings is heard.

    def listen(self, seconds):
        context = GLib.MainContext.default()
        end = time.monotonic() + seconds
        while context.pending() and time.monotonic() < end:
            context.iteration(False)
        if time.monotonic() < end:
            woken = GLib.timeout_add(max(1, int(1000 * (end - time.monotonic()))), lambda: False)
            context.iteration(True)
            source = context.find_source_by_id(woken)
            if source is not None:
                source.destroy()

    def wait_for(self, probe, seconds, what):
        end = time.monotonic() + seconds
        while True:
            try:
                answer = probe()
            except GLib.Error:  # something was asked that has just gone
                answer = None
            if answer:
                return answer
            expect(time.monotonic() < end, f"{what}: not within {seconds} s")
            self.listen(0.05)

    # The tree.

    def attach(self, process, seconds=20):
        def found():
            for application in pyatspi.Registry.getDesktop(0):
                if application is not None and application.get_process_id() == process.pid:
                    return application
            return None
        self.program = self.wait_for(found, seconds, "the program on the bus")

    def windows(self):
        return [window for window in self.program if window is not None]

    def things(self, inside, wanted=lambda thing: True):
        """All that is on view inside, from the top."""
        found = []
        for child in inside:
            if child is None:
                continue
            thing = Thing(child)
            if not thing.on_view:
                continue
            if wanted(thing):
                found.append(thing)
            found += self.things(child, wanted)
        return found

    def find_table(self):
        """The table with what lies on it, which stays as long as the program runs."""
        def is_table(thing):
            return thing.role == "panel" and thing.name.startswith("Mesa de ")
        for window in self.windows():
            for thing in self.things(window, is_table):
                self.table = thing.accessible
        return self.table

    def on_the_table(self):
        """Everything, buttons and all."""
        return self.things(self.table)

    def lying(self, wanted):
        """What lies on the felt itself, own cards ahead of all: those whose names are wanted."""
        things = (Thing(child) for child in self.table if child is not None)
        return [thing for thing in things if wanted(thing.name)]

    def box(self):
        """The box that is open: its title, its words and its buttons."""
        for window in self.windows():
            if window.getRole() == pyatspi.ROLE_DIALOG and Thing(window).on_view:
                buttons = self.things(window, lambda thing: thing.role == "push button")
                return window.name, window.description, {each.name: each for each in buttons}
        return None


def switch_on():
    """What a desktop does when its screen reader starts."""
    subprocess.run(["busctl", "--user", "set-property", "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Status", "IsEnabled",
                    "b", "true"], check=True)
