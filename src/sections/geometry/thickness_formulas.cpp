// Thicknesses that are no cell of their own.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "sections/geometry/formulas.h"

namespace orv3 {

std::optional<double> RectangleThickness(const CDataItem& row, const CFamily& family,
                                         const CCell&) {
  CReader read(row, family);
  return read.Give(std::min(read(L"b(mm)"), read(L"h(mm)")));
}

std::optional<double> HexagonThickness(const CDataItem& row, const CFamily& family,
                                       const CCell& cell) {
  CReader read(row, family);
  return read.Give(std::numbers::sqrt3 * read(cell));
}

// Four times the area by the perimeter.
std::optional<double> TriangleThickness(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  const double b = read(L"b(mm)"), h = read(L"h(mm)");
  return read.Give(2 * b * h / (b + std::sqrt(b * b + 4 * h * h)));
}

std::optional<double> TubeThickness(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"R(mm)") - read(L"r(mm)"));
}

std::optional<double> CrossBarThickness(const CDataItem& row, const CFamily& family, const CCell&) {
  CReader read(row, family);
  return read.Give(read(L"h(mm)") - read(L"bh1(mm)") - read(L"bh2(mm)"));
}

}  // namespace orv3
