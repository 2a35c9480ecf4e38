"""The authorization window, from the first start to the permission and back, on a display that nobody sees."""

from machine import Machine, require_blocked, require_passing
from reader import clones, until
from touch_checks import require

REQUIRED, COMPLETE, PAGE = "Authorization Required", "Authorization Complete", "Touch Bar Permission"


class Display:
    """An X server and a window manager of a person's session."""

    def __init__(self, machine: Machine, person):
        self._person = person
        self.name = ":9"
        screen = ("-screen", "0", "1024x768x24", "-nolisten", "tcp")
        machine.start(person, "Xvfb", self.name, *screen, "-displayfd", "3").noticed()
        machine.start(person, "openbox", DISPLAY=self.name)
        until("there is a window manager", lambda: "_NET_SUPPORTING_WM_CHECK" in self._do("xprop", "-root"))

    def _do(self, *command: str) -> str:
        started = self._person.run(*command, DISPLAY=self.name)
        started.close()
        return started.text

    def window(self, title: str) -> str:
        found = ""

        def shown() -> str:
            nonlocal found
            found = self._do("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").strip()
            return found

        until(f"there is a window '{title}'", shown)
        return found.splitlines()[-1]

    def press(self, title: str, *keys: str) -> None:
        window = self.window(title)
        self._do("xdotool", "windowactivate", "--sync", window)
        self._do("xdotool", "key", *keys)


def first_start(machine: Machine):
    """A display, and the program on it with the window that says that it may not filter."""
    display = Display(machine, machine.anna)
    machine.plug("keyboard", "keyboard")
    machine.plug("bar", "t2-bar")
    program = machine.program(machine.anna, QT_QPA_PLATFORM="xcb", DISPLAY=display.name)
    display.window(REQUIRED)
    require(not clones(), "the bar is held without a grant")
    return display, program


def window_leads_to_the_prompt_and_follows_the_grant(machine: Machine) -> None:
    display, program = first_start(machine)
    agent = machine.agent(machine.anna, program.pid)

    display.press(REQUIRED, "Return")
    agent.answer("wrong word")
    until("the prompt is over", lambda: "AUTHENTICATION FAILED" in agent.said())
    require(not machine.granted(machine.anna), "a wrong word was enough")
    display.window(REQUIRED)

    display.press(REQUIRED, "Return")
    agent.answer("dora-s word", 2)
    display.window(COMPLETE)
    require_blocked(machine, program, machine.held(machine.anna))

    machine.withdraw(machine.anna)
    display.window(REQUIRED)
    until("the clone has gone", lambda: not clones())


def window_leads_to_the_page_that_withdraws(machine: Machine) -> None:
    display, program = first_start(machine)
    machine.grant(machine.anna)
    display.window(COMPLETE)
    require_blocked(machine, program, machine.held(machine.anna))
    display.press(COMPLETE, "shift+Tab", "shift+Tab", "space")  # over "Close" to the settings
    display.press(PAGE, "Tab", "space")  # its one button
    display.window(REQUIRED)
    until("the clone has gone", lambda: not clones())
    require(not machine.granted(machine.anna), "the grant is still there")
    require_passing(machine)
    require(program.poll() is None, "the program has ended")


ALL = ["window_leads_to_the_prompt_and_follows_the_grant", "window_leads_to_the_page_that_withdraws"]
