// Collects why a case is refused.
#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "reports/case_keys.h"

namespace orv3 {

// The faults of one case.
class CFaultList {
 public:
  void Add(std::string key, CText what, CText right) {
    m_arrFault.push_back({std::move(key), std::move(what), std::move(right)});
  }
  void NotPossible(std::string key, const std::string& number, CText right) {
    Add(std::move(key), {number + " 不可用", number + " is not possible"}, std::move(right));
  }
  void Finite(const char* key, double value) {
    if (!std::isfinite(value))
      Add(key, {"不是有限数", "is no finite number"}, {"请给出数值", "give a number"});
  }
  void Positive(const char* key, double value, const char* unit);
  void Within(const char* key, int value, int first, int last);
  std::vector<CCaseFault> Take() { return std::move(m_arrFault); }
  bool IsEmpty() const noexcept { return m_arrFault.empty(); }

 private:
  std::vector<CCaseFault> m_arrFault;
};

}  // namespace orv3
