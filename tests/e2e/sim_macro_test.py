"""The simulator's macros: runs that change the desk, recordings, the editing in place, attachments."""

import re
import time

import sim_test
from sim_store_test import StoreTest

EDIT = "Macro@Reg@On Line Edit@"
DATA = EDIT + "Current Work Register Event Data"
MACROS = "Macro@Register@"


class MacroTest(StoreTest):
    def console(self, *commands):
        for command in commands:
            line = "console: " + re.escape(command) + "\n"
            with open(self.log, encoding="latin-1") as log:
                before = len(re.findall(line, log.read()))
            self.do(command)
            self.wait_for_log(f"(?s)({line}.*){{{before + 1}}}")

    def ask(self, path, value):
        """What the sender hears of a put."""
        self.text.send(f"put {path}#{value}")
        return self.text.sync()

    def records(self, number=1):
        lines = self.ask(DATA, number)
        self.assertEqual(lines[0], DATA + "#KILL")
        return [line.partition("#")[2] for line in lines[1:] if line]

    def value(self, tail):
        self.text.send(f"read {EDIT}{tail}")
        return self.text.sync()[0].partition("#")[2]


class Runs(MacroTest):
    def test_a_run_changes_the_desk_event_by_event_with_its_waits(self):
        key, bus, aux = "M/E-2@Key3@Status@Key ON", "M/E-2@Status@Xpt Assign@B", "Aux@Aux2@Status@Xpt Assign"
        self.console("macro record 20 DEMO", "macro operate KeyCut,ME,M/E-2,Key,Key3,Status,ToOn")
        self.console("macro operate Pause,Time,15", "macro operate MEXpt,ME,M/E-2,MEBus,BkgdB,Xpt,7",
                     "macro operate AuxXpt,AuxBus,Aux2,Xpt,4", "macro end")
        self.assertEqual(self.rows(MACROS + "List")[20][1:3], ["S", "DEMO"])
        for path, value in ((key, "false"), (bus, "CAM1"), (aux, "CAM1")):
            self.put(path, value)
        self.follow(key, bus, aux)
        begin = time.monotonic()
        self.console("recall macro 20")
        lines = self.other.until(aux + "#CAM4")
        self.assertEqual(lines, [key + "#true", bus + "#CAM7", aux + "#CAM4"])
        self.assertGreater(time.monotonic() - begin, 0.4)

    def test_timelines_run_in_the_direction_that_was_set_and_keys_are_told(self):
        run, reverse = "Key Frame@Timeline@Run", "Key Frame@Timeline@Reverse"
        utility, key, pad = "Panel@Utility Module@Module2@Pressed", "M/E-2@Key Bus Utility@Bank1@7", "Panel@Xpt Pad@Aux@Page"
        line = "macro operate Timeline%s,Region,M/E-1"
        self.follow(run, reverse, utility, key, pad)
        self.console(line.replace("%s", "Recall") + ",Register,1", line % "DirectionReverse", line % "Run")
        self.other.until(reverse + "#true")
        self.console(line % "NormalReverseOn", line % "Run", line % "Run")  # the first turns it round
        self.other.until(run + "#true")
        self.console(line % "NormalReverseOff", line % "DirectionReverse", line % "DirectionNormal", line % "Rewind")
        self.other.until(run + "#false")
        self.console(line % "Run")
        self.assertNotIn(reverse + "#true", self.other.until(run + "#true"))
        for event in ("UtilityButton,UtilityModule,Module2,Button,5", "XptPadPage,MEAuxBank,Aux,Page,Page3",
                      *2 * ("KeyBusUtilityButton,ME,M/E-2,Bank,Bank1,Button,7,UtilityStatus,Toggle",)):
            self.console("macro operate " + event)
        lines = self.other.until(key + "#false")
        for line in (utility + "#5", pad + "#Page3", key + "#true"):
            self.assertIn(line, lines)

    def test_a_run_that_is_stopped_does_no_more(self):
        mix = "M/E-1@Key1@Status@Key ON"
        self.follow(mix, EDIT + "Run")
        self.put(MACROS + "Recall@Recall", "0000100000000000,1")
        self.other.until(mix + "#true")  # a pause follows
        self.console("macro stop")
        self.other.until(EDIT + "Run#false")
        time.sleep(0.2)
        with open(self.log, encoding="latin-1") as log:
            self.assertNotIn("MECut", log.read())

    def test_what_a_panel_does_is_recorded_with_the_time_between(self):
        self.console("macro record 21")
        self.ask("P/P@Nothing", "1")  # no event
        self.ask("PGM/PST@Misc@Transition@Cut", "true")
        time.sleep(0.3)
        self.ask("Snapshot@Snapshot@Recall@Recall", "0000000000000002,1")
        self.console("macro end")
        self.ask(EDIT + "Recall", 21)
        cut, pause, snapshot = self.records()
        self.assertEqual(cut, "1,0,Event,MECut,ME,P/P")
        self.assertRegex(pause, "^2,0,Event,Pause,Time,[0-9]+$")
        self.assertGreater(int(pause.split(",")[-1]), 7)
        self.assertEqual(snapshot, "3,0,Event,Snapshot,Region,M/E-1,Register,1")


