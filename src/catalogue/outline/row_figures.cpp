#include "catalogue/outline/row_figures.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/outline_symmetry.h"
#include "catalogue/outline/row_outline.h"
#include "catalogue/outline/shapes.h"
#include "framework/elementary.h"
#include "outlines/outline_moments.h"
#include "sections/geometry/families.h"
#include "sections/geometry/row_values.h"
#include "sections/section_figures.h"
#include "sections/section_kind.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

constexpr double kUnknown = CRowFigures::kUnknown;

// --- From a row's cells --------------------------------------------------------------------------

// A cell without a text tells nothing; to the facade's members it is 0.
CDataItem WithoutEmptyCells(CDataItem row) {
  for (int i = row.GetItemLength() - 1; i >= 0; --i) {
    if (std::as_const(row)[i].m_strValue.IsEmpty()) row.m_arrCell.RemoveAt(i);
  }
  return row;
}

// Columns of tables with a figure for each row (families.h), mm.
class CFamilyFigures {
 public:
  CFamilyFigures(const CDataItem& row, const CFamily& family)
      : m_row(WithoutEmptyCells(row)), m_family(family) {}

  CRowFigures Read() const {
    using F = CFamily;
    CRowFigures f;
    f.m_dArea = AreaOf(m_row);
    if (!(f.m_dArea > 0)) f.m_dArea = kUnknown;
    f.m_dWidth = At(&F::m_width);
    f.m_dHeight = At(&F::m_height);
    f.m_dXc = At(&F::m_x);
    f.m_dYc = At(&F::m_trueY, &F::m_y);
    f.m_dIx = At(&F::m_Ix);
    f.m_dIy = At(&F::m_Iy);
    f.m_dSxo = At(&F::m_Sx);
    f.m_dRx = At(&F::m_trueR, &F::m_ix);
    f.m_dRy = At(&F::m_trueR, &F::m_iy);
    f.m_dRleast = At(&F::m_leastR);
    f.m_dWTop = At(&F::m_Wx1);
    f.m_dWBottom = At(&F::m_Wx2);
    f.m_dWLeft = At(&F::m_WyL);
    f.m_dWRight = At(&F::m_WyR);
    f.m_dThickest = Known(ThickestPlate(m_row));
    f.m_dThinnest = Known(ThinnestPlate(m_row));
    f.m_dE0 = AtOr0(&F::m_e0);
    f.m_dIw = AtOr0(&F::m_Iw);
    return f;
  }

 private:
  static bool IsEmpty(const CSource& source) {
    return source.m_cell.IsEmpty() && source.m_formula == nullptr;
  }
  static double Known(double thickness) { return thickness > 0 ? thickness : kUnknown; }

  double At(CSource CFamily::*source) const {
    return Value(m_row, m_family, m_family.*source).value_or(kUnknown);
  }
  double At(CSource CFamily::*truth, CSource CFamily::*otherwise) const {
    return At(IsEmpty(m_family.*truth) ? otherwise : truth);
  }
  // Of a family without the source it is 0.
  double AtOr0(CSource CFamily::*source) const {
    return IsEmpty(m_family.*source) ? 0 : At(source);
  }

  CDataItem m_row;
  const CFamily& m_family;
};

// --- User-defined sections -----------------------------------------------------------------------

// Compact sections warp a little, and a triangle's shear centre is off its centroid; nobody
// computes either.
bool IsSolid(int style, std::initializer_list<int> solids) {
  return std::find(solids.begin(), solids.end(), style) != solids.end();
}

CRowFigures OfRecord(const CSteelJMData& record, const CFamily& family) {
  constexpr int kRectangle = 3, kHexagon = 4, kTriangle = 5;
  CRowFigures f = CFamilyFigures(ExactRow(record), family).Read();
  const CSectionStyle* style = FindSectionStyle(record.m_nStyle);
  if (style->m_bFirstMoments) f.m_dSyo = record.m_dSyo;
  if (IsSolid(record.m_nStyle, {kRectangle, kHexagon, kTriangle})) f.m_dIw = kUnknown;
  if (IsSolid(record.m_nStyle, {kTriangle})) f.m_dE0 = kUnknown;
  return f;
}

// --- Lattice columns -----------------------------------------------------------------------------

// Of the limbs beyond an axis, above it or to its right; unknown when it cuts a limb.
double MomentBeyond(const CLatticeLimbs& limbs, double axis, double CLimbPlace::*at,
                    double CLimbBox::*centre, double CLimbBox::*extent) {
  double moment = 0;
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    const double from = limb.m_at.*at - limb.m_box.*centre, to = from + limb.m_box.*extent;
    if (from < axis && axis < to) return kUnknown;
    moment += limb.m_dArea * std::max(0.0, limb.m_at.*at - axis);
  }
  return moment;
}

