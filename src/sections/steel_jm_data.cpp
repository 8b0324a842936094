#include "sections/steel_jm_data.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "framework/number_text.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "tables/data_table.h"

using orv3::CSectionProperty;
using orv3::CSectionStyle;
using orv3::FindSectionStyle;
using orv3::SectionProperties;

namespace {

constexpr int kRowNameLength = 30;  // of a name in a row
constexpr int kMinRowCells = 11;
constexpr int kExternOnlyStyle = 15;

// The characters before the ending zero; the whole array when it has none.
std::wstring_view NameOf(const wchar_t (&name)[CSteelJMData::kNameLength]) {
  return {name, static_cast<std::size_t>(std::find(name, std::end(name), L'\0') - name)};
}

bool InTable(const CSectionProperty& property, const CSectionStyle* style) {
  return !property.m_bFirstMoment || style == nullptr || style->m_bFirstMoments;
}

}  // namespace

CSteelJMData::CSteelJMData(const CSteelJMData& other) { *this = other; }

CSteelJMData& CSteelJMData::operator=(const CSteelJMData& other) {
  if (this == &other) return *this;
  SetName(NameOf(other.m_szName));
  m_nState = other.m_nState;
  m_nStyle = other.m_nStyle;
  for (const CSectionProperty& p : SectionProperties()) this->*p.m_pField = other.*p.m_pField;
  std::copy(std::begin(other.m_dSize), std::end(other.m_dSize), m_dSize);
  return *this;
}

void CSteelJMData::SetName(std::wstring_view name) {
  name = name.substr(0, kNameLength - 1);
  *std::copy(name.begin(), name.end(), m_szName) = L'\0';
}

void CSteelJMData::GetSectBaseSize(CArray<double, double>& sizes) const {
  const CSectionStyle* style = FindSectionStyle(m_nStyle);
  const int count = style ? style->m_nBaseSizes : 2;
  sizes.RemoveAll();
  for (int i = 0; i < count; ++i) sizes.Add(m_dSize[i]);
}

void CSteelJMData::GetSectExternSize(CArray<double, double>& sizes) const {
  sizes.RemoveAll();
  if (const CSectionStyle* style = FindSectionStyle(m_nStyle)) {
    for (int i = style->m_nBaseSizes; i < style->m_nSizes; ++i) sizes.Add(m_dSize[i]);
  } else if (m_nStyle == kExternOnlyStyle) {
    for (int i = 2; i <= 6; ++i) {
      if (std::fabs(m_dSize[i]) > 1e-6) sizes.Add(m_dSize[i]);
    }
  }
}

void CSteelJMData::GetSectSizeArr(CArray<double, double>& sizes) const {
  const CSectionStyle* style = FindSectionStyle(m_nStyle);
  const int count = style ? style->m_nSizes : 1;
  sizes.RemoveAll();
  for (int i = 0; i < count; ++i) sizes.Add(m_dSize[i]);
}

void CSteelJMData::SetSectSize(int style, const CArray<double, double>& sizes) {
  m_nStyle = style;
  const int count = std::min(sizes.GetSize(), kSizeCount);
  for (int i = 0; i < count; ++i) m_dSize[i] = sizes[i];
}

int CSteelJMData::TransItemToJMData(const CDataItem& row) {
  if (row.GetItemLength() < kMinRowCells) return 0;
  m_nState = row.m_nModifyType;
  SetName(row[0].m_strValue);
  const CSectionStyle* style = FindSectionStyle(row.m_strTableName.View());
  if (!style) return 0;
  m_nStyle = style->m_nStyle;
  int cell = 1;
  for (int i = 0; i < style->m_nSizes; ++i) row.GetCellValue(cell++, m_dSize[i]);
  row.GetCellValue(cell++, m_dX);
  row.GetCellValue(cell, m_dY);
  CalSectCharacterStyle(*this);
  return 1;
}

int CSteelJMData::TransJMDataToItem(CDataItem& row) const {
  if (row.GetItemLength() < 2) {
    CDataTable table;
    table.SetTableName(L"Test");
    GetJMTableTitle(table, m_nStyle);
    row.SetItemTitle(table.m_Title);
  }
  CString text = CString(NameOf(m_szName)).Left(kRowNameLength).Trim();
  const auto append = [&text](double value) {
    text += L',';
    text += orv3::FormatG(value);
  };
  CArray<double, double> sizes;
  GetSectSizeArr(sizes);
  for (const double size : sizes) append(size);
  const CSectionStyle* style = FindSectionStyle(m_nStyle);
  for (const CSectionProperty& p : SectionProperties()) {
    if (InTable(p, style)) append(this->*p.m_pField);
  }
  return row.SetDataItemValue(text);
}

int CSteelJMData::GetJMTableTitle(CDataTable& table, int style) {
  if (table.GetTableName().IsEmpty()) return 0;
  table.m_Title.Clear();
  table.AddTableCol(L"型号", L"No.", CDataTypeStruct::KVBT_STRING, 1);
  const CSectionStyle* found = FindSectionStyle(style);
  if (!found) return 0;
  const auto add = [&table](const wchar_t* title, const wchar_t* sign) {
    table.AddTableCol(title, sign, CDataTypeStruct::KVBT_DOUBLE, 0);
  };
  for (const orv3::CSizeColumn& size : found->Sizes()) add(size.m_szTitle, size.m_szSign);
  for (const CSectionProperty& p : SectionProperties()) {
    if (InTable(p, found)) add(p.m_szTitle, p.m_szSign);
  }
  return 1;
}
