#include "tables/file/table_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

#include "framework/exception.h"
#include "framework/number_text.h"
#include "platform/code_page.h"
#include "tables/data_table.h"
#include "tables/file/layout.h"

namespace orv3 {
namespace {

constexpr unsigned kShift = 10;

char Shifted(char byte, unsigned by) {
  return static_cast<char>(static_cast<unsigned char>(byte) + by);
}

std::array<std::wstring, 4> ColumnFields(const CDataTypeStruct& column) {
  return {std::wstring(OneLine(column.m_strName)), std::wstring(OneLine(column.m_strSign)),
          std::wstring(FormatInt(column.m_bKey).View()),
          std::wstring(FormatInt(column.m_nType).View())};
}

template <class FIELDS>
std::wstring Joined(const FIELDS& fields) {
  std::size_t size = 0;
  for (const auto& field : fields) size += field.size() + std::size(kFieldSeparator);
  std::wstring form;
  form.reserve(size);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) form += kFieldSeparator;
    form += fields[i];
  }
  return form;
}

// The column of up to four fields.
CDataTypeStruct ColumnOf(const std::wstring_view* fields, std::size_t count) {
  CDataTypeStruct column;
  if (count > 0) column.m_strName = fields[0];
  if (count > 1) column.m_strSign = fields[1];
  if (count > 2) column.m_bKey = ToInt(fields[2]);
  if (count > 3) column.m_nType = static_cast<CDataTypeStruct::KVBT_Value_Type>(ToInt(fields[3]));
  return column;
}

CDataTableTitle ColumnsIn(const std::vector<std::wstring_view>& fields) {
  CDataTableTitle title;
  for (std::size_t i = 0; i < fields.size(); i += 4) {
    const CDataTypeStruct column =
        ColumnOf(&fields[i], std::min<std::size_t>(4, fields.size() - i));
    title.InsertColumn(title.GetTableTitleNum(), column);
  }
  return title;
}

// Bytes in a wide text, each as a signed number of 16 bits: the way fake text travels.
CString Widened(std::string_view bytes) {
  std::wstring wide;
  wide.reserve(bytes.size());
  for (const char byte : bytes) {
    wide += static_cast<wchar_t>(static_cast<std::uint16_t>(static_cast<signed char>(byte)));
  }
  return wide;
}

}  // namespace

std::string EncodeText(std::wstring_view text, bool* missing) {
  std::string bytes = ToAnsi(text.substr(0, text.find(L'\0')), missing);
  bytes.resize(std::min(bytes.size(), bytes.find('\n')));
  for (char& byte : bytes) byte = Shifted(byte, 0U - kShift);
  return bytes;
}

CString DecodeText(std::string_view stored) {
  std::string bytes(FieldBytes(stored));
  for (char& byte : bytes) byte = Shifted(byte, kShift);
  return FromAnsi(bytes);
}

CString DecodeText(const char* stored) {
  return DecodeText(stored ? std::string_view(stored) : std::string_view());
}

std::string EncodeField(std::wstring_view text, std::size_t length, bool* missing) {
  std::string bytes = EncodeText(text, missing);
  bytes.resize(length, '\0');
  return bytes;
}

std::string_view FieldBytes(std::string_view field) { return field.substr(0, field.find('\0')); }

std::vector<std::wstring_view> SplitFields(std::wstring_view form) {
  return SplitStored(form, 0, false);
}

bool CStoredFields::Next(std::wstring_view& field) {
  constexpr std::wstring_view kSeparator = kFieldSeparator;
  if (m_bEnd) return false;
  const std::size_t at = m_rest.find(kSeparator);
  m_bEnd = at == std::wstring_view::npos;
  field = m_rest.substr(0, at);
  if (m_nWanted > 0) --m_nWanted;  // of those that are still to come
  if (!m_bEnd) {
    m_rest.remove_prefix(at + kSeparator.size());
  } else if (m_bCut && m_nWanted > 0) {
    for (int i = 0; i < 2 && field.ends_with(L','); ++i) field.remove_suffix(1);
  }
  return true;
}

std::vector<std::wstring_view> SplitStored(std::wstring_view form, std::size_t wanted, bool cut) {
  std::vector<std::wstring_view> fields;
  fields.reserve(form.size() / 8 + 1);  // about
  CStoredFields stored(form, wanted, cut);
  for (std::wstring_view field; stored.Next(field);) fields.push_back(field);
  return fields;
}

// Either would end the whole text and lose all after it.
std::wstring_view OneLine(std::wstring_view text) {
  return text.substr(0, std::min(text.find(L'\n'), text.find(L'\0')));
}

