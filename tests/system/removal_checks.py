"""What is left when the package goes."""

import os
import subprocess

from machine import PACKAGE, SERVICE, SOCKET_UNIT, Machine, install, installed, state
from people import told
from reader import clones, until
from touch_checks import require

# What any package leaves: dpkg's own records, caches, the journal. The homes are looked at by themselves.
OTHERS = ("/var/lib/dpkg", "/var/log", "/var/cache", "/home", "/proc", "/sys", "/dev", "/tmp", "/out", "/var/tmp",
          "/run/log", "/run/user", "/run/udev", "/run/systemd", "/run/seated")  # fmt: skip


def files() -> set:
    found = set()
    for folder, names, leaves in os.walk("/"):
        names[:] = [name for name in names if os.path.join(folder, name) not in OTHERS]
        found.update(os.path.join(folder, name) for name in (*names, *leaves))
    return found


def gone(how: str) -> None:
    subprocess.run(["dpkg", how, PACKAGE], check=True, capture_output=True)
    require(state(SERVICE) == "inactive", f"the service is {state(SERVICE)}")
    require(state(SOCKET_UNIT) == "inactive", f"the socket is {state(SOCKET_UNIT)}")
    require(told("systemctl", "list-unit-files", "barquell-tapd*", "-q", "--no-legend").strip() == "", "there is still a unit")
    require(not os.path.exists("/var/lib/barquell"), "the grants are still there")
    require(not os.path.exists("/run/barquell"), "the socket's folder is still there")


def removal_leaves_only_settings(machine: Machine) -> str:
    return leaves_nothing(machine, "--remove")


def purge_leaves_no_grant(machine: Machine) -> str:
    return leaves_nothing(machine, "--purge")


def purge_after_removal_leaves_nothing(machine: Machine) -> str:
    return leaves_nothing(machine, "--remove", "--purge")


def leaves_nothing(machine: Machine, *steps: str) -> str:
    if installed():
        subprocess.run(["dpkg", "--purge", PACKAGE], check=True, capture_output=True)
    before = files()
    install()
    added = len(files() - before)
    require(added > 10, "the package brings nothing")
    machine.anna.output("barquell", "defaults", "write", "ShowHUD", "-bool", "true")
    program, _ = machine.blocking(machine.anna)
    bar = machine.session.devices["bar"]
    bar.down([(0, 500, 60)])
    for how in steps:
        gone(how)
    until("the clone has gone", lambda: not clones())
    bar.up([0])
    left = files() - before
    require(not left, f"left behind: {sorted(left)}")
    require(os.path.exists(f"{machine.anna.home}/.config/com.vexolith.barquell/settings.json"), "the settings have gone")
    require(program.poll() is None, "the running program has ended")
    return f"of {added} files and folders none"


ALL = ["removal_leaves_only_settings", "purge_leaves_no_grant", "purge_after_removal_leaves_nothing"]
