"""Two people at one machine, and devices that come and go."""

from machine import Machine, install, require_blocked, require_nothing_held
from program import places
from reader import EV_ABS, X, Reader, clones, held, until
from touch_checks import require, tap


def tap_goes_to_whoever_is_in_front_and_back(machine: Machine) -> None:
    """Both hold touches back. While Bert is in front it is his program that does: without it they pass."""
    anna, reader = machine.blocking(machine.anna)
    require_blocked(machine, anna, reader)
    machine.grant(machine.bert)
    for _ in range(2):
        bert = machine.program(machine.bert)
        bert.blocks()
        machine.bert.come_to_the_front()
        require_blocked(machine, bert, machine.held(machine.bert))
        bert.kill()
        until("touches pass", lambda: passed(machine))
        machine.anna.come_to_the_front()
        require_blocked(machine, anna, machine.held(machine.anna))
    require(anna.poll() is None, "anna's program has ended")
    require("Timeout" not in anna.read(), "anna's tap was disabled")
    require_nothing_held(machine)


def passed(machine: Machine) -> bool:
    """Whether a touch comes out, on the clone or where there is none on the bar itself."""
    place = next(places)
    try:
        reader = Reader((clones() or [machine.nodes["bar"]])[0])
    except OSError:
        return False  # a clone that has just gone
    try:
        tap(machine.session.devices["bar"], place)
        while not reader.gone and reader.wait_readable(0.5):
            if place in reader.values(EV_ABS, X):
                return True
        return False
    finally:
        reader.close()


def somebody_without_grant_in_front_has_touches(machine: Machine) -> None:
    anna, reader = machine.blocking(machine.anna)
    require_blocked(machine, anna, reader)
    machine.bert.come_to_the_front()
    until("touches pass", lambda: passed(machine))
    machine.anna.come_to_the_front()
    require_blocked(machine, anna, machine.held(machine.anna))


def switch_in_mid_touch_leaves_no_finger(machine: Machine) -> None:
    machine.blocking(machine.anna)
    bar = machine.session.devices["bar"]
    bar.down([(0, 500, 60)])
    machine.bert.come_to_the_front()
    bar.move(50, [(0, 900, 60)])
    machine.anna.come_to_the_front()
    bar.up([0])
    until("no finger is down", lambda: all(set(held(node)) == {-1} for node in [machine.nodes["bar"], *clones()]))


def bar_is_unplugged_and_comes_back(machine: Machine) -> None:
    program, reader = machine.blocking(machine.anna)
    require_blocked(machine, program, reader)
    for _ in range(3):
        machine.session.devices["bar"].down([(0, 500, 60)])
        machine.session.remove("bar")
        until("the clone has gone", lambda: not clones())
        machine.plug("bar", "m1-bar")
        require_blocked(machine, program, machine.held(machine.anna))


def upgrade_keeps_grant_and_program(machine: Machine) -> None:
    program, reader = machine.blocking(machine.anna)
    before = machine.server.process.pid
    install()
    require(machine.granted(machine.anna), "the grant has gone")
    reader = machine.held(machine.anna)
    require(machine.server.process.pid not in (0, before), "it is the old server")
    require_blocked(machine, program, reader)


ALL = [
    "tap_goes_to_whoever_is_in_front_and_back",
    "somebody_without_grant_in_front_has_touches",
    "switch_in_mid_touch_leaves_no_finger",
    "bar_is_unplugged_and_comes_back",
    "upgrade_keeps_grant_and_program",
]
