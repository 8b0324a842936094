// The section of a plate that is weakest through the holes of a bolt group: GB 50017-2003, 5.1.1;
// GB 50017-2017, 7.1.1.
#pragma once

#include <span>
#include <vector>

namespace orv3 {

// The holes of a group in its plate; mm.
struct CPlateHoles {
  bool m_bStaggered = false;
  int m_nBolts = 0;
  std::span<const double> m_arrCol = {};  // from column to column
  std::span<const double> m_arrRow = {};  // from row to row
  double m_dEx = 0;                       // edge distances
  double m_dEy = 0;
  double m_dThick = 0;
  bool m_bFriction = false;  // half of a bolt's share is passed on in front of its hole
};

// A hole in the plate, mm from the first bolt.
struct CHole {
  double m_x;
  double m_y;
};

// The section of the plate that resists one of the shears.
struct CPlateSection {
  double m_dGross = 0;           // mm2
  double m_dLength = 0;          // of the cut from edge to edge, mm
  double m_dNet = 0;             // mm2
  double m_dShare = 1;           // of the shear in the net section: 1 - 0.5 n1 / n, friction type
  double m_dSigma = 0;           // in the net section, N/mm2
  double m_dSigmaGross = 0;      // N/mm2
  std::vector<CHole> m_arrHole;  // along the cut; empty without shear
  double Worst() const noexcept { return m_dSigma > m_dSigmaGross ? m_dSigma : m_dSigmaGross; }
  int Holes() const noexcept { return static_cast<int>(m_arrHole.size()); }
};

// Against a shear along x (y) in kN, by its size: of all chains of holes from edge to edge the one
// with the greatest net stress. A hole takes `hole` mm out of the chain.
CPlateSection WorstSectionX(const CPlateHoles& holes, double shear, double hole);
CPlateSection WorstSectionY(const CPlateHoles& holes, double shear, double hole);

}  // namespace orv3
