#!/usr/bin/env python3
"""Where the energy went, computed a second time from a recording alone, and compared with what quelbyctl tells.

energy.py QUELBYCTL SOURCES records every recorded machine and some days made here, and asks for what was kept of them.
"""
import collections
import json
import math
import os
import pathlib
import random
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True  # the folder of the sources stays as it is

from figures import share_and_name, trimmed  # noqa: E402
from oracle import Monitor  # noqa: E402

HOURS_OF_A_CYCLE = 3 / 3600
SHORTEST_SLEEP_SECONDS = 60
SHORTEST_SESSION_SECONDS = 60
DAY = 86400
UTC = {**os.environ, "TZ": "UTC0"}


def recorded_cycles(lines):
    """Each line with the fields after it; of several within a second only the first is kept."""
    monitor, last_second = Monitor(), None
    for line in lines:
        fields = monitor.cycle(line)
        if int(line["time"]) != last_second:
            yield line, fields
        last_second = int(line["time"])


def energy_by(lines):
    """Watt-hours by application, by component and by hour."""
    apps, components, hours = collections.Counter(), collections.Counter(), collections.Counter()
    for line, fields in recorded_cycles(lines):
        wh = fields["totalPower"] * HOURS_OF_A_CYCLE
        hours[math.floor(line["time"] / 3600) * 3600] += wh
        parts = {"cpu": "cpuPower", "graphics": "gpuPower", "memory": "memPower", "storage": "diskPower",
                 "network": "netPower"}
        for name, field in parts.items():
            components[name] += fields[field] * HOURS_OF_A_CYCLE
            wh -= fields[field] * HOURS_OF_A_CYCLE
        components["rest"] += wh
        for name, watts in app_watts(line, fields).items():
            apps[name] += watts * HOURS_OF_A_CYCLE
    return apps, components, hours


def app_watts(line, fields):
    listing = line.get("applicationListing") or line["topListing"] or ""
    shares = collections.Counter()
    for piece in listing.split("\n")[1:]:
        share, name = share_and_name(trimmed(piece))
        if share is not None and share > 0:
            shares[name] += share
    if not shares:
        return {"system": fields["totalPower"]}
    whole = sum(shares.values())
    watts = {name: fields["cpuPower"] * share / whole for name, share in shares.items()}
    return watts | {"system": fields["totalPower"] - fields["cpuPower"]}


def sleeps_in(lines):
    """Start, end, seconds, percent before and after, and watt-hours of each; the latest first."""
    cycles, found = list(recorded_cycles(lines)), []
    for (before, fields_before), (after, fields_after) in zip(cycles, cycles[1:]):
        if "sinceBoot" not in before or "sinceBoot" not in after:
            continue
        asleep = after["sinceBoot"]["asleep"] - before["sinceBoot"]["asleep"]
        if asleep >= SHORTEST_SLEEP_SECONDS:
            found.insert(0, (int(before["time"]), int(after["time"]), int(asleep), fine_percent(fields_before),
                             fine_percent(fields_after), held(fields_before) - held(fields_after)))
    return found


def fine_percent(fields):
    return fields["rawCurrentCapacity"] * 100 / fields["rawMaxCapacity"]


def held(fields):
    return fields["rawCurrentCapacity"] * fields["voltage"] / 1000


def sessions_in(lines):
    """Kind, start, end, first and last percent of each time on battery and of charging; the latest first."""
    found = []
    for line, fields in recorded_cycles(lines):
        flow = "discharge" if not fields["isPluggedIn"] else "charge" if fields["isCharging"] else None
        kind = flow if fields["hasBattery"] else None
        if not found or found[0][0] != kind:
            found.insert(0, [kind, int(line["time"]), 0, fields["batteryPercent"], 0])
        found[0][2], found[0][4] = int(line["time"]), fields["batteryPercent"]
    return [tuple(one) for one in found if one[0] and one[2] - one[1] >= SHORTEST_SESSION_SECONDS]


def battery_days_in(lines):
    days = {}
    for line, fields in recorded_cycles(lines):
        if fields["hasBattery"] and fields["rawMaxCapacity"] > 100:
            day = math.floor(line["time"] / DAY) * DAY
            hottest = max(days.get(day, (0, 0, 0, -math.inf))[3], fields["batteryTemp"] or -math.inf)
            days[day] = (fields["rawMaxCapacity"], fields["designCapacity"] or None, fields["cycleCount"], hottest)
    return [(day, *rest[:3], None if rest[3] == -math.inf else rest[3]) for day, rest in sorted(days.items())]


