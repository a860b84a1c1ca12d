"""The All page of the File menu at the desk: what is saved, changed and loaded again, copied, stopped and refused."""
import os
import time
import unittest

from desk import grid
from deskcase import OK, YES
from drivecase import DriveCase

LOCAL = "/mnt/data/user/root/SYSTEM/"
STICK = "/mnt/usb/usb1/SYSTEM/"
COMMAND = "/mnt/sys/FTPIF/Command/"
IMPORT = "/mnt/sys/FTPIF/Import/"
CATEGORIES = ("SETUP", "INITSTAT", "KEYMEM", "VPROCMEM", "EFFECT", "SNAPSHOT", "WSNAP", "DSNAP", "KSNAP", "SHOTBOX",
              "MACRO", "MACROATC", "MENUMACRO", "FRAMEMEM")
MINE_FILE = "SNAPSHOT/SWR000D001/ME1/MINE.ME1_007.SSS"
SNAPSHOT_FILE = "SNAPSHOT/SWR000D001/ME1/TWO SHOT.ME1_001.SSS"
PICTURE_FILE = "FMEMFOL/Graphics/SWR000D001/Mbackdrop.FMEM_003.SFM"
CLIP = "M/E-1@Key1@Clip"
L_TO_R, R_TO_L = (290, 475), (405, 475)
DEVICE_A, STICK_KEY, FIRST_DIRECTORY = (150, 98), (438, 275), (195, 115)
PAGE = 100, 130, 600, 175  # of the page, covered by every pane


def key(category):
    place = CATEGORIES.index(category)
    return grid(place // 6 << 4 | place % 6 + 1)


class AllPage(DriveCase):
    """Test 1 lays the files that the others work with."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.console("slow 0")
        cls.desk.console("stick in")

    def setUp(self):
        self.open_page("7111", "add Info@Operation Setup Data@Clear Before Load")
        self.calm = self.desk.part(*PAGE)

    def tearDown(self):
        self.desk.console("page 0011")
        self.desk.wait_wire("remove Info@Operation Setup Data@Clear Before Load")

    def wait_calm(self):
        self.wait_until(lambda: self.desk.part(*PAGE) == self.calm, "the panes did not close")

    def count(self, folder):
        return sum(len(files) for _, _, files in os.walk(self.path(folder)))

    def test_1_what_was_saved_comes_back(self):
        for category in CATEGORIES:
            if category not in ("SNAPSHOT", "SETUP", "FRAMEMEM"):
                self.desk.touch(*key(category), settle=0.14)
        self.desk.console(f"put {CLIP}#42")
        self.desk.console("put Snapshot@Snapshot@Store#2,7,MINE")
        stale = LOCAL + "SNAPSHOT/SWR000D001/ME1/STALE.ME1_050.SSS"
        self.lay(stale)
        self.desk.touch(*L_TO_R)
        self.desk.touch(*YES)
        self.wait_until(lambda: self.exists(LOCAL + PICTURE_FILE), "no picture was saved")
        self.wait_calm()
        self.assertFalse(self.exists(stale), "the directory was not cleared")
        self.assertTrue(self.exists(LOCAL + SNAPSHOT_FILE) and self.exists(LOCAL + "SETUP/CTRLCPU/SETUP.GUI_0000.PST"))
        # The desk goes on.
        self.desk.console(f"put {CLIP}#3")
        self.desk.console("put Snapshot@Snapshot@Delete#2,7,7")
        self.desk.console("frames delete 3")
        self.desk.wire()
        self.desk.touch(*R_TO_L)
        # The still is back in its folder, and behind it nothing else is told: the locked register failed.
        self.desk.wait_wire("put 16@Frame Mem@Folder@Move Still#0,Mbackdrop,1", 10)
        self.assertNotEqual(self.desk.part(*PAGE), self.calm)
        self.desk.touch(*OK)
        self.wait_calm()
        self.desk.console("put Snapshot@Snapshot@Recall#2,7")
        self.wait_until(lambda: self.desk.value(CLIP) == "42", "the snapshot did not come back")

    def test_2_a_copy_to_the_stick_is_told_what_failed_and_can_be_stopped(self):
        self.desk.touch(*DEVICE_A)
        self.desk.touch(*STICK_KEY, settle=0.45)
        self.desk.touch(*FIRST_DIRECTORY)
        self.calm = self.desk.part(*PAGE)
        os.makedirs(self.path(STICK + SNAPSHOT_FILE))  # in the way of one file
        self.desk.touch(*R_TO_L)
        self.wait_until(lambda: self.count(STICK) == self.count(LOCAL) - 1, "not all but one came to the stick")
        time.sleep(0.3)
        self.assertNotEqual(self.desk.part(*PAGE), self.calm, "nobody was told of the one that failed")
        self.desk.touch(*OK)
        self.wait_calm()
        # Stopped while the drives are still searched.
        self.desk.console("slow 200")
        self.desk.touch(*R_TO_L)
        self.desk.wire()
        self.desk.touch(*OK)  # Cancel
        self.desk.console("slow 0")
        self.wait_calm()
        self.assertFalse(any(line.startswith("put File@Access@Copy#") for line in self.desk.wire()))

    def test_3_automation_loads_by_a_marker_in_its_folder(self):
        self.desk.console("page 0011")
        self.desk.console("put Snapshot@Snapshot@Delete#2,7,7")
        self.lay(IMPORT + MINE_FILE, self.content(LOCAL + MINE_FILE))
        self.lay(COMMAND + "allload.cmd")
        self.wait_until(lambda: self.exists(COMMAND + "allload.res"), "no answer")
        self.assertEqual(self.content(COMMAND + "allload.res"), b"OK\n")
        self.assertFalse(self.exists(COMMAND + "allload.cmd"))
        self.desk.console(f"put {CLIP}#3")
        self.desk.console("put Snapshot@Snapshot@Recall#2,7")
        self.wait_until(lambda: self.desk.value(CLIP) == "42", "the snapshot was not loaded")


if __name__ == "__main__":
    unittest.main()
