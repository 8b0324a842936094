#include "sections/section_shapes.h"

#include <algorithm>

#include "framework/elementary.h"

namespace orv3 {
namespace {

// Thickness of a sloping flange at its root and at its toe, t being that in the middle.
struct CTaper {
  double root;
  double toe;
};

CTaper TaperOf(double t, double overhang, const CFlangeForm& form) {
  const double half = form.m_dSlope * overhang / 2;
  return {t + half, t - half};
}

CPath Rounded(const std::vector<CCorner>& corners) { return RoundedPath(corners); }

CPoint Unit(CPoint from, CPoint to) {
  const double length = Hypot(to.x - from.x, to.y - from.y);
  return {(to.x - from.x) / length, (to.y - from.y) / length};
}

// The corner of one side of a strip, `side` 1 for the left and -1 for the right of its direction.
CCorner StripCorner(std::span<const CPoint> middle, std::size_t i, double t, double r, int side) {
  const CPoint at = middle[i];
  const CPoint in = i > 0 ? Unit(middle[i - 1], at) : Unit(at, middle[i + 1]);
  const CPoint out = i + 1 < middle.size() ? Unit(at, middle[i + 1]) : in;
  const double turn = in.x * out.y - in.y * out.x;
  const double cosine = in.x * out.x + in.y * out.y;
  const double shift = side * t / 2;
  // The side's two lines meet on the bisector.
  const CPoint corner{at.x + shift * (-in.y - out.y) / (1 + cosine),
                      at.y + shift * (in.x + out.x) / (1 + cosine)};
  const bool bend = i > 0 && i + 1 < middle.size();
  return {corner.x, corner.y, !bend ? 0.0 : turn * side > 0 ? r : r + t};
}

}  // namespace

CPath IShape(double b, double h, double tw, double t, CFlangeForm form) {
  const CTaper taper = TaperOf(t, (b - tw) / 2, form);
  const double left = (b - tw) / 2;
  const double right = (b + tw) / 2;
  const double toe = form.m_dToe;
  const double root = form.m_dRoot;
  return Rounded({{0, 0},
                  {b, 0},
                  {b, taper.toe, toe},
                  {right, taper.root, root},
                  {right, h - taper.root, root},
                  {b, h - taper.toe, toe},
                  {b, h},
                  {0, h},
                  {0, h - taper.toe, toe},
                  {left, h - taper.root, root},
                  {left, taper.root, root},
                  {0, taper.toe, toe}});
}

CPath ChannelShape(double b, double h, double tw, double t, CFlangeForm form) {
  const CTaper taper = TaperOf(t, b - tw, form);
  return Rounded({{0, 0},
                  {b, 0},
                  {b, taper.toe, form.m_dToe},
                  {tw, taper.root, form.m_dRoot},
                  {tw, h - taper.root, form.m_dRoot},
                  {b, h - taper.toe, form.m_dToe},
                  {b, h},
                  {0, h}});
}

CPath TShape(double b, double h, double tw, double t, CFlangeForm form) {
  const CTaper taper = TaperOf(t, (b - tw) / 2, form);
  return Rounded({{(b - tw) / 2, 0},
                  {(b + tw) / 2, 0},
                  {(b + tw) / 2, h - taper.root, form.m_dRoot},
                  {b, h - taper.toe, form.m_dToe},
                  {b, h},
                  {0, h},
                  {0, h - taper.toe, form.m_dToe},
                  {(b - tw) / 2, h - taper.root, form.m_dRoot}});
}

CPath AngleShape(double b, double h, double t, CFlangeForm form) {
  return Rounded(
      {{0, 0}, {b, 0}, {b, t, form.m_dToe}, {t, t, form.m_dRoot}, {t, h, form.m_dToe}, {0, h}});
}

CPath StripShape(std::span<const CPoint> middle, double t, double r) {
  std::vector<CCorner> corners;
  for (std::size_t i = 0; i < middle.size(); ++i)
    corners.push_back(StripCorner(middle, i, t, r, -1));
  for (std::size_t i = middle.size(); i-- > 0;) corners.push_back(StripCorner(middle, i, t, r, 1));
  return RoundedPath(corners);
}

std::vector<CPath> TubeShape(double b, double h, double t, double r) {
  const double inner = std::max(r - t, 0.0);
  return {Rounded({{0, 0, r}, {b, 0, r}, {b, h, r}, {0, h, r}}),
          Rounded({{t, t, inner}, {t, h - t, inner}, {b - t, h - t, inner}, {b - t, t, inner}})};
}

std::vector<CPath> RingShape(double outerRadius, double innerRadius) {
  const CPoint center{outerRadius, outerRadius};
  return {CirclePath(center, outerRadius), Reversed(CirclePath(center, innerRadius))};
}

}  // namespace orv3
