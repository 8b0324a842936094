#include "sections/geometry/plate_walls.h"

#include <cmath>
#include <span>

#include "sections/plate_h.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

namespace {

using CSizes = std::span<const double, kSectionSizes>;

// A record of the row's sizes by the signs of its style's columns.
bool ReadSizes(const CDataItem& row, const CSectionStyle& style, CSteelJMData& record) {
  record.m_nStyle = style.m_nStyle;
  for (std::size_t i = 0; i < style.Sizes().size(); ++i) {
    const int index = row.GetSignIndex(style.Sizes()[i].m_szSign);
    if (!row.GetCellValue(index, record.m_dSize[i])) return false;
  }
  return true;
}

// A web with a flange at each end. A flange that does not reach beyond the web on a side ends at
// the web's mid-line there.
CSectorial HSectorial(const CPlateH& h) {
  const double x = h.WebEdge() + h.m_dWeb / 2;
  const auto left = [&](double overhang) { return overhang > 0 ? h.WebEdge() - overhang : x; };
  const auto right = [&](double overhang) {
    return overhang > 0 ? h.WebEdge() + h.m_dWeb + overhang : x;
  };
  const double bottom = h.m_dBottom / 2, top = h.m_dHeight - h.m_dTop / 2;
  const CWall walls[] = {
      {x, bottom, left(h.m_dBottomLeft), bottom, h.m_dBottom},
      {x, bottom, right(h.m_dBottomRight), bottom, h.m_dBottom},
      {x, bottom, x, top, h.m_dWeb},
      {x, top, left(h.m_dTopLeft), top, h.m_dTop, 2},
      {x, top, right(h.m_dTopRight), top, h.m_dTop, 2},
  };
  return SectorialProperties(walls, CWallForm::Tree);
}

// b, h, bf1, bf2, tw, tf: four arms from the middle, each with a flange at its end.
CSectorial FlangedCrossSectorial(CSizes s) {
  const double x = s[0] / 2, y = s[1] / 2;
  const double armX = x - s[5] / 2, armY = y - s[5] / 2;
  const double tw = s[4], tf = s[5], bf1 = s[2] / 2, bf2 = s[3] / 2;
  const CWall walls[] = {
      {x, y, x, y + armY, tw},
      {x, y, x, y - armY, tw},
      {x, y, x + armX, y, tw},
      {x, y, x - armX, y, tw},
      {x, y + armY, x - bf1, y + armY, tf, 0},
      {x, y + armY, x + bf1, y + armY, tf, 0},
      {x, y - armY, x - bf1, y - armY, tf, 1},
      {x, y - armY, x + bf1, y - armY, tf, 1},
      {x + armX, y, x + armX, y - bf2, tf, 2},
      {x + armX, y, x + armX, y + bf2, tf, 2},
      {x - armX, y, x - armX, y - bf2, tf, 3},
      {x - armX, y, x - armX, y + bf2, tf, 3},
  };
  return SectorialProperties(walls, CWallForm::Tree);
}

// Arm and bar: every wall points at where they cross, so nothing warps.
CSectorial CrossSectorial(CSizes s) { return {s[4] + s[0] / 2, (s[2] + s[1] - s[3]) / 2, 0}; }

std::optional<CSectorial> SectorialOf(int style, CSizes s) {
  switch (style) {
    case kStyleH:
    case kStyleT:
    case kStyleGeneralH:
    case kStyleL:
    case kStyleZ:
    case kStyleChannel:
      return HSectorial(PlateHOf(style, s));
    case kStyleBox:
      return BoxSectorial(s[0], s[1], s[2], s[2], s[2], s[2]);
    case kStyleFlangedCross:
      return FlangedCrossSectorial(s);
    case kStyleCross:
      return CrossSectorial(s);
    case kStyleGeneralBox:
      return BoxSectorial(s[0], s[1], s[2], s[3], s[4], s[5]);
    default:
      return std::nullopt;
  }
}

}  // namespace

CSectorial BoxSectorial(double b, double h, double top, double bottom, double left, double right) {
  const double x1 = left / 2, x2 = b - right / 2, y1 = bottom / 2, y2 = h - top / 2;
  const CWall walls[] = {
      {x1, y1, x2, y1, bottom},
      {x2, y1, x2, y2, right, 0},
      {x2, y2, x1, y2, top, 1},
      {x1, y2, x1, y1, left, 2},
  };
  return SectorialProperties(walls, CWallForm::Loop);
}

std::optional<CPlateWarping> PlateWarpingOf(const CDataItem& row) {
  constexpr double kRounding = 1e-9;
  const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View());
  CSteelJMData record;
  if (!style || !ReadSizes(row, *style, record)) return std::nullopt;
  const auto sectorial = SectorialOf(style->m_nStyle, record.m_dSize);
  if (!sectorial) return std::nullopt;
  CSteelJMData::CalSectCharacterStyle(record);
  const double e0 = std::hypot(sectorial->m_x - record.m_dXo, sectorial->m_y - record.m_dYo);
  return CPlateWarping{e0 < kRounding * record.m_dSize[1] ? 0 : e0, sectorial->m_Iw};
}

}  // namespace orv3
