"""The preferences of the program itself: every tab, control and key, by real pointer and keys."""

from desktop import Failure, expect_equal, on_screen, wait_until
from preferences import EXPERT, TABS, TITLE, Preferences
from widgets import Widgets

TALL = on_screen("1280x1024")  # room for the tallest tab above the simulated Touch Bar

CHECK_BOXES = {
    "General": {
        "Start Barquell at login": "LaunchAtStart",
        "Start without showing this window": "SilentStart",
        "Show the status item": "ShowStatusItem",
        "Show in the taskbar only while a window is open": "OptionalDockIcon",
        "The quit shortcut only closes the windows": "LazyQuit",
        "Animate changes of size": "AnimatedWindowSizing",
    },
    "Touch Bar": {
        "Block touches on the Touch Bar": "Enabled",
        "Fn": "PauseKeyFn",
        "Keys on the Touch Bar ignore held pause keys": "ClearPauseKeys",
        "When a pause key is pressed or released": "ShowHUDPauseKeys",
        "When another app comes to the front": "ShowHUDFrontApp",
    },
}
MODIFIERS = {
    "Command (Super)": "PauseKeyCommand",
    "Option (Alt)": "PauseKeyOption",
    "Control": "PauseKeyControl",
    "Shift": "PauseKeyShift",
}
SWITCHES = ["ShowHUD", *MODIFIERS.values()]  # which other controls depend on
PLACES = {"Centre": 0, "Top right": 1, "Bottom right": 2, "Top left": 3, "Bottom left": 4}
SHORTCUTS = {
    "Turn blocking on or off": "ToggleShortcut",
    "Bypass the app in front": "BypassShortcut",
    "Show or hide this window": "RevealShortcut",
}


def nothing_happens(preferences, chord) -> None:
    """The key after it moves the focus, so the chord was heard by then."""
    before = preferences.widgets.matching("radio button", "General")
    preferences.desktop.key(chord)
    preferences.widgets.moves_focus("Tab")
    preferences.has(TABS["Touch Bar"])
    expect_equal("the toolbar", preferences.widgets.matching("radio button", "General"), before)


@TALL
def check_preferences_tabs_are_reached_by_keys_and_clicks(desktop):
    preferences = Preferences(desktop, animated=True)
    preferences.expect_tab("General")
    for number, name in ((2, "Touch Bar"), (1, "General"), (3, "Shortcuts")):
        desktop.key(f"ctrl+{number}")
        preferences.expect_tab(name)
    for name in TABS:
        preferences.widgets.click("radio button", name)
        preferences.expect_tab(name)
        preferences.waits_for("PreferencesWindowTabIdentifier", name.replace(" ", ""))


