"""Programs of Debian that do comparable work, each at a refresh every three seconds where it can be told."""
import fcntl
import os
import pathlib
import pty
import shutil
import struct
import termios
import threading
import time

import process
from ours import medians
from stage import Crowd, Stage, wait_for

CONKY = """conky.config = { out_to_console = true, out_to_x = false, update_interval = 3, top_cpu_separate = false }
conky.text = [[${battery_percent BAT0} ${cpu} ${loadavg} ${top name 1} ${top cpu 1} ${top name 2} ${top cpu 2}]]
"""
I3STATUS = """general { output_format = "none" interval = 3 }
order += "battery 0"
order += "cpu_usage"
battery 0 { format = "%percentage %consumption" path = "{battery}/uevent" }
cpu_usage { format = "%usage" }
"""
WAYBAR = ('{"position": "top", "modules-right": ["cpu", "memory", "clock"], "cpu": {"interval": 3}, '
          '"memory": {"interval": 3}}')
SWAY = "output * mode --custom 1280x800 bg #336655 solid_color\nexec waybar -c {bar}\n"
NOBODY = 65534


class Peer:
    def __init__(self, program, start, history=False, blind=False):
        self.program = program
        self.start = start  # on a stage; gives the process
        self.history = history  # whether it records or draws one
        self.blind = blind  # to any battery but the machine's own


def plain(*words):
    return lambda stage: stage.start(*words, stderr=stage.log(words[0])).pid


def in_terminal(*words):
    """Needs one; what it prints is read and forgotten."""
    def start(stage):
        pid, terminal = pty.fork()
        if pid == 0:
            os.execvpe(words[0], words, dict(stage.environment, TERM="xterm-256color"))
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 40, 120, 0, 0))
        threading.Thread(target=forget, args=[terminal], daemon=True).start()
        stage.ended_with_it.append(pid)
        return pid
    return start


def forget(terminal):
    try:
        while os.read(terminal, 65536):
            pass
    except OSError:  # its program has ended
        os.close(terminal)


def conky(stage):
    pathlib.Path(stage.folder, "conky.conf").write_text(CONKY)
    return plain("conky", "-c", stage.folder + "/conky.conf")(stage)


def i3status(stage):
    pathlib.Path(stage.folder, "i3status.conf").write_text(I3STATUS.replace("{battery}", str(stage.laptop.battery)))
    return plain("i3status", "-c", stage.folder + "/i3status.conf")(stage)


def waybar(stage):
    """On a compositor that nobody sees, which does not run as root."""
    folder = pathlib.Path(stage.folder, "wayland")
    folder.mkdir(0o700)
    for name, text in {"waybar": WAYBAR, "sway": SWAY.format(bar=folder / "waybar")}.items():
        (folder / name).write_text(text)
    environment = dict(stage.environment, WLR_BACKENDS="headless", WLR_RENDERER="pixman", WLR_LIBINPUT_NO_DEVICES="1",
                       XDG_RUNTIME_DIR=str(folder), HOME=str(folder))
    environment.pop("DISPLAY")
    command = ["sway", "-c", folder / "sway"]
    if os.getuid() == 0:
        command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", "--", *command]
        for path in (folder, *folder.iterdir()):
            os.chown(path, NOBODY, NOBODY)
        os.chmod(stage.folder, 0o711)
    sway = stage.start(*command, env=environment, stderr=stage.log("waybar"))
    bars = wait_for(lambda: process.named("waybar") or sway.poll() is not None, "waybar")
    return sway.pid if bars is True else bars[-1]


PEERS = [
    Peer("xfce4-power-manager", plain("xfce4-power-manager", "--no-daemon"), blind=True),
    Peer("mate-power-manager", plain("mate-power-manager", "--no-daemon"), history=True, blind=True),
    Peer("cbatticon", plain("cbatticon", "-u", "3"), blind=True),
    Peer("waybar", waybar),
    Peer("i3status", i3status),
    Peer("conky", conky),
    Peer("btop", in_terminal("btop", "--utf-force"), history=True),
    Peer("htop", in_terminal("htop", "-d", "30")),
    Peer("top", plain("top", "-b", "-d", "3")),
    Peer("upowerd", plain("/usr/libexec/upowerd"), history=True, blind=True),
    Peer("powertop", plain("powertop", "--csv=/tmp/powertop.csv", "--time=3", "--iteration=1000")),
]


def everything(pace):
    """What each costs over the same while, and why some cannot be measured here."""
    with Crowd(pace.processes), Stage() as stage:
        stage.environment["DBUS_SYSTEM_BUS_ADDRESS"] = stage.environment["DBUS_SESSION_BUS_ADDRESS"]
        running, skipped = {}, {}
        for peer in PEERS:
            if shutil.which(peer.program, path=os.environ["PATH"] + ":/usr/sbin:/usr/libexec"):
                running[peer.program] = peer.start(stage)
            else:
                skipped[peer.program] = "not installed"
        time.sleep(pace.settling)
        for program, pid in list(running.items()):
            if process.has_ended(pid):
                skipped[program] = stage.last_words(program)
                del running[program]
        measured = {program: [] for program in running}
        for _ in range(pace.rounds):
            windows = {program: process.Window(pid) for program, pid in running.items()}
            time.sleep(pace.seconds)
            for program, window in windows.items():
                measured[program].append(window.close())
        return {program: {**medians(measured[program]), **process.memory(pid)}
                for program, pid in running.items()}, skipped
