// The base point and the computed properties of a section, in the order of a section table's
// columns.
#pragma once

#include <span>

#include "framework/export.h"
#include "sections/steel_jm_data.h"

namespace orv3 {

struct CSectionProperty {
  const wchar_t* m_szSign;   // "Ixo(mm^4)"; the base-axis radii repeat the centroidal ones' signs
  const wchar_t* m_szTitle;  // Chinese title of the column
  const char* m_szKey;       // the symbol alone, different for each property
  const char* m_szMeaning;   // English
  int m_nPower;              // unit: mm to this power
  bool m_bFirstMoment;       // only in tables of styles that have first moments
  double CSteelJMData::*m_pField;
};

// The base point's x and y, then the 25 properties.
ORV3CAL_API std::span<const CSectionProperty> SectionProperties() noexcept;

}  // namespace orv3
