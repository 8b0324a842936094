// CTableSearch: the tables of the steel design code and the look-ups in them.
//
// The edition is GB 50017-2003; g_sub22 is of CECS 102:2002. docs/code-tables.md lists every table.
#pragma once

#include "framework/cstring.h"
#include "framework/export.h"

// Callers pass these enumerators by number.

// Steel grade.
enum Sub1_Style1 : int { SUB1_Q235 = 0, SUB1_Q345 = 1, SUB1_Q390 = 2, SUB1_Q420 = 3 };

// Thickness group of the plate, mm: 0 to 3 with Q235; 0, 4, 5 and 6 with the other grades.
enum Sub1_Style2 : int {
  SUB1_T16 = 0,      // <= 16
  SUB1_T16_40 = 1,   // > 16 to 40
  SUB1_T40_60 = 2,   // > 40 to 60
  SUB1_T60_100 = 3,  // > 60 to 100
  SUB1_T16_35 = 4,   // > 16 to 35
  SUB1_T35_50 = 5,   // > 35 to 50
  SUB1_T50_100 = 6,  // > 50 to 100
};

// Kind of steel strength.
enum Sub1_Style3 : int {
  SUB1_F = 0,    // f: tension, compression, bending
  SUB1_FV = 1,   // fv: shear
  SUB1_FCE = 2,  // fce: end bearing, planed and close-fitted
};

// Electrode that matches the steel. No combination is accepted for the third one.
enum Sub2_Style1 : int { SUB2_E43 = 0, SUB2_E50 = 1, SUB2_E55 = 2 };

// Kind of weld strength.
enum Sub2_Style2 : int {
  SUB2_FCW = 0,    // butt weld, compression
  SUB2_FTW12 = 1,  // butt weld of quality grade one or two, tension
  SUB2_FTW3 = 2,   // butt weld of quality grade three, tension
  SUB2_FVW = 3,    // butt weld, shear
  SUB2_FFW = 4,    // fillet weld
};

// Bolt family.
enum Sub3_Style1 : int {
  SUB3_ORDINARY = 0,
  SUB3_ANCHOR = 1,
  SUB3_BEARING = 2,  // high-strength, bearing type
  SUB3_MEMBER = 3,   // the connected member: bearing strengths
};

// Property class of the bolt, steel of the anchor bolt or of the member.
enum Sub3_Style2 : int {
  SUB3_46_48 = 0,
  SUB3_56 = 1,
  SUB3_88 = 2,
  SUB3_109 = 3,
  SUB3_Q235 = 4,
  SUB3_Q345 = 5,
  SUB3_Q390 = 6,
  SUB3_Q420 = 7,
};

// Grid positions in the effective-length tables; the grids are in grids.h. They are types of their
// own, so that a position is never taken for the stiffness ratio itself: Sub16_Style1{7} is K = 1.
enum Sub16_Style1 : int {};  // K1 and K2 of a frame column, 0 to 12
enum Sub18_Style1 : int {};  // eta1 of a single-stepped column, 0 to 18
enum Sub18_Style2 : int {};  // K1 of a single-stepped column, 0 to 17
enum Sub20_Style1 : int {};  // eta1 of a double-stepped column, 0 to 6
enum Sub20_Style2 : int {};  // eta2 of a double-stepped column, 0 to 5
enum Sub20_Style3 : int {};  // K1 of a double-stepped column, 0 to 3
enum Sub20_Style4 : int {};  // K2 of a double-stepped column, 0 to 10

// Every operation is static. A SearchSub operation returns true and writes its last argument, or
// returns false and leaves it untouched when the arguments name no cell of the table.
class ORV3CAL_API CTableSearch {
 public:
  CTableSearch() = default;
  CTableSearch(const CTableSearch&) = default;
  CTableSearch& operator=(const CTableSearch&) = default;
  virtual ~CTableSearch() = default;

