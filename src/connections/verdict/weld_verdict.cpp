#include "connections/verdict/weld_verdict.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/cases/weld_case.h"
#include "connections/check_math.h"
#include "framework/elementary.h"

namespace orv3 {
namespace {

// Both edges of a weld of `area` mm2 and `modulus` mm3, one of `welds` that share the loads.
template <class CASE>
CWeldFigures Edges(const CASE& input, double area, double modulus, int welds = 1) {
  const double direct = TakesN(input.m_nLoadCase) ? 1000 * (input.m_dN / welds) / area : 0;
  const double turned = TakesM(input.m_nLoadCase) ? 1000 * (input.m_dM / welds) / modulus : 0;
  const double bending = std::fabs(turned);
  CWeldFigures figures;
  figures.m_dSigma = direct + turned;
  figures.m_dTension = std::max(0.0, direct + bending);
  figures.m_dCompression = std::max(0.0, bending - direct);
  figures.m_bShear = TakesV(input.m_nLoadCase);
  figures.m_dShearLength = input.m_dLw;
  return figures;
}

// The factors that the code allows (7.1.3 to 7.1.5), at most the one given: 1.22 across a fillet
// weld at a right angle, 1.0 between inclined faces; 1.22 in a partial-penetration groove weld
// under compression only.
void Beta(const CFilletCase& input, CWeldFigures& figures) {
  constexpr double kMost = 1.22;
  const bool bInclined = input.m_dHf != 0 && !IsRightAngle(input.m_dAngle);
  figures.m_dBetaTension = std::min(input.m_dBetaF, bInclined || input.m_dS != 0 ? 1.0 : kMost);
  figures.m_dBetaCompression = std::min(input.m_dBetaF, bInclined ? 1.0 : kMost);
}

}  // namespace

CWeldFigures FilletFigures(const CFilletCase& input, const CFilletStrength& strength) {
  CWeldFigures figures = Edges(input, strength.m_dHe * input.m_dLw, strength.m_dW, input.m_nWelds);
  Beta(input, figures);
  figures.m_dTensionLimit = figures.m_dBetaTension * strength.m_dFfw;
  figures.m_dCompressionLimit = figures.m_dBetaCompression * strength.m_dFfw;
  if (!figures.m_bShear) return figures;
  // Where the line of fusion of a groove weld is about as short as its depth (bevel, K and J), the
  // shear strength is 0.9 of the table's (7.1.5; 2017: 11.2.4): of shear alone, so that without V
  // nothing is left of it.
  figures.m_dShearLength = strength.m_dShearLength;
  figures.m_dFusion = input.m_dS != 0 && IsShortFusion(input.m_nGroove) ? 0.9 : 1;
  figures.m_dTauLimit = figures.m_dFusion * strength.m_dFfw;
  figures.m_dCombinedLimit = strength.m_dFfw;
  figures.m_dTau =
      1000 * std::fabs(input.m_dV / input.m_nWelds) / (strength.m_dHe * figures.m_dShearLength);
  const double across = std::max(figures.m_dTension / figures.m_dBetaTension,
                                 figures.m_dCompression / figures.m_dBetaCompression);
  figures.m_dCombined = Hypot(across, figures.m_dTau / figures.m_dFusion);
  return figures;
}

CWeldFigures JudgedFigures(const CFilletCase& input, const CFilletResults& results) {
  // A side fillet weld counts to 60 hf (8.2.7).
  const double length = input.m_dHf != 0 ? std::min(input.m_dLw, 60 * input.m_dHf) : input.m_dLw;
  return FilletFigures(input, {results.m_dHe, results.m_dW, results.m_dFfw, length});
}

// Tension is held against ftw and compression against fcw, each at its own edge. The reduced stress
// has one limit, 1.1 ftw, whether its edge is pulled or pressed, and is asked for where normal and
// shear stress act together.
CWeldFigures JudgedFigures(const CButtCase& input, const CButtResults& results) {
  CWeldFigures figures = Edges(input, input.m_dThick * input.m_dLw, results.m_dW);
  figures.m_dTensionLimit = results.m_dFtw;
  figures.m_dCompressionLimit = results.m_dFcw;
  if (!figures.m_bShear) return figures;
  figures.m_bShear = !IsZero(input.m_dV);
  figures.m_dTau = 1.5 * 1000 * std::fabs(input.m_dV) / (input.m_dThick * input.m_dLw);
  figures.m_dTauLimit = results.m_dFvw;
  const double across = std::max(figures.m_dTension, figures.m_dCompression);
  figures.m_dCombined = std::sqrt(across * across + 3 * figures.m_dTau * figures.m_dTau);
  figures.m_dCombinedLimit = 1.1 * results.m_dFtw;
  return figures;
}

}  // namespace orv3
