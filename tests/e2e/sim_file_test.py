"""The simulator as a file server: requests on drives and units, the hub's tables, the frame memory."""
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


def bmp(width, height, depth=24, top_first=False):
    stride = (width * depth // 8 + 3) // 4 * 4
    rows = b"\x20\x40\x80\xff"[:depth // 8] * width
    body = rows.ljust(stride, b"\0") * height
    return b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + len(body), 0, 54, 40, width, -height if top_first else height, 1,
                               depth, 0, len(body), 0, 0, 0, 0) + body


class FileTest(SimTest):
    values = "M/E-1@Key1@Clip\tnum\t0\t100\t0\nDME@Edge@Width\tnum\t0\t100\t0\n"

    def setUp(self):
        super().setUp()
        self.label = 0
        self.panel_lines = []  # all that came while a job was waited for

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

    def done(self, *commands):
        """Of the console, and heard."""
        self.do(*commands)
        self.wait_for_log("console: " + commands[-1])

    def request(self, command, *arguments):
        """The work number that the request was acknowledged with."""
        self.label += 1
        line = f"put File@{command}#L{self.label}," + ",".join(str(a) for a in arguments)
        self.panel.send(line)
        head = f"File@{command}#L{self.label},"
        for _ in range(20000):
            answer = self.panel.line()
            self.panel_lines.append(answer or "")
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
            self.panel_lines.append(line or "")
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
        base = LOCAL + "SYSTEM/EFFECT/SWR000D001"
        for file in (base + "/ME1/OPEN.ME1_001.SKF", base + "/top.txt", LOCAL + "SYSTEM/a,b.ME1_001.SKF"):
            self.lay(file)  # a comma would break its row
        os.utime(self.path(base + "/ME1/OPEN.ME1_001.SKF"), (86400 * 365.25 * 40, 86400 * 365.25 * 40))
        rows = self.ok("Access@Find", f"MYHOST:{LOCAL}SYSTEM/", "*.*.*")
        self.assertEqual([row.split(",")[0] for row in rows], [base + "/ME1/OPEN.ME1_001.SKF"])
        self.assertRegex(rows[0].split(",")[1], r"^[A-Z][a-z]{2} [A-Z][a-z]{2} [ \d]\d \d\d:\d\d:\d\d \d{4}$")
        for command, found in ((("Access@Find2", f"MYHOST:{base}", 0, "*.*"), "/top.txt"),
                               (("Access@ListDir", f"MYHOST:{base}"), "/ME1")):
            self.assertEqual([row.split(",")[0] for row in self.ok(*command)], [base + found])
        self.assertRegex(self.run_job("Access@ListDir", f"MYHOST:{LOCAL}none")[-1], "^NG")

    def test_no_path_leads_out_of_the_folders(self):
        outside = os.path.join(self.folder.name, "outside")
        with open(outside, "w", encoding="ascii") as out:
            out.write("secret")
        self.lay(LOCAL + "SYSTEM/x")
        os.symlink(self.folder.name, self.path(LOCAL + "SYSTEM/link"))
        good = f"MYHOST:{LOCAL}SYSTEM/x"
        for bad in (f"MYHOST:{LOCAL}../../../../outside", "MYHOST:/etc/passwd", "MYHOST:mnt/data/x", "MYHOST:", "x",
                    "SWR001D009:/x", f"MYHOST:{LOCAL}SYSTEM/link/outside", f"MYHOST:{LOCAL}SYSTEM/" + "p" * 300,
                    f"{SWR1}/../../outside", f"{SWR1}../x", "OTHER:/mnt/data/x"):
            for command, *arguments in (("Access@Copy", bad, good + "2"), ("Access@Copy", good, bad),
                                        ("Access@Move", good, bad), ("Access@Remove", bad), ("Access@Rmdir", bad)):
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
        self.assertEqual(self.panel.lines(3), ["A@B#1", f"File@Access@Mkdir@Status#{quick},OK",
                                               f"File@Access@Copy@Status#{slow},OK"])

    def test_cancel_ends_a_job_and_leaves_no_half_file(self):
        self.do("slow 50")
        self.lay(LOCAL + "big", b"x" * 4_000_000)
        ack = self.request("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{LOCAL}D/big2")
        self.panel.send(f"put File@Transfer@Cancel#Lx,{ack}", "put File@Transfer@Cancel#Lx,999999",
                        "put File@Transfer@Cancel#", f"put File@Access@Remove#Lx,MYHOST:{LOCAL}none")
        self.assertEqual(self.statuses("Access@Copy", ack), ["Cancel"])
        self.assertFalse(os.path.exists(self.path(LOCAL + "D/big2")))
        self.done("slow 1")
        self.lay(LOCAL + "big", b"x" * 60_000_000)
        os.makedirs(self.path(LOCAL + "D"), exist_ok=True)
        ack = self.request("Access@Copy", f"MYHOST:{LOCAL}big", f"MYHOST:{LOCAL}D/big2")
        while not os.listdir(self.path(LOCAL + "D")):
            pass
        self.panel.send(f"put File@Access@Cancel#Lx,{ack}")
        self.assertEqual(self.statuses("Access@Copy", ack), ["Cancel"])
        self.assertEqual(os.listdir(self.path(LOCAL + "D")), [])
        self.assertEqual(self.panel.sync(), [])  # who has no label hears nothing

    def test_stick_and_room(self):
        self.lay(STICK + "a")
        self.done("stick out")
        for command, *arguments in (("Access@Copy", f"MYHOST:{STICK}a", f"MYHOST:{LOCAL}a"),
                                    ("Access@Copy", f"MYHOST:{LOCAL}a", f"MYHOST:{STICK}b"),
                                    ("Access@Mkdir", f"MYHOST:{STICK}b"), ("Access@USB Storage Reload",)):
            self.assertRegex(self.run_job(command, *arguments)[-1], "^NG", command)
        self.assertFalse(os.path.exists(self.path(STICK)))
        self.done("stick in")
        self.ok("Access@Copy", f"MYHOST:{STICK}a", f"MYHOST:{LOCAL}a")
        self.assertEqual(len(self.ok("Access@USB Storage Reload")[0].split(",")), 6)
        self.done("full 1")
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
        self.done("ng next 2 Busy.")
        for result in ("NG(Busy.)", "NG(Busy.)", "OK"):
            self.assertEqual(self.run_job("Access@Mkdir", f"MYHOST:{LOCAL}D")[-1], result)


class HubTest(FileTest):
    HOSTS = {"SWR1": SWR1, "PNL1": "PNL001D001:"}  # whose result list it is

    def setUp(self):
        super().setUp()
        self.hub = self.client(HUB)

    def listen(self, client, table):
        client.send(f"Listen#{table}")
        self.assertEqual(client.line(), f"Ready#{table}")

    def reserve(self, target, category, user="MENU1"):
        self.hub.send(f"Request#{target}.File:{category}.USER_ID:{user}")
        self.hub.until(f"Notify#{target}.File:{category}.USER_ID:{user}")

    def status(self, target, category, status):
        self.hub.send(f"Request#{target}.File:{category}.STATUS:{status}")
        self.hub.until(f"Notify#{target}.File:{category}.STATUS:{status}")

    def results(self, host, target, category):
        self.ok("Remote Access@SCP Dir Get", f"{host}{WORK}{category}/{target}/result.lst",
                f"MYHOST:/var/tmp/FILE/{category}.{target}.result.lst", category)
        text = self.content(f"/var/tmp/FILE/{category}.{target}.result.lst").decode()
        return dict(line.split(",", 1) for line in text.splitlines())

    def get(self, host, target, category, name, to):
        self.ok("Remote Access@SCP Dir Get", f"{host}{WORK}{category}/{target}/{name}", "MYHOST:" + to, category)

    def put(self, host, target, category, source, name):
        self.ok("Remote Access@SCP Dir Put", "MYHOST:" + source, f"{host}{WORK}{category}/{target}/{name}", category)

    def save(self, host, target, category, name, to):
        self.reserve(target, category)
        self.status(target, category, "Get")
        self.assertEqual(self.results(self.HOSTS[target], target, category).get(name), "OK")
        self.get(host, target, category, name, to)
        self.status(target, category, "Standby")

    def load(self, host, target, category, source, name):
        """What the unit says of the file."""
        self.reserve(target, category)
        self.put(host, target, category, source, name)
        self.status(target, category, "Put")
        results = self.results(self.HOSTS[target], target, category)
        self.status(target, category, "Standby")
        return results.get(name)


class Hub(HubTest):
    def test_a_category_has_one_user_at_a_time(self):
        other = self.client(HUB)
        for client in (self.hub, other):
            self.listen(client, "SWR1.File")
        self.hub.send("Request#SWR1.File:SETUP.USER_ID:MENU1")
        for client in (self.hub, other):
            self.assertEqual(client.line(), "Notify#SWR1.File:SETUP.USER_ID:MENU1")
        other.send("Request#SWR1.File:SETUP.USER_ID:MENU2", "Request#SWR1.File:SETUP.STATUS:Get",
                   "Request#SWR1.File:SETUP.STATUS:Standby", "Request#SWR1.File:EFFECT.USER_ID:MENU2")
        self.assertEqual(other.line(), "Notify#SWR1.File:SETUP.USER_ID:MENU1")  # as it is: held
        self.assertEqual(other.line(), "Notify#SWR1.File:EFFECT.USER_ID:MENU2")
        self.hub.send("Request#SWR1.File:SETUP.STATUS:Standby")
        self.hub.until("Notify#SWR1.File:SETUP.USER_ID:Non")
        self.assertEqual(other.lines(2), ["Notify#SWR1.File:SETUP.STATUS:Standby",
                                          "Notify#SWR1.File:SETUP.USER_ID:Non"])
        other.close()  # what it held is free again
        self.hub.until("Notify#SWR1.File:EFFECT.USER_ID:Non")

    def test_second_user_and_unit_on_request(self):
        self.listen(self.hub, "PNL1.File")
        self.do("user ANNA holds PNL1 SHOTBOX", "user ANNA leaves PNL1 SHOTBOX", "unit PNL1 off", "unit PNL1 on")
        self.assertEqual(self.hub.lines(4), [
            "Notify#PNL1.File:SHOTBOX.USER_ID:ANNA", "Notify#PNL1.File:SHOTBOX.USER_ID:Non", "Disconnect#PNL1.File",
            "Ready#PNL1.File"])

    def test_rubbish_is_heard_and_forgotten(self):
        for line in ("Request#SWR1.File", "Request#SWR1.File:SETUP", "Request#SWR1.File:SETUP.USER_ID:",
                     "Request#SWR1.File:NONE.USER_ID:A", "Request#SWR1.File:KEYMEM.WHAT:A", "Listen#", "Listen#SWR9.File",
                     "Request#PNL1.File:KEYMEM.USER_ID:A", "Request#SWR1.File:../x.USER_ID:A", "x" * 1000, "#", ":",
                     "Request#SWR1.File:SETUP.STATUS:Get", "Request#CS1.File:FRAMEMEM.USER_ID::"):
            self.hub.send(line)
        self.listen(self.hub, "SWR2.File")

    def test_a_restart_frees_all(self):
        self.listen(self.hub, "SWR1.File")
        self.reserve("SWR1", "SETUP")
        self.do("restart")
        self.hub.until("Disconnect#SWR1.File")
        self.hub.until("Ready#SWR1.File")
        self.reserve("SWR1", "SETUP", "MENU7")

    def test_wrong_result_lists_on_request(self):
        cases = {"lower": b"PNL_0001.PSB,ok\n", "trailing": b"PNL_0001.PSB,OK \n", "crlf": b"PNL_0001.PSB,OK\r\n",
                 "ng": b"PNL_0001.PSB,NG(Busy)\n", "nocomma": b"a line without its mark\nPNL_0001.PSB,OK\n",
                 "long": b"xxx,y\nPNL_0001.PSB,OK\n", "missing": None}
        for word, wanted in cases.items():
            self.do(f"results {word}")
            self.reserve("PNL1", "SHOTBOX")
            self.status("PNL1", "SHOTBOX", "Get")
            path = "/var/units/PNL1/vorn/tmp/file/SHOTBOX/PNL1/result.lst"
            if wanted is None:
                self.assertFalse(os.path.exists(self.path(path)))
            else:
                self.assertIn(wanted, self.content(path), word)
            self.status("PNL1", "SHOTBOX", "Standby")


class ClipStore(HubTest):
    def ask(self, request, answer):
        self.hub.send("Request#CS1.File:FRAMEMEM." + request)
        self.hub.until("Notify#CS1.File:FRAMEMEM." + answer)

    def test_pictures_go_in_and_out_under_their_paths(self):
        host, work, store = "SWR000D001:", WORK + "FRAMEMEM/CS1/", "/var/units/SWR1/vorn/FM/1/"
        self.lay(LOCAL + "pic.BMP", bmp(16, 8))
        self.ask("USER_ID::MENU1", "USER_ID::MENU1")
        self.ok("Remote Access@Make Dir", f"{host}{work}news", "FRAMEMEM")
        self.ok("Remote Access@SCP Dir Put", f"MYHOST:{LOCAL}pic.BMP", f"{host}{work}news/pic.BMP", "FRAMEMEM")
        self.ask("STATUS::Put,/news/pic,3,1", "STATUS::Put,/news/pic")
        result = "/var/units/SWR1" + work + "result.lst"
        self.assertEqual(self.content(result), b"/news/pic.BMP,OK\n")
        self.assertEqual(self.content(store + "news/pic.SFH")[64:66], b"BM")
        self.ask("STATUS::Standby", "USER_ID::Non")
        self.ask("USER_ID::MENU1", "USER_ID::MENU1")
        self.ask("STATUS::Get,/news/pic,TIF", "STATUS::Get,/news/pic")
        self.assertEqual(self.content(result), b"/news/pic.TIF,OK\n")
        self.ok("Remote Access@SCP Dir Get", f"{host}{work}news/pic.TIF", f"MYHOST:{LOCAL}pic.TIF", "FRAMEMEM")
        self.assertEqual(self.content(LOCAL + "pic.TIF")[:4], b"II*\0")
        for path in ("/none", "/../../x"):
            self.ask(f"STATUS::Get,{path}", f"STATUS::Get,{path}")
            self.assertRegex(self.content(result).decode(), f"^{path}.SFH,NG")


class Registers(HubTest):
    def test_a_saved_snapshot_brings_back_the_desk(self):
        clip, list_path = "M/E-1@Key1@Clip", "Snapshot@Snapshot@Attribute@M/E-1@List"
        drive = LOCAL + "SYSTEM/SNAPSHOT/SWR000D001/ME1/MINE.ME1_007.SSS"
        self.panel.send(f"put {clip}#42", f"add {list_path}", "put Snapshot@Snapshot@Store#2,7,MINE")
        self.panel.until(f"{list_path}#7,MINE,S,,n,n,n")
        self.save(SWR1, "SWR1", "SNAPSHOT", "ME1_007.SSS", drive)
        self.panel.send(f"put {clip}#3", "put Snapshot@Snapshot@Delete#2,7,7")
        self.panel.until(f"{list_path}#7,,E,,n,n,n")
        self.assertEqual(self.load(SWR1, "SWR1", "SNAPSHOT", drive, "ME1_007.SSS"), "OK")
        self.assertIn(f"{list_path}#7,MINE,S,,n,n,n", self.panel_lines)
        self.panel.send("put Snapshot@Snapshot@Recall#2,7", f"read {clip}")
        self.panel.until(f"{clip}#42")

    def test_a_file_goes_to_another_region_number_and_name(self):
        clip = "M/E-2@Key1@Clip"
        self.panel.send("put M/E-1@Key1@Clip#55", "put Snapshot@Snapshot@Store#2,7,MINE")
        self.panel.until("Snapshot@Snapshot@Store#2,7,MINE")
        self.save(SWR1, "SWR1", "SNAPSHOT", "MINE.ME1_007.SSS", LOCAL + "NEWNAME.ME1_007.SSS")
        self.panel.send("add Snapshot@Snapshot@Attribute@M/E-2@List")
        self.assertEqual(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "NEWNAME.ME1_007.SSS", "ME2_090.SSS"), "OK")
        self.assertIn("Snapshot@Snapshot@Attribute@M/E-2@List#90,NEWNAME,S,,n,n,n", self.panel_lines)
        self.panel.send("put Snapshot@Snapshot@Recall#4,90", f"read {clip}")
        self.panel.until(f"{clip}#55")

    def test_effects_of_a_channel_belong_to_the_effects_unit(self):
        path = "Effect@Effect@Attribute@List@DME1"
        self.reserve("SWR1", "EFFECT")
        self.status("SWR1", "EFFECT", "Get")
        results = self.results(SWR1, "SWR1", "EFFECT")
        self.assertEqual((results["CHF_0101.DKF"], results["ME1_001.SKF"], results["CH2_0001.DKF"]), ("OK",) * 3)
        self.get("DME001D001:", "SWR1", "EFFECT", "CHF_0101.DKF", LOCAL + "X.CHF_0101.DKF")
        self.status("SWR1", "EFFECT", "Standby")
        self.panel.send(f"add {path}")
        self.panel.sync()
        self.assertEqual(self.load("DME001D001:", "SWR1", "EFFECT", LOCAL + "X.CHF_0101.DKF", "CHF_0150.DKF"), "OK")
        lines = [line for line in self.panel_lines if line.startswith(path + "#150,S,X,U")]
        self.assertEqual(len(lines), 1, self.panel_lines[-5:])

    def test_setup_comes_back_and_nothing_else(self):
        mine, other = "DME@Edge@Width", "M/E-1@Key1@Clip"
        self.panel.send(f"put {mine}#11", f"put {other}#22")
        self.panel.until(f"{other}#22")
        self.save("DME001D001:", "SWR1", "INITSTAT", "CHF_0000.DIS", LOCAL + "A.CHF_0000.DIS")
        self.panel.send(f"put {mine}#1", f"put {other}#2")
        self.panel.until(f"{other}#2")
        body = self.content(LOCAL + "A.CHF_0000.DIS") + f"{other}#99\n".encode()
        self.lay(LOCAL + "A.CHF_0000.DIS", body)
        self.assertEqual(self.load("DME001D001:", "SWR1", "INITSTAT", LOCAL + "A.CHF_0000.DIS", "CHF_0000.DIS"), "OK")
        self.panel.send(f"read {mine}", f"read {other}")
        self.panel.until(f"{mine}#11")
        self.panel.until(f"{other}#2")

    def test_what_is_no_register_is_refused_in_the_result(self):
        self.lay(LOCAL + "bad.ME1_005.SSS", b"rubbish")
        self.assertRegex(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "bad.ME1_005.SSS", "ME1_005.SSS"), "^NG")
        self.assertRegex(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "bad.ME1_005.SSS", "what.SSS"), "^NG")
        self.save(SWR1, "SWR1", "SNAPSHOT", "ME1_002.SSS", LOCAL + "WIDE.ME1_002.SSS")  # locked
        self.assertEqual(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "WIDE.ME1_002.SSS", "ME1_002.SSS"), "NG(Locked)")
        self.assertRegex(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "WIDE.ME1_002.SSS", "ME1_100.SSS"), "^NG")

    def test_every_spelling_of_a_name_is_in_the_result_list(self):
        self.reserve("SWR1", "SNAPSHOT")
        self.status("SWR1", "SNAPSHOT", "Get")
        results = self.results(SWR1, "SWR1", "SNAPSHOT")
        for name in ("ME1_001.SSS", "TWO_SHOT.ME1_001.SSS", "TWO SHOT.ME1_001.SSS"):
            self.assertEqual(results.get(name), "OK", name)
        self.get(SWR1, "SWR1", "SNAPSHOT", "TWO_SHOT.ME1_001.SSS", LOCAL + "TWO_SHOT.ME1_001.SSS")
        self.status("SWR1", "SNAPSHOT", "Standby")
        self.save(SWR1, "SWR1", "SETUP", ".DEV_0000.SST", LOCAL + ".DEV_0000.SST")  # it has no name
        self.assertEqual(self.load(SWR1, "SWR1", "SETUP", LOCAL + ".DEV_0000.SST", ".DEV_0000.SST"), "OK")
        rows = self.ok("Access@Find", "MYHOST:" + LOCAL, "*.*.*")
        self.assertEqual([row.split(",")[0] for row in rows], [LOCAL + ".DEV_0000.SST", LOCAL + "TWO_SHOT.ME1_001.SSS"])
        self.panel.send("add Snapshot@Snapshot@Attribute@M/E-1@List")
        file = "TWO_SHOT.ME1_050.SSS"
        self.assertEqual(self.load(SWR1, "SWR1", "SNAPSHOT", LOCAL + "TWO_SHOT.ME1_001.SSS", file), "OK")
        self.assertTrue(any("M/E-1@List#50,TWO SHOT,S" in line for line in self.panel_lines))

    def test_a_macro_file_keeps_its_events(self):
        self.panel.send("add Macro@Register@List")
        body = b"PNL 0001PNL_0007.PMRMY MACRO\r\nEvent?,XPT,BUS?,1\r\n"
        self.lay(LOCAL + "m.PMR", body)
        self.assertEqual(self.load("PNL001D001:", "PNL1", "MACRO", LOCAL + "m.PMR", "PNL_0007.PMR"), "OK")
        self.assertIn("Macro@Register@List#7,S,MY MACRO,U,7,0", self.panel_lines)
        self.save("PNL001D001:", "PNL1", "MACRO", "PNL_0007.PMR", LOCAL + "m2.PMR")
        self.assertEqual(self.content(LOCAL + "m2.PMR"), body)

    def test_attachments_come_back_with_their_mode(self):
        head, file, panel = "Macro@Attachment@", "PNL_0000.PMA", "PNL001D001:"
        read = lambda: (self.panel.send(f"read {head}List", f"read {head}Xpt Attachment Mode"),
                        self.panel.until(f"{head}Xpt Attachment Mode#Button Mode"))[1]
        before = read()
        self.assertGreater(len(before), 5)  # several of a block
        self.save(panel, "PNL1", "MACROATC", file, LOCAL + "a.PMA")
        self.panel.send(f"put {head}Xpt Attachment Mode#Pair Mode", f"put {head}All Clear#true")
        self.panel.until(f"{head}Xpt Attachment Mode#Pair Mode")
        self.assertEqual(self.load(panel, "PNL1", "MACROATC", LOCAL + "a.PMA", file), "OK")
        self.assertEqual(read(), before)
        self.lay(LOCAL + "a.PMA", b"values PMA\n")
        self.assertRegex(self.load(panel, "PNL1", "MACROATC", LOCAL + "a.PMA", file), "^NG")
        self.assertEqual(read(), before)

    def test_without_the_hub_a_register_loads_at_once(self):
        """As power-on loading does."""
        self.panel.send("add Snapshot@Snapshot@Attribute@M/E-1@List")
        self.ok("Transfer@Transfer", SWR1 + "ME1_001.SSS", f"MYHOST:{LOCAL}TWO SHOT.ME1_001.SSS")
        self.ok("Transfer@Transfer", f"MYHOST:{LOCAL}TWO SHOT.ME1_001.SSS", SWR1 + "ME1_044.SSS")
        self.ok("Transfer@Transfer", f"MYHOST:{LOCAL}TWO SHOT.ME1_001.SSS", f"{SWR1}{WORK}SNAPSHOT/SWR1/ME1_045.SSS")
        for number in (44, 45):
            self.assertTrue(any(f"M/E-1@List#{number},TWO SHOT,S" in line for line in self.panel_lines), number)


