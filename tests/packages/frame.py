"""The installed module: a section, a row of the catalogue, and 100,000 cases at once beside the command.

    frame.py CASES.csv [COMMAND]

Says how long both took.
"""

import io
import subprocess
import sys
import time

import numpy
import pandas

import orv3cal


def seconds(work):
    """What `work` answers, and how long it took."""
    start = time.perf_counter()
    answer = work()
    return answer, time.perf_counter() - start


assert orv3cal.section("h", 300, 400, 20, 10)["properties"]["A"] == 15600
assert abs(orv3cal.show("热轧普通工字钢", "I20a")["geometry"]["area"] - 3557.8) < 1e-9
cases = pandas.read_csv(sys.argv[1], index_col=False)
many = pandas.concat([cases] * (100_000 // len(cases)), ignore_index=True)
many["Vx"] *= numpy.linspace(0.5, 3, len(many))
answers, taken = seconds(lambda: orv3cal.check_many("bolt", many))
print(f"{len(many)} cases, {int(answers['pass'].sum())} pass: check_many {taken:.2f} s")
assert len(answers) == 100_000 and answers["pass"].dtype == bool and 0 < answers["pass"].sum() < 100_000
if sys.argv[2:]:
    many.to_csv("/tmp/many.csv", index=False)
    command = [sys.argv[2], "check", "bolt", "/tmp/many.csv", "--csv"]
    printed, taken = seconds(lambda: subprocess.run(command, stdout=subprocess.PIPE, encoding="utf-8").stdout)
    print(f"the command with CSV {taken:.2f} s")
    same = pandas.read_csv(io.StringIO(printed), index_col=False, float_precision="round_trip", low_memory=False)
    assert (same["utilisation"] == answers["utilisation"]).all() and (same["pass"] == answers["pass"]).all()
