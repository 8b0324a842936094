// The geometry of a row in one record, turned with the section, as it truly is: from a user-defined
// row's sizes and a lattice column's limbs with all their digits, else from the row's figures.
//
// It differs from CLoadDataTable's operations where those keep to earlier results: a T's centroid
// is not at mid-height, an equal angle's radii are about the axes of its moments, a lattice
// column's centroid is measured from its edges.
#pragma once

#include <limits>
#include <optional>

#include "framework/export.h"
#include "sections/outline.h"
#include "tables/data_item.h"

namespace orv3 {

// mm, mm^2, mm^3, mm^4, mm^6. NaN: the row does not tell it, or nobody computes it. 1e100: a
// modulus whose fibre lies on the axis.
struct CRowFigures {
  static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

  double m_dArea = kUnknown;
  double m_dWidth = kUnknown, m_dHeight = kUnknown;  // of the enclosing rectangle
  double m_dXc = kUnknown, m_dYc = kUnknown;         // centroid from its left and bottom edges
  // About the axes through the centroid that m_szAxisX and m_szAxisY name.
  double m_dIx = kUnknown, m_dIy = kUnknown;
  double m_dSxo = kUnknown, m_dSyo = kUnknown;       // first moments of the part on one side
  double m_dRx = kUnknown, m_dRy = kUnknown;         // radii of gyration
  double m_dRleast = kUnknown;                       // about the weak principal axis
  double m_dWTop = kUnknown, m_dWBottom = kUnknown;  // moduli about the horizontal axis
  double m_dWLeft = kUnknown, m_dWRight = kUnknown;  // and about the vertical one
  double m_dThickest = kUnknown, m_dThinnest = kUnknown;
  double m_dE0 = kUnknown;  // shear centre to centroid
  double m_dIw = kUnknown;
  std::optional<bool> m_symX, m_symY;  // about the axes; nothing without an outline
  // The letters of the table's columns for the horizontal and the vertical axis. A section's axes
  // turn with it: on its side, Y is the horizontal one.
  const wchar_t* m_szAxisX = L"X";
  const wchar_t* m_szAxisY = L"Y";
  // The axes are at 45 degrees to the rectangle, X1 from the upper left to the lower right, and
  // moments, radii and moduli stay with them however the section is turned (cross of angles).
  bool m_bAslant = false;
};

// The angle turns the section counter-clockwise, in degrees; only quarter turns count.
ORV3CAL_API CRowFigures RowFigures(const CDataItem& row, double angle = 0);
// The same, upright, for a caller that has the row's outline already.
CRowFigures RowFigures(const CDataItem& row, const COutline& outline);

}  // namespace orv3
