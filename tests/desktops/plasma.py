#!/usr/bin/env python3
"""Plasma: its panel with its window manager on X11, and with its compositor of Wayland in a window of the screen that nobody
sees."""

import os
import shutil
import time

from session import eventually
from walk import walk_through
from x_desktop import XDesktop

DEPTH = 36  # points

APPLETS = """
[Containments][1]
formfactor=0
immutability=1
lastScreen=0
location=0
plugin=org.kde.desktopcontainment
wallpaperplugin=org.kde.color

[Containments][1][Wallpaper][org.kde.color][General]
Color=51,102,85

[Containments][2]
formfactor=2
immutability=1
lastScreen=0
location={location}
plugin=org.kde.panel

[Containments][2][Applets][3]
plugin=org.kde.plasma.panelspacer

[Containments][2][Applets][4]
plugin=org.kde.plasma.systemtray

[Containments][2][Applets][4][Configuration]
SystrayContainmentId=5

[Containments][2][General]
AppletOrder=3;4

[Containments][5]
formfactor=2
lastScreen=0
location={location}
plugin=org.kde.plasma.private.systemtray

[Containments][5][General]
showAllItems=true
"""

PANEL = """
[PlasmaViews][Panel 2]
floating=0

[PlasmaViews][Panel 2][Defaults]
thickness={depth}
"""

COMPOSITOR = """
[Compositing]
Enabled=false

[Desktops]
Number=2

[Windows]
Placement=ZeroCornered
"""


class Plasma(XDesktop):
    kind = "Plasma on X11"
    manager = ["kwin_x11"]
    patience = 40  # seconds, until the shell is there

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        self.panel = (edge, DEPTH * scale)
        session.environment.update(XDG_CURRENT_DESKTOP="KDE", KDE_FULL_SESSION="true", KDE_SESSION_VERSION="5",
                                   XDG_DATA_DIRS="/usr/local/share:/usr/share", XDG_CONFIG_DIRS="/etc/xdg",
                                   QT_QUICK_BACKEND="software")
        session.write("config/plasma-org.kde.plasma.desktop-appletsrc",
                      APPLETS.format(location=3 if edge == "top" else 4))
        session.write("config/plasmashellrc", PANEL.format(depth=DEPTH))
        session.write("config/kwinrc", COMPOSITOR)
        session.write("config/ksplashrc", "[KSplash]\nEngine=none\n")

    def own_copy(self, program):
        """Without the rights that its file has, which not every session may give it."""
        return shutil.copy(shutil.which(program), self.session.path("programs"))

    def start_panel(self):
        empty = self.picture()
        self.session.start(["kded5"])
        self.session.start(["plasmashell", "--no-respawn"])
        assert eventually(lambda: empty.difference(self.picture()), self.patience), "the panel does not start"
        eventually(self.has_tray, self.patience)
        eventually(lambda: not self.moves(), self.patience)

    def has_tray(self):
        answer = self.session.run("gdbus", "call", "--session", "--dest", "org.kde.StatusNotifierWatcher",
                                  "--object-path", "/StatusNotifierWatcher", "--method",
                                  "org.freedesktop.DBus.Properties.Get", "org.kde.StatusNotifierWatcher",
                                  "IsStatusNotifierHostRegistered")
        return b"true" in answer

    def go_dark(self):
        self.session.run("plasma-apply-colorscheme", "BreezeDark")
        time.sleep(1)


class PlasmaOnWayland(Plasma):
    kind = "Plasma on Wayland"

    def start(self):
        self.start_screen()
        self.session.environment["XDG_SESSION_TYPE"] = "wayland"
        self.server = self.session.start([self.own_copy("kwin_wayland"), "--x11-display", self.display, "--width", str(self.points[0]),
                            "--height", str(self.points[1]), "--scale", str(self.scale), "--socket", "wayland-kde",
                            "--no-lockscreen"], KWIN_COMPOSE="Q")
        del self.session.environment["DISPLAY"]
        socket = os.path.join(self.session.environment["XDG_RUNTIME_DIR"], "wayland-kde")
        assert eventually(lambda: os.path.exists(socket)), "the compositor does not start"
        self.session.environment["WAYLAND_DISPLAY"] = "wayland-kde"
        self.session.share_environment()
        self.start_panel()
        self.aside = 480 * self.scale
        empty = self.picture()
        self.session.start(["zenity", "--info", "--text", "Another window"])
        corner = (0, 0, 100 * self.scale, 100 * self.scale)
        assert eventually(lambda: empty.difference(self.picture(), corner)), "no window comes"

    def shortcut(self, name):
        """As if its keys were pressed, which are the compositor's before they are anybody's."""
        self.session.run("gdbus", "call", "--session", "--dest", "org.kde.kglobalaccel", "--object-path", "/component/kwin",
                         "--method", "org.kde.kglobalaccel.Component.invokeShortcut", name)

    def steps_aside(self):
        width, height = self.screen
        return {
            "a press on the bare desktop": lambda: self.press(width // 2, height // 4),
            "a press on a window": lambda: self.press(50 * self.scale, 110 * self.scale),
            "the keyboard going to another window": lambda: self.shortcut("Walk Through Windows"),
            "another workspace": lambda: self.shortcut("Switch to Desktop 2"),
        }

    def tidy(self):
        self.shortcut("Switch to Desktop 1")


CASES = [("bottom", 1), ("top", 1), ("bottom", 2)]


if __name__ == "__main__":
    walk_through(Plasma, CASES)
    walk_through(PlasmaOnWayland, CASES)
