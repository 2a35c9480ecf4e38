"""The program itself, through its public faces alone: what is in front, one copy, the launcher, the end."""

import json
import pathlib
import re
import shlex
import signal
import subprocess

from desktop import expect_equal, wait_until

HERE = pathlib.Path(__file__).resolve().parent
SAVER = HERE / "screensaver"
PACKAGING = HERE.parents[1] / "packaging/linux"
README = HERE.parents[1] / "README.md"
PROGRAM = "com.vexolith.barquell"
ENTRY = """[Desktop Entry]
Type=Application
Name={name}
Exec={program}
StartupWMClass={window_class}
"""


def install_entry(desktop, identifier, **facts):
    folder = desktop.directory / "home/.local/share/applications"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / f"{identifier}.desktop").write_text(ENTRY.format(**facts), encoding="utf-8")


class Barquell:
    """The program under test on a desktop."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.binary = desktop.build / "src/app/barquell"

    def start(self, *options, **variables):
        return self.desktop.start(self.binary, *options, BARQUELL_TAP_SOCKET="/nowhere/tap.sock", **variables)

    def command(self, *words):
        return self.desktop.output(self.binary, *words)

    def status(self):
        return json.loads(self.command("status", "--json"))

    def start_quietly(self):
        """With nothing on the screen, as from the login item."""
        program = self.start(FromLoginItem="1")
        wait_until("the program runs", lambda: self.status()["pauseFlags"] is not None)
        return program

    def waits_for(self, key, value):
        wait_until(f"{key} is {value!r}", lambda: self.status()[key] == value)


def two_applications(desktop):
    install_entry(desktop, "org.example.terminal", name="Terminal", program="xterm", window_class="ExampleTerm")
    install_entry(desktop, "org.example.message", name="Message", program="xmessage", window_class="Xmessage")
    desktop.start("xterm", "-class", "ExampleTerm", "-T", "terminal")
    desktop.start("xmessage", "-title", "message", "hello")
    desktop.window("terminal")
    desktop.window("message")


def check_program_bypasses_one_of_two_applications(desktop):
    barquell = Barquell(desktop)
    barquell.command("defaults", "write", "BypassApps", "-array", "org.example.message")
    two_applications(desktop)
    barquell.start_quietly()
    for _ in range(2):
        desktop.focus("message")
        barquell.waits_for("frontmostApplication", "org.example.message")
        expect_equal("paused by", barquell.status()["pauseFlags"], ["bypassed application"])
        expect_equal("in force", barquell.status()["effectivelyEnabled"], False)
        desktop.focus("terminal")
        barquell.waits_for("frontmostApplication", "org.example.terminal")
        expect_equal("paused by", barquell.status()["pauseFlags"], [])
        expect_equal("in force", barquell.status()["effectivelyEnabled"], True)


def check_program_follows_the_list_while_it_runs(desktop):
    barquell = Barquell(desktop)
    two_applications(desktop)
    barquell.start_quietly()
    desktop.focus("terminal")
    barquell.waits_for("frontmostApplication", "org.example.terminal")
    barquell.command("defaults", "write", "BypassApps", "-array", "org.example.terminal")
    barquell.waits_for("pauseFlags", ["bypassed application"])
    barquell.command("defaults", "delete", "BypassApps")
    barquell.waits_for("pauseFlags", [])


def check_program_recognises_its_own_window(desktop):
    barquell = Barquell(desktop)
    barquell.start()
    desktop.window("Authorization Required")
    barquell.waits_for("frontmostApplication", PROGRAM)


def commands_in_readme(name):
    """As they stand there for everybody to copy."""
    lines = README.read_text(encoding="utf-8").replace("\\\n", "").splitlines()
    return [shlex.split(line) for line in lines if line.startswith(f"    {name} ")]


def check_program_toggles_only_for_the_next_start(desktop):
    barquell = Barquell(desktop)
    barquell.start_quietly()

    def active():
        expect_equal("in force", barquell.status()["effectivelyEnabled"], True)
        return json.loads(barquell.command("defaults", "read", "--json")).get("Active")

    toggle_signal, toggle, set_active = commands_in_readme("dbus-send")
    desktop.output(*toggle_signal)
    wait_until("Active is stored", active)
    desktop.output(*set_active)
    expect_equal("Active", active(), False)
    desktop.output(*toggle)
    expect_equal("Active", active(), True)
    barquell.command("toggle")
    expect_equal("Active", active(), False)
    barquell.command("quit")
    barquell.waits_for("running", False)
    expect_equal("switched on before the start", barquell.status()["enabled"], True)
    barquell.start_quietly()
    expect_equal("switched on", barquell.status()["enabled"], False)
    expect_equal("in force", barquell.status()["effectivelyEnabled"], False)


def check_program_shows_and_quits_on_command(desktop):
    barquell = Barquell(desktop)
    program = barquell.start_quietly()
    barquell.command("show")
    desktop.window("Authorization Required")
    barquell.command("quit")
    wait_until("it ended", lambda: program.process.poll() is not None)
    expect_equal("exit status", program.process.returncode, 0)


BUTTONS = (0.08, 0.27, 0.55, 0.85)  # where in the alert's width each has its middle


def second_copy(desktop, button):
    """Starts a second copy and clicks that button of its alert."""
    barquell = Barquell(desktop)
    first = barquell.start_quietly()
    second = barquell.start()
    desktop.focus("Barquell")
    alert = desktop.window("Barquell")
    geometry = desktop.output("xdotool", "getwindowgeometry", "--shell", alert)
    size = {name: int(value) for name, value in (line.split("=") for line in geometry.split())}
    x, y = int(size["WIDTH"] * BUTTONS[button]), size["HEIGHT"] - 24
    desktop.output("xdotool", "mousemove", "--window", alert, x, y, "click", 1)
    return barquell, first, second


def check_program_second_copy_is_answered_by_the_keyboard(desktop):
    barquell = Barquell(desktop)
    first = barquell.start_quietly()
    second = barquell.start()
    desktop.focus("Barquell")
    desktop.key("Tab", "space")  # the second button
    wait_until("the second copy ended", lambda: ended(second))
    desktop.window("Authorization Required")
    expect_equal("the first ended", ended(first), False)


def ended(program):
    return program.process.poll() is not None


def check_program_second_copy_ends_on_ok(desktop):
    _, first, second = second_copy(desktop, 0)
    wait_until("the second copy ended", lambda: ended(second))
    expect_equal("the first ended", ended(first), False)


def check_program_second_copy_shows_the_first(desktop):
    _, first, second = second_copy(desktop, 1)
    wait_until("the second copy ended", lambda: ended(second))
    desktop.window("Authorization Required")
    expect_equal("the first ended", ended(first), False)


def check_program_second_copy_takes_the_place_of_the_first(desktop):
    barquell, first, second = second_copy(desktop, 2)
    wait_until("the first copy ended", lambda: ended(first))
    desktop.window("Authorization Required")
    wait_until("the second runs alone", lambda: barquell.status()["pid"] == second.process.pid)
    barquell.command("quit")
    wait_until("it answers to quit", lambda: ended(second))


def check_program_keeps_all_copies(desktop):
    barquell, first, second = second_copy(desktop, 3)
    desktop.window("Authorization Required")
    expect_equal("one ended", ended(first) or ended(second), False)
    barquell.command("quit")
    wait_until("both answer to quit", lambda: ended(first) and ended(second))


def check_program_second_copy_from_the_login_item_ends_silently(desktop):
    barquell = Barquell(desktop)
    first = barquell.start_quietly()
    second = barquell.start(FromLoginItem="")
    wait_until("the second copy ended", lambda: ended(second))
    expect_equal("the first ended", ended(first), False)
    expect_equal("what it said", second.lines(), [])


def starts_at_login(desktop):
    """The file that makes the desktop start it at login, as the program writes it."""
    barquell = Barquell(desktop)
    program = barquell.start_quietly()
    barquell.command("defaults", "write", "LaunchAtStart", "-bool", "true")
    entry = desktop.directory / "home/.config/autostart" / f"{PROGRAM}.launcher.desktop"
    wait_until("the login item stands", entry.exists)
    barquell.command("quit")
    wait_until("it ended", lambda: ended(program))
    return entry


def launch(desktop, *command):
    """As a launcher of a desktop does that knows the build's programs."""
    path = f"{desktop.build}/src/app:{desktop.environment['PATH']}"
    launcher = desktop.start(*command, PATH=path, BARQUELL_TAP_SOCKET="/nowhere/tap.sock")
    wait_until("it was launched", lambda: ended(launcher))
    expect_equal("the launcher's exit status", launcher.process.returncode, 0)


