// Panels of webs in bending and shear, without local pressure: GB 50017-2017, 6.3.3; GB 50017-2003,
// 4.3.3. N/mm2, mm.
#pragma once

#include "codes/answer.h"
#include "framework/export.h"

namespace orv3 {

// lambda-n,b = 2 hc/tw / 177 / epsilon-k where the compression flange is restrained against twist,
// else by 138 (2003: 153).
ORV3CAL_API double PanelBendingDivisor(CCodeEdition edition, bool bRestrained) noexcept;
ORV3CAL_API double PanelBendingSlenderness(CCodeEdition edition, bool bRestrained,
                                           double twiceHcOverTw, double epsilonK) noexcept;
// lambda-n,s = h0/tw / (37 eta sqrt(k)) / epsilon-k (2003: 41 for 37 eta), eta 1.11 of simple spans
// and else 1; a the distance of the stiffeners, 0: none.
inline constexpr double kPanelSimpleSpan = 1.11;
ORV3CAL_API double PanelShearFactor(double h0, double a) noexcept;  // k
ORV3CAL_API double PanelShearSlenderness(CCodeEdition edition, bool bSimpleSpan, double h0,
                                         double tw, double a, double epsilonK) noexcept;
ORV3CAL_API double PanelCriticalStress(double lambda, double f) noexcept;
ORV3CAL_API double PanelCriticalShear(double lambda, double fv) noexcept;

}  // namespace orv3
