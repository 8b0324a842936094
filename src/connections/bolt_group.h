// NormalBoltData: the check of one bolt group by GB 50017-2003.
//
// A caller assigns the input fields, calls BoltYanSuan (or the single steps in its order) and reads
// the results from the fields. docs/connections.md tells what is checked and what is not.
#pragma once

#include "framework/array.h"
#include "framework/export.h"

// One bolt of a group, mm.
struct BoltPoint {
  double x = 0;   // from the first column
  double y = 0;   // from the first row
  double dx = 0;  // from the mean abscissa of the group
  double dy = 0;  // from the mean ordinate of the group
  double ly = 0;  // lever arm for the bending moment
};

// Lengths in mm, forces in kN, moments in kN mm, strengths in kN/mm2, stresses in N/mm2. Every
// field is 0 until it is assigned. A comparison with zero or with a limit has a tolerance of 1e-6.
class ORV3CAL_API NormalBoltData {
 public:
  NormalBoltData() = default;
  // The constructors that hosts call; none of them stores an argument.
  NormalBoltData(int, int, int, int, double, double, int, double, int, double, double, double,
                 double, double, double, double, double, int, int, int);
  NormalBoltData(int, int, int, int, double, double, int, int, double, double, double, double,
                 double, double, double, double, int, int, int);
  NormalBoltData(int, int, int, int, double, double, int, double, int, double, double, double,
                 double, double, double, double, double, int, int);
  NormalBoltData(const NormalBoltData&) = default;
  NormalBoltData& operator=(const NormalBoltData&) = default;
  virtual ~NormalBoltData() = default;

  // Set the individual column and row spacings, whatever their names say.
  void GetEcArr(CArray<double, double> arrSpace);
  void GetErArr(CArray<double, double> arrSpace);

  // --- Steps, in the order of BoltYanSuan ------------------------------------------------------

  void CalBoltNum();       // n
  void CalBoltKongD();     // hole diameter d0
  void CalBoltYouXiaoD();  // effective diameter de; kept when m_strBolt lacks the diameter
  void CalGangCaiQD();     // steel strength f, Table 3.4.1-1
  void CalCaiLiaoQD();     // bolt strengths ft, fv, fc, Table 3.4.1-4
  void CalSheJiZhi();      // resistances of one bolt, 7.2.1 to 7.2.3
  // Positions and lever arms. CInvalidArgException with an ordinary or bearing-type bolt when M <=
  // 0, and when the spacing arrays are shorter than the columns and rows need.
  void CalBoltPoint();
  void CalMoCaU();       // slip factor, Table 7.2.2-1; surface 4 is changed to 3
  void CalMoCaP();       // preload, Table 7.2.2-2
  void CalBoltJianLi();  // shear on the most stressed bolt
  void CalBoltLaLi();    // tension on the most stressed bolt
  void CalLianJieL();    // joint length l1
  void CalZheJianB();    // long-joint factor beta, 7.2.4
  // Stresses in the gross and net sections, 5.1.1. CInvalidArgException with friction-type bolts
  // when there is a shear along x and no bolt.
  void CalJieMianQD();

  // --- Verdicts: 1 pass, 0 fail ----------------------------------------------------------------

  int JugeYingLi();                     // bolt forces
  int JugeJieMian(int& okX, int& okY);  // net sections; runs CalJieMianQD
  int BoltYanSuan();                    // every step, then both verdicts
  int BoltYanSuan2();                   // both verdicts, on the forces and resistances at hand

  // Nominal and effective diameter, mm.
  static const wchar_t* const m_strBolt[28][2];

  // --- Inputs ----------------------------------------------------------------------------------

