// What the rolled-section styles have in the system store.
#include "catalogue/rolled/read_file.h"
#include "sections/load_data_table.h"

int CReadFile::GetIronXh(int style, CStringArray& numbers) {
  return CLoadDataTable::GetSysTemItemNo(GetXGStyleNo(style), numbers);
}

int CReadFile::GetIronData(const CString& no, int style, wchar_t* record) {
  const CDataItem row = CLoadDataTable::GetSysTemJMItem(GetXGStyleNo(style), no);
  return row.GetItemLength() >= 2 && TransDataItemToXGStruct(row, record) >= 0 ? 1 : 0;
}
