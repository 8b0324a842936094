// A triangle of the mesh as a finite element: its integrals in the shape functions of a degree.
#pragma once

#include <array>

#include "outlines/mesh/section_mesh.h"
#include "outlines/solver/eigen.h"
#include "outlines/solver/shape_functions.h"

namespace orv3 {

// The columns of CElement::Loads: integrals of v, x v, y v, dv/dx, dv/dy and y dv/dx - x dv/dy with
// each shape function v.
enum CLoad { kLoadOne, kLoadX, kLoadY, kLoadDx, kLoadDy, kLoadTwist, kLoads };
using CLoadMatrix = Eigen::Matrix<double, Eigen::Dynamic, kLoads, 0, kMaxFunctions, kLoads>;

// Curved edges are polynomials of the degree `geometry` through points of the arc, so that x and y
// are themselves among the functions.
class CElement {
 public:
  CElement(const CSectionMesh& mesh, const CMeshTriangle& triangle, const CShapeFunctions& shape,
           int geometry);

  bool IsSound() const { return m_sound; }
  CPoint Vertex(int i) const { return m_vertex[static_cast<std::size_t>(i)]; }
  // Integrals of the products of gradients.
  const Eigen::MatrixXd& Stiffness() const { return m_stiffness; }
  double Energy(const CElementVector& u) const;
  double Square(const CElementVector& u) const;  // integral of u^2
  const CLoadMatrix& Loads() const { return m_loads; }
  // x and y in the shape functions.
  const CElementVector& X() const { return m_x; }
  const CElementVector& Y() const { return m_y; }

 private:
  void Bend(const CSectionMesh& mesh, const CMeshTriangle& triangle, int edge, int geometry);
  void Integrate();
  void IntegrateStraight();

  const CShapeFunctions& m_shape;
  std::array<CPoint, 3> m_vertex;
  CElementVector m_x, m_y;
  bool m_curved = false, m_sound = true;
  Eigen::MatrixXd m_stiffness;
  CLoadMatrix m_loads;
  // Of a straight triangle.
  double m_det = 0, m_xXi = 0, m_xEta = 0, m_yXi = 0, m_yEta = 0;
  Eigen::VectorXd m_area;  // of a curved one, by quadrature point
};

}  // namespace orv3
