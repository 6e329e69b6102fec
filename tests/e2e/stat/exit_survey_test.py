"""Exit survey and store offer of the program: the events that the statistics service receives for
each reaction, and the store page that opens."""

import shutil
from pathlib import PureWindowsPath

from tests.e2e.stat.statistics_world import (SuiteWithServices, event_of, proxy_values,
                                             store_settings)
from tests.harness import layout, screen
from tests.harness.registry import Value
from tests.harness.screen import pressing
from tests.harness.suite import OFFER_TITLE, SURVEY_TITLE, WARNING_TITLE
from tests.harness.waiting import wait_until
from tests.sample_suite.applications import CLIP_SAVER, PARTNER, SECOND_RUNNING, TRACK_SAVER
from tests.services.http_service import answer

# Middles of the survey's answers and of the offer's button.
ANSWERS = {"license": (244, 87), "quality": (244, 137), "features": (244, 187)}
STORE_BUTTON = (279, 308)

VIDEO_OFFER = "offer_install_ms_store"
MUSIC_OFFER = "offer_install_ms_store_msldl"
VIDEO_ADDRESS = "ms-windows-store://pdp/?ProductId=XP9EXAMPLE0064&cid=lmc_uninstall"
MUSIC_ADDRESS = "ms-windows-store://pdp/?ProductId=XP9EXAMPLE0065&cid=lmc_uninstall"

STORE_HANDLER = "StoreHandler"
LAST_NUMBER = 7


# Reactions to the survey and to the offer that follows it.

def answering(name, react_to_offer):
    """Clicks an answer of the survey, then reacts to the offer that covers it."""
    def answer_survey(survey):
        survey.click(*ANSWERS[name])
        react_to_offer(screen.wait_for_window(OFFER_TITLE))
    return answer_survey


def skipping(react_to_offer):
    """Closes the survey by the title bar's key."""
    def skip_survey(survey):
        survey.press("alt+F4")
        react_to_offer(screen.wait_for_window(OFFER_TITLE))
    return skip_survey


def opening_the_store(offer):
    offer.click(*STORE_BUTTON)


escaping = pressing("Escape")
closing = pressing("alt+F4")


# Events, as (type, source).

SHOW = [("show", "uninstall_quiz")]


def surveyed(name, *offer_events):
    """An answer is reported twice, before and after the offer."""
    return [*SHOW, ("click", name), *offer_events, ("click", name)]


def skipped(*offer_events):
    return [*SHOW, *offer_events, ("click", "skip")]


def opened(offer):
    return [("show", offer), ("click", offer)]


def closed(offer):
    return [("show", offer), ("close", offer)]


class ExitSurvey(SuiteWithServices):
    """Each test removes both surveyed applications in one run, and then a running one. The warning
    about the latter stays open until the service has all events: the program drops queued events
    when it ends."""

    def take_store_addresses(self):
        handler = PureWindowsPath("C:/handler") / f"{STORE_HANDLER}.exe"
        target = self.prefix.unix_path(handler)
        target.parent.mkdir()
        shutil.copy(layout.ARGUMENT_RECORDER, target)
        # Wine looks for protocol handlers only in the machine's classes.
        classes = "HKEY_LOCAL_MACHINE\\Software\\Classes\\ms-windows-store"
        self.prefix.write_registry([
            Value(classes, "URL Protocol", ""),
            Value(f"{classes}\\shell\\open\\command", "", f'"{handler}" "%1"')])

    def check(self, reactions, expected, addresses=(), **settings):
        """Runs with one reaction for each survey; the service must receive exactly `expected`."""
        statistics = self.service(answer(200))
        suite = self.install([CLIP_SAVER, TRACK_SAVER, PARTNER, SECOND_RUNNING])
        self.take_store_addresses()
        self.start_application(suite, SECOND_RUNNING)
        store_settings(self.common_file,
                       {"EventStatEnabled": 1, "Language": "en", "Location": "NL",
                        **proxy_values(self.proxy(statistics)), **settings})
        store_settings(suite.settings_folder(CLIP_SAVER) / "ClipSaver.cfg",
                       {"EventNumber": LAST_NUMBER})

        program = self.start_program(suite, rows=4)
        for row in (0, 1, 3):
            program.main_window.toggle_row(row)
        program.main_window.press_uninstall()
        next_reaction = iter(reactions)

        def accept_warning(warning):
            statistics.wait_for(len(expected))
            warning.press("Return")
        titles = program.attend({SURVEY_TITLE: lambda survey: next(next_reaction)(survey),
                                 WARNING_TITLE: accept_warning})
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(titles, ["Uninstall Tessera Clip Saver", "Uninstall Tessera Track Saver",
                                  "Uninstallation"])

        events = [event_of(request) for request in statistics.wait_for(len(expected))]
        self.assertEqual([(event["event_type"], event["src"]) for event in events], expected)
        self.assertEqual([event["event_number"] for event in events],
                         [str(LAST_NUMBER + 1 + index) for index in range(len(expected))])
        wait_until(lambda: len(suite.records.runs(STORE_HANDLER)) >= len(addresses),
                   "a store page did not open")
        self.assertEqual([run.arguments for run in suite.records.runs(STORE_HANDLER)],
                         [[address] for address in addresses])
        messages = [message.text for message in suite.log()
                    if message.text.startswith("cross-sell")]
        self.assertEqual(messages, [
            f"cross-sell store app -> ProductId={address.split('=')[1].split('&')[0]}"
            for address in addresses])

    def test_answers_with_the_store_opened_and_the_offer_escaped(self):
        self.check([answering("license", opening_the_store),
                    answering("quality", escaping)],
                   surveyed("uninstall_quiz_license", *opened(VIDEO_OFFER))
                   + surveyed("uninstall_quiz_quality", *closed(VIDEO_OFFER)),
                   [VIDEO_ADDRESS])

    def test_the_third_answer_with_the_offer_closed_and_an_escape_without_events(self):
        self.check([answering("features", closing), pressing("Return", "Escape")],
                   surveyed("uninstall_quiz_features", *closed(VIDEO_OFFER)) + SHOW)

    def test_a_skip_leads_to_the_offer_without_a_close_event_of_the_survey(self):
        self.check([skipping(opening_the_store), skipping(escaping)],
                   skipped(*opened(VIDEO_OFFER)) + skipped(*closed(VIDEO_OFFER)),
                   [VIDEO_ADDRESS])

    def test_the_flag_of_an_application_brings_the_music_offer(self):
        self.check([answering("license", opening_the_store),
                    answering("license", opening_the_store)],
                   surveyed("uninstall_quiz_license", *opened(MUSIC_OFFER))
                   + surveyed("uninstall_quiz_license", *opened(VIDEO_OFFER)),
                   [MUSIC_ADDRESS, VIDEO_ADDRESS],
                   clsv_uninst_ms_msldl_enabled=1, trksv_uninst_ms_msldl_enabled=0)

    def test_the_other_application_has_a_flag_of_its_own(self):
        self.check([escaping, skipping(closing)],
                   SHOW + skipped(*closed(MUSIC_OFFER)),
                   clsv_uninst_ms_msldl_enabled="true", trksv_uninst_ms_msldl_enabled=1)
