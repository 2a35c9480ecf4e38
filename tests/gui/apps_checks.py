"""The apps without blocking, in the program itself: added, dropped, dragged and removed by real pointer and keys."""

from desktop import expect_equal, on_screen, wait_until
from preferences import TITLE, Preferences
from program_checks import install_entry

TALL = on_screen("1280x1024")
QUESTION = "Are you sure you want to remove selected apps from bypass list?"


def identifiers(letters) -> list:
    return [f"org.example.{letter}" for letter in letters]


def open_apps(desktop, listed: str, others: str = "") -> Preferences:
    """With the applications of these letters in the list, and others installed beside them."""
    for letter in listed + others:
        install_entry(desktop, f"org.example.{letter}", name=f"App {letter}", program="true", window_class=letter)
    preferences = Preferences(desktop)
    if listed:
        preferences.barquell.command("defaults", "write", "BypassApps", "-array", *identifiers(listed))
    preferences.open_apps()
    return preferences


def file_of(desktop, letter) -> str:
    return str(desktop.directory / f"home/.local/share/applications/org.example.{letter}.desktop")


def row(preferences, letter) -> tuple:
    return preferences.widgets.grip(preferences.widgets.find("list item", f"App {letter}"))


def edge(preferences, letter) -> tuple:
    """The lower edge of its row."""
    x, y, width, height = preferences.widgets.find("list item", f"App {letter}")["place"]
    return x + width // 2, y + height - 1


def selected(preferences) -> list:
    return [one["name"] for one in preferences.widgets.all() if one["role"] == "list item" and one["selected"]]


def lists(preferences, letters) -> None:
    preferences.waits_for("BypassApps", identifiers(letters))
    wait_until("the rows follow", lambda: rows(preferences) == [f"App {letter}" for letter in letters])


def rows(preferences) -> list:
    return [one["name"] for one in preferences.widgets.all() if one["role"] == "list item"]


@TALL
def check_apps_are_added_in_the_file_dialog_by_the_keyboard(desktop):
    preferences = open_apps(desktop, "a", "bc")
    preferences.widgets.moves_focus("Tab")
    desktop.key("space")  # the button that adds
    preferences.widgets.find("text", "File name:")
    folder = file_of(desktop, "a").rpartition("/")[0]
    desktop.type(folder)
    desktop.key("Return")
    preferences.widgets.find("combo box", folder)
    desktop.type(" ".join(f'"org.example.{letter}.desktop"' for letter in "bac"))
    desktop.key("Return")
    lists(preferences, "abc")
    expect_equal("selected", selected(preferences), ["App b", "App c"])


@TALL
def check_apps_are_removed_after_the_sheet_says_so(desktop):
    preferences = open_apps(desktop, "abc")
    desktop.click(*row(preferences, "b"))
    preferences.widgets.click("push button", "Remove")
    preferences.widgets.click("push button", "Cancel")
    preferences.widgets.gone("push button", "Cancel")
    lists(preferences, "abc")
    preferences.widgets.click("push button", "Remove")
    preferences.widgets.find("label", QUESTION)
    preferences.widgets.click("push button", "OK")
    lists(preferences, "ac")
    preferences.barquell.command("defaults", "write", "RemoveWithoutConfirmation", "-bool", "true")
    desktop.click(*row(preferences, "a"))
    preferences.widgets.click("push button", "Remove")
    lists(preferences, "c")


@TALL
def check_apps_rows_are_dragged(desktop):
    preferences = open_apps(desktop, "abcde")
    desktop.click(*row(preferences, "a"))
    desktop.key("shift+Down")
    x, y = row(preferences, "a")
    to_x, to_y = edge(preferences, "d")
    desktop.drag((x, y), (x + 10, y + 20), (to_x, to_y - 8), (to_x, to_y))
    lists(preferences, "cdabe")
    expect_equal("selected", selected(preferences), ["App a", "App b"])


@TALL
def check_apps_window_may_be_closed_while_a_row_is_dragged(desktop):
    preferences = open_apps(desktop, "abc")
    x, y = row(preferences, "a")
    desktop.output("xdotool", "mousemove", x, y, "mousedown", 1)
    for step in (8, 16, 24):
        desktop.output("xdotool", "mousemove", x + step, y + step, "sleep", 0.1)
    desktop.key("alt+F4")
    preferences.widgets.gone("frame", TITLE)
    desktop.output("xdotool", "mouseup", 1)
    preferences.barquell.command("show")
    desktop.focus(TITLE)
    preferences.open_apps()
    lists(preferences, "abc")


@TALL
def check_apps_are_dropped_from_another_window_which_keeps_them(desktop):
    preferences = open_apps(desktop, "ab", "c")
    source = desktop.start(desktop.tool("dragsource"), "/etc/hostname", file_of(desktop, "c"))
    desktop.window("drag source")
    x, y = edge(preferences, "a")
    desktop.drag((120, 100), (140, 130), (x, y - 8), (x, y))
    source.expect("dropped: copy")
    lists(preferences, "acb")
    expect_equal("selected", selected(preferences), ["App c"])


@TALL
def check_apps_file_that_is_no_app_stays_where_it_was(desktop):
    preferences = open_apps(desktop, "ab")
    source = desktop.start(desktop.tool("dragsource"), "/etc/hostname")
    desktop.window("drag source")
    x, y = edge(preferences, "a")
    desktop.drag((120, 100), (140, 130), (x, y - 8), (x, y))
    source.expect("dropped: copy")  # what the table said while it hovered; a move would end the file
    lists(preferences, "ab")
