#!/usr/bin/env python3
"""Packs a folder into a zip archive that holds the same bytes each time.

    zip_folder.py FOLDER ARCHIVE

Names are sorted and all times are SOURCE_DATE_EPOCH.
"""

import os
import sys
import time
import zipfile
from pathlib import Path

folder, archive = Path(sys.argv[1]), sys.argv[2]
when = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
    for file in sorted(path for path in folder.rglob("*") if path.is_file()):
        entry = zipfile.ZipInfo(file.relative_to(folder.parent).as_posix(), when)
        entry.compress_type = zipfile.ZIP_DEFLATED
        entry.external_attr = 0o644 << 16
        packed.writestr(entry, file.read_bytes())
