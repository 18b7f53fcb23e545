"""Where the programs are measured: a display, a bus, a laptop's battery, and as many processes as a desktop has."""
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""

APART = "QUELBY_BENCH_IS_APART"


def apart_from_the_machine():
    """Starts this program again among processes of its own, where the system allows it: what else runs on the machine
    changes no listing then, and nothing is left behind."""
    if APART in os.environ:
        return
    command = ["unshare", "--pid", "--fork", "--kill-child", "--mount-proc", "--net"]
    if os.getuid() != 0:
        command += ["--user", "--map-root-user"]
    if subprocess.run([*command, "true"], capture_output=True, check=False).returncode == 0:
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o711)  # not everything in it runs as root
            sys.exit(subprocess.run([*command, sys.executable, *sys.argv], check=False,
                                    env=dict(os.environ, TMPDIR=folder, **{APART: "yes"})).returncode)


def processes():
    return sum(name.isdigit() for name in os.listdir("/proc"))


def wait_for(condition, what, seconds=30):
    end = time.monotonic() + seconds
    while not (answer := condition()):
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain: {what}")
        time.sleep(0.02)
    return answer


class Crowd:
    """Processes that sleep, as many as are missing from so many."""

    def __init__(self, count):
        self.pids = []
        for _ in range(count - processes()):
            pid = os.fork()
            if pid == 0:
                while True:
                    signal.pause()
            self.pids.append(pid)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for pid in self.pids:
            os.kill(pid, signal.SIGKILL)
        for pid in self.pids:
            os.waitpid(pid, 0)


class Laptop:
    """A battery below a sysfs root of its own. While it is lively, it gives another current each second, and a program
    beside takes another share of the processor."""

    def __init__(self, folder):
        self.root = pathlib.Path(folder, "sys")
        self.battery = self.root / "class/power_supply/BAT0"
        self.battery.mkdir(parents=True)
        for name, value in {
                "type": "Battery", "present": 1, "status": "Discharging", "capacity": 72, "voltage_now": 11528000,
                "charge_full_design": 5088000, "charge_full": 4610000, "charge_now": 3360000, "current_now": 1450000,
                "cycle_count": 212, "temp": 310, "manufacturer": "maker", "technology": "Li-ion"}.items():
            self.set(name, value)
        self.random = random.Random(1)
        self.over = threading.Event()
        self.worker = None

    def set(self, name, value):
        (self.battery / name).write_text(f"{value}\n")

    def become_lively(self):
        self.over.clear()
        self.worker = threading.Thread(target=self.live)
        self.worker.start()

    def live(self):
        while not self.over.wait(0.5):
            self.set("current_now", self.random.randrange(900_000, 2_900_000))
            end = time.thread_time() + self.random.uniform(0, 0.06)
            while time.thread_time() < end:
                pass

    def hold(self):
        """At the limit of a helper, on the adapter."""
        adapter = self.root / "class/power_supply/AC"
        adapter.mkdir()
        (adapter / "type").write_text("Mains\n")
        (adapter / "online").write_text("1\n")
        for name, value in {"status": "Not charging", "current_now": 0, "charge_control_start_threshold": 0,
                            "charge_control_end_threshold": 100}.items():
            self.set(name, value)

    def settle(self):
        self.over.set()
        self.worker.join()
        self.worker = None
        self.set("current_now", 1450000)


class Stage:
    """A display with a window manager and a panel, a bus and a home."""

    def __init__(self, panel=True):
        self.folder = tempfile.mkdtemp(prefix="quelby-bench-")
        self.running = []
        self.ended_with_it = []  # processes that are not children of subprocess
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": self.folder, "NO_AT_BRIDGE": "1",
                            "GTK_A11Y": "none", "XDG_RUNTIME_DIR": self.folder}
        self.panel = panel
        self.laptop = Laptop(self.folder)

    def __enter__(self):
        reading, writing = os.pipe()
        # A number that no lock names: the processes of others cannot be seen here, and their locks would seem left over.
        number = next(n for n in iter(lambda: random.randrange(1000, 30000), None) if not os.path.exists(f"/tmp/.X{n}-lock"))
        self.start("Xvfb", f":{number}", "-displayfd", writing, "-screen", "0", "1280x900x24", pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as display:
            self.environment["DISPLAY"] = ":" + display.readline().strip()
        bus = self.start("dbus-daemon", "--session", "--print-address", "--nofork", stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.start("openbox")
        if self.panel:
            channel = pathlib.Path(self.folder, ".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml")
            channel.parent.mkdir(parents=True)
            channel.write_text(PANEL)
            self.start("xfce4-panel", "--disable-wm-check")
            wait_for(lambda: "StatusNotifierWatcher" in self.run(
                "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                "org.freedesktop.DBus.ListNames"), "the panel has a tray")
        return self

    def __exit__(self, *_):
        if self.laptop.worker:
            self.laptop.settle()
        for pid in self.ended_with_it:
            os.kill(pid, signal.SIGKILL)
            os.waitpid(pid, 0)
        for process in reversed(self.running):
            self.end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *words, **options):
        options = {"stdout": subprocess.DEVNULL, "stdin": subprocess.DEVNULL, "stderr": subprocess.DEVNULL,
                   "env": self.environment, **options}
        process = subprocess.Popen([str(word) for word in words], **options)
        self.running.append(process)
        return process

    def log(self, program):
        return open(pathlib.Path(self.folder, pathlib.Path(program).name + ".log"), "wb")

    def last_words(self, program):
        """Of a program that has ended."""
        log = pathlib.Path(self.folder, program + ".log")
        lines = log.read_text(errors="replace").split("\n") if log.exists() else []
        return next((line.strip() for line in reversed(lines) if line.strip()), "ended without a word")

    def end(self, process):
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
        if process.stdout:
            process.stdout.close()
        self.running.remove(process)

    def run(self, *words):
        return subprocess.run(words, env=self.environment, capture_output=True, text=True, check=False).stdout

    def window_shown(self):
        return self.run("xdotool", "search", "--onlyvisible", "--name", "^Quelby$").strip() != ""
