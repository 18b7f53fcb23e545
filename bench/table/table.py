#!/usr/bin/env python3
"""One table of what the programs cost, each figure beside its goal, and beside what others need for comparable work.

  table.py BUILD [--briefly] [--with-peers]

BUILD is the folder of the release preset. Everything runs on a display and a bus of its own, with a made-up laptop's
battery, among 500 processes that sleep; where the system allows it, apart from the machine's other processes. Each figure
is a median of five. Briefly, everything is done once; the figures mean nothing then.
"""
import os
import pathlib
import platform
import re
import sys

import disk
import ours
import peers
import stage

# What is stated, not measured: a laptop's processor that leaves its deepest sleep once, and that works for a second.
JOULES_PER_WAKE_UP = 0.0001
JOULES_PER_CPU_SECOND = 3.0

RECORDING = pathlib.Path(__file__).parents[2] / "resources/recordings/laptop-on-battery.jsonl"


def joules_an_hour(window):
    return 3600 * (window["wake-ups"] * JOULES_PER_WAKE_UP + window["cpu"] / 100 * JOULES_PER_CPU_SECOND)


def goals(measured, disk_hour):
    """Name, unit, what was measured and what it may be at most."""
    cycles, states = measured["cycles"], measured["states"]
    openings, closed = measured["openings"], measured["after closing"]
    closed_rest, closed_change = states["closed", "at rest"], states["closed", "changing"]
    return [
        ("one cycle, all asleep, to a bare scan", "", cycles["asleep"], 0.20),
        ("one cycle, one in five ran, to a bare scan", "", cycles["one in five"], 0.35),
        ("one cycle, all ran, to a bare scan", "", cycles["all"], 0.70),
        ("watch --json, a cycle, to a bare scan", "", measured["watch"] / cycles["scan"], 0.40),
        ("tray, closed, figures at rest: CPU", "% of a core", closed_rest["cpu"], 0.04),
        ("tray, closed, figures changing: CPU", "% of a core", closed_change["cpu"], 0.04),
        ("tray, closed, figures at rest: wake-ups", "a second", closed_rest["wake-ups"], 1.4),
        ("tray, closed, figures changing: wake-ups", "a second", closed_change["wake-ups"], 1.4),
        ("tray, open, figures at rest: CPU", "% of a core", states["open", "at rest"]["cpu"], 0.12),
        ("tray, open, figures gliding: CPU", "% of a core", states["open", "changing"]["cpu"], 0.30),
        ("proportional memory, never opened", "MB", openings["never opened, proportional"], 16),
        ("proportional memory, open", "MB", openings["open, proportional"], 42),
        ("proportional memory, headless", "MB", measured["headless"]["proportional"], 8),
        ("proportional memory, limiter", "MB", measured["limiter"]["proportional"], 3),
        ("private dirty memory, never opened", "MB", openings["never opened, dirty"], 3),
        ("private dirty memory, open", "MB", openings["open, dirty"], 12),
        ("private dirty memory, a minute after closing", "MB", closed["dirty"], 5),
        ("start to first title: CPU", "ms", openings["start"], 60),
        ("start to headless first line: CPU", "ms", measured["headless"]["first line"], 25),
        ("first press to first frame: CPU", "ms", openings["first press"], 60),
        ("later press to first frame: CPU", "ms", openings["later press"], 8),
        ("press after memory was given back: CPU", "ms", closed["press"], 35),
        ("recording: bytes", "kB an hour", disk_hour["kB"], 300),
        ("recording: flushes", "an hour", disk_hour["flushes"], 12),
    ]


def print_goals(rows):
    print(f"{'figure':<46}{'measured':>10}{'at most':>9}  {'':<12}")
    for name, unit, value, goal in rows:
        print(f"{name:<46}{value:>10.{3 if goal < 0.1 else 2 if goal < 10 else 1}f}{goal:>9g}  {unit:<12}"
              f"{'met' if value <= goal else 'MISSED'}")


def print_programs(measured, others):
    names = {("closed", "at rest"): "quelby, closed, at rest", ("closed", "changing"): "quelby, closed, changing",
             ("open", "at rest"): "quelby, open, at rest", ("open", "changing"): "quelby, open, gliding"}
    rows = {names[state]: (window, "yes") for state, window in measured["states"].items()}
    rows["quelby --headless"] = (measured["headless"], "yes")
    rows["pwr_limiter"] = (measured["limiter"], "no")
    history = {peer.program for peer in peers.PEERS if peer.history}
    rows.update({name: (window, "yes" if name in history else "no") for name, window in others.items()})
    print(f"{'program':<26}{'CPU, %':>9}{'wake-ups/s':>12}{'PSS, MB':>9}{'dirty, MB':>11}{'J an hour':>11}  has a history")
    for name, (window, has) in sorted(rows.items(), key=lambda row: joules_an_hour(row[1][0])):
        print(f"{name:<26}{window['cpu']:>9.3f}{window['wake-ups']:>12.2f}{window['proportional']:>9.1f}"
              f"{window['dirty']:>11.1f}{joules_an_hour(window):>11.2f}  {has}")


def machine():
    text = pathlib.Path("/proc/cpuinfo").read_text()
    model = re.search(r"^model name\s*:\s*(.*)$", text, re.M)
    memory = int(re.search(r"^MemTotal:\s+(\d+)", pathlib.Path("/proc/meminfo").read_text(), re.M)[1]) / 1024 / 1024
    return (f"{model[1] if model else platform.machine()}, {os.cpu_count()} cores, {memory:.0f} GB, "
            f"Linux {platform.release()}")


def main():
    flags = set(sys.argv[2:])
    if len(sys.argv) < 2 or flags - {"--briefly", "--with-peers"}:
        sys.exit(__doc__)
    stage.apart_from_the_machine()
    briefly = "--briefly" in flags
    pace = ours.Pace(briefly)
    programs = ours.Programs(pathlib.Path(sys.argv[1]).resolve())
    loads = [os.getloadavg()[0]]
    measured = ours.everything(programs, pace)
    loads.append(os.getloadavg()[0])
    others, skipped = peers.everything(pace) if "--with-peers" in flags else ({}, {})
    loads.append(os.getloadavg()[0])
    disk_hour = disk.recorded_hour(programs.quelby, RECORDING, briefly)
    print(f"{machine()}; load {min(loads):.1f} to {max(loads):.1f}; a bare scan takes {measured['cycles']['scan']:.2f} ms")
    print_goals(goals(measured, disk_hour))
    print(f"\n{JOULES_PER_WAKE_UP * 1000:g} mJ for a wake-up and {JOULES_PER_CPU_SECOND:g} J for a CPU second, as stated here")
    print_programs(measured, others)
    if others and not any(pathlib.Path("/sys/class/power_supply").glob("BAT*")):
        idle = [peer.program for peer in peers.PEERS if peer.blind and peer.program in others]
        print(f"Without a battery of the machine's own these have nothing to do: {', '.join(idle)}")
    for program, reason in skipped.items():
        print(f"{program} cannot be measured here: {reason}")


if __name__ == "__main__":
    main()