  // --- Strengths, N/mm2: strengths.cpp ---------------------------------------------------------

  // Steel, Table 3.4.1-1: rows grade by grade, four thickness groups each (labels g_sub1_1, mm);
  // columns f, fv.
  static const int g_sub1[16][2];
  static const wchar_t* const g_sub1_1[16];
  // Welds, Table 3.4.1-3: rows as in g_sub1; columns fcw, ftw of quality grades one and two, ftw of
  // grade three, fvw.
  static const double g_sub2[16][4];
  // Bolts, Table 3.4.1-4: rows labelled by g_sub3_1; columns ordinary class C ft, fv, fc, ordinary
  // class A and B ft, fv, fc, anchor bolt ft, high-strength bearing type ft, fv, fc. A cell that
  // the code leaves empty is an empty text.
  static const wchar_t* const g_sub3[11][10];
  static const wchar_t* const g_sub3_1[11];

  // Steel strength by grade (Sub1_Style1), thickness group (Sub1_Style2) and kind (Sub1_Style3).
  static bool SearchSub1(int grade, int group, int kind, int& strength);
  // The same, the group found from the thickness in mm; false above 100 mm.
  static bool SearchSub1(int grade, double thickness, int kind, int& strength);
  // Weld strength by grade, thickness group and kind (Sub2_Style2).
  static bool SearchSub2(int grade, int group, int kind, int& strength);
  // Weld strength of an electrode (Sub2_Style1): 0 takes the Q235 rows and 1 the Q345 rows,
  // whatever the grade; 2 is always false. Fillet welds: 160 for electrode 0, 200 for electrode 1.
  static bool SearchSub2(int electrode, int grade, int group, int kind, int& strength);
  // Bolt strength by family (Sub3_Style1), grade (Sub3_Style2) and column 0 to 9. A cell that the
  // code leaves empty gives 0 and true.
  static bool SearchSub3(int family, int grade, int column, int& strength);

  // --- Bolts: bolt_tables.cpp ------------------------------------------------------------------

  // Slip factor, Table 7.2.2-1: rows surface treatments in the table's order; columns Q235, Q345
  // and Q390, Q420.
  static const double g_sub8[4][3];
  // Preload of one high-strength bolt in kN, Table 7.2.2-2: rows 8.8, 10.9; columns M16, M20, M22,
  // M24, M27, M30.
  static const double g_sub9[2][6];
  // Gross and effective area of a bolt in cm2; rows the diameters g_sub23_1, mm.
  static const wchar_t* const g_sub23[9][2];
  static const int g_sub23_1[9];

  static bool SearchSub8(int treatment, int steelColumn, double& slipFactor);
  static bool SearchSub9(int grade, int diameter, double& preload);
  static bool SearchSub9(int grade, int diameter, int& preload);  // truncated
  static bool SearchSub23(int row, int column, double& area);

  // --- Beams and struts: member_factors.cpp ----------------------------------------------------

  // Largest l1/b1 of an H or I beam that needs no check of overall stability, Table 4.2.1: rows the
  // grades; columns load on the upper flange, on the lower flange (both without lateral support in
  // the span), and lateral support of the compression flange in the span.
  static const double g_sub4[4][3];
  // Buckling class of sections with plates of 40 mm and more, Table 5.1.2-2; columns axis x, axis
  // y.
  static const wchar_t* const g_sub5S2[6][2];
  // Plastic development factors of eight groups of section kinds, Table 5.2.1: gamma y, gamma x.
  static const wchar_t* const g_sub6[8];
  static const wchar_t* const g_sub6_1[8];
  // Fatigue parameters C (in 1e12) and beta by detail category 1 to 8, Table 6.2.1-1.
  static const wchar_t* const g_sub7[2][8];
  // Equivalent-moment factor of simply supported I beams, Table B.1: the constants in the order of
  // the table, and the formulas of its first four rows. No operation reads them.
  static const double g_sub10[9];
  static const wchar_t* const g_sub10_1[4];
  // Stability factor phi-b of simply supported beams of rolled I section in Q235, Table B.2: rows
  // five load cases times three ranges of I numbers (labels g_sub11_1); columns the free length, 2
  // to 10 m. A value above 0.6 is still to be replaced by that of the code's formula (B.1-2), and
  // other steels call for the factor 235/fy.
  static const double g_sub11[15][9];
  static const wchar_t* const g_sub11_1[15];

