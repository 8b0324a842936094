#include "sections/geometry/plate_walls.h"

#include <span>

#include "sections/geometry/cells.h"
#include "sections/plate_h.h"
#include "sections/section_style.h"

namespace orv3 {

namespace {

using CSizes = std::array<double, CSectionStyle::kMaxSizes>;

// Sizes of a row by the signs of its style's columns.
std::optional<CSizes> ReadSizes(const CDataItem& row, const CSectionStyle& style) {
  CSizes sizes{};
  for (std::size_t i = 0; i < style.Sizes().size(); ++i) {
    const int index = row.GetSignIndex(style.Sizes()[i].m_szSign);
    if (!row.GetCellValue(index, sizes[i])) return std::nullopt;
  }
  return sizes;
}

// A web with a flange at each end; flanges without thickness fall away.
CSectorial HSectorial(const CPlateH& h) {
  const double x = h.WebEdge() + h.m_dWeb / 2;
  const double bottom = h.m_dBottom / 2, top = h.m_dHeight - h.m_dTop / 2;
  const CWall walls[] = {
      {x, bottom, h.BottomEdge(), bottom, h.m_dBottom},
      {x, bottom, h.BottomEdge() + h.BottomWidth(), bottom, h.m_dBottom},
      {x, bottom, x, top, h.m_dWeb},
      {x, top, h.TopEdge(), top, h.m_dTop, 2},
      {x, top, h.TopEdge() + h.TopWidth(), top, h.m_dTop, 2},
  };
  return SectorialProperties(walls, CWallForm::Tree);
}

// b, h, bf1, bf2, tw, tf: four arms from the middle, each with a flange at its end.
CSectorial FlangedCrossSectorial(const CSizes& s) {
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

std::optional<CSectorial> PlateSectorial(const CDataItem& row) {
  const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View());
  if (!style) return std::nullopt;
  const auto sizes = ReadSizes(row, *style);
  if (!sizes) return std::nullopt;
  const CSizes& s = *sizes;
  switch (style->m_nStyle) {
    case 0:
    case 8:
    case 9:
    case 10:
    case 11:
    case 12:
      return HSectorial(PlateHOf(style->m_nStyle, s));
    case 1:
      return BoxSectorial(s[0], s[1], s[2], s[2], s[2], s[2]);
    case 2:
      return FlangedCrossSectorial(s);
    case 14:
      return BoxSectorial(s[0], s[1], s[2], s[3], s[4], s[5]);
    default:
      return std::nullopt;
  }
}

}  // namespace orv3
