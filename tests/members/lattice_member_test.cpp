// Lattice columns of two channels worked by hand.
#include <gtest/gtest.h>

#include "members/lattice_member.h"

namespace orv3 {
namespace {

using K = CMemberCheckKind;

// Two channels of 4003 mm2 and 2.18e6 mm4 about their own axis, one 240 mm above the other: ix
// 122.248, i1 23.336; iy 109. f 215, fv 125.
CLatticeSection Channels() {
  CLatticeSection s;
  s.m_dA = 8006;
  s.m_dRx = 122.2480738;
  s.m_dRy = 109;
  s.m_dWx = 997053.333;
  s.m_dSpacing = s.m_dBattenSpan = 240;
  s.m_dLimbR1 = 23.3364855;
  return s;
}

CLatticeSection Laced() {
  CLatticeSection s = Channels();
  s.m_dL1 = 480;
  s.m_dBarA = 349;
  s.m_dBarLength = 340;
  s.m_dBarR = 8.9;
  s.m_dBarLeg = 45;
  s.m_dBarThick = 4;
  s.m_dBarRoot = 5;
  return s;
}

// w/t 18, over 14 of the bar's strength and 15 of its leg.
CLatticeSection WideLegs() {
  CLatticeSection s = Laced();
  s.m_dBarLeg = 100;
  s.m_dBarThick = s.m_dBarRoot = 5;
  return s;
}

// The same area in more limbs, both radii 200 mm.
CLatticeSection Corners(int limbs) {
  CLatticeSection s = Laced();
  s.m_nLimbs = limbs;
  s.m_dRx = s.m_dRy = 200;
  s.m_dPlaneAngle = 60;
  return s;
}

CLatticeSection Battened() {
  CLatticeSection s = Channels();
  s.m_nBond = CLatticeBond::Battens;
  s.m_dL1 = 700;
  s.m_dBattenWidth = 180;
  s.m_dBattenT = 8;
  s.m_dBattenPitch = 880;
  return s;
}

struct CExample {
  const char* m_szWhat;
  CLatticeSection m_section;
  double m_dN, m_dMy;
  K m_nKind;
  double m_d2017, m_d2003;
};

const CExample kExamples[] = {
    // lambda-y 55.046; lambda-x 49.081, lambda-0x sqrt(49.081^2 + 27 8006/698) = 52.140
    {"laced", Laced(), -1400, 0, K::StabilityY, 0.97699, 0.97699},
    {"laced", Laced(), -1400, 0, K::StabilityX, 0.96090, 0.96090},
    // 480/23.336 against 0.7 55.046
    {"laced", Laced(), -1400, 0, K::Limbs, 0.53381, 0.53381},
    // V = 8006 215/85 = 20250 N, Nd = V/2/sin 45; lambda 38.2, 0.6 + 0.0015 lambda = 0.6573
    {"laced", Laced(), -1400, 0, K::Lacing, 0.32056, 0.32056},
    // by rho-e 1.3 - 0.3 18/14; 18/15 by sqrt of what it has over what it bears, 2003: 18 against
    // 10 + 0.1 38.2
    {"wide legs", WideLegs(), -1400, 0, K::Lacing, 0.35061, 0.32056},
    {"wide legs", WideLegs(), -1400, 0, K::Wall, 0.71055, 1.30244},
    // N/(phi A f) + M/(W (1 - N/N'E) f), 2003 with phi N/N'E
    {"laced, moment", Laced(), -900, 40000, K::StabilityX, 0.84128, 0.83468},
    // the limb: 900/2 + 40000/240 = 616.67 kN, lambda 55.046
    {"laced, moment", Laced(), -900, 40000, K::StabilityY, 0.86068, 0.86068},
    {"laced, moment", Laced(), -900, 40000, K::Strength, 0.70946, 0.70946},
    // lambda 30, lambda-0 sqrt(900 + 40 8006/698) = 36.862, phi 0.91083
    {"four limbs", Corners(4), -1400, 0, K::StabilityX, 0.89297, 0.89297},
    // A1 1047: lambda-0x sqrt(900 + 42 8006/(1047 1.25)) = 34.014, lambda-0y sqrt(900 + 42
    // 8006/(1047 0.25)) = 46.740
    {"three limbs", Corners(3), -1400, 0, K::StabilityX, 0.88264, 0.88264},
    {"three limbs", Corners(3), -1400, 0, K::StabilityY, 0.93402, 0.93402},
    // V1 the greater of 20250/(2 sin 60) = 11691 and 20250/1.5 = 13500
    {"three limbs", Corners(3), -1400, 0, K::Lacing, 0.42741, 0.42741},
    // lambda-1 29.996, lambda-0x sqrt(49.081^2 + 29.996^2) = 57.521
    {"battened", Battened(), -1400, 0, K::StabilityX, 0.99172, 0.99172},
    // against half of 57.521
    {"battened", Battened(), -1400, 0, K::Limbs, 1.04296, 1.04296},
    // M = 10125 880/2, W = 8 180^2/6
    {"battened", Battened(), -1400, 0, K::Lacing, 0.47966, 0.47966},
};

TEST(LatticeMember, ByHand) {
  CMemberAnswer answer;
  for (const CExample& example : kExamples) {
    for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
      const CMemberSteel steel{.m_nEdition = edition, .m_dF = 215, .m_dFv = 125, .m_dFy = 235};
      CLatticeLoads loads;
      loads.m_dN = 1000 * example.m_dN;
      loads.m_dLx = loads.m_dLy = 6000;
      loads.m_x.m_dM1 = loads.m_x.m_dM2 = 1000 * example.m_dMy;
      CheckLatticeMember(example.m_section, steel, loads, answer);
      ASSERT_FALSE(answer.IsRefused());
      EXPECT_NEAR(answer.Ratio(example.m_nKind),
                  edition == CCodeEdition::Gb2017 ? example.m_d2017 : example.m_d2003, 1e-5)
          << example.m_szWhat << ", " << MemberCheckName(example.m_nKind);
    }
  }
}

}  // namespace
}  // namespace orv3
