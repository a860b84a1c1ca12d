"""What the end-to-end tests share that work one desk through several pages."""
import sys
import time
import unittest

from desk import INITIAL_READ_END, Desk

BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"


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
