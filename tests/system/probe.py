#!/usr/bin/env python3
"""Tries what a server that somebody has taken over might try, and prints what came of each as JSON. Outside of any cage
everything works, and leaves nothing behind."""

import ctypes
import errno
import json
import mmap
import os
import socket
import time

GRANTS = "/var/lib/barquell/grants"
libc = ctypes.CDLL(None, use_errno=True)


def called(result: int) -> None:
    if result < 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))


def written(path: str) -> None:
    with open(path, "w", encoding="utf-8") as file:
        file.write("x")
    os.unlink(path)


def rewritten(path: str) -> None:
    with open(path, "r+", encoding="utf-8") as file:
        text = file.read()
        file.seek(0)
        file.write(text)


def read(path: str) -> None:
    with open(path, "rb", buffering=0) as file:
        file.read(1)


def of_somebody() -> int:
    processes = [int(name) for name in os.listdir("/proc") if name.isdigit()]
    return next(process for process in processes if os.stat(f"/proc/{process}").st_uid >= 1000)


def network(family: int) -> None:
    socket.socket(family, socket.SOCK_DGRAM).connect(("127.0.0.1" if family == socket.AF_INET else "::1", 9))


def module_looked_for() -> None:
    """It has no file; who may load modules hears just that."""
    try:
        called(libc.syscall(313, -1, b"", 0))
    except OSError as error:
        if error.errno != errno.EBADF:
            raise


ATTEMPTS = {
    "open uinput": lambda: os.close(os.open("/dev/uinput", os.O_WRONLY)),
    "read the grant": lambda: read(f"{GRANTS}/{os.listdir(GRANTS)[0]}"),
    "write a grant": lambda: written(f"{GRANTS}/probe"),
    "read a home": lambda: read(os.path.join("/home", "anna", ".profile")),
    "read root's home": lambda: read(os.path.join("/root", ".profile")),
    "read the passwords": lambda: read("/etc/shadow"),
    "use the network": lambda: network(socket.AF_INET),
    "use the network (6)": lambda: network(socket.AF_INET6),
    "sniff": lambda: socket.socket(socket.AF_PACKET, socket.SOCK_RAW),
    "read the disk": lambda: read("/dev/vda"),
    "read the console": lambda: read("/dev/vcs1"),
    "read memory": lambda: read("/dev/mem"),
    "write a program": lambda: written("/usr/bin/probe"),
    "write settings": lambda: written("/etc/probe"),
    "write elsewhere": lambda: written("/var/lib/probe"),
    "write to the kernel": lambda: rewritten("/proc/sys/kernel/hostname"),
    "become somebody": lambda: os.setresuid(1000, 1000, 1000),
    "trace a process": lambda: called(libc.ptrace(0x4206, of_somebody(), None, None)),
    "mount": lambda: called(libc.mount(b"tmpfs", b"/mnt", b"tmpfs", 0, None)),
    "make a namespace": lambda: called(libc.unshare(0x10000000)),
    "end a process of others": lambda: os.kill(of_somebody(), 0),
    "hurry": lambda: os.setpriority(os.PRIO_PROCESS, 0, -5),
    "run what it has written": lambda: mmap.mmap(-1, 4096, prot=mmap.PROT_READ | mmap.PROT_WRITE | mmap.PROT_EXEC),
    "load a module": module_looked_for,
    "set the clock": lambda: time.clock_settime(time.CLOCK_REALTIME, time.time()),
    "restart the machine": lambda: called(libc.syscall(169, 0xFEE1DEAD, 672274793, 0, None)),
}


def came_of(attempt) -> str:
    try:
        attempt()
    except OSError as error:
        return error.strerror
    except Exception as error:  # pylint: disable=broad-except
        return repr(error)
    return "done"


def apart(attempt) -> str:
    """In a process of its own: what it has become ends with it."""
    reading, writing = os.pipe()
    if os.fork() == 0:
        os.write(writing, came_of(attempt).encode())
        os._exit(0)
    os.close(writing)
    os.wait()
    with open(reading, encoding="utf-8") as file:
        return file.read()


print(json.dumps({what: apart(attempt) for what, attempt in ATTEMPTS.items()}))
