"""Writes the types of the answers, orv3cal/shapes.py, from the JSON Schemas of the answers.

    make_shapes.py FOLDER TO

Each definition of a schema in FOLDER becomes a type of its name: an object a TypedDict, a list of texts a
Literal. A word of a schema that is not known here is an error.
"""

import json
import sys
import textwrap
from keyword import iskeyword
from pathlib import Path

HEAD = '''"""The shapes of answers, as their JSON Schemas have them (docs/schema/answers).

Lengths in mm; a figure that is not finite or not known is None. A name that begins with an underscore
holds the keys that are always there.
"""

from __future__ import annotations

from typing import Literal, Optional, TypedDict, Union
'''
WORDS = {"$ref", "description", "type", "enum", "const", "items", "minItems", "maxItems", "anyOf", "properties",
         "required", "additionalProperties"}
TYPES = {"string": "str", "number": "float", "integer": "int", "boolean": "bool"}


def type_of(rule):
    """The type of what a rule takes."""
    unknown = ", ".join(set(rule) - WORDS)
    if unknown:
        raise SystemExit(f"make_shapes: {unknown} is not known")
    if "$ref" in rule:
        return rule["$ref"].split("/")[-1]
    if "const" in rule or "enum" in rule:
        return f"Literal[{', '.join(json.dumps(each) for each in rule.get('enum', [rule.get('const')]))}]"
    if rule.get("type") == "array":
        return f"list[{type_of(rule['items'])}]"
    if rule.get("type") == "object":
        return f"dict[str, {type_of(rule['additionalProperties'])}]"
    if isinstance(rule.get("type"), str):
        return TYPES[rule["type"]]
    kinds = rule.get("anyOf") or [{"type": kind} for kind in rule["type"]]
    names = [type_of(each) for each in kinds if each != {"type": "null"}]
    names = ", ".join(names) if len(names) == 1 else f"Union[{', '.join(names)}]"
    return f"Optional[{names}]" if {"type": "null"} in kinds else names


def comment(text, indent=""):
    return "".join(f"{indent}# {line}\n" for line in textwrap.wrap(text, 98 - len(indent)))


def fields(rule, keys, indent, entry):
    """A line for each key, below what it means."""
    text = ""
    for key in keys:
        text += comment(rule["properties"][key].get("description", ""), indent)
        text += indent + entry.format(key, type_of(rule["properties"][key])) + "\n"
    return text


def in_braces(name, rule, keys, total):
    """A TypedDict of keys that may be words of Python, as "pass" is."""
    body = fields(rule, keys, " " * 8, '"{0}": {1!r},')
    end = "" if total else "    total=False,\n"
    return f'{name} = TypedDict(\n    "{name}",\n    {{\n{body}    }},\n{end})\n'


def in_class(name, base, rule, keys, about):
    head = f"class {name}({base}):\n"
    if about:
        head += textwrap.indent("\n".join(textwrap.wrap(f'"""{about}"""', 96)), "    ") + "\n\n"
    return head + fields(rule, keys, "    ", "{0}: {1}")


def shape(name, rule):
    if "properties" not in rule:
        body = "".join(f"    {json.dumps(each)},\n" for each in rule["enum"])
        return comment(rule["description"]) + f"{name} = Literal[\n{body}]\n"
    about, keys, always = rule["description"], rule["properties"], rule["required"]
    words = any(map(iskeyword, keys))
    first = [key for key in keys if key in always] or [key for key in keys if iskeyword(key)]
    rest = [key for key in keys if key not in first]
    if not rest:
        return comment(about) + in_braces(name, rule, first, True) if words else in_class(name, "TypedDict", rule, first, about)
    base = in_braces("_" + name, rule, first, bool(always)) if words else in_class("_" + name, "TypedDict", rule, first, "")
    return base + "\n\n" + in_class(name, f"_{name}, total=False", rule, rest, about)


def main():
    folder, to = map(Path, sys.argv[1:])
    rules = {}
    for file in sorted(folder.glob("*.schema.json")):
        for name, rule in json.loads(file.read_text("utf-8"))["$defs"].items():
            if name in rules:
                raise SystemExit(f"make_shapes: {name} is defined twice")
            rules[name] = rule
    to.write_text(HEAD + "".join("\n\n" + shape(name, rule) for name, rule in rules.items()), "utf-8")


if __name__ == "__main__":
    main()
