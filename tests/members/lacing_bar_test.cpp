// A lacing bar of one angle whose legs are wide, worked by hand.
#include <gtest/gtest.h>

#include "members/lattice_member.h"

namespace orv3 {
namespace {

// Two channels of 4003 mm2, one 240 mm above the other. w/t of the bar 18, over 14 of its strength
// and 15 of its leg.
CLatticeSection WideLegs() {
  CLatticeSection s;
  s.m_dA = 8006;
  s.m_dRx = 122.2480738;
  s.m_dRy = 109;
  s.m_dWx = 997053.333;
  s.m_dSpacing = s.m_dBattenSpan = 240;
  s.m_dLimbR1 = 23.3364855;
  s.m_dL1 = 480;
  s.m_dBarA = 349;
  s.m_dBarLength = 340;
  s.m_dBarR = 8.9;
  s.m_dBarLeg = 100;
  s.m_dBarThick = s.m_dBarRoot = 5;
  return s;
}

TEST(LacingBar, WideLegsOfOneAngle) {
  const struct {
    CCodeEdition nEdition;
    double lacing, wall;
  } cases[] = {
      // by rho-e 1.3 - 0.3 18/14; 18/15 by sqrt of what it has over what it bears
      {CCodeEdition::Gb2017, 0.35061, 0.71055},
      // 18 against 10 + 0.1 38.2
      {CCodeEdition::Gb2003, 0.32056, 1.30244},
  };
  for (const auto& each : cases) {
    const CMemberSteel steel{.m_nEdition = each.nEdition, .m_dF = 215, .m_dFv = 125, .m_dFy = 235};
    CLatticeLoads loads;
    loads.m_dN = -1400e3;
    loads.m_dLx = loads.m_dLy = 6000;
    CMemberAnswer answer;
    CheckLatticeMember(WideLegs(), steel, loads, answer);
    ASSERT_FALSE(answer.IsRefused());
    EXPECT_NEAR(answer.Ratio(CMemberCheckKind::Lacing), each.lacing, 1e-5);
    EXPECT_NEAR(answer.Ratio(CMemberCheckKind::Wall), each.wall, 1e-5);
  }
}

}  // namespace
}  // namespace orv3
