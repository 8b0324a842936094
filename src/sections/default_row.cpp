#include "sections/default_row.h"

#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_item.h"
#include "tables/edit_state.h"

namespace orv3 {
int DefaultSectionRow(CDataItem& item) {
  const CSectionStyle* style = FindSectionStyle(item.m_strTableName.View());
  if (!style) return 0;
  CArray<double, double> sizes;
  for (int i = 0; i < style->m_nSizes; ++i) sizes.Add(style->m_sample.m_arrSize[i]);
  CSteelJMData record;
  record.SetName(style->m_sample.m_szName);
  record.m_nState = kAdded;
  record.SetSectSize(style->m_nStyle, sizes);
  record.m_dX = record.m_dY = style->m_sample.m_dBase;
  CSteelJMData::CalSectCharacterStyle(record);
  return record.TransJMDataToItem(item);
}

}  // namespace orv3
