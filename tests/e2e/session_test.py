"""A session at the desk: from the first line on the wire to a touch, its command and the tally that repaints."""
import sys
import time
import unittest

from desk import INITIAL_READ_END, Desk, grid

BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"

FORMATS = ["PNL1", "PNL2", "PNL3", "PNL4", "SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4", "MPE1", "MPE2", "MPE3",
           "MPE4"]
REFERENCES = ["SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4", "PNL1", "PNL2", "PNL3", "PNL4"]
FORMAT = "Engineering Setup@System@Format@"
MENU_READS = ([f"read {FORMAT}Video Format@{u}" for u in FORMATS] + [f"read {FORMAT}Reference@{u}" for u in REFERENCES] +
              [f"read {FORMAT}4K Mode", "add TopMenu"])
TYPE = "M/E-1@Key1@Type@Key Type"


class Session(unittest.TestCase):
    """The tests build on one another, in the order of their names: one start-up serves all."""

    @classmethod
    def setUpClass(cls):
        cls.desk = Desk(BUILD)
        cls.addClassCleanup(cls.desk.close)
        cls.desk.start_app()
        cls.start = cls.desk.started

    def open_page(self, number, sign, patience=3.0):
        """Ask for a page until it is there: a request is refused while a pane is up."""
        end = time.monotonic() + patience
        while True:
            self.desk.console(f"page {number}")
            try:
                lines = self.desk.wait_wire(sign, 1.0)
                break
            except AssertionError:
                if time.monotonic() > end:
                    raise
        time.sleep(0.3)
        return lines + self.desk.wire()

    def test_01_start_up_says_its_lines_in_order(self):
        expected = ["put Info@Initial Read Status#true", "put TopMenu@SubMenuSite#false", "set TopMenu#Top", *MENU_READS]
        self.assertEqual(self.start[:len(expected)], expected)

    def test_02_a_page_request_is_refused_under_a_pane(self):
        self.desk.console("page 1111")
        self.desk.wait_wire(INITIAL_READ_END, 20)
        self.desk.console("page 1111")
        time.sleep(0.7)
        self.assertNotIn(f"add {TYPE}", self.desk.wire())

    def test_03_a_page_request_opens_the_page_and_reads_once(self):
        lines = self.open_page("1111", f"add {TYPE}", 45)
        first = lines.index("set TopMenu#M/E-1")
        self.assertEqual(lines[first:first + 1 + len(MENU_READS)], ["set TopMenu#M/E-1", *MENU_READS])

    def test_04_inside_a_menu_nothing_is_read(self):
        opened = self.open_page("1112", "add M/E-1@Key1@Edge@Edge")
        self.assertFalse([line for line in opened if line.startswith(("read Engineering", "set TopMenu"))])
        self.assertIn("remove M/E-1@Key1@Type@Auto Chroma", opened)

    def test_05_a_touch_sends_its_command_and_the_tally_repaints(self):
        self.open_page("1111", f"add {TYPE}")
        x, y = grid(18)
        before = self.desk.pixels()[y][3 * x:3 * x + 3]
        self.desk.touch(x, y)
        self.desk.wait_wire(f"put {TYPE}#Linear")
        time.sleep(0.4)
        after = self.desk.pixels()[y][3 * x:3 * x + 3]
        self.assertGreater(sum(after), sum(before) + 200)  # the light face of a key that is on

    def test_07_a_dropped_link_loses_nothing(self):
        self.desk.console("drop text 1500")
        time.sleep(0.2)
        for button in (49, 50, 49, 50):
            self.desk.touch(*grid(button), settle=0.2)
        lines = self.desk.wait_wire("put M/E-1@Key1@Type@Key Fill#Matte", 6)
        time.sleep(0.5)
        lines += self.desk.wire()
        puts = [line for line in lines if "Key Fill#" in line and line.startswith("put")]
        self.assertEqual([p.rsplit("#", 1)[1] for p in puts], ["Key Bus", "Matte", "Key Bus", "Matte"])

    def test_08_the_server_comes_back_and_is_asked_again(self):
        self.desk.console("restart")
        lines = self.desk.wait_wire(INITIAL_READ_END, 20)
        self.assertIn("put Info@Status Report#true", lines)
        self.assertIn("add Engineering Setup@System@Network Config@List", lines)
        self.open_page("1111", f"add {TYPE}")

    def test_09_rubbish_on_the_link_leaves_the_screen_alive(self):
        for fault, seconds in (("dribble on", 0.6), ("split 7", 0.6), ("flood 5000", 1.5), ("garbage 5000", 6)):
            self.desk.console(fault)
            time.sleep(seconds)
            self.assertIsNone(self.desk.app_status(), fault)
        for line in ("dribble off", "split 0", "drop bin"):
            self.desk.console(line)
        time.sleep(11)  # a line that never ends is given up with its connection
        self.desk.console("restart")
        self.desk.wait_wire(INITIAL_READ_END, 25)
        self.open_page("1212", "add M/E-2@Key1@Edge@Edge", 45)

    def test_10_closing_the_window_ends_in_order(self):
        self.assertNotIn("Can't find ID", self.desk.log())
        self.assertNotIn("Can't load graphics file", self.desk.log())


if __name__ == "__main__":
    unittest.main(verbosity=1)
