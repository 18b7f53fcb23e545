#!/usr/bin/env python3
"""Makes the recorded machines in this folder.

  make_recordings.py           writes every recording anew
  make_recordings.py --check   says which recordings differ from what would be written

Each machine is a small simulation: processes whose appetite changes from phase to phase, a power that follows
their load, and a battery that loses or gains what that power asks for. Every run gives the same files.
"""
import json
import math
import pathlib
import random
import sys

FOLDER = pathlib.Path(__file__).resolve().parent
CYCLE_SECONDS = 3
START = 1_760_000_000  # 2025-10-09 08:53:20 UTC

# name, share of one processor at rest (%), and by how much it grows with each kind of work
PROCESSES = [
    ("firefox", 4.0, {"browse": 38, "video": 22}),
    ("Web Content", 2.5, {"browse": 55, "video": 12}),
    ("Isolated Web Content", 1.0, {"browse": 18}),
    ("cc1plus", 0.0, {"build": 190}),
    ("ninja", 0.0, {"build": 3}),
    ("ld", 0.0, {"build": 24}),
    ("code", 1.8, {"browse": 3, "build": 9}),
    ("gnome-shell", 2.2, {"browse": 9, "video": 6, "build": 2}),
    ("Xwayland", 0.6, {"browse": 4, "video": 3}),
    ("pipewire", 0.3, {"video": 4}),
    ("RDD Process", 0.0, {"video": 31}),
    ("thunderbird", 0.7, {"browse": 2}),
    ("tracker-miner-fs-3", 0.1, {"build": 6}),
    ("systemd", 0.02, {}),
    ("dbus-daemon", 0.1, {"browse": 0.4}),
    ("NetworkManager", 0.05, {"browse": 0.5, "video": 0.4}),
    ("kworker/u16:3-events_unbound", 0.2, {"build": 1.5}),
    ("kworker/2:1-i915-unordered", 0.15, {"video": 1.8}),
    ("irq/129-iwlwifi:queue_3", 0.1, {"browse": 0.8, "video": 1.2}),
    ("bash", 0.0, {}),
    ("quelby", 0.08, {}),
]
IDLE_PROCESSES = 60  # sleeping ones, which a listing holds as well


class Machine:
    """One simulated machine; step() gives one line of its recording."""

    def __init__(self, seed, phases, processors):
        self.random = random.Random(seed)
        self.phases = phases  # (cycles, kind of work, intensity 0..1)
        self.processors = processors
        self.cycle = 0
        self.intensity = 0.0

    def spread(self, amount):
        return (self.random.random() * 2 - 1) * amount

    def phase(self):
        cycle = self.cycle
        for cycles, work, intensity in self.phases:
            if cycle < cycles:
                return work, intensity
            cycle -= cycles
        return "rest", 0.0

    def shares(self):
        work, wanted = self.phase()
        self.intensity += (wanted - self.intensity) * 0.35
        pulse = 1 + 0.25 * math.sin(self.cycle / 3.1) + self.spread(0.2)
        shares = {}
        for name, rest, growth in PROCESSES:
            share = rest * (1 + self.spread(0.5)) + growth.get(work, 0) * self.intensity * pulse * (1 + self.spread(0.15))
            ticks = round(max(share, 0) * CYCLE_SECONDS)  # a processor's time comes in hundredths of a second
            shares[name] = ticks / CYCLE_SECONDS
        return shares

    def listings(self):
        shares = self.shares()
        idle = {f"helper-{number}": 0.0 for number in range(1, IDLE_PROCESSES + 1)}
        cpu = "%CPU\n" + "".join(f"{share:5.2f}\n" for share in {**shares, **idle}.values())
        busiest = sorted({**shares, **idle}.items(), key=lambda process: -process[1])[:25]
        top = " %CPU COMM\n" + "".join(f"{share:5.2f} {name}\n" for name, share in busiest)
        load = min(sum(shares.values()) / self.processors, 100)
        return cpu, top, load

    def battery(self, load):
        return None

    def helper(self):
        return {}

    def step(self):
        cpu, top, load = self.listings()
        line = {
            "time": START + self.cycle * CYCLE_SECONDS + round(0.2 + self.spread(0.05), 3),
            "battery": self.battery(load),
            "processors": self.processors,
            "cpuListing": cpu,
            "topListing": top,
            "storageDraw": self.random.randrange(2),
            **self.helper(),
        }
        self.cycle += 1
        return line


