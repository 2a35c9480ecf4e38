"""The authorization window of the program itself, with the permission given and taken in the simulated bar's window."""

from desktop import expect_equal
from program_checks import Barquell
from widgets import ACCESSIBLE, Widgets

TRUST = ("check box", "Barquell may filter touches")
REQUIRED = "Authorization Required"
COMPLETE = "Authorization Complete"
PREFERENCES = "Barquell Preferences"


class Authorization:
    """`barquell --simulate` whose permission was taken away, with the window that asks for it."""

    def __init__(self, desktop):
        self.barquell = Barquell(desktop)
        self.program = self.barquell.start("--simulate", **ACCESSIBLE)
        self.widgets = Widgets(desktop, "barquell")
        desktop.focus(PREFERENCES)
        self.widgets.click(*TRUST)
        self.barquell.waits_for("trusted", False)
        desktop.key("alt+F4")
        self.widgets.gone("frame", PREFERENCES)
        self.barquell.command("show")
        self.widgets.find("frame", REQUIRED)


def touch_escape(desktop) -> None:
    """Clicks the first key of the simulated Touch Bar."""
    bar = desktop.window("Simulated Touch Bar")
    desktop.output("xdotool", "mousemove", "--window", bar, 40, 25, "click", 1)


def check_authorization_window_follows_the_permission_both_ways(desktop):
    authorization = Authorization(desktop)
    widgets = authorization.widgets
    for title, there, gone in ((COMPLETE, "Open preferences", "Allow…"), (REQUIRED, "Allow…", "Open preferences")):
        widgets.click(*TRUST)
        widgets.find("frame", title)
        widgets.find("push button", there)
        expect_equal("the other page", widgets.is_there("push button", gone), False)
        authorization.barquell.waits_for("trusted", title == COMPLETE)
        touch_escape(desktop)
        passed, held = (0, 1) if title == COMPLETE else (1, 1)
        widgets.find("label", f"Held back: {held}    Passed: {passed}")


def check_authorization_is_asked_for_by_its_button(desktop):
    widgets = Authorization(desktop).widgets
    expect_equal("asked before", widgets.is_there("label", "← Barquell asks for it"), False)
    widgets.click("push button", "Allow…")
    widgets.find("label", "← Barquell asks for it")
    expect_equal(
        "a button that leads back here", widgets.is_there("push button", "Open privacy settings…"), False
    )


def check_authorization_complete_page_leads_on_to_the_preferences(desktop):
    widgets = Authorization(desktop).widgets
    widgets.click(*TRUST)
    widgets.find("push button", "Close")
    desktop.key("Return")  # its first button
    widgets.find("frame", PREFERENCES)
    widgets.gone("frame", COMPLETE)


def check_authorization_window_closes_by_its_button_and_comes_anew(desktop):
    authorization = Authorization(desktop)
    widgets = authorization.widgets
    widgets.click(*TRUST)
    widgets.click("push button", "Close")
    widgets.gone("frame", COMPLETE)
    expect_equal("the program ended", authorization.program.process.poll(), None)
    widgets.click(*TRUST)
    authorization.barquell.waits_for("trusted", False)
    authorization.barquell.command("show")
    widgets.find("push button", "Allow…")
