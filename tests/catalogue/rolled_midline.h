// Cold-formed sections from their middle lines, whose corners are arcs of radius 2.5 t: moments of
// the outline t / 2 to either side, torsion and warping by the theory of thin walls. mm.
#pragma once

#include "catalogue/rolled_outline.h"

class CMidline {
 public:
  CMidline(const CCorners& corners, double t, bool closed) : m_dT(t) {
    CCorners line = corners;
    for (CCorner& corner : line) corner.radius = 2.5 * t;
    if (!closed) line.front().radius = line.back().radius = 0;
    m_arrPoint = Rounded(line, 512);
    if (closed) m_arrPoint.push_back(m_arrPoint.front());
  }

  const CPolygon& Points() const { return m_arrPoint; }
  double Length() const {
    double sum = 0;
    for (std::size_t i = 1; i < m_arrPoint.size(); ++i) sum += Step(i);
    return sum;
  }
  double St() const { return Length() * m_dT * m_dT * m_dT / 3; }

  // Of the pieces of outline that belong to the steps of the line.
  CIntegrals Moments() const {
    CIntegrals sum;
    for (std::size_t i = 1; i < m_arrPoint.size(); ++i) {
      if (Step(i) == 0) continue;
      const CPoint a = m_arrPoint[i - 1], b = m_arrPoint[i];
      const CPoint out{-(b.y - a.y) / Step(i) * m_dT / 2, (b.x - a.x) / Step(i) * m_dT / 2};
      const CIntegrals one = Integrate(CPolygon{{a.x + out.x, a.y + out.y},
                                                {a.x - out.x, a.y - out.y},
                                                {b.x - out.x, b.y - out.y},
                                                {b.x + out.x, b.y + out.y}});
      sum.A += one.A, sum.x += one.x, sum.y += one.y;
      sum.xx += one.xx, sum.yy += one.yy, sum.xy += one.xy;
    }
    return sum;
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
  double Step(std::size_t i) const {
    return std::hypot(m_arrPoint[i].x - m_arrPoint[i - 1].x, m_arrPoint[i].y - m_arrPoint[i - 1].y);
  }

  double m_dT;
  CPolygon m_arrPoint;
};

// The shear centre and the warping constant of an open line about it, and the sectorial areas at
// the line's points.
struct CWarping {
  CPoint centre{};
  double Iw = 0;
  std::vector<double> omega;
};

// The integral along an open line of the product of two functions, linear between the points.
inline double Along(const CPolygon& p, const std::vector<double>& f, const std::vector<double>& g) {
  double sum = 0;
  for (std::size_t i = 1; i < p.size(); ++i) {
    const double length = std::hypot(p[i].x - p[i - 1].x, p[i].y - p[i - 1].y);
    sum += length *
           (2 * f[i - 1] * g[i - 1] + f[i - 1] * g[i] + f[i] * g[i - 1] + 2 * f[i] * g[i]) / 6;
  }
  return sum;
}

inline std::vector<double> SectorialAreas(const CPolygon& p, CPoint pole) {
  std::vector<double> omega(p.size());
  for (std::size_t i = 1; i < p.size(); ++i)
    omega[i] = omega[i - 1] + (p[i - 1].x - pole.x) * (p[i].y - pole.y) -
               (p[i].x - pole.x) * (p[i - 1].y - pole.y);
  const std::vector<double> one(p.size(), 1);
  const double mean = Along(p, omega, one) / Along(p, one, one);
  for (double& each : omega) each -= mean;
  return omega;
}

inline CWarping Warping(const CMidline& line, double t) {
  const CPolygon& p = line.Points();
  std::vector<double> one(p.size(), 1), x(p.size()), y(p.size());
  for (std::size_t i = 0; i < p.size(); ++i) x[i] = p[i].x, y[i] = p[i].y;
  const double length = Along(p, one, one);
  const double xc = Along(p, x, one) / length, yc = Along(p, y, one) / length;
  for (double& each : x) each -= xc;
  for (double& each : y) each -= yc;
  const double xx = Along(p, x, x), yy = Along(p, y, y), xy = Along(p, x, y);
  const std::vector<double> about = SectorialAreas(p, {xc, yc});
  const double wx = Along(p, about, x), wy = Along(p, about, y);
  const double d = xx * yy - xy * xy;
  CWarping warping;
  warping.centre = {(wy * xx - wx * xy) / d, -(wx * yy - wy * xy) / d};
  warping.omega = SectorialAreas(p, {xc + warping.centre.x, yc + warping.centre.y});
  warping.Iw = Along(p, warping.omega, warping.omega) * t;
  return warping;
}
