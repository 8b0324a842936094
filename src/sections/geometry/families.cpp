#include "sections/geometry/families.h"

namespace orv3 {

const CFamily& FamilyOf(CSectionKind kind) noexcept {
  const std::size_t at = IndexOf(kind);
  if (at < kSingleKinds) return RolledFamilies()[at];
  if (at < kRolledKinds) return PairFamilies()[at - kSingleKinds];
  return UserFamilies()[at - kRolledKinds];
}

const CFamily* FindFamily(std::wstring_view tableName) noexcept {
  const auto kind = FindSectionKind(tableName);
  return kind ? &FamilyOf(*kind) : nullptr;
}

std::optional<double> Value(const CDataItem& row, const CFamily& family, const CSource& source) {
  return source.m_formula ? source.m_formula(row, family, source.m_cell) : Read(row, source.m_cell);
}

}  // namespace orv3
