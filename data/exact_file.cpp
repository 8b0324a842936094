#include "exact_file.h"

#include <cmath>
#include <vector>

#include "catalogue/exact/exact_figures.h"
#include "catalogue/exact/row_exact.h"
#include "catalogue/outline/row_doubts.h"
#include "catalogue_csv.h"
#include "framework/utf8.h"
#include "platform/store_error.h"
#include "platform/whole_file.h"
#include "tables/data_table.h"
#include "tables/edit_state.h"
#include "tables/file/table_store.h"

namespace orv3::catalogue {
namespace {

CDataTable Read(const CString& store, const CString& name) {
  CDataTable table;
  table.SetTableName(name);
  CString info;
  if (!table.GetTable(store, info)) throw CCatalogueError(ToUtf8(LastStoreError().m_strText));
  return table;
}

CExactRecord RecordOf(const CDataItem& row) {
  const auto key = ExactRecordKey(row);
  const CExactProperties exact = ComputedExact(row);
  if (!key || std::isnan(exact.It)) {
    throw CCatalogueError(ToUtf8(row.m_strTableName + L": " + row[0].m_strValue +
                                 L": its outline has no exact properties"));
  }
  if (const auto what = Contradiction(row)) {
    throw CCatalogueError(ToUtf8(row.m_strTableName + L": " + row[0].m_strValue) + ": " +
                          what->m_strEnglish);
  }
  return {*key, exact};
}

}  // namespace

void MakeExactFile(const std::string& folder) {
  const CString start = FromUtf8(folder + "/");
  const CString store = start + kSystemStore;
  CStringArray names;
  CDataTable::GetTableNameFromFile(store, names);
  std::vector<CExactRecord> records;
  for (const CString& name : names) {
    const CDataTable table = Read(store, name);
    for (const CDataItem& row : table.m_arrItem) {
      if (!IsDeleted(row.m_nModifyType)) records.push_back(RecordOf(row));
    }
  }
  if (WriteWholeFile(start + kExactFile, ExactFileBytes(std::move(records))) != CFileError::None)
    throw CCatalogueError(folder + ": the file of exact properties cannot be written");
}

}  // namespace orv3::catalogue
