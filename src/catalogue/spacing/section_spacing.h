// Everything that the spacing tables say about one rolled section, each figure with its meaning.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/language.h"
#include "sections/section_kind.h"

namespace orv3 {

struct CSpacingColumn {
  const char* m_szKey;  // short, different for each figure of a spacing
  CTextLiteral m_meaning;
};

// One row of a spacing table.
struct CSectionSpacing {
  int m_nTable = 0;  // 1 to 19: strSub1 to strSub19
  CTextLiteral m_title{"", ""};
  int m_nLeg = 0;  // of an angle, mm; 0 otherwise
  std::span<const CSpacingColumn> m_arrColumn;
  std::span<const wchar_t* const> m_arrCell;  // one a column, mm; "-" where no value applies
};

// The catalogue tables whose sections the spacing tables cover.
ORV3CAL_API std::span<const CSectionKind> SpacedSections() noexcept;

// The numbers of such a table that have rows; none for angles, which go by the width of their legs.
ORV3CAL_API std::vector<CString> SpacedNumbers(std::wstring_view tableName);

// The legs of an angle in mm, as its number tells: "L50X5" has 50 and 50, "L100X80X7" 100 and 80.
// 0 and 0 when it is no angle's number.
struct CLegs {
  int m_nLong = 0, m_nShort = 0;
};
ORV3CAL_API CLegs LegsOf(std::wstring_view no);

// The rows for a section: for an angle those of its legs' widths, each width once, else the rows of
// its series. A section of a series is found by its place there, because the tables by number carry
// the keys 22a and 22b in the places of 20a and 20b. Empty when there is none.
ORV3CAL_API std::vector<CSectionSpacing> SectionSpacings(std::wstring_view tableName,
                                                         std::wstring_view no);

}  // namespace orv3
