// The exact properties by their names: what JSON keys, columns, tables and records of them are
// made from.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "framework/export.h"
#include "outlines/exact_properties.h"

namespace orv3 {

struct CExactKey {
  const char* m_szKey;       // "It"
  const char* m_szTitle;     // Chinese, UTF-8
  const char* m_szMeaning;   // English
  const char* m_szUnit;      // "mm⁴", UTF-8
  const char* m_szSignUnit;  // the same as signs of columns write it: "mm^4"
  double CExactProperties::*m_pField;
};

inline constexpr std::size_t kExactKeys = 31;

// All of them, in the order in which they are shown.
ORV3CAL_API std::span<const CExactKey, kExactKeys> ExactKeys() noexcept;

// Null for an unknown key; the case counts (Ix and ix differ).
ORV3CAL_API const CExactKey* FindExactKey(std::string_view key) noexcept;

}  // namespace orv3
