"""The desktop itself: what every other check relies on."""

from desktop import Failure, on_screen, wait_until


@on_screen("640x480")
def check_desktop_has_the_size_that_was_asked_for(desktop):
    if "640 480" not in desktop.output("xdotool", "getdisplaygeometry"):
        raise Failure(desktop.output("xdotool", "getdisplaygeometry"))


def check_desktop_passes_keys_to_the_window_in_front(desktop):
    file = desktop.directory / "typed"
    desktop.start("xterm", "-T", "typing", "-e", "sh", "-c", f'read word; echo "$word" >{file}')
    desktop.focus("typing")
    desktop.key("h", "e", "l", "l", "o", "Return")
    wait_until("the word arrived", lambda: file.exists() and file.read_text(encoding="ascii") == "hello\n")
