"""The HUD on a real desktop: where it stands, above whom, and that it takes nothing from anybody."""

import pathlib
import re
import time

from desktop import Failure, expect_equal, on_screen, wait_until

SMALL = (112, 80)
LARGE = (240, 200)
PLATE = (0x24, 0x24, 0x28)  # of the dark look


def show(desktop, *words, **variables):
    """Starts the probe and waits until its HUD is there."""
    desktop.output("xsetroot", "-solid", "#3a8f5a")
    probe = desktop.start(desktop.tool("hudprobe"), "dark", *words, **variables)
    wait_until("the HUD is painted", lambda: "painted" in probe.lines())
    return probe


def number(desktop) -> str:
    """The HUD's window."""
    tree = desktop.output("xwininfo", "-root", "-tree")
    return re.search(r'(0x[0-9a-f]+) "[^"]*": \("hudprobe" "hudprobe"\)', tree).group(1)


def is_visible(desktop) -> bool:
    return "IsViewable" in desktop.output("xwininfo", "-id", number(desktop))


def place(desktop) -> tuple:
    """(x, y, width, height) in pixels."""
    text = desktop.output("xwininfo", "-id", number(desktop))
    keys = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
    return tuple(int(re.search(rf"{key}:\s*(-?\d+)", text).group(1)) for key in keys)


