"""A person works the router and the devices: a source on a destination, one that is locked, a disk recorder's file from
the list to its end, macros and snapshots that reach the same machines."""
import time
import unittest

from desk import grid
from deskcase import DeskCase

DESTINATION = "Router@Destination@"
XPT = "Router@Status@Xpt Assign@"
DEVICE = "Device@DDR/VTR@Dev2@"
BTN_TAKE, BTN_UNDO, BTN_LOCK = 33, 35, 54
BTN_LOAD_CUE, BTN_PLAY = 51, 21


def row(number):
    return 76 + 22 * number + 11


class Machines(DeskCase):
    """The tests build on one another, in the order of their names: one start-up serves all."""

    def touch(self, button_id):
        self.desk.touch(*grid(button_id), settle=0.2)

    def wait_value(self, path, expected, timeout=3.0):
        end = time.monotonic() + timeout
        while (value := self.desk.value(path)) != expected:
            self.assertLess(time.monotonic(), end, f"{path} is {value}, not {expected}")
            time.sleep(0.05)

    def seconds(self):
        h, m, s, f = (int(part) for part in self.desk.value(DEVICE + "Time Code").split(":"))
        return (h * 60 + m) * 60 + s + f / 30

    def test_1_a_source_is_routed(self):
        self.open_page("5111.0000", f"add {DESTINATION}Dest128@Owner")
        time.sleep(0.3)
        self.desk.touch(200, row(3))
        self.desk.touch(540, row(5))
        self.wait_value(DESTINATION + "Dest3@Preset", "SRC5")
        self.assertEqual(self.desk.value(XPT + "Dest3@Level1"), "SRC3", "not taken yet")
        self.desk.console("put Router@Level@Level8#false")
        self.touch(BTN_TAKE)
        self.wait_value(XPT + "Dest3@Level1", "SRC5")
        self.assertEqual(self.desk.value(XPT + "Dest3@Level8"), "SRC3", "its level is off")
        self.touch(BTN_UNDO)
        self.wait_value(XPT + "Dest3@Level1", "SRC3")

    def test_2_a_locked_destination_is_refused(self):
        self.touch(BTN_LOCK)
        self.wait_value(DESTINATION + "Dest3@Lock", "Lock")
        time.sleep(0.2)
        before = self.desk.part(150, 100, 650, 500)
        self.desk.wire()
        self.desk.touch(540, row(7))
        self.assertNotEqual(self.desk.part(150, 100, 650, 500), before, "it says so")
        self.assertFalse([line for line in self.desk.wire() if "Preset" in line])
        self.desk.touch(400, 405)  # OK
        self.desk.console("put Router@Destination@Dest3@Preset#SRC9")
        self.desk.console("macro operate RouterXpt,DestinationButton,3,Source,9,Level,All")
        self.desk.console("macro operate RouterXpt,DestinationButton,4,Source,9,Level,Level2")
        self.wait_value(XPT + "Dest4@Level2", "SRC9")
        self.assertEqual(self.desk.value(XPT + "Dest4@Level1"), "SRC4")
        self.assertEqual(self.desk.value(XPT + "Dest3@Level1"), "SRC3", "locked for macros, too")

    def test_3_a_file_is_cued_and_played_to_its_end(self):
        self.open_page("5323.0000", "put Device@DDR/VTR@File List#Dev1")
        self.desk.touch(150, row(2))
        self.desk.wait_wire("put Device@DDR/VTR@File List#Dev2")
        time.sleep(0.3)
        self.desk.touch(500, row(2))
        self.touch(BTN_LOAD_CUE)
        self.wait_value(DEVICE + "File", "BREAK BUMPER")
        self.wait_value(DEVICE + "Transport", "Cue Up")
        self.assertEqual(self.desk.value(DEVICE + "Stop TC"), "119")
        self.open_page("5321.0000", "put Device@DDR/VTR@Cueup&Play@Tally Back#true")
        picture = self.desk.part(364, 78, 697, 158)
        self.touch(BTN_PLAY)
        self.wait_value(DEVICE + "Transport", "Play")
        first = self.seconds()
        time.sleep(0.8)
        self.assertGreater(self.seconds(), first + 0.5)
        self.assertNotEqual(self.desk.part(364, 78, 697, 158), picture, "the time code counts")
        self.wait_value(DEVICE + "Transport", "Stop", 9)
        self.assertEqual(self.desk.value(DEVICE + "Position"), "119")


if __name__ == "__main__":
    unittest.main()
