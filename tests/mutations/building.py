"""Compiles a changed source file, links it into the tests that concern it, and runs them."""
import itertools
import json
import os
import pathlib
import re
import resource
import shlex
import subprocess
import time

LINKER = pathlib.Path("/usr/lib/llvm-16/bin")  # some ten times as fast as the one that is usual
MEMORY = 4 << 30                               # for a test that is made to fill it
INCLUDES = re.compile(r"^#include .*$", re.MULTILINE)


def quiet(words, folder, **options):
    environment = {**os.environ, "CCACHE_DISABLE": "1", **options.pop("environment", {})}
    return subprocess.run(words, cwd=folder, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, **options).returncode


class Building:
    """What the build knows: how each file is compiled, and how each test program is linked."""

    def __init__(self, build, folder):
        self.build = build
        self.folder = folder
        self.links = {}
        self.numbers = itertools.count()
        self.commands = json.loads((build / "compile_commands.json").read_text())

    def compiler(self, file):
        """The words before the files' names. A file that is compiled with others is named in what is compiled then."""
        for entry in self.commands:
            unit = pathlib.Path(entry["file"])
            united = unit.parent.name == "Unity" and "/tests/" not in entry["file"] and unit.exists()
            if entry["file"] == str(file) or (united and f'"{file}"' in unit.read_text()):
                words = shlex.split(entry["command"])
                del words[words.index("-o"):]
                return [*words, "-O0", "-g0", "-w"]
        raise SystemExit(f"mutations: {file} is not compiled in {self.build}")

    def linker(self, program):
        if program not in self.links:
            said = subprocess.run(["ninja", "-t", "commands", f"bin/{program}"], cwd=self.build, check=True,
                                  stdout=subprocess.PIPE, text=True).stdout
            words = shlex.split(said.splitlines()[-1].removeprefix(": && ").removesuffix(" && :"))
            words += ["-Wl,-z,muldefs"]
            if LINKER.exists():
                words += [f"-B{LINKER}", "-fuse-ld=lld"]
            self.links[program] = words
        return self.links[program]

    def prepare(self, name, source, tests):
        file = self.build.parents[1] / name
        return ChangedFile(self, file, source, tests)


class ChangedFile:
    def __init__(self, building, file, source, tests):
        self.building = building
        self.tests = [test.partition("=")[::2] for test in tests]
        self.compiler = building.compiler(file)
        self.headers = self.precompiled("\n".join(INCLUDES.findall(source)) + "\n")
        self.patience = 60.0
        started = time.monotonic()
        if (came := self.outcome(source)) != "survived":
            raise SystemExit(f"mutations: without any mistake {file} is {came} with {' '.join(tests)}")
        self.patience = 5 + 5 * (time.monotonic() - started)

    def new_folder(self):
        folder = self.building.folder / str(next(self.building.numbers))
        folder.mkdir()
        return folder

    def precompiled(self, includes):
        headers = self.new_folder() / "headers.h"
        headers.write_text(includes)
        quiet([*self.compiler, "-x", "c++-header", headers, "-o", f"{headers}.gch"], self.building.build, check=True)
        return headers

    def outcome(self, source):
        folder = self.new_folder()
        (folder / "changed.cpp").write_text(source)
        words = [*self.compiler, "-include", self.headers, "-c", folder / "changed.cpp", "-o", folder / "changed.o"]
        try:
            if quiet(words, self.building.build) != 0:
                return "refused"
            for program, chosen in self.tests:
                if quiet(self.linking(program, folder), self.building.build) != 0:
                    return "refused"
                if self.fails(folder, chosen):
                    return "killed"
        except subprocess.TimeoutExpired:
            return "endless"
        finally:
            subprocess.run(["rm", "-rf", folder], check=False)
        return "survived"

    def linking(self, program, folder):
        words = list(self.building.linker(program))
        words[words.index("-o") + 1] = str(folder / "tests")
        first = next(index for index, word in enumerate(words) if word.endswith(".o"))
        words.insert(first, str(folder / "changed.o"))
        return words

    def fails(self, folder, chosen):
        def within_limits():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        words = [folder / "tests", "--gtest_brief=1", "--gtest_fail_fast"]
        if chosen:
            words.append(f"--gtest_filter={chosen}")
        return quiet(words, folder, environment={"TMPDIR": str(folder)}, timeout=self.patience,
                     preexec_fn=within_limits) != 0
