"""The status item on a real panel: seen, clicked, and back after the panel was restarted."""

from desktop import Failure, expect_equal, wait_until
from panel import DARK, GRAPHITE, LIGHT, PAPER, Panel, Tray


def start(desktop, color=LIGHT):
    panel = Panel(desktop, color)
    probe = desktop.start(desktop.tool("statusprobe"), *(["dark"] if panel.dark else []))
    probe.expect("ready")
    panel.item()
    return panel, probe


def choose(desktop, panel, probe, row) -> None:
    """Clicks the item and chooses from the menu by the keys: the row counts the items that can be chosen."""
    opened = probe.count("menu opened")
    desktop.click(*panel.item())
    probe.expect("menu opened", opened + 1)
    desktop.key(*["Down"] * row, "Return")
    probe.expect("menu closed", opened + 1)
    desktop.move(640, 600)  # panels brighten what is under the pointer


def expect_dimming(desktop, color) -> str:
    panel, probe = start(desktop, color)
    full = wait_until("the full item", lambda: panel.ink() > 200 and panel.ink())
    choose(desktop, panel, probe, 1)
    probe.expect("Enabled is no")
    dimmed = wait_until("the dimmed item", lambda: 0 < panel.ink() < full * 0.6 and panel.ink())
    choose(desktop, panel, probe, 1)
    probe.expect("Enabled is yes")
    wait_until("the full item again", lambda: panel.ink() == full)
    if not 0.45 < dimmed / full < 0.55:
        raise Failure(f"dimmed to {dimmed} of {full}")
    probe.kill()
    wait_until("the item is gone with its program", lambda: panel.ink() == 0)
    return f"{dimmed} of {full}"


def check_statusitem_dims_on_a_light_panel_while_blocking_is_not_in_force(desktop):
    return expect_dimming(desktop, LIGHT)


def check_statusitem_dims_on_a_dark_panel_while_blocking_is_not_in_force(desktop):
    return expect_dimming(desktop, DARK)


def expect_legible(desktop, color, *options) -> str:
    panel = Panel(desktop, color)
    desktop.start(desktop.tool("statusprobe"), *options).expect("ready")
    panel.item()
    seen = wait_until("a contrast of 3 to 1", lambda: panel.contrast() >= 3 and panel.contrast())
    return f"{seen:.1f} to 1"


def check_statusitem_is_legible_on_a_dark_panel_of_a_light_desktop(desktop):
    return expect_legible(desktop, GRAPHITE)


def check_statusitem_is_legible_on_a_light_panel_of_a_dark_desktop(desktop):
    return expect_legible(desktop, PAPER, "dark")


def expect_menu_at_item(desktop, panel, probe) -> None:
    x, y = panel.item()
    desktop.click(x, y)
    probe.expect("menu opened")
    menu = desktop.output("xdotool", "search", "--onlyvisible", "--class", "statusprobe").split()[-1]
    place = dict(
        line.split("=") for line in desktop.output("xdotool", "getwindowgeometry", "--shell", menu).splitlines()
    )
    if not (abs(int(place["X"]) - x) < 40 and abs(int(place["Y"]) - y) < 40):
        raise Failure(f"the item is at {x},{y} but its menu at {place}")
    desktop.click(640, 600)
    probe.expect("menu closed")


def check_statusitem_opens_its_menu_beneath_a_real_click(desktop):
    expect_menu_at_item(desktop, *start(desktop))


def check_statusitem_menu_is_chosen_from_by_the_mouse(desktop):
    panel, probe = start(desktop)
    desktop.click(*panel.item())
    probe.expect("menu opened")
    menu = desktop.output("xdotool", "search", "--onlyvisible", "--class", "statusprobe").split()[-1]
    place = dict(
        line.split("=") for line in desktop.output("xdotool", "getwindowgeometry", "--shell", menu).splitlines()
    )
    desktop.move(int(place["X"]) + 40, int(place["Y"]) + 10)
    desktop.click(int(place["X"]) + 40, int(place["Y"]) + 14)
    probe.expect("Enabled is no")
    expect_equal("how often the menu closed", probe.count("menu closed"), 1)


def check_statusitem_middle_and_control_click_are_the_right_click(desktop):
    panel, probe = start(desktop)
    x, y = panel.item()
    desktop.click(x, y, 2)
    probe.expect("reopened")
    desktop.key_down("Control_L")
    desktop.click(x, y)
    desktop.key_up("Control_L")
    probe.expect("reopened", 2)
    expect_equal("menus", probe.count("menu opened"), 0)


def check_statusitem_is_back_after_the_panel_was_killed(desktop):
    panel, probe = start(desktop)
    for _ in range(2):
        panel.kill()
        wait_until("the panel is gone", lambda: panel.ink() == 0)
        panel.start()
        panel.item()
    choose(desktop, panel, probe, 1)
    probe.expect("Enabled is no")


def check_statusitem_comes_when_the_panel_comes_later(desktop):
    probe = desktop.start(desktop.tool("statusprobe"))
    probe.expect("ready")
    Panel(desktop).item()


def check_statusitem_menu_whose_panel_is_killed_can_still_be_left(desktop):
    panel, probe = start(desktop)
    desktop.click(*panel.item())
    probe.expect("menu opened")
    panel.kill()
    desktop.key("Escape")
    probe.expect("menu closed")


