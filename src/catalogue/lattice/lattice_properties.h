// The properties of a lattice column: one table that the headings, the calculation and the command
// line read.
#pragma once

#include <span>

#include "framework/export.h"

namespace orv3 {

// About the axes through the centroid; mm, mm^2, mm^3, mm^4.
struct CLatticeProperties {
  double m_dA = 0;
  double m_dXo = 0, m_dYo = 0;  // centroid in the frame of lattice_placement.h
  double m_dIx = 0, m_dIy = 0;
  double m_dWx1 = 0, m_dWx2 = 0, m_dWyL = 0, m_dWyR = 0;  // top, bottom, left, right
  double m_dixo = 0, m_diyo = 0;                          // radii of gyration
};

// A column of what is given: a spacing, a limb's table, number or angle.
struct CLatticeColumn {
  const wchar_t* m_szSign;
  const wchar_t* m_szTitle;
  const char* m_szMeaning;  // the title in English
};

struct CLatticeProperty {
  const wchar_t* m_szSign;   // of the column, "A(mm^2)"
  const wchar_t* m_szTitle;  // of the column
  const char* m_szMeaning;   // the title in English
  const char* m_szKey;       // the symbol alone
  int m_nPower;              // unit: mm to this power
  double CLatticeProperties::*m_pField;
};

// Those of every number of limbs.
ORV3CAL_API std::span<const CLatticeColumn> LatticeGivenColumns() noexcept;
// In the order of the columns.
ORV3CAL_API std::span<const CLatticeProperty> LatticePropertyColumns() noexcept;

}  // namespace orv3
