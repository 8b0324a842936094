// Where the sizes of a section are measured.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"
#include "sections/outline.h"

namespace orv3 {

// Widths stand in rows above or below the section, heights in columns on its left. Alone stand: a
// radius, a height just right of the section, a thickness across the flange itself, and an arrow
// with the text at its tail.
enum class CDimensionSide { Top, Bottom, Left, Radius, Right, Inside, Leader };

struct CSizeDimension {
  const wchar_t* m_szSign;
  double m_dValue;
  CDimensionSide m_nSide;
  // The measured points, mm; of a radius the circle's center and a point on it, of a leader a point
  // on the tail's side and the tip.
  CPoint m_from;
  CPoint m_to;
};

// Of a user-defined style one dimension per size, in the order of its columns; empty for unknown
// styles.
std::vector<CSizeDimension> SizeDimensions(int style, std::span<const double, kSectionSizes> sizes);

}  // namespace orv3
