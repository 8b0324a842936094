#include "catalogue/rolled/rolled_file.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "catalogue/rolled/rolled_record.h"
#include "catalogue/rolled/rolled_style.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "framework/utf16.h"
#include "platform/store_error.h"
#include "platform/whole_file.h"
#include "tables/edit_state.h"

namespace orv3 {
namespace {

CString FitsText(const CRolledStyle& style, std::wstring_view text) {
  const int most = style.m_nName - 1;
  if (ToUtf16(text).size() <= static_cast<std::size_t>(most)) return {};
  return Say(L"太长；至多 {1} 个字符", L"is too long; give at most {1} characters",
             {FormatInt(most)});
}

CString FitsWhole(std::wstring_view text) {
  const double value = ToDouble(text);
  if (IsNumber(text) && value == std::trunc(value) &&
      std::abs(value) <= std::numeric_limits<std::int16_t>::max())
    return {};
  return Say(L"不是尺寸；应为不大于 32767 的整数",
             L"is no size; give a whole number of at most 32767");
}

// Empty when the cell can stand in a record, else what is wrong with it.
CString Fits(const CRolledStyle& style, int cell, std::wstring_view text) {
  const CFieldKind kind = cell == 0 ? CFieldKind::Text : style.Field(cell - 1).m_nKind;
  if (kind == CFieldKind::Text) return FitsText(style, text);
  if (kind == CFieldKind::Whole) return FitsWhole(text);
  return IsNumber(text) ? CString() : Say(L"不是数值；请给出数值", L"is no number; give one");
}

CString Fault(const CRolledStyle& style, const CDataItem& row) {
  if (row.GetItemLength() != style.Columns() + 1)
    return Say(L"有 {1} 个单元格；应为 {2} 个", L"has {1} cells; give {2}",
               {FormatInt(row.GetItemLength()), FormatInt(style.Columns() + 1)});
  for (int cell = 0; cell < row.GetItemLength(); ++cell) {
    const CString& text = row[cell].m_strValue;
    const CString fault = Fits(style, cell, text);
    if (!fault.IsEmpty()) return row[cell].m_strSign + L": \"" + text + L"\" " + fault;
  }
  return {};
}

}  // namespace

int WriteRolledFile(const CString& path, int number, const CDataTable& table) {
  ClearStoreError();
  CheckIndex("rolled-section style", number, kRolledStyles);
  const CRolledStyle& style = RolledStyles()[static_cast<std::size_t>(number)];
  const auto size = static_cast<std::size_t>(style.m_nSize);
  const auto header = static_cast<std::int16_t>(style.m_nSize);
  std::string bytes(sizeof header, '\0');
  std::memcpy(bytes.data(), &header, sizeof header);
  for (const CDataItem& row : table.m_arrItem) {
    if (IsDeleted(row.m_nModifyType)) continue;
    const CString fault = Fault(style, row);
    if (!fault.IsEmpty()) {
      const CString no = row.IsEmpty() ? CString() : row[0].m_strValue;
      return SetStoreError(CStoreTrouble::Refused, path,
                           Say(L"{1}: 行“{2}”：{3}", L"{1}: row \"{2}\": {3}", {path, no, fault}));
    }
    bytes.resize(bytes.size() + size);
    FillRecord(style, row, bytes.data() + bytes.size() - size);
  }
  if (WriteWholeFile(path, bytes) == CFileError::None) return 1;
  return SetStoreError(CStoreTrouble::Failed, path,
                       Say(L"{1}: 不能写入", L"{1}: cannot be written", {path}));
}

}  // namespace orv3
