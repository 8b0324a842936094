// A group of straight fillet welds as a file, a table or a form gives it.
#pragma once

#include <string>
#include <vector>

#include "codes/edition.h"
#include "connections/detail.h"
#include "connections/weld_group/weld_group.h"
#include "framework/export.h"
#include "reports/case_answer.h"

namespace orv3 {

// mm, kN, kN mm.
struct CWeldGroupCase : CWeldGroupLoads {
  std::string m_strId = {};
  std::vector<double> m_arrWeld = {};  // x1, y1, x2, y2, hf of each weld in turn
  int m_nSteel = 0;                    // as CSteelGrade
  int m_nElectrode = -1;               // as CElectrode; the lowest of the steel unless said
  int m_nJoint = -1;                   // 0 lap
  double m_dBetaF = 1;                 // or 1.22 under static loads
};

// Stresses of the most stressed point; mm, mm2, mm4, kN mm, N/mm2.
struct CWeldGroupResults {
  double m_dA = 0;
  double m_dXc = 0;
  double m_dYc = 0;
  double m_dIx = 0;
  double m_dIy = 0;
  double m_dIxy = 0;
  double m_dJ = 0;
  double m_dMx = 0;  // at the centroid
  double m_dMy = 0;
  double m_dTorque = 0;
  int m_nWeld = 0;  // from 1
  double m_dX = 0;
  double m_dY = 0;
  double m_dTau = 0;     // along the weld
  double m_dAcross = 0;  // in the plane across it
  double m_dOut = 0;     // out of the plane
  double m_dCombined = 0;
  double m_dFfw = 0;
  double m_dAlphaF = 1;  // of the weld of that point
  bool m_bCombined = false;
  bool m_bSize = false;
};

class ORV3CAL_API CWeldGroupCheck : public CCaseAnswer {
 public:
  using CCase = CWeldGroupCase;
  using CResults = CWeldGroupResults;
  static std::span<const CInputKey<CWeldGroupCase>> InputKeys();
  static std::span<const CResultKey<CWeldGroupResults>> ResultKeys();
  static int Kind(const CWeldGroupCase&) noexcept { return 0; }

  explicit CWeldGroupCheck(CCodeEdition edition) noexcept : m_nEdition(edition) {}
  bool Run(const CWeldGroupCase& input);

  CCodeEdition Edition() const noexcept { return m_nEdition; }
  const CWeldGroupResults& Results() const noexcept { return m_results; }
  // Length of the run of welds end to end that holds the most stressed point, mm.
  double WorstRun() const noexcept { return m_arrRun[static_cast<std::size_t>(m_worst.m_nWeld)]; }
  const std::vector<CWeldLine>& Welds() const noexcept { return m_arrWeld; }
  const CWeldPoint& WorstPoint() const noexcept { return m_worst; }
  const CTensionPlane& Tension() const noexcept { return m_tension; }
  const CCentroidLoads& Loads() const noexcept { return m_loads; }
  const std::vector<CDetail>& Details() const noexcept { return m_arrDetail; }

 private:
  bool IsRefused(const CWeldGroupCase& input);
  double Reduction(const CWeldGroupCase& input, std::size_t weld) const noexcept;
  void FindWorst(const CWeldGroupCase& input);
  void FindDetails();
  std::vector<CCaseWarning> Notes(const CWeldGroupCase& input) const;

  CCodeEdition m_nEdition;
  std::vector<CWeldLine> m_arrWeld;
  std::vector<double> m_arrRun;  // length of the run that each weld is part of, mm
  CWeldGroupSums m_sums;
  CCentroidLoads m_loads{};
  CTensionPlane m_tension;
  CWeldPoint m_worst;
  CWeldGroupResults m_results;
  std::vector<CDetail> m_arrDetail;
};

struct CWeldGroupCheck2003 : CWeldGroupCheck {
  CWeldGroupCheck2003() : CWeldGroupCheck(CCodeEdition::Gb2003) {}
};
struct CWeldGroupCheck2017 : CWeldGroupCheck {
  CWeldGroupCheck2017() : CWeldGroupCheck(CCodeEdition::Gb2017) {}
};

}  // namespace orv3
