#include "outlines/solver/saint_venant.h"

#include <algorithm>
#include <span>
#include <utility>

#include "framework/elementary.h"
#include "outlines/solver/elimination.h"

namespace orv3 {
namespace {

constexpr double kSlender = 600;
constexpr int kCorrections = 2;

// The unknowns of an element's shape functions up to a degree, with their signs. Vertex 0 of a
// whole part's mesh is held: a constant is added to a solution freely.
using CNumbers = std::array<CElimination::CRow, kMaxFunctions>;

// Numbered by vertices, then edges, then triangles.
CNumbers NumbersOf(const CSectionMesh& mesh, std::size_t element, const std::array<int, 3>& edges,
                   int edgeCount, int degree) {
  const int held = mesh.m_fold.Any() ? 0 : 1;
  const int vertices = static_cast<int>(mesh.m_arrVertex.size()) - held;
  const CMeshTriangle& t = mesh.m_arrTriangle[element];
  CNumbers numbers;
  std::size_t at = 0;
  for (int v : t.m_vertex) numbers[at++].unknown = v - held;
  const int inner = CShapeFunctions::Count(degree) - 3 * degree;
  int next = vertices + edgeCount * (degree - 1) + static_cast<int>(element) * inner;
  for (int d = 2; d <= degree; ++d) {
    for (int e = 0; e < 3; ++e) {
      const bool backwards = t.m_vertex[Index(e)] > t.m_vertex[Index((e + 1) % 3)];
      numbers[at++] = {vertices + edges[Index(e)] * (degree - 1) + d - 2,
                       backwards && d % 2 == 1 ? -1.0 : 1.0};
    }
    for (int i = 0; i <= d - 3; ++i) numbers[at++].unknown = next++;
  }
  return numbers;
}

// By unknown: 1 when it lies on the line x = of the fold, 2 on the line y =, 3 on both.
std::vector<char> OnLines(const CSectionMesh& mesh, std::span<const CNumbers> numbers,
                          std::size_t unknowns, int degree) {
  std::vector<char> on(unknowns, 0);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    for (int e = 0; e < 3; ++e) {
      const int s = mesh.m_arrTriangle[i].m_stretch[Index(e)];
      const int loop = s < 0 ? 0 : mesh.m_arrStretch[Index(s)].m_nLoop;
      if (loop >= 0) continue;
      const auto mark = [&](int function) {
        on[Index(numbers[i][Index(function)].unknown)] |= loop == CStretch::kOnX ? 1 : 2;
      };
      mark(e);
      mark((e + 1) % 3);
      for (int d = 2; d <= degree; ++d) mark(CShapeFunctions::EdgeFunction(e, d));
    }
  }
  return on;
}

}  // namespace

CSaintVenant::CSaintVenant(CSectionMesh mesh, int degree)
    : m_mesh(std::move(mesh)), m_shape(&CShapeFunctions::Of(degree)) {
  const int lower = std::max(1, degree - 2);
  MakeElements(std::min(lower, 4));
  if (!m_sound) return;
  NumberEdges();
  m_order = JoiningOrder(m_mesh);
  CTorsionShear open;
  auto fine = Solve(degree, m_rounded);
  auto coarse = Solve(lower, open);
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
    const CLoadMatrix& loads = m_elements.back().Loads();
    m_area += loads.col(kLoadOne).head(3).sum();
    x += loads.col(kLoadX).head(3).sum();
    y += loads.col(kLoadY).head(3).sum();
  }
  const CFold& fold = m_mesh.m_fold;
  m_centroid = {fold.m_x.value_or(x / m_area), fold.m_y.value_or(y / m_area)};
  m_forces.reserve(m_elements.size());
  for (const CElement& element : m_elements) {
    const CLoadMatrix& loads = element.Loads();
    CElementVector dx = element.X(), dy = element.Y();
    dx.head(3).array() -= m_centroid.x;
    dy.head(3).array() -= m_centroid.y;
    CElementFields forces(loads.rows(), 3);
    forces.col(0) = loads.col(kLoadTwist) - m_centroid.y * loads.col(kLoadDx) +
                    m_centroid.x * loads.col(kLoadDy);
    forces.col(1) = loads.col(kLoadX) - m_centroid.x * loads.col(kLoadOne);
    forces.col(2) = loads.col(kLoadY) - m_centroid.y * loads.col(kLoadOne);
    m_Iy += dx.dot(forces.col(1));
    m_Ix += dy.dot(forces.col(2));
    m_Ixy += dx.dot(forces.col(2));
    m_forces.push_back(forces);
  }
  for (double* sum : {&m_area, &m_Ix, &m_Iy, &m_Ixy}) *sum *= fold.Images();
  if (fold.Any()) m_Ixy = 0;
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

