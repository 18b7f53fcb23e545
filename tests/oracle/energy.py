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
import shutil
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
READINGS_KEPT = 7200
CYCLES_OF_A_LONG_DAY = 4 * 1200
UTC = {**os.environ, "TZ": "UTC0"}


def recorded_cycles(lines):
    """Each line with the fields after it; of several within a second only the first is kept."""
    monitor, last_second = Monitor(), None
    for line in lines:
        fields = monitor.cycle(line)
        if int(line["time"]) != last_second:
            yield line, fields
        last_second = int(line["time"])


def energy_by(cycles):
    """Watt-hours by application, by component and by hour."""
    apps, components, hours = collections.Counter(), collections.Counter(), collections.Counter()
    for line, fields in cycles:
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


def sleeps_in(cycles):
    """Start, end, seconds, percent before and after, and watt-hours of each; the latest first."""
    found = []
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


def sessions_in(cycles):
    """Kind, start, end, first and last percent of each time on battery and of charging; the latest first."""
    found = []
    for line, fields in cycles:
        flow = "discharge" if not fields["isPluggedIn"] else "charge" if fields["isCharging"] else None
        kind = flow if fields["hasBattery"] else None
        if not found or found[0][0] != kind:
            found.insert(0, [kind, int(line["time"]), 0, fields["batteryPercent"], 0])
        found[0][2], found[0][4] = int(line["time"]), fields["batteryPercent"]
    return [tuple(one) for one in found if one[0] and one[2] - one[1] >= SHORTEST_SESSION_SECONDS]


def battery_days_in(cycles):
    days = {}
    for line, fields in cycles:
        if fields["hasBattery"] and fields["rawMaxCapacity"] > 100:
            day = math.floor(line["time"] / DAY) * DAY
            hottest = max(days.get(day, (0, 0, 0, -math.inf))[3], fields["batteryTemp"] or -math.inf)
            days[day] = (fields["rawMaxCapacity"], fields["designCapacity"] or None, fields["cycleCount"], hottest)
    return [(day, *rest[:3], None if rest[3] == -math.inf else rest[3]) for day, rest in sorted(days.items())]


