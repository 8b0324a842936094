// What must hold of every member, whatever its figures.
#include <algorithm>
#include <cmath>

#include "member_cases.h"
#include "members/cases/member_choice.h"
#include "members/moment_course.h"

namespace orv3 {
namespace {

using test::CMembers;
using test::Row;
using test::Sizes;
using K = CMemberCheckKind;

struct CRatios {
  double m_arrRatio[kMemberCheckKinds];
};

CRatios RatiosOf(CMemberCheck& check, const CMemberCase& input) {
  CRatios ratios{};
  EXPECT_TRUE(check.Run(input));
  for (std::size_t i = 0; i < kMemberCheckKinds; ++i) {
    const double ratio = check.Answer().Ratio(static_cast<K>(i));
    ratios.m_arrRatio[i] = std::isnan(ratio) ? 0 : ratio;
  }
  return ratios;
}

// The classes of plates jump, and their limits move with the stresses; all other ratios of `more`
// are at least those of `less`.
void ExpectNoLess(const CRatios& more, const CRatios& less, const char* what) {
  for (const K kind : {K::Strength, K::Net, K::Shear, K::Combined, K::StabilityX, K::StabilityY,
                       K::StabilityZ, K::Lateral, K::Slenderness, K::Panel}) {
    const auto i = static_cast<std::size_t>(kind);
    EXPECT_GE(more.m_arrRatio[i], less.m_arrRatio[i] * (1 - 1e-12))
        << what << ", " << MemberCheckName(kind);
  }
}

CMemberCase Column() {
  CMemberCase c = Sizes("h", {300, 400, 20, 12}, "Q235", 6000, 4000);
  c.m_dN = -500;
  c.m_Mx.m_dUniform = 100000;
  c.m_My.m_dUniform = 20000;
  c.m_dVy = 80;
  c.m_dVx = 30;
  return c;
}

TEST_F(CMembers, RatiosGrowWithForcesAndLengths) {
  void (*const kMore[])(CMemberCase&) = {
      [](CMemberCase& c) { c.m_dN *= 1.1; },
      [](CMemberCase& c) { c.m_Mx.m_dUniform *= 1.1; },
      [](CMemberCase& c) { c.m_My.m_dUniform *= 1.1; },
      [](CMemberCase& c) { c.m_dVy *= 1.1; },
      [](CMemberCase& c) { c.m_dVx *= 1.1; },
      [](CMemberCase& c) { c.m_dLx *= 1.1; },
      [](CMemberCase& c) { c.m_dLy *= 1.1; },
  };
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    m_check.SetEdition(edition);
    const CRatios less = RatiosOf(m_check, Column());
    for (std::size_t i = 0; i < std::size(kMore); ++i) {
      CMemberCase more = Column();
      kMore[i](more);
      ExpectNoLess(RatiosOf(m_check, more), less, std::to_string(i).c_str());
    }
    CMemberCase weaker = Column(), stronger = Column();
    stronger.m_strSteel = "Q345";
    ExpectNoLess(RatiosOf(m_check, weaker), RatiosOf(m_check, stronger), "stronger steel");
  }
}

// A signed force or moment is no better than its mirror image where the section has none.
TEST_F(CMembers, SignsOfMomentsDoNotMatterToSymmetricSections) {
  CMemberCase printed = Row("热轧宽翼缘H型钢", "HW125X125", "Q345", 3000, 3000);
  printed.m_dN = -60;
  printed.m_Mx.m_dUniform = 8000;
  for (const CMemberCase& one : {Column(), printed}) {
    CMemberCase mirrored = one;
    mirrored.m_Mx.m_dUniform *= -1;
    mirrored.m_My.m_dUniform *= -1;
    mirrored.m_dVy *= -1;
    mirrored.m_dVx *= -1;
    const CRatios a = RatiosOf(m_check, one), b = RatiosOf(m_check, mirrored);
    for (std::size_t i = 0; i < kMemberCheckKinds; ++i)
      EXPECT_DOUBLE_EQ(a.m_arrRatio[i], b.m_arrRatio[i]);
  }
}

// A moment that changes along the member has the shear of its statics.
TEST_F(CMembers, AMomentHasItsShear) {
  CMemberCase ends = Sizes("h", {200, 500, 16, 8}, "Q345", 1000, 1000);
  ends.m_Mx.m_arrEach = {450000, -450000};
  CMemberCase tube = Sizes("tube", {100, 92}, "Q235", 2000, 1000);
  tube.m_My.m_arrEach = {9000, -3000};
  CMemberCase laced = test::Lattice("lacing", 2);
  laced.m_dN = -50;
  laced.m_dLx = 4000;
  laced.m_Mx.m_dUniform = 120000;
  laced.m_strLoad = "uniform";
  CMemberCase lacedEnds = laced;
  lacedEnds.m_strLoad = "";
  lacedEnds.m_Mx.m_arrEach = {120000, -120000};
  const struct {
    CMemberCase m_case;
    double CMemberCase::*m_pShear;
    double m_dShear;
    CMemberNote m_nNote;
  } cases[] = {{ends, &CMemberCase::m_dVy, 900, CMemberNote::AssumedVy},
               {tube, &CMemberCase::m_dVx, 12, CMemberNote::AssumedVx},
               {laced, &CMemberCase::m_dVy, 120, CMemberNote::AssumedVy},
               {lacedEnds, &CMemberCase::m_dVy, 60, CMemberNote::AssumedVy}};
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    m_check.SetEdition(edition);
    for (const auto& [c, shear, V, note] : cases) {
      const CRatios taken = RatiosOf(m_check, c);
      EXPECT_EQ(std::ranges::count(m_check.Answer().Notes(), note), 1);
      CMemberCase given = c;
      given.*shear = V;
      const CRatios asked = RatiosOf(m_check, given);
      for (std::size_t i = 0; i < kMemberCheckKinds; ++i)
        EXPECT_DOUBLE_EQ(taken.m_arrRatio[i], asked.m_arrRatio[i]);
    }
  }
  m_check.SetEdition(CCodeEdition::Gb2017);
  // S 993424, I 443.324e6: 900e3 S/(8 I)/175
  EXPECT_NEAR(RatiosOf(m_check, ends).m_arrRatio[static_cast<std::size_t>(K::Shear)], 1.4407, 1e-4);
}

