#!/usr/bin/env python3
"""The panel and the window manager of MATE on a screen that nobody sees."""

from walk import walk_through
from x_desktop import XDesktop

SETTINGS = """
[org/mate/panel/general]
toplevel-id-list=['panel']
object-id-list=['area']

[org/mate/panel/toplevels/panel]
orientation='{edge}'
size=28
expand=true
enable-animations=false

[org/mate/panel/objects/area]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='panel'
position=0
relative-to-edge='end'

[org/mate/marco/general]
num-workspaces=2
"""


class Mate(XDesktop):
    kind = "MATE"
    manager = ["marco", "--no-composite"]
    panel_command = ["mate-panel"]

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        session.environment["GSETTINGS_BACKEND"] = "keyfile"
        session.write("config/glib-2.0/settings/keyfile", SETTINGS.format(edge=edge))

    def go_dark(self):
        self.session.run("gsettings", "set", "org.mate.interface", "gtk-theme", "Adwaita-dark")
        self.session.start(["mate-settings-daemon"])


CASES = [("top", 1), ("bottom", 1), ("top", 2)]

if __name__ == "__main__":
    walk_through(Mate, CASES)