def windows(desktop):
    return desktop.answer("xdotool", "search", "--onlyvisible", "--class", "barquell").split()


def check_program_login_item_starts_it_once_and_shows_nothing(desktop):
    entry = starts_at_login(desktop)
    barquell = Barquell(desktop)
    launch(desktop, "gio", "launch", entry)  # which looks at the command line only
    wait_until("it runs", lambda: barquell.status()["pauseFlags"] is not None)
    barquell.waits_for("effectivelyEnabled", True)
    expect_equal("windows", windows(desktop), [])
    pid = barquell.status()["pid"]
    command = re.search("^Exec=(.*)$", entry.read_text(encoding="utf-8"), re.MULTILINE)[1]
    second = desktop.start("/bin/sh", "-c", command, BARQUELL_TAP_SOCKET="/nowhere/tap.sock")
    wait_until("the second copy ended", lambda: ended(second))
    expect_equal("what it said", (second.process.returncode, second.lines()), (0, []))
    expect_equal("the one that runs", (barquell.status()["pid"], windows(desktop)), (pid, []))


# A panel stays while what it launches starts, or the bus would drop its call.
LAUNCH = f"""
from gi.repository import Gio
Gio.DesktopAppInfo.new("{PROGRAM}.desktop").launch([], None)
place = ("{PROGRAM}", "/com/vexolith/barquell", "org.freedesktop.DBus.Peer", "Ping")
Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(*place, None, None, Gio.DBusCallFlags.NONE, -1, None)
"""


