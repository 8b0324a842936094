"""Every text that a user reads has both its halves, the Chinese one and the English one.

    texts.py --source DIR

Looks at the sources: the pairs of Say, Both, CText and CTextLiteral, and what is refused or printed
without a pair. What stands between quotation marks in a text (keys, names), and the name of a table, belongs to neither
language.
"""

import argparse
import re
import sys
from pathlib import Path

FOLDERS = ("cli", "python", "src")
SUFFIXES = (".cpp", ".h", ".py")
LITERAL = r'L?"(?:[^"\\]|\\.)*"(?:\s*L?"(?:[^"\\]|\\.)*")*'
PAIRS = re.compile(rf"(?<![\w>])(?:Say|say|Both)\(\s*({LITERAL})\s*,\s*(?:[^\"();]*\?\s*)?({LITERAL})")
BRACED = re.compile(rf"\{{\s*({LITERAL})\s*,\s*({LITERAL})\s*\}}")
ALONE = re.compile(rf"(?<![\w>])(?:Refuse|RefuseFile|Fail|Print|NotRead|NotWritten|Error)\(\s*f?({LITERAL})\s*\)")
TABLES = r"热轧[\u4e00-\u9fff]+|[双三四]肢格构柱"
CHINESE = re.compile("[\u4e00-\u9fff]")
ENGLISH = re.compile(r"[A-Za-z]{2,} [a-z]{2,}")


def text_of(literal):
    """What a literal, perhaps of several pieces, says."""
    return "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literal))


def without_quoted(text):
    return re.sub(r'\\".*?\\"|“.*?”|' + TABLES, "", text)


def faults_of_pair(chinese, english):
    if not chinese or not english:
        yield "one half is empty"
    elif not CHINESE.search(chinese) and not chinese.startswith("{1}") and ENGLISH.search(english):
        yield "the Chinese half is not Chinese"
    if CHINESE.search(without_quoted(english)):
        yield "the English half has Chinese in it"


def faults(source):
    """(line, text, what is wrong)"""
    for found in PAIRS.finditer(source):
        for fault in faults_of_pair(text_of(found[1]), text_of(found[2])):
            yield found.start(), found[0], fault
    for found in BRACED.finditer(source):
        first, second = text_of(found[1]), text_of(found[2])
        # A pair when a sentence of the one stands beside the other; names and keys are none.
        if ENGLISH.search(second) and not CHINESE.search(second) and not CHINESE.search(first) and ENGLISH.search(first):
            yield found.start(), found[0], "no half is Chinese"
    for found in ALONE.finditer(source):
        text = text_of(found[1])
        if CHINESE.search(text) or ENGLISH.search(text):
            yield found.start(), found[0], "the text has one half only"


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--source", type=Path, required=True)
    root = parser.parse_args().source
    pairs = wrong = 0
    for folder in FOLDERS:
        for file in sorted(each for each in (root / folder).rglob("*") if each.suffix in SUFFIXES):
            source = file.read_text("utf-8")
            pairs += len(PAIRS.findall(source))
            for at, text, fault in faults(source):
                wrong += 1
                line = source.count("\n", 0, at) + 1
                print(f"{file.relative_to(root)}:{line}: {fault}: {' '.join(text.split())[:200]}")
    print(f"{pairs} pairs, {wrong} faults")
    return 1 if wrong or pairs < 100 else 0


if __name__ == "__main__":
    sys.exit(main())
