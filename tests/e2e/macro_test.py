"""Macros at the desk: a register made offline, stored, opened again."""
import time
import unittest

from desk import grid
from deskcase import DeskCase

EDIT = "tmp/MacroEdit/MacroEdit.PMR"
REGISTERS, VALUES = (300, 111), (150, 299)  # the first rows of the lists, pitch 22
DOWN = (273, 400)  # of the values: one further
OFFLINE, ONLINE = grid(51), grid(52)
GROUPS = [grid(n) for n in (49, 50, 19, 20, 21, 22, 35, 36, 37, 38)]
BEFORE, AFTER, DELETE, STORE = (grid(n) for n in (51, 52, 53, 54))
DISCARD = (432, 275)
YES = (341, 414)
DEVICE, REGION, TAPE = "Device,Dev1", "Region,M/E-1", "Device,Dev2"
EVERY_EVENT = (  # in the order in which the editor offers them
    "MEXpt,ME,M/E-1,MEBus,BkgdA,Xpt,5,VideoKey,Video,Attribute,Normal", "AuxXpt,AuxBus,Aux3,Xpt,7,VideoKey,Key",
    "MEAutoTransition,ME,P/P,Time,1,Direction,Normal", "MECut,ME,M/E-2",
    "KeyAutoTransition,ME,M/E-1,Key,Key2,Time,1,Direction,Reverse", "KeyCut,ME,M/E-1,Key,Key1,Status,ToOn",
    "Play,Device,Dev1,Mode,Variable,Speed,-50", "Cue,Device,Dev1,Timecode,01:00:00:00,Preroll,25", "Stop," + TAPE,
    "DiskFileLoad,Device,Dev1,FileName,NEWS,Timecode,00:00:10:00", "Snapshot," + REGION + ",Register,1",
    "KeySnapshot,ME,M/E-1,Key,Key1,Register,1", "WipeSnapshot,ME,M/E-1,Register,1", "DMEWipeSnapshot,ME,M/E-1,Register,1",
    "TimelineRecall," + REGION + ",Register,1", "TimelineRun," + REGION, "TimelineRewind," + REGION, "TimelineFF," + REGION,
    "ShotBox,Register,1", "Pause,Time,2", "StartTc," + DEVICE, "MasterSnapshot,Register,1", "MasterTimelineRecall,Register,1",
    "RouterXpt,DestinationButton,3,Source,9,Level,All", "PatternLimit,ME,M/E-1,Status,On,Limit,40",
    "TransitionType,ME,M/E-1,TransitionType,Wipe,Time,20",
    "KeyTransitionType,ME,M/E-1,Key,Key1,KeyTransitionType,Wipe", "NextTransition,ME,M/E-1,BKGD,On,Key8,Off", "FadeToBlack,Time,1",
    "TimelineDirectionNormal," + REGION, "TimelineDirectionReverse," + REGION, "TimelineNormalReverseOn," + REGION,
    "TimelineNormalReverseOff," + REGION, "UtilityButton,UtilityModule,Module1,Button,4", "Rewind," + DEVICE, "FF," + DEVICE,
    "FMLoop,Device,FM1,FMLoopMode,On", "MenuMacroRun,Register,98",
    "KeyBusUtilityButton,ME,M/E-1,Bank,Bank2,Button,6,UtilityStatus,On", "ClipRecall,Device,FM1,ClipType,Still,FileName,LOGO",
    "DeviceRecord," + DEVICE, "AuxMix,AuxMixBus,AuxMix1,AuxMixStatus,On", "XptPadPage,MEAuxBank,Aux,Page,Page2")


