// Checks by GB 50017-2017, and groups of fillet welds by both editions: by hand calculation.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "connections/case_changes.h"

namespace orv3 {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr int kQ235 = 0, kQ345 = 1, kQ355 = 2, kQ420 = 4, kQ460 = 5, kQ345GJ = 6;

// Six M20 of 10.9 in a plate of Q345, 16 mm; spacings and edges as Table 11.5.2 asks.
CBoltCase2017 Friction() {
  return With(CBoltCase2017(SixBolts()), {{"type", kFrictionBolt},
                                          {"nf", 2},
                                          {"surface", 1},
                                          {"Vx", 400},
                                          {"t", 16},
                                          {"steel", kQ345},
                                          {"grade", 4}});
}

CBoltCase2017 Bearing() {
  return With(Friction(), {{"type", kBearingBolt}, {"nv", 1}, {"sumT", 16}});
}

// Class C, 4.6, of Q235.
CBoltCase2017 Ordinary() {
  return With(Bearing(),
              {{"type", kOrdinaryBolt}, {"grade", 0}, {"class", 2}, {"steel", kQ235}, {"Vx", 60}});
}

TEST(Gb2017, BoltGroupsByHand) {
  using C = CBoltCase2017;
  const double area = kPi / 4 * 17.65 * 17.65 / 1000;
  const double sumY2 = 4 * 80.0 * 80;
  const double unevenY2 = 2 * (85.0 * 85 + 15.0 * 15 + 100.0 * 100);
  const double sumR2 = sumY2 + 6 * 35.0 * 35;
  const struct {
    const char* what;
    C input;
    double utilisation;
    const char* key;
  } cases[] = {
      {"slots across the force, k 0.7", With(Friction(), {{"hole", 2}, {"Vx", 100}}),
       100 / 6.0 / (0.9 * 0.7 * 2 * 0.40 * 155), "interaction"},
      {"which a torque turns: k 0.6", With(Friction(), {{"hole", 2}, {"Vx", 0}, {"T", -6000}}),
       std::hypot(80, 35) * 6000 / sumR2 / (0.9 * 0.6 * 2 * 0.40 * 155), "interaction"},
      {"which two shears pull askew: k 0.6",
       With(Friction(), {{"hole", 2}, {"Vx", 60}, {"Vy", 80}}),
       100 / 6.0 / (0.9 * 0.6 * 2 * 0.40 * 155), "interaction"},
      {"N and M < 0 about the centroid", With(Friction(), {{"N", 120}, {"M", -9600}}),
       400 / 6.0 / 111.6 + (20 + 9600 * 80 / sumY2) / 124, "interaction"},
      {"rows at 0, 70 and 185 mm: M > 0 pulls the last, 100 mm from the centroid",
       With(Friction(), {{"rowSpace", 0, {70, 115}}, {"M", 7000}}),
       400 / 6.0 / 111.6 + 7000 * 100 / unevenY2 / 124, "interaction"},
      {"and M < 0 the first, 85 mm from it",
       With(Bearing(), {{"rowSpace", 0, {70, 115}}, {"Vx", 0}, {"M", -7000}}),
       7000 * 85 / unevenY2 / (area * 500), "interaction"},
      {"a compression N takes nothing off the shear", With(Friction(), {{"N", -500}}),
       400 / 6.0 / 111.6, "interaction"},
      {"11.4.3: threads outside the shear plane", With(Bearing(), {{"threads", 1}}),
       400 / 6.0 / (kPi / 4 * 0.4 * 310), "interaction"},
      {"bearing over 1.2 with tension", With(Bearing(), {{"nv", 2}, {"sumT", 8}, {"N", 6}}),
       400 / 6.0 / (20 * 8 * 0.590 / 1.2), "bearing"},
      {"11.4.5 for ordinary bolts: 400 mm of 15 d0 = 322.5",
       With(Ordinary(),
            {{"cols", 5}, {"colSpace", 100}, {"rows", 1}, {"ey", 80}, {"surface", 0}, {"Vx", 150}}),
       30 / (kPi / 4 * 0.4 * 140) / (1.1 - 400 / (150 * 21.5)), "interaction"},
      {"and under a torque alone",
       With(Ordinary(),
            {{"cols", 5}, {"colSpace", 100}, {"rows", 1}, {"ey", 80}, {"Vx", 0}, {"T", 10000}}),
       20 / (kPi / 4 * 0.4 * 140) / (1.1 - 400 / (150 * 21.5)), "interaction"},
      {"M < 0 presses on the last row: 185 and 120 mm from it",
       With(Ordinary(), {{"rowSpace", 0, {65, 120}}, {"Vx", 0}, {"M", -7000}}),
       7000 * 185.0 / (2 * (185.0 * 185 + 120.0 * 120)) / (area * 170), "interaction"},
      {"7.1.1: net section, d + 4 off for each hole, 0.7 fu",
       With(Bearing(), {{"nv", 20}, {"sumT", 200}, {"t", 10}, {"Vx", 500}}),
       500e3 / ((260 - 3 * 24) * 10) / (0.7 * 470), "section-x"},
      {"the gross section against f", With(Friction(), {{"nf", 20}, {"t", 10}, {"Vx", 700}}),
       700e3 / 2600 / 305, "section-x"},
      {"slots of 37 mm across the force in the section",
       With(Friction(), {{"nf", 20}, {"t", 10}, {"Vx", 700}, {"hole", 2}}),
       0.75 * 700e3 / ((260 - 3 * 37) * 10) / (0.7 * 470), "section-x"},
      {"3 d0", With(Friction(), {{"rowSpace", 65}}), 66 / 65.0, "spacing"},
      {"the outer line of staggered bolts, not the line between",
       With(Friction(), {{"layout", 1},
                         {"cols", 4},
                         {"colSpace", 0, {60, 60, 120}},
                         {"rowSpace", 100},
                         {"nf", 1},
                         {"Vx", 8}}),
       8 / 10.0 / 55.8, "interaction"},
      {"12 t", With(Friction(), {{"t", 6}, {"Vx", 10}}), 80 / 72.0, "spacing"},
      {"2 d0 of an oversize hole along the force",
       With(Friction(), {{"hole", 1}, {"ex", 47}, {"colSpace", 75}}), 48 / 47.0, "spacing"},
      {"2 d0 across too under a torque", With(Friction(), {{"ey", 40}, {"T", 100}}), 44 / 40.0,
       "spacing"},
      {"1.5 d0 across", With(Ordinary(), {{"ey", 28}}), 32.25 / 28, "spacing"},
      {"1.2 d0 at rolled edges", With(Ordinary(), {{"ey", 28}, {"edges", 1}}),
       10 / (kPi / 4 * 0.4 * 140), "interaction"},
  };
  CBoltCheck2017 check;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    ASSERT_TRUE(check.Run(each.input)) << check.Faults().front().Line(CLanguage::English);
    EXPECT_NEAR(check.Worst().m_dUtilisation, each.utilisation, 1e-9);
    EXPECT_STREQ(check.Worst().m_szKey, each.key) << check.Worst().m_name.m_szEnglish;
    EXPECT_EQ(check.Pass(), each.utilisation <= 1);
    EXPECT_EQ(check.Results().m_bSpacing, std::string_view(each.key) != "spacing");
  }
}

