// The tree's pictures: one for each table, drawn from the table's sketch.
#pragma once

#include "drawing/bitmap.h"
#include "framework/array.h"
#include "framework/export.h"

namespace orv3 {

// CLoadDataTable::GetItemImageList with pictures of `size` by `size` pixels.
ORV3CAL_API CArray<CBitmap, const CBitmap&> TableIcons(int size);

}  // namespace orv3
