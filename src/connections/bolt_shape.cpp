#include "connections/bolt_shape.h"

#include <algorithm>
#include <cmath>

namespace orv3 {
namespace {

// The bolts of one column.
void PlaceColumn(double x, bool bBetween, std::span<const double> rowSpaces,
                 std::vector<CHole>& bolts) {
  double y = 0;
  if (!bBetween) bolts.push_back({x, y});
  for (const double space : rowSpaces) {
    bolts.push_back({x, bBetween ? y + space / 2 : y + space});
    y += space;
  }
}

}  // namespace

void PlaceBolts(bool bStaggered, std::span<const double> colSpaces,
                std::span<const double> rowSpaces, CBoltShape& shape) {
  std::vector<CHole> bolts = std::move(shape.m_arrBolt);
  bolts.clear();
  shape = {};
  double x = 0;
  PlaceColumn(x, false, rowSpaces, bolts);
  for (std::size_t i = 0; i < colSpaces.size(); ++i) {
    x += colSpaces[i];
    PlaceColumn(x, bStaggered && i % 2 == 0, rowSpaces, bolts);
  }
  shape.m_dWidth = x;
  for (const double space : rowSpaces) shape.m_dHeight += space;
  for (const CHole& bolt : bolts) {
    shape.m_dXc += bolt.m_x;
    shape.m_dYc += bolt.m_y;
  }
  const auto count = static_cast<double>(bolts.size());
  shape.m_dXc /= count;
  shape.m_dYc /= count;
  for (const CHole& bolt : bolts) {
    const double dx = bolt.m_x - shape.m_dXc;
    const double dy = bolt.m_y - shape.m_dYc;
    shape.m_dSumX2 += dx * dx;
    shape.m_dSumY2 += dy * dy;
    shape.m_dXMax = std::max(shape.m_dXMax, std::fabs(dx));
    shape.m_dYMax = std::max(shape.m_dYMax, std::fabs(dy));
  }
  shape.m_arrBolt = std::move(bolts);
}

}  // namespace orv3