TEST(Gb2017, BoltGroupsAreRefusedByKey) {
  using C = CBoltCase2017;
  const struct {
    const char* key;
    C input;
  } cases[] = {
      {"hole", With(Ordinary(), {{"hole", 0}})},
      {"hole", With(Bearing(), {{"hole", 1}})},
      {"surface", With(Friction(), {{"surface", 3}})},
      {"surface", With(Friction(), {{"steel", kQ460}, {"surface", 2}})},
      {"t", With(Friction(), {{"t", 100.1}})},
      {"t", With(Bearing(), {{"steel", kQ345GJ}})},
      {"d", With(Friction(), {{"d", 18}})},
      {"d", With(Bearing(), {{"d", 12}})},
      {"steel", With(Friction(), {{"steel", 7}})},
      {"rowSpace", With(Friction(), {{"hole", 2}, {"rowSpace", 37}})},
      {"M", With(Ordinary(), {{"rows", 1}, {"M", -5}})},
  };
  CBoltCheck2017 check;
  for (const auto& each : cases) {
    EXPECT_FALSE(check.Run(each.input)) << each.key;
    ASSERT_FALSE(check.Faults().empty());
    EXPECT_EQ(check.Faults().front().m_strKey, each.key)
        << check.Faults().front().Line(CLanguage::English);
    EXPECT_FALSE(check.Pass());
  }
  // Q355 is read in the column of Q345, and says so.
  ASSERT_TRUE(check.Run(With(Friction(), {{"steel", kQ355}})));
  EXPECT_EQ(check.Results().m_dF, 305);
  ASSERT_EQ(check.Warnings().size(), 1U);
  EXPECT_EQ(check.Warnings()[0].m_strKey, "steel");
}

