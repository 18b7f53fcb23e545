"""What a process and its children have used, as the kernel counts it."""
import os
import pathlib
import re
import time


def read(path):
    try:
        return pathlib.Path(path).read_text()
    except (FileNotFoundError, ProcessLookupError):  # it ended meanwhile
        return ""


def family(pid):
    """The process with all its descendants."""
    members = [pid]
    for member in members:
        for task in pathlib.Path(f"/proc/{member}/task").glob("*"):
            members += [int(child) for child in read(task / "children").split()]
    return members


def tasks(pid):
    return [task for member in family(pid) for task in pathlib.Path(f"/proc/{member}/task").glob("*")]


def named(name):
    """All of that name, the latest last."""
    pids = sorted(int(folder.name) for folder in pathlib.Path("/proc").glob("[0-9]*"))
    return [pid for pid in pids if read(f"/proc/{pid}/comm") == name + "\n"]


def has_ended(pid):
    """Also one that nobody has waited for yet."""
    return read(f"/proc/{pid}/stat").rpartition(")")[2].split()[:1] in ([], ["Z"])


def cpu_seconds(pid):
    """Of every thread, and of children that have ended."""
    running = sum(int((read(task / "schedstat").split() or ["0"])[0]) for task in tasks(pid)) / 1e9
    fields = read(f"/proc/{pid}/stat").rpartition(")")[2].split()
    ended = sum(map(int, fields[13:15])) / os.sysconf("SC_CLK_TCK") if fields else 0
    return running + ended


def wake_ups(pid):
    """How often its threads went to sleep by themselves, which is how often they were woken."""
    states = [read(task / "status") for task in tasks(pid)]
    counts = [re.search(r"^voluntary_ctxt_switches:\s+(\d+)", state, re.M) for state in states]
    return sum(int(count[1]) for count in counts if count)


def memory(pid):
    """In MB: its proportional share, and what it alone has and the system cannot take back."""
    rollup = [read(f"/proc/{member}/smaps_rollup") for member in family(pid)]

    def megabytes(name):
        return sum(int(found[1]) for text in rollup if (found := re.search(rf"^{name}:\s+(\d+) kB", text, re.M))) / 1024

    return {"proportional": megabytes("Pss"), "dirty": megabytes("Private_Dirty")}


class Window:
    """What a process uses from here on."""

    def __init__(self, pid):
        self.pid = pid
        self.begin = time.monotonic(), cpu_seconds(pid), wake_ups(pid)

    def close(self):
        seconds, cpu, wakes = (now - then for now, then in zip(
            (time.monotonic(), cpu_seconds(self.pid), wake_ups(self.pid)), self.begin))
        return {"cpu": cpu / seconds * 100, "wake-ups": wakes / seconds}


def at_rest(pid, still=0.25):
    """Waits until it has used nothing for so many seconds; gives its CPU seconds by then."""
    used, since = cpu_seconds(pid), time.monotonic()
    while time.monotonic() - since < still:
        time.sleep(0.01)
        now = cpu_seconds(pid)
        if now != used:
            used, since = now, time.monotonic()
    return used
