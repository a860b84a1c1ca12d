"""The simulator as the hub of the clip stores: tables, requests with their results, faults on request."""

import os

import sim_test
from sim_file_test import FileTest
from sim_test import HUB

STORE = "/var/units/SWR1/vorn/FM/1/"
FILES, FOLDERS, INFO = "CS1.ClipStoreFile", "CS1.ClipStoreFolder", "CS1.ClipStoreInfo"


class ClipTest(FileTest):
    def setUp(self):
        super().setUp()
        self.hub = self.client(HUB)
        for table in (INFO, FOLDERS, FILES):
            self.hub.send(f"Listen#{table}")
            self.hub.until(f"Ready#{table}")
        self.do("hub slow 0")

    def execute(self, table, request):
        """All lines up to the last result, which is returned first."""
        self.hub.send(f"Execute#{table}:{request}")
        lines = []
        for line in iter(lambda: self.hub.line(5), None):
            lines.append(line)
            if line.startswith("Result#") and (result := int(line.rsplit(":", 1)[1], 16)) >= 0x7F:
                return result, lines
        self.fail(f"{request} after {lines[-3:]}")

    def wait_for(self, head, client=None):
        while not (line := (client or self.hub).line(5) or self.fail(f"no {head}")).startswith(head):
            pass
        return line

    def rows(self, table):
        self.hub.send(f"InitRead#{table}", "Read#CS1.ClipStoreInfo:CAPACITY:")
        head, rows = f"Insert#{table}:root/", []
        while not (line := self.hub.line(5)).startswith("Notify#CS1.ClipStoreInfo:CAPACITY::"):
            rows.append(line[len(head):])
        self.capacity = [int(x, 16 if i == 4 else 10) for i, x in enumerate(line.rsplit(":", 1)[1].split(","))]
        return dict(row.split(":", 1) for row in rows)

    def files(self, path):
        folder, name = os.path.split(self.path(STORE + path))
        return {file[len(name):]: os.path.getsize(os.path.join(folder, file)) for file in os.listdir(folder)
                if file.startswith(name)}


class Tables(ClipTest):
    def test_rows_files_and_capacity_also_of_an_import(self):
        files, folders = self.rows(FILES), self.rows(FOLDERS)
        self.assertIn("NEWS/SPORT/GOALS/FIRST", folders)
        self.assertRegex(files["NEWS/OPENING.SFH"], r"^100, 0, 0, 3, \d{4}-\d\d-\d\d \d\d:\d\d:\d\d, 1, 1$")
        total, free, memory, left, valid = self.capacity
        self.assertEqual((free, left, valid), (total - sum(int(r.split(",")[0]) for r in files.values()), memory, 127))
        clip, still = self.files("BREAK.SFH"), self.files("STATION.SFH")
        self.assertEqual(len(clip), 76)
        self.assertEqual((clip["#000074.THM"], still[".THM"]), (6966, 21222))
        self.do("clip make NEW/ONE 3")
        self.hub.until("Insert#CS1.ClipStoreFolder:root/NEW:1")
        self.wait_for("Insert#CS1.ClipStoreFile:root/NEW/ONE.SFH:3, ")
        self.wait_for("Notify#CS1.ClipStoreInfo:CAPACITY::")
        self.assertIn("NEW/ONE.SFH", self.rows(FILES))


