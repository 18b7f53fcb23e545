#!/usr/bin/env python3
"""The panel and the window manager of XFCE on a screen that nobody sees."""

from walk import walk_through
from x_desktop import XDesktop

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


class Xfce(XDesktop):
    kind = "XFCE"
    manager = ["xfwm4"]
    panel_command = ["xfce4-panel", "--disable-wm-check"]

    def __init__(self, session, edge, scale):
        super().__init__(session, edge, scale)
        channels = "config/xfce4/xfconf/xfce-perchannel-xml/"
        position = "p=6;x=0;y=0" if edge == "top" else "p=10;x=0;y=0"
        session.write(channels + "xfce4-panel.xml", PANEL.format(position=position, size=28))
        session.write(channels + "xfwm4.xml", MANAGER)
        session.write(channels + "xsettings.xml", SETTINGS.format(scale=scale))

    def go_dark(self):
        self.session.run("xfconf-query", "-c", "xsettings", "-p", "/Net/ThemeName", "-n", "-t", "string", "-s",
                         "Adwaita-dark")
        self.session.start(["xfsettingsd", "--no-daemon"])


CASES = [("top", 1), ("bottom", 1), ("top", 2), ("bottom", 2)]

if __name__ == "__main__":
    walk_through(Xfce, CASES)
