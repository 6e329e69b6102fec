"""The suite's statistics and country services for the demo: on this machine, behind a proxy that
the program's settings name, under certificates that only the demo's computer trusts."""

import contextlib
import tempfile
from pathlib import Path
from typing import Dict, List

from tests.e2e.stat.statistics_world import (GEO_HOST, STATISTICS_HOST, TRUST_ROOT, event_of,
                                             proxy_values, store_settings)
from tests.harness.suite import Suite
from tests.sample_suite.applications import CLIP_SAVER
from tests.services.certificates import Authority
from tests.services.connect_proxy import ConnectProxy
from tests.services.http_service import HttpService, answer

COUNTRY = "NL"
LAST_EVENT_NUMBER = 41


class Services:
    """Runs from its construction until end()."""

    def __init__(self):
        self._open = contextlib.ExitStack()
        folder = Path(self._open.enter_context(tempfile.TemporaryDirectory()))
        self._authority = Authority(folder / "authority", "Throw-away demo authority")
        tls = self._authority.server_context([STATISTICS_HOST, GEO_HOST])
        self._statistics = self._open.enter_context(HttpService(answer(200), tls=tls))
        geo = self._open.enter_context(HttpService(answer(200, COUNTRY.encode()), tls=tls))
        self._proxy = self._open.enter_context(ConnectProxy(
            {f"{STATISTICS_HOST}:443": self._statistics.port, f"{GEO_HOST}:443": geo.port}))

    def end(self) -> None:
        self._open.close()

    def connect(self, suite: Suite) -> None:
        """Lets the suite's settings and the computer's certificate store lead here."""
        suite.prefix.run(TRUST_ROOT, str(self._authority.der))
        store_settings(suite.prefix.unix_path(suite.prefix.settings / "common.cfg"),
                       {"EventStatEnabled": 1, "Language": "en", **proxy_values(self._proxy)})
        store_settings(suite.settings_folder(CLIP_SAVER) / f"{CLIP_SAVER.id_string}.cfg",
                       {"EventNumber": LAST_EVENT_NUMBER, "Version": "4.2.0.17"})

    def events(self) -> List[Dict[str, str]]:
        """What the statistics service has received, in order."""
        return [event_of(request) for request in self._statistics.received]
