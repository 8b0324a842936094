// CReadFile: the 27 rolled-section styles, their data files and records.
#pragma once

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/export.h"

class CDataItem;
class CDataTable;

class ORV3CAL_API CReadFile {
 public:
  CReadFile() = default;
  virtual ~CReadFile() = default;

  static int GetXGStyleName(CStringArray& names);          // the 27 names; their number
  static int GetXGStyleIndex(const wchar_t* name);         // -1 for an unknown name
  static CString GetXGStyleNo(int index);                  // empty outside 0 to 26
  static int GetIronXh(int style, CStringArray& numbers);  // model numbers in the system store
  // Builds a style's table from its data file (".kvb"); 0 when the file is none.
  static int GetIronData(const wchar_t* path, CDataTable& table);
  // Fills the record of a style (rolled_records.h) from the system store. `record` must be as large
  // as the style's record type.
  static int GetIronData(const CString& no, int style, wchar_t* record);
  // Negative for a row that is of none of the 27 styles.
  static int TransDataItemToXGStruct(const CDataItem& item, void* record);
  static int TransXGStructToDataItem(int style, void* record, CDataItem& item);  // does nothing: 0
};
