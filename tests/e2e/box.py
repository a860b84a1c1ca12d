"""Inside the sandbox: starts, stops and feeds the programs of a desk, one request a line on standard input."""
import os
import subprocess
import sys

work = sys.argv[1]
running = {}


def start(name, cwd, *command):
    out = open(os.path.join(work, "tm3.out" if name == "app" else name + ".out"), "w", encoding="latin-1")
    running[name] = subprocess.Popen(command, cwd=cwd, stdin=subprocess.PIPE, stdout=out, stderr=subprocess.STDOUT,
                                     text=True, bufsize=1)
    return "started"


def stop(name):
    process = running.pop(name, None)
    if process:
        process.terminate()
        process.wait()
    return "stopped"


def say(name, line):
    running[name].stdin.write(line + "\n")
    running[name].stdin.flush()
    return "said"


def status(name):
    code = running[name].poll()
    return "running" if code is None else str(code)


print("ready", flush=True)
for request in sys.stdin:
    verb, *words = request.rstrip("\n").split("\t")
    try:
        answer = {"start": start, "stop": stop, "say": say, "status": status}[verb](*words)
    except (OSError, KeyError) as error:
        answer = f"error {error}"
    print(answer, flush=True)
for name in list(running):
    stop(name)
