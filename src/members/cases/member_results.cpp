#include "members/cases/member_results.h"

namespace orv3 {

std::span<const CMemberResult> MemberResultKeys() noexcept {
  using R = CMemberResults;
  static constexpr CMemberResult kKeys[] = {
      {"f", &R::m_dF},
      {"fv", &R::m_dFv},
      {"fy", &R::m_dFy},
      {"epsilonK", &R::m_dEpsilonK},
      {"A", &R::m_dA},
      {"lambdax", &R::m_dLambdaX},
      {"lambday", &R::m_dLambdaY},
      {"lambdaz", &R::m_dLambdaZ},
      {"lambdayz", &R::m_dLambdaYz},
      {"phix", &R::m_dPhiX},
      {"phiy", &R::m_dPhiY},
      {"phiz", &R::m_dPhiZ},
      {"phib", &R::m_dPhiB},
      {"gammax", &R::m_dGammaX},
      {"gammay", &R::m_dGammaY},
      {"betamx", &R::m_dBetaMx},
      {"betatx", &R::m_dBetaTx},
      {"betamy", &R::m_dBetaMy},
      {"betaty", &R::m_dBetaTy},
  };
  return kKeys;
}

std::span<const CMemberText> MemberTextKeys() noexcept {
  using R = CMemberResults;
  static constexpr CMemberText kKeys[] = {
      {"class", &R::m_szClass},
      {"classx", &R::m_szClassX},
      {"classy", &R::m_szClassY},
  };
  return kKeys;
}

}  // namespace orv3
