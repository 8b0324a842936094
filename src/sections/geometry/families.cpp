#include "sections/geometry/families.h"

#include <algorithm>

namespace orv3 {

namespace {

const CFamily* FindAmong(std::span<const CFamily> families, std::wstring_view tableName) noexcept {
  for (const CFamily& family : families) {
    if (std::ranges::find(family.m_arrTable, tableName) != family.m_arrTable.end()) return &family;
  }
  return nullptr;
}

}  // namespace

const CFamily* FindFamily(std::wstring_view tableName) noexcept {
  if (tableName.empty()) return nullptr;
  for (const auto families : {RolledFamilies(), PairFamilies(), UserFamilies()}) {
    if (const CFamily* family = FindAmong(families, tableName)) return family;
  }
  return nullptr;
}

std::optional<double> Value(const CDataItem& row, const CFamily& family, const CSource& source) {
  return source.m_formula ? source.m_formula(row, family, source.m_cell) : Read(row, source.m_cell);
}

}  // namespace orv3
