#!/usr/bin/env python3
"""What the program in the tray costs as a whole: memory, CPU time and wake-ups, with the dashboard closed and open.

  whole_program.py PROGRAM SECONDS [--briefly]

Runs PROGRAM on this machine's own processes under a display and a bus of its own (Xvfb, openbox, dbus-daemon) and
measures each state for so many seconds. The baseline of each figure is the state before the first opening.
Briefly, it does not wait until the closed dashboard is given back.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time


def proportional_kib(pid):
    rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return int(re.search(r"^Pss:\s+(\d+) kB", rollup, re.M)[1])


def resident_kib(pid):
    return int(re.search(r"VmRSS:\s+(\d+) kB", pathlib.Path(f"/proc/{pid}/status").read_text())[1])


def cpu_seconds(pid):
    return int(pathlib.Path(f"/proc/{pid}/schedstat").read_text().split()[0]) / 1e9


def wake_ups(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status, re.M)[1])


def wait_for(condition, what):
    end = time.monotonic() + 30
    while not condition():
        if time.monotonic() > end:
            sys.exit(f"the dashboard was not {what}")
        time.sleep(0.05)


class Session:
    """A display with a window manager and a bus."""

    def __init__(self, folder):
        self.processes = []
        self.environment = dict(os.environ, HOME=folder, XDG_RUNTIME_DIR=folder)
        for name in ("WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_DATA_HOME", "XDG_CONFIG_HOME"):
            self.environment.pop(name, None)
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x900x24"], pass_fds=[writing])
        os.close(writing)
        self.environment["DISPLAY"] = ":" + os.fdopen(reading).readline().strip()
        bus = self.start(["dbus-daemon", "--session", "--print-address", "--nofork"], stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.start(["openbox"])

    def start(self, words, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(words, env=self.environment, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def run(self, *words):
        return subprocess.run(words, env=self.environment, capture_output=True, text=True).stdout

    def window_shown(self):
        return self.run("xdotool", "search", "--onlyvisible", "--name", "^Quelby$").strip() != ""

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()


def measured(pid, seconds):
    before = cpu_seconds(pid), wake_ups(pid)
    time.sleep(seconds)
    after = cpu_seconds(pid), wake_ups(pid)
    return {"proportional MB": proportional_kib(pid) / 1024, "resident MB": resident_kib(pid) / 1024,
            "CPU, % of a core": (after[0] - before[0]) / seconds * 100,
            "wake-ups a second": (after[1] - before[1]) / seconds}


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    program, seconds = sys.argv[1], float(sys.argv[2])
    brief = sys.argv[3:] == ["--briefly"]
    with tempfile.TemporaryDirectory() as folder:
        session = Session(folder)
        try:
            pid = session.start([program, "--background"]).pid
            time.sleep(5)  # its first cycle opens every process
            states = {"never opened": measured(pid, seconds)}
            session.run(program)
            wait_for(session.window_shown, "shown")
            states["open"] = measured(pid, seconds)
            session.run("xdotool", "key", "Escape")  # to the window with the focus
            wait_for(lambda: not session.window_shown(), "closed")
            states["closed again"] = measured(pid, seconds)
            if not brief:
                time.sleep(max(0, 65 - seconds))
                states["given back"] = measured(pid, seconds)
        finally:
            session.end()
    print(f"{len(os.listdir('/proc'))} entries in /proc; {seconds:.0f} s each")
    print(f"{'':<20}" + "".join(f"{name:>16}{'ratio':>7}" for name in states))
    for figure, baseline in states["never opened"].items():
        row = "".join(f"{state[figure]:>16.2f}{state[figure] / baseline if baseline else 0:>7.2f}"
                      for state in states.values())
        print(f"{figure:<20}{row}")


if __name__ == "__main__":
    main()
