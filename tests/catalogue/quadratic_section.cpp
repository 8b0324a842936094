#include "catalogue/quadratic_section.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numbers>
#include <utility>

#include "outlines/edge.h"
#include "outlines/loops.h"
#include "outlines/mesh/triangulation.h"
// clang-format off
#include "outlines/solver/eigen.h"
#include <Eigen/Sparse>
// clang-format on

namespace orv3::test {
namespace {

std::size_t Index(int i) { return static_cast<std::size_t>(i); }

double Cross(CPoint a, CPoint b, CPoint c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// A quadrature point of a triangle with its six functions: vertices 0 to 2, then the middles of the
// edges from them.
struct CAt {
  double x, y, area;
  std::array<double, 6> value, dx, dy;
};

class CQuadratic {
 public:
  explicit CQuadratic(const CSectionTriangles& mesh) : m_mesh(mesh) {
    std::map<std::pair<int, int>, int> middles;
    m_count = static_cast<int>(mesh.m_arrPoint.size());
    for (const auto& t : mesh.m_arrTriangle) {
      std::array<int, 6> node{t[0], t[1], t[2]};
      for (std::size_t i = 0; i < 3; ++i) {
        const int a = t[i], b = t[(i + 1) % 3];
        const auto [at, fresh] = middles.try_emplace(std::minmax(a, b), m_count);
        m_count += fresh ? 1 : 0;
        node[3 + i] = at->second;
      }
      m_node.push_back(node);
    }
    FindCentroid();
  }

  double StressFunctionIt() {
    const std::vector<int> unknown = TieBoundaries();
    return Solve(unknown, m_tied,
                 [&](std::size_t, const CAt& at, std::size_t k) {
                   return std::array{2 * at.area * at.value[k], 0.0, 0.0};
                 })
        .energy[0];
  }

  CCoarseFigures Figures() {
    std::vector<int> unknown;
    for (int i = 0; i < m_count; ++i) unknown.push_back(i - 1);
    m_holes.clear();
    const CSolution s = Solve(unknown, m_count - 1, [&](std::size_t, const CAt& at, std::size_t k) {
      return std::array{at.area * (at.y * at.dx[k] - at.x * at.dy[k]), at.area * at.value[k] * at.x,
                        at.area * at.value[k] * at.y};
    });
    double Ix = 0, Iy = 0, Ixy = 0, wx = 0, wy = 0, w1 = 0, area = 0;
    const auto warping = [&](std::size_t t, const CAt& at) {
      double w = 0;
      for (std::size_t k = 0; k < 6; ++k) w += at.value[k] * s.value(m_node[t][k], 0);
      return w;
    };
    Each([&](std::size_t t, const CAt& at) {
      const double w = warping(t, at) * at.area;
      Ix += at.area * at.y * at.y;
      Iy += at.area * at.x * at.x;
      Ixy += at.area * at.x * at.y;
      wx += w * at.x;
      wy += w * at.y;
      w1 += w;
      area += at.area;
    });
    const double det = Ix * Iy - Ixy * Ixy;
    CCoarseFigures f;
    f.xs = (Ixy * wx - Iy * wy) / det;
    f.ys = (Ix * wx - Ixy * wy) / det;
    Each([&](std::size_t t, const CAt& at) {
      const double w = warping(t, at) - f.ys * at.x + f.xs * at.y - w1 / area;
      f.Iw += w * w * at.area;
    });
    const auto shear = [&](double a, double b) {
      return 1 / (a * a * s.energy[1] + b * b * s.energy[2] + 2 * a * b * s.mixed);
    };
    f.Asx = shear(Ix / det, -Ixy / det);
    f.Asy = shear(-Ixy / det, Iy / det);
    f.xs += m_centroid.x;
    f.ys += m_centroid.y;
    return f;
  }

 private:
  struct CSolution {
    Eigen::MatrixXd value;         // by node and problem
    std::array<double, 3> energy;  // load times value
    double mixed = 0;              // of the second problem's load and the third's value
  };

  template <class Visit>
  void Each(Visit visit) const {
    // Exact for degree 4.
    constexpr struct {
      double a, b, weight;
    } kRule[] = {{0.108103018168070, 0.445948490915965, 0.223381589678011},
                 {0.816847572980459, 0.091576213509771, 0.109951743655322}};
    for (std::size_t t = 0; t < m_node.size(); ++t) {
      const auto p = [&](std::size_t i) { return m_mesh.m_arrPoint[Index(m_node[t][i])]; };
      const double twice = Cross(p(0), p(1), p(2));
      for (const auto& rule : kRule) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
          std::array<double, 3> l{rule.b, rule.b, rule.b}, lx, ly;
          l[corner] = rule.a;
          CAt at{-m_centroid.x, -m_centroid.y, twice / 2 * rule.weight, {}, {}, {}};
          for (std::size_t i = 0; i < 3; ++i) {
            const CPoint b = p((i + 1) % 3), c = p((i + 2) % 3);
            lx[i] = (b.y - c.y) / twice;
            ly[i] = (c.x - b.x) / twice;
            at.x += l[i] * p(i).x;
            at.y += l[i] * p(i).y;
          }
          for (std::size_t i = 0; i < 3; ++i) {
            const std::size_t j = (i + 1) % 3;
            at.value[i] = l[i] * (2 * l[i] - 1);
            at.dx[i] = (4 * l[i] - 1) * lx[i];
            at.dy[i] = (4 * l[i] - 1) * ly[i];
            at.value[3 + i] = 4 * l[i] * l[j];
            at.dx[3 + i] = 4 * (lx[i] * l[j] + l[i] * lx[j]);
            at.dy[3 + i] = 4 * (ly[i] * l[j] + l[i] * ly[j]);
          }
          visit(t, at);
        }
      }
    }
  }

