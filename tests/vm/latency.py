#!/usr/bin/env python3
"""How long a touch takes to its reader: through the kernel alone, through the tap server and a bare client or the real
program, and through a pipeline of general tools where they are at hand. One run, so that the numbers may be compared."""

import glob
import os
import select
import statistics
import subprocess
import sys

from types import SimpleNamespace

from keyboard import Keyboard
from models import KEYBOARDS
from program import Program, hold
from reader import Failure, clones, until
from world import Client, Lines, Server

FRAMES = int(sys.argv[1]) if len(sys.argv) > 1 else 2000
PATIENCE = 60.0  # seconds
ROUNDS = 5  # what else the host does then falls on all alike
TOOLS = "/out/tools"


def node_of(sysname: str) -> str:
    path = until("the node is there", lambda: glob.glob(f"/sys/class/input/{sysname}/event*"))[0]
    node = "/dev/input/" + os.path.basename(path)
    until("it can be opened", lambda: os.path.exists(node))
    return node


def nodes() -> set:
    return set(glob.glob("/dev/input/event*"))


def measure(probe: Lines, name: str, node: str) -> None:
    rounds = results.setdefault(name, [])
    before = len(probe.read())
    probe.say(f"{name} {node}")
    # Asleep until the answer is there: whoever looks again and again is in the way of what he measures.
    while not probe.read()[before:].endswith("\n"):
        if not select.select([probe.process.stdout], [], [], PATIENCE)[0]:
            raise Failure(f"{name} is not measured")
    rounds.append([float(word) for word in probe.text[before:].split()[1:]])
    if len(rounds[-1]) < 2:
        raise Failure(f"{name}: {rounds[-1]}")


def pipeline(probe: Lines, name: str, real: str, middle: str) -> None:
    before = nodes()
    command = f"{TOOLS}/interception -g {real} {middle} | {TOOLS}/uinput -d {real}"
    process = subprocess.Popen(["sh", "-c", command], start_new_session=True)
    made = until("the pipeline has its device", lambda: nodes() - before).pop()
    until("udev is done", lambda: subprocess.run(["udevadm", "settle"], check=True))
    measure(probe, name, made)
    os.killpg(process.pid, 9)
    process.wait()
    until("its device is gone", lambda: made not in nodes())


def through_the_server(probe: Lines) -> None:
    server = Server()
    client = Client()
    client.hello()
    client.say("create", "pass", "on")
    client.expect("bars 1/1")
    measure(probe, "barquell", clones()[0])
    client.say("off")
    client.reached()
    measure(probe, "barquell-disabled", clones()[0])
    client.kill()
    server.kill()
    until("the clone is gone", lambda: not clones())


def through_the_program(probe: Lines) -> None:
    """The real program, asked about each frame, with Fn held so that it lets them pass."""
    server = Server()
    keyboard = Keyboard(*KEYBOARDS["keyboard"])
    program = Program(SimpleNamespace(closing=lambda each: each))
    program.expect("Blocking is in force (the pause keys)")
    program.holds(1)
    hold(program, keyboard, "FN")
    measure(probe, "program", clones()[0])
    program.close()
    keyboard.close()
    server.kill()
    until("the clone is gone", lambda: not clones())


def summary(rounds: list) -> tuple:
    """Median and 99th percentile of all frames."""
    times = sorted(time for one in rounds for time in one)
    return statistics.median(times), times[len(times) * 99 // 100]


def report() -> None:
    base = summary(results["kernel"])
    for name, rounds in results.items():
        median, p99 = summary(rounds)
        ratios = f"{median / base[0]:.2f} and {p99 / base[1]:.2f} of the kernel's"
        medians = [int(statistics.median(one)) for one in rounds]
        print(f"{name}: {sum(map(len, rounds))} frames, median {median:.0f} us, p99 {p99:.0f} us; {ratios}; "
              f"medians of the rounds {medians}")


def main() -> None:
    probe = Lines(["/out/latencyprobe", str(FRAMES // ROUNDS)])
    real = node_of(until("there is a bar", probe.lines)[0])
    for _ in range(ROUNDS):
        measure(probe, "kernel", real)
        through_the_server(probe)
        through_the_program(probe)
        if os.path.exists(TOOLS):
            pipeline(probe, "pipeline", real, "")
            pipeline(probe, "pipeline-filter", real, "| /out/passfilter")
    probe.kill()


results: dict = {}
main()
report()
