// The figures of GB 50017-2017, as data/code-2017/*.csv has them. The build makes the rows.
#pragma once

#include <array>
#include <iterator>
#include <optional>
#include <string_view>

#include "codes/bolt_strength.h"
#include "codes/fatigue.h"
#include "codes/steel_grade.h"
#include "codes/steel_strength.h"
#include "codes/weld_strength.h"

namespace orv3::gb2017 {

using CCell = std::optional<double>;  // empty where the table prints "-" or nothing

// The position of a name; one that is none of the names does not compile.
template <std::size_t COUNT>
consteval int NamePosition(const char* const (&names)[COUNT], std::string_view name) {
  for (std::size_t i = 0; i < COUNT; ++i) {
    if (names[i] == name) return static_cast<int>(i);
  }
  throw "the cell is none of the names";
}

// Cells of names, read while compiling.
struct CGradeCell {
  CSteelGrade m_nGrade;
  consteval CGradeCell(const char* name)
      : m_nGrade(static_cast<CSteelGrade>(NamePosition(kGradeNames, name))) {}
};
struct CProductCell {
  CSteelProduct m_nProduct;
  consteval CProductCell(const char* name)
      : m_nProduct(static_cast<CSteelProduct>(NamePosition({"plate", "tube"}, name))) {}
};
struct CElectrodeCell {
  CElectrode m_nElectrode;
  consteval CElectrodeCell(const char* name)
      : m_nElectrode(static_cast<CElectrode>(NamePosition(kElectrodeNames, name))) {}
};

// Table 4.4.1, 4.4.2 or 4.4.3; a band is over m_dOver up to and including m_dTo, mm.
struct CSteelRow {
  CGradeCell m_grade;
  CProductCell m_product;
  double m_dOver, m_dTo;
  double m_dF, m_dFv, m_dFce, m_dFy, m_dFu;
  std::string_view m_strDoubt;  // the columns that are doubtful
};
extern const CSteelRow kSteel[37];
// Its bands of a grade and a product: rows m_nFirst up to but not including m_nEnd.
struct CBandRange {
  std::size_t m_nFirst, m_nEnd;
};
extern const CBandRange kSteelBands[std::size(kGradeNames)][2];

// Table 4.4.5.
struct CWeldRow {
  CGradeCell m_grade;
  double m_dOver, m_dTo;
  double m_dFcw, m_dFtw12, m_dFtw3, m_dFvw;
  std::string_view m_strDoubt;
};
extern const CWeldRow kWelds[23];
struct CElectrodeRow {
  CGradeCell m_grade;
  CElectrodeCell m_electrode;
  double m_dFfw;
  double m_dFuwButt, m_dFufFillet;  // tensile and shear strength of the weld metal
};
extern const CElectrodeRow kElectrodes[11];

// Table 4.4.6.
struct CBoltRow {
  std::string_view m_strKind, m_strClass;
  double m_dFt;
  CCell m_fv, m_fu;
};
extern const CBoltRow kBolts[9];
struct CBearingRow {
  CGradeCell m_grade;
  double m_arrFc[3];  // by CBoltKind
};
extern const CBearingRow kBearing[6];

// Table 11.4.2-1; columns Q235, Q345, Q390, Q420, Q460.
struct CSlipRow {
  std::string_view m_strSurface;
  CCell m_arrMu[5];
};
extern const CSlipRow kSlip[3];
// 11.4.2, in the order of CHoleKind.
struct CHoleFactorRow {
  std::string_view m_strHole;
  double m_dK;
};
extern const CHoleFactorRow kHoleFactors[4];
// Table 11.4.2-2; columns M16, M20, M22, M24, M27, M30.
struct CPreloadRow {
  std::string_view m_strClass;
  double m_arrP[6];
};
extern const CPreloadRow kPreloads[2];

// Table 11.5.1.
struct CHoleRow {
  double m_dD, m_dStandard, m_dOversize, m_dSlotWidth, m_dSlotLength;
};
extern const CHoleRow kHoles[7];

// Table 3.5.1 but for webs with compression, in the order of CClassElement without those.
struct CClassRow {
  std::string_view m_strElement;
  std::array<CCell, 5> m_arrLimit;
};
extern const CClassRow kClasses[5];

// Tables 16.2.1-1 and 16.2.1-2.
extern const CFatigueCategory kFatigue[17];

}  // namespace orv3::gb2017
