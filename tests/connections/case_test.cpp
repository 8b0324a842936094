// Check cases: what is refused, what is warned of, and what one checker keeps from case to case.

#include <gtest/gtest.h>

#include <cmath>

#include "connections/case_changes.h"

namespace orv3 {
namespace {

// M20 of class C in 12 mm plates of Q235, 2 x 3, spacings and edges above the detailing minima.
CBoltCase Ordinary() {
  return With(SixBolts(), {{"sumT", 12}, {"t", 12}, {"nv", 1}, {"Vx", 60}, {"class", 2}});
}

CBoltCase Friction() {
  return With(Ordinary(), {{"type", kFrictionBolt}, {"nf", 1}, {"grade", 4}});
}

CFilletCase Fillet() {
  return With(
      CFilletCase(),
      {{"case", 4}, {"lw", 200}, {"N", 50}, {"M", 1000}, {"V", 60}, {"betaF", 1.22}, {"he", 5.6}});
}

CButtCase Butt() {
  return With(
      CButtCase(),
      {{"case", 4}, {"quality", 2}, {"lw", 200}, {"t", 12}, {"N", 100}, {"M", 1000}, {"V", 60}});
}

// Each change of a case that stands is refused at its key.
template <class CHECK>
void ExpectRefused(const typename CHECK::CCase& good, const std::vector<CChange>& changes) {
  CHECK check;
  ASSERT_TRUE(check.Run(good)) << check.Faults().front().Line(CLanguage::English);
  for (const CChange& change : changes) {
    SCOPED_TRACE(change.key);
    ASSERT_FALSE(check.Run(With(good, {change})));
    const CCaseFault& fault = check.Faults().front();
    EXPECT_EQ(fault.m_strKey, change.key) << fault.Line(CLanguage::English);
    EXPECT_NE(fault.Text().m_strChinese, fault.Text().m_strEnglish);
    EXPECT_FALSE(check.Pass());
  }
}

// Each change of a case that is not warned of is warned of at its key.
template <class CHECK>
void ExpectWarned(const typename CHECK::CCase& good, const std::vector<CChange>& changes) {
  CHECK check;
  ASSERT_TRUE(check.Run(good)) << check.Faults().front().Line(CLanguage::English);
  EXPECT_TRUE(check.Warnings().empty()) << check.Warnings().front().m_text.m_strEnglish;
  for (const CChange& change : changes) {
    SCOPED_TRACE(change.key);
    ASSERT_TRUE(check.Run(With(good, {change}))) << check.Faults().front().Line(CLanguage::English);
    ASSERT_EQ(check.Warnings().size(), 1U);
    EXPECT_EQ(check.Warnings()[0].m_strKey, change.key);
    EXPECT_NE(check.Warnings()[0].m_text.m_strChinese, check.Warnings()[0].m_text.m_strEnglish);
  }
}

TEST(BoltCase, RefusesTheImpossibleByKey) {
  ExpectRefused<CBoltCheck>(Ordinary(), {{"cols", 0},
                                         {"rows", -1},
                                         {"rows", 60000},
                                         {"layout", 2},
                                         {"t", 0},
                                         {"t", 101},
                                         {"t", NAN},
                                         {"sumT", 0},
                                         {"nv", 0},
                                         {"M", -1},
                                         {"N", NAN},
                                         {"T", HUGE_VAL},
                                         {"d", 26},
                                         {"steel", 4},
                                         {"grade", 2},
                                         {"rowSpace", 21.5},
                                         {"ey", 10}});
  ExpectRefused<CBoltCheck>(
      Ordinary(), {{"colSpace", 0, {70, 70}}, {"rowSpace", 0, {80}}, {"rowSpace", 0, {80, NAN}}});
  ExpectRefused<CBoltCheck>(Friction(), {{"nf", 0}, {"surface", 5}, {"grade", 1}, {"d", 14}});
  ExpectRefused<CBoltCheck>(With(Ordinary(), {{"class", 0}, {"grade", 2}}), {{"grade", 0}});
  ExpectRefused<CBoltCheck>(With(Ordinary(), {{"type", kBearingBolt}, {"grade", 3}}),
                            {{"grade", 0}});
  // Loads that nothing resists.
  ExpectRefused<CBoltCheck>(With(Ordinary(), {{"rows", 1}}), {{"M", 100}});
  ExpectRefused<CBoltCheck>(With(Friction(), {{"rows", 1}}), {{"M", -100}});
  ExpectRefused<CBoltCheck>(With(Ordinary(), {{"rows", 1}, {"cols", 1}}), {{"T", -1}});
  // Nothing to check: no load, and one that presses the plates together.
  ExpectRefused<CBoltCheck>(Ordinary(), {{"Vx", 0}});
  ExpectRefused<CBoltCheck>(With(Friction(), {{"N", 5}, {"Vx", 0}}), {{"N", -5}});
  // Staggered holes 15 mm apart.
  ExpectRefused<CBoltCheck>(With(Ordinary(), {{"layout", 1}, {"Vy", 10}, {"rowSpace", 25}}),
                            {{"rows", 1}, {"colSpace", 9}});
}

TEST(BoltCase, WarnsOfDetailingAndOfTheUnsafeSide) {
  ExpectWarned<CBoltCheck>(
      Ordinary(),
      {{"rowSpace", 64}, {"colSpace", 64}, {"ex", 42.9}, {"ey", 32}, {"T", -100}, {"N", -5}});
  ExpectWarned<CBoltCheck>(With(Ordinary(), {{"T", 100}}), {{"ey", 42.9}});
  // 12 t = 144 mm is below 8 d0 = 172; 4 d0 = 86 below 8 t = 96.
  ExpectWarned<CBoltCheck>(Ordinary(),
                           {{"rowSpace", 145}, {"colSpace", 145}, {"ex", 86.5}, {"ey", 86.5}});
  CBoltCheck threads;
  ASSERT_TRUE(threads.Run(With(Ordinary(), {{"type", kBearingBolt}, {"grade", 3}})));
  ASSERT_EQ(threads.Warnings().size(), 1U);
  EXPECT_NE(threads.Warnings()[0].m_text.m_strEnglish.find("61.17"), std::string::npos);
  EXPECT_NE(threads.Warnings()[0].m_text.m_strEnglish.find("threads out"), std::string::npos);
  EXPECT_NEAR(threads.Results().m_dNvb, 78.54, 1e-2) << "the record's";
  ASSERT_TRUE(
      threads.Run(With(Ordinary(), {{"type", kBearingBolt}, {"grade", 3}, {"threads", 1}})));
  EXPECT_NEAR(threads.Worst().m_dUtilisation, 10 / 78.54, 1e-5) << "the shank where said";
  ExpectWarned<CBoltCheck>(With(Ordinary(), {{"type", kBearingBolt}, {"grade", 3}, {"threads", 1}}),
                           {{"threads", 0}});
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
  EXPECT_STREQ(check.Worst().m_szKey, "interaction");
}

// Strengths that a case does not look up must not come from the case before.
TEST(BoltCase, OneCheckerServesManyCases) {
  const CBoltCase cases[] = {Ordinary(), Friction(),
                             With(Ordinary(), {{"type", kBearingBolt}, {"grade", 3}}),
                             With(Friction(), {{"layout", 1}, {"surface", 4}, {"Vy", 20}})};
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
  ExpectRefused<CFilletCheck>(
      Fillet(), {{"case", 6}, {"steel", 4}, {"lw", 0}, {"V", NAN}, {"betaF", 0}, {"he", 0}});
  ExpectRefused<CFilletCheck>(With(Fillet(), {{"he", 0}, {"hf", 8}, {"angle", 90}}),
                              {{"he", 5.6}, {"angle", 180}, {"angle", 136}, {"angle", 59}});
  ExpectRefused<CFilletCheck>(With(Fillet(), {{"he", 0}, {"s", 8}, {"angle", 45}, {"groove", 1}}),
                              {{"s", 3}});
  ExpectRefused<CFilletCheck>(With(Fillet(), {{"he", 0}, {"s", 8}, {"angle", 45}, {"groove", 2}}),
                              {{"angle", 39}});
  ExpectRefused<CButtCheck>(Butt(), {{"quality", 0}, {"t", 0}, {"t", 101}, {"lw", -1}});
  // Loads that the load case leaves out.
  ExpectRefused<CButtCheck>(With(Butt(), {{"case", 0}, {"M", 0}, {"V", 0}}), {{"M", -1}, {"V", 1}});
  ExpectRefused<CFilletCheck>(With(Fillet(), {{"case", 3}, {"N", 0}}), {{"N", 1}});
  ExpectRefused<CFilletCheck>(With(Fillet(), {{"case", 2}, {"V", 0}}), {{"V", 1}});
  ExpectRefused<CButtCheck>(With(Butt(), {{"M", 0}, {"V", 0}}), {{"N", 0}, {"N", 1e-7}});
}

TEST(WeldCase, WarnsOfDetailingAndOfTheUnsafeSide) {
  ExpectWarned<CFilletCheck>(With(Fillet(), {{"case", 1}, {"V", 0}}),
                             {{"betaF", 1.3}, {"M", -1000}});
  CFilletCheck check;
  ASSERT_TRUE(check.Run(With(Fillet(), {{"lw", 39}, {"N", 1}, {"M", 0}, {"V", 1}})));
  EXPECT_FALSE(check.Pass()) << "8.2.7: 40 mm";
  EXPECT_STREQ(check.Worst().m_szKey, "size");
}

// Equal loads are judged alike by every load case that takes them.
template <class CHECK>
void ExpectAlikeWithoutV(const typename CHECK::CCase& input) {
  CHECK check;
  double utilisation = 0;
  for (const double loadCase : {1, 2, 4, 5}) {
    ASSERT_TRUE(check.Run(With(input, {{"case", loadCase}, {"V", 0}})));
    if (loadCase == 1) utilisation = check.Worst().m_dUtilisation;
    EXPECT_NEAR(check.Worst().m_dUtilisation, utilisation, 1e-12) << loadCase;
  }
}

TEST(WeldCase, TheLoadCaseIsNoPartOfTheStrength) {
  const std::vector<CChange> groove = {{"he", 0}, {"s", 8}, {"angle", 45}, {"groove", 2}};
  ExpectAlikeWithoutV<CFilletCheck>(With(Fillet(), groove));
  ExpectAlikeWithoutV<CFilletCheck2017>(
      With(With(CFilletCase2017(Fillet()), groove), {{"betaF", 1}}));
  const CButtCase pressed = With(Butt(), {{"quality", 3}, {"N", -400}});
  ExpectAlikeWithoutV<CButtCheck>(pressed);
  ExpectAlikeWithoutV<CButtCheck2017>(CButtCase2017(pressed));
}

}  // namespace
}  // namespace orv3
