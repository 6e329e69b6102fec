"""netpull against local servers: its requests, and the outcome of every failure."""

import base64
import os
import ssl
import subprocess
import tempfile
import unittest
import warnings
from dataclasses import dataclass
from pathlib import Path

from tests.services.certificates import Authority
from tests.services.connect_proxy import ConnectProxy
from tests.services.http_service import (HttpService, answer, declared_size, header_names,
                                         reset_after_headers, reset_before_headers, slow_drip,
                                         stall, truncated, undeclared_size)
from tests.services.local_server import LocalServer

PROBE = os.environ["NETPULL_PROBE"]
LOOKUP_PROBE = os.environ["NETPULL_LOOKUP_PROBE"]
ANSWER_LIMIT = 1024 * 1024

PROBE_OUT_OF_MEMORY = 3

# libcurl's error codes
FAILED_INIT = 2
COULD_NOT_RESOLVE_HOST = 6
COULD_NOT_CONNECT = 7
PARTIAL_FILE = 18
WRITE_ERROR = 23
TIMED_OUT = 28
BAD_ARGUMENT = 43
HANDSHAKE_FAILED = 35
GOT_NOTHING = 52
RECEIVE_ERROR = 56
UNTRUSTED = 60
TOO_LONG = 63
UNSUPPORTED_PROTOCOL = 1


@dataclass
class Outcome:
    code: int
    status: int
    seconds: float
    body: bytes


def fetch(method: str, url: str, environment=None, probe=PROBE, **options) -> Outcome:
    arguments = [f"{name}={value}" for name, value in options.items()]
    done = subprocess.run([probe, method, url, *arguments], check=True, timeout=60,
                          stdout=subprocess.PIPE, env={**os.environ, **(environment or {})})
    head, body = done.stdout.split(b"\n", 1)
    code, status, milliseconds, size = map(int, head.split())
    assert size == len(body), (size, len(body))
    return Outcome(code, status, milliseconds / 1000, body)


def get(port: int, **options) -> Outcome:
    return fetch("GET", f"http://127.0.0.1:{port}/where?a=b", **options)


class Requests(unittest.TestCase):
    def test_get_sends_only_required_headers(self):
        with HttpService(answer(200, b"text")) as service:
            outcome = get(service.port)
        self.assertEqual((outcome.code, outcome.status, outcome.body), (0, 200, b"text"))
        [request] = service.received
        self.assertEqual((request.method, request.target, request.body),
                         ("GET", "/where?a=b", b""))
        self.assertEqual(set(header_names(request)), {"host", "accept"})

    def test_post_sends_the_form_and_its_header(self):
        with HttpService(answer(200)) as service:
            outcome = fetch("POST", f"http://127.0.0.1:{service.port}/form", data='data="x"&%7B',
                            header="Content-Type: text/special")
        self.assertEqual(outcome.code, 0)
        [request] = service.received
        self.assertEqual((request.method, request.body), ("POST", b'data="x"&%7B'))
        headers = header_names(request)
        self.assertEqual(set(headers), {"host", "accept", "content-type", "content-length"})
        self.assertEqual(headers["content-type"], "text/special")

    def test_a_long_post_is_sent_without_waiting(self):
        # By default libcurl asks for "100 Continue" from 1 MiB on, and waits a second for it.
        with HttpService(answer(200)) as service:
            url = f"http://127.0.0.1:{service.port}/form"
            outcome = fetch("POST", url, dataSize=2_000_000)
        self.assertEqual(outcome.code, 0)
        [request] = service.received
        self.assertNotIn("expect", header_names(request))
        self.assertEqual(request.body, b"x" * 2_000_000)

    def test_a_post_may_hold_any_bytes(self):
        with HttpService(answer(200)) as service:
            fetch("POST", f"http://127.0.0.1:{service.port}/form", dataZeros=3)
        self.assertEqual(service.received[0].body, b"\0\0\0")

    def test_an_empty_post_is_a_post(self):
        with HttpService(answer(204)) as service:
            outcome = fetch("POST", f"http://127.0.0.1:{service.port}/form")
        self.assertEqual((outcome.code, outcome.status), (0, 204))
        self.assertEqual(service.received[0].method, "POST")
        self.assertEqual(header_names(service.received[0])["content-length"], "0")

    def test_proxies_of_the_environment_are_ignored(self):
        with HttpService(answer(200)) as service:
            dead = "http://127.0.0.1:1"
            outcome = get(service.port, environment={"http_proxy": dead, "all_proxy": dead})
        self.assertEqual(outcome.code, 0)


