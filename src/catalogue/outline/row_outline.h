// The true outline of a section row: rolled, cold-formed, paired, user-defined or lattice.
//
// What the tables' columns do not tell is as the standards draw it: flange slopes 1:6 (ordinary I),
// 12 % (light I) and 10 % (channels) with t midway on the outstand, toe radius t/3 of angles,
// mid-line radius 2.5 t of cold-formed bends, lips of the sloping-lip Z at 45 degrees. Welds are
// left out.
#pragma once

#include "framework/export.h"
#include "sections/outline.h"
#include "tables/data_item.h"

namespace orv3 {

// mm, x to the right, y upwards, origin at the lower-left corner of the enclosing rectangle, which
// is as wide and high as the answer says. The angle turns the section counter-clockwise, in
// degrees; only quarter turns (within 0.0001) count.
//
// The parts of pairs and lattice columns are rows of the system store. A pair's parts stand apart
// by the integer cell "a(mm)" ("δ(mm)" of the cross) right after "No.", by 0 without it.
//
// Without loops when the table is none of the section tables, a size is missing, the sizes bound no
// section, or a part is not in the system store.
ORV3CAL_API COutline RowOutline(const CDataItem& row, double angle = 0);

}  // namespace orv3
