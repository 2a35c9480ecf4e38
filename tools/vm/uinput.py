"""One evdev device made through the kernel's /dev/uinput."""

import dataclasses
import fcntl
import glob
import os
import struct
import time

EV_SYN, EV_KEY, EV_ABS, EV_MSC, EV_LED, EV_REP = 0x00, 0x01, 0x03, 0x04, 0x11, 0x14

_CREATE, _DESTROY = 0x5501, 0x5502
_SETUP, _ABS_SETUP = 0x405C5503, 0x401C5504
_SET_EVENT, _SET_PROPERTY, _SET_PHYS = 0x40045564, 0x4004556E, 0x4008556C
_SET_CODE = {EV_KEY: 0x40045565, EV_ABS: 0x40045567, EV_MSC: 0x40045568, EV_LED: 0x40045569}
_GET_SYSNAME = 0x8040552C


@dataclasses.dataclass(frozen=True)
class Axis:
    minimum: int
    maximum: int
    resolution: int = 0


@dataclasses.dataclass(frozen=True)
class Description:
    """What a device says of itself: its names and all that it can report."""

    name: str
    bus: int
    vendor: int = 0
    product: int = 0
    version: int = 0
    phys: str = ""
    properties: tuple = ()
    codes: dict = dataclasses.field(default_factory=dict)
    axes: dict = dataclasses.field(default_factory=dict)
    repeats: bool = False


class Device:
    def __init__(self, description: Description):
        self._fd = os.open("/dev/uinput", os.O_WRONLY | os.O_CLOEXEC)
        self._describe(description)
        fcntl.ioctl(self._fd, _CREATE)
        self.node = self._wait_for_node()

    def _describe(self, what: Description) -> None:
        for kind, codes in what.codes.items():
            fcntl.ioctl(self._fd, _SET_EVENT, kind)
            for code in codes:
                fcntl.ioctl(self._fd, _SET_CODE[kind], code)
        if what.repeats:
            fcntl.ioctl(self._fd, _SET_EVENT, EV_REP)
        for number in what.properties:
            fcntl.ioctl(self._fd, _SET_PROPERTY, number)
        if what.phys:
            fcntl.ioctl(self._fd, _SET_PHYS, what.phys.encode() + b"\0")
        self._describe_axes(what.axes)
        identity = struct.pack("4H", what.bus, what.vendor, what.product, what.version)
        fcntl.ioctl(self._fd, _SETUP, identity + struct.pack("80sI", what.name.encode(), 0))

    def _describe_axes(self, axes: dict) -> None:
        if axes:
            fcntl.ioctl(self._fd, _SET_EVENT, EV_ABS)
        for code, axis in axes.items():
            info = struct.pack("6i", 0, axis.minimum, axis.maximum, 0, 0, axis.resolution)
            fcntl.ioctl(self._fd, _ABS_SETUP, struct.pack("H2x", code) + info)

    def _wait_for_node(self) -> str:
        answer = fcntl.ioctl(self._fd, _GET_SYSNAME, bytes(64))
        pattern = f"/sys/class/input/{answer.split(bytes(1))[0].decode()}/event*"
        for _ in range(500):
            nodes = ["/dev/input/" + os.path.basename(path) for path in glob.glob(pattern)]
            if nodes and os.path.exists(nodes[0]):
                return nodes[0]
            time.sleep(0.01)
        raise TimeoutError(f"no event node at {pattern}")

    def write(self, events: list) -> None:
        """Sends a frame; one write, so that no reader sees half of it for long."""
        events = events + [(EV_SYN, 0, 0)]
        os.write(self._fd, b"".join(struct.pack("qqHHi", 0, 0, *event) for event in events))

    def close(self) -> None:
        fcntl.ioctl(self._fd, _DESTROY)
        os.close(self._fd)
