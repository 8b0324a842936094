// Outlines of rolled sections from the sizes that their standards draw, for integration. mm.
#pragma once

#include <algorithm>
#include <cmath>

#include "sections/outline_integral.h"

struct CCorner {
  double x, y;
  double radius = 0;
};
using CCorners = std::vector<CCorner>;

struct CVector {
  double x, y;
};
inline CVector Direction(CCorner from, CCorner to) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  return {(to.x - from.x) / length, (to.y - from.y) / length};
}

// Appends a corner rounded by an arc that touches both sides: a polygon whose inner points stand a
// little beyond the arc, so that the areas agree.
inline void Round(CCorner before, CCorner at, CCorner after, int steps, CPolygon& out) {
  const CVector u = Direction(before, at), v = Direction(at, after);
  const double turn = std::atan2(u.x * v.y - u.y * v.x, u.x * v.x + u.y * v.y);
  const double start = at.radius * std::abs(std::tan(turn / 2));
  const double side = turn > 0 ? 1 : -1;  // of the arc's centre
  const CPoint centre{at.x - start * u.x - side * at.radius * u.y,
                      at.y - start * u.y + side * at.radius * u.x};
  const double ratio = turn / std::sin(turn / steps);
  const double beyond = (std::sqrt(1 + (steps - 2) * ratio) - 1) / (steps - 2);
  for (int i = 0; i <= steps; ++i) {
    const double radius = at.radius * side * (i == 0 || i == steps ? 1 : beyond);
    const double angle = std::atan2(u.y, u.x) + turn * i / steps;
    out.push_back({centre.x + radius * std::sin(angle), centre.y - radius * std::cos(angle)});
  }
}

inline CPolygon Rounded(const CCorners& corners, int steps = 48) {
  CPolygon out;
  for (std::size_t i = 0, n = corners.size(); i < n; ++i) {
    const CCorner at = corners[i];
    if (at.radius > 0)
      Round(corners[(i + n - 1) % n], at, corners[(i + 1) % n], steps, out);
    else
      out.push_back({at.x, at.y});
  }
  return out;
}

inline double Perimeter(const CPolygon& p) {
  double sum = 0;
  for (std::size_t i = 0; i < p.size(); ++i) {
    const CPoint a = p[i], b = p[(i + 1) % p.size()];
    sum += std::hypot(b.x - a.x, b.y - a.y);
  }
  return sum;
}

// A quarter or a half of a symmetric outline made whole.
inline CCorners WithMirror(CCorners half, double CCorner::*across) {
  CCorners other(half.rbegin(), half.rend());
  for (CCorner& corner : other) corner.*across = -(corner.*across);
  half.insert(half.end(), other.begin(), other.end());
  return half;
}

// H or I, its centre at the origin; `t` is the flange's thickness halfway along the outstand, the
// inner faces fall towards the tips by `slope`.
inline CPolygon OutlineI(double h, double b, double tw, double t, double r, double r1,
                         double slope) {
  const double half = (b - tw) / 4 * slope;
  const CCorners quarter{
      {tw / 2, h / 2 - t - half, r}, {b / 2, h / 2 - t + half, r1}, {b / 2, h / 2}};
  return Rounded(WithMirror(WithMirror(quarter, &CCorner::x), &CCorner::y));
}

// Its back on the y axis, symmetric about x.
inline CPolygon OutlineChannel(double h, double b, double tw, double t, double r, double r1,
                               double slope) {
  const double half = (b - tw) / 2 * slope;
  const CCorners upper{
      {tw, h / 2 - t - half, r}, {b, h / 2 - t + half, r1}, {b, h / 2}, {0, h / 2}};
  return Rounded(WithMirror(upper, &CCorner::y));
}

// Both legs from the origin, `B` along y; the toes are rounded by t / 3.
inline CPolygon OutlineAngle(double B, double b, double t, double r) {
  return Rounded({{0, 0}, {b, 0}, {b, t, t / 3}, {t, t, r}, {t, B, t / 3}, {0, B}});
}

// The flange's outer face on the x axis, the web upwards.
inline CPolygon OutlineT(double h, double b, double tw, double tf, double r) {
  const CCorners right{{b / 2, 0}, {b / 2, tf}, {tw / 2, tf, r}, {tw / 2, h}};
  return Rounded(WithMirror(right, &CCorner::x));
}
