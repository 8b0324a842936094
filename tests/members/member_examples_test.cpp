// Members worked by hand in both editions, and cases that are refused.
#include <algorithm>
#include <cmath>

#include "codes/edition.h"

#include "member_cases.h"

namespace orv3 {
namespace {

using test::CMembers;
using test::Row;
using test::Sizes;
using K = CMemberCheckKind;

CMemberCase With(CMemberCase c, double N, CSpacing Mx = {0, {}}, CSpacing My = {0, {}},
                 const char* load = "") {
  c.m_dN = N;
  c.m_Mx = std::move(Mx);
  c.m_My = std::move(My);
  c.m_strLoad = load;
  return c;
}

CMemberCase Net(CMemberCase c, double share) {
  c.m_dNetA = share;
  return c;
}

CMemberCase Shear(CMemberCase c, double Vy) {
  c.m_dVy = Vy;
  return c;
}

struct CExample {
  const char* m_szWhat;
  CMemberCase m_case;
  K m_nKind;
  double m_d2017, m_d2003;  // ratios; NaN: the edition has no such check
};

constexpr double kNone = CMemberCase::kNone;
constexpr const char* kWideH = "热轧宽翼缘H型钢";

CMemberCase WideH() { return With(Row(kWideH, "HW300X300", "Q235", 6000, 3000), -800); }
CMemberCase NarrowH() {
  return With(Row("热轧窄翼缘H型钢", "HN400X200", "Q235", 6000, 6000), kNone, {150000, {}}, {0, {}},
              "uniform");
}
CMemberCase ChannelBeam() {
  return Shear(With(Row("热轧普通槽钢", "[20a", "Q235", 3000, 1500), kNone, {10000, {}}), 10);
}
CMemberCase WeldedH(CSpacing Mx, const char* load) {
  return With(Sizes("h", {300, 400, 20, 10}, "Q345", 6000, 3000), -800, std::move(Mx), {0, {}},
              load);
}
CMemberCase Box() {
  return With(Sizes("box", {300, 300, 12}, "Q235", 4000, 4000), -900, {60000, {}}, {40000, {}});
}
CMemberCase Tube() {
  return With(Sizes("tube", {100, 92}, "Q235", 4000, 4000), -400, {0, {20000, 10000}},
              {0, {15000, -6000}});
}
CMemberCase Tee() {
  return With(Sizes("t", {8, 150, 12, 96, 96}, "Q235", 3000, 3000), -100, {3000, {}}, {0, {}},
              "uniform");
}
CMemberCase Pair() {
  CMemberCase c = With(Row("热轧等边角钢组合", "2L100X10", "Q235", 3000, 3000), -300);
  c.m_dGap = 8;
  return c;
}
CMemberCase Angle() { return With(Row("热轧等边角钢", "L100X10", "Q235", 3000, 3000), -80); }
CMemberCase UnequalAngle() {
  return With(Row("热轧不等边角钢", "L100X63X8", "Q235", 2000, 2000), -80);
}
// The web's class is S5: 194.7 against 76.4.
CMemberCase SlenderWeb() {
  return With(Sizes("h", {300, 1200, 16, 6}, "Q345", 8000, 3000), -500, {600000, {}});
}

CMemberCase FlangeShear() {
  CMemberCase c = Sizes("general-h", {8, 400, 10, 20, 46, 46, 146, 146}, "Q235", 3000, 3000);
  c.m_dVx = 50;
  return c;
}
CMemberCase HeavyTop() {
  return With(Sizes("general-h", {8, 400, 10, 20, 46, 46, 146, 146}, "Q235", 3000, 3000), -500,
              {10000, {}});
}

// The figures in the comments are A, I, W and i as printed, or those of the plates.
const CExample kExamples[] = {
    // Wx 1190e3; 150e6/(1.05 1190e3 215)
    {"rolled H beam", NarrowH(), K::Strength, 0.55836, 0.55836},
    // lambda-y 6000/45.4 = 132.16, xi 6000 13/(200 400) = 0.975, beta-b 0.69 + 0.13 xi = 0.81675,
    // elastic phi-b 0.79824, phi-b 1.07 - 0.282/0.79824 = 0.71672
    {"rolled H beam", NarrowH(), K::Lateral, 0.81800, 0.81800},
    // Table C.0.2 (B.2): uniform on the upper flange, No. 20, 4 m: 0.84; phi-b 0.73429
    {"ordinary I beam",
     With(Row("热轧普通工字钢", "I20a", "Q235", 4000, 4000), kNone, {20000, {}}, {0, {}},
          "uniform"),
     K::Lateral, 0.53476, 0.53476},
    // 570 73 11/(1500 200) = 1.5257, phi-b 0.88517; 10e6/(0.88517 178e3 215)
    {"channel beam", ChannelBeam(), K::Lateral, 0.29520, 0.29520},
    // 10e3 104.7e3/(1780.4e4 7 125)
    {"channel beam", ChannelBeam(), K::Shear, 0.06721, 0.06721},
    // b/h = 1, Q235: 2017 a* is b and b* is c; 2003 b and b
    {"rolled H column", WideH(), K::StabilityX, 0.35326, 0.35326},
    {"rolled H column", WideH(), K::StabilityY, 0.36841, 0.34397},
    // b = 145 - 20 over 15; 2017 times 1/sqrt(phi A f/N) = 1/1.64752
    {"rolled H column", WideH(), K::Flange, 0.57155 / 1.64752, 0.57155},
    {"rolled H column", WideH(), K::Web, 0.48016 / 1.64752, 0.48016},
    {"rolled H tie with holes", Net(With(WideH(), 1500), 0.8), K::Strength, 0.57946, 0.57946},
    // 1500e3/(0.8 12040 0.7 370), and by 215 in 2003
    {"rolled H tie with holes", Net(With(WideH(), 1500), 0.8), K::Net, 0.60128, 0.72433},
    // A 15600, Ix 472.48e6, Iy 90.03e6, lambda 34.476 and 39.490, phi 0.89158 and 0.86595,
    // N'Ex 24258 kN; beta-mx 1 - 0.18 N/Ncr = 0.9946 (2003: 1)
    {"welded H under load", WeldedH({150000, {}}, "uniform"), K::Strength, 0.37882, 0.37882},
    {"welded H under load", WeldedH({150000, {}}, "uniform"), K::StabilityX, 0.40438, 0.40552},
    {"welded H under load", WeldedH({150000, {}}, "uniform"), K::StabilityY, 0.41598, 0.41598},
    // alpha0 1.05408
    {"welded H under load", WeldedH({150000, {}}, "uniform"), K::Web, 0.60344, 0.73802},
    {"welded H under load", WeldedH({150000, {}}, "uniform"), K::Flange, 0.58563, 0.67573},
    // beta-mx 0.6 - 0.4/2 and 0.65 - 0.35/2; beta-tx 0.475
    {"welded H, end moments", WeldedH({0, {-75000, 150000}}, ""), K::StabilityX, 0.27919, 0.29498},
    {"welded H, end moments", WeldedH({0, {-75000, 150000}}, ""), K::StabilityY, 0.30298, 0.30298},
    // A 13824, I 191.43e6, lambda 33.991, phi 0.92157; eta 0.7
    {"box, two moments", Box(), K::StabilityX, 0.64589, 0.64589},
    {"box, two moments", Box(), K::StabilityY, 0.62516, 0.62516},
    {"box, two moments", Box(), K::Strength, 0.64990, 0.64990},
    {"box, two moments", Box(), K::Flange, 0.51111, 0.57500},
    // A 4825.5, lambda 58.874, phi 0.81318; 2017 beta-x beta-y 0.76213 and the resultant 25e6
    {"tube, two moments", Tube(), K::StabilityX, 0.86922, 0.92809},
    {"tube, two moments", Tube(), K::Strength, 0.83949, 1.02106},
    // A 3504, yc 120.37, Ix 6.0343e6, lambda-x 72.29; the tip's side does not govern
    {"welded T, flange compressed", Tee(), K::StabilityX, 0.24898, 0.24990},
    {"welded T, flange compressed", Tee(), K::Strength, 0.19799, 0.19799},
    // imin 19.6, lambda 153.06
    {"angle", Angle(), K::StabilityY, 0.64926, 0.64926},
    {"angle", Angle(), K::Slenderness, 0.76531, 0.76531},
    // w/t (100 - 20)/10 against 5 + 0.125 lambda, times sqrt(phi A f/N); 2003 (100 - 10 - 12)/10
    // against 20
    {"angle", Angle(), K::Wall, 0.26711, 0.39000},
    // A given limit counts up to the code's 200
    {"beyond every limit",
     [] {
       CMemberCase c = WideH();
       c.m_dLimit = 1000;
       return c;
     }(),
     K::Slenderness, 0.22901, 0.22901},
    // 980/2 against 80 epsilon-k
    {"T with a slender stem",
     With(Sizes("t", {2, 1000, 20, 150, 150}, "Q345", 6000, 3000), kNone, {60000, {}}), K::Web,
     7.42133, 7.42133},
    // lambda-v 145.985, 2017 lambda-z 4.21 100/8: 150.728
    {"unequal angle", UnequalAngle(), K::StabilityY, 0.96849, 0.91844},
    // lambda-x 98.361; lambda-yz 71.026 and 70.974
    {"pair of angles", Pair(), K::StabilityX, 0.64041, 0.64041},
    {"pair of angles", Pair(), K::StabilityY, 0.48646, 0.48626},
    // alpha0 1.47325, k-sigma 12.818, lambda-np 2.3445, rho 0.39196: 482.05 mm of the web are lost,
    // Ae 13715.7, e 46.113, We1x 6.0947e6. 2003: 194.67 against (16 alpha0 + 0.5 30 + 25) 0.8253
    {"slender web", SlenderWeb(), K::Strength, 0.45470, kNone},
    {"slender web", SlenderWeb(), K::StabilityX, 0.45928, kNone},
    {"slender web", SlenderWeb(), K::StabilityY, 0.47888, kNone},
    {"slender web", SlenderWeb(), K::Web, 194.6667 / 250, 194.6667 / (63.57205 * 0.825323)},
    // Flanges 300 x 10 and 100 x 20: Iy 22.5e6 + 1.6667e6 + 370 8^3/12; tau 50e3 300^2/(8 Iy)
    {"Vx in the wider flange", FlangeShear(), K::Shear, 0.18609, 0.18609},
    // The lower flange, compressed by N over Mx, juts 146/10
    {"both flanges compressed", HeavyTop(), K::Flange, 14.6 / 15, kNone},
};

TEST_F(CMembers, ByHand) {
  for (const CExample& example : kExamples) {
    for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
      const double expected = edition == CCodeEdition::Gb2017 ? example.m_d2017 : example.m_d2003;
      if (std::isnan(expected)) continue;
      m_check.SetEdition(edition);
      ASSERT_TRUE(m_check.Run(example.m_case))
          << example.m_szWhat << ": " << m_check.Fault().Line(CLanguage::English);
      EXPECT_NEAR(m_check.Answer().Ratio(example.m_nKind), expected, 2e-5)
          << example.m_szWhat << ", " << MemberCheckName(example.m_nKind) << ", "
          << EditionFacts(edition).m_szName;
    }
  }
}

// What an edition or a load does not ask is absent, and a verdict has nothing left over.
TEST_F(CMembers, ChecksThatApply) {
  ASSERT_TRUE(m_check.Run(WideH()));
  EXPECT_NE(m_check.Answer().Find(K::StabilityZ), nullptr);
  EXPECT_EQ(m_check.Answer().Find(K::Lateral), nullptr);
  m_check.SetEdition(CCodeEdition::Gb2003);
  ASSERT_TRUE(m_check.Run(WideH()));
  EXPECT_EQ(m_check.Answer().Find(K::StabilityZ), nullptr);
  ASSERT_TRUE(m_check.Run(NarrowH()));
  EXPECT_EQ(m_check.Answer().Find(K::StabilityX), nullptr);
  EXPECT_EQ(m_check.Answer().Find(K::Slenderness), nullptr);
}

TEST_F(CMembers, StepsCanBeFollowed) {
  ASSERT_TRUE(m_check.Run(WideH()));
  const CMemberCheckPart& part = *m_check.Answer().Find(K::StabilityX);
  EXPECT_EQ(m_check.Answer().StepText(part.m_nEnd - 1),
            "ratio = N/(φ·A·f) = 800000/(0.8748·12040·215) = 0.3533");
  ASSERT_TRUE(m_check.Run(WeldedH({0, {-75000, 150000}}, "")));
  const CMemberCheckPart& bent = *m_check.Answer().Find(K::StabilityX);
  std::vector<std::string> texts;
  for (std::size_t i = bent.m_nFirst; i < bent.m_nEnd; ++i)
    texts.push_back(m_check.Answer().StepText(i));
  EXPECT_EQ(std::ranges::count(texts, "βmx = 0.6 + 0.4·k = 0.6 + 0.4·(-0.5) = 0.4"), 1);
}

struct CRefusal {
  const char* m_szKey;
  CMemberCase m_case;
};

CMemberCase Change(CMemberCase c, void (*change)(CMemberCase&)) {
  change(c);
  return c;
}

const CRefusal kRefusals[] = {
    {"steel", Change(WideH(), [](CMemberCase& c) { c.m_strSteel = "Q346"; })},
    {"code", Change(WideH(), [](CMemberCase& c) { c.m_strCode = "2010"; })},
    {"section", Change(WideH(), [](CMemberCase& c) { c.m_strNo = "HW1"; })},
    {"section", Change(WideH(), [](CMemberCase& c) { c.m_strStyle = "h"; })},
    {"section", With(Sizes("z", {20, 400, 20, 20, 50, 50}, "Q235", 3000, 3000), -100)},
    {"section", With(Sizes("general-h", {10, 300, 12, 12, 80, 90, 80, 80}, "Q235", 3e3, 3e3), -9)},
    {"lengths.x", Change(WideH(), [](CMemberCase& c) { c.m_dLx = kNone; })},
    {"lengths.span", Change(NarrowH(), [](CMemberCase& c) { c.m_dLy = kNone; })},
    {"net.A", Net(WideH(), 1.2)},
    {"N", Change(WideH(), [](CMemberCase& c) { c.m_dN = 0; })},
    {"supports", Change(WideH(), [](CMemberCase& c) { c.m_dSupports = 1; })},
    {"load", Change(WideH(), [](CMemberCase& c) { c.m_strLoad = "uniform"; })},
    {"Mqx", WeldedH({0, {100, 50}}, "uniform")},
    {"Mx", With(Angle(), -80, {100, {}})},
    {"Mx", With(WideH(), -80, {1e308, {}})},
    {"lengths.span", With(Row("热轧普通工字钢", "I20a", "Q235", 12000, 12000), kNone, {20000, {}},
                          {0, {}}, "uniform")},
    {"Mx", With(Row("热轧普通槽钢", "[20a", "Q235", 3000, 1500), -80, {100, {}})},
    {"My", With(Tee(), -80, {0, {}}, {100, {}})},
    {"My", With(Sizes("h", {600, 100, 20, 10}, "Q235", 15e3, 15e3), kNone, {0, {}}, {9e3, {}})},
    {"My", With(Sizes("channel", {10, 80, 30, 30, 380, 380}, "Q235", 9e3, 9e3), kNone, {0, {}},
                {9e3, {}})},
    {"Vy", Change(WeldedH({0, {100, 50}}, ""), [](CMemberCase& c) { c.m_dSway = 1; })},
    {"stiffeners", Change(NarrowH(), [](CMemberCase& c) { c.m_dStiffeners = 0; })},
    {"limit", Change(WideH(), [](CMemberCase& c) { c.m_dLimit = 1e9; })},
    {"joined", Change(WideH(), [](CMemberCase& c) { c.m_strJoined = "leg"; })},
    {"joined", Change(NarrowH(), [](CMemberCase& c) { c.m_strJoined = "web"; })},
    {"edges", Change(WideH(), [](CMemberCase& c) { c.m_strEdges = "rolled"; })},
};

TEST_F(CMembers, RefusedByName) {
  for (const CRefusal& refusal : kRefusals) {
    ASSERT_FALSE(m_check.Run(refusal.m_case)) << refusal.m_szKey;
    EXPECT_EQ(m_check.Fault().m_strKey, refusal.m_szKey)
        << m_check.Fault().Line(CLanguage::English);
  }
}

}  // namespace
}  // namespace orv3