// 240 x 8 of Q345, E50: throat 5.6.
CFilletCase2017 Fillet() {
  return With(CFilletCase2017(), {{"case", 4},
                                  {"steel", kQ345},
                                  {"lw", 240},
                                  {"N", 60},
                                  {"V", -120},
                                  {"betaF", 1.22},
                                  {"hf", 8},
                                  {"angle", 90}});
}

TEST(Gb2017, FilletWeldsByHand) {
  using C = CFilletCase2017;
  const double sigma = 60e3 / (5.6 * 240);
  const double tau = 120e3 / (5.6 * 240);
  const auto combined = [](double across, double along) { return std::hypot(across, along); };
  const auto lap = [](double lw, double hf) {
    return With(
        Fillet(),
        {{"case", 3}, {"N", 0}, {"joint", 0}, {"lw", lw}, {"hf", hf}, {"t1", 10}, {"t2", 10}});
  };
  const struct {
    const char* what;
    C input;
    double utilisation;
    double alphaF = 1;
  } cases[] = {
      {"two equal welds", With(Fillet(), {{"welds", 2}}), combined(sigma / 1.22, tau) / 400},
      {"N < 0 and M", With(Fillet(), {{"N", -60}, {"M", 2000}}),
       combined((sigma + 6 * 2000e3 / (5.6 * 240 * 240)) / 1.22, tau) / 200},
      {"E55 with Q420 unless said", With(Fillet(), {{"steel", kQ420}}),
       combined(sigma / 1.22, tau) / 220},
      {"and E60", With(Fillet(), {{"steel", kQ420}, {"electrode", 3}}),
       combined(sigma / 1.22, tau) / 240},
      {"11.2.3, beta-f 1", With(Fillet(), {{"angle", 120}}),
       combined(60e3 / (4 * 240.0), 120e3 / (4 * 240.0)) / 200},
      {"11.2.4, bevel: s - 3, 0.9 ffw, beta-f 1 in tension",
       With(Fillet(), {{"hf", 0}, {"s", 10}, {"angle", 45}, {"groove", 1}}),
       combined(60e3 / (7 * 240.0), 120e3 / (7 * 240.0) / 0.9) / 200},
      {"60 hf of a lap weld", lap(360, 6), 120e3 / (4.2 * 360) / 200},
      {"not below 0.5", lap(900, 6), 120e3 / (4.2 * 900) / 100, 0.5},
      {"no lap, no reduction", With(Fillet(), {{"case", 3}, {"N", 0}, {"lw", 900}}),
       120e3 / (5.6 * 900) / 200},
      {"Table 11.3.5: 6 mm for 16 mm",
       With(Fillet(), {{"hf", 5}, {"N", 1}, {"V", 1}, {"t1", 16}, {"t2", 8}}), 6 / 5.0},
      {"not above the thinner part",
       With(Fillet(), {{"hf", 5}, {"N", 1}, {"V", 0}, {"t1", 16}, {"t2", 5}}),
       1e3 / (3.5 * 240) / 1.22 / 200},
      {"11.3.6: t - 1 along an edge", With(Fillet(), {{"joint", 0}, {"t1", 8}, {"t2", 12}}),
       8 / 7.0},
      {"8 he where no leg is given",
       With(Fillet(), {{"hf", 0}, {"he", 8}, {"lw", 60}, {"N", 1}, {"V", 1}}), 64 / 60.0},
      {"40 mm of a groove weld",
       With(Fillet(), {{"hf", 0}, {"s", 5}, {"angle", 70}, {"lw", 30}, {"N", 1}, {"V", 1}}),
       40 / 30.0},
      {"0.7 of 3 mm", With(Fillet(), {{"hf", 0}, {"he", 2}, {"N", 1}, {"V", 1}}), 2.1 / 2},
      {"0.7 of the leg of Table 11.3.5",
       With(Fillet(), {{"hf", 0}, {"he", 5}, {"N", 1}, {"V", 1}, {"t1", 40}, {"t2", 40}}), 5.6 / 5},
      {"1.5 √t of a groove weld",
       With(Fillet(),
            {{"hf", 0}, {"s", 9}, {"angle", 70}, {"N", 1}, {"V", 1}, {"t1", 40}, {"t2", 10}}),
       1.5 * std::sqrt(40) / 9},
      {"8 hf", With(Fillet(), {{"lw", 60}, {"N", 1}, {"V", 1}}), 64 / 60.0},
  };
  CFilletCheck2017 check;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    ASSERT_TRUE(check.Run(each.input)) << check.Faults().front().Line(CLanguage::English);
    EXPECT_NEAR(check.Worst().m_dUtilisation, each.utilisation, 1e-9);
    EXPECT_EQ(check.Pass(), each.utilisation <= 1);
    EXPECT_NEAR(check.Results().m_dAlphaF, each.alphaF, 1e-12);
  }
  const struct {
    const char* key;
    C input;
  } refused[] = {
      {"angle", With(Fillet(), {{"angle", 59}})},
      {"angle", With(Fillet(), {{"hf", 0}, {"s", 10}, {"angle", 60}, {"groove", 1}})},
      {"hf", With(Fillet(), {{"hf", 0}, {"he", 5}, {"joint", 0}})},
      {"t2", With(Fillet(), {{"t1", 8}})},
      {"he", With(Fillet(), {{"hf", 0}, {"he", 9}, {"t1", 8}, {"t2", 9}})},
      {"s", With(Fillet(), {{"hf", 0}, {"s", 9}, {"angle", 70}, {"t1", 9}, {"t2", 8}})},
      {"hf", With(Fillet(), {{"hf", 12}, {"t1", 8}, {"t2", 9}})},
      {"N", With(Fillet(), {{"N", 0}, {"V", 0}})},
      {"electrode", With(Fillet(), {{"electrode", 0}})},
      {"welds", With(Fillet(), {{"welds", 0}})},
  };
  for (const auto& each : refused) {
    ASSERT_FALSE(check.Run(each.input)) << each.key;
    EXPECT_EQ(check.Faults().front().m_strKey, each.key);
  }
}

