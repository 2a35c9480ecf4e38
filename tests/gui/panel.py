"""A real panel for one check: xfce4-panel with its notification area alone, across the top of the screen."""

import pathlib

from desktop import wait_until

HEIGHT = 32
LIGHT = (1.0, 1.0, 1.0)
DARK = (0.0, 0.0, 0.0)
GRAPHITE = (0.2, 0.2, 0.2)
PAPER = (0.933, 0.933, 0.933)

CONFIGURATION = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="{height}"/>
      <property name="background-style" type="uint" value="1"/>
      <property name="background-rgba" type="array">{color}<value type="double" value="1.0"/></property>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
    </property>
  </property>
</channel>
"""


def luminance(level: float) -> float:
    """Of a grey, by the curve of sRGB."""
    return level / 12.92 if level <= 0.04045 else ((level + 0.055) / 1.055) ** 2.4


def ratio(one: float, other: float) -> float:
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


class Strip:
    """A strip of items across the screen; the one item, where there is one, stands at its left end."""

    def __init__(self, desktop, top=0):
        self.desktop = desktop
        self.top = top

    def item_pixels(self, what=lambda value, paper: abs(value - paper)) -> list:
        """Where the item is drawn: (x, y, how much the pixel differs from the panel's colour, 0 to 255 at first)."""
        shot = self.desktop.directory / "panel.gray"
        width = 200
        self.desktop.output(
            "import", "-window", "root", "-crop", f"{width}x{HEIGHT}+0+{self.top}", "-colorspace", "Gray", "-depth", "8", f"gray:{shot}"
        )
        gray = shot.read_bytes()
        paper = gray[(HEIGHT // 2) * width + width - 1]
        return [
            (place % width, place // width, what(value, paper))
            for place, value in enumerate(gray)
            if 3 <= place // width < HEIGHT - 3 and abs(value - paper) > 24
        ]

    def ink(self) -> int:
        """How far the item's strongest pixel is from the panel's colour; 0 without an item."""
        return max((strength for _, _, strength in self.item_pixels()), default=0)

    def contrast(self) -> float:
        """Of the item's strongest pixel to the panel, 1 to 21, as WCAG 2 reckons it; both are grey."""
        pixels = self.item_pixels(what=lambda value, paper: ratio(value / 255, paper / 255))
        return max((strength for _, _, strength in pixels), default=1)

    def item(self) -> tuple:
        """The middle of the item, once it is drawn and stays where it is: a panel that starts moves it about."""
        before: list = []

        def settled() -> list:
            nonlocal before
            before, now = self.item_pixels(), before
            return before if before == now else []

        pixels = wait_until("the item is on the panel", settled)
        xs, ys = [x for x, _, _ in pixels], [y for _, y, _ in pixels]
        return (min(xs) + max(xs)) // 2, self.top + (min(ys) + max(ys)) // 2


class Tray(Strip):
    """A tray of the older kind, which embeds windows and knows no items of the bus."""

    def __init__(self, desktop, edge="top"):
        super().__init__(desktop, 0 if edge == "top" else 800 - HEIGHT)
        self.program = desktop.start(
            "trayer", "--edge", edge, "--align", "left", "--widthtype", "pixel", "--width", "300", "--heighttype",
            "pixel", "--height", str(HEIGHT), "--transparent", "true", "--alpha", "0", "--tint", "0xffffff",
        )


class Panel(Strip):
    """Starts when it is made."""

    def __init__(self, desktop, color=LIGHT):
        super().__init__(desktop)
        self.dark = color == DARK
        folder = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"]) / "xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True, exist_ok=True)
        values = "".join(f'<value type="double" value="{part}"/>' for part in color)
        (folder / "xfce4-panel.xml").write_text(
            CONFIGURATION.format(height=HEIGHT, color=values), encoding="utf-8"
        )
        self.start()

    def start(self) -> None:
        self.program = self.desktop.start("xfce4-panel", "--disable-wm-check")
        wait_until("the panel has its register", self._has_register)

    def kill(self) -> None:
        """As after a crash; the processes of its plugins end with it."""
        self.program.kill()

    def _has_register(self) -> bool:
        names = self.desktop.output(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus.ListNames",
        )
        return "org.kde.StatusNotifierWatcher" in names
