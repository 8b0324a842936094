// Parts that are their own mirror images: a half or a quarter of them is enough to be solved.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "drawing/path.h"
#include "outlines/edge.h"

namespace orv3 {

// The lines x = m_x and y = m_y that a part is mirrored in; what lies beyond them, on the side of
// greater x and y, is kept.
struct CFold {
  std::optional<double> m_x, m_y;

  bool Any() const { return m_x || m_y; }
  int Images() const { return (m_x ? 2 : 1) * (m_y ? 2 : 1); }
  // By how much a point lies beyond the nearer line.
  double Inside(CPoint p) const;
};

// Of a part whose loops are of size 1.
CFold FoldOf(std::span<const CPath> loops);

// A stretch of an edge by its t, or of the line x = m_x or y = m_y.
struct CKept {
  std::size_t m_nEdge = 0;
  double m_dFrom = 0, m_dTo = 1;
};
struct CFoldedEdges {
  std::vector<CKept> m_arrKept;
  std::vector<CEdge> m_onX, m_onY;  // along the lines, material to the left
};

// The boundary of what is kept; nothing when the outline only touches a line, or runs along it.
std::optional<CFoldedEdges> Folded(std::span<const CEdge> edges, const CFold& fold);

}  // namespace orv3
