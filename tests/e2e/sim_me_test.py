"""The simulator's mix/effect banks: what the switcher does by itself when a panel changes a key, a wipe, a transition.

usage: sim_me_test.py BUILD_DIR [TEST...]
"""

import time

import sim_test
from sim_store_test import StoreTest

KEY = "M/E-4@Key6@"
STATUS = "M/E-1@Key1@Processed Key@DME Status"
FREE = ["Free"] * 8
WIPES = "Snapshot@Wipe Snapshot@"


class MeTest(StoreTest):
    values = """\
M/E-1@Wipe@Main Pattern@Pattern\tnum\t1\t304\t0
M/E-1@Wipe@Edge@Soft@Soft\tnum\t0\t100\t2
Misc@User@Store\taction
Misc@User@Recall\taction
Copy/Swap@Key@Undo\taction
"""


class Rules(MeTest):
    def test_a_relative_put_counts_hundredths_and_stops_at_the_limit(self):
        path = "M/E-2 SUB@DME Wipe@Modify@Position@Position@H@1"
        cases = (("8.00", "0.08"), ("-76", "-0.68"), ("11536.00", "114.68"), ("11536.00", "200.00"), ("", "200.00"))
        for steps, told in cases:
            self.text.send(f"put {path}#diff{steps}")
            self.assertEqual(self.text.line(), f"{path}#{told}", steps)

    def test_a_priority_list_stays_an_order_of_each_half(self):
        path, order = "M/E-3@Misc@Key Priority@Key Priority", "1,2,3,4,1,2,3,4"
        self.text.send(f"read {path}")
        self.assertEqual(self.text.line(), f"{path}#{order}")
        for wanted in ("1,1,3,4,1,2,3,4", "1,1,2,2,3,3,4,4", "2,1,3,4", "1,2,3,4,1,2,3,4,", "4,3,2,1,5,6,7,8"):
            self.text.send(f"put {path}#{wanted}")
            self.assertEqual(self.text.line(), f"{path}#{order}", wanted)
        self.text.send(f"put {path}#2,1,4,3,4,3,2,1")
        self.assertEqual(self.text.line(), f"{path}#2,1,4,3,4,3,2,1")

    def test_one_change_brings_the_others_in_its_own_key_alone(self):
        crop, wipe = KEY + "Resizer@Border/Crop@Crop@", "M/E-1 SUB@Wipe@Direction@"
        effect, matte = KEY + "Resizer@Enhanced Effect@", KEY + "Edge@Matte Adjust@"
        place = "M/E-2 SUB@DME Wipe@Modify@Position@"
        cases = [  # set before; the put; what others hear
            ((KEY + "Edge@Edge#Border", KEY + "Edge@Key Drop#true"), (KEY + "Edge@Edge", "Normal"),
             [KEY + "Edge@Key Drop#false"]),
            ((), (crop + "V", "12.50"), [crop + "Top#12.50", crop + "Bottom#-12.50"]),
            ((), (KEY + "Resizer@Border/Crop@4:3 Crop", "true"), [crop + "Left#-75.00", crop + "Right#75.00"]),
            ((effect + "Mosaic#true",), (effect + "Defocus", "true"), [effect + "Mosaic#false"]),
            ((wipe + "Normal#true", wipe + "Reverse#false"), (wipe + "Reverse", "true"), [wipe + "Normal#false"]),
            ((wipe + "Normal#false", wipe + "Reverse#true"), (wipe + "Reverse", "false"), [wipe + "Reverse#true"]),
            ((matte + "Color 1@Hue#10.00", matte + "Color 2@Hue#20.00"), (matte + "Swap", "true"),
             [matte + "Color 2@Hue#10.00", matte + "Color 1@Hue#20.00"]),
            ((KEY + "Resizer@H#5.00",), (KEY + "Resizer@Center", "true"), [KEY + "Resizer@H#"]),
            (("Color Bkgd@Bkgd 1@Color 1@Hue#10.00", "Color Bkgd@Bkgd 2@Color 1@Hue#20.00"),
             ("Color Bkgd@Copy 2 to 1", "true"), ["Color Bkgd@Bkgd 1@Color 1@Hue#20.00"]),
            (("CCR@CCR2@White/Black@White@Red#7.50",), ("CCR@CCR2@White/Black@Unity", "true"),
             ["CCR@CCR2@White/Black@White@Red#"]),
            ((), ("Global Effect@Ch1-Ch4@Combine@Ch2", "true"), ["Global Effect@Ch1-Ch4@Combine@Ch1#true"]),
            ((), ("Global Effect@Ch5-Ch8@Priority@Ch7", "1"), ["Global Effect@Ch5-Ch8@Priority@Ch5#3"]),
            ((), ("Global Effect@Ch3-Ch4@Priority@Ch2", "1"), ["Global Effect@Ch1-Ch2@Priority@Ch2#2"]),
            ((), (KEY + "Resizer@Mask@Box@4:3 Box", "true"),
             [KEY + "Resizer@Mask@Box@" + edge for edge in ("Left#-100.00", "Right#100.00", "Top#100.00", "Bottom#-100.00")]),
            ((KEY + "Resizer@Process@Key Mode#Field",), (KEY + "Resizer@Process@Unity", "true"),
             [KEY + "Resizer@Process@Key Mode#Video"]),
            ((place + "Position@H@2#5.00", place + "Position@H@1#5.00"), (place + "Center@2", "true"),
             [place + "Position@H@2#0.00"]),
            ((), ("DME@Transform@3D Trans@Axis@Y", "1.50"), ["DME@Status@3D Param@Local Target@Axis@Y#1.50"]),
            ((KEY + "Type@Key Source#Split",), (KEY + "Type@Signal Select@Source", "CAM9"),
             [KEY + "Status@Source Name#CAM9"])]
        for before, (path, value), told in cases:
            self.do(*(f"set {line}" for line in before), "get Set")
            self.wait_for_log("console: get Set")
            for line in [path, *(line.partition("#")[0] for line in [*before, *told])]:
                self.follow(line)
                self.follow(line.replace("Key6", "Key5").replace(" SUB", ""))
            heard = [line for line in self.put(path, value) if not line.startswith(path + "#" + value)]
            self.assertEqual(heard, told, path)

    def test_auto_chroma_can_be_undone(self):
        hue = KEY + "Type@Key Type@Chroma@Hue"
        self.follow(hue)
        self.put(hue, "200")
        self.assertEqual(self.put(KEY + "Type@Auto Chroma", "true"), [f"{hue}#117.50"])
        self.assertEqual(self.put(KEY + "Type@Chroma Adjust@Undo", "true"), [f"{hue}#200"])

    def test_a_stored_key_comes_back_with_the_signal_that_cuts_it(self):
        kind, clip, fill = KEY + "Type@Key Type", KEY + "Type@Key Type@Linear@Clip", KEY + "Type@Signal Select@Fill"
        late, other = KEY + "Type@Key Invert", "M/E-4@Key5@Type@Key Type"
        self.follow(kind, clip, other)
        self.put(fill, "CAM5")
        self.put(kind, "Linear")
        self.put(clip, "33.00")
        self.put(KEY + "Type@Store Key", "true")
        self.put(fill, "CAM6")
        self.assertEqual(self.put(kind, "Luminance"), [kind + "#Luminance"], "nothing was stored for this one")
        self.put(clip, "44.00")
        self.put(late, "true")
        self.follow(late)
        heard = self.put(fill, "CAM5")
        self.assertEqual(sorted(set(heard) - {fill + "#CAM5"}),
                         sorted([kind + "#Linear", clip + "#33.00", late + "#"]))
        self.put(clip, "50.00")
        self.assertNotIn(clip + "#33.00", self.put(fill, "CAM7"))

    def test_a_user_gets_back_what_he_has_stored(self):
        click, user = "Misc@Panel@Key Click", "Misc@User@User"
        gpi = "Misc@Port@Enable GPI@DCU"
        self.follow(click, gpi)
        self.put(click, "true")
        self.put("Misc@User@Store", "true")
        self.assertEqual(self.put(click, "false"), [f"{click}#false"])
        self.put(user, "2")
        self.assertEqual(self.put("Misc@User@Recall", "true"), [], "nothing is stored for this one")
        self.put(user, "1")
        self.assertEqual(self.put("Misc@User@Recall", "true"), [f"{click}#true"])
        self.assertEqual(self.put("Misc@Port@Disable All", "true"), [f"{gpi}#false"])


