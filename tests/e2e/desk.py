"""A desk for one end-to-end run: the application and the simulator in the sandbox on a virtual display.

The panel is touched through its FIFO, the simulator is driven through its console, the wire is read from its log and
the screen from the display. Every desk has its own device root, network and display: several may run side by side.
"""
import atexit
import os
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
SANDBOX = os.path.join(SOURCE, "tools", "sandbox")
IMAGE = os.path.join(SOURCE, "sim", "image")  # stand-ins for programs of the device

EV_SYN, EV_KEY, EV_ABS, BTN_TOUCH = 0, 1, 3, 330
SERVER_WAIT = 5.0  # seconds that the application gives the server at start-up
INITIAL_READ_END = "add M/E-5@Key8@Processed Key@Rotation"  # the last line of it


def grid(button_id):
    """The middle of a standard button."""
    return 112 + 98 * ((button_id & 15) - 1) + 42, 184 + 88 * (button_id >> 4) + 30


class Desk:
    def __init__(self, build, ini="", server=True, remove=()):
        """build: the build folder. ini: lines added to tm3.ini. server: start the simulator. remove: names of the
        working directory to leave out."""
        self.build = os.path.abspath(build)
        desks = os.path.join(self.build, "desks")  # inside the tree: the sandbox has its own /tmp
        os.makedirs(desks, exist_ok=True)
        self.work = tempfile.mkdtemp(dir=desks)
        self.root = os.path.join(self.work, "root")
        self.run_dir = os.path.join(self.work, "run")
        self.sim_log = os.path.join(self.work, "sim.log")
        self.out = os.path.join(self.work, "tm3.out")
        self.box = self.xvfb = None
        self.seen = 0  # bytes of the simulator's log already taken
        self.closed = False
        atexit.register(self.close)
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # a run that is ended takes its desk along
        self._make_run_dir(ini, remove)
        self._start_display()
        self._start_sandbox()
        if server:
            self.start_sim()

    # --- life ---

    def _make_run_dir(self, ini, remove):
        os.makedirs(self.run_dir)
        source = os.path.join(self.build, "run")
        for name in os.listdir(source):
            if name not in remove and name != "tm3.ini":
                os.symlink(os.path.join(source, name), os.path.join(self.run_dir, name))
        if "tm3.ini" not in remove:
            shutil.copy(os.path.join(source, "tm3.ini"), self.run_dir)
            with open(os.path.join(self.run_dir, "tm3.ini"), "a", encoding="ascii") as f:
                f.write(ini)

    def _start_display(self):
        read_end, write_end = os.pipe()
        self.xvfb = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "800x600x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as f:
            self.display = ":" + f.readline().strip()

    def stop_display(self):
        self.xvfb.terminate()
        self.xvfb.wait()

    def _start_sandbox(self):
        """One shell inside the sandbox starts and ends everything: all share one private loopback."""
        env = dict(os.environ, DISPLAY=self.display, SDL_VIDEODRIVER="x11", SDL_VIDEO_WINDOW_POS="0,0",
                   TMPDIR=self.work)
        env.pop("SDL_VIDEO_CENTERED", None)
        # The X library keeps a few bytes to the end; the unit tests look for leaks.
        env.setdefault("ASAN_OPTIONS", "detect_leaks=0")
        self.box = subprocess.Popen(
            [SANDBOX, "--root", self.root, "--device", IMAGE, "--", "/usr/bin/python3", os.path.join(HERE, "box.py"),
             self.work],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=env, text=True, bufsize=1)
        assert self.box.stdout.readline().strip() == "ready"

    def _box(self, *words):
        self.box.stdin.write("\t".join(words) + "\n")
        self.box.stdin.flush()
        return self.box.stdout.readline().strip()

    def start_sim(self, *args):
        values = os.path.join(self.build, "run", "values.txt")
        self._box("start", "sim", self.work, os.path.join(self.build, "bin", "scs_sim"), "--values", values,
                  "--log", self.sim_log, *args)

    def start_app(self, *args, wait=True):
        """Start the application; wait until its first page stands: started holds what it said until then."""
        self._box("start", "app", self.run_dir, os.path.join(self.build, "bin", "tm3"), *args)
        if wait:
            time.sleep(SERVER_WAIT)
            self.started = self.wait_wire("add TopMenu", 10)
            time.sleep(0.3)

    def app_status(self):
        """None while the application runs, otherwise its exit status."""
        text = self._box("status", "app")
        return None if text == "running" else int(text)

    def close(self):
        if self.closed:
            return
        self.closed = True
        for process in (self.box, self.xvfb):
            if process is None:
                continue
            if process.stdin:
                process.stdin.close()
            try:
                process.wait(timeout=0 if process is self.xvfb else 10)
            except subprocess.TimeoutExpired:
                process.terminate()
                process.wait(timeout=10)
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.work, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    # --- hands ---

    def _records(self, *events):
        data = b"".join(struct.pack("<IIHHi", 0, 0, *e) for e in events)
        fd = os.open(os.path.join(self.root, "input", "usb-TSC-30_DMC-event"), os.O_WRONLY | os.O_NONBLOCK)
        os.write(fd, data)
        os.close(fd)

    @staticmethod
    def _raw(x, y):
        # The calibration of the desk is 50/50 to 750/550: the raw point in 1/1023 of the screen, rounded up.
        return -(-x * 1023 // 800), -(-y * 1023 // 600)

    def touch_down(self, x, y):
        rx, ry = self._raw(x, y)
        self._records((EV_ABS, 0, rx), (EV_ABS, 1, ry), (EV_KEY, BTN_TOUCH, 1), (EV_SYN, 0, 0))

    def touch_up(self):
        self._records((EV_KEY, BTN_TOUCH, 0), (EV_SYN, 0, 0))

    def touch(self, x, y, settle=0.35):
        self.touch_down(x, y)
        time.sleep(0.06)
        self.touch_up()
        time.sleep(settle)

    def console(self, line):
        """One command of the simulator's console."""
        self._box("say", "sim", line)
        time.sleep(0.05)

    def value(self, path, timeout=2.0):
        """What the server holds at this path."""
        out = os.path.join(self.work, "sim.out")
        seen = os.path.getsize(out)
        self._box("say", "sim", f"get {path}")
        end = time.monotonic() + timeout
        while time.monotonic() < end:
            with open(out, encoding="latin-1") as f:
                f.seek(seen)
                for line in f.read().split("\n")[:-1]:
                    if line.startswith(path + "#"):
                        return line[len(path) + 1:]
            time.sleep(0.02)
        raise AssertionError(f"the server doesn't answer for {path}")

    # --- eyes ---

    def _screen_pnm(self):
        xwd = subprocess.run(["xwd", "-root", "-silent", "-display", self.display], capture_output=True, check=True)
        return subprocess.run(["xwdtopnm"], input=xwd.stdout, capture_output=True, check=True).stdout

    def shot(self, path):
        os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
        with open(path, "wb") as f:
            subprocess.run(["pnmtopng"], input=self._screen_pnm(), stdout=f, stderr=subprocess.DEVNULL, check=True)
        return path

    def pixels(self):
        """The screen as rows of bytes: pixels()[y][3 * x:3 * x + 3] is red, green, blue."""
        pnm = self._screen_pnm()
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", pnm)
        width, height = int(header[1]), int(header[2])
        body = pnm[header.end():]
        return [body[y * width * 3:(y + 1) * width * 3] for y in range(height)]

    def part(self, x1, y1, x2, y2):
        """The pixels of a rectangle, its edges included: two looks at it can be compared."""
        return [row[3 * x1:3 * x2 + 3] for row in self.pixels()[y1:y2 + 1]]

    @staticmethod
    def _text(path):
        try:
            with open(path, encoding="latin-1") as f:
                return f.read()
        except FileNotFoundError:
            return ""

    def log(self):
        """The application's log."""
        return self._text(os.path.join(self.root, "var", "log2", "tm3.log"))

    def output(self):
        return self._text(self.out)

    def sim_text(self):
        """The whole of the simulator's log."""
        return self._text(self.sim_log)

    def lines(self):
        """The lines of the simulator's log since the last call."""
        try:
            with open(self.sim_log, "rb") as f:
                f.seek(self.seen)
                text = f.read()
        except FileNotFoundError:
            return []
        text = text[:text.rfind(b"\n") + 1]  # the last one may still grow
        self.seen += len(text)
        return text.decode("latin-1").split("\n")[:-1]

    def wire(self):
        """The lines that the application has sent to the server since the last call; not those to the hub."""
        return [m[1] for m in (re.match(r".*?< (?!hub )(.*)", line) for line in self.lines()) if m]

    def wait_wire(self, text, timeout=10.0, starts=False, pause=0.05):
        """All lines up to now, once one of them is text, or starts with it; fails the assertion when none comes."""
        lines, end = [], time.monotonic() + timeout
        while time.monotonic() < end:
            lines += self.wire()
            if text in lines or starts and any(line.startswith(text) for line in lines):
                return lines
            time.sleep(pause)
        raise AssertionError(f"{text!r} did not come; the wire said {lines[-12:]}")
