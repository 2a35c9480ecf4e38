"""A desktop of its own for one check: X server, window manager, session bus, home directory, and who sits before it."""

import ctypes
import os
import pathlib
import signal
import subprocess
import tempfile
import time

LIBC = ctypes.CDLL(None)
PR_SET_PDEATHSIG = 1  # linux/prctl.h
PR_SET_CHILD_SUBREAPER = 36


class Failure(Exception):
    """What a check saw instead of what it should have seen."""


def wait_until(what: str, condition, seconds: float = 30):
    """What the condition answers once that is true; a Failure where it never is within the time."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Failure(f"not within {seconds} s: {what}")
        time.sleep(0.02)


def expect_equal(what: str, seen, wanted) -> None:
    if seen != wanted:
        raise Failure(f"{what}: {seen!r} where {wanted!r} was expected")


def on_screen(size: str):
    """Marks a check that needs a screen of this size ("1920x1080")."""

    def mark(check):
        check.screen = size
        return check

    return mark


def adopt_orphans() -> None:
    """Whatever a check's programs leave behind becomes a child of this process, which can then end it."""
    LIBC.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def die_with_parent() -> None:
    """In a child: it ends when this process does, however that came."""
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGKILL, 0, 0, 0)


def descendants(pid: int) -> list:
    try:
        text = pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text(encoding="ascii")
    except OSError:
        return []
    children = [int(word) for word in text.split()]
    return children + [one for child in children for one in descendants(child)]


def end_descendants() -> None:
    """Ends everything that was started here and waits for it, round after round while something was still born."""
    while pids := descendants(os.getpid()):
        for pid in pids:
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
        try:
            os.waitpid(-1, 0)
        except ChildProcessError:
            return


class Program:
    """A running program; what it says on both outputs is kept."""

    def __init__(self, name: str, command: list, environment: dict, directory: pathlib.Path):
        self.name = name
        self._output = directory / f"{name}.{time.monotonic_ns()}.out"
        with open(self._output, "wb") as output:
            self.process = subprocess.Popen(
                [str(part) for part in command],
                env=environment,
                stdin=subprocess.DEVNULL,
                stdout=output,
                stderr=subprocess.STDOUT,
                start_new_session=True,
                preexec_fn=die_with_parent,
            )

    def text(self) -> str:
        return self._output.read_text(encoding="utf-8", errors="replace")

    def lines(self) -> list:
        return self.text().splitlines()

    def count(self, line: str) -> int:
        return sum(line == one or one.endswith(": " + line) for one in self.lines())

    def expect(self, line: str, count: int = 1, seconds: float = 30) -> None:
        """Waits until it has said the line (alone or after "name: ") that many times."""
        try:
            wait_until("", lambda: self.count(line) >= count, seconds)
        except Failure:
            raise Failure(f"{self.name} did not say '{line}' ({count} times): {self.lines()[-12:]}") from None

    def signal(self, number: int) -> None:
        self.process.send_signal(number)

    def kill(self) -> None:
        self.process.kill()
        self.process.wait()


