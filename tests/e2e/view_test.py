"""The desk in a browser: who has the printed address is let in, nobody else, and nothing is left behind."""
import glob
import os
import re
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

from desk import INITIAL_READ_END, SOURCE

BUILD = os.path.abspath(sys.argv.pop(1) if len(sys.argv) > 1 else "build/dev")
NONE, VNC_AUTH = 1, 2  # kinds of authentication


class ViewDesk:
    """tools/desk, started as without a display."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        env = dict(os.environ, TMPDIR=self.folder.name)
        env.pop("DISPLAY", None)
        try:
            os.remove(self.sim_log)
        except FileNotFoundError:
            pass
        self.cookies_before = self.cookies()
        self.process = subprocess.Popen([os.path.join(SOURCE, "tools", "desk"), BUILD], env=env, text=True,
                                        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, start_new_session=True)
        self.address = self.process.stdout.readline()
        self.port, self.password = re.search(r"http://127\.0\.0\.1:(\d+)/\S*#password=(\S+) ", self.address).groups()

    sim_log = os.path.join(BUILD, "desk", "sim.log")

    @staticmethod
    def cookies():
        return set(glob.glob(os.path.join(BUILD, "desk", "cookies*")))

    def wait_wire(self, text, timeout):
        end = time.monotonic() + timeout
        while time.monotonic() < end:
            if os.path.exists(self.sim_log):
                with open(self.sim_log, encoding="latin-1") as f:
                    if f"< {text}\n" in f.read():
                        return
            time.sleep(0.1)
        raise AssertionError(f"{text!r} did not come")

    def interrupt(self):
        """Ctrl-C; returns the processes that were left of the desk. Files of its own are in left_behind."""
        os.killpg(self.process.pid, signal.SIGINT)
        self.process.wait(timeout=15)
        self.process.stdout.close()
        self.left_behind = os.listdir(self.folder.name) + sorted(self.cookies() - self.cookies_before)
        self.folder.cleanup()
        end = time.monotonic() + 5
        while self.processes() and time.monotonic() < end:
            time.sleep(0.1)
        left = self.processes()
        for pid in left:  # or whoever waits for the end of what is printed waits for good
            os.kill(int(pid), signal.SIGKILL)
        return left

    def processes(self):
        """Whoever runs with the folder of this desk, whatever has become of the one that started it."""
        mark = f"TMPDIR={self.folder.name}".encode()
        return [pid for pid in os.listdir("/proc") if pid.isdigit() and mark in content(f"/proc/{pid}/environ")]


def content(path):
    """What is in a file; nothing when it is gone meanwhile, or nobody's any more."""
    try:
        with open(path, "rb") as f:
            return f.read()
    except (FileNotFoundError, ProcessLookupError, PermissionError):
        return b""


class Viewer:
    """The other end of the view's protocol, as a page of any address in a browser speaks it."""

    def __init__(self, port):
        self.data = b""
        self.socket = socket.create_connection(("127.0.0.1", port), timeout=10)
        self.socket.sendall(f"GET /websockify HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\nUpgrade: websocket\r\n"
                            "Connection: Upgrade\r\nSec-WebSocket-Key: AAAAAAAAAAAAAAAAAAAAAA==\r\n"
                            "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Protocol: binary\r\n"
                            "Origin: http://elsewhere.example\r\n\r\n".encode())
        self.stream = self.socket.makefile("rb")
        status = self.stream.readline()
        assert b" 101 " in status, status
        while self.stream.readline().strip():
            pass
        self.take(12)
        self.send(b"RFB 003.008\n")
        self.kinds = list(self.take(self.take(1)[0]))

    def send(self, data):
        """One binary frame; its mask is zero."""
        self.socket.sendall(bytes([0x82, 0x80 | len(data), 0, 0, 0, 0]) + data)

    def read(self, size):
        data = self.stream.read(size)
        if len(data) < size:
            raise ConnectionError("closed")
        return data

    def take(self, size):
        while len(self.data) < size:
            kind, length = self.read(2)
            if kind & 15 == 8:
                raise ConnectionError("closed")
            if length == 126:
                length = int.from_bytes(self.read(2), "big")
            self.data += self.read(length)
        head, self.data = self.data[:size], self.data[size:]
        return head

    def let_in(self, kind, password=""):
        """Whether the view opens to this."""
        try:
            self.send(bytes([kind]))
            if kind == VNC_AUTH:
                self.send(answer(self.take(16), password))
            if self.take(4) != bytes(4):
                return False
            self.send(b"\x01")  # shared with other viewers
            return True
        except OSError:
            return False

    def click(self, x, y):
        for buttons in (0, 1, 0):
            self.send(bytes([5, buttons]) + x.to_bytes(2, "big") + y.to_bytes(2, "big"))
            time.sleep(0.1)

    def close(self):
        self.stream.close()
        self.socket.close()


def answer(challenge, password):
    """The challenge under DES, whose key is the password with the bits of each byte turned round."""
    key = bytes(int(f"{byte:08b}"[::-1], 2) for byte in password.encode().ljust(8, b"\0")[:8])
    return subprocess.run(["openssl", "enc", "-des-ecb", "-nopad", "-K", key.hex(), "-provider", "legacy",
                           "-provider", "default"], input=challenge, capture_output=True, check=True).stdout


class View(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = ViewDesk()
        cls.addClassCleanup(lambda: cls.desk.process.poll() is None and cls.desk.interrupt())

    def viewer(self, desk=None):
        viewer = Viewer((desk or self.desk).port)
        self.addCleanup(viewer.close)
        return viewer

    def test_1_only_the_password_of_the_address_opens_it(self):
        self.assertEqual(self.viewer().kinds, [VNC_AUTH])
        wrong = self.desk.password[:-1] + ("a" if self.desk.password[-1] != "a" else "b")
        self.assertFalse(self.viewer().let_in(NONE), "without a password")
        self.assertFalse(self.viewer().let_in(VNC_AUTH), "an empty one")
        self.assertFalse(self.viewer().let_in(VNC_AUTH, wrong))
        self.assertTrue(self.viewer().let_in(VNC_AUTH, self.desk.password))

    def test_2_a_click_is_a_touch(self):
        viewer = self.viewer()
        self.assertTrue(viewer.let_in(VNC_AUTH, self.desk.password))
        self.desk.wait_wire(INITIAL_READ_END, 60)
        viewer.click(400, 407)  # Cancel: the rest of the timed progress need not be watched
        time.sleep(1)
        viewer.click(112 + 42, 96 + 30)  # M/E-1
        self.desk.wait_wire("add M/E-1@Key1@Type@Key Type", 10)

    def test_3_an_interrupt_leaves_nothing_behind(self):
        self.assertEqual(self.desk.interrupt(), [])
        self.assertEqual(self.desk.left_behind, [])

    def test_4_the_next_start_has_another_password(self):
        desk = ViewDesk()
        self.addCleanup(lambda: desk.process.poll() is None and desk.interrupt())
        self.assertTrue(desk.processes())
        self.assertFalse(self.viewer(desk).let_in(VNC_AUTH, self.desk.password))
        self.assertEqual(desk.interrupt(), [], "while its sandbox starts")


if __name__ == "__main__":
    unittest.main(verbosity=1)
