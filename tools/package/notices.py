"""THIRD-PARTY-NOTICES.txt: what of others is in the program, and under which terms."""

import textwrap
from typing import List

from components import Component, Components

_INTRODUCTION = """\
Third-party software in Uninstall.exe {version} of the Tessera suite
{rule}

Uninstall.exe contains the software listed below. The complete texts of the
licences, with the names of the copyright holders, are in the folder "licences"
of this package; those named after a Debian package's software are its copyright
file as it is, which also describes parts that are not in this program.

"""

_QT = """\
Qt and your rights
------------------

This program contains Qt, which is Copyright (C) The Qt Company Ltd. and other
contributors, and is licensed under the GNU Lesser General Public License,
version 3 (licences/LGPL-3.0.txt, which adds to licences/GPL-3.0.txt). Qt is
linked statically. Its source is Debian's source package

    {source} {version}

with the patches in the archive named below. The package is on the mirrors of
Debian, where everybody can get it without charge
("apt-get source {source}={version}";
older versions stay at https://snapshot.debian.org/package/{source}/).

You may change Qt and put the changed Qt into this program. The object files that
this takes, the linker's command line, and the recipe and the patches that Qt was
built with are in
the archive Tessera-Uninstall-{release}-relink.zip, which is published
beside this package; its README.txt tells the three steps. Whoever passes this
package on passes that archive on too. The licence of this program allows
reverse engineering to debug such changes.
"""


def _paragraph(component: Component) -> str:
    title = component.name + (f" {component.version}" if component.version else "")
    lines = textwrap.wrap(title, 76, subsequent_indent="    ")
    lines.append(f"    licence: {component.licence}")
    lines.append("    text: " + ", ".join(f"licences/{name}" for name in component.texts))
    if component.source:
        lines.append("    source: Debian " + " ".join(component.source))
    return "\n".join(lines) + "\n"


def _section(title: str, components: List[Component]) -> str:
    return "\n".join([title, "-" * len(title), "",
                      *(_paragraph(component) for component in components)]) + "\n"


def overview(components: Components, version: str) -> str:
    linked = [component for component in components.all if component.inside is None]
    parts = [component for component in components.all if component.inside == "qt"]
    introduction = _INTRODUCTION.format(version=version, rule="=" * 68)
    source, source_version = components["qt"].source
    return (introduction + _section("Linked libraries", linked) +
            _section("Parts of Qt that others wrote", parts) +
            _QT.format(source=source, version=source_version, release=version))
