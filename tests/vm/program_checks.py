"""The real program as an ordinary user in front of the real server: what a person gets."""

import os
import signal
import time

from program import (
    FN,
    Program,
    blocked,
    hold,
    let_go,
    mark,
    passes,
    require_a_new_server_is_found,
    settle,
    started,
    with_bar,
)
from reader import EV_ABS, ID, X, Libinput, clones, held, until
from recorders import Recorder, emulated_events, frames_of, play, yaml_events
from touch_checks import require, tap
from world import NOBODY, World, grant, withdraw

EV_SYN = 0
RIGHT_COMMAND, LEFT_COMMAND = "RIGHTMETA", "LEFTMETA"


def program_blocks_and_fn_lets_through(world: World) -> None:
    bar, keyboard, program, reader = with_bar(world)
    seen = world.closing(Libinput(world.clone()))
    for x in range(1000, 1010):
        tap(bar, x)
    place = mark(world, program, reader)
    require(reader.values(EV_ABS, X) == [place], f"the clone sent {reader.values(EV_ABS, X)}")
    until("libinput sees the mark", lambda: seen.count("TOUCH_UP") == 1)
    require(seen.count("TOUCH_DOWN") == 1, "libinput saw a touch that was blocked")
    program.expect("Blocking is suspended (the pause keys)")
    program.expect("Blocking is in force (the pause keys)", 2)


def a_setting_takes_effect_at_once(world: World) -> None:
    bar, keyboard, program, reader = with_bar(world)
    program.defaults("write", "PauseKeyCommand", "-bool", "true")
    program.defaults("write", "PauseKeyCommandType", "-int", "2")
    program.expect("[Fn|CmdR]")
    keyboard.press([LEFT_COMMAND])
    settle(world.server.process, program.process)
    tap(bar, 300)
    settle(world.server.process, program.process)
    keyboard.release([LEFT_COMMAND])
    hold(program, keyboard, RIGHT_COMMAND)
    passes(bar, reader, 400)
    let_go(program, keyboard, RIGHT_COMMAND)
    require(300 not in reader.values(EV_ABS, X), "the left key paused as well")


def switched_off_everything_flows(world: World) -> None:
    bar, _, program, _ = with_bar(world)
    real = world.reader(world.nodes["bar"])
    program.defaults("write", "Enabled", "-bool", "false")
    program.expect("Blocking is suspended (the tap)")
    until("the clone has gone", lambda: not clones())
    passes(bar, real, 500)
    program.defaults("write", "Enabled", "-bool", "true")
    program.holds(1)
    real.forget()
    tap(bar, 600)
    clone = world.reader(world.clone())
    mark(world, program, clone)
    require(not real.read(), "the bar was heard although it is held")


def without_trust_everything_flows(world: World) -> None:
    bar, _, program, _ = with_bar(world)
    real = world.reader(world.nodes["bar"])
    withdraw(NOBODY)
    program.expect("Got com.apple.accessibility.api")
    until("the clone has gone", lambda: not clones())
    passes(bar, real, 500)
    require(program.status()["trusted"] is False, "status calls it trusted")
    grant(NOBODY)
    program.holds(1)


def touch_begun_under_fn_ends_cleanly(world: World) -> None:
    bar, keyboard, program, reader = with_bar(world)
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60)])
    reader.expect(EV_ABS, X, 700)
    let_go(program, keyboard, FN)
    bar.move(30, [(0, 5000, 60)])
    bar.up([0])
    until("the touch ends", lambda: reader.values(EV_ABS, ID)[-1:] == [-1])
    mark(world, program, reader)
    require(5000 not in reader.values(EV_ABS, X), "the slide went on while blocked")
    require(set(held(world.clone())) == {-1}, f"the clone holds {held(world.clone())}")


def finger_lifted_while_blocked_does_not_stay(world: World) -> None:
    bar, keyboard, program, reader = with_bar(world)
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60), (1, 9000, 60)])
    reader.expect(EV_ABS, X, 9000)
    let_go(program, keyboard, FN)
    bar.up([0])
    until("the first finger has left the clone", lambda: held(world.clone())[:2] == [-1, 1])
    bar.move(20, [(1, 9500, 60)])
    bar.up([1])
    until("both have ended", lambda: reader.values(EV_ABS, ID).count(-1) == 2)
    mark(world, program, reader)
    require(set(held(world.clone())) == {-1}, f"the clone holds {held(world.clone())}")


def killed_program_frees_the_bar(world: World) -> None:
    bar, _, program, _ = with_bar(world)
    real = world.reader(world.nodes["bar"])
    program.signal(signal.SIGKILL)
    until("the clone has gone", lambda: not clones())
    passes(bar, real, 800)


def stopped_program_blocks_again_when_it_continues(world: World) -> str:
    bar, keyboard, program, reader = with_bar(world)
    program.signal(signal.SIGSTOP)
    start = time.monotonic()
    tap(bar, 900)
    reader.expect(EV_ABS, X, 900)
    waited = time.monotonic() - start
    require(0.99 <= waited < 3, f"it passed after {waited:.2f} s")
    passes(bar, reader, 950)
    program.signal(signal.SIGCONT)
    program.expect("Received kCGEventTapDisabledByTimeout event. Re-enabling...")
    reader.forget()
    # The program has asked to be enabled; a touch shows when the server has heard of it.
    until("touches are blocked again", lambda: blocked(world, program, reader))
    mark(world, program, reader)
    return f"passed after {waited:.2f} s"


def killed_server_frees_the_bar_and_a_new_one_is_found(world: World) -> None:
    bar, keyboard, program, _ = with_bar(world)
    real = world.reader(world.nodes["bar"])
    world.server.kill()
    program.expect("The tap server went away; touches pass until it is back")
    passes(bar, real, 800)
    require_a_new_server_is_found(world, program)