// What relieves a member elsewhere takes nothing off a check that does not count on it.
TEST_F(CMembers, AReliefHidesNothing) {
  CMemberCase ends = Sizes("h", {300, 400, 20, 10}, "Q235", 6000, 6000);
  ends.m_dN = -500;
  ends.m_Mx.m_arrEach = {200000, 200000};
  CMemberCase relieved = ends;
  relieved.m_strLoad = "uniform";
  relieved.m_dMqx = -0.001;
  CMemberCase bent = Sizes("h", {160, 830, 8, 12}, "Q460", 10300, 3400);
  bent.m_Mx.m_arrEach = {61535, -75960.98};
  bent.m_My.m_dUniform = 20523.07;
  CMemberCase pulled = bent;
  pulled.m_dN = 411.04;
  CMemberCase sheared =
      Sizes("general-h", {14, 1410, 39, 40, 70, 70, 250, 250}, "Q420", 6800, 3900);
  sheared.m_My.m_dUniform = 9929.2;
  sheared.m_dVy = -192;
  CMemberCase turned = sheared;
  turned.m_sizes.m_arrEach = {14, 1410, 40, 39, 250, 250, 70, 70};
  const struct {
    const char* m_szWhat;
    CMemberCase m_more, m_less;
    K m_nKind;
  } pairs[] = {{"a load against end moments", relieved, ends, K::StabilityX},
               {"a load against end moments", relieved, ends, K::StabilityY},
               {"tension", pulled, bent, K::Lateral},
               {"flanges exchanged", sheared, turned, K::Panel},
               {"flanges exchanged", turned, sheared, K::Panel}};
  for (const char* grade : {"Q345", "Q460"}) {
    for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
      if (edition == CCodeEdition::Gb2003 && std::string(grade) == "Q460") continue;
      m_check.SetEdition(edition);
      for (auto [what, more, less, kind] : pairs) {
        more.m_strSteel = less.m_strSteel = grade;
        const auto i = static_cast<std::size_t>(kind);
        const double least = RatiosOf(m_check, less).m_arrRatio[i];
        EXPECT_GT(least, 0) << what;
        EXPECT_GE(RatiosOf(m_check, more).m_arrRatio[i], least * (1 - 1e-6)) << what;
      }
    }
  }
}