def expect_in_front(desktop, what: str) -> None:
    """The HUD's plate is what one sees there; 8 points below its upper edge are neither picture nor text."""
    x, y, width, _ = place(desktop)
    wait_until(what, lambda: desktop.pixel(x + width // 2, y + 8) == PLATE, 3)


def expect_five_places(desktop, width: int, height: int) -> None:
    middle = height * 11 / 15  # 4/15 above the lower edge
    places = {
        0: ((width - LARGE[0]) / 2, middle - LARGE[1] / 2, *LARGE),
        1: (width - SMALL[0] - 10, 10, *SMALL),
        2: (width - SMALL[0] - 10, height - SMALL[1] - 10, *SMALL),
        3: (10, 10, *SMALL),
        4: (10, height - SMALL[1] - 10, *SMALL),
        5: ((width - SMALL[0]) / 2, middle - SMALL[1] / 2, *SMALL),
    }
    for location, wanted in places.items():
        probe = show(desktop, f"location={location}", "hold")
        expect_equal(f"place {location}", place(desktop), tuple(round(one) for one in wanted))
        expect_in_front(desktop, f"place {location} is painted")
        probe.kill()


@on_screen("1280x800")
def check_hud_stands_in_its_places_on_a_laptop_screen(desktop):
    expect_five_places(desktop, 1280, 800)


@on_screen("1920x1080")
def check_hud_stands_in_its_places_on_a_larger_screen(desktop):
    expect_five_places(desktop, 1920, 1080)


def split_screen(desktop) -> None:
    """Makes two monitors of the screen, side by side."""
    desktop.output("xrandr", "--setmonitor", "left", "640/200x800/250+0+0", "screen")
    desktop.output("xrandr", "--setmonitor", "right", "640/200x800/250+640+0", "none")


@on_screen("1280x800")
def check_hud_goes_to_the_screen_with_the_focus(desktop):
    split_screen(desktop)
    desktop.start("xterm", "-T", "west", "-geometry", "40x10+50+300")
    desktop.start("xterm", "-T", "east", "-geometry", "40x10+700+300")
    desktop.window("west")
    desktop.window("east")
    desktop.move(1000, 700)
    for title, edge in (("west", 640), ("east", 1280), ("west", 640)):
        desktop.focus(title)
        probe = show(desktop, "location=1", "hold")
        expect_equal(f"place beside {title}", place(desktop), (edge - SMALL[0] - 10, 10, *SMALL))
        probe.kill()


@on_screen("1280x800")
def check_hud_goes_to_the_screen_of_the_pointer_without_a_focus(desktop):
    split_screen(desktop)
    for x, edge in ((1000, 1280), (300, 640)):
        desktop.move(x, 700)
        probe = show(desktop, "location=2", "hold")
        expect_equal(f"place with the pointer at {x}", place(desktop), (edge - SMALL[0] - 10, 710, *SMALL))
        probe.kill()


@on_screen("1280x800")
def check_hud_outlives_a_screen_that_vanishes_beneath_it(desktop):
    split_screen(desktop)
    desktop.move(1000, 700)
    probe = show(desktop, "location=1", "hold")
    expect_equal("its first place", place(desktop)[0], 1280 - SMALL[0] - 10)
    desktop.output("xrandr", "--delmonitor", "right")
    probe.expect("screens 1")
    wait_until("it is on the screen that is left", lambda: place(desktop)[0] == 640 - SMALL[0] - 10, 3)
    expect_in_front(desktop, "it is painted there")


def check_hud_has_round_corners_without_a_compositor(desktop):
    show(desktop, "location=1", "hold")
    x, y, width, height = place(desktop)
    for corner in ((x, y), (x + width - 1, y), (x, y + height - 1), (x + width - 1, y + height - 1)):
        expect_equal(f"the corner {corner}", desktop.pixel(*corner), (0x3A, 0x8F, 0x5A))


@on_screen("1920x1080")
def check_hud_is_twice_as_large_and_as_fine_at_200_percent(desktop):
    show(desktop, "location=1", "hold", QT_SCALE_FACTOR="2")
    expect_equal("its place", place(desktop), (1920 - 224 - 20, 20, 224, 160))
    expect_in_front(desktop, "the HUD is painted")


@on_screen("1920x1080")
def check_hud_follows_a_scale_of_150_percent(desktop):
    show(desktop, "location=4", "hold", QT_SCALE_FACTOR="1.5")
    expect_equal("its place", place(desktop), (15, 1080 - 120 - 15, 168, 120))
    expect_in_front(desktop, "the HUD is painted")


def check_hud_lets_a_click_fall_through(desktop):
    message = desktop.start("xmessage", "-buttons", "press:7", "-title", "below", "nothing to read here")
    window = desktop.window("below")

    def button() -> tuple:
        tree = desktop.output("xwininfo", "-id", window, "-tree")
        width, height, x, y = re.findall(r"(\d+)x(\d+)\+\S+ +\+(-?\d+)\+(-?\d+)", tree)[-1]  # the last child
        return int(x) + int(width) // 2, int(y) + int(height) // 2

    show(desktop, "location=0", "hold")
    left, upper, width, height = place(desktop)
    was = button()
    desktop.output("xdotool", "windowmove", "--relative", "--sync", window,
                   left + width // 2 - was[0], upper + height // 2 - was[1] - 30)
    expect_in_front(desktop, "the HUD is in front")
    x, y = button()
    if not (left < x < left + width and upper < y < upper + height):
        raise Failure(f"the button at {(x, y)} is not beneath the HUD at {place(desktop)}")
    desktop.click(x, y)
    wait_until("the button was pressed", lambda: message.process.poll() is not None)
    expect_equal("the button's answer", message.process.returncode, 7)


def check_hud_leaves_the_focus_where_it_is(desktop):
    file = desktop.directory / "typed"
    desktop.start("xterm", "-T", "typing", "-e", "sh", "-c", f'read word; echo "$word" >{file}')
    desktop.focus("typing")
    before = desktop.output("xdotool", "getwindowfocus"), desktop.output("xdotool", "getactivewindow")
    show(desktop, "location=0", "hold")
    time.sleep(1.2)  # it is shown a second time on the way
    after = desktop.output("xdotool", "getwindowfocus"), desktop.output("xdotool", "getactivewindow")
    expect_equal("focused and active window", after, before)
    desktop.key("y", "e", "s", "Return")
    wait_until("the word arrived", lambda: file.exists() and file.read_text(encoding="ascii") == "yes\n")


def check_hud_is_above_a_full_screen_window(desktop):
    desktop.start("xterm", "-T", "cinema", "-bg", "#803020", "-fullscreen")
    desktop.focus("cinema")
    wait_until("it fills the screen", lambda: desktop.pixel(1279, 799) == (0x80, 0x30, 0x20))
    show(desktop, "location=1", "hold")
    expect_in_front(desktop, "the HUD is above the full-screen window")


def check_hud_stays_above_a_window_that_becomes_full_screen(desktop):
    desktop.start("xterm", "-T", "cinema", "-bg", "#803020")
    desktop.focus("cinema")
    show(desktop, "location=1", "hold")
    desktop.key("alt+Return")  # xterm's own
    wait_until("it fills the screen", lambda: desktop.pixel(1279, 799) == (0x80, 0x30, 0x20))
    expect_in_front(desktop, "the HUD is above the full-screen window")


def check_hud_is_on_every_workspace(desktop):
    show(desktop, "location=3", "hold")
    desktop.output("xdotool", "set_num_desktops", "3")
    for workspace in ("2", "1", "0"):
        desktop.output("xdotool", "set_desktop", workspace)
        wait_until("the workspace has changed", lambda: desktop.output("xdotool", "get_desktop").strip() == workspace)
        expect_in_front(desktop, f"the HUD is on workspace {workspace}")


def check_hud_fades_with_its_window_where_windows_can_be_translucent(desktop):
    desktop.start("picom", "--backend", "xrender", "--config", "/dev/null")
    wait_until("the compositor is there", lambda: '"picom' in desktop.output("xwininfo", "-root", "-tree"))
    desktop.start("xterm", "-T", "behind", "-bg", "#ffffff", "-fullscreen")
    wait_until("it fills the screen", lambda: desktop.pixel(1279, 799) == (255, 255, 255))
    show(desktop, "location=1")
    x, y, width, _ = place(desktop)
    seen = set()

    def faded() -> bool:
        seen.add(desktop.pixel(x + width // 2, y + 8)[0])
        return 255 in seen

    wait_until("the HUD has faded", faded, 5)
    plate = min(seen)
    if not PLATE[0] < plate < 0x50:
        raise Failure(f"the plate is not translucent: {sorted(seen)}")
    if not any(plate + 20 < one < 235 for one in seen):
        raise Failure(f"nothing was seen between plate and background: {sorted(seen)}")


def wakes(pid: int) -> int:
    """How often the threads of a process have gone to sleep."""
    statuses = (task.read_text() for task in pathlib.Path(f"/proc/{pid}/task").glob("*/status"))
    return sum(int(re.search(r"^voluntary_ctxt_switches:\s*(\d+)", status, re.M).group(1)) for status in statuses)


def check_hud_neither_wakes_nor_paints_after_the_fade(desktop):
    probe = show(desktop, "location=1")
    before = wakes(probe.process.pid)
    probe.expect("hidden")
    fading = wakes(probe.process.pid) - before
    if is_visible(desktop):
        raise Failure("it is hidden for Qt and visible for X")
    time.sleep(1)  # what hiding leaves to do
    before, painted = wakes(probe.process.pid), probe.count("painted")
    time.sleep(10)
    expect_equal("wake-ups in 10 s", wakes(probe.process.pid) - before, 0)
    expect_equal("paintings in 10 s", probe.count("painted") - painted, 0)
    return f"0 wake-ups in 10 s; {fading} while it was shown and faded"
