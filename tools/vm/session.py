"""The small language in which sessions on the test devices are written.

    add NAME MODEL                  a new device; its event node is printed
    remove NAME                     unplug it
    wait MS                         do nothing for so long
    say WORD                        print WORD, to tell how far things are
    BAR down SLOT X Y ...           fingers touch
    BAR move MS SLOT X Y ...        fingers slide, all at once
    BAR up SLOT ...                 fingers lift
    BAR tap SLOT X Y MS             down, wait, up
    BAR palm SLOT                   the driver calls the contact a palm
    BAR flood FRAMES SLOT           a finger moves faster than can be read
    KEYBOARD press KEY ...          KEY is FN, LEFTMETA, A, ...
    KEYBOARD release KEY ...
    KEYBOARD stroke MS KEY ...      press, wait, release

Empty lines and what follows a # are left out.
"""

import time

from bar import Bar
from keyboard import Keyboard
from models import BARS, KEYBOARDS


def _pause(milliseconds: str) -> None:
    time.sleep(int(milliseconds) / 1000)


def _points(words: list) -> list:
    numbers = [int(word) for word in words]
    return list(zip(numbers[0::3], numbers[1::3], numbers[2::3], strict=True))


def _act_on_bar(bar: Bar, verb: str, words: list) -> None:
    if verb == "down":
        bar.down(_points(words))
    elif verb == "move":
        bar.move(int(words[0]), _points(words[1:]))
    elif verb == "up":
        bar.up([int(word) for word in words])
    elif verb == "tap":
        bar.down(_points(words[:3]))
        _pause(words[3])
        bar.up([int(words[0])])
    elif verb == "palm":
        bar.palm(int(words[0]))
    elif verb == "flood":
        bar.flood(int(words[0]), int(words[1]))
    else:
        raise ValueError(f"a bar cannot {verb}")


def _act_on_keyboard(keyboard: Keyboard, verb: str, words: list) -> None:
    if verb == "press":
        keyboard.press(words)
    elif verb == "release":
        keyboard.release(words)
    elif verb == "stroke":
        keyboard.press(words[1:])
        _pause(words[0])
        keyboard.release(words[1:])
    else:
        raise ValueError(f"a keyboard cannot {verb}")


class Session:
    def __init__(self, tell=print):
        self._tell = tell
        self.devices: dict = {}

    def add(self, name: str, model: str) -> None:
        if model in BARS:
            self.devices[name] = Bar(BARS[model])
        else:
            self.devices[name] = Keyboard(*KEYBOARDS[model])
        self._tell(name, self.devices[name].node)

    def remove(self, name: str) -> None:
        self.devices.pop(name).close()

    def close(self) -> None:
        for name in list(self.devices):
            self.remove(name)

    def run(self, line: str) -> None:
        words = line.split("#")[0].split()
        if not words:
            return
        try:
            self._act(words[0], words[1:])
        except (KeyError, IndexError, ValueError) as problem:
            raise SystemExit(f"session: cannot do '{line.strip()}': {problem}") from problem

    def _act(self, first: str, rest: list) -> None:
        if first == "add":
            self.add(*rest)
        elif first == "remove":
            self.remove(*rest)
        elif first == "wait":
            _pause(rest[0])
        elif first == "say":
            self._tell(*rest)
        elif isinstance(self.devices[first], Bar):
            _act_on_bar(self.devices[first], rest[0], rest[1:])
        else:
            _act_on_keyboard(self.devices[first], rest[0], rest[1:])
