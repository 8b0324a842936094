#include "sections/geometry/plate_walls.h"

#include "framework/elementary.h"
#include "sections/styles/style_form.h"

namespace orv3 {

namespace {

// A record of the row's sizes by the signs of its style's columns.
bool ReadSizes(const CDataItem& row, const CSectionStyle& style, CSteelJMData& record) {
  record.m_nStyle = style.m_nStyle;
  for (std::size_t i = 0; i < style.Sizes().size(); ++i) {
    const int index = row.GetSignIndex(style.Sizes()[i].m_szSign);
    if (!row.GetCellValue(index, record.m_dSize[i])) return false;
  }
  return true;
}

}  // namespace

std::optional<CPlateWarping> PlateWarpingOf(const CDataItem& row) {
  constexpr double kRounding = 1e-9;
  const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View());
  CSteelJMData record;
  if (!style || !style->m_pForm->m_pSectorial || !ReadSizes(row, *style, record))
    return std::nullopt;
  const CSectorial sectorial = style->m_pForm->m_pSectorial(CSizes(record.m_dSize));
  CSteelJMData::CalSectCharacterStyle(record);
  const double e0 = Hypot(sectorial.m_x - record.m_dXo, sectorial.m_y - record.m_dYo);
  return CPlateWarping{e0 < kRounding * record.m_dSize[1] ? 0 : e0, sectorial.m_Iw};
}

}  // namespace orv3
