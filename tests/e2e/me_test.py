"""A person works the pages of a mix/effect bank: one keyer from its type to its transition, the same on another bank
and key, wipe snapshots, default recall, what a format takes away."""
import re
import time
import unittest

from desk import grid
from deskcase import DeskCase, bottom_tab, cell, face, left_tab

DEFAULT_KEY = (45, 563)
WIPE = "M/E-1@Wipe@Main Pattern@Pattern"
REGISTERS = "Snapshot@Wipe Snapshot@"
BTN_STORE = 22
BTN_OF_REGISTER = {1: 49, 4: 33, 5: 34}  # as on a keypad


class MixEffect(DeskCase):
    """The tests build on one another, in the order of their names: one start-up serves all."""

    def touch(self, button_id, *lines):
        """A touch on a button, and what it must send."""
        self.desk.wire()
        self.desk.touch(*grid(button_id), settle=0.15)
        sent = []
        for line in lines:
            sent += self.desk.wait_wire(line) if line not in sent else []
        return sent

    def said(self, pattern):
        """What the application has sent since the start that matches, whoever has read the wire."""
        with open(self.desk.sim_log, encoding="latin-1") as log:
            return re.findall(f"< {pattern}", log.read())

    def turn(self, knob, detents, tail, step=0.01):
        """Turn a knob that the page has assigned to a path of that tail; each detent is a step."""
        self.wait_until(lambda: self.said(f"assign Knob{knob}#(.*)")[-1].endswith(tail), f"{tail} has no knob")
        path = self.said(f"assign Knob{knob}#(.*)")[-1]
        wanted = float(self.desk.value(path)) + detents * step
        self.desk.console(f"knob {knob} {detents:+d}")
        self.wait_until(lambda: abs(float(self.desk.value(path)) - wanted) <= step / 2, f"{path} is not {wanted}")

    def work_through(self, pages, key):
        """All tabs of a keyer; pages is what its page numbers begin with, key its path."""
        self.open_page(pages + "1", f"add {key}@Type@Key Type")
        self.touch(19, f"put {key}@Type@Key Type#Chroma", f"assign Knob0#{key}@Type@Key Type@Chroma@Clip")
        self.turn(0, 1250, "@Chroma@Clip")
        self.turn(1, -500, "@Chroma@Gain")
        self.desk.touch(*bottom_tab(2))
        self.desk.wait_wire(f"add {key}@Edge@Edge")
        self.touch(18, f"put {key}@Edge@Edge#Border")
        self.turn(0, 150, "@Border@Width")
        self.desk.touch(*bottom_tab(3))
        self.desk.wait_wire(f"add {key}@Main Mask@Main Mask")
        self.touch(17, f"put {key}@Main Mask@Main Mask#true")
        self.touch(33, f"assign Knob0#{key}@Main Mask@Box@Left")
        self.turn(0, 1000, "@Box@Left")
        self.desk.touch(*bottom_tab(5))
        self.desk.wait_wire(f"add {key}@Processed Key@Resizer")
        self.touch(17, f"put {key}@Processed Key@Resizer#true")
        self.turn(0, -2500, "@Resizer@Size")
        self.desk.touch(*bottom_tab(7))
        self.desk.wait_wire(f"add {key}@Transition@ON Transition Type")
        self.touch(51, f"assign Knob0#{key}@Transition@ON Transition Rate")
        self.turn(0, -20, "@ON Transition Rate", 1)
        before = self.desk.part(*face(49))
        self.touch(50, f"put {key}@Transition@Auto Trans#true")
        self.wait_value(f"{key}@Status@Key ON", "true")
        self.wait_part(face(49), before)

    def overview_changes(self, page, sign, line, pages, key):
        """The three cells of a key on the first page of its bank show what was done on its pages."""
        cells = [cell(column, line) for column in range(3)]
        self.open_page(page, sign)
        before = [self.desk.part(*rect) for rect in cells]
        other = self.desk.part(*cell(0, line ^ 1))
        earlier = len(self.said("put (?!TopMenu)(.*)"))
        self.work_through(pages, key)
        puts = self.said("put (?!TopMenu)(.*)")[earlier:]
        self.assertGreater(len(puts), 4)
        self.assertEqual([path for path in puts if not path.startswith(key + "@")], [])
        self.open_page(page, sign)
        for rect, was in zip(cells, before):
            self.wait_part(rect, was)
        self.assertEqual(self.desk.part(*cell(0, line ^ 1)), other)

    def test_01_a_keyer_is_worked_through_and_the_overview_follows(self):
        self.overview_changes("1100", "add M/E-1@Key1@Main Mask@Main Mask", 0, "111", "M/E-1@Key1")

    def test_02_the_same_on_another_bank_and_side(self):
        self.desk.console("multi M/E-4 on")
        time.sleep(0.5)
        self.overview_changes("8500", "add M/E-4@Key6@Main Mask@Main Mask", 1, "852", "M/E-4@Key6")
        self.assertEqual(self.desk.value("M/E-1@Key1@Resizer@Size"), "75.00")
        self.assertEqual(self.desk.value("M/E-4@Key5@Resizer@Size"), "100.00")

    def test_03_a_wipe_snapshot_brings_its_pattern_back(self):
        self.desk.console(f"put {WIPE}#12")
        self.open_page("1157", f"add {WIPE}")
        empty = self.desk.part(*face(BTN_OF_REGISTER[5]))
        self.touch(BTN_STORE)
        self.touch(BTN_OF_REGISTER[5], f"put {REGISTERS}Store#2,5")
        self.wait_part(face(BTN_OF_REGISTER[5]), empty)
        main_pattern = self.desk.part(*cell(0, 0))
        self.touch(BTN_OF_REGISTER[1], f"put {REGISTERS}Recall#2,1")
        self.wait_value(WIPE, "65")
        self.wait_part(cell(0, 0), main_pattern)
        self.touch(BTN_OF_REGISTER[5], f"put {REGISTERS}Recall#2,5")
        self.wait_value(WIPE, "12")
        self.touch(BTN_OF_REGISTER[4])  # that one is empty
        self.assertEqual([line for line in self.desk.wire() if line.startswith("put")], [])

    def test_04_default_recall_on_a_tab_resets_the_key_and_no_other(self):
        self.open_page("1111", "add M/E-1@Key1@Type@Key Type")
        self.desk.touch(*DEFAULT_KEY)
        self.desk.touch(*left_tab(1))
        self.desk.wait_wire("default M/E-1@Key1")
        self.wait_value("M/E-1@Key1@Type@Key Type", "Luminance")
        self.assertEqual(self.desk.value("M/E-1@Key1@Edge@Edge"), "Normal")
        self.assertEqual(self.desk.value("M/E-1@Key1@Status@Key ON"), "true")
        self.assertEqual(self.desk.value("M/E-4@Key6@Edge@Edge"), "Border")

    def test_041_a_key_is_copied_to_another_and_brought_back(self):
        kind, clip = "M/E-1@Key2@Type@Key Type", "M/E-1@Key1@Type@Key Type@Linear@Clip"
        self.desk.console("set M/E-1@Key1@Type@Key Type#Linear")
        self.desk.console(f"set {kind}#Luminance")
        self.desk.console(f"set {clip}#33.00")
        self.open_page("3112", "add M/E-1@Key1@Type@Key Type")
        self.desk.touch(520, 76 + 22 + 22 + 11)  # the second line on the right
        self.touch(49, "put Copy/Swap@Key@Copy#M/E-1@Key1,M/E-1@Key2,All")
        self.wait_value(kind, "Linear")
        self.wait_value(clip.replace("Key1", "Key2"), "33.00")
        self.touch(51, "put Copy/Swap@Key@Undo#true")
        self.wait_value(kind, "Luminance")

    def test_05_a_4k_format_takes_eight_buttons_from_key3(self):
        lost = (19, 20, 21, 22, 35, 36, 37, 38)
        self.open_page("1131", "add M/E-1@Key3@Type@Key Type")
        self.desk.console("4k on")
        self.addCleanup(self.desk.console, "4k off")
        self.open_page("1111", "add M/E-1@Key1@Type@Key Type")
        self.touch(21, "put M/E-1@Key1@Type@Key Type#Wipe Pattern")
        self.open_page("1131", "add M/E-1@Key3@Type@Key Type")
        for button in lost:
            self.assertFalse(any(b"".join(self.desk.part(*face(button)))), button)
        self.touch(19)
        self.assertEqual([line for line in self.desk.wire() if line.startswith("put M/E")], [])
        self.touch(18, "put M/E-1@Key3@Type@Key Type#Linear")


if __name__ == "__main__":
    unittest.main(verbosity=1)
