// One fillet weld and one butt weld by GB 50017-2017.
#pragma once

#include "connections/cases/weld_case.h"
#include "connections/detail.h"

namespace orv3 {

// As CFilletCase, but for m_nSteel: 0 Q235, 1 Q345, 2 Q355, 3 Q390, 4 Q420, 5 Q460, 6 Q345GJ.
struct CFilletCase2017 : CFilletCase {
  int m_nElectrode = -1;  // 0 E43, 1 E50, 2 E55, 3 E60; the lowest of the steel unless said
  int m_nJoint = -1;      // 0 lap
  double m_dT1 = 0;       // thicknesses of the joined parts, both or none; t1 has the edge that a
  double m_dT2 = 0;       // lap weld runs along
};

// The results are the figures that the verdict is made by, but for sigma: that is N/A + M/W, and
// Figures() have the edge that decides.
struct CFilletResults2017 : CFilletResults {
  double m_dAlphaF = 1;  // of a lap weld over 60 hf
  bool m_bSize = false;
};

class ORV3CAL_API CFilletCheck2017 : public CWeldCheck<CFilletCase2017, CFilletResults2017> {
 public:
  static std::span<const CInputKey<CFilletCase2017>> InputKeys();
  static std::span<const CResultKey<CFilletResults2017>> ResultKeys();
  bool Run(const CFilletCase2017& input);
  // Leg and length by 11.3.5 and 11.3.6.
  const std::vector<CDetail>& Details() const noexcept { return m_arrDetail; }

 private:
  bool IsRefused(const CFilletCase2017& input);
  void JudgeParts();
  std::vector<CCaseWarning> Notes(const CFilletCase2017& input) const;

  std::vector<CDetail> m_arrDetail;
};

// Steels as in CFilletCase2017.
struct CButtCase2017 : CButtCase {};

class ORV3CAL_API CButtCheck2017 : public CWeldCheck<CButtCase2017, CButtResults> {
 public:
  static std::span<const CInputKey<CButtCase2017>> InputKeys();
  static std::span<const CResultKey<CButtResults>> ResultKeys() { return CButtCheck::ResultKeys(); }
  bool Run(const CButtCase2017& input);

 private:
  bool IsRefused(const CButtCase2017& input);
};

}  // namespace orv3