class Requests(ClipTest):
    def test_what_each_request_does(self):
        steps = [
            ("Register root/BREAK.SFH", "Notify#CS1.ClipStoreFile:root/BREAK.SFH:status:3"),
            ("UnRegister /BREAK.SFH", "Notify#CS1.ClipStoreFile:root/BREAK.SFH:status:1"),
            ("Copy BREAK.SFH NEWS/a b.SFH", "Insert#CS1.ClipStoreFile:root/NEWS/a b.SFH:75, 0"),
            ("Move NEWS/a b.SFH LOGOS/c d.SFH", "Delete#CS1.ClipStoreFile:root/NEWS/a b.SFH"),
            ("Couple BREAK.SFH LOGOS/c d.SFH", "Notify#CS1.ClipStoreFile:root/BREAK.SFH:pairfile:1"),
            ("Separate BREAK.SFH", "Insert#CS1.ClipStoreFile:root/BREAK_K.SFH:75, 0"),
            ("Trim BREAK.SFH 10 19", "Result#CS1.ClipStoreFile:Trim root/BREAK.SFH 10 19 10:7F"),
            ("Delete BREAK_K.SFH", "Delete#CS1.ClipStoreFile:root/BREAK_K.SFH"),
            ("Move NEWS/SPORT LOGOS/S", "Insert#CS1.ClipStoreFile:root/LOGOS/S/GOALS/FIRST/SLOW.SFH:30"),
        ]
        for request, wanted in steps:
            result, lines = self.execute(FILES, request)
            self.assertEqual(result, 0x7F, request)
            self.assertTrue(any(line.startswith(wanted) for line in lines), (request, lines))
            percents = [int(line[-2:], 16) for line in lines if line.startswith("Result#")]
            self.assertEqual(percents, sorted(percents))
            self.assertGreater(len(percents), 2)
        self.assertEqual(sorted(self.files("BREAK.SFH")), sorted([""] + [f"#{i:06}.THM" for i in range(10)]))
        self.assertEqual(self.execute(FOLDERS, "MakeFolder LOGOS/NEW")[0], 0x7F)
        self.assertEqual(self.execute(FOLDERS, "DeleteFolder LOGOS/NEW")[0], 0x7F)
        self.assertNotIn("NEWS/SPORT", self.rows(FOLDERS))

    def test_what_cannot_be_says_why_and_tables_come_back(self):
        for table, request, wanted in (
                (FILES, "Register NONE.SFH", 0x81), (FILES, "Copy BREAK.SFH NONE/x.SFH", 0x80),
                (FILES, "Copy BREAK.SFH ../x.SFH", 0x80), (FILES, "Copy BREAK.SFH " + "x" * 33 + ".SFH", 0x80),
                (FILES, "Trim BREAK.SFH 10 75", 0x80), (FILES, "Move NEWS NEWS/SPORT/N", 0x80),
                (FOLDERS, "MakeFolder NEWS", 0x82), (FOLDERS, "MakeFolder NEWS/SPORT/GOALS/FIRST/FIVE", 0x80),
                (FOLDERS, "DeleteFolder NEWS", 0x80)):
            self.assertEqual(self.execute(table, request)[0], wanted, request)
        self.do("clip full")
        self.assertIn(",0,0,7f", self.wait_for("Notify#CS1.ClipStoreInfo:CAPACITY::"))
        self.assertEqual(self.execute(FILES, "Register BREAK.SFH")[0], 133)
        self.do("hub refuse", "clip room")
        self.wait_for("Notify#CS1.ClipStoreInfo:CAPACITY::")
        self.assertEqual(self.execute(FILES, "Register BREAK.SFH")[0], 0x80)
        self.do("hub lost", "clip room")
        self.wait_for("Notify#CS1.ClipStoreInfo:CAPACITY::")
        self.hub.send(f"Execute#{FILES}:Delete BREAK.SFH")
        result, lines = self.execute(FILES, "Register STATION.SFH")
        self.assertEqual([line for line in lines if "Delete" in line and not line.endswith(("20", "40"))], [])
        self.assertEqual(result, 0x7F)
        for line in ("Execute#", "Execute#CS1.ClipStoreFile", "Execute#CS1.ClipStoreFile:Copy", "Execute#CS9.ClipStoreFile:x y",
                     "InitRead#CS1.", "Read#CS1.ClipStoreInfo:X", f"Execute#{FILES}:MakeFolder x"):
            self.hub.send(line)
        self.assertIn("BREAK.SFH", self.rows(FILES))
        self.do("hub ready off")
        self.hub.until(f"Disconnect#{FILES}")
        self.do("hub ready on")
        self.hub.until(f"Ready#{FILES}")
        self.assertIn("BREAK.SFH", self.rows(FILES))


