"""Server and program killed at random moments, over and over. Afterwards nothing is stuck: libinput sees no finger down,
touches pass while either is away, and when both are back they are held back again. And a server that cannot live."""

import contextlib
import os
import random
import shutil
import signal
import subprocess
import threading
import time

from machine import SERVICE, SOCKET_UNIT, Machine, require_blocked, require_nothing_held, require_passing, state
from people import told
from reader import until
from seats import Seat
from touch_checks import require, tap

ROUNDS = int(os.environ.get("BARQUELL_KILLS", "200"))
FN = "FN"


class Fingers(threading.Thread):
    """Two fingers that come, slide and go without end, now and then under Fn, until they are told to rest."""

    def __init__(self, bar, keyboard, seed: int):
        super().__init__(daemon=True)
        self._bar, self._keyboard = bar, keyboard
        self._random = random.Random(seed)
        self._rest = threading.Event()
        self.start()

    def run(self) -> None:
        while not self._rest.is_set():
            under_fn = self._random.random() < 0.5
            if under_fn:
                self._keyboard.press([FN])
            slots = [0] if self._random.random() < 0.5 else [0, 1]
            self._bar.down([(slot, self._random.randrange(30000), 60) for slot in slots])
            self._bar.move(self._random.randrange(10, 60), [(slot, self._random.randrange(30000), 50) for slot in slots])
            self._bar.up(slots)
            if under_fn:
                self._keyboard.release([FN])

    def rest(self) -> None:
        self._rest.set()
        self.join()


class Run:
    def __init__(self, machine: Machine):
        self.machine = machine
        self.program, _ = machine.blocking(machine.anna)
        self.seats = [machine.closing(Seat("seat-touchbar")), machine.closing(Seat("seat0"))]
        self.counts = {"the server": 0, "the program": 0, "both": 0}
        until("libinput has the bar", lambda: self.seats[1].has(machine.nodes["bar"]))

    def round(self, number: int) -> None:
        devices = self.machine.session.devices
        fingers = Fingers(devices["bar"], devices["keyboard"], number)
        chance = random.Random(number * 7919)
        victim = chance.choice(list(self.counts))
        time.sleep(chance.uniform(0.02, 0.25))  # the moment is the point
        self.kill(victim)
        self.counts[victim] += 1
        time.sleep(chance.uniform(0, 0.1))
        fingers.rest()
        if victim != "the server":
            self.touches_pass_without_the_program(number)
            self.program = self.machine.program(self.machine.anna)
        self.recovered()

    def kill(self, victim: str) -> None:
        if victim != "the program":
            os.kill(self.machine.server.process.pid, signal.SIGKILL)
        if victim != "the server":
            self.program.signal(signal.SIGKILL)
            self.program.wait()

    def touches_pass_without_the_program(self, number: int) -> None:
        reader = self.machine.reader(self.machine.nodes["bar"])
        # Those that come while the kernel still takes leave of the dead go with them.
        until("touches pass", lambda: tap(self.machine.session.devices["bar"], 1000 + number) or reader.read())

    def recovered(self) -> None:
        self.program.blocks()
        reader = self.machine.held(self.machine.anna)
        until("libinput has the clone", lambda: self.seats[0].has(self.machine.clone()))
        require_blocked(self.machine, self.program, reader)
        require_nothing_held(self.machine)
        for seat in self.seats:
            until("libinput sees no finger", lambda seat=seat: not seat.read().fingers)


def nothing_is_stuck_after_any_death(machine: Machine) -> str:
    run = Run(machine)
    for number in range(1, ROUNDS + 1):
        try:
            run.round(number)
            if number % 20 == 0:
                print(f"  {number} rounds", flush=True)
        except Exception as problem:
            raise type(problem)(f"round {number}: {problem}") from problem
    require(sum(run.counts.values()) == ROUNDS, str(run.counts))
    touches = sum(seat.touches for seat in run.seats)
    require(touches > ROUNDS, f"libinput saw only {touches} touches")
    kills = ", ".join(f"{victim} {count}" for victim, count in run.counts.items())
    return f"{ROUNDS} kills ({kills}), {touches} touches seen by libinput, none stuck"


@contextlib.contextmanager
def stillborn_server():
    """A service that ends as soon as it starts, and a slow machine's time for the socket to notice."""
    changes = {
        SERVICE: "[Service]\nExecStart=\nExecStart=/bin/false\n",
        SOCKET_UNIT: "[Socket]\nTriggerLimitIntervalSec=600\n",
    }
    folders = [f"/run/systemd/system/{unit}.d" for unit in changes]
    try:
        for folder, change in zip(folders, changes.values()):
            os.makedirs(folder)
            with open(f"{folder}/stillborn.conf", "w", encoding="utf-8") as file:
                file.write(change)
        subprocess.run(["systemctl", "daemon-reload"], check=True)
        yield
    finally:
        for folder in folders:
            shutil.rmtree(folder)
        subprocess.run(["systemctl", "daemon-reload"], check=True)


def server_that_dies_at_every_start_is_given_up_and_mended(machine: Machine) -> str:
    program, reader = machine.blocking(machine.anna)
    require_blocked(machine, program, reader)
    with stillborn_server():
        os.kill(machine.server.process.pid, signal.SIGKILL)
        until("the socket is given up", lambda: state(SOCKET_UNIT) == "failed")
        require_passing(machine)
        doctor = machine.anna.output("barquell", "doctor")
    deaths = told("journalctl", "-q", "-o", "cat", "-u", SERVICE).count("Failed with result 'exit-code'")
    require(deaths >= 20, f"it died {deaths} times")
    mend = "systemctl enable --now barquell-tapd.socket"
    require(mend in doctor, f"doctor said {doctor}")
    require(program.poll() is None, "the program has ended")
    subprocess.run(mend.split(), check=True, capture_output=True)
    require_blocked(machine, program, machine.held(machine.anna))
    return f"after {deaths} deaths"


ALL = ["server_that_dies_at_every_start_is_given_up_and_mended", "nothing_is_stuck_after_any_death"]
