"""A program's windows as a screen reader finds them, and the pointer and keys that act on what was found."""

import json
import pathlib
import subprocess

from desktop import Failure, die_with_parent, wait_until

READER = pathlib.Path(__file__).resolve().parent / "screenreader"
ACCESSIBLE = {"QT_ACCESSIBILITY": "1", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # for the program's environment


class Widgets:
    """The widgets of one program. Each is what ./screenreader says of it: role, name, place, states."""

    def __init__(self, desktop, program: str):
        self.desktop = desktop
        self.ignored: set = set()  # titles of windows
        self._reader = subprocess.Popen(
            [READER, program],
            env=desktop.environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            preexec_fn=die_with_parent,
        )

    def all(self) -> list:
        """Of all windows, as they are now."""
        return [one for one in self._ask("widgets") if one["window"] not in self.ignored]

    def came_to(self) -> list:
        """What the keyboard came to since this was asked last."""
        return self._ask("focus")

    def _ask(self, question: str) -> list:
        self._reader.stdin.write(f"{question}\n")
        self._reader.stdin.flush()
        line = self._reader.stdout.readline()
        if not line:
            raise Failure("the screen reader has ended")
        return json.loads(line)

    def matching(self, role: str, name: str, description: str = "") -> list:
        """A name of "" is any."""
        return [
            one
            for one in self.all()
            if one["role"] == role and name in ("", one["name"]) and description in one["description"]
        ]

    def find(self, role: str, name: str, description: str = "") -> dict:
        """The one widget of that role and name, once it is there and nothing moves any more."""
        seen: list = []

        def at_rest() -> bool:
            seen.append(self.matching(role, name, description))
            return len(seen) > 1 and len(seen[-1]) == 1 and seen[-1] == seen[-2]

        wait_until(f"one {role} {name or description!r} at rest", at_rest)
        return seen[-1][0]

    def is_there(self, role: str, name: str) -> bool:
        return bool(self.matching(role, name))

    def gone(self, role: str, name: str) -> None:
        wait_until(f"no {role} {name!r}", lambda: not self.is_there(role, name))

    def click(self, role: str, name: str, description: str = "") -> dict:
        """Clicks its middle; a check box or radio button at its mark."""
        widget = self.find(role, name, description)
        self.desktop.click(*self.grip(widget))
        return widget

    @staticmethod
    def grip(widget: dict) -> tuple:
        x, y, width, height = widget["place"]
        return x + (min(10, width // 2) if widget["role"] == "check box" else width // 2), y + height // 2

    def focused(self) -> dict | None:
        """What has the keyboard."""
        focused = [one for one in self.all() if one["focused"]]
        return focused[-1] if focused else None

    def moves_focus(self, key: str) -> dict:
        """Presses the key and answers what has the keyboard then, which is another widget than before."""
        before = self.focused()
        self.desktop.key(key)
        return wait_until(f"{key} moves on from {before}", lambda: (now := self.focused()) and now != before and now)
