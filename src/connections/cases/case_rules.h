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

// A utilisation in percent, to a tenth; above 1 with the digits that show it above 100.
std::string PercentNumber(double utilisation);

// An effect and its limit side by side, with the digits that tell them apart when it is above.
struct CComparedText {
  std::string m_strEffect;
  std::string m_strLimit;
};
CComparedText Compared(double effect, double limit);
// Two numbers with the digits that tell them apart.
CComparedText Apart(double one, double other);

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

// A load that the load case leaves out is refused.
void DroppedLoadFaults(int loadCase, double N, double M, double V, CFaultList& faults);

// What a weld is judged by where it is not the record's results: `what` names the figure.
void WarnOfOther(const char* key, const CTextLiteral& what, double record, double judged,
                 const CTextLiteral& why, std::vector<CCaseWarning>& warnings);

// Fillet welds between faces at a right angle, as the record has them.
inline bool IsRightAngle(double degrees) noexcept { return std::fabs(degrees - 90) < 5e-5; }
// Bevel, K and J grooves (7.1.5).
constexpr bool IsShortFusion(int groove) noexcept {
  return groove == 1 || groove == 2 || groove == 4;
}

// Of a plate above kThickestPlate.
void TooThick(const char* key, double thickness, const std::string& table, CFaultList& faults);

// Of a computed bolt group: distances above those of Table 8.3.4.
void WarnOfLargestDistances(const NormalBoltData& record, std::vector<CCaseWarning>& warnings);
// The shear resistance of bearing-type bolts with threads in the shear plane (7.2.3).
void WarnOfThreads(const NormalBoltData& record, std::vector<CCaseWarning>& warnings);

extern const char* const kSteels[4];

}  // namespace orv3
