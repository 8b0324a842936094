// What table files and rolled-section data files hold for an import.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>
#include <utility>

#include "catalogue/import/table_import.h"
#include "catalogue/rolled/rolled_record.h"
#include "catalogue/rolled/rolled_style.h"
#include "framework/language.h"
#include "framework/number_text.h"
#include "platform/store_error.h"
#include "platform/whole_file.h"
#include "tables/file/store_check.h"

namespace orv3 {
namespace {

constexpr std::size_t kHeader = 2;                                  // a data file's record size
constexpr std::uint64_t kLargestDataFile = std::uint64_t{1} << 24;  // 30,000 of the largest records

bool Refuse(const CString& file, const CString& what, CString& why) {
  why = file + L": " + what;
  return false;
}

bool HasExtension(const CString& file, std::wstring_view extension) {
  CString end = file.Right(static_cast<int>(extension.size()));
  for (int i = 0; i < end.GetLength(); ++i) {
    if (end[i] >= L'A' && end[i] <= L'Z') end.SetAt(i, static_cast<wchar_t>(end[i] + 32));
  }
  return end == extension;
}

// --- Table files ---------------------------------------------------------------------------------

bool ReadTableFile(const CString& file, std::vector<CImportTable>& tables, CString& why) {
  std::vector<CStoreFault> faults;
  if (!VerifyStore(file, faults)) {
    why = LastStoreError().m_strText;
    return false;
  }
  // Values are refused row by row.
  const auto found = std::find_if(faults.begin(), faults.end(),
                                  [](const CStoreFault& fault) { return !fault.m_bValue; });
  if (found != faults.end()) {
    const CStoreFault& fault = *found;
    const CString table = fault.m_strTable.IsEmpty()
                              ? CString()
                              : Say(L"表“{1}”", L"table \"{1}\", ", {fault.m_strTable});
    return Refuse(file,
                  Say(L"已损坏：{1}在第 {2} 字节处：{3}", L"damaged: {1}at {2}: {3}",
                      {table, FormatInt(fault.m_nOffset), fault.m_strWhat}),
                  why);
  }
  CStringArray names;
  CDataTable::GetTableNameFromFile(file, names);
  if (LastStoreError().m_nTrouble != CStoreTrouble::None) {
    why = LastStoreError().m_strText;
    return false;
  }
  for (const CString& name : names) {
    CImportTable source;
    source.m_table.SetTableName(name);
    CString line;
    if (!source.m_table.GetTable(file, line)) {
      why = LastStoreError().m_strText;
      return false;
    }
    tables.push_back(std::move(source));
  }
  return true;
}

// --- Rolled-section data files -------------------------------------------------------------------

// The bytes of the records; false when they are not whole records of the style.
bool ReadRecords(const CString& file, const CRolledStyle& style, std::string& records,
                 CString& why) {
  CFileStamp stamp;
  if (Files().Stamp(file, stamp) == CFileError::None && stamp.m_nSize > kLargestDataFile) {
    return Refuse(
        file, Say(L"大于 16 MB，不是数据文件", L"of more than 16 MB, which no data file is"), why);
  }
  if (ReadWholeFile(file, records) != CFileError::None) {
    return Refuse(file,
                  Say(L"不能读取；应对当前用户开放，且未被占用",
                      L"not to be read; it must be open to this user and free"),
                  why);
  }
  std::int16_t size = 0;
  if (records.size() >= kHeader) std::memcpy(&size, records.data(), kHeader);
  const CString wanted = FormatInt(style.m_nSize);
  if (size <= 0 || size != style.m_nSize) {
    return Refuse(file,
                  Say(L"已损坏：其记录为 {1} 字节；“{2}”的记录为 {3} 字节",
                      L"damaged: its records are of {1} bytes; those of \"{2}\" are of {3}",
                      {FormatInt(size), style.Name(), wanted}),
                  why);
  }
  records.erase(0, kHeader);
  const std::size_t over = records.size() % static_cast<std::size_t>(style.m_nSize);
  if (over != 0) {
    return Refuse(file,
                  Say(L"已损坏：末尾的记录只有 {1} 字节，应为 {2} 字节",
                      L"damaged: it ends {1} bytes into a record of {2}",
                      {FormatInt(static_cast<long long>(over)), wanted}),
                  why);
  }
  return true;
}

// The records as rows, new ones for the user's twin. False for one that cannot be a row.
bool TakeRecords(const CString& file, const CRolledStyle& style, const std::string& records,
                 bool userTwin, CImportTable& source, CString& why) {
  source.m_table.SetTableName(style.Name());
  source.m_table.m_Title = RolledTitle(style);
  std::set<CString> seen;
  const auto size = static_cast<std::size_t>(style.m_nSize);
  for (std::size_t at = 0; at < records.size(); at += size) {
    const CString record = FormatInt(static_cast<long long>(at / size) + 1);
    const CString no = RecordNumber(style, records.data() + at);
    if (no.IsEmpty())
      return Refuse(file,
                    Say(L"已损坏：第 {1} 条记录没有型号",
                        L"damaged: record {1} has no model number", {record}),
                    why);
    CStringArray values;
    CDataTable::TransStrToArray(RecordRow(style, records.data() + at), L",", values);
    if (values.GetSize() != style.Columns() + 1) {
      return Refuse(file,
                    Say(L"已损坏：第 {1} 条记录“{2}”中有逗号",
                        L"damaged: record {1}, \"{2}\", has a comma", {record, no}),
                    why);
    }
    for (int i = 0; i < style.Columns(); ++i) {
      if (style.Field(i).m_nKind == CFieldKind::Text || IsNumber(values[i + 1])) continue;
      return Refuse(file,
                    Say(L"已损坏：第 {1} 条记录“{2}”的 {3} 为 {4}，不是数值",
                        L"damaged: record {1}, \"{2}\": {3} is {4}, which is no number",
                        {record, no, style.m_arrColumn[static_cast<std::size_t>(i)].m_strSign,
                         values[i + 1]}),
                    why);
    }
    if (seen.insert(no).second) {
      source.m_table.AddTableItem(values, userTwin ? 1 : 0);
    } else {
      source.m_arrRefused.push_back({no, Say(L"文件中前面已有该型号的记录",
                                             L"the file has an earlier record of this number")});
    }
  }
  return true;
}

bool ReadDataFile(const CString& file, std::vector<CImportTable>& tables, CString& why) {
  bool userTwin = false;
  const std::wstring_view path = file.View();
  const int index = FindRolledFile(path.substr(path.find_last_of(L"\\/") + 1), userTwin);
  if (index < 0) {
    return Refuse(file,
                  Say(L"没有以此为名的型钢数据文件；应为例如 DbData.kvb 或 ODbData.kvb",
                      L"no rolled-section style has a data file of this name; right would be for "
                      L"example DbData.kvb or ODbData.kvb"),
                  why);
  }
  const CRolledStyle& style = RolledStyles()[static_cast<std::size_t>(index)];
  CImportTable source;
  std::string records;
  if (!ReadRecords(file, style, records, why) ||
      !TakeRecords(file, style, records, userTwin, source, why)) {
    return false;
  }
  if (records.empty()) {
    // A user who has no sections of a style still has its file.
    return userTwin || Refuse(file, Say(L"没有记录", L"it holds no record"), why);
  }
  tables.push_back(std::move(source));
  return true;
}

}  // namespace

bool ReadImportFile(const CString& file, std::vector<CImportTable>& tables, CString& why) {
  tables.clear();
  CFileStamp stamp;
  if (Files().Stamp(file, stamp) == CFileError::NotFound)
    return Refuse(file, Say(L"文件不存在", L"not found"), why);
  if (HasExtension(file, L".kvb")) return ReadDataFile(file, tables, why);
  if (HasExtension(file, L".kdb")) return ReadTableFile(file, tables, why);
  return Refuse(
      file,
      Say(L"不是可以导入的文件；应为截面库文件（.KDB）、型钢数据文件（.kvb），命令还可用 .csv 文件",
          L"of no kind that can be imported; right would be a table file (.KDB), a "
          L"rolled-section data file (.kvb) or, for the command, a .csv file"),
      why);
}

CImportReport ImportFile(const CString& file, const CString& store, const CImportOptions& options) {
  std::vector<CImportTable> tables;
  CImportReport report;
  if (!ReadImportFile(file, tables, report.m_strWhy)) return report;
  return ImportTables(tables, store, options);
}

}  // namespace orv3
