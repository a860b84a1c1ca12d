"""The short form of tools/crawl: every 53rd page of the table is touched all over, twice."""
import os
import subprocess
import sys
import unittest

from desk import SOURCE

BUILD = sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev"


class Crawl(unittest.TestCase):
    def test_touches_leave_nothing_behind(self):
        run = subprocess.run([os.path.join(SOURCE, "tools", "crawl"), BUILD, "53", "2"], stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, text=True, timeout=300)
        self.assertEqual(run.returncode, 0, run.stdout)
        self.assertIn(" 0 subscriptions left behind, 0 commands unanswered, 0 refused", run.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=1)
