"""Adds to an icon the pictures of twice the pixels that png2icns leaves out.

Usage: add_retina_sizes.py ICON PICTURES. An icon is a list of elements behind its name and its length, each with four
letters for its kind, its length with this head, and a picture.
"""

import struct
import sys
from pathlib import Path

KINDS = {"ic11": 16, "ic12": 32, "ic13": 128, "ic14": 256}  # and their size in points


def main():
    icon, pictures = Path(sys.argv[1]), Path(sys.argv[2])
    elements = icon.read_bytes()[8:]
    for kind, points in KINDS.items():
        picture = (pictures / f"icon_{points}x{points}@2x.png").read_bytes()
        elements += kind.encode() + struct.pack(">I", 8 + len(picture)) + picture
    icon.write_bytes(b"icns" + struct.pack(">I", 8 + len(elements)) + elements)


main()
