// Pieces of loops in a tree of enclosing octagons and more, to find those that come near each
// other without comparing all with all.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <vector>

#include "outlines/loop_pieces.h"

namespace orv3 {

class CPieceTree {
 public:
  // The pieces must outlive the tree. Steps are bounded over the tree's life: each comparison of
  // two nodes or of a node with a ray is one.
  CPieceTree(std::span<const CLoopPiece> pieces, double tolerance, long maxSteps);

  // Calls visit(a, b) for the positions of each two pieces whose hulls meet, until it answers
  // false.
  void EachNearPair(const std::function<bool(int, int)>& visit);
  // Calls visit(a) for the pieces whose hulls meet the ray that runs from the point to the right.
  void EachOnRay(CPoint from, const std::function<void(int)>& visit);

  bool IsExhausted() const noexcept { return m_nSteps <= 0; }

 private:
  // In so many directions, evenly spread over a half turn, the strip that holds the node's pieces:
  // parallel edges at any slope are told apart by one that runs across them.
  static constexpr std::size_t kDirections = 8;
  struct CStrip {
    double m_dLow, m_dHigh;
  };
  using CHull = std::array<CStrip, kDirections>;
  struct CNode {
    CHull m_hull;
    int m_nFirst, m_nCount;  // of m_arrOrder
    int m_nChild = -1;       // the first of two that follow each other; -1: a leaf
  };

  CHull HullOf(const CLoopPiece& piece) const;
  void Build(int node);
  void Pairs(int a, int b);
  void Ray(int node, CPoint from, const std::function<void(int)>& visit);

  std::span<const CLoopPiece> m_arrPiece;
  const double m_dTolerance;
  long m_nSteps;
  std::vector<CHull> m_arrHull;
  std::vector<int> m_arrOrder;
  std::vector<CNode> m_arrNode;
  std::function<bool(int, int)> m_visit;
  bool m_bStopped = false;
};

}  // namespace orv3
