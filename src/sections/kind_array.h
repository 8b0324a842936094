// Arrays by CSectionKind: what a floor knows of the section tables beyond their rows.
#pragma once

#include <cstddef>

#include "sections/section_kind.h"

namespace orv3 {

// Whether an array whose members have an m_kind holds each of its kinds, in their order, from
// `first` on. In a static_assert, so that a table that was forgotten does not compile.
template <class T, std::size_t N>
constexpr bool InKindOrder(const T (&array)[N], CSectionKind first = CSectionKind{}) {
  for (std::size_t i = 0; i < N; ++i) {
    if (IndexOf(array[i].m_kind) != IndexOf(first) + i) return false;
  }
  return IndexOf(first) + N <= kSectionKinds;
}

}  // namespace orv3
