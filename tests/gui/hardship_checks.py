"""The program where the desktop around it is poor, breaks, or is unkind."""

import json
import pathlib
import re
import signal
import tempfile
import time

from bar import BRIGHTNESS, Bar
from desktop import Failure, expect_equal, on_screen, wait_until
from panel import HEIGHT, Panel, Tray
from preferences import TABS, TITLE, Preferences
from program_checks import PROGRAM, Barquell, install_entry, two_applications
from widgets import Widgets

TARGET = BRIGHTNESS[0] + 215  # on the slider, well beyond where its knob stands at first


def check_hardship_without_a_window_manager_it_blocks_and_bypasses_when_one_comes(desktop):
    Barquell(desktop).command("defaults", "write", "BypassApps", "-array", "org.example.terminal")
    desktop.manager.kill()
    bar = Bar(desktop)
    two_applications(desktop)
    bar.is_held_back()
    expect_equal("in front", bar.barquell.status()["frontmostApplication"], "")
    bar.barquell.command("show")
    desktop.window("Barquell Preferences")
    desktop.start_manager()
    desktop.focus("terminal")
    bar.locate()  # framed now
    bar.waits_for("pauseFlags", ["bypassed application"])
    bar.passes()
    desktop.focus("message")
    bar.waits_for("pauseFlags", [])
    bar.is_held_back()


def check_hardship_bus_that_restarts_is_used_again(desktop):
    bar = Bar(desktop)
    desktop.bus.kill()
    bar.program.expect("The session bus went away")
    desktop.click(bar.place[0] + TARGET, bar.place[1] + 10)
    desktop.start_bus()
    bar.program.expect("The session bus is there")
    bar.waits_for("pid", bar.program.process.pid)
    expect_equal("moved by a touch without a bus", bar.slider_reaches(TARGET - 20), False)
    desktop.output("dbus-send", "--session", "--type=signal", "/", "com.apple.shieldWindowRaised")
    bar.waits_for("pauseFlags", ["screen shield"])
    desktop.click(bar.place[0] + TARGET, bar.place[1] + 10)
    wait_until("a touch passes", lambda: bar.slider_reaches(TARGET - 20))
    bar.barquell.command("quit")
    wait_until("it ended", lambda: bar.program.process.poll() is not None)
    expect_equal("exit status", bar.program.process.returncode, 0)


def registered_items(desktop) -> list:
    """What the panel's register of status items holds."""
    return re.findall(
        r"org\.kde\.StatusNotifierItem[-\w]*",
        desktop.output(
            "dbus-send", "--session", "--print-reply", "--dest=org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
            "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierWatcher",
            "string:RegisteredStatusNotifierItems",
        ),
    )


def expect_item_of_the_bus(desktop, program, panel, number: int) -> None:
    """On the panel, once, by the bus and not in a tray; the number counts those that the program had so far."""
    item = f"org.kde.StatusNotifierItem-{program.process.pid}-{number}"
    wait_until("the register has the item", lambda: registered_items(desktop) == [item])
    panel.item()
    x = [x for x, _, _ in panel.item_pixels()]
    if max(x) - min(x) > HEIGHT:
        raise Failure(f"more than one item: ink from {min(x)} to {max(x)}")


def says_of_the_panel(barquell, word: str) -> None:
    """`doctor`, whose status tells of everything else as well."""
    wait_until(
        f"doctor says {word}",
        lambda: re.search(rf"^{word} +a panel shows", barquell.desktop.answer(str(barquell.binary), "doctor"), re.M),
    )


def check_hardship_bus_that_restarts_has_the_status_item_again(desktop):
    panel = Panel(desktop)
    barquell = Barquell(desktop)
    program = barquell.start_quietly()
    expect_item_of_the_bus(desktop, program, panel, 1)
    desktop.bus.kill()
    program.expect("The session bus went away")
    panel.kill()  # it loses its register with the bus
    tray = Tray(desktop, "bottom")
    tray.item()
    tray.program.kill()
    desktop.bus = desktop.start_bus()
    program.expect("The session bus is there")
    says_of_the_panel(barquell, "MISSING")
    panel.start()
    says_of_the_panel(barquell, "ok")
    expect_item_of_the_bus(desktop, program, panel, 2)
    desktop.click(*panel.item())
    wait_until("its menu is open", lambda: desktop.answer("xdotool", "search", "--onlyvisible", "--class", "barquell"))
    desktop.key("Down", "Return")
    barquell.waits_for("enabled", False)


def check_hardship_bus_that_comes_late_gets_the_status_item(desktop):
    desktop.bus.kill()
    program = Barquell(desktop).start(FromLoginItem="1")
    program.expect("No session bus; other programs can not be heard")
    tray = Tray(desktop, "bottom")
    tray.item()
    tray.program.kill()
    desktop.start_bus()
    program.expect("The session bus is there")
    expect_item_of_the_bus(desktop, program, Panel(desktop), 1)
    about_the_bus = [line for line in program.lines() if "session bus" in line]
    expect_equal("lines about the bus", len(about_the_bus), 2)


