"""Giving the grant through the real polkit and a real prompt, and taking it back, by those who may and may not."""

import os
import pwd
import stat
import subprocess

from machine import GRANTS, SERVICE, Machine, require_blocked, require_passing, state
from people import Person, told
from program import passes
from reader import clones, until
from touch_checks import require

ADMINISTRATOR = "dora-s word"


def granted_by(machine: Machine, person: Person, word: str) -> str:
    """The person asks, and at the prompt somebody types the word."""
    asker = machine.asker(person, "request")
    agent = machine.agent(person, asker.pid)
    asker.say("go")
    agent.answer(word)
    asker.expect("closed")
    return asker.lines()[-2]


def refused_without_question(machine: Machine, person: Person) -> str:
    asker = machine.asker(person, "request")
    agent = machine.agent(person, asker.pid)
    asker.say("go")
    asker.expect("closed")
    require(not agent.asked(), f"there was a prompt: {agent.said()}")
    require(not machine.granted(person), "the grant was written all the same")
    return asker.lines()[-2]


def administrators_word_grants(machine: Machine) -> None:
    require(granted_by(machine, machine.anna, ADMINISTRATOR) == "granted", "it was not granted")
    path = f"{GRANTS}/{machine.anna.uid}"
    with open(path, encoding="utf-8") as file:
        require(file.read() == "barquell grant 1\nuser anna\n", "the file says something else")
    found = os.stat(path)
    require((found.st_uid, stat.S_IMODE(found.st_mode)) == (0, 0o644), f"the file is {found}")
    require(not machine.granted(machine.bert), "somebody else was granted as well")
    asker = machine.asker(machine.anna, "hello")
    asker.say("go")
    asker.expect("welcome")


def wrong_word_grants_nothing(machine: Machine) -> None:
    said = granted_by(machine, machine.anna, machine.anna.word())
    require(said == "refused: denied", f"it was {said}")
    require(not machine.granted(machine.anna), "the grant was written all the same")


def nobody_at_the_prompt_grants_nothing(machine: Machine) -> None:
    asker = machine.asker(machine.anna, "request")
    asker.say("go")
    asker.expect("closed")
    require(asker.lines()[-2] in ("refused: no answer", "refused: denied"), f"it was {asker.lines()}")
    require(not machine.granted(machine.anna), "the grant was written all the same")


def user_behind_is_not_asked(machine: Machine) -> None:
    """Bert's session is there, with Anna's in front of it."""
    require(refused_without_question(machine, machine.bert) == "refused: denied", "it was not denied")


def without_grant_nothing_is_held(machine: Machine) -> None:
    machine.plug("keyboard", "keyboard")
    bar = machine.plug("bar", "t2-bar")
    reader = machine.reader(machine.nodes["bar"])
    asker = machine.asker(machine.anna, "hello")
    asker.say("go")
    asker.expect("refused: not granted")
    require(not clones(), "there is a clone")
    passes(bar, reader, 700)


def program_blocks_until_the_grant_is_withdrawn(machine: Machine) -> None:
    require(granted_by(machine, machine.anna, ADMINISTRATOR) == "granted", "it was not granted")
    program, reader = machine.blocking(machine.anna)
    seen = machine.libinput(machine.clone())
    require_blocked(machine, program, reader)
    until("libinput sees the mark", lambda: seen.count("TOUCH_UP") == 1)
    require(seen.count("TOUCH_DOWN") == 1, "libinput saw a touch that was held back")
    machine.anna.output("barquell", "revoke")
    require(not machine.granted(machine.anna), "the grant is still there")
    until("the clone has gone", lambda: not clones())
    require_passing(machine)
    require(program.poll() is None, "the program has ended")
    require(granted_by(machine, machine.anna, ADMINISTRATOR) == "granted", "it was not granted again")
    require_blocked(machine, program, machine.held(machine.anna))


def administrator_grants_and_withdraws_by_command(machine: Machine) -> None:
    program, reader = machine.blocking(machine.anna)
    require_blocked(machine, program, reader)
    machine.withdraw(machine.anna)
    until("the clone has gone", lambda: not clones())
    require_passing(machine)
    machine.grant(machine.anna)
    require_blocked(machine, program, machine.held(machine.anna))


