"""What the scripts for macOS ask of its tools, which are stood in for here and note what they are asked.

Usage: scripts_test.py ROOT, the folder of the sources.
"""

import os
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop()).resolve()
SCRIPTS = ROOT / "packaging/macos"
WHO = "Developer ID Application: Somebody (TEAM)"

TOOL = """#!/bin/sh
echo "$(basename "$0")|$*" >>"$CALLS"
case "$FAILING" in "$(basename "$0") $1") exit 1 ;; esac
"""

CPACK = TOOL + """while [ "$1" != -B ]; do shift; done
mkdir -p "$2" && touch "$2/Quelby-1.0.0-arm64.dmg"
"""

CTL = """#!/bin/sh
echo "quelbyctl|$*" >>"$CALLS"
case "$1" in record) echo '{}' >"$2" ;; *) echo "quelbyctl $1" ;; esac
"""

REGISTRY = TOOL + """cat <<'END'
    "Serial" = "D86XXXXXXXXXXXXXX"
    "BatterySerialNumber" = "F8YXXXX"
    "BatteryData" = {"Serial"="D86XXX","CycleCount"=12,"SerialNumber"=<00ff>}
    "CurrentCapacity" = 80
END
"""


class MacTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.tools = self.folder / "tools"
        self.tools.mkdir()
        self.calls_file = self.folder / "calls"
        for name in ("cmake", "codesign", "xcrun", "spctl", "shasum", "sudo", "sw_vers", "xcodebuild", "brew", "otool"):
            self.tool(name, TOOL)
        self.tool("cpack", CPACK)
        self.tool("ioreg", REGISTRY)

    def tool(self, name, text):
        path = self.tools / name
        path.write_text(text, encoding="utf-8")
        path.chmod(0o755)

    def run_script(self, script, *arguments, failing="", cwd=None, **variables):
        environment = {**os.environ, "PATH": f"{self.tools}:/usr/bin:/bin", "CALLS": str(self.calls_file),
                       "FAILING": failing, **variables}
        return subprocess.run([script, *map(str, arguments)], env=environment, capture_output=True, text=True,
                              cwd=cwd or self.folder, check=False)

    def calls(self):
        return self.calls_file.read_text(encoding="utf-8").splitlines() if self.calls_file.exists() else []

    def application(self):
        contents = self.folder / "Quelby.app/Contents"
        for file in ("MacOS/Quelby", "MacOS/quelbyctl", "Resources/pwr_limiter", "Frameworks/libfmt.dylib",
                     "Frameworks/QtCore.framework/QtCore", "PlugIns/platforms/libqcocoa.dylib"):
            (contents / file).parent.mkdir(parents=True, exist_ok=True)
            (contents / file).write_text("", encoding="utf-8")
        shutil.copy(SCRIPTS / "put-quelbyctl-into-path", contents / "Resources")
        (contents / "MacOS/quelbyctl").write_text(CTL, encoding="utf-8")
        (contents / "MacOS/quelbyctl").chmod(0o755)
        return contents.parent


class Sign(MacTest):
    def signed(self, identity):
        application = self.application()
        done = self.run_script(SCRIPTS / "sign", application, identity, "entitlements")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return [call.replace(str(application), "APP") for call in self.calls()]

    def test_goes_from_within_outwards_and_then_looks_at_all_of_it(self):
        calls = self.signed(WHO)
        self.assertEqual([call.rsplit(" ", 1)[1] for call in calls],
                         ["APP/Contents/Frameworks/libfmt.dylib", "APP/Contents/PlugIns/platforms/libqcocoa.dylib",
                          "APP/Contents/Frameworks/QtCore.framework", "APP/Contents/Resources/pwr_limiter",
                          "APP/Contents/MacOS/quelbyctl", "APP", "APP"])
        self.assertEqual(calls[-1], "codesign|--verify --deep --strict APP")

    def test_grants_something_to_the_two_programs_alone(self):
        granted = [call.rsplit(" ", 1)[1] for call in self.signed(WHO) if "--entitlements entitlements" in call]
        self.assertEqual(granted, ["APP/Contents/MacOS/quelbyctl", "APP"])

    def test_hardens_what_somebody_signs(self):
        for call in self.signed(WHO)[:-1]:
            self.assertIn(f"--force --sign {WHO} --timestamp --options runtime", call)

    def test_does_not_harden_what_nobody_signs(self):
        for call in self.signed("-")[:-1]:
            self.assertIn("--force --sign - ", call)
            self.assertNotIn("runtime", call)

    def test_ends_where_a_part_cannot_be_signed(self):
        done = self.run_script(SCRIPTS / "sign", self.application(), "-", "entitlements", failing="codesign --force")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(len(self.calls()), 1)

    def test_says_where_there_is_no_application(self):
        done = self.run_script(SCRIPTS / "sign", self.folder / "none.app", "-", "entitlements")
        self.assertEqual(done.returncode, 1)
        self.assertIn("there is no application", done.stderr)
        self.assertEqual(self.run_script(SCRIPTS / "sign").returncode, 2)


