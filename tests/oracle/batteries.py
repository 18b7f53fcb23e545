"""Random property tables: of laptops that anyone owns, of batteries on every boundary, of none that could be."""

CAPACITIES = (0, 1, -1, -50, -5000, 99, 100, 101, 102, 1999, 2250, 2500, 4499, 4500, 4800, 4999, 5000, 5001, 5200, 6075,
              65535, 10**12, -(10**12))
INTEGERS = {
    "DesignCapacity": CAPACITIES,
    "AppleRawMaxCapacity": CAPACITIES,
    "MaxCapacity": CAPACITIES,
    "AppleRawCurrentCapacity": CAPACITIES,
    "CurrentCapacity": CAPACITIES + (50, 79, 80, 94, 95),
    "CycleCount": (0, 1, 500, -1, 2**63 - 1, -(2**63)),
    "InstantAmperage": (0, 1, -1, 50, 1350, -1350, 29999, 30000, 30001, 32767, 32768, 64186, 64536, 65535, 65536, 70000,
                        -30001, -65536, 10**12, -(10**12)),
    "Voltage": (0, 1, 499, 500, 10000, 11100, 12000, -12000, 20001, 10**12),
    "Temperature": (0, 1, 2999, 3050, 3550, -1000, 65535),
    "TimeRemaining": (-1, 0, 1, 2, 59, 60, 61, 125, 600, 5999, 6000, 6001, 65535, -65535),
}
BOOLEANS = ("IsCharging", "ExternalConnected", "FullyCharged")
NO_INTEGERS = (True, False, "5000", "", 5000.0, 0.5, 1e30, None, [5000], {"value": 5000}, 2**63, 2**64 - 1, 2**64,
               -(2**63) - 1, 10**30)
NO_BOOLEANS = (0, 1, -1, 1.0, "true", "", None, [True], {"value": True}, 2**64)
UNKNOWN = (("Serial", "F8Y\u2603"), ("designcapacity", 7), ("PackVoltages", [4000, 4001]), ("", True),
           ("Nested", {"Voltage": 1}))

# mA and mV of 0.5, 10, 14, 25, 50 and 50.5 W, and of a little less and a little more
WATTS = ((50, 10000), (50, 9999), (50, 10001), (500, 1000), (501, 1000), (499, 1000), (1000, 10000), (1000, 9999),
         (1000, 10001), (1000, 14000), (1000, 10500), (2500, 10000), (2499, 10000), (2501, 10000), (5000, 10000),
         (4999, 10000), (4975, 10000), (5050, 10000), (5049, 10000), (29999, 20000), (0, 12000))
CHARGES = (-7, -1, 0, 1, 49, 50, 76, 77, 78, 79, 80, 81, 93, 94, 95, 96, 99, 100, 101, 250)


def random_boundary_battery(rng):
    kind = rng.random()
    if kind < 0.12:
        return rng.choice((None, "unreadable", {}))
    if kind < 0.35:
        return measured_battery(rng)
    return charging_battery(rng) if kind < 0.6 else any_table(rng)


def any_table(rng):
    density = rng.choice((0.2, 0.6, 0.95))
    table = {key: rng.choice(values) for key, values in INTEGERS.items() if rng.random() < density}
    table.update({key: rng.random() < 0.5 for key in BOOLEANS if rng.random() < density})
    spoil(rng, table, 0.08)
    return shuffled(rng, table)


def spoil(rng, table, share):
    for key in table:
        if rng.random() < share:
            table[key] = rng.choice(NO_BOOLEANS if key in BOOLEANS else NO_INTEGERS)
    if rng.random() < share:
        table.update([rng.choice(UNKNOWN)])


def shuffled(rng, table):
    entries = list(table.items())
    rng.shuffle(entries)
    return dict(entries)


def measured_battery(rng):
    """Drains through the boundaries of the measurement and of the score."""
    milliamperes, millivolts = rng.choice(WATTS)
    return {
        "CurrentCapacity": rng.choice(CHARGES),
        "ExternalConnected": rng.random() < 0.15,
        "InstantAmperage": rng.choice((milliamperes, -milliamperes, 65536 - milliamperes)),
        "Voltage": millivolts,
    }


def charging_battery(rng):
    """Stands at the boundaries of the charge estimate, mostly without a measured power."""
    milliamperes, millivolts = rng.choice(WATTS[:6]) if rng.random() < 0.4 else (0, 12000)
    return {
        "CurrentCapacity": rng.choice(CHARGES),
        "IsCharging": True,
        "ExternalConnected": rng.random() < 0.95,
        "FullyCharged": rng.random() < 0.15,
        "InstantAmperage": milliamperes,
        "Voltage": millivolts,
    }


class Laptop:
    """Drains and fills at a pace of its own, so that every kind of prediction comes up."""

    def __init__(self, rng):
        self.rng = rng
        self.design = rng.randint(3000, 8000)
        self.maximum = int(self.design * rng.uniform(0.7, 1.06))
        self.charge = self.maximum * rng.choice((0.01, 0.5, 0.8, 0.97, rng.random()))
        self.percent_per_cycle = rng.choice((0.0, 0.03, 0.2, 1.0, 4.0))
        self.switching = rng.choice((0.0, 0.02, 0.2))
        self.plugged = rng.random() < 0.5
        self.reports_percent = rng.random() < 0.3

    def step(self):
        if self.rng.random() < self.switching:
            self.plugged = not self.plugged
        change = self.maximum * self.percent_per_cycle / 100 * self.rng.random() * (1 if self.plugged else -1)
        self.charge = min(max(self.charge + change, 0), self.maximum)
        return shuffled(self.rng, self.state() | self.capacities())

    def state(self):
        full = self.charge >= self.maximum
        moving = 0 if full and self.plugged else self.rng.randint(100, 4000)
        return {
            "CycleCount": 321,
            "IsCharging": self.plugged and not full,
            "ExternalConnected": self.plugged,
            "FullyCharged": full,
            "InstantAmperage": moving if self.plugged else 65536 - moving,
            "Voltage": self.rng.randint(10800, 13000),
            "Temperature": self.rng.randint(2000, 4500),
            "TimeRemaining": self.rng.choice((65535, self.rng.randint(0, 900))),
        }

    def capacities(self):
        if self.reports_percent:
            return {"MaxCapacity": 100, "CurrentCapacity": int(self.charge * 100 / self.maximum)}
        return {
            "DesignCapacity": self.design,
            "AppleRawMaxCapacity": self.maximum,
            "AppleRawCurrentCapacity": int(self.charge),
        }
