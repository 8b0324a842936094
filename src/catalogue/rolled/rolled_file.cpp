#include "catalogue/rolled/rolled_file.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "catalogue/rolled/rolled_record.h"
#include "catalogue/rolled/rolled_style.h"
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
  return L"is too long; give at most " + FormatInt(most) + L" characters";
}

CString FitsWhole(std::wstring_view text) {
  const double value = ToDouble(text);
  if (IsNumber(text) && value == std::trunc(value) &&
      std::abs(value) <= std::numeric_limits<std::int16_t>::max())
    return {};
  return L"is no size; give a whole number of at most 32767";
}

// Empty when the cell can stand in a record, else what is wrong with it.
CString Fits(const CRolledStyle& style, int cell, std::wstring_view text) {
  const CFieldKind kind = cell == 0 ? CFieldKind::Text : style.Field(cell - 1).m_nKind;
  if (kind == CFieldKind::Text) return FitsText(style, text);
  if (kind == CFieldKind::Whole) return FitsWhole(text);
  return IsNumber(text) ? CString() : CString(L"is no number; give one");
}

CString Fault(const CRolledStyle& style, const CDataItem& row) {
  if (row.GetItemLength() != style.Columns() + 1)
    return L"has " + FormatInt(row.GetItemLength()) + L" cells; give " +
           FormatInt(style.Columns() + 1);
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
      return SetStoreError(CStoreTrouble::Refused, path, path + L": row \"" + no + L"\": " + fault);
    }
    bytes.resize(bytes.size() + size);
    FillRecord(style, row, bytes.data() + bytes.size() - size);
  }
  if (WriteWholeFile(path, bytes) == CFileError::None) return 1;
  return SetStoreError(CStoreTrouble::Failed, path, path + L": cannot be written");
}

}  // namespace orv3
