// The profile of a section row as an entity of IFC4.
//
// Sections of the standard shapes are parameterised profiles, with the radii and slopes of the
// row's outline; all others are arbitrary profiles whose curves are the outline's edges and arcs,
// composite ones for sections of several parts. The origin of every profile is the centre of its
// enclosing rectangle, x to the right, y upwards, as IFC4 has it for parameterised ones.
#pragma once

#include <string>

#include "catalogue/ifc/step_file.h"
#include "sections/outline.h"
#include "tables/data_item.h"

namespace orv3 {

// The number of the profile, whose name is given encoded. `outline` is that of the row, not empty.
int AddIfcProfile(CStepFile& file, const CDataItem& row, const COutline& outline,
                  const std::string& name);

}  // namespace orv3
