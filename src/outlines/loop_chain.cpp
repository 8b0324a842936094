#include "outlines/loop_chain.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "framework/double_bits.h"
#include "framework/elementary.h"
#include "framework/number_text.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

// The ends of all paths in a grid of cells as wide as the tolerance; end 2 i is where path i
// begins, end 2 i + 1 where it ends.
class CEnds {
 public:
  CEnds(const std::vector<CPath>& paths, double tolerance)
      : m_arrPath(paths), m_dTolerance(tolerance) {
    for (std::size_t end = 0; end < 2 * paths.size(); ++end)
      m_mapCell.emplace(Key(Cell(Point(end).x), Cell(Point(end).y)), end);
  }

  CPoint Point(std::size_t end) const {
    const auto& vertices = m_arrPath[end / 2].m_arrVertex;
    const CVertex& v = end % 2 == 0 ? vertices.front() : vertices.back();
    return {v.x, v.y};
  }

  // The other ends at the same place; of more than two the first two.
  std::vector<std::size_t> Others(std::size_t end) const {
    const CPoint p = Point(end);
    std::vector<std::size_t> others;
    for (const int dx : {-1, 0, 1}) {
      for (const int dy : {-1, 0, 1}) {
        const auto [first, last] = m_mapCell.equal_range(Key(Cell(p.x) + dx, Cell(p.y) + dy));
        for (auto each = first; each != last && others.size() < 2; ++each) {
          const CPoint q = Point(each->second);
          if (each->second != end && Hypot(p.x - q.x, p.y - q.y) <= m_dTolerance)
            others.push_back(each->second);
        }
      }
    }
    return others;
  }

 private:
  // A whole number as a double: a file's coordinates may lie beyond every integer. The sum makes a
  // negative zero a positive one.
  double Cell(double value) const { return std::floor(value / m_dTolerance) + 0.0; }
  static std::uint64_t Key(double x, double y) {
    return BitsOf(x) * 0x9E3779B97F4A7C15U ^ BitsOf(y);
  }

  const std::vector<CPath>& m_arrPath;
  const double m_dTolerance;
  std::unordered_multimap<std::uint64_t, std::size_t> m_mapCell;
};

// The path's points without its last, which the next path begins with.
void Append(CPath& loop, CPath path) {
  path.m_arrVertex.pop_back();
  loop.m_arrVertex.insert(loop.m_arrVertex.end(), path.m_arrVertex.begin(), path.m_arrVertex.end());
}

// The same open path from its end to its beginning.
CPath Backwards(const CPath& path) {
  CPath back{{}, false};
  const auto& vertices = path.m_arrVertex;
  for (std::size_t i = vertices.size(); i-- > 0;)
    back.m_arrVertex.push_back({vertices[i].x, vertices[i].y, i > 0 ? -vertices[i - 1].bulge : 0});
  return back;
}

COutlineFault Open(CPoint at) {
  return {"轮廓在 " + PointText(at) + " 处未闭合",
          "the outline is open at " + PointText(at) + "; right would be edges joined end to end"};
}

COutlineFault Branches(CPoint at) {
  return {"在 " + PointText(at) + " 处有多于两条边相接；请去掉重复的边",
          "more than two edges meet at " + PointText(at) +
              "; right would be two, and no edge drawn twice"};
}

}  // namespace

std::optional<COutlineFault> JoinLoops(const std::vector<CPath>& open, double tolerance,
                                       std::vector<CPath>& loops) {
  const CEnds ends(open, tolerance);
  std::vector<bool> used(open.size(), false);
  std::vector<CPath> made;
  for (std::size_t first = 0; first < open.size(); ++first) {
    if (used[first]) continue;
    CPath loop;
    std::size_t end = 2 * first;  // where the next path is entered
    do {
      used[end / 2] = true;
      Append(loop, end % 2 == 0 ? open[end / 2] : Backwards(open[end / 2]));
      const std::size_t out = end ^ 1U;
      const auto others = ends.Others(out);
      if (others.empty()) return Open(ends.Point(out));
      if (others.size() > 1) return Branches(ends.Point(out));
      end = others.front();
      if (end != 2 * first && used[end / 2]) return Branches(ends.Point(end));
    } while (end != 2 * first);
    made.push_back(std::move(loop));
  }
  loops.insert(loops.end(), std::make_move_iterator(made.begin()),
               std::make_move_iterator(made.end()));
  return std::nullopt;
}

}  // namespace orv3
