"""Independent readers of event nodes: what a program sees that knows nothing of Barquell."""

import array
import fcntl
import glob
import os
import select
import struct
import subprocess
import time

EV_SYN, EV_KEY, EV_ABS = 0, 1, 3
SLOT, X, Y, TOOL, ID = 0x2F, 0x35, 0x36, 0x37, 0x39
BTN_TOUCH, SYN_DROPPED = 0x14A, 3
PATIENCE = float(os.environ.get("BARQUELL_PATIENCE", "20"))  # seconds; machines are slow, and only a failure waits so long


class Failure(Exception):
    pass


def until(what: str, happened, patience: float = PATIENCE):
    """Looks again and again until it has happened; what it then returns."""
    deadline = time.monotonic() + patience
    while True:
        result = happened()
        if result:
            return result
        if time.monotonic() > deadline:
            raise Failure(f"waited in vain until {what}")
        time.sleep(0.005)


def clones() -> list:
    """Event nodes of clones, found as anybody would: by what the kernel says of them."""
    found = []
    for path in glob.glob("/sys/class/input/event*/device/phys"):
        try:
            with open(path, encoding="utf-8") as phys:
                if phys.read().strip() == "barquell/clone":
                    found.append("/dev/input/" + path.split("/")[4])
        except OSError:
            pass  # it has just gone
    return found


def held(node: str, code: int = ID, slots: int = 100) -> list:
    """What the kernel says a device's slots hold, EVIOCGMTSLOTS."""
    with open(node, "rb", buffering=0) as file:
        values = array.array("i", [code] + [-1] * slots)
        size = len(values) * 4
        fcntl.ioctl(file, (2 << 30) | (size << 16) | (ord("E") << 8) | 0x0A, values)
        return list(values[1:])


class Reader:
    """All that a node reports from now on."""

    def __init__(self, node: str):
        self._fd = os.open(node, os.O_RDONLY | os.O_NONBLOCK | os.O_CLOEXEC)
        self.events: list = []
        self.gone = False

    def read(self) -> list:
        while not self.gone:
            try:
                data = os.read(self._fd, 24 * 64)
            except BlockingIOError:
                break
            except OSError:
                self.gone = True
                break
            self.events += [e[2:] for e in struct.iter_unpack("qqHHi", data)]
        return self.events

    def values(self, kind: int, code: int) -> list:
        return [event[2] for event in self.read() if event[:2] == (kind, code)]

    def expect(self, kind: int, code: int, value: int) -> None:
        until(f"the reader sees {kind} {code:#x} {value}", lambda: value in self.values(kind, code))

    def wait_readable(self, seconds: float) -> bool:
        return bool(select.select([self._fd], [], [], seconds)[0])

    def forget(self) -> None:
        self.read()
        self.events.clear()

    def close(self) -> None:
        os.close(self._fd)


class Libinput:
    """libinput debug-events on one device."""

    def __init__(self, node: str):
        command = ["stdbuf", "-oL", "libinput", "debug-events", "--device", node]
        self._process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        os.set_blocking(self._process.stdout.fileno(), False)
        self.text = ""
        until("libinput has the device", lambda: "DEVICE_ADDED" in self.read())

    def read(self) -> str:
        self.text += (self._process.stdout.read() or b"").decode()
        return self.text

    def count(self, word: str) -> int:
        return self.read().count(word)

    def close(self) -> None:
        self._process.kill()
        self._process.wait()
