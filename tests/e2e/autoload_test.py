"""What lies in the power-on directory is loaded into each unit when the server asks for it.

usage: autoload_test.py BUILD_DIR [TEST...]
"""
import os
import struct
import time
import unittest
import zlib

from deskcase import DeskCase

EXIST, START = "put Info@Auto Load@Data Exist@", "put Info@Auto Load@Start@"
LOCK = "Info@System Setup Data@File Load Lock"
MODEL = "Info@Board Config@Unit Model@SWR1"


def picture(name):
    """A frame-memory file: 64 bytes of header, a BMP of 8 x 8."""
    body = bytes(8 * 8 * 3)
    bmp = b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + len(body), 0, 54, 40, 8, 8, 1, 24, 0, len(body), 0, 0, 0, 0) + body
    head = (b"SFMD" + bytes([3, 0, 0, 0, 0]).ljust(12, b"\0") + name.encode()).ljust(60, b"\0")
    return head + struct.pack(">I", zlib.crc32(head)) + bmp


class AutoLoad(DeskCase):
    def lay(self, path, content):
        path = os.path.join(self.desk.root, "mnt/data/user/root/PWON_LD", path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as out:
            out.write(content)

    def listed(self, words):
        """The registers that hold data, as the console prints them."""
        path = os.path.join(self.desk.work, "sim.out")
        begin = os.path.getsize(path)
        self.desk.console(f"list {words}")
        time.sleep(0.3)
        with open(path, encoding="latin-1") as text:
            text.seek(begin)
            return text.read()

    def setUp(self):
        self.lay("SHOTBOX/CTRLCPU/Opening.PNL_0097.PSB", b"register shotbox\nname Opening\n")
        self.lay("EFFECT/SWR000D001/ME1/Wipe in.ME1_098.SKF", b"register effect\nname Wipe in\nkey 30,0\n")
        self.lay("SNAPSHOT/SWR000D001/ME1/Locked.ME1_097.SSS", b"register snapshot\nname Locked\n")
        self.lay("EFFECT/DME000D001/CH1/Fly.CH1_0096.DKF", b"register effect\nname Fly\nkey 30,0\n")

    def test_1_each_unit_gets_its_files_and_a_locked_category_stays(self):
        desk = self.desk
        self.lay("FMEMFOL/DEFAULT/SWR000D001/Mbars.FMEM_200.SFM", picture("Mbars"))
        self.lay("FMEMFOL/Sport/SWR000D001/Mgoal.FMEM_007.SFM", picture("Mgoal"))
        desk.console(f"set {LOCK}#04000000")  # snapshots
        desk.wire()
        desk.console("autoload")
        lines = desk.wait_wire(START + "SWR1#false", 40)
        notice = desk.part(200, 150, 600, 400)
        lines += desk.wait_wire(EXIST + "DME4#false", 40)
        answers = [line[4:] for line in lines if line.startswith("put Info@Auto Load@")]
        for unit, has in (("PNL", 1), ("SWR1", 1), ("SWR2", 0), ("DME1", 1), ("DME2", 0)):
            exist, start = "Info@Auto Load@Data Exist@" + unit, "Info@Auto Load@Start@" + unit
            expected = [exist + "#true", start + "#true", start + "#false"] if has else [exist + "#false"]
            self.assertEqual([line for line in answers if line.split("#")[0] in (exist, start)], expected)
        self.assertIn("97,Opening", self.listed("shotbox"))
        self.assertIn("98,S,Wipe in", self.listed("effect M/E-1"))
        self.assertIn("96,S,Fly", self.listed("effect DME1"))
        self.assertNotIn("Locked", self.listed("snapshot M/E-1"))
        self.assertIn("put Frame Mem@Folder@Rename#1,Sport", lines)
        self.assertIn("put 16@Frame Mem@Folder@Move Still#0,Mgoal,1", lines)
        self.assertIn("put Frame Mem@File@Delete Thumbnail@All#true", lines)
        self.assertEqual(desk.part(200, 150, 600, 400), notice)  # one notice for all, until it is read

    def test_2_the_older_frame_memory_keeps_its_numbers(self):
        desk = self.desk
        desk.console(f"set {LOCK}#00000000")
        desk.console(f"send {MODEL}#1")
        self.lay("FRAMEMEM/SWR000D001/Mold.FMEM_012.SFM", picture("Mold"))
        desk.wire()
        desk.console("autoload")
        lines = desk.wait_wire(EXIST + "DME4#false", 40)
        self.assertTrue(any("PutV3" in line and line.endswith(":Mold.FMEM_012.SFM") for line in lines), lines)
        self.assertFalse(any("FMEMFOL" in line for line in lines))
        self.assertIn(START + "SWR1#false", lines)
        self.assertIn("97,Locked,S", self.listed("snapshot M/E-1"))


if __name__ == "__main__":
    unittest.main(verbosity=1)
