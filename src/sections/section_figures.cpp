#include "sections/section_figures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "framework/number_text.h"
#include "sections/base_point.h"
#include "sections/outline.h"
#include "sections/section_check.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

using JM = CSteelJMData;

constexpr double kNoFibre = 1e100;

bool IsWithin(double at, double extent) {
  const double on = OntoEdge(at, extent);
  return on >= 0 && on <= extent;
}

// Whether a record has the first moment that the property is.
bool HasFirstMoment(const JM& jm, double JM::*field) {
  const CSectionStyle* style = FindSectionStyle(jm.m_nStyle);
  if (style == nullptr || !style->m_bFirstMoments) return false;
  const bool aboveBase = field == &JM::m_dSx1 || field == &JM::m_dSx2;
  const bool besideBase = field == &JM::m_dSyL || field == &JM::m_dSyR;
  if (!aboveBase && !besideBase) return true;  // about the centroid
  constexpr int kCircle = 6, kTube = 7;
  if (style->m_nStyle == kCircle || style->m_nStyle == kTube) return false;
  const COutline outline = SectionOutline(jm.m_nStyle, jm.m_dSize);
  return aboveBase ? IsWithin(jm.m_dY, outline.m_dHeight) : IsWithin(jm.m_dX, outline.m_dWidth);
}

// The columns of a style's table behind "No." and the sizes.
template <class USE>
void ForEachColumn(const CSectionStyle& style, const USE& use) {
  int column = style.m_nSizes + 1;
  for (const CSectionProperty& property : SectionProperties()) {
    if (!property.m_bFirstMoment || style.m_bFirstMoments) use(column++, property);
  }
}

}  // namespace

double PropertyFigure(const CSteelJMData& record, const CSectionProperty& property) {
  const double value = record.*property.m_pField;
  if (property.m_bFirstMoment && !HasFirstMoment(record, property.m_pField))
    return std::numeric_limits<double>::quiet_NaN();
  return value >= kNoFibre ? std::numeric_limits<double>::infinity() : value;
}

std::optional<CSteelJMData> SectionRecord(const CDataItem& row) {
  const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View());
  if (style == nullptr || row.GetItemLength() < style->m_nSizes + 3) return std::nullopt;
  for (int cell = 1; cell <= style->m_nSizes + 2; ++cell) {
    if (!IsNumber(row[cell].m_strValue)) return std::nullopt;
  }
  JM record;
  if (!record.TransItemToJMData(row)) return std::nullopt;
  const auto sizes = std::span(record.m_dSize).first(style->Sizes().size());
  if (CheckSectionSizes(*style, sizes)) return std::nullopt;
  return record;
}

CDataItem ExactRow(const CSteelJMData& record) {
  CDataItem row;
  record.TransJMDataToItem(row);
  const CSectionStyle* style = FindSectionStyle(record.m_nStyle);
  if (style == nullptr) return row;
  row.m_strTableName = style->TableName();
  for (int i = 0; i < style->m_nSizes; ++i)
    row.m_arrCell.Own(i + 1).m_strValue = FormatShortest(record.m_dSize[i]);
  ForEachColumn(*style, [&](int column, const CSectionProperty& property) {
    row.m_arrCell.Own(column).m_strValue = FormatShortest(record.*property.m_pField);
  });
  return row;
}

int StaleColumn(const CDataItem& row, const CSteelJMData& record) {
  constexpr double kSixDigits = 1e-5;
  int stale = -1;
  const CSectionStyle* style = FindSectionStyle(record.m_nStyle);
  if (style == nullptr) return stale;
  ForEachColumn(*style, [&](int column, const CSectionProperty& property) {
    if (stale >= 0 || column >= row.GetItemLength()) return;
    const double value = record.*property.m_pField;
    const double cell = ToDouble(row[column].m_strValue);
    if (value >= kNoFibre && cell >= kNoFibre) return;
    const double whole = std::pow(record.m_dA, property.m_nPower / 2.0);
    if (std::fabs(cell - value) > kSixDigits * std::fabs(value) + 1e-9 * whole) stale = column;
  });
  return stale;
}

}  // namespace orv3
