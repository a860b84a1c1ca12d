"""A person records twenty touches with a pause, edits and stores them; after a restart the run sends the same."""
import os
import re
import statistics
import time
import unittest
from datetime import datetime

from desk import INITIAL_READ_END, grid
from deskcase import DeskCase

KEY_TYPE = "put M/E-1@Key1@Type@Key Type#"
LUMINANCE, LINEAR = 17, 18
EDITOR_KEYS = {"Auto Insert": (154, 402), "Pause Auto Insert": (252, 402), "Store": (448, 402),
               "Delete": (448, 478), "Exit": (644, 560)}
RECALL_RUN = 53
PAGE_CANCEL = (659, 414)
PAUSE = 2.0


class MenuMacro(DeskCase):
    """The tests build on one another, in the order of their names."""

    touches = []

    def key_types(self, since=0):
        """(seconds, line) of each key type that was sent; lines from the log, whoever has read the wire."""
        lines = re.findall(rf"^(\S+) .*?< ({re.escape(KEY_TYPE)}.*)$", self.desk.sim_text(), re.M)
        return [(datetime.strptime(stamp, "%H:%M:%S.%f").timestamp(), line) for stamp, line in lines][since:]

    def test_01_record_and_store(self):
        time.sleep(3)  # the initial read ends with a pause in which nothing is touched
        self.open("5431")
        self.touch(grid(54))
        self.touch(EDITOR_KEYS["Auto Insert"], EDITOR_KEYS["Pause Auto Insert"])
        self.open("1111")
        for n in range(20):
            if n == 10:
                time.sleep(PAUSE)
            self.desk.touch(*grid((LINEAR, LUMINANCE)[n % 2]), settle=0.15)
        type(self).touches = self.key_types()
        self.assertEqual(len(self.touches), 20)
        self.open("7144.102")
        # The cursor stands at the last event.
        self.touch(EDITOR_KEYS["Delete"], EDITOR_KEYS["Store"], EDITOR_KEYS["Exit"])
        with open(self.path("mnt/data/Menu_Macro_tmp/mm_reg01.tmp"), encoding="ascii") as file:
            text = file.read()
        self.assertEqual(text.count("\nEvent:put "), 19)
        self.assertEqual(text.count("\nPause:"), 19)

    def test_02_the_run_after_a_restart_is_the_same(self):
        self.desk._box("stop", "app")
        self.desk.start_app()
        self.desk.wait_wire(INITIAL_READ_END, 20)
        self.desk.touch(400, 407)  # Cancel
        time.sleep(3)
        before = len(self.key_types())
        self.desk.console("send Info@Menu Macro@Run#1")
        time.sleep(9)
        ran = self.key_types(before)
        recorded = self.touches[:-1]
        self.assertEqual([line for _, line in ran], [line for _, line in recorded])
        waits, were = ([t[n][0] - t[n - 1][0] for n in range(1, len(t))] for t in (ran, recorded))
        # A busy machine delays single lines on their way to the log.
        self.assertLess(statistics.median(abs(a - b) for a, b in zip(waits, were)), 0.1)
        self.assertEqual(waits.index(max(waits)), were.index(max(were)), "the pause is where it was")

    def test_03_another_page_and_a_pane_do_not_hold_it_up(self):
        before = len(self.key_types())
        self.open("5431")
        self.desk.touch(*grid(RECALL_RUN))
        self.open("6411")
        self.desk.touch(45, 35)  # the page window
        time.sleep(8)
        self.desk.touch(*PAGE_CANCEL)  # no page comes up beneath the window
        self.assertEqual(len(self.key_types(before)), 19)

    def test_04_stop_in_the_pause(self):
        before = len(self.key_types())
        self.desk.console("send Info@Menu Macro@Run#1")
        self.wait_until(lambda: len(self.key_types(before)) >= 10)
        time.sleep(0.7)
        self.desk.console("send Info@Menu Macro@Run#0")
        time.sleep(4)
        self.assertEqual(len(self.key_types(before)), 10)

    def test_05_a_link_that_falls_gives_no_burst(self):
        before = len(self.key_types())
        self.desk.console("send Info@Menu Macro@Run#1")
        self.wait_until(lambda: len(self.key_types(before)) >= 4)
        self.desk.console("drop text 2000")
        # What was under way when it fell may be lost.
        self.wait_until(lambda: len(self.key_types(before)) >= 18, "the run goes on", 60)
        ran = self.key_types(before)
        waits = [ran[n][0] - ran[n - 1][0] for n in range(1, len(ran))]
        # A busy machine delays a single line on its way to the log, and the next one then seems to follow at once.
        self.assertGreater(sorted(waits)[1], 0.1)
        self.assertGreater(max(waits), 2)

    def test_06_a_register_goes_to_a_drive_and_comes_back(self):
        register = self.path("mnt/data/Menu_Macro_tmp/mm_reg01.tmp")
        drive = self.path("mnt/data/user/root/SYSTEM/MENUMACRO/CTRLCPU/MMCR1.GUI_0000.MMR")
        left, right, to_right, to_left = (150, 157), (450, 157), (290, 478), (405, 478)
        with open(register, encoding="ascii") as file:
            text = file.read()
        self.open("7144")
        self.touch(left, to_right)
        self.assertEqual(self.text_of(drive), text)
        time.sleep(2)
        self.open("5436")
        self.touch((300, 111), grid(49), (341, 414))  # Yes
        self.assertFalse(os.path.exists(register))
        os.rmdir(self.path("var/tmp/MenuMacro"))  # empty, and gone as after a start
        self.open("7144")
        self.touch(right, left, to_left)
        self.assertEqual(self.text_of(register), text)

    def text_of(self, path):
        self.wait_until(lambda: os.path.exists(path))
        with open(path, encoding="ascii") as file:
            return file.read()


if __name__ == "__main__":
    unittest.main()
