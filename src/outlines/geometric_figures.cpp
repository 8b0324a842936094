#include "outlines/geometric_figures.h"

#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

#include "framework/elementary.h"
#include "outlines/edge.h"
#include "outlines/loops.h"
#include "outlines/outline_moments.h"
#include "outlines/plastic.h"

namespace orv3 {
namespace {

constexpr double kDensity = 7850e-9;  // kg/mm^3
// Moments of inertia that differ by less are equal, and have no axis of their own.
constexpr double kEqual = 1e-11;

void SetPrincipal(CExactProperties& p) {
  const double half = (p.Ix - p.Iy) / 2;
  const double radius = Hypot(half, p.Ixy);
  const double middle = (p.Ix + p.Iy) / 2;
  // Rounding would turn an axis that lies along the frame's.
  if (std::fabs(p.Ixy) <= kEqual * middle) p.Ixy = 0;
  p.I1 = middle + radius;
  // Of a slender section the small one is what the large ones' product leaves.
  p.I2 = (p.Ix * p.Iy - p.Ixy * p.Ixy) / p.I1;
  p.theta = 0;
  if (radius <= kEqual * middle) return;
  p.theta = Atan2(-p.Ixy, half) * 90 / std::numbers::pi + 0.0;
  if (p.theta <= -90) p.theta += 180;
}

}  // namespace

CExactProperties GeometricFigures(std::span<const CPath> loops) {
  CExactProperties p;
  const COutlineMoments m = RowOutlineMoments(loops);
  if (!(m.m_dArea > 0)) return p;
  const CBox box = PathBounds(loops);
  p.A = m.m_dArea;
  p.xo = m.m_centroid.x - box.left;
  p.yo = m.m_centroid.y - box.bottom;
  p.Ix = m.m_dIx;
  p.Iy = m.m_dIy;
  p.Ixy = m.m_dIxy;
  SetPrincipal(p);
  p.ix = std::sqrt(p.Ix / p.A);
  p.iy = std::sqrt(p.Iy / p.A);
  p.i1 = std::sqrt(p.I1 / p.A);
  p.i2 = std::sqrt(p.I2 / p.A);
  p.Wx1 = p.Ix / (box.Height() - p.yo);
  p.Wx2 = p.Ix / p.yo;
  p.WyL = p.Iy / p.xo;
  p.WyR = p.Iy / (box.Width() - p.xo);
  std::vector<CPath> centered;
  for (const CPath& loop : loops) centered.push_back(Moved(loop, -m.m_centroid.x, -m.m_centroid.y));
  const CPlasticAxis x = PlasticAxisX(centered);
  const CPlasticAxis y = PlasticAxisY(centered);
  p.Wpx = x.m_dModulus;
  p.Wpy = y.m_dModulus;
  p.yp = p.yo + x.m_dAt;
  p.xp = p.xo + y.m_dAt;
  double length = 0;
  for (const CPath& loop : loops) {
    if (LoopArea(loop) <= 0) continue;
    ForEachEdge(loop, [&](const CEdge& edge, std::size_t) { length += edge.Length(); });
  }
  p.surface = length / 1000;
  p.mass = p.A * kDensity * 1000;
  return p;
}

namespace {

CExactProperties QuarterTurnedOnce(const CExactProperties& p, double height) {
  CExactProperties t = p;
  t.xo = height - p.yo;
  t.yo = p.xo;
  t.xp = height - p.yp;
  t.yp = p.xp;
  t.xs = height - p.ys;
  t.ys = p.xs;
  t.Ixy = 0 - p.Ixy;
  t.Wx1 = p.WyR;
  t.Wx2 = p.WyL;
  t.WyL = p.Wx1;
  t.WyR = p.Wx2;
  t.betax = p.betay;
  t.betay = 0 - p.betax;
  std::swap(t.Ix, t.Iy);
  std::swap(t.ix, t.iy);
  std::swap(t.Wpx, t.Wpy);
  std::swap(t.Asx, t.Asy);
  const bool equal = p.I1 - p.I2 <= 2 * kEqual * p.I1;
  if (!equal) t.theta = p.theta > 0 ? p.theta - 90 : p.theta + 90;
  return t;
}

}  // namespace

CExactProperties QuarterTurned(const CExactProperties& exact, int quarters, double width,
                               double height) {
  CExactProperties turned = exact;
  for (int i = 0; i < quarters; ++i)
    turned = QuarterTurnedOnce(turned, i % 2 == 0 ? height : width);
  return turned;
}

bool HasSlantAxes(const CExactProperties& exact) {
  const double off = std::fabs(std::remainder(exact.theta, 90));
  return off > 1e-4 && exact.I1 - exact.I2 > 1e-9 * exact.I1;
}

CThirdMoments ThirdMoments(std::span<const CPath> loops, CPoint centroid) {
  CThirdMoments m;
  for (const CPath& loop : loops) {
    const CPath centered = Moved(loop, -centroid.x, -centroid.y);
    ForEachEdge(centered, [&](const CEdge& edge, std::size_t) {
      const auto over = [&](auto f) {
        return Integrate(edge, 0, 1,
                         [&](CPoint p, CPoint d) {
                           return f(p) * (p.x * p.x + p.y * p.y) * (p.x * d.y - p.y * d.x);
                         }) /
               5;
      };
      m.forX += over([](CPoint p) { return p.y; });
      m.forY += over([](CPoint p) { return p.x; });
    });
  }
  return m;
}

}  // namespace orv3