CRowFigures OfLimbs(const CLatticeLimbs& limbs) {
  const CLatticeProperties p = limbs.Properties();
  const CLatticeReach reach = limbs.Reach();
  CRowFigures f;
  f.m_dArea = p.m_dA;
  f.m_dWidth = reach.m_left + reach.m_right;
  f.m_dHeight = reach.m_below + reach.m_above;
  f.m_dXc = reach.m_left + p.m_dXo;
  f.m_dYc = reach.m_below + p.m_dYo;
  f.m_dIx = p.m_dIx;
  f.m_dIy = p.m_dIy;
  f.m_dSxo = MomentBeyond(limbs, p.m_dYo, &CLimbPlace::m_y, &CLimbBox::m_dCy, &CLimbBox::m_dHeight);
  f.m_dSyo = MomentBeyond(limbs, p.m_dXo, &CLimbPlace::m_x, &CLimbBox::m_dCx, &CLimbBox::m_dWidth);
  f.m_dRx = p.m_dixo;
  f.m_dRy = p.m_diyo;
  f.m_dWTop = p.m_dWx1;
  f.m_dWBottom = p.m_dWx2;
  f.m_dWLeft = p.m_dWyL;
  f.m_dWRight = p.m_dWyR;
  f.m_dThickest = f.m_dThinnest = 0;
  for (const CLatticeLimb& limb : limbs.m_arrLimb) {
    const double thick = ThickestPlate(limb.m_row), thin = ThinnestPlate(limb.m_row);
    f.m_dThickest = std::max(f.m_dThickest, thick);
    f.m_dThinnest = f.m_dThinnest == 0 ? thin : std::min(f.m_dThinnest, thin);
  }
  return f;
}

// A column whose limbs are not to be had: its own figures; where they were measured from is not
// told, and the lacing decides over torsion.
CRowFigures OfColumnCells(CRowFigures f) {
  f.m_dXc = f.m_dYc = f.m_dSxo = f.m_dE0 = f.m_dIw = kUnknown;
  return f;
}

CRowFigures OfColumn(const CDataItem& row, const CFamily& family) {
  const CSteelItemGeGou column(row);
  CLatticeLimbs limbs;
  if (limbs.Fetch(column) && limbs.PlaceTruly(column)) return OfLimbs(limbs);
  return OfColumnCells(CFamilyFigures(row, family).Read());
}

// --- What the outline tells ----------------------------------------------------------------------

void FindSymmetry(CRowFigures& f, const COutline& outline) {
  if (outline.m_arrLoop.empty()) return;
  f.m_symX = IsMirrored(outline, f.m_bAslant ? CMirrorLine::Falling : CMirrorLine::Horizontal);
  f.m_symY = IsMirrored(outline, f.m_bAslant ? CMirrorLine::Rising : CMirrorLine::Vertical);
}

// Where the table has no column for it: of the axes themselves where they are principal ones, else
// of a section of plates, whose outline its figures are those of.
void FindLeastRadius(CRowFigures& f, const COutline& outline, bool plates) {
  if (std::isfinite(f.m_dRleast)) return;
  if (f.m_symX.value_or(false) || f.m_symY.value_or(false)) {
    f.m_dRleast = std::min(f.m_dRx, f.m_dRy);
  } else if (plates && !outline.m_arrLoop.empty()) {
    const double Ixy = RowOutlineMoments(outline.m_arrLoop).m_dIxy;
    const double least = (f.m_dIx + f.m_dIy) / 2 - Hypot((f.m_dIx - f.m_dIy) / 2, Ixy);
    f.m_dRleast = std::sqrt(std::max(0.0, least) / f.m_dArea);
  }
}

// A quarter turn counter-clockwise: the right fibre goes to the top, the top fibre to the left.
void Turn(CRowFigures& f) {
  f.m_dXc = std::exchange(f.m_dYc, f.m_dXc);
  f.m_dXc = f.m_dHeight - f.m_dXc;
  std::swap(f.m_dWidth, f.m_dHeight);
  if (f.m_bAslant) return;
  std::swap(f.m_dIx, f.m_dIy);
  std::swap(f.m_dSxo, f.m_dSyo);
  std::swap(f.m_dRx, f.m_dRy);
  std::swap(f.m_symX, f.m_symY);
  std::swap(f.m_szAxisX, f.m_szAxisY);
  const double top = f.m_dWTop;
  f.m_dWTop = f.m_dWRight;
  f.m_dWRight = f.m_dWBottom;
  f.m_dWBottom = f.m_dWLeft;
  f.m_dWLeft = top;
}

CRowFigures Upright(const CDataItem& row) {
  const CFamily* family = FindFamily(row.m_strTableName.View());
  if (family == nullptr) return {};
  if (IsLatticeTable(row.GetTableName())) return OfColumn(row, *family);
  const auto record = SectionRecord(row);
  CRowFigures f = record ? OfRecord(*record, *family) : CFamilyFigures(row, *family).Read();
  f.m_bAslant = family->m_bAslant;
  return f;
}

}  // namespace

CRowFigures RowFigures(const CDataItem& row, const COutline& outline) {
  CRowFigures f = Upright(row);
  const CAxisLetters letters = AxisLetters(row.GetTableName().View());
  f.m_szAxisX = f.m_bAslant ? letters.m_szStrong : letters.m_szX;
  f.m_szAxisY = f.m_bAslant ? letters.m_szWeak : letters.m_szY;
  FindSymmetry(f, outline);
  FindLeastRadius(f, outline, FindSectionStyle(row.m_strTableName.View()) != nullptr);
  return f;
}

CRowFigures RowFigures(const CDataItem& row, double angle) {
  CRowFigures f = RowFigures(row, RowOutline(row));
  for (int i = QuarterTurns(angle); i > 0; --i) Turn(f);
  return f;
}

}  // namespace orv3