std::optional<CFields> CSaintVenant::Solve(int degree, const CFields& forces) const {
  const auto functions = static_cast<std::size_t>(CShapeFunctions::Count(degree));
  std::vector<CNumbers> numbers;
  numbers.reserve(m_elements.size());
  std::vector<int> sharing;
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    numbers.push_back(NumbersOf(m_mesh, i, m_edges[i], m_edgeCount, degree));
    for (std::size_t k = 0; k < functions; ++k) {
      const int of = numbers[i][k].unknown;
      if (of < 0) continue;
      if (Index(of) >= sharing.size()) sharing.resize(Index(of) + 1, 0);
      ++sharing[Index(of)];
    }
  }
  // Unknowns on a line of symmetry are left to the end: which of them are 0 depends on the problem.
  const std::vector<char> on = OnLines(m_mesh, numbers, sharing.size(), degree);
  for (std::size_t i = 0; i < on.size(); ++i) sharing[i] += on[i] != 0;
  CElimination elimination(std::move(sharing), m_elements.size());
  // The functions of a degree come first.
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    elimination.Add(i, std::span(numbers[i]).first(functions), m_elements[i].Stiffness(),
                    forces[i]);
  }
  for (const auto& [a, b] : m_order) elimination.Join(Index(a), Index(b));
  // The warping changes its sign in both lines, the flexure function of x in x =, of y in y =.
  constexpr std::array<int, 3> kOdd{3, 1, 2};
  elimination.SolveBorder(
      m_order.empty() ? 0 : Index(m_order.back().first), [&](int unknown, Eigen::Index problem) {
        return (on[Index(unknown)] & kOdd[static_cast<std::size_t>(problem)]) != 0;
      });
  const Eigen::Matrix3Xd solution = elimination.Solution();
  if (solution.size() == 0 || !solution.allFinite()) return std::nullopt;
  CFields fields(m_elements.size());
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    fields[i].setZero(m_shape->m_nCount, 3);
    for (std::size_t k = 0; k < functions; ++k) {
      const auto& [of, sign] = numbers[i][k];
      if (of >= 0)
        fields[i].row(static_cast<Eigen::Index>(k)) = sign * solution.col(of).transpose();
    }
  }
  return fields;
}

// Long thin triangles cost digits, about as many as the square of their slenderness has; the
// solution is then corrected by that of what it leaves open.
std::optional<CFields> CSaintVenant::Solve(int degree, CTorsionShear& before) const {
  auto fields = Solve(degree, m_forces);
  if (!fields) return std::nullopt;
  before = Figures(*fields);
  const bool slender = Slenderness() > kSlender;
  for (int i = 0; slender && i < kCorrections; ++i) {
    const auto missing = Solve(degree, Residual(*fields));
    if (!missing) return std::nullopt;
    before = Figures(*fields);
    for (std::size_t e = 0; e < m_elements.size(); ++e) (*fields)[e] += (*missing)[e];
  }
  return fields;
}

// Of grad w + (-y, x), about the element's own vertex: about the centroid a thin section's would be
// the small difference of large ones.
CElementVector CSaintVenant::LocalWarping(std::size_t i, const CFields& fields) const {
  const CElement& element = m_elements[i];
  const CPoint c = element.Vertex(0);
  CElementVector dx = element.X(), dy = element.Y();
  dx.head(3).array() -= c.x;
  dy.head(3).array() -= c.y;
  CElementVector w = fields[i].col(0) - (c.y - m_centroid.y) * dx + (c.x - m_centroid.x) * dy;
  w.head(3).array() -= w[0];
  return w;
}

