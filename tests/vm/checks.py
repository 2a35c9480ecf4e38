#!/usr/bin/env python3
"""Runs the named checks, or all, inside the machine; a line a check."""

import sys
import time
import traceback

import clients_checks
import keyboard_checks
import program_checks
import touch_checks
from reader import Failure
from world import World


def run(name: str, check) -> bool:
    start = time.monotonic()
    world = World()
    try:
        note = check(world)
        print(f"ok {name} ({time.monotonic() - start:.1f} s){': ' + note if note else ''}", flush=True)
        return True
    except Failure as failure:
        print(f"FAIL {name}: {failure}", flush=True)
    except Exception:  # pylint: disable=broad-except
        print(f"FAIL {name}: {traceback.format_exc()}", flush=True)
    finally:
        try:
            world.close()
        except Failure as failure:
            print(f"FAIL {name}: afterwards, {failure}", flush=True)
    print("  the server said: " + " | ".join(world.server.lines()[-12:]), flush=True)
    return False


def main() -> int:
    checks = {}
    for module in (touch_checks, clients_checks, keyboard_checks, program_checks):
        checks.update({name: getattr(module, name) for name in module.ALL})
    wanted = sys.argv[1:] or list(checks)
    results = [run(name, checks[name]) for name in wanted]
    print(f"{sum(results)} passed, {results.count(False)} failed", flush=True)
    return 0 if results and all(results) else 1


sys.exit(main())
