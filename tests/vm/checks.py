#!/usr/bin/env python3
"""Runs the named checks, or all, inside the machine; a line a check."""

import sys
import time
import traceback

import clients_checks
import grant_checks
import hard_checks
import hid_checks
import keyboard_checks
import odd_bar_checks
import one_command_checks
import program_checks
import server_checks
import touch_checks
from reader import Failure
from world import World


def outcome(check, world: World) -> tuple:
    """What went wrong, if anything, and a note."""
    problem, note = None, None
    try:
        note = check(world)
    except Failure as failure:
        problem = str(failure)
    except Exception:  # pylint: disable=broad-except
        problem = traceback.format_exc()
    try:
        world.close()
    except Failure as failure:
        problem = problem or f"afterwards, {failure}"
    return problem, note


def run(name: str, check) -> bool:
    start = time.monotonic()
    world = World()
    problem, note = outcome(check, world)
    if problem:
        print(f"FAIL {name}: {problem}")
        print("  the server said: " + " | ".join(world.server.lines()[-12:]), flush=True)
    else:
        print(f"ok {name} ({time.monotonic() - start:.1f} s){': ' + note if note else ''}", flush=True)
    return not problem


def main() -> int:
    checks = {}
    devices = (touch_checks, odd_bar_checks, hid_checks, keyboard_checks)
    clients = (clients_checks, grant_checks, server_checks)
    for module in (*devices, *clients, program_checks, hard_checks, one_command_checks):
        checks.update({name: getattr(module, name) for name in module.ALL})
    wanted = sys.argv[1:] or list(checks)
    # The host may be busy with something else just then: what failed is tried once more, and both are told.
    again = [name for name in wanted if not run(name, checks[name])]
    failed = sum(not run(name, checks[name]) for name in again)
    print(f"{len(wanted) - failed} passed, {failed} failed", flush=True)
    return 0 if wanted and not failed else 1


sys.exit(main())
