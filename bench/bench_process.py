"""The process as a whole, on the desk: start-up to the first page, idle processor time, resident memory.

usage: bench_process.py BUILD [--check]
"""
import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "tests", "e2e"))
from desk import Desk, SERVER_WAIT  # noqa: E402

IDLE_SECONDS = 20
ROUNDS = 3  # a limit counts as broken when it is above in each: other work on the machine weighs on it


def pid_of(program):
    """The process of a desk's program: its name is an absolute path, so no other desk's is meant."""
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{pid}/cmdline", "rb") as f:
                if f.read().split(b"\0")[0].decode() == program:
                    return pid
        except OSError:
            pass
    raise SystemExit(f"{program} does not run")


def processor_seconds(pid):
    """By the scheduler's own count: the clock ticks of the other one are a tenth of a point."""
    with open(f"/proc/{pid}/schedstat", encoding="ascii") as f:
        return int(f.read().split()[0]) / 1e9


def memory_mib(pid, what):
    """Rss: all that is resident; Anonymous: what no file stands behind."""
    with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as f:
        return sum(int(line.split()[1]) for line in f if line.startswith(what + ":")) / 1024


def points_above(pid, bare):
    """Side by side: what else the machine does weighs on both."""
    used = {p: processor_seconds(p) for p in (pid, bare)}
    start = time.monotonic()
    time.sleep(IDLE_SECONDS)
    used = {p: processor_seconds(p) - used[p] for p in used}
    return 100 * (used[pid] - used[bare]) / (time.monotonic() - start)


def measure(build):
    """(what, value, limit, unit) of one start."""
    with Desk(build) as desk:
        start = time.monotonic()
        desk.start_app(wait=False)
        time.sleep(SERVER_WAIT - 0.1)
        desk.wait_wire("add TopMenu", 15, pause=0.001)
        start_up = time.monotonic() - start - SERVER_WAIT
        time.sleep(38)  # the initial read, the timed progress
        app = pid_of(os.path.join(build, "bin", "tm3"))
        memory = [memory_mib(app, what) for what in ("Rss", "Anonymous")]
        desk._box("start", "loop", desk.work, os.path.join(build, "bin", "sleep_loop"))
        time.sleep(1)
        idle = points_above(app, pid_of(os.path.join(build, "bin", "sleep_loop")))
    return [
        ("start-up to the first page, the wait for the server apart", start_up, 0.3, "s"),
        ("idle processor time above a bare sleep loop", idle, 0.3, "points"),
        ("resident memory", memory[0], 40, "MiB"),
        ("of it without a file behind", memory[1], 20, "MiB"),
    ]


def main():
    build, check = os.path.abspath(sys.argv[1]), "--check" in sys.argv
    for _ in range(ROUNDS if check else 1):
        figures = measure(build)
        broken = [f for f in figures if f[1] > f[2]]
        if not check or not broken:
            break
    for name, value, limit, unit in broken if check else figures:
        print(f"{name:60s} {value:8.2f} {unit:6s} limit {limit}")
    return 1 if broken and check else 0


if __name__ == "__main__":
    sys.exit(main())
