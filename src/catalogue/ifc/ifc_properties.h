// Figures of sections and of steel as property sets of IFC4.
#pragma once

#include "catalogue/ifc/step_file.h"
#include "sections/outline.h"
#include "tables/data_item.h"

namespace orv3 {

// mm, N/mm^2 and kg/m, radians, kelvins: the number of the assignment that a project refers to.
int AddIfcUnits(CStepFile& file);

// Steel with the figures of GB 50017-2017, Table 4.4.8.
int AddIfcSteel(CStepFile& file);

// Pset_ProfileMechanical of a profile: the row's figures where it tells them, those of its outline
// for the rest. ys runs along x and zs along y of the profile; the shear centre is measured from
// the centroid, the centroid from the profile's origin. What nobody knows is left out.
void AddProfileMechanical(CStepFile& file, const CDataItem& row, const COutline& outline,
                          int profile);

}  // namespace orv3
