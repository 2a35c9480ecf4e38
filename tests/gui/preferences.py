"""The program with its preferences window open, and its settings as its command tells them."""

import json

from desktop import expect_equal, wait_until
from program_checks import Barquell
from widgets import ACCESSIBLE, Widgets

TITLE = "Barquell Preferences"
TABS = {  # in the order of the toolbar: what each tab has and no other
    "General": ("check box", "Start Barquell at login"),
    "Touch Bar": ("check box", "Block touches on the Touch Bar"),
    "Shortcuts": ("push button", "Turn blocking on or off"),
}
EXPERT = ("push button", "Reset all settings…")
APPS = ("list", "Apps without blocking")


class Preferences:
    """`barquell --simulate` with permission, which shows its preferences when it starts."""

    def __init__(self, desktop, animated: bool = False, **variables):
        self.desktop = desktop
        self.barquell = Barquell(desktop)
        if not animated:  # what is to be clicked stands still
            self.barquell.command("defaults", "write", "AnimatedWindowSizing", "-bool", "false")
        self.program = self.barquell.start("--simulate", **ACCESSIBLE, **variables)
        self.widgets = Widgets(desktop, "barquell")
        self.widgets.ignored.add("Simulated Touch Bar")
        desktop.focus(TITLE)

    def has(self, content: tuple) -> None:
        """The tab with that content is shown, and at rest."""
        self.widgets.find(*content)

    def open_tab(self, name: str) -> None:
        self.desktop.key(f"ctrl+{list(TABS).index(name) + 1}")
        self.has(TABS[name])

    def open_expert(self) -> None:
        self.desktop.key("ctrl+alt+0")
        self.has(EXPERT)

    def open_apps(self) -> None:
        self.open_tab("Touch Bar")
        self.widgets.click("push button", "Apps without blocking…")
        self.has(APPS)

    def highlighted(self) -> list:
        """The tabs whose item in the toolbar is highlighted."""
        items = {one["name"]: one for one in self.widgets.all() if one["name"] in TABS}
        return [name for name in TABS if items[name]["checked"]]

    def setting(self, key: str):
        """What is stored; None where nothing is."""
        text = self.desktop.answer(str(self.barquell.binary), "defaults", "read", "--json", key)
        return json.loads(text) if text else None

    def settings(self) -> dict:
        """All that is stored."""
        return json.loads(self.barquell.command("defaults", "read", "--json"))

    def waits_for(self, key: str, value) -> None:
        wait_until(f"{key} is stored as {value!r}", lambda: self.setting(key) == value)

    def expect_tab(self, name: str) -> None:
        self.has(TABS[name])
        expect_equal("the highlighted tab", self.highlighted(), [name])
