// A data folder of a test's own, removed with it.
#pragma once

#include "framework/cstring.h"
#include "tables/data_table.h"

class CStoreFolder {
 public:
  CStoreFolder();  // with a copy of the shipped system store
  CStoreFolder(const CStoreFolder&) = delete;
  CStoreFolder& operator=(const CStoreFolder&) = delete;
  ~CStoreFolder();

  const CString& Path() const { return m_strPath; }  // ends with a separator
  // A table as it is in the system store; without columns when it is not there.
  CDataTable Table(const wchar_t* name) const;
  // The live row with the number; without cells when there is none.
  CDataItem Row(const wchar_t* table, const wchar_t* no) const;
  void Save(CDataTable& table) const;  // all of it, into the system store

 private:
  CString m_strPath;
};
