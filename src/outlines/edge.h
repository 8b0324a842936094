// An edge of an outline, straight or an arc, as a curve over t from 0 to 1.
//
// Points are found from the chord, so that an arc of hardly any bulge and a radius beyond all
// measure is as exact as a short one.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include "drawing/path.h"

namespace orv3 {

class CEdge {
 public:
  CEdge(const CVertex& from, const CVertex& to);

  CPoint At(double t) const;
  CPoint Derivative(double t) const;                 // by t
  double Sweep() const noexcept { return m_sweep; }  // radians, positive counter-clockwise
  double Length() const noexcept { return m_length; }
  bool IsArc() const noexcept { return m_sweep != 0; }

 private:
  CPoint m_from, m_to;
  double m_sweep = 0;
  double m_length = 0;
  double m_diameter = 0;
  double m_angle = 0;  // of the chord
};

// Calls visit(edge, i) for every edge of the closed loop; i is the vertex it leaves.
template <class Visit>
void ForEachEdge(const CPath& loop, Visit visit) {
  const auto& v = loop.m_arrVertex;
  for (std::size_t i = 0; i < v.size(); ++i) visit(CEdge(v[i], v[(i + 1) % v.size()]), i);
}

// Gauss-Legendre on [0, 1], exact for polynomials up to degree 23.
struct CGaussPoint {
  double at, weight;
};
std::span<const CGaussPoint, 12> GaussPoints();

// The integral of f(point, derivative) over t from a to b of an edge: arcs in pieces of a quarter
// turn at most, which leaves rounding alone.
template <class Function>
double Integrate(const CEdge& edge, double a, double b, Function f) {
  const int pieces = 1 + static_cast<int>(std::fabs(edge.Sweep() * (b - a)) * 0.63);
  const double step = (b - a) / pieces;
  double sum = 0;
  for (int i = 0; i < pieces; ++i) {
    for (const CGaussPoint& g : GaussPoints()) {
      const double t = a + step * (i + g.at);
      sum += g.weight * step * f(edge.At(t), edge.Derivative(t));
    }
  }
  return sum;
}

}  // namespace orv3
