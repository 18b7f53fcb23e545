"""A pointer for a compositor of the wlroots family that has none: speaks wlr-virtual-pointer over the socket."""

import os
import socket
import struct
import time

DISPLAY, REGISTRY, CALLBACK, MANAGER, POINTER = 1, 2, 3, 4, 5
LEFT_BUTTON = 0x110


def text(value):
    data = value.encode() + b"\0"
    return struct.pack("<I", len(data)) + data + b"\0" * (-len(data) % 4)


class VirtualPointer:
    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(path)
        self.send(DISPLAY, 1, struct.pack("<I", REGISTRY))
        self.send(DISPLAY, 0, struct.pack("<I", CALLBACK))
        name = self.find("zwlr_virtual_pointer_manager_v1")
        interface = text("zwlr_virtual_pointer_manager_v1")
        self.send(REGISTRY, 0, struct.pack("<I", name) + interface + struct.pack("<II", 1, MANAGER))
        self.send(MANAGER, 0, struct.pack("<II", 0, POINTER))

    def send(self, target, request, arguments=b""):
        self.socket.sendall(struct.pack("<II", target, (8 + len(arguments)) << 16 | request) + arguments)

    def find(self, wanted):
        while True:
            target, head = struct.unpack("<II", self.read(8))
            body = self.read((head >> 16) - 8)
            if target == REGISTRY and head & 0xFFFF == 0:
                name, length = struct.unpack("<II", body[:8])
                if body[8:8 + length - 1].decode() == wanted:
                    return name
            assert target != CALLBACK, f"the compositor has no {wanted}"

    def read(self, count):
        data = b""
        while len(data) < count:
            more = self.socket.recv(count - len(data))
            assert more, "the compositor is gone"
            data += more
        return data

    @staticmethod
    def now():
        """In milliseconds: what comes quickly after another press is a double one."""
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def move(self, x, y, width, height):
        """In points of a desktop that large."""
        self.send(POINTER, 1, struct.pack("<5I", self.now(), x, y, width, height))
        self.send(POINTER, 4)

    def button(self, down):
        self.send(POINTER, 2, struct.pack("<3I", self.now(), LEFT_BUTTON, 1 if down else 0))
        self.send(POINTER, 4)


def socket_path(environment):
    return os.path.join(environment["XDG_RUNTIME_DIR"], environment["WAYLAND_DISPLAY"])
