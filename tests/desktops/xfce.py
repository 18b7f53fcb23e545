#!/usr/bin/env python3
"""The panel and the window manager of XFCE on a screen that nobody sees."""

import os
import sys
import time

from picture import Picture
from session import Session, eventually
from walk import Walk

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="{position}"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="{size}"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""

SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xsettings" version="1.0">
  <property name="Gdk" type="empty">
    <property name="WindowScalingFactor" type="int" value="{scale}"/>
  </property>
</channel>
"""

MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfwm4" version="1.0">
  <property name="general" type="empty">
    <property name="use_compositing" type="bool" value="false"/>
    <property name="workspace_count" type="int" value="2"/>
  </property>
</channel>
"""


class Xfce:
    size = 28  # points
    aside = 0

    def __init__(self, session, edge, scale):
        self.name = f"XFCE with its panel at the {edge}, scale {scale}"
        self.session = session
        self.scale = scale
        self.screen = (1280 * scale, 800 * scale)
        self.edge = edge
        self.panel = None  # as deep as it turns out to be
        channels = "config/xfce4/xfconf/xfce-perchannel-xml/"
        position = "p=6;x=0;y=0" if edge == "top" else "p=10;x=0;y=0"
        session.write(channels + "xfce4-panel.xml", PANEL.format(position=position, size=self.size))
        session.write(channels + "xfwm4.xml", MANAGER)
        session.write(channels + "xsettings.xml", SETTINGS.format(scale=scale))

    def start(self):
        frame = self.session.path("frame")
        os.makedirs(frame, exist_ok=True)
        os.chmod(frame, 0o777)
        number = next(n for n in range(90, 190) if not os.path.exists(f"/tmp/.X11-unix/X{n}"))
        width, height = self.screen
        self.session.start(["Xvfb", f":{number}", "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp",
                            "-noreset", "-nocursor", "-fbdir", frame])
        self.file = os.path.join(frame, "Xvfb_screen0")
        assert eventually(lambda: os.path.exists(f"/tmp/.X11-unix/X{number}") and os.path.exists(self.file))
        self.session.environment["DISPLAY"] = f":{number}"
        if self.scale != 1:
            self.session.environment["QT_SCALE_FACTOR"] = str(self.scale)
            self.session.environment["GDK_SCALE"] = str(self.scale)
        self.session.start(["xfwm4"])
        assert eventually(lambda: self.is_managed()), "the window manager does not start"
        empty = self.picture()
        self.session.start(["xfce4-panel", "--disable-wm-check"])
        assert eventually(lambda: empty.difference(self.picture())), "the panel does not start"
        eventually(lambda: not self.moves())
        area = empty.difference(self.picture())
        self.panel = (self.edge, area[3] - area[1])

    def is_managed(self):
        return b"window id" in self.session.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")

    def moves(self):
        before = self.picture()
        time.sleep(0.3)
        return before.difference(self.picture())

    def picture(self):
        with open(self.file, "rb") as file:
            return Picture.from_xwd(file.read())

    def press(self, x, y):
        self.session.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1", "sleep", "0.05", "mouseup", "1")

    def rest(self):
        time.sleep(0.1)  # in which the panel hands the press on
        self.session.run("xdotool", "mousemove", "9", str(self.screen[1] // 2))

    def escape(self):
        self.session.run("xdotool", "key", "Escape")

    def steps_aside(self):
        width, height = self.screen
        return {
            "a press on the bare desktop": lambda: self.press(width // 4, height // 2),
            "another workspace": lambda: self.session.run("xdotool", "set_desktop", "1"),
        }

    def tidy(self):
        self.session.run("xdotool", "set_desktop", "0")


CASES = [("top", 1), ("bottom", 1), ("top", 2), ("bottom", 2)]


def main():
    binaries, pictures = sys.argv[1:3]
    for edge, scale in CASES if "--all" in sys.argv else CASES[:1]:
        with Session(binaries) as session:
            desktop = Xfce(session, edge, scale)
            desktop.start()
            Walk(desktop, pictures).run()


if __name__ == "__main__":
    main()
