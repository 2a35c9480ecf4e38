"""Recorders that we did not write, and a recorded session played into the kernel."""

import os
import signal
import subprocess
import tempfile
import time

import yaml
from reader import EV_KEY, until

EV_SYN = 0
REPEAT = 2


def frames_of(recording: str) -> list:
    """All frames of a recording by time: (microseconds, device, events)."""
    with open(recording, encoding="utf-8") as file:
        devices = yaml.load(file, yaml.CSafeLoader)["devices"]
    frames = []
    for number, device in enumerate(devices):
        events = []
        for item in device["events"]:
            for sec, usec, kind, code, value in item["evdev"]:
                if kind == EV_SYN:
                    frames.append((sec * 1_000_000 + usec, number, events))
                    events = []
                elif not (kind == EV_KEY and value == REPEAT):  # the kernel repeats on its own
                    events.append((kind, code, value))
    return sorted(frames, key=lambda frame: frame[:2])


def play(frames: list, devices: list) -> None:
    """In the time of the recording; between devices with room enough that nobody can exchange them."""
    before, last = frames[0][0], None
    for at, number, events in frames:
        room = 0.03 if last is not None and number != last else 0.0
        time.sleep(max((at - before) / 1e6, room))
        before, last = at, number
        if events:
            devices[number]._device.write(events)  # pylint: disable=protected-access


def emulated_events(text: str) -> list:
    """The events of an evemu text."""
    lines = [line.split()[2:5] for line in text.splitlines() if line.startswith("E:")]
    return [(int(kind, 16), int(code, 16), int(value)) for kind, code, value in lines]


def yaml_events(text: str) -> list:
    """The events of the one device of a `libinput record`; its recorder tells of none twice."""
    device = yaml.load(text, yaml.CSafeLoader)["devices"][0]
    return [tuple(event[2:]) for item in device["events"] or [] for event in item["evdev"]]


class Recorder:
    """evemu-record or libinput record on a node, ready when this returns."""

    def __init__(self, ready: str, *command: str):
        self._path = tempfile.mktemp()
        self._out = open(self._path, "wb")  # pylint: disable=consider-using-with
        self._process = subprocess.Popen(["stdbuf", "-oL", *command], stdout=self._out, stderr=subprocess.DEVNULL)
        until(f"{command[0]} is ready", lambda: ready in self.text())

    def text(self) -> str:
        with open(self._path, encoding="utf-8") as file:
            return file.read()

    def finish(self) -> str:
        self._process.send_signal(signal.SIGINT)
        self._process.wait()
        return self.text()

    def close(self) -> None:
        if self._process.poll() is None:
            self._process.kill()
            self._process.wait()
        self._out.close()
        os.unlink(self._path)
