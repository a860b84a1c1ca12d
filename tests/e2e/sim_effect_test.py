"""The simulator's regions: the frames of the binary link, byte by byte, and what makes them move."""

import time

import sim_test
from sim_test import BIN, SimTest

SELECTION, POSITION, EFFECT = 0x000200AA, 0x001000AA, 0x001100AA
JOIN, SEND = 0x008200AA, 0x008100AA
PP, ME1, ME2, ME4, DME2 = 0, 1, 2, 80, 17
HOUR = 3600 * 30  # frames; every time axis begins there
RUN = "Key Frame@Timeline@"
REF, ENABLE = "Key Frame@Region Select@Ref Region Set", "Key Frame@Region Select@Region Enable@"


def word(data, at):
    return data[at] << 8 | data[at + 1]


def frames(bcd):
    """A time code of four decimal bytes at 30 frames a second."""
    digits = [byte >> 4 for byte in bcd] + [byte & 15 for byte in bcd]
    assert max(digits[1:4] + digits[4:]) <= 9 and digits[0] & 7 <= 2, bcd
    hours, minutes, seconds, count = (10 * (b >> 4) + (b & 15) for b in (bcd[0] & 0x3F, bcd[1], bcd[2], bcd[3]))
    assert minutes < 60 and seconds < 60 and count < 30, bcd
    total = ((hours * 60 + minutes) * 60 + seconds) * 30 + count
    return -total if bcd[0] & 0x80 else total


class Effect:
    def __init__(self, data):
        self.code, self.number, self.name = data[0], word(data, 1), data[3:11]
        self.locked, self.free, self.count = data[11] == 2, word(data, 12), word(data, 16)
        self.start, self.delay, self.end, self.duration = (frames(data[at:at + 4]) for at in (18, 22, 26, 30))
        self.loop = word(data, 34), word(data, 36), data[38]
        self.keys = [(word(data, at) & 0x07FF, word(data, at) & 0x8000 != 0) for at in range(39, len(data), 2)]


class Position:
    def __init__(self, data):
        assert len(data) == 12, data
        self.code, self.time, self.key, self.run = data[0], frames(data[3:7]) - HOUR, word(data, 7), data[9]
        self.loop_on, self.loops_left = data[11] >> 7, data[11] & 0x7F


class Panel:
    """The binary link of one panel."""

    def __init__(self, client):
        self.client = client

    def send(self, command, number, data=b""):
        length = len(data) + 7
        self.client.socket.sendall(bytes([length & 255, length >> 8, command]) + number.to_bytes(4, "little") + data +
                                   b"\xff\xff")

    def join(self, *codes):
        for code in codes:
            self.send(4, JOIN, bytes([1, code, 1, 0]))
        self.send(4, SEND)

    def frame(self, seconds=3):
        """Id and data of the next frame, None when none comes in time."""
        end = time.monotonic() + seconds
        while len(have := self.client.bytes) < 2 or len(have) < word(have, 0) + 2:  # high byte first to a panel
            if not self.client._fill(end - time.monotonic()):
                return None
        length = word(have, 0)
        frame, self.client.bytes = have[:length + 2], have[length + 2:]
        assert frame[2] == 132 and frame[-2:] == b"\xff\xff" and len(frame) <= 1040, frame.hex()
        return int.from_bytes(frame[3:7], "little"), frame[7:-2]

    def next(self, number, seconds=3):
        """The data of the next frame with this id; others are left out."""
        end = time.monotonic() + seconds
        while frame := self.frame(end - time.monotonic()):
            if frame[0] == number:
                return frame[1]
        raise AssertionError(f"no frame {number:06X}")

    def selection(self):
        return self.next(SELECTION)

    def effect(self):
        return Effect(self.next(EFFECT))

    def position(self, seconds=3):
        return Position(self.next(POSITION, seconds))

    def run_until(self, condition, seconds=8):
        """All positions up to the one that the condition holds for."""
        positions, end = [], time.monotonic() + seconds
        while not positions or not condition(positions[-1]):
            assert time.monotonic() < end, [p.time for p in positions[-5:]]
            positions.append(self.position())
        return positions


