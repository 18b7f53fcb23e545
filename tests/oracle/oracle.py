"""A second implementation of the rules, written apart from the first, so that a slip in one shows as a difference.

Monitor.cycle() takes one line of a recording, decoded, and answers all published fields after that cycle. It reads no
clock and no file. Every sum and product is made in the order in which the rule names it, so that each double is the
very same and not merely close.
"""
import copy

from figures import (daemon_status, efficiency, estimated_charge_watts, finite_number, percent_up_to_100, prediction,
                     rate_text, share_and_name, system_prediction, time_text, trimmed)

DEFAULTS = {  # in declaration order
    "batteryPercent": 0,
    "isCharging": False,
    "isPluggedIn": False,
    "fullyCharged": False,
    "hasBattery": True,
    "batteryHealth": 100,
    "timeRemaining": "--:--",
    "designCapacity": 0,
    "rawMaxCapacity": 0,
    "rawCurrentCapacity": 0,
    "cycleCount": 0,
    "realWatts": 0.0,
    "voltage": 0.0,
    "amperage": 0.0,
    "cpuUsage": 0.0,
    "cpuPower": 0.0,
    "gpuPower": 0.0,
    "memPower": 3.0,
    "diskPower": 1.5,
    "netPower": 1.0,
    "totalPower": 0.0,
    "chargePower": 0.0,
    "acTotal": 0.0,
    "efficiency": 50,
    "topProcesses": [],
    "powerHistory": [],
    "predictedTime": "collecting...",
    "batteryRateStr": "",
    "historyRange": "30m",
    "historyData": [],
    "historyAvg": 0.0,
    "historyMin": 0.0,
    "historyMax": 0.0,
    "todayWh": 0.0,
    "chargeLimitEnabled": False,
    "chargeLimitPercent": 80.0,
    "chargingInhibited": False,
    "chargeLimitStatus": "",
    "daemonInstalled": False,
    "calibrationEnabled": False,
    "calibrationIntervalDays": 30,
    "calibrationActive": False,
    "lastCalibrationDate": None,
    "launchAtLogin": False,
    "menuBarDisplay": "Power (W)",
    "batteryTemp": 0.0,
    "shouldShowChargingTip": False,
}

MEMORY_WATTS = 3.0
MEASURED_STORAGE_WATTS = 1.5
NETWORK_WATTS = 1.0
REST_OF_SYSTEM_WATTS = 5.0
MEASUREMENT_FLOOR_WATTS = 0.5
TREND_LENGTH = 60
LISTED_PROCESSES = 5
SAMPLE_SECONDS = 30.0
KEPT_SAMPLES = 20
SAMPLES_FOR_A_RATE = 3


class Table:
    """A battery's property table; a value of the wrong type is as good as absent."""

    def __init__(self, values):
        self.values = values

    def integer(self, key, default=None):
        value = self.values.get(key)
        is_integer = type(value) is int and -(2**63) <= value < 2**63  # a bool is no int here
        return value if is_integer else default

    def boolean(self, key):
        return self.values.get(key) is True


