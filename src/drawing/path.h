// Plane paths of straight edges and circular arcs: what sections and drawings are made of.
//
// Coordinates run x to the right and y upwards. A closed path that runs counter-clockwise bounds
// material, one that runs clockwise bounds a hole.
#pragma once

#include <span>
#include <vector>

#include "framework/export.h"

namespace orv3 {

struct CPoint {
  double x = 0;
  double y = 0;
};

// A vertex and the edge that leaves it. The bulge is the tangent of a quarter of the angle that the
// edge's arc sweeps: 0 a straight edge, 1 a half circle, positive counter-clockwise. (DXF's own
// measure of an arc in a polyline.)
struct CVertex {
  double x = 0;
  double y = 0;
  double bulge = 0;
};

struct CPath {
  std::vector<CVertex> m_arrVertex;
  bool m_bClosed = true;
};

// A corner of a polygon and the radius that rounds it.
struct CCorner {
  double x = 0;
  double y = 0;
  double radius = 0;
};

// The circle and the angles (radians) that an arc covers; the sweep is negative when it runs
// clockwise.
struct CArc {
  CPoint center;
  double radius = 0;
  double start = 0;  // angle of the first point
  double sweep = 0;
};

struct CBox {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;
  double Width() const noexcept { return right - left; }
  double Height() const noexcept { return top - bottom; }
};

ORV3CAL_API CPath RectPath(double left, double bottom, double width, double height);
ORV3CAL_API CPath CirclePath(CPoint center, double radius);
ORV3CAL_API CPath LinePath(CPoint from, CPoint to);
// The closed polygon through the corners with each rounded by its radius. Arcs that do not fit on
// an edge together are lessened to half of it, or to what the smaller one leaves.
ORV3CAL_API CPath RoundedPath(std::span<const CCorner> corners);

// The arc of an edge with a bulge (not 0).
ORV3CAL_API CArc EdgeArc(const CVertex& from, const CVertex& to);

ORV3CAL_API CPath Moved(CPath path, double dx, double dy);
// Turned counter-clockwise about the origin.
ORV3CAL_API CPath Turned(CPath path, double degrees);
// The mirror images in the y axis and the x axis, walked backwards so that the sense is kept.
ORV3CAL_API CPath MirroredX(CPath path);
ORV3CAL_API CPath MirroredY(CPath path);
// The same loop walked the other way round.
ORV3CAL_API CPath Reversed(CPath path);

// The smallest upright rectangle around the paths, arcs included; all 0 without vertices.
ORV3CAL_API CBox PathBounds(std::span<const CPath> paths);

// The path as points, arcs replaced by chords that stray at most `tolerance`; a closed path ends
// with its first point.
ORV3CAL_API std::vector<CPoint> Flattened(const CPath& path, double tolerance);

ORV3CAL_API bool IsFinite(const CPath& path) noexcept;

}  // namespace orv3
