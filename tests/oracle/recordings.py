"""Random recordings, the same for the same seed. No value is so large that 64-bit arithmetic would overflow."""
import json

from batteries import Laptop, any_table, random_boundary_battery
from listings import random_cpu_listing, random_top_listing

STARTS = (1700000000, 1700000000.0, 1700000000.1, 1712345678.25, 0, 3.0, 29.9, 30, 1000.5)
STEPS = (0, 0.25, 3, 3.0, 29.9, 29.999, 30, 30.0, 30.1, 61.5, 3600, 7200.0, 50000, -3, -0.5, -40.0, -3600)
PACES = (None, 3, 3.0, 3.01, 10, 29.9, 29.999, 30, 30.0, 30.001, 75, 900.0)
STATUSES = ("", "{", '{"currentLimit": 80, "isInhibited": true}', '{"isInhibited": false, "lastUpdate": 1}')
SEPARATORS = ((",", ":"), (", ", ": "), (" , ", "  :  "))
UNKNOWN = (("comment", "\u00e4 \u2603"), ("Battery", None), ("", 0), ("nested", {"time": [1, None]}))


def random_recording(rng, cycles):
    """The text of a recording. One in five is long enough that the oldest figures fall out of every list."""
    length = cycles * 2 if rng.random() < 0.2 else cycles
    processors = rng.choice((1, 1, 2, 4, 8, 10, 256, rng.randint(1, 256)))
    laptop, oddity = Laptop(rng), rng.choice((0.0, 0.05, 0.3, 1.0))
    spelling = {"ensure_ascii": rng.random() < 0.5, "separators": rng.choice(SEPARATORS)}
    lines = []
    for time in random_times(rng, length):
        line = random_line(rng, time, next_battery(rng, laptop, oddity), processors)
        lines.append(json.dumps(line, **spelling))
    return "\n".join(lines) + rng.choice(("\n", ""))


def random_times(rng, count):
    now, pace = rng.choice(STARTS), rng.choice(PACES)
    for _ in range(count):
        yield now
        now += pace if pace is not None and rng.random() < 0.95 else rng.choice(STEPS)
        now = max(now, 0)


def next_battery(rng, laptop, oddity):
    table = laptop.step()
    if rng.random() >= oddity:
        return table
    if rng.random() < 0.2:
        return table | any_table(rng)
    return random_boundary_battery(rng)


def random_status(rng):
    """The text of the helper's status.json: mostly whole, sometimes not what it should be."""
    if rng.random() < 0.2:
        return rng.choice(STATUSES)
    status = {
        "daemonRunning": rng.random() < 0.5,
        "chargingInhibited": rng.random() < 0.5,
        "calibrationActive": rng.random() < 0.3,
        "batteryPercent": rng.randint(0, 100),
        "lastUpdate": rng.choice((0, 1, 1700000000.25)),
    }
    if rng.random() < 0.6:
        status["calibrationPhase"] = rng.choice((None, "", "discharging", "\u00fc %d"))
    if rng.random() < 0.3:
        status[rng.choice(list(status))] = rng.choice((None, 1, 1.5, True, "text", [], {}))
    if rng.random() < 0.1:
        del status[rng.choice(list(status))]
    if rng.random() < 0.1:
        status["unknown"] = [1, {"a": 2}]
    text = json.dumps(status)
    return text[:-1] if rng.random() < 0.05 else text


def random_line(rng, time, battery, processors):
    line = {
        "time": time,
        "battery": battery,
        "processors": processors,
        "cpuListing": random_cpu_listing(rng, processors),
        "topListing": random_top_listing(rng),
    }
    if rng.random() < 0.7:
        line["storageDraw"] = rng.choice((0, 1))
    if rng.random() < 0.2:
        line["status"] = random_status(rng)
    if rng.random() < 0.2:
        line["helperLoaded"] = rng.random() < 0.5
    if rng.random() < 0.05:
        line.update([rng.choice(UNKNOWN)])
    entries = list(line.items())
    rng.shuffle(entries)
    return dict(entries)