@TALL
def check_preferences_expert_tab_has_one_key_and_is_not_remembered(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    nothing_happens(preferences, "ctrl+0")
    nothing_happens(preferences, "ctrl+alt+1")
    preferences.open_expert()
    expect_equal("highlighted", preferences.highlighted(), [])
    desktop.key("alt+F4")
    preferences.widgets.gone("frame", TITLE)
    preferences.barquell.command("show")
    preferences.expect_tab("Touch Bar")
    preferences.waits_for("PreferencesWindowTabIdentifier", "TouchBar")


def flip(preferences, boxes) -> None:
    """Clicks each check box twice; each time the box, and what is stored, are the contrary of before."""

    def checked() -> dict:
        return {one["name"]: one["checked"] for one in preferences.widgets.all() if one["name"] in boxes}

    before = checked()
    expect_equal("the check boxes", sorted(before), sorted(boxes))
    for change in (lambda value: not value, lambda value: value):
        for name, key in boxes.items():
            preferences.desktop.click(*preferences.widgets.grip(preferences.widgets.matching("check box", name)[0]))
            preferences.waits_for(key, change(before[name]))
        expect_equal("checked", checked(), {name: change(value) for name, value in before.items()})


@TALL
def check_preferences_check_boxes_edit_their_settings_in_both_directions(desktop):
    preferences = Preferences(desktop)
    preferences.barquell.command("defaults", "write", "ShowHUD", "-bool", "true")
    for tab, boxes in CHECK_BOXES.items():
        preferences.open_tab(tab)
        flip(preferences, boxes)
    preferences.open_expert()
    flip(preferences, {"Remove from the list without asking": "RemoveWithoutConfirmation"})


@TALL
def check_preferences_switches_take_what_depends_on_them_along(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    widgets = preferences.widgets
    for name, key, dependent in (
        ("Let touches pass while one of these is held", "PauseKeyAllowed", ("check box", "Fn")),
        ("Show changes of blocking on the screen", "ShowHUD", ("radio button", "Centre")),
    ):
        for _ in range(2):
            wanted = not widgets.find("check box", name)["checked"]
            widgets.click("check box", name)
            preferences.waits_for(key, wanted)
            wait_until("the other follows", lambda: widgets.find(*dependent)["enabled"] == wanted)


@TALL
def check_preferences_sides_of_the_pause_keys_are_chosen(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    for name, key in MODIFIERS.items():
        side = ("combo box", "", f"Side of {name}")
        expect_equal(f"{side} before its key", preferences.widgets.find(*side)["enabled"], False)
        preferences.widgets.click("check box", name)
        preferences.waits_for(key, True)
        preferences.widgets.click(*side)
        desktop.key("Down", "Return")  # in its list
        preferences.waits_for(f"{key}Type", 1)
        desktop.key("Down")
        preferences.waits_for(f"{key}Type", 2)
        desktop.key("Home")
        preferences.waits_for(f"{key}Type", 0)
        preferences.widgets.click("check box", name)
        preferences.waits_for(key, False)


@TALL
def check_preferences_place_of_the_display_is_chosen_on_its_picture(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    preferences.widgets.click("check box", "Show changes of blocking on the screen")
    preferences.waits_for("ShowHUD", True)
    for name, place in list(PLACES.items()) + [("Centre", 0)]:
        preferences.widgets.click("radio button", name)
        preferences.waits_for("HUDLocation", place)
        checked = [one["name"] for one in preferences.widgets.all() if one["name"] in PLACES and one["checked"]]
        expect_equal("checked", checked, [name])
    seen = set()
    for arrow in ("Down", "Right", "Right", "Down", "Right", "Up", "Left"):
        before = preferences.setting("HUDLocation")
        desktop.key(arrow)
        wait_until(f"{arrow} goes on", lambda: preferences.setting("HUDLocation") != before)
        seen.add(preferences.setting("HUDLocation"))
    expect_equal("reached by the arrows", sorted(seen), sorted(PLACES.values()))


def identity(widget) -> tuple:
    return widget["role"], widget["name"], widget["description"], tuple(widget["place"][:2])


def expect_walk(preferences) -> None:
    """Tab comes to all that can have the keyboard, of the places of the display to the chosen one."""
    focusable = [
        one for one in preferences.widgets.all() if one["focusable"] and one["enabled"] and one["role"] != "list item"
    ]
    names = [identity(one)[:3] for one in focusable]
    for one in names:
        if not one[1] or names.count(one) > 1:
            raise Failure(f"cannot be told apart: {one}")
    wanted = {identity(one) for one in focusable if one["name"] not in PLACES or one["checked"]}
    preferences.widgets.came_to()
    preferences.desktop.output("xdotool", "key", "--delay", 30, *["Tab"] * (len(wanted) + 1))  # round and over
    reached: list = []

    def all_heard() -> bool:
        reached.extend(identity(one) for one in preferences.widgets.came_to())
        return len(reached) > len(wanted)

    try:
        wait_until("", all_heard)
    except Failure:
        raise Failure(f"Tab came to {reached} where there are {wanted}") from None
    expect_equal("reached by Tab", sorted(set(reached)), sorted(wanted))
    expect_equal("last", reached[len(wanted)], reached[0])


@TALL
def check_preferences_everything_has_a_name_and_is_reached_by_tab_alone(desktop):
    preferences = Preferences(desktop)
    for key in [*SWITCHES, *(f"{name}Enabled" for name in SHORTCUTS.values())]:
        preferences.barquell.command("defaults", "write", key, "-bool", "true")

    def is_heard() -> list:
        desktop.key("Tab")
        return preferences.widgets.came_to()

    for last in (False, False, True):
        try:
            wait_until("the program tells of its focus", is_heard, 10)
            break
        except Failure:  # whoever begins to listen while the program joins the accessibility bus is not told to it
            if last:
                raise
            preferences.widgets = Widgets(desktop, "barquell")
    for name in ("General", "Touch Bar"):
        preferences.open_tab(name)
        expect_walk(preferences)
    preferences.open_apps()
    expect_walk(preferences)
    preferences.open_expert()
    expect_walk(preferences)
    preferences.open_tab("Shortcuts")  # last: a recorder keeps the key of the next tab
    expect_walk(preferences)


def record(preferences, name, chord) -> None:
    preferences.widgets.click("push button", name)
    preferences.desktop.key(chord)


@TALL
def check_preferences_shortcut_is_recorded_works_everywhere_and_is_cleared(desktop):
    preferences = Preferences(desktop)
    widgets = preferences.widgets
    name, key = "Show or hide this window", "RevealShortcut"
    preferences.open_tab("Shortcuts")
    widgets.click("check box", "Enabled", name)
    preferences.waits_for(f"{key}Enabled", True)
    record(preferences, name, "ctrl+alt+j")
    stored = wait_until("it is stored", lambda: preferences.setting(key))
    widgets.find("push button", name, "Ctrl+Alt+J")
    record(preferences, name, "Escape")
    widgets.find("push button", name, "Ctrl+Alt+J")
    expect_equal("stored after Escape", preferences.setting(key), stored)

    desktop.key("ctrl+alt+j")
    widgets.gone("frame", TITLE)
    desktop.key("ctrl+alt+j")
    preferences.has(TABS["Shortcuts"])
    desktop.focus(TITLE)
    widgets.click("check box", "Enabled", name)
    preferences.waits_for(f"{key}Enabled", False)
    expect_equal("the recorder of one switched off", widgets.find("push button", name)["enabled"], False)
    widgets.click("check box", "Enabled", name)
    preferences.waits_for(f"{key}Enabled", True)
    widgets.click("push button", "Clear", name)
    widgets.gone("push button", "Clear")
    expect_equal("stored", preferences.setting(key) != stored, True)
    desktop.key("ctrl+alt+j", "Tab")
    wait_until("Tab was heard", widgets.focused)
    preferences.has(TABS["Shortcuts"])


CHANGES = {  # nothing here is as it was registered
    "Enabled": ("-bool", "false"),
    "PauseKeyAllowed": ("-bool", "false"),
    "PauseKeyFn": ("-bool", "false"),
    "PauseKeyShift": ("-bool", "true"),
    "PauseKeyShiftType": ("-int", "2"),
    "ClearPauseKeys": ("-bool", "false"),
    "ShowHUD": ("-bool", "true"),
    "HUDLocation": ("-int", "4"),
    "ShowHUDPauseKeys": ("-bool", "false"),
    "ShowHUDFrontApp": ("-bool", "false"),
    "LaunchAtStart": ("-bool", "true"),
    "SilentStart": ("-bool", "true"),
    "ShowStatusItem": ("-bool", "false"),
    "OptionalDockIcon": ("-bool", "false"),
    "LazyQuit": ("-bool", "true"),
    "AnimatedWindowSizing": ("-bool", "false"),
    "RemoveWithoutConfirmation": ("-bool", "true"),
    "RevealShortcutEnabled": ("-bool", "true"),
    "BypassApps": ("-array", "org.example.a"),
}


def shown(preferences, tab) -> dict:
    """What every check box and radio button of a tab shows, and every combo box."""
    preferences.open_tab(tab)
    return {
        (one["role"], one["description"] or one["name"]): (one["checked"], one["enabled"], one["name"])
        for one in preferences.widgets.all()
        if one["role"] in ("check box", "radio button", "combo box")
    }


@TALL
def check_preferences_reset_brings_every_setting_back(desktop):
    preferences = Preferences(desktop, animated=True)
    login_item = desktop.directory / "home/.config/autostart/com.vexolith.barquell.launcher.desktop"
    before = {tab: shown(preferences, tab) for tab in TABS}
    for key, value in CHANGES.items():
        preferences.barquell.command("defaults", "write", key, *value)
    preferences.barquell.waits_for("effectivelyEnabled", False)
    wait_until("the login item is there", login_item.exists)
    for tab, was in before.items():
        expect_equal(f"{tab} shows what it showed", shown(preferences, tab) == was, False)
    preferences.open_expert()
    for answer in ("Cancel", "OK"):
        expect_equal("stored", set(CHANGES) <= set(preferences.settings()), True)
        preferences.widgets.click("push button", EXPERT[1])
        preferences.widgets.find("label", "Are you sure?")
        preferences.widgets.click("push button", answer)
        preferences.widgets.gone("push button", answer)
    wait_until("nothing is stored", lambda: preferences.settings() == {})
    preferences.barquell.waits_for("effectivelyEnabled", True)
    wait_until("the login item is gone", lambda: not login_item.exists())
    for tab, was in before.items():
        expect_equal(f"{tab} after the reset", shown(preferences, tab), was)


@on_screen("1366x768")
def check_preferences_are_whole_on_a_low_screen(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Shortcuts")
    desktop.output("xdotool", "windowmove", desktop.window(TITLE), 300, 450)
    preferences.open_tab("Touch Bar")  # the highest of all
    _, top, _, height = preferences.widgets.find("frame", TITLE)["place"]
    if top + height > 768:
        raise Failure(f"the window ends at {top + height} of 768")
    _, y, _, lowest = preferences.widgets.find("radio button", "Bottom left")["place"]
    return f"the lowest control ends at {y + lowest}, the window at {top + height}"
