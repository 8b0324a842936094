"""The installed module: a section, a row of the catalogue, and many cases of a file at once."""

import sys

import pandas

import orv3cal

assert orv3cal.section("h", 300, 400, 20, 10)["properties"]["A"] == 15600
assert abs(orv3cal.show("热轧普通工字钢", "I20a")["geometry"]["area"] - 3557.8) < 1e-9
cases = pandas.read_csv(sys.argv[1])
many = pandas.concat([cases] * 500, ignore_index=True)
answers = orv3cal.check_many("bolt", many)
assert len(answers) == len(many) and answers["pass"].dtype == bool
passed = orv3cal.check_many("bolt", cases)["pass"]
assert (answers["pass"].to_numpy().reshape(-1, len(cases)) == passed.to_numpy()).all()