class Copies(MeTest):
    def test_a_copy_takes_the_parts_and_undo_brings_back_what_was_there(self):
        one, other = "M/E-1@Key1@", "PGM/PST@DSK2@"
        kind, edge, late, on = "Type@Key Type", "Edge@Edge", "Edge@Key Drop", "Status@Key ON"
        undo = "Copy/Swap@Key@Undo Enable"
        self.do(f"set {one}{kind}#Linear", f"set {one}{edge}#Border", f"set {one}{on}#true", f"set {other}{kind}#Chroma",
                f"set {other}{edge}#Shadow", f"set {other}{on}#false")
        self.follow(*(key + tail for key in (one, other) for tail in (kind, edge, late, on)), undo)
        copy = "Copy/Swap@Key@Copy"
        self.assertEqual(self.put(copy, f"{one[:-1]},{other[:-1]},Edge"), [f"{other}{edge}#Border", f"{undo}#true"])
        self.assertEqual(self.put(copy, f"{one[:-1]},{other[:-1]},All"), [f"{other}{kind}#Linear"])
        self.assertEqual(self.put("Copy/Swap@Key@Undo", "true"), [f"{other}{kind}#Chroma", f"{undo}#false"])
        self.assertEqual(self.put("Copy/Swap@Key@Undo", "true"), [], "there is nothing left")
        self.assertEqual(sorted(self.put("Copy/Swap@Key@Swap", f"{one[:-1]},{other[:-1]},Type")),
                         sorted([f"{one}{kind}#Chroma", f"{other}{kind}#Linear", f"{undo}#true"]))
        for wrong in ("", "M/E-1@Key1", "M/E-1@Key1,M/E-1@Key1,All", "M/E-1@Key1,M/E-2@Key1,Nothing",
                      "M/E-1@Key1,M/E-2@Key1", "M/E-1@Key1,Info@Key1,All", ",M/E-1@Key1,All"):
            self.assertEqual(self.put(copy, wrong), [], wrong)

    def test_a_bank_is_copied_with_its_keys_under_the_names_that_they_have_there(self):
        kind, wipe, bus = "Key3@Type@Key Type", "Wipe@Main Pattern@Pattern", "Status@Xpt Assign@A"
        self.do(f"set M/E-2@{kind}#Color Vector", f"set M/E-2@{wipe}#99", f"set M/E-2@{bus}#CAM7")
        there = ["PGM/PST@DSK3@Type@Key Type", f"PGM/PST@{wipe}", f"PGM/PST@{bus}"]
        self.follow(*there)
        self.assertEqual(self.put("Copy/Swap@M/E@Copy", "M/E-2,PGM/PST,Keys,Xpt"),
                         [f"{there[0]}#Color Vector", f"{there[2]}#CAM7"])
        self.assertEqual(self.put("Copy/Swap@M/E@Copy", "M/E-2,PGM/PST,All"), [f"{there[1]}#99"])

    def test_another_channel_takes_what_the_panels_see_of_theirs_and_gives_it_back(self):
        turn = "DME@Transform@3D Trans@Rotation@X"
        self.do(f"set {turn}#45.00")
        self.follow(turn)
        self.assertEqual(self.put("Copy/Swap@DME Channel@Copy", "1,3,All"), [])
        self.do(f"set {turn}#10.00")
        self.other.until(f"{turn}#10.00")
        self.assertEqual(self.put("Copy/Swap@DME Effect@Copy", "3,1,Edge"), [])
        self.assertEqual(self.put("Copy/Swap@DME Effect@Swap", "3,1,Transform"), [f"{turn}#45.00"])
        self.assertEqual(self.put("Copy/Swap@DME Channel@Copy", "3,1,All"), [f"{turn}#10.00"])


