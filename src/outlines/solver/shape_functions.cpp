#include "outlines/solver/shape_functions.h"

#include <array>
#include <cmath>

#include "outlines/edge.h"

namespace orv3 {
namespace {

// Legendre's P_n with first and second derivative.
struct CLegendre {
  double p = 1, d = 0, dd = 0;
};

CLegendre Legendre(int n, double x) {
  CLegendre before, at{x, 1, 0};
  if (n == 0) return before;
  for (int k = 1; k < n; ++k) {
    const double a = (2.0 * k + 1) / (k + 1), b = 1.0 * k / (k + 1);
    const CLegendre next{a * x * at.p - b * before.p, a * (at.p + x * at.d) - b * before.d,
                         a * (2 * at.d + x * at.dd) - b * before.dd};
    before = at;
    at = next;
  }
  return at;
}

// A value with its derivatives by xi and eta.
struct CDual {
  double v = 0, x = 0, y = 0;
  friend CDual operator*(const CDual& a, const CDual& b) {
    return {a.v * b.v, a.x * b.v + a.v * b.x, a.y * b.v + a.v * b.y};
  }
  friend CDual operator-(const CDual& a, const CDual& b) {
    return {a.v - b.v, a.x - b.x, a.y - b.y};
  }
};

CDual Chain(double value, double slope, const CDual& of) {
  return {value, slope * of.x, slope * of.y};
}

constexpr int kMaxDegree = 6;

}  // namespace

CKernel EdgeKernel(int d, double x) {
  const CLegendre p = Legendre(d - 1, x);
  return {p.d, p.dd};
}

CDegreeFunctions CShapeFunctions::Functions(int degree) {
  CDegreeFunctions functions{{0, 1, 2}, {}};
  for (int edge = 0; edge < 3; ++edge) {
    for (int d = 2; d <= degree; ++d) functions.m_arrSkeleton.push_back(EdgeFunction(edge, d));
  }
  for (int d = 3; d <= degree; ++d) {
    for (int i = Count(d - 1) + 3; i < Count(d); ++i) functions.m_arrInterior.push_back(i);
  }
  return functions;
}

void CShapeFunctions::Evaluate(double xi, double eta, double* value, double* dxi,
                               double* deta) const {
  const std::array<CDual, 3> l{CDual{1 - xi - eta, -1, -1}, {xi, 1, 0}, {eta, 0, 1}};
  int at = 0;
  const auto add = [&](const CDual& f) {
    value[at] = f.v;
    dxi[at] = f.x;
    deta[at] = f.y;
    ++at;
  };
  for (const CDual& f : l) add(f);
  const CDual bubble = l[0] * l[1] * l[2];
  const CDual along = l[1] - l[0], up{2 * eta - 1, 0, 2};
  for (int d = 2; d <= m_nDegree; ++d) {
    for (std::size_t e = 0; e < 3; ++e) {
      const CDual& a = l[e];
      const CDual& b = l[(e + 1) % 3];
      const CKernel k = EdgeKernel(d, b.v - a.v);
      add(a * b * Chain(k.value, k.slope, b - a));
    }
    for (int i = 0; i <= d - 3; ++i) {
      const CLegendre p = Legendre(i, along.v), q = Legendre(d - 3 - i, up.v);
      add(bubble * Chain(p.p, p.d, along) * Chain(q.p, q.d, up));
    }
  }
}

CShapeFunctions::CShapeFunctions(int degree) : m_nDegree(degree), m_nCount(Count(degree)) {
  // Gauss points in a square, one side of which is drawn together in a corner.
  const auto gauss = GaussPoints();
  const auto points = static_cast<Eigen::Index>(gauss.size() * gauss.size());
  m_value.resize(m_nCount, points);
  m_dxi.resize(m_nCount, points);
  m_deta.resize(m_nCount, points);
  m_weight.resize(points);
  Eigen::Index q = 0;
  for (const CGaussPoint& a : gauss) {
    for (const CGaussPoint& b : gauss) {
      const double eta = b.at, xi = a.at * (1 - eta);
      m_weight[q] = a.weight * b.weight * (1 - eta);
      Evaluate(xi, eta, m_value.col(q).data(), m_dxi.col(q).data(), m_deta.col(q).data());
      ++q;
    }
  }
  m_value.transposeInPlace();
  m_dxi.transposeInPlace();
  m_deta.transposeInPlace();
  const auto integral = [&](const Eigen::MatrixXd& f, const Eigen::MatrixXd& g) {
    return Eigen::MatrixXd(f.transpose() * m_weight.asDiagonal() * g);
  };
  m_xixi = integral(m_dxi, m_dxi);
  m_xieta = integral(m_dxi, m_deta) + integral(m_deta, m_dxi);
  m_etaeta = integral(m_deta, m_deta);
  m_mass = integral(m_value, m_value);
  m_xi = integral(m_dxi, m_value.leftCols(3));
  m_eta = integral(m_deta, m_value.leftCols(3));
}

const CShapeFunctions& CShapeFunctions::Of(int degree) {
  static const std::array<CShapeFunctions, kMaxDegree> all{CShapeFunctions(1), CShapeFunctions(2),
                                                           CShapeFunctions(3), CShapeFunctions(4),
                                                           CShapeFunctions(5), CShapeFunctions(6)};
  return all[static_cast<std::size_t>(degree - 1)];
}

}  // namespace orv3
