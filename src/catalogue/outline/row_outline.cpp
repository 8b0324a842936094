#include "catalogue/outline/row_outline.h"

#include <array>
#include <cmath>
#include <utility>

#include "catalogue/outline/shapes.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

struct CTableShape {
  const wchar_t* m_szTable;
  COutline (*m_pShape)(CRowSizes&);
};

constexpr CTableShape kShapes[] = {
    {L"热轧普通工字钢", OrdinaryI},     {L"热轧轻型工字钢", LightI},
    {L"热轧普通焊接H型钢", WeldedH},    {L"热轧轻型焊接H型钢", WeldedH},
    {L"热轧宽翼缘H型钢", RolledH},      {L"热轧窄翼缘H型钢", RolledH},
    {L"冷弯薄壁方钢管", SquareTube},    {L"剖分T型钢", SplitT},
    {L"热轧普通槽钢", RolledChannel},   {L"热轧轻型槽钢", RolledChannel},
    {L"冷弯薄壁槽钢", ColdChannel},     {L"冷弯薄壁卷边槽钢", LippedChannel},
    {L"冷弯薄壁卷边Z型钢", LippedZ},    {L"冷弯薄壁斜卷边Z型钢", SlopingLipZ},
    {L"冷弯焊接薄壁圆钢管", RoundTube}, {L"热轧等边角钢", EqualAngle},
    {L"热轧不等边角钢", UnequalAngle},  {L"冷弯薄壁等边角钢", ColdAngle},
    {L"冷弯卷边等边角钢", LippedAngle},
};

COutline RolledOutline(const CDataItem& row) {
  for (const CTableShape& shape : kShapes) {
    if (row.GetTableName() != shape.m_szTable) continue;
    CRowSizes sizes(row);
    const COutline outline = shape.m_pShape(sizes);
    return sizes.IsWhole() ? outline : COutline{};
  }
  return {};
}

// The style's columns follow "No." in their order.
COutline CustomOutline(const CSectionStyle& style, const CDataItem& row) {
  std::array<double, kSectionSizes> sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i) {
    if (row.GetCellValue(style.Sizes()[i].m_szSign, sizes[i]) == 0) return {};
  }
  return SectionOutline(style.m_nStyle, sizes);
}

COutline UnturnedOutline(const CDataItem& row) {
  if (IsPairTable(row.GetTableName())) return PairOf(row).m_outline;
  if (IsLatticeTable(row.GetTableName())) return PlaceLimbs(row).m_outline;
  const CSectionStyle* style = FindSectionStyle(row.GetTableName().View());
  return style != nullptr ? CustomOutline(*style, row) : RolledOutline(row);
}

}  // namespace

COutline QuarterTurned(COutline outline, int quarters) {
  for (; quarters > 0; --quarters) {
    for (CPath& loop : outline.m_arrLoop) {
      for (CVertex& v : loop.m_arrVertex) v = {outline.m_dHeight - v.y, v.x, v.bulge};
    }
    std::swap(outline.m_dWidth, outline.m_dHeight);
  }
  return outline;
}

int QuarterTurns(double angle) {
  for (const int turns : {1, 2, 3}) {
    if (std::fabs(angle - 90 * turns) < 0.0001) return turns;
  }
  return 0;
}

COutline RowOutline(const CDataItem& row, double angle) {
  return QuarterTurned(UnturnedOutline(row), QuarterTurns(angle));
}

}  // namespace orv3