  void FindCentroid() {
    double area = 0, x = 0, y = 0;
    Each([&](std::size_t, const CAt& at) {
      area += at.area;
      x += at.area * at.x;
      y += at.area * at.y;
    });
    m_centroid = {x / area, y / area};
  }

  // The unknown of each node: none on outer boundaries, one on the whole of a hole's.
  std::vector<int> TieBoundaries() {
    std::map<std::pair<int, int>, int> sides;  // directed, with the node between
    for (const auto& node : m_node) {
      for (std::size_t i = 0; i < 3; ++i) sides[{node[i], node[(i + 1) % 3]}] = node[3 + i];
    }
    std::map<int, std::pair<int, int>> next;  // along boundaries, and the node between
    for (const auto& [side, middle] : sides) {
      if (!sides.contains({side.second, side.first})) next[side.first] = {side.second, middle};
    }
    std::vector<int> unknown(Index(m_count), -2);
    m_holes.clear();
    while (!next.empty()) {
      std::vector<int> nodes;
      double twice = 0;
      for (auto at = next.begin(); at != next.end(); at = next.find(nodes.back())) {
        const auto [from, to] = *at;
        next.erase(at);
        twice += Cross({0, 0}, m_mesh.m_arrPoint[Index(from)], m_mesh.m_arrPoint[Index(to.first)]);
        nodes.insert(nodes.end(), {to.second, to.first});
      }
      const int of = twice > 0 ? -1 : static_cast<int>(m_holes.size());
      if (twice <= 0) m_holes.push_back(-twice / 2);
      for (int node : nodes) unknown[Index(node)] = of;
    }
    m_tied = static_cast<int>(m_holes.size());
    for (int& of : unknown) {
      if (of == -2) of = m_tied++;
    }
    return unknown;
  }

