"""A keyboard, or a bar that acts as one."""

from models import MSC_SCAN
from uinput import EV_KEY, EV_MSC, Description, Device


class Keyboard:
    def __init__(self, description: Description, table: dict):
        self._device = Device(description)
        self.node = self._device.node
        self._table = table

    def press(self, names: list) -> None:
        self._send(names, 1)

    def release(self, names: list) -> None:
        self._send(names, 0)

    def close(self) -> None:
        self._device.close()

    def _send(self, names: list, value: int) -> None:
        for name in names:
            code, usage = self._table["KEY_" + name]
            scan = [(EV_MSC, MSC_SCAN, usage)] if usage else []
            self._device.write(scan + [(EV_KEY, code, value)])
