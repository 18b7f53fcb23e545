#!/usr/bin/env python3
"""Cinnamon on a screen that nobody sees."""

from session import eventually
from walk import walk_through
from gnome import Gnome

SETTINGS = (
    ("org.cinnamon", "enabled-applets", "['panel1:right:0:xapp-status@cinnamon.org:1']"),
    ("org.cinnamon", "panels-height", "['1:{depth}']"),
    ("org.cinnamon", "panels-enabled", "['1:0:{edge}']"),
    ("org.cinnamon", "desktop-effects", "false"),
    ("org.cinnamon", "startup-animation", "false"),
    ("org.cinnamon.desktop.background", "picture-options", "'none'"),
)


class Cinnamon(Gnome):
    kind = "Cinnamon"
    command = ["cinnamon", "--replace"]
    depth = 36  # points

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        session.environment.update(XDG_CURRENT_DESKTOP="X-Cinnamon", XDG_SESSION_DESKTOP="cinnamon", XDG_SESSION_TYPE="x11")
        self.settings = [(schema, key, value.format(edge=edge, depth=self.depth)) for schema, key, value in SETTINGS]

    def start_shell(self):
        super().start_shell()
        assert eventually(self.is_managed, self.patience), "the window manager does not start"
        self.session.start(["/usr/libexec/xapps/sn-watcher/xapp-sn-watcher"])

    def leave_overview(self):
        """It has none of its own accord."""

    def steps_aside(self):
        width, height = self.screen
        return {"a press on the bare desktop": lambda: self.press(width // 4, height // 2)}

    def go_dark(self):
        self.session.run("gsettings", "set", "org.cinnamon.desktop.interface", "gtk-theme", "Adwaita-dark")
        self.session.start(["csd-xsettings"])


CASES = [("bottom", 1), ("top", 1)]


if __name__ == "__main__":
    walk_through(Cinnamon, CASES)
