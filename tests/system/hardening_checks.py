"""What a server that somebody has taken over could do."""

import json
import os
import re
import subprocess

from machine import GRANTS, SERVICE, Machine
from people import told
from touch_checks import require

UNIT = "/run/systemd/system/barquell-probe.service"
OUTPUT = "/run/probed"


def probed(*command: str) -> str:
    """The output of a command in the server's own cage."""
    text = told("systemctl", "cat", SERVICE)
    text = re.sub(r"(?m)^(Requires|Type|ExecStart|StateDirectory\w*)=.*$", "", text)
    mine = ["Type=oneshot", "ExecStart=" + " ".join(command), f"StandardOutput=file:{OUTPUT}", f"ReadWritePaths={GRANTS}"]
    with open(UNIT, "w", encoding="utf-8") as file:
        file.write(text.replace("[Service]", "\n".join(["[Service]", *mine]), 1))
    subprocess.run(["systemctl", "daemon-reload"], check=True)
    subprocess.run(["systemctl", "start", "barquell-probe"], check=False, capture_output=True)
    status = told("systemctl", "status", "--no-pager", "barquell-probe")
    os.unlink(UNIT)
    subprocess.run(["systemctl", "daemon-reload"], check=True)
    with open(OUTPUT, encoding="utf-8") as file:
        text = file.read()
    require(text != "", status)
    return text


def server_is_caged(machine: Machine) -> str:
    machine.grant(machine.anna)
    probe = ["/usr/bin/python3", "-B", "/out/probe.py"]
    free = json.loads(told("unshare", "--mount", *probe))
    require(set(free.values()) == {"done"}, f"without a cage it can not all: {free}")
    subprocess.run(["rmmod", "uinput"], check=False)  # opening it is to load it again
    outcome = json.loads(probed(*probe))
    allowed = sorted(what for what, went in outcome.items() if went == "done")
    require(allowed == ["open uinput", "read the grant", "write a grant"], f"it can {allowed}: {outcome}")
    return f"{len(outcome) - len(allowed)} of {len(outcome)} attempts refused"


def systemd_judges_the_cage(machine: Machine) -> str:
    said = told("systemd-analyze", "security", "--no-pager", SERVICE)
    figure = float(re.search(r"Overall exposure level for \S+: ([\d.]+)", said)[1])
    require(figure < 2.0, said)
    return f"exposure {figure}"


ALL = ["server_is_caged", "systemd_judges_the_cage"]
