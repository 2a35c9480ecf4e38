"""A HID device of our own, made through /dev/uhid: the kernel's HID drivers make an input device of it, as they do of
real hardware. Layouts of the events: linux/uhid.h."""

import os
import select
import struct

_GET_REPORT, _GET_REPORT_REPLY, _CREATE2, _INPUT2, _DESTROY = 9, 10, 11, 12, 1
_EVENT = 4 + 4376  # type, and the largest of what follows


class HidDevice:
    def __init__(self, name: str, ids: tuple, descriptor: bytes, feature: bytes):
        """`ids` are bus, vendor and product; `feature` is what every feature report is answered with."""
        self._fd = os.open("/dev/uhid", os.O_RDWR | os.O_NONBLOCK | os.O_CLOEXEC)
        self._feature = feature
        bus, vendor, product = ids
        what = struct.pack("<128s64s64sHHIIII", name.encode(), b"", b"", len(descriptor), bus, vendor, product, 0, 0)
        self._write(_CREATE2, what + descriptor)

    def _write(self, kind: int, data: bytes) -> None:
        os.write(self._fd, struct.pack("<I", kind) + data)

    def answer(self) -> None:
        """Answers what the driver asks; to be called until the device is there."""
        while select.select([self._fd], [], [], 0)[0]:
            event = os.read(self._fd, _EVENT)
            if struct.unpack_from("<I", event)[0] == _GET_REPORT:
                number = struct.unpack_from("<I", event, 4)[0]
                self._write(_GET_REPORT_REPLY, struct.pack("<IHH", number, 0, len(self._feature)) + self._feature)

    def report(self, data: bytes) -> None:
        self._write(_INPUT2, struct.pack("<H", len(data)) + data)

    def close(self) -> None:
        self._write(_DESTROY, b"")
        os.close(self._fd)
