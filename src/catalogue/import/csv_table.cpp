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
#include "framework/excerpt.h"
#include "framework/language.h"
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

CString LineText(int line) { return Say(L"第 {1} 行：", L"line {1}: ", {FormatInt(line)}); }

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
  if (column.m_strSign.IsEmpty())
    return Refuse(LineText(1) + Say(L"有一列没有标识；每列应有标识",
                                    L"a column without a sign; right would be one for each column"),
                  why);
  if (first == std::string_view::npos) return true;
  std::string_view type = text.substr(first + 1);
  const std::size_t second = type.find(':');
  const std::string_view key = second == std::string_view::npos ? "" : type.substr(second + 1);
  type = type.substr(0, second);
  const auto* found = std::find(kTypes.begin(), kTypes.end(), type);
  if (found == kTypes.end() || (second != std::string_view::npos && key != "key")) {
    return Refuse(
        LineText(1) + Say(L"“{1}”不是列；应为 标识:类型 或 标识:类型:key，类型为 "
                          L"text、int、long、float、double、char",
                          L"\"{1}\" is no column; right would be sign:type or sign:type:key with a "
                          L"type of text, int, long, float, double, char",
                          {FromUtf8(Excerpt(text))}),
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
    KnownHeading(m_name, title);
    if (stored.GetTableTitleNum() > 0) title = stored;
    return title.GetTableTitleNum() > 0 ? Match(columns) : Start(columns);
  }

  void Row(const CCells& cells, int line) {
    CDataItem row = EmptyRow(m_name, m_table.m_table.m_Title);
    CString why = Fill(cells, row);
    if (why.IsEmpty()) why = Repeated(row);
    if (why.IsEmpty()) {
      row.m_nModifyType = kAdded;
      m_table.m_table.AddTableItem(row, 1, 1);
      m_table.m_arrLine.push_back(line);
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
        const bool twice = title.GetColIndex(column.m_strSign) >= 0;
        return Refuse(LineText(1) + (twice ? Twice(column) : Missing(column)), m_why);
      }
      if (column.m_bTyped && ValueClassOf(column.m_nType) != ValueClassOf(title[at].m_nType)) {
        return Refuse(
            LineText(1) + Say(L"列“{1}”在表中的类型是 {2}；应与之相同",
                              L"column \"{1}\" is of type {2} in the table; right would "
                              L"be that one",
                              {column.m_strSign, FromUtf8(ValueTypeName(title[at].m_nType))}),
            m_why);
      }
      taken[static_cast<std::size_t>(at)] = true;
      m_arrColumn.push_back(at);
    }
    for (int i = 0; i < title.GetTableTitleNum(); ++i) {
      if (title[i].m_bKey == 0 || taken[static_cast<std::size_t>(i)]) continue;
      return Refuse(LineText(1) + Say(L"缺少关键字列“{1}”", L"the key column \"{1}\" is missing",
                                      {title[i].m_strSign}),
                    m_why);
    }
    return true;
  }

  static CString Twice(const CCsvColumn& column) {
    return Say(L"列“{1}”出现两次；请只给一次，或改用另一标识",
               L"column \"{1}\" stands twice; give it once, or under another sign",
               {column.m_strSign});
  }

  CString Missing(const CCsvColumn& column) const {
    return Say(L"表“{1}”没有列“{2}”", L"table \"{1}\" has no column \"{2}\"",
               {m_name, column.m_strSign});
  }

  // A table that nobody knows gets the columns of the first line.
  bool Start(const std::vector<CCsvColumn>& columns) {
    for (const CCsvColumn& column : columns) {
      if (!column.m_bTyped) {
        return Refuse(
            LineText(1) + Say(L"库中没有表“{1}”，列“{2}”没有类型；例如可写为 "
                              L"{2}:double，关键字列为 :text:key",
                              L"the store has no table \"{1}\" and column \"{2}\" no type; "
                              L"right would be for example {2}:double, or :text:key for "
                              L"the key",
                              {m_name, column.m_strSign}),
            m_why);
      }
      if (m_table.m_table.m_Title.GetColIndex(column.m_strSign) >= 0) {
        return Refuse(LineText(1) + Twice(column), m_why);
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
        return Say(L"单元格多于首行的列", L"more cells than the first line names");
      }
    }
    if (cells.size() < m_arrColumn.size()) {
      return Say(L"有 {1} 个单元格，首行有 {2} 列", L"{1} cells, the first line names {2}",
                 {FormatInt(std::ssize(cells)), FormatInt(std::ssize(m_arrColumn))});
    }
    return CompleteRow(row);
  }

  // What is wrong with a row whose key an earlier line has with other values: which of the two is
  // meant nobody knows.
  CString Repeated(const CDataItem& row) const {
    const int earlier = m_table.m_table.IsHaveValue(row, -1);
    if (earlier < 0) return {};
    const CDataItem& other = std::as_const(m_table.m_table)[earlier];
    for (int i = 0; i < row.GetItemLength(); ++i) {
      if (row[i].m_strValue == other[i].m_strValue) continue;
      return Say(L"第 {1} 行已有此关键字，而值不同；请只留一行",
                 L"line {1} has its key with other values; right would be one line for each",
                 {FormatInt(m_table.m_arrLine[static_cast<std::size_t>(earlier)])});
    }
    return {};
  }

  const CString m_name;
  CImportTable& m_table;
  CString& m_why;
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
    return Refuse(Say(L"既不是 UTF-8，也不是代码页 {1} 的文字；请把 CSV 存为 UTF-8",
                      L"neither UTF-8 nor text of the code page {1}; right would be CSV saved as "
                      L"UTF-8",
                      {FormatInt(AnsiCodePage())}),
                  why);
  }
  CCsvReader reader(std::move(text));
  CCells cells;
  CCsvTable csv(name, table, why);
  if (reader.Next(cells)) DropEmptyEnd(cells);
  if (cells.empty() && !reader.IsMalformed()) {
    return Refuse(Say(L"首行为空；应为各列的标识",
                      L"the first line is empty; right would be the columns' signs"),
                  why);
  }
  if (!reader.IsMalformed() && !csv.Head(cells, stored)) return false;
  for (int rows = 0; reader.Next(cells);) {
    if (IsBlank(cells)) continue;
    if (++rows > kMostTableRows) return Refuse(TooManyRows(), why);
    csv.Row(cells, reader.Line());
    if (progress) progress(reader.Done());
  }
  if (!reader.IsMalformed()) return true;
  return Refuse(
      LineText(reader.Line()) +
          Say(L"有一个引号单元格没有结束，或其后还有文字；请在分隔符之前结束引号，其中的引号写两个",
              L"a cell in quotation marks is not closed, or goes on behind them; right "
              L"would be to close it before the separator and to double the marks within "
              L"it"),
      why);
}

}  // namespace orv3
