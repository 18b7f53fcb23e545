"""A desktop's session of its own: a folder, an ordinary user, a private bus, and everything that runs in it."""

import os
import shutil
import signal
import subprocess
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
NOBODY = 65534
PATIENCE = 20  # seconds, for what takes far less


def eventually(condition, patience=PATIENCE):
    """What the condition gives as soon as it is true, or what it gives in the end."""
    end = time.monotonic() + patience
    while True:
        answer = condition()
        if answer or time.monotonic() > end:
            return answer
        time.sleep(0.05)


class Session:
    """Compositors do not run as root, so root becomes nobody here. Use it in a with statement."""

    def __init__(self, binaries):
        self.folder = tempfile.mkdtemp(prefix="quelby-desktop-")
        self.processes = []
        self.environment = {
            "HOME": self.folder,
            "PATH": "/usr/local/bin:/usr/bin:/bin:/usr/sbin",
            "LANG": "C.UTF-8",
            "NO_AT_BRIDGE": "1",
            "GTK_A11Y": "none",
        }
        for variable, name in (("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"),
                               ("XDG_CACHE_HOME", "cache"), ("XDG_RUNTIME_DIR", "run")):
            self.environment[variable] = os.path.join(self.folder, name)
            os.mkdir(self.environment[variable], 0o700)
        programs = os.path.join(self.folder, "programs")
        os.mkdir(programs)
        for name in ("quelby", "quelby-desktop.so", "quelby-dashboard.so"):
            shutil.copy(os.path.join(binaries, name), programs)
        recording = os.path.join(ROOT, "resources", "recordings", "laptop-on-battery.jsonl")
        shutil.copy(recording, programs)
        self.quelby = [os.path.join(programs, "quelby"), "--replay",
                       os.path.join(programs, "laptop-on-battery.jsonl")]

    def __enter__(self):
        if os.getuid() == 0:
            for folder, _, files in os.walk(self.folder):
                for path in [folder] + [os.path.join(folder, name) for name in files]:
                    os.chown(path, NOBODY, NOBODY)
        self.start_bus()
        return self

    def start_bus(self):
        bus = self.path("run/bus")
        if os.path.exists(bus):
            os.remove(bus)  # of a session that has ended
        self.start(["dbus-daemon", "--session", "--nofork", f"--address=unix:path={bus}"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={bus}"
        assert eventually(lambda: os.path.exists(bus)), "the bus does not start"

    def __exit__(self, *_):
        for process in reversed(self.processes):
            self.end(process)
        subprocess.run(["rm", "-rf", self.folder], check=False)

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        path = self.path(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        written = path
        while os.getuid() == 0 and path != self.folder:
            os.chown(path, NOBODY, NOBODY)
            path = os.path.dirname(path)
        return written

    def as_user(self, command):
        if os.getuid() == 0:
            return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", "--", *command]
        return command

    def start(self, command, **variables):
        """In the background, in a group of its own, so that nothing of it is left behind."""
        log = open(self.path(os.path.basename(command[0]) + ".log"), "ab")
        process = subprocess.Popen(self.as_user(command), cwd=self.folder, stdin=subprocess.DEVNULL, stdout=log,
                                   stderr=log, start_new_session=True, env={**self.environment, **variables})
        log.close()
        self.processes.append(process)
        return process

    def end(self, process):
        """Asks the process and its children to end, and insists after a while."""
        for number in (signal.SIGTERM, signal.SIGKILL):
            try:
                os.killpg(process.pid, number)
            except ProcessLookupError:
                break
            if eventually(lambda: process.poll() is not None, 2):
                break
        if process in self.processes:
            self.processes.remove(process)
        return process.wait()

    def run(self, *command, **variables):
        """In the foreground; gives what it prints."""
        done = subprocess.run(self.as_user(list(command)), cwd=self.folder, stdin=subprocess.DEVNULL, timeout=30,
                              capture_output=True, env={**self.environment, **variables}, check=False)
        return done.stdout

    def share_environment(self):
        """With the bus, which starts programs as well."""
        self.run("dbus-update-activation-environment", "--all")

    def log(self, program):
        try:
            with open(self.path(program + ".log"), encoding="utf-8", errors="replace") as file:
                return file.read()
        except FileNotFoundError:
            return ""