def made_day(seed):
    """A laptop's evening and morning, with a sleep across midnight and the cable in and out."""
    rng = random.Random(seed)
    time, awake, asleep = 1700000000.0 + rng.random() * DAY, 500.0, 0.0
    charge, plugged = rng.randint(2000, 4500), False
    for number in range(4000):
        if number == 1500:  # a night
            slept = 30000 + rng.random() * 9000
            time, asleep, charge = time + slept, asleep + slept, max(charge - rng.randint(20, 900), 300)
        if number % 311 == 0:
            plugged = not plugged
        charge = min(charge + 1, 4700) if plugged else max(charge - 1, 200)
        shares = [(name, round(rng.random() * 30, 2)) for name in ("browser", "editor, the \"big\" one", "mail")]
        yield {"time": time, "battery": {
            "DesignCapacity": 5000, "AppleRawMaxCapacity": 4700 - number // 1000, "AppleRawCurrentCapacity": charge,
            "CycleCount": 99, "IsCharging": plugged, "ExternalConnected": plugged, "Voltage": 11800 + number % 300,
            "InstantAmperage": 900 if plugged else -rng.randint(300, 2500), "Temperature": 2900 + number % 500},
            "processors": 4, "cpuListing": "%CPU\n" + "".join(f"{share}\n" for _, share in shares),
            "topListing": "%CPU COMM\n" + "".join(f"{share} {name}-bin\n" for name, share in shares),
            "applicationListing": "%CPU APPLICATION\n" + "".join(f"{share} {name}\n" for name, share in shares),
            "sinceBoot": {"awake": awake, "asleep": asleep}, "storageDraw": number % 2}
        time, awake = time + 3, awake + 3


class Comparison:
    def __init__(self, program, recording, data):
        self.program, self.arguments = program, ["--replay", recording, "--data-dir", data]
        self.name, self.differences = recording.name, []
        recorder = pathlib.Path(program).with_name("quelby")
        subprocess.run([recorder, "--headless", "--fast", *self.arguments], check=True, capture_output=True, env=UTC)

    def ask(self, *words):
        output = subprocess.run([self.program, *words, "--json", *self.arguments], check=True, capture_output=True,
                                text=True, env=UTC).stdout
        return json.loads(output)

    def equal(self, what, told, computed):
        same = len(told) == len(computed) and all(
            one == other or isinstance(one, float) and math.isclose(one, other, rel_tol=1e-9, abs_tol=1e-9)
            for one, other in zip(told, computed))
        if not same:
            self.differences.append(f"{self.name}: {what}: {told} is told, {computed} computed")

    def energy(self, by, key, computed):
        rows = {row[key]: row["wattHours"] for row in self.ask("energy", "--range", "30d", "--by", by)["rows"]}
        self.equal(f"names by {by}", sorted(rows), sorted(computed))
        for name in rows:
            self.equal(f"{name} by {by}", [rows[name]], [computed[name]])

    def whole(self, lines):
        apps, components, hours = energy_by(lines)
        self.energy("app", "name", apps)
        self.energy("component", "name", components)
        self.energy("hour", "start", hours)
        for told, computed in zip(self.ask("sleeps")["sleeps"], sleeps_in(lines), strict=True):
            keys = ("start", "end", "seconds", "percentBefore", "percentAfter", "wattHours")
            self.equal("a sleep", [told[key] for key in keys], computed)
            hours_asleep = computed[2] / 3600
            self.equal("what it cost", [told["watts"], told["percentPerHour"]],
                       [computed[5] / hours_asleep, (computed[3] - computed[4]) / hours_asleep])
        for told, computed in zip(self.ask("sessions")["sessions"], sessions_in(lines), strict=True):
            keys = ("kind", "start", "end", "percentFrom", "percentTo")
            self.equal("a session", [told[key] for key in keys], computed)
        for told, computed in zip(self.ask("health")["days"], battery_days_in(lines), strict=True):
            keys = ("day", "fullCapacity", "designCapacity", "cycleCount", "maxTemperature")
            self.equal("a day", [told[key] for key in keys], computed)
        today, history = self.ask("energy")["totalWh"], self.ask("history")["todayWh"]
        # The history counts two minutes too much at the most where its readings end, and one at each end of a sleep.
        most_watts = max(fields["totalPower"] for _, fields in recorded_cycles(lines))
        minutes = 0 if len(lines) < 2400 else 2 + 2 * len(sleeps_in(lines))
        if abs(today - history) > max(history / 100, minutes * most_watts / 60):
            self.differences.append(f"{self.name}: {today} Wh today, but {history} Wh by the history")
        return self.differences


def main(program, sources):
    differences = []
    with tempfile.TemporaryDirectory() as folder:
        recordings = sorted((sources / "resources/recordings").glob("*.jsonl"))
        for seed in range(2):
            made = pathlib.Path(folder) / f"made-day-{seed}.jsonl"
            made.write_text("".join(json.dumps(line) + "\n" for line in made_day(seed)), encoding="utf-8")
            recordings.append(made)
        for recording in recordings:
            lines = [json.loads(line) for line in recording.read_text(encoding="utf-8").split("\n") if line]
            data = pathlib.Path(folder) / recording.stem
            differences += Comparison(program, recording, data).whole(lines)
    print("\n".join(differences) or f"{len(recordings)} recordings: every figure is equal")
    return 1 if differences or len(recordings) < 6 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2])))
