"""The frame memory's file pages at the desk: pictures from and to the stick, stills and folders to the drive and back."""
import os
import struct
import time
import unittest

from desk import Desk
from deskcase import BUILD, YES, DeskCase

STORE = "put File@Frame Memory@PutV3#"
DELETE, RENAME = "put Frame Mem@File@Delete Thumbnail@Single#", "put Frame Mem@File@Rename#"
RECALL = "put Frame Mem@Recall@Recall Thumbnail@"
FOLDER = "mnt/data/user/root/SYSTEM/FMEMFOL/"
TO_RIGHT, TO_LEFT, OVER = (290, 478), (400, 478), (400, 400)  # copy; what stands over the page
LEFT_DEVICE, RIGHT_DEVICE = (450, 98), (540, 478)
DETAIL, NAME, DELETE_KEY = (150, 480), (150, 480), (240, 480)


def bmp(width, height):
    body = (b"\x20\x40\x80" * width).ljust((width * 3 + 3) // 4 * 4, b"\0") * height
    return b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + len(body), 0, 54, 40, width, height, 1, 24, 0, len(body),
                               0, 0, 0, 0) + body


def left(n):
    """A row of the left list, from 1."""
    return 170, 124 + 22 * n + 10


def right(n):
    return 490, left(n)[1]


def key(column):
    return 112 + 98 * column + 40, 485


class FrameCase(DeskCase):
    def stick(self, place, of):
        """The right list shows the stick, in one of its forms."""
        self.touch(RIGHT_DEVICE)
        self.popup(place, of)
        self.desk.wait_wire("put File@Access@Find#", starts=True)
        time.sleep(0.5)

    def settle(self, begin, timeout=5.0):
        lines = self.desk.wait_wire(begin, timeout, starts=True)
        time.sleep(0.4)  # the pane closes, the lists are read anew
        return lines + self.desk.wire()


class FramePages(FrameCase):
    def assert_is_png(self, name):
        with open(self.path(f"mnt/usb/usb1/SYSTEM/{name}.PNG"), "rb") as file:
            self.assertEqual(file.read(8), b"\x89PNG\r\n\x1a\n")

    def test_1_a_picture_on_the_stick_becomes_a_register(self):
        os.makedirs(self.path("mnt/usb/usb1/SYSTEM"), exist_ok=True)
        with open(self.path("mnt/usb/usb1/SYSTEM/beach.BMP"), "wb") as out:
            out.write(bmp(64, 36))
        self.open(7161)
        time.sleep(1)  # the store is being read
        self.stick(1, 4)
        self.touch(right(1), TO_LEFT)
        lines = self.settle("put File@Frame Memory@Get#")
        self.assertTrue(any(line.startswith(STORE) and line.endswith("Mbeach.FMEM_001.SF2,SWR001D001:FMEM_005.SF2")
                            for line in lines), lines)
        self.assertTrue(any(".SFT," in line for line in lines), lines)  # its thumbnail
        self.touch(TO_LEFT)  # a second time: its name is there
        self.assertFalse(any("2SFM" in line for line in self.desk.wire()))
        self.touch(OVER)

    def test_2_a_register_becomes_a_picture(self):
        self.open(7161)
        self.stick(3, 4)
        self.touch(TO_RIGHT)  # the first register is selected
        self.settle("put File@Access@Find#")  # the job has ended
        self.assert_is_png("logo")

    def test_3_stills_are_saved_deleted_and_loaded_into_a_folder(self):
        self.open(7151)
        rows = 3  # of folders
        self.touch(left(1 + rows), TO_RIGHT)
        self.settle("put File@Access@ListDir#")
        self.assertTrue(os.path.isfile(self.path(FOLDER + "DEFAULT/SWR000D001/Mlogo.FMEM_001.SFM")))
        self.touch(DETAIL)
        time.sleep(0.4)
        self.touch(left(1 + rows), DELETE_KEY, YES, puts=DELETE + "Mlogo", starts=True)
        self.open(7151)
        self.touch(left(3))  # News
        self.touch(right(1 + rows), TO_LEFT)
        lines = self.settle("put 16@Frame Mem@Folder@Move Still#0,Mlogo,")
        self.assertIn("put 16@Frame Mem@Folder@Move Still#0,Mlogo,2", lines)
        # It is there: a second load is refused.
        self.touch(right(1 + rows), TO_LEFT)
        self.assertFalse(any("Frame Memory" in line for line in self.desk.wire()))
        self.touch(OVER)

    def test_4_a_still_gets_another_name(self):
        self.open(7151)
        self.touch(left(1), NAME)
        time.sleep(0.4)
        self.touch(left(4), NAME)
        self.type("sky", erase=5)
        lines = self.desk.wait_wire(RENAME, starts=True)
        self.assertTrue(any(line.startswith(RENAME) and line.endswith("sky") for line in lines), lines)

    def test_5_folders(self):
        self.open(7152)
        self.touch(NAME)
        self.type("show")
        self.desk.wait_wire("put Frame Mem@Folder@Rename#3,show", starts=True)
        self.assertIn(",3,show,", self.desk.value("16@Frame Mem@Status@Folder Name Sense"))
        self.touch((200, 78 + 22 * 4 + 10), (350, 480), YES, puts="put Frame Mem@Folder@Delete#3", starts=True)

    def wait_hub(self, text, timeout=20.0):
        """A line of the hub's link: it goes at its own pace."""
        self.wait_until(lambda: text in self.desk.sim_text(), f"the hub did not say {text!r}", timeout)

    def test_6_a_clip_goes_out_and_comes_back_into_another_folder(self):
        self.wait_hub("InitRead#CS1.ClipStoreFile")
        self.desk.console("clip make NEWS/SHOW 3")
        self.open(7162)
        self.stick(3, 5)  # PNG
        for _ in ("NEWS", "SHOW"):
            self.touch(left(1))
            time.sleep(0.3)
        self.touch(TO_RIGHT)
        self.settle("put File@Access@Find#", 15)  # the job has ended
        for frame in range(3):
            self.assert_is_png(f"SHOW#{frame:06d}")
        self.touch((150, 98), (180, 150))  # Root
        time.sleep(0.3)
        self.touch(right(1), TO_LEFT)
        self.wait_hub("Insert#CS1.ClipStoreFile:root/SHOW.SFH:3,")

    def test_7_a_clip_is_saved_in_its_own_form_and_loaded_again(self):
        local = self.path("mnt/data/user/root")
        self.desk.console("clip make OTHER/STILL 1")
        self.open(7162)
        self.touch(RIGHT_DEVICE)
        self.popup(4, 5)  # SFH
        time.sleep(0.3)
        self.touch(LEFT_DEVICE)
        self.popup(0, 2)  # Local Drive
        self.settle("put File@Access@Find2#")
        self.touch(left(3))  # behind NEWS and OTHER: SHOW
        self.touch(TO_RIGHT)
        self.settle("put File@Access@Find2#", 15)
        self.assertEqual(sorted(os.listdir(f"{local}/SHOW.SFH")), [f"SHOW#{n:06d}.SFH" for n in range(3)])
        folders = sum(os.path.isdir(f"{local}/{name}") and not name.endswith(".SFH") for name in os.listdir(local))
        self.touch(left(2))
        time.sleep(0.3)
        self.touch(right(folders + 1), TO_LEFT)
        self.wait_hub("Insert#CS1.ClipStoreFile:root/OTHER/SHOW.SFH:3,")