TEST(Gb2017, ButtWeldsByHand) {
  CButtCase2017 input;
  input.m_nLoadCase = 4;
  input.m_nSteel = kQ460;
  input.m_nQuality = 3;
  input.m_dLw = 300;
  input.m_dThick = 20;
  input.m_dN = -600;
  input.m_dM = 45000;
  input.m_dV = -300;
  CButtCheck2017 check;
  ASSERT_TRUE(check.Run(input));
  // -100 and 150 at the edges: 50 pulled against ftw 330, 250 pressed against fcw 390.
  EXPECT_NEAR(check.Results().m_dSigma, 50, 1e-12) << "N/A + M/W";
  ASSERT_EQ(check.Warnings().size(), 1U) << "the other edge decides";
  EXPECT_EQ(check.Warnings()[0].m_strKey, "M");
  EXPECT_NEAR(check.Parts()[0].m_dUtilisation, 250 / 390.0, 1e-12);
  EXPECT_NEAR(check.Parts()[1].m_dUtilisation, 75 / 225.0, 1e-12);
  EXPECT_NEAR(check.Parts()[2].m_dUtilisation, std::sqrt(250.0 * 250 + 3 * 75 * 75) / 363, 1e-12)
      << "one limit for either edge";
  input.m_dN = 600;
  ASSERT_TRUE(check.Run(input));
  EXPECT_TRUE(check.Warnings().empty());
  EXPECT_NEAR(check.Parts()[0].m_dUtilisation, 250 / 330.0, 1e-12);
  input.m_nSteel = kQ345GJ;
  input.m_dThick = 16;
  EXPECT_FALSE(check.Run(input));
  EXPECT_EQ(check.Faults().front().m_strKey, "t") << "the table begins above 16 mm";
}

