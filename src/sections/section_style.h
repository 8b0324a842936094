// The styles of user-defined sections: one table that the record, the headings, the command line
// and the documentation read.
//
// The frame of every style: x to the right, y upwards, origin at the lower-left corner of the
// section's bounding box; all sizes in mm.
#pragma once

#include <span>
#include <string_view>

#include "framework/export.h"
#include "sections/section_kind.h"

namespace orv3 {

inline constexpr int kSectionSizes = 8;  // at most, of a style

// One size of a style, which is one column of its section table.
struct CSizeColumn {
  const wchar_t* m_szSign;   // "tf(mm)"
  const wchar_t* m_szTitle;  // Chinese title of the column; may repeat inside a style
  const char* m_szMeaning;   // English; never repeats inside a style
};

// A section to start from: what a dialog offers for a new one, and what pictures show.
struct CSampleSection {
  const wchar_t* m_szName;
  double m_dBase;  // x and y of the base point
  double m_arrSize[kSectionSizes];
};

struct CStyleForm;

struct CSectionStyle {
  CStyleNumber m_nStyle;
  CSectionKind m_kind;    // of the section table whose rows hold the style
  const char* m_szAlias;  // short English name, as typed on a command line
  const char* m_szShape;  // English title
  int m_nSizes;           // number of sizes, 1 to 8
  int m_nBaseSizes;       // how many of them give the outer extents
  bool m_bFirstMoments;   // whether first moments of area are computed and tabulated
  CSizeColumn m_arrSize[kSectionSizes];
  CSampleSection m_sample;
  const CStyleForm* m_pForm;  // its shape: styles/style_form.h

  std::span<const CSizeColumn> Sizes() const {
    return {m_arrSize, static_cast<std::size_t>(m_nSizes)};
  }
  const wchar_t* TableName() const { return TableOf(m_kind).m_szName; }
};

// All styles; the one at position i has the style number i.
ORV3CAL_API std::span<const CSectionStyle> SectionStyles() noexcept;

// The style of a number, of a table name or of an alias (both whole and case-sensitive); null when
// there is none.
ORV3CAL_API const CSectionStyle* FindSectionStyle(int style) noexcept;
ORV3CAL_API const CSectionStyle* FindSectionStyle(std::wstring_view tableName) noexcept;
ORV3CAL_API const CSectionStyle* FindSectionAlias(std::string_view alias) noexcept;

}  // namespace orv3
