#include "outlines/edge.h"

namespace orv3 {
namespace {

constexpr std::array<double, 6> kNode = {0.1252334085114689, 0.3678314989981802,
                                         0.5873179542866175, 0.7699026741943047,
                                         0.9041172563704749, 0.9815606342467193};
constexpr std::array<double, 6> kWeight = {0.2491470458134028, 0.2334925365383548,
                                           0.2031674267230659, 0.1600783285433462,
                                           0.1069393259953184, 0.0471753363865118};

constexpr std::array<CGaussPoint, 12> MakePoints() {
  std::array<CGaussPoint, 12> points{};
  for (std::size_t i = 0; i < 6; ++i) {
    points[2 * i] = {(1 - kNode[i]) / 2, kWeight[i] / 2};
    points[2 * i + 1] = {(1 + kNode[i]) / 2, kWeight[i] / 2};
  }
  return points;
}
constexpr std::array<CGaussPoint, 12> kPoints = MakePoints();

}  // namespace

std::span<const CGaussPoint, 12> GaussPoints() { return kPoints; }

CEdge::CEdge(const CVertex& from, const CVertex& to)
    : m_from{from.x, from.y}, m_to{to.x, to.y}, m_sweep(4 * std::atan(from.bulge)) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double chord = std::hypot(dx, dy);
  m_length = chord;
  if (m_sweep == 0) return;
  const double bulge = from.bulge;
  m_angle = std::atan2(dy, dx);
  m_diameter = chord * (1 + bulge * bulge) / (2 * bulge);  // its sign that of the sweep
  m_length = m_diameter / 2 * m_sweep;
}

CPoint CEdge::At(double t) const {
  if (m_sweep == 0 || t == 0 || t == 1) {
    return {m_from.x * (1 - t) + m_to.x * t, m_from.y * (1 - t) + m_to.y * t};
  }
  const double reach = m_diameter * std::sin(m_sweep * t / 2);
  const double angle = m_angle + m_sweep * (t - 1) / 2;
  return {m_from.x + reach * std::cos(angle), m_from.y + reach * std::sin(angle)};
}

CPoint CEdge::Derivative(double t) const {
  if (m_sweep == 0) return {m_to.x - m_from.x, m_to.y - m_from.y};
  const double angle = m_angle + m_sweep * (t - 0.5);
  return {m_length * std::cos(angle), m_length * std::sin(angle)};
}

}  // namespace orv3
