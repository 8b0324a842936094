"""Every answer of the command as JSON is what docs/schema/answers says, and nothing there is said in vain.

    answers.py --source DIR --command PROGRAM --data DIR

Runs command lines of each kind, those of refused cases included, and holds what comes to the schema. A key
of a schema that no answer has is a fault too.
"""

import argparse
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

TYPES = {"string": str, "number": (int, float), "integer": int, "boolean": bool, "object": dict, "array": list,
         "null": type(None)}
WORDS = {"$schema", "$ref", "$defs", "title", "description", "type", "enum", "const", "properties", "required",
         "additionalProperties", "items", "minItems", "maxItems", "anyOf"}


class Schemas:
    """The schemas of a folder, and which of their keys an answer had."""

    def __init__(self, folder):
        self.files = {file.name: json.loads(file.read_text("utf-8")) for file in folder.glob("*.schema.json")}
        self.seen = set()

    def keys(self):
        """(definition, key) for every key of every object."""
        for file, schema in self.files.items():
            for name, rule in schema["$defs"].items():
                yield from ((f"{file}#/$defs/{name}", key) for key in rule.get("properties", {}))

    def faults(self, value, rule, file, place="$", name=""):
        """What of the value a rule does not allow; `name` is the definition that the rule is."""
        unknown = set(rule) - WORDS
        if unknown:
            raise SystemExit(f"{file}: {', '.join(unknown)} is not understood")
        if "$ref" in rule:
            other, _, path = rule["$ref"].partition("#/$defs/")
            other = other or file
            yield from self.faults(value, self.files[other]["$defs"][path], other, place, f"{other}#/$defs/{path}")
        if "anyOf" in rule:
            tried = [list(self.faults(value, each, file, place)) for each in rule["anyOf"]]
            if all(tried):
                yield from min(tried, key=lambda each: (each[0].startswith(f"{place}: "), len(each)))
        types = rule.get("type", list(TYPES))
        if not any(self.is_of(value, each) for each in ([types] if isinstance(types, str) else types)):
            yield f"{place}: {json.dumps(value, ensure_ascii=False)[:60]} is no {types}"
            return
        if value not in rule.get("enum", [rule.get("const", value)]):
            yield f"{place}: {value!r} is not among {rule.get('enum', rule.get('const'))}"
        if isinstance(value, dict):
            yield from self.object_faults(value, rule, file, place, name)
        elif isinstance(value, list):
            if not rule.get("minItems", 0) <= len(value) <= rule.get("maxItems", len(value)):
                yield f"{place}: has {len(value)} items"
            for i, each in enumerate(value):
                yield from self.faults(each, rule.get("items", {}), file, f"{place}[{i}]")

    @staticmethod
    def is_of(value, kind):
        return isinstance(value, TYPES[kind]) and (kind == "boolean" or not isinstance(value, bool))

    def object_faults(self, value, rule, file, place, name):
        known = rule.get("properties", {})
        for key in rule.get("required", []):
            if key not in value:
                yield f"{place}.{key}: is missing"
        for key, each in value.items():
            if key in known:
                self.seen.add((name, key))
            other = known.get(key, rule.get("additionalProperties", {}))
            if other is False:
                yield f"{place}.{key}: is not told in {file}"
            else:
                yield from self.faults(each, other, file, f"{place}.{key}")


