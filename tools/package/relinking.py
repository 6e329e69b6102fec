"""The archive with which a user puts a changed Qt into the program (packaging/relink)."""

from pathlib import Path
from typing import Dict, List, Tuple

from archive import Archive
from build_tree import REPOSITORY, TOOLCHAIN_LIBRARIES, BuildTree
from components import Components
from problem import Problem

_TEMPLATE = REPOSITORY / "packaging" / "relink"
_SETUP = REPOSITORY / "tools" / "setup"
_QT_RECIPE = ["qt.sh", "common.sh", "recipes/qt.sh"]
_LINKER = REPOSITORY / "cmake" / "link"
_OBJECTS = (".obj", ".o", ".res", ".a")


def _collect(tree: BuildTree) -> Tuple[List[str], Dict[str, Path]]:
    """The linker's arguments for any place, and the object files by their names there."""
    arguments: List[str] = []
    objects: Dict[Path, str] = {}
    for argument in tree.link_arguments():
        path = tree.folder / argument
        if path.is_relative_to(_LINKER):
            arguments.append(f"link/{path.name}")
        elif argument.startswith("-") or not argument.endswith(_OBJECTS):
            arguments.append(argument)
        elif path.is_relative_to(tree.qt_prefix):
            arguments.append(f"@QT@/{path.relative_to(tree.qt_prefix)}")
        elif path.parent == TOOLCHAIN_LIBRARIES:
            # Not -l, which would find the same file by another path: the linker sorts imports by
            # path, and another order is another program.
            arguments.append(f"@COMPILER@/{path.name}")
        elif path.is_relative_to(tree.folder) or path.is_relative_to(tree.curl_prefix):
            # Numbered: names alone may meet.
            name = objects.setdefault(path, f"objects/{len(objects) + 1:02}-{path.name}")
            arguments.append(name)
        else:
            raise Problem(f"{argument} is linked from outside the build and the set-up's libraries")
    strangers = [argument for argument in arguments if "/" in argument
                 and not argument.startswith(("@QT@/", "@COMPILER@/", "objects/", "link/"))]
    if strangers:
        raise Problem(f"the linker's arguments hold paths of this machine: {strangers}")
    return arguments, {name: path for path, name in objects.items()}


def pack(tree: BuildTree, components: Components, date: int) -> Archive:
    arguments, objects = _collect(tree)
    name = f"Tessera-Uninstall-{tree.version}-relink"
    archive = Archive(f"{name}.zip", name, date)
    readme = (_TEMPLATE / "README.txt").read_text(encoding="utf-8")
    source, version = components["qt"].source
    archive.add_text("README.txt", readme.replace("@QT_SOURCE@", source)
                     .replace("@QT_VERSION@", version))
    archive.add_text("LICENSE.txt", (REPOSITORY / "LICENSE").read_text(encoding="utf-8"))
    archive.add_file("relink.sh", _TEMPLATE / "relink.sh", executable=True)
    archive.add_bytes("arguments.txt", "".join(f"{line}\n" for line in arguments).encode())
    for file in _QT_RECIPE:
        archive.add_file(f"qt/{file}", _SETUP / file, executable=file == "qt.sh")
    for patch in sorted((_SETUP / "patches" / "qt").glob("*.patch")):
        archive.add_file(f"qt/patches/qt/{patch.name}", patch)
    for script in sorted(_LINKER.glob("*.py")):
        archive.add_file(f"link/{script.name}", script, executable=script.name == "lld.py")
    for object_name, path in objects.items():
        archive.add_file(object_name, path)
    return archive
