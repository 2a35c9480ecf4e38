#!/usr/bin/env python3
"""A client of the tap server that says what it is told on its command line, and prints each answer; then it stays until
its input ends, or the server closes. It waits for a line of input first, so that others can get ready for it."""

import socket
import struct
import sys

VERSION = 3
WISHES = {"hello": 1, "request": 6, "withdraw": 7}
WELCOME = 1
ANSWERS = {WELCOME: "welcome", 3: "tap", 4: "frame", 5: "flags", 6: "disabled", 7: "bars", 8: "granted", 9: "withdrawn"}
REASONS = {1: "version", 2: "busy", 3: "malformed", 4: "not granted", 5: "denied", 6: "no answer", 7: "failed"}


def main() -> None:
    sys.stdin.readline()
    server = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
    server.connect("/run/barquell/tap.sock")
    for wish in sys.argv[1:]:
        server.send(struct.pack("=4I2Q", WISHES[wish], VERSION, 0, 0, 0, 0))
    while answer := server.recv(1024):
        kind, _, reason = struct.unpack_from("=3I", answer)
        print(f"refused: {REASONS[reason]}" if kind == 2 else ANSWERS[kind], flush=True)
    print("closed", flush=True)


if __name__ == "__main__":
    main()
