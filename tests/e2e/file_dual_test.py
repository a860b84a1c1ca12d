"""The pages of two lists and the Directory page at the desk: registers, drives, and what goes wrong between them."""
import os
import shutil
import time
import unittest

from desk import Desk, grid
from deskcase import BUILD, OK, YES, SetupCase
from drivecase import DriveCase

DEVICE_A, DEVICE_B = (150, 98), (455, 98)
L_TO_R, R_TO_L, DETAIL_A = (290, 478), (405, 478), grid(49)
ALL_ROWS_A = (303, 417)
DRIVES = [270, 348, 426, 504]  # keys of the drive pane: register, local drive, stick, network
FIRST_DIRECTORY = (195, 105)
HOME = "add M/E-1@Key1@Type@Key Type"
LOCAL, STICK = "/mnt/data/user/root/SYSTEM/", "/mnt/usb/usb1/SYSTEM/"
FIND = "put File@Access@Find#"


class FilePages(DriveCase):
    @classmethod
    def make_desk(cls):
        desk = Desk(BUILD, server=False)
        desk.start_sim("--lay")
        return desk

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.await_log("Ready#SWR2.File", 0, 15)

    # --- hands and eyes ---

    @classmethod
    def log_size(cls):
        return os.path.getsize(cls.desk.sim_log)

    @classmethod
    def await_log(cls, text, since, seconds=6.0):
        """The simulator's log from since on, once it has the text."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            with open(cls.desk.sim_log, encoding="latin-1") as f:
                f.seek(since)
                log = f.read()
            if text in log:
                return log
            time.sleep(0.03)
        raise AssertionError(f"{text!r} did not come; the log said {log[-1500:]}")

    def lay_shots(self, count):
        """Snapshots of M/E-1 with the numbers from 1 on the local drive."""
        for n in range(1, count + 1):
            self.lay(f"{LOCAL}SNAPSHOT/SWR000D001/ME1/SHOT {n}.ME1_{n:03d}.SSS", b"x" * 1000)

    def files(self, path):
        found = []
        for folder, _, names in os.walk(self.path(path)):
            found += [os.path.join(folder, name)[len(self.path(path)):] for name in names]
        return sorted(found)

    def open(self, number):
        self.open_page(1111, HOME)  # the page that is shown does not open anew
        since = self.log_size()
        self.desk.console(f"page {number}")
        self.await_log(FIND, since)
        self.await_log("File@Access@Find@Status#", since)
        time.sleep(0.3)

    def job(self, key):
        """Touch a key that moves files; the log until the lists are read anew."""
        since = self.log_size()
        self.desk.touch(*key, settle=0)
        log = self.await_log(FIND, since)
        time.sleep(0.4)
        return log

    def choose(self, device, drive):
        self.desk.touch(*device, settle=0.2)
        self.desk.touch(DRIVES[drive], 275, settle=0.4)
        if drive > 0:
            self.desk.touch(*FIRST_DIRECTORY, settle=0.4)

    def snapshots(self, left, right):
        """The page of the snapshots between two drives."""
        self.open(7131)
        self.choose(DEVICE_A, left)
        self.choose(DEVICE_B, right)

    type = SetupCase.type

    def has_pane(self):
        """A message or a progress stands over the page: its ground is the light one of a box."""
        pixels = self.desk.pixels()
        return all(pixels[y][3 * 206:3 * 206 + 3] == b"\xe6\xe6\xe6" for y in (200, 300, 400))

    def leave_panes(self):
        self.desk.console("slow 1")
        while self.has_pane():
            self.desk.touch(*OK)

    def tearDown(self):
        for line in ("slow 1", "results right", "stick in", "user ANNA leaves SWR1 SNAPSHOT"):
            self.desk.console(line)
        self.leave_panes()
        shutil.rmtree(self.path(STICK), ignore_errors=True)
        shutil.rmtree(self.path(LOCAL), ignore_errors=True)
        self.assertIsNone(self.desk.app_status())

    # --- tests ---

    def test_a_register_comes_back_from_the_drive(self):
        self.snapshots(0, 1)
        self.job(L_TO_R)
        self.assertEqual(self.files(LOCAL), ["SNAPSHOT/SWR000D001/ME1/TWO SHOT.ME1_001.SSS"])
        since = self.log_size()
        self.desk.touch(*DETAIL_A, settle=0.6)
        self.desk.touch(*grid(50))
        self.desk.touch(*YES)
        self.await_log("Attribute@M/E-1@List#1,,E,", since)
        self.open(7131)
        log = self.job(R_TO_L)
        self.assertIn("Attribute@M/E-1@List#1,TWO SHOT,S,", log)

    def test_each_setting_has_its_file(self):
        for page, name in ((7112, "SETUP/SWR000D001/SETUP.DEV_0000.SST"),
                           (7174, "USRSETUP/SWR000D001/USRSETUP.DEV_0000.SUN")):
            self.open(page)
            self.job(L_TO_R)
            self.assertIn(name, self.files(LOCAL))
            self.job(R_TO_L)
            self.assertFalse(self.has_pane(), name)

    def test_what_failed_stays_to_be_read(self):
        self.snapshots(0, 1)
        for fault in ("missing", "trailing"):
            self.desk.console(f"results {fault}")
            self.job(L_TO_R)
            self.assertTrue(self.has_pane(), fault)
            self.desk.touch(*OK)
            self.assertFalse(self.has_pane(), fault)
        self.assertEqual(self.files(LOCAL), [])

    def test_the_stick_is_pulled(self):
        self.lay_shots(20)
        self.snapshots(1, 2)
        self.desk.touch(*ALL_ROWS_A)
        self.desk.console("slow 40")
        since = self.log_size()
        self.desk.touch(*L_TO_R)
        self.desk.console("stick out")
        self.desk.console("slow 1")
        self.assertEqual(self.await_log(FIND, since).count("NG(No Device)"), 20)
        time.sleep(0.4)
        self.assertTrue(self.has_pane())
        self.desk.touch(*OK)
        self.desk.console("stick in")
        self.job(L_TO_R)
        self.assertEqual(self.files(STICK), self.files(LOCAL))

    def test_a_transfer_outlives_its_page_and_is_cancelled(self):
        self.lay_shots(10)
        self.snapshots(1, 2)
        self.desk.touch(*ALL_ROWS_A)
        self.desk.console("slow 400")
        self.desk.touch(*L_TO_R)
        self.open_page(1111, HOME)
        self.assertFalse(self.has_pane())
        self.desk.console("page 7131")
        time.sleep(0.5)
        self.assertTrue(self.has_pane())
        since = self.log_size()
        self.desk.touch(*OK)  # Cancel
        self.assertEqual(self.await_log("Copy@Status#", since).count("put File@Access@Cancel#Lx,"), 10)
        self.assertFalse(self.has_pane())
        self.assertEqual(self.files(STICK), [])

    def test_another_user_is_waited_for(self):
        self.snapshots(0, 1)
        self.desk.console("user ANNA holds SWR1 SNAPSHOT")
        since = self.log_size()
        self.desk.touch(*L_TO_R, settle=0.6)
        self.assertNotIn("Request#", self.await_log("", since))
        self.desk.console("user ANNA leaves SWR1 SNAPSHOT")
        self.await_log("SNAPSHOT.STATUS:Standby", since)
        self.await_log(FIND, since)
        self.assertIn("SNAPSHOT/SWR000D001/ME1/TWO SHOT.ME1_001.SSS", self.files(LOCAL))

    def test_rubbish_from_the_server_moves_nothing_else(self):
        self.lay_shots(10)
        self.snapshots(1, 2)
        self.desk.touch(*ALL_ROWS_A)
        self.desk.console("slow 40")
        self.desk.touch(*L_TO_R)
        bodies = ["L0,0", "L4294967295,5", "L99999999999,1", "4294967295,OK", "0,NG(x.)", "-1,OK", "L", ",", ""]
        bodies += ["4294967295," + "," * n for n in (1, 6, 200)]
        bodies += [f"{n},../../etc/passwd,Wed Nov 25 10:30:00 2026" for n in (0, 4294967295)] + ["0,/" + "p" * 300]
        for path in ("Access@Copy", "Access@Find", "Transfer@Transfer", "Remote Access@SCP Dir Get"):
            for body in bodies:
                for status in ("", "@Status"):
                    self.desk._box("say", "sim", f"send File@{path}{status}#{body}")
        since = self.log_size()
        self.desk.console("slow 1")
        self.await_log(FIND, since)
        time.sleep(0.3)
        self.assertFalse(self.has_pane())
        self.assertEqual(self.files(STICK), self.files(LOCAL))

    def test_directories_and_their_names(self):
        root = self.path("/mnt/data/user/root/")
        self.addCleanup(shutil.rmtree, root + "News", True)
        os.makedirs(root + "SYSTEM", exist_ok=True)
        self.open_page(1111, HOME)
        since = self.log_size()
        self.desk.console("page 7171")
        self.await_log("ListDir@Status#", since)
        time.sleep(0.3)
        self.desk.touch(*grid(51))
        self.type("aux")
        self.assertTrue(self.has_pane())
        self.desk.touch(*OK)
        self.desk.touch(*grid(51))
        self.type("News")
        self.assertFalse(self.has_pane())
        self.assertEqual(sorted(os.listdir(root)), ["News", "SYSTEM"])
        self.desk.touch(*grid(53))
        self.assertEqual(os.path.getsize(root + "News/.dirprotect"), 40)
        self.desk.touch(*grid(52))  # a protected one has no key for this
        self.assertFalse(self.has_pane())
        self.desk.touch(*grid(53))
        self.desk.touch(*grid(52))
        self.desk.touch(*YES, settle=0.6)
        self.assertEqual(os.listdir(root), ["SYSTEM"])


if __name__ == "__main__":
    unittest.main()
