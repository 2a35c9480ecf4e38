"""The picture of the whole program at the head of README: its window above a simulated bar, its item in a panel."""

from bar import Bar
from desktop import on_screen
from panel import DARK, Panel


@on_screen("1280x760")
def picture_desktop(desktop, file):
    desktop.output("xsetroot", "-solid", "#6d8fa3")
    Panel(desktop, DARK)
    bar = Bar(desktop)
    bar.touch()
    bar.becomes(held=1, passed=0)
    bar.barquell.command("show")
    desktop.focus("Barquell Preferences")
    shot = desktop.directory / "shot.png"
    desktop.screenshot(shot)
    desktop.output("convert", shot, "-colors", "64", "-strip", file)
