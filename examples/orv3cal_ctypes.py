#!/usr/bin/env python3
"""Orv3Cal from Python, through its flat C interface (src/module/orv3cal_c.h).

    orv3cal_ctypes.py LIBRARY [DATA]

LIBRARY is Orv3CalDll.dll (with a Python of the same 32 or 64 bits) or liborv3cal.so. DATA is the
folder of the section stores, share/orv3cal of an installation. Needs nothing but Python itself.
"""

import ctypes
import os
import sys


class Orv3Error(Exception):
    """What orv3_last_error says of a call that failed."""


class Orv3Cal:
    PROPERTIES = ("xo yo A Ixo Iyo Wxo1 Wxo2 WyoL WyoR Sxo Syo ixo iyo Ix Iy Wx1 Wx2 WyL WyR "
                  "Sx1 Sx2 SyL SyR ix iy").split()
    GEOMETRY = ("area width height xc yc Ix Iy Sxo ix iy Wxo1 Wxo2 WyoL WyoR tmax tmin e0 Iw "
                "symX symY").split()

    def __init__(self, library):
        load = ctypes.WinDLL if os.name == "nt" else ctypes.CDLL  # stdcall on 32-bit Windows
        self._library = load(os.path.abspath(library))
        self.version = self._library.orv3_version()

    # --- The calling convention of the interface: texts in UTF-16, negative results are failures ---

    @staticmethod
    def _text(text):
        return ctypes.create_string_buffer((text + "\0").encode("utf-16-le"))

    def _check(self, result):
        if result < 0:
            raise Orv3Error(self._read(self._library.orv3_last_error))
        return result

    def _read(self, function, *arguments):
        """The text of a function that gives one: its length first, then the text."""
        length = self._check(function(*arguments, None, 0))
        room = ctypes.create_string_buffer(2 * (length + 1))
        self._check(function(*arguments, room, length + 1))
        return room.raw[:2 * length].decode("utf-16-le")

    def _number(self, function, *arguments):
        value = ctypes.c_double()
        self._check(function(*arguments, ctypes.byref(value)))
        return value.value

    def _numbers(self, function, names, *arguments):
        values = (ctypes.c_double * len(names))()
        self._check(function(*arguments, values, len(names)))
        return dict(zip(names, values))

    # --- Sections ----------------------------------------------------------------------------------

    def styles(self):
        return self._read(self._library.orv3_list_styles).split("\n")

    def sizes(self, style):
        return self._read(self._library.orv3_list_sizes, self._text(str(style))).split("\n")

    def section(self, style, sizes, base=(0, 0)):
        """The properties of a section by its sizes in mm: a dictionary."""
        given = (ctypes.c_double * len(sizes))(*sizes)
        return self._numbers(self._library.orv3_section, self.PROPERTIES, self._text(str(style)),
                             given, len(sizes), ctypes.c_double(base[0]),
                             ctypes.c_double(base[1]))

    # --- Catalogue ---------------------------------------------------------------------------------

    def open(self, folder):
        self._check(self._library.orv3_open_data(self._text(folder)))

    def tables(self, mask=0x03000FFF):
        return self._read(self._library.orv3_list_tables, mask).split("\n")

    def columns(self, table):
        return self._read(self._library.orv3_list_columns, self._text(table)).split("\n")

    def numbers(self, table):
        return self._read(self._library.orv3_list_numbers, self._text(table)).split("\n")

    def cell(self, table, number, sign):
        return self._read(self._library.orv3_cell, self._text(table), self._text(number),
                          self._text(sign))

    def value(self, table, number, sign):
        return self._number(self._library.orv3_cell_value, self._text(table), self._text(number),
                            self._text(sign))

    def geometry(self, table, number, turn=0):
        return self._numbers(self._library.orv3_geometry, self.GEOMETRY, self._text(table),
                             self._text(number), ctypes.c_double(turn))

    def pair_geometry(self, table, number, spacing, turn=0):
        """The same of a pair whose parts stand `spacing` mm apart."""
        return self._numbers(self._library.orv3_pair_geometry, self.GEOMETRY, self._text(table),
                             self._text(number), ctypes.c_double(spacing), ctypes.c_double(turn))

    # --- Checks: keyword arguments in, a dictionary out ----------------------------------------------

    @staticmethod
    def _lines(case):
        """Lines key=value: dictionaries within it with a point, lists with semicolons."""
        lines = []
        for key, value in case.items():
            if isinstance(value, dict):
                lines += [f"{key}.{line}" for line in Orv3Cal._lines(value)]
            elif isinstance(value, (list, tuple)):
                lines.append(f"{key}=" + ";".join(map(str, value)))
            else:
                lines.append(f"{key}={int(value) if isinstance(value, bool) else value}")
        return lines

    @staticmethod
    def _results(text):
        results = {"warnings": []}
        for key, _, value in (each.partition("=") for each in text.split("\n")):
            if key == "warning":
                results["warnings"].append(value)
            elif key == "pass":
                results[key] = value == "1"
            else:
                try:
                    results[key] = float(value)
                except ValueError:  # the name of a check, a class
                    results[key] = value
        return results

    def _case(self, function, case):
        return self._results(self._read(function, self._text("\n".join(self._lines(case)))))

    def check(self, kind, code="", **case):
        """kind: bolt, fillet, butt or weld-group; code: 2017 (in force, unless said) or 2003."""
        def by_edition(*arguments):
            return self._library.orv3_check(self._text(kind), self._text(code), *arguments)

        return self._case(by_edition, case)

    def check_bolt(self, **case):
        return self._case(self._library.orv3_check_bolt, case)

    def check_fillet(self, **case):
        return self._case(self._library.orv3_check_fillet, case)

    def check_butt(self, **case):
        return self._case(self._library.orv3_check_butt, case)

    # --- Members: cases as in the command's files, by the edition of GB 50017 in force unless said ---

    def check_member(self, case, code=""):
        text = self._text("\n".join(self._lines(case)))
        return self._results(self._read(self._library.orv3_check_member, self._text(code), text))

    def choose(self, tables, cases, code="", top=0):
        """The lightest rows that pass every case: (table, number, kg/m, ratio, governs, case)."""
        text = "\n\n".join("\n".join(self._lines(case)) for case in cases)
        lines = self._read(self._library.orv3_choose, self._text(",".join(tables)), self._text(code),
                           self._text(text), top).split("\n")
        return [tuple(line[4:].split(";", 5)) for line in lines if line.startswith("row=")]

    # --- Figures of GB 50017-2003 ------------------------------------------------------------------

    def steel_strength(self, steel, thickness, kind="f"):
        return self._number(self._library.orv3_steel_strength, self._text(steel),
                            ctypes.c_double(thickness), self._text(kind))

    def weld_strength(self, steel, thickness, kind):
        return self._number(self._library.orv3_weld_strength, self._text(steel),
                            ctypes.c_double(thickness), self._text(kind))

    def phi(self, slenderness, yield_strength, buckling_class):
        return self._number(self._library.orv3_phi, ctypes.c_double(slenderness),
                            ctypes.c_double(yield_strength), self._text(buckling_class))

    # --- Windows -----------------------------------------------------------------------------------

    def browse(self, mask=0x03000FFF):
        """The chosen row as a dictionary by column sign; empty when nothing was chosen."""
        room = ctypes.create_string_buffer(2 * 4096)
        length = self._check(self._library.orv3_browse(mask, room, 4096))
        lines = room.raw[:2 * length].decode("utf-16-le").split("\n") if length else []
        return dict(line.split("=", 1) for line in lines)


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__.strip())
    orv3 = Orv3Cal(sys.argv[1])
    print(f"interface version {orv3.version}, {len(orv3.styles())} section styles")

    h = orv3.section("h", [300, 400, 10, 10])
    print(f"H 400x300x10x10: A = {h['A']:.0f} mm2, Ixo = {h['Ixo'] / 1e4:.1f} cm4")
    print(f"Q345, 20 mm: f = {orv3.steel_strength('Q345', 20):.0f} N/mm2; "
          f"class b at 100: phi = {orv3.phi(100, 235, 'b'):.3f}")

    group = dict(layout="grid", type="friction", cols=2, rows=4, colSpace=80,
                 rowSpace=[70, 70, 80], d=20, nf=2, N=60, Vx=40, Vy=250, M=3000, T=15000, ex=50,
                 ey=50, t=16, steel="Q345", surface=0, grade="10.9")
    for code in ("2017", "2003"):
        bolts = orv3.check("bolt", code, **group)
        print(f"bolts by {code}: {'pass' if bolts['pass'] else 'FAIL'}, Nv = {bolts['Nv']:.1f} kN "
              f"of Nvb = {bolts['Nvb']:.2f} kN")
    try:
        orv3.section("h", [300, 400, 10])
    except Orv3Error as error:
        print(f"refused: {error}")

    column = orv3.check_member({"section": {"style": "h", "sizes": [300, 400, 20, 10]},
                                "steel": "Q345", "N": -800, "Mx": [-75000, 150000],
                                "lengths": {"x": 6000, "y": 3000}})
    print(f"column: {'pass' if column['pass'] else 'FAIL'}, {column['ratio']:.1%} "
          f"({column['governs']}), about y {column['stability-y']:.4f}")

    if len(sys.argv) == 3:
        orv3.open(sys.argv[2])
        brace = {"steel": "Q235", "lengths": {"x": 2000, "y": 2000}}
        angles = orv3.choose(["热轧等边角钢"], [brace | {"id": "wind", "N": -60},
                                                brace | {"id": "snow", "N": 150}], top=1)
        print("lightest angle:", *angles[0])
        table = "热轧普通工字钢"
        i20a = orv3.geometry(table, "I20a")
        print(f"I20a of {len(orv3.numbers(table))} in {len(orv3.tables())} tables: "
              f"A = {i20a['area']:.0f} mm2, h = {i20a['height']:.0f} mm, "
              f"Wx = {orv3.cell(table, 'I20a', 'Wx(cm^3)')} cm3")


if __name__ == "__main__":
    main()
