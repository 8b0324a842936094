// The properties of a user-defined section as a designer reads them: with all their digits, and
// told apart from the numbers that stand in a record where nothing is computed.
#pragma once

#include <optional>

#include "framework/export.h"
#include "sections/section_property.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

// The property of a computed record: infinite where a fibre lies on its axis (1e100 in the record),
// NaN where the record has no such property (0 there): first moments of a style without them, those
// about the base axes of circle and tube, and those of a base point outside the section.
ORV3CAL_API double PropertyFigure(const CSteelJMData& record, const CSectionProperty& property);

// The computed record of a row's sizes; nothing for a row of another table, one that lacks a size
// or the base point, and sizes that make no section.
ORV3CAL_API std::optional<CSteelJMData> SectionRecord(const CDataItem& row);

// The row of a record. TransJMDataToItem keeps six digits of a number, here it reads back as it is.
ORV3CAL_API CDataItem ExactRow(const CSteelJMData& record);

// The column of the first figure that is not, within the six digits of a cell, what the row's sizes
// give; -1 when there is none.
ORV3CAL_API int StaleColumn(const CDataItem& row, const CSteelJMData& record);

}  // namespace orv3
