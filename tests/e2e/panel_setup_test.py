"""The panel's setup at the desk: what buttons do, regions on the ten keys, a crosspoint table, a key 2 bus that runs a
macro, names that reach the keys of a bank.

usage: panel_setup_test.py BUILD_DIR [TEST...]
"""
import os
import time
import unittest

from desk import grid
from deskcase import YES, SetupCase

PANEL = "Engineering Setup@Panel@"
PAD = f"{PANEL}Config@Program Button@Flexi Pad Module@Button Assign@"
TENKEY = f"{PANEL}Config@10 Key Region Assign@"
XPT = f"{PANEL}Xpt Assign@"
SET, CLEAR, DEFAULT = 52, 53, 54


class PanelSetup(SetupCase):
    def pad(self, button):
        self.desk.touch(112 + 70 * ((button - 1) % 4) + 20, 212 + 46 * ((button - 1) // 4) + 20, settle=0.15)

    def puts(self):
        time.sleep(0.2)
        return [line for line in self.desk.wire() if line.startswith("put Eng")]

    def test_1_buttons_are_set_cleared_and_put_back(self):
        self.open("7321.34")
        for button, path in ((9, "09"), (10, "10")):
            self.pad(button)
            self.row(6, 480)  # Shotbox
            self.push(SET)
            self.assertEqual(self.puts(), [f"put {PAD}{path}@Operation@Common@1#6,1,Shotbox"])
            self.assertEqual(self.desk.value(f"{PAD}{path}@Operation@Common@1"), "6,1,Shotbox")
        self.pad(1)
        self.push(CLEAR)
        self.assertEqual(self.desk.value(f"{PAD}01@Operation@Common@1"), "0,1,NO ASSIGN")
        self.push(DEFAULT)
        self.assertEqual(self.desk.value(f"{PAD}01@Operation@Common@1"), "1,1,Key")
        before = self.desk.part(104, 200, 392, 396)
        self.desk.console(f"put {PAD}03@Operation@Common@1#9,1,Undo")
        time.sleep(0.3)
        self.assertNotEqual(self.desk.part(104, 200, 392, 396), before, "another panel's change shows at once")

    def test_2_regions_of_two_keys_at_once(self):
        self.open("7321.1")
        for number in (1, 2):
            self.desk.touch(104 + 68 * (number - 1) + 20, 84 + 36)
        self.desk.touch(456 + 61 + 20, 120)  # the second slot
        self.row(2, 480, 154)  # M/E1
        self.push(SET)
        self.assertEqual(self.desk.value(f"{TENKEY}Common@Region@Common@1"), "1,0,,M/E-1,,")
        self.assertEqual(self.desk.value(f"{TENKEY}Common@Region@Common@2"), "2,0,M/E-2,M/E-1,,")
        self.push(DEFAULT)
        self.assertEqual(self.desk.value(f"{TENKEY}Common@Region@Common@1"), "1,0,M/E-1,,,")
        self.assertEqual(self.desk.value(f"{TENKEY}Common@Region@Common@2"), "2,0,M/E-2,,,")

    def rows(self, path):
        """All rows of a list that the server holds."""
        said = self.asked(f"get {path}").split("\n")
        return [line[len(path) + 1:] for line in said if line.startswith(path + "#")]

    def buttons(self, *numbers):
        """What lies on crosspoint buttons: video, key."""
        rows = dict(row.split(",", 1) for row in self.rows(f"{XPT}Assign"))
        return [rows[str(n)] for n in numbers]

    def test_3_a_crosspoint_table_by_insert_and_delete_and_back(self):
        self.open("7322.1")
        self.row(1)
        self.row(4, 480)  # CAM5
        self.push(36)
        self.assertEqual(self.puts(), [f"put {XPT}Insert VK#2,5,0"])
        self.assertEqual(self.buttons(1, 2, 3, 32, 129), ["1,1", "5,5", "2,2", "31,31", "1,1"])
        self.desk.console("macro operate AuxXpt,AuxBus,Aux2,Xpt,2")
        self.assertEqual(self.desk.value("Aux@Aux2@Status@Xpt Assign"), "CAM5", "the button carries it")
        self.push(34)  # video alone
        self.push(38)  # of the next button
        self.assertEqual(self.puts(), [f"put {XPT}Delete V#3"])
        self.assertEqual(self.buttons(2, 3, 4, 32), ["5,5", "3,2", "4,3", "0,31"])
        self.push(54)
        self.desk.touch(*YES)
        self.assertEqual(self.buttons(2, 3, 32), ["2,2", "3,3", "32,32"])

    def test_4_a_key_2_bus_button_runs_a_macro(self):
        self.open("7324.2")
        self.push(37)
        self.row(1, 480)
        self.push(SET)
        self.desk.wait_wire(f"put {PANEL}Prefs/Utility@Xpt Module Assign@Action Set@1@1#2,2")
        self.assertIn("macro 2 runs", self.asked("macro key2 1 1"))
        self.push(CLEAR)
        self.assertEqual(self.desk.value(f"{PANEL}Prefs/Utility@Xpt Module Assign@Action Set@1@1"), "0,0")

    def test_5_a_name_reaches_the_keys_of_a_bank(self):
        self.open_page("1110", "add M/E-1@Key1@Type@Signal Select@Fill")
        before = self.desk.part(97, 73, 702, 526)
        self.open("7322.4")
        self.row(0)
        self.push(33)
        self.type("a")
        self.push(54)
        self.assertEqual(len(self.puts()), 1)
        self.assertNotIn("1,CAM1", self.rows(f"{XPT}Source@List"))
        self.open_page("1110", "add M/E-1@Key1@Type@Signal Select@Fill")
        self.assertNotEqual(self.desk.part(97, 73, 702, 526), before)
        self.assertIsNone(self.desk.app_status())

    def test_6_a_contact_is_set_and_fired(self):
        gpi = f"{PANEL}Device Interface@GPI Output@"
        self.open("7325.4")
        self.row(2)
        self.push(34)
        self.popup(1, 4, 4)  # Cut
        self.push(54)
        self.assertEqual(self.puts(), [f"put {gpi}Action Type@3@1#1,0,0,1"])
        self.assertEqual(self.desk.value(f"{gpi}Action Type@3@1"), "1,0,0,1")
        self.push(37)
        self.assertIn("GPI output 3: test fire", self.desk.sim_text())

    def test_7_the_transition_of_a_key_takes_another_along(self):
        self.desk.console(f"put {PANEL}Config@Key Trans Link#1,M/E-1 Key1,M/E-1 Key2,true")
        self.desk.console(f"put {PANEL}Config@Key Trans Link#2,M/E-1 Key2,M/E-1 Key1,true")
        before = [self.desk.value(f"M/E-1@Key{key}@Status@Key ON") for key in (1, 2, 3)]
        self.desk.console("put M/E-1@Key1@Transition@Auto Trans#true")
        time.sleep(3)
        after = [self.desk.value(f"M/E-1@Key{key}@Status@Key ON") for key in (1, 2, 3)]
        self.assertEqual([a != b for a, b in zip(after, before)], [True, True, False])

    def test_8_the_touch_panel_is_calibrated(self):
        self.open("7327.1")
        self.desk.touch(70, 60)
        self.desk.touch(730, 540)
        self.desk.touch(400, 300)
        ok_x, ok_y = grid(53)
        self.desk.touch(round((ok_x + 24) * 660 / 700), round((ok_y + 12) * 480 / 500))
        time.sleep(0.5)
        self.assertIn("Touch Panel Calibration: AX=70 AY=60 BX=730 BY=540", self.desk.log())
        with open(os.path.join(self.desk.root, "i2c-0"), "rb") as file:
            file.seek(0x53 * 256 + 8)
            self.assertEqual(file.read(8), bytes([0, 70, 0, 60, 2, 0xDA, 2, 0x1C]))


if __name__ == "__main__":
    unittest.main(verbosity=1)
