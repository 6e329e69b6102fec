"""Computers with applications installed. Their installers run once; tests get copies of the result."""

import functools
import subprocess
import tempfile
from pathlib import Path
from typing import Sequence

from tests.harness import layout
from tests.harness.prefix import Prefix
from tests.sample_suite.applications import Application


def run_installer(prefix: Prefix, application: Application, brand: str) -> None:
    prefix.run(layout.INSTALLERS / f"{application.id_string}_setup.exe", "/S", f"/BRAND={brand}")


@functools.lru_cache(maxsize=None)
def _empty_computer() -> Path:
    """The Wine template. Its name changes whenever its contents do."""
    command = [layout.REPOSITORY / "tools" / "setup" / "wine_template.sh", "--print-prefix"]
    return Path(subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout.strip())


def with_installed(chosen: Sequence[Application], brand: str) -> Path:
    """A prefix to copy, on which only these installers ran, in this order. The build of the
    installers removes all that older ones left here."""
    if not chosen:
        return _empty_computer()
    made = layout.COMPUTERS / "-".join(
        [_empty_computer().parent.name, brand, *(application.id_string for application in chosen)])
    if not made.exists():
        layout.COMPUTERS.mkdir(exist_ok=True)
        with tempfile.TemporaryDirectory(prefix="making-", dir=layout.COMPUTERS) as folder:
            prefix = Prefix(Path(folder) / "prefix")
            for application in chosen:
                run_installer(prefix, application, brand)
            prefix.end()
            try:
                prefix.folder.rename(made)
            except OSError:
                assert made.exists()  # another test has made it meanwhile
    return made
