"""Those who have come over the network, by ssh: their sessions are active, but at no console."""

import os
import pwd
import shutil
import subprocess

from machine import Machine
from people import Talk, told
from program import passes
from reader import clones, until
from touch_checks import require

KEY = "/run/key"


class Remote(Talk):
    """A command of somebody who has logged in from elsewhere."""

    def __init__(self, user: str, *command: str):
        options = ["-i", KEY, "-o", "StrictHostKeyChecking=no", "-o", "UserKnownHostsFile=/dev/null", "-o", "LogLevel=ERROR"]
        self._ssh = subprocess.Popen(
            ["ssh", *options, f"{user}@127.0.0.1", *command], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
        )  # fmt: skip
        super().__init__(self._ssh.stdout.fileno())

    def say(self, line: str) -> None:
        self._ssh.stdin.write(line.encode() + b"\n")
        self._ssh.stdin.flush()

    def close(self) -> None:
        self._ssh.kill()
        self._ssh.wait()
        self._ssh.stdin.close()
        self._ssh.stdout.close()


def open_to_the_network(machine: Machine, *users: str) -> None:
    if not os.path.exists(KEY):
        subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", KEY], check=True)
    for user in users:
        home = pwd.getpwnam(user).pw_dir
        os.makedirs(f"{home}/.ssh", mode=0o700, exist_ok=True)
        shutil.copy(f"{KEY}.pub", f"{home}/.ssh/authorized_keys")
        subprocess.run(["chown", "-R", user, f"{home}/.ssh"], check=True)
    subprocess.run(["systemctl", "start", "ssh"], check=True)
    machine.later(lambda: subprocess.run(["systemctl", "stop", "ssh"], check=True))


ASKER = "python3 -B /out/asker.py request"


def asking(machine: Machine, command: str) -> tuple:
    """Anna's wish over the network, and the prompt that speaks for it. Her session at the console is in front."""
    open_to_the_network(machine, "anna")
    asker = machine.closing(Remote("anna", command))
    process = until("it runs", lambda: told("pgrep", "-u", "anna", "-x", "-f", f"(/usr/bin/)?{ASKER}"))
    agent = machine.agent(machine.anna, int(process))
    asker.say("go")
    return asker, agent


def user_over_the_network_is_not_asked(machine: Machine) -> None:
    asker, agent = asking(machine, f"loginctl show-session $XDG_SESSION_ID; exec {ASKER}")
    asker.expect("closed")
    require("Remote=yes" in asker.lines() and "Active=yes" in asker.lines(), f"it is no such session: {asker.lines()}")
    require(not agent.asked(), f"there was a prompt: {agent.said()}")
    require(asker.lines()[-2:] == ["refused: denied", "closed"], f"it heard {asker.lines()}")
    require(not machine.granted(machine.anna), "the grant was written all the same")


def what_the_users_service_manager_starts_is_asked_as_at_the_console(machine: Machine) -> None:
    asker, agent = asking(machine, f"systemd-run --user --pipe --quiet {ASKER}")
    agent.answer("wrong word")
    asker.expect("closed")
    require(asker.lines()[-2:] == ["refused: denied", "closed"], f"it heard {asker.lines()}")
    require(not machine.granted(machine.anna), "the grant was written all the same")


def user_over_the_network_filters_nothing(machine: Machine) -> None:
    """Dora has a grant, and sits nowhere: her tap rests."""
    open_to_the_network(machine, "dora")
    machine.plug("keyboard", "keyboard")
    bar = machine.plug("bar", "t2-bar")
    subprocess.run(["barquell-tapd", "--grant", "dora"], check=True)
    machine.later(lambda: subprocess.run(["barquell-tapd", "--withdraw", "dora"], check=True))
    machine.closing(Remote("dora", "QT_QPA_PLATFORM=minimal barquell"))
    machine.later(lambda: subprocess.run(["pkill", "-KILL", "-u", "dora", "-x", "barquell"], check=False))
    until("it has a tap", lambda: any(line.endswith("has the tap") for line in machine.log()))
    report = Remote("dora", "barquell doctor")
    report.expect("MISSING  this user is the one in front")
    report.close()
    require(not clones(), "the bar is held")
    passes(bar, machine.reader(machine.nodes["bar"]), 700)


ALL = [
    "user_over_the_network_is_not_asked",
    "what_the_users_service_manager_starts_is_asked_as_at_the_console",
    "user_over_the_network_filters_nothing",
]
