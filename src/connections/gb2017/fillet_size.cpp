#include "connections/gb2017/fillet_size.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

#include "connections/cases/case_rules.h"
#include "framework/elementary.h"

namespace orv3::gb2017 {
namespace {

struct CLegRow {
  double m_dMostT;
  double m_dLeastLeg;
};
// Table 11.3.5.
constexpr CLegRow kLegs[] = {{6, 3}, {12, 5}, {20, 6}, {HUGE_VAL, 8}};

}  // namespace

double Throat(const CFilletCase& input) noexcept {
  if (input.m_dHe != 0) return input.m_dHe;
  if (input.m_dHf != 0) {
    if (IsRightAngle(input.m_dAngle)) return 0.7 * input.m_dHf;
    return input.m_dHf * Cos(input.m_dAngle / 2 * std::numbers::pi / 180);
  }
  constexpr double kRounding = 1e-6;  // of an angle of 60 degrees
  if (input.m_nGroove == 0)
    return input.m_dAngle >= 60 - kRounding ? input.m_dS : 0.75 * input.m_dS;
  return input.m_nGroove <= 2 ? input.m_dS - 3 : input.m_dS;
}

double LapFactor(double lw, double hf) noexcept {
  return lw <= 60 * hf ? 1 : std::max(0.5, 1.5 - lw / (120 * hf));
}

double LeastLeg(double t) noexcept {
  return std::find_if(std::begin(kLegs), std::end(kLegs),
                      [t](const CLegRow& row) { return t <= row.m_dMostT; })
      ->m_dLeastLeg;
}

double ThickestPart(double hf) noexcept {
  double thickest = 0;
  for (const CLegRow& row : kLegs) {
    if (hf >= row.m_dLeastLeg) thickest = row.m_dMostT;
  }
  return thickest;
}

double MostLapLeg(double t) noexcept { return t <= 6 ? t : t - 1; }

void FilletDetails(const CFilletCase2017& input, std::vector<CDetail>& details) {
  details.clear();
  // Of a weld without a leg the throat stands in its place.
  const bool bLeg = input.m_dHf != 0;
  const double he = Throat(input);
  details.push_back({{"焊缝最小长度", "weld length, least"},
                     "lw",
                     "11.3.5",
                     "l_w",
                     bLeg ? "\\max(8 h_f, 40)" : "\\max(8 h_e, 40)",
                     input.m_dLw,
                     std::max(8 * (bLeg ? input.m_dHf : he), 40.0),
                     false});
  // Whatever the parts, a leg of 3 mm is the least; none need be above the thinner part.
  const bool bParts = input.m_dT1 != 0;
  const double thin = std::min(input.m_dT1, input.m_dT2);
  const double thick = std::max(input.m_dT1, input.m_dT2);
  const double least = bParts ? std::min(LeastLeg(thick), thin) : LeastLeg(0);
  if (!bLeg) {
    const bool bGroove = bParts && input.m_dS != 0;
    details.push_back({{"最小计算厚度", "throat, least"},
                       input.m_dS != 0 ? "s" : "he",
                       bGroove ? "2003: 8.2.5" : "T 11.3.5",
                       "h_e",
                       bGroove ? "1.5 √t" : "0.7 h_{f,min}",
                       he,
                       bGroove ? 1.5 * std::sqrt(thick) : 0.7 * least,
                       false});
    return;
  }
  details.push_back({{"最小焊脚", "leg, least"},
                     "hf",
                     "T 11.3.5",
                     "h_f",
                     "h_{f,min}",
                     input.m_dHf,
                     least,
                     false});
  if (input.m_nJoint != 0 || !bParts) return;
  details.push_back({{"最大焊脚", "leg, most"},
                     "hf",
                     "11.3.6",
                     "h_f",
                     input.m_dT1 <= 6 ? "t_1" : "t_1 − 1",
                     input.m_dHf,
                     MostLapLeg(input.m_dT1),
                     true});
}

}  // namespace orv3::gb2017
