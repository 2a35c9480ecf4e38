#!/usr/bin/env python3
"""Runs the named checks, or all, inside the machine; a line a check."""

import sys
import time
import traceback

import fault_checks
import grant_checks
import hardening_checks
import install_checks
import people_checks
import remote_checks
import removal_checks
import window_checks
from machine import Machine, install, installed
from reader import Failure

MODULES = (
    install_checks,
    grant_checks,
    remote_checks,
    window_checks,
    people_checks,
    hardening_checks,
    fault_checks,
    removal_checks,
)


def outcome(check) -> tuple:
    """What went wrong, if anything, and a note."""
    problem, note, said = None, None, []
    machine = Machine()
    try:
        note = check(machine)
    except Failure as failure:
        problem = str(failure)
    except Exception:  # pylint: disable=broad-except
        problem = traceback.format_exc()
    if problem:
        said = machine.log()[-12:]
    try:
        machine.close()
    except Exception as failure:  # pylint: disable=broad-except
        problem = problem or f"afterwards, {failure}"
    return problem, note, said


def run(name: str, check) -> bool:
    start = time.monotonic()
    problem, note, said = outcome(check)
    if problem:
        print(f"FAIL {name}: {problem}")
        print("  the service said: " + " | ".join(said), flush=True)
    else:
        print(f"ok {name} ({time.monotonic() - start:.1f} s){': ' + note if note else ''}", flush=True)
    return not problem


def main() -> int:
    checks = {}
    for module in MODULES:
        checks.update({name: getattr(module, name) for name in module.ALL})
    wanted = sys.argv[1:] or list(checks)
    if wanted[0] != next(iter(checks)) and not installed():
        install()
    results = [run(name, checks[name]) for name in wanted]
    print(f"{sum(results)} passed, {results.count(False)} failed", flush=True)
    return 0 if results and all(results) else 1


sys.exit(main())
