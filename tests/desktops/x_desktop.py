"""A desktop of X11 on a screen that nobody sees. What is on it: a window manager and a panel."""

import os
import time

from picture import Picture
from session import eventually


class XDesktop:
    """Has besides: kind, manager, the command of the window manager, and panel_command."""

    aside = 0
    is_main = True
    points = (1280, 800)

    def __init__(self, session, edge, scale):
        self.name = f"{self.kind} with its panel at the {edge}, scale {scale}"
        self.session = session
        self.scale = scale
        self.screen = (self.points[0] * scale, self.points[1] * scale)
        self.edge = edge
        self.panel = None  # as deep as it turns out to be

    def start(self):
        self.start_screen()
        self.scale_programs()
        self.session.share_environment()
        self.session.start(self.manager)
        assert eventually(self.is_managed), "the window manager does not start"
        self.start_panel()

    def start_screen(self):
        frame = self.session.path("frame")
        os.makedirs(frame, exist_ok=True)
        os.chmod(frame, 0o777)
        number = next(n for n in range(90, 190) if not os.path.exists(f"/tmp/.X11-unix/X{n}"))
        width, height = self.screen
        self.server = self.session.start(["Xvfb", f":{number}", "-screen", "0", f"{width}x{height}x24", "-nolisten",
                                          "tcp", "-noreset", "-nocursor", "-wr", "-fbdir", frame])
        self.file = os.path.join(frame, "Xvfb_screen0")
        assert eventually(lambda: os.path.exists(f"/tmp/.X11-unix/X{number}") and os.path.exists(self.file))
        self.display = f":{number}"
        self.session.environment["DISPLAY"] = self.display

    def scale_programs(self):
        if self.scale != 1:
            self.session.environment["QT_SCALE_FACTOR"] = str(self.scale)
            self.session.environment["GDK_SCALE"] = str(self.scale)

    def start_panel(self):
        """On an empty screen, so that its depth is that of what comes."""
        empty = self.picture()
        self.session.start(self.panel_command)
        assert eventually(lambda: empty.difference(self.picture())), "the panel does not start"
        eventually(lambda: not self.moves())
        area = empty.difference(self.picture())
        self.panel = (self.edge, area[3] - area[1])

    def is_managed(self):
        return b"window id" in self.session.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")

    def input(self, *words):
        self.session.run("xdotool", *words, DISPLAY=self.display)

    def moves(self):
        before = self.picture()
        time.sleep(0.3)
        return before.difference(self.picture())

    def picture(self):
        with open(self.file, "rb") as file:
            return Picture.from_xwd(file.read())

    def press(self, x, y):
        self.input("mousemove", str(x), str(y), "mousedown", "1", "sleep", "0.05", "mouseup", "1")

    def rest(self):
        time.sleep(0.1)  # in which the panel hands the press on
        self.input("mousemove", "9", str(self.screen[1] // 2))

    def escape(self):
        self.input("key", "Escape")

    def steps_aside(self):
        width, height = self.screen
        return {
            "a press on the bare desktop": lambda: self.press(width // 4, height // 2),
            "another workspace": lambda: self.input("set_desktop", "1"),
        }

    def tidy(self):
        self.input("set_desktop", "0")
