"""An HTTP or HTTPS service that records its requests and misbehaves on demand."""

import http.client
import socket
import ssl
import threading
from dataclasses import dataclass
from email.message import Message
from typing import Callable, Dict, List, Optional

from tests.services.local_server import LocalServer, reset


@dataclass
class Received:
    """One request as it was received."""
    method: str
    target: str
    headers: Message
    body: bytes


# Called with the connection once a request has been read. The event is set when the service ends.
Behaviour = Callable[[socket.socket, threading.Event], None]


def _head(status: int, *fields: str) -> bytes:
    reason = http.client.responses.get(status, "Unknown")
    lines = [f"HTTP/1.1 {status} {reason}", "Connection: close", *fields]
    return ("\r\n".join(lines) + "\r\n\r\n").encode()


def answer(status: int, body: bytes = b"", *fields: str) -> Behaviour:
    def behave(connection: socket.socket, _) -> None:
        length = [] if status == 204 else [f"Content-Length: {len(body)}"]
        connection.sendall(_head(status, *length, *fields) + body)
    return behave


def stall(_, stopping: threading.Event) -> None:
    """Never answers."""
    stopping.wait()


def held(released: threading.Event, then: Behaviour) -> Behaviour:
    """Does nothing until the event is set."""
    def behave(connection: socket.socket, stopping: threading.Event) -> None:
        while not released.wait(0.05):
            if stopping.is_set():
                return
        then(connection, stopping)
    return behave


def slow_drip(at_once: int = 0) -> Behaviour:
    """A long answer: some bytes of it at once, then one every 0.2 seconds."""
    def behave(connection: socket.socket, stopping: threading.Event) -> None:
        connection.sendall(_head(200) + b"x" * at_once)
        while not stopping.wait(0.2):
            connection.sendall(b"x")
    return behave


def declared_size(size: int) -> Behaviour:
    """A long answer with its length."""
    def behave(connection: socket.socket, _) -> None:
        connection.sendall(_head(200, f"Content-Length: {size}"))
        _send_much(connection, size)
    return behave


def undeclared_size(size: int) -> Behaviour:
    """A long answer without its length: the end of the connection ends it."""
    def behave(connection: socket.socket, _) -> None:
        connection.sendall(_head(200))
        _send_much(connection, size)
    return behave


def _send_much(connection: socket.socket, size: int) -> None:
    block = b"x" * 65536
    for _ in range(size // len(block)):
        connection.sendall(block)


def truncated(connection: socket.socket, _) -> None:
    """Promises more than it sends."""
    connection.sendall(_head(200, "Content-Length: 100") + b"only this")


def reset_before_headers(connection: socket.socket, _) -> None:
    reset(connection)


def reset_after_headers(connection: socket.socket, _) -> None:
    connection.sendall(_head(200, "Content-Length: 100"))
    reset(connection)


class HttpService(LocalServer):
    """Answers the n-th request with the n-th behaviour, the last one repeated."""

    def __init__(self, *behaviours: Behaviour, tls: Optional[ssl.SSLContext] = None):
        super().__init__()
        self._tls = tls
        self._behaviours = list(behaviours)
        self._changed = threading.Condition()
        self._received: List[Received] = []

    @property
    def received(self) -> List[Received]:
        with self._changed:
            return list(self._received)

    def wait_for(self, count: int, seconds: float = 60.0) -> List[Received]:
        """Waits until `count` requests have arrived; raises when they do not."""
        with self._changed:
            if not self._changed.wait_for(lambda: len(self._received) >= count, seconds):
                raise AssertionError(f"{len(self._received)} of {count} requests arrived")
            return list(self._received)

    def serve(self, connection: socket.socket) -> None:
        if self._tls is not None:
            connection = self._tls.wrap_socket(connection, server_side=True)
            self.track(connection)  # wrapping took the other one's place
        with connection:
            request = self._read(connection)
            if request is None:
                return
            with self._changed:
                index = len(self._received)
                self._received.append(request)
                self._changed.notify_all()
            behaviour = self._behaviours[min(index, len(self._behaviours) - 1)]
            behaviour(connection, self.stopping)

    @staticmethod
    def _read(connection: socket.socket) -> Optional[Received]:
        """The request; None from a client that rejected the server's certificate."""
        with connection.makefile("rb") as stream:
            first_line = stream.readline().decode("ascii")
            if not first_line:
                return None
            method, target, _ = first_line.split(" ", 2)
            headers = http.client.parse_headers(stream)
            body = stream.read(int(headers.get("Content-Length", "0")))
        return Received(method, target, headers, body)


def header_names(request: Received) -> Dict[str, str]:
    """The headers by lower-case name; none may be repeated."""
    names = [name.lower() for name in request.headers.keys()]
    assert len(names) == len(set(names)), names
    return {name.lower(): value for name, value in request.headers.items()}
