// Rolled-section data files: whatever the bytes, reading gives 0 or a table of whole rows, no two
// of one model number, and what can be written of it reads back as it was.
//
// The first byte of an input chooses the style and whether the file is the user's twin; the rest is
// the file.
#include "catalogue/rolled/rolled_file.h"
#include "catalogue/import/table_import.h"
#include "catalogue/rolled/read_file.h"
#include "catalogue/rolled/rolled_style.h"
#include "memory_files.h"

namespace {

void CheckRows(const CDataTable& table, int columns) {
  Require(table.GetTableColNum() == columns);
  for (int i = 0; i < table.GetTableRowNum(); ++i) {
    Require(table[i].GetItemLength() == columns);
    Require(table.IsHaveValue(0, table[i][0].m_strValue, -1) == i);
  }
}

// Everything but "%G"'s six digits survives: the second reading is of texts that were shown once.
void CheckWritten(const CString& file, int style, const CDataTable& table) {
  if (!orv3::WriteRolledFile(file, style, table)) return;
  CDataTable again;
  Require(CReadFile::GetIronData(file.GetString(), again) == (table.GetTableRowNum() > 0 ? 1 : 0));
  Require(again.GetTableRowNum() == table.GetTableRowNum());
  for (int row = 0; row < table.GetTableRowNum(); ++row) {
    for (int cell = 0; cell < table[row].GetItemLength(); ++cell)
      Require(again[row][cell].m_strValue == table[row][cell].m_strValue);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  if (size == 0) return 0;
  const int index = data[0] % orv3::kRolledStyles;
  const orv3::CRolledStyle& style = orv3::RolledStyles()[static_cast<std::size_t>(index)];
  const CString file = (data[0] < 128 ? L"" : L"O") + CString(style.m_strFile);
  files[file] = std::string(reinterpret_cast<const char*>(data) + 1, size - 1);

  CDataTable table;
  if (CReadFile::GetIronData(file.GetString(), table)) {
    CheckRows(table, style.Columns() + 1);
    CheckWritten(file, index, table);
  }
  std::vector<orv3::CImportTable> tables;
  CString why;
  Require(orv3::ReadImportFile(file, tables, why) == why.IsEmpty());
  files.Remove(file);
  return 0;
}
