"""The self-diagnosis at the desk: a fan fails and comes back.

usage: diag_test.py BUILD_DIR [TEST...]
"""
import os
import time
import unittest

from desk import Desk, grid
from deskcase import BUILD, YES, DeskCase

TITLE = (200, 35)
MARK, SHORT_MARK = (352, 13, 362, 23), (277, 13, 287, 23)  # the lamp in the title
POPUP = (95, 45, 97, 47)  # its ground
RED, DARK_RED = b"\xff\x00\x00", b"\xb4\x00\x00"


SYSTEM_LOG = """
import os, socket
s = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
s.bind("/dev/log")
with open("system.log", "ab", buffering=0) as out:
    while True:
        out.write(s.recv(4096) + b"\\n")
"""


class Diagnosis(DeskCase):
    @classmethod
    def make_desk(cls):
        """With a system log, which is there before the application opens it."""
        desk = Desk(BUILD, ini="DebugMode=1\n")  # as with a data disk
        script = os.path.join(desk.work, "system_log.py")
        with open(script, "w", encoding="ascii") as out:
            out.write(SYSTEM_LOG)
        desk._box("start", "log", desk.work, "/usr/bin/python3", script)
        return desk

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.wait_wire("put Info@Self Diagnosis Notice@PNL#true", 40)  # the last stage of the initial read
        time.sleep(1.0)

    def ink(self, area):
        return self.desk.part(*area)[0][:3]

    def is_empty(self, y):
        """A row of the list: nothing but its ground and the lines between the columns."""
        return len({row[3 * 2:3 * 140] for row in self.desk.part(100, y + 4, 645, y + 16)}) == 1

    def text(self, *path):
        with open(os.path.join(self.desk.work, *path), encoding="latin-1") as file:
            return file.read()

    def assertLogged(self, tag, text):
        """In the system log, under the tag, and in the maintenance log."""
        self.assertIn(f"{tag} [diag] {text}", self.text("system.log"))
        self.assertIn(text, self.text("root", "mnt/sys/log/maintenance.log"))

    def test_1_a_fan_fails_and_comes_back(self):
        desk = self.desk
        self.open_page("1111", "add M/E-1@Key1@Type@Key Type")
        self.assertNotEqual(self.ink(SHORT_MARK), RED)
        desk.console("fan PNL1 2 bad")
        self.wait_until(lambda: self.ink(SHORT_MARK) == RED)
        self.assertEqual(self.ink(POPUP), DARK_RED)
        self.assertLogged("SIU010100", "SIU-FANSPEED-FAN-2:FAN-2 Control Function Error")

        desk.touch(*TITLE, settle=0.8)  # one touch to the list of all errors
        self.assertIn("CreatePage(74110000h) Called", desk.log())
        self.assertNotEqual(self.ink(POPUP), DARK_RED)
        self.assertEqual(self.ink(MARK), RED)
        self.assertFalse(self.is_empty(100))
        desk.console("fan PNL1 2 ok")
        self.wait_until(lambda: self.ink(MARK) != RED)
        self.assertTrue(self.is_empty(100))
        self.assertLogged("SIU010100", "SIU-FANSPEED-FAN-2:FAN-2 Speed OK")

    def test_2_refresh_asks_all_units(self):
        desk = self.desk
        desk.console("psu SWR1 2 out")
        desk.console("reference MPE1 bad")
        desk.wire()
        desk.touch(*grid(49))
        desk.wait_wire("put Info@Self Diagnosis Notice@SWR1#true")
        self.wait_until(lambda: self.ink(MARK) == RED)
        desk.console("ok")
        self.wait_until(lambda: self.ink(MARK) != RED)

    def test_3_the_menus_own_board(self):
        desk = self.desk
        desk.console("temp 75")
        self.wait_until(lambda: "Temp=4B" in desk.log())
        self.assertNotEqual(self.ink(MARK), RED)
        desk.console("temp 76")
        self.wait_until(lambda: self.ink(MARK) == RED)
        desk.console("temp 40")
        self.wait_until(lambda: self.ink(MARK) != RED)
        self.assertLogged("SIU010100", "GUI-BOARDTEMP:CA-91 Board Temperature OK")
        with open(os.path.join(desk.root, "i2c-0"), "rb") as image:
            image.seek(83 * 256 + 128)
            self.assertEqual(int.from_bytes(image.read(4), "big"), 1)  # the first hour has begun

    def test_4_the_history_is_deleted(self):
        desk = self.desk
        desk.console("page 7412")
        time.sleep(0.8)
        self.assertFalse(self.is_empty(100))
        desk.touch(*grid(50))
        desk.touch(*YES, settle=0.8)
        self.assertTrue(self.is_empty(100))

    def test_5_the_engineering_menu_is_reached_from_here(self):
        desk = self.desk
        desk.console("page 7411")
        time.sleep(0.8)
        desk.touch(*grid(52), settle=0.8)
        desk.wire()
        desk.touch(*grid(18))  # Links
        desk.wait_wire("read Engineering Setup@System@Format@4K Mode")
        desk.console("send Info@Status Report@SWR1#NG Fan 3")
        self.wait_until(lambda: "Status report of SWR1: NG Fan 3" in desk.log())
        desk.touch(*grid(54), settle=0.8)
        desk.touch(*grid(1), settle=0.8)  # Debug Switches
        desk.touch(*grid(6), settle=0.8)  # level 9
        self.assertIn("Log level: 9", desk.log())
        before = desk.log()
        desk.touch(*grid(54), settle=0.8)
        self.assertEqual(desk.log(), before)  # a page change is no longer worth a line
        desk.touch(*grid(1), settle=0.8)
        desk.touch(*grid(1), settle=0.8)  # level 0
        before = desk.log().count("CreatePage(99910000h)")
        desk.touch(*grid(54), settle=0.8)
        self.assertEqual(desk.log().count("CreatePage(99910000h)"), before + 1)


if __name__ == "__main__":
    unittest.main()
