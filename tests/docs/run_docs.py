"""Runs what the documents show, and compares the output that they show.

    run_docs.py --source DIR --build DIR --cxx COMPILER --library FILE [--c-library FILE]
                [--python PROGRAM --module DIR] [DOCUMENT...]

Without DOCUMENT: README*.md and docs/*.md. The language of a fenced block says what becomes of it:

    ```console       lines that begin with "$ " are commands, the lines behind one are its output
    ```sh            commands without their output
    ```cpp, ```c     a program, or what stands in one's main
    ```python        what a program goes on with, behind the Python blocks before it; run with --python alone
    ```output        what the program of the block before printed
    ```json NAME     a file of that name for the blocks behind it (csv and others likewise)
    ```text, ```cmake, ```csv and ```json without a name: nothing is run

A line "..." stands for any lines, "..." within a line for any characters. Every command must end with
status 0; one that does not is shown as "COMMAND; echo $?". A picture that a command draws under the
name of one in docs/pictures must be the same. Each block runs in a folder of its own with a
copy of examples/, the build tree as build/release, the catalogue as share/orv3cal, a home of its own,
and the command orv3cal on the path. The files that a document links to must be there.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SHOWN = {"text", "cmake", "csv", "json"}
PROGRAMS = {"cpp": "c++", "c": "c"}
# What the blocks before have said is said to nobody.
PYTHON = """import contextlib, io
with contextlib.redirect_stdout(io.StringIO()):
    exec({before!r})