class RegisterPages(FrameCase):
    """Where there is no clip store: the registers by the menu's own pages."""
    @classmethod
    def make_desk(cls):
        return Desk(BUILD, ini="ClipStoreSupportMode=0\n")

    def recalled(self, output):
        return self.desk.value(f"Frame Mem@Recall@Recall Thumbnail@FM{output}")

    def test_1_stills_go_to_the_outputs(self):
        time.sleep(1.0)  # the catalogue comes
        self.open("2111")  # the menu's key leads to them
        self.touch(left(3))  # logo
        self.touch(key(1), puts=RECALL + "FM2#Slogo", starts=True)
        self.touch(key(2))  # Pair
        self.touch(LEFT_DEVICE)
        self.popup(1, 4)  # FM3-FM4
        self.desk.wait_wire(RECALL + "Select#FM3&4", starts=True)
        time.sleep(0.3)
        self.touch(key(0), puts=RECALL + "FM4#Slogo", starts=True)
        self.assertEqual([self.recalled(n) for n in (2, 3, 4)], ["Slogo", "Mlogo", "Slogo"])

    def test_2_a_recalled_still_is_renamed_and_deleted(self):
        self.open("2512")
        self.touch(left(3), key(0))
        self.type("sky", erase=5)
        self.desk.wait_wire(RENAME + "Slogo,Ssky", starts=True)
        time.sleep(0.4)
        lines = self.touch(left(3), key(1), YES, puts=DELETE + "Ssky", starts=True)
        self.assertIn(DELETE + "Msky", lines)

    def test_3_a_clip_goes_to_another_folder_and_shows_its_frames(self):
        self.open("2521")
        self.touch((150, 98), (385, 150))  # News
        time.sleep(0.3)
        self.touch(left(1), key(4), key(0), puts=RECALL + "FM3#Mnews0004", starts=True)
        self.open("2522")
        self.touch(left(1), key(2), (180, 150))  # the first folder
        lines = self.desk.wait_wire("put 16@Frame Mem@Folder@Move Still#0,Snews0002,0", starts=True)
        self.assertEqual(sum("Move Still#0," in line for line in lines), 6)

    def test_4_a_freeze_is_stored(self):
        self.open("2531")
        self.touch((640, 395))  # Auto Store
        self.touch(key(0))
        lines = self.settle("put Frame Mem@Edit@Store@PROC1#")
        stored = next(line for line in lines if "Edit@Store" in line)
        self.assertRegex(stored, r"PROC1#1,Mimage\d{3}$")  # logo's register is empty
        self.assertTrue(any("FMEM_001.SFT" in line for line in lines), lines)  # its picture


if __name__ == "__main__":
    unittest.main()
