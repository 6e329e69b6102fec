"""The program's statistics against a real HTTPS service behind a real proxy, under Wine."""

import tempfile
import time
from pathlib import Path

from tests.e2e.stat.statistics_world import (GEO_HOST, GUID, STATISTICS_HOST, LogLine,
                                             StatisticsCase, event_of, proxy_values)
from tests.services.certificates import Authority
from tests.services.http_service import (HttpService, answer, declared_size, header_names,
                                         reset_after_headers, reset_before_headers, slow_drip,
                                         stall, truncated)

DELIVERED = LogLine(7, "AppEventStat", "ui/common/stat/app_event_stat:71", "stats::sendEvent: ok")
LOOKUP_FAILED = LogLine(3, "MainForm", "ui/uninstall/src/widget:160",
                        "getOrCreateUserLocation | dlutil_getUserLocation returned error")
POST_TIMEOUT = 10
LOOKUP_TIMEOUT = 15
# Seconds that a timer may end early, that a busy machine may add to a time-out, and that queueing an
# event may take.
TIMER_SLACK = 0.1
TIMEOUT_SLACK = 4.0
QUEUEING_LIMIT = 2.0
BIG = 50 * 1024 * 1024


def transport_error(code):
    return LogLine(7, "AppEventStat", "ui/common/stat/app_event_stat:68",
                   f"stats::sendEvent: curl {code}")


def rejected(status, body):
    return LogLine(3, "AppEventStat", "ui/common/stat/app_event_stat:65",
                   f"stats::sendEvent rejected: http {status} | {body}")


def looked_up(country):
    return LogLine(6, "MainForm", "ui/uninstall/src/widget:164",
                   f"getOrCreateUserLocation | {country}")


class Wire(StatisticsCase):
    """The requests that are sent, and the settings that are stored."""

    def test_every_field_arrives_as_it_is_stored(self):
        geo = self.service(answer(200, b"never asked"))
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics, geo)
        self.store_common(ClientGuid="0123-guid", EventStatEnabled=1, Location="DE",
                          Language="\u65e5\u672c", **proxy_values(proxy))
        self.store_application("ClipSaver", AdvType="adv t\u00fcpe", CampType="50% [off]",
                               EventNumber=7, InstChannel="chan+nel", InstRef="http://x/?a=b;c",
                               InstType="(type)", TCBuildNum="99", Version="1.2.3.4")
        driver = self.driver()
        driver.start()
        self.assertEqual(driver.post("uninstall_quiz")[0], 8)
        [request] = statistics.received
        self.assertEqual((request.method, request.target), ("POST", "/AddEventJSONString.php"))
        headers = header_names(request)
        self.assertEqual(set(headers), {"host", "accept", "content-type", "content-length"})
        self.assertEqual(headers["host"], STATISTICS_HOST)
        self.assertEqual(headers["content-type"], "application/x-www-form-urlencoded")
        event = event_of(request)
        self.assertEqual(list(event.items()), [
            ("guid", "0123-guid"), ("country_id", "DE"), ("pid", ""),
            ("adv_type", "adv t\u00fcpe"), ("camp_type", "50% [off]"), ("appid", "clsv"),
            ("ver", "1.2.3.4"), ("event_type", "click"), ("event_number", "8"),
            ("src", "uninstall_quiz"), ("info_type", ""), ("info", ""), ("inst_type", "(type)"),
            ("inst_ch", "chan+nel"), ("inst_ref", "http://x/?a=b;c"), ("test", "0"),
            ("tc_build_num", "99"), ("product_name", ""), ("id_lmc_keys", "")])
        self.assertEqual(geo.received, [])
        self.assertEqual(self.log(), [DELIVERED])

    def test_a_first_run_creates_guid_and_country(self):
        geo = self.service(answer(200, b"DE"))
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics, geo, ("ann", "se:cret word"))
        self.store_common(EventStatEnabled=1,
                          **proxy_values(proxy, "ann", "se:cret word"))
        driver = self.driver()
        driver.start(61)
        driver.post("first")
        [lookup] = geo.received
        self.assertEqual((lookup.method, lookup.target, lookup.body),
                         ("GET", "/?instType=country", b""))
        self.assertEqual(header_names(lookup), {"host": GEO_HOST, "accept": "*/*"})
        common = self.stored_common()
        self.assertRegex(common["ClientGuid"], GUID)
        self.assertEqual(common["Location"], "DE")
        event = event_of(statistics.received[0])
        self.assertEqual(event["guid"], common["ClientGuid"])
        self.assertEqual(event["country_id"], "DE")
        self.assertEqual(event["appid"], "trksv")
        self.assertEqual(event["ver"], "0.0.0.0")
        self.assertEqual(event["event_number"], "1")
        self.assertEqual([c.accepted for c in proxy.connects], [True, True],
                         "the credentials come with the first request")
        self.assertEqual(self.log(), [looked_up("DE"), DELIVERED])
        driver.end()

        again = self.driver()
        again.start(61)
        again.post("second")
        self.assertEqual(event_of(statistics.received[1])["guid"], common["ClientGuid"])
        self.assertEqual(self.stored_common(), common)
        self.assertEqual(len(geo.received), 1)

    def test_nothing_is_sent_while_statistics_are_off(self):
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics)
        self.store_common(Location="DE", **proxy_values(proxy))
        driver = self.driver()
        driver.start()
        self.assertEqual(driver.post("x")[0], 0)
        self.assertEqual(proxy.connects, [])
        self.assertEqual(self.log(), [])

    def test_the_debug_switches_mark_the_event(self):
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics)
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE",
                          **proxy_values(proxy))
        self.store_application("ClipSaver", AdvType="adv")
        driver = self.driver({"CV_DEBUG": "1", "SET_TEST_STAT_HOST": "1"})
        driver.start()
        driver.post("x")
        event = event_of(statistics.received[0])
        self.assertEqual((event["adv_type"], event["test"]), ("adv_DBG", "1"))

    def test_events_arrive_one_by_one_in_order(self):
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics)
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE",
                          **proxy_values(proxy))
        self.store_application("ClipSaver", EventNumber="not a number")
        driver = self.driver()
        driver.start()
        for index in range(30):
            driver.send(f"name{index}")
        events = [event_of(request) for request in statistics.wait_for(30)]
        self.assertEqual([(e["event_number"], e["src"]) for e in events],
                         [(str(index + 1), f"name{index}") for index in range(30)])

    def test_of_two_first_runs_the_last_to_save_wins_and_no_key_is_lost(self):
        geo = self.service(answer(200, b"DE"), answer(200, b"NL"))
        proxy = self.proxy(geo=geo)
        keys = {f"Key{index:02}": "x" * 40 for index in range(40)}
        self.store_common(**keys, **proxy_values(proxy))
        one, other = self.driver(), self.driver()
        # Both have read the file before either writes it.
        self.assertEqual([one.ask("reread"), other.ask("reread")], ["- -", "- -"])
        one.start(60)
        first = one.ask("reread")
        other.start(61)
        last = other.ask("reread")
        self.assertNotEqual(first, last)
        guid, country = last.split()
        self.assertRegex(guid, GUID)
        self.assertEqual(country, "NL")
        common = self.stored_common()
        self.assertEqual({key: common.get(key) for key in keys}, keys)
        self.assertEqual((common.get("ClientGuid"), common.get("Location")), (guid, country))