class Transitions(MeTest):
    def heard(self, last, *paths):
        """What the other panel hears up to that line, of these paths."""
        return [line for line in self.other.until(last, 3) if line.partition("#")[0] in paths]

    def test_a_key_is_on_from_the_first_frame_to_the_last(self):
        on, auto, position = KEY + "Status@Key ON", KEY + "Transition@Auto Trans", KEY + "Status@Transition Position"
        self.do(f"set {KEY}Transition@ON Transition Rate#6")
        self.follow(on, auto, position)
        for order in ([f"{on}#true", f"{auto}#true", f"{auto}#false"],
                      [f"{auto}#true", f"{on}#false", f"{auto}#false"]):
            start = time.monotonic()
            self.text.send(f"put {auto}#true")
            lines = self.other.until(f"{auto}#false", 3)
            self.assertGreater(time.monotonic() - start, 0.15)
            self.assertEqual([line for line in lines if not line.startswith(position)], order)
            course = [float(line.partition("#")[2]) for line in lines if line.startswith(position)]
            self.assertEqual(course[:-1], sorted(course[:-1]))
            self.assertGreater(len(course), 2)
            self.assertEqual(course[-1], 0)

    def test_a_cut_in_the_middle_of_a_transition_ends_it(self):
        on, auto = KEY + "Status@Key ON", KEY + "Transition@Auto Trans"
        self.do(f"set {KEY}Transition@ON Transition Rate#900")
        self.follow(on, auto)
        self.assertEqual(self.put(auto, "true"), [f"{on}#true", f"{auto}#true"])
        self.assertEqual(self.put(on, "false"), [f"{auto}#false", f"{on}#false"])
        self.do(f"set {KEY}Transition@ON Transition Type#Cut")
        self.text.send(f"put {auto}#true")
        self.other.until(f"{on}#true")

    def test_a_key_changes_under_a_stinger_at_its_cut(self):
        on, auto, position = KEY + "Status@Key ON", KEY + "Transition@Auto Trans", KEY + "Status@Transition Position"
        self.do(f"set {KEY}Transition@ON Transition Rate#20", f"set {KEY}Transition@ON Transition Type#Stinger",
                f"set {KEY}Transition@Stinger@Cut Point#10")
        self.follow(on, auto, position)
        self.text.send(f"put {auto}#true")
        before = self.other.until(f"{on}#true", 3)
        after = self.other.until(f"{auto}#false", 3)
        self.assertGreaterEqual(float(before[-2].partition("#")[2]), 50)
        self.assertGreater(len(before), 4)
        self.assertGreater(len(after), 4)

    def test_a_bank_changes_its_background_and_the_keys_that_take_part(self):
        a, b = "PGM/PST@Status@Xpt Assign@A", "PGM/PST@Status@Xpt Assign@B"
        key, other = "PGM/PST@DSK2@Status@Key ON", "PGM/PST@DSK1@Status@Key ON"
        self.follow(a, b, key, other)
        self.do("put PGM/PST@Misc@Transition@Next Transition@Key2#true", "put PGM/PST@Misc@Transition@Cut#true")
        self.assertEqual(self.heard(f"{key}#true", a, b, other), [])
        self.assertEqual(self.other.lines(2), [f"{a}#CAM2", f"{b}#CAM1"])

    def test_a_clip_plays_along_with_the_transition_that_it_is(self):
        clip = "M/E-2@Misc@Clip Transition@"
        self.follow(clip + "Player", clip + "Time Code")
        self.do(f"set {clip}Clip Duration#40", "put M/E-2@Misc@Transition@Clip#true",
                "put M/E-2@Misc@Transition@Auto Trans#true")
        heard = self.heard(f"{clip}Time Code#00:00:01:10", clip + "Player", clip + "Time Code")
        self.assertIn(f"{clip}Player#Play", heard)
        self.assertGreater(len(heard), 10)

    def test_a_fade_to_black_takes_its_rate_unless_inhibited(self):
        ftb = "PGM/PST@Misc@Transition@FTB@"
        self.do(f"set {ftb}ON Rate#3", f"set {ftb}OFF Rate#3", f"set {ftb}Inhibit#true")
        self.follow(ftb + "FTB", ftb + "Position", ftb + "Busy")
        self.text.send(f"put {ftb}FTB#true")
        self.assertEqual(self.text.line(), f"{ftb}FTB#false")
        self.do(f"set {ftb}Inhibit#false", f"put {ftb}FTB#true")
        self.assertEqual(self.heard(f"{ftb}Busy#false", ftb + "FTB"), [f"{ftb}FTB#true"])
        self.do(f"put {ftb}FTB#false")
        self.assertEqual(self.heard(f"{ftb}FTB#false", ftb + "Busy"), [f"{ftb}Busy#true"])


