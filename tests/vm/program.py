"""The real program, run by an ordinary user, and what a person does in front of it."""

import itertools
import json
import os
import shutil
import signal
import subprocess
import tempfile
import time

from reader import EV_ABS, ID, X, until
from touch_checks import MARK, require, tap
from world import NOBODY, Lines, Server, World

FN = "FN"
places = itertools.count(MARK + 1)  # each once: the kernel does not repeat what a finger before has said


class Program(Lines):
    """`barquell`, with a home of its own."""

    def __init__(self, world: World):
        self.home = tempfile.mkdtemp()
        os.chown(self.home, NOBODY, NOBODY)
        world.closing(self)
        super().__init__(["/out/barquell"], **self._as_user())

    def _as_user(self) -> dict:
        environment = {**os.environ, "HOME": self.home, "XDG_CONFIG_HOME": self.home, "XDG_RUNTIME_DIR": self.home}
        return {"user": NOBODY, "group": NOBODY, "env": environment}

    def run(self, *words: str) -> subprocess.CompletedProcess:
        """The program once more, as the same user."""
        return subprocess.run(
            ["/out/barquell", *words], capture_output=True, text=True, check=False, **self._as_user()
        )

    def command(self, *words: str) -> str:
        return self.run(*words).stdout

    def defaults(self, *words: str) -> None:
        self.command("defaults", *words)

    def status(self) -> dict:
        return json.loads(self.command("status", "--json"))

    def holds(self, bars: int) -> None:
        until(f"{bars} bars are held", lambda: self.status()["barsGrabbed"] == bars)

    def close(self) -> None:
        if self.process.poll() is None:
            self.signal(signal.SIGCONT)
            self.kill()
        shutil.rmtree(self.home)


def started(world: World, bars: int = 1) -> Program:
    program = Program(world)
    program.expect("Blocking is in force (the pause keys)")
    program.holds(bars)
    return program


def with_bar(world: World):
    """A bar, a keyboard, the program, and who reads the clone."""
    bar = world.plug("bar", "t2-bar")
    keyboard = world.plug("keyboard", "keyboard")
    program = started(world)
    return bar, keyboard, program, world.reader(world.clone())


def rested(process) -> tuple:
    """Whether it sleeps, and how often it has woken up so far."""
    with open(f"/proc/{process.pid}/status", encoding="utf-8") as file:
        fields = dict(line.split(":", 1) for line in file)
    return "S" in fields["State"], fields["voluntary_ctxt_switches"]


def settle(*processes) -> None:
    """Until they have slept through for a while: all that they were given is done. What a keyboard says overtakes what
    a bar said before, as long as nobody has read it, and a touch that is swallowed leaves no other trace."""

    def slept() -> bool:
        before = [rested(process) for process in processes]
        time.sleep(0.05)
        return all(asleep for asleep, _ in before) and before == [rested(process) for process in processes]

    until("all is quiet", slept)


def hold(program, keyboard, *keys: str) -> None:
    """Presses pause keys, and waits until they count."""
    count = program.read().count("Blocking is suspended")
    keyboard.press(keys)
    until("the pause keys count", lambda: program.read().count("Blocking is suspended") > count)


def let_go(program, keyboard, *keys: str) -> None:
    count = program.read().count("Blocking is in force")
    keyboard.release(keys)
    until("the pause keys count no more", lambda: program.read().count("Blocking is in force") > count)


def mark(world: World, program, reader) -> int:
    """A touch under Fn, which passes; what came before it would have been seen as well. Where it was."""
    bar, keyboard = world.session.devices["bar"], world.session.devices["keyboard"]
    place = next(places)
    settle(world.server.process, program.process)
    hold(program, keyboard, FN)
    count = reader.values(EV_ABS, ID).count(-1)
    tap(bar, place)
    reader.expect(EV_ABS, X, place)
    until("the mark has lifted", lambda: reader.values(EV_ABS, ID).count(-1) > count)
    let_go(program, keyboard, FN)
    return place


def require_a_new_server_is_found(world: World, program) -> None:
    world.server = Server()
    program.expect("The tap server has installed the tap")
    program.holds(1)
    clone = world.reader(world.clone())
    tap(world.session.devices["bar"], 900)
    mark(world, program, clone)
    require(900 not in clone.values(EV_ABS, X), "the touch passed")


def passes(bar, reader, x: int) -> None:
    tap(bar, x)
    reader.expect(EV_ABS, X, x)


def blocked(world: World, program, reader) -> bool:
    reader.forget()
    tap(world.session.devices["bar"], 1234)
    settle(world.server.process, program.process)
    return not reader.read()
