// The edges of loops cut into pieces that rise or fall all along: what the tests for crossing and
// nesting work on.
#pragma once

#include <span>
#include <vector>

#include "drawing/path.h"

namespace orv3 {

// A straight edge, or an arc within one quarter of its circle, so that the rectangle around its two
// ends holds it and no other point of the circle.
struct CLoopPiece {
  CPoint m_from, m_to;
  CPoint m_center;       // of an arc
  double m_dRadius = 0;  // 0: straight
  int m_nLoop = 0;
  int m_nNext = 0;  // position of the piece that goes on where this one ends

  bool IsArc() const noexcept { return m_dRadius > 0; }
  CBox Box() const noexcept;
};

// The pieces of all loops, in their order. Arcs that rise less than `tolerance` over their chord
// count as straight.
std::vector<CLoopPiece> LoopPieces(std::span<const CPath> loops, double tolerance);

// The points in which two pieces meet, up to `tolerance` apart; where they run together, the ends
// of the part that they share.
std::vector<CPoint> Meetings(const CLoopPiece& a, const CLoopPiece& b, double tolerance);

// The greater side of the upright rectangle around all points of the loops, mm: what tolerances are
// shares of.
double LoopSize(std::span<const CPath> loops);

}  // namespace orv3
