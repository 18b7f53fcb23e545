#!/usr/bin/env python3
"""Makes mistakes in the calculations, one at a time, and tells which of them no test notices.

  tests/mutations/run.py BUILD                   some mistakes in each file that `calculations` names; the same every time
  tests/mutations/run.py BUILD --sample 40       so many in each file, 10 by default
  tests/mutations/run.py BUILD --seed 7          others
  tests/mutations/run.py BUILD --all FILE...     every one that is known, here only of some files

The build has to be up to date. A mistake costs a second or two: only its own file is compiled, with its headers compiled
before, and stands before the library in which the right one is. The linker takes the first it is given of
two definitions, and -fPIC keeps the library's other files from calling the right one all the same.

`equivalent` names mistakes that change nothing that anybody could see, each with the reason. Exits with 1 if a mistake
survives that is not there, and if one is there that is not made any more.
"""
import argparse
import concurrent.futures
import os
import pathlib
import random
import sys
import tempfile

from building import Building
from mutants import mutants_of

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]


def calculations():
    """Each file with the test programs that concern it, in the order in which they are asked."""
    lines = (HERE / "calculations").read_text().splitlines()
    return {words[0]: words[1:] for words in map(str.split, lines) if words and words[0] != "#"}


def equivalents():
    """The pairs of a file and a difference."""
    known, file, difference = set(), None, []
    for line in [*(HERE / "equivalent").read_text().splitlines(), ""]:
        if line[:2] in ("- ", "+ ", "-", "+"):
            difference.append(line)
        elif line.startswith(("src/", "limiter/")):
            file = line
        elif difference and line:
            known.add((file, "\n".join(difference)))
            difference = []
    return known


def chosen(name, source, arguments):
    mutants = mutants_of(source)
    if arguments.all or len(mutants) <= arguments.sample:
        return mutants
    picked = random.Random(f"{arguments.seed} {name}").sample(range(len(mutants)), arguments.sample)
    return [mutants[index] for index in sorted(picked)]


class Tally:
    def __init__(self):
        self.killed = self.endless = self.refused = self.equivalent = self.survived = 0

    def __str__(self):
        meant = self.killed + self.endless + self.survived
        share = 100 * (meant - self.survived) / meant if meant else 100.0
        return (f"{meant} mistakes: {share:.1f} % noticed ({self.endless} because the tests did not end), "
                f"{self.survived} not; beside them {self.equivalent} that change nothing, "
                f"and {self.refused} that do not compile")


def try_file(name, tests, arguments, building, known, tally, pool):
    source = (ROOT / name).read_text()
    mutated = building.prepare(name, source, tests)
    mutants = chosen(name, source, arguments)
    before = tally.survived
    meant = []
    for mutant in mutants:
        if (name, mutant.difference(source)) in known:
            tally.equivalent += 1
        else:
            meant.append(mutant)
    for mutant, came in zip(meant, pool.map(lambda mutant: mutated.outcome(mutant.applied_to(source)), meant)):
        setattr(tally, came, getattr(tally, came) + 1)
        if came == "survived":
            print(f"{name}:{mutant.line(source)} is not noticed\n{mutant.difference(source)}\n", flush=True)
    print(f"{name}: {len(meant)} tried, {tally.survived - before} not noticed", file=sys.stderr, flush=True)


def stale(known):
    """Those that are listed, and made no more."""
    made = set()
    for name in {name for name, _ in known}:
        source = (ROOT / name).read_text() if (ROOT / name).exists() else ""
        made |= {(name, mutant.difference(source)) for mutant in mutants_of(source)}
    return sorted(known - made)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("files", nargs="*")
    parser.add_argument("--sample", type=int, default=10)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--all", action="store_true")
    arguments = parser.parse_intermixed_args()

    known = equivalents()
    forgotten = stale(known)
    for name, difference in forgotten:
        print(f"{name}: listed as equivalent, but not made any more\n{difference}\n")
    tally = Tally()
    with tempfile.TemporaryDirectory(prefix="mutations-") as folder, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        os.chmod(folder, 0o755)  # some tests become an ordinary user
        building = Building(arguments.build.resolve(), pathlib.Path(folder))
        wanted = [str((pathlib.Path.cwd() / file).resolve().relative_to(ROOT)) for file in arguments.files]
        for name, tests in calculations().items():
            if not wanted or name in wanted:
                try_file(name, tests, arguments, building, known, tally, pool)
    print(tally)
    sys.exit(bool(tally.survived or forgotten))


if __name__ == "__main__":
    main()