class ChannelsAndRegisters(MeTest):
    def test_a_channel_has_one_key_until_another_overrides(self):
        mine, his = KEY + "Processed Key@", "M/E-2@Key1@Processed Key@"
        self.follow(STATUS, mine + "DME Select@DME3")
        taken = ",".join(FREE[:2] + ["M/E-4@Key6"] + FREE[3:])
        self.assertEqual(self.put(mine + "DME Select@DME3", "true"),
                         [f"{mine}DME Select@DME3#true", f"{STATUS}#{taken}"])
        self.text.send(f"put {his}DME Select@DME3#true")
        self.assertEqual(self.text.line(), f"{his}DME Select@DME3#false")
        self.text.send(f"put {his}Override@DME3#true")
        self.assertEqual(self.text.line(), f"{his}Override@DME3#false")
        self.assertEqual(self.other.lines(2), [f"{mine}DME Select@DME3#false",
                                               f"{STATUS}#{taken.replace('M/E-4@Key6', 'M/E-2@Key1')}"])

    def test_the_wipes_are_told_whose_channel_it_is_and_how_wide(self):
        path = "Engineering Setup@System@Format@DME Aspect"
        self.text.send(f"read {path}")
        rows = self.text.sync()
        self.assertIn(f"{path}#3,4:3,1,8", rows)  # a wipe of M/E-1
        self.follow(path)
        self.put(KEY + "Processed Key@DME Select@DME3", "true")
        self.text.send("put M/E-1@Misc@Transition@DME Wipe#true", f"read {STATUS}")
        self.text.until(f"{STATUS}#M/E-1@DME Wipe,M/E-1@DME Wipe,M/E-4@Key6" + ",Free" * 5)

    def test_a_wipe_of_a_sub_side_comes_back_with_its_pattern(self):
        pattern, soft = "M/E-1 SUB@Wipe@Main Pattern@Pattern", "M/E-1 SUB@Wipe@Edge@Soft@Soft"
        path = WIPES + "M/E-1 Sub@List"
        self.follow(path, pattern, soft)
        self.put(pattern, "209")
        self.put(soft, "40.00")
        self.assertEqual(self.put(WIPES + "Store", "1000000,7"), [f"{path}#7,WIPE7,S,209"])
        self.put(pattern, "12")
        self.put(soft, "0.00")
        self.assertEqual(sorted(self.put(WIPES + "Recall", "1000000,7")), [f"{soft}#40.00", f"{pattern}#209"])
        self.assertEqual(self.put(WIPES + "Delete", "1000000,7,7"), [f"{path}#7,,E"])
        self.assertEqual(self.put(WIPES + "Recall", "1000000,7"), [])


