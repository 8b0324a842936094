// Hierarchical shape functions of a triangle, and their integrals over the reference triangle
// (0, 0), (1, 0), (0, 1).
//
// By rising degree: the 3 vertex functions; then of each degree d one function for each edge, and
// d - 2 that vanish on all edges. The first (q + 1) (q + 2) / 2 span the polynomials of degree q.
// The function of degree d of the edge a -> b is la lb P'_{d-1}(lb - la) with the barycentric la,
// lb and Legendre's P, so it changes sign with the edge's direction when d is odd.
#pragma once

#include <vector>

#include "outlines/solver/eigen.h"

namespace orv3 {

// Matrices of an element, which need no memory of their own.
inline constexpr int kMaxDegree = 6;
inline constexpr int kMaxFunctions = (kMaxDegree + 1) * (kMaxDegree + 2) / 2;
using CElementMatrix =
    Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, 0, kMaxFunctions, kMaxFunctions>;
using CElementVector = Eigen::Matrix<double, Eigen::Dynamic, 1, 0, kMaxFunctions, 1>;
// Three at once: of the warping and the two flexure functions.
using CElementFields = Eigen::Matrix<double, Eigen::Dynamic, 3, 0, kMaxFunctions, 3>;

class CShapeFunctions {
 public:
  explicit CShapeFunctions(int degree);
  // Tables made once for the degrees in use, 1 to 6.
  static const CShapeFunctions& Of(int degree);

  static constexpr int Count(int degree) { return (degree + 1) * (degree + 2) / 2; }
  // The number of the function of degree d >= 2 of edge 0, 1 or 2.
  static constexpr int EdgeFunction(int edge, int d) { return Count(d - 1) + edge; }

  // At (xi, eta): values, and derivatives by xi and eta.
  void Evaluate(double xi, double eta, double* value, double* dxi, double* deta) const;

  int m_nDegree = 0;
  int m_nCount = 0;
  // At the points of a quadrature that integrates degree 2 p exactly, a row each.
  Eigen::MatrixXd m_value, m_dxi, m_deta;
  Eigen::VectorXd m_weight;
  // Integrals of products: of derivatives, of values, of a derivative and a vertex function.
  CElementMatrix m_xixi, m_xieta, m_etaeta, m_mass, m_xi, m_eta;
};

// P'_{d-1} and its derivative at x.
struct CKernel {
  double value = 0, slope = 0;
};
CKernel EdgeKernel(int d, double x);

}  // namespace orv3
