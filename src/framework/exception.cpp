#include "framework/exception.h"

namespace orv3 {

void ThrowIndex(const char* what, long long index, long long bound) {
  throw CInvalidArgException(std::string(what) + ": index " + std::to_string(index) +
                             " is outside 0.." + std::to_string(bound - 1) + " (" +
                             std::to_string(bound) + " elements)");
}

}  // namespace orv3