def check_statusitem_menu_answers_the_keys_that_it_shows(desktop):
    panel, probe = start(desktop)
    desktop.click(*panel.item())
    probe.expect("menu opened")
    desktop.key("ctrl+b")
    probe.expect("background")
    expect_equal("how often the menu closed", probe.count("menu closed"), 1)
    desktop.click(*panel.item())
    desktop.key("ctrl+q")
    wait_until("the program has ended", lambda: probe.process.poll() is not None)
    expect_equal("its status", probe.process.returncode, 0)
    wait_until("the item is gone", lambda: panel.ink() == 0)


def check_statusitem_menu_ignores_a_key_that_switches_the_layout(desktop):
    """Such a key has no name that an item could show."""
    desktop.output("setxkbmap", "us,de", "-option", "grp:caps_toggle")
    panel, probe = start(desktop)
    desktop.click(*panel.item())
    probe.expect("menu opened")
    for _ in range(2):
        desktop.key("ISO_Next_Group")
    desktop.key("ctrl+b")
    probe.expect("background")
    expect_equal("how often blocking was switched", probe.count("Enabled is no"), 0)
    expect_equal("how often the menu closed", probe.count("menu closed"), 1)


def check_statusitem_menu_finds_its_place_on_a_dense_screen(desktop):
    panel = Panel(desktop)
    probe = desktop.start(desktop.tool("statusprobe"), QT_SCALE_FACTOR="2")
    probe.expect("ready")
    expect_menu_at_item(desktop, panel, probe)


def check_statusitem_stands_in_the_x11_tray_where_no_panel_shows_items_of_the_bus(desktop):
    tray = Tray(desktop)
    probe = desktop.start(desktop.tool("statusprobe"))
    probe.expect("ready")
    choose(desktop, tray, probe, 1)
    probe.expect("Enabled is no")
    for count, button in enumerate((2, 3), 1):
        desktop.click(*tray.item(), button)
        probe.expect("reopened", count)



def check_statusitem_stands_in_the_x11_tray_without_a_bus(desktop):
    tray = Tray(desktop)
    probe = desktop.start(desktop.tool("statusprobe"), DBUS_SESSION_BUS_ADDRESS=f"unix:path={desktop.directory}/nobody")
    probe.expect("No session bus; other programs can not be heard")
    choose(desktop, tray, probe, 1)
    probe.expect("Enabled is no")


def check_statusitem_changes_between_the_x11_tray_and_a_panel_that_comes_and_goes(desktop):
    tray = Tray(desktop, "bottom")
    probe = desktop.start(desktop.tool("statusprobe"))
    probe.expect("ready")
    tray.item()
    panel = Panel(desktop)
    panel.item()
    wait_until("the tray is empty", lambda: tray.ink() == 0)
    panel.kill()
    choose(desktop, Tray(desktop, "bottom"), probe, 1)  # the panel had put an end to the first one
    probe.expect("Enabled is no")


def check_statusitem_stands_in_the_x11_tray_where_a_panel_was_at_first(desktop):
    """The probe asked for the panel before it could be known."""
    panel, probe = start(desktop)
    panel.kill()
    choose(desktop, Tray(desktop), probe, 1)
    probe.expect("Enabled is no")


def check_statusitem_comes_when_the_x11_tray_comes_later(desktop):
    probe = desktop.start(desktop.tool("statusprobe"))
    probe.expect("ready")
    Tray(desktop).item()


def check_statusitem_of_the_program_itself_is_toggled_and_quits(desktop):
    binary = desktop.build / "src/app/barquell"
    panel = Panel(desktop)
    program = desktop.start(binary, BARQUELL_TAP_SOCKET=str(desktop.directory / "nobody"))
    desktop.window("Authorization Required")  # nothing is trusted here
    full = wait_until("the full item", lambda: panel.ink() > 200 and panel.ink())

    def choose_by_keys(*keys):
        before = windows(desktop)
        desktop.click(*panel.item())
        wait_until("the menu is open", lambda: len(windows(desktop)) == len(before) + 1)
        desktop.key(*keys)
        desktop.move(640, 600)

    choose_by_keys("Down", "Return")
    wait_until("the setting is off", lambda: "Enabled" in desktop.output(binary, "defaults", "read"))
    expect_equal("the setting", desktop.output(binary, "defaults", "read", "Enabled").strip(), "0")
    dimmed = wait_until("the dimmed item", lambda: 0 < panel.ink() < full * 0.6 and panel.ink())
    panel.kill()
    wait_until("the panel is gone", lambda: panel.ink() == 0)
    panel.start()
    wait_until("the dimmed item is back", lambda: panel.ink() == dimmed)
    choose_by_keys("ctrl+q")
    wait_until("the program has ended", lambda: program.process.poll() is not None)
    expect_equal("its status", program.process.returncode, 0)
    wait_until("the item is gone", lambda: panel.ink() == 0)
    return f"{dimmed} of {full}"


def windows(desktop) -> list:
    """The program's visible windows, its menu among them."""
    return desktop.output("xdotool", "search", "--onlyvisible", "--class", "barquell").split()
