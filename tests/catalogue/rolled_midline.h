// Torsion and warping of a cold-formed section by the theory of thin walls, on its middle line,
// whose bends are arcs of radius 2.5 t.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "sections/outline_integral.h"

class CMidline {
 public:
  CMidline(const std::vector<CPoint>& corners, double t, bool closed = false) : m_dT(t) {
    std::vector<orv3::CCorner> line;
    for (const CPoint& p : corners) line.push_back({p.x, p.y, 2.5 * t});
    if (!closed) line.front().radius = line.back().radius = 0;
    // 512 chords a quarter turn, so that the middle of an arc is a point.
    m_arrPoint = Polygons({{orv3::RoundedPath(line)}}, 0, 511.9 / (std::numbers::pi / 2)).front();
    if (closed) m_arrPoint.push_back(m_arrPoint.front());
    if (!closed) WarpAboutShearCentre();
  }

  // The line's steps, each as a rectangle t wide.
  CPolygons Strip() const {
    CPolygons strip;
    for (std::size_t i = 1; i < m_arrPoint.size(); ++i) {
      const CPoint a = m_arrPoint[i - 1], b = m_arrPoint[i];
      const CPoint out{(b.y - a.y) / Step(i) * m_dT / 2, -(b.x - a.x) / Step(i) * m_dT / 2};
      strip.push_back({{a.x + out.x, a.y + out.y},
                       {b.x + out.x, b.y + out.y},
                       {b.x - out.x, b.y - out.y},
                       {a.x - out.x, a.y - out.y}});
    }
    return strip;
  }
  double Length() const { return Along(One(), One()); }
  double St() const { return Length() * m_dT * m_dT * m_dT / 3; }
  CPoint ShearCentre() const { return m_shearCentre; }  // from the line's centroid
  double Iw() const { return Along(m_arrOmega, m_arrOmega) * m_dT; }

  // The sectorial area's size at the middle of the arc nearest to a corner.
  double OmegaAt(CPoint corner) const {
    const auto distance = [&](const CPoint& p) {
      return std::hypot(p.x - corner.x, p.y - corner.y);
    };
    const auto nearest =
        std::min_element(m_arrPoint.begin(), m_arrPoint.end(),
                         [&](auto& a, auto& b) { return distance(a) < distance(b); });
    return std::abs(m_arrOmega[static_cast<std::size_t>(nearest - m_arrPoint.begin())]);
  }

  // The integral, along the line times the thickness, of a function at most cubic in the steps.
  template <class F>
  double Over(F f) const {
    double sum = 0;
    for (std::size_t i = 1; i < m_arrPoint.size(); ++i) {
      const CPoint a = m_arrPoint[i - 1], b = m_arrPoint[i];
      sum += Step(i) * (f(a) + 4 * f({(a.x + b.x) / 2, (a.y + b.y) / 2}) + f(b)) / 6;
    }
    return m_dT * sum;
  }

 private:
  using CNumbers = std::vector<double>;  // one of each point

  double Step(std::size_t i) const {
    return std::hypot(m_arrPoint[i].x - m_arrPoint[i - 1].x, m_arrPoint[i].y - m_arrPoint[i - 1].y);
  }
  CNumbers One() const { return CNumbers(m_arrPoint.size(), 1); }

  // The integral along the line of the product of two functions, linear between the points.
  double Along(const CNumbers& f, const CNumbers& g) const {
    double sum = 0;
    for (std::size_t i = 1; i < f.size(); ++i)
      sum += Step(i) *
             (2 * f[i - 1] * g[i - 1] + f[i - 1] * g[i] + f[i] * g[i - 1] + 2 * f[i] * g[i]) / 6;
    return sum;
  }

  // The function less its mean.
  CNumbers Balanced(CNumbers f) const {
    const double mean = Along(f, One()) / Length();
    for (double& each : f) each -= mean;
    return f;
  }

  CNumbers SectorialAreas(CPoint pole) const {
    CNumbers omega(m_arrPoint.size());
    for (std::size_t i = 1; i < omega.size(); ++i) {
      const CPoint a = m_arrPoint[i - 1], b = m_arrPoint[i];
      omega[i] = omega[i - 1] + (a.x - pole.x) * (b.y - pole.y) - (b.x - pole.x) * (a.y - pole.y);
    }
    return Balanced(omega);
  }

  void WarpAboutShearCentre() {
    CNumbers x, y;
    for (const CPoint& p : m_arrPoint) {
      x.push_back(p.x);
      y.push_back(p.y);
    }
    const CNumbers u = Balanced(x), v = Balanced(y);
    const CPoint centroid{x[0] - u[0], y[0] - v[0]};
    const double uu = Along(u, u), vv = Along(v, v), uv = Along(u, v);
    const CNumbers about = SectorialAreas(centroid);
    const double wu = Along(about, u), wv = Along(about, v);
    const double d = uu * vv - uv * uv;
    m_shearCentre = {(wv * uu - wu * uv) / d, -(wu * vv - wv * uv) / d};
    m_arrOmega = SectorialAreas({centroid.x + m_shearCentre.x, centroid.y + m_shearCentre.y});
  }

  double m_dT;
  CPolygon m_arrPoint;
  CPoint m_shearCentre{};
  CNumbers m_arrOmega;
};