class Failures(StatisticsCase):
    """Failures of services and network, and their messages in the log."""

    statistics = None

    def prepare(self, *behaviours, tls=None, credentials=None, password=""):
        self.statistics = self.service(*behaviours, tls=tls)
        proxy = self.proxy(self.statistics, credentials=credentials)
        user = "ann" if password else ""
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE",
                          **proxy_values(proxy, user, password))
        driver = self.driver()
        driver.start()
        return driver

    def check(self, driver, requests, *lines):
        number, seconds = driver.post("x")
        self.assertEqual(number, 1)
        self.assertLess(seconds, POST_TIMEOUT)
        self.assertEqual(self.log(), list(lines))
        self.assertEqual(len(self.statistics.received) if self.statistics else 0, requests)

    def test_status_200(self):
        self.check(self.prepare(answer(200, b"fine")), 1, DELIVERED)

    def test_status_204(self):
        self.check(self.prepare(answer(204)), 1, DELIVERED)

    def test_status_301_is_not_followed(self):
        self.check(self.prepare(answer(301, b"", "Location: /elsewhere")), 1, DELIVERED)

    def test_status_404_with_a_body(self):
        self.check(self.prepare(answer(404, b"no such page")), 2, rejected(404, "no such page"))

    def test_status_500_then_200(self):
        self.check(self.prepare(answer(500, b"once"), answer(200)), 2)

    def test_status_503_twice(self):
        self.check(self.prepare(answer(503, b"first"), answer(503, b"second")), 2,
                   rejected(503, "second"))

    def test_status_503_then_a_reset(self):
        self.check(self.prepare(answer(503, b"first"), reset_before_headers), 2)

    def test_an_answer_of_50_megabytes(self):
        self.check(self.prepare(declared_size(BIG)), 1, transport_error(63))

    def test_a_truncated_answer(self):
        self.check(self.prepare(truncated), 1, transport_error(56))

    def test_a_reset_before_the_headers(self):
        self.check(self.prepare(reset_before_headers), 1, transport_error(56))

    def test_a_reset_after_the_headers(self):
        self.check(self.prepare(reset_after_headers), 1, transport_error(56))

    def test_an_untrusted_certificate(self):
        with tempfile.TemporaryDirectory() as folder:
            stranger = Authority(Path(folder) / "stranger", "A stranger")
            self.check(self.prepare(answer(200), tls=stranger.server_context([STATISTICS_HOST])),
                       0, transport_error(60))

    def test_an_expired_certificate(self):
        expired = self.authority.server_context([STATISTICS_HOST],
                                                ("20200101000000Z", "20200201000000Z"))
        # libcurl has no specific code for Schannel's error of an expired certificate.
        self.check(self.prepare(answer(200), tls=expired), 0, transport_error(35))

    def test_a_certificate_for_another_host(self):
        other = self.authority.server_context(["other.example"])
        self.check(self.prepare(answer(200), tls=other), 0, transport_error(60))

    def test_a_silent_list_of_revoked_certificates_is_not_waited_for(self):
        lists = self.enterContext(HttpService(stall))
        tls = self.authority.server_context(
            [STATISTICS_HOST], revocation_list=f"http://127.0.0.1:{lists.port}/list.crl")
        self.check(self.prepare(answer(200), tls=tls), 1, DELIVERED)
        self.assertEqual(lists.received, [])

    def test_a_wrong_proxy_password(self):
        driver = self.prepare(answer(200), credentials=("ann", "right"), password="wrong")
        self.check(driver, 0, transport_error(56))

    def test_a_host_that_does_not_resolve(self):
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE")
        driver = self.driver()
        driver.start()
        self.assertEqual(driver.ask("offline"), "1")
        self.check(driver, 0, transport_error(6))

    def test_a_connection_that_is_refused(self):
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE", ProxyType=1,
                          ProxyAddress="127.0.0.1", ProxyPort=1)
        driver = self.driver()
        driver.start()
        self.check(driver, 0, transport_error(7))

    def test_a_country_from_a_404(self):
        geo = self.service(answer(404, b"nowhere"))
        self.store_common(**proxy_values(self.proxy(geo=geo)))
        self.driver().start()
        self.assertEqual(self.stored_common()["Location"], "nowhere")
        self.assertEqual(self.log(), [looked_up("nowhere")])

    def test_an_empty_country(self):
        geo = self.service(answer(200))
        self.store_common(**proxy_values(self.proxy(geo=geo)))
        self.driver().start()
        self.assertNotIn("Location", self.stored_common())
        self.assertEqual(self.log(), [LOOKUP_FAILED])

    def test_a_country_without_a_network(self):
        self.store_common(Language="de")
        self.driver().start()
        common = self.stored_common()
        self.assertRegex(common.pop("ClientGuid"), GUID)
        self.assertEqual(common, {"Language": "de"})
        self.assertEqual(self.log(), [LOOKUP_FAILED])


