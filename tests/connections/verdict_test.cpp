// Verdicts where the records err on the unsafe side, or ask more than the code: by hand
// calculation.

#include <gtest/gtest.h>

#include <cmath>

#include "connections/case_changes.h"
#include "connections/report/connection_report.h"
#include "connections/verdict/least_cut.h"
#include "framework/plain_number.h"

namespace orv3 {
namespace {

// M20 of class C in 10 mm plates of Q235 (sum of thicknesses 20): shank in one plane 43.982 kN,
// tension 41.594 kN.
CBoltCase Ordinary(double cols, double rows, double colSpace, double rowSpace) {
  const CBoltCase grid = With(
      SixBolts(), {{"cols", cols}, {"rows", rows}, {"colSpace", colSpace}, {"rowSpace", rowSpace}});
  return With(grid, {{"sumT", 20}, {"t", 10}, {"nv", 1}, {"nf", 1}, {"class", 2}});
}

// The utilisation that governs, by hand; the record's verdict beside it.
TEST(Verdict, BoltGroupsAreJudgedByTheCode) {
  const double Ntb = std::acos(-1.0) / 4 * 17.65 * 17.65 * 0.170;
  const double Nvb = std::acos(-1.0) / 4 * 20 * 20 * 0.140;
  const CBoltCase threads =
      With(Ordinary(2, 3, 70, 80), {{"type", kBearingBolt}, {"grade", 4}, {"sumT", 10}, {"t", 16}});
  const CBoltCase bearing = With(threads, {{"threads", 1}});
  const double sumR2 = 6 * 35 * 35 + 4 * 80 * 80;
  const struct {
    const char* what;
    CBoltCase input;
    double utilisation;
    bool bRecord;
  } cases[] = {
      {"bearing type with M turns about the centroid",
       With(Ordinary(2, 8, 100, 100), {{"type", kBearingBolt}, {"grade", 4}, {"M", 350000}}),
       350000.0 * 350 / (4 * (50 * 50 + 150 * 150 + 250 * 250 + 350 * 350)) / (Ntb * 500 / 170),
       true},
      {"all bolts stay in tension: about the centroid",
       With(Ordinary(2, 5, 100, 80), {{"N", 212}, {"M", 16960}}), (21.2 + 21.2) / Ntb, true},
      {"N lifts off the first row as well",
       With(Ordinary(2, 5, 100, 80), {{"N", 100}, {"M", 20000}}),
       (20000 + 100 * 160) * 320.0 / 384000 / Ntb, true},
      {"M < 0 on preloaded bolts",
       With(Ordinary(2, 3, 70, 80),
            {{"type", kFrictionBolt}, {"grade", 4}, {"Vx", 60}, {"M", -9000}}),
       10 / (0.9 * 0.45 * 155) + 9000.0 * 80 / (4 * 80 * 80) / 124, true},
      {"T < 0", With(Ordinary(2, 3, 70, 80), {{"Vx", 60}, {"T", -6000}}),
       std::hypot(10 + 80 * 6000 / sumR2, 35 * 6000 / sumR2) / Nvb, true},
      {"a staggered group's zigzag against Vy takes five holes",
       With(Ordinary(5, 3, 60, 60), {{"layout", 1}, {"nv", 2}, {"Vy", 580}}),
       580e3 / ((100 + 4 * std::hypot(60, 30) - 5 * 21.5) * 10) / 215, true},
      {"and its straight cut three",
       With(Ordinary(5, 3, 60, 80), {{"layout", 1}, {"nv", 2}, {"Vy", 580}}),
       580e3 / ((340 - 3 * 21.5) * 10) / 215, true},
      {"against Vx as well, the columns 25 mm apart",
       With(Ordinary(4, 3, 25, 90), {{"layout", 1}, {"nv", 2}, {"Vx", -400}}),
       400e3 / ((100 + 4 * std::hypot(25, 45) - 5 * 21.5) * 10) / 215, true},
      {"threads in the shear plane unless said", With(threads, {{"Vx", 460}}),
       460 / 6.0 / (Ntb * 310 / 170), true},
      {"Ncb / 1.2 only together with tension", With(bearing, {{"Vx", 500.1}}), 83.35 / 94, false},
      {"and with it", With(threads, {{"sumT", 9}, {"N", 1}, {"Vx", 430}}), 430 / 6.0 * 1.2 / 84.6,
       false},
      {"three of nine preloaded bolts in the cut: 300 mm of Q345, two faces",
       With(Ordinary(3, 3, 70, 50), {{"type", kFrictionBolt},
                                     {"grade", 4},
                                     {"nf", 2},
                                     {"steel", 1},
                                     {"ey", 100},
                                     {"Vx", 730}}),
       (1 - 0.5 * 3 / 9) * 730e3 / ((300 - 3 * 22) * 10) / 310, false},
  };
  CBoltCheck check;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    ASSERT_TRUE(check.Run(each.input)) << check.Faults().front().Line(CLanguage::English);
    EXPECT_NEAR(check.Worst().m_dUtilisation, each.utilisation, 1e-9 * each.utilisation);
    EXPECT_EQ(check.Pass(), each.utilisation <= 1);
    const CBoltResults& r = check.Results();
    EXPECT_EQ(r.m_bForces && r.m_bX && r.m_bY, each.bRecord);
    EXPECT_FALSE(check.Warnings().empty()) << "what differs is told";
  }
}

// Against every chain of holes that goes from edge to edge, for spacings of all kinds.
TEST(Verdict, TheLeastCutIsTheLeastOfAllChains) {
  unsigned seed = 7;
  const auto random = [&seed](int below) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<int>((seed >> 8) % static_cast<unsigned>(below));
  };
  for (int round = 0; round < 400; ++round) {
    std::vector<double> gaps(static_cast<std::size_t>(2 * (1 + random(3)) + random(2)));
    for (double& gap : gaps) gap = 20 + random(90);
    const double across = 15 + random(60);
    const double deduct = 22;
    const std::size_t lines = gaps.size() + 1;
    double least = HUGE_VAL;
    for (unsigned chain = 1; chain < 1U << lines; ++chain) {
      double length = 0;
      double leg = 0;
      int before = -1;
      for (std::size_t i = 0; i < lines; ++i) {
        if ((chain >> i & 1U) != 0) {
          const bool bCross = before >= 0 && (static_cast<int>(i) - before) % 2 != 0;
          length += (bCross ? std::hypot(leg, across) : leg) - deduct;
          leg = 0;
          before = static_cast<int>(i);
        }
        if (i < gaps.size()) leg += gaps[i];
      }
      least = std::min(least, length + leg);
    }
    const CLeastCut cut = LeastCut(gaps, across, deduct);
    ASSERT_NEAR(cut.m_dLength - deduct * cut.Holes(), least, 1e-9) << round;
  }
}

