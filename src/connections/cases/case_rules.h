// What the refusals and warnings of the check cases share.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "framework/plain_number.h"
#include "reports/fault_list.h"

class NormalBoltData;

namespace orv3 {

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
