"""A seat as libinput reports it: what a desktop, or a program that draws the bar, would see there."""

import os
import re
import subprocess

ADDED = re.compile(r"^[- ](event\d+)\s+DEVICE_ADDED\s")
REMOVED = re.compile(r"^[- ](event\d+)\s+DEVICE_REMOVED\s")
TOUCH = re.compile(r"^[- ](event\d+)\s+TOUCH_(DOWN|UP|CANCEL)\s+\S+\s+(\d+) ")


class Seat:
    def __init__(self, name: str):
        self._process = subprocess.Popen(
            ["stdbuf", "-oL", "libinput", "debug-events", "--udev", name], stdout=subprocess.PIPE, stderr=subprocess.STDOUT
        )
        os.set_blocking(self._process.stdout.fileno(), False)
        self._rest = ""
        self.devices: set = set()
        self.fingers: set = set()
        self.touches = 0

    def read(self) -> "Seat":
        *lines, self._rest = (self._rest + (self._process.stdout.read() or b"").decode()).split("\n")
        for line in lines:
            self._take(line)
        return self

    def _take(self, line: str) -> None:
        if found := ADDED.match(line):
            self.devices.add(found[1])
        elif found := REMOVED.match(line):
            self.devices.discard(found[1])
        elif found := TOUCH.match(line):
            finger = (found[1], found[3])
            if found[2] == "DOWN":
                self.fingers.add(finger)
                self.touches += 1
            else:
                self.fingers.discard(finger)

    def has(self, node: str) -> bool:
        return os.path.basename(node) in self.read().devices

    def close(self) -> None:
        self._process.kill()
        self._process.wait()
