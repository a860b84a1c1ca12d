"""A shift at the desk: ten jobs, each begun at Home and done with touches and knobs alone."""
import os
import re
import time
import unittest

from desk import grid
from deskcase import OK, YES, DeskCase, bottom_tab, cell, face, left_tab, list_row

TITLE, TIMELINE = (200, 35), (650, 35)
TIMELINE_AREA = 510, 8, 794, 62
TOP_MENU, TOP_MENU_OF_BANK = 6, 54  # the key on the first page of a menu
SAVE, LOAD = (290, 475), (405, 475)
SHOW = "/mnt/data/user/root/SYSTEM/"
DSK, WIPE, CCR, DEVICE = "PGM/PST@DSK1@", "M/E-1@Wipe@", "CCR@CCR1@", "Device@DDR/VTR@Dev2@"
ROUTED = "Router@Status@Xpt Assign@Dest3@Level1"
SOURCE_COLUMN = 470, 268, 536, 286  # the title
TITLE_LAMP = 352, 13, 362, 23
DIAG_ITEM = 102, 376, 690, 408  # the chosen line in full


class Shift(DeskCase):
    """The jobs follow one another as in a shift: what one leaves is there for the next."""

    menu_key = None  # the Top Menu key of the menu in view; None at Home

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desk.console("slow 0")

    def touch(self, place, sign=None):
        """A touch on a key, by its id, or on a point; sign: what it sends, if it is something of its own."""
        self.desk.wire()
        self.desk.touch(*(grid(place) if isinstance(place, int) else place), settle=0.1)
        if sign:
            self.desk.wait_wire(sign, starts=True)
        time.sleep(0.2)

    def from_home(self, row, column, sign, key=TOP_MENU):
        """Home, by the title and the key there, and to a menu; key: where its way home is."""
        if self.menu_key:
            self.touch(TITLE)
            self.touch(self.menu_key)
            self.assertEqual(self.last_page(), "110000", "not at Home")
        Shift.menu_key = key
        self.touch((112 + 98 * (column - 1) + 42, 96 + 88 * (row - 1) + 30), sign)

    def last_page(self):
        return re.findall(r"CreatePage\((\w+)h\) Called", self.desk.log())[-1]

    def turn(self, knob, detents, path, expected):
        self.desk.console(f"knob {knob} {detents:+d}")
        self.wait_value(path, expected)

    def test_01_a_title_is_keyed_on_air(self):
        self.from_home(1, 6, f"add {DSK}Type@Key Type", TOP_MENU_OF_BANK)
        self.touch(18, f"put {DSK}Type@Key Type#Linear")
        self.touch(51, f"add {DSK}Type@Signal Select@Fill")
        self.touch((300, list_row(4, 266)), f"put {DSK}Type@Signal Select@Fill#CAM4")
        unused = self.desk.part(*SOURCE_COLUMN)  # grey: a self key has no use for it
        self.touch(bottom_tab(1), f"add {DSK}Type@Key Type")
        self.touch(53, f"put {DSK}Type@Key Source#Split")
        self.touch(51, f"add {DSK}Type@Signal Select@Fill")
        self.assertNotEqual(self.desk.part(*SOURCE_COLUMN), unused)
        self.touch(38)
        self.touch((300, list_row(5, 266)), f"put {DSK}Type@Signal Select@Source#CAM5")
        self.wait_value(DSK + "Status@Source Name", "CAM5")
        self.touch(bottom_tab(7), f"add {DSK}Transition@ON Transition Type")
        self.touch(51, f"assign Knob0#{DSK}Transition@ON Transition Rate")
        self.turn(0, -15, DSK + "Transition@ON Transition Rate", "15")
        off = self.desk.part(*face(49))
        self.touch(50, f"put {DSK}Transition@Auto Trans#true")
        self.wait_value(DSK + "Status@Key ON", "true")
        self.wait_part(face(49), off)

    def test_02_a_wipe_with_a_matte_edge(self):
        self.from_home(1, 1, "add M/E-1@Key1@Type@Key Type", TOP_MENU_OF_BANK)
        self.touch(left_tab(5), f"add {WIPE}Main Pattern@Pattern")
        self.touch((455, 428))  # the circles
        self.touch((150, 107), f"put {WIPE}Main Pattern@Pattern#65")
        self.touch(bottom_tab(4), f"add {WIPE}Edge@Border")
        no_edge = self.desk.part(*cell(5, 0))
        self.touch(17, f"assign Knob0#{WIPE}Edge@Border@Width")
        self.turn(0, 1500, WIPE + "Edge@Border@Width", "15.00")
        self.wait_part(cell(5, 0), no_edge)
        self.touch(35, f"assign Knob0#{WIPE}Edge/Direction@Matte Adjust@Color 1@Luminance")
        self.turn(2, 6000, WIPE + "Edge/Direction@Matte Adjust@Color 1@Hue", "60.00")
        self.assertEqual(self.desk.value(WIPE + "Edge@Edge Fill"), "Matte")
        self.touch(left_tab(7), "add M/E-1@Misc@Transition@Wipe")
        self.touch(17, "put M/E-1@Misc@Transition@Wipe#true")
        before = self.desk.value("M/E-1@Status@Xpt Assign@A")
        self.touch(54, "put M/E-1@Misc@Transition@Auto Trans#true")
        self.wait_value("M/E-1@Status@Xpt Assign@B", before)

    def test_03_an_effect_is_recalled_and_run(self):
        self.from_home(3, 2, "add Effect@Master Timeline@Store/Recall@Current Register")
        self.touch(left_tab(2))
        self.touch((200, list_row(2)))
        shown = self.desk.part(*TIMELINE_AREA)
        self.touch(50, "put Effect@Effect@Recall@Recall#0000000000000002, 2")
        self.assertIn("M/E-1 selected #2 SLIDE IN KF 1/4 frame 0/", self.asked("timelines"))
        shown = self.wait_part(TIMELINE_AREA, shown)
        self.touch(TIMELINE)
        self.touch(bottom_tab(7))
        self.touch(17, "put Key Frame@Timeline@Run#true")
        self.wait_value("Key Frame@Timeline@Run", "true")
        shown = self.wait_part(TIMELINE_AREA, shown)
        self.wait_part(TIMELINE_AREA, shown)  # the time counts

    def test_04_a_device_is_cued_and_played(self):
        self.from_home(4, 2, "put Device@DDR/VTR@Cueup&Play@Tally Back#true")
        self.touch(bottom_tab(3), "put Device@DDR/VTR@File List#Dev1")
        self.touch((150, list_row(2)), "put Device@DDR/VTR@File List#Dev2")
        self.touch((520, list_row(2)))
        state = 202, list_row(2) - 9, 258, list_row(2) + 9
        idle = self.desk.part(*state)
        self.touch(51, f"put {DEVICE}Transport#Cue Up")
        self.wait_value(DEVICE + "Transport", "Cue Up")
        cued = self.wait_part(state, idle)
        self.touch(54, f"put {DEVICE}Transport#Play")
        self.wait_value(DEVICE + "Transport", "Play")
        self.assertEqual(self.desk.value(DEVICE + "File"), "BREAK BUMPER")
        self.wait_part(state, cued)

    def test_05_a_source_is_routed(self):
        self.from_home(4, 1, "add Router@Destination@Dest128@Owner")
        self.touch((200, list_row(3)))
        self.touch((540, list_row(5)), "put Router@Destination@Dest3@Preset#SRC5")
        shown = self.desk.part(216, list_row(3) - 9, 310, list_row(3) + 9)
        self.touch(33, "put Router@Destination@Dest3@Take#true")
        self.wait_value(ROUTED, "SRC5")
        self.wait_part((216, list_row(3) - 9, 310, list_row(3) + 9), shown)

    def test_06_a_camera_is_corrected(self):
        self.from_home(2, 4, f"add {CCR}White/Black@White")
        bypassed = self.desk.part(*cell(0, 0))
        level = self.desk.part(*cell(1, 0))
        self.touch(17, f"assign Knob0#{CCR}White/Black@White@All")
        self.turn(1, 250, CCR + "White/Black@White@Red", "2.50")
        self.wait_part(cell(1, 0), level)
        self.assertEqual(self.desk.part(*cell(0, 0)), bypassed, "not on the air yet, and the page says so")
        self.touch(38, f"put {CCR}Insert@Correction#true")
        self.wait_part(cell(0, 0), bypassed)

    def test_07_a_bank_is_copied(self):
        self.from_home(4, 4, "add M/E-1@Status@Xpt Assign@A")
        self.touch((520, list_row(2)))
        self.touch(49, "put Copy/Swap@M/E@Copy#M/E-1,M/E-2,All")
        self.wait_value("M/E-2@Wipe@Edge@Border@Width", "15.00")
        self.assertEqual(self.desk.value("M/E-2@Wipe@Main Pattern@Pattern"), "65")

    def test_08_the_show_is_saved(self):
        self.from_home(3, 6, "add Info@Operation Setup Data@Clear Before Load")
        page = self.desk.part(100, 130, 600, 175)
        self.touch(SAVE)
        self.assertNotEqual(self.desk.part(100, 130, 600, 175), page, "it asks first")
        self.touch(YES)
        for file in ("EFFECT/SWR000D001/ME1/SLIDE IN.ME1_002.SKF", "SETUP/CTRLCPU/SETUP.GUI_0000.PST",
                     "FMEMFOL/Graphics/SWR000D001/Mbackdrop.FMEM_003.SFM"):
            self.wait_until(lambda f=file: os.path.exists(self.desk.root + SHOW + f), f"{file} was not saved")
        self.wait_until(lambda: self.desk.part(100, 130, 600, 175) == page, "the pane does not close")

    def test_09_the_show_is_loaded(self):
        self.assertIn("SLIDE IN", self.asked("list effect M/E-1"))
        self.asked("panel delete effect 2 M/E-1")
        self.assertNotIn("SLIDE IN", self.asked("list effect M/E-1"))
        self.from_home(3, 6, "add Info@Operation Setup Data@Clear Before Load")
        page = self.desk.part(100, 130, 600, 175)
        self.touch(LOAD)
        self.desk.wait_wire("put 16@Frame Mem@Folder@Move Still#0,Mbackdrop,1", 20)  # among the last
        self.assertIn("SLIDE IN", self.asked("list effect M/E-1"))
        self.touch(OK)  # the locked registers, which stay as they are
        self.wait_until(lambda: self.desk.part(100, 130, 600, 175) == page, "the pane does not close")

    def test_10_why_a_fan_is_loud(self):
        self.touch(TITLE)
        self.touch(self.menu_key)
        calm = self.desk.part(*TITLE_LAMP)
        self.desk.console("fan SWR1 3 max")
        self.wait_part(TITLE_LAMP, calm)
        self.touch(TITLE)
        error = self.desk.part(*DIAG_ITEM)
        self.touch(left_tab(3))
        self.assertNotEqual(self.desk.part(*DIAG_ITEM), error, "the first temperature")
        self.touch(bottom_tab(2))
        self.assertEqual(self.last_page(), "74220000")
        self.assertEqual(self.desk.part(*DIAG_ITEM), error, "among all fans the same one is chosen")


if __name__ == "__main__":
    unittest.main()
