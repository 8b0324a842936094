// What the tests of interrupted and simultaneous saves run in processes of their own.
//
//   store_worker save FILE SCENARIO K          one save that is killed at its K-th file operation
//   store_worker add FILE TABLE NAME COUNT HOW  COUNT saves of one more row each; HOW is "stale",
//                                              "fresh" or "locked"
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/store_file.h"
#include "tables/table_file_scenarios.h"

namespace {

int Fail(const char* what) {
  std::fprintf(stderr, "%s: %s\n", what, orv3::ToUtf8(orv3::LastStoreError().m_strText).c_str());
  return 1;
}

int Save(const CString& path, int scenario, int at) {
  CDataTable table = scenarios::Start(path, scenario);
  CFaultyFiles files(CFault::Kill, at, false);
  return table.WriteTable(path, 0, 0) ? 0 : Fail("save");
}

// One more row, and the one before it changed.
bool AddOne(CDataTable& table, const CString& name, int i) {
  CStringArray values;
  values.Add(name + Name(i));
  values.Add(L"1");
  if (!table.AddTableItem(values, 1)) return false;
  if (i == 0) return true;
  const int before = table.IsHaveValue(0, name + Name(i - 1), -1);
  if (before < 0) return false;
  values[0] = name + Name(i - 1);
  values[1] = L"2";
  return table.ModifyTableItem(table[before].m_nIndex, values) == 1;
}

int Add(const CString& path, const CString& tableName, const CString& name, int count,
        const std::string& how) {
  orv3::SetBusyWait(std::chrono::minutes{2});
  CFaultyFiles files;
  CDataTable kept = SectionTable(tableName.GetString());
  for (int i = 0; i < count; ++i) {
    CDataTable fresh = SectionTable(tableName.GetString());
    CDataTable& table = how == "stale" ? kept : fresh;
    std::unique_ptr<orv3::CStoreLock> lock;
    if (how == "locked") lock = std::make_unique<orv3::CStoreLock>(path);
    CString line;
    if (how != "stale") fresh.GetTable(path, line);
    if (!AddOne(table, name, i)) return Fail("add");
    if (!table.WriteTable(path, 0, 0)) return Fail("save");
  }
  return 0;
}

}  // namespace

int main(int count, char** values) {
  const auto text = [values](int i) { return orv3::FromUtf8(values[i]); };
  if (count == 5) return Save(text(2), std::atoi(values[3]), std::atoi(values[4]));
  if (count == 7) return Add(text(2), text(3), text(4), std::atoi(values[5]), values[6]);
  return 2;
}
