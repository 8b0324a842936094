// The picture of a section row, drawn to scale with its axes and main dimensions.
#pragma once

#include <string>

#include "drawing/drawing.h"
#include "framework/export.h"
#include "framework/language.h"
#include "outlines/exact_properties.h"
#include "tables/data_item.h"

namespace orv3 {

// The outline of RowOutline (row_outline.h) with the row's table and number, the centroid with the
// axes through it, and the sizes that the table gives; user-defined rows with their base point too.
// A row without an outline is named in writing.
ORV3CAL_API CDrawing RowPictureDrawing(const CDataItem& row, double angle = 0);
ORV3CAL_API std::string RowPictureSvg(const CDataItem& row, double angle = 0);
// With its exact properties, where there are any, also the shear center, the plastic axes and slant
// principal axes.
ORV3CAL_API CDrawing RowPictureDrawing(const CDataItem& row, double angle,
                                       const CExactProperties* exact,
                                       CLanguage language = CLanguage::Chinese);
ORV3CAL_API std::string RowPictureSvg(const CDataItem& row, double angle,
                                      const CExactProperties* exact,
                                      CLanguage language = CLanguage::Chinese);

}  // namespace orv3
