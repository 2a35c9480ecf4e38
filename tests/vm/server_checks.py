"""The server itself: how it ends, and what it takes."""

import signal
import subprocess

from reader import BTN_TOUCH, EV_ABS, EV_KEY, ID, X, Failure, clones, until
from touch_checks import pass_mark, require, tap
from world import World, checks_of


def server_killed(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    client = world.tapping("block")
    bar.down([(0, 500, 50)])
    client.wait_frames(1)
    world.server.kill()
    client.expect("closed")
    until("the clone is gone", lambda: not clones())
    bar.up([0])
    tap(bar, 222)
    real.expect(EV_ABS, X, 222)


def server_asked_to_end(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    world.tapping("pass")
    clone = world.reader(world.clone())
    bar.down([(0, 500, 50)])
    clone.expect(EV_KEY, BTN_TOUCH, 1)
    world.server.signal(signal.SIGTERM)
    until("the clone is gone", lambda: clone.read() and clone.gone)
    require(world.server.process.wait(20) == 0, "it did not end well")
    require(clone.values(EV_ABS, ID) == [0, -1], "a finger was left on the clone")
    bar.up([0])
    tap(bar, 222)
    real.expect(EV_ABS, X, 222)


def owners_give_back_what_they_own(world: World) -> str:
    world.plug("bar", "t2-bar")
    world.plug("keyboard", "keyboard")
    probe = ["/out/ownerprobe", world.nodes["bar"], world.nodes["keyboard"]]
    answer = subprocess.run(probe, capture_output=True, text=True, check=False)
    lines = answer.stdout.splitlines()
    require(answer.returncode == 0, f"{answer.returncode}: {lines} {answer.stderr}")
    require(len(lines) == 11 and all(line.startswith("ok ") for line in lines), str(lines))
    return f"{len(lines)} answers"


def takes_little_memory(world: World) -> str:
    bar = world.plug("bar", "t2-bar")
    world.plug("keyboard", "keyboard")
    client = world.tapping("pass")
    for x in range(1000, 1200):
        tap(bar, x)
    pass_mark(client, bar, world.reader(world.clone()))
    rollup = {key: world.server.number("smaps_rollup", key) for key in ("Private_Dirty", "Private_Clean", "Rss", "Pss")}
    own = rollup["Private_Dirty"] + rollup["Private_Clean"]
    note = ", ".join(f"{key} {value} KiB" for key, value in rollup.items())
    if own > 2048:
        raise Failure(f"{own} KiB of its own: {note}")
    return f"{own} KiB of its own: {note}"


ALL = checks_of(globals())
