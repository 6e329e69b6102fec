"""An HTTP proxy that only tunnels, to local ports that the test chooses for each host."""

import base64
import http.client
import socket
import threading
from dataclasses import dataclass
from typing import Dict, List, Optional, Tuple

from tests.services.local_server import LocalServer


@dataclass
class Connect:
    """One request to the proxy."""
    target: str
    authorization: Optional[str]
    accepted: bool


class ConnectProxy(LocalServer):
    """`routes` maps "host:port" to a port of this machine; an unknown target is refused. With
    `credentials` (user, password) every request must carry them."""

    def __init__(self, routes: Dict[str, int], credentials: Optional[Tuple[str, str]] = None):
        super().__init__()
        self.routes = routes
        self._expected = None
        if credentials is not None:
            token = base64.b64encode(":".join(credentials).encode()).decode()
            self._expected = f"Basic {token}"
        self._connects: List[Connect] = []

    @property
    def connects(self) -> List[Connect]:
        return list(self._connects)

    def serve(self, connection: socket.socket) -> None:
        with connection.makefile("rb", buffering=0) as stream:
            method, target, _ = stream.readline().decode("ascii").split(" ", 2)
            headers = http.client.parse_headers(stream)
        authorization = headers.get("Proxy-Authorization")
        allowed = self._expected is None or authorization == self._expected
        port = self.routes.get(target) if method == "CONNECT" else None
        self._connects.append(Connect(target, authorization, allowed and port is not None))
        if not allowed:
            connection.sendall(b"HTTP/1.1 407 Proxy Authentication Required\r\n"
                               b'Proxy-Authenticate: Basic realm="test"\r\n'
                               b"Content-Length: 0\r\nConnection: close\r\n\r\n")
        elif port is None:
            connection.sendall(b"HTTP/1.1 502 Bad Gateway\r\nContent-Length: 0\r\n\r\n")
        else:
            self._tunnel(connection, port)

    def _tunnel(self, connection: socket.socket, port: int) -> None:
        with socket.create_connection(("127.0.0.1", port)) as server:
            self.track(server)
            connection.sendall(b"HTTP/1.1 200 Connection established\r\n\r\n")
            upward = threading.Thread(target=_copy, args=(connection, server), daemon=True)
            upward.start()
            _copy(server, connection)
            upward.join()


def _copy(source: socket.socket, target: socket.socket) -> None:
    try:
        while data := source.recv(65536):
            target.sendall(data)
        target.shutdown(socket.SHUT_WR)
    except OSError:
        # A reset on one side ends the other side as well.
        for connection in (source, target):
            try:
                connection.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass
