#include "catalogue/import/csv_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/import/section_rows.h"
#include "framework/csv.h"
#include "framework/number_text.h"
#include "framework/utf16.h"
#include "framework/utf8.h"
#include "platform/code_page.h"
#include "tables/edit_state.h"

namespace orv3 {
namespace {

constexpr std::array<const char*, 7> kTypes = {"text",   "int",  "long", "float",
                                               "double", "long", "char"};

using CCells = std::vector<std::string_view>;

bool Refuse(const CString& what, CString& why) {
  why = what;
  return false;
}

CString LineText(int line) { return L"line " + FormatInt(line) + L": "; }

// --- The text ------------------------------------------------------------------------------------

// The units of a text in UTF-16 behind its byte order mark.
std::u16string Utf16Units(std::string_view bytes, bool bigEndian) {
  std::u16string units;
  for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    units += static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first);
  }
  return units;
}

// Spreadsheets write UTF-8, the code page or, with a byte order mark, UTF-16. False for none.
bool MakeUtf8(std::string& text) {
  const bool little = text.starts_with("\xFF\xFE");
  if (little || text.starts_with("\xFE\xFF")) {
    text = ToUtf8(FromUtf16(Utf16Units(text, !little)));
    return true;
  }
  if (IsUtf8(text)) return true;
  const CString wide = FromAnsi(text);
  if (HasMeaningless(wide.View()) || AnsiCut(text, text.size()) != text.size()) return false;
  text = ToUtf8(wide);
  return true;
}

// A spreadsheet ends its lines with cells for columns that hold nothing.
bool IsBlank(const CCells& cells) {
  return std::all_of(cells.begin(), cells.end(),
                     [](std::string_view cell) { return cell.empty(); });
}

void DropEmptyEnd(CCells& cells) {
  while (!cells.empty() && cells.back().empty()) cells.pop_back();
}

// --- Columns and rows ----------------------------------------------------------------------------

// One column of the first line: sign, sign:type or sign:type:key.
struct CCsvColumn {
  CString m_strSign;
  bool m_bTyped = false;
  CDataTypeStruct::KVBT_Value_Type m_nType = CDataTypeStruct::KVBT_STRING;
  bool m_bKey = false;
};

bool ParseColumn(std::string_view text, CCsvColumn& column, CString& why) {
  const std::size_t first = text.find(':');
  column.m_strSign = FromUtf8(text.substr(0, first)).Trim();
  if (column.m_strSign.IsEmpty()) return Refuse(L"line 1: a column without a sign", why);
  if (first == std::string_view::npos) return true;
  std::string_view type = text.substr(first + 1);
  const std::size_t second = type.find(':');
  const std::string_view key = second == std::string_view::npos ? "" : type.substr(second + 1);
  type = type.substr(0, second);
  const auto* found = std::find(kTypes.begin(), kTypes.end(), type);
  if (found == kTypes.end() || (second != std::string_view::npos && key != "key")) {
    return Refuse(L"line 1: \"" + FromUtf8(text) +
                      L"\" is no column; right would be sign:type or sign:type:key with a type of "
                      L"text, int, long, float, double, char",
                  why);
  }
  column.m_bTyped = true;
  column.m_nType = static_cast<CDataTypeStruct::KVBT_Value_Type>(found - kTypes.begin());
  column.m_bKey = !key.empty();
  return true;
}

class CCsvTable {
 public:
  CCsvTable(const CString& name, CImportTable& table, CString& why)
      : m_name(name), m_table(table), m_why(why) {
    m_table.m_table.SetTableName(name);
  }

  bool Head(const CCells& cells, const CDataTableTitle& stored) {
    std::vector<CCsvColumn> columns(cells.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (!ParseColumn(cells[i], columns[i], m_why)) return false;
    }
    CDataTableTitle& title = m_table.m_table.m_Title;
    title = stored;
    m_known = KnownHeading(m_name, title);
    if (stored.GetTableTitleNum() > 0) title = stored;
    return title.GetTableTitleNum() > 0 ? Match(columns) : Start(columns);
  }

  void Row(const CCells& cells, int line) {
    CDataItem row = EmptyRow(m_name, m_table.m_table.m_Title);
    const CString why = Fill(cells, row);
    if (why.IsEmpty()) {
      row.m_nModifyType = kAdded;
      m_table.m_table.AddTableItem(row, 1, 1);
      return;
    }
    const CString no = row.IsEmpty() ? CString() : row[0].m_strValue;
    m_table.m_arrRefused.push_back({no, LineText(line) + why});
  }

