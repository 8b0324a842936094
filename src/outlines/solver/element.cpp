#include "outlines/solver/element.h"

#include <numbers>

#include "framework/elementary.h"

namespace orv3 {
namespace {

// The shares of the edge functions of degree 2 to n in a curve, less its chord, of which the values
// at the n - 1 inner points of CurvePoint are known.
double CurvePoint(int i, int n) { return (1 - Cos(std::numbers::pi * i / n)) / 2; }

Eigen::MatrixXd CurveShares(int n) {
  Eigen::MatrixXd values(n - 1, n - 1);
  for (int i = 1; i < n; ++i) {
    const double t = CurvePoint(i, n);
    for (int d = 2; d <= n; ++d)
      values(i - 1, d - 2) = t * (1 - t) * EdgeKernel(d, 2 * t - 1).value;
  }
  return values.inverse();
}

// u times a symmetric matrix times u; the last shares of a solution of less degree are 0.
template <class Matrix>
double Quadratic(const Matrix& matrix, const CElementVector& u) {
  Eigen::Index count = u.size();
  while (count > 0 && u[count - 1] == 0) --count;
  double sum = 0;
  for (Eigen::Index j = 0; j < count; ++j) {
    double below = 0;
    for (Eigen::Index i = j + 1; i < count; ++i) below += matrix(i, j) * u[i];
    sum += u[j] * (matrix(j, j) * u[j] + 2 * below);
  }
  return sum;
}

}  // namespace

CElement::CElement(const CSectionMesh& mesh, const CMeshTriangle& triangle,
                   const CShapeFunctions& shape, int geometry)
    : m_shape(shape),
      m_x(CElementVector::Zero(shape.m_nCount)),
      m_y(CElementVector::Zero(shape.m_nCount)) {
  for (int i = 0; i < 3; ++i) {
    const CPoint p =
        mesh.m_arrVertex[static_cast<std::size_t>(triangle.m_vertex[static_cast<std::size_t>(i)])];
    m_vertex[static_cast<std::size_t>(i)] = p;
    m_x[i] = p.x;
    m_y[i] = p.y;
  }
  const auto& [a, b, c] = m_vertex;
  m_xXi = b.x - a.x;
  m_xEta = c.x - a.x;
  m_yXi = b.y - a.y;
  m_yEta = c.y - a.y;
  m_det = m_xXi * m_yEta - m_xEta * m_yXi;
  for (int i = 0; i < 3; ++i) Bend(mesh, triangle, i, geometry);
  if (m_curved) {
    Integrate();
  } else {
    IntegrateStraight();
  }
}

void CElement::Bend(const CSectionMesh& mesh, const CMeshTriangle& triangle, int edge,
                    int geometry) {
  static const std::array<Eigen::MatrixXd, 5> kShares{
      Eigen::MatrixXd(), Eigen::MatrixXd(), CurveShares(2), CurveShares(3), CurveShares(4)};
  const int s = triangle.m_stretch[static_cast<std::size_t>(edge)];
  if (s < 0 || geometry < 2) return;
  const CStretch& stretch = mesh.m_arrStretch[static_cast<std::size_t>(s)];
  if (!mesh.m_arrEdge[static_cast<std::size_t>(stretch.m_nEdge)].IsArc()) return;
  m_curved = true;
  const CPoint a = Vertex(edge), b = Vertex((edge + 1) % 3);
  Eigen::VectorXd dx(geometry - 1), dy(geometry - 1);
  for (int i = 1; i < geometry; ++i) {
    const double t = CurvePoint(i, geometry);
    const CPoint p = mesh.At(stretch, t);
    dx[i - 1] = p.x - (a.x * (1 - t) + b.x * t);
    dy[i - 1] = p.y - (a.y * (1 - t) + b.y * t);
  }
  const Eigen::MatrixXd& shares = kShares[static_cast<std::size_t>(geometry)];
  dx = shares * dx;
  dy = shares * dy;
  for (int d = 2; d <= geometry; ++d) {
    m_x[CShapeFunctions::EdgeFunction(edge, d)] += dx[d - 2];
    m_y[CShapeFunctions::EdgeFunction(edge, d)] += dy[d - 2];
  }
}

void CElement::Integrate() {
  const Eigen::VectorXd x = m_shape.m_value * m_x, y = m_shape.m_value * m_y;
  const Eigen::ArrayXd xXi = m_shape.m_dxi * m_x, xEta = m_shape.m_deta * m_x;
  const Eigen::ArrayXd yXi = m_shape.m_dxi * m_y, yEta = m_shape.m_deta * m_y;
  const Eigen::ArrayXd det = xXi * yEta - xEta * yXi;
  if (!(det.minCoeff() > 0)) {
    m_sound = false;
    return;
  }
  const Eigen::ArrayXd root = m_shape.m_weight.array().sqrt(), scale = root / det.sqrt();
  const auto points = det.size();
  Eigen::MatrixXd gradient(2 * points, m_shape.m_nCount);  // by x above those by y
  gradient.topRows(points).noalias() = (scale * yEta).matrix().asDiagonal() * m_shape.m_dxi;
  gradient.topRows(points) -= (scale * yXi).matrix().asDiagonal() * m_shape.m_deta;
  gradient.bottomRows(points).noalias() = (scale * xXi).matrix().asDiagonal() * m_shape.m_deta;
  gradient.bottomRows(points) -= (scale * xEta).matrix().asDiagonal() * m_shape.m_dxi;
  m_stiffness.setZero(m_shape.m_nCount, m_shape.m_nCount);
  m_stiffness.selfadjointView<Eigen::Lower>().rankUpdate(gradient.transpose());
  m_stiffness.triangularView<Eigen::StrictlyUpper>() = m_stiffness.transpose();
  m_area = (m_shape.m_weight.array() * det).matrix();
  const Eigen::ArrayXd area = root * det.sqrt();
  m_loads.resize(m_shape.m_nCount, kLoads);
  const Eigen::VectorXd ax = (area * x.array()).matrix(), ay = (area * y.array()).matrix();
  m_loads.col(kLoadOne) = m_shape.m_value.transpose() * m_area;
  m_loads.col(kLoadX) = m_shape.m_value.transpose() * m_area.cwiseProduct(x);
  m_loads.col(kLoadY) = m_shape.m_value.transpose() * m_area.cwiseProduct(y);
  m_loads.col(kLoadDx) = gradient.topRows(points).transpose() * area.matrix();
  m_loads.col(kLoadDy) = gradient.bottomRows(points).transpose() * area.matrix();
  m_loads.col(kLoadTwist) =
      gradient.topRows(points).transpose() * ay - gradient.bottomRows(points).transpose() * ax;
}

double CElement::Energy(const CElementVector& u) const { return Quadratic(m_stiffness, u); }

double CElement::Square(const CElementVector& u) const {
  if (m_curved) return m_area.dot((m_shape.m_value * u).cwiseAbs2());
  return m_det * Quadratic(m_shape.m_mass, u);
}

void CElement::IntegrateStraight() {
  const double xixi = (m_yEta * m_yEta + m_xEta * m_xEta) / m_det;
  const double xieta = -(m_yEta * m_yXi + m_xEta * m_xXi) / m_det;
  const double etaeta = (m_yXi * m_yXi + m_xXi * m_xXi) / m_det;
  m_stiffness = xixi * m_shape.m_xixi + xieta * m_shape.m_xieta + etaeta * m_shape.m_etaeta;
  CLoadMatrix& loads = m_loads;
  loads.resize(m_shape.m_nCount, kLoads);
  const Eigen::Vector3d x = m_x.head(3), y = m_y.head(3), one(1, 1, 1);
  const auto mass = m_shape.m_mass.leftCols(3);
  loads.col(kLoadOne) = m_det * (mass * one);
  loads.col(kLoadX) = m_det * (mass * x);
  loads.col(kLoadY) = m_det * (mass * y);
  loads.col(kLoadDx) = m_yEta * (m_shape.m_xi * one) - m_yXi * (m_shape.m_eta * one);
  loads.col(kLoadDy) = m_xXi * (m_shape.m_eta * one) - m_xEta * (m_shape.m_xi * one);
  loads.col(kLoadTwist) = m_yEta * (m_shape.m_xi * y) - m_yXi * (m_shape.m_eta * y) -
                          m_xXi * (m_shape.m_eta * x) + m_xEta * (m_shape.m_xi * x);
}

}  // namespace orv3