// N of one newton hides nothing that fails without it.
TEST_F(CMembers, ALittleCompressionHidesNothing) {
  const auto beam = [](CMemberCase c, double Mx, double My, double Vx, double Vy) {
    c.m_Mx.m_dUniform = Mx;
    c.m_My.m_dUniform = My;
    c.m_dVx = Vx;
    c.m_dVy = Vy;
    return c;
  };
  const CMemberCase cases[] = {
      beam(Sizes("h", {200, 400, 16, 10}, "Q235", 9000, 9000), 60000, 0, 0, 50),
      beam(Sizes("box", {100, 300, 10}, "Q235", 14000, 14000), 60000, 0, 0, 50),
      beam(Sizes("box", {300, 100, 10}, "Q235", 14000, 14000), 0, 60000, 50, 0),
      beam(Sizes("h", {300, 1200, 16, 8}, "Q235", 9000, 3000), 900000, 0, 0, 400),
      beam(Sizes("tube", {100, 92}, "Q235", 4000, 4000), 10000, 0, 30, 40),
  };
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    m_check.SetEdition(edition);
    for (CMemberCase c : cases) {
      const CRatios without = RatiosOf(m_check, c);
      c.m_dN = -0.001;
      ExpectNoLess(RatiosOf(m_check, c), without, c.m_strStyle.c_str());
      EXPECT_GT(m_check.Answer().Ratio(K::Combined), 0) << c.m_strStyle;
    }
  }
}

// Where the edges differ, moments of both senses are held as each of them by itself would be.
TEST_F(CMembers, BothSensesOfAMomentAreHeld) {
  CMemberCase tee = Row("剖分T型钢", "TW150X305", "Q235", 3000, 3000);
  tee.m_Mx.m_arrEach = {30000, -25000};
  CMemberCase hogging = tee;
  hogging.m_Mx = {-25000, {}};
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    m_check.SetEdition(edition);
    const CRatios both = RatiosOf(m_check, tee);
    EXPECT_EQ(std::ranges::count(m_check.Answer().Notes(), CMemberNote::OppositeMoment), 1);
    const CRatios alone = RatiosOf(m_check, hogging);
    ExpectNoLess(both, alone, "both senses");
    EXPECT_GE(both.m_arrRatio[static_cast<std::size_t>(K::Web)],
              alone.m_arrRatio[static_cast<std::size_t>(K::Web)]);
    EXPECT_GT(alone.m_arrRatio[static_cast<std::size_t>(K::Web)], 0);
  }
}

