#!/usr/bin/env python3
"""The panel of LXQt on a screen that nobody sees."""

import sys

from session import Session
from walk import Walk
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
    manager = ["openbox"]
    panel_command = ["lxqt-panel"]

    def __init__(self, session, edge, scale):
        super().__init__(session, "LXQt", edge, scale)
        session.write("config/lxqt/panel.conf", PANEL.format(position=edge.capitalize()))
        session.write("config/openbox/rc.xml", MANAGER)


CASES = [("bottom", 1), ("top", 1), ("bottom", 2)]


def main():
    binaries, pictures = sys.argv[1:3]
    for edge, scale in CASES if "--all" in sys.argv else CASES[:1]:
        with Session(binaries) as session:
            desktop = Lxqt(session, edge, scale)
            desktop.start()
            Walk(desktop, pictures, "--all" in sys.argv).run()


if __name__ == "__main__":
    main()
