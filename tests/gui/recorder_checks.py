"""The recorder of shortcuts, with real keys."""

from desktop import expect_equal

# X key codes: the kernel's and 8
SHIFT_LEFT, SHIFT_RIGHT, CONTROL, ALT, SUPER = "50", "62", "37", "64", "133"
U, Y, F5, TAB, A = "30", "29", "71", "23", "38"


def recording(desktop):
    program = desktop.start(desktop.tool("recorderprobe"))
    desktop.focus("recorder")
    program.expect("focus line")
    desktop.key(TAB)
    program.expect("focus recorder")
    program.expect("title ")
    return program


def check_recorder_shows_the_modifiers_while_they_are_held(desktop):
    program = recording(desktop)
    for key, title in ((CONTROL, "⌃"), (ALT, "⌃⌥"), (SHIFT_LEFT, "⌃⌥⇧"), (SUPER, "⌃⌥⇧⌘")):
        desktop.key_down(key)
        program.expect(f"title {title}")
    desktop.key_up(SHIFT_LEFT)
    program.expect("title ⌃⌥⌘")
    desktop.key(U)
    program.expect("title ⌃⌥⌘U")
    program.expect(f"stored 32 {0x1C0000}")
    program.expect("focus window")
    for key in (CONTROL, ALT, SUPER):
        desktop.key_up(key)
    desktop.output("xdotool", "keydown", CONTROL, "keydown", ALT, "keydown", SUPER, "key", U)
    program.expect("pressed")


def check_recorder_knows_that_the_other_shift_is_still_down(desktop):
    program = recording(desktop)
    desktop.key_down(SHIFT_LEFT)
    program.expect("title ⇧")
    desktop.key_down(SHIFT_RIGHT)
    desktop.key_up(SHIFT_LEFT)
    desktop.key_down(CONTROL)
    program.expect("title ⌃⇧")
    desktop.key_up(SHIFT_RIGHT)
    program.expect("title ⌃")
    titles = [line for line in program.lines() if line.startswith("title")]
    expect_equal("titles", titles[1:], ["title ", "title ⇧", "title ⌃⇧", "title ⌃"])


def check_recorder_takes_a_function_key_alone_and_no_letter(desktop):
    program = recording(desktop)
    desktop.key(A)
    desktop.key(F5)
    program.expect("title F5")
    expect_equal("stored", [line for line in program.lines() if line.startswith("stored")][-1], "stored 96 0")
    desktop.key(F5)
    program.expect("pressed")


def check_recorder_names_keys_as_the_layout_prints_them(desktop):
    desktop.output("setxkbmap", "de")
    program = recording(desktop)
    desktop.output("xdotool", "keydown", CONTROL, "key", Y, "keyup", CONTROL)
    program.expect("title ⌃Z")
    program.expect(f"stored 16 {0x40000}")


def check_recorder_gives_up_with_escape_and_moves_on_with_tab(desktop):
    program = recording(desktop)
    desktop.key("Escape")
    program.expect("title ...", 2)
    program.expect("focus window")
    desktop.key("shift+Tab", TAB)
    program.expect("focus enabled")


def check_recorder_comes_before_the_menu_bar(desktop):
    program = recording(desktop)
    desktop.output("xdotool", "keydown", ALT, "key", "58", "keyup", ALT)  # Alt-M is the menu's mnemonic
    program.expect("title ⌥M")
    program.expect(f"stored 46 {0x80000}")


def check_recorder_cleared_by_keyboard_gives_the_key_back(desktop):
    program = recording(desktop)
    desktop.key(F5)
    program.expect("focus window")
    desktop.key(F5)
    program.expect("pressed")
    desktop.key(TAB)
    program.expect("focus clear")
    desktop.key("space")
    program.expect("title ...", 2)
    desktop.key(F5)  # nobody's now
    program.expect("stored", 2)
    desktop.focus("recorder")
    desktop.output("xdotool", "mousemove", "--window", desktop.window("recorder"), "170", "40", "click", "1")
    program.expect("focus recorder", 2)
    desktop.key("F6")
    program.expect("title F6")
    desktop.key("F6")
    program.expect("pressed", 2)
    expect_equal("presses", program.count("pressed"), 2)
