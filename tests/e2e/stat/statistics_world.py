"""The surroundings of the statistics: a user's settings, the suite's two services, and a proxy."""

import json
import queue
import subprocess
import tempfile
import threading
import unittest
import urllib.parse
import uuid
from dataclasses import dataclass
from pathlib import Path
from typing import Dict, List, Optional, Tuple

from tests.harness import layout, log_file
from tests.harness.case import SuiteTestCase
from tests.harness.prefix import Prefix
from tests.harness.suite import Suite
from tests.services.certificates import Authority
from tests.services.connect_proxy import ConnectProxy
from tests.services.http_service import HttpService, Received

STATISTICS_HOST = layout.cmake_variable("TESSERA_STATS_HOST")
GEO_HOST = layout.cmake_variable("TESSERA_GEO_HOST")
ANSWER_DEADLINE = 60.0
GUID = "^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$"

DRIVER = layout.WINE_TOOLS / "stat_driver.exe"
TRUST_ROOT = layout.WINE_TOOLS / "trust_root.exe"


@dataclass(frozen=True)
class LogLine:
    level: int
    category: str
    place: str
    text: str


def event_of(request: Received) -> Dict[str, str]:
    """The event in a request."""
    fields = urllib.parse.parse_qs(request.body.decode("utf-8"), strict_parsing=True,
                                   keep_blank_values=True)
    assert list(fields) == ["data"] and len(fields["data"]) == 1, fields
    return json.loads(fields["data"][0], object_pairs_hook=dict)


class Driver:
    """A running stat_driver. As a context manager it lets the process end normally."""

    def __init__(self, prefix: Prefix, environment: Optional[Dict[str, str]] = None):
        settings = {"KEELBASE_LOG_LEVEL": "7", **(environment or {})}
        self._process = prefix.start(DRIVER, environment=settings, stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE, text=True, bufsize=1)
        self._answers: "queue.Queue[str]" = queue.Queue()
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self) -> None:
        for line in self._process.stdout:
            self._answers.put(line.rstrip("\n").rstrip("\r"))

    def __enter__(self) -> "Driver":
        return self

    def __exit__(self, *_) -> None:
        if self._process.poll() is None:
            self.end()
        self._reader.join()
        self._process.stdout.close()

    def tell(self, command: str) -> None:
        self._process.stdin.write(command + "\n")
        self._process.stdin.flush()

    def hear(self) -> str:
        return self._answers.get(timeout=ANSWER_DEADLINE)

    def ask(self, command: str) -> str:
        self.tell(command)
        return self.hear()

    def start(self, application: int = 60) -> int:
        """Runs the start-up; returns its milliseconds."""
        return int(self.ask(f"start {application}"))

    def post(self, name: str) -> Tuple[int, float]:
        """Sends one event before it returns: the event's number, and seconds."""
        return self._event("post", name)

    def send(self, name: str) -> Tuple[int, float]:
        """Queues one event: its number, and the seconds of the call."""
        return self._event("send", name)

    def _event(self, command: str, name: str) -> Tuple[int, float]:
        number, microseconds = self.ask(f"{command} {name}").split()
        return int(number), int(microseconds) / 1e6

    def end(self) -> None:
        """Ends the process normally and waits for it."""
        self._process.stdin.close()
        code = self._process.wait(ANSWER_DEADLINE)
        if code != 0:
            raise AssertionError(f"stat_driver ended with {code}")


class ServicesMixin:
    """For a unittest.TestCase: services and proxies that end with the test. Each class has its own
    certificate authority."""

    @classmethod
    def make_authority(cls) -> Path:
        """To be called by setUpClass. Returns a folder that is removed after the class's tests."""
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.authority = Authority(Path(folder.name) / "authority", "Throw-away test authority")
        cls.server_tls = cls.authority.server_context([STATISTICS_HOST, GEO_HOST])
        return Path(folder.name)

    @classmethod
    def trust_authority(cls, prefix: Prefix) -> None:
        prefix.run(TRUST_ROOT, str(cls.authority.der))

    def service(self, *behaviours, tls=None) -> HttpService:
        return self.enterContext(HttpService(*behaviours, tls=tls or self.server_tls))

    def proxy(self, statistics: Optional[HttpService] = None, geo: Optional[HttpService] = None,
              credentials: Optional[Tuple[str, str]] = None) -> ConnectProxy:
        routes = {}
        if statistics is not None:
            routes[f"{STATISTICS_HOST}:443"] = statistics.port
        if geo is not None:
            routes[f"{GEO_HOST}:443"] = geo.port
        return self.enterContext(ConnectProxy(routes, credentials))


def proxy_values(proxy: ConnectProxy, user: str = "", password: str = "") -> Dict[str, object]:
    """The proxy's settings in common.cfg."""
    return {"ProxyType": 1, "ProxyAddress": "127.0.0.1", "ProxyPort": proxy.port,
            "ProxyUser": user, "ProxyPw": password}


def store_settings(file: Path, values: Dict[str, object]) -> None:
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes("".join(f"{key}={values[key]}\n" for key in sorted(values)).encode())


def stored_settings(file: Path) -> Dict[str, str]:
    """The file's pairs. An incomplete last line and repeated keys are errors."""
    text = file.read_bytes().decode()
    assert text.endswith("\n"), text
    pairs = [line.split("=", 1) for line in text[:-1].split("\n")]
    assert len(pairs) == len(dict(pairs)), f"a repeated key: {text}"
    return dict(pairs)


class SuiteWithServices(ServicesMixin, SuiteTestCase):
    """The sample suite on a computer that trusts the services' authority."""

    @classmethod
    def setUpClass(cls):
        cls.make_authority()

    def setUp(self):
        super().setUp()
        self.common_file = self.prefix.unix_path(self.prefix.settings / "common.cfg")

    def install(self, *arguments, **options) -> Suite:
        suite = super().install(*arguments, **options)
        self.trust_authority(self.prefix)
        return suite


class StatisticsCase(ServicesMixin, unittest.TestCase):
    """One prefix for the class, which trusts the authority."""

    @classmethod
    def setUpClass(cls):
        folder = cls.make_authority()
        cls.prefix = Prefix(folder / f"prefix-{uuid.uuid4().hex}")
        cls.addClassCleanup(cls.prefix.destroy)
        cls.prefix.create()
        cls.trust_authority(cls.prefix)

    def setUp(self):
        self.settings = self.prefix.unix_path(self.prefix.settings)
        self.settings.mkdir(parents=True, exist_ok=True)
        self.log_file.unlink(missing_ok=True)

    @property
    def log_file(self) -> Path:
        return self.settings / "logs" / "stat_driver.log"

    def log(self) -> List[LogLine]:
        """The log so far."""
        if not self.log_file.exists():
            return []
        return [LogLine(message.level, message.category, f"{message.source}:{message.line}",
                        message.text) for message in log_file.read(self.log_file)]

    def store_common(self, **values: object) -> None:
        store_settings(self.settings / "common.cfg", values)

    def store_application(self, id_string: str, **values: object) -> None:
        store_settings(self.settings / id_string / f"{id_string}.cfg", values)

    def stored_common(self) -> Dict[str, str]:
        return stored_settings(self.settings / "common.cfg")

    def driver(self, environment: Optional[Dict[str, str]] = None) -> Driver:
        return self.enterContext(Driver(self.prefix, environment))
