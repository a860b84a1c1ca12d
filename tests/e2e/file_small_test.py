"""The small pages of the File menu at the desk, up to what lies on the drives."""
import time
import unittest

from desk import grid
from deskcase import OK, YES
from drivecase import DriveCase, frame

LOCAL = "/mnt/data/user/root/SYSTEM"
STICK = "/mnt/usb/usb1/SYSTEM"
TEXT_WELL = (230, 205, 560, 370)  # of a pane


class SmallPages(DriveCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.console("stick in")

    def open_file_page(self, number, command):
        """The search that the page begins with, as far as its label."""
        self.desk.wire()
        self.desk.console(f"page {number}")
        self.desk.wait_wire(command, 12, starts=True)
        time.sleep(0.5)

    def test_1_a_units_files_go_to_another_unit(self):
        desk = self.desk
        self.lay(f"{LOCAL}/SETUP/SWR000D001/A.DEV_0000.SST")
        self.lay(f"{LOCAL}/SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS", b"snapshot one")
        self.lay(f"{LOCAL}/SNAPSHOT/DME000D001/CH1/A.CH1_0001.DSS")
        self.lay(f"{STICK}/SETUP/SWR000D003/OLD.DEV_0000.SST")
        self.open_file_page("7172", "put File@Access@Find#")
        desk.touch(*grid(54))  # the targets: SWR2, Enter
        desk.touch(400 - 248 + 115 + 64 + 20, 300 - 126 + 15 + 20)
        desk.touch(400, 300 - 126 + 252 - 40)
        desk.touch(347, 478)  # Copy
        desk.touch(*YES)
        self.wait_until(lambda: self.content(f"{STICK}/SNAPSHOT/SWR000D002/ME1/A.ME1_001.SSS") == b"snapshot one")
        self.wait_until(lambda: self.content(f"{STICK}/SETUP/SWR000D002/A.DEV_0000.SST") == b"some bytes")
        time.sleep(0.5)
        self.assertIsNone(self.content(f"{STICK}/SETUP/SWR000D003/OLD.DEV_0000.SST"))
        self.assertFalse(self.exists(f"{STICK}/SNAPSHOT/DME000D001"))

    def test_2_the_fields_of_a_frame_change_places(self):
        path = f"{LOCAL}/FMEMFOL/DEFAULT/SWR000D001/Mbars.FMEM_200.SFM"
        self.lay(path, frame("Mbars"))
        self.open_file_page("7154", "put File@Access@FindSFM#")
        before = self.desk.part(610, 146, 648, 167)
        self.desk.touch(200, 157)
        self.desk.touch(*grid(49))
        self.desk.touch(*YES)
        self.wait_until(lambda: self.content(path) != frame("Mbars"))
        time.sleep(1.5)
        self.assertEqual(self.content(path)[8], 1)  # inverted, says the header
        self.assertNotEqual(self.desk.part(610, 146, 648, 167), before)

    def test_3_a_transfer_bars_the_other_pages_until_it_ends(self):
        desk = self.desk
        desk.console("slow 300")
        self.open_file_page("7121", "put File@Access@Find#")
        desk.touch(200, 157)
        desk.touch(290, 478)  # L to R
        time.sleep(0.5)
        desk.console("page 7132")
        time.sleep(0.8)
        self.assertNotIn("put File@Access@Find#", "".join(desk.wire()))
        barred = desk.part(*TEXT_WELL)
        desk.touch(*OK)
        self.assertNotEqual(desk.part(*TEXT_WELL), barred)
        desk.touch(45, 170)  # the tab of the transfer's page: its pane is back
        time.sleep(0.5)
        desk.touch(*OK)  # "Cancel"
        desk.console("slow 1")
        self.open_file_page("7132", "put File@Access@Find#")

    def test_4_a_server_that_goes_ends_the_job_in_view(self):
        desk = self.desk
        desk.console("slow 100")
        self.open_file_page("7172", "put File@Access@Find#")
        desk.touch(347, 478)
        desk.touch(*YES)
        time.sleep(1.0)
        waiting = desk.part(*TEXT_WELL)
        desk._box("stop", "sim")
        self.wait_until(lambda: "The link has fallen." in desk.log())
        time.sleep(1.0)
        self.assertNotEqual(desk.part(*TEXT_WELL), waiting)
        desk.touch(*OK)
        desk.seen = 0  # the log of the new one begins anew
        desk.start_sim()
        time.sleep(1.5)  # the link comes back
        self.open_file_page("7171", "put File@Access@ListDir#")


if __name__ == "__main__":
    unittest.main()
