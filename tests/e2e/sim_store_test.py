"""The simulator's stored registers: their lists, and what store, recall and the other commands do to them."""

import time

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

    def puts(self, *pairs):
        for path, value in pairs:
            self.put(path, value)

    def done(self, command):
        """Of the console, and heard."""
        self.do(command)
        self.wait_for_log("console: " + command)


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


class Commands(StoreTest):
    def test_lock_rename_and_delete_reach_every_region_of_the_mask_and_every_follower(self):
        one, two = EFFECTS + "M/E-1", EFFECTS + "M/E-2"
        self.follow(one, two)
        self.assertEqual(self.put("Effect@Effect@Rename@Rename", MASK["both"] + ",1,CUT,IN TWELVE CHARS"),
                         [f"{one}#1,S,CUT,U,N,0", f"{two}#1,S,CUT,U,N,0"])
        told = self.put("Effect@Effect@Lock@Lock", MASK["both"] + ",1,4,true")
        self.assertEqual(told, [f"{one}#1,S,CUT,L,N,0", f"{one}#2,S,SLIDE IN,L,N,0", f"{two}#1,S,CUT,L,N,0"])
        self.assertEqual(self.put("Effect@Effect@Rename@Rename", MASK["M/E-1"] + ",1,LOCKED"), [])
        self.assertEqual(self.put("Effect@Effect@Delete@Delete", MASK["both"] + ",1,99"), [])
        self.put("Effect@Effect@Lock@Lock", MASK["M/E-1"] + ",1,1,false")
        self.assertEqual(self.put("Effect@Effect@Delete@Delete", MASK["both"] + ",1,99"), [f"{one}#1,E,,U,N,0"])

    def test_copy_keeps_the_source_and_move_and_swap_do_not(self):
        lists = EFFECTS + "M/E-1", EFFECTS + "M/E-2"
        self.follow(*lists)

        def names():
            rows = [self.rows(path) for path in lists]
            self.other.sync()
            return [{number: row[2] for number, row in one.items() if row[1] == "S"} for one in rows]
        first = {1: "OPENING", 2: "SLIDE IN", 3: "LOGO LOOP", 99: "BLACK"}
        self.assertEqual(names(), [first, {1: "OPENING"}])
        for number, frames in ((1, 45), (2, 15)):
            self.put("Effect@Effect@Attribute@Effect Dissolve", f"{MASK['M/E-1']},{number},{number},true,{frames}")
        self.put("Effect@Effect@Copy/Merge@Copy", f"{MASK['M/E-1']},1,3,{MASK['M/E-2']},2,false")
        copied = {1: "OPENING", 2: "OPENING", 3: "SLIDE IN", 4: "LOGO LOOP"}
        self.assertEqual(names(), [first, copied])
        self.put("Effect@Effect@Copy/Merge@Copy", f"{MASK['M/E-2']},2,3,{MASK['M/E-2']},3,true")
        self.assertEqual(names()[1], copied)  # without the names; source and target overlap
        self.assertEqual([self.rows(lists[1])[n][4:] for n in (2, 3, 4)], [["D", "45"], ["D", "45"], ["D", "15"]])
        self.put("Effect@Effect@Move@Move", f"{MASK['M/E-1']},1,3,{MASK['M/E-2']},10,false")
        self.assertEqual(names(), [{3: "LOGO LOOP", 99: "BLACK"}, {**copied, 10: "OPENING", 11: "SLIDE IN"}])
        self.put("Effect@Effect@Swap@Swap", f"{MASK['M/E-1']},1,2,{MASK['M/E-2']},10,false")
        self.assertEqual(names(), [{1: "OPENING", 2: "SLIDE IN", **first}, copied])
        self.put("Effect@Effect@Copy/Merge@Copy", "M/E-1,1,1,M/E-2,20,false")  # a region by its name
        self.assertEqual(names()[1], {**copied, 20: "OPENING"})

    def test_a_copy_is_at_home_in_its_new_region(self):
        self.puts((KEY_TYPE, "kept"), ("Snapshot@Snapshot@Store", "2,30,HERE"),
                  ("Snapshot@Snapshot@Copy", "2,30,30,4,31,false"), (KEY_TYPE, "new"))
        self.follow(KEY_TYPE, KEY_TYPE.replace("M/E-1", "M/E-2"))
        self.assertEqual(self.put("Snapshot@Snapshot@Recall", "4, 31"), [KEY_TYPE.replace("M/E-1", "M/E-2") + "#kept"])

    def test_every_attribute_is_kept_and_a_locked_register_keeps_its_own(self):
        attribute = "Snapshot@Snapshot@Attribute@"
        puts = ((attribute + "Xpt Hold", "A1U2"), (attribute + "Effect Dissolve", "true"), (attribute + "Duration", "40"),
                (attribute + "Auto Transition", "true"), (attribute + "GPI", "1"))
        self.puts(*((path, f"2,1,2,{value}") for path, value in puts))  # the second is locked
        self.put("Snapshot@Snapshot@Store", "2,1")
        rows = self.rows(SNAPSHOTS + "M/E-1@List")
        self.assertEqual(rows[1], ["1", "TWO SHOT", "S", "A1U2", "40", "40", "1"])
        self.assertEqual(rows[2], ["2", "WIDE", "L", "", "n", "n", "n"])
        self.put("Snapshot@Snapshot@UnLock", "2,1,2")
        self.puts(*((attribute + name, "2,1,2," + value) for name, value in (
            ("Xpt Hold", "false"), ("Effect Dissolve", "false"), ("Auto Transition", "false"), ("GPI", "null"))))
        self.assertEqual(self.rows(SNAPSHOTS + "M/E-1@List")[1], ["1", "TWO SHOT", "S", "", "n", "n", "n"])

    def test_what_another_panel_does_is_told_to_this_list_only(self):
        one, sub, master = SNAPSHOTS + "M/E-1@List", SNAPSHOTS + "M/E-1 Sub@List", MASTERS + "List"
        self.follow(one, sub, master, SNAPSHOTS + "M/E-2@List", EFFECTS + "M/E-1")
        empty = ["1,,E,,n,n,n", "3,,E,,n,n,n"]
        cases = (("store snapshot 3 M/E-1 FIRST NIGHT", [f"{one}#3,FIRST NIGHT,S,,n,n,n"]),
                 ("lock snapshot 1-3 M/E-1", [f"{one}#1,TWO SHOT,L,,n,n,n", f"{one}#3,FIRST NIGHT,L,,n,n,n"]),
                 ("delete snapshot 1-9 M/E-1", []), ("rename snapshot 3 M/E-1 LOCKED", []),
                 ("unlock snapshot 1-3 M/E-1", [f"{one}#1,TWO SHOT,S,,n,n,n", f"{one}#2,WIDE,S,,n,n,n",
                                                f"{one}#3,FIRST NIGHT,S,,n,n,n"]),
                 ("rename snapshot 3 M/E-1 LATE", [f"{one}#3,LATE,S,,n,n,n"]),
                 ("copy snapshot 3 M/E-1 8 M/E-1 Sub", [f"{sub}#8,LATE,S,,n,n,n"]),
                 ("copy snapshot 1 M/E-1 8 M/E-1 Sub noname", []),
                 ("swap snapshot 8 M/E-1Sub 2 M/E-1", [f"{sub}#8,WIDE,S,,n,n,n", f"{one}#2,LATE,S,,n,n,n"]),
                 ("delete snapshot 1-3 M/E-1", [f"{one}#{empty[0]}", f"{one}#2,,E,,n,n,n", f"{one}#{empty[1]}"]),
                 ("rename mastersnapshot 1 DAWN", [f"{master}#1,DAWN,S,U,1,1,,,,1" + "," * 24]))
        for command, told in cases:
            self.done("panel " + command)
            self.assertEqual(self.other.sync(), told, command)

    def test_a_master_is_edited_without_its_regions(self):
        self.follow(MASTERS + "List", MASTERS + "Current Register", KEY_TYPE)
        self.assertEqual(self.put(MASTERS + "Edit@Recall", "1"), [MASTERS + "Current Register#1"])
        self.assertEqual(self.put(MASTERS + "Edit@Store", "3,,7,,,,12"),
                         [f"{MASTERS}List#3,MSS3,S,U,,7,,,,12" + "," * 24, MASTERS + "Current Register#3"])
        self.assertEqual(self.put(MASTERS + "Edit@Store", "2,5"), [])  # locked
        self.assertEqual(self.put(MASTERS + "Recall", "1"), [KEY_TYPE + "#Linear", MASTERS + "Current Register#1"])

    def test_rubbish_changes_nothing(self):
        self.do("list effect", "list snapshot", "list mastersnapshot")
        self.wait_for_log("console: list mastersnapshot")
        for path in ("Effect@Effect@Delete@Delete", "Effect@Effect@Copy/Merge@Copy", "Effect@Effect@Rename@Rename",
                     "Snapshot@Snapshot@Lock", "Effect@Effect@Swap@Swap", "Effect@Effect@Copy/Merge@Merge",
                     "Snapshot@Master Snapshot@Delete", "Snapshot@Snapshot@Attribute@Duration",
                     "Shotbox@Register@Attribute@Link@M/E-1", MASTERS + "Edit@Store"):
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
        self.settle(frames)
        self.do("store effect M/E-1 50 MY SHOW", "effect M/E-1 2", "run M/E-1")
        self.settle(frames)
        self.follow(EFFECTS + "M/E-1")
        self.text.send("put Effect@Effect@Recall@Recall#" + MASK["both"] + ", 50")
        effect = frames.effect()
        self.assertEqual((effect.number, effect.name, effect.delay, effect.loop), (50, b"MY SHOW\0", 10, (1, 3, 2)))
        self.assertEqual(effect.keys, [(25, False), (25, True), (25, False), (0, False)])
        at = frames.position()
        self.assertEqual((at.time, at.run, at.loops_left), (0, 0, 2))
        self.put("Effect@Effect@Lock@Lock", MASK["M/E-1"] + ",50,50,true")  # the frame follows its register
        self.assertTrue(frames.effect().locked)
        self.settle(frames)
        self.put("Effect@Effect@Recall@Recall", MASK["M/E-1"] + ", 60")  # empty
        self.assertEqual(self.settle(frames), [])

    def test_a_snapshot_brings_every_value_of_its_bank_back_and_no_other(self):
        other = "M/E-1 SUB@Key1@Type@Key Type"
        for path in (KEY_TYPE, "M/E-1@Key2@Position", "M/E-2@Key1@Type@Key Type", other):
            self.text.send(f"put {path}#old")
        self.text.sync()
        self.done("store snapshot M/E-1 20 KEPT")
        self.follow(KEY_TYPE, "M/E-1@Key2@Position", "M/E-1@Late", "M/E-2@Key1@Type@Key Type", other)
        self.puts(*((path, "new") for path in (KEY_TYPE, "M/E-1@Late", "M/E-2@Key1@Type@Key Type", other)))
        told = self.put("Snapshot@Snapshot@Recall", "2, 20")
        self.assertEqual(sorted(told), sorted([f"{KEY_TYPE}#old", "M/E-1@Late#"]))
        self.assertEqual(self.put("Snapshot@Snapshot@Recall", "2, 21"), [])

    def test_what_is_under_hold_stays(self):
        xpt = "@Status@Xpt Assign@"
        cases = (("M/E-1", "2", "A1D2", [f"M/E-1{xpt}A", "M/E-1@Key1@Free", "M/E-1@Key1@Type@Signal Select@Fill", f"M/E-1{xpt}DME2"],
                  [f"M/E-1{xpt}B", "M/E-1@Key2@Free", "M/E-1@Key12@Free", f"M/E-1{xpt}UTIL1"]),
                 ("P/P", "1", "3U1", ["PGM/PST@DSK3@Free", f"PGM/PST{xpt}UTIL1"], ["PGM/PST@DSK1@Free", f"PGM/PST{xpt}A"]),
                 ("User2", "80", "8000000000000001", [f"User2{xpt}Bus32", f"User2{xpt}Bus33"], [f"User2{xpt}Bus1"]),
                 ("RTR", "400000", "0081", [f"Router{xpt}Dest2@Level1", f"Router{xpt}Dest2@Level8"], [f"Router{xpt}Dest1@Level1"]),
                 ("DME1", "4000", "FvFkBvBk", [f"DME{xpt}Fv"], ["DME@Free"]))
        for region, mask, hold, held, free in cases:
            self.puts(*((path, "old") for path in held + free), ("Snapshot@Snapshot@Store", mask + ",60"),
                      ("Snapshot@Snapshot@Attribute@Xpt Hold", f"{mask},60,60,{hold}"),
                      *((path, "new") for path in held + free))
            self.follow(*held, *free)
            self.assertEqual(sorted(self.put("Snapshot@Snapshot@Recall", mask + ", 60")),
                             sorted(path + "#old" for path in free), region)

    def test_a_key_brings_back_what_its_recall_mode_says(self):
        key = "M/E-1@Key4@"
        parts = key + "Edge@Free", key + "Transition@Free", key + "Type@Signal Select@Fill"
        self.puts(*((path, "old") for path in parts), ("Snapshot@Key Snapshot@Store", "8,1"))
        self.follow(*parts)
        for mode in ("true,true,true", "true,false,false", "false,true,false", "false,false,true"):
            self.puts(("Snapshot@Key Snapshot@Attribute@Recall Mode", "M/E-1@Key4," + mode),
                      *((path, "new") for path in parts))
            self.assertEqual(sorted(self.put("Snapshot@Key Snapshot@Recall", "8, 1")),
                             [path + "#old" for path, back in zip(parts, mode.split(",")) if back == "true"], mode)

    def test_a_dissolve_moves_numbers_in_the_temporary_duration(self):
        number, word = "M/E-1@Wipe@Main Pattern@Pattern", "M/E-1@Word"
        self.puts((number, "100"), (word, "old"), ("Snapshot@Snapshot@Store", "2,70"),
                  ("Snapshot@Snapshot@Attribute@Effect Dissolve", "2,70,70,true"),
                  ("Snapshot@Snapshot@Attribute@Duration", "2,70,70,900"),
                  ("Snapshot@Snapshot@Attribute@M/E-1@Temporary Duration", "6"), (number, "10"), (word, "new"))
        self.follow(number, word)
        self.text.send("put Snapshot@Snapshot@Recall#2, 70")
        told = self.other.until(f"{number}#100")
        self.assertEqual(told.pop(0), f"{word}#old")
        way = [int(line.partition("#")[2]) for line in told]
        self.assertGreater(len(way), 2)
        self.assertEqual(way, sorted(set(way)))
        self.put(number, "10")
        self.text.send("put Snapshot@Snapshot@Recall#2, 70", f"put {number}#200")  # who turns it meanwhile has it
        self.other.until(f"{number}#200")
        time.sleep(0.3)
        self.assertEqual(self.other.sync(), [])

    def test_an_auto_transition_follows_the_recall(self):
        preset = "M/E-1@Status@Xpt Assign@B"
        self.puts((preset, "CAM7"), ("Snapshot@Snapshot@Store", "2,71"),
                  ("Snapshot@Snapshot@Attribute@Auto Transition", "2,71,71,true"),
                  ("Snapshot@Snapshot@Attribute@Duration", "2,71,71,3"), (preset, "CAM2"))
        self.follow(preset, "M/E-1@Status@Xpt Assign@A", "M/E-1@Misc@Transition@Auto Trans")
        self.text.send("put Snapshot@Snapshot@Recall#2, 71")
        self.assertEqual(self.other.until("M/E-1@Misc@Transition@Auto Trans#false"),
                         [f"{preset}#CAM7", "M/E-1@Misc@Transition@Auto Trans#true", "M/E-1@Status@Xpt Assign@A#CAM7",
                          f"{preset}#CAM1", "M/E-1@Misc@Transition@Auto Trans#false"])

    def test_a_recall_ends_the_transition_that_is_under_way(self):
        on = "M/E-1@Key1@Status@Key ON"
        self.puts((on, "true"), ("Snapshot@Snapshot@Store", "2,72"))
        self.follow(on)
        self.puts(("M/E-1@Key1@Transition@ON Transition Rate", "6"), ("M/E-1@Key1@Transition@Auto Trans", "true"),
                  ("Snapshot@Snapshot@Recall", "2, 72"))
        time.sleep(0.4)
        self.assertEqual(self.other.sync(), [])

    def test_a_shotbox_recalls_an_effect_or_a_snapshot_for_each_region(self):
        shots, link = "Shotbox@Register@Store/Recall@List", "Shotbox@Register@Attribute@Link@"
        self.follow(shots)
        for region, what, told in (("M/E-1", "5,2", "2"), ("M/E-2", "5,S1", "2,S1"), ("M/E-1", "5,", ",S1"), ("M/E-1", "5,S1", "S1,S1"),
                                   ("RTR", "5,1", None), ("M/E-1", "5,S100", None), ("M/E-1", "2,1", None)):
            row = f"5,SHOT5,U,,{told}"
            lines = self.put(link + region, what)
            self.assertEqual([line.rstrip(",") for line in lines], [f"{shots}#{row}"] if told else [], what)
        edit = "Shotbox@Register@Store/Recall@Edit@Store"
        self.assertEqual(self.put(edit, "5,,S999"), [])
        self.assertEqual([line.rstrip(",") for line in self.put(edit, "6,,S3,12")], [f"{shots}#6,SHOT6,U,,,S3,12"])
        self.put(link + "P/P", "5,2")
        self.put("Shotbox@Register@Attribute@Auto Run", "5,5,true")
        self.follow(KEY_TYPE, "M/E-2@Free", EFFECTS + "P/P")
        self.put("M/E-2@Free", "new")
        told = self.put("Shotbox@Register@Store/Recall@Recall", "5")
        self.assertEqual(told, [f"{KEY_TYPE}#Linear", "M/E-2@Free#"])
        self.do("timelines")
        self.assertRegex(self.output(), "P/P selected #2 CREDITS KF [0-9]+/8 frame [0-9]+/175 running")


if __name__ == "__main__":
    sim_test.main(__file__)