def check_program_launcher_starts_it_over_the_bus_and_shows_it_again(desktop):
    barquell = Barquell(desktop)
    data = desktop.directory / "home/.local/share"
    service = (PACKAGING / f"{PROGRAM}.service.in").read_text(encoding="utf-8")
    by_bus = f"/usr/bin/env BARQUELL_TAP_SOCKET=/nowhere/bus.sock {barquell.binary}"
    for path, text in (
        (data / f"dbus-1/services/{PROGRAM}.service", service.replace("@BINDIR@/barquell", by_bus)),
        (data / f"applications/{PROGRAM}.desktop", (PACKAGING / f"{PROGRAM}.desktop").read_text(encoding="utf-8")),
    ):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    dbus(desktop, "/org/freedesktop/DBus", "org.freedesktop.DBus.ReloadConfig", to="org.freedesktop.DBus")
    launch(desktop, "/usr/bin/python3", "-c", LAUNCH)
    window = desktop.window("Authorization Required")
    pid = barquell.status()["pid"]
    started = pathlib.Path(f"/proc/{pid}/environ").read_bytes().split(b"\0")
    expect_equal("started by the bus", b"BARQUELL_TAP_SOCKET=/nowhere/bus.sock" in started, True)
    desktop.focus("Authorization Required")
    desktop.key("alt+F4")
    wait_until("the window is closed", lambda: window not in windows(desktop))
    launch(desktop, "/usr/bin/python3", "-c", LAUNCH)
    desktop.window("Authorization Required")
    expect_equal("the one that runs", barquell.status()["pid"], pid)
    expect_equal("an alert", desktop.answer("xdotool", "search", "--onlyvisible", "--name", "^Barquell$"), "")


def check_program_launcher_reopens_the_running_copy(desktop):
    barquell = Barquell(desktop)
    barquell.start_quietly()
    desktop.output(
        "gdbus", "call", "--session", "--dest", PROGRAM, "--object-path", "/com/vexolith/barquell",
        "--method", "org.freedesktop.Application.Activate", "{}",
    )  # fmt: skip
    desktop.window("Authorization Required")


def check_program_pauses_behind_the_screen_saver_and_a_bypass_at_once(desktop):
    saver = desktop.start(SAVER)
    saver.expect("ready")
    barquell = Barquell(desktop)
    barquell.command("defaults", "write", "BypassApps", "-array", "org.example.message")
    two_applications(desktop)
    barquell.start_quietly()
    desktop.focus("message")
    barquell.waits_for("pauseFlags", ["bypassed application"])
    saver.signal(signal.SIGUSR1)
    barquell.waits_for("pauseFlags", ["bypassed application", "screen shield"])
    saver.signal(signal.SIGUSR2)
    barquell.waits_for("pauseFlags", ["bypassed application"])


NO_DISPLAY = {"DISPLAY": ":4711", "QT_QPA_PLATFORM": ""}


def check_program_blocks_without_a_display(desktop):
    barquell = Barquell(desktop)
    program = barquell.start(**NO_DISPLAY)
    program.expect("There is no display; Barquell blocks without windows")
    barquell.waits_for("effectivelyEnabled", True)
    barquell.command("quit")
    wait_until("it ended", lambda: ended(program))


