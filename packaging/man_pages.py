#!/usr/bin/env python3
"""Manual pages in both languages from what the command tells of itself.

    man_pages.py COMMAND FOLDER

COMMAND is the program orv3cal; FOLDER gets man1/orv3cal*.1 and zh_CN/man1/orv3cal*.1, one page for
the command and one for each of its commands.
"""

import json
import subprocess
import sys
from pathlib import Path

WORDS = {
    "en": {
        "name": "NAME", "use": "SYNOPSIS", "what": "DESCRIPTION", "arguments": "ARGUMENTS",
        "options": "OPTIONS", "commands": "COMMANDS", "more": "NOTES", "exit": "EXIT STATUS",
        "also": "SEE ALSO", "manual": "Orv3Cal Manual",
        "status": [("0", "done, or the check passed"), ("1", "a check failed"),
                   ("2", "bad input"), ("3", "trouble with a file")],
    },
    "zh": {
        "name": "名称", "use": "用法", "what": "说明", "arguments": "参数", "options": "选项",
        "commands": "命令", "more": "备注", "exit": "退出状态", "also": "另见",
        "manual": "Orv3Cal 手册",
        "status": [("0", "完成，或验算满足"), ("1", "验算不满足"), ("2", "输入有误"),
                   ("3", "文件有问题")],
    },
}


def roff(text):
    """The text as troff shows it letter by letter: no line of it is a request."""
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("~", "\\(ti")
    text = text.replace("'", "\\(aq").replace("`", "\\(ga").replace("^", "\\(ha")
    return "\n".join("\\&" + line if line.startswith(".") else line for line in text.split("\n"))


def term(entry):
    return entry["name"].strip(), entry["takes"].strip(), entry["about"]


def definitions(entries):
    lines = []
    for name, takes, about in entries:
        bold = f"\\fB{roff(name)}\\fR"
        lines += [".TP", f"{bold} {roff(takes)}".rstrip(), roff(about) or "\\&"]
    return "\n".join(lines)


def usage(command):
    """The command line, without the word before it and the blank lines around it."""
    line = " ".join(command["usage"].split())
    return line[line.index("orv3cal"):]


def nested(command, words):
    """The commands of a command: each with its own line, arguments and options."""
    parts = [f".SH {words['commands']}"]
    for each in command["commands"]:
        parts += [f".SS {roff(usage(each))}", roff(each["about"])]
        entries = [term(entry) for entry in each["arguments"] + each["options"]]
        parts.append(definitions(e for e in entries if not e[0].startswith(("-h,", "--lang"))))
        if each["footer"] != command["footer"] and each["footer"]:
            parts += [".PP", roff(each["footer"])]
    return parts


def page(command, program, version, words, see):
    title = command["command"].replace(" ", "-")
    parts = [f'.TH {title.upper()} 1 "" "{version}" "{words["manual"]}"',
             ".ad l",  # a line with one long word is not pulled apart
             f".SH {words['name']}", f"{roff(title)} \\- {roff(command['about'])}",
             f".SH {words['use']}", f".B {roff(usage(command))}"]
    for list_name in ("arguments", "options"):
        if command[list_name]:
            parts += [f".SH {words[list_name]}", definitions(map(term, command[list_name]))]
    if command is program:
        entries = [(each["command"].split()[-1], "", each["about"]) for each in command["commands"]]
        parts += [f".SH {words['commands']}", definitions(entries)]
    elif command["commands"]:
        parts += nested(command, words)
    if command["footer"]:
        parts += [f".SH {words['more']}", ".nf", roff(command["footer"]), ".fi"]
    parts += [f".SH {words['exit']}", definitions((s, "", what) for s, what in words["status"])]
    others = ", ".join(f"\\fB{roff(name)}\\fR(1)" for name in see if name != title)
    parts += [f".SH {words['also']}", others]
    return "\n".join(parts) + "\n"


def main():
    program_file, folder = sys.argv[1:]
    run = lambda *words: subprocess.run([program_file, *words], check=True, capture_output=True,
                                        encoding="utf-8").stdout
    version = run("--version").strip()
    for language, place in (("en", "man1"), ("zh", "zh_CN/man1")):
        program = json.loads(run("describe", "--lang", language))
        target = Path(folder) / place
        target.mkdir(parents=True, exist_ok=True)
        pages = [program] + program["commands"]
        see = [each["command"].replace(" ", "-") for each in pages]
        for each in pages:
            text = page(each, program, version, WORDS[language], see)
            name = each["command"].replace(" ", "-") + ".1"
            (target / name).write_text(text, encoding="utf-8")


main()
