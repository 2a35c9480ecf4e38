"""Global shortcuts under a real X server, pressed by real keys."""

from desktop import Failure, expect_equal, wait_until

CONTROL, OPTION, COMMAND = 0x40000, 0x80000, 0x100000
U = 32  # virtual key codes
F5 = 96

# X key codes: the kernel's and 8
KEY_F5 = "71"
KEY_ALT_AND_U = ("64", "30")


def probe(desktop, *arguments, ready="ready"):
    program = desktop.start(desktop.tool("hotkeyprobe"), *arguments)
    program.expect(ready)
    return program


def nothing_more(desktop, program, line: str, count: int) -> None:
    """A key of the program's window goes the same way and comes after; then the count is final."""
    desktop.key("F9")
    program.expect("pressed Last")
    expect_equal(f"how often it said '{line}'", program.count(line), count)


LAST = f"Last=101,{0}"  # F9


def check_hotkey_calls_its_target(desktop):
    program = probe(desktop, f"Reveal={U},{CONTROL | OPTION | COMMAND}", LAST)
    program.expect("Reveal is {key=U[32], flags=⌃⌥⌘}")
    desktop.start("xterm", "-T", "elsewhere")
    desktop.focus("elsewhere")
    desktop.key("ctrl+alt+super+u")
    program.expect("pressed Reveal")
    desktop.key("ctrl+alt+u")
    nothing_more(desktop, program, "pressed Reveal", 1)


def check_hotkey_ignores_caps_lock_and_num_lock(desktop):
    program = probe(desktop, f"Toggle={F5},{CONTROL}", LAST)
    presses = 0
    for lock in ("Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"):
        desktop.key(lock)
        desktop.key("ctrl+F5")
        presses += 1
        program.expect("pressed Toggle", presses)
    nothing_more(desktop, program, "pressed Toggle", presses)


def check_hotkey_works_while_a_menu_of_ours_is_open(desktop):
    program = probe(desktop, "menu", f"Toggle={F5},{CONTROL}", ready="menu runs")
    desktop.key("ctrl+F5")
    program.expect("pressed Toggle")


def check_hotkey_works_while_a_modal_window_of_ours_is_open(desktop):
    program = probe(desktop, "modal", f"Toggle={F5},{CONTROL}", ready="box runs")
    desktop.key("ctrl+F5")
    program.expect("pressed Toggle")


def hold(desktop, key: str, repetitions: int) -> None:
    """Holds a key down until a program beside has seen it repeat that often."""
    watcher = desktop.start("xinput", "test-xi2", "--root")
    wait_until("the watcher watches", lambda: watcher.text())
    desktop.key_down(key)
    wait_until(
        "the key repeats",
        lambda: watcher.text().count("flags: repeat") > repetitions,
    )
    desktop.key_up(key)


def check_hotkey_is_pressed_once_while_the_key_repeats(desktop):
    desktop.output("xset", "r", "rate", "100", "50")
    program = probe(desktop, f"Toggle={F5},0", LAST)
    hold(desktop, KEY_F5, 10)
    program.expect("pressed Toggle")
    nothing_more(desktop, program, "pressed Toggle", 1)
    desktop.key("F5")
    program.expect("pressed Toggle", 2)


def check_hotkey_is_pressed_once_while_the_key_repeats_in_a_menu(desktop):
    desktop.output("xset", "r", "rate", "100", "50")
    program = probe(desktop, "menu", f"Toggle={F5},0", LAST, ready="menu runs")
    hold(desktop, KEY_F5, 10)
    program.expect("pressed Toggle")
    nothing_more(desktop, program, "pressed Toggle", 1)
    desktop.key("F5")
    program.expect("pressed Toggle", 2)


def check_hotkey_works_in_the_second_layout(desktop):
    desktop.output("setxkbmap", "us,ru", "-option", "grp:caps_toggle")
    program = probe(desktop, f"Reveal={U},{OPTION}", LAST)
    desktop.key("66")  # Caps Lock, which changes to Russian
    desktop.output("xdotool", "keydown", "64", "key", "30", "keyup", "64")
    program.expect("pressed Reveal")


def check_hotkey_of_a_program_that_ended_is_free_again(desktop):
    first = probe(desktop, f"Toggle={F5},{CONTROL}")
    first.kill()
    second = probe(desktop, f"Toggle={F5},{CONTROL}")
    desktop.key("ctrl+F5")
    second.expect("pressed Toggle")


def check_hotkey_held_by_another_program_is_refused(desktop):
    first = probe(desktop, f"Toggle={F5},{CONTROL}")
    second = probe(desktop, f"Toggle={F5},{CONTROL}", LAST)
    second.expect("RegisterEventHotKey failed: -9878")
    desktop.key("ctrl+F5")
    first.expect("pressed Toggle")
    nothing_more(desktop, second, "pressed Toggle", 0)


def check_hotkey_of_two_monitors_goes_to_the_first(desktop):
    program = probe(desktop, f"A={F5},{CONTROL}", f"B={F5},{CONTROL}", LAST)
    program.expect("RegisterEventHotKey failed: -9878")
    desktop.key("ctrl+F5")
    program.expect("pressed A")
    nothing_more(desktop, program, "pressed B", 0)


def check_hotkey_stays_on_its_key_when_the_layout_changes(desktop):
    program = probe(desktop, f"Reveal={U},{OPTION}", LAST)
    for count, layout in enumerate(("ru", "fr", "de", "us"), 1):
        desktop.output("setxkbmap", layout)
        desktop.output("xdotool", "keydown", "64", "key", "30", "keyup", "64")
        program.expect("pressed Reveal", count)


def check_hotkey_follows_the_modifier_keys_when_they_change(desktop):
    program = probe(desktop, f"Toggle={F5},{OPTION}", LAST)
    desktop.output("setxkbmap", "-option", "altwin:swap_lalt_lwin", "us")
    desktop.output("xdotool", "keydown", "133", "key", KEY_F5, "keyup", "133")
    program.expect("pressed Toggle")
    desktop.output("xmodmap", "-e", "clear mod1", "-e", "clear mod3", "-e", "add mod3 = Alt_L")
    wait_until("it followed", lambda: pressed_again(desktop, program))


def pressed_again(desktop, program) -> bool:
    desktop.output("xdotool", "keydown", "133", "key", KEY_F5, "keyup", "133")
    return program.count("pressed Toggle") > 1


def check_hotkey_names_come_from_the_first_layout_that_types_ascii(desktop):
    desktop.output("setxkbmap", "ru,fr")
    program = probe(desktop, f"Reveal=12,{COMMAND}")
    program.expect("Reveal is {key=A[12], flags=⌘}")


def check_hotkey_without_x_says_so_once(desktop):
    program = desktop.start(
        desktop.tool("hotkeyprobe"), f"A={F5},0", f"B={U},{COMMAND}", QT_QPA_PLATFORM="offscreen", DISPLAY=""
    )
    program.expect("ready")
    expect_equal("lines", program.count("Global shortcuts need an X11 session; here they do nothing"), 1)
    if "failed" in program.text():
        raise Failure(program.text())
