// Outlines of section shapes from their sizes. Sketches give them proportions chosen to be seen,
// outlines of rows true ones. Each shape has its bounding box's lower-left corner at the origin.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"

namespace orv3 {

// Radii and slope of a rolled flange: `root` where it meets the web, `toe` at its end, `slope` the
// fall of its inner face. All 0 for plates and welded shapes.
struct CFlangeForm {
  double m_dRoot = 0;
  double m_dToe = 0;
  double m_dSlope = 0;
};

// Doubly symmetric I or H: b wide, h high, web tw, flange t (at half its overhang).
CPath IShape(double b, double h, double tw, double t, CFlangeForm form = {});
// Channel open to the right; T with its flange at the top; angle with its corner at the origin.
CPath ChannelShape(double b, double h, double tw, double t, CFlangeForm form = {});
CPath TShape(double b, double h, double tw, double t, CFlangeForm form = {});
CPath AngleShape(double b, double h, double t, CFlangeForm form = {});

// A strip of thickness t bent along a line of straight pieces, with inner radius r.
CPath StripShape(std::span<const CPoint> middle, double t, double r);

// Outer loop and hole of a rectangular tube with corner radius r outside.
std::vector<CPath> TubeShape(double b, double h, double t, double r);
std::vector<CPath> RingShape(double outerRadius, double innerRadius);

}  // namespace orv3