TEST(Verdict, WeldsAreJudgedAtBothEdges) {
  const CButtCase butt{.m_nLoadCase = 1, .m_nQuality = 3, .m_dLw = 300, .m_dThick = 10};
  const struct {
    const char* what;
    CButtCase input;
    double utilisation;
  } butts[] = {
      // W = 150000 mm3, A = 3000 mm2; ftw 185, fcw 215.
      {"M pulls the other edge", With(butt, {{"N", -15}, {"M", -31000}}),
       (31000.0 / 150 - 5) / 185},
      {"N and M of opposite signs", With(butt, {{"N", 60}, {"M", -20000}}),
       (20 + 20000.0 / 150) / 185},
      {"compression up to fcw", With(butt, {{"N", -600}}), 200.0 / 215},
      {"tension up to ftw", With(butt, {{"N", 600}}), 200.0 / 185},
      {"the reduced stress at the worse edge",
       With(butt, {{"case", 4}, {"N", 30}, {"M", -24000}, {"V", -150}}),
       std::hypot(10 + 160, std::sqrt(3.0) * 75) / (1.1 * 185)},
  };
  CButtCheck butted;
  for (const auto& each : butts) {
    SCOPED_TRACE(each.what);
    ASSERT_TRUE(butted.Run(each.input)) << butted.Faults().front().Line(CLanguage::English);
    EXPECT_NEAR(butted.Worst().m_dUtilisation, each.utilisation, 1e-12);
    EXPECT_EQ(butted.Pass(), each.utilisation <= 1);
  }
  // he 5 mm, lw 200: A = 1000 mm2, W = 33333 mm3; ffw 160.
  const CFilletCase he{.m_nLoadCase = 1, .m_dLw = 200, .m_dBetaF = 1.22, .m_dHe = 5};
  const CFilletCase steep = With(he, {{"he", 0}, {"hf", 5 / 0.5}, {"angle", 120}});
  const CFilletCase groove = With(he, {{"he", 0}, {"s", 8}, {"groove", 1}, {"angle", 45}});
  const CFilletCase side = With(he, {{"he", 0}, {"hf", 10 / 1.4}, {"angle", 90}, {"lw", 600}});
  const struct {
    const char* what;
    CFilletCase input;
    double utilisation;
  } fillets[] = {
      {"N and M of opposite signs", With(he, {{"N", 60}, {"M", -3000}}), (60 + 90) / (1.22 * 160)},
      {"beta-f at most 1.22", With(he, {{"betaF", 1.5}, {"N", 180}}), 180 / (1.22 * 160)},
      {"1.0 between inclined faces", With(steep, {{"N", 150}}), 150.0 / 160},
      {"1.0 in a groove under tension", With(groove, {{"N", 150}}), 150.0 / 160},
      {"1.22 under compression", With(groove, {{"N", -150}}), 150 / (1.22 * 160)},
      {"a bevel groove in shear", With(groove, {{"case", 3}, {"V", -130}}), 130 / (0.9 * 160)},
      {"a side weld counts to 60 hf", With(side, {{"case", 3}, {"V", 300}}),
       300e3 / (5 * 60 * (10 / 1.4)) / 160},
  };
  CFilletCheck filleted;
  for (const auto& each : fillets) {
    SCOPED_TRACE(each.what);
    ASSERT_TRUE(filleted.Run(each.input)) << filleted.Faults().front().Line(CLanguage::English);
    EXPECT_NEAR(filleted.Worst().m_dUtilisation, each.utilisation, 1e-12);
    EXPECT_EQ(filleted.Pass(), each.utilisation <= 1);
  }
}

// 215.001 N/mm2 on 215: neither "215 > 215" nor "100 %".
TEST(Verdict, AFailureIsSeenToFail) {
  const CButtCase input{.m_nQuality = 1, .m_dLw = 100, .m_dThick = 10, .m_dN = 215.001};
  CButtCheck check;
  ASSERT_TRUE(check.Run(input));
  EXPECT_FALSE(check.Pass());
  const std::string report = CaseReport(input, check, CLanguage::English);
  EXPECT_NE(report.find("215.001 &gt; 215.000"), std::string::npos);
  EXPECT_NE(report.find("100.0005%"), std::string::npos);
  EXPECT_EQ(PercentNumber(std::nextafter(1.0, 2.0)).substr(0, 4), "100.");
  EXPECT_EQ(PercentNumber(1), "100");
  EXPECT_EQ(PercentNumber(1.0004), "100.04");
}

}  // namespace
}  // namespace orv3
