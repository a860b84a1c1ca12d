"""A hand on the objects of a page: knobs, boxes, ten keys, tabs, cells and windows, up to what the server holds."""
import os
import re
import time
import unittest

from desk import grid
from deskcase import DeskCase

TYPE = "M/E-1@Key1@Type@Key Type"
CHROMA = f"{TYPE}@Chroma@"
COLUMN = (706, 127, 799, 545)  # the number boxes
KNOB_PAD = (446 + 17, 140 + 310)  # where the "0" of the knob window stands


def slot(number):
    """The rectangle of a number box, from 1."""
    top = 127 + 82 * (number - 1)
    return 706, top, 799, top + 81


def middle(rect):
    return (rect[0] + rect[2]) // 2, (rect[1] + rect[3]) // 2


def key_of(pad, key):
    """The middle of a key of a ten-key window whose zero stands at pad."""
    rows = ["0", ".", "+/-", "Enter"], ["1", "2", "3"], ["4", "5", "6"], ["7", "8", "9"]
    row, keys = next((row, keys) for row, keys in enumerate(rows) if key in keys)
    return pad[0] + 54 * keys.index(key) + 24, pad[1] - 59 * row + 24


class Objects(DeskCase):
    """One start-up serves all; each test opens the page that it is about."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.console(f"set {TYPE}#Chroma")

    def open_chroma(self):
        """The page of the key type with the knobs of its chroma key, coming from another page."""
        self.open_page("1231", "add M/E-2@Key3@Type@Key Type")
        self.open_page("1111", f"add {TYPE}")
        self.desk.touch(*grid(19))

    def type_on(self, pad, *keys):
        for key in keys:
            self.desk.touch(*key_of(pad, key), settle=0.3)

    def test_02_a_knob_turns_the_value_of_its_box(self):
        self.open_chroma()
        before, shown, beside = self.desk.value(CHROMA + "Hue"), self.desk.part(*slot(3)), self.desk.part(*slot(4))
        self.desk.console("knob 2 +3")
        time.sleep(0.4)
        self.assertGreater(float(self.desk.value(CHROMA + "Hue")), float(before))
        self.assertNotEqual(self.desk.part(*slot(3)), shown)
        self.assertEqual(self.desk.part(*slot(4)), beside)
        self.desk.console("knob 2 -3")
        time.sleep(0.8)  # the box holds a fresh change for a while
        self.assertEqual(self.desk.value(CHROMA + "Hue"), before)
        self.assertEqual(self.desk.part(*slot(3)), shown)

    def test_04_a_typed_value_is_put_once(self):
        self.open_chroma()
        shown = self.desk.part(*slot(2))
        self.desk.touch(*middle(slot(2)))
        self.desk.wire()
        self.type_on(KNOB_PAD, "4", "2", ".", "5", "+/-", "Enter")
        time.sleep(0.5)
        self.assertEqual([line for line in self.desk.wire() if line.startswith("put")], [f"put {CHROMA}Gain#-42.50"])
        self.assertEqual(self.desk.value(CHROMA + "Gain"), "-42.50")
        self.assertNotEqual(self.desk.part(*slot(2)), shown)

    def changed(self, area, *before):
        """The area once it is still, and unlike it was."""
        last = None
        for _ in range(30):
            time.sleep(0.15)
            now = self.desk.part(*area)
            if now == last and now not in before:
                return now
            last = now
        self.fail("nothing has changed")

    def test_06_a_file_list_goes_down_and_up_and_tells_of_a_stick_that_is_gone(self):
        desk = self.desk
        folder = os.path.join(desk.root, "mnt/usb/usb1/NEWS")
        os.makedirs(os.path.join(folder, "run.SFH"))
        for number in range(3):
            with open(os.path.join(folder, "run.SFH", f"run#{number:06d}.SFH"), "wb") as out:
                out.write(bytes(64))
        right = (404, 78, 650, 342)
        before = desk.part(*right)
        desk.console("page 9992.000B")
        store = self.changed(right, before)
        desk.touch(*grid(36))  # the next device: the local drive
        local = self.changed(right, store)
        desk.touch(*grid(36))
        top = self.changed(right, store, local)
        desk.touch(450, 111)  # the first row
        chosen = self.changed(right, top)
        desk.touch(*grid(38))
        below = self.changed(right, chosen)
        lines = desk.wire()
        self.assertTrue(any(re.search("ListDir#L[0-9]+,MYHOST:/mnt/usb/usb1/NEWS$", line) for line in lines), lines)
        desk.touch(*grid(37))
        top = self.changed(right, below)
        desk.console("stick out")
        desk.touch(450, 111)
        chosen = self.changed(right, top)
        desk.touch(*grid(38))
        gone = self.changed(right, chosen)
        self.assertNotEqual(gone, below)
        desk.console("stick in")
        desk.touch(*grid(37))
        self.changed(right, gone)

    def test_99_nothing_was_missing(self):
        self.assertIsNone(self.desk.app_status())
        self.assertNotIn("Can't load graphics file", self.desk.log())


if __name__ == "__main__":
    unittest.main(verbosity=1)