// The part between lateral supports that has the greatest moment is the half with it; which end
// comes first is no matter.
TEST_F(CMembers, EndMomentsAreThoseOfThePart) {
  CMemberCase whole = Sizes("h", {250, 500, 16, 12}, "Q345", 9000, 4500);
  whole.m_dN = -1400;
  whole.m_Mx.m_arrEach = {400000, -400000};
  whole.m_dVy = 120;
  CMemberCase half = whole, supported = whole;
  half.m_Mx.m_arrEach = {400000, 0};
  half.m_dLx = 4500;
  supported.m_dLy = 9000;
  supported.m_dSpan = 9000;
  supported.m_dSupports = 1;
  CMemberCase tied = Sizes("h", {300, 400, 20, 10}, "Q345", 9000, 3000);
  tied.m_dN = -2100;
  tied.m_Mx.m_arrEach = {250000, -250000};
  tied.m_dMqx = 240000;
  tied.m_strLoad = "uniform";
  tied.m_dVy = 200;
  CMemberCase turned = tied;
  turned.m_Mx.m_arrEach = {-250000, 250000};
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    m_check.SetEdition(edition);
    const CRatios ofWhole = RatiosOf(m_check, whole), ofHalf = RatiosOf(m_check, half);
    for (const K kind : {K::StabilityY, K::Lateral})
      EXPECT_NEAR(ofWhole.m_arrRatio[static_cast<std::size_t>(kind)],
                  ofHalf.m_arrRatio[static_cast<std::size_t>(kind)], 1e-12);
    ASSERT_TRUE(m_check.Run(supported));
    EXPECT_NEAR(m_check.Answer().m_results.m_dBetaTx, 0.65, 1e-12);
    const CRatios first = RatiosOf(m_check, tied), second = RatiosOf(m_check, turned);
    ExpectNoLess(first, second, "ends in the other order");
    ExpectNoLess(second, first, "ends in the other order");
  }
}

// Each edge has its own stress: N relieves one, and turned over it is the other.
TEST_F(CMembers, AnITurnedOverHasTheSameChecks) {
  CMemberCase upright = Sizes("general-h", {12, 420, 18, 18, 80, 80, 180, 180}, "Q390", 3000, 3000);
  upright.m_dN = -3173.89;
  upright.m_Mx.m_dUniform = -440723;
  upright.m_dVy = -496.46;
  CMemberCase over = upright;
  over.m_sizes.m_arrEach = {12, 420, 18, 18, 180, 180, 80, 80};
  over.m_Mx.m_dUniform = 440723;
  m_check.SetEdition(CCodeEdition::Gb2003);
  const CRatios ratios = RatiosOf(m_check, upright);
  ExpectNoLess(ratios, RatiosOf(m_check, over), "turned over");
  ExpectNoLess(RatiosOf(m_check, over), ratios, "turned over");
  constexpr auto kCombined = static_cast<std::size_t>(K::Combined);
  EXPECT_NEAR(ratios.m_arrRatio[kCombined], 1.111, 5e-4);
  upright.m_Mx.m_dUniform = 440723;
  EXPECT_GT(RatiosOf(m_check, upright).m_arrRatio[kCombined], 1.2);
}

TEST_F(CMembers, ATurnedBoxHasExchangedChecks) {
  constexpr std::pair<K, K> kExchanged[] = {{K::StabilityX, K::StabilityY},
                                            {K::StabilityY, K::StabilityX},
                                            {K::Flange, K::Web},
                                            {K::Web, K::Flange},
                                            {K::Strength, K::Strength},
                                            {K::Lateral, K::Lateral},
                                            {K::Combined, K::Combined},
                                            {K::Panel, K::Panel},
                                            {K::Wall, K::Wall},
                                            {K::Slenderness, K::Slenderness}};
  struct CLoads {
    double m_dN, m_dMx, m_dMy, m_dH;
  };
  for (const CLoads& loads : {CLoads{-600, 0, 0, 300},
                              {-600, 40000, 0, 300},
                              {-600, 40000, 25000, 300},
                              {0, 90000, 0, 1100}}) {
    CMemberCase upright = Sizes("box", {200, loads.m_dH, 12}, "Q345", 6000, 4000);
    upright.m_dN = loads.m_dN;
    upright.m_Mx.m_dUniform = loads.m_dMx;
    upright.m_My.m_dUniform = loads.m_dMy;
    upright.m_dVy = 30;
    CMemberCase turned = Sizes("box", {loads.m_dH, 200, 12}, "Q345", 4000, 6000);
    turned.m_dN = loads.m_dN;
    turned.m_Mx.m_dUniform = loads.m_dMy;
    turned.m_My.m_dUniform = loads.m_dMx;
    turned.m_dVx = 30;
    upright.m_dVx = turned.m_dVy = loads.m_dMy / 500;
    for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
      m_check.SetEdition(edition);
      const CRatios a = RatiosOf(m_check, upright), b = RatiosOf(m_check, turned);
      for (const auto& [of, as] : kExchanged) {
        if (edition == CCodeEdition::Gb2003 && loads.m_dMx != 0 &&
            (of == K::Flange || of == K::Web))
          continue;  // 5.4.3 tells the walls apart
        EXPECT_NEAR(a.m_arrRatio[static_cast<std::size_t>(of)],
                    b.m_arrRatio[static_cast<std::size_t>(as)], 1e-12)
            << MemberCheckName(of) << ", " << loads.m_dMy;
      }
    }
  }
}

