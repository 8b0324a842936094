#include "outlines/edge.h"

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr double kNodes12[] = {0.1252334085114689, 0.3678314989981802, 0.5873179542866175,
                               0.7699026741943047, 0.9041172563704749, 0.9815606342467193};
constexpr double kWeights12[] = {0.2491470458134028, 0.2334925365383548, 0.2031674267230659,
                                 0.1600783285433462, 0.1069393259953184, 0.0471753363865118};
constexpr double kNodes8[] = {0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                              0.9602898564975363};
constexpr double kWeights8[] = {0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                0.1012285362903763};

template <std::size_t N>
constexpr std::array<CGaussPoint, 2 * N> MakePoints(const double (&node)[N],
                                                    const double (&weight)[N]) {
  std::array<CGaussPoint, 2 * N> points{};
  for (std::size_t i = 0; i < N; ++i) {
    points[2 * i] = {(1 - node[i]) / 2, weight[i] / 2};
    points[2 * i + 1] = {(1 + node[i]) / 2, weight[i] / 2};
  }
  return points;
}
constexpr auto kPoints12 = MakePoints(kNodes12, kWeights12);
constexpr auto kPoints8 = MakePoints(kNodes8, kWeights8);

}  // namespace

std::span<const CGaussPoint, 12> GaussPoints() { return kPoints12; }
std::span<const CGaussPoint, 8> GaussPoints8() { return kPoints8; }

CEdge::CEdge(const CVertex& from, const CVertex& to)
    : m_from{from.x, from.y}, m_to{to.x, to.y}, m_sweep(4 * Atan(from.bulge)) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double chord = Hypot(dx, dy);
  m_length = chord;
  if (m_sweep == 0) return;
  const double bulge = from.bulge;
  m_angle = Atan2(dy, dx);
  m_diameter = chord * (1 + bulge * bulge) / (2 * bulge);  // its sign that of the sweep
  m_length = m_diameter / 2 * m_sweep;
}

CPoint CEdge::At(double t) const {
  if (m_sweep == 0 || t == 0 || t == 1) {
    return {m_from.x * (1 - t) + m_to.x * t, m_from.y * (1 - t) + m_to.y * t};
  }
  const double reach = m_diameter * Sin(m_sweep * t / 2);
  const double angle = m_angle + m_sweep * (t - 1) / 2;
  return {m_from.x + reach * Cos(angle), m_from.y + reach * Sin(angle)};
}

CPoint CEdge::Derivative(double t) const {
  if (m_sweep == 0) return {m_to.x - m_from.x, m_to.y - m_from.y};
  const double angle = m_angle + m_sweep * (t - 0.5);
  return {m_length * Cos(angle), m_length * Sin(angle)};
}

}  // namespace orv3
