"""Checks the application bundle that is named."""

import os
import plistlib
import struct
import sys
from pathlib import Path

MACH_O_64 = 0xFEEDFACF
ARM_64 = 0x0100000C
BUILD_VERSION = 0x32
MACOS = 1


def demand(holds, what):
    if not holds:
        sys.exit(f"check_bundle.py: {what}")


def check_property_list(path):
    with path.open("rb") as file:
        properties = plistlib.load(file)
    wanted = {
        "CFBundleExecutable": "Quelby",
        "CFBundleIconFile": "Quelby",
        "CFBundleIdentifier": "com.quelby.Quelby",
        "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleName": "Quelby",
        "CFBundlePackageType": "APPL",
        "LSMinimumSystemVersion": "13.0",
        "LSUIElement": True,
        "NSHighResolutionCapable": True,
        "NSPrincipalClass": "NSApplication",
    }
    for key, value in wanted.items():
        demand(properties.get(key) == value, f"{key} is {properties.get(key)!r}, not {value!r}")
    for key in ("CFBundleShortVersionString", "CFBundleVersion"):
        numbers = properties.get(key, "").split(".")
        demand(len(numbers) == 3 and all(number.isdecimal() for number in numbers), f"{key} is no version")


def load_commands(data):
    count = struct.unpack_from("<I", data, 16)[0]
    offset = 32
    for _ in range(count):
        kind, size = struct.unpack_from("<II", data, offset)
        yield kind, offset
        offset += size


def check_executable(path):
    demand(os.access(path, os.X_OK), f"{path} cannot be run")
    data = path.read_bytes()
    magic, processor = struct.unpack_from("<II", data)
    demand(magic == MACH_O_64 and processor == ARM_64, f"{path} is not for 64-bit Arm")
    versions = [struct.unpack_from("<II", data, at + 8) for kind, at in load_commands(data) if kind == BUILD_VERSION]
    demand(versions == [(MACOS, 13 << 16)], f"{path} is not for macOS 13.0 and later")


def icon_elements(data):
    demand(data[:4] == b"icns" and struct.unpack_from(">I", data, 4)[0] == len(data), "the icon is no icon")
    offset = 8
    while offset < len(data):
        size = struct.unpack_from(">I", data, offset + 4)[0]
        yield data[offset : offset + 4].decode()
        offset += size


def check_icon(path):
    sizes = {"is32", "il32", "it32", "ic08", "ic09", "ic10"}
    missing = sizes - set(icon_elements(path.read_bytes()))
    demand(not missing, f"the icon lacks {sorted(missing)}")


def main():
    contents = Path(sys.argv[1]) / "Contents"
    check_property_list(contents / "Info.plist")
    for program in ("Quelby", "quelbyctl"):
        check_executable(contents / "MacOS" / program)
    check_icon(contents / "Resources" / "Quelby.icns")
    demand(os.access(contents / "Resources" / "pwr_limiter", os.X_OK), "the helper is not there to be run")


main()