class Patience(StatisticsCase):
    """Servers that do not answer in time."""

    def start(self, behaviour):
        self.statistics = self.service(behaviour)
        proxy = self.proxy(self.statistics)
        self.store_common(ClientGuid="g", EventStatEnabled=1, Location="DE",
                          **proxy_values(proxy))
        driver = self.driver()
        driver.start()
        return driver

    def check_bound(self, seconds, timeout):
        self.assertGreater(seconds, timeout - TIMER_SLACK)
        self.assertLess(seconds, timeout + TIMEOUT_SLACK)

    def test_a_silent_service_costs_a_background_post_its_timeout(self):
        driver = self.start(stall)
        begun = time.monotonic()
        for index in range(3):
            number, seconds = driver.send("x")
            self.assertEqual(number, index + 1)
            self.assertLess(seconds, QUEUEING_LIMIT, "the caller does not wait")
        self.statistics.wait_for(2)
        self.check_bound(time.monotonic() - begun, POST_TIMEOUT)
        self.assertIn(transport_error(28), self.log())

    def test_a_dripping_service_costs_its_timeout(self):
        driver = self.start(slow_drip())
        self.check_bound(driver.post("x")[1], POST_TIMEOUT)
        self.assertEqual(self.log(), [transport_error(28)])

    def test_the_exit_waits_only_for_the_post_in_flight(self):
        driver = self.start(stall)
        for _ in range(101):
            driver.send("x")
        self.statistics.wait_for(1)
        begun = time.monotonic()
        driver.end()
        self.assertLess(time.monotonic() - begun, POST_TIMEOUT + TIMEOUT_SLACK)
        self.assertEqual(len(self.statistics.received), 1)
        self.assertEqual(self.log(), [transport_error(28)])

    def test_a_silent_geo_service_costs_the_startup_its_timeout(self):
        geo = self.service(stall)
        self.store_common(**proxy_values(self.proxy(geo=geo)))
        self.check_bound(self.driver().start() / 1000, LOOKUP_TIMEOUT)
        self.assertEqual(self.log(), [LOOKUP_FAILED])
