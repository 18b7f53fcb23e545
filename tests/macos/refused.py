#!/usr/bin/env python3
"""refused.py BUILD MISTAKE...: whether the compiler or the linker refuses each of the files, for the reason in its first line.

BUILD is where the project in target/ is configured. A mistake that is built, or refused for another reason, is told with
what was said of it.
"""
import pathlib
import re
import subprocess
import sys


def said_of_each(build, names):
    """Name -> what stands in the build's output about it; one that was built is not among them."""
    done = subprocess.run(["cmake", "--build", build, "--target", *names, "--", "-k", "0"],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    failures = re.split(r"^FAILED: ", done.stdout, flags=re.MULTILINE)[1:]
    said = {}
    for failure in failures:
        product = failure.split(maxsplit=1)[0]
        named = re.match(r"CMakeFiles/(\w+)\.dir/|bin/(\w+)$", product)
        if named:
            said[named[1] or named[2]] = failure
    return said


def main(build, *files):
    mistakes = {pathlib.Path(file).stem: pathlib.Path(file) for file in files}
    said = said_of_each(build, mistakes)
    status = 0
    for name, file in mistakes.items():
        first = file.read_text(encoding="utf-8").splitlines()[0]
        reason = first.removeprefix("// Refused: ")
        if not re.search(f"error: .*{reason}", said.get(name, "")):
            print(f"{file} should be refused: {reason}\n{said.get(name, 'It was built.')}")
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
