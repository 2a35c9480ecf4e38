"""A touch bar that reports its contacts as the kernel's drivers do."""

import time

from models import ABS, BTN_TOUCH, MSC_TIMESTAMP
from uinput import EV_ABS, EV_KEY, EV_MSC, Description, Device

FRAME = 0.010
FINGER, PALM = 0, 2


class Bar:
    """Keeps what every slot holds, and sends frames in the drivers' order:
    the slots, then the touch button and the pointer made of the oldest
    contact, then the time stamp. The kernel itself leaves out what did not
    change."""

    def __init__(self, description: Description):
        self._device = Device(description)
        self.node = self._device.node
        self._axes = description.axes
        self._timed = EV_MSC in description.codes
        self._contacts: dict = {}
        self._serial = 0
        self._start = time.monotonic()

    def down(self, points: list) -> None:
        for slot, x, y in points:
            self._contacts[slot] = [self._serial & 0xFFFF, x, y]
            self._serial += 1
        self._send([slot for slot, _, _ in points])

    def move(self, milliseconds: int, points: list) -> None:
        """Moves contacts together, on straight lines, in real time."""
        origins = [(slot, *self._contacts[slot][1:]) for slot, _, _ in points]
        frames = max(1, round(milliseconds / 1000 / FRAME))
        due = time.monotonic()
        for frame in range(1, frames + 1):
            for (slot, x, y), (_, to_x, to_y) in zip(origins, points):
                part = frame / frames
                self._contacts[slot][1:] = [
                    x + round((to_x - x) * part),
                    y + round((to_y - y) * part),
                ]
            due += FRAME
            time.sleep(max(0.0, due - time.monotonic()))
            self._send([slot for slot, _, _ in points])

    def up(self, slots: list) -> None:
        for slot in slots:
            del self._contacts[slot]
        self._send(slots)

    def palm(self, slot: int) -> None:
        """The driver takes a contact back: it says palm in the last report
        of the contact and lifts it at once, without a time stamp."""
        self._send([slot], PALM)
        del self._contacts[slot]
        self._device.write(self._slot(slot, FINGER) + self._pointer())

    def flood(self, frames: int, slot: int) -> None:
        """Frames as fast as they can be written, to outrun a reader."""
        for frame in range(frames):
            self._contacts[slot][1] = 100 + frame * 7
            self._send([slot])

    def close(self) -> None:
        self._device.close()

    def _send(self, slots: list, tool: int = FINGER) -> None:
        events = [event for slot in slots for event in self._slot(slot, tool)]
        events += self._pointer()
        if self._timed:
            microseconds = int((time.monotonic() - self._start) * 1e6)
            events.append((EV_MSC, MSC_TIMESTAMP, microseconds & 0x7FFFFFFF))
        self._device.write(events)

    def _slot(self, slot: int, tool: int) -> list:
        contact = self._contacts.get(slot)
        start = [(EV_ABS, ABS["SLOT"], slot)]
        if contact is None:
            return start + [(EV_ABS, ABS["TRACKING_ID"], -1)]
        number, x, y = contact
        values = {"TRACKING_ID": number, "TOOL_TYPE": tool, "POSITION_X": x, "POSITION_Y": y}
        values.update(self._ellipse(x, y))
        return start + [
            (EV_ABS, ABS[name], value)
            for name, value in values.items()
            if ABS[name] in self._axes
        ]

    @staticmethod
    def _ellipse(x: int, y: int) -> dict:
        # A finger's size wavers a little as it moves.
        return {
            "WIDTH_MAJOR": 900 + x % 37,
            "WIDTH_MINOR": 780 + y % 23,
            "ORIENTATION": 16384 + x % 11,
            "TOUCH_MAJOR": 520 + x % 29,
            "TOUCH_MINOR": 430 + y % 19,
        }

    def _pointer(self) -> list:
        events = [(EV_KEY, BTN_TOUCH, int(bool(self._contacts)))]
        if self._contacts:
            _, x, y = min(self._contacts.values())
            events += [(EV_ABS, ABS["X"], x), (EV_ABS, ABS["Y"], y)]
        return events
