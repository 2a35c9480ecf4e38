"""What is heard of keyboards."""

from touch_checks import require, tap
from world import World, checks_of


def letters_are_never_heard(world: World) -> str:
    bar = world.plug("bar", "t2-bar")
    keyboard = world.plug("keyboard", "keyboard")
    client = world.tapping("block")
    keyboard.press(["LEFTSHIFT"])
    client.expect("flags 20002")
    wakes = world.server.number("status", "voluntary_ctxt_switches")
    for letter in "TOPSECRET" * 10:
        keyboard.press([letter])
        keyboard.release([letter])
    # The kernel puts events into queues while the device writes, so these would have been heard by now.
    keyboard.release(["LEFTSHIFT"])
    client.expect("flags 0")
    woken = world.server.number("status", "voluntary_ctxt_switches") - wakes
    require(woken <= 2, f"the server woke {woken} times for one modifier and 90 letters")
    heard = [line for line in client.lines() if line.startswith("flags")]
    require(heard == ["flags 20002", "flags 0"], f"the client heard {heard}")
    tap(bar, 10)
    client.wait_frames(2)
    return f"woke {woken} time(s), for the modifier"


def modifiers_held_from_before_are_known(world: World) -> None:
    keyboard = world.plug("keyboard", "keyboard")
    late = world.client()
    keyboard.press(["FN", "RIGHTMETA"])
    late.expect("flags 900010")
    another = world.client()
    require("welcome flags 900010 bars 0/0" in another.lines(), f"it was told {another.lines()}")
    world.session.remove("keyboard")
    late.expect("flags 0")


ALL = checks_of(globals())
