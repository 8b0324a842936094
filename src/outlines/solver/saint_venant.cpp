#include "outlines/solver/saint_venant.h"

#include <Eigen/Sparse>
#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

namespace orv3 {
namespace {

using Eigen::MatrixXd, Eigen::VectorXd;

std::size_t Index(int i) { return static_cast<std::size_t>(i); }

// An element without the functions that vanish on its edges.
struct CCondensed {
  MatrixXd m_recover;  // interior = m_inner - m_recover * skeleton
  MatrixXd m_inner;
  MatrixXd m_stiffness, m_force;
};

CCondensed Condensed(const MatrixXd& stiffness, const MatrixXd& force,
                     const CDegreeFunctions& functions) {
  const auto& b = functions.m_arrSkeleton;
  const auto& i = functions.m_arrInterior;
  CCondensed c;
  c.m_stiffness = stiffness(b, b);
  c.m_force = force(b, Eigen::all);
  if (i.empty()) return c;
  const MatrixXd coupling = stiffness(i, b);
  const Eigen::LLT<MatrixXd> inner(stiffness(i, i));
  c.m_recover = inner.solve(coupling);
  c.m_inner = inner.solve(force(i, Eigen::all));
  c.m_stiffness.noalias() -= coupling.transpose() * c.m_recover;
  c.m_force.noalias() -= coupling.transpose() * c.m_inner;
  return c;
}

// The numbers of an element's skeleton functions in the whole, with their signs; vertex 0 of the
// mesh is held, and numbered -1.
struct CNumbers {
  std::vector<int> m_arrOf;
  std::vector<double> m_arrSign;
};

CNumbers NumbersOf(const CMeshTriangle& t, const std::array<int, 3>& edges, int vertices,
                   int degree) {
  CNumbers numbers;
  for (int v : t.m_vertex) numbers.m_arrOf.push_back(v - 1);
  numbers.m_arrSign.assign(3, 1);
  for (int e = 0; e < 3; ++e) {
    const bool backwards = t.m_vertex[Index(e)] > t.m_vertex[Index((e + 1) % 3)];
    for (int d = 2; d <= degree; ++d) {
      numbers.m_arrOf.push_back(vertices - 1 + edges[Index(e)] * (degree - 1) + d - 2);
      numbers.m_arrSign.push_back(backwards && d % 2 == 1 ? -1 : 1);
    }
  }
  return numbers;
}

}  // namespace

CSaintVenant::CSaintVenant(CSectionMesh mesh, int degree)
    : m_mesh(std::move(mesh)), m_degree(degree), m_shape(&CShapeFunctions::Of(degree)) {
  const int lower = std::max(1, degree - 2);
  MakeElements(std::min(lower, 4));
  if (!m_sound) return;
  NumberEdges();
  auto fine = Solve(degree);
  auto coarse = Solve(lower);
  m_sound = fine.has_value() && coarse.has_value();
  if (!m_sound) return;
  m_fields = std::move(*fine);
  m_lower = std::move(*coarse);
  m_fine = Figures(m_fields);
  m_coarse = Figures(m_lower);
}

void CSaintVenant::MakeElements(int geometry) {
  m_sound = true;
  m_elements.reserve(m_mesh.m_arrTriangle.size());
  double x = 0, y = 0;
  for (const CMeshTriangle& t : m_mesh.m_arrTriangle) {
    m_elements.emplace_back(m_mesh, t, *m_shape, geometry);
    m_sound = m_sound && m_elements.back().IsSound();
    if (!m_sound) return;
    const auto loads = m_elements.back().Loads();
    m_area += loads.col(kLoadOne).head(3).sum();
    x += loads.col(kLoadX).head(3).sum();
    y += loads.col(kLoadY).head(3).sum();
  }
  m_centroid = {x / m_area, y / m_area};
  for (const CElement& element : m_elements) {
    const auto loads = element.Loads();
    VectorXd dx = element.X(), dy = element.Y();
    dx.head(3).array() -= m_centroid.x;
    dy.head(3).array() -= m_centroid.y;
    const VectorXd fx = loads.col(kLoadX) - m_centroid.x * loads.col(kLoadOne);
    const VectorXd fy = loads.col(kLoadY) - m_centroid.y * loads.col(kLoadOne);
    m_Iy += dx.dot(fx);
    m_Ix += dy.dot(fy);
    m_Ixy += dx.dot(fy);
  }
}

void CSaintVenant::NumberEdges() {
  std::vector<std::array<int, 4>> sides;  // ends, element, edge
  for (std::size_t i = 0; i < m_mesh.m_arrTriangle.size(); ++i) {
    const auto& v = m_mesh.m_arrTriangle[i].m_vertex;
    for (int e = 0; e < 3; ++e) {
      const int a = v[Index(e)], b = v[Index((e + 1) % 3)];
      sides.push_back({std::min(a, b), std::max(a, b), static_cast<int>(i), e});
    }
  }
  std::sort(sides.begin(), sides.end());
  m_edges.resize(m_mesh.m_arrTriangle.size());
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const bool same = i > 0 && sides[i][0] == sides[i - 1][0] && sides[i][1] == sides[i - 1][1];
    if (!same) ++m_edgeCount;
    m_edges[Index(sides[i][2])][Index(sides[i][3])] = m_edgeCount - 1;
  }
}

