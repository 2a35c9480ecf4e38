"""The program with its simulated Touch Bar, touched by a real pointer; what became of the touches as the window says."""

import re

from desktop import expect_equal, wait_until
from program_checks import Barquell
from widgets import ACCESSIBLE, Widgets

ESC = 32  # points from the bar's left end: the middle of the key
BRIGHTNESS = (136, 426)  # where the slider begins and ends
HEIGHT = 30


class Bar:
    """`barquell --simulate` with permission, without another window."""

    def __init__(self, desktop, **variables):
        self.desktop = desktop
        self.barquell = Barquell(desktop)
        self.program = self.barquell.start("--simulate", **{"FromLoginItem": "1", **ACCESSIBLE, **variables})
        self.widgets = Widgets(desktop, "barquell")
        self.locate()
        self.barquell.waits_for("trusted", True)

    def locate(self) -> None:
        """To be called when something may have moved the bar's window."""
        self.place = wait_until("the bar is shown", self._glass)

    def _glass(self) -> list | None:
        """The upper left corner of the bar, which alone among the widgets has its height and its name."""
        found = [one["place"] for one in self.widgets.all() if one["name"] == "Simulated Touch Bar"]
        return next((place[:2] for place in found if place[3] == HEIGHT and place[0] > 0), None)

    def counts(self) -> tuple:
        """Touches held back and touches passed since the start."""
        for one in self.widgets.all():
            if match := re.fullmatch(r"Held back: (\d+) +Passed: (\d+)", one["name"]):
                return int(match[1]), int(match[2])
        return 0, 0

    def touch(self, at: int = ESC) -> None:
        """One short touch; it has come to its end at the bar when this returns."""
        before = sum(self.counts())
        self.desktop.click(self.place[0] + at, self.place[1] + HEIGHT // 2)
        wait_until("the bar counts the touch", lambda: sum(self.counts()) > before)

    def becomes(self, held: int, passed: int, at: int = ESC) -> None:
        """One touch becomes that many held back and passed, one and none or none and one."""
        before = self.counts()
        self.touch(at)
        after = self.counts()
        expect_equal("held back and passed", (after[0] - before[0], after[1] - before[1]), (held, passed))

    def is_held_back(self, at: int = ESC) -> None:
        self.becomes(1, 0, at)

    def passes(self, at: int = ESC) -> None:
        self.becomes(0, 1, at)

    def slider_reaches(self, at: int) -> bool:
        """The brightness slider's groove is filled up to there, as it is at its left end."""
        groove = self.place[1] + HEIGHT - 4
        here, full = (self.desktop.pixel(self.place[0] + x, groove) for x in (at, BRIGHTNESS[0] + 20))
        return here == full

    def waits_for(self, key: str, value) -> None:
        self.barquell.waits_for(key, value)
