"""What clients may do to each other, which is nothing."""

import socket
import struct

from reader import clones, until
from touch_checks import require, tap
from uinput import EV_KEY, Axis, Description, Device
from world import World


def second_client_is_told_busy(world: World) -> None:
    world.plug("bar", "t2-bar")
    first = world.tapping("block")
    second = world.client()
    second.say("create")
    second.expect("refused 2")
    first.kill()
    world.server.expect("the tap has ended")
    second.say("create")
    second.expect("created")


def new_tap_at_once_keeps_the_grab(world: World) -> None:
    world.plug("bar", "t2-bar")
    client = world.tapping("block")
    before = clones()
    lines = len(client.lines())
    client.say("destroy", "create")
    client.expect("created", 2)
    require(clones() == before, "the clone was made anew")
    client.reached()
    require("bars 0/1" not in client.lines()[lines:], "the grab was given back")


def nonsense_ends_one_client_alone(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block")
    for size in (1, 31, 32, 33, 304, 60000):
        bad = world.client()
        bad.say(f"raw {size}")
        bad.expect("refused 3")
        bad.expect("closed")
    early = world.connect()
    early.send(struct.pack("IIIIQQ", 2, 0, 0, 0, 1 << 29, 0))
    require(struct.unpack_from("III", early.recv(400))[::2] == (2, 3), "a tap before hello was not refused")
    other = world.connect()
    other.send(struct.pack("IIIIQQ", 1, 77, 0, 0, 0, 0))
    require(struct.unpack_from("III", other.recv(400)) == (2, 1, 1), "a wrong version was not refused")
    tap(bar, 100)
    good.wait_frames(2)


def crowd_of_clients(world: World) -> str:
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block")
    before = world.server.descriptors()
    memory = world.server.number("smaps_rollup", "Private_Dirty")
    crowd = []
    refused = 0
    for at in range(10000):
        connection = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        connection.connect("/run/barquell/tap.sock")
        if at < 40:
            crowd.append(connection)
        else:
            refused += 1
            connection.close()
    most = world.server.descriptors()
    tap(bar, 100)
    good.wait_frames(2)
    for connection in crowd:
        connection.close()
    until("their places are free", lambda: world.server.descriptors() == before)
    lines = len(world.server.lines())
    require(most <= before + 17, f"{most} descriptors")
    require(lines < 120, f"{lines} lines were logged")
    growth = world.server.number("smaps_rollup", "Private_Dirty") - memory
    require(growth < 256, f"{growth} KiB more")
    return f"{most} descriptors at most, {lines} lines, {growth} KiB more"


def client_that_talks_without_end(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block")
    loud = world.connect()
    loud.send(struct.pack("IIIIQQ", 1, 1, 0, 0, 0, 0))
    create = struct.pack("IIIIQQ", 2, 0, 0, 0, 1 << 29, 0)
    for _ in range(3000):  # each is answered, and no answer is read
        try:
            loud.send(create, socket.MSG_DONTWAIT)
        except (BlockingIOError, BrokenPipeError, ConnectionResetError):
            pass
    tap(bar, 100)
    good.wait_frames(2)


def bar_that_cannot_be(world: World) -> None:
    description = Description(
        name="Mac99,9 Touch Bar", bus=3, properties=(1,), codes={EV_KEY: [0x14A]},
        axes={0x35: Axis(5, 5), 0x36: Axis(0, 10), 0x2F: Axis(0, 9), 0x39: Axis(0, 65535)},
    )  # fmt: skip
    world.closing(Device(description))
    line = "Mac99,9 Touch Bar: left alone, it calls itself a bar and cannot be one"
    until("the server has looked at it", lambda: line in world.server.read())
    world.plug("bar", "t2-bar")
    world.tapping("block")
    require(len(clones()) == 1, "it was cloned")
    require(world.server.read().count(line) == 1, "more than one line was logged")


ALL = [name for name, value in list(globals().items()) if getattr(value, "__annotations__", {}).get("world") is World]