class Release(MacTest):
    def release(self, *arguments, **options):
        return self.run_script(SCRIPTS / "release", "--build", self.folder / "build", *arguments, **options)

    def names(self):
        return [" ".join(call.replace("|", " ").split()[:2]) for call in self.calls()]

    def test_makes_an_image_for_this_computer(self):
        self.assertEqual(self.release().returncode, 0)
        self.assertEqual(self.names(), ["cmake -S", "cmake --build", "cpack --config", "shasum -a"])
        self.assertIn("-DQUELBY_SIGNING_IDENTITY=- ", self.calls()[0])

    def test_signs_the_image_too_with_an_identity(self):
        self.assertEqual(self.release("--identity", WHO).returncode, 0)
        self.assertIn(f"-DQUELBY_SIGNING_IDENTITY={WHO} ", self.calls()[0])
        self.assertEqual(self.calls()[3].split("|")[1].replace(str(self.folder), ""),
                         f"--force --sign {WHO} --timestamp /build/release/Quelby-1.0.0-arm64.dmg")

    def test_asks_for_notarisation_and_waits(self):
        self.assertEqual(self.release("--identity", WHO, "--notary", "keys").returncode, 0)
        self.assertEqual(self.names()[3:], ["codesign --force", "xcrun notarytool", "xcrun stapler", "spctl --assess",
                                            "shasum -a"])
        self.assertIn("--keychain-profile keys --wait", self.calls()[4])

    def test_says_which_step_failed_and_goes_no_further(self):
        done = self.release("--identity", WHO, "--notary", "keys", failing="xcrun notarytool")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, "release: this failed: notarise\n")
        self.assertEqual(self.names()[-1], "xcrun notarytool")

    def test_needs_an_identity_for_notarisation_and_a_value_for_each_option(self):
        for arguments in (["--notary", "keys"], ["--identity"], ["--unknown", "x"]):
            done = self.release(*arguments)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertIn("Usage: packaging/macos/release", done.stderr)
        self.assertEqual(self.calls(), [])

    def test_takes_no_helper_that_is_no_program(self):
        self.assertEqual(self.release("--helper", self.folder / "none").returncode, 1)


class IntoPath(MacTest):
    def put(self, *arguments):
        script = self.application() / "Contents/Resources/put-quelbyctl-into-path"
        self.tool("sudo", '#!/bin/sh\nexec "$@"\n')
        return self.run_script(script, *arguments, QUELBY_PATHS_FOLDER=str(self.folder))

    def test_gets_the_folder_of_the_programs_and_loses_it_again(self):
        self.assertEqual(self.put().returncode, 0)
        entry = self.folder / "quelby"
        self.assertEqual(entry.read_text(encoding="utf-8"), f"{self.folder}/Quelby.app/Contents/MacOS\n")
        self.assertEqual(self.put("--remove").returncode, 0)
        self.assertFalse(entry.exists())
        self.assertEqual(self.put("--other").returncode, 2)


class FirstRun(MacTest):
    def setUp(self):
        super().setUp()
        # In a copy: it builds into the folder of its sources.
        self.root = self.folder / "sources"
        (self.root / "packaging/macos").mkdir(parents=True)
        shutil.copy(SCRIPTS / "first-run", self.root / "packaging/macos")
        application = self.application()
        (self.root / "build/mac/bin").mkdir(parents=True)
        shutil.move(application, self.root / "build/mac/bin/Quelby.app")

    def collected(self, *arguments, **options):
        done = self.run_script(self.root / "packaging/macos/first-run", *arguments, self.folder / "it.tar.gz", **options)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        with tarfile.open(self.folder / "it.tar.gz") as archive:
            return {Path(member.name).name: archive.extractfile(member).read().decode()
                    for member in archive.getmembers() if member.isfile()}

    def test_collects_all_that_needs_no_eyes(self):
        files = self.collected()
        self.assertLessEqual({"versions.txt", "build.txt", "registry.txt", "status.txt", "dashboard.txt", "helper.txt",
                              "libraries.txt", "recording.jsonl", "exit-statuses.txt"}, files.keys())
        self.assertIn("quelbyctl status", files["status.txt"])
        self.assertTrue(any(call.startswith("quelbyctl|record") and call.endswith("--count 100 --interval 3")
                            for call in self.calls()))

    def test_takes_the_serial_numbers_out(self):
        registry = self.collected("--minutes", "0")["registry.txt"]
        for secret in ("D86", "F8Y", "00ff"):
            self.assertNotIn(secret, registry)
        self.assertIn('"CycleCount"=12', registry)
        self.assertIn('"CurrentCapacity" = 80', registry)

    def test_goes_on_where_something_fails_and_notes_it(self):
        files = self.collected("--minutes", "0", failing="cmake -S")
        self.assertIn("build 1\n", files["exit-statuses.txt"])
        self.assertIn("status 0\n", files["exit-statuses.txt"])

    def test_leaves_nothing_but_the_file(self):
        temporary = self.folder / "temporary"
        temporary.mkdir()
        self.collected("--minutes", "0", TMPDIR=str(temporary))
        self.assertEqual(list(temporary.iterdir()), [])

    def test_refuses_what_it_does_not_know(self):
        for arguments in (["--minutes"], ["--minutes", "x"], ["--other"]):
            self.assertEqual(self.run_script(self.root / "packaging/macos/first-run", *arguments).returncode, 2)


if __name__ == "__main__":
    unittest.main()
