"""The switcher's inputs, outputs and ports at the desk: what an installer sets is held, refused or seen elsewhere.

usage: switcher_io_test.py BUILD_DIR [TEST...]
"""
import time
import unittest

from deskcase import SetupCase

SWITCHER = "Engineering Setup@Switcher@"
GPI = SWITCHER + "Device Interface@GPI Output@"
FC = SWITCHER + "Input@FC Adjust@"
OUTPUT = SWITCHER + "Output@"


class SwitcherIo(SetupCase):
    def test_1_the_values_of_a_gpi_port_and_its_test_fire(self):
        desk = self.desk
        self.open("7337.7")
        self.row(1)
        self.push(33)
        self.popup(1, 3, 2)  # Rising Edge
        desk.console("knob 1 +4")
        self.push(34)
        self.popup(11, 4, 4)  # Snapshot Recall
        time.sleep(0.2)
        self.push(35)
        self.popup(6, 4, 6)  # User1
        self.push(54)
        desk.wait_wire(f"put {GPI}Action Type Region@2@1#11,User1,1,0")
        line = self.desk.value(f"{GPI}Trigger Type@2")
        self.assertRegex(line, r"^Rising Edge,0x00,0x0[1-9]$")
        self.assertEqual(desk.value(f"{GPI}Action Type@2@1"), "0,0,0,0")
        self.push(37)
        desk.wait_wire(f"put {GPI}Test Fire@2#")
        self.assertIn(f"GPI output 2: test fire, {line}", self.desk.sim_text())

    def test_2_a_converter_has_modes_with_their_knobs_and_limits(self):
        desk = self.desk
        self.open("7332.7")
        self.push(34)  # Up
        self.assertEqual(desk.value(f"{FC}Convert Mode@0"), "1")
        self.push(37)  # a crop that can be moved
        desk.wait_wire(f"assign Knob1#{FC}EC Pos@0")
        desk.console("knob 1 +7")
        time.sleep(0.25)
        turned = float(desk.value(f"{FC}EC Pos@0"))
        self.assertGreater(turned, 0)
        desk.console("knob 1 +9999")
        time.sleep(0.25)
        self.assertEqual(float(desk.value(f"{FC}EC Pos@0")), 100)
        self.assertEqual(desk.value(f"{FC}EC Pos Center@0"), "false")
        self.push(38)  # Center
        time.sleep(0.2)
        self.assertEqual(float(desk.value(f"{FC}EC Pos@0")), 0)
        self.assertEqual(desk.value(f"{FC}EC Pos Center@0"), "true")
        self.push(22)  # Default
        time.sleep(0.2)
        self.assertEqual(desk.value(f"{FC}Convert Mode@0"), "0")

    def test_3_an_inhibited_output_keeps_its_bus(self):
        desk = self.desk
        self.open("7333.1")
        self.row(2)
        self.push(33)
        self.popup(48, 8, 9)  # M/E-1 PGM
        self.push(34)
        desk.console(f"put {OUTPUT}Inhibit#3,true")  # another panel is faster
        time.sleep(0.2)
        self.push(54)
        desk.wait_wire(f"put {OUTPUT}Assign#3,M/E-1 PGM,0")
        self.assertEqual(self.listed(f"{OUTPUT}Assign", 3), "AUX3,0")
        desk.console(f"put {OUTPUT}Inhibit#3,false")
        time.sleep(0.2)
        self.push(54)
        time.sleep(0.2)
        self.assertEqual(self.listed(f"{OUTPUT}Assign", 3), "M/E-1 PGM,0")

    def test_4_the_name_of_an_input_is_the_sources_name(self):
        desk = self.desk
        self.open("1111")
        fill = desk.value("M/E-1@Key1@Status@Source Name")
        self.assertEqual(fill, "CAM1")
        self.open("7332")
        self.row(0)
        self.push(33)
        self.type("x")
        self.push(54)
        time.sleep(0.2)
        name = desk.value(f"{SWITCHER}Input@Source Name@1")
        self.assertTrue(name.lower().endswith("x"), name)
        self.assertEqual(self.listed("Engineering Setup@Panel@Xpt Assign@Source@List", 1), name)
        self.assertEqual(desk.value("M/E-1@Key1@Status@Source Name"), name, "a key that it cuts says so")
        self.assertIsNone(desk.app_status())


if __name__ == "__main__":
    unittest.main(verbosity=2)
