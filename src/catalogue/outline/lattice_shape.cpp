// Lattice columns: the limbs turned and placed.
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/shapes.h"
#include "outlines/outline_moments.h"

namespace orv3 {
bool IsLatticeTable(const CString& tableName) { return LatticeLimbCount(tableName) > 0; }

CPlacedLimbs PlaceLimbs(const CDataItem& row) {
  const CSteelItemGeGou column(row);
  CLatticeLimbs limbs;
  if (!limbs.Fetch(column) || !limbs.Place(column)) return {};
  CPlacedLimbs placed;
  std::vector<CPath>& loops = placed.m_outline.m_arrLoop;
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    // A limb is no column: one that named itself would have no end.
    if (IsLatticeTable(limb.m_row.GetTableName())) return {};
    const COutline part = RowOutline(limb.m_row, limb.m_dAngle);
    if (part.m_arrLoop.empty()) return {};
    const CPoint centroid = RowOutlineMoments(part.m_arrLoop).m_centroid;
    const CPoint at{limb.m_at.m_x, limb.m_at.m_y};
    for (const CPath& loop : part.m_arrLoop)
      loops.push_back(Moved(loop, at.x - centroid.x, at.y - centroid.y));
    placed.m_arrCentroid.push_back(at);
  }
  const CBox box = PathBounds(loops);
  for (CPath& loop : loops) loop = Moved(std::move(loop), -box.left, -box.bottom);
  for (CPoint& at : placed.m_arrCentroid) at = {at.x - box.left, at.y - box.bottom};
  placed.m_outline.m_dWidth = box.Width();
  placed.m_outline.m_dHeight = box.Height();
  return placed;
}

}  // namespace orv3
