// The section tables that the program knows by name, with the family of each: what masks select
// from and what the tree shows.
#pragma once

#include <cstdint>
#include <span>

#include "framework/export.h"

namespace orv3 {

struct CTableName {
  const wchar_t* m_szName;
  std::int32_t m_nType;  // one source bit and one family bit (table_types.h)
  int m_nImage;          // position of its picture in CLoadDataTable::GetItemImageList
};

// All of them: rolled before user-defined, by family bit from low to high, in a family in the order
// in which people look them up.
ORV3CAL_API std::span<const CTableName> TableNames() noexcept;

}  // namespace orv3