class OnlineEdit(MacroTest):
    STOP = "Stop,Device,Dev1"

    def open(self, number):
        self.ask(EDIT + "Recall", number)
        return self.ask(EDIT + "Macro Edit Mode", "true")

    def symbols(self):
        return [record.split(",")[3] for record in self.records()]

    def test_events_come_with_their_numbers_and_what_continues_them(self):
        self.open(3)
        heads = [",".join(record.split(",")[:4]) for record in self.records()]
        self.assertEqual(heads[:4], ["1,0,Event,TimelineRecall", "1,1,Continue,TimelineRecall",
                                     "2,0,Event,TimelineRun", "2,1,Continue,TimelineRun"])
        self.assertEqual((self.value("Remain Macro Event Cell"), self.value("Macro Event Edit Range")), ("1014", "1,7"))
        self.assertEqual(self.value("Current Macro Register Info"), "3,OPENING,U,7,1")
        self.assertEqual(self.records(6)[0].split(",")[0], "6")

    def test_insert_modify_and_delete_change_the_register(self):
        self.open(1)
        self.assertEqual(self.symbols(), ["Host alone", "Snapshot", "KeyCut", "Pause", "MECut"])
        self.ask(EDIT + "Insert", "1,1")  # nothing was done that could be inserted
        self.console("macro operate " + self.STOP)
        self.assertEqual(self.value("Insert Enable Flag"), "true")
        self.ask(EDIT + "Insert", "2,0")
        self.assertEqual(self.symbols(), ["Host alone", "Stop", "Snapshot", "KeyCut", "Pause", "MECut"])
        self.assertEqual(self.value("Insert Enable Flag"), "false")
        self.assertEqual(self.value("Current Work Register Modify Flag")[:3], "010")
        self.ask(EDIT + "Delete", "3,0,3")
        self.console("macro operate " + self.STOP)
        self.ask(EDIT + "Modify", "3,0,1")
        self.ask(EDIT + "Macro Insert Mode", "Auto Insert")
        self.console("macro operate MECut,ME,M/E-1")
        self.assertEqual(self.symbols(), ["Host alone", "Stop", "Stop", "MECut"])
        self.ask(EDIT + "Recall", 2)
        self.ask(EDIT + "Recall", 1)
        self.assertEqual(self.symbols(), ["Host alone", "Stop", "Stop", "MECut"])

    def test_a_line_goes_without_those_that_go_on_from_it(self):
        heads = lambda: [",".join(record.split(",")[:3]) for record in self.records()][:4]
        self.open(3)
        self.assertEqual(heads(), ["1,0,Event", "1,1,Continue", "2,0,Event", "2,1,Continue"])
        self.console("macro operate " + self.STOP)
        self.ask(EDIT + "Modify", "2,1,1")
        self.assertEqual(self.records()[3], "2,1,Continue," + self.STOP)
        self.ask(EDIT + "Delete", "1,1,2")  # to the event whose last line is left
        self.assertEqual(heads()[:3], ["1,0,Event", "2,0,Event", "3,0,Event"])
        self.assertEqual(self.records()[1], "2,0,Event," + self.STOP)
        self.assertEqual(self.value("Current Work Register Modify Flag")[:3], "010")

    def test_a_locked_register_is_shown_and_not_changed(self):
        self.assertIn(EDIT + "Macro Edit Mode#false", self.open(2))
        before = self.records()
        self.console("macro operate " + self.STOP)
        for order in (("Insert", "1,1"), ("Modify", "1,0,1"), ("Delete", "1,0,2")):
            self.ask(EDIT + order[0], order[1])
        self.assertEqual(self.records(), before)

    def test_numbers_that_no_event_has_change_nothing(self):
        self.open(1)
        before = self.records()
        for order in ("Delete", "Modify"):
            for what in ("0,0,1", "6,0,1", "3,0,0", "-1,0,9", "2,1,1", "2,-1,1", "1,0", "x", ""):
                self.ask(EDIT + order, what)
        self.assertEqual(self.records(), before)
        self.ask(EDIT + "Delete", "1,0,999")
        self.assertEqual(self.records(), [])
        self.console("macro operate " + self.STOP)
        self.ask(EDIT + "Insert", "0,0")
        self.assertEqual(self.symbols(), ["Stop"])


class Attachments(MacroTest):
    def test_a_button_fires_its_macro_until_it_is_taken_away(self):
        entry = "9,2,0,1,1,0,0,0,0,0,0,0,0"
        self.console("attach " + entry, "macro press 9 2 0")
        self.wait_for_log("macro 1: Snapshot")
        self.ask("Macro@Attachment@Delete", entry)
        self.console("macro stop", "macro press 9 2 0")
        time.sleep(0.1)
        with open(self.log, encoding="latin-1") as log:
            self.assertEqual(log.read().count("macro 1 runs"), 1)


if __name__ == "__main__":
    sim_test.main(__file__)
