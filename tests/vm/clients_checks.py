"""What clients may do to each other, which is nothing."""

import socket
import struct

from reader import clones, until
from touch_checks import require, tap
from world import World, checks_of

VERSION = 3  # of the protocol


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
    for size in (1, 31, 32, 33, 312, 60000):
        bad = world.client()
        bad.say(f"raw {size}")
        bad.expect("refused 3")
        bad.expect("closed")
    early = world.connect()
    early.send(struct.pack("IIIIQQ", 2, 0, 0, 0, 1 << 29, 0))
    require(struct.unpack_from("III", early.recv(400))[::2] == (2, 3), "a tap before hello was not refused")
    other = world.connect()
    other.send(struct.pack("IIIIQQ", 1, 77, 0, 0, 0, 0))
    require(struct.unpack_from("III", other.recv(400)) == (2, VERSION, 1), "a wrong version was not refused")
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


class Takes:
    """What the server takes more than at the start."""

    def __init__(self, world: World):
        self._server = world.server
        self._descriptors = world.server.descriptors()
        self._memory = self._own_memory()

    def _own_memory(self) -> int:
        return self._server.number("smaps_rollup", "Private_Dirty")

    def require_little(self, descriptors: int) -> str:
        opened = self._server.descriptors() - self._descriptors
        growth = self._own_memory() - self._memory
        require(opened <= descriptors, f"{opened} descriptors more")
        require(growth < 256, f"{growth} KiB more")
        return f"{opened} descriptors and {growth} KiB more"

    def until_back(self) -> None:
        until("their places are free", lambda: self._server.descriptors() == self._descriptors)


HELLO = struct.pack("IIIIQQ", 1, VERSION, 0, 0, 0, 0)
CREATE = struct.pack("IIIIQQ", 2, 0, 0, 0, 1 << 29, 0)


def client_that_talks_without_end(world: World) -> str:
    """Each word is answered, and no answer is read."""
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block")
    takes = Takes(world)
    loud = world.connect()
    loud.send(HELLO)
    sent = 0
    for _ in range(20000):
        try:
            loud.send(CREATE, socket.MSG_DONTWAIT)
            sent += 1
        except (BlockingIOError, BrokenPipeError, ConnectionResetError):
            pass
    require(sent > 1000, f"only {sent} words were taken")
    tap(bar, 100)
    good.wait_frames(2)
    note = takes.require_little(descriptors=1)
    lines = len(world.server.lines())
    require(lines < 20, f"{lines} lines were logged")
    loud.close()
    takes.until_back()
    return f"{sent} words: {note}, {lines} lines"


def clients_that_say_and_hear_nothing(world: World) -> str:
    """Some never say hello, one never reads what it is told."""
    bar = world.plug("bar", "t2-bar")
    keyboard = world.plug("keyboard", "keyboard")
    good = world.tapping("block")
    takes = Takes(world)
    deaf = world.connect()
    deaf.send(HELLO)
    mute = [world.connect() for _ in range(3)]
    for _ in range(2000):
        keyboard.press(["LEFTSHIFT"])
        keyboard.release(["LEFTSHIFT"])
    tap(bar, 100)
    good.wait_frames(2)
    note = takes.require_little(descriptors=4)
    until("the mute ones are dropped", lambda: all(has_ended(one) for one in mute))
    require(world.server.read().count("said no hello") == 1, "more than one line of them was logged")
    require(not has_ended(deaf), "the deaf one was dropped")
    deaf.close()
    for one in mute:
        one.close()
    takes.until_back()
    return note


def has_ended(connection: socket.socket) -> bool:
    try:
        return connection.recv(1, socket.MSG_PEEK | socket.MSG_DONTWAIT) == b""
    except BlockingIOError:
        return False


ALL = checks_of(globals())
