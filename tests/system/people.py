"""Who sits at this machine, and what they start."""

import json
import os
import pty
import socket
import subprocess
import termios

from reader import Failure, until

ACTION = "com.vexolith.barquell.filter-touch-bar"


class Talk:
    """A process's output, read without waiting; it ends with the process."""

    def __init__(self, descriptor: int):
        self._descriptor = descriptor
        os.set_blocking(descriptor, False)
        self.text = ""

    def read(self) -> str:
        try:
            while data := os.read(self._descriptor, 65536):
                self.text += data.decode(errors="replace")
        except BlockingIOError:
            pass
        except OSError:
            pass  # a terminal whose other end has gone
        return self.text

    def lines(self) -> list:
        return self.read().splitlines()

    def expect(self, text: str, count: int = 1) -> None:
        try:
            until("", lambda: self.read().count(text) >= count)
        except Failure:
            raise Failure(f"no '{text}' ({count}) in {self.lines()[-12:]}") from None


class Started(Talk):
    """What a person has started in their login session. It has a terminal of its own, or pipes."""

    def __init__(self, person, command: list, terminal: bool, environment: dict):
        self._notice, notice = os.pipe()
        if terminal:
            self._input, child = pty.openpty()
            given = [child, child, child, notice]
            output = os.dup(self._input)
        else:
            child_input, self._input = os.pipe()
            output, child_output = os.pipe()
            given = [child_input, child_output, child_output, notice]
        super().__init__(output)
        self._connection = person.ask(command, terminal, environment, given)
        for descriptor in set(given):
            os.close(descriptor)
        self.pid = int(self._connection.recv(64))
        self.process = self  # as those that were started otherwise have it
        self._status = None

    def noticed(self) -> None:
        """Until the process has closed its descriptor 3."""
        os.set_blocking(self._notice, False)

        def closed() -> bool:
            try:
                return os.read(self._notice, 1) == b""
            except BlockingIOError:
                return False

        until("the process is ready", closed)

    def is_hiding(self) -> bool:
        """Whether its terminal shows nothing of what is typed. What was typed before that is thrown away."""
        return not termios.tcgetattr(self._input)[3] & termios.ECHO

    def say(self, line: str) -> None:
        os.write(self._input, line.encode() + b"\n")

    def poll(self):
        if self._status is None:
            self._connection.setblocking(False)
            try:
                self._status = int(self._connection.recv(64))
            except BlockingIOError:
                pass
        return self._status

    def wait(self) -> int:
        until("the process has ended", lambda: self.poll() is not None)
        return self._status

    def signal(self, number: int) -> None:
        if self.poll() is None:
            os.kill(self.pid, number)

    def kill(self) -> None:
        self.signal(18)  # CONT
        self.signal(9)
        self.wait()

    def close(self) -> None:
        self.kill()
        self.read()
        for descriptor in (self._input, self._descriptor, self._notice):
            os.close(descriptor)
        self._connection.close()


class Person:
    """One who is logged in at a console."""

    def __init__(self, name: str, console: int):
        self.name = name
        self.console = console
        self.home = f"/home/{name}"
        self.uid = os.stat(self.home).st_uid

    def ask(self, command: list, terminal: bool, environment: dict, given: list) -> socket.socket:
        path = f"/run/seated/tty{self.console}"
        until(f"{self.name} sits at the console", lambda: os.path.exists(path))
        connection = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        connection.connect(path)
        request = {"command": command, "terminal": terminal, "environment": environment}
        socket.send_fds(connection, [json.dumps(request).encode()], given)
        return connection

    def start(self, *command: str, terminal: bool = False, **environment: str) -> Started:
        return Started(self, list(command), terminal, environment)

    def run(self, *command: str, **environment: str) -> Started:
        """Until it has ended."""
        started = self.start(*command, **environment)
        started.wait()
        started.read()
        return started

    def output(self, *command: str) -> str:
        started = self.run(*command)
        started.close()
        return started.text

    def word(self) -> str:
        return f"{self.name}-s word"

    def come_to_the_front(self) -> None:
        subprocess.run(["chvt", str(self.console)], check=True)

        def active() -> bool:
            session = told("loginctl", "show-seat", "seat0", "-p", "ActiveSession", "--value").strip()
            return session and told("loginctl", "show-session", session, "-p", "Name", "--value").strip() == self.name

        until(f"{self.name} is in front", active)


def told(*command: str) -> str:
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


class Agent:
    """The system's prompt, with a person who types at it. It speaks for one process, as the one in a desktop speaks for
    its session."""

    def __init__(self, person: Person, process: int):
        self._prompt = person.start(
            "pkttyagent", "--process", str(process), "--notify-fd", "3", terminal=True, LANG="C.UTF-8"
        )
        try:
            self._prompt.noticed()
        except Failure:
            raise Failure(f"no prompt for process {process}: {self.said()}, {self._prompt.poll()}") from None

    def answer(self, word: str, count: int = 1) -> None:
        """At the prompt that has come for the given time."""
        self._prompt.expect("Password:", count)
        until("the prompt hides what is typed", self._prompt.is_hiding)
        self._prompt.say(word)

    def asked(self) -> bool:
        return "Password:" in self._prompt.read()

    def said(self) -> str:
        return self._prompt.read()

    def close(self) -> None:
        self._prompt.close()
