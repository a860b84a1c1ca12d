"""A person works the pages of the stored registers: stores what two banks are, brings it back but for what is under
hold, locks, renames, copies, deletes and swaps; masters, effects and shotboxes; another panel that does the same."""
import re
import time
import unittest

from desk import grid
from deskcase import DeskCase

SNAPSHOTS = "put Snapshot@Snapshot@"
MASTER = "put Snapshot@Master Snapshot@"
EFFECTS = "put Effect@Effect@"
SHOTBOX = "put Shotbox@Register@"
ME1 = "0000000000000002"
KEY_TYPE = "M/E-1@Key1@Type@Key Type"
OTHER_KEY = "M/E-1@Key2@Type@Key Type"
OTHER_BANK = "M/E-2@Key2@Type@Key Type"
STATES = (KEY_TYPE, OTHER_KEY, OTHER_BANK)
TOP, DUAL_TOP, A, B = 78, 124, 150, 500  # of the lists, and a place in a row of each
PLURAL, ENTER, YES = (668, 395), (400, 395), (341, 414)
REGION, RECALL = 49, 50


class Registers(DeskCase):
    """The tests build on one another, in the order of their names: one start-up serves all."""

    settles = 1

    def open(self, number, *rows):
        """A page, and a touch on a row of its list, or on one in each of two."""
        super().open(number)
        for row, (x, top) in zip(rows, ((A, DUAL_TOP), (B, DUAL_TOP)) if rows[1:] else ((A, TOP),)):
            self.row(row, x, top)
        return self

    def row(self, number, x=A, top=TOP):
        self.desk.touch(x, top + 22 * number + 11, settle=0.2)

    def shown(self, first, last=None, top=TOP):
        """Rows of a list: two looks at them can be compared."""
        return self.desk.part(100, top + 22 * first, 640, top + 22 * (last or first) + 20)

    def press(self, button_id, *lines):
        """A touch on a button, and all puts that follow: these lines."""
        self.assertEqual(self.pressed(button_id, len(lines)), list(lines))

    def pressed(self, button_id, count):
        self.desk.wire()
        self.desk.touch(*grid(button_id), settle=0.3)
        return self.puts(count)

    def puts(self, count):
        """So many puts of registers, if they come in time; with 0 some time without any."""
        end, puts = time.monotonic() + (3 if count else 0.5), []
        while time.monotonic() < end and len(puts) < max(count, 1):
            puts += [line for line in self.desk.wire() if re.match("put (Snapshot|Effect|Master|Shotbox)@", line)]
            time.sleep(0.05)
        return puts

    def assert_puts(self, *lines):
        self.assertEqual(self.puts(len(lines)), list(lines))

    def links(self, button_id, head):
        """What a key of an edit page stores."""
        (line,) = self.pressed(button_id, 1)
        self.assertTrue(line.startswith(head + ","), line)
        return line[len(head) + 1:].split(",")

    def delete(self, *lines, key=51):
        self.press(key)
        self.desk.touch(*YES, settle=0.2)
        self.assert_puts(*lines)

    def set_all(self, value):
        for path in STATES:
            self.desk.console(f"set {path}#{value}")

    def values(self):
        return [self.desk.value(path) for path in STATES]

    def assert_changes(self, command, rows, same=()):
        """Another panel's command changes these rows of the list at once, and those not."""
        before, rest = [self.shown(row) for row in rows], [self.shown(row) for row in same]
        self.desk.console(command)
        time.sleep(0.4)
        for row, old in zip(rows, before):
            self.assertNotEqual(self.shown(row), old, f"{command}: row {row}")
        self.assertEqual([self.shown(row) for row in same], rest, command)

    def test_1_two_banks_come_back_but_for_the_key_under_hold(self):
        self.set_all("Linear")
        self.open(6321).press(REGION)
        self.touch((240, 208), ENTER)  # M/E-2 beside M/E-1: now the reference
        self.row(4)
        self.press(51, SNAPSHOTS + "Store#6,4")
        self.press(37)  # to the crosspoint hold
        self.row(3)  # below the two backgrounds: key 1
        self.press(49, SNAPSHOTS + "Attribute@Xpt Hold#6,4,4,1")
        self.open(6321)
        self.set_all("Chroma")
        self.press(RECALL, SNAPSHOTS + "Recall#6, 4")
        self.assertEqual(self.values(), ["Chroma", "Linear", "Linear"])

    def test_2_a_lock_refuses_and_a_name_shows(self):
        self.open(6322, 4).press(51, SNAPSHOTS + "Lock#6,4,4")
        self.open(6326, 4).delete()
        self.assert_changes("panel rename snapshot 4 M/E-2 LATE", [], [4])  # there it is refused, too
        self.open(6322).press(51, SNAPSHOTS + "UnLock#6,4,4")
        self.assert_changes("panel rename snapshot 4 M/E-2 LATE", [4], [1, 2, 3, 5])

    def test_3_copies_a_swap_and_a_range_in_two_regions(self):
        self.open(6323, 4, 6).press(49, SNAPSHOTS + "Copy#6,4,4,6,6,false")
        self.press(50)  # without the name
        self.row(7, B, DUAL_TOP)
        self.press(49, SNAPSHOTS + "Copy#6,4,4,6,7,true")
        self.open(6325, 1, 7).press(49, SNAPSHOTS + "Swap#6,1,1,6,7,true")
        self.open(6326, 4)
        self.desk.touch(*PLURAL)
        for number in (5, 6, 7):
            self.row(number)
        before = [self.shown(number) for number in (4, 6, 7)]
        self.delete(SNAPSHOTS + "Delete#6,4,7")
        time.sleep(0.3)
        for old, number in zip(before, (4, 6, 7)):
            self.assertNotEqual(self.shown(number), old)
        self.desk.touch(*PLURAL)

    def test_4_a_master_brings_back_what_its_regions_had(self):
        self.set_all("Linear")
        self.open(6321, 5).press(51, SNAPSHOTS + "Store#6,5")
        self.open(6311, 4).press(50, MASTER + "Store/Recall@Store#4")
        self.set_all("Chroma")
        self.press(49, MASTER + "Store/Recall@Recall#4")
        self.assertEqual(self.values(), ["Linear"] * 3)
        self.press(51)  # to the edit page
        self.desk.touch(148, 112)  # M/E-1
        self.desk.console("knob 0 +9")
        time.sleep(0.2)
        self.press(51)
        stored = self.links(53, MASTER + "Store/Recall@Edit@Store#4")
        self.assertEqual(stored[:2], ["10", "5"])
        self.assertEqual(self.links(54, MASTER + "Store/Recall@Edit@Store#4"), ["5"] + stored[1:])

    def test_5_an_effect_is_recalled_dissolved_copied_and_merged(self):
        self.open(6221, 2).press(RECALL, EFFECTS + f"Recall@Recall#{ME1}, 2")
        self.desk.console("put Effect@Effect@Attribute@Temporary Duration@M/E-1#25")
        time.sleep(0.2)
        before = self.shown(2)
        self.press(33, EFFECTS + f"Attribute@Effect Dissolve#{ME1},2,2,true,25")
        self.assertNotEqual(self.shown(2), before)
        self.open(6223, 2, 5).press(49, EFFECTS + f"Copy/Merge@Copy#{ME1},2,2,{ME1},5,false")
        self.press(52, EFFECTS + f"Copy/Merge@Merge#{ME1},2,{ME1},5")
        self.open(6231).press(RECALL, EFFECTS + "Recall@Recall#0000000000101000, 101")
        self.open(6261)
        self.assert_changes("panel store effect 3 P-Bus CUE", [3], [1, 2, 4])

    def test_6_a_shotbox_runs_what_it_links(self):
        self.open(6411, 1).press(49, SHOTBOX + "Store/Recall@Recall#1")
        self.assertEqual(self.desk.value("Key Frame@Timeline@Run"), "true")
        before = self.shown(1)
        self.press(33, SHOTBOX + "Attribute@Auto Run#1,1,false")
        self.assertNotEqual(self.shown(1), before)
        self.row(3)
        self.press(50, SHOTBOX + "Store/Recall@Store#3")
        self.press(51)  # to the edit page
        self.desk.touch(148 + 70, 112)  # M/E-2
        self.press(50)  # a snapshot
        self.press(51)
        self.assertEqual(self.links(53, SHOTBOX + "Store/Recall@Edit@Store#3")[1], "S1")
        self.open(6411)
        self.desk.console("set M/E-2@Misc@Transition@Transition Rate#99")
        self.press(49, SHOTBOX + "Store/Recall@Recall#3")
        self.assertEqual(self.desk.value("M/E-2@Misc@Transition@Transition Rate"), "30")

    def test_7_another_panel_shows_at_once_and_in_its_list_only(self):
        for page, command, rows in (
                (6321, "panel store snapshot 8 M/E-2 NIGHT", [8]), (6321, "panel store snapshot 9 P/P NIGHT", []),
                (6321, "panel store effect 9 M/E-1", []), (6322, "panel lock snapshot 8 M/E-2", [8]),
                (6221, "panel store effect 8 M/E-1 NIGHT", [8]), (6221, "panel delete effect 8 M/E-1", [8]),
                (6211, "panel store mastereffect 6 NIGHT", [6]), (6411, "panel store shotbox 6 NIGHT", [6]),
                (6411, "panel copy shotbox 6 9", [9])):
            self.open(page, 1)
            self.assert_changes(command, rows, [row for row in (2, 7, 8, 9) if row not in rows])

    def test_8_a_new_name_of_an_effect_shows_everywhere_and_a_lock_holds_it(self):
        self.desk.console("panel store effect 9 M/E-1 A")
        left, right, cell = (100, 124 + 22 * 9, 348, 340), (405, 124 + 22 * 9, 650, 340), (119, 398, 169, 418)
        places = ((6221, (100, TOP + 22 * 9, 560, TOP + 22 * 9 + 20)), (6223, left), (6223, right), (6200, cell))

        def looks():
            for page, place in places:
                self.open(page)
                yield self.desk.part(*place)

        before = list(looks())
        self.open(6227, 9)
        self.desk.touch(*grid(51))
        self.desk.wire()
        self.type("c")
        self.assert_puts(EFFECTS + f"Rename@Rename#{ME1},9,Ac")
        for page, old, new in zip(places, before, looks()):
            self.assertNotEqual(old, new, page)
        self.open(6222, 9).press(51, EFFECTS + f"Lock@Lock#{ME1},9,9,true")
        self.open(6226, 9).delete()
        self.open(6225, 2, 9).press(49)  # nothing goes into a locked one
        self.open(6222, 9).press(51, EFFECTS + f"Lock@Lock#{ME1},9,9,false")
        for page, word in ((6225, "Swap"), (6224, "Move")):
            self.open(page, 2, 9).press(49, EFFECTS + f"{word}@{word}#{ME1},2,2,{ME1},9,false")
        self.open(6226, 9).delete(EFFECTS + f"Delete@Delete#{ME1},9,9")

    def test_9_a_shotbox_is_locked_copied_swapped_and_deleted(self):
        self.desk.console("panel store shotbox 3 NOON")
        self.open(6412, 3).press(50, SHOTBOX + "Lock#3,3")
        self.open(6416, 3).delete(key=50)
        self.open(6412, 3).press(50, SHOTBOX + "UnLock#3,3")
        for page, word in ((6413, "Copy"), (6415, "Swap")):
            self.open(page, 3, 10)
            before = self.shown(10, top=DUAL_TOP)
            self.press(49, SHOTBOX + f"{word}#3,3,10,false")
            self.assertEqual(self.shown(10, top=DUAL_TOP) != before, word == "Copy")  # then they are alike
        self.open(6416, 10)
        before = self.shown(10)
        self.delete(SHOTBOX + "Delete#10,10", key=50)
        self.assertNotEqual(self.shown(10), before)

    def test_a_a_snapshot_of_a_user_plays_its_clip(self):
        event, output = SNAPSHOTS + "Clip Event@User1@FM1@AutoPlay#1,", "Frame Mem 2@Clip/Still@Output Status@FM1"
        self.desk.console("clip make BREAK 75")
        self.open(6321).press(REGION)
        self.touch((176, 253), ENTER)  # User1: the reference now
        self.row(1)
        for on, shows in (("OFF", "0,"), ("ON", "2,/BREAK.SFH")):
            self.press(38)  # to its clips
            before = self.desk.part(100, 387, 566, 428)
            self.press(49, event + on)
            self.open(6321)
            (recall,) = self.pressed(RECALL, 1)
            self.assertRegex(recall, SNAPSHOTS + "Recall#4[26], 1$")  # with the banks of the first test or one
            self.assertEqual(self.desk.value(output), shows)
        self.press(38)
        self.assertNotEqual(self.desk.part(100, 387, 566, 428), before)  # what the output shows


if __name__ == "__main__":
    unittest.main(verbosity=2)