class Installation(MeTest):
    def test_the_console_gives_a_bank_four_keys_and_two_programs(self):
        split = "Engineering Setup@System@Install@Unit Config@M/E Split"
        config = "Engineering Setup@Switcher@Config@M/E Config@P/P"
        keys = "Engineering Setup@Switcher@Config@PGM Config@List"
        self.follow(split, config, keys)
        self.do("keys M/E-3 4", "multi P/P on", "4k on", "keys P/P 4", "multi M/E-9 on", "get Done")
        self.wait_for_log("console: get Done")
        self.assertEqual(self.other.sync(), [f"{split}#1,1,4,1,1", f"{keys}#P/P,1,0F", f"{keys}#P/P,2,F0",
                                             f"{config}#Multi Program 2"])
        self.assertEqual(self.output().count("usage:"), 2)

    def test_a_contact_does_what_its_input_page_says(self):
        page, dme = "Engineering Setup@Switcher@Device Interface@GPI Input@", "Engineering Setup@DME@Device Interface@"
        key, hold = "PGM/PST@DSK3@Status@Key ON", "M/E-2@Misc@Snapshot@Xpt Hold@Bkgd B"
        self.follow(key, hold)
        for port, plain, region in ((1, "5,0,0,3", ""), (2, "4,2,0,1", ""), (3, "", "8,M/E-1,2,0")):
            self.do(f"put {page}Trigger Type@{port}#Rising Edge", f"put {page}Action Type@{port}@1#{plain}" if plain else
                    f"put {page}Action Type Region@{port}@1#{region}")
        self.do("gpi SWR 1", "gpi SWR 2", "gpi SWR 3", "gpi SWR 4", "gpi SWR 9",
                f"put {dme}DME1 GPI Input@GPI Enable#false", "gpi DME1 1", "get Done")
        self.wait_for_log("console: get Done")
        self.assertEqual(self.other.sync(), [f"{key}#true", f"{hold}#true"])
        self.wait_for_log("SWR GPI input 3 high: Effect Recall")
        self.wait_for_log("DME1 GPI input 1 high: not used")
        self.assertEqual(self.output().count("usage:"), 1)

    def test_a_contact_acts_at_the_edge_or_level_that_is_set(self):
        page = "Engineering Setup@Switcher@Device Interface@GPI Input@"
        key = "PGM/PST@DSK3@Status@Key ON"
        self.follow(key)
        self.do(f"put {page}Action Type@1@1#5,0,0,3", f"put {page}Action Type@2@1#6,0,0,3")
        for trigger, turns in (("Falling Edge", 2), ("Any Edge", 2), ("Level", 0)):
            self.do(f"put {page}Trigger Type@1#{trigger}", f"put {page}Trigger Type@2#{trigger}",
                    "gpi SWR 1 high", "gpi SWR 1 high", "gpi SWR 1 low", "gpi SWR 2", f"get {trigger}")
            self.wait_for_log(f"console: get {trigger}")
            self.assertEqual(self.other.sync(), [f"{key}#true", f"{key}#false"][:turns], trigger)
        self.do(f"put {page}H/L Set@Function@1#Menu Lock", f"put {page}H/L Set@Low@1#On",
                f"put {page}H/L Set@High@1#Off", f"put {page}H/L Set@Function@2#FC Input/Output",
                f"put {page}H/L Set@FC Input/Output@2#FC3,Output,Input", "gpi SWR 1", "gpi SWR 2 high")
        for line in ("1 high: Menu Lock Off", "1 low: Menu Lock On", "2 high: FC3 Output"):
            self.wait_for_log(f"SWR GPI input {line}")


if __name__ == "__main__":
    sim_test.main(__file__)
