"""The demonstration: a script of touches on a desk without a display. Leaves numbered pictures in BUILD/demo and the
wire and the application's log beside them. usage: demo.py BUILD"""
import os
import shutil
import sys
import time

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
from desk import INITIAL_READ_END, Desk, grid  # noqa: E402  the end-to-end tests work the same desk

TYPE = "M/E-1@Key1@Type@Key Type"


def main(build):
    out = os.path.join(build, "demo")
    shutil.rmtree(out, ignore_errors=True)
    os.makedirs(out)
    number = 0

    def picture(name):
        nonlocal number
        number += 1
        path = os.path.join(out, f"{number:02d}-{name}.png")
        desk.shot(path)
        print(path)

    with Desk(build, ini="LogLevel=1\n") as desk:
        desk.start_app()
        # The initial read holds the link for a while: a press now would wait behind it.
        desk.wait_wire(INITIAL_READ_END, 20)
        time.sleep(0.3)
        picture("initializing")
        desk.touch(400, 407)  # Cancel: the rest of the timed progress need not be watched
        picture("top-menu")
        desk.touch(112 + 42, 96 + 30)  # M/E-1
        desk.wait_wire(f"add {TYPE}")
        time.sleep(0.4)
        picture("key-type")
        desk.touch(*grid(17))  # it is on: the press only moves the knobs to it
        picture("before-the-press")
        desk.touch_down(*grid(19))
        time.sleep(0.09)
        picture("pushed")
        desk.touch_up()
        desk.wait_wire(f"put {TYPE}#Chroma")
        time.sleep(0.4)
        picture("after-the-tally")
        desk.console("knob 2 +12")
        time.sleep(0.3)
        picture("knob-turned")
        desk.touch(752, 127 + 41)  # the first box
        picture("ten-keys")
        desk.touch(446 + 17 + 3 * 54 + 24, 140 + 310 - 59 + 24)  # Cancel
        desk.touch(97 + 86 + 43, 531 + 33)  # the bottom tab "Edge"
        desk.wait_wire("add M/E-1@Key1@Edge@Edge Fill")
        desk.touch(*grid(18))
        desk.wait_wire("put M/E-1@Key1@Edge@Edge#Border")
        time.sleep(0.3)
        picture("edge")
        desk.console("page 1231")  # a page request from the server
        desk.wait_wire("add M/E-2@Key3@Type@Key Type")
        time.sleep(0.3)
        picture("page-from-the-server")
        desk.console("page 9992.0002")  # of the gallery
        time.sleep(0.6)
        picture("list")
        shutil.copy(desk.sim_log, os.path.join(out, "wire.log"))
        with open(os.path.join(out, "tm3.log"), "w", encoding="latin-1") as f:
            f.write(desk.log())
    print(f"{number} pictures in {out}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
