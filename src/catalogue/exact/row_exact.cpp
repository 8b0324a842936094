#include "catalogue/exact/row_exact.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/outline/row_outline.h"
#include "outlines/exact_keys.h"
#include "outlines/outline_moments.h"
#include "outlines/plastic.h"
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

// What follows from the area alone, of loops that may touch.
void SetAreaFigures(CExactProperties& exact, const CLoops& loops) {
  const COutlineMoments m = RowOutlineMoments(loops);
  const CBox box = PathBounds(loops);
  exact.A = m.m_dArea;
  exact.xo = m.m_centroid.x - box.left;
  exact.yo = m.m_centroid.y - box.bottom;
  exact.Ix = m.m_dIx;
  exact.Iy = m.m_dIy;
  exact.Ixy = m.m_dIxy;
  const double middle = (m.m_dIx + m.m_dIy) / 2;
  const double radius = std::hypot((m.m_dIx - m.m_dIy) / 2, m.m_dIxy);
  exact.I1 = middle + radius;
  exact.I2 = middle - radius;
  const bool round = radius <= 1e-12 * middle;
  exact.theta = round ? 0 : std::atan2(-2 * m.m_dIxy, m.m_dIx - m.m_dIy) * 90 / std::numbers::pi;
  if (exact.theta <= -90) exact.theta += 180;
  exact.ix = std::sqrt(exact.Ix / exact.A);
  exact.iy = std::sqrt(exact.Iy / exact.A);
  exact.i1 = std::sqrt(exact.I1 / exact.A);
  exact.i2 = std::sqrt(exact.I2 / exact.A);
  exact.Wx1 = exact.Ix / (box.top - m.m_centroid.y);
  exact.Wx2 = exact.Ix / exact.yo;
  exact.WyL = exact.Iy / exact.xo;
  exact.WyR = exact.Iy / (box.right - m.m_centroid.x);
  const CPlasticAxis x = PlasticAxisX(loops);
  const CPlasticAxis y = PlasticAxisY(loops);
  exact.Wpx = x.m_dModulus;
  exact.Wpy = y.m_dModulus;
  exact.yp = x.m_dAt - box.bottom;
  exact.xp = y.m_dAt - box.left;
}

CExactProperties OfParts(const CLoops& loops) {
  CExactProperties exact = ExactProperties(Apart(loops));
  if (!std::isnan(exact.A)) SetAreaFigures(exact, loops);
  return exact;
}

CExactProperties Computed(const COutline& outline, bool parts) {
  if (outline.m_arrLoop.empty()) return {};
  if (parts) return OfParts(outline.m_arrLoop);
  CExactProperties exact = ExactProperties(std::span<const CPath>(outline.m_arrLoop));
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
  const COutline outline = RowOutline(row);
  if (const auto known = FindExact(outline.m_arrLoop)) return *known;
  return Computed(outline, IsOfParts(row.m_strTableName));
}

}  // namespace orv3
