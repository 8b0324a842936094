#!/usr/bin/env python3
"""The files of a folder as the setup program installs and removes them.

    file_list.py FOLDER LIST.nsh

Writes the macros InstallFiles and RemoveFiles. What is removed is named file by file, so that
nothing goes that others have put into the folder.
"""

import sys
from pathlib import Path, PureWindowsPath

folder, target = Path(sys.argv[1]).resolve(), sys.argv[2]
files = sorted(path for path in folder.rglob("*") if path.is_file())
folders = sorted({path.parent for path in files} | {folder})


def place(path):
    return str(PureWindowsPath("$INSTDIR", path.relative_to(folder)))


lines = ["!macro InstallFiles"]
for each in folders:
    lines.append(f'SetOutPath "{place(each)}"')
    lines += [f'File "{path}"' for path in files if path.parent == each]
lines += ['SetOutPath "$INSTDIR"', "!macroend", "!macro RemoveFiles"]
lines += [f'Delete "{place(path)}"' for path in files]
parents = {parent for each in folders for parent in [each, *each.parents] if folder in parent.parents}
lines += [f'RMDir "{place(each)}"' for each in sorted(parents, reverse=True)]
lines += ["!macroend"]
Path(target).write_text("\n".join(lines) + "\n", encoding="utf-8")
