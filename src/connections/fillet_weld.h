// AngleHanFData: the check of a fillet weld, or of a partial-penetration groove weld by its
// effective throat, by GB 50017-2003, 7.1.3 to 7.1.5.
#pragma once

#include "framework/export.h"

// Lengths in mm, forces in kN, moments in kN mm, strengths and stresses in kN/mm2. What no
// constructor sets is 0 at first. Comparisons with a limit have a tolerance of 1e-6.
//
// Load cases: 0 N; 1 and 2 N and M; 3 M and V; 4 and 5 N, M and V. N and M act across the weld, V
// along it. Another load case leaves the stresses as they were.
class ORV3CAL_API AngleHanFData {
 public:
  AngleHanFData(int weldKind, int loadCase, int material, double he, double lw, double N, double M,
                double V, double betaF);
  // Without the throat: CalHFLw sets it.
  AngleHanFData(int weldKind, int loadCase, int material, double lw, double N, double M, double V,
                double betaF);
  AngleHanFData(const AngleHanFData&) = default;
  AngleHanFData& operator=(const AngleHanFData&) = default;
  virtual ~AngleHanFData() = default;

  // Throat of a fillet weld of leg hf between faces at `angle` degrees: 0.7 hf at 90 degrees,
  // otherwise cos(angle / 2) hf.
  void CalHFLw(double hf, double angle);
  // Throat of a partial-penetration groove weld of depth s and groove angle in degrees: kind 0 s
  // from 60 degrees on, else 0.75 s; 1 and 2 s - 3 mm; 3 and 4 s. Another kind keeps the throat.
  void CalHFLw(double s, double angle, int grooveKind);
  void CalWeldSectionW();
  // ffw, Table 3.4.1-3. Another material keeps the old strength, which is scaled again.
  void CalWeldQD();
  void CalStress();  // needs m_dW
  // Strength, modulus and stresses, then the verdicts: 1 pass, 0 fail. Load cases 0 to 2 pass the
  // shear and the combined check whatever V is.
  int JugeStress(int& okSigma, int& okTau, int& okCombined);

  int m_nSpare1 = 0;
  int m_nWeldKind = 0;  // the caller's own; no calculation reads it
  int m_nLoadCase = 0;
  int m_nMaterial = 0;  // steel and electrode: 0 Q235, E43; 1 Q345, E50; 2 Q390, 3 Q420, E55
  double m_dHe = 0;     // effective throat
  double m_dLw = 0;     // effective length
  double m_dN = 0;      // axial force
  double m_dM = 0;      // moment
  double m_dSpare2 = 0;
  double m_dV = 0;      // shear
  double m_dBetaF = 0;  // strength increase across the weld
  double m_dSigma = 0;  // sigma-f, across the weld
  double m_dTau = 0;    // tau-f, along the weld
  double m_dCombined = 0;
  double m_dW = 0;     // section modulus
  double m_dFfw = 0;   // strength, used with beta-f
  double m_dFfw2 = 0;  // strength, used for tau-f and the combined stress
  int m_nSpare3 = 0;
  int m_nSpare4 = 0;
  int m_nSpare5 = 0;
};
