"""The simulator as its clients see it: verbs, two panels, knobs, the announcement, faults, scripts.

usage: sim_test.py BUILD_DIR [TEST...]
Ports are fixed, so the whole run moves into a sandbox of its own first.
"""

import os
import re
import socket
import subprocess
import sys
import tempfile
import time
import unittest

REPO = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SIM = ""  # path of the program
TEXT, BIN, HUB = 10001, 10000, 9500

VALUES = """\
# comment
M/E-1@Key1@Invert\tbool
M/E-1@Key1@Type\tword\tLuminance,Linear
M/E-1@Key1@Type\tword\tChroma,Linear
M/E-1@Key1@Clip\tnum\t109.59\t-7.31\t2
M/E-1@Key1@Gain\tnum\t5\t10\t0
M/E-1@Key1@Trans\tnum\t0\t999\t0
M/E-1@Key1@Auto\taction
M/E-1@Key1@Free\tword\tOne,*
M/E-1@Key10@Type\tword\tA,B
M/E-1@Mixed\tbool
M/E-1@Mixed\tword\tBoth
broken line
M/E-1@Bad\tnum\tlow\thigh\t0
"""


class Client:
    """One connection to the simulator; lines are kept until somebody asks for them."""

    def __init__(self, port=TEXT):
        self.socket = socket.create_connection(("127.0.0.1", port), 5)
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)  # what is sent is there before the next
        self.bytes = b""

    def close(self):
        self.socket.close()

    def send(self, *lines):
        self.socket.sendall("".join(line + "\n" for line in lines).encode())

    def _fill(self, seconds):
        """False when nothing came in time or the connection has ended."""
        self.socket.settimeout(max(seconds, 0.001))
        try:
            more = self.socket.recv(65536)
        except (TimeoutError, ConnectionResetError):
            return False
        self.bytes += more
        return bool(more)

    def line(self, seconds=3):
        end = time.monotonic() + seconds
        while b"\n" not in self.bytes:
            if not self._fill(end - time.monotonic()):
                return None
        line, _, self.bytes = self.bytes.partition(b"\n")
        return line.decode("latin-1")

    def lines(self, count):
        return [self.line() for _ in range(count)]

    def until(self, wanted, seconds=5):
        """All lines up to the wanted one."""
        got = []
        while not got or got[-1] != wanted:
            line = self.line(seconds)
            if line is None:
                raise AssertionError(f"{wanted!r} did not come, but {got[-5:]}")
            got.append(line)
        return got

    def sync(self):
        """What came so far: the answer to a read closes the list and is left out."""
        self.send("read Sync")
        return self.until("Sync#")[:-1]

    def has_ended(self, seconds=3):
        self.socket.settimeout(seconds)
        try:
            while self.socket.recv(65536):
                pass
        except TimeoutError:
            return False
        except ConnectionResetError:
            pass
        return True


