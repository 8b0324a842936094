// Table names and the masks that select them.
#include "sections/table_types.h"

#include <algorithm>

#include "sections/load_data_table.h"
#include "sections/section_kind.h"

namespace orv3 {
namespace {

constexpr std::int32_t kSources = TABLE_ROLLED | TABLE_CUSTOM;

// A mask has the 32 bits of a long on Windows; where longs are wider the others say nothing.
bool IsOf(const CSectionTable& table, long mask) {
  const auto common = static_cast<std::int32_t>(mask) & table.m_nType;
  return (common & kSources) != 0 && (common & ~kSources) != 0;
}

}  // namespace
}  // namespace orv3

void CLoadDataTable::GetTableNameArray(long mask, CStringArray& names) {
  names.RemoveAll();
  for (const orv3::CSectionTable& table : orv3::SectionTables()) {
    if (orv3::IsOf(table, mask)) names.Add(table.m_szName);
  }
}

void CLoadDataTable::SelectTableNameArray(long mask, const CStringArray& available,
                                          CStringArray& names) {
  CStringArray chosen;  // `names` may be `available`
  for (const orv3::CSectionTable& table : orv3::SectionTables()) {
    const bool there =
        std::find(available.begin(), available.end(), CString(table.m_szName)) != available.end();
    if (there && orv3::IsOf(table, mask)) chosen.Add(table.m_szName);
  }
  names.Copy(chosen);
}

int CLoadDataTable::IsTableNameType(const CString& tableName, long mask) {
  const orv3::CSectionTable* table = orv3::FindSectionTable(tableName);
  return table != nullptr && orv3::IsOf(*table, mask) ? 1 : 0;
}
