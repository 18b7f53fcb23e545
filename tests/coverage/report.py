#!/usr/bin/env python3
"""Says how many lines of src/ and limiter/ have run since their counts were deleted; ./check coverage does all of it.

  tests/coverage/report.py BUILD            one line for each file of which too little ran, and the share of all
  tests/coverage/report.py BUILD --every    one line for each file of which anything did not run

Exits with 1 below the goal. What is built for other systems is not counted. A function that nobody calls and that stands in
a header is not seen: the compiler makes nothing of it. One that the linker leaves out is seen, because gcov reads
what the compiler wrote down beside the object, not the program; so is a whole file that no test uses. Where a line is
compiled many times (templates, headers, the helper's share of src/), one that ran is enough. Files that are compiled
as one are no trouble: each line knows its own file.

The file exceptions beside this one names what no test on one machine reaches, each with its reason.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys

GOAL = 95.0
ROOT = pathlib.Path(__file__).resolve().parents[2]
EXCEPTIONS = pathlib.Path(__file__).resolve().parent / "exceptions"
OTHER_SYSTEMS = "/macos/"


class Source:
    """One file: for each line with code whether it ran, and where each function stands."""

    def __init__(self):
        self.ran = {}
        self.functions = {}

    def add(self, counted):
        for line in counted["lines"]:
            number = line["line_number"]
            self.ran[number] = self.ran.get(number, False) or line["count"] > 0
        for function in counted["functions"]:
            self.functions[function["demangled_name"]] = range(function["start_line"], function["end_line"] + 1)

    def leave_out_braces(self, text):
        """A brace that ends something has code only for when an exception passes by."""
        for number, line in enumerate(text.splitlines(), start=1):
            if not self.ran.get(number, True) and not line.strip(" ()};,"):
                del self.ran[number]

    def lines_of(self, function):
        """Those of a function, its overloads and what is written inside of it; of the whole file if it is empty."""
        if not function:
            return set(self.ran)
        name = re.compile(rf"(^|::|\s){re.escape(function)}[(<\[]")
        return {line for whole, lines in self.functions.items() if name.search(whole) for line in lines}

    def share(self):
        return 100 * sum(self.ran.values()) / len(self.ran) if self.ran else 100.0

    def not_run(self):
        return sorted(line for line, ran in self.ran.items() if not ran)


def counts_of(notes):
    """What gcov makes of one object file's notes, and of its counts if it has any."""
    said = subprocess.run(["gcov", "--json-format", "--stdout", "--demangled-names", notes.resolve()],
                          cwd=notes.parent, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True).stdout
    report = json.loads(said)
    ours = []
    for counted in report["files"]:
        path = os.path.normpath(os.path.join(report["current_working_directory"], counted["file"]))
        name = os.path.relpath(path, ROOT)
        if name.startswith(("src/", "limiter/")) and OTHER_SYSTEMS not in name:
            ours.append((name, counted))
    return ours


def sources_of(build):
    sources = {}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for ours in pool.map(counts_of, sorted(build.rglob("*.gcno"))):
            for name, counted in ours:
                sources.setdefault(name, Source()).add(counted)
    for name, source in sources.items():
        source.leave_out_braces((ROOT / name).read_text())
    return sources


def leave_out_exceptions(sources):
    """How many lines they are, and the complaints about exceptions that name nothing."""
    left_out, complaints = 0, []
    for line in EXCEPTIONS.read_text().splitlines():
        if not line or line.startswith("#"):
            continue
        place, reason = (line.split(maxsplit=1) + [""])[:2]
        name, _, function = place.partition(":")
        lines = sources.get(name, Source()).lines_of(function)
        if not lines:
            complaints.append(f"{EXCEPTIONS.name}: there is no {place}")
        elif not reason:
            complaints.append(f"{EXCEPTIONS.name}: {place} has no reason")
        for number in lines:
            left_out += sources[name].ran.pop(number, None) is not None
    return left_out, complaints


def spans(numbers):
    """12, 13, 14, 20 as 12-14, 20."""
    groups = []
    for number in numbers:
        if groups and groups[-1][1] == number - 1:
            groups[-1][1] = number
        else:
            groups.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in groups)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--every", action="store_true")
    arguments = parser.parse_args()
    sources = sources_of(arguments.build)
    if not sources:
        sys.exit(f"coverage: nothing was compiled for counting in {arguments.build}")
    left_out, complaints = leave_out_exceptions(sources)
    for name, source in sorted(sources.items()):
        if source.share() < GOAL or (arguments.every and source.not_run()):
            print(f"{source.share():5.1f} %  {name}: {spans(source.not_run())}")
    ran = sum(sum(source.ran.values()) for source in sources.values())
    lines = sum(len(source.ran) for source in sources.values())
    print(f"{100 * ran / lines:.2f} % of {lines} lines ran, {left_out} are left out with a reason; the goal is {GOAL:.0f} %")
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    sys.exit(bool(complaints) or 100 * ran < GOAL * lines)


if __name__ == "__main__":
    main()