def check_hardship_screen_that_a_lost_bus_left_covered_is_not_covered_for_ever(desktop):
    """Who covered it went with the bus, and can not say any more that it is over."""
    saver = pathlib.Path(__file__).resolve().parent / "screensaver"
    running = desktop.start(saver)
    running.expect("ready")
    bar = Bar(desktop)
    running.signal(signal.SIGUSR1)
    bar.waits_for("pauseFlags", ["screen shield"])
    desktop.bus.kill()
    bar.program.expect("The session bus went away")
    desktop.start_bus()
    bar.waits_for("pauseFlags", [])


BROKEN = {
    "org.example.name": b"[Desktop Entry]\nType=Application\nName=Caf\xe9\xff\nExec=xterm\nStartupWMClass=BrokenName\n",
    "org.example.class": b"[Desktop Entry]\nType=Application\nName=Class\nExec=nothing\nStartupWMClass=\xff\xfe\xe9\n",
    "org.example.utf16": "[Desktop Entry]\nType=Application\nName=Wide\nStartupWMClass=Wide\n".encode("utf-16"),
    "org.example.zeros": b"\0" * 4096,
    "org.example.long": b"[Desktop Entry]\nName=" + b"\xf0\x9f" * 500_000 + b"\nStartupWMClass=Long\n",
}


def check_hardship_desktop_entries_in_a_broken_encoding(desktop):
    folder = desktop.directory / "home/.local/share/applications"
    install_entry(desktop, "org.example.message", name="Message", program="xmessage", window_class="Xmessage")
    for identifier, content in BROKEN.items():
        (folder / f"{identifier}.desktop").write_bytes(content)
    (folder / "org.example.folder.desktop").mkdir()
    (folder / "org.example.dangling.desktop").symlink_to("nowhere")
    (folder / "org.example.loop.desktop").symlink_to("org.example.loop.desktop")
    (folder / "caf\udce9.desktop").write_bytes(BROKEN["org.example.name"].replace(b"BrokenName", b"BrokenFile"))
    Barquell(desktop).command("defaults", "write", "BypassApps", "-array", "org.example.name", *BROKEN)
    bar = Bar(desktop, XDG_DATA_DIRS=str(desktop.directory / "none"))  # not what this machine has installed
    for window_class, flags in (("BrokenName", ["bypassed application"]), ("BrokenFile", []), ("Nobody", [])):
        desktop.start("xterm", "-class", window_class, "-T", window_class)
        desktop.focus(window_class)
        bar.waits_for("pauseFlags", flags)
        bar.becomes(*((0, 1) if flags else (1, 0)))
    expect_equal("known by its class", bar.barquell.status()["frontmostApplication"], "")
    bar.barquell.command("show")
    desktop.window("Barquell Preferences")


TOGGLES = 10_000
REST = 0.5  # seconds
TOGGLE_OFTEN = """
import dbus, dbus.lowlevel, sys
bus = dbus.SessionBus()
for _ in range(int(sys.argv[1])):
    bus.send_message(dbus.lowlevel.SignalMessage("/", "com.vexolith.barquell", "toggle"))
bus.get_name_owner("org.freedesktop.DBus")  # answered when all are on the bus
"""


def memory_kilobytes(pid: int) -> int:
    """The most that the process has held at once."""
    status = pathlib.Path(f"/proc/{pid}/status").read_text(encoding="ascii")
    return int(status.split("VmHWM:")[1].split()[0])


def check_hardship_ten_thousand_toggles_at_once(desktop):
    with tempfile.TemporaryDirectory(dir="/dev/shm") as folder:  # each is written through to the disk: 4 ms on some
        desktop.environment["XDG_CONFIG_HOME"] = folder
        return toggle_often(desktop, pathlib.Path(folder) / PROGRAM)


def toggle_often(desktop, settings):
    bar = Bar(desktop)
    pid = bar.program.process.pid

    def active():
        return json.loads(bar.barquell.command("defaults", "read", "--json")).get("Active")

    bar.is_held_back()

    def at_rest() -> bool:
        """Something was written, but not lately."""
        file = settings / "settings.json"
        return file.exists() and time.time() - file.stat().st_mtime > REST

    before = memory_kilobytes(pid)
    began = time.monotonic()
    sender = desktop.start("/usr/bin/python3", "-c", TOGGLE_OFTEN, TOGGLES - 1)
    longest = 0.0
    while sender.process.poll() is None or not at_rest():
        asked = time.monotonic()
        bar.touch()
        longest = max(longest, time.monotonic() - asked)
        if asked - began > 60:
            raise Failure("still writing after a minute")
    took = time.monotonic() - began - REST
    expect_equal("Active after an odd number", active(), True)
    desktop.output("dbus-send", "--session", "--type=signal", "/", "com.vexolith.barquell.toggle")
    wait_until("Active is false after an even number", lambda: active() is False)
    bar.is_held_back()
    expect_equal("passed", bar.counts()[1], 0)
    grown = memory_kilobytes(pid) - before
    if grown > 16 * 1024 or longest > 2:
        raise Failure(f"{grown} KiB more, a touch took {longest:.1f} s")
    return f"{took:.1f} s, {grown} KiB more at most, a touch took {longest * 1000:.0f} ms at most"


