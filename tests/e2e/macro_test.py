"""Macros at the desk: a register made offline, stored, opened again.

usage: macro_test.py BUILD_DIR [TEST...]
"""
import os
import time
import unittest

from desk import grid
from deskcase import DeskCase

EDIT = "tmp/MacroEdit/MacroEdit.PMR"
FIRST_ROW = (200, 131)  # of the list of events, and of the registers
VALUE = (150, 299)  # first row of the values, pitch 22
OFFLINE = grid(51)
GROUPS = [grid(n) for n in (49, 50, 19, 20, 21, 22, 35, 36, 37, 38)]
BEFORE, AFTER, DELETE, STORE = (grid(n) for n in (51, 52, 53, 54))


class Macros(DeskCase):
    def content(self, path):
        try:
            with open(os.path.join(self.desk.root, path), "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def wait(self, is_so, timeout=15.0):
        end = time.monotonic() + timeout
        while not is_so():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)

    def value(self, row):
        self.desk.touch(VALUE[0], VALUE[1] + 22 * row)
        time.sleep(0.2)

    def open_editor(self, register):
        """From the register's row, by the arrow below the list."""
        desk = self.desk
        desk.console("page 5412")
        time.sleep(0.5)
        desk.touch(300, FIRST_ROW[1] - 22 + 22 * (register - 1))
        time.sleep(0.3)
        desk.touch(*OFFLINE)
        self.wait(lambda: self.content(EDIT) is not None)
        time.sleep(1.0)

    def test_1_a_macro_made_offline_is_in_its_register(self):
        desk = self.desk
        desk.wire()
        self.open_editor(9)
        self.assertEqual(self.content(EDIT), b"PNL 0001PNL_0009.PMRM9\n")
        desk.touch(*GROUPS[1])
        time.sleep(0.3)
        self.value(3)  # MECut
        self.value(1)  # M/E-2
        desk.touch(*STORE)
        self.wait(lambda: any("SCP Dir Put" in line for line in desk.wire()))
        self.wait(lambda: self.content(EDIT) == b"PNL 0001PNL_0009.PMRMCRO9\nEvent?,MECut,ME?,M/E-2\n")
        time.sleep(2.0)
        desk.console("page 5412")
        self.wait(lambda: self.content(EDIT) is None)
        time.sleep(1.0)
        self.open_editor(9)
        self.assertEqual(self.content(EDIT), b"PNL 0001PNL_0009.PMRMCRO9\nEvent?,MECut,ME?,M/E-2\n")

    def test_2_leaving_with_a_change_asks(self):
        desk = self.desk
        desk.touch(*AFTER)
        time.sleep(0.3)
        desk.console("page 1111")
        time.sleep(0.5)
        self.assertIsNotNone(self.content(EDIT))


if __name__ == "__main__":
    Macros.main()