class Frames(FileTest):
    STATUS = "16@Frame Mem@Status@"

    def name_of(self, number):
        self.panel.send(f"put {self.STATUS}File Name Sense#{number}")
        while True:
            line = self.panel.line()
            self.assertIsNotNone(line)
            if line.startswith(f"{self.STATUS}File Name Sense#{number},"):
                return line.split("#")[1].split(",")[1:]

    def test_status_names_and_pictures_of_registers(self):
        self.panel.send(f"read {self.STATUS}Register Status@0", f"read {self.STATUS}Folder Status@0")
        bits, folders = (line.split("#")[1] for line in self.panel.lines(2))
        self.assertEqual((int(bits, 16) & 0x3FF, len(bits), folders[:8], folders[18:20]), (0x20F, 32, "00000101", "02"))
        self.assertEqual(self.name_of(1), ["1", "Mlogo"])
        self.assertEqual(self.name_of(1), ["81", "Mlogo"])  # nothing new to fetch
        self.assertEqual(self.name_of(5), ["0", ""])
        self.ok("Frame Memory@Get", SWR1 + "FMEM_001.SFT", "MYHOST:/mnt/sys/FrameMemory/FM_0001.SFT")
        thumbnail = self.content("/mnt/sys/FrameMemory/FM_0001.SFT")
        self.assertEqual(thumbnail[64:66], b"BM")
        self.assertEqual(struct.unpack("<ii", thumbnail[82:90]), (160, 90))
        self.assertEqual(len(thumbnail), 64 + struct.unpack("<I", thumbnail[66:70])[0])
        self.assertEqual(struct.unpack(">I", thumbnail[60:64])[0], zlib.crc32(thumbnail[:60]))
        self.assertRegex(self.run_job("Frame Memory@Get", SWR1 + "FMEM_005.SFT", f"MYHOST:{LOCAL}x.SFT")[-1], "^NG")

    def test_a_picture_is_saved_packed_and_comes_back(self):
        other = self.client()
        other.send(f"add {self.STATUS}Register Status@0")
        other.line()
        save = [("Frame Memory@Get", SWR1 + "FMEM_001.SF2", "MYHOST:/var/tmp/FMXfer/Mlogo.FMEM_001.SF2"),
                ("Frame Memory@Uncompress", "MYHOST:/var/tmp/FMXfer/Mlogo.FMEM_001.SF2", f"MYHOST:{LOCAL}Mlogo.FMEM_001.SFM")]
        load = [("Frame Memory@Compress", f"MYHOST:{LOCAL}Mlogo.FMEM_001.SFM", "MYHOST:/var/tmp/FMXfer/Mnew.FMEM_006.SF2"),
                ("Frame Memory@PutV3", "MYHOST:/var/tmp/FMXfer/Mnew.FMEM_006.SF2", SWR1 + "FMEM_006.SF2")]
        for job in save + load:
            self.ok(*job)
        self.assertRegex(other.line(), f"^{self.STATUS}Register Status@0#")
        self.assertEqual(self.name_of(6), ["1", "Mnew"])
        for number in (1, 6):
            self.ok("Frame Memory@Get", f"{SWR1}FMEM_{number:03d}.SFM", f"MYHOST:{LOCAL}{number}")
        self.assertEqual(self.content(LOCAL + "1")[64:], self.content(LOCAL + "6")[64:])
        self.assertLess(os.path.getsize(self.path("/var/tmp/FMXfer/Mnew.FMEM_006.SF2")),
                        os.path.getsize(self.path(LOCAL + "Mlogo.FMEM_001.SFM")))
        self.ok("Frame Memory@FieldInvert", f"MYHOST:{LOCAL}Mlogo.FMEM_001.SFM")
        rows = self.ok("Access@FindSFM", "MYHOST:" + LOCAL, "*.SFM")
        self.assertEqual([(len(row.split(",")), row[-1]) for row in rows], [(7, "1")])

    def test_import_and_export_of_every_kind(self):
        self.lay(STICK + "pic.BMP", bmp(21, 10))
        pair = "MYHOST:/var/tmp/XPORT/d/Mpic.FMEM_001.SF2", "MYHOST:/var/tmp/XPORT/d/Spic.FMEM_002.SF2"
        self.ok("Frame Memory@BMP2SFM with Compress", f"MYHOST:{STICK}pic.BMP", *pair, 3, 0, 0)
        self.assertTrue(os.path.exists(self.path(pair[0][7:])))
        self.assertFalse(os.path.exists(self.path(pair[1][7:])))  # there is no key in it
        self.ok("Frame Memory@Uncompress", pair[0], f"MYHOST:{LOCAL}Mpic.FMEM_001.SFM")
        first = self.content(LOCAL + "Mpic.FMEM_001.SFM")
        for kind in ("TIF", "TGA", "PNG", "BMP"):
            self.ok(f"Frame Memory@SFM2{kind}", f"MYHOST:{LOCAL}Mpic.FMEM_001.SFM", f"MYHOST:{STICK}out.{kind}")
            self.ok(f"Frame Memory@{kind}2SFM", f"MYHOST:{STICK}out.{kind}", f"MYHOST:{LOCAL}Mpic.FMEM_009.SFM")
            self.assertEqual(self.content(LOCAL + "Mpic.FMEM_009.SFM")[64:], first[64:], kind)
        self.lay(STICK + "key.BMP", bmp(8, 8, 32, True))
        self.ok("Frame Memory@BMP2SFM", f"MYHOST:{STICK}key.BMP", *pair, 3, 0, 0)
        self.assertTrue(os.path.exists(self.path(pair[1][7:])))

    def test_bad_pictures_are_refused(self):
        good = bmp(21, 10)
        for kind, content in (("BMP", b""), ("BMP", good[:-2]), ("BMP", good[:18] + b"\xff" * 8 + good[26:]),
                              ("BMP", good[:10] + b"\xff" * 4 + good[14:]), ("TIF", b"II*\0" + b"\xff" * 40),
                              ("TIF", good), ("PNG", b"\x89PNG\r\n\x1a\n" + b"\0" * 50), ("TGA", b"\0\0\2" + b"\xff" * 30)):
            self.lay(STICK + "pic", content)
            result = self.run_job(f"Frame Memory@{kind}2SFM", f"MYHOST:{STICK}pic", f"MYHOST:{LOCAL}Mx.FMEM_001.SFM")
            self.assertEqual(result[-1], "NG(File Type Error)", (kind, content[:20]))
        self.ok("Frame Memory@Get", SWR1 + "FMEM_001.SF2", f"MYHOST:{LOCAL}x.SF2")
        packed = self.content(LOCAL + "x.SF2")
        for cut in (10, 63, 64, len(packed) - 1):
            self.lay(LOCAL + "cut.SF2", packed[:cut])
            self.assertEqual(self.run_job("Frame Memory@PutV3", f"MYHOST:{LOCAL}cut.SF2", SWR1 + "FMEM_007.SF2")[-1],
                             "NG(File Type Error)", cut)
        self.assertRegex(self.run_job("Frame Memory@PutV3", f"MYHOST:{LOCAL}x.SF2", SWR1 + "FMEM5000.SF2")[-1], "^NG")

    def test_folders_and_deletion_are_told(self):
        other = self.client()
        for path in ("Frame Mem@Folder@Move Still", self.STATUS + "Folder Name Sense", self.STATUS + "Register Status@0",
                     "Frame Mem@Clip@Ancillary Playback Enable"):
            other.send("add " + path)
        other.sync()
        self.panel.send("put Frame Mem@Folder@Rename#11,Sport", "put 16@Frame Mem@Folder@Move Still#0,Mlogo,11",
                        "put Frame Mem@Folder@Rename#0,No", "put Frame Mem@Folder@Move Still#0,Mlogo,12",
                        "put Frame Mem@Clip@Ancillary Playback Enable#0,Mnews")
        names, moved, ancillary = other.lines(3)
        self.assertTrue(names.endswith(",11,Sport"), names)
        self.assertEqual(moved, "Frame Mem@Folder@Move Still#0,Mlogo,B")
        self.assertEqual(ancillary, "Frame Mem@Clip@Ancillary Playback Enable#0,Mnews,1")
        self.panel.send("put Frame Mem@File@Delete Thumbnail@Single#Mlogo", "put Frame Mem@Folder@Delete#11")
        lines = other.lines(2)
        self.assertEqual(int(lines[0].split("#")[1], 16) & 0xF, 0xE)
        self.assertTrue(lines[1].endswith(",11,"), lines)

    def test_two_full_stores(self):
        self.done("frames max 5662 extended", "frames fill 5662", "frames fill 5662 extended")
        for bank, number in ((44, 5662), (172, 16384 + 5662)):
            self.panel.send(f"read {self.STATUS}Register Status@{bank}")
            self.assertEqual(int(self.panel.line().split("#")[1], 16), (1 << 5662 - 44 * 128) - 1)
            self.assertEqual(self.name_of(number)[0], "1")
        self.ok("Frame Memory@Get", SWR1 + "FMEX5662.SFT", f"MYHOST:{LOCAL}x.SFT")
        names = {self.name_of(n)[1] for n in range(1, 301)}
        self.assertEqual(len(names), 300)


class PowerOn(FileTest):
    def test_questions_are_repeated_until_they_are_answered(self):
        exist, start = "Info@Auto Load@Data Exist@", "Info@Auto Load@Start@"
        for unit in ("PNL", "SWR1", "SWR2"):
            self.panel.send(f"add {exist}{unit}", f"add {start}{unit}")
        self.panel.sync()
        self.do("autoload")
        self.panel.until(exist + "PNL#true")
        self.panel.until(exist + "PNL#true")
        self.panel.send(f"put {exist}PNL#false")
        self.panel.until(exist + "SWR1#true")
        self.panel.send(f"put {exist}SWR1#true")
        self.panel.until(start + "SWR1#true")
        self.panel.send(f"put {start}SWR1#true")
        self.assertIsNone(self.panel.line(1.5))  # it loads
        self.panel.send(f"put {start}SWR1#false")
        self.panel.until(exist + "SWR2#true")


if __name__ == "__main__":
    sim_test.main(__file__)
