#include "catalogue/outline/row_figures.h"

#include <limits>
#include <utility>

#include "catalogue/outline/shapes.h"
#include "sections/load_data_table.h"

namespace orv3 {
namespace {

// A quarter turn counter-clockwise of what the operations give unturned only: the right fibre goes
// to the top, the top fibre to the left.
void TurnFibres(CRowFigures& f) {
  std::swap(f.m_dRx, f.m_dRy);
  std::swap(f.m_bSymX, f.m_bSymY);
  const double top = f.m_dWTop;
  f.m_dWTop = f.m_dWRight;
  f.m_dWRight = f.m_dWBottom;
  f.m_dWBottom = f.m_dWLeft;
  f.m_dWLeft = top;
}

}  // namespace

CRowFigures RowFigures(const CDataItem& row, double angle) {
  using Data = CLoadDataTable;
  CRowFigures f;
  f.m_dArea = Data::GetDataItemArea(row);
  Data::GetDataItemRect(row, f.m_dWidth, f.m_dHeight, angle);
  Data::GetDataItemCenter(row, f.m_dXc, f.m_dYc, angle);
  Data::GetDataItemIo(row, f.m_dIx, f.m_dIy, angle);
  f.m_dSxo = Data::GetDataItemSxo(row);
  f.m_dRx = Data::GetDataItemRadixo(row);
  f.m_dRy = Data::GetDataItemRadiyo(row);
  f.m_dWTop = Data::GetDataItemWxo1(row);
  f.m_dWBottom = Data::GetDataItemWxo2(row);
  f.m_dWLeft = Data::GetDataItemWyoL(row);
  f.m_dWRight = Data::GetDataItemWyoR(row);
  f.m_dThickest = Data::GetDataItemMaxThick(row);
  f.m_dThinnest = Data::GetDataItemMinThick(row);
  f.m_dE0 = Data::GetDatIteme0(row);
  f.m_dIw = Data::GetDataItemIw(row);
  f.m_bSymX = Data::IsDaTaItemSymmetryX(row) != 0;
  f.m_bSymY = Data::IsDaTaItemSymmetryY(row) != 0;
  const int quarters = QuarterTurns(angle);
  for (int i = 0; i < quarters; ++i) TurnFibres(f);
  if (quarters % 2 == 1) f.m_dSxo = std::numeric_limits<double>::quiet_NaN();
  return f;
}

}  // namespace orv3
