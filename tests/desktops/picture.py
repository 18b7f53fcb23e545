"""Pictures of a screen, and where two of them differ."""

import struct
import zlib


def equal_pixels(mine, theirs, most, at_end=False):
    """How many of two rows that differ within the first, or last, so many."""
    equal, differs = 0, most
    while differs - equal > 1:
        middle = (equal + differs) // 2
        part = slice(-3 * middle, None) if at_end else slice(3 * middle)
        if mine[part] == theirs[part]:
            equal = middle
        else:
            differs = middle
    return equal


class Picture:
    """Rows of pixels of three bytes each."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels

    @staticmethod
    def from_ppm(data):
        """As most programs can write it: P6, width, height, 255, pixels."""
        words = data.split(maxsplit=4)
        assert words[0] == b"P6" and words[3] == b"255", data[:20]
        width, height = int(words[1]), int(words[2])
        return Picture(width, height, data[len(data) - 3 * width * height:])

    @staticmethod
    def from_xwd(data):
        """As Xvfb keeps its screen: 32 bits a pixel, blue first."""
        header = struct.unpack(">25I", data[:100])
        size, width, height, line, colors = header[0], header[4], header[5], header[12], header[19]
        start = size + 12 * colors
        pixels = bytearray(3 * width * height)
        body = b"".join(data[start + y * line:start + y * line + 4 * width] for y in range(height))
        pixels[0::3], pixels[1::3], pixels[2::3] = body[2::4], body[1::4], body[0::4]
        return Picture(width, height, bytes(pixels))

    def row(self, y):
        return self.pixels[3 * self.width * y:3 * self.width * (y + 1)]

    def difference(self, other, area=None):
        """The smallest rectangle (left, top, right, bottom; the latter two outside) within the area in which both
        differ; None where they do not."""
        left, top, right, bottom = area or (0, 0, self.width, self.height)
        rows = [y for y in range(top, bottom)
                if self.row(y)[3 * left:3 * right] != other.row(y)[3 * left:3 * right]]
        if not rows:
            return None
        first, last = right, left
        for y in rows:
            mine, theirs = self.row(y), other.row(y)
            if mine[3 * left:3 * first] != theirs[3 * left:3 * first]:
                first = left + equal_pixels(mine[3 * left:], theirs[3 * left:], first - left)
            if mine[3 * last:3 * right] != theirs[3 * last:3 * right]:
                last = right - equal_pixels(mine[:3 * right], theirs[:3 * right], right - last, at_end=True)
        return (first, rows[0], last, rows[-1] + 1)

    def lightness(self, area):
        """On average, from 0 (black) to 1 (white)."""
        left, top, right, bottom = area
        rows = [self.row(y)[3 * left:3 * right] for y in range(top, bottom)]
        return sum(sum(row) for row in rows) / (255 * sum(len(row) for row in rows))

    def right_part(self, width):
        left = max(0, self.width - width)
        return Picture(self.width - left, self.height, b"".join(self.row(y)[3 * left:] for y in range(self.height)))

    def paste(self, other, left, top):
        """Gives a picture with the other one in it; what does not fit is left out."""
        pixels = bytearray(self.pixels)
        width = min(other.width, self.width - left)
        for y in range(min(other.height, self.height - top)):
            start = 3 * (self.width * (top + y) + left)
            pixels[start:start + 3 * width] = other.row(y)[:3 * width]
        return Picture(self.width, self.height, bytes(pixels))

    def write_png(self, path):
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        lines = b"".join(b"\0" + self.row(y) for y in range(self.height))
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n"
                       + chunk(b"IHDR", struct.pack(">2I5B", self.width, self.height, 8, 2, 0, 0, 0))
                       + chunk(b"IDAT", zlib.compress(lines, 6)) + chunk(b"IEND", b""))
