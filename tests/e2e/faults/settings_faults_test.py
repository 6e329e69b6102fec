"""Settings that cannot be written. The program writes common.cfg only when the first survey of a run
stores the country and then the identity. The tests cause each fault in the answer of the country
service, just before the program saves."""

import ctypes
import os
import resource
import subprocess
import sys

from tests.e2e.stat.statistics_world import (GUID, SuiteWithServices, event_of, proxy_values,
                                             store_settings)
from tests.harness import processes
from tests.harness.suite import DETAILED_LOG, SURVEY_TITLE
from tests.sample_suite.applications import CLIP_SAVER, PARTNER
from tests.services.http_service import answer

WITHOUT_LOG = {"KEELBASE_LOG_LEVEL": "0"}
SAVES = 2  # the country, the identity

READ_ONLY_FOLDER, READ_ONLY_FILE = 0o555, 0o444
FOLDER, FILE = 0o755, 0o644

PR_CAPBSET_DROP = 24
CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH = 1, 2


def setUpModule():
    """Drops capabilities, so that file modes also bind processes that root starts from here on."""
    if os.geteuid() == 0:
        libc = ctypes.CDLL(None, use_errno=True)
        for capability in (CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH):
            if libc.prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) != 0:
                raise OSError(ctypes.get_errno(), "a capability cannot be dropped")


