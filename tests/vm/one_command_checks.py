"""The one command that a person types."""

import os
import signal
import tempfile
import time

from program import FN
from reader import EV_ABS, X, clones, until
from touch_checks import MARK, require, tap
from world import Lines, World


def tree_of_the_build() -> str:
    with open("/out/tree", encoding="utf-8") as file:
        return file.read().strip()


class Run(Lines):
    """`./run` of the tree that was built, which starts the server as well."""

    def __init__(self):
        home = tempfile.mkdtemp()
        environment = {**os.environ, "HOME": home, "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home}
        super().__init__([f"{tree_of_the_build()}/run"], env=environment, start_new_session=True)

    def interrupt(self) -> None:
        """As a terminal does."""
        os.killpg(self.process.pid, signal.SIGINT)

    def close(self) -> None:
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()


def run_with_a_bar_starts_server_and_program(world: World) -> None:
    world.server.kill()
    bar = world.plug("bar", "t2-bar")
    keyboard = world.plug("keyboard", "keyboard")
    run = world.closing(Run())
    # It looks first whether packages are missing and all is built, over a slow file system.
    until("the bar is held", lambda: "Touch Bar Display Touchpad: grabbed" in run.read(), patience=150)
    reader = world.reader(world.clone())
    run.expect("Blocking is in force (the pause keys)")
    tap(bar, 1000)
    time.sleep(1)  # what Fn says may overtake what a bar said before it, see program.settle()
    keyboard.press([FN])
    until("Fn counts", lambda: "Blocking is suspended" in run.read())
    tap(bar, MARK)
    reader.expect(EV_ABS, X, MARK)
    require(reader.values(EV_ABS, X) == [MARK], f"the clone sent {reader.values(EV_ABS, X)}")
    keyboard.release([FN])
    run.interrupt()
    until("the clone has gone", lambda: not clones())
    until("all has ended", lambda: run.process.poll() is not None)


ALL = ["run_with_a_bar_starts_server_and_program"]
