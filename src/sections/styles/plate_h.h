// Three plates in the shape of an H: the model behind seven styles of user-defined sections.
#pragma once

#include <algorithm>

namespace orv3 {

// A web between two flanges, mm. Overhangs count outwards from the web's faces; negative ones make
// a flange narrower than the web.
struct CPlateH {
  double m_dWeb = 0;  // thickness
  double m_dHeight = 0;
  double m_dBottom = 0;  // flange thicknesses
  double m_dTop = 0;
  double m_dTopLeft = 0;  // overhangs
  double m_dTopRight = 0;
  double m_dBottomLeft = 0;
  double m_dBottomRight = 0;

  // Left edges of the flanges and the web. The plates are aligned at the web; a negative overhang
  // at the top left moves both flanges by it.
  double TopEdge() const noexcept {
    return m_dTopLeft < 0 ? -m_dTopLeft : std::max(m_dBottomLeft - m_dTopLeft, 0.0);
  }
  double BottomEdge() const noexcept {
    return m_dTopLeft < 0 ? -m_dTopLeft : std::max(m_dTopLeft - m_dBottomLeft, 0.0);
  }
  double WebEdge() const noexcept { return TopEdge() + m_dTopLeft; }
  double TopWidth() const noexcept { return m_dTopLeft + m_dWeb + m_dTopRight; }
  double BottomWidth() const noexcept { return m_dBottomLeft + m_dWeb + m_dBottomRight; }
  double WebHeight() const noexcept { return m_dHeight - m_dBottom - m_dTop; }
  // Of the enclosing rectangle.
  double Width() const noexcept {
    return std::max({0.0, m_dTopLeft, m_dBottomLeft}) + m_dWeb +
           std::max({0.0, m_dTopRight, m_dBottomRight});
  }
};

}  // namespace orv3
