#include "sections/sketch/pen.h"

#include <numbers>

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr double kLetterSize = 13;
constexpr double kAxisReach = 9;  // of an axis beyond the section
constexpr double kTail = 11;      // of an arrow from outside

}  // namespace

void CSketchPen::Axes(CPoint center, CBox box, const wchar_t* xAxis, const wchar_t* yAxis) {
  if (*xAxis) {
    const double end = box.right + kAxisReach;
    Line({box.left - kAxisReach, center.y}, {end, center.y}, CLayer::CentroidAxis);
    Letter({end + 3, center.y}, xAxis, CAnchor::Left, CLayer::CentroidAxis);
  }
  if (*yAxis) {
    const double end = box.top + kAxisReach;
    Line({center.x, box.bottom - kAxisReach}, {center.x, end}, CLayer::CentroidAxis);
    Letter({center.x + 4, end - 1}, yAxis, CAnchor::Left, CLayer::CentroidAxis);
  }
}

void CSketchPen::SlantAxis(CPoint center, double degrees, double reach, const wchar_t* letter) {
  const double angle = degrees * std::numbers::pi / 180;
  const CPoint u{Cos(angle), Sin(angle)};
  const CPoint end{center.x + u.x * reach, center.y + u.y * reach};
  Line({center.x - u.x * reach, center.y - u.y * reach}, end, CLayer::CentroidAxis);
  Letter({end.x + 3, end.y + 2}, letter, CAnchor::Left, CLayer::CentroidAxis);
}

void CSketchPen::Width(CPoint from, CPoint to, double line, const wchar_t* letter) {
  CDimension d;
  d.m_from = from;
  d.m_to = to;
  d.m_dLine = line;
  d.m_strText = letter;
  d.m_dTextAt = (from.x + to.x) / 2;
  d.m_bTextBelow = line < from.y;
  d.m_dTextSize = kLetterSize;
  m_drawing.AddDimension(d);
}

void CSketchPen::Height(CPoint from, CPoint to, double line, const wchar_t* letter) {
  CDimension d;
  d.m_bVertical = true;
  d.m_bUpright = true;
  d.m_from = from;
  d.m_to = to;
  d.m_dLine = line;
  d.m_strText = letter;
  d.m_dTextAt = (from.y + to.y) / 2;
  d.m_bTextBelow = line > from.x;
  d.m_dTextSize = kLetterSize;
  m_drawing.AddDimension(d);
}

void CSketchPen::ThicknessX(double x1, double x2, double y, const wchar_t* letter, CTail tail) {
  m_drawing.AddArrow(CLayer::Dimension, {x1 - kTail, y}, {x1, y});
  m_drawing.AddArrow(CLayer::Dimension, {x2 + kTail, y}, {x2, y});
  if (tail == CTail::Left) {
    Letter({x1 - kTail - 3, y}, letter, CAnchor::Right);
  } else {
    Letter({x2 + kTail + 3, y}, letter, CAnchor::Left);
  }
}

void CSketchPen::ThicknessY(double y1, double y2, double x, const wchar_t* letter, CTail tail) {
  m_drawing.AddArrow(CLayer::Dimension, {x, y1 - kTail}, {x, y1});
  m_drawing.AddArrow(CLayer::Dimension, {x, y2 + kTail}, {x, y2});
  const double y = tail == CTail::Below ? y1 - kTail + 3 : y2 + kTail - 3;
  if (tail == CTail::Left) {
    Letter({x - 4, y}, letter, CAnchor::Right);
  } else {
    Letter({x + 4, y}, letter, CAnchor::Left);
  }
}

void CSketchPen::Leader(CPoint tail, CPoint tip, const wchar_t* letter) {
  m_drawing.AddArrow(CLayer::Dimension, tail, tip);
  const bool right = tail.x >= tip.x;
  Letter({tail.x + (right ? 3 : -3), tail.y}, letter, right ? CAnchor::Left : CAnchor::Right);
}

void CSketchPen::Letter(CPoint at, const wchar_t* letter, CAnchor anchor, CLayer layer) {
  m_drawing.AddLabel({layer, at, letter, kLetterSize, anchor, false});
}

void CSketchPen::Line(CPoint from, CPoint to, CLayer layer) { m_drawing.AddLine(layer, from, to); }

void CSketchPen::Weld(double x, double y, double dx, double dy) {
  m_drawing.AddArea(CLayer::Outline, {CPath{{{x, y, 0}, {x + dx, y, 0}, {x, y + dy, 0}}, true}});
}

}  // namespace orv3
