#include "system_store.h"

#include "catalogue/rolled/read_file.h"
#include "catalogue/rolled/rolled_style.h"
#include "catalogue_csv.h"
#include "framework/utf8.h"
#include "platform/file_system.h"
#include "platform/store_error.h"
#include "tables/table_store.h"

namespace orv3::catalogue {
namespace {

void AddRolledTables(const CString& folder) {
  for (const CRolledStyle& style : RolledStyles()) {
    CDataTable table;
    const CString path = folder + style.m_strFile;
    if (!CReadFile::GetIronData(path.GetString(), table))
      throw CCatalogueError(ToUtf8(path) + ": cannot be read as a data file");
    if (!table.WriteSystemJmTable()) throw CCatalogueError(ToUtf8(LastStoreError().m_strText));
  }
}

}  // namespace

void MakeSystemStore(const std::string& name) {
  const CString folder = FromUtf8(name + "/");
  SetProgramPath(folder);
  Files().Remove(folder + kSystemStore);
  AddRolledTables(folder);
}

}  // namespace orv3::catalogue
