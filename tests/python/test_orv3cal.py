"""The Python module beside the command: the same shapes, digits and sentences.

Environment: ORV3CAL_PROGRAM the command, ORV3CAL_DATA the catalogue, ORV3CAL_EXAMPLES the examples.
"""

import csv
import io
import json
import math
import os
import signal
import subprocess
import tempfile
import threading
import unittest
from concurrent.futures import ThreadPoolExecutor
from decimal import Decimal
from fractions import Fraction
from pathlib import Path

import numpy
import pandas

import orv3cal

EXAMPLES = Path(os.environ["ORV3CAL_EXAMPLES"])
BOLT = json.loads((EXAMPLES / "bolt.json").read_text("utf-8"))
ANGLES = json.loads((EXAMPLES / "lattice-4.json").read_text("utf-8"))
BEAM = {"steel": "Q235", "Mx": 100000, "load": "uniform", "lengths": {"x": 6000, "y": 6000}}
I_BEAMS = "热轧普通工字钢"


def command(*arguments, given=""):
    """Exit status, output and error of the command."""
    done = subprocess.run(
        [os.environ["ORV3CAL_PROGRAM"], *arguments], input=given.encode(), capture_output=True
    )
    return done.returncode, done.stdout.decode(), done.stderr.decode()


class Answers(unittest.TestCase):
    def test_are_the_commands(self):
        square = [[[0, 0], [90.5, 0], [90.5, 60], [0, 60]], [[20, 30, 1], [60, 30, 1]]]
        member = {**BEAM, "section": {"style": "h", "sizes": [300, 600, 20, 12]}}
        for answer, line, given in [
            (orv3cal.styles(), "styles", None),
            (orv3cal.section("h", 300, 400, 20, numpy.float64(10)), "section h 300 400 20 10", None),
            (
                orv3cal.section("circle", 0.1 + 0.2, base=(-1e-3, 5), name="-5"),
                "section circle 0.30000000000000004 --base -0.001 5 --name=-5",
                None,
            ),
            (orv3cal.tables(mask=0x01000001), "tables --mask 0x01000001", None),
            (
                orv3cal.rows(I_BEAMS, "h(mm)>=300", "A(cm^2):desc", ["No.", "A(cm^2)"]),
                f"rows {I_BEAMS} --where h(mm)>=300 --sort A(cm^2):desc --columns No.,A(cm^2)",
                None,
            ),
            (
                orv3cal.rows(I_BEAMS, "No.==I20*", wildcard=True, exact=True),
                f"rows {I_BEAMS} --where No.==I20* --wildcard --exact",
                None,
            ),
            (orv3cal.show(I_BEAMS, "I20a", turn=90), f"show {I_BEAMS} I20a --turn 90", None),
            (orv3cal.gauge(I_BEAMS, "I20a"), f"gauge {I_BEAMS} I20a", None),
            (orv3cal.outline(square), "outline -", {"unit": "mm", "loops": square}),
            (orv3cal.lattice(ANGLES), "lattice -", ANGLES),
            (orv3cal.code("steel", "Q345", 20, "f"), "code steel Q345 20 f", None),
            (orv3cal.code("phi", 40.5, 235, "b", edition=2003), "code phi 40.5 235 b --code 2003", None),
            (orv3cal.check("bolt", BOLT, edition="both"), "check bolt - --code both", BOLT),
            (orv3cal.check("bolt", [BOLT, BOLT]), "check bolt -", [BOLT, BOLT]),
            (orv3cal.check("member", member), "check member -", member),
            (
                orv3cal.choose(BEAM, ["热轧窄翼缘H型钢", I_BEAMS], top=3),
                f"choose - --table 热轧窄翼缘H型钢,{I_BEAMS} --top 3",
                BEAM,
            ),
            (
                orv3cal.choose(BEAM, styles={"style": "h", "b": 200, "h": [300, 500, 50], "tf": 12, "tw": 8}),
                ["choose", "-", "--style", '{"style": "h", "b": 200, "h": [300, 500, 50], "tf": 12, "tw": 8}'],
                BEAM,
            ),
        ]:
            arguments = line.split() if isinstance(line, str) else line
            with self.subTest(line=line):
                status, out, _ = command(*arguments, "--json", given=json.dumps(given) if given else "")
                self.assertLess(status, 2)
                self.assertEqual(json.dumps(answer), json.dumps(json.loads(out)))

    def test_tell_faults_in_the_commands_words(self):
        for call, line, status in [
            (lambda: orv3cal.section("h", 300, 400), "section h 300 400", 2),
            (lambda: orv3cal.section("h", 300, 400, 20, math.nan), "section h 300 400 20 nan", 2),
            (lambda: orv3cal.section("--help"), "section -- --help", 2),
            (lambda: orv3cal.rows("没有"), "rows 没有", 2),
            (lambda: orv3cal.show(I_BEAMS, "I20a", store="missing.KDB"), f"show {I_BEAMS} I20a --store missing.KDB", 3),
            (lambda: orv3cal.code("steel", "Q1", 20), "code steel Q1 20", 2),
            (lambda: orv3cal.code("nothing"), "code nothing", 2),
            (lambda: orv3cal.check("bolt", BOLT, edition=1999), "check bolt - --code 1999", 2),
            (lambda: orv3cal.check("bolts", BOLT), "check bolts -", 2),
        ]:
            with self.subTest(line=line):
                code, _, told = command(*line.split(), given=json.dumps(BOLT))
                self.assertEqual(code, status)
                with self.assertRaises(orv3cal.Error) as raised:
                    call()
                words = told.strip().removeprefix("orv3cal: ").removeprefix("-: ")
                self.assertEqual((str(raised.exception), raised.exception.status), (words, status))

    def test_take_an_empty_text_for_no_option(self):
        with self.assertRaisesRegex(orv3cal.Error, "name"):
            orv3cal.section("h", 300, 400, 20, 10, name="")
        with self.assertRaisesRegex(orv3cal.Error, "--where"):
            orv3cal.rows(I_BEAMS, where="")

    def test_open_no_other_file_than_the_named(self):
        with tempfile.TemporaryDirectory() as folder:
            store = Path(folder) / "x.KDB"
            store.write_bytes((Path(os.environ["ORV3CAL_DATA"]) / "KvbSystemJmDataBase.KDB").read_bytes())
            self.assertTrue(orv3cal.rows(I_BEAMS, store=store)["rows"])
            for call in [
                lambda: orv3cal.rows(I_BEAMS, store=f"{store}\0y"),
                lambda: orv3cal.tables(data="\0"),
                lambda: orv3cal.rows(I_BEAMS, "No.==I20a\0"),
                lambda: orv3cal.check_many("bolt", {"d": [20.0]}, store="x\0"),
            ]:
                with self.assertRaisesRegex(orv3cal.Error, r"\\x00.*NUL"):
                    call()
            for store in [os.fsencode(store), True, 5]:
                with self.assertRaisesRegex(orv3cal.Error, "^store=.* is no path"):
                    orv3cal.rows(I_BEAMS, store=store)

    def test_refuse_what_is_of_another_kind(self):
        for call, words in [
            (lambda: orv3cal.rows(I_BEAMS, columns=5), "^columns: 5 is no list"),
            (lambda: orv3cal.rows_frame(I_BEAMS, columns=numpy.array("h")), "^columns: .* is no list"),
            (lambda: orv3cal.rows(I_BEAMS, columns=[]), "^columns: is an empty list"),
            (lambda: orv3cal.choose(BEAM, 3.5), "^tables: 3.5 is no list"),
            (lambda: orv3cal.choose(BEAM, styles="h"), "^styles: 'h' is no list"),
            (lambda: orv3cal.choose(BEAM, styles=None), "--table"),  # as when it is left out
            (lambda: orv3cal.outline(None), "^loops: None is no list"),
            (lambda: orv3cal.outline([[[0, 0], [9, 0], [9, 9]]], stress=1), "^stress: 1 is no list"),
            (lambda: orv3cal.code(5), "5.* is no question"),
            (lambda: orv3cal.set_language(numpy.array(["zh", "en"])), "is no language"),
            (lambda: orv3cal.check_many("bolt", pandas.Series(BOLT)), "Series has no columns"),
        ]:
            with self.subTest(words=words), self.assertRaisesRegex(orv3cal.Error, words):
                call()

    def test_refuse_what_is_no_case(self):
        for case in [{}, {**BOLT, "d": None}, {**BOLT, "x": 1}, [], "{", "\ud800", {"d": "\ud800"}, 5]:
            with self.subTest(case=ascii(case)), self.assertRaises(orv3cal.Error):
                orv3cal.check("bolt", case)
        for fault in [float("nan"), numpy.float64("inf"), {1, 2}]:
            with self.assertRaisesRegex(orv3cal.Error, r"^n\[1\]\.d: "):
                orv3cal.check("bolt", {**BOLT, "n": [1, {"d": fault}]})
        with self.assertRaises(orv3cal.Error):
            orv3cal.code("--help")
        with self.assertRaisesRegex(orv3cal.Error, "base"):
            orv3cal.section("circle", 20, base=5)
        with self.assertRaisesRegex(orv3cal.Error, "^none: data= must name a folder"):
            orv3cal.tables(data="none")

    def test_come_in_the_language_that_is_asked_for(self):
        try:
            orv3cal.set_language("zh")
            answer = orv3cal.check("bolt", {**BOLT, "ey": 25})
            self.assertEqual(answer["governs"], "spacing")  # a key, in any language
            self.assertIn("小于", answer["warnings"][0]["text"])
            with self.assertRaisesRegex(orv3cal.Error, "应为"):
                orv3cal.section("nothing")
            self.assertRegex(orv3cal.check_many("bolt", {"d": [20, object()]})["refused"][1], "^d：.*object.* 不可用；请")
            with self.assertRaisesRegex(orv3cal.Error, "d.*应为有限的数"):
                orv3cal.check("bolt", {"d": math.inf})
        finally:
            orv3cal.set_language("en")
        with self.assertRaises(orv3cal.Error):
            orv3cal.set_language("fr")

    def test_are_right_when_many_threads_ask(self):
        wanted = {h: orv3cal.section("h", 300, h, 20, 10)["properties"]["A"] for h in range(400, 420)}
        frame = {"d": [20.0] * 50, **{key: [value] * 50 for key, value in BOLT.items() if key != "d"}}

        def ask(h):
            for _ in range(5):
                self.assertEqual(orv3cal.section("h", 300, h, 20, 10)["properties"]["A"], wanted[h])
                self.assertEqual(len(orv3cal.check_many("bolt", frame)["pass"]), 50)
                with self.assertRaisesRegex(orv3cal.Error, "1 was given"):
                    orv3cal.section("h", h)

        with ThreadPoolExecutor(8) as pool:
            list(pool.map(ask, wanted))


    @unittest.skipUnless(hasattr(os, "fork"), "no fork")
    def test_are_had_by_a_child_that_was_forked_beside_a_check(self):
        frame = {key: [value] * 5000 for key, value in BOLT.items()}
        done = threading.Event()

        def check():
            while not done.is_set():
                orv3cal.check_many("bolt", frame)

        checking = threading.Thread(target=check)
        checking.start()
        try:
            for _ in range(10):
                child = os.fork()
                if child == 0:
                    signal.alarm(60)  # ends one that hangs
                    try:
                        os._exit(0 if orv3cal.section("rect", 3, 4)["properties"]["A"] == 12 else 1)
                    finally:
                        os._exit(2)
                self.assertEqual(os.waitpid(child, 0)[1], 0)
        finally:
            done.set()
            checking.join()


