"""A TCP server on a port that the system chooses, one thread for each connection."""

import socket
import struct
import threading
from typing import List

# Seconds. Only connections of a failed test are silent for so long.
SILENCE_LIMIT = 60.0


def reset(connection: socket.socket) -> None:
    """Closes with a reset instead of an orderly end."""
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
    connection.close()


class LocalServer:
    """A context manager: listens from its construction; its exit ends all connections."""

    def __init__(self) -> None:
        self._listener = socket.create_server(("127.0.0.1", 0))
        self.port: int = self._listener.getsockname()[1]
        self.stopping = threading.Event()
        self._lock = threading.Lock()
        self._connections: List[socket.socket] = []
        self._threads: List[threading.Thread] = []
        self._acceptor = threading.Thread(target=self._accept, daemon=True)

    def __enter__(self):
        self._acceptor.start()
        return self

    def __exit__(self, *_) -> None:
        self.stopping.set()
        self._shut_down(self._listener)
        self._acceptor.join()
        for connection in self._connections:
            self._shut_down(connection)
        for thread in self._threads:
            thread.join()
        self._listener.close()

    @staticmethod
    def _shut_down(connection: socket.socket) -> None:
        """Closing alone does not wake a thread that waits in accept() or recv()."""
        try:
            connection.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass  # the other side has closed it

    def _accept(self) -> None:
        while not self.stopping.is_set():
            try:
                connection, _ = self._listener.accept()
            except OSError:
                return
            connection.settimeout(SILENCE_LIMIT)
            thread = threading.Thread(target=self._serve, args=(connection,), daemon=True)
            with self._lock:
                self._connections.append(connection)
                self._threads.append(thread)
            thread.start()

    def _serve(self, connection: socket.socket) -> None:
        with connection:
            try:
                self.serve(connection)
            except OSError:
                pass  # the client has closed the connection

    def track(self, connection: socket.socket) -> None:
        """Lets the server's exit end this connection too."""
        with self._lock:
            self._connections.append(connection)

    def serve(self, connection: socket.socket) -> None:
        """Handles one connection, which is closed afterwards."""
        raise NotImplementedError
