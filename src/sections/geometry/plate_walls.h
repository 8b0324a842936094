// User-defined sections of plates as walls.
#pragma once

#include <optional>

#include "sections/geometry/thin_wall.h"
#include "tables/data_item.h"

namespace orv3 {

struct CPlateWarping {
  double m_e0 = 0;  // shear centre to centroid
  double m_Iw = 0;  // mm^6
};

// By thin-walled theory on the plates' mid-lines, from the sizes alone; nothing when a size is
// missing or the table is none of sections of plates.
std::optional<CPlateWarping> PlateWarpingOf(const CDataItem& row);

}  // namespace orv3