class Laptop(Machine):
    """A battery of three cells in series."""

    DESIGN = 5088  # mAh
    FULL = 4610
    RESISTANCE = 0.11  # ohms
    SYSTEM_REST = 5.2  # W
    SYSTEM_LOAD = 34.0  # W at full load

    def __init__(self, seed, phases, processors, charge, temperature):
        super().__init__(seed, phases, processors)
        self.charge = charge  # mAh
        self.temperature = temperature  # °C

    def system_watts(self, load):
        return self.SYSTEM_REST + self.SYSTEM_LOAD * load / 100 + self.spread(0.35)

    def open_voltage(self):
        level = self.charge / self.FULL
        return 10.35 + 1.55 * level + 0.75 * level**6 - 0.5 * math.exp(-level * 25)

    def flow(self, load):
        """mA (negative while discharging), charging, external power, full"""
        watts = self.system_watts(load)
        return -1000 * watts / self.open_voltage(), False, False, False

    def table(self, current, charging, external, full):
        voltage = self.open_voltage() + current / 1000 * self.RESISTANCE
        self.charge = min(max(self.charge + current * CYCLE_SECONDS / 3600, 0), self.FULL)
        self.temperature += (29 + abs(current) / 450 - self.temperature) * 0.01
        table = {
            "DesignCapacity": self.DESIGN,
            "AppleRawMaxCapacity": self.FULL,
            "AppleRawCurrentCapacity": round(self.charge),
            "CycleCount": 212,
            "IsCharging": charging,
            "ExternalConnected": external,
            "FullyCharged": full,
            "InstantAmperage": round(current),
            "Voltage": round(voltage * 1000),
            "Temperature": round(self.temperature * 10) * 10,
        }
        minutes = self.minutes_left(current, charging)
        if minutes is not None:
            table["TimeRemaining"] = minutes
        return table

    def minutes_left(self, current, charging):
        if current < 0:
            return round(self.charge / -current * 60)
        return round((self.FULL - self.charge) / current * 60) if charging and current > 0 else None

    def battery(self, load):
        return self.table(*self.flow(load))


class ChargingLaptop(Laptop):
    """Constant current, then constant voltage: the current falls as the battery fills."""

    def flow(self, load):
        missing = self.FULL - self.charge
        if missing < 2:
            self.charge = self.FULL
            return 0, False, True, True
        current = min(2600, 190 + missing * 34) * (1 + self.spread(0.02))
        return current, True, True, False


class HeldLaptop(Laptop):
    """The helper holds the charge at its limit, so the adapter feeds the system alone."""

    LIMIT = 80

    def flow(self, load):
        return 0, False, True, False

    def helper(self):
        status = {
            "daemonRunning": True,
            "chargingInhibited": True,
            "calibrationActive": False,
            "calibrationPhase": None,
            "batteryPercent": self.LIMIT,
            "lastUpdate": START + self.cycle * CYCLE_SECONDS,
        }
        config = {
            "chargeLimitEnabled": True,
            "chargeLimitPercent": self.LIMIT,
            "calibrationEnabled": True,
            "calibrationIntervalDays": 30,
            "lastCalibrationTimestamp": START - 12 * 24 * 60 * 60,
        }
        return {"status": compact(status), "helperLoaded": True, "config": compact(config)}


def compact(value):
    return json.dumps(value, separators=(",", ":"))


WORKING_DAY = [(25, "browse", 0.5), (20, "rest", 0.0), (35, "build", 0.9), (20, "browse", 0.8), (30, "video", 0.7),
               (20, "rest", 0.0)]
QUIET_DAY = [(40, "video", 0.6), (30, "rest", 0.0), (30, "browse", 0.6)]

RECORDINGS = {
    "laptop-on-battery": (Laptop(1, WORKING_DAY, 8, charge=3360, temperature=31), 150),
    "laptop-charging-to-full": (ChargingLaptop(2, QUIET_DAY, 8, charge=4300, temperature=32), 220),
    "laptop-held-at-limit": (HeldLaptop(3, QUIET_DAY, 8, charge=3700, temperature=29), 100),
    "desktop-without-battery": (Machine(4, WORKING_DAY, 12), 120),
}


def text(machine, cycles):
    return "".join(json.dumps(machine.step(), ensure_ascii=False) + "\n" for _ in range(cycles))


def main():
    checking = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not checking:
        sys.exit(__doc__)
    different = []
    for name, (machine, cycles) in RECORDINGS.items():
        file = FOLDER / f"{name}.jsonl"
        content = text(machine, cycles)
        if not checking:
            file.write_text(content, encoding="utf-8")
        elif not file.exists() or file.read_text(encoding="utf-8") != content:
            different.append(file.name)
    if different:
        sys.exit("not as this script makes them: " + ", ".join(different))


if __name__ == "__main__":
    main()
