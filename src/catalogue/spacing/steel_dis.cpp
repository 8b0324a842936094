#include "catalogue/spacing/steel_dis.h"

#include <string_view>

#include "catalogue/spacing/spacing_rows.h"
#include "framework/number_text.h"
#include "sections/section_kind.h"

namespace {

using T = CGetSteelDis;

constexpr int kAngles = 0;
constexpr int kChannels = 5;
constexpr int kLightChannels = 6;

// The leg width or number in a model number.
CString NumberOf(const CString& no) {
  return CString(no).TrimLeft(L"L").TrimLeft(L"[").Left(3).TrimRight(L"X");
}

// The column of the last row with the key; `otherwise` when there is none.
CString LastOf(const orv3::CSpacingTable& table, const CString& key, std::size_t column,
               const CString& otherwise) {
  for (std::size_t i = table.Rows(); i-- > 0;) {
    if (key == table[i][0]) return table[i][column];
  }
  return otherwise;
}

// The gauge as it has always been answered: a row that does not match overwrites one that did.
CString AngleGauge(const CString& width) {
  CString gauge;
  for (const auto& row : T::strSub1) gauge = width == row[0] ? row[1] : L"5";
  return orv3::ToDouble(width) > 125 ? CString(L"70") : gauge;
}

}  // namespace

orv3::CSpacingTable orv3::SpacingTable(int table) {
  static const CSpacingTable kTables[] = {
      CSpacingTable(T::strSub1),  CSpacingTable(T::strSub2),  CSpacingTable(T::strSub3),
      CSpacingTable(T::strSub4),  CSpacingTable(T::strSub5),  CSpacingTable(T::strSub6),
      CSpacingTable(T::strSub7),  CSpacingTable(T::strSub8),  CSpacingTable(T::strSub9),
      CSpacingTable(T::strSub10), CSpacingTable(T::strSub11), CSpacingTable(T::strSub12),
      CSpacingTable(T::strSub13), CSpacingTable(T::strSub14), CSpacingTable(T::strSub15),
      CSpacingTable(T::strSub16), CSpacingTable(T::strSub17), CSpacingTable(T::strSub18),
      CSpacingTable(T::strSub19)};
  return table >= 0 && table < std::ssize(kTables) ? kTables[table] : CSpacingTable();
}

void CGetSteelDis::GetSubData(int table, const CString& no, CString& row) {
  // `row` may be `no`. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const CString key(no);
  row.Empty();
  const orv3::CSpacingTable rows = orv3::SpacingTable(table);
  for (std::size_t i = rows.Rows(); i-- > 0 && row.IsEmpty();) {
    if (key != rows[i][0]) continue;
    for (const wchar_t* cell : rows[i]) row += (row.IsEmpty() ? CString() : CString(L",")) + cell;
  }
}

double CGetSteelDis::GetSubData(int table, const CString& no) {
  CString text = NumberOf(no);
  if (table == kAngles) {
    text = AngleGauge(text);
  } else if (table == kChannels || table == kLightChannels) {
    text = LastOf(orv3::SpacingTable(table), text, 4, text);
  }
  return orv3::ToDouble(text);
}

double CGetSteelDis::GetSubData(const CString& styleName, const CString& no) {
  using K = orv3::CSectionKind;
  const auto kind = orv3::FindSectionKind(styleName);
  if (kind == K::EqualAngle || kind == K::UnequalAngle) return GetSubData(kAngles, no);
  if (kind == K::OrdinaryChannel) return GetSubData(kChannels, no);
  if (kind == K::LightChannel) return GetSubData(kLightChannels, no);
  return 0;
}