class Answers(unittest.TestCase):
    def check(self, behaviour, code, status, body=b""):
        with HttpService(behaviour) as service:
            outcome = get(service.port)
        self.assertEqual((outcome.code, outcome.status, outcome.body), (code, status, body))
        self.assertEqual(len(service.received), 1)
        return outcome

    def test_every_status_is_returned_with_its_body(self):
        for status in (200, 301, 400, 404, 500, 503):
            with self.subTest(status):
                self.check(answer(status, b"body"), 0, status, b"body")

    def test_redirects_are_not_followed(self):
        for status in (301, 302, 303, 307, 308):
            with self.subTest(status):
                self.check(answer(status, b"", "Location: /elsewhere"), 0, status)

    def test_the_body_may_hold_any_bytes(self):
        body = bytes(range(256)) * 10
        self.check(answer(200, body), 0, 200, body)

    def test_the_longest_allowed_body_is_accepted(self):
        self.check(answer(200, b"y" * ANSWER_LIMIT), 0, 200, b"y" * ANSWER_LIMIT)

    def test_a_declared_long_body_is_refused(self):
        outcome = self.check(declared_size(50 * 1024 * 1024), TOO_LONG, 200)
        self.assertLess(outcome.seconds, 5)

    def test_one_byte_too_many_is_refused(self):
        self.check(answer(200, b"y" * (ANSWER_LIMIT + 1)), TOO_LONG, 200)

    def test_an_undeclared_long_body_is_cut_off(self):
        with HttpService(undeclared_size(50 * 1024 * 1024)) as service:
            outcome = get(service.port)
        self.assertEqual(outcome.code, TOO_LONG)
        self.assertLessEqual(len(outcome.body), ANSWER_LIMIT)
        self.assertLess(outcome.seconds, 5)

    def test_an_undeclared_long_body_is_cut_off_at_its_first_byte_too_many(self):
        with HttpService(slow_drip(at_once=ANSWER_LIMIT)) as service:
            outcome = get(service.port)
        self.assertEqual((outcome.code, len(outcome.body)), (TOO_LONG, ANSWER_LIMIT))
        self.assertLess(outcome.seconds, 5)

    def test_a_byte_too_large_for_memory_is_an_error(self):
        # The text grows from 60 to 120 bytes.
        with HttpService(slow_drip(at_once=60)) as service:
            outcome = get(service.port, largestBlock=100)
        self.assertEqual((outcome.code, len(outcome.body)), (WRITE_ERROR, 60))

    def test_an_answer_too_large_for_memory_is_an_error(self):
        with HttpService(answer(200, b"y" * ANSWER_LIMIT)) as service:
            outcome = get(service.port, largestBlock=ANSWER_LIMIT // 4)
        self.assertEqual((outcome.code, outcome.status), (WRITE_ERROR, 200))
        self.assertLess(len(outcome.body), ANSWER_LIMIT)

    def test_a_truncated_body_is_an_error(self):
        self.check(truncated, PARTIAL_FILE, 200, b"only this")

    def test_a_reset_before_the_headers_is_an_error(self):
        self.check(reset_before_headers, RECEIVE_ERROR, 0)

    def test_a_reset_after_the_headers_is_an_error(self):
        self.check(reset_after_headers, RECEIVE_ERROR, 200)

    def test_an_end_without_an_answer_is_an_error(self):
        self.check(lambda *_: None, GOT_NOTHING, 0)

    def test_an_answer_without_headers_is_an_error(self):
        self.check(lambda connection, _: connection.sendall(b"hello, world\n"),
                   UNSUPPORTED_PROTOCOL, 0)


class Limits(unittest.TestCase):
    def check_time(self, outcome, seconds):
        self.assertEqual(outcome.code, TIMED_OUT)
        self.assertGreaterEqual(outcome.seconds, seconds - 0.1)
        self.assertLess(outcome.seconds, seconds + 1.5)

    def test_a_silent_server_costs_the_timeout(self):
        with HttpService(stall) as service:
            self.check_time(get(service.port, timeout=1), 1)

    def test_a_dripping_server_costs_the_timeout(self):
        with HttpService(slow_drip()) as service:
            self.check_time(get(service.port, timeout=1), 1)

    def test_the_longest_duration_applies_when_it_is_shorter(self):
        with HttpService(stall) as service:
            self.check_time(get(service.port, timeout=9, longest=1), 1)

    def test_a_handshake_that_never_ends_costs_the_connecting_time(self):
        class Silent(LocalServer):
            def serve(self, connection):
                self.stopping.wait()
        with Silent() as server:
            outcome = fetch("GET", f"https://127.0.0.1:{server.port}/", timeout=9, connect=1)
            self.check_time(outcome, 1)

    def test_a_name_lookup_that_hangs_costs_the_connecting_time(self):
        self.check_time(fetch("GET", "http://hangs.invalid/", probe=LOOKUP_PROBE, timeout=9,
                              connect=1), 1)

    def test_a_name_lookup_that_hangs_costs_the_timeout_when_that_is_shorter(self):
        self.check_time(fetch("GET", "http://hangs.invalid/", probe=LOOKUP_PROBE, timeout=1), 1)

    def test_a_hanging_lookup_of_the_proxy_counts_too(self):
        self.check_time(fetch("GET", "http://127.0.0.1/", probe=LOOKUP_PROBE, timeout=1,
                              proxy="hangs.invalid"), 1)

    def test_requests_without_time_are_refused(self):
        for option in ("timeout", "longest", "connect"):
            with self.subTest(option):
                self.assertEqual(get(1, **{option: 0}).code, BAD_ARGUMENT)

    def test_one_second_is_enough_for_each_limit(self):
        with HttpService(answer(200)) as service:
            self.assertEqual(get(service.port, timeout=1, longest=1, connect=1).code, 0)

    def test_an_unknown_version_of_http_is_refused(self):
        self.assertEqual(get(1, httpVersion=2).code, BAD_ARGUMENT)

    def test_an_address_too_long_for_the_library_is_refused(self):
        with HttpService(answer(200)) as service:
            outcome = get(service.port, urlSize=10_000_000)
        self.assertEqual((outcome.code, outcome.status), (BAD_ARGUMENT, 0))
        self.assertEqual(service.received, [])


class Memory(unittest.TestCase):
    def test_a_request_without_memory_for_its_headers_is_not_sent(self):
        with HttpService(answer(200)) as service:
            for left in (0, 1):
                with self.subTest(left), self.assertRaises(subprocess.CalledProcessError) as error:
                    fetch("POST", f"http://127.0.0.1:{service.port}/", header="A: b",
                          headersLeft=left)
                self.assertEqual(error.exception.returncode, PROBE_OUT_OF_MEMORY)
        self.assertEqual(service.received, [])

    def test_a_request_without_memory_at_all_fails(self):
        outcome = get(1, handlesLeft=0)
        self.assertEqual((outcome.code, outcome.status), (FAILED_INIT, 0))


class Encryption(unittest.TestCase):
    # This machine's own settings, which would refuse old versions by themselves, do not count.
    PERMISSIVE = """openssl_conf = start
[start]
ssl_conf = modules
[modules]
system_default = everything
[everything]
MinProtocol = TLSv1
CipherString = DEFAULT@SECLEVEL=0
"""

    def code_for(self, newest: ssl.TLSVersion) -> int:
        """What becomes of a request to a server that speaks nothing newer, and that nobody here
        trusts."""
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            settings = folder / "openssl.cnf"
            settings.write_text(self.PERMISSIVE)
            context = Authority(folder / "authority", "nobody's").server_context(["localhost"])
            context.set_ciphers("DEFAULT@SECLEVEL=0")
            with warnings.catch_warnings():
                warnings.simplefilter("ignore", DeprecationWarning)
                context.minimum_version = ssl.TLSVersion.TLSv1
                context.maximum_version = newest
            with HttpService(answer(200), tls=context) as service:
                return fetch("GET", f"https://localhost:{service.port}/",
                             environment={"OPENSSL_CONF": str(settings)}).code

    def test_versions_before_1_2_are_refused(self):
        for version in (ssl.TLSVersion.TLSv1, ssl.TLSVersion.TLSv1_1):
            with self.subTest(version):
                self.assertEqual(self.code_for(version), HANDSHAKE_FAILED)

    def test_versions_from_1_2_on_get_as_far_as_the_certificate(self):
        for version in (ssl.TLSVersion.TLSv1_2, ssl.TLSVersion.TLSv1_3):
            with self.subTest(version):
                self.assertEqual(self.code_for(version), UNTRUSTED)


    def test_any_server_is_accepted_when_it_need_not_be_verified(self):
        with tempfile.TemporaryDirectory() as name:
            context = Authority(Path(name) / "authority", "nobody's").server_context(["other"])
            context.set_alpn_protocols(["h2", "http/1.1"])
            spoken = []

            def behave(connection, stopping):
                spoken.append(connection.selected_alpn_protocol())
                answer(200, b"text")(connection, stopping)
            with HttpService(behave, tls=context) as service:
                outcome = fetch("GET", f"https://localhost:{service.port}/", verify=0)
            self.assertEqual((outcome.code, outcome.body), (0, b"text"))
            self.assertNotIn("h2", spoken, "only HTTP/1.1 is offered")


class Connections(unittest.TestCase):
    def test_a_name_that_does_not_resolve(self):
        self.assertEqual(fetch("GET", "http://unknown.invalid/", probe=LOOKUP_PROBE).code,
                         COULD_NOT_RESOLVE_HOST)

    def test_a_port_where_nobody_listens(self):
        self.assertEqual(get(1).code, COULD_NOT_CONNECT)

    def test_other_protocols_are_refused(self):
        for url in ("file:///etc/hostname", "ftp://127.0.0.1/", "gopher://127.0.0.1/"):
            with self.subTest(url):
                outcome = fetch("GET", url)
                self.assertEqual((outcome.code, outcome.body), (UNSUPPORTED_PROTOCOL, b""))


class Proxies(unittest.TestCase):
    URL = "https://service.example/path"

    def through(self, credentials=None, tls=None, **options):
        """Sends one HTTPS request through a proxy to an untrusted server."""
        with tempfile.TemporaryDirectory() as folder, \
                HttpService(answer(200), tls=self.context(Path(folder))) as service, \
                ConnectProxy({"service.example:443": service.port}, credentials) as proxy:
            outcome = fetch("GET", self.URL, proxy="127.0.0.1", proxyPort=proxy.port, **options)
            self.assertEqual(service.received, [], "an untrusted server receives nothing")
            return outcome, proxy.connects

    @staticmethod
    def context(folder):
        return Authority(folder / "authority", "nobody's").server_context(["service.example"])

    def test_the_tunnel_is_asked_for_by_name_without_credentials(self):
        outcome, connects = self.through()
        self.assertEqual(outcome.code, UNTRUSTED)
        self.assertEqual([(c.target, c.authorization) for c in connects],
                         [("service.example:443", None)])

    def test_credentials_are_sent_with_the_first_request(self):
        outcome, connects = self.through(("ann", "p:w d"), proxyUser="ann",
                                         proxyPassword="p:w d")
        self.assertEqual(outcome.code, UNTRUSTED)
        self.assertEqual([c.accepted for c in connects], [True])

    def test_half_of_the_credentials_is_sent_too(self):
        for user, password in (("ann", ""), ("", "secret")):
            with self.subTest(user=user, password=password):
                _, connects = self.through(proxyUser=user, proxyPassword=password)
                token = base64.b64encode(f"{user}:{password}".encode()).decode()
                self.assertEqual([c.authorization for c in connects], [f"Basic {token}"])

    def test_a_wrong_password_ends_the_request(self):
        outcome, connects = self.through(("ann", "right"), proxyUser="ann", proxyPassword="wrong")
        self.assertEqual((outcome.code, outcome.status), (RECEIVE_ERROR, 0))
        self.assertEqual([c.accepted for c in connects], [False])

    def test_a_proxy_that_refuses_the_tunnel_ends_the_request(self):
        with ConnectProxy({}) as proxy:
            outcome = fetch("GET", self.URL, proxy="127.0.0.1", proxyPort=proxy.port)
        self.assertEqual((outcome.code, outcome.status), (RECEIVE_ERROR, 0))

    def test_proxy_exceptions_of_the_environment_are_ignored(self):
        with ConnectProxy({}) as proxy:
            outcome = fetch("GET", self.URL, proxy="127.0.0.1", proxyPort=proxy.port,
                            environment={"no_proxy": "*"})
            self.assertEqual(len(proxy.connects), 1)
        self.assertEqual(outcome.code, RECEIVE_ERROR)

    def test_the_lowest_and_the_highest_port_are_possible(self):
        for port in (1, 65535):
            with self.subTest(port):
                outcome = fetch("GET", self.URL, proxy="127.0.0.1", proxyPort=port)
                self.assertEqual(outcome.code, COULD_NOT_CONNECT)

    def test_impossible_ports_are_refused(self):
        for port in (0, -1, 65536):
            with self.subTest(port):
                outcome = fetch("GET", self.URL, proxy="127.0.0.1", proxyPort=port)
                self.assertEqual(outcome.code, BAD_ARGUMENT)


if __name__ == "__main__":
    unittest.main()
