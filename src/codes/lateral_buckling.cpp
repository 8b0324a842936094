#include "codes/lateral_buckling.h"

#include <algorithm>
#include <cmath>

#include "catalogue/code_tables/table_search.h"
#include "codes/grade_notes.h"
#include "codes/refusals.h"

namespace orv3 {
namespace {

constexpr CTextLiteral Place(CCodeEdition edition, CTextLiteral of2017, CTextLiteral of2003) {
  return edition == CCodeEdition::Gb2003 ? of2003 : of2017;
}

constexpr CTextLiteral TableB(CCodeEdition edition) {
  return Place(edition, {"C.0.1 表 C.0.1", "C.0.1, Table C.0.1"}, {"表 B.1", "Table B.1"});
}

double EpsilonSquared(CSteelGrade grade) noexcept { return 235 / NominalYield(grade); }

// Without support in the span, by xi: items 1 to 4 of the table.
struct CBetaLine {
  double m_dConstant, m_dSlope, m_dBeyond2;
};
constexpr CBetaLine kUnsupported[] = {
    // in the order of CBeamLoad
    {0.73, 0.18, 1.09},
    {2.23, -0.28, 1.67},
    {0.69, 0.13, 0.95},
    {1.73, -0.20, 1.33},
};

// What the note of the table takes off items 1 and 3 when I1 is above four times I2.
double HeavyFlangeFactor(CBeamLoad load, double xi, double alphaB) noexcept {
  if (alphaB <= 0.8) return 1;
  if (load == CBeamLoad::UniformUpper) return xi <= 1 ? 0.95 : 1;
  if (load == CBeamLoad::PointUpper) return xi <= 0.5 ? 0.90 : xi <= 1 ? 0.95 : 1;
  return 1;
}

double Unsupported(CBeamLoad load, double xi, double alphaB) noexcept {
  const CBetaLine& line = kUnsupported[static_cast<std::size_t>(load)];
  const double beta = xi <= 2 ? line.m_dConstant + line.m_dSlope * xi : line.m_dBeyond2;
  return beta * HeavyFlangeFactor(load, xi, alphaB);
}

bool IsUpper(CBeamLoad load) noexcept {
  return load == CBeamLoad::PointUpper || load == CBeamLoad::UniformUpper;
}

CCodeRefusal NotAboveZero(const char* argument, double value) {
  return NotPossible(argument, value, {"请给出大于 0 的数", "give a number above 0"});
}

bool IsMeasure(double value) noexcept { return value > 0 && std::isfinite(value); }

constexpr CTextLiteral kHeavyTension = {
    "存疑：表中第 1 至 4 项不含加强受拉翼缘的截面",
    "doubtful: items 1 to 4 of the table leave out sections with the heavier flange in tension"};
constexpr CTextLiteral kCantilever = {
    "存疑：系数未与印本核对，各段在分界处相接",
    "doubtful: the coefficients are not held against a print; the pieces meet at their ends"};

}  // namespace

CCodeAnswer<double> BetaB(CCodeEdition edition, CBeamLoad load, int supports, double xi,
                          double alphaB) {
  if (!IsMeasure(xi)) return NotAboveZero("xi", xi);
  if (!(alphaB > 0 && alphaB < 1))
    return NotPossible("alphab", alphaB,
                       {"请给出大于 0 且小于 1 的数", "give a number above 0 and below 1"});
  const CCodeSource source = {edition, TableB(edition)};
  switch (supports) {
    case 0: {
      const double beta = Unsupported(load, xi, alphaB);
      if (alphaB >= 0.5) return {beta, source};
      return {beta, {edition, source.m_place, CFigureStatus::Doubtful, &kHeavyTension}};
    }
    case 1:
      if (load == CBeamLoad::PointUpper || load == CBeamLoad::PointLower) return {1.75, source};
      return {IsUpper(load) ? 1.15 : 1.40, source};
    case 2:
      return {IsUpper(load) ? 1.20 : 1.40, source};
    default:
      return NotPossible("supports", supports, FromTo(0, 2));
  }
}

CCodeAnswer<double> BetaBEndMoments(CCodeEdition edition, double m1, double m2) {
  if (m1 == 0 || !std::isfinite(m1))
    return NotPossible("m1", m1, {"请给出不为 0 的弯矩", "give a moment other than 0"});
  const double ratio = m2 / m1;
  if (!(std::fabs(ratio) <= 1))
    return NotPossible("m2", m2,
                       {"请给出绝对值不大于 M1 的弯矩", "give no more than M1 in magnitude"});
  return {std::min(2.3, 1.75 - 1.05 * ratio + 0.3 * ratio * ratio), {edition, TableB(edition)}};
}

CCodeAnswer<double> BetaBCantilever(CCodeEdition edition, CBeamLoad load, double xi) {
  struct CPiece {
    double m_dConstant, m_dSlope;
  };
  static constexpr CPiece kPieces[3][3] = {
      // xi 0.60 to 1.24, to 1.96, to 3.10
      {{0.21, 0.67}, {0.72, 0.26}, {1.17, 0.03}},     // load at the end, upper flange
      {{2.94, -0.65}, {2.64, -0.40}, {2.15, -0.15}},  // lower flange
      {{0.62, 0.82}, {1.25, 0.31}, {1.66, 0.10}},     // uniform, upper flange
  };
  if (load == CBeamLoad::UniformLower)
    return NotInEdition("load", edition,
                        {"下翼缘均布荷载的悬臂梁", "uniform load on a cantilever's lower flange"},
                        {"请给出上翼缘均布荷载", "give the load on the upper flange"});
  if (!(xi >= 0.6 && xi <= 3.1)) return NotPossible("xi", xi, FromTo(0.6, 3.1));
  const CPiece& piece = kPieces[static_cast<std::size_t>(load)][xi <= 1.24   ? 0
                                                                : xi <= 1.96 ? 1
                                                                             : 2];
  return {
      piece.m_dConstant + piece.m_dSlope * xi,
      {edition, Place(edition, {"C.0.4 表 C.0.4", "C.0.4, Table C.0.4"}, {"表 B.4", "Table B.4"}),
       CFigureStatus::Doubtful, &kCantilever}};
}

CCodeAnswer<CPhiB> WeldedIPhiB(CCodeEdition edition, CSteelGrade grade, const CBeamSection& section,
                               double lambdaY, double betaB) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (!IsMeasure(lambdaY)) return NotAboveZero("lambday", lambdaY);
  const double slope = lambdaY * section.m_dT1 / (4.4 * section.m_dH);
  const double alpha = section.m_dAlphaB;
  const double eta = (alpha > 0.5 ? 0.8 : 1.0) * (2 * alpha - 1);
  const double elastic = betaB * 4320 / (lambdaY * lambdaY) * section.m_dA * section.m_dH /
                         section.m_dWx * (std::sqrt(1 + slope * slope) + eta) *
                         EpsilonSquared(grade);
  const CTextLiteral place =
      Place(edition, {"C.0.1 式 (C.0.1-1)", "C.0.1, (C.0.1-1)"}, {"式 (B.1-1)", "(B.1-1)"});
  return {ReducedPhiB(elastic), OfGrade(grade, {edition, place})};
}

