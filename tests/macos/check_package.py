"""Packs the application as for the disk image, and checks what is in the package.

Usage: check_package.py BUILD VERSION ENTITLEMENTS. The tool that signs is stood in for; the image itself is made on a Mac
alone, so the package is an archive here.
"""

import os
import subprocess
import sys
import tarfile
import tempfile
from pathlib import Path

CODESIGN = '#!/bin/sh\necho "$*" >>"$CALLS"\n'


def main():
    build, version, entitlements = sys.argv[1:]
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        (folder / "codesign").write_text(CODESIGN, encoding="utf-8")
        (folder / "codesign").chmod(0o755)
        environment = {**os.environ, "PATH": f"{folder}:{os.environ['PATH']}", "CALLS": str(folder / "calls")}
        subprocess.run(["cpack", "--config", f"{build}/CPackConfig.cmake", "-B", folder / "package"], env=environment,
                       check=True, stdout=subprocess.DEVNULL)
        calls = (folder / "calls").read_text(encoding="utf-8").splitlines()
        if "--deep --strict" not in calls[-1] or not calls[-1].endswith("/Quelby.app"):
            sys.exit(f"check_package.py: the application was not signed before it was packed: {calls}")
        archive = folder / f"package/Quelby-{version}-arm64.tar.gz"
        with tarfile.open(archive) as package:
            package.extractall(folder / "content", filter="data") if hasattr(tarfile, "data_filter") else (
                package.extractall(folder / "content"))
        applications = list((folder / "content").glob("**/Quelby.app"))
        if len(applications) != 1:
            sys.exit(f"check_package.py: there are {len(applications)} applications in the package")
        checked = subprocess.run([sys.executable, Path(__file__).with_name("check_bundle.py"), applications[0], version,
                                  entitlements, "--installed"], check=False)
        sys.exit(checked.returncode)


main()