def cases(folder):
    """The cases of the lines below, from the examples."""
    bolt, fillet, butt, group, member = (json.loads((folder / f"{name}.json").read_text("utf-8"))
                                         for name in ("bolt", "fillet", "butt", "weld-group", "member"))
    ordinary = {**bolt, "type": "ordinary", "id": 7, "class": "C", "grade": "4.6", "sumT": 16, "nv": 1, "steel": "Q235"}
    bearing = {**bolt, "type": "bearing", "sumT": 16, "nv": 1}
    for case in (ordinary, bearing):
        del case["nf"], case["surface"]
    loads = {key: member.pop(key) for key in ("N", "Mx", "My", "Vx", "Vy") if key in member}
    envelope = {**member, "cases": [{"id": "LC1", **loads}, {"id": "LC2", **loads, "N": loads["N"] / 2}]}
    member |= loads
    q235 = {"steel": "Q235", "lengths": {"x": 6000, "y": 6000}}
    limb = {"table": "双肢格构柱", "k(mm)": 300, "P1Type": "热轧普通槽钢", "P1No.": "[20a", "P1θ°": 90,
            "P2Type": "热轧普通槽钢", "P2No.": "[20a", "P2θ°": 270}
    bars = {"type": "lacing", "table": "热轧等边角钢", "no": "L45X5", "angle": 45}
    members = [
        member, envelope, {**member, "steel": "Q9"}, {**member, "code": "both"}, {**envelope, "code": "2003"},
        {**member, "N": loads["N"] * 1e6},  # beyond the force of elastic buckling
        {**q235, "N": -600, "Mx": 20000, "section": {"lattice": limb, "lacing": bars}},
        {**q235, "N": -300, "section": {"lattice": limb, "lacing": {"type": "battens", "width": 200, "thick": 10,
                                                                     "pitch": 1000}}},
        {**q235, "N": -300, "section": {"style": "circle", "sizes": [100]}},
        {**q235, "N": -300, "section": {"style": "t", "sizes": [200, 200, 12, 10]}},
        {**q235, "N": -300, "section": {"style": "cross", "sizes": [300, 300, 12, 12]}},
        {**q235, "N": -50, "section": {"table": "热轧不等边角钢", "no": "L100X63X8"}, "joined": "long-leg"},
        {**q235, "N": -50, "Mx": [5000, -9000], "My": 3000, "section": {"style": "h", "sizes": [200, 300, 12, 8]}},
        {**q235, "N": -300, "lengths": {"x": 2000, "y": 2000, "z": 9000}, "section": {"style": "h", "sizes": [300, 300, 12, 12]}},
        {**q235, "Mx": 100000, "load": "uniform", "loadFlange": "upper", "supports": 0, "stiffeners": 1000,
         "section": {"style": "h", "sizes": [200, 900, 12, 6]}, "net": {"A": 0.9, "W": 0.9}},
        {**q235, "N": -500, "section": {"style": "tube", "sizes": [200, 10]}},
    ]
    return {
        "bolts": [bolt, ordinary, bearing, {**bolt, "ey": 25}, {**bolt, "d": 21}, {**bolt, "code": "both"},
                  {**bolt, "hole": "oversize", "code": "both"}, {**bolt, "d": 21, "code": "both"}],
        "fillets": [fillet, {**fillet, "lw": 20}, {**fillet, "steel": "Q1", "code": "2003"}, {**fillet, "code": "both"}],
        "butts": [butt, {**butt, "N": 5000}, {**butt, "quality": 5}, {**butt, "code": "both"}],
        "groups": [group, {**group, "x": "far"}, {**group, "code": "both"}],
        "members": members, "bolt": bolt, "fillet": fillet, "butt": butt, "group": group, "member": member,
        "refused": {**bolt, "d": 21}, "beam": {**q235, "Mx": 100000, "load": "uniform"},
        "winds": [{**q235, "id": "wind", "Mx": 100000, "load": "uniform"}, {**q235, "id": "snow", "N": 100}],
        "limbs": {**limb, "No.": "G2"},
        "ring": {"unit": "mm", "loops": [[[0, 0], [90, 0], [90, 60], [0, 60]], [[20, 30, 1], [60, 30, 1]]]},
    }


BOX = '{"style": "box", "b": [200, 300, 50], "h": 400, "t": 16}'
H1 = ["自定义对称H型钢", "--set", "No.=H1", "--set", "b(mm)=300", "--set", "h(mm)=400", "--set", "tf(mm)=12",
      "--set", "tw(mm)=10"]
