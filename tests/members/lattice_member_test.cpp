// Lattice columns worked by hand: their limbs, and what joins them.
#include "member_cases.h"

namespace orv3 {
namespace {

using K = CMemberCheckKind;

// k along y of two limbs, turned to face each other.
CMemberCase Column(const char* table, const char* no, double kx, double ky, int limbs = 2) {
  CMemberCase c = test::Lattice("battens", limbs);
  c.m_strLimb1 = c.m_strLimb2 = c.m_strLimb3 = c.m_strLimb4 = table;
  c.m_strNo1 = c.m_strNo2 = c.m_strNo3 = c.m_strNo4 = no;
  c.m_dK = c.m_dKy = ky;
  c.m_dKx = kx;
  return c;
}

CMemberCase Laced(CMemberCase c, const char* bar, double angle, double l1) {
  c.m_strBond = "lacing";
  c.m_strBar = "热轧等边角钢";
  c.m_strBarNo = bar;
  c.m_dBarAngle = angle;
  c.m_dLimbLength = l1;
  c.m_dBattenWidth = c.m_dBattenThick = c.m_dBattenPitch = CMemberCase::kNone;
  return c;
}

CMemberCase Battened(CMemberCase c, double width, double thick, double pitch) {
  c.m_dBattenWidth = width;
  c.m_dBattenThick = thick;
  c.m_dBattenPitch = pitch;
  return c;
}

CMemberCase Under(CMemberCase c, const char* steel, double N, double Vx, double Vy, double lx,
                  double ly) {
  c.m_strSteel = steel;
  c.m_dN = N;
  c.m_dVx = Vx;
  c.m_dVy = Vy;
  c.m_dLx = lx;
  c.m_dLy = ly;
  return c;
}

constexpr const char* kChannel = "热轧普通槽钢";

CMemberCase SlenderLimbs() {
  CMemberCase c = Laced(Column("热轧窄翼缘H型钢", "HN600X200", 0, 600), "L100X10", 45, 600);
  c.m_dTurn1 = c.m_dTurn2 = 90;
  return Under(c, "Q420", -8500, 0, 0, 6000, 6000);
}
CMemberCase NarrowPlane() {
  CMemberCase c = Column("热轧等边角钢", "L160X14", 300, 1200, 4);
  c.m_dTurn1 = 0, c.m_dTurn2 = 90, c.m_dTurn3 = 180, c.m_dTurn4 = 270;
  return Under(Battened(c, 500, 6, 1000), "Q235", -1000, 160, 0, 6000, 6000);
}
CMemberCase ThinBars() {
  return Under(Laced(Column(kChannel, "[20a", 0, 300), "L56X3", 45, 600), "Q235", -100, 0, 0, 4000,
               3500);
}
CMemberCase TwoChannels() { return Column(kChannel, "[20a", 0, 270); }

class LatticeMember : public test::CMembers {};

TEST_F(LatticeMember, WorkedByHand) {
  const struct {
    const char* m_szWhat;
    CMemberCase m_case;
    K m_nKind;
    double m_d2017, m_d2003;
  } cases[] = {
      // lambda 300/0.70711/11.3 = 37.55, phi 0.90822, eta 0.65632; in 2017 rho-e 1.3 -
      // 0.3 16.67/14:
      // 14588/2/0.70711 to 0.94286 0.65632 0.90822 334.3 215
      {"thin bars", ThinBars(), K::Lacing, 0.25536, 0.24077},
      // 50/3 to 15 by sqrt(1/0.25536); 47/3 to 10 + 3.755
      {"and their legs", ThinBars(), K::LacingLeg, 0.56148, 1.13902},
      // 518/11 to 40 epsilon-k, by sqrt(0.92391 27040 355/8500e3) in 2017
      {"web of a limb", SlenderLimbs(), K::Web, 1.54079, 1.57387},
      // 85e3 225/24.2e3 + 100e3/5767.4
      {"limbs between battens",
       Under(Battened(TwoChannels(), 250, 14, 700), "Q235", -100, 0, 170, 4000, 3500),
       K::LimbStrength, 3.75641, 3.75641},
      // 6 128e4/600 to 2 8 100^3/12/300
      {"soft battens",
       Under(Battened(Column(kChannel, "[20a", 0, 300), 100, 8, 600), "Q235", -1000, 0, 0, 4000,
             3500),
       K::BattenStiffness, 2.88, 2.88},
      // 80e3 1000/300 1.5/(500 6 125)
      {"battens of the narrow plane", NarrowPlane(), K::Lacing, 1.06667, 1.06667},
      // 85e3 350 6/(20 250^2) to 205
      {"battens thicker than the limbs",
       Under(Battened(TwoChannels(), 250, 20, 700), "Q235", -100, 0, 170, 4000, 3500), K::Lacing,
       0.69659, 0.69659},
  };
  for (const auto& each : cases) {
    for (const auto& [edition, ratio] :
         {std::pair{CCodeEdition::Gb2017, each.m_d2017}, {CCodeEdition::Gb2003, each.m_d2003}}) {
      SCOPED_TRACE(each.m_szWhat);
      m_check.SetEdition(edition);
      ASSERT_TRUE(m_check.Run(each.m_case)) << m_check.Fault().Line(CLanguage::English);
      EXPECT_NEAR(m_check.Answer().Ratio(each.m_nKind), ratio, 1e-5);
    }
  }
}

// The free length of a limb follows from what joins it; what is rounded or bolted is taken.
TEST_F(LatticeMember, L1IsThatOfTheBond) {
  const CMemberCase battened =
      Under(Battened(TwoChannels(), 100, 12, 900), "Q235", -100, 0, 0, 4000, 3500);
  const CMemberCase laced = Under(Laced(Column(kChannel, "[20a", 0, 300), "L45X5", 45, 600), "Q235",
                                  -100, 0, 0, 4000, 3500);
  const struct {
    const CMemberCase& m_case;
    double m_dL1;
    bool m_bTaken;
  } cases[] = {{battened, 10, false}, {battened, 750, false}, {battened, 780, true},
               {battened, 900, true}, {battened, 950, false}, {laced, 100, false},
               {laced, 290, true},    {laced, 700, true},     {laced, 900, false}};
  for (const auto& [given, l1, bTaken] : cases) {
    CMemberCase c = given;
    c.m_dLimbLength = l1;
    EXPECT_EQ(m_check.Run(c), bTaken) << l1;
    if (!bTaken) {
      EXPECT_EQ(m_check.Fault().m_strKey, "section.lacing.l1");
    }
  }
}

}  // namespace
}  // namespace orv3