// Two upright welds of 6 mm, 200 long and 100 apart, and 60 kN upwards 200 beside their centroid.
CWeldGroupCase Bracket() {
  return With(CWeldGroupCase(), {{"welds", 0, {0, 0, 0, 200, 6, 100, 200, 100, 0, 6}},
                                 {"betaF", 1.22},
                                 {"Vy", 60},
                                 {"x", 250},
                                 {"y", 100}});
}

TEST(WeldGroup, ByHand) {
  using C = CWeldGroupCase;
  const double A = 2 * 4.2 * 200;
  const double J = A * (200.0 * 200 / 12 + 50 * 50);
  const double along = 60e3 / A + 12e6 * 50 / J;
  const double across = 12e6 * 100 / J;
  const double flat = 2 * 4.2 * 150;  // two flat welds, 200 above each other
  const C lying =
      With(Bracket(), {{"welds", 0, {0, 0, 150, 0, 6, 0, 200, 150, 200, 6}}, {"x", 75}, {"Vy", 0}});
  const double pull = 50e3 / flat + 5e6 / (flat * 100);
  const struct {
    const char* what;
    C input;
    double combined;
  } cases[] = {
      {"eccentric shear", Bracket(), std::hypot(across / 1.22, along)},
      {"downwards", With(Bracket(), {{"Vy", -60}}), std::hypot(across / 1.22, along)},
      {"as force and torque at the centroid", With(Bracket(), {{"x", 50}, {"T", 12000}}),
       std::hypot(across / 1.22, along)},
      {"beta-f 1", With(Bracket(), {{"betaF", 1}}), std::hypot(across, along)},
      {"N and M out of the plane", With(lying, {{"N", 50}, {"M", -5000}}), pull / 1.22},
      {"N beside the centroid instead of M", With(lying, {{"N", 50}, {"y", 200}}), pull / 1.22},
      {"in the plane and out of it: the side that is worse",
       With(lying, {{"N", 50}, {"Vy", -50}, {"M", 5000}}),
       std::sqrt(pull * pull + 50e6 * 50 / flat / flat + pull * 50e3 / flat) / 1.22},
      {"one weld on a line with N on it",
       With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6}}, {"x", 0}, {"Vy", 0}, {"N", 30}}),
       30e3 / 840 / 1.22},
  };
  for (const bool b2017 : {false, true}) {
    CWeldGroupCheck check(b2017 ? CCodeEdition::Gb2017 : CCodeEdition::Gb2003);
    for (const auto& each : cases) {
      SCOPED_TRACE(each.what);
      ASSERT_TRUE(check.Run(each.input)) << check.Faults().front().Line(CLanguage::English);
      EXPECT_NEAR(check.Results().m_dCombined, each.combined, 1e-9 * each.combined);
      EXPECT_NEAR(check.Worst().m_dUtilisation, each.combined / 160, 1e-9);
    }
  }
}

