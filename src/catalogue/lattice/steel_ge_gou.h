// Lattice columns: two, three or four rolled limbs joined by lacing.
//
// A row names each limb by the table and the number of its section in the system store and by the
// angle, in degrees counter-clockwise, by which it is turned; the properties of the whole column
// follow from those rows. docs/lattice.md draws where the limbs stand. Units: mm, mm^2, mm^3, mm^4.
#pragma once

#include "framework/export.h"
#include "tables/data_item.h"
#include "tables/data_table.h"

// The table of the lattice columns with `limbs` limbs: "双肢格构柱", "三肢格构柱" or "四肢格构柱".
// Columns: "No."; the spacing "k(mm)", or "kx(mm)" and "ky(mm)"; for each limb i "P<i>Type",
// "P<i>No." and "P<i>θ°"; then the results. Any other number of limbs gives a table without a name
// that has the key and result columns alone.
class ORV3CAL_API CSteelJMGeGou : public CDataTable {
 public:
  explicit CSteelJMGeGou(int limbs);
};

// The row of one lattice column.
class ORV3CAL_API CSteelItemGeGou : public CDataItem {
 public:
  // A row of CSteelJMGeGou(limbs), its cells empty.
  explicit CSteelItemGeGou(int limbs);
  explicit CSteelItemGeGou(const CDataItem& item) : CDataItem(item) {}

  // The limb's row in the system store, limbs counted from 1; a row without cells when there is no
  // such limb or section.
  CDataItem GetPartItem(int i) const;

  // Fills the result cells from the limbs, "%G": 1 when all were written. 0 for a row of another
  // table, a limb that is not in the store, an angle or spacing without a cell of numbers;
  // "A(mm^2)" may be written already by then. An empty cell of numbers reads as 0, as everywhere.
  int CalSteelJMGeGou();
  int CalSteelJMGeGou2();  // the same for one number of limbs; 0 for a row of another
  int CalSteelJMGeGou3();
  int CalSteelJMGeGou4();
};
