"""Who may filter, and whose turn it is."""

import os
import pathlib
import shutil
import signal
import socket
import subprocess

from program import settle
from reader import EV_ABS, ID, X, clones, held, until
from touch_checks import require, tap
from world import NOBODY, SOCKET, Client, Lines, Server, World, checks_of, grant, withdraw

GRANTS = pathlib.Path("/var/lib/barquell/grants")
SEATS = pathlib.Path("/run/systemd/seats")
SECOND = 1  # another ordinary user
NOT_GRANTED, NO_ANSWER = "refused 4", "refused 6"


def stranger(of: World, word: str, user: int = NOBODY) -> Client:
    """A client that is not welcome, and the first thing it says."""
    client = Client(user)
    of.closing_by(client.kill)
    client.say(word)
    return client


def nobody_without_a_grant_is_served(world: World) -> None:
    withdraw(NOBODY)
    client = stranger(world, "hello")
    client.expect(NOT_GRANTED)
    client.expect("closed")
    world.server.expect(f"client {client.process.pid} of user {NOBODY}: refused, its user has no grant")


COMPLAINTS = ["means nothing", "too large", "no regular file", "not root's"]  # each once, for whatever it is said of


def grant_of_any_bytes_is_refused_in_one_line(world: World) -> str:
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block", user=0)
    path = GRANTS / str(NOBODY)
    whole = path.read_bytes()
    contents = [b"", b"\n", whole[:-1], whole + whole, b"\0" * 40, os.urandom(100), os.urandom(4000)]
    before = len(world.server.lines())
    for content in contents:
        path.write_bytes(content)
        stranger(world, "hello").expect(NOT_GRANTED)
    for make in (path.mkdir, lambda: os.mkfifo(path), lambda: path.symlink_to("/etc/passwd")):
        path.unlink() if not path.is_dir() else path.rmdir()
        make()
        stranger(world, "hello").expect(NOT_GRANTED)
    path.unlink()
    path.write_bytes(whole)
    os.chown(path, NOBODY, NOBODY)
    stranger(world, "hello").expect(NOT_GRANTED)
    os.chown(path, 0, 0)
    world.client()
    tap(bar, 100)
    good.wait_frames(2)
    lines = world.server.lines()[before:]
    said = [why for line in lines for why in COMPLAINTS if why in line]
    require(said == COMPLAINTS, f"it said {lines}")
    return f"{len(contents) + 4} files, {len(said)} lines"


