"""Many cases and rows at once, as numpy arrays or pandas frames."""

from __future__ import annotations

from typing import Any, Optional, Sequence, Union

from . import _command, _orv3cal
from ._command import Error, say

_REFUSED = 2


def _cells(values: Sequence[Any]) -> Any:
    """A column of objects, to be looked at one by one: a cell may hold a list of any length."""
    import numpy

    array = numpy.empty(len(values), dtype=object)
    for i, value in enumerate(values):
        array[i] = value
    return array


def _array(key: str, values: Any) -> Any:
    """A column as the extension takes it: float64, or objects."""
    import numpy

    if isinstance(values, Sequence) and not isinstance(values, (str, bytes)):
        return _cells(values)
    array = values if isinstance(values, numpy.ma.MaskedArray) else numpy.asarray(values)
    if array.ndim != 1:
        raise Error(
            say(
                "{0}：有 {1} 维；应为每个算例一个值",
                "{0}: {1} dimensions; right would be one value for each case",
                key,
                array.ndim,
            )
        )
    # What lies under a mask is no value, and dates become numbers as objects: cell by cell.
    if numpy.ma.is_masked(array) or array.dtype.kind in "mM":
        return _cells(list(array))
    if array.dtype.kind == "f" or (array.dtype.kind in "iu" and key != "id"):
        return numpy.ascontiguousarray(array, dtype=numpy.float64)
    return numpy.ascontiguousarray(array, dtype=object)


def _columns(frame: Any) -> dict[str, Any]:
    if not hasattr(frame, "keys") or getattr(frame, "ndim", 2) != 2:  # a series has keys too
        raise Error(
            say(
                "{0} 没有列；应为数据框，或由键到各算例之值的映射",
                "{0} has no columns; right would be a frame, or a mapping of keys to the cases' values",
                type(frame).__name__,
            )
        )
    columns: dict[str, Any] = {}
    for key in frame.keys():
        name = str(key)
        if name in columns or (hasattr(frame, "index") and frame[key].ndim != 1):
            raise Error(
                say("{0}：有两列同名；应只给一次", "{0}: stands over two columns; give it once", name)
            )
        columns[name] = _array(name, frame[key])
    return columns


def _verdicts(values: Any) -> Any:
    """True, False, and None where the case has no such verdict."""
    import numpy

    return numpy.array([False, True, None], dtype=object)[values]


def check_many(
    kind: str,
    frame: Any,
    *,
    edition: Union[str, int, None] = None,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> Any:
    """Checks every row of a pandas frame, or of a mapping of keys to arrays, without a Python loop.

    The columns are the keys of a case file (docs/case-keys.md) in mm, kN, kN·mm, an inner key as
    "lengths.x"; None, NaN and what is masked leave a key out, a list of numbers may stand in a cell. The answer has
    the columns of the command's ``--csv``, in the same digits: a frame with the index of ``frame``,
    or a dict of arrays for a mapping. Numbers are float64, "pass" is bool, the other verdicts are
    True, False or missing. A frame without rows is answered by one. A row that is refused, for a cell
    of a wrong kind too, does not pass and says why in "refused". With
    edition="both" each row has two answers, 2017 first.

    Raises :class:`Error` for a key that is unknown and for trouble with a file. The interpreter lock
    is released meanwhile.
    """
    import numpy

    columns = _columns(frame)
    cases = len(next(iter(columns.values()))) if columns else 0
    options = ["--csv", *_command.option("--code", edition), *_command.stores(store, data)]
    arguments = _command.line(["check"], options, [kind, "-"])
    try:
        status, answer, told = _orv3cal.run_cases(arguments, columns, _command.plain)
    except (TypeError, ValueError) as fault:
        raise Error(str(fault)) from None
    row = numpy.array(answer.pop("case", ()), dtype=numpy.int64)
    whole = len(row) > 0 and row[-1] == cases
    if status > _REFUSED or (status == _REFUSED and not whole):
        raise Error(_command.sentence(told), status)

    result: dict[str, Any] = {"case": row}
    for key, values in answer.items():
        if isinstance(values, list):
            values = numpy.array(values, dtype=object)
        elif values.dtype == numpy.int8:
            values = values == 1 if key == "pass" else _verdicts(values)
        result[key] = values
    if not hasattr(frame, "index"):
        return result
    import pandas

    table = pandas.DataFrame(result, index=frame.index[row - 1])
    verdicts = [key for key, values in answer.items() if getattr(values, "dtype", None) == "int8"]
    return table.astype({key: "boolean" for key in verdicts if key != "pass"})


def rows_frame(
    table: str,
    where: Optional[str] = None,
    sort: Optional[str] = None,
    columns: Any = None,
    *,
    wildcard: bool = False,
    exact: bool = False,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> Any:
    """What :func:`orv3cal.rows` answers as a pandas frame: texts, and float64 for every number.

    An empty cell of a number is NaN. A column's sign tells its unit: "A(cm^2)".
    """
    import pandas

    from . import rows

    answer = rows(
        table, where, sort, columns, wildcard=wildcard, exact=exact, store=store, data=data
    )
    signs = [column["sign"] for column in answer["columns"]]
    frame = pandas.DataFrame(
        [row["cells"] for row in answer["rows"]], columns=range(len(signs)), dtype=object
    )
    for at, column in enumerate(answer["columns"]):
        if column["type"] not in ("text", "char"):
            cells = frame[at].replace("", float("nan"))
            try:
                frame[at] = pandas.to_numeric(cells).astype("float64")
            except ValueError:
                raise Error(
                    say(
                        "{0}：{1} 列有不是数的单元格",
                        "{0}: a cell of column {1} is no number",
                        table,
                        column["sign"],
                    )
                ) from None
    frame.columns = signs  # last: a table may have a sign twice
    return frame
