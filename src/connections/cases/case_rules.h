// What the refusals and warnings of the check cases share.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "framework/plain_number.h"
#include "reports/fault_list.h"

class NormalBoltData;

namespace orv3 {

struct CFilletCase;
struct CButtCase;
struct CWeldFigures;

// Load cases 0 to 5 of both welds: which loads take part.
constexpr bool TakesN(int loadCase) noexcept { return loadCase != 3; }
constexpr bool TakesM(int loadCase) noexcept { return loadCase != 0; }
constexpr bool TakesV(int loadCase) noexcept { return loadCase >= 3; }

// No load at all, under the key of one.
void NoLoadFault(const char* key, CFaultList& faults);
// A load that the load case leaves out is refused, and a weld without any.
void DroppedLoadFaults(int loadCase, double N, double M, double V, CFaultList& faults);

// Where an edition has the strength of fillet welds.
struct CFilletClauses {
  const char* m_szRight;     // between faces at a right angle
  const char* m_szInclined;  // at another angle
  const char* m_szGroove;    // partial-penetration groove welds
  const char* m_szFaces;     // angles of faces that fillet welds may carry load between
};
inline constexpr CFilletClauses kFilletClauses2003 = {"7.1.3", "7.1.4", "7.1.5", "8.2.6"};
inline constexpr CFilletClauses kFilletClauses2017 = {"11.2.2", "11.2.3", "11.2.4", "11.2.3"};

// What refuses a fillet weld by either edition; not the steel.
void FilletFieldFaults(const CFilletCase& input, const CFilletClauses& clauses, CFaultList& faults);
// The same for a butt weld.
void ButtFieldFaults(const CButtCase& input, CFaultList& faults);
// A beta-f that is more than the code gives.
void WarnOfBeta(const CFilletCase& input, const CWeldFigures& judged, const CFilletClauses& clauses,
                std::vector<CCaseWarning>& warnings);

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

extern const char* const kSteels[4];

}  // namespace orv3
