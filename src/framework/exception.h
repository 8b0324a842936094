// The invalid-argument exception of the framework: what an index outside an array raises.
#pragma once

#include <stdexcept>
#include <string>

#include "framework/export.h"

class ORV3CAL_API CInvalidArgException : public std::invalid_argument {
 public:
  explicit CInvalidArgException(const std::string& what) : std::invalid_argument(what) {}
};

namespace orv3 {

// Throws CInvalidArgException with a message that names `what`, the index and the bound.
[[noreturn]] ORV3CAL_API void ThrowIndex(const char* what, long long index, long long bound);

// Throws unless 0 <= index < bound.
inline void CheckIndex(const char* what, long long index, long long bound) {
  if (index < 0 || index >= bound) ThrowIndex(what, index, bound);
}

}  // namespace orv3
