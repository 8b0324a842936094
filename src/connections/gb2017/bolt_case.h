// One bolt group by GB 50017-2017.
#pragma once

#include "connections/cases/bolt_case.h"
#include "connections/detail.h"
#include "connections/gb2017/bolt_joint.h"
#include "reports/fault_list.h"

namespace orv3 {

// As CBoltCase, but for: m_nSteel 0 Q235, 1 Q345, 2 Q355, 3 Q390, 4 Q420, 5 Q460, 6 Q345GJ;
// m_nSurface 0 to 2, the rows of Table 11.4.2-1; M of either sign.
struct CBoltCase2017 : CBoltCase {
  static constexpr int kNotSaid = -1;
  // High-strength bolts: 0 standard (unless said), 1 oversize, 2 slots across, 3 along the force.
  int m_nHole = kNotSaid;
  int m_nEdges = kNotSaid;  // 0 sheared or cut by hand (unless said), 1 rolled or machine-cut
};

// The results are the figures that the verdict is made by.
struct CBoltResults2017 : CBoltResults {
  double m_dFu = 0;          // plate
  double m_dHoleFactor = 0;  // k
  double m_dHoleOut = 0;     // what a hole takes out of the section, mm
  bool m_bSpacing = false;
};

// What the steps of a report need besides the results.
struct CBoltTrace2017 {
  double m_dHoleX = 0;  // width that a hole takes out of a section across x, and across y
  double m_dHoleY = 0;
  double m_dRoomX = 0;  // what a hole measures there: its diameter, or width or length of the slot
  double m_dRoomY = 0;
  double HoleRoom(bool bX) const noexcept { return bX ? m_dRoomX : m_dRoomY; }
};

class ORV3CAL_API CBoltCheck2017 : public CCaseAnswer {
 public:
  using CCase = CBoltCase2017;
  using CResults = CBoltResults2017;
  static std::span<const CInputKey<CBoltCase2017>> InputKeys();
  static std::span<const CResultKey<CBoltResults2017>> ResultKeys();
  static int Kind(const CBoltCase2017& input) noexcept { return input.m_nType; }

  // Computes the case. False when it is refused: then Faults says why, by key.
  bool Run(const CBoltCase2017& input);

  const CBoltResults2017& Results() const noexcept { return m_results; }
  const CBoltFigures& Figures() const noexcept { return m_figures; }
  const CBoltShape& Shape() const noexcept { return m_shape; }
  const CBoltTrace2017& Trace() const noexcept { return m_trace; }
  // Spacings and edges of 11.5.2, as they stand behind the other parts of the verdict.
  const std::vector<CDetail>& Details() const noexcept { return m_arrDetail; }

 private:
  bool IsRefused(const CBoltCase2017& input);
  void LookUp(const CBoltCase2017& input, CFaultList& faults);
  void Compute(const CBoltCase2017& input);
  void JudgeParts(const CBoltCase2017& input);
  std::vector<CCaseWarning> Notes(const CBoltCase2017& input) const;

  std::vector<double> m_arrCol;  // spacings, each
  std::vector<double> m_arrRow;
  CBoltShape m_shape;
  CBoltResults2017 m_results;
  CBoltTrace2017 m_trace;
  CBoltFigures m_figures;
  std::vector<CDetail> m_arrDetail;
};

}  // namespace orv3
