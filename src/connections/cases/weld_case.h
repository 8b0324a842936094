// One fillet weld and one butt weld as a file, a table or a form gives it.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "connections/butt_weld.h"
#include "connections/detail.h"
#include "connections/fillet_weld.h"
#include "connections/verdict/weld_verdict.h"
#include "reports/case_answer.h"

namespace orv3 {

// Lengths in mm, forces in kN, moments in kN mm. Exactly one of he, hf and s is above 0: the throat
// itself, the leg of a fillet weld, or the depth of a partial-penetration groove weld.
struct CFilletCase {
  std::string m_strId = {};
  int m_nLoadCase = 0;  // 0 to 5, as in AngleHanFData
  int m_nSteel = 0;     // 0 Q235, 1 Q345, 2 Q390, 3 Q420
  double m_dLw = 0;
  double m_dN = 0;
  double m_dM = 0;
  double m_dV = 0;
  double m_dBetaF = 0;
  double m_dHe = 0;
  double m_dHf = 0;
  double m_dS = 0;
  double m_dAngle = 0;  // degrees: between the faces (hf), of the groove (s)
  int m_nGroove = 0;    // with s: 0 to 4, as in CalHFLw
  int m_nWelds = 1;     // equal welds that share the loads; lengths are of one of them
};

// Lengths in mm, W in mm3, strengths and stresses in N/mm2; of one of equal welds.
struct CFilletResults {
  double m_dHe = 0;
  double m_dW = 0;
  double m_dFfw = 0;
  double m_dSigma = 0;
  double m_dTau = 0;
  double m_dCombined = 0;
  bool m_bSigma = false;
  bool m_bTau = false;
  bool m_bCombined = false;
};

struct CButtCase {
  std::string m_strId = {};
  int m_nLoadCase = 0;  // 0 to 5, as in WQWeldingData
  int m_nSteel = 0;
  int m_nQuality = 0;  // quality grade 1, 2 or 3
  double m_dLw = 0;
  double m_dThick = 0;
  double m_dN = 0;
  double m_dM = 0;
  double m_dV = 0;
};

struct CButtResults {
  double m_dFtw = 0;
  double m_dFcw = 0;
  double m_dFvw = 0;
  double m_dW = 0;
  double m_dSigma = 0;
  double m_dTau = 0;
  double m_dReduced = 0;
  bool m_bSigma = false;
  bool m_bTau = false;
  bool m_bReduced = false;
};

// What both weld checks hand out. The kind of a weld check is its load case; the results are what
// the record computed, the verdict is by the judged figures.
template <class CASE, class RESULTS>
class CWeldCheck : public CCaseAnswer {
 public:
  using CCase = CASE;
  using CResults = RESULTS;
  static int Kind(const CASE& input) noexcept { return input.m_nLoadCase; }

  const RESULTS& Results() const noexcept { return m_results; }
  const CWeldFigures& Figures() const noexcept { return m_figures; }

 protected:
  RESULTS m_results;
  CWeldFigures m_figures;
};

class ORV3CAL_API CFilletCheck : public CWeldCheck<CFilletCase, CFilletResults> {
 public:
  static std::span<const CInputKey<CFilletCase>> InputKeys();
  static std::span<const CResultKey<CFilletResults>> ResultKeys();
  bool Run(const CFilletCase& input);
  // The least length (8.2.7); none of groove welds.
  const std::vector<CDetail>& Details() const noexcept { return m_arrDetail; }

 private:
  std::vector<CDetail> m_arrDetail;
};

class ORV3CAL_API CButtCheck : public CWeldCheck<CButtCase, CButtResults> {
 public:
  static std::span<const CInputKey<CButtCase>> InputKeys();
  static std::span<const CResultKey<CButtResults>> ResultKeys();
  bool Run(const CButtCase& input);
};

// By either edition; the steel is by its own.
ORV3CAL_API std::vector<CCaseFault> FilletFaults(const CFilletCase& input);
ORV3CAL_API std::vector<CCaseFault> ButtFaults(const CButtCase& input);

extern const CTextLiteral kGrooveNames[5];

}  // namespace orv3
