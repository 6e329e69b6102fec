"""Computers with applications installed. Their installers run once; tests get copies of the result."""

import functools
import subprocess
import tempfile
from pathlib import Path
from typing import Optional, Sequence

from tests.harness import layout
from tests.harness.prefix import Prefix
from tests.sample_suite.applications import Application


def run_installer(prefix: Prefix, application: Application, brand: str) -> None:
    prefix.run(layout.INSTALLERS / f"{application.id_string}_setup.exe", "/S", f"/BRAND={brand}")


@functools.lru_cache(maxsize=None)
def _wine_template() -> Path:
    """Its name changes whenever its contents do."""
    command = [layout.REPOSITORY / "tools" / "setup" / "wine_template.sh", "--print-prefix"]
    return Path(subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout.strip())


def with_installed(chosen: Sequence[Application], brand: str) -> Optional[Path]:
    """A prefix to copy, on which only these installers ran, in this order; None without any. The
    build of the installers removes all that older ones left here."""
    if not chosen:
        return None
    made = layout.COMPUTERS / "-".join(
        [_wine_template().parent.name, brand, *(application.id_string for application in chosen)])
    if not made.exists():
        layout.COMPUTERS.mkdir(exist_ok=True)
        with tempfile.TemporaryDirectory(prefix="making-", dir=layout.COMPUTERS) as folder:
            prefix = Prefix(Path(folder) / "prefix")
            try:
                for application in chosen:
                    run_installer(prefix, application, brand)
            finally:
                prefix.end()
            try:
                prefix.folder.rename(made)
            except OSError:
                assert made.exists()  # another test has made it meanwhile
    return made
