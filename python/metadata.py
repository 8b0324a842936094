"""The metadata of the Python package, by which pip and importlib.metadata know it: a wheel's and an installation's.

    metadata.py SOURCE FILE
"""

import re
import sys
from pathlib import Path


def version_of(source):
    text = (source / "CMakeLists.txt").read_text("utf-8")
    return re.search(r"project\(orv3cal VERSION (\S+)", text).group(1)


def metadata(source):
    head = f"""Metadata-Version: 2.1
Name: orv3cal
Version: {version_of(source)}
Summary: Sections, catalogues and connection and member checks of structural steel by GB 50017
License: MIT
Requires-Python: >=3.9
Provides-Extra: frames
Requires-Dist: numpy; extra == 'frames'
Requires-Dist: pandas; extra == 'frames'
Description-Content-Type: text/markdown

"""
    pages = [(source / "docs" / name).read_text("utf-8") for name in ("python.md", "python.zh-CN.md")]
    return (head + "\n".join(pages)).encode()


if __name__ == "__main__":
    Path(sys.argv[2]).write_bytes(metadata(Path(sys.argv[1])))
