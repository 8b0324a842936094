// How far points are from the edges of an outline.
#pragma once

#include "drawing/path.h"
#include "outlines/edge.h"

namespace orv3 {

// How far a point is from an edge, and whether it lies on its left.
struct CNear {
  double distance = 0;
  bool left = false;
};

// Of an arc.
struct CCircle {
  CPoint center;
  double radius = 0;
};

double Distance(CPoint a, CPoint b);
CCircle CircleOf(const CEdge& arc);
// Whether the line from the center through a point meets the arc.
bool IsBeside(CPoint p, const CEdge& arc, const CCircle& circle);
// The point of a line from a to b that is nearest to p.
CPoint Foot(CPoint p, CPoint a, CPoint b);
CNear Nearest(CPoint p, CPoint a, CPoint b);
CNear Nearest(CPoint p, const CEdge& edge);

}  // namespace orv3
