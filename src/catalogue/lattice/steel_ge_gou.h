// Lattice columns: two, three or four rolled limbs joined by lacing.
#pragma once

#include "framework/export.h"
#include "tables/data_item.h"
#include "tables/data_table.h"

// The table of the lattice columns with `limbs` limbs: "双肢格构柱", "三肢格构柱" or "四肢格构柱".
class ORV3CAL_API CSteelJMGeGou : public CDataTable {
 public:
  explicit CSteelJMGeGou(int limbs);
};

// The row of one lattice column.
class ORV3CAL_API CSteelItemGeGou : public CDataItem {
 public:
  explicit CSteelItemGeGou(int limbs);
  explicit CSteelItemGeGou(const CDataItem& item);

  // The limb's row in the system store, limbs counted from 1; empty when there is none.
  CDataItem GetPartItem(int i) const;
  // Fills the result cells from the limbs; 1 when all were written.
  int CalSteelJMGeGou();
  int CalSteelJMGeGou2();
  int CalSteelJMGeGou3();
  int CalSteelJMGeGou4();
};
