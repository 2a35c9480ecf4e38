"""The devices the tests meet: touch bars of every model, and keyboards."""

import keys
from uinput import EV_KEY, EV_LED, EV_MSC, Axis, Description

BUS_USB, BUS_HOST, BUS_SPI = 0x03, 0x19, 0x1C
DIRECT = 0x01
BTN_TOUCH = 0x14A
MSC_SCAN, MSC_TIMESTAMP = 0x04, 0x05
LED_CAPSL = 0x01
TOOL_TYPE = 0x37
# The driver of these bars keeps 256 slots; uinput allows no more than this.
SPI_SLOTS = 100
ABS = {
    "X": 0x00,
    "Y": 0x01,
    "SLOT": 0x2F,
    "TOUCH_MAJOR": 0x30,
    "TOUCH_MINOR": 0x31,
    "WIDTH_MAJOR": 0x32,
    "WIDTH_MINOR": 0x33,
    "ORIENTATION": 0x34,
    "POSITION_X": 0x35,
    "POSITION_Y": 0x36,
    "TOOL_TYPE": TOOL_TYPE,
    "TRACKING_ID": 0x39,
}


def _axes(**limits: Axis) -> dict:
    return {ABS[name]: axis for name, axis in limits.items()}


def _bar_axes(slots: int, x: Axis, y: Axis) -> dict:
    return _axes(
        X=x, Y=y, SLOT=Axis(0, slots - 1), POSITION_X=x, POSITION_Y=y, TRACKING_ID=Axis(0, 65535)
    )


def _t2_bar(**more_axes: Axis) -> Description:
    return Description(
        name="Apple Inc. Touch Bar Display Touchpad",
        bus=BUS_USB,
        vendor=0x05AC,
        product=0x8302,
        version=0x0101,
        properties=(DIRECT,),
        codes={EV_KEY: [BTN_TOUCH], EV_MSC: [MSC_TIMESTAMP]},
        axes={**_bar_axes(11, Axis(0, 32767), Axis(0, 127)), **_axes(**more_axes)},
    )


def _spi_bar(name: str) -> Description:
    size = Axis(0, 65535)
    ellipse = _axes(
        TOUCH_MAJOR=size,
        TOUCH_MINOR=size,
        WIDTH_MAJOR=size,
        WIDTH_MINOR=size,
        ORIENTATION=Axis(-32768, 32767),
    )
    return Description(
        name=name,
        bus=BUS_SPI,
        phys="apple_z2",
        properties=(DIRECT,),
        codes={EV_KEY: [BTN_TOUCH]},
        axes={**_bar_axes(SPI_SLOTS, Axis(0, 23044, 100), Axis(0, 639, 100)), **ellipse},
    )


def _codes(table: dict) -> list:
    return [code for code, _ in table.values()]


def _keyboard(name: str, product: int, table: dict) -> Description:
    return Description(
        name=name,
        bus=BUS_USB,
        vendor=0x05AC,
        product=product,
        version=0x0101,
        codes={EV_KEY: _codes(table), EV_MSC: [MSC_SCAN], EV_LED: [LED_CAPSL]},
        repeats=True,
    )


def _drawn_bar() -> Description:
    return Description(
        name="Dynamic Function Row Virtual Input Device",
        bus=BUS_HOST,
        vendor=0x1209,
        product=0x316E,
        version=1,
        codes={EV_KEY: _codes(keys.DRAWN)},
    )


BARS = {
    "t2-bar": _t2_bar(),
    # The same bar where the kernel also tells fingers from palms.
    "t2-palm-bar": _t2_bar(TOOL_TYPE=Axis(0, 2)),
    "m1-bar": _spi_bar("MacBookPro17,1 Touch Bar"),
    "m2-bar": _spi_bar("Mac14,7 Touch Bar"),
}

KEYBOARDS = {
    "keyboard": (
        _keyboard("Apple Inc. Apple Internal Keyboard / Trackpad", 0x0340, keys.INTERNAL),
        keys.INTERNAL,
    ),
    "t2-keys": (_keyboard("Apple Inc. Touch Bar Display", 0x8302, keys.BAR), keys.BAR),
    "drawn-bar": (_drawn_bar(), keys.DRAWN),
}
