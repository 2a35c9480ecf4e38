"""Pictures of the status item on a real panel, with its menu open."""

from desktop import wait_until
from panel import GRAPHITE, PAPER, Panel


def panel(desktop, file, color, *options) -> None:
    strip = Panel(desktop, color)
    probe = desktop.start(desktop.tool("statusprobe"), *options)
    probe.expect("ready")
    strip.item()
    wait_until("the item is whole", lambda: strip.contrast() > 3)
    desktop.click(*strip.item())
    probe.expect("menu opened")
    desktop.move(400, 16)  # panels brighten what is under the pointer
    shot = desktop.directory / "shot.png"
    desktop.screenshot(shot)
    desktop.output("convert", shot, "-crop", "420x168+0+0", "+repage", "-strip", file)


def picture_panel_light(desktop, file):
    panel(desktop, file, PAPER)


def picture_panel_dark(desktop, file):
    panel(desktop, file, GRAPHITE, "dark")


def picture_panel_dark_on_a_light_desktop(desktop, file):
    panel(desktop, file, GRAPHITE)