class Macros(DeskCase):
    """The tests build on one another, in the order of their names."""

    settles = 1

    def content(self):
        try:
            with open(self.path(EDIT), "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def value(self, *rows):
        self.touch(*[(VALUES[0], VALUES[1] + 22 * row) for row in rows])

    def open_editor(self, register):
        self.open(5412)
        self.touch((REGISTERS[0], REGISTERS[1] + 22 * (register - 1)))
        self.desk.wire()
        self.touch(OFFLINE)
        self.desk.wait_wire("put TopMenu@SubMenuSite#false", 15)
        time.sleep(0.3)

    def test_1_a_macro_made_offline_is_in_its_register(self):
        made = b"PNL 0001PNL_0009.PMRMCRO9\nEvent?,MECut,ME?,M/E-2\nEvent?,Stop,Device?,Dev1\nContinue?,Stop,Device?,Dev2\n"
        desk = self.desk
        self.open_editor(9)
        self.assertEqual(self.content(), b"PNL 0001PNL_0009.PMRM9\n")
        self.touch(GROUPS[1])
        self.value(3, 1)  # MECut, M/E-2
        for value in (0, 1):
            self.touch(AFTER, DOWN, DOWN, DOWN)
            self.value(5, value)  # Stop, Dev1 or Dev2
        self.touch(GROUPS[0])
        self.value(1)  # Continue
        desk.wire()
        self.touch(STORE)
        self.wait_until(lambda: any("SCP Dir Put" in line for line in desk.wire()))
        self.assertEqual(self.content(), made)
        time.sleep(2.0)
        self.open(5412)  # nothing is asked: it is stored
        self.assertIsNone(self.content())
        self.open_editor(9)
        self.assertEqual(self.content(), made)

    def test_2_a_change_is_not_lost_by_leaving(self):
        self.touch(DELETE)
        self.desk.console("page 1111")
        time.sleep(1.0)
        self.assertIsNotNone(self.content())
        self.desk.wire()
        self.touch(DISCARD)
        self.desk.wait_wire("put TopMenu@SubMenuSite#false", 5)
        self.assertIsNone(self.content())

    def test_3_attachments_go_one_by_one_and_all_at_once(self):
        desk = self.desk
        entry = "9,2,1,0,9,0,0,0,0,0,0,0,0"  # M/E-1 Trans
        self.open(5421)
        before = desk.part(100, 122, 650, 270)
        desk.console("attach " + entry)
        time.sleep(0.5)
        self.assertNotEqual(desk.part(100, 122, 650, 270), before)
        desk.touch(300, 111 + 22 * 4)  # in the panels' order behind M/E-1 XPT
        desk.wire()
        self.touch(grid(53), YES, puts="put Macro@Attachment@Delete#" + entry)
        time.sleep(0.5)
        # In pair mode the crosspoint buttons lose theirs.
        self.touch(grid(52), YES, puts="put Macro@Attachment@Xpt Attachment Mode#Pair Mode")
        self.touch(grid(54), YES, puts="put Macro@Attachment@All Clear#true")
        time.sleep(0.5)
        self.assertEqual(len(set(desk.part(110, 125, 120, 138))), 1)  # nothing in the first row

    def test_4_a_register_is_edited_in_place(self):
        desk, edit = self.desk, "put Macro@Reg@On Line Edit@"
        self.open(5412)
        self.touch(REGISTERS)  # register 1
        desk.wire()
        self.touch(ONLINE, puts=edit + "Current Work Register Event Data#1")
        for event, key, command in (("Stop,Device,Dev1", 52, "Insert#1,1"), ("MECut,ME,M/E-2", 53, "Modify#2,0,1"),
                                    ("", 54, "Delete#2,0,1")):
            if event:
                desk.console("macro operate " + event)
                time.sleep(0.4)
            desk.wire()
            self.touch(grid(key), puts=edit + command)
            time.sleep(0.5)

    def test_5_the_online_editor_goes_on_when_the_server_is_back(self):
        desk, edit = self.desk, "put Macro@Reg@On Line Edit@"
        desk.wire()
        desk.console("drop text 1500")
        time.sleep(0.5)
        desk.touch(*grid(54))  # the list is empty: nothing is deleted unseen
        lines = desk.wait_wire(edit + "Current Work Register Event Data#1", 10)
        self.assertFalse([line for line in lines if line.startswith(edit + "Delete")])
        desk.console("restart")
        desk.wait_wire(edit + "Current Work Register Event Data#1", 25)
        time.sleep(2)
        desk.console("macro operate Stop,Device,Dev1")
        time.sleep(0.4)
        self.touch(grid(52), puts=edit + "Insert#1,1")

    def test_6_every_kind_of_event_goes_through_the_offline_editor_and_runs(self):
        desk = self.desk
        desk.console("macro record 8 ALL")
        for event in EVERY_EVENT:
            desk.console("macro operate " + event)
        desk.console("macro end")
        self.open_editor(8)
        before = [line for line in self.content().decode().splitlines() if not line.startswith("Event?,Pause")]
        self.assertEqual([line.replace("?", "") for line in before[1:]], ["Event," + e for e in EVERY_EVENT if "Pause" not in e])
        self.touch(DELETE, BEFORE)  # the first one; it comes again with another source
        for row in (0, 0, 0):  # the symbol, M/E-1, BkgdA
            self.value(row)
        self.touch(DELETE)
        desk.console("ng next 1 Disk")
        self.touch(STORE)
        self.wait_until(lambda: "NG(Disk)" in desk.sim_text())
        time.sleep(1)
        self.assertIn(b"PMRALL", self.content())  # nothing is lost
        self.touch((400, 413), (600, 450))  # its window
        desk.wire()
        before_store = len(desk.sim_text())
        self.touch(STORE)
        self.wait_until(lambda: any("SCP Dir Put" in line for line in desk.wire()))
        self.wait_until(lambda: "STATUS:Standby" in desk.sim_text()[before_store:])  # not that of the store that failed
        stored = [line for line in self.content().decode().splitlines() if not line.startswith("Event?,Pause")]
        self.assertEqual(stored, [before[0]] + before[2:])
        desk.console("attach 8,6,1,0,8,0,0,0,0,0,0,0,0")
        desk.console("macro press 8 6 1")
        self.wait_until(lambda: "macro 8 has ended" in desk.sim_text(), timeout=30)
        ran = [line.split("macro 8: ")[1] for line in desk.sim_text().splitlines() if "macro 8: " in line]
        self.assertEqual([e for e in ran if not e.startswith("Pause")], [e for e in EVERY_EVENT[1:] if "Pause" not in e])
        self.assertEqual(desk.value("Device@Dev1@Command"), "DeviceRecord")
        self.assertEqual(desk.value("Panel@Xpt Pad@Aux@Page"), "Page2")


if __name__ == "__main__":
    unittest.main(verbosity=1)
