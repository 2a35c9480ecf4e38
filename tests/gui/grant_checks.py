"""The permission to filter as the user meets it: the real program and the real tap server, which needs root."""

import json
import os
import pathlib
import pwd
import signal
import subprocess

from desktop import Failure, expect_equal, wait_until
from program_checks import Barquell
from widgets import ACCESSIBLE, Widgets

REQUIRED = "Authorization Required"
COMPLETE = "Authorization Complete"
PAGE = "Touch Bar Permission"
SETTINGS = ("push button", "Open privacy settings…")
USER = pwd.getpwuid(os.getuid()).pw_name
MAY, MAY_NOT = (("label", f"{USER} {words} hold touches back") for words in ("may", "may not"))
GONE = "This user may no longer filter the Touch Bar"
NOBODY = "This user may not filter the Touch Bar: the system asked nobody, or nobody answered"
SILENT = "The permission was not given: the service that holds the Touch Bar does not answer."
NOT_WITHDRAWN = "The permission could not be withdrawn: the service that holds the Touch Bar does not answer."
NOT_GIVEN = "The permission was not given: somebody declined, or there is nobody who can be asked."


class World:
    """The server with grants of its own, and the program; nobody is there whom the system could ask."""

    def __init__(self, desktop):
        if os.getuid() != 0:
            raise Failure("only root's grants count: run it as root")
        self.desktop = desktop
        self.barquell = Barquell(desktop)
        self.tapd = desktop.build / "src/platform/linux/tapd/barquell-tapd"
        self.grants = pathlib.Path(desktop.environment["BARQUELL_GRANTS"])
        desktop.environment["BARQUELL_TAP_SOCKET"] = str(desktop.directory / "tap.sock")
        self.server = desktop.start(
            self.tapd, "--socket", desktop.environment["BARQUELL_TAP_SOCKET"], "--grants", self.grants,
            DBUS_SYSTEM_BUS_ADDRESS="unix:path=/nowhere",
        )
        wait_until("the server listens", lambda: "listening" in self.server.text())

    def start(self):
        self.program = self.desktop.start(self.barquell.binary, **ACCESSIBLE)
        wait_until("the program runs", lambda: self.barquell.status()["pauseFlags"] is not None)
        return Widgets(self.desktop, "barquell")

    def grant(self):
        self.desktop.output(self.tapd, "--grant", USER, "--grants", self.grants)

    def withdraw(self):
        self.desktop.output(self.tapd, "--withdraw", USER, "--grants", self.grants)

    def has_tap(self) -> bool:
        return self.barquell.status()["tapHolder"] == "Barquell"

    def is_given(self) -> None:
        self.barquell.waits_for("trusted", True)
        wait_until("the program has the tap", self.has_tap)

    def is_gone(self) -> None:
        """Also from the server, where no tap means that every touch passes."""
        self.barquell.waits_for("trusted", False)
        status = self.barquell.status()
        expect_equal("server and grant", (status["server"], status["grant"]), ("not granted", "none"))
        taken, ended = (self.server.text().count(f" {words}") for words in ("has the tap", "the tap has ended"))
        expect_equal("taps that ended", ended, taken)

    def command(self, *words) -> tuple:
        """How it ended, and what it said."""
        done = subprocess.run(
            [self.barquell.binary, *words], env=self.desktop.environment, capture_output=True, text=True, check=False
        )
        return done.returncode, (done.stdout + done.stderr).strip()


def check_grant_given_and_withdrawn_turns_the_authorization_window(desktop):
    world = World(desktop)
    widgets = world.start()
    world.barquell.command("show")
    widgets.find("frame", REQUIRED)
    world.is_gone()
    for _ in range(2):
        world.grant()
        widgets.find("frame", COMPLETE)
        world.is_given()
        world.withdraw()
        widgets.find("frame", REQUIRED)
        world.is_gone()


def check_grant_is_withdrawn_on_its_page(desktop):
    world = World(desktop)
    world.grant()
    widgets = world.start()
    widgets.find("frame", "Barquell Preferences")
    world.is_given()
    desktop.focus("Barquell Preferences")
    desktop.key("ctrl+alt+0")
    widgets.click(*SETTINGS)
    widgets.find("frame", PAGE)
    widgets.find(*MAY)
    widgets.click("push button", "Withdraw")
    widgets.find(*MAY_NOT)
    widgets.find("push button", "Allow…")
    world.is_gone()
    expect_equal("grants", list(world.grants.iterdir()), [])
    world.program.expect(GONE)


def check_grant_page_follows_what_others_do(desktop):
    world = World(desktop)
    widgets = world.start()
    world.barquell.command("show")
    widgets.click(*SETTINGS)
    widgets.find(*MAY_NOT)
    world.grant()
    widgets.find(*MAY)
    widgets.find("push button", "Withdraw")
    widgets.find("frame", COMPLETE)
    world.withdraw()
    widgets.find(*MAY_NOT)
    desktop.focus(PAGE)
    desktop.key("alt+F4")
    widgets.gone("frame", PAGE)
    widgets.click(*SETTINGS)
    widgets.find(*MAY_NOT)


def check_grant_with_nobody_to_ask_is_refused_in_one_line(desktop):
    world = World(desktop)
    widgets = world.start()
    world.barquell.command("show")
    widgets.click(*SETTINGS)
    desktop.focus(PAGE)
    desktop.key("Tab", "space")  # on its one button
    widgets.find("label", NOT_GIVEN)
    expect_equal("lines", world.program.count(NOBODY), 1)
    world.is_gone()


def check_grant_page_names_a_service_that_is_gone(desktop):
    world = World(desktop)
    widgets = world.start()
    world.barquell.command("show")
    widgets.click(*SETTINGS)
    world.server.kill()
    desktop.focus(PAGE)
    desktop.key("Tab", "space")
    widgets.find("label", SILENT)


def check_grant_page_names_a_service_that_hangs(desktop):
    world = World(desktop)
    world.grant()
    widgets = world.start()
    world.is_given()
    desktop.focus("Barquell Preferences")
    desktop.key("ctrl+alt+0")
    widgets.click(*SETTINGS)
    widgets.find(*MAY)
    world.server.signal(signal.SIGSTOP)
    widgets.click("push button", "Withdraw")
    widgets.find("label", NOT_WITHDRAWN)
    widgets.find(*MAY)
    world.server.signal(signal.SIGCONT)
    widgets.find(*MAY_NOT)  # it had the wish all the same, and the page follows the grant
    world.is_gone()


def check_grant_is_revoked_by_command(desktop):
    world = World(desktop)
    expect_equal("without one", world.command("revoke"), (0, "This user has no permission to filter"))
    world.grant()
    world.start()
    world.is_given()
    expect_equal("a word too many", world.command("revoke", "now")[0], 2)
    expect_equal("revoked", world.command("revoke"), (0, GONE))
    world.is_gone()
    world.grant()
    world.is_given()
    status, said = world.command("revoke", "--json")
    expect_equal("as JSON", (status, json.loads(said)), (0, {"withdrawn": True, "said": GONE}))
    world.is_gone()
    world.grant()
    world.server.kill()
    status, said = world.command("revoke")
    expect_equal("without a server", (status, len(said.splitlines()), "--withdraw" in said), (1, 1, True))
