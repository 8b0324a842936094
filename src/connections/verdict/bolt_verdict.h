// The figures that a bolt group is judged by: those of its record, and where the record can err on
// the unsafe side, or deducts what the code does not ask, the figures by GB 50017-2003.
#pragma once

#include "connections/bolt_group.h"
#include "connections/verdict/plate_section.h"

namespace orv3 {

// What the group turns about under M, and how N adds to the tension.
enum class CTurn {
  FirstRow,       // N / n + M l / sum l^2 with l from the first row, as in the record
  Centroid,       // N / n + M l / sum l^2 with l from the centroid
  FirstRowWithN,  // (M + N yc) l / sum l^2 with l from the first row, which N lifts off as well
};

// Forces in kN; all of them at least 0.
struct CBoltFigures {
  double m_dNvx = 0;  // shares of the shears
  double m_dNvy = 0;
  double m_dNTx = 0;  // the torque's force on the farthest bolt, in the sense that adds to them
  double m_dNTy = 0;
  double m_dNv = 0;
  CTurn m_nTurn = CTurn::FirstRow;
  double m_dArm = 0;      // l of the bolt that is pulled hardest, mm
  double m_dSumArm2 = 0;  // sum of l^2 over the bolts, mm2
  double m_dNtFirst = 0;  // tension in the first row, less than 0 where it is pressed on
  double m_dNtPerMm = 0;  // and how it grows with y
  double m_dNt = 0;
  double m_dRatio = 0;
  bool m_bThreads = false;  // in the shear planes
  double m_dShear = 0;      // resistance Nvb
  double m_dBearing = 0;    // resistance; 0 with friction-type bolts
  CPlateSection m_x;        // for Vx
  CPlateSection m_y;        // for Vy
};

// Of a record that BoltYanSuan has computed. `bThreads` in the shear planes, not with the friction
// type: the record's shear resistance is that of the shank, the judged one that of the effective
// area.
CBoltFigures JudgedFigures(const NormalBoltData& record, bool bThreads);

}  // namespace orv3
