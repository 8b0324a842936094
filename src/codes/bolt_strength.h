// Strengths of bolted connections, N/mm2: GB 50017-2017, Table 4.4.6; GB 50017-2003, Table 3.4.1-4.
#pragma once

#include <optional>

#include "codes/steel_grade.h"

namespace orv3 {

// Ordinary bolts of class C and of classes A and B; high-strength bolts in bearing.
enum class CBoltKind { OrdinaryC, OrdinaryAB, Bearing };
enum class CBoltGrade { G46, G48, G56, G88, G109 };
inline constexpr const char* kBoltGradeNames[] = {"4.6", "4.8", "5.6", "8.8", "10.9"};
constexpr const char* BoltGradeName(CBoltGrade grade) noexcept {
  return kBoltGradeNames[static_cast<std::size_t>(grade)];
}

struct CBoltStrengths {
  double m_dFt;
  double m_dFv;
  std::optional<double> m_dFu;  // high-strength bolts of 2017
};

// Class C takes 4.6 and 4.8, A and B 5.6 and 8.8, bearing 8.8 and 10.9; others are refused.
ORV3CAL_API CCodeAnswer<CBoltStrengths> BoltStrengths(CCodeEdition edition, CBoltKind kind,
                                                      CBoltGrade grade);

// ft of an anchor bolt of Q235, Q345 or (2017) Q390.
ORV3CAL_API CCodeAnswer<double> AnchorStrength(CCodeEdition edition, CSteelGrade steel);

// fc: bearing of the plate on the bolt, by the steel of the plate.
ORV3CAL_API CCodeAnswer<double> BearingStrength(CCodeEdition edition, CBoltKind kind,
                                                CSteelGrade plate);

}  // namespace orv3
