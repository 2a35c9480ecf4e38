"""The program itself, through its public faces alone: what is in front, one copy, the launcher, the end."""

import json
import pathlib
import signal

from desktop import expect_equal, wait_until

SAVER = pathlib.Path(__file__).resolve().parent / "screensaver"
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


def check_program_toggles_only_for_the_next_start(desktop):
    barquell = Barquell(desktop)
    barquell.start_quietly()
    desktop.output("dbus-send", "--session", "--type=signal", "/", "com.vexolith.barquell.toggle")
    wait_until("Active is stored", lambda: json.loads(barquell.command("defaults", "read", "--json")).get("Active"))
    expect_equal("in force", barquell.status()["effectivelyEnabled"], True)
    barquell.command("toggle")
    desktop.output(
        "dbus-send", "--session", "--print-reply", f"--dest={PROGRAM}", "/com/vexolith/barquell",
        f"{PROGRAM}.SetTouchBarActive", "boolean:true",
    )  # fmt: skip
    expect_equal("Active", json.loads(barquell.command("defaults", "read", "--json"))["Active"], False)
    expect_equal("in force", barquell.status()["effectivelyEnabled"], True)
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


def check_program_blocks_without_a_display(desktop):
    barquell = Barquell(desktop)
    program = barquell.start(DISPLAY=":4711", QT_QPA_PLATFORM="")
    program.expect("There is no display; Barquell blocks without windows")
    barquell.waits_for("effectivelyEnabled", True)
    barquell.command("quit")
    wait_until("it ended", lambda: ended(program))


def check_program_closes_its_windows_and_lives_on(desktop):
    barquell = Barquell(desktop)
    program = barquell.start()
    desktop.focus("Authorization Required")
    desktop.output("xdotool", "getactivewindow", "windowclose")
    expect_equal("it ended", ended(program), False)