class Today:
    """What the history says of the day of the last cycle, as its header tells it, and what was really used."""

    def __init__(self, cycles):
        self.cycles, self.readings, self.minutes, self.aggregated = cycles, {}, {}, 0
        for line, fields in cycles:
            self.readings[int(line["time"])] = fields["totalPower"]
            if line["time"] - self.aggregated >= 60:
                self.aggregate(line["time"])
        self.now = cycles[-1][0]["time"]
        self.start, self.reach = math.floor(self.now / DAY) * DAY, int(self.now - READINGS_KEPT)

    def aggregate(self, now):
        self.aggregated = now
        sums = collections.defaultdict(lambda: [0.0, 0])
        for second, watts in self.readings.items():
            minute = sums[second // 60 * 60]
            minute[0], minute[1] = minute[0] + watts, minute[1] + 1
        self.minutes.update({minute: total / count for minute, (total, count) in sums.items()})
        reach = int(now - READINGS_KEPT)
        self.readings = {second: watts for second, watts in self.readings.items() if second >= reach}

    def by_history(self):
        counted = sum(watts for second, watts in self.readings.items() if second > self.start) * HOURS_OF_A_CYCLE
        return counted + sum(self.minutes[minute] for minute in self.counted_minutes()) / 60

    def counted_minutes(self):
        return [minute for minute in self.minutes if self.start <= minute < self.reach]

    def by_cycles(self):
        return sum(fields["totalPower"] for line, fields in self.cycles if line["time"] >= self.start) * HOURS_OF_A_CYCLE

    def too_much(self):
        """The three ways in which the history counts what was not used, each by itself."""
        counted = set(self.counted_minutes())
        twice = sum(watts for second, watts in self.readings.items() if second // 60 * 60 in counted)
        of_minutes = sum(fields["totalPower"] for line, fields in self.cycles if int(line["time"]) // 60 * 60 in counted)
        filled_up = sum(self.minutes[minute] for minute in counted) / 60 - of_minutes * HOURS_OF_A_CYCLE
        at_midnight = sum(fields["totalPower"] for line, fields in self.cycles if int(line["time"]) == self.start)
        return (twice - at_midnight) * HOURS_OF_A_CYCLE + filled_up


def made_day(seed, before, behind):
    """A laptop's evening and morning of so many cycles, with a sleep across midnight and the cable in and out."""
    rng = random.Random(seed)
    time, awake, asleep = 1700006400.0 - 3 * before - 1800 * rng.random(), 500.0, 0.0
    charge, plugged = rng.randint(2000, 4500), False
    for number in range(before + behind):
        if number == before:  # a night
            slept = 24000 + rng.random() * 9000
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
    def __init__(self, program, recording, lines):
        self.program, self.cycles, self.differences = program, list(recorded_cycles(lines)), []
        self.name, self.data = recording.name, recording.with_suffix("")
        recorder = pathlib.Path(program).with_name("quelby")
        subprocess.run([recorder, "--headless", "--fast", "--replay", recording, "--data-dir", self.data], check=True,
                       capture_output=True, env=UTC)
        self.end = recording.with_suffix(".end")  # the moment of its last cycle, which is when it is asked for
        self.end.write_text(json.dumps(lines[-1]) + "\n", encoding="utf-8")

    def ask(self, *words):
        output = subprocess.run([self.program, *words, "--json", "--replay", self.end, "--data-dir", self.data],
                                check=True, capture_output=True, text=True, env=UTC).stdout
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

    def whole(self):
        apps, components, hours = energy_by(self.cycles)
        self.energy("app", "name", apps)
        self.energy("component", "name", components)
        self.energy("hour", "start", hours)
        for told, computed in zip(self.ask("sleeps")["sleeps"], sleeps_in(self.cycles), strict=True):
            keys = ("start", "end", "seconds", "percentBefore", "percentAfter", "wattHours")
            self.equal("a sleep", [told[key] for key in keys], computed)
            hours_asleep = computed[2] / 3600
            self.equal("what it cost", [told["watts"], told["percentPerHour"]],
                       [computed[5] / hours_asleep, (computed[3] - computed[4]) / hours_asleep])
        for told, computed in zip(self.ask("sessions")["sessions"], sessions_in(self.cycles), strict=True):
            keys = ("kind", "start", "end", "percentFrom", "percentTo")
            self.equal("a session", [told[key] for key in keys], computed)
        for told, computed in zip(self.ask("health")["days"], battery_days_in(self.cycles), strict=True):
            keys = ("day", "fullCapacity", "designCapacity", "cycleCount", "maxTemperature")
            self.equal("a day", [told[key] for key in keys], computed)
        return self.differences

    def today(self):
        """The energy is that of every cycle. The history's sum is more, by what is known of it: readings at the end of
        their two hours count twice until they are removed, which is once a minute, as does the minute in which they
        end, two minutes at the most; a minute in which the computer slept for a part counts as a whole one; and the
        cycle of the day's first second counts for nothing. Where four hours have been recorded all of it is below 1 %."""
        model = Today(self.cycles)
        told, history = self.ask("energy")["totalWh"], self.ask("history")["todayWh"]
        self.equal("the energy of today", [told], [model.by_cycles()])
        self.equal("today by the history", [history], [model.by_history()])
        self.equal("what the history counts too much", [history - told], [model.too_much()])
        recorded = sum(line["time"] >= model.start for line, _ in self.cycles)
        if recorded >= CYCLES_OF_A_LONG_DAY and not abs(history - told) <= history / 100:
            self.differences.append(f"{self.name}: {told} Wh today, but {history} Wh by the history")


def main(program, sources):
    with tempfile.TemporaryDirectory() as folder:
        recordings = [pathlib.Path(shutil.copy(one, folder)) for one in (sources / "resources/recordings").glob("*.jsonl")]
        for seed, (before, behind) in enumerate(((600, 4800), (300, 900))):
            recordings.append(pathlib.Path(folder) / f"made-day-{seed}.jsonl")
            text = "".join(json.dumps(line) + "\n" for line in made_day(seed, before, behind))
            recordings[-1].write_text(text, encoding="utf-8")
        differences = []
        for recording in sorted(recordings):
            lines = [json.loads(line) for line in recording.read_text(encoding="utf-8").split("\n") if line]
            comparison = Comparison(program, recording, lines)
            if recording.name.startswith("made-day"):
                comparison.today()
            differences += comparison.whole()
    print("\n".join(differences) or f"{len(recordings)} recordings: every figure is equal")
    return 1 if differences or len(recordings) < 6 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2])))
