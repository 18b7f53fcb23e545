#!/usr/bin/python3
"""json_schemas.py QUELBYCTL SOURCES: what quelbyctl prints as JSON is as docs/schema says, for every recorded machine.

Runs with Debian's own Python, which has Debian's validator.
"""

import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

COMMANDS = {
    "status": ["status", "--json"],
    "dashboard": ["dashboard", "--json"],
    "settings": ["dashboard", "--view", "settings", "--json"],
    "title": ["title", "--format", "json"],
    "title-waybar": ["title", "--format", "waybar"],
    "helper": ["helper", "status", "--json"],
}

RECORDED = {  # what has to be recorded first
    "history": ["history"],
    "energy": ["energy", "--by", "hour"],
    "sleeps": ["sleeps"],
    "sessions": ["sessions"],
    "health": ["health"],
}


def validator(sources, name):
    schema = json.loads((sources / "docs/schema" / f"{name}.schema.json").read_text())
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def complaints(check, text, where):
    return [f"{where}: {error.json_path}: {error.message}" for error in check.iter_errors(json.loads(text))]


def main(program, sources):
    def output(words, *more):
        return subprocess.run([program, *words, *more], check=True, capture_output=True, text=True).stdout

    recordings = sorted((sources / "resources/recordings").glob("*.jsonl"))
    recordings.append(sources / "tests/data/charging-dashboard/charging.jsonl")
    checks = {name: validator(sources, name) for name in [*COMMANDS, *RECORDED]}
    found = []
    for recording in recordings:
        for name, words in COMMANDS.items():
            found += complaints(checks[name], output(words, "--replay", recording), f"{name} of {recording.name}")
        for line in output(["watch", "--json", "--fast", "--count", "5"], "--replay", recording).splitlines():
            found += complaints(checks["status"], line, f"watch of {recording.name}")
        with tempfile.TemporaryDirectory() as folder:
            recorder = pathlib.Path(program).with_name("quelby")
            arguments = ["--replay", recording, "--data-dir", folder]
            subprocess.run([recorder, "--headless", "--fast", *arguments], check=True, capture_output=True)
            by_app = output(["energy", "--json"], *arguments)
            found += complaints(checks["energy"], by_app, f"energy of {recording.name} by application")
            for name, words in RECORDED.items():
                text = output([*words, "--json"], *arguments)
                found += complaints(checks[name], text, f"{name} of {recording.name}")

    # That a validator finds something at all.
    status = json.loads(output(["status", "--json"], "--replay", recordings[0]))
    for wrong in ({**status, "batteryPercent": "70"}, {**status, "another": 1}, {"batteryPercent": 70}):
        if checks["status"].is_valid(wrong):
            found.append("the schema of the status accepts what is wrong")
    print("\n".join(found))
    return 1 if found or len(recordings) < 5 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], pathlib.Path(sys.argv[2])))
