#include "sections/plate_h.h"

#include <algorithm>

namespace orv3 {

double CPlateH::TopEdge() const noexcept {
  return m_dTopLeft < 0 ? -m_dTopLeft : std::max(m_dBottomLeft - m_dTopLeft, 0.0);
}

double CPlateH::BottomEdge() const noexcept {
  return m_dTopLeft < 0 ? -m_dTopLeft : std::max(m_dTopLeft - m_dBottomLeft, 0.0);
}

double CPlateH::Width() const noexcept {
  return std::max({0.0, m_dTopLeft, m_dBottomLeft}) + m_dWeb +
         std::max({0.0, m_dTopRight, m_dBottomRight});
}

CPlateH PlateHOf(int style, std::span<const double, 8> s) noexcept {
  const double overhang = (s[0] - s[3]) / 2;
  switch (style) {
    case 0:
      return {s[3], s[1], s[2], s[2], overhang, overhang, overhang, overhang};
    case 8:
      return {s[0], s[1], 0, s[2], s[3], s[4], 0, 0};
    case 10:
      return {s[0], s[1], s[2], 0, 0, 0, 0, s[3]};
    case 11:
      return {s[0], s[1], s[2], s[3], s[4], 0, 0, s[5]};
    case 12:
      return {s[0], s[1], s[2], s[3], 0, s[5], 0, s[4]};
    case 13:
      return {s[0] + s[4] + s[5], s[1], s[2], s[3], -s[4], -s[5], -s[4], -s[5]};
    default:
      return {s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]};
  }
}

}  // namespace orv3
