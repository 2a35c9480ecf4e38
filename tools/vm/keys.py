"""The keys the test devices carry: evdev code and HID usage by name.

A usage of 0 says that the device reports no scan code with that key.
"""


def _row(first_code: int, letters: str) -> dict:
    # HID numbers the letters by the alphabet, evdev by their place.
    return {
        "KEY_" + letter: (first_code + at, 0x70004 + ord(letter) - ord("A"))
        for at, letter in enumerate(letters)
    }


LETTERS = {**_row(16, "QWERTYUIOP"), **_row(30, "ASDFGHJKL"), **_row(44, "ZXCVBNM")}

DIGITS = {f"KEY_{(at + 1) % 10}": (2 + at, 0x7001E + at) for at in range(10)}

FUNCTION_KEYS = {
    f"KEY_F{n}": ((58 + n) if n <= 10 else (76 + n), 0x70039 + n) for n in range(1, 13)
}

MODIFIERS = {
    "KEY_LEFTCTRL": (29, 0x700E0),
    "KEY_LEFTSHIFT": (42, 0x700E1),
    "KEY_LEFTALT": (56, 0x700E2),
    "KEY_LEFTMETA": (125, 0x700E3),
    "KEY_RIGHTCTRL": (97, 0x700E4),
    "KEY_RIGHTSHIFT": (54, 0x700E5),
    "KEY_RIGHTALT": (100, 0x700E6),
    "KEY_RIGHTMETA": (126, 0x700E7),
    "KEY_FN": (0x1D0, 0xFF0003),
    "KEY_CAPSLOCK": (58, 0x70039),
}

EDITING = {
    "KEY_ESC": (1, 0x70029),
    "KEY_MINUS": (12, 0x7002D),
    "KEY_EQUAL": (13, 0x7002E),
    "KEY_BACKSPACE": (14, 0x7002A),
    "KEY_TAB": (15, 0x7002B),
    "KEY_LEFTBRACE": (26, 0x7002F),
    "KEY_RIGHTBRACE": (27, 0x70030),
    "KEY_ENTER": (28, 0x70028),
    "KEY_SEMICOLON": (39, 0x70033),
    "KEY_APOSTROPHE": (40, 0x70034),
    "KEY_GRAVE": (41, 0x70035),
    "KEY_BACKSLASH": (43, 0x70031),
    "KEY_COMMA": (51, 0x70036),
    "KEY_DOT": (52, 0x70037),
    "KEY_SLASH": (53, 0x70038),
    "KEY_SPACE": (57, 0x7002C),
    "KEY_102ND": (86, 0x70064),
    "KEY_UP": (103, 0x70052),
    "KEY_LEFT": (105, 0x70050),
    "KEY_RIGHT": (106, 0x7004F),
    "KEY_DOWN": (108, 0x70051),
    "KEY_DELETE": (111, 0x7004C),
}

# Each is what a function key becomes, so it carries that key's usage.
MEDIA = {
    "KEY_BRIGHTNESSDOWN": (224, 0x7003A),
    "KEY_BRIGHTNESSUP": (225, 0x7003B),
    "KEY_SCALE": (120, 0x7003C),
    "KEY_DASHBOARD": (204, 0x7003D),
    "KEY_KBDILLUMDOWN": (229, 0x7003E),
    "KEY_KBDILLUMUP": (230, 0x7003F),
    "KEY_PREVIOUSSONG": (165, 0x70040),
    "KEY_PLAYPAUSE": (164, 0x70041),
    "KEY_NEXTSONG": (163, 0x70042),
    "KEY_MUTE": (113, 0x70043),
    "KEY_VOLUMEDOWN": (114, 0x70044),
    "KEY_VOLUMEUP": (115, 0x70045),
}

POWER = {"KEY_POWER": (116, 0x70066), "KEY_EJECTCD": (161, 0xC00B8)}

INTERNAL = {
    **LETTERS, **DIGITS, **FUNCTION_KEYS, **MODIFIERS, **EDITING, **MEDIA, **POWER,
}  # fmt: skip

BAR = {"KEY_ESC": EDITING["KEY_ESC"], **FUNCTION_KEYS, **MEDIA}

DRAWN = {name: (code, 0) for name, (code, _) in BAR.items()}