  int m_nSpare = 0;      // neither read nor written here
  int m_nLayout = 0;     // 0 grid, 1 staggered
  int m_nSpaceMode = 0;  // 0: m_dColSpace and m_dRowSpace hold throughout; else the arrays stand
  int m_nBoltType = 0;   // 0 ordinary, 1 high-strength friction, 2 high-strength bearing
  int m_nCols = 0;       // bolts along x in one row
  int m_nRows = 0;       // rows along y
  double m_dColSpace = 0;
  double m_dRowSpace = 0;
  CArray<double, double> m_EcArr;  // entry i: from column i to column i + 1
  CArray<double, double> m_ErArr;  // entry j: from row j to row j + 1
  double m_dWidth = 0;             // result: sum of m_EcArr
  double m_dHeight = 0;            // result: sum of m_ErArr
  int m_nBoltNum = 0;              // result: n
  int m_nD = 0;                    // nominal diameter d
  double m_dD0 = 0;                // result: hole diameter d0
  double m_dDe = 0;                // result: effective diameter de
  double m_dSumT = 0;              // smaller total thickness that bears in one direction
  int m_nNv = 0;                   // shear planes of one bolt
  int m_nNf = 0;                   // friction surfaces
  double m_dN = 0;                 // axial tension on the group
  double m_dVx = 0;                // shear along x
  double m_dVy = 0;                // shear along y
  double m_dM = 0;                 // bending moment that puts the bolts in tension
  double m_dT = 0;                 // torque in the plane of the group
  double m_dEx = 0;                // edge distance along x
  double m_dEy = 0;                // edge distance along y
  double m_dThick = 0;             // plate thickness t
  int m_nSteel = 0;                // 0 Q235, 1 Q345, 2 Q390, 3 Q420
  int m_nSurface = 0;    // friction surfaces: row of CTableSearch::g_sub8; 4 is taken as 3
  int m_nGrade = 0;      // ordinary 0 4.6, 1 4.8, 2 5.6, 3 8.8; high-strength 0 8.8, 1 10.9
  int m_nBoltClass = 0;  // ordinary bolts: 0 class C, 1 or 2 class A or B

  // --- Results ---------------------------------------------------------------------------------

  double m_dFt = 0;  // bolt in tension
  double m_dFv = 0;  // bolt in shear
  double m_dFc = 0;  // bearing of the plate
  double m_dF = 0;   // plate steel
  CArray<BoltPoint> m_PointArr;
  double m_dYMax = 0;   // largest |dy|, with the sign of Vx
  double m_dXMax = 0;   // largest |dx|, with the sign of Vy
  double m_dLyMax = 0;  // governing lever arm for the moment
  double m_dXc = 0;     // mean abscissa
  double m_dYc = 0;     // mean ordinate
  // Areas that resist Vx and Vy, mm2: [0] gross (friction), [1] net (grid; friction), [2] net
  // straight and [3] net zigzag (staggered).
  double m_dAreaX[4] = {};
  double m_dAreaY[4] = {};
  // Stresses: [0] governing, [1] and [2] the candidates.
  double m_dSigmaX[3] = {};
  double m_dSigmaY[3] = {};
  double m_dMu = 0;        // slip factor
  int m_nP = 0;            // preload of one bolt
  double m_dNvbCopy = 0;   // as m_dNvb
  double m_dNcb = 0;       // bearing resistance of one bolt
  double m_dNvb = 0;       // shear resistance of one bolt
  double m_dNtb = 0;       // tensile resistance of one bolt
  double m_dNv = 0;        // shear on the most stressed bolt
  double m_dNvx = 0;       // share of Vx per bolt
  double m_dNvy = 0;       // share of Vy per bolt
  double m_dNTx = 0;       // the torque's force on the farthest bolt: x component
  double m_dNTy = 0;       // its y component
  double m_dNT = 0;        // its magnitude
  double m_dSumR2 = 0;     // sum of dx^2 + dy^2
  double m_dNt = 0;        // tension on the most stressed bolt
  double m_dNtN = 0;       // share of N per bolt
  double m_dNtM = 0;       // tension from the moment on the farthest bolt
  double m_dSumLy2 = 0;    // sum of ly^2
  double m_dL1 = 0;        // joint length
  double m_dBeta = 0;      // long-joint factor
  double m_dRatio = 0;     // interaction ratio of the most stressed bolt
  double m_dNvExcess = 0;  // Nv minus the reduced bearing resistance
  int m_bJieMianX = 0;     // 1: the section that resists Vx passes
  int m_bJieMianY = 0;     // 1: the section that resists Vy passes

 private:
  void UniformSpacings();
  void GridPoints();
  void StaggeredPoints();
  void CentrePoints();
  void LeverArms();
};