class StreamTest(SimTest):
    def setUp(self):
        super().setUp()
        self.text = self.client()  # commands
        self.other = self.client()  # only hears

    def panel(self, *codes, streams=(SELECTION, POSITION, EFFECT)):
        panel = Panel(self.client(BIN))
        for stream in streams:
            panel.send(1, stream)
        if codes:
            panel.join(*codes)
        self.settle(panel)
        return panel

    def settle(self, panel):
        """What came of all that the simulator was told so far. It has read in one turn and written by the next."""
        for _ in range(2):
            self.do("get Settled")
            while (line := self.sim.stdout.readline()) != "Settled#\n":
                self.assertTrue(line, "the simulator has ended")
        return list(iter(lambda: panel.frame(0), None))

    def load(self, panel, *commands):
        self.do(*commands)
        self.settle(panel)

    def told(self, client, *lines):
        """The client hears these lines next, in any order."""
        self.assertEqual(sorted(client.lines(len(lines))), sorted(lines))


class Streams(StreamTest):
    def test_each_stream_comes_only_to_who_asked_and_until_it_is_ended(self):
        panel = Panel(self.client(BIN))
        panel.join(ME1)
        self.do("kf M/E-1 2 10", "select M/E-2 on")
        self.assertEqual(self.settle(panel), [])
        panel.send(1, SELECTION)
        self.assertEqual(panel.frame()[0], SELECTION)  # the state as it is now
        panel.send(5, SELECTION)
        self.assertEqual(panel.frame()[0], SELECTION)
        panel.send(1, EFFECT)
        panel.send(4, SEND)
        self.assertEqual(panel.effect().code, ME1)
        panel.send(1, POSITION)
        panel.send(4, SEND, bytes([ME1]))
        self.assertEqual((panel.effect().code, panel.position().code), (ME1, ME1))
        panel.send(2, EFFECT)
        panel.send(2, SELECTION)
        self.settle(panel)
        self.do("kf M/E-1 3 10", "select M/E-2 off", "kf M/E-2 3 10")
        self.assertEqual([number for number, _ in self.settle(panel)], [POSITION])

    def test_the_effect_frame_carries_every_field(self):
        panel = self.panel(ME4)
        self.do("kf M/E-4 3 70", "pause M/E-4 2", "loop M/E-4 1 3 5", "delay M/E-4 45")
        effect = panel.effect()
        while effect.delay != 45:  # a frame a command, or one for those that the simulator took together
            effect = panel.effect()
        self.assertEqual((effect.code, effect.number, effect.locked, effect.count, effect.free), (ME4, 0, False, 3, 493))
        self.assertEqual(effect.keys, [(70, False), (70, True), (0, False)])
        self.assertEqual((effect.start, effect.delay, effect.end, effect.duration), (HOUR + 45, 45, HOUR + 185, 140))
        self.assertEqual(effect.loop, (1, 3, 5))
        self.assertEqual(len(effect.name), 8)


class Running(StreamTest):
    def test_a_run_moves_the_cursor_by_one_frame_at_the_rate_of_the_format(self):
        panel = self.panel(ME1)
        self.load(panel, "kf M/E-1 3 20")
        started = time.monotonic()
        self.do("run M/E-1")
        run = panel.run_until(lambda p: p.run == 0)
        took = time.monotonic() - started
        self.assertEqual([p.time for p in run], list(range(41)))
        self.assertEqual([run[at].key for at in (0, 19, 20, 39, 40)], [1, 1, 2, 2, 3])
        self.assertEqual({p.run for p in run[:-1]}, {1})
        self.assertGreater(took, 40 / 30 - 0.05)
        self.assertLess(took, 2 * 40 / 30)
        self.load(panel, "kf M/E-1 3 5")  # in reverse, and both ends
        self.do("ff M/E-1")
        self.assertEqual(panel.position().time, 10)
        self.do("reverse M/E-1")
        run = panel.run_until(lambda p: p.run == 0)
        self.assertEqual([p.time for p in run], list(range(10, -1, -1)))
        self.assertEqual({p.run for p in run[:-1]}, {0x11})
        self.do("kf M/E-1 2 300", "run M/E-1")
        panel.run_until(lambda p: p.time > 3)
        self.do("rewind M/E-1")
        self.assertEqual(panel.run_until(lambda p: p.time == 0)[-1].run, 0)

    def test_a_loop_counts_its_passes_down_and_goes_on(self):
        panel = self.panel(ME1)
        self.load(panel, "kf M/E-1 4 4", "loop M/E-1 2 3 3")
        self.do("run M/E-1")
        run = panel.run_until(lambda p: p.run == 0)
        self.assertEqual([p.time for p in run], [*range(8), *range(4, 8), *range(4, 13)])
        self.assertEqual({p.loop_on for p in run}, {1})
        self.assertEqual([run[at].loops_left for at in (0, 7, 8, 11, 12, 16)], [3, 3, 2, 2, 1, 0])


