"""The main menu's keys in the program's windows."""

from desktop import expect_equal, on_screen, wait_until
from preferences import TITLE, Preferences
from program_checks import Barquell, ended

TALL = on_screen("1280x1024")


def expect_quit(preferences) -> None:
    for key in ("Control_L", "q"):
        preferences.desktop.key_down(key)
    wait_until("the program has ended", lambda: ended(preferences.program))
    for key in ("q", "Control_L"):  # only now, so that no event is left unread when the program ends
        preferences.desktop.key_up(key)
    expect_equal("its status", preferences.program.process.returncode, 0)


def expect_background(preferences, chord) -> None:
    """The windows close and the program goes on."""
    preferences.desktop.key(chord)
    preferences.widgets.gone("frame", TITLE)
    expect_equal("it runs", preferences.barquell.status()["running"], True)
    preferences.barquell.command("show")
    preferences.desktop.focus(TITLE)


@TALL
def check_menukeys_send_to_the_background_and_quit(desktop):
    preferences = Preferences(desktop)
    expect_background(preferences, "ctrl+b")
    expect_quit(preferences)


@TALL
def check_menukeys_follow_the_lazy_quit_setting(desktop):
    preferences = Preferences(desktop)
    preferences.expect_tab("General")
    for wanted in (True, False):
        preferences.widgets.click("check box", "The quit shortcut only closes the windows")
        preferences.waits_for("LazyQuit", wanted)
        if wanted:
            desktop.key("ctrl+b")  # is no key now
            expect_background(preferences, "ctrl+q")
    expect_quit(preferences)


def check_menukeys_open_the_preferences_from_another_window(desktop):
    barquell = Barquell(desktop)
    barquell.start()
    desktop.focus("Authorization Required")
    desktop.key("ctrl+comma")
    desktop.window(TITLE)
