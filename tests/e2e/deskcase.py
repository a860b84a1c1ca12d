"""What the end-to-end tests share that work one desk through several pages."""
import os
import re
import sys
import time
import unittest

from desk import INITIAL_READ_END, Desk, grid

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

    def open_page(self, number, sign):
        self.desk.wire()
        self.desk.console(f"page {number}")
        self.desk.wait_wire(sign)
        time.sleep(0.3)

    def asked(self, line):
        """What the simulator prints for a command of its console."""
        out = os.path.join(self.desk.work, "sim.out")
        seen = os.path.getsize(out)
        self.desk.console(line)
        time.sleep(0.2)
        with open(out, encoding="latin-1") as f:
            f.seek(seen)
            return f.read()

    def wait_value(self, path, expected, timeout=3.0):
        end = time.monotonic() + timeout
        while self.desk.value(path) != expected:
            self.assertLess(time.monotonic(), end, f"{path} is {self.desk.value(path)}, not {expected}")
            time.sleep(0.05)

    def wait_part(self, rect, before, timeout=2.0):
        """The picture there, once it differs from before."""
        end = time.monotonic() + timeout
        while self.desk.part(*rect) == before:
            self.assertLess(time.monotonic(), end, f"nothing changes in {rect}")
            time.sleep(0.05)
        return self.desk.part(*rect)


class SetupCase(DeskCase):
    """Pages of engineering setup: a list above two rows of keys."""

    def open(self, number):
        self.open_page(number, "put TopMenu@SubMenuSite#false")
        self.desk.wire()

    def push(self, key):
        self.desk.touch(*grid(key), settle=0.25)

    def row(self, n):
        self.desk.touch(150, 76 + 22 * (n + 1) + 10, settle=0.2)

    def popup(self, place, columns, rows):
        width, height = 78 * columns + 26, 43 * rows + 76
        self.desk.touch(400 - width // 2 + 15 + 78 * (place % columns) + 30,
                        300 - height // 2 + 50 + 43 * (place // columns), settle=0.25)

    def type(self, text):
        for c in text:
            row, column = LETTERS[c]
            self.desk.touch(39 + 12 + 54 * column + 25, 115 + 91 + 54 * row + 25, 0.2)
        self.desk.touch(39 + 12 + int(54 * 11.5) + 25, 115 + 91 + 54 * 2 + 25)

    def listed(self, path, row):
        """A row of a list that the server holds, without its number."""
        return re.search(rf"^{re.escape(path)}#{row},(.*)$", self.asked(f"get {path}"), re.M).group(1)
