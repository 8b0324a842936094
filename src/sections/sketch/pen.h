// CSketchPen: draws the parts of which every section sketch consists, on a page of fixed size.
#pragma once

#include <vector>

#include "drawing/drawing.h"

namespace orv3 {

class CSketchPen {
 public:
  static constexpr double kWidth = 180;
  static constexpr double kHeight = 150;

  CSketchPen() : m_drawing(kWidth, kHeight) {}
  const CDrawing& Drawing() const noexcept { return m_drawing; }

  void Steel(const CPath& loop) { m_drawing.AddSection({loop}); }
  void Steel(const std::vector<CPath>& loops) { m_drawing.AddSection(loops); }

  // Centroidal axes through (x, y), drawn a little beyond `box`, lettered at the right and the top;
  // an empty letter leaves its axis out.
  void Axes(CPoint center, CBox box, const wchar_t* xAxis, const wchar_t* yAxis);
  // An axis at an angle, `reach` to both sides of the center, lettered at its end.
  void SlantAxis(CPoint center, double degrees, double reach, const wchar_t* letter);

  // Dimension lines of a width at height `line` and of a height at abscissa `line`; extension lines
  // start at the measured edge `y` (`x`). The letters stand on the side away from the section.
  void Width(double x1, double x2, double y, double line, const wchar_t* letter) {
    Width(CPoint{x1, y}, CPoint{x2, y}, line, letter);
  }
  void Height(double y1, double y2, double x, double line, const wchar_t* letter) {
    Height(CPoint{x, y1}, CPoint{x, y2}, line, letter);
  }
  // The same between two points; one on the dimension line itself (on an axis) has no extension.
  void Width(CPoint from, CPoint to, double line, const wchar_t* letter);
  void Height(CPoint from, CPoint to, double line, const wchar_t* letter);
  // A thickness between two arrows from outside, the letter at the end of the tail on the right
  // (left), above (below).
  enum class CTail { Right, Left, Above, Below };
  void ThicknessX(double x1, double x2, double y, const wchar_t* letter, CTail tail = CTail::Right);
  void ThicknessY(double y1, double y2, double x, const wchar_t* letter, CTail tail = CTail::Above);
  void Arrow(CPoint tail, CPoint tip) { m_drawing.AddArrow(CLayer::Dimension, tail, tip); }
  // An arrow to `tip` with the letter at its tail.
  void Leader(CPoint tail, CPoint tip, const wchar_t* letter);
  void Letter(CPoint at, const wchar_t* letter, CAnchor anchor = CAnchor::Middle,
              CLayer layer = CLayer::Dimension);
  void Line(CPoint from, CPoint to, CLayer layer = CLayer::Dimension);
  // A fillet weld: a black triangle in the corner at (x, y), legs `dx` and `dy`.
  void Weld(double x, double y, double dx, double dy);

 private:
  CDrawing m_drawing;
};

}  // namespace orv3