  // div grad u = -load, with the unknowns of the nodes; -1 is held at 0.
  template <class Load>
  CSolution Solve(const std::vector<int>& unknown, int count, Load load) const {
    std::vector<Eigen::Triplet<double>> entries;
    Eigen::MatrixXd force = Eigen::MatrixXd::Zero(count, 3);
    for (std::size_t i = 0; i < m_holes.size(); ++i)
      force(static_cast<Eigen::Index>(i), 0) = 2 * m_holes[i];
    std::array<std::array<double, 6>, 6> own{};
    std::size_t points = 0;
    Each([&](std::size_t t, const CAt& at) {
      for (std::size_t i = 0; i < 6; ++i) {
        const int row = unknown[Index(m_node[t][i])];
        const auto part = load(t, at, i);
        for (int k = 0; k < 3 && row >= 0; ++k) force(row, k) += part[Index(k)];
        for (std::size_t j = 0; j < 6; ++j)
          own[i][j] += at.area * (at.dx[i] * at.dx[j] + at.dy[i] * at.dy[j]);
      }
      if (++points % 6 != 0) return;
      for (std::size_t i = 0; i < 6; ++i) {
        for (std::size_t j = 0; j < 6; ++j) {
          const int row = unknown[Index(m_node[t][i])], column = unknown[Index(m_node[t][j])];
          if (row >= column && column >= 0) entries.emplace_back(row, column, own[i][j]);
        }
      }
      own = {};
    });
    Eigen::SparseMatrix<double> matrix(count, count);
    matrix.setFromTriplets(entries.begin(), entries.end());
    const Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> solver(matrix);
    const Eigen::MatrixXd u = solver.solve(force);
    CSolution s{Eigen::MatrixXd::Zero(m_count, 3), {}, force.col(1).dot(u.col(2))};
    for (Eigen::Index k = 0; k < 3; ++k)
      s.energy[Index(static_cast<int>(k))] = force.col(k).dot(u.col(k));
    for (int i = 0; i < m_count; ++i) {
      if (unknown[Index(i)] >= 0) s.value.row(i) = u.row(unknown[Index(i)]);
    }
    return s;
  }

  const CSectionTriangles& m_mesh;
  std::vector<std::array<int, 6>> m_node;
  int m_count = 0, m_tied = 0;
  std::vector<double> m_holes;  // areas
  CPoint m_centroid{0, 0};
};

}  // namespace

CSectionTriangles RasterTriangles(std::span<const CPath> loops, double size) {
  CSectionTriangles mesh;
  std::vector<CGridEdge> edges;
  for (const CPath& loop : loops) {
    const int first = static_cast<int>(mesh.m_arrPoint.size());
    ForEachEdge(loop, [&](const CEdge& edge, std::size_t) {
      const double pieces = std::ceil(
          std::max(edge.Length() / size, std::fabs(edge.Sweep()) * 36 / std::numbers::pi) - 1e-9);
      for (double i = 0; i < pieces; ++i) mesh.m_arrPoint.push_back(edge.At(i / pieces));
    });
    const int last = static_cast<int>(mesh.m_arrPoint.size()) - 1;
    for (int i = first; i <= last; ++i) edges.push_back({i, i < last ? i + 1 : first});
  }
  const CBox box = PathBounds(loops);
  const std::size_t boundary = mesh.m_arrPoint.size();
  for (double y = box.bottom + size / 2; y < box.top; y += size * 0.87) {
    for (double x = box.left + size / 2; x < box.right; x += size) {
      int around = 0;
      for (const CPath& loop : loops) around += Encloses(loop, {x, y}) ? 1 : 0;
      const auto near = [&](CPoint p) { return std::hypot(p.x - x, p.y - y) < 0.6 * size; };
      const auto end = mesh.m_arrPoint.begin() + static_cast<std::ptrdiff_t>(boundary);
      if (around == 1 && std::none_of(mesh.m_arrPoint.begin(), end, near))
        mesh.m_arrPoint.push_back({x, y});
    }
  }
  const double scale = (1 << 27) / std::max(box.Width(), box.Height());
  std::vector<CGridPoint> grid;
  for (const CPoint& p : mesh.m_arrPoint)
    grid.push_back(
        {std::llround((p.x - box.left) * scale), std::llround((p.y - box.bottom) * scale)});
  if (const auto triangles = Triangulate(grid, edges)) {
    for (const CTriangle& t : *triangles) mesh.m_arrTriangle.push_back(t.m_vertex);
  }
  return mesh;
}

CCoarseFigures QuadraticFigures(const CSectionTriangles& mesh) {
  CQuadratic quadratic(mesh);
  const double It = quadratic.StressFunctionIt();
  CCoarseFigures figures = quadratic.Figures();
  figures.It = It;
  return figures;
}

}  // namespace orv3::test
