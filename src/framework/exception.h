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

// Throws CInvalidArgException naming `what`, the index and the bound unless 0 <= index < bound.
inline void CheckIndex(const char* what, long long index, long long bound) {
  if (index >= 0 && index < bound) return;
  throw CInvalidArgException(std::string(what) + ": index " + std::to_string(index) +
                             " is outside 0.." + std::to_string(bound - 1) + " (" +
                             std::to_string(bound) + " elements)");
}

}  // namespace orv3
