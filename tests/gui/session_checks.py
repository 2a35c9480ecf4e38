"""The program's place on a real desktop: what is in front, its own windows, its life on the bus."""

import pathlib
import signal
import time

from desktop import expect_equal, wait_until


def add_entry(desktop, identifier: str, window_class: str) -> None:
    folder = pathlib.Path(desktop.environment["XDG_DATA_HOME"]) / "applications"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / f"{identifier}.desktop").write_text(
        f"[Desktop Entry]\nType=Application\nName={identifier}\nExec=true\nStartupWMClass={window_class}\n",
        encoding="utf-8",
    )


def probe(desktop, **variables):
    add_entry(desktop, "org.example.Terminal", "XTerm")
    add_entry(desktop, "org.example.Message", "Xmessage")
    none = desktop.directory / "none"  # only the entries above, whatever this machine has installed
    program = desktop.start(desktop.tool("sessionprobe"), XDG_DATA_DIRS=str(none), **variables)
    program.expect("launched")
    return program


def front(program) -> str:
    said = [line for line in program.lines() if line.startswith("front ")]
    return said[-1].removeprefix("front ") if said else ""


def expect_front(program, identifier: str) -> None:
    wait_until(f"{identifier} is in front, not {front(program)}", lambda: front(program) == identifier)


def call(desktop, method: str, argument: str) -> None:
    desktop.output(
        "gdbus", "call", "--session", "--dest", "com.vexolith.barquell", "--object-path", "/com/vexolith/barquell",
        "--method", method, argument,
    )


def show(desktop) -> None:
    call(desktop, "org.freedesktop.Application.Activate", "{}")


def set_regular(desktop, regular: bool) -> None:
    call(desktop, "com.vexolith.barquell.SetTouchBarActive", str(regular).lower())


def hints(desktop) -> set:
    state = desktop.output("xprop", "-id", desktop.window("probe"), "_NET_WM_STATE")
    return {word.strip(" ,\n").removeprefix("_NET_WM_STATE_") for word in state.split("=")[-1].split(",")}


def terminal(desktop, title: str):
    program = desktop.start("xterm", "-T", title, "-e", "sleep", "1000")
    desktop.window(title)
    return program


def message(desktop, title: str = "xmessage"):
    program = desktop.start("xmessage", "-title", title, "hello")
    desktop.window(title)
    return program


def check_session_front_follows_the_window_manager(desktop):
    program = probe(desktop)
    expect_front(program, "nothing")
    terminal(desktop, "one")
    message(desktop)
    for _ in range(3):
        desktop.focus("one")
        expect_front(program, "org.example.Terminal")
        desktop.focus("xmessage")
        expect_front(program, "org.example.Message")
    said = [line for line in program.lines() if line.startswith("front org")]
    expect_equal("each of six changes is told once", len(said[-6:]), 6)


def check_session_front_knows_what_was_there_before_the_start(desktop):
    terminal(desktop, "one")
    desktop.focus("one")
    expect_front(probe(desktop), "org.example.Terminal")


def check_session_front_a_window_without_an_entry_has_none(desktop):
    program = probe(desktop)
    desktop.start("xterm", "-class", "Mystery", "-name", "mystery", "-T", "mystery", "-e", "sleep", "1000")
    desktop.focus("mystery")
    expect_front(program, "none")


def check_session_front_a_name_that_comes_late_counts(desktop):
    program = probe(desktop)
    terminal(desktop, "one")
    number = desktop.window("one")
    desktop.output("xprop", "-id", number, "-remove", "WM_CLASS")
    message(desktop)
    desktop.focus("xmessage")
    desktop.focus("one")
    expect_front(program, "none")
    desktop.output("xprop", "-id", number, "-f", "WM_CLASS", "8s", "-set", "WM_CLASS", "Xmessage")
    expect_front(program, "org.example.Message")


