#include "catalogue/outline/row_axes.h"

#include "sections/section_style.h"

namespace orv3 {

CAxisLetters RowAxisLetters(const CString& tableName) {
  static constexpr struct {
    const wchar_t* m_szTable;
    CAxisLetters m_letters;
  } kTables[] = {
      {L"热轧等边角钢", {L"X", L"Y", L"Xo", L"Yo"}},
      {L"热轧不等边角钢", {L"X", L"Y", L"V", L"U"}},
      {L"热轧等边角钢十字组合", {L"X", L"Y", L"X1", L"Y1"}},
      {L"冷弯薄壁等边角钢", {L"Xo", L"Yo", L"X", L"Y"}},
      {L"冷弯卷边等边角钢", {L"Xo", L"Yo", L"X", L"Y"}},
      {L"冷弯薄壁卷边Z型钢", {L"X1", L"Y1", L"X", L"Y"}},
      {L"冷弯薄壁斜卷边Z型钢", {L"X1", L"Y1", L"X", L"Y"}},
  };
  for (const auto& table : kTables) {
    if (tableName == table.m_szTable) return table.m_letters;
  }
  const bool custom = FindSectionStyle(tableName.View()) != nullptr;
  return custom ? CAxisLetters{L"X0", L"Y0"} : CAxisLetters{};
}

}  // namespace orv3
