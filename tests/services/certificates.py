"""A throw-away certificate authority, made with the openssl command."""

import ssl
import subprocess
from pathlib import Path
from typing import Optional, Sequence, Tuple

_AUTHORITY_CONFIG = """
[ca]
default_ca = authority
[authority]
new_certs_dir = {folder}
database = {folder}/index.txt
serial = {folder}/serial
default_md = sha256
policy = any_name
copy_extensions = copy
unique_subject = no
[any_name]
commonName = supplied
"""


def _openssl(*arguments: object) -> None:
    subprocess.run(["openssl", *map(str, arguments)], check=True, stdin=subprocess.DEVNULL,
                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)


class Authority:
    """Keeps its files in `folder`, which it creates. Its servers share its key, since a key takes a
    third of a second. Not an elliptic one: Wine refuses one in a hundred of their signatures."""

    def __init__(self, folder: Path, name: str):
        self._folder = folder
        folder.mkdir(parents=True)
        self._key = folder / "authority.key"
        self._certificate = folder / "authority.pem"
        self.der = folder / "authority.der"
        _openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", 30, "-subj",
                 f"/CN={name}", "-keyout", self._key, "-out", self._certificate,
                 "-addext", "keyUsage=critical,keyCertSign,cRLSign")
        _openssl("x509", "-in", self._certificate, "-outform", "DER", "-out", self.der)
        (folder / "index.txt").touch()
        (folder / "serial").write_text("1000\n")
        self._config = folder / "authority.cnf"
        self._config.write_text(_AUTHORITY_CONFIG.format(folder=folder))

    def server_context(self, hosts: Sequence[str],
                       period: Optional[Tuple[str, str]] = None,
                       revocation_list: Optional[str] = None) -> ssl.SSLContext:
        """For a TLS server with these names. `period` is (from, to) as YYYYMMDDHHMMSSZ; without it
        the certificate is valid now. `revocation_list` is the URL of the revocation list."""
        base = self._folder / f"server-{len(list(self._folder.glob('server-*.csr')))}"
        request, certificate = base.with_suffix(".csr"), base.with_suffix(".pem")
        names = ",".join(f"DNS:{host}" for host in hosts)
        extensions = [f"subjectAltName={names}"]
        if revocation_list is not None:
            extensions.append(f"crlDistributionPoints=URI:{revocation_list}")
        _openssl("req", "-new", "-key", self._key, "-subj", f"/CN={hosts[0]}",
                 *(word for extension in extensions for word in ("-addext", extension)),
                 "-out", request)
        dates = ("-days", 30) if period is None else ("-startdate", period[0],
                                                      "-enddate", period[1])
        _openssl("ca", "-batch", "-notext", "-config", self._config, "-cert", self._certificate,
                 "-keyfile", self._key, "-in", request, "-out", certificate, *dates)
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate, self._key)
        return context
