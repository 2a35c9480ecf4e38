"""What becomes of touches."""

import signal
import subprocess
import time

from reader import BTN_TOUCH, EV_ABS, EV_KEY, ID, SLOT, TOOL, X, Failure, Libinput, clones, held, until
from world import World, checks_of

MARK = 7001  # where a finger comes down that is meant to be seen


def require(condition: bool, what: str) -> None:
    if not condition:
        raise Failure(what)


def tap(bar, x: int, slot: int = 0) -> None:
    bar.down([(slot, x, 60)])
    bar.up([slot])


def pass_mark(client, bar, reader) -> None:
    """A touch that passes; what came before it has then been seen as well."""
    client.say("pass")
    client.reached()
    tap(bar, MARK)
    reader.expect(EV_ABS, X, MARK)
    reader.expect(EV_KEY, BTN_TOUCH, 0)


def nothing_passes_while_swallowing(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("block")
    real, clone = world.reader(world.nodes["bar"]), world.reader(world.clone())
    seen = world.closing(Libinput(world.clone()))
    for x in range(1000, 1010):
        tap(bar, x)
    client.wait_frames(20)
    pass_mark(client, bar, clone)
    require(clone.values(EV_ABS, X) == [MARK], f"the clone sent {clone.values(EV_ABS, X)}")
    require(clone.values(EV_KEY, BTN_TOUCH) == [1, 0], "the clone's touch key moved")
    require(not real.read(), "the grabbed bar was heard")
    until("libinput sees the mark", lambda: seen.count("TOUCH_UP") == 1)
    require(seen.count("TOUCH_DOWN") == 1, "libinput saw a swallowed touch")


def everything_passes_while_passing(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    world.tapping("pass")
    clone = world.reader(world.clone())
    seen = world.closing(Libinput(world.clone()))
    positions = list(range(2000, 2400, 20))
    bar.down([(0, positions[0], 50), (1, 9000, 60)])
    for x in positions[1:]:
        bar.move(10, [(0, x, 50)])
    bar.up([0, 1])
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    xs = [x for x in clone.values(EV_ABS, X) if x != 9000]
    require(xs == positions, f"the clone sent {xs}")
    require(clone.values(EV_ABS, ID) == [0, 1, -1, -1], f"contacts {clone.values(EV_ABS, ID)}")
    until("libinput sees both lifted", lambda: seen.count("TOUCH_UP") == 2)
    require(seen.count("TOUCH_DOWN") == 2, "libinput saw another number of touches")
    require(seen.count("TOUCH_MOTION") == len(positions) - 1, "libinput missed a motion")


def clone_looks_like_its_bar(world: World) -> None:
    for model in ("t2-bar", "t2-palm-bar"):
        world.plug(model, model)
    world.tapping("pass", bars=2)
    described = [
        subprocess.run(["evemu-describe", node], capture_output=True, check=True).stdout
        for node in [*world.nodes.values(), *sorted(clones())]
    ]
    # The phys is no part of it: no event is told by where it comes from.
    require(len(described) == 4 and set(described[:2]) == set(described[2:]), "they differ")


def disabled_tap_passes_without_asking(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("block")
    client.say("off")
    client.reached()
    clone = world.reader(world.clone())
    tap(bar, 4321)
    clone.expect(EV_ABS, X, 4321)
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    require(client.frames() == 0, "the client was asked")


def no_tap_gives_the_bar_back(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    tap(bar, 111)
    real.expect(EV_ABS, X, 111)
    require(not clones(), "there is a clone without a tap")
    client = world.tapping("block")
    client.say("destroy")
    until("the clone is gone", lambda: not clones())
    tap(bar, 222)
    real.expect(EV_ABS, X, 222)


def touch_from_before_blocking_ends_cleanly(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("pass")
    clone = world.reader(world.clone())
    bar.down([(0, 500, 50)])
    clone.expect(EV_ABS, X, 500)
    client.say("block")
    client.reached()
    bar.move(50, [(0, 900, 50)])
    bar.up([0])
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    require(clone.values(EV_ABS, X) == [500], "it moved while it was swallowed")
    require(clone.values(EV_ABS, ID) == [0, -1], "its contact did not end once")


def two_fingers_one_lifted_unseen(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("pass")
    node = world.clone()
    clone = world.reader(node)
    bar.down([(0, 500, 50), (1, 8000, 50)])
    clone.expect(EV_ABS, X, 8000)
    client.frames()
    client.say("block")
    client.reached()
    bar.up([0])
    client.wait_frames(1)
    until("the first finger has left the clone", lambda: held(node)[:2] == [-1, 1])
    client.say("pass")
    client.reached()
    bar.up([1])
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    require(set(held(node)) == {-1}, "a finger is left on the clone")


def lost_events_are_asked_for(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    world.tapping("pass")
    node = world.clone()
    clone = world.reader(node)
    bar.down([(0, 500, 50), (3, 9000, 50)])
    clone.expect(EV_ABS, X, 9000)
    # The lift comes first: when the kernel's queue runs over it keeps the newest event alone.
    world.server.signal(signal.SIGSTOP)
    bar.up([3])
    bar.flood(300, 0)
    world.server.signal(signal.SIGCONT)
    real = world.nodes["bar"]
    until("the clone holds what the bar holds", lambda: held(node) == held(real) and held(node, X) == held(real, X))
    require(held(node)[0] == 0 and held(node)[3] == -1, f"it holds {held(node)[:4]}")
    bar.down([(5, 700, 50)])
    until("the new finger is there", lambda: held(node)[5] != -1)
    world.server.signal(signal.SIGSTOP)
    bar.up([0])
    bar.flood(300, 5)
    bar.up([5])
    world.server.signal(signal.SIGCONT)
    until("the clone is free", lambda: set(held(node)) == {-1})


def unplugged_in_mid_touch_and_back(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("pass")
    clone = world.reader(world.clone())
    bar.down([(0, 500, 50)])
    clone.expect(EV_KEY, BTN_TOUCH, 1)
    world.session.remove("bar")
    client.expect("bars 0/0")
    until("the clone is gone", lambda: clone.read() and clone.gone)
    require(clone.values(EV_ABS, ID) == [0, -1], f"contacts {clone.values(EV_ABS, ID)}")
    require(clone.values(EV_KEY, BTN_TOUCH) == [1, 0], "the touch key stayed down")
    bar = world.plug("bar", "t2-bar")
    client.expect("bars 1/1", 2)
    clone = world.reader(world.clone())
    tap(bar, 600)
    clone.expect(EV_ABS, X, 600)


def palms_cancel_where_the_bar_knows_them(world: World) -> None:
    bar = world.plug("bar", "t2-palm-bar")
    client = world.tapping("pass")
    clone = world.reader(world.clone())
    seen = world.closing(Libinput(world.clone()))
    bar.down([(0, 500, 50)])
    clone.expect(EV_KEY, BTN_TOUCH, 1)
    client.say("block")
    client.reached()
    bar.up([0])
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    require(clone.values(EV_ABS, TOOL) == [2], f"tools {clone.values(EV_ABS, TOOL)}")
    until("libinput sees it cancelled", lambda: seen.count("TOUCH_CANCEL") == 1)
    pass_mark(client, bar, clone)
    require(clone.values(EV_ABS, TOOL)[:2] == [2, 0], "the next finger is still a palm")
    until("libinput sees the next finger", lambda: seen.count("TOUCH_DOWN") == 2)


def grab_waits_for_a_free_bar(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    bar.down([(0, 500, 50)])
    client = world.client()
    client.say("create", "block", "on")
    client.expect("created")
    world.clone()
    bar.move(50, [(0, 700, 50)])
    require("bars 1/1" not in client.lines(), "a bar with a finger on it was grabbed")
    bar.up([0])
    client.expect("bars 1/1")
    real.expect(EV_KEY, BTN_TOUCH, 0)
    real.forget()
    tap(bar, 800)
    client.wait_frames(2)
    require(not real.read(), "the grabbed bar was heard")


def bar_that_comes_after_the_tap(world: World) -> None:
    client = world.tapping("block", bars=0)
    bar = world.plug("bar", "m1-bar")
    client.expect("bars 1/1")
    clone = world.reader(world.clone())
    tap(bar, 300, slot=99)
    client.wait_frames(2)
    pass_mark(client, bar, clone)
    require(clone.values(EV_ABS, X) == [MARK], "a swallowed touch was seen")
    tap(bar, 5000, slot=99)
    clone.expect(EV_ABS, X, 5000)
    require(99 in clone.values(EV_ABS, SLOT), "the last slot was not passed on")


def client_killed_in_mid_touch(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    client = world.tapping("block")
    clone = world.reader(world.clone())
    bar.down([(0, 500, 50)])
    client.wait_frames(1)
    client.kill()
    world.server.expect("the tap has ended")
    bar.move(50, [(0, 700, 50)])
    clone.expect(EV_ABS, X, 700)
    require(not real.read(), "it was given back with a finger on it")
    bar.up([0])
    clone.expect(EV_KEY, BTN_TOUCH, 0)
    until("the clone is gone", lambda: not clones())
    tap(bar, 222)
    real.expect(EV_ABS, X, 222)
    require(real.values(EV_KEY, BTN_TOUCH)[0] == 1, "the bar's reader saw half a touch")


def client_that_stands_still(world: World) -> str:
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("block")
    clone = world.reader(world.clone())
    client.signal(signal.SIGSTOP)
    start = time.monotonic()
    tap(bar, 1234)
    clone.expect(EV_ABS, X, 1234)
    waited = time.monotonic() - start
    require(1.0 <= waited < 3, f"it passed after {waited:.3f} s")
    tap(bar, 1235)
    clone.expect(EV_ABS, X, 1235)
    client.signal(signal.SIGCONT)
    client.expect("disabled")
    clone.forget()
    client.say("on")
    client.reached()
    client.frames()
    tap(bar, 1236)
    client.wait_frames(2)
    pass_mark(client, bar, clone)
    require(clone.values(EV_ABS, X) == [MARK], "it does not block again")
    return f"passed after {waited:.3f} s"


ALL = checks_of(globals())
