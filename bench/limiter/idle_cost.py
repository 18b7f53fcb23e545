#!/usr/bin/env python3
"""What the charge-limit helper costs while nothing happens: wake-ups, memory and processor time.

  idle_cost.py PWR_LIMITER [SECONDS]

It runs on a made-up laptop that is held at its limit, 60 seconds unless named otherwise. The baselines are what such
a program may cost: a wake-up in five seconds, 3 MB of memory of its own share.
"""
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

WAKEUPS_PER_SECOND = 1 / 5
MEMORY_KIB = 3 * 1024
SETTLING = 10  # seconds, in which it looks twice whether the battery is held

ATTRIBUTES = {
    "BAT0/type": "Battery", "BAT0/present": "1", "BAT0/status": "Not charging", "BAT0/capacity": "80",
    "BAT0/charge_control_start_threshold": "0", "BAT0/charge_control_end_threshold": "100",
    "AC/type": "Mains", "AC/online": "1",
}
CONFIG = {"chargeLimitEnabled": True, "chargeLimitPercent": 80, "calibrationEnabled": False,
          "calibrationIntervalDays": 30, "lastCalibrationTimestamp": 0}


def field(process, file, name):
    text = pathlib.Path(f"/proc/{process}/{file}").read_text()
    return int(re.search(rf"^{name}:\s+(\d+)", text, re.MULTILINE)[1])


def processor_milliseconds(process):
    ticks = pathlib.Path(f"/proc/{process}/schedstat").read_text().split()[0]
    return int(ticks) / 1e6


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    seconds = float(sys.argv[2]) if len(sys.argv) == 3 else 60
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for path, value in ATTRIBUTES.items():
            file = folder / "sys/class/power_supply" / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(value + "\n")
        (folder / "shared").mkdir()
        (folder / "shared/config.json").write_text(json.dumps(CONFIG))
        helper = subprocess.Popen([sys.argv[1], "--folder", folder / "shared", "--state", folder / "state",
                                   "--sysfs-root", folder / "sys"])
        try:
            time.sleep(SETTLING)
            wakeups = field(helper.pid, "status", "voluntary_ctxt_switches")
            milliseconds = processor_milliseconds(helper.pid)
            time.sleep(seconds)
            wakeups = (field(helper.pid, "status", "voluntary_ctxt_switches") - wakeups) / seconds
            milliseconds = (processor_milliseconds(helper.pid) - milliseconds) / seconds
            memory = field(helper.pid, "smaps_rollup", "Pss")
            status = json.loads((folder / "shared/status.json").read_text())
        finally:
            helper.send_signal(signal.SIGTERM)
            helper.wait()
    if not status["chargingInhibited"]:
        sys.exit("the battery was not held")
    print(f"{'':<24}{'measured':>12}{'baseline':>12}{'ratio':>8}")
    print(f"{'wake-ups a minute':<24}{wakeups * 60:>12.1f}{WAKEUPS_PER_SECOND * 60:>12.1f}"
          f"{wakeups / WAKEUPS_PER_SECOND:>8.2f}")
    print(f"{'memory (PSS), KiB':<24}{memory:>12}{MEMORY_KIB:>12}{memory / MEMORY_KIB:>8.2f}")
    print(f"{'processor, ms a minute':<24}{milliseconds * 60:>12.2f}")


if __name__ == "__main__":
    main()
