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
CMemberCase WeldedH(CSpacing Mx, const char* load) {
  return With(Sizes("h", {300, 400, 20, 10}, "Q345", 6000, 3000), -800, std::move(Mx), {0, {}},
              load);
}
CMemberCase Tee() {
  return With(Sizes("t", {8, 150, 12, 96, 96}, "Q235", 3000, 3000), -100, {3000, {}}, {0, {}},
              "uniform");
}
CMemberCase Angle() { return With(Row("热轧等边角钢", "L100X10", "Q235", 3000, 3000), -80); }

CMemberCase FlangeShear() {
  CMemberCase c = Sizes("general-h", {8, 400, 10, 20, 46, 46, 146, 146}, "Q235", 3000, 3000);
  c.m_dVx = 50;
  return c;
}
CMemberCase HeavyTop() {
  return With(Sizes("general-h", {8, 400, 10, 20, 46, 46, 146, 146}, "Q235", 3000, 3000), -500,
              {10000, {}});
}

// What none of the verification manual's members has (docs/verification/members.md).
const CExample kExamples[] = {
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
    {"section", With(Row("冷弯薄壁方钢管", "80X2.5", "Q235", 3000, 3000), -9)},
    {"section", With(Row("冷弯焊接薄壁圆钢管", "108X2.5", "Q235", 3000, 3000), -9)},
    {"section", With(Sizes("z", {20, 400, 20, 20, 50, 50}, "Q235", 3000, 3000), -100)},
    {"section", With(Sizes("general-h", {10, 300, 12, 12, 80, 90, 80, 80}, "Q235", 3e3, 3e3), -9)},
    // Table C.0.1 has no βb of a load where the tension flange is the heavier
    {"load", Change(Sizes("general-h", {8, 500, 10, 16, 60, 60, 120, 120}, "Q345", 6e3, 6e3),
                    [](CMemberCase& c) {
                      c.m_strLoad = "uniform";
                      c.m_Mx.m_dUniform = 100000;
                      c.m_dVy = 60;
                    })},
    {"lengths.x", Change(WideH(), [](CMemberCase& c) { c.m_dLx = kNone; })},
    {"lengths.span", Change(NarrowH(), [](CMemberCase& c) { c.m_dLy = kNone; })},
    {"net.A", Net(WideH(), 1.2)},
    {"N", Change(WideH(), [](CMemberCase& c) { c.m_dN = 0; })},
    {"supports", Change(WideH(), [](CMemberCase& c) { c.m_dSupports = 1; })},
    {"load", Change(WideH(), [](CMemberCase& c) { c.m_strLoad = "uniform"; })},
    {"Mqx", WeldedH({0, {100, 50}}, "uniform")},
    {"Mx", With(Angle(), -80, {100, {}})},
    {"Mx", With(WideH(), -80, {1e308, {}})},
    {"lengths", With(Row("热轧普通工字钢", "I20a", "Q235", 12000, 12000), kNone, {20000, {}},
                     {0, {}}, "uniform")},
    {"lengths", With(Row("剖分T型钢", "TW150X305", "Q235", 3e3, 12e3), kNone, {2e4, {}})},
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
