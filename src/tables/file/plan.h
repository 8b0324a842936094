// What a save is going to do to a file's directory and a table's heading: decided, and proven to be
// readable, before anything is written.
#pragma once

#include <cstdint>
#include <string>

#include "platform/store_file.h"
#include "tables/file/directory.h"
#include "tables/file/info.h"

class CDataTable;

namespace orv3 {

struct CRecordPlan {
  CTableDirectory m_directory;  // as it will be, if it changes
  CDataFileInfo m_info;         // the table's record in it
  CString m_strInfoLine;        // the file's
  bool m_bChanged = false;      // the directory is to be written
  bool m_bNewTable = false;
  std::int64_t m_nReserved = 0;  // bytes of the new blocks before it
  std::string m_strHeading;      // the heading area; empty when it stays
};

// Whether a file is begun anew, since it is too short to have a directory.
bool IsTooShort(const CStoreFile& file);
// The file's directory; `directory` as it is for a file too short to have one. 0, like all here,
// with LastStoreError set.
int ReadOrStart(const CStoreFile& file, CTableDirectory& directory);
int RefuseSave(const CStoreFile& file, const CString& what);
int RefuseDamaged(const CStoreFile& file, const CString& table);
int RefuseColumns(const CStoreFile& file, const CDataTable& table, int slotLength);

int WritePlan(CStoreFile& file, const CRecordPlan& plan);

}  // namespace orv3
