"""What lies in the power-on directory is loaded into each unit when the server asks for it."""
import unittest

from drivecase import DriveCase, frame

FOLDER = "/mnt/data/user/root/PWON_LD/"
EXIST, START = "put Info@Auto Load@Data Exist@", "put Info@Auto Load@Start@"
LOCK = "Info@System Setup Data@File Load Lock"
MODEL = "Info@Board Config@Unit Model@SWR1"


class AutoLoad(DriveCase):
    def setUp(self):
        for path, content in (("SHOTBOX/CTRLCPU/Opening.PNL_0097.PSB", b"register shotbox\nname Opening\n"),
                              ("EFFECT/SWR000D001/ME1/Wipe in.ME1_098.SKF", b"register effect\nname Wipe in\nkey 30,0\n"),
                              ("SNAPSHOT/SWR000D001/ME1/Locked.ME1_097.SSS", b"register snapshot\nname Locked\n"),
                              ("EFFECT/DME000D001/CH1/Fly.CH1_0096.DKF", b"register effect\nname Fly\nkey 30,0\n")):
            self.lay(FOLDER + path, content)

    def test_1_each_unit_gets_its_files_and_a_locked_category_stays(self):
        desk = self.desk
        self.lay(FOLDER + "FMEMFOL/DEFAULT/SWR000D001/Mbars.FMEM_200.SFM", frame("Mbars"))
        self.lay(FOLDER + "FMEMFOL/Sport/SWR000D001/Mgoal.FMEM_007.SFM", frame("Mgoal"))
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
        for row, register in (("97,Opening", "shotbox"), ("98,S,Wipe in", "effect M/E-1"), ("96,S,Fly", "effect DME1")):
            self.assertIn(row, self.asked("list " + register))
        self.assertNotIn("Locked", self.asked("list snapshot M/E-1"))
        for line in ("Folder@Rename#1,Sport", "File@Delete Thumbnail@All#true"):
            self.assertIn("put Frame Mem@" + line, lines)
        self.assertIn("put 16@Frame Mem@Folder@Move Still#0,Mgoal,1", lines)
        self.assertEqual(desk.part(200, 150, 600, 400), notice)  # one notice for all, until it is read

    def test_2_the_older_frame_memory_keeps_its_numbers(self):
        desk = self.desk
        desk.console(f"set {LOCK}#00000000")
        desk.console(f"send {MODEL}#1")
        self.lay(FOLDER + "FRAMEMEM/SWR000D001/Mold.FMEM_012.SFM", frame("Mold"))
        desk.wire()
        desk.console("autoload")
        lines = desk.wait_wire(EXIST + "DME4#false", 40)
        self.assertTrue(any("PutV3" in line and line.endswith(":Mold.FMEM_012.SFM") for line in lines), lines)
        self.assertFalse(any("FMEMFOL" in line for line in lines))
        self.assertIn(START + "SWR1#false", lines)
        self.assertIn("97,Locked,S", self.asked("list snapshot M/E-1"))


if __name__ == "__main__":
    unittest.main()
