"""The simulator's stored registers: their lists, and what store, recall and the other commands do to them.

usage: sim_store_test.py BUILD_DIR [TEST...]
"""

import sim_test
from sim_effect_test import ME1, StreamTest
from sim_test import SimTest

EFFECTS = "Effect@Effect@Attribute@List@"
SNAPSHOTS = "Snapshot@Snapshot@Attribute@"
MASTERS = "Snapshot@Master Snapshot@Store/Recall@"
TIMELINES = "Effect@Master Timeline@Store/Recall@"
KEY_TYPE = "M/E-1@Key1@Type@Key Type"
MASK = {"M/E-1": "0000000000000002", "M/E-2": "0000000000000004", "both": "0000000000000006",
        "M/E-4": "0004000000000000", "M/E-1 Sub": "0000400000000000", "Dev5": "0000000100000000",
        "GPI": "0000020000000000"}


class StoreTest(SimTest):
    def setUp(self):
        super().setUp()
        self.text = self.client()  # asks and commands
        self.other = self.client()  # only follows

    def rows(self, path):
        """The list as it is now: fields by number."""
        self.text.send(f"read {path}")
        lines = [line.partition("#") for line in self.text.sync()]
        self.assertEqual({head for head, _, _ in lines}, {path})
        return {int(row.split(",")[0]): row.split(",") for _, _, row in lines}

    def follow(self, *paths):
        for path in paths:
            self.other.send(f"add {path}")
        self.other.sync()

    def put(self, path, value):
        """The put is answered with itself; what the others hear of it comes back."""
        self.text.send(f"put {path}#{value}")
        self.text.until(f"{path}#{value}")
        return self.other.sync()


class Lists(StoreTest):
    def test_each_list_answers_with_all_its_numbers_and_fields(self):
        dme = {n for n in range(1, 400) if n % 100}
        cases = [(EFFECTS + "M/E-1", 6, set(range(1, 100))), (EFFECTS + "DME1", 6, dme), (EFFECTS + "DME5", 6, dme),
                 (EFFECTS + "DME2", 6, set(range(1, 100))),  # the rest is kept with the first of its unit
                 (EFFECTS + "Dev12", 6, set(range(1, 251))), (TIMELINES + "List", 47, set(range(1, 100))),
                 (SNAPSHOTS + "RTR@List", 7, set(range(1, 100))), (MASTERS + "List", 34, set(range(1, 100))),
                 ("Snapshot@Wipe Snapshot@M/E-5 Sub@List", 3, set(range(1, 11))),
                 ("Snapshot@Key Snapshot@Attribute@P/P@Key8@List", 3, set(range(1, 5))),
                 ("Shotbox@Register@Store/Recall@List", 48, set(range(1, 100))),
                 ("Macro@Register@List", 6, set(range(1, 251)))]
        for path, fields, numbers in cases:
            rows = self.rows(path)
            self.assertEqual(set(rows), numbers, path)
            self.assertEqual({len(row) for row in rows.values()}, {fields}, path)

    def test_nobody_writes_a_list_and_its_default_is_what_it_is(self):
        self.put("Effect@Effect@Rename@Rename", MASK["M/E-1"] + ",1,NEW")
        path = EFFECTS + "M/E-1"
        before = self.rows(path)
        self.text.send(f"put {path}#1,S,FORGED,U,N,0")
        self.text.sync()
        self.text.send(f"default {path}")
        self.text.sync()
        self.assertEqual(self.rows(path), before)
        self.assertEqual(before[1][2], "NEW")