// Where the code itself jumps, a member a hair beyond is another member.
TEST_F(CMembers, TheJumpsAreTheCodes) {
  const auto beam = [](double b, double tf, double tw, double length = 3000) {
    CMemberCase c = Sizes("h", {b, 400, tf, tw}, "Q235", 6000, length);
    c.m_Mx.m_dUniform = 50000;
    return c;
  };
  const auto pressed = [](CMemberCase c, double N) {
    c.m_dN = N;
    return c;
  };
  CMemberCase ends = pressed(Sizes("h", {300, 400, 20, 10}, "Q345", 3000, 3000), -800);
  ends.m_Mx.m_arrEach = {150000, -150000};
  CMemberCase loaded = ends;
  loaded.m_strLoad = "uniform";
  loaded.m_dMqx = 0.001;
  const CMemberCase slender = [] {
    CMemberCase c = Sizes("h", {300, 1200, 16, 6}, "Q235", 9000, 3000);
    c.m_Mx.m_dUniform = 300000;
    return c;
  }();
  CMemberCase stronger = slender;
  stronger.m_strSteel = "Q345";
  const double iy = std::sqrt(16016042.7 / 7808);  // of 200 x 400 x 12 x 8
  const struct {
    const char* m_szWhat;
    CMemberCase m_before, m_after;
    K m_nKind;
    double m_dTimes;  // the ratio
  } jumps[] = {
      // 800e3/(0.86595 15600 295) and 150e6/(2362.4e3 295), beta-tx 0.3 and 0.85
      {"a load beside end moments", ends, loaded, K::StabilityY, 0.38370 / 0.26532},
      // phi-b 0.74273 by C.0.5, 0.81820 by C.0.1
      {"lambda-y 120 epsilon-k", pressed(beam(200, 12, 8, 119.999 * iy), -0.001),
       pressed(beam(200, 12, 8, 120.001 * iy), -0.001), K::StabilityY, 0.74273 / 0.81820},
      {"web from S4 to S5", beam(200, 14, 372 / 123.999), beam(200, 14, 372 / 124.001), K::Web,
       124.0 / 250},
      {"stronger steel in a slender web", slender, stronger, K::Panel,
       std::pow(215 / (305 * 235.0 / 345), 2)},
  };
  for (const auto& jump : jumps) {
    ASSERT_TRUE(m_check.Run(jump.m_before)) << m_check.Fault().Line(CLanguage::English);
    const double before = m_check.Answer().Ratio(jump.m_nKind);
    ASSERT_TRUE(m_check.Run(jump.m_after)) << m_check.Fault().Line(CLanguage::English);
    EXPECT_NEAR(m_check.Answer().Ratio(jump.m_nKind) / before, jump.m_dTimes, 2e-4)
        << jump.m_szWhat;
  }
}

