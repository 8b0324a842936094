#include "catalogue/exact/row_exact.h"

#include <utility>
#include <vector>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/outline/row_outline.h"
#include "outlines/geometric_figures.h"
#include "outlines/outline_check.h"
#include "outlines/outline_moments.h"
#include "outlines/touching_parts.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

using CLoops = std::vector<CPath>;

bool IsOfParts(const CString& tableName) {
  const CSectionTable* table = FindSectionTable(tableName);
  return table != nullptr && (table->m_pPair != nullptr || table->m_nLimbs > 0);
}

// Each part, whose loops follow each other with the outer one first, moved clear of the others,
// which it may touch.
CLoops Apart(CLoops loops) {
  const CBox box = PathBounds(loops);
  double shift = 0;
  for (CPath& loop : loops) {
    if (RowOutlineMoments({&loop, 1}).m_dArea > 0) shift += 2 * box.Width();
    loop = Moved(std::move(loop), shift, 0);
  }
  return loops;
}

// Plates that meet in a point, or overlap, leave open what is joined.
CExactProperties Solved(const CLoops& loops) {
  return CheckOutline(loops) ? GeometricFigures(loops)
                             : ExactProperties(std::span<const CPath>(loops));
}

CExactProperties OfParts(const CLoops& loops) {
  return FiguresOfParts(loops, Solved(Apart(loops)));
}

CExactProperties Computed(const COutline& outline, bool parts) {
  if (outline.m_arrLoop.empty()) return {};
  if (parts) return OfParts(outline.m_arrLoop);
  CExactProperties exact = Solved(outline.m_arrLoop);
  // From the loops' own corner to that of the section.
  const CBox box = PathBounds(outline.m_arrLoop);
  for (const auto x : {&CExactProperties::xo, &CExactProperties::xp, &CExactProperties::xs})
    exact.*x += box.left;
  for (const auto y : {&CExactProperties::yo, &CExactProperties::yp, &CExactProperties::ys})
    exact.*y += box.bottom;
  return exact;
}

}  // namespace

CExactProperties ExactProperties(const COutline& outline) { return Computed(outline, false); }

CExactProperties ComputedExact(const CDataItem& row) {
  return Computed(RowOutline(row), IsOfParts(row.m_strTableName));
}

CExactProperties ExactProperties(const CDataItem& row) {
  if (const auto known = FindExact(row)) return *known;
  return ComputedExact(row);
}

}  // namespace orv3