class Commands(StoreTest):
    def test_lock_rename_and_delete_reach_every_region_of_the_mask_and_every_follower(self):
        one, two = EFFECTS + "M/E-1", EFFECTS + "M/E-2"
        self.follow(one, two)
        self.assertEqual(self.put("Effect@Effect@Rename@Rename", MASK["both"] + ",1,CUT,IN TWELVE CHARS"),
                         [f"{one}#1,S,CUT,U,N,180", f"{two}#1,S,CUT,U,N,120"])
        told = self.put("Effect@Effect@Lock@Lock", MASK["both"] + ",1,4,true")
        self.assertEqual(told, [f"{one}#1,S,CUT,L,N,180", f"{one}#2,S,SLIDE IN,L,N,90", f"{two}#1,S,CUT,L,N,120"])
        self.assertEqual(self.put("Effect@Effect@Rename@Rename", MASK["M/E-1"] + ",1,LOCKED"), [])
        self.assertEqual(self.put("Effect@Effect@Delete@Delete", MASK["both"] + ",1,99"), [])
        self.put("Effect@Effect@Lock@Lock", MASK["M/E-1"] + ",1,1,false")
        self.assertEqual(self.put("Effect@Effect@Delete@Delete", MASK["both"] + ",1,99"), [f"{one}#1,E,,U,N,0"])

    def test_masks_name_the_regions(self):
        for region in ("M/E-4", "M/E-1 Sub", "Dev5", "GPI"):
            self.follow(EFFECTS + region)
            told = self.put("Effect@Effect@Store@Store", MASK[region] + ",7,HERE")
            self.assertEqual(told, [f"{EFFECTS}{region}#7,S,HERE,U,N,0"], region)
        self.follow(SNAPSHOTS + "M/E-4@List", SNAPSHOTS + "P/P Sub@List", SNAPSHOTS + "RTR@List")
        told = self.put("Snapshot@Snapshot@Store", "C00010,7,THREE")
        self.assertEqual(told, [f"{SNAPSHOTS}{region}@List#7,THREE,S,,n,n,n" for region in ("M/E-4", "P/P Sub", "RTR")])
        key = "Snapshot@Key Snapshot@Attribute@M/E-2@Key3@List"
        self.follow(key)
        self.assertEqual(self.put("Snapshot@Key Snapshot@Store", "0000000000000400,4,K"), [f"{key}#4,K,S"])
        for mask in ("0000000000000000", "", "xyz", "-"):
            self.assertEqual(self.put("Effect@Effect@Store@Store", mask + ",8,NONE"), [], mask)

    def test_copy_keeps_the_source_and_move_and_swap_do_not(self):
        lists = EFFECTS + "M/E-1", EFFECTS + "M/E-2"
        self.follow(*lists)

        def names():
            rows = [self.rows(path) for path in lists]
            self.other.sync()
            return [{number: row[2] for number, row in one.items() if row[1] == "S"} for one in rows]
        first = {1: "OPENING", 2: "SLIDE IN", 3: "LOGO LOOP", 99: "BLACK"}
        self.assertEqual(names(), [first, {1: "OPENING"}])
        self.put("Effect@Effect@Copy/Merge@Copy", f"{MASK['M/E-1']},1,3,{MASK['M/E-2']},2,false")
        copied = {1: "OPENING", 2: "OPENING", 3: "SLIDE IN", 4: "LOGO LOOP"}
        self.assertEqual(names(), [first, copied])
        self.put("Effect@Effect@Copy/Merge@Copy", f"{MASK['M/E-2']},2,3,{MASK['M/E-2']},3,true")
        self.assertEqual(names()[1], copied)  # without the names; source and target overlap
        self.assertEqual([self.rows(lists[1])[n][5] for n in (2, 3, 4)], ["180", "180", "90"])
        self.put("Effect@Effect@Move@Move", f"{MASK['M/E-1']},1,3,{MASK['M/E-2']},10,false")
        self.assertEqual(names(), [{3: "LOGO LOOP", 99: "BLACK"}, {**copied, 10: "OPENING", 11: "SLIDE IN"}])
    def test_rubbish_changes_nothing(self):
        self.do("list effect", "list snapshot", "list mastersnapshot")
        self.wait_for_log("console: list mastersnapshot")
        for path in ("Effect@Effect@Delete@Delete", "Effect@Effect@Copy/Merge@Copy", "Effect@Effect@Rename@Rename",
                     "Snapshot@Snapshot@Lock", "Effect@Effect@Swap@Swap", "Effect@Effect@Copy/Merge@Merge",
                     "Snapshot@Master Snapshot@Delete", "Snapshot@Snapshot@Attribute@Duration"):
            for value in ("", ",", "FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFFFF,", "FFFFFFFFFFFFFFFF,5,1",
                          "FFFFFFFFFFFFFFFF,-1,-5,6", "FFFFFFFFFFFFFFFF,a,b,c,d,e,f,g", ",,,,,,", "1,99999999999,1,1"):
                self.put(path, value)
        self.do("list effect", "list snapshot", "list mastersnapshot")
        lines = [line for line in self.output().splitlines() if "#" in line]
        self.assertEqual(lines[:len(lines) // 2], lines[len(lines) // 2:])


class Recall(StoreTest, StreamTest):
    def test_an_effect_comes_back_with_all_that_it_had(self):
        frames = self.panel(ME1)
        self.do("kf M/E-1 4 25", "pause M/E-1 2", "loop M/E-1 1 3 2", "delay M/E-1 10")
        frames.drain()
        self.do("store effect M/E-1 50 MY SHOW", "effect M/E-1 2", "run M/E-1")
        frames.drain()
        self.follow(EFFECTS + "M/E-1")
        self.text.send("put Effect@Effect@Recall@Recall#" + MASK["both"] + ", 50")
        effect = frames.effect()
        self.assertEqual((effect.number, effect.name, effect.delay, effect.loop), (50, b"MY SHOW\0", 10, (1, 3, 2)))
        self.assertEqual(effect.keys, [(25, False), (25, True), (25, False), (0, False)])
        at = frames.position()
        self.assertEqual((at.time, at.run, at.loops_left), (0, 0, 2))
        self.put("Effect@Effect@Lock@Lock", MASK["M/E-1"] + ",50,50,true")  # the frame follows its register
        self.assertTrue(frames.effect().locked)
        frames.drain()
        self.put("Effect@Effect@Recall@Recall", MASK["M/E-1"] + ", 60")  # empty
        self.assertTrue(frames.quiet())

    def test_a_snapshot_brings_every_value_of_its_bank_back_and_no_other(self):
        other = "M/E-1 SUB@Key1@Type@Key Type"
        for path in (KEY_TYPE, "M/E-1@Key2@Position", "M/E-2@Key1@Type@Key Type", other):
            self.text.send(f"put {path}#old")
        self.text.sync()
        self.do("store snapshot M/E-1 20 KEPT")
        self.wait_for_log("console: store snapshot")
        self.follow(KEY_TYPE, "M/E-1@Key2@Position", "M/E-1@Late", "M/E-2@Key1@Type@Key Type", other)
        for path in (KEY_TYPE, "M/E-1@Late", "M/E-2@Key1@Type@Key Type", other):
            self.put(path, "new")
        told = self.put("Snapshot@Snapshot@Recall", "2, 20")
        self.assertEqual(sorted(told), sorted([f"{KEY_TYPE}#old", "M/E-1@Late#"]))
        self.assertEqual(self.put("Snapshot@Snapshot@Recall", "2, 21"), [])

    def test_a_master_stores_what_each_region_has_and_recalls_it(self):
        self.follow(MASTERS + "Current Register", MASTERS + "List", KEY_TYPE)
        self.put("Snapshot@Snapshot@Recall", "2, 10")
        self.put("Snapshot@Snapshot@Recall", "4, 1")
        told = self.put(MASTERS + "Edit@Store", "30")
        self.assertEqual(told, [f"{MASTERS}Current Register#30",
                                f"{MASTERS}List#30,MSS30,S,U,10,1" + "," * 28])
        self.put("Snapshot@Snapshot@Recall", "2, 1")
        self.assertEqual(self.put(MASTERS + "Edit@Recall", "2"), [f"{MASTERS}Current Register#2"])  # looked at only
        self.assertEqual(self.put(MASTERS + "Recall", "30"), [f"{KEY_TYPE}#Chroma", f"{MASTERS}Current Register#30"])

    def test_the_console_stores_recalls_and_lists_by_words(self):
        self.do("store snapshot M/E-1 Sub 5 SUB SHOT", "store key M/E-1@Key3 2 K THREE", "store macro 9",
                "list snapshot M/E-1 Sub", "list key M/E-1@Key3", "list macro", "store snapshot Nowhere 1", "recall plan 1",
                "store effect M/E-1 100", "store effect", "list plan")
        output = self.output()
        self.assertIn(SNAPSHOTS + "M/E-1 Sub@List#5,SUB SHOT,S,,n,n,n\n", output)
        self.assertIn("Snapshot@Key Snapshot@Attribute@M/E-1@Key3@List#2,K THREE,S\n", output)
        self.assertIn("Macro@Register@List#9,S,MCRO9,U,9,0\n", output)
        self.assertEqual(output.count("usage:"), 5)


class Rules(StoreTest):
    def test_a_pattern_key_has_no_clean_mode_and_no_key_position(self):
        for what in ("Clean Mode", "Key Position"):
            path = f"M/E-1@Key1@Type@{what}@"
            for key_type, told in (("Luminance", []), ("Key Wipe Pattern", [f"{path}Key Wipe Pattern#false"])):
                self.follow(path + key_type)
                self.assertEqual(self.put(path + key_type, "true"), [f"{path}{key_type}#true"] + told)


if __name__ == "__main__":
    sim_test.main(__file__)
