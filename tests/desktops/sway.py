#!/usr/bin/env python3
"""Sway with waybar, on an output that nobody sees."""

import glob
import os
import time

from picture import Picture
from session import eventually
from virtual_pointer import VirtualPointer, socket_path
from walk import walk_through

CONFIG = """
xwayland {xwayland}
output * mode --custom {width}x{height} scale {scale} bg #336655 solid_color
default_border none
for_window [app_id="foot"] floating enable, resize set 400 300, move position 40 200
focus_follows_mouse no
"""

BACKGROUND = bytes.fromhex("336655")

BAR = '{{"position": "{edge}", "height": 30, "modules-right": ["tray"], "tray": {{"icon-size": 21}}}}'

STYLE = "* {{ font-family: sans-serif; font-size: 13px; }} window {{ background: #222222; color: #ffffff; }}"


class Sway:
    kind = "sway"
    points = (1280, 800)
    layout = points  # all outputs together
    left = 0  # of this output
    is_main = True  # where a second start opens it when nothing is known of the item
    outputs = 1
    output = "HEADLESS-1"
    workspaces = ("1", "2")

    def __init__(self, session, edge, scale, xwayland):
        self.name = f"{self.kind} with waybar at the {edge}, scale {scale}, XWayland {xwayland}"
        self.session = session
        self.scale = scale
        self.edge = edge
        self.screen = (round(self.points[0] * scale), round(self.points[1] * scale))
        self.panel = None  # as deep as it turns out to be
        self.aside = round(480 * scale)
        session.write("config/sway/config", self.configuration(xwayland))
        session.write("config/waybar/config", BAR.format(edge=edge))
        session.write("config/waybar/style.css", STYLE.format())

    def configuration(self, xwayland):
        return CONFIG.format(xwayland=xwayland, width=self.screen[0], height=self.screen[1], scale=self.scale)

    def start(self):
        environment = self.session.environment
        self.server = self.session.start(["sway"], WLR_BACKENDS="headless", WLR_RENDERER="pixman",
                                         WLR_LIBINPUT_NO_DEVICES="1", WLR_HEADLESS_OUTPUTS=str(self.outputs))
        runtime = environment["XDG_RUNTIME_DIR"]
        sockets = eventually(lambda: glob.glob(os.path.join(runtime, "sway-ipc.*")))
        assert sockets, f"sway does not start: {self.session.log('sway')}"
        environment["SWAYSOCK"] = sockets[0]
        told = self.session.path("run/told")
        self.command("exec", f"env > {told}.new && mv {told}.new {told}")
        assert eventually(lambda: os.path.exists(told)), "sway starts no programs"
        with open(told, encoding="utf-8") as file:
            for line in file:
                name, _, value = line.rstrip("\n").partition("=")
                if name in ("WAYLAND_DISPLAY", "DISPLAY"):
                    environment[name] = value
        self.pointer = VirtualPointer(socket_path(environment))
        assert eventually(lambda: self.picture().pixels.startswith(BACKGROUND)), "the background does not come"
        empty = self.picture()
        self.session.start(["waybar"])
        assert eventually(lambda: empty.difference(self.picture())), "the bar does not start"
        time.sleep(0.5)
        area = empty.difference(self.picture())
        self.panel = (self.edge, area[3] - area[1])
        self.session.start(["foot", "sleep", "infinity"])
        assert eventually(lambda: b'"foot"' in self.session.run("swaymsg", "-t", "get_tree")), "no window comes"

    def command(self, *words):
        self.session.run("swaymsg", "--", *words)

    def picture(self):
        return Picture.from_ppm(self.session.run("grim", "-o", self.output, "-t", "ppm", "-"))

    def move(self, x, y):
        """In points of this output."""
        self.pointer.move(self.left + x, y, *self.layout)

    def press(self, x, y):
        self.move(round(x / self.scale), round(y / self.scale))
        self.click()

    def click(self):
        time.sleep(0.1)
        self.pointer.button(True)
        time.sleep(0.06)
        self.pointer.button(False)

    def rest(self):
        self.move(9, self.points[1] // 2)

    def escape(self):
        self.session.run("wtype", "-s", "200", "-k", "Escape", "-s", "50")

    def steps_aside(self):
        width, height = self.screen
        return {
            "a press on the bare desktop": lambda: self.press(width // 2, height * 7 // 8),
            "a press on a window": lambda: self.press(width // 8, height * 3 // 8),
            "the keyboard going to another window": lambda: self.command("[app_id=foot]", "focus"),
            "another workspace": lambda: self.command("workspace", self.workspaces[1]),
        }

    def go_dark(self):
        """As people do it who have no portal."""
        self.session.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", "prefer-dark")

    def tidy(self):
        self.command("workspace", self.workspaces[0])


class TwoOutputs(Sway):
    """On the second of two, whose scale is not that of the first."""

    kind = "sway with two outputs"
    layout = (2560, 800)
    left = 1280
    is_main = False
    outputs = 2
    output = "HEADLESS-2"
    workspaces = ("2", "3")

    def configuration(self, xwayland):
        width, height = self.screen
        return CONFIG.format(xwayland=xwayland, width=1280, height=800, scale=1) + (
            "output HEADLESS-1 position 0 0\n"
            f"output HEADLESS-2 mode --custom {width}x{height} scale {self.scale} position {self.left} 0\n"
            "workspace 1 output HEADLESS-1\nworkspace 2 output HEADLESS-2\nworkspace 3 output HEADLESS-2\n"
            "exec swaymsg focus output HEADLESS-2\n")

    def steps_aside(self):
        return {
            **super().steps_aside(),
            "a press on the other output": self.press_elsewhere,
            "the keyboard going to the other output": lambda: self.command("focus", "output", "HEADLESS-1"),
        }

    def press_elsewhere(self):
        self.pointer.move(600, 500, *self.layout)
        self.click()


CASES = [("top", 1, "disable"), ("bottom", 1.5, "enable"), ("top", 2, "enable"), ("bottom", 1, "disable")]

if __name__ == "__main__":
    walk_through(Sway, CASES)
    walk_through(TwoOutputs, [("top", 1.5, "disable"), ("bottom", 2, "enable")], usually=0)
