#include "members/one_leg_angle.h"

#include <algorithm>

namespace orv3 {
namespace {

double ClearRatio(const COneLegAngle& angle) noexcept {
  return (angle.m_dLeg - 2 * angle.m_dThick) / angle.m_dThick;
}

double Eta(CMemberJoint joint, double lambda) noexcept {
  const double held = std::max(20.0, lambda);
  if (joint == CMemberJoint::Leg) return std::min(1.0, 0.6 + 0.0015 * held);
  return joint == CMemberJoint::ShortLeg ? std::min(1.0, 0.5 + 0.0025 * held) : 0.7;
}

}  // namespace

COneLegFactors OneLegFactors(CCodeEdition edition, double epsilonK,
                             const COneLegAngle& angle) noexcept {
  COneLegFactors factors;
  factors.m_dEta = Eta(angle.m_nJoint, angle.m_dLambda);
  const double wt = ClearRatio(angle), limit = 14 * epsilonK;
  if (edition == CCodeEdition::Gb2017 && wt > limit) factors.m_dRhoE = 1.3 - 0.3 * wt / limit;
  return factors;
}

void GiveOneLegFactors(CMemberAnswer& answer, const COneLegAngle& angle,
                       const COneLegFactors& factors) {
  const char* form = angle.m_nJoint == CMemberJoint::Leg ? "min(1, 0.6 + 0.0015·max(20, {λmin}))"
                     : angle.m_nJoint == CMemberJoint::ShortLeg
                         ? "min(1, 0.5 + 0.0025·max(20, {λmin}))"
                         : nullptr;
  if (form != nullptr) answer.Step("λmin", nullptr, angle.m_dLambda);
  answer.Step("η", form, factors.m_dEta);
  if (factors.m_dRhoE == 1) return;
  answer.Step("w/t", nullptr, ClearRatio(angle));
  answer.Step("ρe", "1.3 − 0.3·{w/t}/(14·{εk})", factors.m_dRhoE);
}

const char* OneLegClause(CCodeEdition edition, const COneLegFactors& factors) noexcept {
  if (edition == CCodeEdition::Gb2003) return "3.4.2";
  return factors.m_dRhoE < 1 ? "7.6.3" : "7.6.1";
}

double LegRatio(CCodeEdition edition, double leg, double thick, double root) noexcept {
  return (edition == CCodeEdition::Gb2017 ? leg - 2 * thick : leg - thick - root) / thick;
}

}  // namespace orv3