CElementVector CSaintVenant::LocalTwist(std::size_t i) const {
  const CLoadMatrix& loads = m_elements[i].Loads();
  const CPoint c = m_elements[i].Vertex(0);
  return loads.col(kLoadTwist) - c.y * loads.col(kLoadDx) + c.x * loads.col(kLoadDy);
}

// What the equations leave open, as forces.
CFields CSaintVenant::Residual(const CFields& fields) const {
  CFields residual(m_elements.size());
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    CElementFields u = fields[i];
    for (Eigen::Index k = 1; k < 3; ++k) u.col(k).head(3).array() -= u(0, k);
    u.col(0) = LocalWarping(i, fields);
    CElementFields forces = m_forces[i];
    forces.col(0) = LocalTwist(i);
    residual[i] = forces - m_elements[i].Stiffness() * u;
  }
  return residual;
}

CTorsionShear CSaintVenant::Figures(const CFields& fields) const {
  CTorsionShear figures;
  double wx = 0, wy = 0;  // integrals of the warping times x and y
  Eigen::Matrix2d flexure = Eigen::Matrix2d::Zero();
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const CElement& element = m_elements[i];
    const CLoadMatrix& loads = element.Loads();
    const auto& u = fields[i];
    const auto& forces = m_forces[i];
    wx += u.col(0).dot(forces.col(1));
    wy += u.col(0).dot(forces.col(2));
    flexure += forces.rightCols(2).transpose().lazyProduct(u.rightCols(2));
    const CPoint c = element.Vertex(0);
    CElementVector dx = element.X(), dy = element.Y();
    dx.head(3).array() -= c.x;
    dy.head(3).array() -= c.y;
    const CElementVector w = LocalWarping(i, fields);
    const double polar = dx.dot(loads.col(kLoadX) - c.x * loads.col(kLoadOne)) +
                         dy.dot(loads.col(kLoadY) - c.y * loads.col(kLoadOne));
    figures.It += element.Energy(w) - 2 * LocalTwist(i).dot(w) + polar;
  }
  const CFold& fold = m_mesh.m_fold;
  const double images = fold.Images();
  wx *= fold.m_y ? 0 : images;
  wy *= fold.m_x ? 0 : images;
  flexure *= images;
  if (fold.Any()) flexure(0, 1) = flexure(1, 0) = 0;
  figures.It *= images;
  const double det = m_Ix * m_Iy - m_Ixy * m_Ixy;
  const CPoint pole{(m_Ixy * wx - m_Iy * wy) / det, (m_Ix * wx - m_Ixy * wy) / det};
  figures.m_center = {m_centroid.x + pole.x, m_centroid.y + pole.y};
  const Eigen::Vector2d alongX(m_Ix / det, -m_Ixy / det), alongY(-m_Ixy / det, m_Iy / det);
  figures.m_dFlexX = alongX.dot(flexure * alongX);
  figures.m_dFlexY = alongY.dot(flexure * alongY);
  double mean = 0;
  std::vector<CElementVector> warping;
  warping.reserve(m_elements.size());
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const CElement& element = m_elements[i];
    CElementVector dx = element.X(), dy = element.Y();
    dx.head(3).array() -= m_centroid.x;
    dy.head(3).array() -= m_centroid.y;
    warping.push_back(fields[i].col(0) - pole.y * dx + pole.x * dy);
    mean += element.Loads().col(kLoadOne).dot(warping.back()) / m_area;
  }
  if (fold.Any()) mean = 0;  // an image has the other sign
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    warping[i].head(3).array() -= mean;
    figures.Iw += images * m_elements[i].Square(warping[i]);
  }
  return figures;
}

