"""Effects units, device controllers, router and tallies at the desk: what an installer sets is held, refused or seen
elsewhere.

usage: setup_units_test.py BUILD_DIR [TEST...]
"""
import time
import unittest

from deskcase import YES, SetupCase

SETUP = "Engineering Setup@"
GPI = f"{SETUP}DME@Device Interface@DME2 GPI Output@"
SERIAL = f"{SETUP}DCU@Serial Port@DCU1@Device@"
ENABLE = f"{SETUP}Tally@Tally Enable@"
EXECUTE = 54


class SetupUnits(SetupCase):
    def test_1_a_port_of_a_unit_fires_while_its_ports_are_enabled(self):
        desk = self.desk
        self.open("7344.6")
        self.row(2)
        self.push(37)
        desk.wait_wire(f"put {GPI}Test Fire@3#")
        self.assertIn("DME2 GPI output 3: test fire, None,0x00,0x01", self.desk.sim_text())
        self.push(36)  # disable
        self.assertEqual(desk.value(f"{GPI}GPI Enable"), "false")
        self.push(37)
        time.sleep(0.2)
        self.assertIn(f"setup refused: {GPI}Test Fire@3#(disabled)", self.desk.sim_text())

    def test_2_a_device_hangs_on_one_port(self):
        desk = self.desk
        self.open("7353")
        for port in (1, 2):
            self.row(port - 1)
            self.push(34)
            self.popup(1, 4, 4)  # Dev1
            self.push(EXECUTE)
            desk.wait_wire(f"put {SERIAL}{port}#Dev1")
        self.assertEqual(desk.value(f"{SERIAL}1"), "None")
        self.assertEqual(desk.value(f"{SERIAL}2"), "Dev1")

    def test_3_a_source_of_the_router_has_one_name_everywhere(self):
        self.open("7361.2")
        self.row(1)
        self.push(33)
        self.type("x")
        self.push(EXECUTE)
        time.sleep(0.2)
        name = self.desk.value(f"{SETUP}Router@Source Table@Name@2")
        self.assertTrue(name.lower().endswith("x"), name)
        self.assertEqual(self.listed(f"{SETUP}Panel@Config@External Bus Link@S-BUS Src Name List", 2), name)
        self.assertEqual(self.desk.value("Router@Status@Xpt Assign@Dest2@Level1"), name)

    def test_4_an_inhibited_destination_takes_no_source(self):
        desk = self.desk
        self.open("7361.4")
        self.row(2)
        self.push(33)
        self.push(EXECUTE)
        desk.wait_wire(f"put {SETUP}Router@Inhibit@3#true")
        for destination, preset in (("Dest3", ""), ("Dest4", "SRC9")):
            desk.console(f"put Router@Destination@{destination}@Preset#SRC9")
            self.assertEqual(desk.value(f"Router@Destination@{destination}@Preset"), preset)

    def test_5_the_buses_of_a_tally_group_are_copied_to_another(self):
        desk = self.desk
        self.open("7362.2")
        self.row(1)
        self.push(33)
        self.popup(1, 3, 3)  # from the first to the second
        self.push(EXECUTE)
        desk.touch(*YES, settle=0.25)
        desk.wait_wire(f"put {SETUP}Tally@Tally Copy@Group 2#Group 1")
        self.assertEqual(desk.value(f"{ENABLE}P/P"), "true,true,false,false,false,false,false,false")
        self.assertEqual(desk.value(f"{SETUP}Tally@Tally Copy@Group 2"), "None")

    def test_6_another_model_of_a_unit_counts_at_once_and_is_still_heard_of_later(self):
        desk = self.desk
        self.open("7341")
        self.row(0)
        self.push(33)
        self.popup(3, 3, 3)  # FXU40A
        self.push(EXECUTE)
        desk.touch(*YES, settle=0.25)
        desk.wait_wire(f"put {SETUP}DME@Model@DME1#4")
        self.open("7342")
        desk.console("page 4113")  # which this model does not have
        time.sleep(0.4)
        self.assertNotIn("put TopMenu@SubMenuSite#false", desk.wire())
        desk.console(f"set {SETUP}DME@Model@DME1#3")
        self.open("4113")
        self.assertIsNone(desk.app_status())


if __name__ == "__main__":
    unittest.main(verbosity=2)
