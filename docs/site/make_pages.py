"""Writes the pages of the reference site that no hand writes, and takes over the guides.

    make_pages.py --source DIR --build DIR --to DIR

The pages: every guide of docs/ and the two README, the command reference from --help in both
languages, the JSON schemas as tables, the gallery of all sections with their pictures, a page for each
public header.
"""

import argparse
import html
import json
import os
import re
import shutil
import subprocess
from pathlib import Path

GUIDES = {
    "First steps": ["Orv3Cal <README.md>", "docs/python.md", "docs/page.md", "docs/embedding.md", "docs/windows.md"],
    "中文": ["Orv3Cal（中文） <README.zh-CN.md>", "guide.zh-CN.md", "packages.zh-CN.md", "sections.zh-CN.md",
           "lattice.zh-CN.md", "searching.zh-CN.md", "stores.zh-CN.md", "connections.zh-CN.md", "members.zh-CN.md",
           "page.zh-CN.md", "python.zh-CN.md"],
    "Sections": ["sections.md", "section-solver.md", "outlines.md", "geometry.md", "lattice.md"],
    "Catalogue and stores": ["catalogue.md", "searching.md", "stores.md", "file-formats.md", "ifc.md"],
    "Checks": ["connections.md", "members.md", "case-keys.md", "codes.md", "code-tables.md"],
}
LANGUAGES = {"en": ("Commands", "commands"), "zh": ("命令 · Commands in Chinese", "commands-zh")}


def title(text, level=1):
    return f"{'#' * level} {text}\n\n"


def tree(caption, entries, depth=1):
    return f"```{{toctree}}\n:caption: {caption}\n:maxdepth: {depth}\n\n" + "\n".join(entries) + "\n```\n\n"


