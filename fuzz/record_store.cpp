// Record stores: whatever the headers and slots, reading stays within the file, and a record that a
// save took can be read again. The first 850 bytes of an input are the headers, the rest the slots.
#include "sections/record_store.h"

#include <array>
#include <string>
#include <string_view>

#include "memory_files.h"
#include "sections/steel_jm_data.h"

namespace {

constexpr wchar_t kStore[] = L"a.LV";

int Live(int group) {
  CArray<CSteelJMData> records;
  CSteelJMData::GetTable(records, group, kStore);
  int live = 0;
  for (const CSteelJMData& record : records) live += record.m_nState == 0;
  return live;
}

using CLiveCounts = std::array<int, orv3::kSystemGroups>;

CLiveCounts LiveOfGroups() {
  CLiveCounts live{};
  for (int g = 0; g < orv3::kSystemGroups; ++g) live[static_cast<std::size_t>(g)] = Live(g);
  return live;
}

bool Save(int group, int added) {
  CSteelJMData record;
  record.m_nState = 1;
  record.m_dSize[0] = 1;
  CArray<CSteelJMData> records;
  for (int i = 0; i < added; ++i) records.Add(record);
  return CSteelJMData::WriteTable(records, group, kStore) != 0;
}

std::string StoreOf(std::string_view input) {
  std::string file(input.substr(0, 850));
  if (input.size() > 850) {
    file.resize(orv3::kFirstSlot);
    file += input.substr(850);
  }
  return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static CMemoryFiles& files = *new CMemoryFiles;
  constexpr int kGroups[] = {-1, 0, 1, 2, 15};
  const int group = kGroups[size % 5];
  files.Remove(L"a._LV.journal");
  files[kStore] = StoreOf({reinterpret_cast<const char*>(data), size});
  Live(group);  // a file cut anywhere
  CSteelJMData::GetTableLength(group, kStore);
  // A slot cut off by the end of the file is whole once a save goes beyond it, and a save mends a
  // file header that reading refuses; so the records are counted in a file that ends behind its
  // last slot and was saved once with nothing to write.
  files[kStore].resize(files[kStore].size() + orv3::kRecordSlot);
  const int found = Live(group);
  if (!Save(group, 0)) return 0;
  const int before = Live(group);
  Require(before >= found);
  CLiveCounts others = LiveOfGroups();
  if (!Save(group, 120)) return 0;
  Require(Live(group) == before + 120);
  if (group == orv3::kSingleGroup) return 0;
  others[static_cast<std::size_t>(group)] += 120;
  Require(LiveOfGroups() == others);
  return 0;
}