// The right-hand sides of the three problems.
MatrixXd CSaintVenant::Forces(std::size_t element) const {
  const auto loads = m_elements[element].Loads();
  MatrixXd forces(loads.rows(), 3);
  forces.col(0) =
      loads.col(kLoadTwist) - m_centroid.y * loads.col(kLoadDx) + m_centroid.x * loads.col(kLoadDy);
  forces.col(1) = loads.col(kLoadX) - m_centroid.x * loads.col(kLoadOne);
  forces.col(2) = loads.col(kLoadY) - m_centroid.y * loads.col(kLoadOne);
  return forces;
}

std::optional<CFields> CSaintVenant::Solve(int degree) const {
  const CDegreeFunctions functions = CShapeFunctions::Functions(degree);
  const int vertices = static_cast<int>(m_mesh.m_arrVertex.size());
  const int size = vertices - 1 + m_edgeCount * (degree - 1);
  std::vector<CCondensed> condensed;
  std::vector<CNumbers> numbers;
  condensed.reserve(m_elements.size());
  numbers.reserve(m_elements.size());
  std::vector<Eigen::Triplet<double>> entries;
  MatrixXd force = MatrixXd::Zero(size, 3);
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    condensed.push_back(Condensed(m_elements[i].Stiffness(), Forces(i), functions));
    numbers.push_back(NumbersOf(m_mesh.m_arrTriangle[i], m_edges[i], vertices, degree));
    const auto& [of, sign] = numbers.back();
    const CCondensed& c = condensed.back();
    for (std::size_t k = 0; k < of.size(); ++k) {
      if (of[k] < 0) continue;
      const auto row = static_cast<Eigen::Index>(k);
      force.row(of[k]) += sign[k] * c.m_force.row(row);
      for (std::size_t j = 0; j < of.size(); ++j) {
        if (of[j] < 0 || of[j] > of[k]) continue;
        entries.emplace_back(of[k], of[j],
                             sign[k] * sign[j] * c.m_stiffness(row, static_cast<Eigen::Index>(j)));
      }
    }
  }
  Eigen::SparseMatrix<double> matrix(size, size);
  matrix.setFromTriplets(entries.begin(), entries.end());
  const Eigen::SimplicialLLT<Eigen::SparseMatrix<double>> solver(matrix);
  if (solver.info() != Eigen::Success) return std::nullopt;
  const MatrixXd solution = solver.solve(force);
  if (!solution.allFinite()) return std::nullopt;
  CFields fields(m_elements.size());
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const auto& [of, sign] = numbers[i];
    MatrixXd skeleton = MatrixXd::Zero(static_cast<Eigen::Index>(of.size()), 3);
    for (std::size_t k = 0; k < of.size(); ++k) {
      if (of[k] >= 0) skeleton.row(static_cast<Eigen::Index>(k)) = sign[k] * solution.row(of[k]);
    }
    fields[i].setZero(m_shape->m_nCount, 3);
    fields[i](functions.m_arrSkeleton, Eigen::all) = skeleton;
    if (!functions.m_arrInterior.empty()) {
      fields[i](functions.m_arrInterior, Eigen::all) =
          condensed[i].m_inner - condensed[i].m_recover * skeleton;
    }
  }
  return fields;
}

