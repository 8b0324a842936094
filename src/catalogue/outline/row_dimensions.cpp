#include "catalogue/outline/row_dimensions.h"

#include <array>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/shapes.h"
#include "sections/dimension_sides.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

CDimensions CustomDimensions(const CSectionStyle& style, const CDataItem& row) {
  std::array<double, kSectionSizes> sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i)
    row.GetCellValue(style.Sizes()[i].m_szSign, sizes[i]);
  return SizeDimensions(style.m_nStyle, sizes);
}

CDimensions PairDimensions(const CDataItem& row, const COutline& outline) {
  const CPair pair = PairOf(row);
  const double w = pair.m_part.m_dWidth, h = pair.m_part.m_dHeight, gap = pair.m_dGap;
  const double right = outline.m_dWidth, top = outline.m_dHeight;
  CDimensions all{{pair.m_szWidth, w, kBottom, {right - w, top - h}, {right, top - h}},
                  {pair.m_szHeight, h, kLeft, {0, 0}, {0, h}}};
  if (gap > 0) all.push_back({pair.m_szGap, gap, kTop, {w, top}, {w + gap, top}});
  return all;
}

CDimensions LatticeDimensions(const CDataItem& row) {
  const CPlacedLimbs placed = PlaceLimbs(row);
  const auto& at = placed.m_arrCentroid;
  if (at.size() < 2) return {};
  const CPoint first = at.front();
  const CPoint last = at.back();
  if (at.size() == 2) return {{L"k", last.y - first.y, kLeft, first, last}};
  return {{L"kx", at[1].x - first.x, kBottom, first, at[1]},
          {L"ky", last.y - first.y, kLeft, first, last}};
}

CDimensions RolledDimensions(const CDataItem& row, const COutline& outline) {
  const CRolledTable* table = FindRolledTable(row.GetTableName());
  if (table == nullptr) return {};
  CRowSizes sizes(row);
  return table->m_pDimensions(sizes, outline);
}

// Where a dimension stands after quarter turns. A thickness across a flange has no place of its own
// when the flange stands up.
CDimensionSide TurnedSide(CDimensionSide side, int quarters) {
  const bool half = quarters == 2;
  switch (side) {
    case kTop:
      return half ? kBottom : kLeft;
    case kBottom:
      return half ? kTop : kLeft;
    case kLeft:
      return half ? kLeft : kBottom;
    case kRight:
      return half ? kLeft : kTop;
    case kInside:
      return half ? kInside : kBottom;
    case kLeader:
    case CDimensionSide::Radius:
      break;
  }
  return side;
}

}  // namespace

CPoint QuarterTurned(CPoint p, int quarters, double width, double height) {
  switch (quarters) {
    case 1:
      return {height - p.y, p.x};
    case 2:
      return {width - p.x, height - p.y};
    case 3:
      return {p.y, width - p.x};
    default:
      return p;
  }
}

CDimensions RowDimensions(const CDataItem& row, const COutline& outline) {
  if (outline.m_arrLoop.empty()) return {};
  if (IsPairTable(row.GetTableName())) return PairDimensions(row, outline);
  if (IsLatticeTable(row.GetTableName())) return LatticeDimensions(row);
  const CSectionStyle* style = FindSectionStyle(row.GetTableName().View());
  return style != nullptr ? CustomDimensions(*style, row) : RolledDimensions(row, outline);
}

CDimensions QuarterTurned(CDimensions sizes, int quarters, double width, double height) {
  if (quarters == 0) return sizes;
  for (CSizeDimension& size : sizes) {
    size.m_from = QuarterTurned(size.m_from, quarters, width, height);
    size.m_to = QuarterTurned(size.m_to, quarters, width, height);
    size.m_nSide = TurnedSide(size.m_nSide, quarters);
  }
  return sizes;
}

}  // namespace orv3
