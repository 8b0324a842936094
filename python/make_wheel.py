"""Packs the Python module of a build tree into a wheel; the same tree gives the same bytes.

    make_wheel.py --source DIR --build DIR --to DIR [--strip PROGRAM]

Needs nothing but Python itself, that of the module. The time of every file is SOURCE_DATE_EPOCH, or
1980 when it is not set. The last line is the wheel's path.
"""

import argparse
import base64
import hashlib
import os
import subprocess
import sys
import sysconfig
import tempfile
import time
import zipfile
from pathlib import Path

from metadata import metadata, version_of

EARLIEST = 315532800  # 1980-01-01, from which on a zip can tell the time
DATA = ("*.kvb", "*.KDB", "*.KXP")


def tag():
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    return f"{python}-{python}-{sysconfig.get_platform().replace('-', '_').replace('.', '_')}"


def stripped(module, strip):
    """The module's bytes without the symbols that only a debugger reads."""
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / module.name
        subprocess.run([strip, "--strip-unneeded", "-o", copy, module], check=True)
        return copy.read_bytes()


# Whose code is in the module, and whose notices come with it.
PARTS = ("libeigen3-dev", "libcli11-dev", "nlohmann-json3-dev", "pybind11-dev")


def contents(source, build, strip, version):
    """Path within the wheel: bytes."""
    package = build / "python/orv3cal"
    files = {}
    for file in sorted(package.iterdir()):
        if file.suffix in (".py", ".pyi", ".typed"):
            files[f"orv3cal/{file.name}"] = file.read_bytes()
    module = package / f"_orv3cal{sysconfig.get_config_var('EXT_SUFFIX')}"
    files[f"orv3cal/{module.name}"] = stripped(module, strip)
    for mask in DATA:
        for file in (build / "share/orv3cal").glob(mask):
            files[f"orv3cal/share/orv3cal/{file.name}"] = file.read_bytes()
    info = f"orv3cal-{version}.dist-info"
    files[f"{info}/LICENSE"] = (source / "LICENSE").read_bytes()
    for part in PARTS:
        notice = Path(f"/usr/share/doc/{part}/copyright")
        files[f"{info}/licences/{part}.txt"] = notice.read_bytes()
    files[f"{info}/METADATA"] = metadata(source)
    wheel = f"Wheel-Version: 1.0\nGenerator: make_wheel\nRoot-Is-Purelib: false\nTag: {tag()}\n"
    files[f"{info}/WHEEL"] = wheel.encode()
    files[f"{info}/RECORD"] = record(files, info)
    return files


def record(files, info):
    lines = []
    for path in sorted(files):
        digest = base64.urlsafe_b64encode(hashlib.sha256(files[path]).digest()).rstrip(b"=")
        lines.append(f"{path},sha256={digest.decode()},{len(files[path])}\n")
    return ("".join(lines) + f"{info}/RECORD,,\n").encode()


def pack(path, files):
    moment = max(int(os.environ.get("SOURCE_DATE_EPOCH", EARLIEST)), EARLIEST)
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as wheel:
        # As installers expect it, what describes the wheel stands last.
        for name in sorted(files, key=lambda each: (".dist-info/" in each, each)):
            entry = zipfile.ZipInfo(name, time.gmtime(moment)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = (0o100755 if name.endswith(".so") else 0o100644) << 16
            wheel.writestr(entry, files[name])


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    for name in ("source", "build", "to"):
        parser.add_argument(f"--{name}", type=Path, required=True)
    parser.add_argument("--strip", default="strip")
    options = parser.parse_args()
    version = version_of(options.source)
    options.to.mkdir(parents=True, exist_ok=True)
    path = options.to / f"orv3cal-{version}-{tag()}.whl"
    pack(path, contents(options.source, options.build, options.strip, version))
    print(path)


if __name__ == "__main__":
    main()
