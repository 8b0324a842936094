// Table files: whatever the bytes, reading gives 0, a table or the invalid-argument exception, and
// a save that says 1 can be read again.
//
// An input that starts with a zero byte is the file itself. Any other is text, in lines: the
// information line, the heading, then table records, each behind "R", and the rows of one block of
// two columns.
#include <algorithm>
#include <string_view>
#include <vector>

#include "memory_files.h"
#include "tables/data_table.h"
#include "tables/file/layout.h"

namespace {

void PutField(std::string& file, std::size_t at, std::string_view text, std::size_t length) {
  for (std::size_t i = 0; i < std::min(text.size(), length) && at + i < file.size(); ++i) {
    file[at + i] = static_cast<char>(text[i] - 10);
  }
}

std::string FileOf(std::string_view input) {
  if (!input.empty() && input[0] == '\0') return std::string(input.substr(1));
  std::string file(20100 + 9100 + 20100, '\0');
  std::size_t record = file.size() - 20000;
  std::size_t row = 20100 + 200;
  for (int line = 0; !input.empty(); ++line) {
    const std::string_view text = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(input.size(), text.size() + 1));
    if (line == 0) {
      PutField(file, file.size() - 20100, text, 100);
    } else if (line == 1) {
      PutField(file, 20100, text, 200);
    } else if (!text.empty() && text[0] == 'R') {
      PutField(file, record, text.substr(1), 200);
      record += 200;
    } else {
      PutField(file, row, text, 91);
      row += 91;
    }
  }
  return file;
}

bool Load(CDataTable& table, const CString& name) {
  table.SetTableName(name);
  CString line;
  try {
    return table.GetTable(L"a.KDB", line) != 0;
  } catch (const CInvalidArgException&) {
    return false;
  }
}

void SaveOneMore(const CString& name) {
  CDataTable table;
  if (!Load(table, name)) return;
  CDataItem row;
  row.SetItemTitle(table.m_Title);
  row.m_nIndex = 12345;
  row.m_nModifyType = 1;
  table.AddTableItem(row, 1, 1);
  if (!table.WriteTable(L"a.KDB", 0, 0)) return;
  CDataTable again;
  Require(Load(again, name) && again.GetTableRowNum() == table.GetTableRowNum());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  files.Remove(L"a._KDB.journal");
  files[L"a.KDB"] = FileOf({reinterpret_cast<const char*>(data), size});
  CStringArray names;
  Require(CDataTable::GetTableNameFromFile(L"a.KDB", names) <= orv3::kMaxTables);
  std::vector<CString> readable;
  for (const CString& name : names) {
    CDataTable table;
    if (Load(table, name)) readable.push_back(name);
  }
  for (int i = 0; i < std::min(names.GetSize(), 3); ++i) SaveOneMore(names[i]);
  CDataTable fresh;
  fresh.SetTableName(L"fresh");
  fresh.AddTableCol(L"c", L"c", CDataTypeStruct::KVBT_STRING, 1);
  fresh.AddTableItem(L"v", 1);
  if (fresh.WriteTable(L"a.KDB", 0, 0)) {
    CDataTable again;
    Require(Load(again, L"fresh") && again.GetTableRowNum() >= 1);
  }
  // And what could be read before still can.
  for (const CString& name : readable) {
    CDataTable table;
    Require(Load(table, name));
  }
  return 0;
}