class Desktop:
    """Coordinates are pixels from the top left; keys are X keysym names, chords joined by "+", or X key codes."""

    def __init__(self, build: pathlib.Path, screen: str):
        self.build = build
        self._directory = tempfile.TemporaryDirectory(prefix="barquell-gui.")
        self.directory = pathlib.Path(self._directory.name)
        self._programs: list = []
        self._screen = screen
        self.environment = self._make_environment()

    def begin(self) -> None:
        self._start_x_server()
        self.bus = self.start_bus()
        self.manager = self.start_manager()

    def _make_environment(self) -> dict:
        keep = {name: os.environ[name] for name in ("PATH", "TZ") if name in os.environ}
        for name, folder in (
            ("HOME", "home"),
            ("XDG_CONFIG_HOME", "home/.config"),
            ("XDG_DATA_HOME", "home/.local/share"),
            ("XDG_CACHE_HOME", "home/.cache"),
            ("XDG_STATE_HOME", "home/.local/state"),
            ("XDG_RUNTIME_DIR", "run"),
        ):
            path = self.directory / folder
            path.mkdir(mode=0o700, parents=True, exist_ok=True)
            keep[name] = str(path)
        keep["BARQUELL_GRANTS"] = str(self.directory / "grants")  # there are none, whoever has one on this machine
        return keep | {"LANG": "C.UTF-8", "QT_QPA_PLATFORM": "xcb", "XDG_SESSION_TYPE": "x11"}

    def _start_x_server(self) -> None:
        read_end, write_end = os.pipe()
        os.set_inheritable(write_end, True)
        self.server = server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{self._screen}x24", "-nolisten", "tcp", "-noreset"],
            close_fds=False,
            preexec_fn=die_with_parent,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        os.close(write_end)
        with os.fdopen(read_end, encoding="ascii") as answer:
            number = answer.readline().strip()
        if not number:
            raise Failure(f"the X server ended with {server.wait()}")
        self.environment["DISPLAY"] = f":{number}"

    def start_bus(self) -> Program:
        """A session bus, always at the same address."""
        socket = self.directory / "run" / "bus"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={socket}"
        socket.unlink(missing_ok=True)  # one that was killed leaves it behind
        bus = self.start("dbus-daemon", "--session", "--nofork", f"--address=unix:path={socket}")
        wait_until("the bus is there", socket.exists)
        return bus

    def start_manager(self) -> Program:
        """It says that it is there some time before it looks after windows; what it starts, it starts after that."""
        at_work = self.directory / "managed"
        at_work.unlink(missing_ok=True)
        manager = self.start("openbox", "--startup", f"touch {at_work}")
        wait_until("the window manager is at work", at_work.exists)
        wait_until("the window manager is there", self._has_window_manager)
        return manager

    def _has_window_manager(self) -> bool:
        return "window id" in self.output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")

    def start(self, *command, **variables) -> Program:
        """Starts a program on this desktop, with these variables in its environment."""
        name = pathlib.Path(command[0]).name
        program = Program(name, list(command), self.environment | variables, self.directory)
        self._programs.append(program)
        return program

    def tool(self, name: str) -> pathlib.Path:
        """A test program of the build, see CMakeLists.txt here."""
        return self.build / "guitools" / name

    def output(self, *command, seconds: float = 20) -> str:
        """What a command that ends by itself says."""
        result = subprocess.run(
            [str(part) for part in command],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=seconds,
            check=False,
        )
        if result.returncode != 0:
            raise Failure(f"{command} ended with {result.returncode}: {result.stderr or result.stdout}")
        return result.stdout

    def key(self, *chords) -> None:
        self.output("xdotool", "key", *chords)

    def key_down(self, key) -> None:
        self.output("xdotool", "keydown", key)

    def key_up(self, key) -> None:
        self.output("xdotool", "keyup", key)

    def move(self, x: int, y: int) -> None:
        self.output("xdotool", "mousemove", x, y)

    def click(self, x: int, y: int, button: int = 1) -> None:
        self.output("xdotool", "mousemove", x, y, "click", button)

    def type(self, text: str) -> None:
        self.output("xdotool", "type", "--delay", 2, text)

    def drag(self, *points) -> None:
        """The pointer, its button down, from the first of these points over the others to the last."""
        steps: list = []
        for x, y in points:
            steps += ["mousemove", x, y, "sleep", 0.1]
            if "mousedown" not in steps:
                steps += ["mousedown", 1, "sleep", 0.1]
        self.output("xdotool", *steps, "mouseup", 1)

    def window(self, title: str) -> str:
        """The number of the visible window with this title, once it is there."""
        search = ("xdotool", "search", "--onlyvisible", "--name", f"^{title}$")
        return wait_until(f"a window titled {title}", lambda: self.answer(*search)).splitlines()[0]

    def answer(self, *command) -> str:
        """What a command says that fails where there is nothing to say."""
        return subprocess.run(
            command, env=self.environment, capture_output=True, text=True, check=False
        ).stdout.strip()

    def focus(self, title: str) -> None:
        window = self.window(title)

        def has_it() -> bool:  # asked for anew, since a window just mapped may not be managed yet
            self.output("xdotool", "windowactivate", window)
            return self.answer("xdotool", "getactivewindow") == window

        wait_until(f"{title} has the focus", has_it)

    def screenshot(self, path, window: str = "root") -> None:
        self.output("import", "-window", window, path)

    def pixel(self, x: int, y: int) -> tuple:
        """Red, green and blue of one pixel, 0 to 255."""
        shot = self.directory / "pixel.txt"
        self.output("import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", f"rgb:{shot}")
        return tuple(shot.read_bytes()[:3])

    def last_words(self) -> str:
        return "\n".join(
            f"  {program.name} said: " + " | ".join(program.lines()[-12:]) for program in self._programs if program.text()
        )

    def close(self) -> None:
        end_descendants()
        self._directory.cleanup()