class SimTest(unittest.TestCase):
    values = None

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.log = os.path.join(self.folder.name, "sim.log")
        self.start()

    def file(self, name, text):
        path = os.path.join(self.folder.name, name)
        with open(path, "w", encoding="latin-1") as out:
            out.write(text)
        return path

    def start(self, *arguments):
        values = ["--values", self.file("values.txt", self.values)] if self.values else []
        self.sim = subprocess.Popen(
            [SIM, "--quiet", "--log", self.log, *values, *arguments],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.addCleanup(self.stop)
        end = time.monotonic() + 5
        while time.monotonic() < end and self.sim.poll() is None:
            try:
                socket.create_connection(("127.0.0.1", HUB), 1).close()
                return
            except OSError:
                time.sleep(0.01)

    def stop(self):
        if self.sim.poll() is None:
            self.sim.kill()
        self.sim.wait()
        self.sim.stdin.close()
        self.sim.stdout.close()

    def client(self, port=TEXT):
        client = Client(port)
        self.addCleanup(client.close)
        return client

    def do(self, *commands):
        self.sim.stdin.write("".join(command + "\n" for command in commands))
        self.sim.stdin.flush()

    def output(self):
        """What the console printed until the simulator ended."""
        self.do("quit")
        return self.sim.stdout.read()

    def wait_for_log(self, pattern, seconds=3):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            with open(self.log, encoding="latin-1") as log:
                if re.search(pattern, log.read()):
                    return
            time.sleep(0.01)
        self.fail(f"not in the log: {pattern}")


class Verbs(SimTest):
    values = VALUES

    def test_put_is_answered_within_the_type(self):
        panel = self.client()
        cases = [
            ("Key1@Invert", "true", "true"),
            ("Key1@Invert", "maybe", "true"),  # refused: the old value
            ("Key1@Type", "Chroma", "Chroma"),  # from the second line of its path
            ("Key1@Type", "Plasma", "Chroma"),
            ("Key1@Clip", "12.345", "12.35"),
            ("Key1@Clip", "500", "109.59"),  # clamped, though the limits are turned round
            ("Key1@Clip", "nan", "109.59"),
            ("Key1@Trans", "1:10", "40"),  # seconds and frames, 30 a second
            ("Key1@Trans", "-1:10", "0"),
            ("Mixed", "Both", "Both"),
            ("Bad", "text", "text"),  # its line was no type
            ("Key1@Unknown", "a,b#c", "a,b#c"),
        ]
        for path, value, answer in cases:
            panel.send(f"put M/E-1@{path}#{value}")
            self.assertEqual(panel.line(), f"M/E-1@{path}#{answer}", f"put {path}#{value}")

    def test_subscription_brings_every_change_until_removed(self):
        one, two = self.client(), self.client()
        one.send("add A@B", "add A@B")
        self.assertEqual(one.lines(2), ["A@B#", "A@B#"])
        two.send("put A@B#1")
        self.assertEqual(two.line(), "A@B#1")  # the sender hears it without a subscription
        self.do("set A@B 2")
        self.assertEqual(one.lines(2), ["A@B#1", "A@B#2"])  # each change once
        one.send("remove A@B")
        self.assertEqual(one.sync(), [])
        two.send("put A@B#3")
        self.assertEqual(two.line(), "A@B#3")
        self.assertEqual(one.sync(), [])

    def test_rubbish_costs_a_log_line_and_no_more(self):
        panel = self.client()
        rubbish = [b"x" * 5000, b"\xff\x00\x01\x7f", b"add", b"add ", b"put A", b"add A#1", b"#",
                   b"assign Knob5#A", b"assign Knob#A", b"bogus A", b"put #1", b"  ",
                   b"add " + b"p" * 500, b"put A#\x07", b"%s%n%n"]
        for piece in rubbish:
            panel.socket.sendall(piece + b"\n")
        panel.socket.sendall(b"y" * 300000)  # its end comes later and must not pass for a command
        self.wait_for_log("line too long")
        time.sleep(0.1)
        panel.socket.sendall(b"put Evil#1\r\nadd Good\r\n")
        self.assertEqual(panel.sync(), ["Good#"])

    def test_a_turn_moves_the_bound_value_by_its_resolution_up_to_the_stop(self):
        panel = self.client()
        clip = "M/E-1@Key1@Clip"
        panel.send(f"add {clip}", f"assign Knob2#{clip}")
        panel.sync()
        self.do("knob 2 +3", "knob 1 +3", "knob 2 -1", "knob 2 +99999", "knob 2 +1")
        self.assertEqual(panel.until(f"{clip}#109.59"), [f"{clip}#{v}" for v in ("0.03", "0.02", "109.59")])


class Announcement(SimTest):
    END = "Info@Initial Read Status#0,end"

    def check(self, lines):
        head = "Info@Initial Read Status#"
        steps = [line[len(head):].split(",") for line in lines if line.startswith(head)]
        self.assertEqual(steps[0], ["0", "start"])
        for unit in "0123456":
            self.assertLess(steps.index([unit, "start"]), steps.index([unit, "end"]))
        self.assertEqual(len(steps), 14)

    def test_it_comes_whole_to_who_asks_and_unasked_to_the_panel_that_lost_its_link(self):
        panel, other = self.client(), self.client()
        panel.send("put Info@Initial Read Status#true")
        self.check(panel.until(self.END))
        self.assertEqual(other.sync(), [])
        self.do("drop text")
        self.assertTrue(panel.has_ended())
        again, stranger = self.client(), self.client()
        self.check(again.until(self.END))
        self.assertEqual(stranger.sync(), [])

    def test_a_restart_forgets_values_and_subscriptions_and_says_so(self):
        panel = self.client()
        panel.send("add A", "put A#1", "assign Knob0#Panel@Common@Knob0")
        panel.sync()
        self.do("restart")
        lines = panel.until(self.END)
        self.assertEqual(lines[:2], ["CONNECT@Status#NG", "CONNECT@Status#OK"])
        self.check(lines)
        self.do("set A 5", "knob 0 +1")
        self.assertEqual(panel.sync(), [])


class Faults(SimTest):
    def test_a_dropped_link_leaves_the_others_and_stays_down_as_long_as_asked(self):
        text, frames = self.client(), self.client(BIN)
        self.do("drop text 1000")
        self.assertTrue(text.has_ended())
        self.assertFalse(frames.has_ended(0.1))
        with self.assertRaises(OSError):
            Client(TEXT)
        time.sleep(1.2)
        self.assertEqual(self.client().sync(), [])

    def test_a_line_is_cut_where_it_was_asked_and_the_next_one_is_whole(self):
        panel = self.client()
        self.do("cut text 3", "send ABCDEF")
        self.assertIsNone(panel.line())
        self.assertEqual(panel.bytes, b"ABC")
        panel = self.client()
        self.do("send ABCDEF")
        self.assertEqual(panel.line(), "ABCDEF")

    def test_garbage_hits_all_links_and_the_next_line_is_clean(self):
        panel, frames, hub = self.client(), self.client(BIN), self.client(HUB)
        self.do("garbage 400")
        self.wait_for_log("garbage is over")
        got = panel.sync()
        self.assertGreater(len(got), 50)
        self.assertTrue(any(len(line) > 1024 for line in got))
        self.assertTrue(any("%n" in line for line in got))
        self.assertTrue(frames._fill(1) and hub._fill(1))
        self.do(*["garbage 1", "wait 60", "send Clean"] * 25)
        for _ in range(25):
            panel.until("Clean")

    FRAME = bytes([7, 0, 1, 0xAA, 0, 2, 0, 0xFF, 0xFF])

    def test_frames_are_cut_and_a_bad_one_does_not_stop_the_next(self):
        link = self.client(BIN)
        for piece in (self.FRAME[:8], self.FRAME[8:] + self.FRAME[:1], self.FRAME[1:]):
            link.socket.sendall(piece)
            time.sleep(0.02)
        hexadecimal = "< bin 07 00 01 AA 00 02 00 FF FF\n"
        self.wait_for_log(f"(?s){hexadecimal}.*{hexadecimal}")
        for bad in (b"\xff\xff", b"\x00\x00", self.FRAME[:7] + b"\x00\x00"):
            link.socket.sendall(bad)
            time.sleep(0.05)
        link.socket.sendall(b"\x08\x00" + self.FRAME[2:7] + b"\x44\xff\xff")
        self.wait_for_log("(?s)(bad frame.*){3}< bin 08 00 01 AA 00 02 00 44 FF FF\n")

    def test_a_mistake_on_the_console_ends_nothing(self):
        self.do("bogus", "knob 9 +1", "get A")
        output = self.output()
        self.assertIn("no such command: bogus", output)
        self.assertIn("usage: knob", output)
        self.assertIn("A#\n", output)
        self.assertEqual(self.sim.wait(3), 0)


class Scripts(SimTest):
    def run_script(self, text, *lines):
        """Exit status and output of a run in which a client sends the lines at once."""
        self.stop()
        self.start("--script", self.file("script.txt", text))
        if lines:
            panel = self.client()
            panel.send(*lines)
        return self.sim.wait(10), self.sim.stdout.read()

    def test_what_does_not_come_ends_it_with_the_line_number(self):
        started = time.monotonic()
        status, output = self.run_script("wait 1\n\nexpect add B 2000\nquit\n", "add A")
        self.assertEqual(status, 1)
        self.assertIn("line 3", output)
        self.assertLess(time.monotonic() - started, 4.5)  # and not after the 5 s of other expectations

    def test_the_scripts_of_the_repository_are_sound(self):
        """Each runs up to its first expectation without a mistake."""
        folder = os.path.join(REPO, "sim", "scripts")
        scripts = [name for name in os.listdir(folder) if name.endswith(".txt")]
        self.assertGreater(len(scripts), 2)
        for name in scripts:
            with open(os.path.join(folder, name)) as script:
                text = re.sub(r"(?m)^(expect|wait|stall|garbage|flood) .*", r"wait 1", script.read())
            self.assertEqual(self.run_script(text + "\nquit\n"), (0, ""), name)


def main(file):
    global SIM
    build = os.path.abspath(sys.argv[1])
    if not os.environ.get("SIM_TEST_SANDBOX"):
        os.environ["SIM_TEST_SANDBOX"] = "1"
        command = [os.path.join(REPO, "tools", "sandbox"), sys.executable, os.path.abspath(file)]
        sys.exit(subprocess.run(command + [build] + sys.argv[2:]).returncode)
    SIM = os.path.join(build, "bin", "scs_sim")
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])


if __name__ == "__main__":
    main(__file__)
