// The figures that a weld is judged by: GB 50017-2003, 7.1.2 to 7.1.5.
#pragma once

namespace orv3 {

struct CFilletCase;
struct CFilletResults;
struct CButtCase;
struct CButtResults;

// Stresses and limits in N/mm2, stresses at least 0 but for m_dSigma. M pulls one edge of the weld
// and presses the other, so both edges are looked at whatever the signs of N and M.
struct CWeldFigures {
  double m_dSigma = 0;        // N/A + M/W with their signs
  double m_dTension = 0;      // at the edge that is pulled most; 0 when none is
  double m_dCompression = 0;  // at the edge that is pressed most
  double m_dTensionLimit = 0;
  double m_dCompressionLimit = 0;
  bool m_bShear = false;      // V is judged
  double m_dShearLength = 0;  // weld length that carries V, mm
  double m_dTau = 0;
  double m_dTauLimit = 0;
  double m_dCombined = 0;  // of the edge that gives most
  double m_dCombinedLimit = 0;
  double m_dFusion = 1;       // fillet weld: share of the strength that shear has
  double m_dBetaTension = 1;  // fillet weld: beta-f of either edge
  double m_dBetaCompression = 1;
  bool TensionGoverns() const noexcept {
    return m_dTension * m_dCompressionLimit >= m_dCompression * m_dTensionLimit;
  }
  double Across() const noexcept { return TensionGoverns() ? m_dTension : m_dCompression; }
  double AcrossLimit() const noexcept {
    return TensionGoverns() ? m_dTensionLimit : m_dCompressionLimit;
  }
};

// What a fillet weld, or one of equal welds, is judged by.
struct CFilletStrength {
  double m_dHe;           // throat, mm
  double m_dW;            // section modulus, mm3
  double m_dFfw;          // N/mm2
  double m_dShearLength;  // weld length that carries V, mm
};
CWeldFigures FilletFigures(const CFilletCase& input, const CFilletStrength& strength);

CWeldFigures JudgedFigures(const CFilletCase& input, const CFilletResults& results);
CWeldFigures JudgedFigures(const CButtCase& input, const CButtResults& results);

}  // namespace orv3
