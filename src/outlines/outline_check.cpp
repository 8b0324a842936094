#include "outlines/outline_check.h"

#include <algorithm>
#include <cmath>

#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "outlines/loop_nesting.h"
#include "outlines/loops.h"
#include "outlines/piece_tree.h"

namespace orv3 {
namespace {

using CFault = std::optional<COutlineFault>;

constexpr long kMostSteps = 60'000'000;

std::string Number(std::size_t position) { return std::to_string(position + 1); }
std::string Number(int position) { return std::to_string(position + 1); }

// --- Points --------------------------------------------------------------------------------------

CFault CheckPoint(const CVertex& v, const std::string& loop, const std::string& point) {
  if (!std::isfinite(v.x) || !std::isfinite(v.y) || !std::isfinite(v.bulge)) {
    return COutlineFault{
        "第 " + loop + " 圈第 " + point + " 点不是有限数；请给出数值",
        "loop " + loop + ", point " + point + ": not finite; right would be numbers"};
  }
  if (std::max(std::fabs(v.x), std::fabs(v.y)) > kFarthestOutlinePoint) {
    return COutlineFault{
        "第 " + loop + " 圈第 " + point + " 点离原点超过 1000000 mm；请把截面画在原点附近",
        "loop " + loop + ", point " + point +
            ": beyond 1000000 mm from the origin; right would be a section near "
            "it"};
  }
  // Beyond this an arc is its whole circle but for a gap that no computation could resolve.
  if (std::fabs(v.bulge) > 1e4) {
    return COutlineFault{"第 " + loop + " 圈第 " + point + " 点的凸度过大；整圆请用两段半圆",
                         "loop " + loop + ", point " + point +
                             ": its bulge is too large; right for a circle would be two halves "
                             "with a bulge of 1"};
  }
  return std::nullopt;
}

CFault CheckPoints(std::span<const CPath> loops) {
  std::size_t points = 0;
  for (const CPath& loop : loops) points += loop.m_arrVertex.size();
  if (points == 0) {
    return COutlineFault{"没有轮廓；请至少给出一圈",
                         "holds no outline; right would be one closed loop at least"};
  }
  if (points > kMostOutlinePoints) {
    return COutlineFault{
        "轮廓有 " + std::to_string(points) + " 点，至多 100000 点；圆弧请用凸度",
        "has " + std::to_string(points) +
            " points, at most 100000 are taken; right for curves would be arcs (bulges)"};
  }
  for (std::size_t i = 0; i < loops.size(); ++i) {
    for (std::size_t k = 0; k < loops[i].m_arrVertex.size(); ++k) {
      if (auto fault = CheckPoint(loops[i].m_arrVertex[k], Number(i), Number(k))) return fault;
    }
  }
  return std::nullopt;
}

// --- Single loops --------------------------------------------------------------------------------

CFault CheckEdges(const CPath& loop, const std::string& number, double tolerance) {
  const auto& vertices = loop.m_arrVertex;
  if (!loop.m_bClosed) {
    const CVertex& a = vertices.front();
    const CVertex& b = vertices.back();
    return COutlineFault{"第 " + number + " 圈未闭合：从 " + PointText({a.x, a.y}) + " 到 " +
                             PointText({b.x, b.y}) + "；请使其闭合",
                         "loop " + number + " is open, from " + PointText({a.x, a.y}) + " to " +
                             PointText({b.x, b.y}) + "; right would be a closed one"};
  }
  for (std::size_t i = 0; i < vertices.size() && vertices.size() > 1; ++i) {
    const CVertex& a = vertices[i];
    const CVertex& b = vertices[(i + 1) % vertices.size()];
    if (Hypot(b.x - a.x, b.y - a.y) > 4 * tolerance) continue;
    return COutlineFault{"第 " + number + " 圈第 " + Number(i) + " 点起的边长度为零：" +
                             PointText({a.x, a.y}) + "；请去掉重复的点",
                         "loop " + number + ": the edge from point " + Number(i) + ", " +
                             PointText({a.x, a.y}) +
                             ", has no length; right would be to leave the repeated point out"};
  }
  return std::nullopt;
}

CFault CheckSingleLoops(std::span<const CPath> loops, double tolerance, double size) {
  for (std::size_t i = 0; i < loops.size(); ++i) {
    const CFault empty = COutlineFault{
        "第 " + Number(i) + " 圈不包围任何面积；请给出三点或圆弧",
        "loop " + Number(i) + " encloses nothing; right would be three points, or arcs"};
    if (loops[i].m_arrVertex.empty()) return empty;
    if (auto fault = CheckEdges(loops[i], Number(i), tolerance)) return fault;
    if (loops[i].m_arrVertex.size() < 2 ||
        (loops[i].m_arrVertex.size() == 2 && std::fabs(LoopArea(loops[i])) <= tolerance * size))
      return empty;
  }
  return std::nullopt;
}

// --- Crossings -----------------------------------------------------------------------------------

COutlineFault Meeting(int a, int b, CPoint at) {
  if (a == b) {
    return {"第 " + Number(a) + " 圈在 " + PointText(at) +
                " 处与自身相交或相触；各边只应首尾相接，孔请另画一圈",
            "loop " + Number(a) + " crosses or touches itself at " + PointText(at) +
                "; right would be edges that meet at their ends only, and holes as loops of their "
                "own"};
  }
  return {"第 " + Number(a) + " 圈与第 " + Number(b) + " 圈在 " + PointText(at) +
              " 处相交或相触；相连的部分请合画一圈，不相连的请分开",
          "loops " + Number(a) + " and " + Number(b) + " cross or touch at " + PointText(at) +
              "; right would be one loop around what is joined, or loops apart"};
}

CFault CheckCrossings(std::span<const CPath> loops, double tolerance, double size) {
  const std::vector<CLoopPiece> pieces = LoopPieces(loops, tolerance);
  CPieceTree tree(pieces, tolerance, kMostSteps);
  CFault fault;
  tree.EachNearPair([&](int first, int second) {
    const CLoopPiece& a = pieces[static_cast<std::size_t>(first)];
    const CLoopPiece& b = pieces[static_cast<std::size_t>(second)];
    const bool next = a.m_nNext == second;
    const bool before = b.m_nNext == first;
    for (const CPoint p : Meetings(a, b, tolerance)) {
      // Arcs and lines that run on into each other seem to meet somewhat beside their common end.
      const auto shared = [&](CPoint end) {
        return Hypot(p.x - end.x, p.y - end.y) <= 1e-6 * size;
      };
      if ((next && shared(a.m_to)) || (before && shared(b.m_to))) continue;
      fault = Meeting(a.m_nLoop, b.m_nLoop, p);
      return false;
    }
    return true;
  });
  if (!fault && tree.IsExhausted()) fault = TooCloseFault();
  return fault;
}

}  // namespace

std::string PointText(CPoint p) {
  return "(" + ToUtf8(FormatG(p.x)) + ", " + ToUtf8(FormatG(p.y)) + ")";
}

COutlineFault TooCloseFault() {
  return {"各边过于密集，无法判断是否相交；请用圆弧代替细碎的折线",
          "its edges lie too close together to tell whether they cross; right would be arcs in "
          "place of many short edges"};
}

std::optional<COutlineFault> CheckLoops(std::span<const CPath> loops) {
  if (auto fault = CheckPoints(loops)) return fault;
  const double size = LoopSize(loops);
  const double tolerance = 1e-9 * size;
  if (auto fault = CheckSingleLoops(loops, tolerance, size)) return fault;
  return CheckCrossings(loops, tolerance, size);
}

std::optional<COutlineFault> CheckOutline(std::span<const CPath> loops) {
  if (auto fault = CheckLoops(loops)) return fault;
  const std::vector<CLoopPlace> places = NestLoops(loops);
  if (places.empty()) return TooCloseFault();
  for (std::size_t i = 0; i < loops.size(); ++i) {
    const bool hole = LoopArea(loops[i]) < 0;
    if (hole == places[i].IsHole()) continue;
    if (hole) {
      return COutlineFault{
          "第 " + Number(i) + " 圈是孔，却在所有部分之外；孔应在某一部分之内",
          "loop " + Number(i) + " is a hole outside of every part; right would be a hole within"};
    }
    return COutlineFault{
        "第 " + Number(i) + " 圈是实心部分，却在另一部分之内；各部分应并列",
        "loop " + Number(i) + " is a part inside another one; right would be parts side by side"};
  }
  return std::nullopt;
}

}  // namespace orv3
