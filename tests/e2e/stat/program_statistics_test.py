"""The statistics of the program while a surveyed application is removed."""

import threading

from tests.e2e.stat.statistics_world import (GUID, SuiteWithServices, event_of, proxy_values,
                                             store_settings, stored_settings)
from tests.harness import screen
from tests.harness.suite import OFFER_TITLE, SURVEY_TITLE, WARNING_TITLE
from tests.sample_suite.applications import CLIP_SAVER, PARTNER, SECOND_RUNNING, TRACK_SAVER
from tests.services.http_service import answer, held


def skip_and_decline(survey):
    """Closing the survey shows the offer; the survey closes after it."""
    survey.press("alt+F4")
    screen.wait_for_window(OFFER_TITLE).press("Escape")


class ProgramStatistics(SuiteWithServices):

    def application_file(self, application):
        return self.prefix.unix_path(
            self.prefix.settings / application.id_string / f"{application.id_string}.cfg")

    def test_a_first_removal_reports_survey_and_offer(self):
        geo = self.service(answer(200, b"NL"))
        statistics = self.service(answer(200))
        proxy = self.proxy(statistics, geo, ("ann", "secret"))
        suite = self.install([CLIP_SAVER, TRACK_SAVER, PARTNER, SECOND_RUNNING])
        # Its warning stays open until every event has been sent: the program drops queued events
        # when it ends.
        self.start_application(suite, SECOND_RUNNING)
        store_settings(self.common_file, {"EventStatEnabled": 1, "Language": "en",
                                          **proxy_values(proxy, "ann", "secret")})
        installed = {"AdvType": "search", "CampType": "spring", "EventNumber": 41,
                     "InstChannel": "web", "InstRef": "http://x/?a=b", "InstType": "full",
                     "TCBuildNum": "77", "Version": "4.2.0.17"}
        store_settings(self.application_file(CLIP_SAVER), installed)
        # The second surveyed application does not restart the statistics.
        store_settings(self.application_file(TRACK_SAVER), {"EventNumber": 500, "Version": "9"})

        program = self.start_program(suite, rows=4)
        for row in (0, 1, 3):
            program.main_window.toggle_row(row)
        program.main_window.press_uninstall()

        def accept_warning(warning):
            statistics.wait_for(8)
            warning.press("Return")
        windows = program.attend({SURVEY_TITLE: skip_and_decline, WARNING_TITLE: accept_warning})
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(windows, ["Uninstall Tessera Clip Saver",
                                   "Uninstall Tessera Track Saver", "Uninstallation"])

        common = stored_settings(self.common_file)
        self.assertRegex(common["ClientGuid"], GUID)
        self.assertEqual(common["Location"], "NL")
        self.assertEqual([c.target for c in proxy.connects if not c.accepted], [])
        self.assertEqual(len(geo.received), 1)
        events = [event_of(request) for request in statistics.wait_for(8)]
        one_survey = [("show", "uninstall_quiz"), ("show", "offer_install_ms_store"),
                      ("close", "offer_install_ms_store"), ("click", "skip")]
        self.assertEqual([(event["event_type"], event["src"]) for event in events],
                         one_survey * 2)
        self.assertEqual([event["event_number"] for event in events],
                         [str(number) for number in range(42, 50)])
        for event in events:
            self.assertEqual({member: event[member] for member in (
                "guid", "country_id", "pid", "adv_type", "camp_type", "appid", "ver", "info_type",
                "info", "inst_type", "inst_ch", "inst_ref", "test", "tc_build_num",
                "product_name", "id_lmc_keys")}, {
                    "guid": common["ClientGuid"], "country_id": common["Location"], "pid": "",
                    "adv_type": installed["AdvType"], "camp_type": installed["CampType"],
                    "appid": "clsv", "ver": installed["Version"], "info_type": "", "info": "",
                    "inst_type": installed["InstType"], "inst_ch": installed["InstChannel"],
                    "inst_ref": installed["InstRef"], "test": "0",
                    "tc_build_num": installed["TCBuildNum"], "product_name": "",
                    "id_lmc_keys": ""})

    def test_the_dialogs_do_not_wait_for_the_service(self):
        answered = threading.Event()
        statistics = self.service(held(answered, answer(200)))
        suite = self.install([CLIP_SAVER, PARTNER])
        store_settings(self.common_file, {"EventStatEnabled": 1, "Location": "NL",
                                          **proxy_values(self.proxy(statistics))})
        store_settings(self.application_file(CLIP_SAVER), {"EventNumber": 41})
        program = self.start_program(suite, rows=2)
        program.main_window.toggle_row(0)
        program.main_window.press_uninstall()
        survey = screen.wait_for_window(SURVEY_TITLE)
        statistics.wait_for(1)
        survey.press("alt+F4")
        offer = screen.wait_for_window(OFFER_TITLE)
        # The service has seen only the first event so far, perhaps twice.
        self.assertEqual({event_of(request)["event_number"] for request in statistics.received},
                         {"42"})
        answered.set()
        offer.press("Escape")
        self.assertEqual(program.exit_code(), 0)

    def test_the_window_stays_responsive_while_the_country_is_awaited(self):
        answered = threading.Event()
        geo = self.service(held(answered, answer(200, b"NL")))
        suite = self.install([CLIP_SAVER, PARTNER])
        store_settings(self.common_file, proxy_values(self.proxy(geo=geo)))
        program = self.start_program(suite, rows=2)
        program.main_window.toggle_row(0)
        program.main_window.press_uninstall()
        geo.wait_for(1)

        # The first copy's window answers a second start.
        self.prefix.run(self.prefix.unix_path(suite.program_folder) / "Uninstall.exe")
        # Clicks have no effect.
        program.main_window.press_select_button()
        program.main_window.settled_picture()
        self.assertEqual(program.main_window.checked_rows(), [True, False])
        self.assertEqual(screen.find_windows(SURVEY_TITLE), [])
        answered.set()

        self.assertEqual(program.press_escape_on_surveys(), ["Uninstall Tessera Clip Saver"])
        self.assertEqual(program.exit_code(), 0)
        self.assert_untouched(suite, PARTNER)
        # The look-up was not over before its answer, so nothing above waited for its end.
        self.assertEqual(stored_settings(self.common_file).get("Location"), "NL")