class Site:
    def __init__(self, options):
        self.source, self.to = options.source.resolve(), options.to.resolve()
        self.command = options.build.resolve() / "bin" / "orv3cal"
        self.data = options.build.resolve() / "share" / "orv3cal"
        self.home = self.to / "home"

    def write(self, path, text):
        file = self.to / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, "utf-8")

    def run(self, *arguments, language="en"):
        environment = {"HOME": str(self.home), "ORV3CAL_DATA": str(self.data), "ORV3CAL_LANG": language,
                       "PATH": os.environ["PATH"]}
        return subprocess.run([self.command, *arguments], env=environment, check=True,
                              capture_output=True).stdout.decode("utf-8")

    # --- The guides

    def guides(self):
        """All of docs/ as it lies there, so that links hold; the README go one folder deeper."""
        for folder in ("pictures", "verification"):
            shutil.copytree(self.source / "docs" / folder, self.to / "docs" / folder, dirs_exist_ok=True,
                            ignore=shutil.ignore_patterns("chapters", "cases"))
        for file in sorted((self.source / "docs").glob("*.md")):
            self.write(f"docs/{file.name}", self.shown(file.read_text("utf-8")))
        for name in ("README.md", "README.zh-CN.md", "CHANGELOG.md", "CONTRIBUTING.md", "SECURITY.md"):
            self.write(name, self.shown((self.source / name).read_text("utf-8")))
        placed = {Path(each.split()[-1].strip("<>")).name for names in GUIDES.values() for each in names}
        rest = [file.name for file in sorted((self.source / "docs").glob("*.md")) if file.name not in placed]
        trees = []
        for caption, names in GUIDES.items():
            trees.append(tree(caption, [n if n.startswith(("Orv3Cal", "docs/")) else f"docs/{n}" for n in names]))
        proofs = [f"docs/verification/{file.name}" for file in
                  sorted((self.source / "docs/verification").glob("[a-z]*.md"))]
        more = [f"docs/{name}" for name in rest] + ["docs/verification/README.md", *proofs, "CHANGELOG.md",
                                                    "CONTRIBUTING.md", "SECURITY.md"]
        return "".join(trees) + tree("More", more)

    @staticmethod
    def shown(text):
        """A file's block is named in the sources for the tests; here its language is enough."""
        return re.sub(r"^```(\w+) \S.*$", r"```\1", text, flags=re.M)

    # --- The command

    def commands_of(self, words, language):
        """The commands below a command, by its help."""
        text = self.run(*words, "--help", language=language)
        part = re.split(r"^(?:Subcommands|子命令|命令)[:：]\n", text, flags=re.M)
        names = re.findall(r"^  ([a-z][a-z0-9-]*) ", part[1], re.M) if len(part) > 1 else []
        return text, names

    def command_pages(self):
        entries = []
        for language, (heading, folder) in LANGUAGES.items():
            text, names = self.commands_of([], language)
            for name in names:
                self.write(f"{folder}/{name}.md", self.command_page([name], language))
            pages = "".join(f"{name}\n" for name in names)
            self.write(f"{folder}/index.md",
                       title(heading) + f"```text\n{text}```\n\n```{{toctree}}\n:maxdepth: 1\n\n{pages}```\n")
            entries.append(f"{folder}/index")
        return tree("Command", entries)

    def command_page(self, words, language, level=1):
        text, names = self.commands_of(words, language)
        page = title("orv3cal " + " ".join(words), level) + f"```text\n{text}```\n\n"
        return page + "".join(self.command_page([*words, name], language, level + 1) for name in names)

    # --- The schemas

    def schemas(self):
        entries = []
        for file in sorted((self.source / "docs/schema").glob("*.schema.json")):
            name = file.name.removesuffix(".schema.json")
            schema = json.loads(file.read_text("utf-8"))
            lines = ["| Key | Type | Values | |", "|---|---|---|---|"]
            lines += self.keys(schema, set(schema.get("required", [])))
            page = title(f"{schema.get('title', name)}: keys of a case") + schema.get("description", "") + "\n\n"
            page += "\n".join(lines) + f"\n\n{{download}}`{file.name} <{file.name}>`\n"
            self.write(f"schema/{name}.md", page)
            shutil.copy(file, self.to / "schema" / file.name)
            entries.append(f"schema/{name}")
        return tree("JSON schemas", entries + self.answers())

    def answers(self):
        """A page for each answer, its objects one below the other."""
        entries = []
        for file in sorted((self.source / "docs/schema/answers").glob("*.schema.json")):
            name = file.name.removesuffix(".schema.json")
            schema = json.loads(file.read_text("utf-8"))
            root = {word: rule for word, rule in schema.items() if word in ("$ref", "anyOf", "type", "items")}
            page = title(f"Answer: {schema['title']}" if root else schema["title"]) + schema["description"] + "\n\n"
            page += f"{self.kind(root)}\n\n" if root else ""
            for each, rule in schema["$defs"].items():
                page += f"(answer-{each.lower()})=\n" + title(each, 2) + rule["description"] + "\n\n"
                lines = self.keys(rule, set(rule.get("required", []))) or [f"| `{value}` | | | |" for value in rule["enum"]]
                page += "\n".join(["| Key | Type | Values | |", "|---|---|---|---|", *lines]) + "\n\n"
            self.write(f"schema/answers/{name}.md", page + f"{{download}}`{file.name} <{file.name}>`\n")
            shutil.copy(file, self.to / "schema/answers" / file.name)
            entries.append(f"schema/answers/{name}")
        return entries

    def kind(self, rule):
        """The type of a rule, an object as a link."""
        if "$ref" in rule:
            name = rule["$ref"].split("/")[-1]
            return f"{{ref}}`{name} <answer-{name.lower()}>`"
        if "anyOf" in rule:
            return " or ".join(map(self.kind, rule["anyOf"]))
        kind = rule.get("type", "")
        if kind == "array" and len(rule["items"]) == 1:
            return f"array of {self.kind(rule['items'])}"
        return " or ".join(kind) if isinstance(kind, list) else kind

    def keys(self, schema, required, prefix=""):
        lines = []
        for key, rule in schema.get("properties", {}).items():
            kind = self.kind(rule)
            bounds = [f"{sign} {rule[word]}" for word, sign in
                      [("minimum", "≥"), ("exclusiveMinimum", ">"), ("maximum", "≤"), ("exclusiveMaximum", "<")]
                      if word in rule]
            listed = rule.get("enum", [rule["const"]] if "const" in rule else [])
            values = ", ".join([*dict.fromkeys(str(each) for each in listed), *bounds])
            told = rule.get("description", "").replace("|", "\\|").replace("\n", " ")
            must = " (required)" if key in required else ""
            lines.append(f"| `{prefix}{key}`{must} | {kind} | {values} | {told} |")
            lines += self.keys(rule, set(rule.get("required", [])), f"{prefix}{key}.")
        return lines

    # --- The gallery

    def gallery(self):
        entries = []
        for number, table in enumerate(json.loads(self.run("tables", "--json"))):
            if table["source"] not in ("rolled", "user", "lattice") or table["rows"] == 0:
                continue
            page = self.table_page(number, table)
            if page:
                entries.append(page)
        self.styles_page()
        return tree("Gallery", ["gallery/styles", *entries])

    def styles_page(self):
        folder = self.to / "extra" / "gallery" / "styles"  # as it is, into the site
        folder.mkdir(parents=True, exist_ok=True)
        self.run("styles", "--svg", str(folder))
        figures = [self.figure(f"styles/{file.name}", file.stem) for file in sorted(folder.glob("*.svg"))]
        self.write("gallery/styles.md", title("自定义截面 · Styles of one's own") + self.grid(figures))

    def table_page(self, number, table):
        rows = json.loads(self.run("rows", table["name"], "--json"))
        at = next((i for i, column in enumerate(rows["columns"]) if column["sign"] == "No."), None)
        if at is None:
            return None
        folder = self.to / "extra" / "gallery" / str(number)
        folder.mkdir(parents=True, exist_ok=True)
        figures = []
        for index, row in enumerate(rows["rows"]):
            no = row["cells"][at]
            self.run("show", table["name"], no, "--svg", str(folder / f"{index}.svg"))
            figures.append(self.figure(f"{number}/{index}.svg", no))
        self.write(f"gallery/{number}.md", title(table["name"]) + self.grid(figures))
        return f"gallery/{number}"

    @staticmethod
    def figure(path, caption):
        caption = html.escape(caption)
        return f'<figure><a href="{path}"><img src="{path}" loading="lazy" alt="{caption}"></a>' \
               f"<figcaption>{caption}</figcaption></figure>"

    @staticmethod
    def grid(figures):
        return '```{raw} html\n<div class="gallery">\n' + "\n".join(figures) + "\n</div>\n```\n"

    # --- The interfaces

    def interfaces(self):
        self.write("python.md", title("Python") + "```{eval-rst}\n.. automodule:: orv3cal\n   :members:\n\n"
                   ".. automodule:: orv3cal.shapes\n   :members:\n```\n")
        self.write("c.md", title("C") + "```{eval-rst}\n.. doxygenfile:: orv3cal_c.h\n```\n")
        text = (self.source / "src/orv3cal.h").read_text("utf-8")
        pages = {}
        for header in re.findall(r'#include "([^"]+)"', text):
            pages.setdefault(header.split("/")[0], []).append(header)
        for floor, headers in pages.items():
            body = "".join(title(header, 2) + f"```{{eval-rst}}\n.. doxygenfile:: {header}\n```\n\n" for header in headers)
            self.write(f"cpp/{floor}.md", title(f"C++: {floor}") + body)
        return tree("Interfaces", ["python", "c", *(f"cpp/{floor}" for floor in pages)])

    def make(self):
        self.home.mkdir(parents=True, exist_ok=True)
        trees = self.guides() + self.command_pages() + self.interfaces() + self.schemas() + self.gallery()
        self.write("index.md", title("Orv3Cal") + "Sections, catalogues and checks of structural steel by GB 50017. "
                   "中文从 {doc}`README.zh-CN` 开始。\n\n" + trees)
        (self.to / "_static").mkdir(exist_ok=True)
        shutil.copy(self.source / "docs/site/site.css", self.to / "_static")
        shutil.copy(self.source / "docs/site/conf.py", self.to)
        shutil.rmtree(self.home)


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    for name in ("source", "build", "to"):
        parser.add_argument(f"--{name}", type=Path, required=True)
    options = parser.parse_args()
    shutil.rmtree(options.to, ignore_errors=True)
    options.to.mkdir(parents=True)
    Site(options).make()


if __name__ == "__main__":
    main()
