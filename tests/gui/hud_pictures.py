"""Pictures of the HUD: its five places on one screen, and its looks."""

from desktop import on_screen, wait_until

BACKDROP = "#6d8fa3"
BACKDROP_PIXEL = tuple(bytes.fromhex(BACKDROP[1:]))
PLACES = ((520, 487), (1158, 10), (1158, 710), (10, 10), (10, 710))  # upper left corners, on this screen


def prepare(desktop) -> None:
    """A desktop with translucent windows, and something behind them."""
    without_cursor = ("-e", "sh", "-c", r"printf '\033[?25l'; sleep 600")
    desktop.start("xterm", "-T", "backdrop", "-bg", BACKDROP, "-fullscreen", *without_cursor)
    desktop.focus("backdrop")
    desktop.start("picom", "--backend", "xrender", "--config", "/dev/null")
    wait_until("the compositor is there", lambda: '"picom' in desktop.output("xwininfo", "-root", "-tree"))
    desktop.move(640, 799)


def is_seen(desktop, location: int) -> bool:
    """A plate is there, and the compositor lets shine through what its round corner leaves clear."""
    x, y = PLACES[location]
    return desktop.pixel(x, y) == BACKDROP_PIXEL and desktop.pixel(x + 56, y + 8) != BACKDROP_PIXEL


def places(desktop, file, *words) -> None:
    prepare(desktop)
    for location in range(5):
        desktop.start(desktop.tool("hudprobe"), "hold", f"location={location}", *words)
        wait_until("the HUD is seen", lambda: is_seen(desktop, location))  # pylint: disable=cell-var-from-loop
    shot = desktop.directory / "shot.png"
    desktop.screenshot(shot)
    desktop.output("convert", shot, "-resize", "50%", "-strip", file)


def cut_out(desktop, location: int, cut: str, *words):
    """The part of the screen around a HUD."""
    probe = desktop.start(desktop.tool("hudprobe"), "hold", f"location={location}", *words)
    wait_until("the HUD is seen", lambda: is_seen(desktop, location))
    shot = desktop.directory / f"{location}.{'.'.join(words)}.png"
    desktop.screenshot(shot)
    desktop.output("convert", shot, "-crop", cut, "+repage", shot)
    probe.kill()
    wait_until("the HUD is gone", lambda: not is_seen(desktop, location))
    return shot


def looks(desktop, file, *words) -> None:
    """Both looks in both sizes, side by side."""
    prepare(desktop)
    cuts = []
    for state in ("block", "pass"):
        cuts.append(cut_out(desktop, 0, "280x240+500+467", state, *words))
        cuts.append(cut_out(desktop, 1, "142x110+1138+0", state, *words))
    desktop.output("convert", "-background", BACKDROP, "-gravity", "center", *cuts, "+append", "-strip", file)


@on_screen("1280x800")
def picture_hud_places_light(desktop, file):
    places(desktop, file)


@on_screen("1280x800")
def picture_hud_places_dark(desktop, file):
    places(desktop, file, "dark")


@on_screen("1280x800")
def picture_hud_looks_light(desktop, file):
    looks(desktop, file)


@on_screen("1280x800")
def picture_hud_looks_dark(desktop, file):
    looks(desktop, file, "dark")
