"""Hard times: floods, frozen processes, fingers in the wrong moment."""

import contextlib
import os
import pathlib
import shutil
import signal
import time

from grant_checks import GRANTS, SECOND, stranger
from program import FN, blocked, hold, let_go, mark, passes, require_a_new_server_is_found, with_bar
from reader import BTN_TOUCH, EV_ABS, EV_KEY, EV_SYN, ID, SYN_DROPPED, X, held, until
from touch_checks import require, tap
from world import NOBODY, World, checks_of

FLOOD = 3000  # frames as fast as they can be written


def own_memory(of: World) -> int:
    return sum(of.server.number("smaps_rollup", key) for key in ("Private_Dirty", "Private_Clean"))


def program_in_a_flood(world: World) -> str:
    """Frames come faster than the server is let to read, and then faster than the program can judge."""
    bar, keyboard, program, reader = with_bar(world)
    node, real = world.clone(), world.nodes["bar"]
    memory = own_memory(world)
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60), (3, 9000, 60)])
    reader.expect(EV_ABS, X, 9000)
    world.server.signal(signal.SIGSTOP)
    bar.up([3])
    bar.flood(FLOOD, 0)
    world.server.signal(signal.SIGCONT)
    until("the clone holds what the bar holds", lambda: held(node) == held(real) and held(node, X) == held(real, X))
    let_go(program, keyboard, FN)
    bar.flood(FLOOD, 0)
    bar.up([0])
    until("the clone is free", lambda: set(held(node)) == {-1})
    until("touches are blocked", lambda: blocked(world, program, reader))
    mark(world, program, reader)
    require("Timeout" not in program.read(), "the flood cost the tap")
    growth = own_memory(world) - memory
    require(growth < 256, f"{growth} KiB more")
    return f"{growth} KiB more after {2 * FLOOD} frames"


def freeze() -> None:
    """All processes are frozen for some seconds, as for a suspend; the devices stay awake, since the machine's own
    root file system is one that does not come back."""
    with open("/sys/power/pm_test", "w", encoding="utf-8") as test:
        test.write("freezer")
    with open("/sys/power/state", "w", encoding="utf-8") as state:
        state.write("freeze")


def processes_frozen_and_thawed(world: World) -> str:
    bar, keyboard, program, reader = with_bar(world)
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60)])
    reader.expect(EV_ABS, X, 700)
    start = time.monotonic()
    freeze()
    slept = time.monotonic() - start
    require(slept > 3, f"they were frozen for {slept:.1f} s")
    let_go(program, keyboard, FN)
    bar.up([0])
    until("the clone is free", lambda: set(held(world.clone())) == {-1})
    until("touches are blocked", lambda: blocked(world, program, reader))
    mark(world, program, reader)
    require(program.status()["barsGrabbed"] == 1, "the bar was given back")
    return f"frozen for {slept:.1f} s"


def halves(contacts: list) -> int:
    """How many touches were seen without their end, or without their beginning. None may be left open at last."""
    before = [-1, *contacts]
    require(before[-1] == -1, "a finger stayed down")
    return sum((one == -1) == (other == -1) for one, other in zip(before, contacts))


def short_touches_while_the_bar_is_seized(world: World) -> str:
    """Each touch belongs to the readers of the bar or to the tap, as a whole. Only what comes and goes in the
    very moment of a change may lose its beginning or its end to the other; the next touch puts that right."""
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    client = world.client()
    rounds, touches = 8, 0

    def touch_until(line: str, count: int) -> None:
        nonlocal touches
        while client.read().count(line) < count:
            tap(bar, 100 + touches)
            touches += 1
            real.read()  # the kernel keeps a few dozen touches for it
            time.sleep(0.001 * (touches % 5))

    for number in range(1, rounds + 1):
        client.say("create", "block", "on")
        touch_until("bars 1/1", number)
        client.say("destroy")
        touch_until("bars 0/1", number + 1)  # the welcome said so as well
    tap(bar, 99)
    contacts, keys = real.values(EV_ABS, ID), real.values(EV_KEY, BTN_TOUCH)
    require((EV_SYN, SYN_DROPPED) not in [event[:2] for event in real.events], "the reader was too slow")
    seen = sum(contact != -1 for contact in contacts)
    halved = halves(contacts)
    require(halved <= 2 * rounds, f"{halved} touches were halved in {rounds} changes and back")
    require(keys.count(0) == contacts.count(-1) and keys[-1] == 0, "the touch key is out of step")
    require(0 < seen < touches, f"{seen} of {touches} were seen, so nothing was tried")
    return f"{touches} touches, {seen} of them seen, {halved} in halves"


@contextlib.contextmanager
def users_out_of_reach():
    """Whoever looks a user up waits, as for a directory that does not answer: the list of users is a pipe."""
    users, kept, pipe = (pathlib.Path(f"/etc/passwd{end}") for end in ("", ".kept", ".pipe"))
    shutil.copy2(users, kept)
    os.mkfifo(pipe)
    pipe.rename(users)
    try:
        yield
    finally:
        waited_for = os.open(users, os.O_RDWR | os.O_NONBLOCK)
        kept.rename(users)
        os.write(waited_for, users.read_bytes())
        os.close(waited_for)


def stuck_server_lets_touches_pass(world: World, get_stuck) -> str:
    """Under a finger that it has let through."""
    bar, keyboard, program, reader = with_bar(world)
    real = world.reader(world.nodes["bar"])
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60)])
    reader.expect(EV_ABS, X, 700)
    let_go(program, keyboard, FN)
    with users_out_of_reach():
        start = time.monotonic()
        get_stuck()
        until("the server ends", lambda: world.server.process.poll() is not None)
        waited = time.monotonic() - start
        require(world.server.process.returncode == 1, f"it ended with {world.server.process.returncode}")
        until("the clone has gone", lambda: reader.read() and reader.gone)
        bar.up([0])
        passes(bar, real, 222)
        require(set(held(world.nodes["bar"])) == {-1}, f"the bar holds {held(world.nodes['bar'])}")
    require(4.9 <= waited < 10, f"it ended after {waited:.2f} s")
    require(world.server.read().count("stuck") == 1, f"it said {world.server.lines()}")
    world.server.expect("stuck for 5 s, ending so that touches pass")
    require_a_new_server_is_found(world, program)
    return f"it ended after {waited:.2f} s"


def server_stuck_over_a_question(world: World) -> str:
    return stuck_server_lets_touches_pass(world, lambda: stranger(world, "request", SECOND))


def server_stuck_over_a_changed_grant(world: World) -> str:
    """Which the program looks at as well, and gets stuck just so."""
    return stuck_server_lets_touches_pass(world, lambda: os.utime(GRANTS / str(NOBODY)))


ALL = checks_of(globals())
