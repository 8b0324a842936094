// Lattice columns: the limbs turned and placed.
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/outline_moments.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/shapes.h"

namespace orv3 {
namespace {

// The outline with its enclosing rectangle moved to the origin.
COutline AtOrigin(std::vector<CPath> loops) {
  const CBox box = PathBounds(loops);
  for (CPath& loop : loops) loop = Moved(std::move(loop), -box.left, -box.bottom);
  return {std::move(loops), box.Width(), box.Height()};
}

}  // namespace

bool IsLatticeTable(const CString& tableName) { return LatticeLimbCount(tableName) > 0; }

COutline LatticeOutline(const CDataItem& row) {
  const CSteelItemGeGou column(row);
  CLatticeLimbs limbs;
  if (!limbs.Fetch(column) || !limbs.Place(column)) return {};
  std::vector<CPath> loops;
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    // A limb is no column: one that named itself would have no end.
    if (IsLatticeTable(limb.m_row.GetTableName())) return {};
    const COutline part = RowOutline(limb.m_row, limb.m_dAngle);
    if (part.m_arrLoop.empty()) return {};
    const CPoint centroid = RowOutlineMoments(part.m_arrLoop).m_centroid;
    for (const CPath& loop : part.m_arrLoop) {
      loops.push_back(Moved(loop, limb.m_at.m_x - centroid.x, limb.m_at.m_y - centroid.y));
    }
  }
  return AtOrigin(std::move(loops));
}

}  // namespace orv3
