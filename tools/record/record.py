#!/usr/bin/env python3
"""Plays sessions on test devices while Debian's recorders listen to them.

    record.py OUT_DIR SESSION...

A session is written in the language of tools/vm/session.py and these lines:

    record libinput FILE NAME ...   start a recorder on the devices so named
    record evemu FILE NAME
    stop                            the recorders stand still, so that the
    resume                          kernel's buffers fill; they go on

It has to run where /dev/uinput is, as root; make-recordings sees to that.
"""

import os
import signal
import subprocess
import sys
import time

sys.dont_write_bytecode = True  # the tree is shared with the host
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../vm"))

from session import Session  # noqa: E402

# What each recorder has written once its devices are open: the kernel keeps
# everything that happens from then on for it.
READY = {"libinput": "# Current time is", "evemu": "\nN: "}


def _command(tool: str, path: str, nodes: list) -> list:
    if tool == "libinput":
        return ["libinput", "record", "--show-keycodes", "-o", path, *nodes]
    return ["evemu-record", *nodes, path]


def _read(path: str) -> str:
    try:
        with open(path, encoding="utf-8") as text:
            return text.read()
    except FileNotFoundError:
        return ""


class Recorders:
    def __init__(self, folder: str):
        self._folder = folder
        self._running: list = []

    def start(self, tool: str, name: str, nodes: list) -> None:
        path = os.path.join(self._folder, name)
        command = _command(tool, path, nodes)
        self._running.append(subprocess.Popen(command, stdout=subprocess.DEVNULL))
        for _ in range(1000):
            if READY[tool] in _read(path):
                return
            time.sleep(0.01)
        raise SystemExit(f"record: {tool} does not start on {name}")

    def send(self, number: int) -> None:
        for process in self._running:
            process.send_signal(number)

    def finish(self) -> None:
        time.sleep(0.5)  # what is still under way between kernel and file
        self.send(signal.SIGINT)
        for process in self._running:
            process.wait(timeout=20)
        self._running.clear()


def _nothing(*_words) -> None:
    pass


def play(path: str, folder: str) -> None:
    session, recorders = Session(_nothing), Recorders(folder)
    for line in _read(path).splitlines():
        words = line.split()
        if words[:1] == ["record"]:
            subprocess.run(["udevadm", "settle"], check=True)
            nodes = [session.devices[name].node for name in words[3:]]
            recorders.start(words[1], words[2], nodes)
        elif words == ["stop"]:
            recorders.send(signal.SIGSTOP)
        elif words == ["resume"]:
            recorders.send(signal.SIGCONT)
        else:
            session.run(line)
    recorders.finish()
    session.close()


def main() -> None:
    for path in sys.argv[2:]:
        play(path, sys.argv[1])


main()
