"""The list of components as CycloneDX JSON, for scanners of known vulnerabilities."""

import json
import time
import uuid
from pathlib import Path
from urllib.parse import quote

from archive import sha256_of
from build_tree import BuildTree
from components import Component, Components

# The UUID namespace of this program: the same contents always get the same serial number.
_NAMESPACE = uuid.uuid5(uuid.NAMESPACE_URL, "urn:tessera:uninstall")


def _hashes(content: bytes) -> list:
    return [{"alg": "SHA-256", "content": sha256_of(content)}]


def _headers_sum(folder: Path) -> str:
    """The sum of a list of all headers' names and sums, sorted by name."""
    lines = [f"{sha256_of(file.read_bytes())}  {file.relative_to(folder).as_posix()}\n"
             for file in sorted(folder.rglob("*")) if file.is_file()]
    return sha256_of("".join(lines).encode())


def _licence(component: Component) -> list:
    if component.licence == "Public domain":
        return [{"license": {"name": component.licence}}]
    if " " in component.licence:
        return [{"expression": component.licence}]
    return [{"license": {"id": component.licence}}]


def _entry(component: Component) -> dict:
    entry = {"type": "library", "bom-ref": component.id, "name": component.name,
             "licenses": _licence(component)}
    if component.version:
        entry["version"] = component.version
    if component.source:
        name, version = component.source
        entry["purl"] = f"pkg:deb/debian/{name}@{quote(version, safe='')}?arch=source"
    if component.archives:
        entry["components"] = [
            {"type": "file", "bom-ref": f"{component.id}/{archive.name}", "name": archive.name,
             "hashes": _hashes(archive.read_bytes())} for archive in component.archives]
    if component.headers:
        entry["properties"] = [{"name": "tessera:headers-sha256",
                                "value": _headers_sum(component.headers)}]
    return entry


def write(components: Components, tree: BuildTree, program: Path, date: int) -> bytes:
    content = program.read_bytes()
    direct = [component.id for component in components.all if component.inside is None]
    document = {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "serialNumber": f"urn:uuid:{uuid.uuid5(_NAMESPACE, sha256_of(content))}",
        "version": 1,
        "metadata": {
            "timestamp": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(date)),
            "component": {"type": "application", "bom-ref": "uninstall", "name": "Uninstall.exe",
                          "version": tree.version, "hashes": _hashes(content)}},
        "components": [_entry(component) for component in components.all],
        "dependencies": [{"ref": "uninstall", "dependsOn": direct}] + [
            {"ref": identifier, "dependsOn": [component.id for component in components.all
                                              if component.inside == identifier]}
            for identifier in direct]}
    return (json.dumps(document, indent=2, ensure_ascii=False) + "\n").encode()
