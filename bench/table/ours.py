"""What the own programs cost. Each function gives medians of what it measured."""
import json
import pathlib
import statistics
import subprocess
import time

import process
from stage import Crowd, Stage, wait_for


class Programs:
    def __init__(self, build):
        self.quelby = build / "bin/quelby"
        self.quelbyctl = build / "bin/quelbyctl"
        self.limiter = build / "libexec/quelby/pwr_limiter"
        self.cycle_bench = build / "bin/cycle_bench"


class Pace:
    """How thoroughly it is measured."""

    def __init__(self, briefly):
        self.rounds = 1 if briefly else 5
        self.seconds = 1 if briefly else 9  # three cycles
        self.settling = 1 if briefly else 5
        self.closed = 0 if briefly else 63  # after which the closed dashboard has been given back
        self.processes = 60 if briefly else 500
        self.lines = (2, 4) if briefly else (10, 60)


def medians(measured):
    """Of dictionaries with the same keys."""
    return {key: statistics.median(each[key] for each in measured) for key in measured[0]}


def cycles(programs, pace):
    """CPU milliseconds, and what they are to a bare scan, by how many processes ran."""
    briefly = [] if pace.rounds > 1 else ["--briefly"]
    lines = subprocess.run([programs.cycle_bench, *briefly], capture_output=True, text=True, check=True).stdout.splitlines()
    rows = [line.split() for line in lines[1:]]
    count = "500" if pace.rounds > 1 else rows[0][0]
    ran = {f"1 in {count}": "asleep", "1 in 5": "one in five", "1 in 1": "all"}
    result = {}
    for row in rows:
        if row[0] == count:
            result[ran[" ".join(row[1:4])]] = float(row[8])
            result["scan"] = float(row[6])
    return result


def watch(programs, pace):
    """CPU milliseconds of a cycle of `quelbyctl watch --json`."""
    def once():
        with Stage(panel=False) as stage:
            command = [programs.quelbyctl, "watch", "--json", "--interval", "0.2", "--sysfs-root", stage.laptop.root]
            first, last = pace.lines
            with subprocess.Popen(command, env=stage.environment, stdout=subprocess.PIPE) as running:
                used = []
                for number, _ in enumerate(running.stdout, start=1):
                    if number in pace.lines:
                        used.append(process.cpu_seconds(running.pid))
                    if number == last:
                        running.terminate()
                        break
            return {"cycle": (used[1] - used[0]) / (last - first) * 1000}
    return medians([once() for _ in range(pace.rounds)])["cycle"]


class Tray:
    """The program in the tray of a stage."""

    def __init__(self, stage, programs):
        self.stage = stage
        self.program = programs.quelby
        self.process = stage.start(programs.quelby, "--background", "--sysfs-root", stage.laptop.root,
                                   "--data-dir", stage.folder + "/history", stderr=stage.log("quelby"))
        self.pid = self.process.pid

    def milliseconds_of(self, action, done, what):
        """CPU time from the action until all that it led to is drawn."""
        before = process.cpu_seconds(self.pid)
        action()
        wait_for(lambda: done() or self.process.poll() is not None, what)
        if self.process.poll() is not None:
            raise RuntimeError(f"the program in the tray ended: {self.stage.last_words('quelby')}")
        return (process.at_rest(self.pid) - before) * 1000

    def open(self):
        """By a second start, which has its own CPU time."""
        return self.milliseconds_of(lambda: self.stage.start(self.program), self.stage.window_shown, "the dashboard")

    def close(self):
        self.stage.run("xdotool", "key", "Escape")  # to the window with the focus
        wait_for(lambda: not self.stage.window_shown(), "the end of the dashboard")
        process.at_rest(self.pid)

    def windows(self, pace):
        measured = []
        for _ in range(pace.rounds):
            window = process.Window(self.pid)
            time.sleep(pace.seconds)
            measured.append(window.close())
        return {**medians(measured), **process.memory(self.pid)}


