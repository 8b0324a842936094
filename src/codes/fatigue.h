// Fatigue by detail category: GB 50017-2017, 16.2 (Z1 to Z14 normal stress, J1 to J3 shear);
// GB 50017-2003, 6.2 (1 to 8).
#pragma once

#include <optional>
#include <string_view>

#include "codes/answer.h"

namespace orv3 {

struct CFatigueCategory {
  const char* m_szName;  // "Z1", "J1"; "1" in 2003
  double m_dC;
  double m_dBeta;
  // Allowable stress ranges, N/mm2; the table of 2003 prints none, that of J none at 5e6.
  std::optional<double> m_range2e6;
  std::optional<double> m_range5e6;
  std::optional<double> m_cutOff;  // at 1e8 cycles and beyond
};

ORV3CAL_API CCodeAnswer<CFatigueCategory> FatigueCategory(CCodeEdition edition,
                                                          std::string_view name);

// Allowable stress range in N/mm2 after n cycles, n >= 1: (C/n)^(1/beta); in 2017 with the slope
// beta + 2 from 5e6 cycles on for Z, and the cut-off from 1e8 on.
ORV3CAL_API double AllowableRange(const CFatigueCategory& category, double n) noexcept;

}  // namespace orv3
