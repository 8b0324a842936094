// CDataFileInfo: what a table file's directory says of one table.
#pragma once

#include <cstdint>

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"

class ORV3CAL_API CDataFileInfo {
 public:
  CDataFileInfo() = default;
  CDataFileInfo(const CDataFileInfo&) = default;
  CDataFileInfo& operator=(const CDataFileInfo&) = default;
  virtual ~CDataFileInfo() = default;

  // The text form as it goes to a file: name, slot length, row count, block positions.
  CString TranToFake() const;
  // Takes over what stored bytes say; missing fields get their defaults.
  void TransToNormal(const char* stored);

  CString m_strTableName;
  int m_nItemLen = 0;                                // bytes of one row slot: 33 a column and 25
  int m_nRowNum = 0;                                 // rows stored
  CArray<std::int32_t, std::int32_t> m_arrBlockPos;  // offsets of the row blocks in the file
};
