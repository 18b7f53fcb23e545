#!/usr/bin/env python3
"""How the memory of `quelbyctl watch --json` develops over 10,000 replayed cycles.

  replayed_cycles.py PROGRAM RECORDING [--briefly]

The recording is repeated as often as it takes. The baseline is the memory after the first 1,000 cycles.
Briefly, which only shows that it still runs, it is 2,000.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

SAMPLE_EVERY = 1_000


def resident_kib(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"VmRSS:\s+(\d+) kB", status)[1])


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    program, recording = sys.argv[1:3]
    cycles = 2_000 if sys.argv[3:] == ["--briefly"] else 10_000
    lines = pathlib.Path(recording).read_text().splitlines(keepends=True)
    with tempfile.NamedTemporaryFile("w", suffix=".jsonl") as repeated:
        for cycle in range(cycles):
            repeated.write(lines[cycle % len(lines)])
        repeated.flush()
        watch = subprocess.Popen([program, "watch", "--json", "--fast", "--replay", repeated.name],
                                 stdout=subprocess.PIPE)
        samples = []
        for cycle, _ in enumerate(watch.stdout, start=1):
            if cycle % SAMPLE_EVERY == 0 and cycle < cycles:  # the pipe keeps it from being far ahead
                samples.append((cycle, resident_kib(watch.pid)))
        if watch.wait() != 0 or not samples:
            sys.exit("the program did not play the recording")
    baseline = samples[0][1]
    print(f"{'cycle':>9} {'resident KiB':>13} {'to first':>9}")
    for cycle, resident in samples:
        print(f"{cycle:>9} {resident:>13} {resident / baseline:>9.3f}")


if __name__ == "__main__":
    main()
