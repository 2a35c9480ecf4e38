#!/usr/bin/env python3
"""Sits in a person's login session and starts there what the checks ask for: a process started by a service would be in
no session, and the system decides by the session. Each request is one packet, the command as JSON with the process's
standard input, output and error beside it; the answers are the process's number and, later, its exit status."""

import array
import fcntl
import json
import os
import socket
import sys
import termios
import threading


def descriptors_of(ancillary: list) -> list:
    passed = array.array("i")
    for level, kind, data in ancillary:
        if (level, kind) == (socket.SOL_SOCKET, socket.SCM_RIGHTS):
            passed.frombytes(data[: len(data) - len(data) % passed.itemsize])
    return list(passed)


def become(request: dict, descriptors: list) -> None:
    os.setsid()
    for number, descriptor in enumerate(descriptors):
        os.dup2(descriptor, number)
    if request["terminal"]:
        fcntl.ioctl(0, termios.TIOCSCTTY, 0)
    os.execvpe(request["command"][0], request["command"], {**os.environ, **request["environment"]})


def serve(connection: socket.socket) -> None:
    with connection:
        packet, ancillary, _, _ = connection.recvmsg(65536, 256, socket.MSG_CMSG_CLOEXEC)
        descriptors = descriptors_of(ancillary)
        child = os.fork()
        if child == 0:
            try:
                become(json.loads(packet), descriptors)
            finally:
                os._exit(127)
        for descriptor in descriptors:
            os.close(descriptor)
        connection.send(str(child).encode())
        _, status = os.waitpid(child, 0)
        try:
            connection.send(str(os.waitstatus_to_exitcode(status)).encode())
        except OSError:
            pass  # nobody waits for it any more


def main() -> None:
    path = sys.argv[1]
    if os.path.exists(path):
        os.unlink(path)
    listener = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
    listener.bind(path)
    listener.listen(16)
    while True:
        connection, _ = listener.accept()
        threading.Thread(target=serve, args=(connection,), daemon=True).start()


main()
