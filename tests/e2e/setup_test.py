"""Engineering setup at the desk: a new format up to the restart, another panel's change, locks and their password.

usage: setup_test.py BUILD_DIR [TEST...]
"""
import os
import time
import unittest

from desk import INITIAL_READ_END
from deskcase import OK, YES, SetupCase

FORMAT = "Engineering Setup@System@Format@"
PANE, ALERT = (215, 300), (232, 162)  # its ground, the middle of its icon
GROUND, AMBER, TABLE = b"\xe6\xe6\xe6", b"\xe4\x8b\x1b", b"\x00\x5a\x6e"
LOAD, EFFECT = (405, 475), (510, 210, 560, 240)  # of the page of all categories


class Setup(SetupCase):
    def pixel(self, x, y):
        return self.desk.part(x, y, x, y)[0]

    def calls(self):
        """What programs of the device were called with since the last time."""
        path = os.path.join(self.desk.root, "var/tmp/device.log")
        if not os.path.exists(path):
            return []
        with open(path, encoding="latin-1") as file:
            lines = file.read().splitlines()
        os.remove(path)
        return lines

    def wait_calls(self, *calls):
        seen = []
        self.wait_until(lambda: seen.extend(self.calls()) or len(seen) >= len(calls))
        self.assertEqual(seen, list(calls))

    def lock_file(self):
        with open(os.path.join(self.desk.root, "mnt/data/.setuplock"), "rb") as file:
            data = file.read()
        self.assertEqual(len(data), 796)
        return data[:20].split(b"\0")[0].decode(), data[23], data[27]

    def test_1_a_format_is_cleared_then_executed_and_the_units_come_back(self):
        self.desk.console("set Engineering Setup@DME@Model@DME1#4")  # it defocuses keys, but not in every format
        self.open("4121")
        interlaced = self.desk.part(97, 73, 702, 526)
        self.open("7313")
        self.assertFalse(self.changes())
        for last in (False, True):
            self.row(1)
            self.push(33)
            self.popup(15, 3, 6)  # 1080P/59.94
            self.assertTrue(self.changes())
            self.assertEqual([line for line in self.desk.wire() if line.startswith("put Eng")], [])
            self.push(54 if last else 53)
        self.desk.touch(*YES)
        lines = self.desk.wait_wire(f"put {FORMAT}Video Format@PNL1#29.97/59.94,1080p")
        self.assertIn(f"put {FORMAT}Video Format2@SWR1#3,6,2", lines)
        self.assertEqual(self.desk.value("Info@Processor Status@2"), "NG")
        time.sleep(3.5)
        self.assertEqual(self.desk.value("Info@Processor Status@2"), "OK")
        self.assertEqual(self.desk.value(f"{FORMAT}Video Format@DME1"), "29.97/59.94,1080p")
        self.assertFalse(self.changes())
        self.open("4121")
        self.assertNotEqual(self.desk.part(97, 73, 702, 526), interlaced, "the pages are those of the new format")
        self.assertIsNone(self.desk.app_status())

    def test_2_another_panels_change_leaves_what_is_in_hand(self):
        self.open("7313")
        self.row(1)
        self.push(37)  # 4:3
        self.assertTrue(self.changes())
        before = self.desk.part(100, 98, 649, 339)
        self.desk.console(f"put {FORMAT}Reference@DME1#Tri Sync")
        time.sleep(0.4)
        self.assertNotEqual(before, self.desk.part(100, 98, 649, 339), "the other cell follows")
        self.assertTrue(self.changes())
        self.open("7314")
        self.open("7313")
        self.assertTrue(self.changes(), "the edit outlives the page")
        self.push(50)
        self.desk.touch(*YES)
        self.desk.wait_wire(f"put {FORMAT}Switcher Aspect#SWR1" + ",4:3" * 7)
        time.sleep(0.3)
        self.assertFalse(self.changes())

    def test_3_a_locked_page_refuses_also_after_a_restart(self):
        desk = self.desk
        self.open("7317.1")
        desk.touch(150, 76 + 22 * 6 + 10)  # 7313
        self.push(37)
        password, lock, count = self.lock_file()
        self.assertEqual((password, lock, count), ("", 0, 1))
        self.push(38)
        self.type("x")
        desk.touch(*OK)
        self.assertEqual(self.lock_file()[1], 0)
        self.push(54)
        desk.touch(*YES)
        self.type("")
        for _ in ("new", "again"):
            self.type("a1b")
        desk.touch(*OK)
        self.assertEqual(self.lock_file()[0], "a1b")
        self.push(38)
        self.type("a1b")
        self.assertEqual(self.lock_file()[1], 1)
        desk._box("stop", "app")
        desk.start_app()
        desk.wait_wire(INITIAL_READ_END, 20)
        desk.touch(400, 407)
        self.open("7313")
        self.row(1)
        self.push(34)
        self.assertFalse(self.changes())
        self.open("7317.1")
        self.push(38)
        self.type("QPD7300WREN")
        self.assertEqual(self.lock_file()[1], 0)
        self.open("7313")
        self.row(1)
        self.push(34)
        self.assertTrue(self.changes())
        self.push(53)

    def test_4_define_and_auto_config_wait_for_their_own_outcome(self):
        network = "Engineering Setup@System@Network Config@"
        self.open("7311")
        self.calls()
        for key, path, restart in ((50, "Define", ()), (49, "Network Auto Config", ("shutdown [-r] [now]",))):
            for outcome in ("OK", "NG"):
                if outcome == "NG":
                    self.desk.console("config ng")
                self.push(key)
                self.desk.touch(*YES)
                self.desk.wait_wire(f"put {network}{path}#true")
                time.sleep(0.3)
                self.assertEqual((self.calls(), self.pixel(*PANE)), ([], GROUND), "not that of the time before")
                # The failure is told.
                self.wait_until(lambda: self.pixel(*PANE) == TABLE if outcome == "OK" else self.pixel(*ALERT) == AMBER)
                self.assertEqual(self.desk.value(network + path), outcome)
                self.wait_calls(*restart if outcome == "OK" else ())
                time.sleep(0.3)  # until the key looks released
            self.desk.touch(*OK)
        self.assertIsNone(self.desk.app_status())

    def test_5_a_stick_is_formatted_and_becomes_primary(self):
        desk = self.desk
        desk.console("stick in")
        self.open("7317")
        self.push(35)
        desk.touch(150, 172 + 22 + 10)
        self.push(36)
        desk.wait_wire("put Info@Operation Setup Data@Import Path#/mnt/usb/usb1/")
        desk.console("script usb_format 256 1")
        log = os.path.join(desk.root, "var/tmp/device.log")
        for times in (1, 2):
            self.push(37)
            desk.touch(*YES)
            time.sleep(1)
            with open(log, encoding="ascii") as file:
                self.assertEqual(len([line for line in file if "usb_format" in line and "/dev/sda" in line]), times)
            desk.touch(*OK)
        self.assertIn("Returned Value: [0]", desk.log())
        self.assertIn("Execute Command: [./script/usb_format.sh /dev/sda]", desk.log())

    def test_6_the_clock_is_set(self):
        desk = self.desk
        self.open("7317")
        self.calls()
        self.push(34)
        date, clock = self.calls()
        self.assertRegex(date, r"^date \[-u\] \[-s\] \[\w{3} \w{3} [ \d]\d \d\d:\d\d:\d\d \d{4} UTC\]$")
        self.assertEqual(clock, "hwclock [--systohc]")
        self.push(33)
        desk.console("knob 0 -4")  # a year back
        self.push(34)
        self.assertIn(f" {int(date[-9:-5]) - 1} UTC]", self.calls()[0])
        told = [line for line in desk.wire() if "Maintenance@DateTime#" in line]
        self.assertLess(abs(int(told[0].split("#")[1], 16) - time.time()), 5)
        desk.console("script date 1")
        self.push(34)
        self.assertEqual(len(self.calls()), 1)
        self.assertEqual(self.pixel(*ALERT), AMBER)
        self.assertNotIn("DateTime", str(desk.wire()))
        desk.touch(*OK)

    def test_7_the_local_drive_is_formatted_and_the_system_restarted(self):
        self.open("7317")
        self.calls()
        self.desk.console("script ssd_format 3")
        for calls in (("ssd_format",), ("ssd_format", "shutdown [-r] [now]")):
            self.push(51)
            self.desk.touch(*YES)
            self.wait_calls(*calls)
            self.wait_until(lambda: self.pixel(*PANE) == GROUND)
            self.assertEqual(self.pixel(*ALERT) == AMBER, len(calls) == 1)
            self.desk.touch(*OK)
        self.push(38)
        lines = self.desk.wait_wire("put File@Access@USB Storage Refresh#", starts=True)
        self.assertIn("put File@Access@USB Storage Reload#", " ".join(lines))
        self.wait_until(lambda: self.pixel(*PANE) != GROUND)

    def test_8_the_network_drive_is_mounted(self):
        way = ["umount [/var/nfs]", "ping [-c] [1] [192.168.10.100]", "rpcinfo2 [-p] [192.168.10.100]",
               "mount [-t] [nfs] [192.168.10.100:/ktrfiles] [/var/nfs] [-o] [retrans=5,soft,nolock]"]
        status = 300, 98 + 22 * 3, 649, 98 + 22 * 4
        self.open("7311.98")
        self.calls()
        before = self.desk.part(*status)
        self.desk.console("script mount 32")
        for is_mounted in (False, True):
            self.push(37)
            self.wait_calls(*way)
            time.sleep(0.3)
            self.assertEqual(self.pixel(*ALERT) == AMBER, not is_mounted)
            if not is_mounted:
                self.desk.touch(*OK)
            self.assertEqual(self.desk.part(*status) != before, is_mounted)
        self.push(37)
        self.wait_calls("umount [/var/nfs]")
        self.wait_until(lambda: self.desk.part(*status) == before)
        self.assertIsNone(self.desk.app_status())

    def test_9_a_locked_category_is_not_loaded(self):
        self.open("7317.2")
        self.row(3)  # Effect
        self.push(33)
        self.push(54)
        try:
            self.type(self.lock_file()[0])
        except FileNotFoundError:
            self.type("")
        self.desk.wait_wire("put Info@System Setup Data@File Load Lock#08000000")
        self.open_page("7111", "add Info@Operation Setup Data@Clear Before Load")
        effect = self.desk.part(*EFFECT)
        self.desk.touch(*LOAD)
        self.assertFalse([line for line in self.desk.wire() if "File@Access@Find" in line])
        self.desk.touch(*OK)
        self.assertNotEqual(self.desk.part(*EFFECT), effect, "it is no longer selected")
        self.desk.console("put Info@System Setup Data@File Load Lock#00000000")


if __name__ == "__main__":
    unittest.main(verbosity=1)
