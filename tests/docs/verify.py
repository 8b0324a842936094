"""Writes the verification manual, docs/verification/, by running its cases.

    verify.py --source DIR --command FILE --data DIR [--check]

With --check nothing is written: the exit status is 1 when the manual in the tree is not what the run
writes. It is 1 too when a figure is not within its tolerance.

A chapter is a TOML file in docs/verification/chapters: its titles, the tolerance of its figures with the reason, and
its cases. A case has an id, titles, its source, the arguments of the command ("{input}" stands for
its input file, written to docs/verification/cases), a hand calculation and the figures to compare.
A line of a calculation is

    SYMBOL [UNIT] = EXPRESSION ; REMARK

with the symbols of earlier lines, · × − ^ √ π and the functions below; a line "NAME(A, B) = ..."
defines a function. Figures are [place in the command's JSON answer, expression], with the tolerance
and its reason behind them where the chapter's do not hold; in place of "run" and "figures" a case may have
"rows", [arguments, expression], of commands that answer one value. "{code}" in the arguments is the edition
that stands before a figure's place, as in "2003: results.A". A place names keys and positions with
points between; an object within a list goes by its "name".
"""

import argparse
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import tomllib
from pathlib import Path


def root(function, low, high):
    """Where a function of one sign at each end is zero."""
    sign = function(low) > 0
    for _ in range(200):
        middle = (low + high) / 2
        low, high = (middle, high) if (function(middle) > 0) == sign else (low, middle)
    return low


FUNCTIONS = {name: getattr(math, name) for name in
             ("sqrt", "sin", "cos", "tan", "asin", "atan", "tanh", "log", "exp", "radians")}
FUNCTIONS |= {"root": root, "abs": abs, "min": min, "max": max, "sum": sum, "range": range, "π": math.pi}
SPELLED = {"·": "*", "×": "*", "−": "-", "^": "**", "√(": "sqrt(",
           "≤": "<=", "≥": ">="}
SUPERSCRIPT = str.maketrans("-0123456789", "⁻⁰¹²³⁴⁵⁶⁷⁸⁹")
SYMBOL = re.compile(r"(?<![\w.])[^\W\d]\w*")
CALL = re.compile(r"([^\W\d]\w*)\(([^()]*)\)")
LINE = re.compile(r"(?P<name>[^\W\d]\w*)(?P<parameters>\([^)]*\))?(?: \[(?P<unit>[^\]]*)\])? = "
                  r"(?P<formula>.*?)(?: ; (?P<remark>.*))?")


class Wrong(Exception):
    """A chapter or an answer that is not as it must be."""


def plain(value):
    """Seven significant digits, as a formula takes them."""
    return re.sub(r"e([+-])0*", lambda match: "e" + match[1].strip("+"), f"{value:.7g}").replace("-", "−")


def number(value, digits=7):
    """For reading: with a power of ten where the digits would be hard to count."""
    if value is None:
        return "-"
    if isinstance(value, (str, bool)):
        return str(value)
    text = f"{value:.{digits}g}"
    mantissa, exponent, power = text.partition("e")
    if not exponent:
        return text.replace("-", "−")
    return f"{mantissa}·10{str(int(power)).translate(SUPERSCRIPT)}".replace("-", "−", 1 if value < 0 else 0)


class Calculation:
    """A hand calculation: evaluates its lines and writes them with their numbers."""

    def __init__(self, names=None):
        self.names = dict(names or FUNCTIONS)
        self.lines = []

    def value(self, formula):
        text = formula
        for sign, python in SPELLED.items():
            text = text.replace(sign, python)
        try:
            return eval(text, {"__builtins__": {}, **self.names})
        except Exception as error:
            raise Wrong(f"{formula}: {error}") from error

    def numbers(self, formula):
        """The formula with numbers in the places of its symbols and of the calls of its functions."""
        def call(match):
            return plain(self.value(match[0])) if match[1] not in FUNCTIONS else match[0]

        def symbol(match):
            value = self.names.get(match[0])
            if not isinstance(value, (int, float)) or match[0] in FUNCTIONS:
                return match[0]
            return f"({plain(value)})" if value < 0 else plain(value)
        return SYMBOL.sub(symbol, CALL.sub(call, formula))

    def add(self, line):
        match = LINE.fullmatch(line)
        if match is None:
            raise Wrong(f"{line}: is no line of a calculation")
        name, formula = match["name"], match["formula"]
        remark = f"    ({match['remark']})" if match["remark"] else ""
        if match["parameters"]:
            parameters = [each.strip() for each in match["parameters"].strip("()").split(",")]
            outer = dict(self.names)
            def function(*values):
                inner = Calculation(outer | dict(zip(parameters, values, strict=True)))
                return inner.value(formula)
            self.names[name] = function
            self.lines.append(f"{name}{match['parameters']} = {formula}{remark}")
            return
        value = self.value(formula)
        steps = [name, formula]
        for step in (self.numbers(formula), number(value)):
            if step != steps[-1]:
                steps.append(step)
        unit = f" {match['unit']}" if match["unit"] else ""
        self.names[name] = value
        self.lines.append(" = ".join(steps) + unit + remark)


