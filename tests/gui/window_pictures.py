"""Pictures of the program's windows and of its menu, light, dark and in high contrast, side by side."""

import pathlib
import re

from bar import Bar
from desktop import on_screen, wait_until
from panel import DARK, LIGHT, Panel
from preferences import TITLE, Preferences

BACKDROP = "#6d8fa3"
KDE = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}
DARK_COLORS = """[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
ForegroundInactive=161,169,177
[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
ForegroundInactive=161,169,177
ForegroundLink=29,153,243
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
ForegroundInactive=161,169,177
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
"""


BLACK = "Background(Normal|Alternate)=.*", r"Background\1=0,0,0"
WHITE = "Foreground(Normal|Inactive)=.*", r"Foreground\1=255,255,255"
CHOSEN = "(Selection]\n)BackgroundNormal=0,0,0\nForegroundNormal=255,255,255", r"\1BackgroundNormal=0,255,255\nForegroundNormal=0,0,0"


def colored(desktop, colors: str) -> dict:
    """The variables of a desktop whose settings ask for those colours."""
    folder = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"])
    (folder / "kdeglobals").write_text(colors, encoding="utf-8")
    return KDE


def dark(desktop) -> dict:
    return colored(desktop, DARK_COLORS)


def high_contrast(desktop) -> dict:
    colors = DARK_COLORS
    for pattern, replacement in (BLACK, WHITE, CHOSEN):
        colors = re.sub(pattern, replacement, colors)
    return colored(desktop, colors)


def settled(desktop, window, name):
    """A picture of the window once two in a row are the same."""
    shots = [desktop.directory / f"{name}.{number}.png" for number in range(2)]

    def is_still() -> bool:
        for shot in shots:
            desktop.screenshot(shot, window)
        first, second = (desktop.output("convert", shot, "-format", "%#", "info:") for shot in shots)
        return first == second

    wait_until(f"{name} is still", is_still)
    return shots[0]


def join(desktop, shots, file) -> None:
    desktop.output(
        "convert", "-background", "none", "-bordercolor", "none", "-gravity", "north", *shots, "-border", "6", "+append", "-strip", "-dither", "None", "-colors",
        "96", f"png8:{file}",
    )  # fmt: skip


def tabs(desktop, file, variables) -> None:
    preferences = Preferences(desktop, **variables)
    desktop.move(1, 1)
    shots = []
    for name in ("General", "Touch Bar", "Shortcuts"):
        preferences.open_tab(name)
        shots.append(settled(desktop, desktop.window(TITLE), name.replace(" ", "")))
    join(desktop, shots, file)


@on_screen("1280x1024")
def picture_preferences_light(desktop, file):
    tabs(desktop, file, {})


@on_screen("1280x1024")
def picture_preferences_dark(desktop, file):
    tabs(desktop, file, dark(desktop))


@on_screen("1280x1024")
def picture_preferences_high_contrast(desktop, file):
    tabs(desktop, file, high_contrast(desktop))


def authorization(desktop, file, variables) -> None:
    bar = Bar(desktop, **variables)
    shots = []
    for title in ("Authorization Required", "Authorization Complete"):
        bar.widgets.click("check box", "Barquell may filter touches")
        bar.waits_for("trusted", title.endswith("Complete"))
        if title.endswith("Required"):
            bar.barquell.command("show")
        shots.append(settled(desktop, desktop.window(title), title.replace(" ", "")))
    join(desktop, shots, file)


def picture_authorization_light(desktop, file):
    authorization(desktop, file, {})


def picture_authorization_dark(desktop, file):
    authorization(desktop, file, dark(desktop))


def menu(desktop, file, color, variables) -> None:
    panel = Panel(desktop, color)
    desktop.output("xsetroot", "-solid", BACKDROP)
    Bar(desktop, **variables)
    desktop.click(*panel.item())
    shot = settled(desktop, "root", "menu")
    desktop.output("convert", shot, "-crop", "300x140+0+0", "+repage", "-strip", "-dither", "None", "-colors", "96", f"png8:{file}")


def picture_menu_light(desktop, file):
    menu(desktop, file, LIGHT, {})


def picture_menu_dark(desktop, file):
    menu(desktop, file, DARK, dark(desktop))
