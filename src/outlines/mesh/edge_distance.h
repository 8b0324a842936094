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
// The angle by which the line from p to a point turns while that runs along the edge, to the left
// positive, in radians. All edges of loops together turn it by 2 pi where p lies within them, by 0
// where it lies outside or in a hole.
double Turned(CPoint p, const CEdge& edge);

}  // namespace orv3