CTorsionShear CSaintVenant::Figures(const CFields& fields) const {
  CTorsionShear figures;
  double wx = 0, wy = 0;  // integrals of the warping times x and y
  Eigen::Matrix2d flexure = Eigen::Matrix2d::Zero();
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const CElement& element = m_elements[i];
    const auto loads = element.Loads();
    const auto& u = fields[i];
    const MatrixXd forces = Forces(i);
    wx += u.col(0).dot(forces.col(1));
    wy += u.col(0).dot(forces.col(2));
    flexure += forces.rightCols(2).transpose() * u.rightCols(2);
    // The energy of grad w + (-y, x), about the element's own vertex: about the centroid a thin
    // section's would be the small difference of large ones.
    const CPoint c = element.Vertex(0);
    VectorXd dx = element.X(), dy = element.Y();
    dx.head(3).array() -= c.x;
    dy.head(3).array() -= c.y;
    VectorXd w = u.col(0) - (c.y - m_centroid.y) * dx + (c.x - m_centroid.x) * dy;
    w.head(3).array() -= w[0];
    const VectorXd twist =
        loads.col(kLoadTwist) - c.y * loads.col(kLoadDx) + c.x * loads.col(kLoadDy);
    const double polar = dx.dot(loads.col(kLoadX) - c.x * loads.col(kLoadOne)) +
                         dy.dot(loads.col(kLoadY) - c.y * loads.col(kLoadOne));
    figures.It += element.Energy(w) - 2 * twist.dot(w) + polar;
  }
  const double det = m_Ix * m_Iy - m_Ixy * m_Ixy;
  const CPoint pole{(m_Ixy * wx - m_Iy * wy) / det, (m_Ix * wx - m_Ixy * wy) / det};
  figures.m_center = {m_centroid.x + pole.x, m_centroid.y + pole.y};
  const Eigen::Vector2d alongX(m_Ix / det, -m_Ixy / det), alongY(-m_Ixy / det, m_Iy / det);
  figures.m_dFlexX = alongX.dot(flexure * alongX);
  figures.m_dFlexY = alongY.dot(flexure * alongY);
  double mean = 0;
  std::vector<VectorXd> warping;
  warping.reserve(m_elements.size());
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const CElement& element = m_elements[i];
    VectorXd dx = element.X(), dy = element.Y();
    dx.head(3).array() -= m_centroid.x;
    dy.head(3).array() -= m_centroid.y;
    warping.push_back(fields[i].col(0) - pole.y * dx + pole.x * dy);
    mean += element.Loads().col(kLoadOne).dot(warping.back()) / m_area;
  }
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    warping[i].head(3).array() -= mean;
    figures.Iw += warping[i].dot(m_elements[i].Mass() * warping[i]);
  }
  return figures;
}

std::vector<double> CSaintVenant::Shares() const {
  // By the energies that the limits are about.
  const double twist = 1 / m_fine.It;
  Eigen::Vector2d flexure = Eigen::Vector2d::Zero();
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const MatrixXd forces = Forces(i);
    flexure[0] += forces.col(1).dot(m_fields[i].col(1));
    flexure[1] += forces.col(2).dot(m_fields[i].col(2));
  }
  std::vector<double> shares;
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const MatrixXd d = m_fields[i] - m_lower[i];
    const CElement& element = m_elements[i];
    shares.push_back(element.Energy(d.col(0)) * twist + element.Energy(d.col(1)) / flexure[0] +
                     element.Energy(d.col(2)) / flexure[1]);
  }
  return shares;
}

}  // namespace orv3
