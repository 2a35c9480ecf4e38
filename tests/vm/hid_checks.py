"""The bar as the kernel's own driver for multitouch digitizers makes it of HID reports."""

import struct

from reader import BTN_TOUCH, EV_ABS, EV_KEY, ID, X, until
from touch_checks import require
from uhid import HidDevice
from world import World

NAME = "Apple Inc. Touch Bar Display Touchpad"
T2 = (3, 0x05AC, 0x8302)
CONTACTS = 11
REPORT, FEATURE = 1, 2

# HID 1.11, section 6.2.2, and the usage page of digitizers: a touch screen (0x04) with fingers (0x22), each with tip
# (0x42), contact identifier (0x51), X and Y; then the contact count (0x54), and its maximum (0x55) as a feature.
FINGER = bytes.fromhex(
    "05 0d 09 22 a1 02 09 42 15 00 25 01 75 01 95 01 81 02 95 07 81 03 09 51 25 7f 75 08 95 01 81 02"
    "05 01 09 30 26 ff 7f 75 10 81 02 09 31 25 7f 81 02 c0"
)
DESCRIPTOR = (
    bytes.fromhex("05 0d 09 04 a1 01 85 01")
    + FINGER * CONTACTS
    + bytes.fromhex("05 0d 09 54 25 0b 75 08 95 01 81 02 85 02 09 55 25 0b b1 02 c0")
)


def frame(*fingers: tuple) -> bytes:
    """The report of fingers: tip, identifier, x, y."""
    slots = [*fingers, *[(0, 0, 0, 0)] * (CONTACTS - len(fingers))]
    return bytes([REPORT]) + b"".join(struct.pack("<BBHH", *slot) for slot in slots) + bytes([len(fingers)])


def plug(world: World) -> HidDevice:
    """hid-multitouch takes this one only when it is told to."""
    with open("/sys/bus/hid/drivers/hid-multitouch/new_id", "w", encoding="utf-8") as ids:
        ids.write("0003 05ac 8302 1")
    device = world.closing(HidDevice(NAME, T2, DESCRIPTOR, bytes([FEATURE, CONTACTS])))

    def plugged_in() -> bool:
        device.answer()
        return f"{NAME}: plugged in" in world.server.read()

    until("the server knows the bar", plugged_in)
    return device


def bar_of_the_kernels_hid_driver(world: World) -> None:
    device = plug(world)
    client = world.tapping("pass")
    clone = world.reader(world.clone())
    device.report(frame((1, 5, 700, 60), (1, 6, 9000, 60)))
    clone.expect(EV_ABS, X, 9000)
    client.say("block")
    client.reached()
    client.frames()
    device.report(frame((0, 5, 700, 60), (1, 6, 9500, 60)))
    client.wait_frames(1)
    until("the lifted finger has left", lambda: clone.values(EV_ABS, ID).count(-1) == 1)
    device.report(frame((0, 6, 9500, 60)))
    until("both have", lambda: clone.values(EV_ABS, ID).count(-1) == 2)
    device.report(frame((1, 7, 1234, 60)))
    device.report(frame((0, 7, 1234, 60)))
    client.wait_frames(2)
    client.say("pass")
    client.reached()
    device.report(frame((1, 8, 4321, 60)))
    clone.expect(EV_ABS, X, 4321)
    device.report(frame((0, 8, 4321, 60)))
    until("it lifts", lambda: clone.values(EV_KEY, BTN_TOUCH)[-1] == 0)
    seen = clone.values(EV_ABS, X)
    require(9500 not in seen and 1234 not in seen, f"what was swallowed was seen: {seen}")


ALL = ["bar_of_the_kernels_hid_driver"]
