// The bits of a double, where the standard library has no std::bit_cast.
#pragma once

#include <cstdint>
#include <cstring>

namespace orv3 {

inline std::uint64_t BitsOf(double value) noexcept {
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof value);
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline double DoubleOf(std::uint64_t bits) noexcept {
  double value = 0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

}  // namespace orv3