  static bool SearchSub4(int grade, int column, double& ratio);
  // Buckling class "a", "b" or "c" of a section kind 1 to 30, Table 5.1.2-1; axis 0 (x) or 1 (y).
  static bool SearchSub5(int kind, int axis, CString& bucklingClass);
  // Cell of g_sub5S2; row 1 to 6.
  static bool SearchSub5S2(int row, int axis, CString& bucklingClass);
  // gamma of a section kind 0 to 22; axis 0 (x) or 1 (y).
  static bool SearchSub6(int kind, int axis, double& gamma);
  static bool SearchSub7(int row, int column, double& parameter);
  // phi-b by span support (0 none in the span, 1 lateral support in the span), load kind (0
  // concentrated, 1 uniform; 2 with support 1), load position (0 upper flange, 1 lower flange; 2
  // with support 1), range of I numbers (0 "10~20", 1 "22~32", 2 "36~63" for a concentrated load on
  // the upper flange; 0 "10~20", 3 "22~40", 4 "45~63" otherwise) and column 0 to 8.
  static bool SearchSub11(int support, int loadKind, int loadPosition, int range, int column,
                          double& phiB);
  // The same by load case 1 to 5: concentrated upper, concentrated lower, uniform upper, uniform
  // lower, lateral support in the span.
  static bool SearchSub11_1(int loadCase, int range, int column, double& phiB);
  // phi-b of load case 1 to 5 for an I number (the depth in cm, 20 for I20a) and a free length in
  // m. Linear between the lengths of the table, exact at them. False for a number within none of
  // the case's ranges and for a length outside 2 to 10 m.
  static bool SearchSub11_1(int loadCase, double iNumber, double freeLength, double& phiB);
  // Stability factor of an axially compressed member, Appendix C: slenderness, yield strength in
  // N/mm2, buckling class 0 to 3 for a to d. False for another class, and for a slenderness or
  // strength that is negative or not finite.
  static bool SearchSub12(double lambda, double fy, int bucklingClass, double& phi);

  // --- Effective length of frame and tapered columns: frame_columns.cpp ------------------------

  // mu of a frame column without (Table D-1) and with sidesway (Table D-2): rows K1, columns K2,
  // the ratios of beam to column stiffness at its ends (labels g_sub16_1). Free sway at K1 = K2 = 0
  // is stored as 0, where the code prints infinity.
  static const double g_sub16[13][13];
  static const double g_sub17[13][13];
  static const wchar_t* const g_sub16_1[13];
  // mu of a tapered column with a pinned foot, CECS 102:2002 Table 6.1.3: rows Ic0/Ic1 (g_sub22_1),
  // columns K2/K1 of 0.1, 0.2, 0.3, 0.5, 0.75, 1.0, 2.0 and >= 10.
  static const double g_sub22[8][8];
  static const double g_sub22_1[8];

  static bool SearchSub16(Sub16_Style1 k1, Sub16_Style1 k2, double& mu);
  static bool SearchSub17(Sub16_Style1 k1, Sub16_Style1 k2, double& mu);
  // Any ratios: bilinear between the grid values, the value of the grid's border beyond it. False
  // for a NaN.
  static bool SearchSub16(double k1, double k2, double& mu);
  static bool SearchSub17(double k1, double k2, double& mu);
  static bool SearchSub22(int row, int column, double& mu);

  // --- Effective length of single-stepped columns: single_stepped_columns.cpp ------------------