CCodeAnswer<CPhiB> RolledIPhiB(CCodeEdition edition, CSteelGrade grade, CRolledILoad load,
                               double number, double lengthM) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (!(lengthM >= 2 && lengthM <= 10)) return NotPossible("length", lengthM, FromTo(2, 10, "m"));
  double phiB = 0;
  if (!CTableSearch::SearchSub11_1(static_cast<int>(load) + 1, number, lengthM, phiB))
    return NotPossible(
        "i-number", number,
        {"请给出表中的工字钢型号 10 至 63", "give an I number of the table, 10 to 63"});
  return {ReducedPhiB(phiB * EpsilonSquared(grade)),
          OfGrade(grade, {edition, Place(edition, {"C.0.2 表 C.0.2", "C.0.2, Table C.0.2"},
                                         {"表 B.2", "Table B.2"})})};
}

CCodeAnswer<CPhiB> ChannelPhiB(CCodeEdition edition, CSteelGrade grade, double h, double b,
                               double t, double l1) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  if (!IsMeasure(l1)) return NotAboveZero("l1", l1);
  if (!IsMeasure(h)) return NotAboveZero("h", h);
  const CTextLiteral place =
      Place(edition, {"C.0.3 式 (C.0.3)", "C.0.3, (C.0.3)"}, {"式 (B.3)", "(B.3)"});
  return {ReducedPhiB(570 * b * t / (l1 * h) * EpsilonSquared(grade)),
          OfGrade(grade, {edition, place})};
}

CCodeAnswer<double> UniformBendingPhiB(CCodeEdition edition, CSteelGrade grade,
                                       CUniformBendingShape shape, double lambdaY,
                                       const CBeamSection& section) {
  if (!HasGrade(edition, grade)) return NotInEdition(edition, grade, GradesOf(edition));
  const double epsilon = EpsilonK(grade);
  if (!(lambdaY >= 0 && lambdaY <= 120 * epsilon))
    return NotPossible("lambday", lambdaY, FromTo(0, 120 * epsilon));
  const double square = lambdaY * lambdaY / EpsilonSquared(grade);
  double phiB = 1;
  switch (shape) {
    case CUniformBendingShape::I:
      phiB = 1.07 - square / 44000;
      break;
    case CUniformBendingShape::ISingly:
      phiB = 1.07 - section.m_dWx / ((2 * section.m_dAlphaB + 0.1) * section.m_dA * section.m_dH) *
                        square / 14000;
      break;
    case CUniformBendingShape::TAngles:
      phiB = 1 - 0.0017 * lambdaY / epsilon;
      break;
    case CUniformBendingShape::TPlates:
      phiB = 1 - 0.0022 * lambdaY / epsilon;
      break;
    case CUniformBendingShape::TFlangeTension:
      phiB = 1 - 0.0005 * lambdaY / epsilon;
      break;
  }
  return {std::min(1.0, phiB),
          OfGrade(grade, {edition, Place(edition, {"C.0.5", "C.0.5"}, {"B.5", "B.5"})})};
}

bool IsStableBox(CSteelGrade grade, double h, double b0, double l1) noexcept {
  return h / b0 <= 6 && l1 / b0 <= 95 * EpsilonSquared(grade);
}

}  // namespace orv3