def bar_that_appears_after_the_program(world: World) -> None:
    world.plug("keyboard", "keyboard")
    program = started(world, bars=0)
    for model in ("m1-bar", "m2-bar"):
        bar = world.plug("bar", model)
        program.holds(1)
        clone = world.reader(world.clone())
        tap(bar, 900)
        mark(world, program, clone)
        require(900 not in clone.values(EV_ABS, X), f"the touch of the {model} passed")
        world.session.remove("bar")
        until("the clone has gone", lambda: not clones())


def bar_unplugged_in_mid_touch_comes_back_blocked(world: World) -> None:
    bar, keyboard, program, reader = with_bar(world)
    hold(program, keyboard, FN)
    bar.down([(0, 700, 60)])
    reader.expect(EV_ABS, X, 700)
    world.session.remove("bar")
    until("the clone has gone", lambda: reader.read() and reader.gone)
    require(reader.values(EV_ABS, ID) == [0, -1], f"contacts {reader.values(EV_ABS, ID)}")
    let_go(program, keyboard, FN)
    bar = world.plug("bar", "t2-bar")
    program.holds(1)
    clone = world.reader(world.clone())
    tap(bar, 900)
    mark(world, program, clone)
    require(900 not in clone.values(EV_ABS, X), "the touch passed")


def program_waits_for_a_busy_server(world: World) -> None:
    bar = world.plug("bar", "t2-bar")
    world.plug("keyboard", "keyboard")
    other = world.tapping("pass")
    program = Program(world)
    program.expect("The tap server serves somebody else; touches pass until it is free")
    clone = world.reader(world.clone())
    passes(bar, clone, 600)
    other.kill()
    program.expect("The tap server has installed the tap")
    program.holds(1)
    require(blocked(world, program, world.reader(world.clone())), "the touch passed")


def doctor_knows_another_clients_tap(world: World) -> None:
    world.plug("bar", "t2-bar")
    other = world.tapping("pass")
    program = Program(world)
    program.expect("The tap server serves somebody else; touches pass until it is free")
    report = program.command("doctor")
    holder = f"process {other.process.pid}"
    require(f"MISSING  the tap belongs to Barquell, not to {holder}" in report, report)
    require(program.status()["tapHolder"] == holder, str(program.status()))
    other.kill()
    program.expect("The tap server has installed the tap")
    require(program.status()["tapHolder"] == "Barquell", str(program.status()))


def second_copy_is_refused(world: World) -> None:
    _, _, program, _ = with_bar(world)
    again = program.run()
    said = "Another copy of Barquell is already running. This copy is going to quit"
    require(again.returncode == 0 and again.stderr.strip().endswith(said), f"it said {again.stderr!r}")


def doctor_finds_what_is_missing(world: World) -> None:
    program = Program(world)
    program.holds(0)
    report = program.command("doctor")
    require("MISSING  the kernel knows a Touch Bar" in report, report)
    world.plug("bar", "t2-bar")
    program.holds(1)
    report = program.command("doctor")
    missing = [line for line in report.splitlines() if line.startswith("MISSING")]
    desktop = ("there is a display", "what is in front", "there is a session bus", "launchers know Barquell")
    require(all(line.endswith(desktop) for line in missing), report)  # there is none here
    require(report.count("ok ") == 9, report)


def require_same(who: str, live: list, replayed: list) -> None:
    for number, pair in enumerate(zip(live, replayed)):
        require(pair[0] == pair[1], f"{who}, event {number}: live {pair[0]}, replayed {pair[1]}")
    require(len(live) == len(replayed), f"{who}: live {len(live)} events, replayed {len(replayed)}")


def live_and_replay_agree(world: World) -> str:
    """The same session, played into the kernel and replayed: what two recorders hear of the clone is what replay says
    that the clone sends, event by event."""
    bar, keyboard, program, reader = with_bar(world)
    emu = world.closing(Recorder("Waiting for events", "evemu-record", world.clone()))
    lib = world.closing(Recorder("events:", "libinput", "record", "--show-keycodes", world.clone()))
    out = os.path.join(program.home, "emitted.evemu")
    program.command("replay", "--emit", out, "/out/t2-session.yml")
    with open(out, encoding="utf-8") as file:
        expected = emulated_events(file.read())
    require(len(expected) > 100, "the replay passes nothing")
    play(frames_of("/out/t2-session.yml"), [bar, keyboard])
    until("all that should pass has passed", lambda: len(reader.read()) >= len(expected))
    settle(world.server.process, program.process)
    require_same("our reader", reader.read(), expected)
    require_same("evemu-record", emulated_events(emu.finish()), expected)
    require_same("libinput record", yaml_events(lib.finish()), expected)
    reports = sum(event[:2] == (EV_SYN, 0) for event in expected)
    return f"{len(expected)} events in {reports} frames are the same"


ALL = [
    "program_blocks_and_fn_lets_through",
    "a_setting_takes_effect_at_once",
    "switched_off_everything_flows",
    "without_trust_everything_flows",
    "touch_begun_under_fn_ends_cleanly",
    "finger_lifted_while_blocked_does_not_stay",
    "killed_program_frees_the_bar",
    "stopped_program_blocks_again_when_it_continues",
    "killed_server_frees_the_bar_and_a_new_one_is_found",
    "bar_that_appears_after_the_program",
    "bar_unplugged_in_mid_touch_comes_back_blocked",
    "program_waits_for_a_busy_server",
    "second_copy_is_refused",
    "doctor_finds_what_is_missing",
    "doctor_knows_another_clients_tap",
    "live_and_replay_agree",
]
