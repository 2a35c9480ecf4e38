"""The installed product, the devices, and what a check adds; made anew for each check."""

import glob
import os
import shutil
import socket
import struct
import subprocess

from asker import VERSION, WELCOME, WISHES
from people import Agent, Person, Started, told
from program import mark, passes
from reader import EV_ABS, X, Libinput, Reader, clones, held, until
from session import Session
from touch_checks import require, tap

SERVICE, SOCKET_UNIT = "barquell-tapd.service", "barquell-tapd.socket"
GRANTS = "/var/lib/barquell/grants"
PACKAGE = "barquell"


def package_file() -> str:
    return glob.glob("/out/*.deb")[0]


def installed() -> bool:
    return told("dpkg-query", "-W", "-f", "${db:Status-Status}", PACKAGE) == "installed"


def install() -> None:
    result = subprocess.run(["dpkg", "-i", package_file()], capture_output=True, text=True, check=False)
    require(result.returncode == 0, f"dpkg said {result.stdout}{result.stderr}")


def state(unit: str) -> str:
    return told("systemctl", "show", "-p", "ActiveState", "--value", unit).strip()


class Service:
    """The running server, seen from outside."""

    class _Process:
        @property
        def pid(self) -> int:
            return int(told("systemctl", "show", "-p", "MainPID", "--value", SERVICE))

    def __init__(self):
        self.process = self._Process()


class Program(Started):
    """`barquell`, started by a person in their session."""

    def __init__(self, person: Person, **environment: str):
        self.person = person
        super().__init__(person, ["barquell"], False, {"QT_QPA_PLATFORM": "minimal", **environment})

    def blocks(self, count: int = 1) -> None:
        self.expect("Blocking is in force", count)


class Machine:
    """What a check works with; close() leaves the machine as it was found."""

    def __init__(self):
        self.anna, self.bert = Person("anna", 1), Person("bert", 2)
        self.server = Service()
        self.nodes: dict = {}
        self.session = Session(self.nodes.__setitem__)
        self._closing: list = []
        self._since = told("journalctl", "-n", "0", "--show-cursor", "-q").split("cursor: ")[-1].strip()

    def closing(self, thing):
        self._closing.append(thing.close)
        return thing

    def later(self, action) -> None:
        self._closing.append(action)

    def plug(self, name: str, model: str):
        self.session.add(name, model)
        return self.session.devices[name]

    def clone(self) -> str:
        return until("there is a clone", clones)[0]

    def reader(self, node: str) -> Reader:
        return self.closing(Reader(node))

    def libinput(self, node: str) -> Libinput:
        return self.closing(Libinput(node))

    def log(self, unit: str = SERVICE) -> list:
        """What a unit has said in this check."""
        told("journalctl", "--sync")
        match = f"_SYSTEMD_UNIT={unit}"
        return told("journalctl", "-q", "-o", "cat", match, "--after-cursor", self._since).splitlines()

    def start(self, person: Person, *command: str, **options) -> Started:
        return self.closing(person.start(*command, **options))

    def asker(self, person: Person, *wishes: str) -> Started:
        """A client that begins when it is told to."""
        return self.start(person, "python3", "-B", "/out/asker.py", *wishes)

    def agent(self, person: Person, process: int) -> Agent:
        return self.closing(Agent(person, process))

    def grant(self, *people: Person) -> None:
        """Without asking anybody, as an administrator may."""
        for person in people:
            subprocess.run(["barquell-tapd", "--grant", person.name], check=True)

    def withdraw(self, person: Person) -> None:
        subprocess.run(["barquell-tapd", "--withdraw", person.name], check=True)

    def program(self, person: Person, **environment: str) -> Program:
        return self.closing(Program(person, **environment))

    def held(self, person: Person) -> Reader:
        """Who reads the clone, once the bar is held for the person. A clone that has served stays for a moment."""
        until(f"the bar is held for {person.name}", lambda: bars_grabbed(person) == 1)
        until("there is one clone", lambda: len(clones()) == 1)
        return self.reader(self.clone())

    def blocking(self, person: Person):
        """A bar, a keyboard, the person's program that holds touches back, and who reads the clone."""
        self.plug("keyboard", "keyboard")
        self.plug("bar", "t2-bar")
        if not self.granted(person):
            self.grant(person)
        program = self.program(person)
        program.blocks()
        return program, self.held(person)

    def granted(self, person: Person) -> bool:
        return os.path.exists(f"{GRANTS}/{person.uid}")

    def idle(self) -> None:
        """The service as it is before anybody has come."""
        subprocess.run(["systemctl", "stop", SERVICE], check=False, capture_output=True)

    def close(self) -> None:
        for close in reversed(self._closing):
            close()
        self.session.close()
        for person in (self.anna, self.bert):
            if installed() and self.granted(person):
                self.withdraw(person)
            shutil.rmtree(f"{person.home}/.config/com.vexolith.barquell", ignore_errors=True)
        self.anna.come_to_the_front()
        self.idle()
        until("no clone is left", lambda: not clones())


def bars_grabbed(person: Person) -> int:
    """What the server tells a client of that person."""
    with socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET) as server:
        server.settimeout(60)
        os.seteuid(person.uid)
        try:
            server.connect("/run/barquell/tap.sock")
        finally:
            os.seteuid(0)
        server.send(struct.pack("=4I2Q", WISHES["hello"], VERSION, 0, 0, 0, 0))
        answer = server.recv(1024)
        welcome = len(answer) > 16 and struct.unpack_from("=I", answer)[0] == WELCOME
        return struct.unpack_from("=H", answer, 14)[0] if welcome else 0


def require_passing(machine: Machine) -> None:
    """With no clone, on the bar itself."""
    passes(machine.session.devices["bar"], machine.reader(machine.nodes["bar"]), 800)


def require_blocked(machine: Machine, program, reader: Reader, x: int = 1234) -> None:
    reader.forget()
    tap(machine.session.devices["bar"], x)
    place = mark(machine, program, reader)
    require(reader.values(EV_ABS, X) == [place], f"the clone sent {reader.values(EV_ABS, X)}")


def require_nothing_held(machine: Machine) -> None:
    for node in [*clones(), *(machine.nodes[name] for name in machine.session.devices if name == "bar")]:
        require(set(held(node)) == {-1}, f"{node} holds {[value for value in held(node) if value != -1]}")
