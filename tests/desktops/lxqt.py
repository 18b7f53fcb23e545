#!/usr/bin/env python3
"""The panel of LXQt on a screen that nobody sees."""

from walk import walk_through
from x_desktop import XDesktop

PANEL = """
[General]
__userfile__=true
panels=panel1

[panel1]
alignment=-1
desktop=0
height=32
iconSize=22
lineCount=1
plugins=spacer, statusnotifier
position={position}
width=100
width-percent=true

[spacer]
alignment=Left
expandable=true
type=spacer

[statusnotifier]
alignment=Right
type=statusnotifier
"""

MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <desktops><number>2</number><popupTime>0</popupTime></desktops>
</openbox_config>
"""


class Lxqt(XDesktop):
    kind = "LXQt"
    manager = ["openbox"]
    panel_command = ["lxqt-panel"]

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        session.environment["XDG_CONFIG_DIRS"] = "/etc/xdg:/usr/share"  # as its session has it
        session.write("config/lxqt/panel.conf", PANEL.format(position=edge.capitalize()))
        session.write("config/openbox/rc.xml", MANAGER)

    def go_dark(self):
        """As its own settings write it for programs that are not Qt's."""
        self.session.write("config/gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=Adwaita-dark\n")


CASES = [("bottom", 1), ("top", 1), ("bottom", 2)]

if __name__ == "__main__":
    walk_through(Lxqt, CASES)
