// The geometry of a row in one record, turned with the section.
#pragma once

#include "framework/export.h"
#include "tables/data_item.h"

namespace orv3 {

// As CLoadDataTable's operations give them for the row: mm, mm^2, mm^3, mm^4, mm^6. What a row does
// not tell is 0.
struct CRowFigures {
  double m_dArea = 0;
  double m_dWidth = 0, m_dHeight = 0;  // of the enclosing rectangle
  double m_dXc = 0, m_dYc = 0;         // centroid from its left and bottom edges
  double m_dIx = 0, m_dIy = 0;         // about the centroidal axes
  double m_dSxo = 0;                   // NaN on its side: a row tells it about one axis only
  double m_dRx = 0, m_dRy = 0;         // radii of gyration
  double m_dWTop = 0, m_dWBottom = 0;  // moduli about the horizontal axis
  double m_dWLeft = 0, m_dWRight = 0;  // and about the vertical one
  double m_dThickest = 0, m_dThinnest = 0;
  double m_dE0 = 0;  // shear centre to centroid
  double m_dIw = 0;
  bool m_bSymX = false, m_bSymY = false;  // about the horizontal, the vertical axis
};

// The angle turns the section counter-clockwise, in degrees; only quarter turns count.
ORV3CAL_API CRowFigures RowFigures(const CDataItem& row, double angle = 0);

}  // namespace orv3