NONSENSE = {  # of no type that its reader knows
    "Enabled": ("-array", "x"),
    "PauseKeyAllowed": ("-date", "2020-01-01T00:00:00Z"),
    "PauseKeyFn": ("-string", "perhaps"),
    "PauseKeyShiftType": ("-array", "2"),
    "HUDLocation": ("-string", "left of the middle"),
    "ShowHUD": ("-float", "1e300"),
    "ShowStatusItem": ("-array", "1"),
    "LazyQuit": ("-string", "12abc"),
    "SilentStart": ("-array", "0"),
    "OptionalDockIcon": ("-string", ""),
    "RevealShortcut": ("-string", "Ctrl-Alt-Delete"),
    "ToggleShortcut": ("-array", "-1", "1e9", "x"),
    "LTADisplayDate": ("-string", "soon"),
}


def nowhere(desktop):
    """The preferences, opened where the tab that is remembered does not exist."""
    barquell = Barquell(desktop)
    barquell.command("defaults", "write", "PreferencesWindowTabIdentifier", "-string", "Nowhere")
    preferences = Preferences(desktop)
    preferences.program.expect("Tab with identifier 'Nowhere' is not found")
    preferences.has(TABS["General"])
    return preferences


def quits(preferences) -> None:
    preferences.barquell.command("quit")
    wait_until("it ended", lambda: preferences.program.process.poll() is not None)
    expect_equal("exit status", preferences.program.process.returncode, 0)


@on_screen("1280x1024")
def check_hardship_settings_that_make_no_sense(desktop):
    barquell = Barquell(desktop)
    for key, value in NONSENSE.items():
        barquell.command("defaults", "write", key, *value)
    barquell.command("defaults", "write", "BypassApps", "-array", "org.example.app", "", "not an identifier")
    for size in ("{0, 0}", "{-300, -300}", "{1e9, 1e9}"):
        barquell.command("defaults", "write", "PreferencesWindowTabSize Apps", "-string", size)
        preferences = nowhere(desktop)
        stored = preferences.settings()
        for tab in TABS:
            preferences.open_tab(tab)
        preferences.open_apps()
        _, top, width, height = preferences.widgets.find("frame", TITLE)["place"]
        if top < 0 or top + height > 1024 or height < 184 or width != 600:
            raise Failure(f"with {size} the window is {width} wide and takes the rows {top} to {top + height}")
        preferences.widgets.find("list item", "org.example.app")
        changed = {key for key, value in preferences.settings().items() if stored.get(key) != value}
        expect_equal("changed", changed - {"PreferencesWindowTabIdentifier", "PreferencesWindowTabSize Apps"}, set())
        quits(preferences)


@on_screen("1280x1024")
def check_hardship_five_thousand_bypassed_applications(desktop):
    barquell = Barquell(desktop)
    barquell.command("defaults", "write", "BypassApps", "-array", "org.example.app")
    barquell.command("defaults", "write", "RemoveWithoutConfirmation", "-bool", "true")
    preferences = Preferences(desktop)
    preferences.open_apps()
    remove = Widgets.grip(preferences.widgets.find("push button", "Remove"))
    quits(preferences)

    apps = [f"org.example.app{number}" for number in range(5000)]
    barquell.command("defaults", "write", "BypassApps", "-array", *apps)
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")

    def height() -> str:
        return re.search(r"Height: \d+", desktop.output("xwininfo", "-id", desktop.window(TITLE)))[0]

    before = height()
    preferences.widgets.click("push button", "Apps without blocking…")
    # From here on without the screen reader's eyes, which would look at each of them.
    wait_until("the apps are shown", lambda: height() != before)
    desktop.key("End")  # chooses the last row
    desktop.click(*remove)
    preferences.waits_for("BypassApps", apps[:-1])
    desktop.key("ctrl+1")
    preferences.has(TABS["General"])
    quits(preferences)


DISPLAY_IS_LOST = {  # Qt's line ends the program; ours may come before it
    "The X11 connection broke (error 1). Did the X11 server die?",
    "barquell: The X server went away; what is in front is not known any more",
}


def check_hardship_lost_display_ends_it_and_nothing_stored_is_lost(desktop):
    preferences = Preferences(desktop)
    preferences.open_tab("Touch Bar")
    preferences.widgets.click(*TABS["Touch Bar"])
    program = preferences.program
    program.expect("Blocking is suspended (the tap)")
    said = len(program.lines())
    lost = time.monotonic()
    desktop.server.kill()
    wait_until("it ended", lambda: program.process.poll() is not None, seconds=5)
    took = time.monotonic() - lost
    expect_equal("exit status", program.process.returncode, 1)
    expect_equal("stored", preferences.setting("Enabled"), False)
    lines = program.lines()[said:]
    if not lines or not DISPLAY_IS_LOST.issuperset(lines) or len(lines) > len(DISPLAY_IS_LOST):
        raise Failure(f"it said {lines}")
    return f"after {took * 1000:.0f} ms, {len(lines)} lines"
