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

// A box b wide and h high outside, its plates at the top, bottom, left and right.
CSectorial BoxSectorial(double b, double h, double top, double bottom, double left, double right);

}  // namespace orv3
