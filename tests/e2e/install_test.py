"""Installs and texture packages at the desk, with the device's scripts stood in for."""
import time
import unittest

from desk import grid
from deskcase import OK, YES
from drivecase import DriveCase

MESSAGE = (230, 205, 560, 385)  # the well of a window's text
INSTALL = grid(50)
ADD, REMOVE, LOAD, SAVE = grid(36), grid(37), grid(52), grid(53)
UNITS = {"SCS": 0, "Menu/UI": 1, "PNL1": 2, "SWR1": 5}


class Installs(DriveCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.console("stick in")
        cls.desk.console("packages")

    def setUp(self):
        self.desk.console("put Info@Operation Setup Data@Import Path#/mnt/usb/usb1/")
        time.sleep(0.2)

    def calls(self):
        """What the scripts were called with since the last time, without the handling of results."""
        lines = (self.content("/var/tmp/device.log") or b"").decode().splitlines()
        self.lay("/var/tmp/device.log", b"")
        return [line for line in lines if "[rm " not in line and "[get]" not in line]

    def logged(self, text):
        return self.desk.log().count(text)

    def open_install(self):
        before = self.logged("Execute: /usr/bin/find")
        self.desk.console("page 7316.10")
        self.wait_until(lambda: self.logged("Execute: /usr/bin/find") > before)
        time.sleep(0.8)

    def install(self, unit):
        """Start it; how many lines of results the log had before."""
        self.desk.touch(150, 78 + 22 * (1 + UNITS[unit]) + 8)
        self.desk.touch(*INSTALL)
        before = self.logged("INSTALL_RESULT")
        self.desk.touch(*YES, settle=0)
        return before

    def ended(self, before):
        self.wait_until(lambda: self.logged("INSTALL_RESULT") > before, "no result", 40)
        time.sleep(2.5)  # all that is read again comes at once
        return self.desk.log().split("INSTALL_RESULT: ")[-1].split("\n")[0]

    def test_a_switcher_takes_its_steps_with_progress_and_is_read_again(self):
        self.open_install()
        self.desk.wire()
        before = self.install("SWR1")
        time.sleep(1.5)
        first = self.desk.part(*MESSAGE)
        time.sleep(5)
        self.assertTrue(self.desk.part(*MESSAGE) != first)
        self.assertEqual(self.ended(before), "[SWR1] (result 0)")
        calls = self.calls()
        self.assertEqual(calls[:4], ["scs_transfer [put] [/mnt/usb/usb1/KTR40X_UP/swr.bin] [/tmp/]",
                                     "scs_exec [swr_update UID1 time]", "scs_exec [swr_update UID1 -b]",
                                     "scs_exec [ktrPwsUpdate UID1]"])
        self.assertIn("scs_exec [ktrPwsUpdate UID1Status]", calls[4:])
        wire = self.desk.wait_wire("add Engineering Setup@System@Network Config@List", 5)
        self.assertLess(wire.index("remove Engineering Setup@System@Network Config@List"),
                        wire.index("put Info@Status Report#true"))
        self.desk.touch(*OK)

    def test_this_machine_and_a_step_that_fails(self):
        self.open_install()
        self.assertEqual(self.ended(self.install("Menu/UI")), "[Menu/UI] (result 0)")
        self.assertEqual(self.calls(), ["ui_install [/mnt/usb/usb1/MENU/menu.bin] [APP]",
                                        "ui_install [/mnt/usb/usb1/MENU/linux.bin] [LINUX]",
                                        "fpga_updater [/mnt/usb/usb1/MENU/fpga.bin] [3]"])
        self.wait_until(lambda: self.exists("/var/tmp/installed"), "not installed", 1)
        self.desk.touch(*OK)
        self.desk.console("script fpga_updater 9")
        self.assertEqual(self.ended(self.install("Menu/UI")), "[Menu/UI] (result -1)")
        self.desk.wire()
        self.desk.touch(*OK)
        time.sleep(0.5)
        self.assertIn(b"[Error] Install failure : code = [9]", self.content("/var/log2/tm3err.log"))

    def test_a_package_that_is_not_whole_or_gone_with_its_stick(self):
        self.open_install()
        self.calls()
        self.assertEqual(self.ended(self.install("SCS")), "[SCS] (result -1)")
        time.sleep(0.5)
        self.assertIn(b"/mnt/usb/usb1/BROKEN/missing.bin", self.content("/var/log2/tm3err.log"))
        self.open_install()
        self.desk.console("stick out")
        self.assertEqual(self.ended(self.install("PNL1")), "[PNL1] (result -1)")
        self.assertEqual(self.calls(), [])
        self.desk.console("stick in")

    def test_textures_are_stored_for_the_effects_units_and_loaded_again(self):
        self.desk.console("page 7316.5")
        time.sleep(1)
        for row in (0, 1, 6):  # BRICK, CANVAS, WOOD
            self.desk.touch(150, 78 + 22 * (1 + row) + 8)
            self.desk.touch(*ADD)
        self.desk.touch(*SAVE)
        self.wait_until(lambda: self.exists("/mnt/usb/usb1/UserTexture/install.cfg"))
        package = self.content("/mnt/usb/usb1/UserTexture/UserTexture.zsp")
        self.assertTrue(package.startswith(b"# Bitmap User List\nBRICK,0,0,4,4,"))
        self.desk.touch(400, 140 + 247 + 15)
        picture = self.desk.part(100, 306, 308, 514)
        self.desk.touch(450, 78 + 22 + 8)
        self.desk.touch(*REMOVE)
        self.assertTrue(self.desk.part(100, 306, 308, 514) != picture)
        self.desk.touch(*LOAD)
        self.desk.touch(*YES, settle=1)
        self.desk.touch(450, 78 + 22 * 3 + 8)  # the row that was chosen before
        self.assertTrue(self.desk.part(100, 306, 308, 514) == picture)


if __name__ == "__main__":
    unittest.main()
