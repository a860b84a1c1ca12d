"""What the end-to-end tests share that work one desk through several pages."""
import os
import re
import sys
import time
import unittest

from desk import INITIAL_READ_END, Desk, grid

YES, OK = (200 + 97 + 20, 140 + 247 + 15), (200 + 153 + 20, 140 + 247 + 15)  # of a question, of a message
BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"

LETTERS = {c: (row, first + i) for row, (first, keys) in
           enumerate([(0, "`1234567890-="), (0, "qwertyuiop[]\\"), (0, "asdfghjkl;'"), (2, "zxcvbnm,./")])
           for i, c in enumerate(keys)}


def face(button_id):
    """A standard button without its rim."""
    x, y = grid(button_id)
    return x - 36, y - 24, x + 36, y + 28


def cell(column, line):
    """A status cell."""
    return 100 + 100 * column, 75 + 90 * line, 199 + 100 * column, 164 + 90 * line


def bottom_tab(number):
    return 97 + 86 * (number - 1) + 43, 564


def left_tab(number):
    return 48, 73 + 65 * (number - 1) + 30


def list_row(number, top=76):
    """The height of a row of a list, from 1."""
    return top + 22 * number + 11


class DeskCase(unittest.TestCase):
    """One start-up serves all tests."""
    settles = 0  # seconds after which the last of the start's progress has gone

    @classmethod
    def make_desk(cls):
        return Desk(BUILD)

    @classmethod
    def setUpClass(cls):
        cls.desk = cls.make_desk()
        cls.addClassCleanup(cls.desk.close)
        cls.desk.start_app()
        cls.desk.wait_wire(INITIAL_READ_END, 20)
        cls.desk.touch(400, 407)  # Cancel: the rest of the timed progress need not be watched
        time.sleep(cls.settles)

    def open_page(self, number, sign):
        self.desk.wire()
        self.desk.console(f"page {number}")
        self.desk.wait_wire(sign)
        time.sleep(0.3)

    def open(self, number):
        self.open_page(number, "put TopMenu@SubMenuSite#false")  # every page says its side
        self.desk.wire()

    def path(self, path):
        """Of a file of the device, from its root on."""
        return os.path.join(self.desk.root, path.lstrip("/"))

    def asked(self, line):
        """What the simulator prints for a command of its console."""
        out = os.path.join(self.desk.work, "sim.out")
        seen = os.path.getsize(out)
        self.desk.console(line)
        time.sleep(0.2)
        with open(out, encoding="latin-1") as f:
            f.seek(seen)
            return f.read()

    def wait_until(self, is_so, what=None, timeout=12.0):
        end = time.monotonic() + timeout
        while not is_so():
            self.assertLess(time.monotonic(), end, what)
            time.sleep(0.05)

    def wait_value(self, path, expected, timeout=3.0):
        self.wait_until(lambda: self.desk.value(path) == expected, f"{path} does not become {expected}", timeout)

    def wait_part(self, rect, before, timeout=2.0):
        """The picture there, once it differs from before."""
        self.wait_until(lambda: self.desk.part(*rect) != before, f"nothing changes in {rect}", timeout)
        return self.desk.part(*rect)

    def touch(self, *places, puts=None, starts=False):
        """One place after the other; all lines up to the put that this brings."""
        for place in places:
            self.desk.touch(*place, settle=0.2)
        return puts and self.desk.wait_wire(puts, starts=starts)

    def popup(self, place, columns, rows=1):
        width, height = 78 * columns + 26, 43 * rows + 76
        self.desk.touch(400 - width // 2 + 15 + 78 * (place % columns) + 30,
                        300 - height // 2 + 50 + 43 * (place // columns), settle=0.25)

    def type(self, text, erase=0):
        """Letters, then Enter. A machine under load may lose a touch: each letter is seen before the next."""
        entry, ground = (52, 160, 744, 196), b"\x00\x32\x41"  # of the keyboard

        def key(row, column, settle=0.15):
            self.desk.touch(39 + 12 + int(54 * column) + 25, 115 + 91 + 54 * row + 25, settle)
        self.wait_until(lambda: self.desk.part(*entry)[18][-3:] == ground)
        for _ in range(erase):
            key(4, 9.5)
        for c in text:
            before = self.desk.part(*entry)
            if c.isupper():
                self.desk.touch(100, 391, settle=0.15)  # shift, for one letter
            for _ in range(3):
                key(*LETTERS[c.lower()])
                if self.desk.part(*entry) != before:
                    break
        key(2, 11.5, settle=0.6)


class SetupCase(DeskCase):
    """Pages of engineering setup: a list above two rows of keys."""

    CHANGED = (b"\xff\xff\x00", b"\xa0\xe6\x32")  # a cell that differs, and the same while it is selected

    def push(self, key):
        self.desk.touch(*grid(key), settle=0.25)

    def row(self, n, x=150, y=76):
        self.desk.touch(x, y + 22 * (n + 1) + 10, settle=0.2)

    def changes(self):
        """Whether the list has cells that differ from what the server has."""
        pixels = b"".join(self.desk.part(100, 98, 649, 339))
        return any(pixels[i:i + 3] in self.CHANGED for i in range(0, len(pixels), 3))

    def listed(self, path, row):
        """A row of a list that the server holds, without its number."""
        return re.search(rf"^{re.escape(path)}#{row},(.*)$", self.asked(f"get {path}"), re.M).group(1)