def found(answer, place):
    """What stands at a place of the answer."""
    for key in place.split("."):
        try:
            if isinstance(answer, list) and not key.isdigit():
                answer = next(each for each in answer if each["name"] == key)
            else:
                answer = answer[int(key) if isinstance(answer, list) else key]
        except (KeyError, IndexError, StopIteration) as error:
            raise Wrong(f"{place}: the answer has no {key}") from error
    return answer


def difference(expected, obtained):
    """Relative to the expected figure; absolute beside 0."""
    if not all(type(each) in (int, float) for each in (expected, obtained)):
        return 0 if expected == obtained else math.inf
    return abs(obtained - expected) / (abs(expected) or 1)


def difference_text(value):
    if value == math.inf:
        return "another"
    return "< 10⁻⁹" if value < 1e-9 else number(float(f"{value:.1e}"))


def quoted(words):
    """The words of a command as a shell takes them."""
    return " ".join(f"'{word}'" if re.search(r"[\[\]*]", word) else word for word in words.split())


class Manual:
    def __init__(self, options):
        self.source = options.source.resolve()
        self.folder = self.source / "docs" / "verification"
        self.command = options.command.resolve()
        self.data = options.data.resolve()
        self.check = options.check
        self.files = {}  # text by path within the folder
        self.answers = {}
        self.faults = []
        self.rows = []  # of the index

    def put(self, path, text):
        """A file of the manual; an input at once, for the command to read."""
        self.files[path] = text
        if not self.check:
            (self.folder / path).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / path).write_text(text, "utf-8")

    def answer(self, arguments):
        if arguments not in self.answers:
            with tempfile.TemporaryDirectory() as home:
                keep = {name: os.environ[name] for name in ("PATH", "TMPDIR") if name in os.environ}
                run = subprocess.run([self.command, *arguments], cwd=self.source, capture_output=True,
                                     env=keep | {"HOME": home, "ORV3CAL_DATA": str(self.data),
                                                 "LC_ALL": "C.UTF-8"})
            if run.returncode not in (0, 1):
                raise Wrong(f"{' '.join(arguments)}\n{run.stderr.decode()}")
            self.answers[arguments] = json.loads(run.stdout)
        return self.answers[arguments]

    def figures(self, case, chapter, calculation, runs):
        """The table of a case: each figure with its label and the answer that it is found in."""
        lines = ["| 量 Figure | 预期 Expected | 实得 Obtained | 相对差 Difference | 容差 Tolerance |",
                 "|---|---:|---:|---:|---:|"]
        reasons = []
        for label, place, arguments, expression, *own in runs:
            within, reason = own or (case.get("within", chapter["within"]), case.get("why", chapter["why"]))
            expected, obtained = calculation.value(expression), found(self.answer(arguments), place)
            apart = difference(expected, obtained)
            if not apart <= within:
                self.faults.append(f"{case['id']}: {label} is {obtained}, expected {expected}")
            digits = 7 if within < 1e-5 else 5  # a numerical solution's last ones are its own
            lines.append(f"| `{label}` | {number(expected, digits)} | {number(obtained, digits)} | "
                         f"{difference_text(apart)}{'' if apart <= within else ' **✗**'} | "
                         f"{number(within)} |")
            if reason not in reasons:
                reasons.append(reason)
        return lines + ["", "容差 Tolerance: " + " / ".join(reasons)]

    def case(self, case, chapter, defined):
        name = case["id"]
        file = case.get("file", name + ".json")
        if "input" in case:
            self.put(f"cases/{file}", case["input"].strip() + "\n")
        calculation = Calculation(defined)
        for line in case.get("hand", "").strip().splitlines():
            calculation.add(line)
        lines = [f"## {name} {case['zh']}", "", case["en"], "", f"- 依据 Source: {case['source']}"]
        runs = [(row[0], "value", (*row[0].split(), "--json"), *row[1:]) for row in case.get("rows", [])]
        if "run" in case:
            command = case["run"].replace("{input}", f"docs/verification/cases/{file}")
            for label, *rest in case["figures"]:
                year, _, place = label.rpartition(": ")
                runs.append((label, place, (*command.replace("{code}", year).split(), "--json"), *rest))
            if "{input}" in case["run"]:
                lines.append(f"- 输入 Input: [cases/{file}](cases/{file})")
            years = sorted({label[:4] for label, *_ in runs}, reverse=True) if "{code}" in command else [""]
            shown = f"`orv3cal {quoted(command.replace('{code}', years[0]))} --json`"
            also = "".join(f", 及 and `--code {year}`" for year in years[1:])
            lines.append(f"- 命令 Command: {shown}{also}")
        else:
            lines.append("- 命令 Command: `orv3cal` 后接各行 followed by each line, `--json`")
        lines.append("")
        if calculation.lines:
            lines += ["```text", *calculation.lines, "```", ""]
        lines += self.figures(case, chapter, calculation, runs)
        self.rows.append((name, case["zh"], case["en"], case["source"], len(runs)))
        return lines + [""]

    def chapter(self, path):
        chapter = tomllib.loads(path.read_text("utf-8"))
        defined = Calculation()
        for line in chapter.get("define", "").strip().splitlines():
            defined.add(line)
        lines = [f"# {chapter['zh']} · {chapter['en']}", "", chapter["text"].strip(), ""]
        if defined.lines:
            lines += ["```text", *defined.lines, "```", ""]
        first = len(self.rows)
        for case in chapter["case"]:
            try:
                lines += self.case(case, chapter, defined.names)
            except Wrong as wrong:
                self.faults.append(f"{case['id']}: {wrong}")
        page = path.stem.partition("-")[2] + ".md"
        self.put(page, "\n".join(lines).rstrip() + "\n")
        return page, chapter, self.rows[first:]

    def index(self, head, chapters):
        lines = [f"# {head['zh']} · {head['en']}", "", head["text"].strip(), "",
                 "| 章 Chapter | | 算例 Cases | 数值 Figures |", "|---|---|---:|---:|"]
        for page, chapter, rows in chapters:
            lines.append(f"| [{chapter['zh']}]({page}) | {chapter['en']} | {len(rows)} | "
                         f"{sum(row[4] for row in rows)} |")
        lines += [f"| 合计 | All | {len(self.rows)} | {sum(row[4] for row in self.rows)} |", "",
                  "## 未覆盖 · Not covered", ""]
        lines += [f"- {zh}<br>{en}" for zh, en in head["missing"]]
        for page, chapter, rows in chapters:
            lines += ["", f"## {chapter['zh']} · {chapter['en']}", "",
                      "| | 算例 Case | | 依据 Source |", "|---|---|---|---|"]
            lines += [f"| {name} | {zh} | {en} | {source} |" for name, zh, en, source, _ in rows]
        self.put("README.md", "\n".join(lines) + "\n")

    def write(self):
        sources = self.folder / "chapters"
        chapters = [self.chapter(path) for path in sorted(sources.glob("[0-9]*.toml"))]
        self.index(tomllib.loads((sources / "manual.toml").read_text("utf-8")), chapters)
        names = [row[0] for row in self.rows]
        self.faults += [f"{name}: stands twice" for name in set(names) if names.count(name) > 1]
        self.compare()

    def compare(self):
        """The tree against what was written: nothing else, nothing missing, nothing old."""
        kept = {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*.*")
                if path.parent.name != "chapters"}
        for path in sorted(kept - self.files.keys()):
            if self.check:
                self.faults.append(f"docs/verification/{path}: is of no case; run scripts/verify")
            else:
                (self.folder / path).unlink()
        for path, text in self.files.items():
            if not self.check or path in kept and (self.folder / path).read_text("utf-8") == text:
                continue
            self.faults.append(f"docs/verification/{path}: is not what the run writes; run scripts/verify")


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "command", "data"):
        parser.add_argument("--" + name, required=True, type=Path)
    parser.add_argument("--check", action="store_true")
    manual = Manual(parser.parse_args())
    manual.write()
    for fault in manual.faults:
        print(fault)
    print(f"{len(manual.rows)} cases, {sum(row[4] for row in manual.rows)} figures, "
          f"{len(manual.faults)} faults")
    return 1 if manual.faults else 0


if __name__ == "__main__":
    sys.exit(main())
