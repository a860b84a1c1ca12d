"""A person works the router and the devices: a source on a destination, one that is locked, a disk recorder's file from
the list to its end, macros and snapshots that reach the same machines."""
import time
import unittest

from desk import grid
from deskcase import DeskCase, left_tab, list_row

DESTINATION = "Router@Destination@"
XPT = "Router@Status@Xpt Assign@"
DEVICE = "Device@DDR/VTR@Dev2@"
BTN_TAKE, BTN_UNDO, BTN_LOCK = 33, 35, 54
BTN_LOAD_CUE, BTN_PLAY = 51, 21


class Machines(DeskCase):
    """The tests build on one another, in the order of their names: one start-up serves all."""

    def touch(self, button_id):
        self.desk.touch(*grid(button_id), settle=0.2)

    def seconds(self):
        h, m, s, f = (int(part) for part in self.desk.value(DEVICE + "Time Code").split(":"))
        return (h * 60 + m) * 60 + s + f / 30

    def test_1_a_source_is_routed(self):
        self.open_page("5111.0000", f"add {DESTINATION}Dest128@Owner")
        time.sleep(0.3)
        self.desk.touch(200, list_row(3))
        self.desk.touch(540, list_row(5))
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
        self.desk.touch(540, list_row(7))
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
        self.desk.touch(150, list_row(2))
        self.desk.wait_wire("put Device@DDR/VTR@File List#Dev2")
        time.sleep(0.3)
        self.desk.touch(500, list_row(2))
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

    def test_4_devices_follow_the_effects_of_their_regions(self):
        self.open_page("5322.0000", "put Device@DDR/VTR@Timeline@Tally Back#true")
        self.touch(35)  # Play
        self.touch(50)  # on rewind Cue Up
        self.wait_value(DEVICE + "Timeline@Rewind Action", "Cue Up")
        for line in (f"{DEVICE}Timeline@Start TC#1:00", "Device@P-BUS Timeline@P-Bus1@Action#Recall",
                     "Device@P-BUS Timeline@P-Bus1@Register#7", "Device@GPI Timeline@3@Fire#true"):
            self.desk.console("put " + line)
        for region in ("Dev2", "P-Bus", "GPI"):
            self.desk.console(f"kf {region} 2 300")
            self.desk.console(f"run {region}")
        self.wait_value(DEVICE + "Transport", "Play")
        self.wait_value("Device@P-BUS@P-Bus1@Last", "Recall 7")
        with open(self.desk.sim_log, encoding="latin-1") as log:
            self.assertIn("GPI output 3: fired by its timeline", log.read())
        self.desk.console("rewind Dev2")
        self.wait_value(DEVICE + "Transport", "Cue Up")
        self.assertEqual(self.desk.value(DEVICE + "Position"), "30")

    def test_5_a_salvo_takes_several_destinations_at_once(self):
        self.open_page("5111.0000", f"add {DESTINATION}Dest128@Owner")
        for destination, source in ((5, 1), (6, 2)):
            self.desk.touch(200, list_row(destination))
            self.desk.touch(540, list_row(source))
        self.desk.touch(*left_tab(4))
        self.desk.touch(200, list_row(2))
        self.touch(49)  # Store
        self.wait_value("Router@Salvo@2@Dests", "2")
        self.desk.console("put Router@Clear#true")
        self.touch(51)  # Take
        self.wait_value(XPT + "Dest6@Level1", "SRC2")
        self.assertEqual(self.desk.value(XPT + "Dest5@Level1"), "SRC1")
        self.assertEqual(self.desk.value(XPT + "Dest6@Level8"), "SRC6", "its level is off")
        self.touch(53)  # Clear
        self.wait_value("Router@Salvo@2@Dests", "0")
        self.desk.wire()
        self.touch(51)
        self.assertFalse([line for line in self.desk.wire() if "Salvo" in line], "an empty one is not taken")

    def test_6_the_recorders_at_a_glance_lead_to_the_pages_of_one(self):
        self.open_page("3317.0001", "add Device@DDR/VTR@Dev12@Rec Enable")
        self.desk.touch(200, list_row(2))
        self.touch(51)
        self.desk.wait_wire("put Device@DDR/VTR@File List#Dev2")


if __name__ == "__main__":
    unittest.main()
