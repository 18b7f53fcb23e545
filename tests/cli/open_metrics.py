#!/usr/bin/python3
"""open_metrics.py QUELBYCTL SOURCES: quelbyctl metrics prints what OpenMetrics demands, with the figures of the status.

Runs with Debian's own Python, which has the parser of Prometheus' own client.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

import json
from prometheus_client.openmetrics.parser import text_string_to_metric_families as parsed
from prometheus_client.parser import text_string_to_metric_families as parsed_as_older_text

# The metrics that are a field, and the field's unit in theirs.
FIELDS = {
    "battery_level_ratio": ("batteryPercent", 0.01),
    "battery_health_ratio": ("batteryHealth", 0.01),
    "battery_charge_coulombs": ("rawCurrentCapacity", 3.6),
    "battery_full_charge_coulombs": ("rawMaxCapacity", 3.6),
    "battery_design_charge_coulombs": ("designCapacity", 3.6),
    "battery_cycles": ("cycleCount", 1),
    "battery_voltage_volts": ("voltage", 1),
    "battery_current_amperes": ("amperage", 0.001),
    "battery_temperature_celsius": ("batteryTemp", 1),
    "battery_charging": ("isCharging", 1),
    "battery_full": ("fullyCharged", 1),
    "external_power": ("isPluggedIn", 1),
    "power_watts": ("totalPower", 1),
    "adapter_power_watts": ("acTotal", 1),
    "cpu_usage_ratio": ("cpuUsage", 0.01),
    "charge_limit_enabled": ("chargeLimitEnabled", 1),
    "charge_limit_ratio": ("chargeLimitPercent", 0.01),
    "charging_inhibited": ("chargingInhibited", 1),
    "helper_installed": ("daemonInstalled", 1),
    "today_energy_joules": ("todayWh", 3600),
}


def main(program, sources):
    def output(*words):
        return subprocess.run([program, *words], check=True, capture_output=True, text=True).stdout

    found = []
    recordings = sorted((sources / "resources/recordings").glob("*.jsonl"))
    for recording in recordings:
        text = output("metrics", "--replay", recording)
        status = json.loads(output("status", "--json", "--replay", recording))
        families = {family.name: family for family in parsed(text)}
        for name, family in families.items():
            if family.type != "gauge" or not family.documentation.endswith(".") or not family.samples:
                found.append(f"{recording.name}: {name} is {family}")
        if len(list(parsed_as_older_text(text))) != len(families):
            found.append(f"{recording.name}: the older text form has not as many")
        for metric, (field, factor) in FIELDS.items():
            family = families.get(f"quelby_{metric}")
            if family is None:
                if status["hasBattery"] or not metric.startswith("battery_"):
                    found.append(f"{recording.name}: there is no {metric}")
            elif abs(family.samples[0].value - status[field] * factor) > 1e-9 * abs(family.samples[0].value):
                found.append(f"{recording.name}: {metric} is {family.samples[0].value}, {field} is {status[field]}")
        ranks = families["quelby_process_power_watts"].samples
        watts = [process["estimatedWatts"] for process in status["topProcesses"]]
        if [sample.value for sample in ranks] != watts or any(set(sample.labels) != {"rank"} for sample in ranks):
            found.append(f"{recording.name}: processes are {ranks}")

        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "quelby.prom")
            said = output("metrics", "--replay", recording, "--output", file)
            if said or pathlib.Path(file).read_text() != text or os.listdir(folder) != ["quelby.prom"]:
                found.append(f"{recording.name}: --output wrote something else")
            if os.stat(file).st_mode & 0o777 != 0o644:
                found.append("not everybody may read the file")
    refused = subprocess.run([program, "metrics", "--replay", recordings[0], "--output", "/nonexistent/q.prom"],
                             capture_output=True, text=True, check=False)
    if refused.returncode != 1 or refused.stderr != 'quelbyctl: cannot write "/nonexistent/q.prom"\n':
        found.append(f"a folder that is not there: {refused}")
    print("\n".join(found))
    return 1 if found or len(recordings) < 4 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2])))
