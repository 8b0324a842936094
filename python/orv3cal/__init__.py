"""Sections, catalogue and checks of structural steel by GB 50017 (editions of 2017 and 2003).

Every function answers what the command ``orv3cal`` answers with ``--json``, with the same digits;
the shapes are in :mod:`orv3cal.shapes`. Units: mm, kN, kN·mm; strengths and stresses in N/mm²
(MPa); mass in kg/m. What cannot be done raises :class:`Error` with the command's own sentence.

``store`` names a table file and ``data`` a program directory, as ``--store`` and ``--data`` do;
without them your own store serves, else the catalogue that comes with the module.

Calls from several threads are safe and run one after another; other threads of Python go on
meanwhile. A process that forks waits for the call that runs, and its child may call as well.
"""

from __future__ import annotations

from typing import Any, Iterable, Literal, Mapping, Optional, Sequence, Union, overload

from . import _command, shapes
from ._command import Error, Number, set_language
from ._frames import check_many, rows_frame
from ._orv3cal import __version__

__all__ = [
    "Error",
    "__version__",
    "check",
    "check_many",
    "choose",
    "code",
    "gauge",
    "lattice",
    "outline",
    "rows",
    "rows_frame",
    "section",
    "set_language",
    "shapes",
    "show",
    "styles",
    "tables",
]

_command.find_catalogue()

Case = Mapping[str, Any]
Edition = Optional[Literal["2017", "2003", 2017, 2003]]
Texts = Union[str, Iterable[str]]


def styles() -> list[shapes.Style]:
    """The fifteen styles of user-defined sections: number, alias, table, and sizes in order, mm."""
    return _command.answer(_command.line(["styles"], ["--json"], []))


def section(
    style: Union[str, int],
    *sizes: Number,
    base: Optional[tuple[Number, Number]] = None,
    name: Optional[str] = None,
) -> shapes.Section:
    """The properties of a user-defined section from its sizes.

    style: number 0 to 14, table name or alias ("h", "box" ...); sizes: mm, in the order of
    :func:`styles`; base: the point (x, y) in mm that Ix, Wx1, Sx1 ... are about, (0, 0) unless it
    is given. Areas in mm², moduli and static moments in mm³, moments of inertia and It in mm⁴, Iw in
    mm⁶. Source: the style's formulas in "properties", the outline itself in "exact".
    """
    options = ["--json", *_command.option("--name", name)]
    if base is not None:
        try:
            x, y = base
        except (TypeError, ValueError):
            raise Error(_command.say("base：{0!r} 不是点；应为 (x, y)", "base: {0!r} is no point; right would be (x, y)", base)) from None
        options += ["--base", _command.text_of(x), _command.text_of(y)]
    return _command.answer(_command.line(["section"], options, [style, *sizes]))


def tables(
    mask: Optional[int] = None, *, store: Optional[str] = None, data: Optional[str] = None
) -> list[shapes.Table]:
    """The tables of the store: name, source, family, and how many rows and columns they have."""
    options = ["--json", *_command.option("--mask", mask), *_command.stores(store, data)]
    return _command.answer(_command.line(["tables"], options, []))


