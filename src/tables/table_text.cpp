#include "tables/table_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "framework/exception.h"
#include "framework/number_text.h"
#include "platform/code_page.h"
#include "tables/data_table.h"

namespace orv3 {
namespace {

constexpr unsigned kShift = 10;

char Shifted(char byte, unsigned by) {
  return static_cast<char>(static_cast<unsigned char>(byte) + by);
}

void AddField(std::wstring& form, std::wstring_view field) {
  if (!form.empty()) form += kFieldSeparator;
  form += field;
}

// A value up to its first line feed or zero, which would end the whole text and lose all after it.
std::wstring_view OneLine(std::wstring_view value) {
  return value.substr(0, std::min(value.find(L'\n'), value.find(L'\0')));
}

std::wstring ColumnForm(const CDataTypeStruct& column) {
  std::wstring form(OneLine(column.m_strName));
  for (const CString& field :
       {column.m_strSign, FormatInt(column.m_bKey), FormatInt(column.m_nType)}) {
    form += kFieldSeparator;
    form += OneLine(field);
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
  if (bytes.size() > length) {
    std::string plain = bytes;
    for (char& byte : plain) byte = Shifted(byte, kShift);
    bytes.resize(AnsiCut(plain, length));
  }
  bytes.resize(length, '\0');
  return bytes;
}

std::string_view FieldBytes(std::string_view field) { return field.substr(0, field.find('\0')); }

std::vector<std::wstring_view> SplitFields(std::wstring_view form) {
  constexpr std::wstring_view kSeparator = kFieldSeparator;
  std::vector<std::wstring_view> fields;
  fields.reserve(form.size() / 8 + 1);  // about
  for (;;) {
    const std::size_t at = form.find(kSeparator);
    fields.push_back(form.substr(0, at));
    if (at == std::wstring_view::npos) return fields;
    form.remove_prefix(at + kSeparator.size());
  }
}

std::wstring HeadingForm(const CDataTableTitle& title) {
  std::wstring form;
  for (int i = 0; i < title.GetTableTitleNum(); ++i) AddField(form, ColumnForm(title[i]));
  return form;
}

CDataTableTitle HeadingOf(std::wstring_view form) {
  CDataTableTitle title;
  if (form.empty()) return title;
  const std::vector<std::wstring_view> fields = SplitFields(form);
  for (std::size_t i = 0; i < fields.size(); i += 4) {
    const CDataTypeStruct column =
        ColumnOf(&fields[i], std::min<std::size_t>(4, fields.size() - i));
    title.InsertColumn(title.GetTableTitleNum(), column);
  }
  return title;
}

std::wstring RowForm(const CDataItem& row, int state) {
  std::wstring form(FormatInt(row.m_nIndex).View());
  form.reserve(static_cast<std::size_t>(row.GetItemLength() + 1) * 12);  // about
  AddField(form, FormatInt(state));
  for (int i = 0; i < row.GetItemLength(); ++i) {
    AddField(form, OneLine(row[i].m_strValue.View().substr(0, kMaxStoredValue)));
  }
  return form;
}

bool RowOf(std::wstring_view form, const CDataTableTitle& title, bool cut, CDataItem& row) {
  const std::vector<std::wstring_view> fields = SplitFields(form);
  const auto wanted = static_cast<std::size_t>(title.GetTableTitleNum()) + 2;
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

// --- The same as members
// --------------------------------------------------------------------------

CString CDataTypeStruct::TranToFake() const {
  return CDataTable::TransStringToFake(orv3::ColumnForm(*this));
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
