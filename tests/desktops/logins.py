#!/usr/bin/env python3
"""A person's two logins on LXQt with a real session manager: the program starts with the session, the computer sleeps,
the person logs out and in again, and the computer shuts down. Every ending is clean, and the history has it all."""

import json
import os
import signal
import sqlite3
import sys
import time

from lxqt import Lxqt
from session import ROOT, Session, eventually

MACHINE = "thinkpad-w540-discharging"
PANEL_ENTRY = "[Desktop Entry]\nType=Application\nName=Panel\nExec=lxqt-panel\nX-LXQt-Module=true\n"
# It tells how the program ended, whoever of the two is asked to end.
WATCHED = """#!/bin/sh
"{program}" --background --sysfs-root "{sysfs}" &
trap 'kill -TERM $!' TERM HUP
wait $!
status=$?
while kill -0 $! 2>/dev/null; do wait $!; status=$?; done
echo $status >> "{statuses}"
"""
OWN_ENTRY = "[Desktop Entry]\nType=Application\nName=Quelby\nExec={program}\n"
CYCLE = 3
ASLEEP = 4 * CYCLE


def require(condition, what):
    if not condition:
        raise SystemExit(f"two logins: {what}")


def supplies(machine):
    """Those of a recorded machine."""
    with open(os.path.join(ROOT, "tests/data/battery-machines.json"), encoding="utf-8") as file:
        return next(each["supplies"] for each in json.load(file) if each["name"] == machine)


class Person:
    """Has an account with a history, and logs in and out."""

    def __init__(self, session):
        self.session = session
        self.history = session.path("data/Quelby/history.db")
        self.statuses = session.path("statuses")
        for supply, attributes in supplies(MACHINE).items():
            for name, value in attributes.items():
                session.write(f"sys/class/power_supply/{supply}/{name}", f"{value}\n")
        watched = session.write("programs/watched", WATCHED.format(
            program=session.quelby[0], sysfs=session.path("sys"), statuses=self.statuses))
        os.chmod(watched, 0o755)
        session.write("config/autostart/com.quelby.Quelby.desktop", OWN_ENTRY.format(program=watched))
        session.write("etc/autostart/lxqt-panel.desktop", PANEL_ENTRY)

    def log_in(self):
        session = self.session
        session.start_bus()
        self.desktop = Lxqt(session, "bottom", 1)
        session.environment["XDG_CONFIG_DIRS"] = session.path("etc") + ":/usr/share"  # and nothing of this machine's
        session.environment["XDG_CURRENT_DESKTOP"] = "LXQt"
        self.desktop.start_screen()
        session.share_environment()
        self.manager = session.start(["lxqt-session", "-w", "openbox"])
        before = len(self.readings())
        require(eventually(lambda: len(self.readings()) >= before + 3, 60), "nothing is recorded after a login")

    def readings(self):
        """Their times."""
        try:
            with sqlite3.connect(f"file:{self.history}?mode=ro", uri=True) as database:
                return [time for time, in database.execute("SELECT timestamp FROM readings ORDER BY timestamp")]
        except sqlite3.Error:
            return []

    def processes(self):
        """All that run in the account's session."""
        mine = f"HOME={self.session.folder}".encode()
        found = []
        for pid in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{pid}/environ", "rb") as environment:
                    if mine in environment.read().split(b"\0"):
                        found.append(int(pid))
            except OSError:  # it ended meanwhile
                pass
        return found

    def send(self, number):
        for pid in self.processes():
            try:
                os.kill(pid, number)
            except ProcessLookupError:
                pass

    def sleep(self):
        """As far as the program can tell: nothing of the session runs for a while."""
        before = self.readings()
        self.send(signal.SIGSTOP)
        slept = time.time()
        time.sleep(ASLEEP)
        woke = time.time()
        self.send(signal.SIGCONT)
        require(eventually(lambda: len(self.readings()) >= len(before) + 3), "nothing is recorded after the sleep")
        meanwhile = [moment for moment in self.readings() if slept + 1 < moment < woke - 1]
        require(not meanwhile, f"recorded while asleep: {meanwhile}")

    def log_out(self):
        self.session.run("dbus-send", "--session", "--print-reply", "--dest=org.lxqt.session", "/LXQtSession",
                         "org.lxqt.session.logout")
        require(eventually(lambda: self.manager.poll() is not None), "the session does not end")
        self.leave()

    def shut_down(self):
        self.send(signal.SIGTERM)
        self.leave()

    def leave(self):
        """The display's manager ends the X server, and whatever is left after a while."""
        self.session.end(self.desktop.server)
        eventually(lambda: not self.processes(), 10)
        self.send(signal.SIGKILL)
        for process in list(self.session.processes):
            self.session.end(process)

    def endings(self):
        with open(self.statuses, encoding="utf-8") as file:
            return file.read().split()

    def check_history(self, expected):
        with sqlite3.connect(f"file:{self.history}?mode=ro", uri=True) as database:
            state = database.execute("PRAGMA integrity_check").fetchone()[0]
        require(state == "ok", f"the history is damaged: {state}")
        lost = sorted(set(expected) - set(self.readings()))
        require(not lost, f"readings were lost: {lost}")


def live_through(person, pictures):
    os.makedirs(pictures, exist_ok=True)
    person.log_in()
    person.sleep()
    person.desktop.picture().write_png(os.path.join(pictures, "first-login.png"))
    first = person.readings()
    person.log_out()
    require(eventually(lambda: os.path.exists(person.statuses) and len(person.endings()) == 1), "it outlives a logout")
    require(person.endings() == ["0"], f"it ended with {person.endings()} at the logout")
    person.check_history(first)
    person.log_in()
    person.desktop.picture().write_png(os.path.join(pictures, "second-login.png"))
    second = person.readings()
    person.shut_down()
    require(person.endings() == ["0", "0"], f"it ended with {person.endings()} at the shutdown")
    person.check_history(first + second)
    print(f"two logins: as it should be, {len(person.readings())} readings")


if __name__ == "__main__":
    with Session(sys.argv[1]) as the_session:
        live_through(Person(the_session), sys.argv[2])