def rows(
    table: str,
    where: Optional[str] = None,
    sort: Optional[str] = None,
    columns: Optional[Texts] = None,
    *,
    wildcard: bool = False,
    exact: bool = False,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> shapes.Rows:
    """The rows of a table, cells as text.

    where: conditions ``SIGN OPERATOR VALUE`` joined by ``&&`` or ``||``, operators ``== != >> << >= <=``;
    sort: a column's sign, ``:desc`` behind it to descend; columns: signs; wildcard: a ``*`` at an end
    of a value stands for any text; exact: the exact properties as columns too. A column's sign tells
    its unit: "A(cm^2)". :func:`rows_frame` answers numbers.
    """
    options = ["--json", *_rows_options(where, sort, columns, wildcard, exact)]
    return _command.answer(
        _command.line(["rows"], options + _command.stores(store, data), [table])
    )


def _rows_options(
    where: Optional[str],
    sort: Optional[str],
    columns: Optional[Texts],
    wildcard: bool,
    exact: bool,
) -> list[str]:
    return [
        *_command.option("--where", where),
        *_command.option("--sort", sort),
        *_command.option("--columns", None if columns is None else _command.joined("columns", columns)),
        *_command.option("--wildcard", wildcard),
        *_command.option("--exact", exact),
    ]


def show(
    table: str,
    no: str,
    *,
    turn: Optional[int] = None,
    gap: Optional[int] = None,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> shapes.Show:
    """A section of the catalogue or a store, its cells as printed and its geometry in mm.

    turn: 0, 90, 180 or 270 degrees counter-clockwise; gap: clear distance of a pair's sections, mm.
    Source: the row's cells in "geometry", the outline itself in "exact".
    """
    options = ["--json", *_command.option("--turn", turn), *_command.option("--gap", gap)]
    return _command.answer(
        _command.line(["show"], options + _command.stores(store, data), [table, no])
    )


def outline(
    loops: Union[Case, Sequence[Any]], unit: str = "mm", *, stress: Optional[Sequence[Number]] = None
) -> shapes.Outline:
    """The exact properties of any outline: area, inertia, torsion, warping, shear, plastic.

    loops: closed lists of points (x, y) or (x, y, bulge), the bulge being the tangent of a quarter of
    the angle of the arc that starts there; a loop within another is a hole. Or the whole
    ``{"unit", "loops"}``. stress: N, Mx, My, T and perhaps Vx, Vy in kN and kN·mm.
    """
    case = loops
    if not isinstance(loops, Mapping):
        points = ("闭合的点列 (x, y) 或 (x, y, bulge)", "closed lists of points (x, y) or (x, y, bulge)")
        case = {"unit": unit, "loops": _command.listed("loops", loops, points)}
    options = ["--json"]
    if stress is not None:
        forces = _command.listed("stress", stress, ("N、Mx、My、T 等数", "the numbers N, Mx, My, T"))
        options.append("--stress=" + ",".join(map(_command.text_of, forces)))
    return _command.answer(_command.line(["outline"], options, ["-"]), case)


def lattice(
    case: Case, *, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.Lattice:
    """A lattice column of two, three or four rolled limbs, by its table's column signs, mm."""
    options = ["--json", *_command.stores(store, data)]
    return _command.answer(_command.line(["lattice"], options, ["-"]), case)


def gauge(
    table: str, no: str, *, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.Gauge:
    """Where bolts may stand on a rolled I, channel or angle, and the largest holes, mm."""
    options = ["--json", *_command.stores(store, data)]
    return _command.answer(_command.line(["gauge"], options, [table, no]))


def code(
    question: str, *arguments: Number, edition: Union[str, int, None] = None
) -> shapes.CodeFigure:
    """A figure of the design code, with its unit and the clause or table that it is from.

    ``code("steel", "Q345", 20, "f")``: strength in N/mm² by grade and thickness in mm. The questions
    and what they take are those of ``orv3cal code --help``. edition: 2017, in force, unless it is
    given, or 2003, withdrawn.
    """
    if not isinstance(question, str) or question.startswith("-"):
        raise Error(
            _command.say(
                "“{0}”不是可查的数值；应为 orv3cal code --help 所列之一",
                '"{0}" is no question; right would be one of orv3cal code --help',
                question,
            )
        )
    options = ["--json", *_command.option("--code", edition)]
    return _command.answer(_command.line(["code", question], options, arguments))


@overload
def check(
    kind: Literal["bolt"], case: Case, *, edition: Edition = None, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.BoltCheck: ...


@overload
def check(
    kind: Literal["fillet"], case: Case, *, edition: Edition = None, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.FilletCheck: ...


@overload
def check(
    kind: Literal["butt"], case: Case, *, edition: Edition = None, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.ButtCheck: ...


@overload
def check(
    kind: Literal["weld-group"], case: Case, *, edition: Edition = None, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.WeldGroupCheck: ...


@overload
def check(
    kind: Literal["member"], case: Case, *, edition: Edition = None, store: Optional[str] = None, data: Optional[str] = None
) -> shapes.MemberCheck: ...


@overload
def check(
    kind: str,
    case: Any,
    *,
    edition: Union[str, int, None] = None,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> Any: ...


def check(
    kind: str,
    case: Any,
    *,
    edition: Union[str, int, None] = None,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> Any:
    """Checks a case, or each of a list of them, by GB 50017; "pass" tells whether it holds.

    kind: "bolt", "fillet", "butt", "weld-group" or "member"; case: the keys of a case file
    (docs/case-keys.md) in mm, kN, kN·mm. edition: 2017, 2003 or "both" for cases that name none.
    A case that fails is an answer; a case that cannot be checked raises :class:`Error`. One case by
    one edition is answered by :class:`shapes.BoltCheck` and the like, by both by
    :class:`shapes.BoltBoth`, a list by a list of these.
    """
    options = ["--json", *_command.option("--code", edition), *_command.stores(store, data)]
    return _command.answer(_command.line(["check"], options, [kind, "-"]), case)


def choose(
    case: Union[Case, Sequence[Case]],
    tables: Optional[Texts] = None,
    styles: Union[Case, Sequence[Case], None] = None,
    *,
    top: Optional[int] = None,
    edition: Union[str, int, None] = None,
    store: Optional[str] = None,
    data: Optional[str] = None,
) -> shapes.Choice:
    """The lightest sections that pass a member's case or cases, which name no section.

    tables: names of tables, or "all"; styles: ranges of sizes in mm, such as
    ``{"style": "box", "b": [200, 400, 50], "h": 400, "t": 16}``. Mass in kg/m. No rows when none
    passes.
    """
    options = [
        "--json",
        *_command.option("--table", None if tables is None else _command.joined("tables", tables)),
        *_command.option("--top", top),
        *_command.option("--code", edition),
        *_command.stores(store, data),
    ]
    if styles is not None:
        ranges = ("尺寸的范围，每种类型一个字典", "ranges of sizes, a dict for each style")
        for style in [styles] if isinstance(styles, Mapping) else _command.listed("styles", styles, ranges):
            options += ["--style", _command.json_of(style)]
    return _command.answer(_command.line(["choose"], options, ["-"]), case)
