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

// Gauss-Legendre on [0, 1], of 12 points exact for polynomials up to degree 23, of 8 up to 15.
struct CGaussPoint {
  double at, weight;
};
std::span<const CGaussPoint, 12> GaussPoints();
std::span<const CGaussPoint, 8> GaussPoints8();

// Calls visit(point, derivative, weight) for points whose weighted sum of a function is its
// integral over t from a to b of an edge: arcs in pieces of a quarter turn at most, which leaves
// rounding alone.
template <class Visit>
void ForEachGaussPoint(const CEdge& edge, double a, double b, Visit visit) {
  const int pieces = 1 + static_cast<int>(std::fabs(edge.Sweep() * (b - a)) * 0.63);
  const double step = (b - a) / pieces;
  for (int i = 0; i < pieces; ++i) {
    for (const CGaussPoint& g : GaussPoints()) {
      const double t = a + step * (i + g.at);
      visit(edge.At(t), edge.Derivative(t), g.weight * step);
    }
  }
}

template <class Function>
double Integrate(const CEdge& edge, double a, double b, Function f) {
  double sum = 0;
  ForEachGaussPoint(edge, a, b, [&](CPoint p, CPoint d, double w) { sum += w * f(p, d); });
  return sum;
}

}  // namespace orv3
