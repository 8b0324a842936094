// What GB 50017 asks of members and connections, by both editions.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "orv3cal.h"

namespace {

using namespace orv3;
using enum CSteelGrade;

constexpr CCodeEdition k2003 = CCodeEdition::Gb2003;
constexpr CCodeEdition k2017 = CCodeEdition::Gb2017;

TEST(Codes, BucklingClassesOfBothEditions) {
  using enum CBucklingShape;
  const struct {
    CBucklingShape shape;
    double t;
    const char* x2003;
    const char* y2003;
    const char* x2017;
    const char* y2017;
  } cases[] = {
      {RolledTube, 10, "a", "a", "a", "a"},
      {WeldedTube, 10, "b", "b", "b", "b"},
      {RolledT, 10, "b", "b", "b", "b"},
      {WeldedTFlameCut, 10, "b", "b", "b", "b"},
      {WeldedTRolled, 10, "b", "c", "b", "c"},
      {RolledChannel, 10, "b", "b", "b", "b"},
      {RolledUnequalAngle, 10, "b", "b", "a*", "a*"},
      {WeldedBoxThick, 20, "c", "c", "c", "c"},
      {RolledBox, 10, "b", "b", "b", "b"},
      {Solid, 10, "b", "b", "b", "b"},
      {Lattice, 10, "b", "b", "b", "b"},
      {WeldedIFlameCut, 40, "b", "b", "b", "b"},
      {WeldedBox, 40, "b", "b", "b", "b"},
      {RolledINarrow, 10, "a", "b", "a", "b"},
      {RolledIWide, 39.9, "b", "b", "a*", "b*"},
      {RolledIWide, 40, "b", "c", "b", "c"},
      {RolledIWide, 79.9, "b", "c", "b", "c"},
      {RolledIWide, 80, "c", "d", "c", "d"},
      {WeldedIFlameCut, 20, "b", "b", "b", "b"},
      {WeldedIRolled, 20, "b", "c", "b", "c"},
      {WeldedIRolled, 40, "c", "d", "c", "d"},
      {RolledEqualAngle, 10, "b", "b", "a*", "a*"},
      {WeldedBox, 20, "b", "b", "b", "b"},
      {WeldedBoxThick, 60, "c", "c", "c", "c"},
  };
  for (const auto& c : cases) {
    const auto text = [&](CCodeEdition edition, CSectionAxis axis) {
      return std::string(PrintedBucklingClass(edition, c.shape, axis, c.t)->Text());
    };
    const std::string name = BucklingShapeName(c.shape);
    EXPECT_EQ(text(k2003, CSectionAxis::X), c.x2003) << name << c.t;
    EXPECT_EQ(text(k2003, CSectionAxis::Y), c.y2003) << name << c.t;
    EXPECT_EQ(text(k2017, CSectionAxis::X), c.x2017) << name << c.t;
    EXPECT_EQ(text(k2017, CSectionAxis::Y), c.y2017) << name << c.t;
  }
  // a* and b* by the grade.
  EXPECT_EQ(*BucklingClass(k2017, RolledIWide, CSectionAxis::X, 20, Q235), CBucklingClass::B);
  EXPECT_EQ(*BucklingClass(k2017, RolledIWide, CSectionAxis::Y, 20, Q235), CBucklingClass::C);
  EXPECT_EQ(*BucklingClass(k2017, RolledIWide, CSectionAxis::X, 20, Q355), CBucklingClass::A);
  EXPECT_EQ(*BucklingClass(k2017, RolledIWide, CSectionAxis::Y, 20, Q460), CBucklingClass::B);
  EXPECT_FALSE(BucklingClass(k2017, RolledTube, CSectionAxis::X, 40, Q345));
}

// Limits of Table 3.5.1 by hand; those of a compressed web meet those of bending at alpha0 = 2.
TEST(Codes, SectionClasses) {
  const double epsilon = std::sqrt(235.0 / 345);
  const auto flange = *ClassLimits(k2017, CClassElement::FlangeOutstand, Q345);
  EXPECT_NEAR(*flange.m_arrLimit[2], 13 * epsilon, 1e-12);
  EXPECT_EQ(*flange.m_arrLimit[4], 20);
  EXPECT_EQ(flange.ClassOf(20), CSectionClass::S5);
  EXPECT_EQ(flange.ClassOf(20.01), std::nullopt);
  const auto tube = *ClassLimits(k2017, CClassElement::Tube, Q460);
  EXPECT_NEAR(*tube.m_arrLimit[3], 100 * 235 / 460.0, 1e-12);
  EXPECT_EQ(tube.ClassOf(52), std::nullopt);
  const auto bending = *ClassLimits(k2017, CClassElement::WebBending, Q235);
  const auto both = *ClassLimits(k2017, CClassElement::WebCompressed, Q235, 2);
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_NEAR(*both.m_arrLimit[i] / *bending.m_arrLimit[i], 1, 0.025) << i;
  const auto pure = *ClassLimits(k2017, CClassElement::WebCompressed, Q235, 0);
  EXPECT_EQ(*pure.m_arrLimit[0], 33);
  EXPECT_EQ(*pure.m_arrLimit[3], 45);
}

TEST(Codes, PlasticFactors) {
  using enum CPlasticUse;
  const auto check = [](CCodeEdition edition, CPlasticUse use, double x, double y) {
    const auto factors = *PlasticFactors(edition, CPlasticShape::I, use);
    EXPECT_EQ(factors.m_dX, x);
    EXPECT_EQ(factors.m_dY, y);
  };
  check(k2017, Developed, 1.05, 1.2);
  check(k2017, SlenderFlange, 1, 1);
  check(k2003, SlenderFlange, 1, 1.2);  // 4.1.1 takes gamma x alone
  check(k2003, Elastic, 1, 1);
  constexpr double kItems[8][3] = {// gamma x, at a T's tip, gamma y
                                   {1.05, 1.05, 1.2}, {1.05, 1.05, 1.05}, {1.05, 1.2, 1.2},
                                   {1.05, 1.2, 1.05}, {1.2, 1.2, 1.2},    {1.15, 1.15, 1.15},
                                   {1.0, 1.0, 1.05},  {1.0, 1.0, 1.0}};
  for (int item = 0; item < 8; ++item) {
    const auto factors = *PlasticFactors(k2017, static_cast<CPlasticShape>(item));
    EXPECT_EQ(factors.m_dX, kItems[item][0]) << item;
    EXPECT_EQ(factors.m_dXTip, kItems[item][1]) << item;
    EXPECT_EQ(factors.m_dY, kItems[item][2]) << item;
  }
}

// phi-b of C.0.1 is Mcr / (Wx fy) of a beam under uniform moment, with It = A t1^2 / 3.
TEST(Codes, LateralBucklingOfAWeldedIFollowsFromTheElasticMoment) {
  constexpr double b = 200, h = 600, t1 = 12, tw = 8, l1 = 6000;
  constexpr double kPi = std::numbers::pi;
  const double A = 2 * b * t1 + (h - 2 * t1) * tw;
  const double Iy = 2 * t1 * b * b * b / 12;
  const double Ix = (b * h * h * h - (b - tw) * std::pow(h - 2 * t1, 3)) / 12;
  const double Wx = Ix / (h / 2);
  const double euler = kPi * kPi * kElasticModulus * Iy / (l1 * l1);
  const double torsion = kShearModulus * A * t1 * t1 / 3;
  const double mcr = std::sqrt(euler * (euler * h * h / 4 + torsion));
  for (const CSteelGrade grade : {Q235, Q345}) {
    const auto phi = *WeldedIPhiB(k2017, grade, {A, h, Wx, t1}, l1 / std::sqrt(Iy / A), 1);
    EXPECT_NEAR(phi.m_dElastic, mcr / (Wx * NominalYield(grade)), 0.01 * phi.m_dElastic);
    EXPECT_DOUBLE_EQ(phi.m_dPhiB, phi.m_dElastic > 0.6
                                      ? std::min(1.0, 1.07 - 0.282 / phi.m_dElastic)
                                      : phi.m_dElastic);
  }
  // The heavier flange compressed helps, in tension it harms.
  const auto eta = [&](double alpha) {
    return WeldedIPhiB(k2017, Q235, {A, h, Wx, t1, alpha}, 120, 1)->m_dElastic;
  };
  EXPECT_GT(eta(0.7), eta(0.5));
  EXPECT_LT(eta(0.3), eta(0.5));
}

TEST(Codes, EquivalentMomentFactors) {
  using enum CBeamLoad;
  EXPECT_DOUBLE_EQ(*BetaB(k2017, UniformUpper, 0, 1), 0.82);
  EXPECT_DOUBLE_EQ(*BetaB(k2017, PointLower, 0, 1), 1.95);
  EXPECT_DOUBLE_EQ(*BetaB(k2017, UniformLower, 0, 1), 1.53);
  EXPECT_EQ(*BetaB(k2017, UniformUpper, 0, 2.1), 0.95);
  EXPECT_EQ(*BetaB(k2017, UniformLower, 0, 2.1), 1.33);
  EXPECT_EQ(*BetaB(k2017, PointLower, 0, 2.1), 1.67);
  EXPECT_EQ(*BetaB(k2017, UniformUpper, 1, 1), 1.15);
  EXPECT_EQ(*BetaB(k2017, PointUpper, 2, 1), 1.20);
  EXPECT_DOUBLE_EQ(*BetaB(k2017, PointUpper, 0, 2.1), 1.09);
  EXPECT_DOUBLE_EQ(*BetaB(k2017, UniformUpper, 0, 1, 0.85), 0.82 * 0.95);
  EXPECT_DOUBLE_EQ(*BetaB(k2017, PointUpper, 0, 0.5, 0.85), 0.82 * 0.90);
  EXPECT_EQ(*BetaB(k2017, PointLower, 1, 1), 1.75);
  EXPECT_EQ(*BetaB(k2003, UniformLower, 2, 1), 1.40);
  EXPECT_DOUBLE_EQ(*BetaBEndMoments(k2017, -100, -100), 1);
  EXPECT_DOUBLE_EQ(*BetaBEndMoments(k2017, 100, 0), 1.75);
  EXPECT_DOUBLE_EQ(*BetaBEndMoments(k2017, 100, -100), 2.3);
  for (const CBeamLoad load : {PointUpper, PointLower, UniformUpper}) {  // the pieces meet
    for (const double at : {1.24, 1.96})
      EXPECT_NEAR(*BetaBCantilever(k2017, load, at), *BetaBCantilever(k2017, load, at + 1e-9),
                  0.011);
  }
}

TEST(Codes, PhiBOfTablesAndApproximations) {
  const auto table = *RolledIPhiB(k2017, Q345, CRolledILoad::PointUpper, 20, 7);
  EXPECT_DOUBLE_EQ(table.m_dElastic, 0.58 * 235 / 345);
  EXPECT_DOUBLE_EQ(ChannelPhiB(k2017, Q235, 200, 75, 11, 4000)->m_dElastic,
                   570.0 * 75 * 11 / (4000 * 200));
  EXPECT_DOUBLE_EQ(*UniformBendingPhiB(k2017, Q235, CUniformBendingShape::I, 100),
                   1.07 - 1e4 / 44000);
  EXPECT_EQ(*UniformBendingPhiB(k2017, Q235, CUniformBendingShape::I, 40), 1);
  EXPECT_NEAR(*UniformBendingPhiB(k2017, Q345, CUniformBendingShape::TPlates, 80),
              1 - 0.0022 * 80 * std::sqrt(345.0 / 235), 1e-12);
  EXPECT_NEAR(*UniformBendingPhiB(k2017, Q235, CUniformBendingShape::TAngles, 100), 0.83, 1e-12);
  EXPECT_NEAR(*UniformBendingPhiB(k2003, Q235, CUniformBendingShape::TFlangeTension, 100), 0.95,
              1e-12);
  EXPECT_NEAR(*UniformBendingPhiB(k2017, Q235, CUniformBendingShape::ISingly, 100,
                                  {1000, 100, 50000, 10, 0.7}),
              1.07 - 50000 / (1.5 * 1000 * 100) * 1e4 / 14000, 1e-12);
  EXPECT_FALSE(UniformBendingPhiB(k2017, Q345, CUniformBendingShape::I, 100));
  EXPECT_TRUE(IsStableBox(Q235, 600, 100, 9500));
  EXPECT_FALSE(IsStableBox(Q345, 600, 100, 9500));
}

TEST(Codes, WidthLimits) {
  using enum CWidthElement;
  const double epsilon = std::sqrt(235.0 / 345);
  const struct {
    CCodeEdition edition;
    CWidthElement element;
    double lambda, limit;
  } axial[] = {
      {k2017, WebI, 20, 40 * epsilon},       {k2017, WebI, 60, 55 * epsilon},
      {k2003, WebI, 150, 75 * epsilon},      {k2017, Flange, 60, 16 * epsilon},
      {k2017, AngleLeg, 60, 15 * epsilon},   {k2017, AngleLeg, 100, 5 * epsilon + 12.5},
      {k2003, AngleLeg, 100, 20 * epsilon},  {k2017, BoxWall, 60, 40 * epsilon},
      {k2017, WebTRolled, 60, 27 * epsilon}, {k2017, WebTWelded, 60, 23.2 * epsilon},
      {k2017, Tube, 60, 100 * 235 / 345.0},
  };
  for (const auto& c : axial)
    EXPECT_NEAR(*AxialWidthLimit(c.edition, c.element, Q345, c.lambda), c.limit, 1e-9)
        << static_cast<int>(c.element) << " " << c.lambda;
  const auto web2003 = [](double alpha0) {
    return *BeamColumnWidthLimit(k2003, WebI, Q235, {alpha0, 60});
  };
  EXPECT_NEAR(web2003(0), 55, 1e-9);  // that of axial compression
  EXPECT_NEAR(web2003(1.6), web2003(1.6 + 1e-9), 0.01);
  EXPECT_NEAR(*BeamColumnWidthLimit(k2003, BoxWall, Q235, {0, 60}), 44, 1e-9);
  EXPECT_NEAR(*BeamColumnWidthLimit(k2017, WebI, Q235, {1, 60}), 70, 1e-9);
  EXPECT_EQ(*BeamColumnWidthLimit(k2003, Flange, Q235, {1, 60, true}), 15);
  EXPECT_NEAR(*BeamFlangeLimit(k2017, Q345, false), 13 * epsilon, 1e-9);
  constexpr double kLimits[] = {150, 200, 350, 250, 400};
  for (int role = 0; role < 5; ++role)
    EXPECT_EQ(*SlendernessLimit(k2017, static_cast<CMemberRole>(role)), kLimits[role]) << role;
  EXPECT_NEAR(*StiffenerLimit(k2017, Q345), 80 * epsilon, 1e-9);
}

// Effective lengths: the same figures under both numbers.
TEST(Codes, EffectiveLengthsStandInBothEditions) {
  for (const bool bSway : {false, true})
    EXPECT_EQ(*FrameColumnMu(k2017, bSway, 0.3, 4), *FrameColumnMu(k2003, bSway, 0.3, 4));
  EXPECT_EQ(SourceText(FrameColumnMu(k2017, true, 1, 1).Source()).m_strEnglish,
            "GB 50017-2017, Appendix E, Table E.0.2");
  EXPECT_EQ(*DoubleSteppedMu3(k2017, CSteppedTop::Sliding, 0.4, 0.6, 0.1, 0.3),
            *DoubleSteppedMu3(k2003, CSteppedTop::Sliding, 0.4, 0.6, 0.1, 0.3));
  EXPECT_TRUE(std::isinf(*FrameColumnMu(k2017, true, 0, 0.04)));
}

// Each refusal says in both languages what was wrong and what would be right.
TEST(Codes, RefusalsNameWhatIsWrongAndWhatWouldBeRight) {
  const auto text = [](const auto& answer) {
    EXPECT_FALSE(answer);
    const CText both = answer.Refusal().Text();
    EXPECT_FALSE(both.m_strChinese.empty());
    EXPECT_NE(both.m_strChinese, both.m_strEnglish);
    return both.m_strEnglish;
  };
  const struct {
    std::string said;
    std::vector<std::string> names;
  } cases[] = {
      {text(EditionByYear("2010")), {"2010", "2003, 2017"}},
      {text(GradeByName(k2003, "Q460")), {"GB 50017-2003", "Q460", "Q420"}},
      {text(GradeByName(k2017, "Q500")), {"Q500", "Q345GJ"}},
      {text(SteelStrengths(k2017, Q345, 101)), {"101", "100 mm"}},
      {text(SteelStrengths(k2017, Q345GJ, 16)), {"above 16"}},
      {text(SteelStrengths(k2017, Q345GJ, 20, CSteelProduct::Tube)), {"Q345GJ tubes", "Q460"}},
      {text(SteelStrength(k2003, Q345, 20, CSteelStrength::Fu)), {"fu", "f, fv, fce"}},
      {text(FilletWeldStrength(k2017, Q235, CElectrode::E50)), {"E50", "Q235", "E43"}},
      {text(BoltStrengths(k2017, CBoltKind::OrdinaryC, CBoltGrade::G88)), {"8.8", "4.6, 4.8"}},
      {text(AnchorStrength(k2003, Q390)), {"Q390 anchor bolts", "Q235, Q345"}},
      {text(SlipFactor(k2017, 2, Q420)), {"\"-\"", "Q420", "0 or 1"}},
      {text(SlipFactor(k2017, 3, Q235)), {"3", "shot-blasted"}},
      {text(SlipFactor(k2017, 0, Q345GJ)), {"Table 11.4.2-1", "Q345GJ", "Q460"}},
      {text(HoleFactor(k2003, CHoleKind::Oversize)), {"oversize", "standard"}},
      {text(Preload(k2017, CBoltGrade::G88, 18)), {"18", "16, 20"}},
      {text(HoleSize(k2017, CHoleKind::Standard, 18)), {"18", "12, 16"}},
      {text(ClassLimits(k2003, CClassElement::Tube, Q235)), {"section classes", "2017"}},
      {text(FatigueCategory(k2017, "3")), {"Z1 to Z14"}},
  };
  for (const auto& c : cases) {
    for (const std::string& name : c.names)
      EXPECT_NE(c.said.find(name), std::string::npos) << c.said << " lacks " << name;
  }
}

}  // namespace