  // The figures of stepped columns are in stepped_column_figures.cpp, which the build makes.

  // mu2 of the lower part, top free (Table D-3) and top sliding without rotation (Table D-4): rows
  // eta1 (labels g_sub18_1), columns K1 (labels g_sub18_2). The halves hold columns 0 to 8 and 9
  // to 17.
  static const double g_sub18[19][18];
  static const double g_sub181[19][9];
  static const double g_sub182[19][9];
  static const double g_sub19[19][18];
  static const double g_sub191[19][9];
  static const double g_sub192[19][9];
  static const wchar_t* const g_sub18_1[19];
  static const wchar_t* const g_sub18_2[18];

  static bool SearchSub18(Sub18_Style1 eta1, Sub18_Style2 k1, double& mu2);
  static bool SearchSub19(Sub18_Style1 eta1, Sub18_Style2 k1, double& mu2);
  // Any ratios, as with SearchSub16.
  static bool SearchSub18(double eta1, double k1, double& mu2);
  static bool SearchSub19(double eta1, double k1, double& mu2);

  // --- Effective length of double-stepped columns: double_stepped_columns.cpp ------------------

  // mu3 of the lowest part, top free (Table D-5) and top sliding without rotation (Table D-6).
  // 42 x 44, as printed: row 6 eta1 + eta2, column 11 K1 + K2 (grid positions).
  static const double g_sub201[42][44];
  static const double g_sub211[42][44];
  // The same with eta1 continued to 1.6 and 1.8 by the equations under the tables, 12 x 198:
  // row 6 (K1 / 2) + eta2, column 22 eta1 + 11 (K1 % 2) + K2 (grid positions, integer division).
  static const double g_sub20[12][198];
  static const double g_sub21[12][198];

  // A cell of the printed table.
  static bool SearchSub20(Sub20_Style1 eta1, Sub20_Style2 eta2, Sub20_Style3 k1, Sub20_Style4 k2,
                          double& mu3);
  static bool SearchSub21(Sub20_Style1 eta1, Sub20_Style2 eta2, Sub20_Style3 k1, Sub20_Style4 k2,
                          double& mu3);
  // The numbers themselves: what DispersionSearchSub20 and 21 give.
  static bool SearchSub20(double eta1, double eta2, double k1, double k2, double& mu3);
  static bool SearchSub21(double eta1, double eta2, double k1, double k2, double& mu3);
  // mu3 for eta1 0.2 to 1.8, eta2 0.2 to 1.2, K1 0.05 to 0.3, K2 0.2 to 1.2: bilinear in K1 and K2
  // at the neighbouring grid values of eta1 and eta2, then bilinear between those; exact on the
  // grid. False outside.
  static bool DispersionSearchSub20(double eta1, double eta2, double k1, double k2, double& mu3);
  static bool DispersionSearchSub21(double eta1, double eta2, double k1, double k2, double& mu3);
  // mu3 of Table D-5 (GetU3Temp) or D-6 (GetU3Temp2) at the grid positions of eta1 (0 to 8) and
  // eta2 (0 to 5), bilinear in K1 and K2, at the grid's border beyond it; the intermediate value of
  // the operations above. CInvalidArgException for a position off the grid; NaN for a NaN.
  static double GetU3Temp(int eta1, int eta2, double k1, double k2);
  static double GetU3Temp2(int eta1, int eta2, double k1, double k2);

  // --- Interpolation: interpolation.cpp --------------------------------------------------------

  // The straight line through (x1, y1) and (x2, y2) at x.
  static double DispersionForOne(double x1, double y1, double x2, double y2, double x);
  // Bilinear: p1, p2 are the values at x1, x2 on the level z1, and q1, q2 those on the level z2.
  static double DispersionForTwo(double x1, double p1, double q1, double x2, double p2, double q2,
                                 double z1, double z2, double x, double z);
};
