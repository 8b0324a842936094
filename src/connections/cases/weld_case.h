// One fillet weld and one butt weld as a file, a table or a form gives it.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "connections/butt_weld.h"
#include "connections/cases/case_keys.h"
#include "connections/fillet_weld.h"
#include "framework/export.h"

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
};

// Lengths in mm, W in mm3, strengths and stresses in N/mm2.
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

// What both weld checks hand out; the members mean what they mean in CBoltCheck. The kind of a weld
// check is its load case.
template <class CASE, class RESULTS>
class CWeldCheck {
 public:
  using CCase = CASE;
  using CResults = RESULTS;
  static int Kind(const CASE& input) noexcept { return input.m_nLoadCase; }

  const std::vector<CCaseFault>& Faults() const noexcept { return m_arrFault; }
  const std::vector<CCaseWarning>& Warnings() const noexcept { return m_arrWarning; }
  const std::vector<CCasePart>& Parts() const noexcept { return m_arrPart; }
  const RESULTS& Results() const noexcept { return m_results; }
  bool Pass() const noexcept { return m_bPass; }
  const CCasePart& Worst() const { return WorstPart(m_arrPart); }

 protected:
  bool Refused(std::vector<CCaseFault> faults) {
    m_arrWarning.clear();
    m_arrPart.clear();
    m_bPass = false;
    m_arrFault = std::move(faults);
    return !m_arrFault.empty();
  }

  RESULTS m_results;
  std::vector<CCaseFault> m_arrFault;
  std::vector<CCaseWarning> m_arrWarning;
  std::vector<CCasePart> m_arrPart;
  bool m_bPass = false;
};

class ORV3CAL_API CFilletCheck : public CWeldCheck<CFilletCase, CFilletResults> {
 public:
  static std::span<const CInputKey<CFilletCase>> InputKeys();
  static std::span<const CResultKey<CFilletResults>> ResultKeys();
  bool Run(const CFilletCase& input);
};

class ORV3CAL_API CButtCheck : public CWeldCheck<CButtCase, CButtResults> {
 public:
  static std::span<const CInputKey<CButtCase>> InputKeys();
  static std::span<const CResultKey<CButtResults>> ResultKeys();
  bool Run(const CButtCase& input);
};

ORV3CAL_API std::vector<CCaseFault> FilletFaults(const CFilletCase& input);
ORV3CAL_API std::vector<CCaseFault> ButtFaults(const CButtCase& input);

extern const CTextLiteral kGrooveNames[5];

}  // namespace orv3