def grant_withdrawn_in_mid_touch_frees_the_bar(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    real = world.reader(world.nodes["bar"])
    client = world.tapping("pass")
    clone = world.reader(world.clone())
    bar.down([(0, 500, 50)])
    clone.expect(EV_ABS, X, 500)
    withdraw(NOBODY)
    client.expect(NOT_GRANTED)
    client.expect("closed")
    bar.up([0])
    until("the clone has gone", lambda: clone.read() and clone.gone)
    require(clone.values(EV_ABS, ID) == [0, -1], f"the clone sent {clone.values(EV_ABS, ID)}")
    tap(bar, 222)
    real.expect(EV_ABS, X, 222)


def user_gives_the_own_grant_up(world: World) -> None:
    client = world.client()
    root = world.client(user=0)
    leaving = stranger(world, "withdraw")
    leaving.expect("withdrawn")
    leaving.expect("closed")
    client.expect(NOT_GRANTED)
    require(not (GRANTS / str(NOBODY)).exists(), "the grant is still there")
    root.reached()
    require(NOT_GRANTED not in root.lines(), "another user's client was refused")


def request_without_a_bus_has_no_answer(world: World) -> None:
    withdraw(NOBODY)
    for _ in range(3):
        client = stranger(world, "request")
        client.expect(NO_ANSWER)
        client.expect("closed")
    require(world.server.read().count("nobody answers") == 1, "it was not said in one line")
    grant(NOBODY)
    client = stranger(world, "request")
    client.expect("granted")


BUS = """<busconfig><type>system</type><listen>unix:path=/run/dbus/system_bus_socket</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>"""


class Bus:
    """A system bus, with somebody in polkit's place who does what a check says."""

    def __init__(self, world: World):
        os.makedirs("/run/dbus")
        world.closing_by(lambda: shutil.rmtree("/run/dbus"))
        with open("/run/dbus/bus.conf", "w", encoding="utf-8") as file:
            file.write(BUS)
        self.daemon = Lines(["dbus-daemon", "--nofork", "--print-address", "--config-file=/run/dbus/bus.conf"])
        world.closing_by(self.daemon.kill)
        until("the bus is there", lambda: "unix:path" in self.daemon.read())
        self.polkit = Lines(["python3", "-B", "/out/polkit.py"])
        world.closing_by(self.polkit.kill)
        self.polkit.expect("serving as org.freedesktop.PolicyKit1")


def person_is_asked_over_the_system_bus(world: World) -> str:
    """Which comes after the server."""
    bar = world.plug("bar", "t2-bar")
    good = world.tapping("block", user=0)
    withdraw(NOBODY)
    settle(world.server.process)
    before = world.server.descriptors()
    bus = Bus(world)
    question = "asked about unix-process {} of %d: com.vexolith.barquell.filter-touch-bar, flags 1" % NOBODY
    for word, answer in (("no", "refused 5"), ("nobody", NO_ANSWER), ("yes", "granted")):
        client = stranger(world, "request")
        bus.polkit.expect(question.format(client.process.pid))
        second = stranger(world, "request")
        second.expect("refused 2")
        bus.polkit.say(word)
        client.expect(answer)
        client.expect("closed")
    world.client()
    withdraw(NOBODY)
    leaving = stranger(world, "request")
    bus.polkit.expect(question.format(leaving.process.pid))
    gone = bus.polkit.read().count("whoever asked has left")
    leaving.kill()
    until("the question is taken back", lambda: bus.polkit.read().count("whoever asked has left") > gone)
    waiting = stranger(world, "request")
    bus.polkit.expect(question.format(waiting.process.pid))
    bus.daemon.kill()
    waiting.expect(NO_ANSWER)
    tap(bar, 100)
    good.wait_frames(2)
    until("nothing is left open", lambda: world.server.descriptors() == before)
    return f"{world.server.number('smaps_rollup', 'Private_Dirty')} KiB dirty afterwards"


class Seat:
    """The login manager's account of who is in front, as it writes it (systemd-logind 252)."""

    def __init__(self, world: World):
        SEATS.mkdir(parents=True)
        world.closing_by(lambda: shutil.rmtree(SEATS))

    def front(self, user) -> None:
        active = f"ACTIVE=c{user}\nACTIVE_UID={user}\n" if user is not None else ""
        new = SEATS / ".#seat0"
        new.write_text(f"IS_SEAT0=1\nCAN_MULTI_SESSION=1\n{active}", encoding="utf-8")
        new.rename(SEATS / "seat0")


def two_users_hand_the_tap_over_and_back(world: World) -> str:
    grant(SECOND)
    world.closing_by(lambda: withdraw(SECOND))
    seat = Seat(world)
    seat.front(NOBODY)
    bar = world.plug("bar", "t2-bar")
    keyboard = world.plug("keyboard", "keyboard")
    first = world.tapping("block")
    second = world.tapping("pass", bars=0, user=SECOND)
    require("welcome flags 0 bars 1/1 behind" in second.lines(), f"it was told {second.lines()}")
    node = world.clone()
    clone = world.reader(node)
    count = 0
    for turn in range(20):
        seat.front(SECOND)
        world.server.expect(f"in front: user {SECOND}", turn + 1)
        bar.down([(0, 1000 + turn, 50)])
        clone.expect(EV_ABS, X, 1000 + turn)
        seat.front(NOBODY)
        world.server.expect(f"in front: user {NOBODY}", turn + 1)
        bar.move(5, [(0, 9000, 50)])
        bar.up([0])
        count = turn + 1
        until("the finger has left", lambda: clone.values(EV_ABS, ID).count(-1) == count)
        require(set(held(node)) == {-1}, f"the clone holds {held(node)}")
    require(9000 not in clone.values(EV_ABS, X), "the second user's rule held for the first")
    heard = len(second.lines())
    keyboard.press(["LEFTSHIFT"])
    first.expect("flags 20002")
    keyboard.release(["LEFTSHIFT"])
    second.reached()
    new = [line for line in second.lines()[heard:] if line.startswith("flags")]
    require(not new, f"who is behind heard {new}")
    seat.front(None)
    world.server.expect("in front: nobody")
    until("the bar is given back", lambda: not clones())
    seat.front(NOBODY)
    until("the bar is held again", clones)
    return f"{count} times there and back"


def folder_of_seats_alone_is_no_login_manager(world: World) -> None:
    """It is made on every machine with systemd; the file of seat0 is the login manager's, which may come late."""
    grant(SECOND)
    world.closing_by(lambda: withdraw(SECOND))
    seat = Seat(world)
    world.server.kill()
    world.server = Server()
    world.plug("bar", "t2-bar")
    world.tapping("block")
    second = world.client(user=SECOND)
    require(second.lines() == ["welcome flags 0 bars 1/1"], f"it was told {second.lines()}")
    second.say("create", "block")
    second.expect("refused 2")  # the first tap wins
    seat.front(SECOND)
    world.server.expect(f"in front: user {SECOND}")
    until("the bar is given back", lambda: not clones())
    require("welcome flags 0 bars 0/1 behind" in world.client().lines(), "who is behind is not told")
    seat.front(None)
    world.server.expect("in front: nobody")
    require("welcome flags 0 bars 0/1 behind" in world.client(SECOND).lines(), "who is behind is not told")
    (SEATS / "seat0").unlink()
    world.server.expect("in front: everybody")
    until("the bar is held again", clones)


class Activated(Lines):
    """The server as a service manager starts it, with a socket made before."""

    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        self.socket.bind(SOCKET)
        os.chmod(SOCKET, 0o666)
        self.socket.listen()
        command = ["sh", "-c", "LISTEN_PID=$$ LISTEN_FDS=1 exec /out/barquell-tapd"]
        os.dup2(self.socket.fileno(), 3)
        super().__init__(command, pass_fds=[3])

    def close(self) -> None:
        if self.process.poll() is None:
            self.kill()
        self.socket.close()
        os.unlink(SOCKET)


def server_that_is_started_for_clients_goes_when_idle(world: World) -> None:
    world.server.signal(signal.SIGTERM)
    world.server.process.wait(20)
    activated = world.closing(Activated())
    activated.expect(f"listening at {SOCKET}")
    world.plug("bar", "t2-bar")
    client = world.tapping("block")
    client.kill()
    try:
        activated.process.wait(20)
        require(False, "it went too early")
    except subprocess.TimeoutExpired:
        pass
    require(activated.process.wait(30) == 0, "it did not end well")
    activated.expect("nobody needs it any more")
    require(os.path.exists(SOCKET), "it removed what was handed over")


ALL = checks_of(globals())