def openings(programs, pace):
    """Alone on the machine: start, the first opening and a later one in CPU milliseconds, memory before and while open."""
    def once():
        with Stage() as stage:
            tray = Tray(stage, programs)
            time.sleep(0.5)
            result = {"start": process.at_rest(tray.pid) * 1000}
            time.sleep(pace.settling)
            result.update({f"never opened, {kind}": size for kind, size in process.memory(tray.pid).items()})
            result["first press"] = tray.open()
            time.sleep(pace.settling)
            result.update({f"open, {kind}": size for kind, size in process.memory(tray.pid).items()})
            tray.close()
            result["later press"] = tray.open()
            return result
    return medians([once() for _ in range(pace.rounds)])


def after_closing(programs, pace):
    """A minute after the dashboard was closed: memory, and the next opening. All rounds wait at the same time."""
    stages = [Stage(panel=False) for _ in range(pace.rounds)]
    try:
        trays = [Tray(stage.__enter__(), programs) for stage in stages]
        time.sleep(pace.settling)
        for tray in trays:
            tray.open()
            tray.close()
        time.sleep(pace.closed)
        return medians([{"dirty": process.memory(tray.pid)["dirty"], "press": tray.open()} for tray in trays])
    finally:
        for stage in stages:
            stage.__exit__()


def states(programs, pace):
    """The program in the tray over a while: closed and open, each while figures rest and while they change."""
    with Stage() as stage:
        tray = Tray(stage, programs)
        time.sleep(pace.settling)
        result = {}
        for state in ("closed", "open"):
            if state == "open":
                tray.open()
                time.sleep(pace.settling)
            result[state, "at rest"] = tray.windows(pace)
            stage.laptop.become_lively()
            time.sleep(1)
            result[state, "changing"] = tray.windows(pace)
            stage.laptop.settle()
            time.sleep(pace.settling)
        return result


def headless(programs, pace):
    """The recorder without a display: CPU milliseconds to its first line, and what it costs over a while."""
    def once():
        with Stage(panel=False) as stage:
            running = stage.start(programs.quelby, "--headless", "--sysfs-root", stage.laptop.root,
                                  "--data-dir", stage.folder + "/history", stdout=subprocess.PIPE)
            running.stdout.readline()
            first = process.cpu_seconds(running.pid) * 1000
            time.sleep(pace.settling)
            window = process.Window(running.pid)
            time.sleep(pace.seconds)
            return {"first line": first, **window.close(), **process.memory(running.pid)}
    return medians([once() for _ in range(pace.rounds)])


CONFIG = {"chargeLimitEnabled": True, "chargeLimitPercent": 72, "calibrationEnabled": False,
          "calibrationIntervalDays": 30, "lastCalibrationTimestamp": 0}


def limiter(programs, pace):
    """The charge-limit helper while it holds a battery at its limit."""
    with Stage(panel=False) as stage:
        stage.laptop.hold()
        shared = pathlib.Path(stage.folder, "shared")
        shared.mkdir()
        (shared / "config.json").write_text(json.dumps(CONFIG))
        running = stage.start(programs.limiter, "--folder", shared, "--state", stage.folder + "/state",
                              "--sysfs-root", stage.laptop.root)
        time.sleep(pace.settling + 4)  # in which it looks twice whether the battery is held
        window = process.Window(running.pid)
        time.sleep(pace.seconds * pace.rounds)
        if not json.loads((shared / "status.json").read_text())["chargingInhibited"]:
            raise RuntimeError("the battery was not held")
        return {**window.close(), **process.memory(running.pid)}


def everything(programs, pace):
    with Crowd(pace.processes):
        result = {"headless": headless(programs, pace), "limiter": limiter(programs, pace),
                  "openings": openings(programs, pace), "watch": watch(programs, pace),
                  "states": states(programs, pace), "after closing": after_closing(programs, pace)}
    result["cycles"] = cycles(programs, pace)
    return result
