// WQWeldingData: the check of a full-penetration butt weld by GB 50017-2003, 7.1.2.
#pragma once

#include "framework/export.h"

// Lengths in mm, forces in kN, moments in kN mm, strengths and stresses in kN/mm2. Every field is 0
// until it is assigned. Comparisons have no tolerance.
//
// Load cases as in AngleHanFData; the shear stress is that of a rectangle, 1.5 V / (t lw).
class ORV3CAL_API WQWeldingData {
 public:
  WQWeldingData() = default;
  // The constructor that hosts call; it stores no argument.
  WQWeldingData(int, double, double, double, double, double, int, int);
  WQWeldingData(const WQWeldingData&) = default;
  WQWeldingData& operator=(const WQWeldingData&) = default;
  virtual ~WQWeldingData() = default;

  // ftw, fcw and fvw, Table 3.4.1-3. Another steel keeps the old strengths, which are scaled again.
  void CalWeldQD();
  void CalWeldSectionW();  // load case 0 keeps W
  void CalStress();        // runs CalWeldQD and CalWeldSectionW
  // The stresses, then the verdicts: 1 pass, 0 fail. Load cases 0 to 2 pass the shear and the
  // reduced check whatever V is. A reduced stress equal to 1.1 ftw fails.
  int JugeStress(int& okSigma, int& okTau, int& okReduced);

  int m_nLoadCase = 0;
  double m_dLw = 0;    // effective length
  double m_dT = 0;     // plate thickness
  double m_dN = 0;     // axial force
  double m_dM = 0;     // moment
  double m_dV = 0;     // shear
  int m_nQuality = 0;  // 0 or 1: quality grade one or two; any other value: grade three
  int m_nSteel = 0;    // 0 Q235, 1 Q345, 2 Q390, 3 Q420
  double m_dFtw = 0;
  double m_dFcw = 0;
  double m_dFvw = 0;
  double m_dW = 0;  // section modulus
  double m_dSigma = 0;
  double m_dTau = 0;
  double m_dReduced = 0;  // sqrt(sigma^2 + 3 tau^2)
  int m_nSpare1 = 0;
  int m_nSpare2 = 0;
  int m_nSpare3 = 0;
};
