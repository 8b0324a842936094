// The torsion and the two flexure problems of a part, by finite elements on a mesh; of a part that
// is its own mirror image on what the mesh keeps of it.
//
// With x, y from the centroid, over the area and in shape functions of two degrees:
//   warping  w: div grad w = 0, grad w + (-y, x) tangential to the boundary
//   flexure  f: div grad f = -x (and -y), grad f tangential to the boundary
#pragma once

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "outlines/solver/element.h"

namespace orv3 {

// Of a part, in the mesh's units and frame.
struct CTorsionShear {
  double It = 0, Iw = 0;
  CPoint m_center;                    // shear center
  double m_dFlexX = 0, m_dFlexY = 0;  // the reciprocals of the shear areas
};

// The shear along the boundary at a point of it, in the mesh's units: for a twist of 1, and for
// forces of 1 along x and y through the shear center.
struct CEdgeTraction {
  CPoint m_point;
  double m_dTwist = 0, m_dX = 0, m_dY = 0;
};

// The same at a point of the material, as vectors.
struct CInnerTraction {
  CPoint m_point;
  CPoint m_twist, m_x, m_y;
};

// By element the shares of the shape functions: of the warping about the centroid, of the flexure
// functions of x and of y.
using CFields = std::vector<CElementFields>;

// With all functions, and with those of a lower degree.
enum class CSolution { Fine, Coarse };

class CSaintVenant {
 public:
  // Of shape functions up to this degree; 2 or more.
  CSaintVenant(CSectionMesh mesh, int degree);

  // False when an arc cannot be followed by its triangle, or the equations cannot be solved.
  bool IsSound() const { return m_sound; }
  // Twice: with all functions, and with those of a lower degree. The true energies lie beyond the
  // first on the side away from the second.
  const CTorsionShear& Fine() const { return m_fine; }
  const CTorsionShear& Coarse() const { return m_coarse; }
  // Fine() before the last correction of what rounding has left: what that changed is still open.
  const CTorsionShear& Rounded() const { return m_rounded; }

  double Area() const { return m_area; }
  // About the length of the walls by their thickness.
  double Slenderness() const { return 12 * (m_Ix + m_Iy) / (m_area * m_area); }
  const CSectionMesh& Mesh() const { return m_mesh; }
  bool IsFolded() const { return m_mesh.m_fold.Any(); }
  // On an edge of an element that is part of the boundary, t from 0 to 1 along it.
  CEdgeTraction Traction(std::size_t element, int edge, double t, CSolution of) const;
  // At a lattice of points of an element, its edges included.
  std::vector<CInnerTraction> Inside(std::size_t element, CSolution of) const;
  // By element: its share of the difference of the two solutions, in the energy of either problem.
  std::vector<double> Shares() const;

 private:
  void MakeElements(int geometry);
  void NumberEdges();
  std::optional<CFields> Solve(int degree, const CFields& forces) const;
  std::optional<CFields> Solve(int degree, CTorsionShear& before) const;
  CElementVector LocalWarping(std::size_t element, const CFields& fields) const;
  CElementVector LocalTwist(std::size_t element) const;
  CFields Residual(const CFields& fields) const;
  CTorsionShear Figures(const CFields& fields) const;

  CSectionMesh m_mesh;
  const CShapeFunctions* m_shape;
  std::vector<CElement> m_elements;
  std::vector<std::array<int, 3>> m_edges;  // of each element, numbered
  int m_edgeCount = 0;
  std::vector<std::pair<int, int>> m_order;  // of elimination
  double m_area = 0;
  CPoint m_centroid;
  double m_Ix = 0, m_Iy = 0, m_Ixy = 0;
  bool m_sound = false;
  CFields m_forces;  // right-hand sides of the three problems
  CFields m_fields, m_lower;
  CTorsionShear m_fine, m_coarse, m_rounded;
};

}  // namespace orv3
