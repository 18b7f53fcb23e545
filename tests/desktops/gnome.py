#!/usr/bin/env python3
"""GNOME with its extension for status items: on Wayland in a window of the screen that nobody sees, and on X11."""

import glob
import os
import re

from session import eventually
from walk import walk_through
from x_desktop import XDesktop

SETTINGS = (
    ("org.gnome.shell", "enabled-extensions", "['ubuntu-appindicators@ubuntu.com']"),
    ("org.gnome.shell", "disable-user-extensions", "false"),
    ("org.gnome.shell", "welcome-dialog-last-shown-version", "'99'"),
    ("org.gnome.desktop.session", "idle-delay", "0"),
    ("org.gnome.desktop.lockdown", "disable-lock-screen", "true"),
    ("org.gnome.desktop.interface", "enable-animations", "false"),
    ("org.gnome.desktop.notifications", "show-banners", "false"),
    ("org.gnome.desktop.background", "picture-options", "'none'"),
)


class Gnome(XDesktop):
    kind = "GNOME on X11"
    command = ["gnome-shell", "--x11"]
    settings = SETTINGS
    patience = 60  # seconds, until the shell is there
    depth = 32  # points of its panel, about

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        self.panel = (edge, self.depth * scale)
        session.environment.update(XDG_CURRENT_DESKTOP="GNOME", XDG_SESSION_DESKTOP="gnome", GSETTINGS_BACKEND="dconf",
                                   XDG_DATA_DIRS="/usr/local/share:/usr/share", XDG_CONFIG_DIRS="/etc/xdg",
                                   LIBGL_ALWAYS_SOFTWARE="1", XDG_SESSION_TYPE=self.kind.split()[-1].lower())

    def start(self):
        self.start_screen()
        self.start_system_bus()
        self.session.share_environment()
        for schema, key, value in self.settings:
            self.session.run("gsettings", "set", schema, key, value)
        self.start_shell()
        assert eventually(self.has_tray, self.patience), "the shell does not start"
        self.leave_overview()
        eventually(lambda: not self.moves(), self.patience)

    def start_system_bus(self):
        """Nobody is on it, but the shell does not begin without."""
        socket = self.session.path("run/system-bus")
        self.session.start(["dbus-daemon", "--session", "--nofork", f"--address=unix:path={socket}"])
        assert eventually(lambda: os.path.exists(socket))
        self.session.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={socket}"

    def start_shell(self):
        self.session.start(self.command)

    def has_tray(self):
        return b"true" in self.session.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
                                           "/", "--method", "org.freedesktop.DBus.NameHasOwner",
                                           "org.kde.StatusNotifierWatcher")

    def leave_overview(self):
        """In which it begins."""
        eventually(self.has_overview, self.patience)
        eventually(lambda: not self.moves())
        self.overview("false")
        eventually(lambda: not self.has_overview())

    def shell(self, method, *arguments):
        return self.session.run("gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path",
                                "/org/gnome/Shell", "--method", f"org.freedesktop.DBus.Properties.{method}",
                                "org.gnome.Shell", "OverviewActive", *arguments)

    def has_overview(self):
        return b"true" in self.shell("Get")

    def overview(self, shown):
        self.shell("Set", f"<{shown}>")

    def steps_aside(self):
        width, height = self.screen
        return {
            "a press on the bare desktop": lambda: self.press(width // 4, height // 2),
            "the overview": self.look_over,
        }

    def look_over(self):
        self.overview("true")
        eventually(lambda: not self.moves())
        self.overview("false")

    def tidy(self):
        eventually(lambda: not self.moves())

    def go_dark(self):
        self.session.run("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", "prefer-dark")


class GnomeOnWayland(Gnome):
    kind = "GNOME on Wayland"
    aside = 80  # where the pointer rests

    def start_shell(self):
        width, height = self.screen
        self.server = self.session.start(["gnome-shell", "--nested", "--wayland", "--wayland-display", "wayland-gnome"],
                           MUTTER_DEBUG_DUMMY_MODE_SPECS=f"{width}x{height}",
                           MUTTER_DEBUG_DUMMY_MONITOR_SCALES=str(self.scale))
        socket = os.path.join(self.session.environment["XDG_RUNTIME_DIR"], "wayland-gnome")
        assert eventually(lambda: os.path.exists(socket), self.patience), "the shell does not start"
        self.session.environment["WAYLAND_DISPLAY"] = "wayland-gnome"
        self.session.environment["DISPLAY"] = self.own_display()
        pattern = os.path.join(self.session.environment["XDG_RUNTIME_DIR"], ".mutter-Xwaylandauth.*")
        self.session.environment["XAUTHORITY"] = eventually(lambda: glob.glob(pattern))[0]
        self.session.start(["/usr/libexec/gsd-xsettings"])  # tells programs of X11 the scale

    def own_display(self):
        """The server of X that the shell has for programs of X11."""
        told = eventually(lambda: re.search(r"public X11 display (:\d+)", self.session.log("gnome-shell")))
        assert told, "the shell has no server of X"
        return told.group(1)


CASES = [("top", 1)]


if __name__ == "__main__":
    walk_through(Gnome, CASES)
    walk_through(GnomeOnWayland, CASES + [("top", 2)])
