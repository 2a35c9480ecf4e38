"""Bars that cannot be."""

import dataclasses

from bar import Bar
from models import ABS, BARS
from reader import EV_ABS, X, clones, until
from touch_checks import require, tap
from uinput import Axis, Description, Device
from world import World

T2 = BARS["t2-bar"]
HUGE = 2**31 - 1


def with_axes(**axes) -> Description:
    """The bar of a T2 with other axes, None for none."""
    changed = {**T2.axes, **{ABS[name]: axis for name, axis in axes.items()}}
    return dataclasses.replace(T2, axes={code: axis for code, axis in changed.items() if axis})


ODD = {
    "no width": with_axes(POSITION_X=Axis(5, 5), X=Axis(5, 5)),
    "no height": with_axes(POSITION_Y=Axis(0, 0), Y=Axis(0, 0)),
    "turned round": with_axes(POSITION_X=Axis(100, -100)),
    "no position": with_axes(POSITION_X=None),
    "no slots": with_axes(SLOT=None),
    "fewer slots than none": with_axes(SLOT=Axis(0, -1)),
    "a thousand slots": with_axes(SLOT=Axis(0, 999)),
    "as many slots as numbers": with_axes(SLOT=Axis(0, HUGE)),
    "nothing at all": dataclasses.replace(T2, axes={}, codes={}),
    "no screen": dataclasses.replace(T2, properties=()),
}


def bars_that_cannot_be(world: World) -> str:
    refused, left = [], []
    for number, (what, description) in enumerate(ODD.items()):
        name = f"Mac{number},9 Touch Bar"
        try:
            world.closing(Device(dataclasses.replace(description, name=name)))
        except OSError:
            refused.append(what)  # by the kernel, so no server will ever meet it
            continue
        line = f"{name}: left alone, it calls itself a bar and cannot be one"
        until(f"the server has looked at the bar with {what}", lambda: line in world.server.read())
        require(world.server.read().count(name) == 1, f"more than one line about the bar with {what}")
        left.append(what)
    require(len(left) > 5, f"only {left} were tried")
    bar = world.plug("bar", "t2-bar")
    client = world.tapping("block")
    require(len(clones()) == 1, "one of them was cloned")
    tap(bar, 100)
    client.wait_frames(2)
    return f"left alone: {', '.join(left)}; refused by the kernel: {', '.join(refused)}"


def bar_as_wide_as_numbers(world: World) -> None:
    """Its width is no number of the kernel's, but it is one."""
    wide = Axis(-HUGE, HUGE)
    bar = world.closing(Bar(with_axes(POSITION_X=wide, X=wide)))
    world.tapping("pass")
    reader = world.reader(world.clone())
    for x in (-HUGE, 0, HUGE):
        tap(bar, x)
        reader.expect(EV_ABS, X, x)


ALL = ["bars_that_cannot_be", "bar_as_wide_as_numbers"]
