// Check cases: what is refused, what is warned of, and what one checker keeps from case to case.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"

namespace orv3 {
namespace {

// M20 of class C in 12 mm plates of Q235, 2 x 3, spacings and edges above the detailing minima.
CBoltCase Ordinary() {
  CBoltCase input;
  input.m_nCols = 2;
  input.m_nRows = 3;
  input.m_colSpace.m_dUniform = 70;
  input.m_rowSpace.m_dUniform = 80;
  input.m_nD = 20;
  input.m_dSumT = input.m_dThick = 12;
  input.m_nNv = 1;
  input.m_dVx = 60;
  input.m_dEx = input.m_dEy = 50;
  input.m_nClass = 2;
  return input;
}

CBoltCase Friction() {
  CBoltCase input = Ordinary();
  input.m_nType = kFrictionBolt;
  input.m_nNf = 1;
  input.m_nGrade = 4;
  return input;
}

CFilletCase Fillet() {
  return {.m_nLoadCase = 4,
          .m_dLw = 200,
          .m_dN = 50,
          .m_dM = 1000,
          .m_dV = 60,
          .m_dBetaF = 1.22,
          .m_dHe = 5.6};
}

CButtCase Butt() {
  return {.m_nLoadCase = 4,
          .m_nQuality = 2,
          .m_dLw = 200,
          .m_dThick = 12,
          .m_dN = 100,
          .m_dM = 1000,
          .m_dV = 60};
}

template <class CASE>
struct CRefusal {
  const char* key;
  std::function<void(CASE&)> change;
};

template <class CHECK>
void ExpectRefused(const typename CHECK::CCase& good,
                   const std::vector<CRefusal<typename CHECK::CCase>>& refusals) {
  CHECK check;
  ASSERT_TRUE(check.Run(good)) << check.Faults().front().Line();
  EXPECT_TRUE(check.Warnings().empty()) << check.Warnings().front().m_text.m_strEnglish;
  for (const auto& refusal : refusals) {
    auto bad = good;
    refusal.change(bad);
    EXPECT_FALSE(check.Run(bad)) << refusal.key;
    if (check.Faults().empty()) continue;
    EXPECT_EQ(check.Faults().front().m_strKey, refusal.key) << check.Faults().front().Line();
    EXPECT_FALSE(check.Faults().front().m_strWhat.empty());
    EXPECT_FALSE(check.Faults().front().m_strRight.empty());
    EXPECT_FALSE(check.Pass());
  }
}

TEST(BoltCase, RefusesTheImpossibleByKey) {
  ExpectRefused<CBoltCheck>(Ordinary(),
                            {{"cols", [](CBoltCase& c) { c.m_nCols = 0; }},
                             {"rows", [](CBoltCase& c) { c.m_nRows = -1; }},
                             {"rows", [](CBoltCase& c) { c.m_nRows = c.m_nCols = 50000; }},
                             {"rows", [](CBoltCase& c) { c.m_nLayout = 1, c.m_nRows = 1; }},
                             {"layout", [](CBoltCase& c) { c.m_nLayout = 2; }},
                             {"t", [](CBoltCase& c) { c.m_dThick = 0; }},
                             {"t", [](CBoltCase& c) { c.m_dThick = NAN; }},
                             {"sumT", [](CBoltCase& c) { c.m_dSumT = 0; }},
                             {"nv", [](CBoltCase& c) { c.m_nNv = 0; }},
                             {"M", [](CBoltCase& c) { c.m_dM = -1; }},
                             {"N", [](CBoltCase& c) { c.m_dN = NAN; }},
                             {"T", [](CBoltCase& c) { c.m_dT = HUGE_VAL; }},
                             {"d", [](CBoltCase& c) { c.m_nD = 26; }},
                             {"steel", [](CBoltCase& c) { c.m_nSteel = 4; }},
                             {"grade", [](CBoltCase& c) { c.m_nGrade = 2; }},
                             {"grade", [](CBoltCase& c) { c.m_nClass = 0; }},
                             {"grade", [](CBoltCase& c) { c.m_nType = kBearingBolt; }},
                             {"colSpace",
                              [](CBoltCase& c) {
                                c.m_colSpace.m_arrEach = {70, 70};
                              }},
                             {"rowSpace", [](CBoltCase& c) { c.m_rowSpace.m_arrEach = {80}; }},
                             {"rowSpace",
                              [](CBoltCase& c) {
                                c.m_rowSpace.m_arrEach = {80, NAN};
                              }},
                             {"rowSpace", [](CBoltCase& c) { c.m_rowSpace.m_dUniform = 21.5; }},
                             {"ey", [](CBoltCase& c) { c.m_dEy = 10; }}});
  ExpectRefused<CBoltCheck>(Friction(), {{"nf", [](CBoltCase& c) { c.m_nNf = 0; }},
                                         {"surface", [](CBoltCase& c) { c.m_nSurface = 5; }},
                                         {"grade", [](CBoltCase& c) { c.m_nGrade = 1; }}});
}

// Half the rows' holes, ten, against a plate that is 150 wide: the straight cut is all holes.
TEST(BoltCase, RefusesAGroupWhoseHolesLeaveNoSection) {
  CBoltCase input = Ordinary();
  input.m_nLayout = 1;
  input.m_nRows = 20;
  input.m_dVy = 10;
  CBoltCheck check;
  EXPECT_FALSE(check.Run(input));
  ASSERT_EQ(check.Faults().size(), 1U);
  EXPECT_EQ(check.Faults()[0].m_strKey, "colSpace");
}

TEST(BoltCase, WarnsOfDetailingAndOfTheUnsafeSide) {
  const struct {
    const char* key;
    CBoltCase good;
    std::function<void(CBoltCase&)> change;
  } cases[] = {
      {"rowSpace", Ordinary(), [](CBoltCase& c) { c.m_rowSpace.m_dUniform = 64; }},
      {"colSpace", Ordinary(), [](CBoltCase& c) { c.m_colSpace.m_dUniform = 64; }},
      {"ex", Ordinary(), [](CBoltCase& c) { c.m_dEx = 42.9; }},
      {"ey", Ordinary(), [](CBoltCase& c) { c.m_dEy = 32; }},
      {"T", Ordinary(), [](CBoltCase& c) { c.m_dT = -100; }},
      {"M", Ordinary(), [](CBoltCase& c) { c.m_nRows = 1, c.m_dM = 100; }},
      {"t", Ordinary(), [](CBoltCase& c) { c.m_dThick = 101; }},
      {"Vx", Friction(), [](CBoltCase& c) { c.m_dVx = -60; }},
      {"Vx", Friction(), [](CBoltCase& c) { c.m_dVx = 0, c.m_dVx = -60; }},
      {"M", Friction(), [](CBoltCase& c) { c.m_dM = -500; }},
      {"d", Friction(), [](CBoltCase& c) { c.m_nD = 12; }},
  };
  CBoltCheck check;
  for (const auto& each : cases) {
    CBoltCase input = each.good;
    each.change(input);
    ASSERT_TRUE(check.Run(input)) << check.Faults().front().Line();
    ASSERT_EQ(check.Warnings().size(), 1U) << each.key;
    EXPECT_EQ(check.Warnings()[0].m_strKey, each.key);
    EXPECT_NE(check.Warnings()[0].m_text.m_strChinese, check.Warnings()[0].m_text.m_strEnglish);
  }
  // Both of the friction type's quirks under a negative shear.
  CBoltCase input = Friction();
  input.m_dVx = -60;
  input.m_dM = 500;
  ASSERT_TRUE(check.Run(input));
  EXPECT_EQ(check.Warnings().size(), 2U);
}

// Six bolts share Vx = 60 kN and N = 30 kN; one takes 10 kN of shear and 5 kN of tension.
TEST(BoltCase, AGroupWithoutMomentIsCheckedAndReportsNone) {
  CBoltCase input = Ordinary();
  input.m_dN = 30;
  CBoltCheck check;
  ASSERT_TRUE(check.Run(input));
  EXPECT_TRUE(check.Pass());
  EXPECT_EQ(check.Record().m_dM, 0);
  EXPECT_EQ(check.Record().m_dNtM, 0);
  EXPECT_EQ(check.Results().m_dNt, 5);
  EXPECT_DOUBLE_EQ(check.Results().m_dNv, 10);
  // pi / 4 20^2 140 = 43.982 kN; pi / 4 17.65^2 170 = 41.594 kN.
  EXPECT_NEAR(check.Results().m_dRatio, std::hypot(10 / 43.98230, 5 / 41.59376), 1e-6);
  // Bearing 20 x 12 x 305 = 73.2 kN; net section (2 x 50 + 160 - 3 x 21.5) 12 = 2346 mm2.
  ASSERT_EQ(check.Parts().size(), 4U);
  EXPECT_NEAR(check.Parts()[1].m_dUtilisation, 10 / 73.2, 1e-12);
  EXPECT_NEAR(check.Parts()[2].m_dUtilisation, 60000 / 2346.0 / 215, 1e-12);
  EXPECT_STREQ(check.Worst().m_szKey, "passForces");
}

// Strengths that a case does not look up must not come from the case before.
TEST(BoltCase, OneCheckerServesManyCases) {
  CBoltCase bearing = Ordinary();
  bearing.m_nType = kBearingBolt;
  bearing.m_nGrade = 3;
  CBoltCase staggered = Friction();
  staggered.m_nLayout = 1;
  staggered.m_nSurface = 4;
  staggered.m_dVy = 20;
  const CBoltCase cases[] = {Ordinary(), Friction(), bearing, staggered};
  CBoltCheck many;
  for (int round = 0; round < 2; ++round) {
    for (const CBoltCase& input : cases) {
      CBoltCheck fresh;
      ASSERT_TRUE(many.Run(input));
      ASSERT_TRUE(fresh.Run(input));
      for (const auto& key : CBoltCheck::ResultKeys()) {
        if ((key.m_nKinds >> input.m_nType & 1U) == 0) continue;
        std::visit(
            [&](auto field) {
              EXPECT_EQ(many.Results().*field, fresh.Results().*field) << key.m_szKey;
            },
            key.m_field);
      }
    }
  }
}

TEST(WeldCase, RefusesTheImpossibleByKey) {
  using C = CFilletCase;
  ExpectRefused<CFilletCheck>(
      Fillet(), {{"case", [](C& c) { c.m_nLoadCase = 6; }},
                 {"steel", [](C& c) { c.m_nSteel = 4; }},
                 {"lw", [](C& c) { c.m_dLw = 0; }},
                 {"V", [](C& c) { c.m_dV = NAN; }},
                 {"betaF", [](C& c) { c.m_dBetaF = 0; }},
                 {"he", [](C& c) { c.m_dHe = 0; }},
                 {"he", [](C& c) { c.m_dHf = 8; }},
                 {"angle", [](C& c) { c.m_dHe = 0, c.m_dHf = 8, c.m_dAngle = 180; }},
                 {"s", [](C& c) { c.m_dHe = 0, c.m_dS = 3, c.m_dAngle = 45, c.m_nGroove = 1; }}});
  using B = CButtCase;
  ExpectRefused<CButtCheck>(Butt(), {{"quality", [](B& c) { c.m_nQuality = 0; }},
                                     {"t", [](B& c) { c.m_dThick = 0; }},
                                     {"lw", [](B& c) { c.m_dLw = -1; }}});
}

TEST(WeldCase, WarnsOfTheUnsafeSide) {
  CFilletCheck fillet;
  const auto filletWarning = [&](std::function<void(CFilletCase&)> change) {
    CFilletCase input = Fillet();
    change(input);
    EXPECT_TRUE(fillet.Run(input));
    return fillet.Warnings().size() == 1 ? fillet.Warnings()[0].m_strKey : "";
  };
  EXPECT_EQ(filletWarning([](CFilletCase& c) { c.m_nLoadCase = 1; }), "V");
  EXPECT_EQ(filletWarning([](CFilletCase& c) { c.m_dM = -1000; }), "M");
  EXPECT_EQ(filletWarning([](CFilletCase& c) { c.m_dBetaF = 1.3; }), "betaF");
  EXPECT_EQ(filletWarning([](CFilletCase& c) { c.m_dLw = 39; }), "lw");
  // Q235, 12 mm, grade three: ftw 185 below fcw 215. 480 kN on 2400 mm2 is 200 N/mm2 of tension.
  CButtCase input = Butt();
  input.m_nLoadCase = 0;
  input.m_dM = input.m_dV = 0;
  input.m_nQuality = 3;
  input.m_dN = 480;
  CButtCheck butt;
  ASSERT_TRUE(butt.Run(input));
  EXPECT_TRUE(butt.Pass());
  ASSERT_EQ(butt.Warnings().size(), 1U);
  EXPECT_EQ(butt.Warnings()[0].m_strKey, "quality");
}

}  // namespace
}  // namespace orv3