def check_program_second_copy_without_a_display_ends_with_a_line_or_at_login_without(desktop):
    barquell = Barquell(desktop)
    first = barquell.start_quietly()
    line = "barquell: Another copy of Barquell is already running. This copy is going to quit"
    for variables, said in (({}, [line]), ({"FromLoginItem": "1"}, [])):
        second = barquell.start(**NO_DISPLAY, **variables)
        wait_until("the second copy ended", lambda: ended(second))  # pylint: disable=cell-var-from-loop
        expect_equal("what it said", (second.process.returncode, second.lines()), (0, said))
    third = barquell.start(**NO_DISPLAY, AllowMultipleInstances="YES")
    third.expect("There is no display; Barquell blocks without windows")
    expect_equal("one ended", ended(first) or ended(third), False)


def check_program_says_once_that_nothing_tells_what_is_in_front(desktop):
    desktop.manager.kill()
    barquell = Barquell(desktop)
    program = barquell.start_quietly()
    program.expect("Nothing tells which application is in front; the bypass list has no effect")
    barquell.waits_for("effectivelyEnabled", True)
    expect_equal("in front", "In front:             cannot be known here" in barquell.command("status"), True)
    expect_equal("lines about it", sum("in front" in line for line in program.lines()), 1)


def dbus(desktop, path, what, *arguments, to=None):
    """What the bus or a program on it answers to a call, its complaint among that; without `to` it is a signal."""
    kind = ["--print-reply", f"--dest={to}"] if to else ["--type=signal"]
    command = ["dbus-send", "--session", *kind, path, what, *arguments]
    result = subprocess.run(command, env=desktop.environment, capture_output=True, text=True, check=False)
    return result.stdout + result.stderr


def check_program_takes_no_harm_from_hostile_traffic(desktop):
    barquell = Barquell(desktop)
    program = barquell.start_quietly()
    program.expect("Not trusted to filter; touches pass (see 'barquell doctor')")
    before = len(program.lines())
    place, unknown = "/com/vexolith/barquell", "org.freedesktop.DBus.Error.UnknownMethod"
    for what, *arguments in (
        ("ToggleTouchBar", "boolean:true"), ("SetTouchBarActive",), ("SetTouchBarActive", "string:true"),
        ("SetTouchBarActive", "boolean:true", "boolean:true"), ("toggleTouchBar",), ("Status", "int32:1"), ("Quit",),
    ):  # fmt: skip
        answer = dbus(desktop, place, f"{PROGRAM}.{what}", *arguments, to=PROGRAM)
        expect_equal(f"{what} {arguments} is refused", unknown in answer, True)
    for signal_path, what, *arguments in (
        ("/", f"{PROGRAM}.toggle", "boolean:true"), ("/", f"{PROGRAM}.Toggle"), ("/", f"{PROGRAM}s.toggle"),
        (place, f"{PROGRAM}.toggle"), ("/", f"{PROGRAM}.quit", "string:now"), ("/", f"{PROGRAM}.show.now"),
        ("/", "com.apple.shieldWindowRaised", "int32:1"), ("/", "com.apple.shieldwindowRaised"),
        ("/", "org.freedesktop.ScreenSaver.ActiveChanged", "boolean:true"),
    ):  # fmt: skip
        expect_equal(f"sending {what}", dbus(desktop, signal_path, what, *arguments), "")
    # What comes last has its effect, so what came before it had its time.
    dbus(desktop, "/", "com.apple.shieldWindowRaised")
    barquell.waits_for("pauseFlags", ["screen shield"])
    dbus(desktop, "/", "com.apple.shieldWindowLowered")
    barquell.waits_for("pauseFlags", [])
    expect_equal("in force", barquell.status()["effectivelyEnabled"], True)
    expect_equal("Active", json.loads(barquell.command("defaults", "read", "--json")).get("Active"), None)
    expect_equal("windows", windows(desktop), [])
    said = [line.removeprefix("barquell: ") for line in program.lines()[before:]]
    shield = ["Blocking is suspended (a pause flag)", "Blocking is in force (a pause flag)"]
    expect_equal("what it said", said, shield)


def check_program_closes_its_windows_and_lives_on(desktop):
    barquell = Barquell(desktop)
    program = barquell.start()
    desktop.focus("Authorization Required")
    desktop.key("alt+F4")
    wait_until("the window is closed", lambda: not windows(desktop))
    barquell.waits_for("frontmostApplication", "")
    expect_equal("it ended", ended(program), False)
    expect_equal("in force", barquell.status()["effectivelyEnabled"], True)
