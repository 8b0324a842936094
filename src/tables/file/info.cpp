#include "tables/file/info.h"

#include <string>
#include <vector>

#include "framework/number_text.h"
#include "tables/data_table.h"
#include "tables/file/directory.h"
#include "tables/file/table_text.h"

namespace orv3 {

std::wstring RecordForm(const CDataFileInfo& info) {
  std::wstring form(info.m_strTableName.View());
  const auto add = [&form](long long number) {
    form += kFieldSeparator;
    form += FormatInt(number).View();
  };
  add(info.m_nItemLen);
  add(info.m_nRowNum);
  for (const std::int32_t position : info.m_arrBlockPos) add(position);
  return form;
}

CDataFileInfo RecordOf(std::wstring_view form) {
  CDataFileInfo info;
  const std::vector<std::wstring_view> fields = SplitFields(form);
  info.m_strTableName = fields[0];
  if (fields.size() > 1) info.m_nItemLen = ToInt(fields[1]);
  if (fields.size() > 2) info.m_nRowNum = ToInt(fields[2]);
  for (std::size_t i = 3; i < fields.size(); ++i) info.m_arrBlockPos.Add(ToInt(fields[i]));
  return info;
}

}  // namespace orv3

CString CDataFileInfo::TranToFake() const {
  return CDataTable::TransStringToFake(orv3::RecordForm(*this));
}

void CDataFileInfo::TransToNormal(const char* stored) {
  *this = orv3::RecordOf(orv3::DecodeText(stored));
}
