"""The package in the machine, and the service that waits in it."""

import os
import stat
import subprocess
import time

from machine import GRANTS, SERVICE, SOCKET_UNIT, Machine, install, installed, state
from people import told
from reader import until
from seats import Seat
from touch_checks import require

SOCKET = "/run/barquell/tap.sock"


def package_installs_and_waits_for_its_first_client(machine: Machine) -> None:
    require(not installed(), "it is installed already")
    install()
    require(told("dpkg", "-V", "barquell") == "", "files differ from the package")
    require(state(SOCKET_UNIT) == "active", f"the socket is {state(SOCKET_UNIT)}")
    require(told("systemctl", "is-enabled", SOCKET_UNIT).strip() == "enabled", "the socket is not enabled")
    require(state(SERVICE) == "inactive", f"the service is {state(SERVICE)}")
    require(stat.S_IMODE(os.stat(SOCKET).st_mode) == 0o666, "not everybody may connect")
    require(not os.listdir(GRANTS) if os.path.exists(GRANTS) else True, "there is a grant already")


def asking_for_trust_starts_nothing(machine: Machine) -> None:
    """Of those who have no grant. Whoever has one asks the server for the tap anyway."""
    for command in ("status", "doctor"):
        said = machine.anna.output("barquell", command)
        require(said.strip() != "", f"{command} says nothing")
        require(state(SERVICE) == "inactive", f"the service is {state(SERVICE)} after {command}: {said}")


def first_client_starts_the_service(machine: Machine) -> None:
    asker = machine.asker(machine.anna, "hello")
    require(state(SERVICE) == "inactive", "it ran before")
    asker.say("go")
    asker.expect("refused: not granted")
    asker.expect("closed")
    require(state(SERVICE) == "active", f"the service is {state(SERVICE)}")
    require(told("systemctl", "--failed", "-q", "--plain").strip() == "", "a unit has failed")


def service_goes_when_nobody_has_come_for_a_while(machine: Machine) -> str:
    asker = machine.asker(machine.anna, "hello")
    asker.say("go")
    asker.expect("closed")
    start = time.monotonic()
    until("the service has gone", lambda: state(SERVICE) == "inactive", patience=60)
    waited = time.monotonic() - start
    require(waited > 20, f"it went after {waited:.0f} s")
    require(state(SOCKET_UNIT) == "active", "the socket went with it")
    again = machine.asker(machine.anna, "hello")
    again.say("go")
    again.expect("closed")
    return f"after {waited:.0f} s"


def clone_is_on_the_seat_of_the_bar(machine: Machine) -> None:
    """Where a program that draws the bar looks for it, and not on the desktop's seat."""
    machine.blocking(machine.anna)
    clone = machine.clone()
    until("its properties name the seat", lambda: "ID_SEAT=seat-touchbar" in told("udevadm", "info", clone))
    of_bar, of_desktop = machine.closing(Seat("seat-touchbar")), machine.closing(Seat("seat0"))
    until("libinput finds it on the bar's seat", lambda: of_bar.has(clone))
    until("libinput finds the keyboard", lambda: of_desktop.has(machine.nodes["keyboard"]))
    machine.plug("late", "t2-keys")  # once this is seen, all that was there before has been
    until("libinput finds another keyboard", lambda: of_desktop.has(machine.nodes["late"]))
    require(not of_desktop.has(clone), "it is on the desktop's seat as well")
    require(not of_bar.has(machine.nodes["bar"]), "the bar itself changed its seat")


def socket_that_was_switched_off_stays_off(machine: Machine) -> None:
    """Over an upgrade; on again it serves as before."""
    subprocess.run(["systemctl", "disable", "--now", SOCKET_UNIT], check=True, capture_output=True)
    install()
    enabled = told("systemctl", "is-enabled", SOCKET_UNIT).strip()
    found = enabled, state(SOCKET_UNIT), state(SERVICE)
    subprocess.run(["systemctl", "enable", "--now", SOCKET_UNIT], check=True, capture_output=True)
    require(found == ("disabled", "inactive", "inactive"), f"socket and service are {found}")
    asker = machine.asker(machine.anna, "hello")
    asker.say("go")
    asker.expect("refused: not granted")


ALL = [
    "package_installs_and_waits_for_its_first_client",
    "asking_for_trust_starts_nothing",
    "first_client_starts_the_service",
    "service_goes_when_nobody_has_come_for_a_while",
    "clone_is_on_the_seat_of_the_bar",
    "socket_that_was_switched_off_stays_off",
]