class Keys(StreamTest):
    """The text commands of the timeline pages."""

    def test_the_run_keys_act_on_the_selected_regions_and_show_what_runs(self):
        panel = self.panel(ME1, ME2, PP)
        self.load(panel, "kf M/E-1 2 12", "kf M/E-2 2 12", "kf P/P 2 300")
        self.other.send(f"add {RUN}Run", f"add {RUN}Reverse", f"add {RUN}Stop")
        self.assertEqual(self.other.sync(), [f"{RUN}{key}#false" for key in ("Run", "Reverse", "Stop")])
        self.text.send(f"put {RUN}Run#true")
        self.assertEqual(self.text.line(), f"{RUN}Run#true")
        self.assertEqual(self.other.line(), f"{RUN}Run#true")
        moved = {p.code for p in panel.run_until(lambda p: p.code == ME1 and p.run == 0)}
        self.assertEqual(moved, {ME1, PP})
        self.text.send(f"put {RUN}Reverse#true")
        self.told(self.other, f"{RUN}Run#false", f"{RUN}Reverse#true")
        self.text.send(f"put {RUN}Stop#true")
        self.told(self.other, f"{RUN}Reverse#false", f"{RUN}Stop#true", f"{RUN}Stop#false")
        self.do("run M/E-1")
        self.assertEqual(self.other.lines(2), [f"{RUN}Run#true", f"{RUN}Run#false"])  # at its end by itself

    def test_a_region_is_selected_and_made_the_reference_by_name(self):
        panel = self.panel()
        self.other.send(f"add {REF}", f"add {ENABLE}DME2", f"add {ENABLE}DME2 GLB", f"add {ENABLE}M/E-1")
        self.assertEqual(self.other.sync(), [f"{REF}#M/E-1", f"{ENABLE}DME2#false", f"{ENABLE}DME2 GLB#false",
                                             f"{ENABLE}M/E-1#true"])
        self.text.send(f"put {REF}#DME2")
        self.assertEqual(self.text.line(), f"{REF}#DME2")
        self.told(self.other, f"{ENABLE}DME2#true", f"{ENABLE}DME2 GLB#true", f"{REF}#DME2")
        data = panel.selection()
        while data[0] != DME2:  # selected first, then made the reference
            data = panel.selection()
        self.assertEqual((data[0], data[1], data[3]), (DME2, 0b11, 0b10))
        self.text.send(f"put {ENABLE}DME2#false")  # the reference goes to one that is still selected
        while data[0] != ME1:
            data = panel.selection()
        self.assertEqual(data, bytes([ME1, 0b11, 0, 0, 0, 0, 0, 0]))
        self.text.send(f"put {REF}#Nowhere", f"put {ENABLE}M/E-1#maybe")
        self.text.line()
        self.assertEqual(self.text.lines(2), [f"{REF}#M/E-1", f"{ENABLE}M/E-1#true"])
        self.assertEqual(self.settle(panel), [])

    def test_edits_change_the_keyframe_at_the_cursor_and_can_be_undone(self):
        panel = self.panel(ME1)
        self.load(panel, "select P/P off", "kf M/E-1 3 40")

        def keys(command):
            self.text.send(f"put {RUN}{command}#true")
            return [duration for duration, _ in panel.effect().keys]
        self.assertEqual(keys("Insert"), [30, 40, 40, 0])  # on a keyframe: a second more
        self.assertEqual(keys("Undo"), [40, 40, 0])
        self.text.send(f"put {RUN}Const Dur#true")
        self.assertEqual(keys("Insert"), [20, 20, 40, 0])
        self.text.send(f"put {RUN}Copy#true")
        self.assertEqual(keys("Paste"), [20, 20, 20, 40, 0])


if __name__ == "__main__":
    sim_test.main(__file__)
