"""The program from a finger to a key of the bar: the simulated Touch Bar touched by a real pointer."""

import pathlib
import re
import signal

from bar import BRIGHTNESS, Bar
from desktop import Failure, expect_equal, on_screen, wait_until
from preferences import TABS, TITLE, Preferences
from program_checks import Barquell, two_applications
from widgets import Widgets

SAVER = pathlib.Path(__file__).resolve().parent / "screensaver"
AUTHORIZATION = "Authorization Required"
PERMISSION = ("check box", "Barquell may filter touches")
FN = ("check box", "Fn")  # as a screen reader calls a button that stays down


def check_simulated_bar_holds_back_what_nothing_lets_through(desktop):
    bar = Bar(desktop)
    expect_equal("counts at the start", bar.counts(), (0, 0))
    for _ in range(5):
        bar.is_held_back()
    expect_equal("counts", bar.counts(), (5, 0))


def check_simulated_bar_holds_back_without_a_session_bus(desktop):
    def corner() -> tuple:
        desktop.window("Simulated Touch Bar")
        geometry = desktop.output("xdotool", "search", "--name", "Simulated Touch Bar", "getwindowgeometry", "--shell")
        size = dict(line.split("=") for line in geometry.split())
        return int(size["X"]), int(size["Y"])

    bar = Bar(desktop)  # without a bus no screen reader hears of it, so where things lie is learned with one
    before = corner()
    fn = bar.widgets.grip(bar.widgets.find(*FN))
    bar.barquell.command("quit")
    wait_until("it ended", lambda: bar.program.process.poll() is not None)
    alone = bar.barquell.start("--simulate", FromLoginItem="1", DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
    alone.expect("No session bus; other programs can not be heard")
    alone.expect("Blocking is in force (the pause keys)")
    now = corner()
    moved = now[0] - before[0], now[1] - before[1]
    bar.place = [bar.place[0] + moved[0], bar.place[1] + moved[1]]
    left, right = BRIGHTNESS
    target = left + (right - left) * 3 // 4
    at = bar.place[0] + target, bar.place[1] + 15
    for _ in range(3):
        desktop.click(*at)
    desktop.move(10, 10)
    held = [bar.slider_reaches(target - 20) for _ in range(5)]
    expect_equal("moved by touches that were held back", held, [False] * 5)
    desktop.click(fn[0] + moved[0], fn[1] + moved[1])
    desktop.click(*at)
    wait_until("the slider has moved", lambda: bar.slider_reaches(target - 20))


def check_simulated_bar_passes_while_fn_is_down(desktop):
    bar = Bar(desktop)
    for _ in range(2):
        bar.widgets.click(*FN)
        bar.waits_for("pauseKeysHeld", ["Fn"])
        bar.passes()
        bar.widgets.click(*FN)
        bar.waits_for("pauseKeysHeld", [])
        bar.is_held_back()


def check_simulated_bar_passes_while_a_chosen_key_of_the_keyboard_is_down(desktop):
    Barquell(desktop).command("defaults", "write", "PauseKeyShift", "-bool", "true")
    bar = Bar(desktop)
    for key in ("Shift_L", "Shift_R"):
        desktop.key_down(key)
        bar.passes()
        desktop.key_up(key)
        bar.is_held_back()
    desktop.key_down("Control_L")  # which was not chosen
    bar.is_held_back()
    desktop.key_up("Control_L")


def check_simulated_bar_passes_while_a_bypassed_application_is_in_front(desktop):
    Barquell(desktop).command("defaults", "write", "BypassApps", "-array", "org.example.terminal")
    two_applications(desktop)
    bar = Bar(desktop)
    for _ in range(2):
        desktop.focus("terminal")
        bar.waits_for("pauseFlags", ["bypassed application"])
        bar.passes()
        expect_equal("still in front", bar.barquell.status()["frontmostApplication"], "org.example.terminal")
        desktop.focus("message")
        bar.waits_for("pauseFlags", [])
        bar.is_held_back()


def check_simulated_bar_passes_behind_the_screen_saver(desktop):
    saver = desktop.start(SAVER)
    saver.expect("ready")
    bar = Bar(desktop)
    bar.is_held_back()
    for _ in range(2):
        saver.signal(signal.SIGUSR1)
        bar.waits_for("pauseFlags", ["screen shield"])
        bar.passes()
        saver.signal(signal.SIGUSR2)
        bar.waits_for("pauseFlags", [])
        bar.is_held_back()
    saver.signal(signal.SIGUSR1)
    bar.waits_for("pauseFlags", ["screen shield"])
    saver.kill()  # and with it what covered the screen
    bar.waits_for("pauseFlags", [])
    bar.is_held_back()


def check_simulated_bar_passes_behind_a_screen_saver_that_was_there_before(desktop):
    saver = desktop.start(SAVER)
    saver.expect("ready")
    saver.signal(signal.SIGUSR1)
    bar = Bar(desktop)
    bar.waits_for("pauseFlags", ["screen shield"])
    bar.passes()


def check_simulated_bar_passes_while_blocking_is_switched_off(desktop):
    bar = Bar(desktop)
    for _ in range(2):
        bar.barquell.command("defaults", "write", "Enabled", "-bool", "false")
        bar.waits_for("enabled", False)
        bar.passes()
        bar.barquell.command("defaults", "write", "Enabled", "-bool", "true")
        bar.waits_for("enabled", True)
        bar.is_held_back()


def check_simulated_bar_passes_without_the_permission(desktop):
    bar = Bar(desktop)
    bar.is_held_back()
    bar.widgets.click(*PERMISSION)
    bar.waits_for("trusted", False)
    bar.passes()
    bar.barquell.command("show")
    desktop.window(AUTHORIZATION)
    bar.passes()
    bar.widgets.click(*PERMISSION)
    bar.waits_for("trusted", True)
    desktop.window("Authorization Complete")
    bar.is_held_back()


def check_simulated_bar_moves_a_slider_only_where_the_touch_passes(desktop):
    bar = Bar(desktop)
    left, right = BRIGHTNESS
    target = left + (right - left) * 3 // 4
    desktop.move(10, 10)
    expect_equal("at its middle at first", [bar.slider_reaches(at) for at in (target - 145, target - 20)], [True, False])
    for _ in range(2):  # the second gives what the first might have moved the time to be seen
        bar.is_held_back(target)
    expect_equal("moved by a touch that was held back", bar.slider_reaches(target - 20), False)
    bar.widgets.click(*FN)
    bar.waits_for("pauseKeysHeld", ["Fn"])
    bar.passes(target)
    wait_until("the slider has moved", lambda: bar.slider_reaches(target - 20))
    expect_equal("filled beyond the finger", bar.slider_reaches(target + 20), False)


def check_simulated_bar_leaves_nothing_behind_when_it_is_killed(desktop):
    def names() -> set:
        text = desktop.output(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus.ListNames",
        )
        return {line.split('"')[1] for line in text.splitlines() if '"' in line and '":' not in line}

    before = names()
    bar = Bar(desktop)
    mine = {name for name in names() - before if "barquell" in name}
    if not mine:
        raise Failure("the running program has no name on the bus")
    bar.program.kill()
    wait_until("its names are gone", lambda: not {name for name in names() if "barquell" in name})
    expect_equal("another copy is thought to run", bar.barquell.status()["running"], False)
    expect_equal("windows", desktop.answer("xdotool", "search", "--class", "barquell"), "")
    Bar(desktop).is_held_back()  # and the next start finds its way free


def rows(desktop, title: str) -> tuple:
    """The first row of the screen that a window with its title takes, and the first below its content."""
    window = desktop.window(title)
    told = desktop.output("xwininfo", "-id", window)
    top, height = (int(re.search(rf"{what}: +(-?\d+)", told)[1]) for what in ("Absolute upper-left Y", "Height"))
    extents = desktop.output("xprop", "-id", window, "_NET_FRAME_EXTENTS").split("=")[1]
    above = int(extents.split(",")[2])
    return top - above, top + height


def stays_clear(desktop) -> str:
    """Every tab, and the authorization window, above the bar; the bar on the screen."""
    height = int(desktop.output("xdotool", "getdisplaygeometry").split()[1])
    preferences = Preferences(desktop)
    seen = {}
    for name in ("General", "Touch Bar", "Shortcuts", "Touch Bar"):
        preferences.open_tab(name)
        seen[name] = rows(desktop, TITLE)
    desktop.key("alt+F4")
    preferences.widgets.gone("frame", TITLE)
    preferences.barquell.command("show")
    preferences.has(TABS["Touch Bar"])
    seen["Touch Bar from the start"] = rows(desktop, TITLE)
    preferences.open_apps()
    seen["Apps"] = rows(desktop, TITLE)
    preferences.open_expert()
    seen["Expert"] = rows(desktop, TITLE)
    desktop.key("alt+F4")
    preferences.widgets.gone("frame", TITLE)
    Widgets(desktop, "barquell").click(*PERMISSION)
    preferences.barquell.waits_for("trusted", False)
    preferences.barquell.command("show")
    seen[AUTHORIZATION] = rows(desktop, AUTHORIZATION)
    bar_top, bar_end = rows(desktop, "Simulated Touch Bar")
    for name, (top, end) in seen.items():
        if top < 0 or end > bar_top:
            raise Failure(f"{name} takes the rows {top} to {end}, the bar begins at {bar_top}")
    if bar_end > height:
        raise Failure(f"the bar ends at {bar_end} of {height}")
    return f"the bar takes {bar_top} to {bar_end} of {height}, the tabs end at {max(end for _, end in seen.values())}"


@on_screen("1366x768")
def check_simulated_bar_and_windows_keep_clear_of_each_other_on_768_rows(desktop):
    return stays_clear(desktop)


@on_screen("1280x800")
def check_simulated_bar_and_windows_keep_clear_of_each_other_on_800_rows(desktop):
    return stays_clear(desktop)


@on_screen("1024x600")
def check_simulated_bar_and_windows_stay_on_a_small_screen(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    shown = [rows(desktop, TITLE)]
    desktop.key("alt+F4")
    preferences.widgets.gone("frame", TITLE)
    preferences.barquell.command("show")
    preferences.has(TABS["Touch Bar"])
    shown.append(rows(desktop, TITLE))
    for top, end in shown:
        if top < 0 or end > 600:
            raise Failure(f"the window takes the rows {top} to {end} of 600")
    preferences.open_tab("General")  # which has no other Fn
    place = Widgets(desktop, "barquell").find(*FN)["place"]
    if place[0] < 0:
        raise Failure(f"the Fn button begins at {place[0]}")
    return f"the window takes the rows {shown}, the Fn button begins at {place[0]}"