exec({text!r})
"""
SECONDS = 1800  # hung, not slow


class Block:
    def __init__(self, line, info):
        self.line = line
        self.language, _, self.name = info.partition(" ")
        self.lines = []

    def text(self):
        return "".join(line + "\n" for line in self.lines)


def blocks_of(document):
    """The fenced blocks of a document, in their order."""
    blocks, block = [], None
    for number, line in enumerate(document.read_text("utf-8").splitlines(), 1):
        if block is None and line.startswith("```"):
            block = Block(number, line[3:].strip())
        elif block is not None and line == "```":
            blocks.append(block)
            block = None
        elif block is not None:
            block.lines.append(line)
    if block is not None:
        raise SystemExit(f"{document}:{block.line}: the block has no end")
    return blocks


def pattern(shown):
    """A regular expression of the lines shown."""
    parts = []
    for line in shown:
        if line.strip() == "...":
            parts.append(r"(?:.*\n)*?")
        else:
            parts.append(".*?".join(re.escape(part) for part in line.rstrip().split("...")) + r"[ \t]*\n")
    return "".join(parts)


def dead_links(document):
    """(line, text) for each link to a file or folder that is not there."""
    for number, line in enumerate(document.read_text("utf-8").splitlines(), 1):
        for link in re.findall(r"\]\(([^)\s#:]+)(?:#[^)]*)?\)", line):
            if not (document.parent / link).exists():
                yield number, f"the link {link} leads nowhere"


def differs(shown, printed):
    """None, or what was printed in place of what is shown."""
    if printed and not printed.endswith("\n"):
        printed += "\n"
    if re.fullmatch(pattern(shown), printed):
        return None
    return "shown:\n{}\nprinted:\n{}".format("\n".join(shown), printed)


class Runner:
    def __init__(self, options):
        self.source = Path(options.source).resolve()
        self.build = Path(options.build).resolve()
        self.cxx = options.cxx
        self.library = options.library
        self.c_library = options.c_library
        self.python = options.python
        self.module = options.module

    def environment(self, home):
        keep = {name: os.environ[name] for name in ("PATH", "TMPDIR") if name in os.environ}
        keep["PATH"] = f"{self.build / 'bin'}:{keep.get('PATH', '/usr/bin:/bin')}"
        if self.c_library:
            keep["LD_LIBRARY_PATH"] = str(Path(self.c_library).parent)
        if self.module:
            keep["PYTHONPATH"] = self.module
        return keep | {"HOME": str(home), "LC_ALL": "C.UTF-8"}

    def folder(self, root, files):
        folder = Path(tempfile.mkdtemp(dir=root))
        (folder / "home").mkdir()
        work = folder / "made"
        (work / "build").mkdir(parents=True)
        (work / "build" / "release").symlink_to(self.build)
        (work / "share").mkdir()
        shutil.copytree(self.build / "share" / "orv3cal", work / "share" / "orv3cal")
        shutil.copytree(self.source / "examples", work / "examples")
        for name, text in files.items():
            (work / name).write_text(text, "utf-8")
        return work

    def run(self, command, work):
        """The exit status and all that was printed."""
        done = subprocess.run(command, cwd=work, env=self.environment(work.parent / "home"),
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=SECONDS)
        return done.returncode, done.stdout.decode("utf-8", "backslashreplace")

    def console(self, block, work):
        """Every command of a console block with the output behind it."""
        at = 0
        while at < len(block.lines):
            line = block.lines[at]
            if not line.startswith("$ "):
                yield f"line {block.line + at + 1}: no command begins with \"$ \": {line}"
                return
            command = line[2:]
            at += 1
            while command.endswith("\\"):
                command = command[:-1] + block.lines[at].removeprefix("> ")
                at += 1
            shown = []
            while at < len(block.lines) and not block.lines[at].startswith("$ "):
                shown.append(block.lines[at])
                at += 1
            while shown and not shown[-1].strip():
                shown.pop()
            status, printed = self.run(["bash", "-c", command], work)
            wrong = differs(shown, printed.rstrip("\n") + "\n" if printed.strip() else "")
            if wrong or status != 0:
                yield f"$ {command}\nexit status {status}\n{wrong or printed}"

    def script(self, block, work):
        for line in block.lines:
            status, printed = self.run(["bash", "-c", line], work)
            if status != 0:
                yield f"{line}\nexit status {status}\n{printed}"

    def program(self, block, work, expected):
        language = PROGRAMS[block.language]
        includes = [line for line in block.lines if line.startswith("#include")]
        body = [line for line in block.lines if not line.startswith("#include")]
        header = "orv3cal.h" if block.language == "cpp" else "orv3cal_c.h"
        printing = ["<cstdio>", "<iostream>"] if block.language == "cpp" else ["<stdio.h>"]
        text = "\n".join([f"#include {name}" for name in [f"<{header}>"] + printing] + includes) + "\n"
        if any(re.match(r"int main\(", line) for line in body):
            text += "\n".join(body) + "\n"
        else:
            text += "int main(void) {\n" + "\n".join(body) + "\nreturn 0;\n}\n"
        source = work / ("snippet." + block.language)
        source.write_text(text, "utf-8")
        command = [self.cxx, "-x", language, "-std=" + ("c++20" if language == "c++" else "c11"),
                   "-I" + str(self.source / "src"), "-I" + str(self.source / "src" / "module"),
                   str(source), "-o", "snippet", "-x", "none"]
        command.append(self.library if language == "c++" else self.c_library)
        status, printed = self.run(command, work)
        if status != 0:
            yield f"does not compile:\n{text}\n{printed}"
            return
        status, printed = self.run(["./snippet"], work)
        wrong = differs(expected.lines, printed) if expected else None
        if wrong or status != 0:
            yield f"exit status {status}\n{wrong or printed}"

    def python_block(self, before, block, work, expected):
        if not self.python:
            return
        text = PYTHON.format(before=before, text=block.text())
        (work / "snippet.py").write_text(text, "utf-8")
        status, printed = self.run([self.python, "snippet.py"], work)
        wrong = differs(expected.lines, printed) if expected else None
        if wrong or status != 0:
            yield f"exit status {status}\n{wrong or printed}"

    def faults(self, document, root):
        """What is wrong in a document: (line, text)."""
        yield from dead_links(document)
        blocks, files, python = blocks_of(document), {}, ""
        for i, block in enumerate(blocks):
            after = blocks[i + 1] if i + 1 < len(blocks) else None
            before = blocks[i - 1] if i > 0 else None
            found = []
            if block.name:
                files[block.name] = block.text()
            elif block.language in ("console", "sh"):
                run = self.console if block.language == "console" else self.script
                found = run(block, self.folder(root, files))
            elif block.language in PROGRAMS:
                expected = after if after and after.language == "output" else None
                found = self.program(block, self.folder(root, files), expected)
            elif block.language == "python":
                expected = after if after and after.language == "output" else None
                found = self.python_block(python, block, self.folder(root, files), expected)
                python += block.text()
            elif block.language == "output":
                if not before or before.language not in {*PROGRAMS, "python"}:
                    found = ["no program stands before this output"]
            elif block.language not in SHOWN:
                found = [f'"{block.language}" does not say what the block is; see run_docs.py']
            for text in found:
                yield block.line, text
        for picture in sorted(Path(root).glob("*/made/*.svg")):
            kept = self.source / "docs" / "pictures" / picture.name
            if kept.exists() and kept.read_bytes() != picture.read_bytes():
                yield 0, f"docs/pictures/{picture.name} is not what the command draws today"


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "cxx", "library"):
        parser.add_argument("--" + name, required=True)
    for name in ("c-library", "python", "module"):
        parser.add_argument("--" + name)
    parser.add_argument("documents", nargs="*", type=Path)
    options = parser.parse_args()
    runner = Runner(options)
    documents = options.documents or sorted(
        [*runner.source.glob("README*.md"), *runner.source.glob("docs/*.md")])
    failed = 0
    for document in documents:
        with tempfile.TemporaryDirectory() as root:
            for line, text in runner.faults(document, root):
                failed += 1
                print(f"--- {document}:{line}\n{text}\n", flush=True)
    print(f"{len(documents)} documents, {failed} faults")
    return 1 if failed or not documents else 0


if __name__ == "__main__":
    sys.exit(main())
