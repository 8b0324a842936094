// What the refusals and warnings of the check cases share.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "connections/cases/case_keys.h"

class NormalBoltData;

namespace orv3 {

// A number as people write it: four significant digits at least, no exponent for everyday sizes.
std::string PlainNumber(double value);

// Collects the faults of one case.
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

// Load cases 0 to 5 of both welds: which loads take part.
constexpr bool TakesN(int loadCase) noexcept { return loadCase != 3; }
constexpr bool TakesM(int loadCase) noexcept { return loadCase != 0; }
constexpr bool TakesV(int loadCase) noexcept { return loadCase >= 3; }

// Warnings of loads that the load case leaves out, and of N and M that relieve one another.
void WarnOfWeldLoads(int loadCase, double N, double M, double V,
                     std::vector<CCaseWarning>& warnings);

// Of a computed bolt group: distances above those of Table 8.3.4.
void WarnOfLargestDistances(const NormalBoltData& record, std::vector<CCaseWarning>& warnings);
// The shear resistance of bearing-type bolts with threads in the shear plane (7.2.3).
void WarnOfThreads(const NormalBoltData& record, std::vector<CCaseWarning>& warnings);

extern const char* const kSteels[4];

}  // namespace orv3
