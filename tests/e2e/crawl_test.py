"""The short form of tools/crawl: some pages of the table are touched all over, twice, in installations far apart."""
import os
import subprocess
import sys
import unittest

from desk import SOURCE

BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"


class Crawl(unittest.TestCase):
    def test_touches_leave_nothing_behind(self):
        for installation, every in ("desk", 53), ("smallest", 97), ("largest", 101):
            with self.subTest(installation):
                run = subprocess.run([os.path.join(SOURCE, "tools", "crawl"), "--in", installation, BUILD, str(every), "2"],
                                     stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=300)
                self.assertEqual(run.returncode, 0, run.stdout)
                self.assertIn(" 0 subscriptions left behind, 0 commands unanswered, 0 refused", run.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=1)
