"""The applications of the sample suite.

Names and ids are from the suite's catalogue, except for UNKNOWN. Folders and behaviour are chosen so
that each application stands for one situation on a user's computer.
"""

from dataclasses import dataclass

# How an application's uninstaller behaves, see application.nsi.
WORKS = "works"
FAILS = "fails"
HOLDS = "holds"

# The code with which an uninstaller that fails ends.
FAILURE_CODE = 5


@dataclass(frozen=True)
class Application:
    number: int          # the catalogue's id; -1: not in the catalogue
    id_string: str
    display_name: str    # the row's text in the window
    folder: str          # below the brand's folder
    removal: str = WORKS
    stays: bool = False  # its uninstaller's first process runs until the removal has ended

    @property
    def process_name(self) -> str:
        return self.id_string + ".exe"


SUITE = Application(0, "Tessera", "Tessera Kit", "Tessera")
AWKWARD_FOLDER = Application(63, "BeatGrid", "Beat Grid", "Beat Grid – Groß & Größer 節拍")
CLIP_SAVER = Application(60, "ClipSaver", "Clip Saver 2026", "Clip Saver")
FAILING = Application(67, "CodecDoctor", "Codec Doctor", "Codec Doctor", FAILS, stays=True)
RUNNING = Application(62, "KaraokeStage", "Karaoke Stage", "Karaoke Stage")
DAMAGED = Application(68, "LightTable", "Light Table", "Light Table")
HOLDING = Application(59, "MediaVault", "Media Vault", "Media Vault", HOLDS, stays=True)
SLIDESHOW = Application(53, "PhotoStoryAndSlideshow", "Photo Story and Slideshow",
                        "Photo Story and Slideshow")
TRACK_SAVER = Application(61, "TrackSaver", "Track Saver 2026", "Track Saver")
PARTNER = Application(64, "VidaloDownloader", "Vidalo Downloader", "Vidalo Downloader")
SECOND_RUNNING = Application(39, "WaveTuner", "Wave Tuner", "Wave Tuner")
UNKNOWN = Application(-1, "ZebraPlayer", "Zebra Player", "Zebra Player")

ALL = (SUITE, AWKWARD_FOLDER, CLIP_SAVER, FAILING, RUNNING, DAMAGED, HOLDING, SLIDESHOW,
       TRACK_SAVER, PARTNER, SECOND_RUNNING, UNKNOWN)
