"""The archive for relinking the program with a changed Qt (packaging/relink)."""

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
    """The linker's arguments with paths inside the archive, and the files by those paths."""
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
            # path, so the program would differ.
            arguments.append(f"@COMPILER@/{path.name}")
        elif path.is_relative_to(tree.folder) or path.is_relative_to(tree.curl_prefix):
            # Numbered, since files in different folders may have the same name.
            name = objects.setdefault(path, f"objects/{len(objects) + 1:02}-{path.name}")
            arguments.append(name)
        else:
            raise Problem(f"{argument} belongs neither to the build nor to the set-up's libraries")
    local_paths = [argument for argument in arguments if "/" in argument
                   and not argument.startswith(("@QT@/", "@COMPILER@/", "objects/", "link/"))]
    if local_paths:
        raise Problem(f"the linker's arguments hold paths of this machine: {local_paths}")
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