def check_session_front_a_program_that_is_killed_leaves_nothing_behind(desktop):
    program = probe(desktop)
    one = terminal(desktop, "one")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")
    one.kill()
    expect_front(program, "nothing")
    for round_number in range(10):  # windows that vanish while they are asked about
        title = f"short {round_number}"
        short = terminal(desktop, title)
        short.kill()
    terminal(desktop, "last")
    desktop.focus("last")
    expect_front(program, "org.example.Terminal")


def check_session_front_survives_its_window_manager(desktop):
    program = probe(desktop)
    message(desktop)
    terminal(desktop, "one")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")
    # Replaced by another: the old one gives way.
    first = desktop.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
    second = desktop.start("openbox", "--replace")
    wait_until("another manager", lambda: desktop.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK") != first)
    desktop.focus("xmessage")
    expect_front(program, "org.example.Message")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")
    # Killed: what is in front is not known, until the next comes.
    second.kill()
    expect_front(program, "unknown")
    desktop.start("openbox")
    wait_until("it is known again", lambda: front(program) != "unknown")
    desktop.focus("xmessage")
    expect_front(program, "org.example.Message")


def check_session_front_costs_nothing_while_nothing_changes(desktop):
    program = probe(desktop)
    terminal(desktop, "one")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")

    def wake_ups() -> int:
        tasks = pathlib.Path(f"/proc/{program.process.pid}/task").glob("*/status")
        return sum(
            int(line.split()[1])
            for task in tasks
            for line in task.read_text(encoding="ascii").splitlines()
            if line.startswith("voluntary_ctxt_switches")
        )

    time.sleep(1)
    before = wake_ups()
    time.sleep(5)
    expect_equal("wake-ups in 5 s", wake_ups() - before, 0)


def check_session_front_own_windows_are_this_application(desktop):
    program = probe(desktop)
    show(desktop)
    desktop.focus("probe")
    expect_front(program, "com.vexolith.barquell")


def check_session_windows_leave_the_task_bar_while_accessory(desktop):
    program = probe(desktop)
    show(desktop)
    skipping = {"SKIP_TASKBAR", "SKIP_PAGER"}
    wait_until("the window skips both", lambda: skipping <= hints(desktop))
    set_regular(desktop, True)
    wait_until("the window is listed", lambda: not skipping & hints(desktop))
    set_regular(desktop, False)
    wait_until("the window skips both again", lambda: skipping <= hints(desktop))
    # A window manager forgets the hints of a window that is closed.
    desktop.focus("probe")
    desktop.key("alt+F4")
    expect_front(program, "nothing")
    show(desktop)
    wait_until("the window that is shown again skips both", lambda: skipping <= hints(desktop))


def check_session_windows_of_a_regular_program_are_listed(desktop):
    probe(desktop)
    set_regular(desktop, True)
    show(desktop)
    desktop.window("probe")
    expect_equal("hints", hints(desktop) & {"SKIP_TASKBAR", "SKIP_PAGER"}, set())


def check_session_reopen_brings_the_window_to_the_front(desktop):
    program = probe(desktop)
    show(desktop)
    expect_front(program, "com.vexolith.barquell")
    terminal(desktop, "one")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")
    show(desktop)
    program.expect("reopen 1")
    expect_front(program, "com.vexolith.barquell")


def check_session_closing_the_last_window_ends_nothing(desktop):
    program = probe(desktop)
    show(desktop)
    desktop.focus("probe")
    desktop.key("alt+F4")
    wait_until("the window is gone", lambda: front(program) == "nothing")
    show(desktop)
    program.expect("reopen 0", 2)
    program.signal(signal.SIGTERM)
    expect_equal("exit status", program.process.wait(10), 0)
    expect_equal("last words", program.lines()[-1], "terminate")


def check_session_without_a_bus_it_lives_and_knows_the_front(desktop):
    program = probe(desktop, DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere/bus")
    terminal(desktop, "one")
    desktop.focus("one")
    expect_front(program, "org.example.Terminal")
    program.signal(signal.SIGTERM)
    expect_equal("exit status", program.process.wait(10), 0)
