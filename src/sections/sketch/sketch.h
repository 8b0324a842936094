// Section sketches: the small picture of a section style, chosen by its table name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/bitmap.h"
#include "drawing/path.h"
#include "framework/export.h"

namespace orv3 {

// The resource number of the sketch of a table's sections, 8008 to 8078; 8076 for any name without
// a sketch of its own. Names are compared whole and case-sensitively.
ORV3CAL_API int SketchResource(std::wstring_view tableName) noexcept;

// The sketch behind a resource number (8076 for a number that has none), drawn from the one vector
// description of that number; `scale`: pixels a page unit, above 1 for a finer screen.
ORV3CAL_API CBitmap SketchBitmap(int resource, double scale = 1);
ORV3CAL_API std::string SketchSvg(int resource);

// The steel of the sketch alone, in page units.
std::vector<CPath> SketchSteel(int resource);

// The same as large as a square of `size` pixels holds it with a white edge:
// the picture in a tree or a list.
ORV3CAL_API CBitmap SketchIcon(int resource, int size = 16);
// The same of any steel.
ORV3CAL_API CBitmap SteelIcon(std::vector<CPath> steel, int size = 16);

}  // namespace orv3