class Frames(unittest.TestCase):
    def assert_is_the_csv(self, kind, frame, text, *options, edition=None):
        """check_many answers what the command prints for the same cases as a CSV."""
        with tempfile.TemporaryDirectory() as folder:
            case_file = Path(folder) / "cases.csv"
            case_file.write_text(text, "utf-8")
            _, out, _ = command("check", kind, str(case_file), "--csv", *options)
        printed = list(csv.DictReader(io.StringIO(out)))
        answer = orv3cal.check_many(kind, frame, edition=edition)
        self.assertEqual(list(answer.columns), list(printed[0]))
        self.assertEqual(len(answer), len(printed))
        for key in answer.columns:
            for value, cell in zip(answer[key], (row[key] for row in printed)):
                self.assertEqual(self.text(value), self.text_of_cell(cell, key), key)
        return answer

    @staticmethod
    def text(value):
        if value is None or value is pandas.NA or value != value:
            return ""
        if isinstance(value, (bool, numpy.bool_)):
            return "true" if value else "false"
        return value if isinstance(value, str) else repr(float(value))

    @staticmethod
    def text_of_cell(cell, key):
        if cell == "":
            return "false" if key == "pass" else ""
        if key in ("id", "code") or not cell.replace("e", "").strip("-+.0123456789") == "":
            return cell
        return repr(float(cell))

    def test_answer_what_the_csv_answers(self):
        for kind, name in [("bolt", "bolts.csv"), ("member", "members.csv")]:
            text = (EXAMPLES / name).read_text("utf-8")
            frame = pandas.read_csv(EXAMPLES / name)
            for edition in (None, "2003", "both"):
                with self.subTest(kind=kind, edition=edition):
                    options = () if edition is None else ("--code", edition)
                    self.assert_is_the_csv(kind, frame, text, *options, edition=edition)

    def test_take_cells_of_every_sort(self):
        frame = pandas.DataFrame(
            {
                "id": [20260001000000001, 2, 3, 4],
                "layout": pandas.Categorical(["grid"] * 4),
                "type": ["ordinary", "friction", "ordinary", "ordinary"],
                "cols": numpy.array([3, 3, 3, 3], dtype=numpy.int32),
                "rows": [2, 2, 2, 2],
                "colSpace": [[70, 80], "70;80", 75, (75, numpy.float32(75))],
                "rowSpace": numpy.float32(80),
                "d": [20.0, 20.0, None, 20.0],
                "sumT": [12, None, 12, 12],
                "nv": pandas.array([1, None, 1, 1], dtype="Int64"),
                "nf": pandas.array([None, 2, None, None], dtype="Int64"),
                "Vx": [150, 150, 150, numpy.nan],
                "Vy": 0, "N": 0, "M": 0, "T": 0, "ex": 45, "ey": 45, "t": 12,
                "steel": "Q235",
                "surface": [numpy.nan, 1, numpy.nan, numpy.nan],
                "grade": [8.8, 10.9, 8.8, 8.8],
                "class": ["B", "", "B", "B"],
            },
            index=["a", "b", "c", "d"],
        )
        text = frame.assign(colSpace=["70;80", "70;80", "75", "75;75"]).to_csv(index=False)
        answer = self.assert_is_the_csv("bolt", frame, text)
        self.assertEqual(list(answer.index), ["a", "b", "c", "d"])
        self.assertEqual(list(answer["id"]), ["20260001000000001", "2", "3", "4"])
        self.assertEqual(answer["pass"].dtype, bool)
        self.assertFalse(answer["pass"]["c"])
        self.assertIn("d: ", answer["refused"]["c"])

    def test_keep_to_their_rows(self):
        good = dict.fromkeys(["a", "b", "c"])
        frame = pandas.DataFrame({key: [value, None, value] for key, value in BOLT.items()}, index=list(good))
        answer = orv3cal.check_many("bolt", frame, edition="both")
        self.assertEqual(list(answer.index), ["a", "a", "b", "b", "c", "c"])
        self.assertEqual(list(answer["code"][:2]), ["2017", "2003"])
        self.assertFalse(answer["pass"]["b"].any())
        arrays = orv3cal.check_many("bolt", {key: numpy.array([value]) for key, value in BOLT.items()})
        self.assertIsInstance(arrays["utilisation"], numpy.ndarray)
        self.assertEqual(arrays["utilisation"][0], orv3cal.check("bolt", BOLT)["utilisation"])

    def test_answer_no_rows_by_none(self):
        member = {**BEAM, "section.style": "h", "section.sizes": "300;400;20;10", "lengths.x": 6000.0, "lengths.y": 6000.0}
        for kind, case in [("bolt", BOLT), ("member", {key: each for key, each in member.items() if key != "lengths"})]:
            frame = pandas.DataFrame([case])
            for edition in (None, "both"):
                some, none = (orv3cal.check_many(kind, each, edition=edition) for each in (frame, frame[frame["steel"] == ""]))
                self.assertEqual((len(none), list(none.dtypes.items())), (0, list(some.dtypes.items())))
        self.assertEqual(len(orv3cal.check_many("bolt", {"d": []})["pass"]), 0)

    def test_take_what_is_masked_as_missing(self):
        weld = {"case": 4, "steel": "Q235", "lw": 200.0, "N": 50.0, "M": 0.0, "V": 30.0, "betaF": 1.22, "he": 5.6}
        ma = numpy.ma
        for key, column in [
            ("N", ma.array([50.0, 0.0], mask=[0, 1])),  # a weld that would pass with the 0
            ("N", ma.array([50, 0], mask=[0, 1])),
            ("N", [50.0, ma.masked]),
            ("N", ma.array([50, 0], mask=[0, 1], dtype=object)),
            ("steel", ma.array(["Q235", "Q355"], mask=[0, 1])),
        ]:
            with self.subTest(column=column):
                answer = orv3cal.check_many("fillet", {**{k: [v, v] for k, v in weld.items()}, key: column})
                self.assertEqual(list(answer["pass"]), [True, False])
                self.assertIn(f"{key}: is missing", answer["refused"][1])

    def test_refuse_one_cell_in_its_row_alone(self):
        dates = pandas.to_datetime(["2020-01-01", "NaT"])
        for key, values, words in [
            ("d", [b"20", 20], "^d: b'20' is not possible; "),
            ("d", [10**400, 20], "^d: 10+… is not possible; "),
            ("d", [object(), 20], "^d: <object"),
            ("d", [20 + 0j, 20], r"^d: \(20\+0j\) "),
            ("d", [Decimal("sNaN"), 20], "^d: Decimal"),
            ("d", [pandas.Series([20.0]), 20], "^d: a list "),  # of one number as well
            ("d", dates, r"^d: .*datetime64\('2020"),
            ("d", pandas.Series(dates).dt.tz_localize("UTC"), "^d: Timestamp"),
            ("d", numpy.array([20, 30], "timedelta64[ns]"), "^d: .*timedelta64"),
            ("steel", ["\ud800", "Q345"], "^steel: is not UTF-8 text; "),
            ("colSpace", [[70, None], 80], "^colSpace: None is not possible in a list; "),
            ("colSpace", [[True], 80], "^colSpace: True is not possible in a list; "),
            ("colSpace", [[[70]], 80], "^colSpace: .* in a list; "),
            ("colSpace", [numpy.ma.array([70.0], mask=[1]), 80], "^colSpace: None is not possible in a list; "),
            ("id", [True, "b"], "^id: true is not possible; "),
        ]:
            with self.subTest(key=key, words=words):
                answer = orv3cal.check_many("bolt", {**{k: [v, v] for k, v in BOLT.items()}, key: values})
                self.assertRegex(answer["refused"][0], words)
                self.assertFalse(answer["pass"][0])
                missing = values is dates or "timedelta" in words or "Timestamp" in words
                self.assertEqual(answer["pass"][1], not missing)

    def test_take_the_values_that_check_takes(self):
        sizes = [300, 400, 20, 10]
        member = {"steel": "Q345", "N": -800, "lengths": {"x": 6000, "y": 3000}}
        row = {"section.style": "h", "steel": "Q345", "N": -800, "lengths.x": 6000, "lengths.y": 3000}
        columns = {key: [value] for key, value in row.items()}
        ratio = orv3cal.check("member", {**member, "section": {"style": "h", "sizes": sizes}})["ratio"]
        for given in [
            tuple(sizes),
            numpy.array(sizes, dtype="f4"),
            pandas.Series(sizes, index=[5] * 4),
            pandas.array(sizes, dtype="Int64"),
            [Decimal(300), Fraction(400), numpy.array(20.0), numpy.int64(10)],
        ]:
            with self.subTest(given=given):
                one = orv3cal.check("member", {**member, "section": {"style": "h", "sizes": given}})
                many = orv3cal.check_many("member", {**columns, "section.sizes": [given]})
                self.assertEqual((one["ratio"], many["ratio"][0]), (ratio, ratio))

    def test_name_a_case_as_check_does(self):
        for name, told in [
            (20260001.0, "20260001"),
            (1e15, "1000000000000000"),
            (20260001000000000.0, "20260001000000000"),
            (1.5, "1.5"),
            (-0.0, "0"),
            (10**30, "1" + "0" * 30),
            (Decimal("7"), "7"),
        ]:
            with self.subTest(name=name):
                self.assertEqual(orv3cal.check("bolt", {**BOLT, "id": name})["id"], told)
                for ids in [[name], pandas.Series([name]), pandas.Series([name, None])]:
                    columns = {**{key: [value] * len(ids) for key, value in BOLT.items()}, "id": ids}
                    self.assertEqual(orv3cal.check_many("bolt", columns)["id"][0], told)

    def test_take_true_and_false_as_no_numbers(self):
        for truth, dtype in [(True, bool), (True, object), (numpy.True_, object)]:
            frame = pandas.DataFrame({key: [value] for key, value in BOLT.items()})
            frame["Vy"] = numpy.array([truth], dtype=dtype)
            answer = orv3cal.check_many("bolt", frame)
            self.assertFalse(answer["pass"][0])
            self.assertIn("Vy: true", answer["refused"][0])

    def test_refuse_what_is_no_frame_of_cases(self):
        for columns, words in [
            ({}, "no case"),
            ({"nothing": []}, "nothing"),
            ({"nothing": [1.0]}, "nothing"),
            ({"d": [1.0], "t": [1.0, 2.0]}, "t: 2 values"),
            ({"d": numpy.ones((1, 1))}, "dimensions"),
            ({"\ud800": [1.0]}, "UTF-8"),
            ([BOLT], "no columns"),
            (pandas.DataFrame([[1.0, 2.0]], columns=["d", "d"]), "d: "),
        ]:
            with self.subTest(columns=columns), self.assertRaisesRegex(orv3cal.Error, words):
                orv3cal.check_many("bolt", columns)
        with self.assertRaisesRegex(orv3cal.Error, "missing.KDB"):
            orv3cal.check_many("member", {"steel": ["Q235"]}, store="missing.KDB")

    def test_hold_the_rows_of_a_table_as_numbers(self):
        frame = orv3cal.rows_frame(I_BEAMS, "h(mm)>=600")
        cells = orv3cal.rows(I_BEAMS, "h(mm)>=600")["rows"]
        self.assertEqual(len(frame), len(cells))
        self.assertEqual(frame["h(mm)"].dtype, float)
        self.assertEqual(list(frame["No."]), [row["cells"][0] for row in cells])
        signs = list(orv3cal.rows_frame("自定义对称H型钢").columns)  # has two of this sign
        self.assertEqual(signs.count("ixo(mm)"), 2)


if __name__ == "__main__":
    unittest.main()
