"""The shapes of answers. Lengths in mm; a value that is not finite or not known is None."""

from __future__ import annotations

from typing import Optional, TypedDict, Union

Figures = dict[str, Optional[float]]
# Of a row: figures, whether it is symmetric, and the letters of its axes.
Geometry = dict[str, Union[float, bool, dict[str, str], None]]


class Size(TypedDict):
    sign: str
    title: str
    meaning: str


class Style(TypedDict):
    style: int
    alias: str
    table: str
    shape: str
    sizes: list[Size]


class Table(TypedDict):
    name: str
    source: str
    family: str
    rows: int
    columns: int
    mask: int


class Column(TypedDict):
    sign: str
    name: str
    type: str
    key: bool


class Row(TypedDict):
    index: int
    state: int
    cells: list[str]


class Rows(TypedDict):
    table: str
    columns: list[Column]
    rows: list[Row]


class Section(TypedDict):
    """properties: mm², mm³, mm⁴ about the base point and (…o) the centroid; geometry and exact: as
    :class:`Show` has them."""

    style: int
    table: str
    name: str
    sizes: list[float]
    base: list[float]
    properties: Figures
    geometry: Geometry
    exact: Figures
    accurate: bool
    errors: Figures


class Show(TypedDict):
    """geometry: by the row's cells; exact: what follows from the outline alone, origin at the lower left
    corner of its box."""

    table: str
    no: str
    columns: list[Column]
    cells: list[str]
    geometry: Geometry
    exact: Figures
    accurate: bool
    errors: Figures


class Limb(TypedDict):
    type: str
    no: str
    angle: float
    area: float
    x: float
    y: float


class Lattice(TypedDict):
    """area in mm², limbs' centroids in the frame of the results, angles in degrees."""

    table: str
    no: str
    properties: Figures
    limbs: list[Limb]


class _CodeFigure(TypedDict):
    value: Union[float, str]
    unit: str
    source: str


class CodeFigure(_CodeFigure, total=False):
    """value in ``unit``, a text for the class of a section; source: the clause or table; status: how it
    was got, such as "table", by the edition of 2017 alone."""

    status: str


class Chosen(TypedDict):
    table: str
    no: str
    mass: float
    ratio: float
    governs: str


class Choice(TypedDict):
    """rows: lightest first, mass in kg/m, ratio of the governing check."""

    code: str
    tried: int
    passing: int
    rows: list[Chosen]
