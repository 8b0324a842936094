// Pieces of rolled and cold-formed outlines about an axis.
#pragma once

#include <cmath>
#include <numbers>
#include <span>

#include "framework/elementary.h"

namespace orv3 {

// The root fillet of radius r between a flange and a web, on one side of the web: it starts at the
// flange's face and ends r deep. A toe that is rounded off lacks the same shape.
inline constexpr double kFilletArea = 1 - std::numbers::pi / 4;                         // r^2
inline constexpr double kFilletDepth = (5.0 / 6 - std::numbers::pi / 4) / kFilletArea;  // r

// First moment about an axis at depth `from` of the fillet's part that lies deeper.
inline double FilletMoment(double r, double from) {
  if (from <= 0) return kFilletArea * r * r * (kFilletDepth * r - from);
  if (from >= r) return 0;
  // With u = r - depth the fillet is r - sqrt(r^2 - u^2) wide; from 0 to `end`.
  const double end = r - from;
  const double chord = std::sqrt(r * r - end * end);
  const double area = (end * chord + r * r * Asin(end / r)) / 2;
  const double moment = (r * r * r - chord * chord * chord) / 3;
  return r * end * end / 2 - (end * area - moment);
}

struct CStripPoint {
  double x, y;
};

// First moment about y = 0 of a strip t thick along a mid-line through `points`, whose corners are
// rounded with the mid-line radius r.
double StripMoment(std::span<const CStripPoint> points, double r, double t);

}  // namespace orv3
