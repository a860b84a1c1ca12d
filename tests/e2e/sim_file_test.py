"""The simulator as a file server: requests on drives and units, the hub's tables, the frame memory.

usage: sim_file_test.py BUILD_DIR [TEST...]
"""

import os
import re
import struct
import zlib

import sim_test
from sim_test import HUB, SimTest

LOCAL = "/mnt/data/user/root/"
STICK = "/mnt/usb/usb1/"
SWR1 = "SWR001D001:"
WORK = "/vorn/tmp/file/"


class FileTest(SimTest):
    values = "M/E-1@Key1@Clip\tnum\t0\t100\t0\nDME@Edge@Width\tnum\t0\t100\t0\n"

    def setUp(self):
        super().setUp()
        self.label = 0

    def start(self, *arguments):
        self.root = os.path.join(self.folder.name, "desk")
        super().start("--root", self.root, "--lay", *arguments)
        self.panel = self.client()

    def path(self, path):
        return self.root + path

    def lay(self, path, content=b"some bytes"):
        os.makedirs(os.path.dirname(self.path(path)), exist_ok=True)
        with open(self.path(path), "wb") as out:
            out.write(content)

    def content(self, path):
        with open(self.path(path), "rb") as file:
            return file.read()

    def request(self, command, *arguments):
        """The work number that the request was acknowledged with."""
        self.label += 1
        line = f"put File@{command}#L{self.label}," + ",".join(str(a) for a in arguments)
        self.panel.send(line)
        head = f"File@{command}#L{self.label},"
        for _ in range(20000):
            answer = self.panel.line()
            if answer is None or answer.startswith(head):
                break
        self.assertIsNotNone(answer, line)
        return int(answer[len(head):])

    def statuses(self, command, ack, seconds=5):
        """All statuses of a job, the last its result."""
        head = f"File@{command}@Status#{ack},"
        got = []
        while not got or not re.match("OK|NG|Cancel", got[-1]):
            line = self.panel.line(seconds)
            self.assertIsNotNone(line, f"{head} after {got[-3:]}")
            if line.startswith(head):
                got.append(line[len(head):])
        return got

    def run_job(self, command, *arguments):
        return self.statuses(command, self.request(command, *arguments))

    def ok(self, command, *arguments):
        result = self.run_job(command, *arguments)
        self.assertEqual(result[-1], "OK", (command, arguments))
        return result[:-1]