TEST(WeldGroup, RulesAndRefusals) {
  using C = CWeldGroupCase;
  // 400 mm of 6 mm: 66.7 hf.
  const C lap = With(Bracket(), {{"welds", 0, {0, 0, 400, 0, 6, 0, 100, 400, 100, 6}},
                                 {"joint", 0},
                                 {"Vy", 0},
                                 {"Vx", 200},
                                 {"y", 50}});
  CWeldGroupCheck later(CCodeEdition::Gb2017);
  ASSERT_TRUE(later.Run(lap));
  EXPECT_NEAR(later.Worst().m_dUtilisation, 200e3 / (2 * 4.2 * 400) / 160 / (1.5 - 400 / 720.0),
              1e-9);
  EXPECT_TRUE(later.Pass());
  CWeldGroupCheck earlier(CCodeEdition::Gb2003);
  ASSERT_TRUE(earlier.Run(lap));
  EXPECT_NEAR(earlier.Worst().m_dUtilisation, 200e3 / (2 * 4.2 * 360) / 160, 1e-9)
      << "8.2.7: 60 hf count";
  // The same welds in pieces that meet, some the other way round.
  const C pieces = With(lap, {{"welds", 0, {300, 0, 0, 0,   6,   300, 0, 360, 0,   6,   363, 0, 403,
                                            0,   6, 0, 100, 360, 100, 6, 403, 100, 363, 100, 6}},
                              {"x", 200}});
  ASSERT_TRUE(later.Run(pieces));
  EXPECT_NEAR(later.Results().m_dAlphaF, 1.5 - 400 / 720.0, 1e-12);
  EXPECT_TRUE(later.Pass()) << "a piece of 40 mm is no short weld where the weld runs on";
  ASSERT_TRUE(earlier.Run(pieces));
  EXPECT_NEAR(earlier.Results().m_dAlphaF, 360 / 400.0, 1e-12);
  ASSERT_TRUE(
      later.Run(With(Bracket(), {{"welds", 0, {0, 0, 0, 39, 6, 100, 200, 100, 0, 6}}, {"Vy", 1}})));
  EXPECT_FALSE(later.Pass()) << "39 mm is below 8 hf";
  EXPECT_TRUE(later.Run(
      With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, 0, 200, 0, 300, 6, -50, 100, 50, 100, 6}}})))
      << "ends that meet, and a weld that crosses";
  EXPECT_TRUE(later.Run(With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, 5, 0, 5, 200, 6}}})))
      << "both sides of a plate of 5 mm";
  const struct {
    const char* key;
    C input;
  } refused[] = {
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200}}})},
      {"welds", With(Bracket(), {{"welds", 0, {}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 0, 6}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 0}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, 0, 0, 0, 200, 6}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, 0, 250, 0, 150, 6}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, 4.9, 0, 4.9, 200, 6}}})},
      {"welds", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6, -8, 200, 8, 0, 6}}})},
      {"betaF", With(Bracket(), {{"betaF", 1.1}})},
      {"M", With(Bracket(), {{"welds", 0, {0, 0, 0, 200, 6}}, {"x", 1}, {"N", 30}})},
      {"steel", With(Bracket(), {{"steel", kQ460}})},
  };
  for (const auto& each : refused) {
    ASSERT_FALSE(earlier.Run(each.input)) << each.key;
    EXPECT_EQ(earlier.Faults().front().m_strKey, each.key);
  }
}

}  // namespace
}  // namespace orv3
