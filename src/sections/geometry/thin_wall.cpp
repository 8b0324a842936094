#include "sections/geometry/thin_wall.h"

#include <cassert>

#include "framework/elementary.h"

namespace orv3 {

namespace {

constexpr std::size_t kMostWalls = 12;

double Length(const CWall& wall) { return Hypot(wall.m_x2 - wall.m_x1, wall.m_y2 - wall.m_y1); }

bool Counts(const CWall& wall) { return wall.m_t > 0 && Length(wall) > 0; }

// A function that is linear along each wall, by its values at the ends.
struct CEnds {
  double a = 0, b = 0;
};
using CAlong = std::array<CEnds, kMostWalls>;

class CSectorialSum {
 public:
  CSectorialSum(std::span<const CWall> walls, CWallForm form) : m_walls(walls) {
    for (std::size_t i = 0; i < walls.size(); ++i) {
      m_one[i] = {1, 1};
      m_x[i] = {walls[i].m_x1, walls[i].m_x2};
      m_y[i] = {walls[i].m_y1, walls[i].m_y2};
    }
    m_A = Integral(m_one, m_one);
    if (!(m_A > 0)) return;
    m_xc = Centre(m_x);
    m_yc = Centre(m_y);
    Sweep(form);
  }

  CSectorial Result() {
    if (!(m_A > 0)) return {};
    const double Ix = Integral(m_y, m_y), Iy = Integral(m_x, m_x), Ixy = Integral(m_x, m_y);
    const double wx = Integral(m_w, m_x), wy = Integral(m_w, m_y);
    const double det = Ix * Iy - Ixy * Ixy;
    if (!(det > 1e-12 * (Ix + Iy) * (Ix + Iy))) return {m_xc, m_yc, 0};
    // The pole about which the sectorial moments vanish.
    const double a = (wy * Iy - wx * Ixy) / det;
    const double b = (wy * Ixy - wx * Ix) / det;
    for (std::size_t i = 0; i < m_walls.size(); ++i) {
      m_w[i].a += b * m_x[i].a - a * m_y[i].a;
      m_w[i].b += b * m_x[i].b - a * m_y[i].b;
    }
    Centre(m_w);
    const double Iw = Integral(m_w, m_w);
    const bool rounding = Iw < 1e-15 * (Ix + Iy) * (Ix + Iy) / m_A;
    return {m_xc + a, m_yc + b, rounding ? 0 : Iw};
  }

 private:
  double Integral(const CAlong& f, const CAlong& g) const {
    double sum = 0;
    for (std::size_t i = 0; i < m_walls.size(); ++i) {
      if (!Counts(m_walls[i])) continue;
      const double product =
          2 * f[i].a * g[i].a + f[i].a * g[i].b + f[i].b * g[i].a + 2 * f[i].b * g[i].b;
      sum += m_walls[i].m_t * Length(m_walls[i]) * product / 6;
    }
    return sum;
  }

  // Makes the mean of f 0; returns what it was.
  double Centre(CAlong& f) {
    const double mean = Integral(f, m_one) / m_A;
    for (CEnds& ends : f) {
      ends.a -= mean;
      ends.b -= mean;
    }
    return mean;
  }

  double Swept(std::size_t i) const { return m_x[i].a * m_y[i].b - m_x[i].b * m_y[i].a; }

  // Sectorial coordinates about the centroid.
  void Sweep(CWallForm form) {
    double flow = 0;
    if (form == CWallForm::Loop) {
      double swept = 0, flexibility = 0;
      for (std::size_t i = 0; i < m_walls.size(); ++i) {
        swept += Swept(i);
        flexibility += Length(m_walls[i]) / m_walls[i].m_t;
      }
      flow = swept / flexibility;
    }
    for (std::size_t i = 0; i < m_walls.size(); ++i) {
      const CWall& wall = m_walls[i];
      m_w[i].a = wall.m_from < 0 ? 0 : m_w[static_cast<std::size_t>(wall.m_from)].b;
      m_w[i].b = m_w[i].a + Swept(i) - (flow != 0 ? flow * Length(wall) / wall.m_t : 0);
    }
  }

  std::span<const CWall> m_walls;
  CAlong m_one, m_x, m_y, m_w;  // 1, coordinates from the centroid, sectorial coordinate
  double m_A = 0;
  double m_xc = 0, m_yc = 0;
};

}  // namespace

CSectorial SectorialProperties(std::span<const CWall> walls, CWallForm form) {
  assert(walls.size() <= kMostWalls);
  return CSectorialSum(walls, form).Result();
}

CSectorial BoxSectorial(double b, double h, double top, double bottom, double left, double right) {
  const double x1 = left / 2, x2 = b - right / 2, y1 = bottom / 2, y2 = h - top / 2;
  const CWall walls[] = {
      {x1, y1, x2, y1, bottom},
      {x2, y1, x2, y2, right, 0},
      {x2, y2, x1, y2, top, 1},
      {x1, y2, x1, y1, left, 2},
  };
  return SectorialProperties(walls, CWallForm::Loop);
}

}  // namespace orv3
