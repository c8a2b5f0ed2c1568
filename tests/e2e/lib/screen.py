"""Pictures of the screen, and what can be found in them."""

import struct
import subprocess
import zlib


class Picture:
    """Rows of red, green, blue."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def pixel(self, x, y):
        at = 3 * (y * self.width + x)
        return tuple(self.data[at:at + 3])

    def row(self, x, y, width):
        at = 3 * (y * self.width + x)
        return self.data[at:at + 3 * width]

    def crop(self, x, y, width, height):
        rows = [self.row(x, y + i, width) for i in range(height)]
        return Picture(width, height, b"".join(rows))

    def find(self, piece, x, y, width, height):
        """The place of a piece that stands in the box to the pixel, or None."""
        first = piece.row(0, 0, piece.width)
        for top in range(y, y + height - piece.height + 1):
            line = self.row(x, top, width)
            at = line.find(first)
            while at >= 0:
                if at % 3 == 0 and self.holds(piece, x + at // 3, top):
                    return x + at // 3, top
                at = line.find(first, at + 1)
        return None

    def holds(self, piece, x, y):
        if x + piece.width > self.width or y + piece.height > self.height:
            return False
        return all(self.row(x, y + i, piece.width) == piece.row(0, i, piece.width)
                   for i in range(piece.height))

    def save(self, path):
        rows = b"".join(b"\0" + self.row(0, y, self.width) for y in range(self.height))

        def chunk(kind, body):
            return (struct.pack(">I", len(body)) + kind + body
                    + struct.pack(">I", zlib.crc32(kind + body)))

        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as png:
            png.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head)
                      + chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))


def read_ppm(data):
    magic, width, height, top, body = data.split(maxsplit=4)[:4] + [None]
    if magic != b"P6" or top != b"255":
        raise ValueError("not a PPM of 8 bits")
    size = 3 * int(width) * int(height)
    return Picture(int(width), int(height), data[-size:])


def take():
    shot = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"],
                          check=True, capture_output=True)
    return read_ppm(shot.stdout)


def read_bmp(path):
    """A picture of 24 bits a pixel, its rows from the bottom up."""
    with open(path, "rb") as bmp:
        data = bmp.read()
    start, = struct.unpack_from("<I", data, 10)
    width, height = struct.unpack_from("<ii", data, 18)
    stride = (3 * width + 3) // 4 * 4
    rows = []
    for y in range(height):
        at = start + (height - 1 - y) * stride
        row = bytearray(data[at:at + 3 * width])
        row[0::3], row[2::3] = row[2::3], row[0::3]
        rows.append(bytes(row))
    return Picture(width, height, b"".join(rows))


def shrink(picture, x, y, width, height, times):
    """A box of the picture made so many times smaller, each pixel the mean of those it stands for."""
    out = bytearray()
    for row in range(height):
        lines = [picture.row(x, y + row * times + i, width * times) for i in range(times)]
        for column in range(width):
            for colour in range(3):
                at = 3 * times * column + colour
                total = sum(sum(line[at:at + 3 * times:3]) for line in lines)
                out.append(total // (times * times))
    return Picture(width, height, bytes(out))


def distance(a, b):
    """Mean difference of two rows of colours."""
    return sum(abs(p - q) for p, q in zip(a, b)) / len(a)