class Drives(FileTest):
    def test_requests_change_the_real_folders(self):
        self.ok("Access@Mkdir", f"MYHOST:{LOCAL}NEWS")
        self.assertTrue(os.path.isdir(self.path(LOCAL + "NEWS")))
        self.lay(LOCAL + "NEWS/a.ME1_001.SKF", b"x" * 3_000_001)
        self.ok("Access@Copy", f"MYHOST:{LOCAL}NEWS/a.ME1_001.SKF", f"MYHOST:{STICK}NEWS/EFFECT/b.ME1_002.SKF")
        self.assertEqual(self.content(STICK + "NEWS/EFFECT/b.ME1_002.SKF"), b"x" * 3_000_001)
        self.ok("Access@Move", f"MYHOST:{STICK}NEWS/EFFECT/b.ME1_002.SKF", f"MYHOST:{STICK}NEWS/c.ME1_002.SKF")
        self.assertEqual(os.listdir(self.path(STICK + "NEWS/EFFECT")), [])
        self.ok("Access@Copydir", f"MYHOST:{STICK}NEWS", f"MYHOST:{LOCAL}COPY")
        self.assertEqual(len(self.content(LOCAL + "COPY/c.ME1_002.SKF")), 3_000_001)
        self.assertTrue(os.path.isdir(self.path(LOCAL + "COPY/EFFECT")))
        self.ok("Access@Remove", f"MYHOST:{LOCAL}COPY/c.ME1_002.SKF")
        self.ok("Access@Rmdir", f"MYHOST:{LOCAL}COPY")
        self.assertFalse(os.path.exists(self.path(LOCAL + "COPY")))
        for command, *arguments in (("Access@Remove", f"MYHOST:{LOCAL}none"), ("Access@Rmdir", f"MYHOST:{LOCAL}none"),
                                    ("Access@Copy", f"MYHOST:{LOCAL}none", f"MYHOST:{LOCAL}x"),
                                    ("Access@Copydir", f"MYHOST:{LOCAL}", f"MYHOST:{LOCAL}NEWS/in")):
            self.assertRegex(self.run_job(command, *arguments)[-1], "^NG", command)

    def test_lists_give_full_paths_and_dates(self):
        self.lay(LOCAL + "SYSTEM/EFFECT/SWR000D001/ME1/OPEN.ME1_001.SKF")
        self.lay(LOCAL + "SYSTEM/EFFECT/SWR000D001/top.txt")
        self.lay(LOCAL + "SYSTEM/a,b.ME1_001.SKF")  # would break its row
        base = LOCAL + "SYSTEM/EFFECT/SWR000D001"
        os.utime(self.path(base + "/ME1/OPEN.ME1_001.SKF"), (86400 * 365.25 * 40, 86400 * 365.25 * 40))
        rows = self.ok("Access@Find", f"MYHOST:{LOCAL}SYSTEM/", "*.*.*")
        self.assertEqual([row.split(",")[0] for row in rows], [base + "/ME1/OPEN.ME1_001.SKF"])
        self.assertRegex(rows[0].split(",")[1], r"^[A-Z][a-z]{2} [A-Z][a-z]{2} [ \d]\d \d\d:\d\d:\d\d \d{4}$")
        self.assertEqual([row.split(",")[0] for row in self.ok("Access@Find2", f"MYHOST:{base}", 0, "*.*")],
                         [base + "/top.txt"])
        self.assertEqual([row.split(",")[0] for row in self.ok("Access@ListDir", f"MYHOST:{base}")], [base + "/ME1"])
        self.assertRegex(self.run_job("Access@ListDir", f"MYHOST:{LOCAL}none")[-1], "^NG")

    def test_no_path_leads_out_of_the_folders(self):
        outside = os.path.join(self.folder.name, "outside")
        with open(outside, "w", encoding="ascii") as out:
            out.write("secret")
        os.symlink(self.folder.name, self.path(LOCAL + "SYSTEM/link"))
        self.lay(LOCAL + "SYSTEM/x")
        good = f"MYHOST:{LOCAL}SYSTEM/x"
        for bad in (f"MYHOST:{LOCAL}../../../../outside", "MYHOST:/etc/passwd", "MYHOST:mnt/data/x", "MYHOST:", "x",
                    "SWR001D009:/x", f"MYHOST:{LOCAL}SYSTEM/link/outside", f"MYHOST:{LOCAL}SYSTEM/" + "p" * 300,
                    f"{SWR1}/../../outside", f"{SWR1}../x", f"MYHOST:{LOCAL}SYSTEM/a\tb", "OTHER:/mnt/data/x"):
            for command, *arguments in (("Access@Copy", bad, good + "2"), ("Access@Copy", good, bad),
                                        ("Access@Move", good, bad), ("Access@Remove", bad), ("Access@Rmdir", bad)):
                if "\t" in bad:
                    continue
                self.assertRegex(self.run_job(command, *arguments)[-1], "^NG", (command, bad))
        for head in ("/mnt/data", "/mnt/usb", "/mnt/usb/usb1", "/mnt/usb/usb1/"):
            self.assertRegex(self.run_job("Access@Rmdir", "MYHOST:" + head)[-1], "^NG", head)
        with open(outside, encoding="ascii") as file:
            self.assertEqual(file.read(), "secret")
        self.assertEqual(self.content(LOCAL + "SYSTEM/x"), b"some bytes")

    def test_jobs_overlap_and_the_rest_goes_on(self):
        self.do("slow 10")
        self.lay(LOCAL + "big", b"x" * 4_000_000)
        slow = self.request("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{LOCAL}big2")
        quick = self.request("Access@Mkdir", f"MYHOST:{LOCAL}D")
        self.panel.send("put A@B#1")
        lines = []
        while len(lines) < 3:
            lines.append(self.panel.line())
        self.assertEqual(lines, ["A@B#1", f"File@Access@Mkdir@Status#{quick},OK", f"File@Access@Copy@Status#{slow},OK"])

    def test_cancel_ends_a_job_and_leaves_no_half_file(self):
        self.do("slow 50")
        self.lay(LOCAL + "big", b"x" * 4_000_000)
        ack = self.request("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{LOCAL}D/big2")
        self.panel.send(f"put File@Transfer@Cancel#Lx,{ack}", "put File@Transfer@Cancel#Lx,999999",
                        "put File@Transfer@Cancel#", f"put File@Access@Remove#Lx,MYHOST:{LOCAL}none")
        self.assertEqual(self.statuses("Access@Copy", ack), ["Cancel"])
        self.assertFalse(os.path.exists(self.path(LOCAL + "D/big2")))
        self.assertEqual(self.panel.sync(), [])  # who has no label hears nothing

    def test_stick_and_room(self):
        self.lay(STICK + "a")
        self.do("stick out")
        self.wait_for_log("console: stick out")
        for command, *arguments in (("Access@Copy", f"MYHOST:{STICK}a", f"MYHOST:{LOCAL}a"),
                                    ("Access@Copy", f"MYHOST:{LOCAL}a", f"MYHOST:{STICK}b"),
                                    ("Access@Mkdir", f"MYHOST:{STICK}b"), ("Access@USB Storage Reload",)):
            self.assertRegex(self.run_job(command, *arguments)[-1], "^NG", command)
        self.assertFalse(os.path.exists(self.path(STICK)))
        self.do("stick in")
        self.wait_for_log("console: stick in")
        self.ok("Access@Copy", f"MYHOST:{STICK}a", f"MYHOST:{LOCAL}a")
        self.assertEqual(len(self.ok("Access@USB Storage Reload")[0].split(",")), 6)
        self.do("full 1")
        self.wait_for_log("console: full 1")
        self.lay(LOCAL + "big", b"x" * 1_500_000)
        self.assertEqual(self.run_job("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{LOCAL}big2")[-1],
                         "NG(No Space Left)")
        self.assertEqual(sorted(os.listdir(self.path(LOCAL))), ["SYSTEM", "a", "big"])

    def test_stick_pulled_in_the_middle_of_a_copy(self):
        self.lay(LOCAL + "big", b"x" * 60_000_000)
        ack = self.request("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{STICK}big")
        while not any(name.endswith(".part") for name in os.listdir(self.path(STICK))):
            pass
        os.rename(self.path(STICK[:-1]), self.path("/mnt/usb/.out"))
        self.assertEqual(self.statuses("Access@Copy", ack), ["NG(No Device)"])

    def test_failures_on_request(self):
        self.do("ng next 2 Busy.")
        self.wait_for_log("console: ng next")
        for result in ("NG(Busy.)", "NG(Busy.)", "OK"):
            self.assertEqual(self.run_job("Access@Mkdir", f"MYHOST:{LOCAL}D")[-1], result)


if __name__ == "__main__":
    sim_test.main(__file__)
