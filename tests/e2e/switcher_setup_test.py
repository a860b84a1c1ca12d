"""Switcher setup at the desk: what is prepared and executed, what follows from it in the switcher, what is refused.

usage: switcher_setup_test.py BUILD_DIR [TEST...]
"""
import time
import unittest

from deskcase import OK, YES, SetupCase

SWITCHER = "Engineering Setup@Switcher@"
CLEAR, EXECUTE = 53, 54


class SwitcherSetup(SetupCase):
    def choose(self, key, place, columns, count):
        """A text of the popup behind a key."""
        self.push(key)
        self.popup(place, columns, -(-count // columns))

    def execute(self, line, asks=True):
        self.push(EXECUTE)
        if asks:
            self.desk.touch(*YES, settle=0.1)
        self.desk.wait_wire(f"put {SWITCHER}{line}")

    def put(self, path, value):
        self.desk.console(f"put {path}#{value}")

    def test_1_a_bank_gets_a_second_program_and_its_outputs(self):
        self.open("7331")
        self.push(19)
        self.assertTrue(self.changes())
        self.push(CLEAR)
        self.assertFalse(self.changes())
        self.push(19)
        self.execute("Config@M/E Config@M/E-1#Multi Program 2")
        time.sleep(0.2)
        self.assertFalse(self.changes(), "the answer has come")
        self.open("7331.2")
        self.push(21)  # Key5 joins the first output
        self.execute("Config@PGM Config@List#M/E-1,1,1F")
        self.push(49)
        self.desk.wait_wire(f"put {SWITCHER}Config@MP2 Re-Entry#true")

    def test_2_logical_names_stay_a_permutation(self):
        self.open("7331.3")
        self.choose(33, 1, 3, 6)
        self.assertTrue(self.changes())
        self.execute("Config@Logical M/E#M/E-2,M/E-1,M/E-3,M/E-4,M/E-5,P/P,")
        self.wait_value("Engineering Setup@Panel@Config@M/E Assign@1st Row", "M/E-2")
        self.put(f"{SWITCHER}Config@Logical M/E", "M/E-1,M/E-1,M/E-3,M/E-4,M/E-5,P/P,")
        self.assertTrue(self.desk.value(f"{SWITCHER}Config@Logical M/E").startswith("M/E-2,M/E-1"))

    def test_3_a_function_moves_to_another_user_region(self):
        user = f"{SWITCHER}Config@User1-8 Config@User"
        self.open("7331.1")
        self.choose(33, 1, 3, 9)  # FM1 to User2
        self.push(EXECUTE)
        self.desk.wait_wire(f"put {user}2#FM1,FM5,FM6,FM7,FM8,Aux3,Aux4")
        self.wait_value(user + "1", "FM2,FM3,FM4,Aux1,Aux2")
        self.put(user + "3", "FM1,Nothing")
        self.wait_value(user + "3", "")
        self.assertFalse(self.changes())

    def test_4_another_panel_changes_what_is_not_in_hand(self):
        self.open("7334")
        before = self.desk.part(100, 98, 649, 339)
        self.put(f"{SWITCHER}Transition@Key Transition@M/E-2", "Independent")
        time.sleep(0.3)
        self.assertNotEqual(self.desk.part(100, 98, 649, 339), before)
        self.assertFalse(self.changes())
        self.desk.console("knob 0 +4")
        self.push(36)  # Bus Toggle off
        self.execute("Transition@Default Rate@M/E-1#31")
        self.wait_value("M/E-1@Misc@Transition@Flip-Flop", "false")
        self.assertIsNone(self.desk.app_status())

    def test_5_a_curve_is_drawn_and_runs_the_transition(self):
        self.open("7334.3")
        plot = self.desk.part(440, 84, 690, 334)
        self.push(36)  # Slow Start
        self.assertNotEqual(self.desk.part(440, 84, 690, 334), plot)
        self.desk.console("knob 4 -40")  # no lower than the point before it
        self.execute("Transition@Transition Curve@Fader Curve#Curve1,1,6,25,56,71")
        self.put(f"{SWITCHER}Transition@Transition Curve@Fader Curve", "Curve1,9,6,25,56,71")
        self.assertEqual(self.desk.value(f"{SWITCHER}Transition@Transition Curve@Fader Curve"), "Curve1,1,6,25,56,71")
        self.open("7334.2")
        self.choose(33, 2, 3, 6)
        self.push(EXECUTE)
        self.desk.wait_wire(f"put {SWITCHER}Transition@Transition Curve@Mix@M/E-1#Curve1")
        self.put("M/E-1@Misc@Transition@Transition Rate", "60")
        self.put("M/E-1@Misc@Transition@Auto Trans", "true")
        time.sleep(0.6)
        now = float(self.desk.value("M/E-1@Status@Transition Position"))
        self.assertTrue(0 < now < 25, f"{now} at a third of the way")

    def test_6_a_key_goes_along_with_its_master(self):
        self.open("7336.1")
        self.choose(33, 0, 8, 49)       # M/E-1 Key1
        self.choose(34, 8 + 2, 8, 49)   # M/E-2 Key3
        self.push(35)
        self.execute("Link@Key Link#1,M/E-1 Key1,M/E-2 Key3,true")
        self.put("M/E-1@Key1@Status@Key ON", "true")
        self.wait_value("M/E-2@Key3@Status@Key ON", "true")
        self.row(1)
        self.choose(33, 3, 8, 49)
        self.choose(34, 3, 8, 49)
        self.push(EXECUTE)
        self.desk.touch(*OK)
        self.assertFalse([line for line in self.desk.wire() if line.startswith("put Eng")], "it leads to itself")
        self.row(1)
        self.push(38)
        self.assertFalse(self.changes(), "deleted: as it was")

    def test_7_a_bank_with_a_key_preview_has_no_fourth_key(self):
        self.put("M/E-3@Key4@Status@Key ON", "true")
        self.open("7331.5")
        self.row(2)
        self.choose(33, 1, 3, 2)
        self.execute("Config@Key Config#M/E-3,Key3 Key PVW")
        self.wait_value("M/E-3@Key4@Status@Key ON", "false")
        self.put("M/E-3@Key4@Status@Key ON", "true")
        self.wait_value("M/E-3@Key4@Status@Key ON", "false")

    def test_8_a_bus_follows_by_a_table(self):
        self.open("7336.3")
        self.push(35)
        self.desk.touch(150, 76 + 22 + 10)  # the first bus: M/E-1 A
        self.push(33)
        time.sleep(0.2)
        self.push(36)
        self.desk.touch(150, 76 + 22 * 4 + 10)  # M/E-2 B
        self.push(33)
        time.sleep(0.2)
        self.push(37)
        self.desk.touch(178 + 59 + 20, 76 + 22 * 5 + 10)  # source 5 in the second table
        self.desk.console("knob 0 +8")
        self.execute("Link@Internal Bus Link@Table#5,5,7,5,5,5,5,5,5", asks=False)
        self.push(35)
        time.sleep(0.2)
        self.push(33)
        self.execute("Link@Internal Bus Link@Link#1,M/E-1 A,M/E-2 B,2,true")
        self.put("M/E-1@Status@Xpt Assign@A", "CAM5")
        self.wait_value("M/E-2@Status@Xpt Assign@B", "CAM7")
        self.put("M/E-1@Status@Xpt Assign@A", "CAM6")
        self.wait_value("M/E-2@Status@Xpt Assign@B", "CAM6")
        self.assertIsNone(self.desk.app_status())


if __name__ == "__main__":
    unittest.main(verbosity=2)
