#include "outlines/piece_tree.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr int kLeaf = 4;

CPoint Direction(std::size_t number, std::size_t count) {
  const double angle = std::numbers::pi * static_cast<double>(number) / static_cast<double>(count);
  return {Cos(angle), Sin(angle)};
}

// How far an arc rises over its chord.
double Rise(const CLoopPiece& piece) {
  if (!piece.IsArc()) return 0;
  const double half = Hypot(piece.m_to.x - piece.m_from.x, piece.m_to.y - piece.m_from.y) / 2;
  const double r = piece.m_dRadius;
  return r - std::sqrt(std::max(0.0, r * r - half * half));
}

}  // namespace

CPieceTree::CPieceTree(std::span<const CLoopPiece> pieces, double tolerance, long maxSteps)
    : m_arrPiece(pieces), m_dTolerance(tolerance), m_nSteps(maxSteps) {
  m_arrHull.reserve(pieces.size());
  for (const CLoopPiece& piece : pieces) m_arrHull.push_back(HullOf(piece));
  m_arrOrder.resize(pieces.size());
  std::iota(m_arrOrder.begin(), m_arrOrder.end(), 0);
  m_arrNode.reserve(2 * pieces.size() + 1);
  m_arrNode.push_back({{}, 0, static_cast<int>(pieces.size())});
  if (!pieces.empty()) Build(0);
}

CPieceTree::CHull CPieceTree::HullOf(const CLoopPiece& piece) const {
  const double slack = Rise(piece) + m_dTolerance;
  CHull hull;
  for (std::size_t i = 0; i < kDirections; ++i) {
    const CPoint d = Direction(i, kDirections);
    const double a = d.x * piece.m_from.x + d.y * piece.m_from.y;
    const double b = d.x * piece.m_to.x + d.y * piece.m_to.y;
    hull[i] = {std::min(a, b) - slack, std::max(a, b) + slack};
  }
  return hull;
}

void CPieceTree::Build(int at) {
  const int first = m_arrNode[static_cast<std::size_t>(at)].m_nFirst;
  const int count = m_arrNode[static_cast<std::size_t>(at)].m_nCount;
  const auto begin = m_arrOrder.begin() + first;
  const auto hullOf = [&](int piece) -> const CHull& {
    return m_arrHull[static_cast<std::size_t>(piece)];
  };
  CHull hull = hullOf(*begin);
  CHull middles = hull;  // where the strips' middles lie
  for (std::size_t i = 0; i < kDirections; ++i) {
    middles[i] = {1e300, -1e300};
    for (auto each = begin; each != begin + count; ++each) {
      const CStrip strip = hullOf(*each)[i];
      const double middle = strip.m_dLow + strip.m_dHigh;
      hull[i] = {std::min(hull[i].m_dLow, strip.m_dLow), std::max(hull[i].m_dHigh, strip.m_dHigh)};
      middles[i] = {std::min(middles[i].m_dLow, middle), std::max(middles[i].m_dHigh, middle)};
    }
  }
  m_arrNode[static_cast<std::size_t>(at)].m_hull = hull;
  if (count <= kLeaf) return;
  const auto widest = std::max_element(
      middles.begin(), middles.end(),
      [](const CStrip& a, const CStrip& b) { return a.m_dHigh - a.m_dLow < b.m_dHigh - b.m_dLow; });
  const auto axis = static_cast<std::size_t>(widest - middles.begin());
  const auto key = [&](int piece) {
    return hullOf(piece)[axis].m_dLow + hullOf(piece)[axis].m_dHigh;
  };
  std::nth_element(begin, begin + count / 2, begin + count,
                   [&](int a, int b) { return key(a) != key(b) ? key(a) < key(b) : a < b; });
  const int child = static_cast<int>(m_arrNode.size());
  m_arrNode[static_cast<std::size_t>(at)].m_nChild = child;
  m_arrNode.push_back({{}, first, count / 2});
  m_arrNode.push_back({{}, first + count / 2, count - count / 2});
  Build(child);
  Build(child + 1);
}

void CPieceTree::EachNearPair(const std::function<bool(int, int)>& visit) {
  m_visit = visit;
  m_bStopped = false;
  if (!m_arrPiece.empty()) Pairs(0, 0);
}

void CPieceTree::Pairs(int a, int b) {
  if (m_bStopped || --m_nSteps <= 0) return;
  const CNode& one = m_arrNode[static_cast<std::size_t>(a)];
  const CNode& two = m_arrNode[static_cast<std::size_t>(b)];
  const auto apart = [](const CHull& p, const CHull& q) {
    for (std::size_t i = 0; i < kDirections; ++i) {
      if (p[i].m_dLow > q[i].m_dHigh || q[i].m_dLow > p[i].m_dHigh) return true;
    }
    return false;
  };
  if (a != b && apart(one.m_hull, two.m_hull)) return;
  if (one.m_nChild < 0 && two.m_nChild < 0) {
    for (int i = 0; i < one.m_nCount; ++i) {
      for (int k = a == b ? i + 1 : 0; k < two.m_nCount && !m_bStopped; ++k) {
        const int p = m_arrOrder[static_cast<std::size_t>(one.m_nFirst + i)];
        const int q = m_arrOrder[static_cast<std::size_t>(two.m_nFirst + k)];
        --m_nSteps;
        if (!apart(m_arrHull[static_cast<std::size_t>(p)], m_arrHull[static_cast<std::size_t>(q)]))
          m_bStopped = !m_visit(std::min(p, q), std::max(p, q));
      }
    }
    return;
  }
  if (a == b) {
    Pairs(one.m_nChild, one.m_nChild);
    Pairs(one.m_nChild, one.m_nChild + 1);
    Pairs(one.m_nChild + 1, one.m_nChild + 1);
  } else if (two.m_nChild < 0 || (one.m_nChild >= 0 && one.m_nCount >= two.m_nCount)) {
    Pairs(one.m_nChild, b);
    Pairs(one.m_nChild + 1, b);
  } else {
    Pairs(a, two.m_nChild);
    Pairs(a, two.m_nChild + 1);
  }
}

void CPieceTree::EachOnRay(CPoint from, const std::function<void(int)>& visit) {
  if (!m_arrPiece.empty()) Ray(0, from, visit);
}

void CPieceTree::Ray(int at, CPoint from, const std::function<void(int)>& visit) {
  const CNode& node = m_arrNode[static_cast<std::size_t>(at)];
  constexpr std::size_t kX = 0, kY = kDirections / 2;
  if (--m_nSteps <= 0 || node.m_hull[kX].m_dHigh < from.x || node.m_hull[kY].m_dLow > from.y ||
      node.m_hull[kY].m_dHigh < from.y)
    return;
  if (node.m_nChild >= 0) {
    Ray(node.m_nChild, from, visit);
    Ray(node.m_nChild + 1, from, visit);
    return;
  }
  for (int i = 0; i < node.m_nCount; ++i)
    visit(m_arrOrder[static_cast<std::size_t>(node.m_nFirst + i)]);
}

}  // namespace orv3
