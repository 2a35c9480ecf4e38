"""The server under test, its clients, and the devices; made anew for each check."""

import os
import socket
import subprocess

from reader import Failure, Reader, clones, until
from session import Session

SOCKET = "/run/barquell/tap.sock"
NOBODY = 65534


class Lines:
    """A process that is talked to in lines."""

    def __init__(self, command: list, **options):
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options
        )
        os.set_blocking(self.process.stdout.fileno(), False)
        self.text = ""

    def read(self) -> str:
        self.text += (self.process.stdout.read() or b"").decode(errors="replace")
        return self.text

    def lines(self) -> list:
        return self.read().splitlines()

    def expect(self, line: str, count: int = 1) -> None:
        def seen() -> bool:
            return sum(line == one or one.endswith(": " + line) for one in self.lines()) >= count

        try:
            until("", seen)
        except Failure:
            raise Failure(f"no '{line}' among {self.lines()[-12:]}") from None

    def say(self, *lines: str) -> None:
        self.process.stdin.write("".join(line + "\n" for line in lines).encode())
        self.process.stdin.flush()

    def signal(self, number: int) -> None:
        self.process.send_signal(number)

    def kill(self) -> None:
        self.process.kill()
        self.process.wait()


def grant(user: int) -> None:
    subprocess.run(["/out/barquell-tapd", "--grant", str(user)], check=True)


def withdraw(user: int) -> None:
    subprocess.run(["/out/barquell-tapd", "--withdraw", str(user)], check=True)


class Server(Lines):
    """The server, where those whom the checks run as have a grant: an ordinary user, and root."""

    def __init__(self):
        grant(NOBODY)
        grant(0)
        super().__init__(["/out/barquell-tapd", "--mode", "666"])
        self.expect(f"listening at {SOCKET}")

    def proc(self, name: str) -> str:
        with open(f"/proc/{self.process.pid}/{name}", encoding="utf-8") as file:
            return file.read()

    def number(self, name: str, key: str) -> int:
        for line in self.proc(name).splitlines():
            if line.startswith(key + ":"):
                return int(line.split()[1])
        raise Failure(f"no {key} in {name}")

    def descriptors(self) -> int:
        return len(os.listdir(f"/proc/{self.process.pid}/fd"))


class Client(Lines):
    """The test client, as an ordinary user unless told."""

    def __init__(self, user: int = NOBODY):
        super().__init__(["/out/tapclient", SOCKET], user=user, group=user)
        self._words = 0

    def hello(self) -> None:
        self.say("hello")
        until("the client is welcome", lambda: "welcome" in self.read())

    def reached(self) -> None:
        """What was said so far was sent before this returns."""
        self._words += 1
        self.say(f"say word-{self._words}")
        self.expect(f"word-{self._words}")

    def frames(self) -> int:
        """How many frames it has heard of since it was last asked."""
        before = self.read().count("frames ")
        self.say("stat")
        until("the client counts", lambda: self.read().count("frames ") > before)
        return int([line for line in self.lines() if line.startswith("frames ")][-1].split()[1])

    def wait_frames(self, count: int) -> None:
        seen = 0

        def enough() -> bool:
            nonlocal seen
            seen += self.frames()
            return seen >= count

        until(f"the client has heard of {count} frames", enough)


class World:
    """A server, and what a check adds to it."""

    def __init__(self):
        self.server = Server()
        self.nodes: dict = {}
        self.session = Session(self.nodes.__setitem__)
        self._closing: list = []

    def plug(self, name: str, model: str):
        self.session.add(name, model)
        return self.session.devices[name]

    def client(self, user: int = NOBODY) -> Client:
        client = Client(user)
        self._closing.append(client.kill)
        client.hello()
        return client

    def tapping(self, mode: str, bars: int = 1, user: int = NOBODY) -> Client:
        """A client with an enabled tap, and the bars held for it."""
        client = self.client(user)
        client.say("create", mode, "on")
        client.expect("created")
        if bars:
            client.expect(f"bars {bars}/{bars}")
        client.reached()
        return client

    def clone(self) -> str:
        return until("there is a clone", clones)[0]

    def reader(self, node: str) -> Reader:
        reader = Reader(node)
        self._closing.append(reader.close)
        return reader

    def closing_by(self, close) -> None:
        self._closing.append(close)

    def closing(self, thing):
        self._closing.append(thing.close)
        return thing

    def connect(self) -> socket.socket:
        connection = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        connection.connect(SOCKET)
        return connection

    def close(self) -> None:
        for close in reversed(self._closing):
            close()
        self.session.close()
        if self.server.process.poll() is None:
            self.server.kill()
        until("no clone is left", lambda: not clones())


def checks_of(module: dict) -> list:
    """The names of the functions that a module itself defines for a world alone."""

    def is_check(value) -> bool:
        takes_a_world = getattr(value, "__annotations__", {}).get("world") is World
        return takes_a_world and value.__code__.co_argcount == 1 and value.__module__ == module["__name__"]

    return [name for name, value in module.items() if is_check(value)]