class Outputs(ClipTest):
    HEAD = "Frame Mem 2@Clip/Still@"

    def put(self, *lines):
        self.panel.send(*("put " + self.HEAD + line for line in lines))

    def frames(self, output, count):
        """State and frame of the next tallies of an output."""
        head = f"{self.HEAD}Play@{output}#"
        return [tuple(map(int, self.wait_for(head, self.panel)[len(head):].split(",")[:2])) for _ in range(count)]

    def test_a_clip_plays_in_every_mode(self):
        self.panel.send(f"add {self.HEAD}Output Status@FM3", f"add {self.HEAD}Play@FM3", f"add {self.HEAD}Output Status@FM4")
        self.put("Recall@FM3#1,0,1,0,/NEWS/OPENING.SFH")
        for output in ("FM3", "FM4"):
            self.panel.until(f"{self.HEAD}Output Status@{output}#2,/NEWS/OPENING.SFH")
        self.panel.send(f"put  {self.HEAD}Play@Stop TC@FM3#0,4,3", f"put  {self.HEAD}Play@Start TC@FM3#0,4,1")
        self.put("Play@Jump Frame@FM3#0,0")
        self.panel.until(f"{self.HEAD}Play@FM3#0,1,1,3")
        self.put("Play@FM3#0,0,0,0")
        self.assertEqual(self.frames("FM3", 4), [(1, 1), (1, 2), (1, 3), (0, 3)])
        for mode, wanted in ((1, [1, 2, 3, 1, 2, 3]), (2, [1, 2, 3, 2, 1, 2])):
            self.put("Play@Jump Frame@FM3#0,0", f"Play@Play Mode@FM3#0,{mode}", "Play@FM3#0,0,0,0")
            frames = [frame for state, frame in self.frames("FM3", 9) if state == 1]
            self.assertIn(",".join(map(str, wanted)), ",".join(map(str, frames)))
            self.put("Play@FM3#0,1,0,0")
            while self.frames("FM3", 1)[0][0]:
                pass
        self.put("Recall@FM3#0,0,0,0,NONE.SFH", "Record@Through@FM3#0,1")
        self.panel.until(f"{self.HEAD}Output Status@FM3#1,")

    def test_a_snapshot_of_a_user_plays_its_clips(self):
        event, recall = "put Snapshot@Snapshot@Clip Event@User1@FM1@AutoPlay#1,", "put Snapshot@Snapshot@Recall#40, 1"
        self.panel.send(f"add {self.HEAD}Output Status@FM1", f"add {self.HEAD}Output Status@FM2", f"add {self.HEAD}Play@FM1")
        self.panel.sync()
        self.panel.send(event + "OFF", recall)
        self.assertEqual([line for line in self.panel.sync() if "@FM" in line and self.HEAD in line], [])
        self.panel.send(event + "ON", recall)
        heard = [line for line in self.panel.sync() if self.HEAD in line]
        self.assertEqual(heard[0], f"{self.HEAD}Output Status@FM1#2,/BREAK.SFH")  # the second has no auto play
        self.assertEqual(heard[-1], f"{self.HEAD}Play@FM1#1,0,0,74")
        self.assertEqual(self.frames("FM1", 2), [(1, 1), (1, 2)])

    def test_a_recording_becomes_a_clip(self):
        self.panel.send(f"add {self.HEAD}Record@PROC1", f"add {self.HEAD}Output Status@FM2")
        self.put("Record@Freeze/Rec Name@FM2#0,LOGOS/take1.SFH")
        self.panel.send(f"put  {self.HEAD}Record@FM2#1,0,5,1")
        self.panel.until(f"{self.HEAD}Record@PROC1#1,0,5,2")
        self.panel.until(f"{self.HEAD}Output Status@FM2#2,/LOGOS/take1.SFH")
        self.assertEqual(self.rows(FILES)["LOGOS/take1.SFH"].split(",")[0], "5")
        self.put("Record@FM99#1,0,5,1", "Recall@FM2#x")
        self.panel.sync()


if __name__ == "__main__":
    sim_test.main(__file__)
