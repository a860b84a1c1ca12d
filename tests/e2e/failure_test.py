"""What the application does when something that it needs is missing: it says so in its own words, or goes on."""
import os
import sys
import time
import unittest

from desk import Desk

BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"


class Failures(unittest.TestCase):
    def desk(self, **how):
        desk = Desk(BUILD, **how)
        self.addCleanup(desk.close)
        return desk

    def ends_with(self, desk, status, words):
        desk.start_app(wait=False)
        end = time.monotonic() + 4
        while desk.app_status() is None and time.monotonic() < end:
            time.sleep(0.05)
        self.assertEqual(desk.app_status(), status)
        self.assertIn(words, desk.output())

    def test_without_the_ini_file_it_ends(self):
        desk = self.desk(server=False, remove=["tm3.ini"])
        self.ends_with(desk, 1, "Error: Can't open tm3.ini")
        self.assertIn("Fatal Error: Couldn't load tm3.ini.\n", desk.output())

    def test_without_a_font_it_ends(self):
        self.ends_with(self.desk(server=False, remove=["font_ofs.dat"]), 1, "Couldn't initialize TDL.")

    def test_without_a_display_it_ends(self):
        desk = self.desk(server=False)
        desk.stop_display()
        self.ends_with(desk, 1, "Couldn't initialize SDL: ")

    def test_without_bitmaps_panel_server_or_room_for_the_log_it_runs(self):
        desk = self.desk(server=False, remove=["graphics"], ini="LogLevel=0\n")
        os.unlink(os.path.join(desk.root, "input", "usb-TSC-30_DMC-event"))
        os.rmdir(os.path.join(desk.root, "var", "log2"))  # no place for the log
        desk.start_app(wait=False)
        time.sleep(7)
        self.assertIsNone(desk.app_status())
        self.assertEqual(desk.log(), "")
        title = desk.pixels()[20][3 * 100:3 * 140]
        self.assertGreater(max(title), 200)  # the page stands, without its faces
        # The server and the panel come later: both are found.
        os.mkfifo(os.path.join(desk.root, "input", "usb-TSC-30_DMC-event"))
        desk.start_sim()
        lines = desk.wait_wire("add TopMenu", 5)
        self.assertEqual(lines[0], "put Info@Initial Read Status#true")
        time.sleep(5.5)  # the panel is looked for every five seconds
        desk.touch(400, 300)  # opens the pipe for writing: fails when nobody reads
        self.assertIsNone(desk.app_status())


if __name__ == "__main__":
    unittest.main(verbosity=1)
