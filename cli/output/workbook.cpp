// Tables as a workbook (.xlsx), by libxlsxwriter where the program was built with it.
#include "error.h"
#include "framework/language.h"
#include "store/store_export.h"

#ifdef ORV3CAL_XLSX

#include <xlsxwriter.h>

#include <algorithm>
#include <set>
#include <utility>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/terminal.h"

namespace orv3::cli {
namespace {

constexpr lxw_row_t kHeadingRows = 2;
constexpr double kColumnWidth = 12;  // characters
constexpr int kMaxSheetName = 31;

// What a spreadsheet takes as a sheet's name: no brackets, slashes and the like, no apostrophe at
// an end, 31 characters.
std::string SheetName(const CString& table) {
  CString name = FromUtf8(Visible(ToUtf8(table)));
  for (const auto& [bad, good] : {std::pair{L"[", L"［"},
                                  {L"]", L"］"},
                                  {L":", L"："},
                                  {L"*", L"＊"},
                                  {L"?", L"？"},
                                  {L"/", L"／"},
                                  {L"\\", L"＼"}}) {
    name.Replace(bad, good);
  }
  name = name.Left(kMaxSheetName);
  for (const int end : {0, name.GetLength() - 1}) {
    if (name[end] == L'\'') name.SetAt(end, L'’');
  }
  return ToUtf8(name);
}

void CheckSheetNames(const std::vector<CDataTable>& tables) {
  std::set<std::string> names;
  for (const CDataTable& table : tables) {
    const std::string name = SheetName(table.GetTableName());
    std::string folded = name;  // sheets' names differ in more than capitals
    for (char& ch : folded) ch = ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch;
    if (names.insert(folded).second) continue;
    Refuse(Say("有两个表的工作表名都是“{1}”；请分别导出",
               "two tables would have the sheet name \"{1}\"; right would be to export them apart",
               {name}));
  }
}

bool WriteSheet(lxw_workbook* book, const CDataTable& table) {
  lxw_worksheet* sheet = workbook_add_worksheet(book, SheetName(table.GetTableName()).c_str());
  if (!sheet) return false;
  lxw_format* heading = workbook_add_format(book);
  format_set_bold(heading);
  const auto columns = static_cast<lxw_col_t>(table.GetTableColNum());
  if (columns > 0) {
    worksheet_set_column(sheet, 0, static_cast<lxw_col_t>(columns - 1), kColumnWidth, nullptr);
  }
  for (lxw_col_t col = 0; col < columns; ++col) {
    const CDataTypeStruct& column = table.m_Title[col];
    worksheet_write_string(sheet, 0, col, ToUtf8(column.m_strName).c_str(), heading);
    worksheet_write_string(sheet, 1, col, ToUtf8(column.m_strSign).c_str(), heading);
  }
  worksheet_freeze_panes(sheet, kHeadingRows, 1);
  lxw_row_t line = kHeadingRows;
  for (const CDataItem& row : table.m_arrItem) {
    for (lxw_col_t col = 0; col < row.GetItemLength(); ++col) {
      const CDataCell& cell = row[col];
      if (ValueClassOf(cell.m_nType) != CValueClass::Text && IsNumber(cell.m_strValue)) {
        worksheet_write_number(sheet, line, col, ToDouble(cell.m_strValue), nullptr);
      } else {
        worksheet_write_string(sheet, line, col, ToUtf8(cell.m_strValue).c_str(), nullptr);
      }
    }
    ++line;
  }
  return true;
}

bool WriteSheets(const std::string& file, const std::vector<CDataTable>& tables) {
  const CErrorSilence silence;  // the command has its own words
  lxw_workbook* book = workbook_new(file.c_str());
  if (!book) return false;
  const bool whole = std::all_of(tables.begin(), tables.end(),
                                 [&](const CDataTable& table) { return WriteSheet(book, table); });
  return workbook_close(book) == LXW_NO_ERROR && whole;  // which writes it
}

}  // namespace

std::string WorkbookBytes(const std::string& file, const std::vector<CDataTable>& tables) {
  CheckSheetNames(tables);
  const CTemporaryFile made;
  std::string bytes;
  if (WriteSheets(ToUtf8(made.Path()), tables) &&
      ReadWholeFile(made.Path(), bytes) == CFileError::None) {
    return bytes;
  }
  throw CCommandError(CExit::FileTrouble,
                      Say("{1}: 没有写入，不能在 {2} 建立工作簿；磁盘是否已满？",
                          "{1}: not written, the workbook could not be made at "
                          "{2}; is that disk full?",
                          {file, ToUtf8(made.Path())}));
}

}  // namespace orv3::cli

#else

namespace orv3::cli {

std::string WorkbookBytes(const std::string& file, const std::vector<CDataTable>&) {
  Refuse(Say("{1}: 本程序编译时没有 libxlsxwriter，不能写工作簿；请用 .csv、.json 或 .KDB 文件",
             "{1}: this program was built without libxlsxwriter and writes no workbooks; right "
             "would be a .csv, .json or .KDB file",
             {file}));
}

}  // namespace orv3::cli

#endif