std::wstring_view StoredValue(std::wstring_view value) {
  return OneLine(value.substr(0, kMaxStoredValue));
}

std::vector<std::wstring> HeadingFields(const CDataTableTitle& title) {
  std::vector<std::wstring> fields;
  for (int i = 0; i < title.GetTableTitleNum(); ++i) {
    for (std::wstring& field : ColumnFields(title[i])) fields.push_back(std::move(field));
  }
  return fields;
}

std::wstring HeadingForm(const CDataTableTitle& title) { return Joined(HeadingFields(title)); }

CDataTableTitle HeadingOf(std::wstring_view form) {
  return form.empty() ? CDataTableTitle() : ColumnsIn(SplitFields(form));
}

bool StoredHeading(std::string_view area, CDataTableTitle& title) {
  const auto columns = static_cast<int>(area.size() / HeadingLength(1));
  const bool cut = FieldBytes(area).size() == area.size();
  const CString form = DecodeText(area);
  title.Clear();
  if (!form.IsEmpty()) {
    title = ColumnsIn(SplitStored(form, 4 * static_cast<std::size_t>(columns), cut));
  }
  while (cut && title.GetTableTitleNum() < columns) {
    title.InsertColumn(title.GetTableTitleNum(), CDataTypeStruct());
  }
  return title.GetTableTitleNum() == columns;
}

CRowText::CRowText(const CDataItem& row, int state)
    : m_strIndex(FormatInt(row.m_nIndex)), m_strState(FormatInt(state)) {
  m_arrField.reserve(static_cast<std::size_t>(row.GetItemLength()) + 2);
  m_arrField.push_back(m_strIndex);
  m_arrField.push_back(m_strState);
  for (int i = 0; i < row.GetItemLength(); ++i) {
    m_arrField.push_back(StoredValue(row[i].m_strValue));
  }
}

std::wstring CRowText::Form() const { return Joined(m_arrField); }

std::wstring RowForm(const CDataItem& row, int state) { return CRowText(row, state).Form(); }

bool RowOf(std::wstring_view form, const CDataTableTitle& title, bool cut, CDataItem& row) {
  const auto wanted = static_cast<std::size_t>(title.GetTableTitleNum()) + 2;
  const std::vector<std::wstring_view> fields = SplitStored(form, wanted, cut);
  if (fields.size() < (cut ? 2 : wanted)) return false;
  if (fields.size() > wanted) {
    throw CInvalidArgException("row on file: " + std::to_string(fields.size() - 2) +
                               " values for " + std::to_string(wanted - 2) + " columns");
  }
  row.m_nIndex = ToInt(fields[0]);
  row.m_nModifyType = ToInt(fields[1]);
  row.Clear();
  row.m_arrCell.Reserve(title.GetTableTitleNum());
  for (std::size_t i = 2; i < wanted; ++i) {
    CDataCell cell(title[static_cast<int>(i) - 2], CString());
    if (i < fields.size()) cell.m_strValue = fields[i].substr(0, kMaxStoredValue);
    row.m_arrCell.Add(std::move(cell));
  }
  return true;
}

}  // namespace orv3

// --- The same as members -------------------------------------------------------------------------

CString CDataTypeStruct::TranToFake() const {
  return CDataTable::TransStringToFake(orv3::Joined(orv3::ColumnFields(*this)));
}

void CDataTypeStruct::TransToNormal(const char* stored) {
  const CString form = orv3::DecodeText(stored);
  const std::vector<std::wstring_view> fields = orv3::SplitFields(form);
  *this = orv3::ColumnOf(fields.data(), fields.size());
}

CString CDataTableTitle::TranToFake() const {
  return CDataTable::TransStringToFake(orv3::HeadingForm(*this));
}

void CDataTableTitle::TransToNormal(const char* stored) {
  *this = orv3::HeadingOf(orv3::DecodeText(stored));
}

CString CDataTable::TransStringToFake(const CString& text) {
  return orv3::Widened(orv3::EncodeText(text));
}

CString CDataTable::TransFakeToString(const char* stored) { return orv3::DecodeText(stored); }

CString CDataTable::TransItemToFake(int position) const {
  const CDataItem& row = m_arrItem[position];
  return TransStringToFake(orv3::RowForm(row, row.m_nModifyType));
}

int CDataTable::TransItemToNormal(const char* stored) {
  CDataItem row;
  if (!orv3::RowOf(orv3::DecodeText(stored), m_Title, false, row)) return 0;
  row.m_strTableName = m_strTableName;
  m_arrItem.Add(row);
  return 1;
}
