#include "outlines/plastic.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "framework/elementary.h"
#include "outlines/edge.h"

namespace orv3 {
namespace {

// Where a function, which gives its value and slope, passes from below 0 at `low` to above 0 at
// `high`: Newton's steps, halving where they leave the bounds or close in slowly, down to what
// rounding leaves of the bounds.
template <class Function>
double Root(double low, double high, Function f) {
  const double least =
      std::numeric_limits<double>::epsilon() * std::max(std::fabs(low), std::fabs(high));
  double at = (low + high) / 2, last = std::fabs(high - low);
  for (int i = 0; i < 200; ++i) {
    const auto [value, slope] = f(at);
    (value <= 0 ? low : high) = at;
    const double newton = at - value / slope;
    const bool inside = (newton - low) * (newton - high) < 0;
    const double next = inside && std::fabs(newton - at) < last / 2 ? newton : (low + high) / 2;
    last = std::fabs(next - at);
    if (value == 0 || next == at || last <= least) break;
    at = next;
  }
  return at;
}

// A piece of the boundary that only rises or only falls.
struct CPiece {
  CEdge m_edge;
  double m_from, m_to;  // of the edge's t
  double m_bottom, m_top;
  double m_one = 0, m_y = 0, m_yy = 0;  // integrals of 1, y, y^2 over dx
};

// The area of what lies below a height, and its growth with the height.
struct CBelow {
  double area = 0;
  double width = 0;
};

class CPieces {
 public:
  explicit CPieces(std::span<const CPath> loops) {
    for (const CPath& loop : loops) {
      ForEachEdge(loop, [&](const CEdge& edge, std::size_t) { AddEdge(edge); });
    }
  }

  double Bottom() const { return m_bottom; }
  double Top() const { return m_top; }

  // By Green's theorem: the line itself at the height c closes the part and adds nothing.
  CBelow Below(double c) const {
    CBelow sum;
    for (const CPiece& piece : m_pieces) {
      if (piece.m_bottom >= c) continue;
      if (piece.m_top <= c) {
        sum.area += c * piece.m_one - piece.m_y;
        sum.width += piece.m_one;
        continue;
      }
      const auto [a, b] = PartBelow(piece, c);
      sum.width += piece.m_edge.At(b).x - piece.m_edge.At(a).x;
      sum.area +=
          Integrate(piece.m_edge, a, b, [&](CPoint p, CPoint d) { return (c - p.y) * d.x; });
    }
    return sum;
  }

  // The first moment downwards of what lies below a height.
  double MomentBelow(double c) const {
    double sum = 0;
    for (const CPiece& piece : m_pieces) {
      if (piece.m_bottom >= c) continue;
      if (piece.m_top <= c) {
        sum += (piece.m_yy - 2 * c * piece.m_y + c * c * piece.m_one) / 2;
        continue;
      }
      const auto [a, b] = PartBelow(piece, c);
      sum += Integrate(piece.m_edge, a, b,
                       [&](CPoint p, CPoint d) { return (c - p.y) * (c - p.y) * d.x; }) /
             2;
    }
    return sum;
  }

 private:
  // In pieces between the highest and lowest points of its circle.
  void AddEdge(const CEdge& edge) {
    std::vector<double> cuts{0, 1};
    if (edge.IsArc()) {
      const CPoint d = edge.Derivative(0);
      const double start = Atan2(d.y, d.x);
      const double end = start + edge.Sweep();
      for (double k = std::ceil(std::min(start, end) / std::numbers::pi);
           k * std::numbers::pi < std::max(start, end); ++k) {
        const double t = (k * std::numbers::pi - start) / edge.Sweep();
        if (t > 0 && t < 1) cuts.push_back(t);
      }
      std::sort(cuts.begin(), cuts.end());
    }
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) AddPiece(edge, cuts[i], cuts[i + 1]);
  }

  void AddPiece(const CEdge& edge, double from, double to) {
    const double a = edge.At(from).y;
    const double b = edge.At(to).y;
    CPiece piece{edge, from, to, std::min(a, b), std::max(a, b)};
    piece.m_one = edge.At(to).x - edge.At(from).x;
    piece.m_y = Integrate(edge, from, to, [](CPoint p, CPoint d) { return p.y * d.x; });
    piece.m_yy = Integrate(edge, from, to, [](CPoint p, CPoint d) { return p.y * p.y * d.x; });
    m_bottom = m_pieces.empty() ? piece.m_bottom : std::min(m_bottom, piece.m_bottom);
    m_top = m_pieces.empty() ? piece.m_top : std::max(m_top, piece.m_top);
    m_pieces.push_back(piece);
  }

  // The part of a piece that crosses the height, as a range of t.
  static std::pair<double, double> PartBelow(const CPiece& piece, double c) {
    double below = piece.m_from, above = piece.m_to;
    if (piece.m_edge.At(below).y > c) std::swap(below, above);
    const double low = below;
    if (!piece.m_edge.IsArc()) {
      const double y = piece.m_edge.At(below).y;
      below += (above - below) * (c - y) / (piece.m_edge.At(above).y - y);
    } else {
      below = Root(below, above, [&](double t) {
        return std::pair{piece.m_edge.At(t).y - c, piece.m_edge.Derivative(t).y};
      });
    }
    return low == piece.m_from ? std::pair{low, below} : std::pair{below, low};
  }

  std::vector<CPiece> m_pieces;
  double m_bottom = 0, m_top = 0;
};

// Where the area below passes a value.
double HeightOf(const CPieces& pieces, double area) {
  return Root(pieces.Bottom(), pieces.Top(), [&](double c) {
    const CBelow below = pieces.Below(c);
    return std::pair{below.area - area, below.width};
  });
}

}  // namespace

CPlasticAxis PlasticAxisX(std::span<const CPath> loops) {
  const CPieces pieces(loops);
  const double area = pieces.Below(pieces.Top()).area;
  double at = HeightOf(pieces, area / 2);
  // Within a gap every line halves the area.
  if (pieces.Below(at).width * (pieces.Top() - pieces.Bottom()) < 1e-6 * area) {
    const double rounding = 1e-13 * area;
    const double low = HeightOf(pieces, area / 2 - rounding);
    at = (low + HeightOf(pieces, area / 2 + rounding)) / 2;
  }
  // The moment downwards about the line, and upwards: that of all, turned, and the part below.
  const double upwards = area * (pieces.Top() - at) - pieces.MomentBelow(pieces.Top());
  return {at, 2 * pieces.MomentBelow(at) + upwards};
}

CPlasticAxis PlasticAxisY(std::span<const CPath> loops) {
  std::vector<CPath> turned(loops.begin(), loops.end());
  for (CPath& loop : turned) {
    for (CVertex& v : loop.m_arrVertex) v = {v.y, -v.x, v.bulge};
  }
  CPlasticAxis axis = PlasticAxisX(turned);
  axis.m_dAt = -axis.m_dAt;
  return axis;
}

}  // namespace orv3