TEST(MomentCourse, ExtremesLieWhereTheLoadMeetsTheEnds) {
  // M(z) = -100 + 4 150 z(1 - z): -100 at the ends, 50 in the middle
  const CMomentCourse fixed{-100, -100, 150, CSpanLoad::Uniform};
  EXPECT_DOUBLE_EQ(fixed.Most(), 50);
  EXPECT_DOUBLE_EQ(fixed.Governing(), -100);
  EXPECT_TRUE(fixed.IsReversed());
  // M(z) = -100 + 100 z + 400 z(1 - z), greatest at z = 0.625: 56.25
  EXPECT_DOUBLE_EQ((CMomentCourse{-100, 0, 100, CSpanLoad::Uniform}.Most()), 56.25);
  EXPECT_DOUBLE_EQ((CMomentCourse{80, -40, 30, CSpanLoad::Midspan}.Most()), 80);
}

TEST_F(CMembers, TheChoiceIsThatOfEveryRowByItself) {
  CMemberCase column = Column(), beam = Column();
  column.m_strStyle = beam.m_strStyle = "";
  column.m_sizes = beam.m_sizes = {};
  beam.m_dN = CMemberCase::kNone;
  beam.m_strLoad = "midspan";
  const std::vector<CMemberCase> cases = {column, beam};
  std::vector<CMemberCandidate> candidates;
  for (const CString& table : MemberTables()) {
    for (CMemberCandidate& row : MemberCandidates(table, CMemberCase::kNone))
      candidates.push_back(std::move(row));
  }
  for (const double b : {300, 400}) {
    candidates.push_back(StyleCandidate(*FindSectionAlias("h"), {b, 500, 20, 12}));
    candidates.push_back(StyleCandidate(*FindSectionAlias("box"), {b, 400, 250}));  // no hole left
  }
  for (const CCodeEdition edition : {CCodeEdition::Gb2017, CCodeEdition::Gb2003}) {
    const CMemberChoice choice = ChooseMember(cases, candidates, edition);
    m_check.SetEdition(edition);
    std::size_t tried = 0, passing = 0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
      const CMemberCandidate& row = candidates[i];
      double worst = 0;
      bool bCovered = true, bPass = true;
      for (CMemberCase each : cases) {
        (row.m_arrSize.empty() ? each.m_strTable : each.m_strStyle) = row.m_strTable;
        each.m_strNo = row.m_strNo;
        each.m_sizes.m_arrEach = row.m_arrSize;
        bCovered = bCovered && m_check.Run(each);
        if (!bCovered) break;
        bPass = bPass && m_check.Pass();
        worst = std::max(worst, m_check.Answer().Worst().m_dRatio);
      }
      const auto& list = bPass ? choice.m_arrChosen : choice.m_arrFailing;
      const auto found = std::find_if(list.begin(), list.end(),
                                      [i](const auto& each) { return each.m_nCandidate == i; });
      ASSERT_EQ(found != list.end(), bCovered) << row.m_strTable << ' ' << row.m_strNo;
      if (!bCovered) continue;
      ++tried;
      passing += bPass;
      EXPECT_EQ(found->m_dRatio, worst) << row.m_strTable << ' ' << row.m_strNo;
    }
    EXPECT_EQ(choice.m_nTried, tried);
    EXPECT_EQ(choice.m_nRefused, candidates.size() - tried);
    EXPECT_EQ(choice.m_arrChosen.size(), passing);
    EXPECT_EQ(choice.m_arrFailing.size(), tried - passing);
    EXPECT_GT(passing, 50U);
    EXPECT_GT(choice.m_arrFailing.size(), 50U);
    for (std::size_t i = 1; i < choice.m_arrChosen.size(); ++i) {
      EXPECT_LE(candidates[choice.m_arrChosen[i - 1].m_nCandidate].m_dMass,
                candidates[choice.m_arrChosen[i].m_nCandidate].m_dMass);
    }
  }
}

}  // namespace
}  // namespace orv3
