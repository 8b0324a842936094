// The facade's imports.
#include "catalogue/import/table_import.h"
#include "sections/load_data_table.h"
#include "sections/system_tables.h"

int CLoadDataTable::ImportDataTable(const CString& file, const CString& storePath, int flag) {
  orv3::CImportOptions options;
  options.m_bOverwrite = flag != 0;
  return orv3::ImportFile(file, storePath, options).m_bDone ? 1 : 0;
}

int CLoadDataTable::ImportSysDataTable(const CString& file, int flag) {
  return ImportDataTable(file, orv3::SystemStorePath(), flag);
}
