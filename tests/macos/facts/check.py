"""Compares our declarations with the table of facts.

Usage: check.py FACADE FACTS README STUBS C_HEADERS... Ends with 1, and says what is wrong, where a declaration is not in
the table, or is otherwise there; where a fact belongs to no declaration; where a mark of availability is missing in the
README; and where the linker is given a name in a framework that does not declare it.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

from declarations import Declarations

SOURCE = re.compile(r"[a-z0-9]+@\d{4}-\d{2}")


@dataclass
class Fact:
    says: str
    sources: list


def read_facts(path):
    facts = {}
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            title, says, sources = line.split("\t")
            facts[title] = Fact(says, sources.split())
    return facts


def complaints(declared, facts, readme):
    """Pairs of what is meant and what is wrong with it."""
    for title, says in declared.items():
        if title not in facts:
            yield title, f"{title} is declared, but is not in the table: look it up, and say where"
        elif facts[title].says != says:
            yield title, f"{title} is declared as {says}; it is {facts[title].says}"
        if title.startswith("since ") and f"| `{title[6:]}` | {says} |" not in readme:
            yield title, f"{title[6:]} came with macOS {says}, and the README does not say where that is known from"
    for title, fact in facts.items():
        if title not in declared:
            yield title, f"{title} is in the table, but nobody declares it any more: remove it there"
        if not fact.sources or not all(SOURCE.fullmatch(source) for source in fact.sources):
            yield title, f"{title} names no source with its year and month"


# What the compiler calls by itself is declared nowhere.
def misplaced_stubs(facade, stubs):
    for folder in sorted(path for path in Path(facade).iterdir() if path.is_dir()):
        declared = "".join(header.read_text(encoding="utf-8") for header in folder.glob("*.h"))
        for name in (Path(stubs) / f"{folder.name}.txt").read_text(encoding="utf-8").split():
            if name != "class" and not name.startswith("__") and not re.search(rf"\b{name}\b", declared):
                yield name, f"the linker is given {name} in {folder.name}, which does not declare it"


def main():
    facade, table, readme, stubs, *c_headers = sys.argv[1:]
    facts = read_facts(table)
    found = [*complaints(Declarations(facade, c_headers).rows, facts, Path(readme).read_text(encoding="utf-8")),
             *misplaced_stubs(facade, stubs)]
    print(*(sentence for _, sentence in found), sep="\n", end="\n" if found else "")
    unseen = sum(all(source.startswith("documentation@") for source in fact.sources) for fact in facts.values())
    print(f"{len(facts)} facts, {unseen} of them without a witness, {len(found)} complaints")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