class SettingsFaults(SuiteWithServices):

    def setUp(self):
        super().setUp()
        self.settings = self.prefix.unix_path(self.prefix.settings)

    def install_with_services(self, country=answer(200, b"NL"), **settings):
        """Installs Clip Saver, which has a survey, and another application. `country` answers the
        request for the country."""
        self.geo = self.service(country)
        self.statistics = self.service(answer(200))
        self.suite = self.install([CLIP_SAVER, PARTNER])
        store_settings(self.common_file, {"EventStatEnabled": 1, "Language": "en", **settings,
                                          **proxy_values(self.proxy(self.statistics, self.geo))})

    def start(self, environment, row=0):
        program = self.start_program(self.suite, rows=2, environment=environment)
        program.main_window.toggle_row(row)
        program.main_window.press_uninstall()
        return program

    def remove_clip_saver(self, events=1):
        """Returns the last of `events` events. The survey stays until the service has them: the
        program drops queued events when it ends."""
        program = self.start(DETAILED_LOG)

        def decline(survey):
            self.statistics.wait_for(events)
            survey.press("Escape")
        self.assertEqual(program.attend({SURVEY_TITLE: decline}), ["Uninstall Tessera Clip Saver"])
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(len(self.statistics.received), events)
        return event_of(self.statistics.received[-1]) if events else None

    def remove_partner(self):
        self.assertEqual(self.start(DETAILED_LOG, row=1).exit_code(), 0)
        self.assert_ran(PARTNER)

    def assert_ran(self, application):
        """Only this application was removed."""
        self.assert_ran_selectively(self.suite, application)
        for other in {CLIP_SAVER, PARTNER} - {application}:
            self.assert_untouched(self.suite, other)

    def assert_sent_identity(self, event):
        """The run used the identity and the country that could not be stored."""
        self.assertRegex(event["guid"], GUID)
        self.assertEqual(event["country_id"], "NL")

    def failures(self):
        """The log's messages about files."""
        return [message.text for message in self.suite.log()
                if message.source == "ui/common/sys/file_io"]

    def write_protect(self, *items):
        for item in items:
            item.chmod(READ_ONLY_FOLDER if item.is_dir() else READ_ONLY_FILE)
            self.addCleanup(item.chmod, FOLDER if item.is_dir() else FILE)
        for item in items:
            probe = f"open({str(item / 'probe' if item.is_dir() else item)!r}, 'ab')"
            refused = subprocess.run([sys.executable, "-c", probe], check=False,
                                     stderr=subprocess.DEVNULL)
            self.assertNotEqual(refused.returncode, 0, f"{item} can still be written")

    def test_in_a_read_only_folder_stay_unchanged(self):
        self.install_with_services()
        before = self.common_file.read_bytes()
        self.write_protect(self.settings, self.common_file)
        self.assert_sent_identity(self.remove_clip_saver())
        self.assert_ran(CLIP_SAVER)
        self.assertEqual(self.common_file.read_bytes(), before)
        self.assertEqual(self.failures(), ["CreateFileW failed: 5 (Access denied.)"] * SAVES)

    def test_and_log_folder_that_are_read_only_do_not_affect_the_run(self):
        self.install_with_services()
        logs = self.settings / "logs"
        before = self.common_file.read_bytes()
        self.write_protect(self.settings, self.common_file, logs)
        self.assert_sent_identity(self.remove_clip_saver())
        self.assert_ran(CLIP_SAVER)
        self.assertEqual(self.common_file.read_bytes(), before)
        self.assertEqual(list(logs.iterdir()), [])

    def test_that_vanish_from_a_read_only_folder_are_not_recreated(self):
        def remove(connection, stopping):
            self.common_file.unlink()
            self.write_protect(self.settings)
            answer(200, b"NL")(connection, stopping)
        self.install_with_services(remove)
        # The merge with the missing file drops all unsaved settings, including "statistics on".
        self.remove_clip_saver(events=0)
        self.assert_ran(CLIP_SAVER)
        self.assertFalse(self.common_file.exists())
        self.assertEqual(self.failures(), ["CreateFileW failed: 5 (Access denied.)"] * SAVES)

    def test_on_a_full_disk_do_not_affect_the_run(self):
        def fill_disk(connection, stopping):
            # The device can be opened, reads as empty, and refuses every write.
            self.common_file.unlink()
            self.common_file.symlink_to("/dev/full")
            answer(200, b"NL")(connection, stopping)
        self.install_with_services(fill_disk)
        # The settings now read as empty, which switches the statistics off.
        self.remove_clip_saver(events=0)
        self.assert_ran(CLIP_SAVER)
        self.assertEqual(self.failures(), ["WriteFile failed: 112 (Disk full.)"] * SAVES)

    def test_do_not_suffer_from_a_full_disk_of_the_log(self):
        self.install_with_services()
        (self.settings / "logs" / "Uninstall.log").symlink_to("/dev/full")
        self.assert_sent_identity(self.remove_clip_saver())
        self.assert_ran(CLIP_SAVER)

    def install_for_an_end_in_the_save(self, **settings):
        """Prepares the system to end the program in its first save, at byte `file_limit`. The limit
        applies to every file, so the program must run without a log."""
        def limit_files(connection, stopping):
            program = self.suite.program_folder / "Uninstall.exe"
            for process in processes.find(self.prefix, program):
                _, most = resource.prlimit(process, resource.RLIMIT_FSIZE)
                resource.prlimit(process, resource.RLIMIT_FSIZE, (self.file_limit, most))
            answer(200, b"NL")(connection, stopping)
        self.install_with_services(limit_files, **settings)

    def end_in_the_save(self, file_limit):
        self.file_limit = file_limit
        program = self.start(WITHOUT_LOG)
        self.geo.wait_for(1)
        program.exit_code()  # its value means nothing: the system ended the process
        self.assertEqual(self.suite.records.recorded(), [])

    def test_are_empty_after_an_end_between_emptying_and_writing(self):
        self.install_for_an_end_in_the_save()
        self.end_in_the_save(0)
        self.assertEqual(self.common_file.read_bytes(), b"")
        # The next start works without them.
        self.remove_partner()
        self.assertEqual(self.common_file.read_bytes(), b"")

    def test_cut_off_by_an_end_while_writing_keep_their_complete_lines(self):
        self.install_for_an_end_in_the_save(Zoom="150")
        lines = [*self.common_file.read_bytes().splitlines(keepends=True), b"Location=NL\n"]
        torn = b"".join(sorted(line for line in lines if not line.endswith(b"=\n")))[:-2]
        self.end_in_the_save(len(torn))
        self.assertEqual(self.common_file.read_bytes(), torn)

        event = self.remove_clip_saver()
        self.assert_sent_identity(event)
        self.assert_ran(CLIP_SAVER)
        self.assertEqual(len(self.geo.received), 1)
        # The incomplete line is kept as an ordinary one.
        guid = f"ClientGuid={event['guid']}\n".encode()
        self.assertEqual(self.common_file.read_bytes(), guid + torn + b"\n")
