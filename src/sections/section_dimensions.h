// Where each size of a user-defined section is measured.
#pragma once

#include <span>
#include <vector>

#include "framework/drawing_path.h"
#include "sections/outline.h"

namespace orv3 {

// Widths stand in rows above or below the section, heights in columns on its left.
enum class CDimensionSide { Top, Bottom, Left, Radius };

struct CSizeDimension {
  const wchar_t* m_szSign;
  double m_dValue;
  CDimensionSide m_nSide;
  CPoint m_from;  // the measured points, mm; of a radius the circle's center and a point on it
  CPoint m_to;
};

// One dimension per size, in the order of the style's columns; empty for unknown styles.
std::vector<CSizeDimension> SizeDimensions(int style, std::span<const double, kSectionSizes> sizes);

}  // namespace orv3
