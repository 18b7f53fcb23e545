"""What an hour of recording writes to the disk: 1,200 readings of a laptop, replayed without waiting."""
import json
import pathlib
import re
import subprocess
import tempfile

READINGS = 1200
FLUSH = re.compile(r"f(data)?sync\(")
WRITE = re.compile(r"(?:write|pwrite64)\(\d+<(?P<file>[^>]*)>.* = (?P<bytes>\d+)$")


def hour(recording, readings):
    """So many lines of the recording, three seconds apart, over and over."""
    lines = [json.loads(line) for line in recording.read_text().splitlines()]
    for number in range(readings):
        yield json.dumps({**lines[number % len(lines)], "time": 1_760_000_000 + 3 * number}) + "\n"


def recorded_hour(program, recording, briefly):
    """Flushes, and bytes written to files of the history, as strace counts them."""
    readings = READINGS // 20 if briefly else READINGS
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "hour.jsonl").write_text("".join(hour(recording, readings)))
        done = subprocess.run(
            ["strace", "-f", "-y", "-o", folder / "calls", "-e", "trace=fsync,fdatasync,write,pwrite64", program,
             "--headless", "--fast", "--replay", folder / "hour.jsonl", "--data-dir", folder / "history"],
            capture_output=True, text=True, check=True)
        if len(done.stdout.splitlines()) != readings:
            raise RuntimeError("the recording was not played to its end")
        calls = (folder / "calls").read_text().splitlines()
        writes = [found for call in calls if (found := WRITE.search(call))]
        return {"flushes": sum(bool(FLUSH.search(call)) for call in calls),
                "kB": sum(int(found["bytes"]) for found in writes if "/history/" in found["file"]) / 1000}