# A bore too small beside the tube for the solver.
THIN = ["自定义圆管", "--set", "No.=thin", "--set", "R(mm)=200000", "--set", "r(mm)=0.01"]
# Schema, exit status, command line; a word that names a case is its file.
LINES = [
    ("styles", 0, ["styles"]),
    *[("section", 0, ["section", *sizes.split()]) for sizes in
      ("h 300 400 20 10", "circle 60 --base 5 5 --name rod", "box 400 400 16", "triangle 60 50", "tube 2e5 0.01")],
    ("tables", 0, ["tables"]),
    ("rows", 0, ["rows", "热轧普通工字钢", "--where", "h(mm)>=300", "--sort", "A(cm^2):desc"]),
    ("rows", 0, ["rows", "热轧等边角钢", "--exact"]),
    *[("show", 0, ["show", *words.split()]) for words in
      ("热轧普通工字钢 I20a --turn 90", "热轧等边角钢 L50X5", "热轧等边角钢组合 2L100X10 --gap 8", "自定义对称H型钢 H1 --store own.KDB",
       "自定义圆管 thin --store own.KDB")],
    ("lattice", 0, ["lattice", "limbs"]),
    ("outline", 0, ["outline", "ring"]),
    ("outline", 0, ["outline", "ring", "--stress=10,500,-200,30,5,-8"]),
    ("gauge", 0, ["gauge", "热轧等边角钢", "L50X5"]),
    ("gauge", 0, ["gauge", "热轧普通工字钢", "I20a"]),
    *[("code", 0, ["code", *words.split()]) for words in
      ("steel Q345 20 f", "steel Q345 20 f --code 2003", "phi 100 235 b", "section-class flange 10 Q235", "class rolled-tube x",
       "eps Q420", "fatigue Z3 2e6", "mu sway 0 0", "slip 1 Q345", "weld Q345 10 ffw")],
    *[(f"check-{kind}", status, ["check", kind, each, *words]) for kind, each, many in
      (("bolt", "bolt", "bolts"), ("fillet", "fillet", "fillets"), ("butt", "butt", "butts"),
       ("weld-group", "group", "groups"), ("member", "member", "members"))
      for each, status, words in ((each, 0, []), (each, 0, ["--code", "2003"]), (each, 0, ["--code", "both"]), (many, 2, []),
                                  (many, 2, ["--code", "both", "--sort"]))],
    ("check-bolt", 2, ["check", "bolt", "refused", "--code", "both"]),
    ("choose", 0, ["choose", "beam", "--table", "热轧等边角钢,热轧普通工字钢", "--style", BOX, "--top", "30"]),
    ("choose", 0, ["choose", "winds", "--table", "热轧普通工字钢", "--top", "1"]),
    ("store-info", 0, ["store", "info"]),
    ("store-verify", 0, ["store", "verify"]),
    ("store-verify", 3, ["store", "verify", "--store", "cut.KDB"]),
    ("store-edit", 0, ["store", "delete", "自定义对称H型钢", "H1", "--store", "own.KDB"]),
    ("store-import", 2, ["store", "import", "rows.csv", "--table", "热轧普通工字钢", "--store", "own.KDB"]),
    ("store-edit", 0, ["store", "edit", "热轧普通工字钢", "I20a", "--set", "A(cm^2)=90", "--store", "own.KDB"]),
]
REFUSED = [["check", "bolt", "refused"], ["section", "h", "300"], ["show", "热轧普通工字钢", "I1"], ["code", "phi", "1", "235", "z"]]


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    for name in ("source", "command", "data"):
        parser.add_argument(f"--{name}", type=Path, required=True)
    options = parser.parse_args()
    schemas = Schemas(options.source / "docs/schema/answers")
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        given = cases(options.source / "examples")
        for name, case in given.items():
            Path(folder, name).write_text(json.dumps(case), "utf-8")
        environment = {"HOME": folder, "PATH": os.environ["PATH"], "ORV3CAL_DATA": str(options.data.resolve()), "ORV3CAL_LANG": "en"}

        def run(words, form="--json"):
            done = subprocess.run([options.command.resolve(), *words, form], cwd=folder, env=environment, capture_output=True)
            return done.returncode, done.stdout.decode("utf-8"), done.stderr.decode("utf-8")

        def hold(schema, status, words):
            code, out, told = run(words)
            if code != status or not out:
                faults.append(f"{' '.join(words)}: status {code}, {told.strip()}")
            else:
                hold_json(schema, out, words)

        def hold_json(schema, text, words):
            file = f"{schema}.schema.json"
            faults.extend(f"{' '.join(words)}: {each}" for each in schemas.faults(json.loads(text), schemas.files[file], file))

        for own in (H1, THIN):
            hold("store-edit", 0, ["store", "add", *own, "--store", "own.KDB"])
        Path(folder, "cut.KDB").write_bytes(Path(folder, "own.KDB").read_bytes()[:-40])
        rows = run(["rows", "热轧普通工字钢"], "--csv")[1].splitlines()
        good = next(row for row in rows if row.startswith("I20a,"))
        Path(folder, "rows.csv").write_text("\n".join([rows[0], good, good.replace("I20a,200", "I1,far")]), "utf-8")
        for line in LINES:
            hold(*line)
        run(["store", "export", "--store", "own.KDB", "--to"], "own.json")
        hold_json("store-export", Path(folder, "own.json").read_text("utf-8"), ["store", "export"])
        for words in REFUSED:
            code, out, told = run(words)
            if code != 2 or out or told.count("\n") != 1:
                faults.append(f"{' '.join(words)}: status {code}, {out}{told}")
    faults += [f"{name}: no answer has the key {key}" for name, key in schemas.keys() if (name, key) not in schemas.seen]
    print("\n".join(faults) or f"{len(LINES)} answers are as their schemas say")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
