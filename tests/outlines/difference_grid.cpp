#include "outlines/difference_grid.h"

#include <cmath>
#include <vector>

namespace orv3::test {
namespace {

using CVector = std::vector<double>;

double Dot(const CVector& a, const CVector& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
  return sum;
}

class CGrid {
 public:
  CGrid(const std::function<bool(double, double)>& inside, double width, double height, double cell)
      : m_cell(cell) {
    const int columns = static_cast<int>(std::lround(width / cell));
    const int rows = static_cast<int>(std::lround(height / cell));
    std::vector<int> number(static_cast<std::size_t>(columns * rows), -1);
    const auto at = [&](int i, int j) -> int& {
      return number[static_cast<std::size_t>(j * columns + i)];
    };
    for (int j = 0; j < rows; ++j) {
      for (int i = 0; i < columns; ++i) {
        const double x = (i + 0.5) * cell, y = (j + 0.5) * cell;
        if (!inside(x, y)) continue;
        at(i, j) = static_cast<int>(m_x.size());
        m_x.push_back(x);
        m_y.push_back(y);
      }
    }
    for (int j = 0; j < rows; ++j) {
      for (int i = 0; i < columns; ++i) {
        if (at(i, j) < 0) continue;
        if (i + 1 < columns && at(i + 1, j) >= 0) AddSide(at(i, j), at(i + 1, j), true);
        if (j + 1 < rows && at(i, j + 1) >= 0) AddSide(at(i, j), at(i, j + 1), false);
      }
    }
    Center(m_x);
    Center(m_y);
  }

  CGridFigures Figures() const {
    const double a = m_cell * m_cell;
    const double Ix = a * Dot(m_y, m_y), Iy = a * Dot(m_x, m_x), Ixy = a * Dot(m_x, m_y);
    const double det = Ix * Iy - Ixy * Ixy;
    CVector twist(m_x.size(), 0.0);
    for (const CSide& s : m_sides) {
      twist[s.a] += Swirl(s) * m_cell;
      twist[s.b] -= Swirl(s) * m_cell;
    }
    const CVector w = Solve(twist);
    CGridFigures f;
    for (const CSide& s : m_sides) {
      const double flow = (w[s.b] - w[s.a]) / m_cell + Swirl(s);
      f.It += flow * flow * a;
    }
    const double wx = a * Dot(w, m_x), wy = a * Dot(w, m_y);
    f.xs = (Ixy * wx - Iy * wy) / det;
    f.ys = (Ix * wx - Ixy * wy) / det;
    CVector warping(w);
    for (std::size_t i = 0; i < w.size(); ++i) warping[i] += f.xs * m_y[i] - f.ys * m_x[i];
    Center(warping);
    f.Iw = a * Dot(warping, warping);
    f.Asx = ShearArea(Ix / det, -Ixy / det);
    f.Asy = ShearArea(-Ixy / det, Iy / det);
    f.xs += m_shift[0];
    f.ys += m_shift[1];
    return f;
  }

 private:
  struct CSide {
    std::size_t a, b;
    bool upright;
  };
  void AddSide(int a, int b, bool upright) {
    m_sides.push_back({static_cast<std::size_t>(a), static_cast<std::size_t>(b), upright});
  }
  // The flow of (-y, x) through a side.
  double Swirl(const CSide& s) const {
    return s.upright ? -(m_y[s.a] + m_y[s.b]) / 2 : (m_x[s.a] + m_x[s.b]) / 2;
  }
  double ShearArea(double ofX, double ofY) const {
    CVector load(m_x.size());
    for (std::size_t i = 0; i < load.size(); ++i)
      load[i] = (ofX * m_x[i] + ofY * m_y[i]) * m_cell * m_cell;
    return 1 / Dot(load, Solve(load));
  }
  void Center(CVector& v) const {
    double mean = 0;
    for (double value : v) mean += value / static_cast<double>(v.size());
    for (double& value : v) value -= mean;
    m_shift.push_back(mean);
  }

  CVector Solve(CVector rest) const {
    CVector u(rest.size(), 0.0), way(rest), image(rest.size());
    double square = Dot(rest, rest);
    const double enough = 1e-20 * square;
    for (int step = 0; step < 20000 && square > enough; ++step) {
      image.assign(image.size(), 0.0);
      for (const CSide& s : m_sides) {
        const double flow = way[s.a] - way[s.b];
        image[s.a] += flow;
        image[s.b] -= flow;
      }
      const double length = square / Dot(way, image);
      for (std::size_t i = 0; i < u.size(); ++i) {
        u[i] += length * way[i];
        rest[i] -= length * image[i];
      }
      const double before = square;
      square = Dot(rest, rest);
      for (std::size_t i = 0; i < u.size(); ++i) way[i] = rest[i] + square / before * way[i];
    }
    return u;
  }

  double m_cell;
  CVector m_x, m_y;
  mutable CVector m_shift;
  std::vector<CSide> m_sides;
};

}  // namespace

CGridFigures GridFigures(const std::function<bool(double, double)>& inside, double width,
                         double height, double cell) {
  const CGridFigures a = CGrid(inside, width, height, cell).Figures();
  const CGridFigures b = CGrid(inside, width, height, cell / 2).Figures();
  // Re-entrant corners leave errors of the power 4/3 of the cell.
  const auto limit = [](double x, double y) { return y + (y - x) / (std::exp2(4.0 / 3) - 1); };
  return {limit(a.It, b.It), limit(a.Iw, b.Iw),   limit(a.xs, b.xs),
          limit(a.ys, b.ys), limit(a.Asx, b.Asx), limit(a.Asy, b.Asy)};
}

}  // namespace orv3::test
