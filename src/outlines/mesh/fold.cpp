#include "outlines/mesh/fold.h"

#include <algorithm>
#include <cmath>

namespace orv3 {
namespace {

constexpr std::size_t kMostEdges = 500;
constexpr double kSameImage = 1e-12;  // what rounding may leave between a point and another's image
constexpr double kOn = 1e-11;         // nearer to a line lies on it

bool Near(double a, double b) { return std::fabs(a - b) <= kSameImage; }

// Whether each edge has an image among the others, walked the other way round.
template <class Image>
bool IsMirrored(std::span<const CPath> loops, Image image) {
  struct CLine {
    CPoint from, to;
    double bulge;
  };
  std::vector<CLine> lines;
  for (const CPath& loop : loops) {
    const auto& v = loop.m_arrVertex;
    for (std::size_t i = 0; i < v.size(); ++i) {
      const CVertex& next = v[(i + 1) % v.size()];
      lines.push_back({{v[i].x, v[i].y}, {next.x, next.y}, v[i].bulge});
    }
  }
  if (lines.size() > kMostEdges) return false;
  const auto same = [](CPoint a, CPoint b) { return Near(a.x, b.x) && Near(a.y, b.y); };
  return std::all_of(lines.begin(), lines.end(), [&](const CLine& line) {
    const CPoint from = image(line.to), to = image(line.from);
    return std::any_of(lines.begin(), lines.end(), [&](const CLine& other) {
      return same(other.from, from) && same(other.to, to) && Near(other.bulge, line.bulge);
    });
  });
}

// An end of a kept stretch on a line, by its place along it.
struct CCrossing {
  double along;
  CPoint at;
  bool leaves;  // the line, into the material kept
};

class CFolder {
 public:
  CFolder(std::span<const CEdge> edges, const CFold& fold) : m_edges(edges), m_fold(fold) {}

  std::optional<CFoldedEdges> Fold() {
    for (std::size_t e = 0; e < m_edges.size(); ++e) {
      if (!KeepOf(e)) return std::nullopt;
    }
    // Material lies to the left when x is walked upwards on y = m_y, y downwards on x = m_x.
    const bool both = m_fold.m_x && m_fold.m_y;
    if (both) {
      const CPoint middle{*m_fold.m_x, *m_fold.m_y};
      if (m_onX.size() % 2 != m_onY.size() % 2) return std::nullopt;
      if (m_onX.size() % 2 == 1) {
        m_onX.push_back({-middle.y, middle, true});
        m_onY.push_back({middle.x, middle, false});
      }
    }
    if (!Close(m_onX, m_out.m_onX) || !Close(m_onY, m_out.m_onY)) return std::nullopt;
    if (m_out.m_onX.empty() == m_fold.m_x.has_value()) return std::nullopt;
    if (m_out.m_onY.empty() == m_fold.m_y.has_value()) return std::nullopt;
    return std::move(m_out);
  }

 private:
  bool OnX(CPoint p) const { return m_fold.m_x && std::fabs(p.x - *m_fold.m_x) <= kOn; }
  bool OnY(CPoint p) const { return m_fold.m_y && std::fabs(p.y - *m_fold.m_y) <= kOn; }

  // Where an edge crosses a line: t of it, ends left out.
  template <class Beyond>
  static void AddCrossings(const CEdge& edge, Beyond beyond, std::vector<double>& to) {
    const int pieces = edge.IsArc() ? 16 : 1;
    const auto at = [&](double t) { return beyond(edge.At(t)); };
    for (int i = 0; i < pieces; ++i) {
      double a = 1.0 * i / pieces, b = 1.0 * (i + 1) / pieces;
      const double fa = at(a), fb = at(b);
      if (i > 0 && std::fabs(fa) <= kOn) to.push_back(a);
      if (std::fabs(fa) <= kOn || std::fabs(fb) <= kOn || (fa > 0) == (fb > 0)) continue;
      if (!edge.IsArc()) {
        to.push_back(fa / (fa - fb));
        continue;
      }
      for (int k = 0; k < 52; ++k) {
        const double middle = (a + b) / 2;
        ((at(middle) > 0) == (fa > 0) ? a : b) = middle;
      }
      to.push_back((a + b) / 2);
    }
  }

  // False when a stretch runs along a line.
  bool KeepOf(std::size_t e) {
    const CEdge& edge = m_edges[e];
    std::vector<double> at{0, 1};
    if (m_fold.m_x)
      AddCrossings(
          edge, [&](CPoint p) { return p.x - *m_fold.m_x; }, at);
    if (m_fold.m_y)
      AddCrossings(
          edge, [&](CPoint p) { return p.y - *m_fold.m_y; }, at);
    std::sort(at.begin(), at.end());
    for (std::size_t i = 0; i + 1 < at.size(); ++i) {
      const CPoint middle = edge.At((at[i] + at[i + 1]) / 2);
      if (OnX(middle) || OnY(middle)) return false;
      if (m_fold.Inside(middle) < 0) continue;
      m_out.m_arrKept.push_back({e, at[i], at[i + 1]});
      if (!AddEnd(edge.At(at[i]), true) || !AddEnd(edge.At(at[i + 1]), false)) return false;
    }
    return true;
  }

  bool AddEnd(CPoint p, bool leaves) {
    const bool onX = OnX(p), onY = OnY(p);
    if (onX) m_onX.push_back({-p.y, p, leaves});
    if (onY) m_onY.push_back({p.x, p, leaves});
    return !(onX && onY);
  }

  // Along a line, from where the outline comes to it to where it leaves it.
  static bool Close(std::vector<CCrossing>& on, std::vector<CEdge>& to) {
    std::sort(on.begin(), on.end(),
              [](const CCrossing& a, const CCrossing& b) { return a.along < b.along; });
    if (on.size() % 2 != 0) return false;
    for (std::size_t i = 0; i < on.size(); ++i) {
      if (on[i].leaves != (i % 2 == 1)) return false;
      if (i > 0 && on[i].along - on[i - 1].along <= kOn) return false;
      if (on[i].leaves)
        to.emplace_back(CVertex{on[i - 1].at.x, on[i - 1].at.y}, CVertex{on[i].at.x, on[i].at.y});
    }
    return true;
  }

  std::span<const CEdge> m_edges;
  const CFold& m_fold;
  std::vector<CCrossing> m_onX, m_onY;
  CFoldedEdges m_out;
};

}  // namespace

double CFold::Inside(CPoint p) const {
  double least = HUGE_VAL;
  if (m_x) least = std::min(least, p.x - *m_x);
  if (m_y) least = std::min(least, p.y - *m_y);
  return least;
}

CFold FoldOf(std::span<const CPath> loops) {
  const CBox box = PathBounds(loops);
  const double x = (box.left + box.right) / 2, y = (box.bottom + box.top) / 2;
  CFold fold;
  if (IsMirrored(loops, [&](CPoint p) { return CPoint{2 * x - p.x, p.y}; })) fold.m_x = x;
  if (IsMirrored(loops, [&](CPoint p) { return CPoint{p.x, 2 * y - p.y}; })) fold.m_y = y;
  return fold;
}

std::optional<CFoldedEdges> Folded(std::span<const CEdge> edges, const CFold& fold) {
  return CFolder(edges, fold).Fold();
}

}  // namespace orv3
