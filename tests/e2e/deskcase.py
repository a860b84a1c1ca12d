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
        out = os.path.join(self.desk.work, "sim.out")
        seen = os.path.getsize(out)
        self.desk.console(f"get {path}")
        time.sleep(0.2)
        with open(out, encoding="latin-1") as f:
            f.seek(seen)
            return re.search(rf"^{re.escape(path)}#{row},(.*)$", f.read(), re.M).group(1)
