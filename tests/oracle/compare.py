#!/usr/bin/env python3
"""Plays random recordings to quelbyctl and to the second implementation of the rules, and compares what both publish.

Every field of every cycle counts. The first recording on which the two differ is kept, and named.
"""
import argparse
import json
import pathlib
import random
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True  # the folder of the sources stays as it is

from oracle import DEFAULTS, Monitor  # noqa: E402
from recordings import random_recording  # noqa: E402

PATIENCE_SECONDS = 60


class Difference(Exception):
    """Where the program departs from the rules."""


def main():
    options = parsed_arguments()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="quelby-oracle-"))
    compared = 0
    try:
        for number in range(options.recordings):
            rng = random.Random(f"{options.seed} {number}")
            recording = folder / f"recording-{number}.jsonl"
            recording.write_text(random_recording(rng, options.cycles), encoding="utf-8", newline="")
            compared += compare(options.program, recording)
            recording.unlink()
    except Difference as difference:
        print(f"{recording}: {difference}")
        return 1
    folder.rmdir()
    if not compared:
        print("nothing was compared")
        return 1
    print(f"{options.recordings} recordings with {compared} cycles: every field is equal")
    return 0


def parsed_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", metavar="PROGRAM", help="quelbyctl")
    parser.add_argument("--recordings", type=int, default=150, metavar="N")
    parser.add_argument("--cycles", type=int, default=40, metavar="N", help="of a recording; some have twice as many")
    parser.add_argument("--seed", type=int, default=1, metavar="N")
    return parser.parse_args()


def compare(program, recording):
    """Answers the number of cycles that were compared."""
    lines = [json.loads(line) for line in recording.read_text(encoding="utf-8").split("\n") if line]
    answers = answers_of(program, recording)
    if len(answers) != len(lines):
        raise Difference(f"{len(lines)} cycles are recorded, {len(answers)} were printed")
    monitor = Monitor()
    for cycle, (line, answer) in enumerate(zip(lines, answers), start=1):
        try:
            expected = monitor.cycle(line, draw_behind(answer))
        except ArithmeticError as error:  # the rules hold for what a machine can report, and the recording went beyond
            raise Difference(f"cycle {cycle}: the rules have no answer: {error}") from error
        compare_cycle(cycle, expected, answer)
    return len(lines)


def answers_of(program, recording):
    command = [program, "watch", "--json", "--fast", "--replay", recording]
    run = subprocess.run(command, capture_output=True, timeout=PATIENCE_SECONDS, check=False)
    if run.returncode != 0 or run.stderr:
        raise Difference(f"the program ended with {run.returncode}: {run.stderr.decode(errors='replace').strip()}")
    return [json.loads(line) for line in run.stdout.decode("utf-8").split("\n") if line]


def draw_behind(answer):
    """A draw that no recording fixes is the program's to make."""
    return 1 if answer.get("diskPower") == 2.0 else 0


def compare_cycle(cycle, expected, answer):
    if list(answer) != list(DEFAULTS):
        raise Difference(f"cycle {cycle}: the fields are {', '.join(answer)}")
    differences = [
        f"cycle {cycle}, {field}: the rules give {expected[field]!r}, the program {answer[field]!r}"
        for field in DEFAULTS
        if not same(expected[field], answer[field])
    ]
    if differences:
        raise Difference("\n".join(differences))


def same(expected, actual):
    """Equal in kind and to the last bit: repr tells -0.0 from 0.0, and 1 from True."""
    return repr(expected) == repr(actual)


if __name__ == "__main__":
    sys.exit(main())
