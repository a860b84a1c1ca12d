"""The clip store at the desk, by touch: recall, play, record, freeze, copy, rename and delete."""
import os
import re
import time
import unittest

from deskcase import BUILD, YES, DeskCase
from desk import Desk

STORE = "var/units/SWR1/vorn/FM/1/"
HEAD = "Frame Mem 2@Clip/Still@"
SOURCE, TARGET = (100, 120, 2), (402, 120, 2)  # the folders of the copy page: left edge, pitch, columns
BESIDE, WIDE = (244, 132, 3), (104, 132, 4)


def key(x):
    return x, 490


def cell(area, n):
    left, pitch, columns = area
    return left + n % columns * pitch + 60, 112 + n // columns * 104 + 40


class ClipStore(DeskCase):
    @classmethod
    def make_desk(cls):
        desk = Desk(BUILD, server=False)
        desk.start_sim("--lay")
        return desk

    def setUp(self):
        self.wait_hub("InitRead#CS1.ClipStoreFile", 15)

    def hub(self):
        """What the hub has been asked for."""
        return re.findall("< hub (.*)", self.desk.sim_text())

    def wait_hub(self, line, timeout=5.0):
        self.wait_until(lambda: line in self.hub(), line, timeout)

    def has(self, name):
        return os.path.exists(self.path(STORE + name + ".SFH"))

    def status(self, output="FM1"):
        return self.desk.value(f"{HEAD}Output Status@{output}")

    def play(self):
        return [int(x) for x in self.desk.value(f"{HEAD}Play@FM1").split(",")]

    def test_1_a_clip_is_recalled_and_plays_in_a_loop(self):
        self.open("2111")
        self.touch(cell(BESIDE, 2), key(466), puts=f"put {HEAD}Recall@FM1#0,0,1,0,/BREAK.SFH")
        self.wait_until(lambda: self.status() == "2,/BREAK.SFH")
        self.open("2113")
        self.touch((690, 130))  # the end of the time line
        self.wait_until(lambda: self.play()[1] == 74)
        self.touch((292, 480), (384, 370))
        self.wait_until(lambda: self.play()[0] == 1 and self.play()[1] < 60)
        before = self.desk.part(100, 120, 230, 200)
        time.sleep(0.4)
        self.assertNotEqual(before, self.desk.part(100, 120, 230, 200))  # the thumbnail moves
        self.touch((476, 370))
        self.wait_until(lambda: self.play()[0] == 0)
        self.touch((292, 260))  # it starts where it stands
        self.wait_until(lambda: self.play()[2] == self.play()[1])

    def test_2_a_recording_and_a_freeze_are_in_the_folder(self):
        self.open("2114")
        self.touch(key(466), puts=f"put  {HEAD}Record@FM1#1,0,300,1")
        time.sleep(0.5)
        self.touch(key(560))
        self.wait_until(lambda: self.has("img0000") and self.status() == "2,/img0000.SFH")
        self.open("2115")
        self.touch(key(466))
        self.wait_until(lambda: self.has("img0001") and self.status() == "2,/img0001.SFH")

    def test_3_a_folder_is_copied_into_another_and_over_itself(self):
        self.open("2121")
        self.touch(cell(TARGET, 1), cell(TARGET, 1))  # NEWS
        self.touch(cell(SOURCE, 0))  # LOGOS
        self.touch(key(382))
        self.wait_hub("Execute#CS1.ClipStoreFile:Copy root/LOGOS/SPONSOR.SFH root/NEWS/LOGOS/SPONSOR.SFH")
        self.wait_until(lambda: self.has("NEWS/LOGOS/SPONSOR"))
        time.sleep(0.5)
        count = len(self.hub())
        self.touch(key(382), YES)
        self.wait_until(lambda: sum("Copy root/LOGOS/" in line for line in self.hub()[count:]) == 2)
        self.assertFalse(any("MakeFolder" in line for line in self.hub()[count:]))
        time.sleep(1)

    def test_4_what_is_shown_goes_to_black_before_it_goes(self):
        self.open("2122")
        self.touch(cell(WIDE, 5))  # img0001, on FM1
        self.touch(key(612), YES)
        self.assertTrue(self.has("img0001"))
        self.touch(YES, puts=f"put {HEAD}Record@Through@FM1#0,0")  # it is in use
        self.wait_until(lambda: not self.has("img0001"))
        self.assertEqual(self.status(), "0,")
        time.sleep(0.6)

    def test_5_a_clip_gets_another_name(self):
        self.open("2122")
        self.touch(cell(WIDE, 4))  # img0000
        self.touch(key(522))
        time.sleep(0.3)
        self.type("w")
        self.wait_until(lambda: not self.has("img0000"))
        moved = [line for line in self.hub() if "Move root/img0000.SFH" in line]
        self.assertTrue(self.has(moved[-1].split("root/")[-1][:-4]), moved)

    def test_6_a_video_and_a_key_become_a_pair_and_two_clips_again(self):
        self.desk.console("clip make A 10")
        self.desk.console("clip make B 10")
        self.open("2123")
        self.touch(cell(SOURCE, 2), cell(TARGET, 3), key(562))
        self.wait_hub("Execute#CS1.ClipStoreFile:Couple root/A.SFH root/B.SFH")
        self.wait_until(lambda: not self.has("B"))
        time.sleep(1.0)  # its progress has gone
        self.touch(key(652))
        self.wait_hub("Execute#CS1.ClipStoreFile:Separate root/A.SFH")
        self.wait_until(lambda: self.has("A_K"))
        time.sleep(0.6)

    def test_7_a_tree_with_a_playing_clip_is_deleted_when_it_has_stopped(self):
        self.open("2111")
        self.touch(cell(BESIDE, 1), cell(BESIDE, 1))  # NEWS
        self.touch(cell(BESIDE, 2), key(466))
        self.wait_until(lambda: self.status() == "2,/NEWS/OPENING.SFH")
        self.open("2113")
        self.touch((384, 370))
        self.wait_until(lambda: self.play()[0] == 1)
        self.open("2122")
        self.touch(cell(WIDE, 1), key(612), YES, (400, 402))  # it plays
        self.assertTrue(self.has("NEWS/OPENING"))
        self.open("2113")
        self.touch((476, 370))
        self.open("2122")
        self.touch(key(612), YES, YES)  # it is in use
        self.wait_hub("Execute#CS1.ClipStoreFolder:DeleteFolder root/NEWS", 10)
        self.wait_until(lambda: not os.path.exists(self.path(STORE + "NEWS")))
        self.assertEqual(self.status(), "0,")
        time.sleep(0.6)

    def test_8_the_hub_goes_while_clips_are_loaded(self):
        self.open("2112")
        self.touch(key(292))
        self.desk.console("hub slow 100")
        self.touch(key(482))
        count = len(self.hub())
        self.desk.console("hub drop")
        self.wait_until(lambda: "InitRead#CS1.ClipStoreFile" in self.hub()[count:])
        self.desk.console("hub slow 1")
        time.sleep(0.6)
        count = len(self.hub())
        self.touch(key(482))  # a message that the load has ended stands over the page
        self.assertEqual(len(self.hub()), count)
        self.touch((400, 407), key(292), key(482))  # nothing does any more, and the tree is there
        self.wait_until(lambda: any("Register root/STATION.SFH" in line for line in self.hub()[count:]))


if __name__ == "__main__":
    unittest.main(verbosity=2)