def grant_of_any_bytes_is_none(machine: Machine) -> None:
    """One line each, and Bert, who is granted, is served all the while."""
    machine.grant(machine.bert)
    path = f"{GRANTS}/{machine.anna.uid}"
    good = "barquell grant 1\nuser anna\n"
    serving = machine.asker(machine.bert, "hello")
    serving.say("go")
    serving.expect("welcome")

    def write(text: bytes) -> None:
        with open(path, "wb") as file:
            file.write(text)

    def linked() -> None:
        write(good.encode())
        os.rename(path, "/tmp/grant")
        os.symlink("/tmp/grant", path)

    def owned() -> None:
        write(good.encode())
        os.chown(path, machine.anna.uid, -1)

    makes = {
        "means nothing": lambda: write(b""),
        "too large": lambda: write(os.urandom(4096)),
        "names somebody else": lambda: write(good.replace("anna", "bert").encode()),
        "no regular file": lambda: os.mkdir(path),
        "": linked,  # no regular file either, which has been said
        "not root's": owned,
    }
    for why, make in makes.items():
        make()
        before = len(machine.log())
        asker = machine.asker(machine.anna, "hello")
        asker.say("go")
        asker.expect("closed")
        require(asker.lines()[0] == "refused: not granted", f"where it {why} it was {asker.lines()}")
        said = machine.log()[before:]
        require(len(said) == (why != "") and all(why in line for line in said), f"where it {why} the service said {said}")
        os.rmdir(path) if os.path.isdir(path) and not os.path.islink(path) else os.unlink(path)
    require(serving.poll() is None and "closed" not in serving.read(), "bert was disturbed")


def deleted_user_has_no_grant(machine: Machine) -> None:
    """Nor has whoever gets the number after."""
    subprocess.run(["useradd", "--no-create-home", "carl"], check=True)
    uid = pwd.getpwnam("carl").pw_uid
    subprocess.run(["barquell-tapd", "--grant", "carl"], check=True)
    path = f"{GRANTS}/{uid}"
    machine.later(lambda: os.path.exists(path) and os.unlink(path))
    require(os.path.exists(path), "there was no grant")
    program, reader = machine.blocking(machine.anna)
    require(said_to(uid) == ["welcome"], f"with the grant: {said_to(uid)}")
    subprocess.run(["userdel", "carl"], check=True)
    require(said_to(uid) == ["refused: not granted", "closed"], f"deleted: {said_to(uid)}")
    subprocess.run(["useradd", "--no-create-home", "--uid", str(uid), "carla"], check=True)
    machine.later(lambda: subprocess.run(["userdel", "carla"], check=True))
    require(said_to(uid) == ["refused: not granted", "closed"], f"another by the number: {said_to(uid)}")
    require_blocked(machine, program, reader)


def said_to(uid: int) -> list:
    """The first answers to a process of that number, as long as they come at once."""
    command = ["timeout", "5", "python3", "-B", "/out/asker.py", "hello"]
    answer = subprocess.run(command, input="go\n", capture_output=True, text=True, check=False, user=uid, group=uid)
    return [line for line in answer.stdout.splitlines() if line not in ("flags", "bars")]


def stopped_polkit_disturbs_nobody(machine: Machine) -> None:
    """Bert's question hangs; Anna's touches are judged all the while. When polkit dies, Bert is told."""
    program, reader = machine.blocking(machine.anna)
    machine.bert.come_to_the_front()
    told("pkaction")  # polkit runs
    polkit = told("systemctl", "show", "-p", "MainPID", "--value", "polkit.service").strip()
    os.kill(int(polkit), 19)  # STOP
    before = len(machine.log())
    asker = machine.asker(machine.bert, "request")
    asker.say("go")
    machine.anna.come_to_the_front()
    reader = machine.held(machine.anna)
    require_blocked(machine, program, reader)
    require("refused" not in asker.read(), f"it was answered: {asker.read()}")
    os.kill(int(polkit), 9)
    asker.expect("closed")
    require(asker.lines()[0] == "refused: no answer", f"it was {asker.lines()}")
    said = machine.log()[before:]
    require(sum("1001" in line and "front" not in line for line in said) == 1, f"the service said {said}")
    require_blocked(machine, program, reader)
    require(state(SERVICE) == "active", "the service has gone")


ALL = [
    "administrators_word_grants",
    "wrong_word_grants_nothing",
    "nobody_at_the_prompt_grants_nothing",
    "user_behind_is_not_asked",
    "without_grant_nothing_is_held",
    "program_blocks_until_the_grant_is_withdrawn",
    "administrator_grants_and_withdraws_by_command",
    "grant_of_any_bytes_is_none",
    "deleted_user_has_no_grant",
    "stopped_polkit_disturbs_nobody",
]
