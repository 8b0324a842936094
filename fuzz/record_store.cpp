// Record stores: whatever the headers and slots, reading stays within the file, and a record that a
// save took can be read again. The first 850 bytes of an input are the headers, the rest the slots.
#include "sections/record_store.h"

#include <string_view>

#include "memory_files.h"
#include "sections/steel_jm_data.h"

namespace {

int Live(int group) {
  CArray<CSteelJMData> records;
  CSteelJMData::GetTable(records, group, L"a.LV");
  int live = 0;
  for (const CSteelJMData& record : records) live += record.m_nState == 0;
  return live;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  std::string file(input.substr(0, 850));
  if (input.size() > 850) {
    file.resize(orv3::kFirstSlot);
    file += input.substr(850);
  }
  constexpr int kGroups[] = {-1, 0, 1, 2, 15};
  const int group = kGroups[size % 5];
  files.Remove(L"a._LV.journal");
  files[L"a.LV"] = file;
  const int before = Live(group);
  CSteelJMData::GetTableLength(group, L"a.LV");
  CArray<CSteelJMData> records;
  for (int i = 0; i < 120; ++i) {
    CSteelJMData record;
    record.m_nState = 1;
    record.m_dSize[0] = 1;
    records.Add(record);
  }
  if (CSteelJMData::WriteTable(records, group, L"a.LV")) Require(Live(group) == before + 120);
  return 0;
}
