#include "outlines/loop_nesting.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "outlines/loops.h"
#include "outlines/piece_tree.h"

namespace orv3 {
namespace {

constexpr long kMostNestingSteps = 30'000'000;
// A bulge that bends an edge by less than any size is told.
constexpr double kFlat = 1e-10;

// Where a piece that rises or falls all along meets the height y, which is between its ends.
double CrossingX(const CLoopPiece& piece, double y) {
  if (!piece.IsArc()) {
    const double t = (y - piece.m_from.y) / (piece.m_to.y - piece.m_from.y);
    return piece.m_from.x + t * (piece.m_to.x - piece.m_from.x);
  }
  const double dy = y - piece.m_center.y;
  const double dx = std::sqrt(std::max(0.0, piece.m_dRadius * piece.m_dRadius - dy * dy));
  const double middle = (piece.m_from.x + piece.m_to.x) / 2;
  return piece.m_center.x + (middle < piece.m_center.x ? -dx : dx);
}

// The ends count as of the piece above them, so that a ray through a corner crosses one piece of
// two that go on upwards, and none or both of two that turn there.
bool Crosses(const CLoopPiece& piece, double y) {
  return (piece.m_from.y > y) != (piece.m_to.y > y);
}

// The loops around a point, by their first crossings to its right, nearest first.
std::vector<int> Around(CPieceTree& tree, std::span<const CLoopPiece> pieces, CPoint point,
                        int except) {
  struct CCrossed {
    int m_nTimes = 0;
    double m_dNearest = 0;
  };
  std::map<int, CCrossed> crossed;
  tree.EachOnRay(point, [&](int at) {
    const CLoopPiece& piece = pieces[static_cast<std::size_t>(at)];
    if (piece.m_nLoop == except || !Crosses(piece, point.y)) return;
    const double x = CrossingX(piece, point.y);
    if (x <= point.x) return;
    CCrossed& loop = crossed[piece.m_nLoop];
    if (loop.m_nTimes++ == 0 || x < loop.m_dNearest) loop.m_dNearest = x;
  });
  std::vector<std::pair<double, int>> around;
  for (const auto& [loop, times] : crossed) {
    if (times.m_nTimes % 2 == 1) around.emplace_back(times.m_dNearest, loop);
  }
  std::sort(around.begin(), around.end());
  std::vector<int> loops;
  for (const auto& [x, loop] : around) loops.push_back(loop);
  return loops;
}

}  // namespace

std::vector<CLoopPlace> NestLoops(std::span<const CPath> loops) {
  const double tolerance = 1e-9 * LoopSize(loops);
  const std::vector<CLoopPiece> pieces = LoopPieces(loops, tolerance);
  CPieceTree tree(pieces, tolerance, kMostNestingSteps);
  std::vector<CLoopPlace> places(loops.size());
  for (std::size_t i = 0; i < loops.size(); ++i) {
    if (loops[i].m_arrVertex.empty()) continue;
    const CVertex& v = loops[i].m_arrVertex.front();
    const std::vector<int> around = Around(tree, pieces, {v.x, v.y}, static_cast<int>(i));
    places[i].m_nDepth = static_cast<int>(around.size());
    if (!around.empty()) places[i].m_nParent = around.front();
    if (tree.IsExhausted()) return {};
  }
  return places;
}

std::vector<CPath> Sensed(std::vector<CPath> loops, std::span<const CLoopPlace> places) {
  for (std::size_t i = 0; i < loops.size(); ++i) {
    for (CVertex& v : loops[i].m_arrVertex) {
      if (std::fabs(v.bulge) < kFlat) v.bulge = 0;
    }
    if ((LoopArea(loops[i]) < 0) != places[i].IsHole()) loops[i] = Reversed(std::move(loops[i]));
  }
  return loops;
}

}  // namespace orv3