class Monitor:
    def __init__(self):
        self.fields = copy.deepcopy(DEFAULTS)
        self.samples = []  # (seconds since 1970, percent), oldest first
        self.last_sample_time = 0.0
        self.started = False

    def cycle(self, line, unrecorded_draw=0):
        """Answers a copy of all fields. The draw, 0 or 1, stands in where the line needs one and holds none."""
        if not self.started:  # the service manager is asked once
            self.fields["daemonInstalled"] = line.get("helperLoaded") or False
            self.started = True
        self.read_battery(line["battery"])
        self.read_cpu_usage(line["cpuListing"], line["processors"])
        self.calculate_power(line.get("storageDraw", unrecorded_draw))
        self.read_top_processes(line["topListing"])
        self.sample_battery(line["time"])
        self.predict_battery()
        self.read_daemon_status(line.get("status"))
        return copy.deepcopy(self.fields)

    # Battery

    def read_battery(self, battery):
        self.fields["hasBattery"] = battery is not None
        if battery is None or battery == "unreadable":
            return
        table = Table(battery)
        self.read_capacities(table)
        self.read_charge_state(table)
        self.read_health(table)
        self.read_electricity(table)
        self.fields["timeRemaining"] = time_text(table.integer("TimeRemaining"))

    def read_capacities(self, table):
        fields = self.fields
        fields["designCapacity"] = table.integer("DesignCapacity", 0)
        fields["rawMaxCapacity"] = table.integer("AppleRawMaxCapacity", table.integer("MaxCapacity", 0))
        fields["rawCurrentCapacity"] = table.integer("AppleRawCurrentCapacity", table.integer("CurrentCapacity", 0))
        fields["cycleCount"] = table.integer("CycleCount", 0)

    def read_charge_state(self, table):
        fields = self.fields
        if fields["rawMaxCapacity"] >= 1:
            fields["batteryPercent"] = percent_up_to_100(fields["rawCurrentCapacity"], fields["rawMaxCapacity"])
        else:
            fields["batteryPercent"] = table.integer("CurrentCapacity", 0)
        fields["isCharging"] = table.boolean("IsCharging")
        fields["isPluggedIn"] = table.boolean("ExternalConnected")
        fields["fullyCharged"] = table.boolean("FullyCharged")

    def read_health(self, table):
        fields = self.fields
        platform_maximum = table.integer("MaxCapacity")
        if fields["designCapacity"] >= 1 and fields["rawMaxCapacity"] >= 101:
            fields["batteryHealth"] = percent_up_to_100(fields["rawMaxCapacity"], fields["designCapacity"])
        elif platform_maximum is None:
            fields["batteryHealth"] = 100
        elif platform_maximum <= 100:
            fields["batteryHealth"] = platform_maximum
        # A larger maximum is in mAh and says nothing about health, which then stays as it was.

    def read_electricity(self, table):
        fields = self.fields
        milliamperes = table.integer("InstantAmperage", 0)
        if milliamperes > 30000:  # a negative 16-bit number, delivered without its sign
            milliamperes -= 65536
        fields["amperage"] = float(milliamperes)
        fields["voltage"] = table.integer("Voltage", 0) / 1000.0
        fields["realWatts"] = abs(fields["amperage"]) * fields["voltage"] / 1000.0
        hundredths_of_a_degree = table.integer("Temperature")
        if hundredths_of_a_degree is not None:
            fields["batteryTemp"] = hundredths_of_a_degree / 100.0

    # The charge-limit helper

    def read_daemon_status(self, text):
        status = daemon_status(text)
        if status is None:
            return
        fields = self.fields
        fields["chargingInhibited"] = status["chargingInhibited"]
        fields["calibrationActive"] = status["calibrationActive"]
        fields["daemonInstalled"] = status["daemonRunning"]
        fields["chargeLimitStatus"] = self.limit_status(status.get("calibrationPhase"))

    def limit_status(self, phase):
        fields = self.fields
        limit = int(fields["chargeLimitPercent"])
        if fields["calibrationActive"]:
            return "Calibrating: " + ("in progress" if phase is None else phase)
        if fields["chargingInhibited"]:
            return f"Holding at {limit}%"
        if fields["chargeLimitEnabled"] and fields["isPluggedIn"] and fields["batteryPercent"] < limit:
            return f"Charging to {limit}%"
        return "Waiting for charger" if fields["chargeLimitEnabled"] and not fields["isPluggedIn"] else ""

    # Load of the processors

    def read_cpu_usage(self, listing, processors):
        if listing is None:
            return
        total = 0.0
        for piece in listing.split("\n")[1:]:
            total += finite_number(trimmed(piece)) or 0.0
        self.fields["cpuUsage"] = min(total / processors, 100.0)

    # Power

    def calculate_power(self, draw):
        fields = self.fields
        if not fields["isPluggedIn"] and fields["realWatts"] > MEASUREMENT_FLOOR_WATTS:
            self.split_measured_power()
        else:
            self.estimate_power(draw)
            self.estimate_adapter_power()
        fields["efficiency"] = efficiency(fields["totalPower"])
        fields["powerHistory"].append(fields["totalPower"])
        del fields["powerHistory"][:-TREND_LENGTH]

    def cpu_weight(self):
        return self.fields["cpuUsage"] * 35 / 100 + 3.0

    def gpu_weight(self):
        return self.fields["cpuUsage"] * 12 / 100 + 1.0

    def split_measured_power(self):
        fields = self.fields
        total = fields["totalPower"] = fields["realWatts"]
        cpu, gpu = self.cpu_weight(), self.gpu_weight()
        weights = cpu + gpu + MEMORY_WATTS + MEASURED_STORAGE_WATTS + NETWORK_WATTS + REST_OF_SYSTEM_WATTS
        fields["cpuPower"] = total * cpu / weights
        fields["gpuPower"] = total * gpu / weights
        fields["memPower"] = total * MEMORY_WATTS / weights
        fields["diskPower"] = total * MEASURED_STORAGE_WATTS / weights
        fields["netPower"] = total * NETWORK_WATTS / weights
        fields["chargePower"] = 0.0
        fields["acTotal"] = 0.0

    def estimate_power(self, draw):
        fields = self.fields
        fields["cpuPower"] = self.cpu_weight()
        fields["gpuPower"] = self.gpu_weight()
        fields["memPower"] = MEMORY_WATTS
        fields["diskPower"] = float(1 + draw)
        fields["netPower"] = NETWORK_WATTS
        fields["totalPower"] = (fields["cpuPower"] + fields["gpuPower"] + fields["memPower"] + fields["diskPower"]
                                + fields["netPower"] + REST_OF_SYSTEM_WATTS)

    def estimate_adapter_power(self):
        fields = self.fields
        if not fields["isPluggedIn"] or fields["fullyCharged"]:
            fields["chargePower"] = 0.0
            fields["acTotal"] = fields["totalPower"] if fields["isPluggedIn"] else 0.0
            return
        if fields["realWatts"] > MEASUREMENT_FLOOR_WATTS:
            fields["chargePower"] = fields["realWatts"]
        else:
            fields["chargePower"] = estimated_charge_watts(fields["batteryPercent"])
        fields["acTotal"] = fields["totalPower"] + fields["chargePower"]

    # Processes

    def read_top_processes(self, listing):
        if listing is None:
            return
        processes = []
        for piece in listing.split("\n")[1:]:
            share, name = share_and_name(trimmed(piece))
            if share is not None and len(processes) < LISTED_PROCESSES:
                processes.append({"name": name, "cpu": share, "estimatedWatts": self.process_watts(share)})
        self.fields["topProcesses"] = processes

    def process_watts(self, share):
        usage = self.fields["cpuUsage"]
        return self.fields["cpuPower"] * share / usage if usage > 0.0 and share > 0.0 else 0.0

    # Prediction

    def sample_battery(self, now):
        if now - self.last_sample_time < SAMPLE_SECONDS:
            return
        self.samples.append((now, self.fields["batteryPercent"]))
        self.last_sample_time = now
        del self.samples[:-KEPT_SAMPLES]

    def predict_battery(self):
        fields = self.fields
        if len(self.samples) < SAMPLES_FOR_A_RATE:
            fields["predictedTime"] = system_prediction(fields["timeRemaining"])
            fields["batteryRateStr"] = ""
            return
        (oldest_time, oldest_percent), (newest_time, newest_percent) = self.samples[0], self.samples[-1]
        change = newest_percent - oldest_percent
        seconds = newest_time - oldest_time
        percent_per_hour = change * 3600.0 / (seconds if seconds > 1.0 else 1.0)
        fields["batteryRateStr"] = rate_text(change, percent_per_hour)
        fields["predictedTime"] = prediction(change, percent_per_hour, fields["batteryPercent"])
