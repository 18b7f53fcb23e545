"""What a person does with the popover, on whatever desktop it is, and what must come of it."""

import os
import signal
import subprocess
import sys
import time

from contact_sheet import write_contact_sheet
from session import Session, eventually

VIEW = (400, 660)  # points
GAP = 6  # points
DARK = 0.35  # of white


class Failure(Exception):
    pass


class Walk:
    """A desktop has: kind, name, scale, is_main (whether it is the screen with
    the tray where there are several), screen (width and height in pixels), panel (its edge and its depth in pixels),
    aside (how many pixels at the left belong to other windows), session, picture(), press(x, y), rest() (the pointer goes where it
    meets nothing), escape(), steps_aside() (a dictionary of ways to go elsewhere by a name), tidy() (after these),
    go_dark(), and
    server (the process without which there is no desktop)."""

    def __init__(self, desktop, pictures, looks_on=False):
        self.desktop = desktop
        self.pictures = pictures
        self.looks_on = looks_on  # and keeps what it sees
        self.looks = {}  # pictures by what they show, for a person's eyes
        self.closed = None  # the picture without the popover
        self.item = None

    def run(self):
        try:
            self.find_item()
            if self.desktop.is_main:  # and nobody knows where the item is
                self.opens_for_a_second_start((self.desktop.screen[0], self.item[1]))
            self.opens_at_the_item_and_closes_with_its_press()
            self.closes("Escape", self.desktop.escape)
            for name, step in self.desktop.steps_aside().items():
                self.closes(name, step)
            self.opens_for_a_second_start(self.item)
            if self.looks_on:
                self.follows_into_the_dark()
            self.ends_cleanly()
            self.ends_with_the_desktop()
        except Failure as failure:
            if self.desktop.server.poll() is None:
                self.keep("failure")
            raise SystemExit(f"{self.desktop.name}: {failure}\n{self.desktop.session.log('quelby')}") from None
        print(f"{self.desktop.name}: as it should be")

    def keep(self, name):
        os.makedirs(self.pictures, exist_ok=True)
        path = os.path.join(self.pictures, f"{self.desktop.name}-{name}.png".replace(" ", "-"))
        self.desktop.picture().write_png(path)
        print(f"{self.desktop.name}: see {path}")

    def area_of_panel(self):
        width, height = self.desktop.screen
        edge, depth = self.desktop.panel
        return (0, 0, width, depth) if edge == "top" else (0, height - depth, width, height)

    def area_of_windows(self):
        width, height = self.desktop.screen
        edge, depth = self.desktop.panel
        left = self.desktop.aside
        return (left, depth, width, height) if edge == "top" else (left, 0, width, height - depth)

    def require(self, condition, sentence):
        if not condition:
            raise Failure(sentence)

    def still(self, patience=10):
        """The picture as soon as nothing moves in it."""
        last = [self.desktop.picture()]

        def at_rest():
            time.sleep(0.15)
            now = self.desktop.picture()
            rests = now.pixels == last[0].pixels
            last[0] = now
            return rests

        eventually(at_rest, patience)
        return last[0]

    def find_item(self):
        """The item is what comes into the panel with the program, at the right end: others may make room for it."""
        self.desktop.rest()
        before = self.still()
        self.quelby = self.desktop.session.start(self.desktop.session.quelby)
        area = eventually(lambda: before.difference(self.desktop.picture(), self.area_of_panel()))
        self.require(area, "no item appears in the panel")
        area = before.difference(self.still(), self.area_of_panel())
        self.item = (area[2] - (area[3] - area[1]) // 2, (area[1] + area[3]) // 2)
        self.closed = self.desktop.picture()

    def popover(self):
        """Where it is; None where what has changed is smaller, as pointers and tool tips are."""
        area = self.closed.difference(self.desktop.picture(), self.area_of_windows())
        scale = self.desktop.scale
        large = area and area[2] - area[0] >= VIEW[0] * scale / 2 and area[3] - area[1] >= VIEW[1] * scale / 4
        return area if large else None

    def press_item(self):
        self.desktop.press(*self.item)

    def open(self):
        self.require(self.popover() is None, "something is in the way already")
        self.press_item()
        self.require(eventually(self.popover), "a press of the item does not open the popover")
        self.desktop.rest()  # before a tool tip is shown
        self.still()
        return self.popover()

    def must_close(self, how):
        self.require(eventually(lambda: self.popover() is None), f"{how} does not close the popover")
        self.desktop.rest()

    def opens_at_the_item_and_closes_with_its_press(self):
        area = self.open()
        self.require_place(area, self.item)
        self.looks["closed"] = self.closed
        self.looks["open"] = self.still()
        self.press_item()
        self.must_close("a second press of the item")
        time.sleep(0.6)
        self.require(self.popover() is None, "the press that closed the popover opens it again")

    def require_place(self, area, item):
        scale = self.desktop.scale
        _, top, right, bottom = self.area_of_windows()
        edge, _ = self.desktop.panel
        gap = GAP * scale
        height = min(VIEW[1] * scale, bottom - top - 2 * gap)
        room = (gap, right - gap)
        wanted = item[0] - VIEW[0] * scale / 2
        x = max(room[0], min(wanted, room[1] - VIEW[0] * scale))
        y = top + gap if edge == "top" else bottom - gap - height
        expected = (x, y, x + VIEW[0] * scale, y + height)
        self.require(area, "the popover is gone again")
        near = all(abs(one - other) <= 2 * scale for one, other in zip(area, expected))
        self.require(near, f"the popover is at {area} instead of {expected}, with the item at {item}")

    def closes(self, how, step):
        self.open()
        step()
        self.must_close(how)
        time.sleep(0.4)  # for a moment the focus may be away
        self.desktop.tidy()
        self.require(eventually(lambda: self.popover() is None, 4), f"after {how} something is left")
        time.sleep(0.6)  # until the next press is not taken for this one

    def opens_for_a_second_start(self, item):
        self.desktop.session.run(*self.desktop.session.quelby)
        self.require(eventually(self.popover), "a second start does not open the popover")
        self.still()
        self.require_place(self.popover(), item)
        self.desktop.escape()
        self.must_close("Escape after a second start")

    def follows_into_the_dark(self):
        self.desktop.go_dark()
        self.closed = self.still()
        self.press_item()
        self.require(eventually(self.popover), "a press of the item does not open the popover in the dark")
        self.desktop.rest()
        self.require(eventually(lambda: self.desktop.picture().lightness(self.popover()) < DARK),
                     "the popover stays light on a dark desktop")
        self.looks["dark"] = self.still()
        self.desktop.escape()
        self.must_close("Escape in the dark")

    def ends_cleanly(self):
        self.quelby.terminate()
        self.require_end("the program")

    def ends_with_the_desktop(self):
        """While it is open."""
        self.closed = self.still()
        self.quelby = self.desktop.session.start(self.desktop.session.quelby)
        eventually(lambda: self.closed.difference(self.desktop.picture(), self.area_of_panel()))
        self.still()
        self.press_item()
        self.require(eventually(self.popover), "a press of the item does not open the popover of the next start")
        os.killpg(self.desktop.server.pid, signal.SIGKILL)
        self.require_end("the program whose desktop is gone")

    def require_end(self, who):
        try:
            status = self.quelby.wait(10)
        except subprocess.TimeoutExpired:
            status = "none"
        self.require(status == 0, f"{who} ends with status {status}")


def walk_through(kind, cases, usually=1):
    """In a session of its own for each case. Usually only the first ones; with --all every one, with a contact sheet
    in the end."""
    binaries, pictures = sys.argv[1:3]
    everything = "--all" in sys.argv
    looks = {}
    for case in cases if everything else cases[:usually]:
        with Session(binaries) as session:
            desktop = kind(session, *case)
            desktop.start()
            walk = Walk(desktop, pictures, everything)
            walk.run()
            looks.setdefault(desktop.scale, walk.looks)
    if everything:
        print(f"{kind.kind}: see {write_contact_sheet(pictures, kind.kind, looks)}")