CEdgeTraction CSaintVenant::Traction(std::size_t element, int edge, double t, CSolution of) const {
  constexpr std::array<CPoint, 4> kCorner{CPoint{0, 0}, {1, 0}, {0, 1}, {0, 0}};
  const CPoint a = kCorner[Index(edge)], b = kCorner[Index(edge + 1)];
  CElementVector value(m_shape->m_nCount), dxi(value), deta(value);
  m_shape->Evaluate(a.x * (1 - t) + b.x * t, a.y * (1 - t) + b.y * t, value.data(), dxi.data(),
                    deta.data());
  // Along the edge alone: what matters of a gradient there is its tangential part.
  const CElementVector slope = (b.x - a.x) * dxi + (b.y - a.y) * deta;
  const CElement& e = m_elements[element];
  const CElementFields& u = (of == CSolution::Fine ? m_fields : m_lower)[element];
  const CPoint p{value.dot(e.X()), value.dot(e.Y())}, d{slope.dot(e.X()), slope.dot(e.Y())};
  const double length = Hypot(d.x, d.y);
  const Eigen::RowVector3d gradient = slope.transpose().lazyProduct(u) / length;
  const double det = m_Ix * m_Iy - m_Ixy * m_Ixy;
  return {p, gradient[0] + ((m_centroid.y - p.y) * d.x + (p.x - m_centroid.x) * d.y) / length,
          (m_Ix * gradient[1] - m_Ixy * gradient[2]) / det,
          (m_Iy * gradient[2] - m_Ixy * gradient[1]) / det};
}

std::vector<CInnerTraction> CSaintVenant::Inside(std::size_t element, CSolution of) const {
  constexpr int kSteps = 12;
  const CElement& e = m_elements[element];
  const CElementFields& u = (of == CSolution::Fine ? m_fields : m_lower)[element];
  const double det = m_Ix * m_Iy - m_Ixy * m_Ixy;
  CElementVector value(m_shape->m_nCount), dxi(value), deta(value);
  std::vector<CInnerTraction> tractions;
  for (int i = 0; i <= kSteps; ++i) {
    for (int j = 0; i + j <= kSteps; ++j) {
      m_shape->Evaluate(1.0 * i / kSteps, 1.0 * j / kSteps, value.data(), dxi.data(), deta.data());
      const double xXi = dxi.dot(e.X()), xEta = deta.dot(e.X());
      const double yXi = dxi.dot(e.Y()), yEta = deta.dot(e.Y());
      const double area = xXi * yEta - xEta * yXi;
      const Eigen::RowVector3d byXi = dxi.transpose().lazyProduct(u);
      const Eigen::RowVector3d byEta = deta.transpose().lazyProduct(u);
      const Eigen::RowVector3d gx = (yEta * byXi - yXi * byEta) / area;
      const Eigen::RowVector3d gy = (xXi * byEta - xEta * byXi) / area;
      const CPoint p{value.dot(e.X()), value.dot(e.Y())};
      const auto forX = [&](const auto& g) { return (m_Ix * g[1] - m_Ixy * g[2]) / det; };
      const auto forY = [&](const auto& g) { return (m_Iy * g[2] - m_Ixy * g[1]) / det; };
      tractions.push_back({p,
                           {gx[0] + m_centroid.y - p.y, gy[0] + p.x - m_centroid.x},
                           {forX(gx), forX(gy)},
                           {forY(gx), forY(gy)}});
    }
  }
  return tractions;
}

std::vector<double> CSaintVenant::Shares() const {
  // By the energies that the limits are about.
  const double twist = 1 / m_fine.It;
  Eigen::Vector2d flexure = Eigen::Vector2d::Zero();
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const auto& forces = m_forces[i];
    flexure[0] += forces.col(1).dot(m_fields[i].col(1));
    flexure[1] += forces.col(2).dot(m_fields[i].col(2));
  }
  std::vector<double> shares;
  for (std::size_t i = 0; i < m_elements.size(); ++i) {
    const CElementFields d = m_fields[i] - m_lower[i];
    const CElement& element = m_elements[i];
    shares.push_back(element.Energy(d.col(0)) * twist + element.Energy(d.col(1)) / flexure[0] +
                     element.Energy(d.col(2)) / flexure[1]);
  }
  return shares;
}

}  // namespace orv3
