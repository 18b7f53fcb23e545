"""Checks the application bundle that is named.

Usage: check_bundle.py APPLICATION VERSION ENTITLEMENTS [--installed]. One that is installed finds its libraries in itself
alone; one that has only been built may look for them elsewhere.
"""

import os
import plistlib
import re
import struct
import sys
from pathlib import Path

MACH_O_64 = 0xFEEDFACF
ARM_64 = 0x0100000C
LOAD_DYLIB = 0xC
LOAD_WEAK_DYLIB = 0x80000018
RPATH = 0x8000001C
BUILD_VERSION = 0x32
MACOS = 1
FRAMEWORKS = {"AppKit", "CoreFoundation", "Foundation", "IOKit", "ServiceManagement"}


def demand(holds, what):
    if not holds:
        sys.exit(f"check_bundle.py: {what}")


def check_property_list(path, version):
    with path.open("rb") as file:
        properties = plistlib.load(file)
    wanted = {
        "CFBundleExecutable": "Quelby",
        "CFBundleIconFile": "Quelby",
        "CFBundleIdentifier": "com.quelby.Quelby",
        "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleName": "Quelby",
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": version,
        "CFBundleVersion": version,
        "LSMultipleInstancesProhibited": True,
        "LSMinimumSystemVersion": "13.0",
        "LSUIElement": True,
        "NSHighResolutionCapable": True,
        "NSPrincipalClass": "NSApplication",
    }
    for key, value in wanted.items():
        demand(properties.get(key) == value, f"{key} is {properties.get(key)!r}, not {value!r}")
    demand(properties.get("NSAppleEventsUsageDescription"), "nobody is told why a script is run")


def check_entitlements(path):
    with path.open("rb") as file:
        granted = plistlib.load(file)
    demand(granted == {"com.apple.security.automation.apple-events": True}, f"more or less is granted: {granted}")


def load_commands(data):
    count = struct.unpack_from("<I", data, 16)[0]
    offset = 32
    for _ in range(count):
        kind, size = struct.unpack_from("<II", data, offset)
        yield kind, offset
        offset += size


def text_at(data, command, place):
    """A text within a load command, which says where it begins."""
    size = struct.unpack_from("<I", data, command + 4)[0]
    start = command + struct.unpack_from("<I", data, command + place)[0]
    return data[start : command + size].split(b"\0")[0].decode()


def check_libraries(path, names):
    for name in names:
        framework = re.fullmatch(r"/System/Library/Frameworks/(\w+)\.framework/Versions/[A-C]/(\w+)", name)
        known = framework and framework[1] == framework[2] and framework[1] in FRAMEWORKS
        demand(known or re.match(r"(@rpath|/usr/lib)/[^/]+$", name), f"{path} needs {name}, which not every Mac has")


def check_executable(path, installed):
    demand(os.access(path, os.X_OK), f"{path} cannot be run")
    data = path.read_bytes()
    magic, processor = struct.unpack_from("<II", data)
    demand(magic == MACH_O_64 and processor == ARM_64, f"{path} is not for 64-bit Arm")
    commands = list(load_commands(data))
    versions = [struct.unpack_from("<II", data, at + 8) for kind, at in commands if kind == BUILD_VERSION]
    demand(versions == [(MACOS, 13 << 16)], f"{path} is not for macOS 13.0 and later")
    check_libraries(path, [text_at(data, at, 8) for kind, at in commands if kind in (LOAD_DYLIB, LOAD_WEAK_DYLIB)])
    if installed:
        paths = [text_at(data, at, 8) for kind, at in commands if kind == RPATH]
        demand(paths == ["@executable_path/../Frameworks"], f"{path} looks for its libraries in {paths}")


def icon_elements(data):
    demand(data[:4] == b"icns" and struct.unpack_from(">I", data, 4)[0] == len(data), "the icon is no icon")
    offset = 8
    while offset < len(data):
        size = struct.unpack_from(">I", data, offset + 4)[0]
        yield data[offset : offset + 4].decode()
        offset += size


def check_icon(path):
    small, large, retina = {"is32", "il32", "it32"}, {"ic08", "ic09", "ic10"}, {"ic11", "ic12", "ic13", "ic14"}
    sizes = small | large | retina
    missing = sizes - set(icon_elements(path.read_bytes()))
    demand(not missing, f"the icon lacks {sorted(missing)}")


def main():
    application, version, entitlements, *options = sys.argv[1:]
    contents = Path(application) / "Contents"
    check_property_list(contents / "Info.plist", version)
    check_entitlements(Path(entitlements))
    for program in ("Quelby", "quelbyctl"):
        check_executable(contents / "MacOS" / program, "--installed" in options)
    check_icon(contents / "Resources" / "Quelby.icns")
    for program in ("pwr_limiter", "put-quelbyctl-into-path"):
        demand(os.access(contents / "Resources" / program, os.X_OK), f"{program} is not there to be run")


main()
