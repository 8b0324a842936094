// Where the figures of a member's section come from.
#pragma once

#include <vector>

#include "framework/language.h"
#include "members/cases/member_row.h"

namespace orv3 {

struct CUsedProperty {
  const char* m_szWritten;  // in the notation of Formula (reports/report_page.h)
  CTextLiteral m_name;
  double m_dValue;
  const char* m_szUnit;
  CText m_source;  // a printed cell, the cells' sizes, or the outline
};

// The figures that the checks of a section from this row may ask.
ORV3CAL_API std::vector<CUsedProperty> SectionSources(const CDataItem& row,
                                                      const CMemberRow& member);

}  // namespace orv3