 private:
  // Finds the columns of the first line in the heading; a sign that stands there twice is found
  // once for each time.
  bool Match(const std::vector<CCsvColumn>& columns) {
    const CDataTableTitle& title = m_table.m_table.m_Title;
    std::vector<bool> taken(static_cast<std::size_t>(title.GetTableTitleNum()), false);
    for (const CCsvColumn& column : columns) {
      int at = 0;
      while (at < title.GetTableTitleNum() &&
             (taken[static_cast<std::size_t>(at)] || title[at].m_strSign != column.m_strSign)) {
        ++at;
      }
      if (at == title.GetTableTitleNum()) {
        return Refuse(
            L"line 1: the table has no column \"" + column.m_strSign + L"\", or not twice", m_why);
      }
      if (column.m_bTyped && ValueClassOf(column.m_nType) != ValueClassOf(title[at].m_nType)) {
        return Refuse(L"line 1: column \"" + column.m_strSign + L"\" is of type " +
                          FromUtf8(ValueTypeName(title[at].m_nType)) + L" in the table",
                      m_why);
      }
      taken[static_cast<std::size_t>(at)] = true;
      m_arrColumn.push_back(at);
    }
    for (int i = 0; i < title.GetTableTitleNum(); ++i) {
      if (title[i].m_bKey == 0 || taken[static_cast<std::size_t>(i)]) continue;
      return Refuse(L"line 1: the key column \"" + title[i].m_strSign + L"\" is missing", m_why);
    }
    return true;
  }

  // A table that nobody knows gets the columns of the first line.
  bool Start(const std::vector<CCsvColumn>& columns) {
    for (const CCsvColumn& column : columns) {
      if (!column.m_bTyped) {
        return Refuse(L"line 1: the store has no table \"" + m_name + L"\" and column \"" +
                          column.m_strSign + L"\" no type; right would be for example " +
                          column.m_strSign + L":double, or :text:key for the key",
                      m_why);
      }
      m_table.m_table.AddTableCol(column.m_strSign, column.m_strSign, column.m_nType,
                                  column.m_bKey ? 1 : 0);
      m_arrColumn.push_back(static_cast<int>(m_arrColumn.size()));
    }
    return true;
  }

  // What is wrong with the row; empty when it is filled.
  CString Fill(const CCells& cells, CDataItem& row) const {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (i < m_arrColumn.size()) {
        row[m_arrColumn[i]].m_strValue = FromUtf8(cells[i]);
      } else if (!cells[i].empty()) {
        return L"more cells than the first line names";
      }
    }
    if (cells.size() < m_arrColumn.size()) {
      return FormatInt(static_cast<long long>(cells.size())) + L" cells, the first line names " +
             FormatInt(static_cast<long long>(m_arrColumn.size()));
    }
    return m_known ? CompleteRow(row) : CheckNumbers(row);
  }

  static CString CheckNumbers(const CDataItem& row) {
    for (int i = 0; i < row.GetItemLength(); ++i) {
      const CDataCell& cell = row[i];
      if (ValueClassOf(cell.m_nType) == CValueClass::Text || cell.m_strValue.IsEmpty() ||
          IsNumber(cell.m_strValue)) {
        continue;
      }
      return L"column \"" + cell.m_strSign + L"\" takes numbers, \"" + cell.m_strValue +
             L"\" is none";
    }
    return {};
  }

  const CString m_name;
  CImportTable& m_table;
  CString& m_why;
  bool m_known = false;
  std::vector<int> m_arrColumn;  // of the table, by the columns of the text
};

}  // namespace

const char* ValueTypeName(CDataTypeStruct::KVBT_Value_Type type) {
  const auto at = static_cast<std::size_t>(type);
  return at < kTypes.size() ? kTypes[at] : kTypes[0];
}

bool ReadCsvTable(std::string text, const CString& name, const CDataTableTitle& stored,
                  CImportTable& table, CString& why, const std::function<void(double)>& progress) {
  if (!MakeUtf8(text)) {
    return Refuse(L"neither UTF-8 nor text of the code page " + FormatInt(AnsiCodePage()) +
                      L"; right would be CSV saved as UTF-8",
                  why);
  }
  CCsvReader reader(std::move(text));
  CCells cells;
  CCsvTable csv(name, table, why);
  if (reader.Next(cells)) DropEmptyEnd(cells);
  if (cells.empty() && !reader.IsMalformed()) {
    return Refuse(L"empty; right would be a first line with the columns' signs", why);
  }
  if (!reader.IsMalformed() && !csv.Head(cells, stored)) return false;
  for (int rows = 0; reader.Next(cells);) {
    if (IsBlank(cells)) continue;
    if (++rows > kMostTableRows) return Refuse(TooManyRows(), why);
    csv.Row(cells, reader.Line());
    if (progress) progress(reader.Done());
  }
  if (!reader.IsMalformed()) return true;
  return Refuse(LineText(reader.Line()) +
                    L"a cell in quotation marks is not closed, or goes on behind them; right would "
                    L"be to close it before the separator and to double the marks within it",
                why);
}

}  // namespace orv3
