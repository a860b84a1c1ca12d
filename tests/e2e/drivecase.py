"""What the end-to-end tests share that look at what lies on the drives of their desk."""
import os
import struct
import zlib

from deskcase import DeskCase


def frame(name):
    """A frame-memory file: 64 bytes of header, a BMP of 8 x 8."""
    body = bytes(range(8 * 8 * 3))
    bmp = b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + len(body), 0, 54, 40, 8, 8, 1, 24, 0, len(body), 0, 0, 0, 0) + body
    head = (b"SFMD" + bytes([3, 0, 0, 0, 0]).ljust(12, b"\0") + name.encode()).ljust(60, b"\0")
    return head + struct.pack(">I", zlib.crc32(head)) + bmp


class DriveCase(DeskCase):
    def exists(self, path):
        return os.path.exists(self.path(path))

    def lay(self, path, content=b"some bytes"):
        os.makedirs(os.path.dirname(self.path(path)), exist_ok=True)
        with open(self.path(path), "wb") as out:
            out.write(content)

    def content(self, path):
        """None when it is not there."""
        try:
            with open(self.path(path), "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None
