#!/usr/bin/env python3
"""Writes the list of parts of what is handed out, as SPDX 2.3.

    sbom.py VERSION FOLDER FILE

The files of FOLDER with their checksums, and the libraries that are inside them or that they need,
with the versions that this machine built them with.
"""

import hashlib
import json
import os
import subprocess
import sys
import time
from pathlib import Path

# Debian's name of each part, its licence, how Orv3Cal uses it, and which of the files have to do with it.
COMPILED = "*.deb *.whl *.zip *-setup.exe *.html"
WINDOWS = "*.zip *-setup.exe"
GCC = "GPL-3.0-or-later WITH GCC-exception-3.1"
PARTS = [
    ("libeigen3-dev", "MPL-2.0", "CONTAINS", COMPILED),
    ("libcli11-dev", "BSD-3-Clause", "CONTAINS", COMPILED),
    ("nlohmann-json3-dev", "MIT", "CONTAINS", COMPILED),
    ("pybind11-dev", "BSD-3-Clause", "CONTAINS", "python3-*.deb *.whl"),
    ("nsis", "Zlib", "CONTAINS", "*-setup.exe"),
    ("libxlsxwriter-dev", "BSD-2-Clause", "DEPENDS_ON", "*.deb"),
    ("libstdc++6", GCC, "DEPENDS_ON", "*.deb *.whl"),
    ("gcc-mingw-w64-i686-posix-runtime", GCC, "CONTAINS", "*-win32.zip *-setup.exe"),
    ("gcc-mingw-w64-x86-64-posix-runtime", GCC, "CONTAINS", "*-win64.zip"),
    ("mingw-w64-common", "NOASSERTION", "CONTAINS", WINDOWS),
    ("libfmt-dev", "MIT", "CONTAINS", "*.html"),
    ("libfast-float-dev", "Apache-2.0 OR MIT", "CONTAINS", "*.html"),
    ("emscripten", "MIT OR NCSA", "CONTAINS", "*.html"),
]


def installed_version(package):
    asked = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], capture_output=True,
                           encoding="utf-8")
    return asked.stdout if asked.returncode == 0 else None


def spdx_package(name, version, licence):
    return {"name": name, "SPDXID": f"SPDXRef-{name.replace('+', 'x')}", "versionInfo": version or "NOASSERTION",
            "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
            "licenseConcluded": licence, "licenseDeclared": licence,
            "copyrightText": "NOASSERTION"}


def spdx_file(number, path):
    digest = hashlib.sha256(path.read_bytes()).hexdigest()
    return {"fileName": f"./{path.name}", "SPDXID": f"SPDXRef-file-{number}",
            "checksums": [{"algorithm": "SHA1", "checksumValue":
                           hashlib.sha1(path.read_bytes()).hexdigest()},
                          {"algorithm": "SHA256", "checksumValue": digest}],
            "licenseConcluded": "MIT", "copyrightText": "NOASSERTION"}


def main():
    version, folder, target = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
    made = [path for path in sorted(folder.iterdir())
            if path.is_file() and path != target and path.name != "SHA256SUMS"]
    files = [spdx_file(number, path) for number, path in enumerate(made)]
    parts = [(name, installed_version(name), licence, use) for name, licence, use, holders in PARTS
             if any(path.match(pattern) for path in made for pattern in holders.split())]
    own = spdx_package("orv3cal", version, "MIT")
    relations = [("SPDXRef-DOCUMENT", "DESCRIBES", own["SPDXID"])]
    relations += [(own["SPDXID"], use, spdx_package(name, "", "")["SPDXID"])
                  for name, _, _, use in parts]
    relations += [(file["SPDXID"], "GENERATED_FROM", own["SPDXID"]) for file in files]
    contents = json.dumps([files, parts]).encode()
    when = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))
    document = {
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"orv3cal-{version}",
        "documentNamespace": f"urn:orv3cal:{version}:{hashlib.sha256(contents).hexdigest()}",
        "creationInfo": {"created": time.strftime("%Y-%m-%dT%H:%M:%SZ", when),
                         "creators": ["Organization: The Orv3Cal developers"]},
        "packages": [own] + [spdx_package(*part[:3]) for part in parts],
        "files": files,
        "relationships": [{"spdxElementId": one, "relationshipType": kind,
                           "relatedSpdxElement": other} for one, kind, other in relations],
    }
    target.write_text(json.dumps(document, indent=1) + "\n", encoding="utf-8")


main()
