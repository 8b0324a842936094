// Torsion and flexure of a prismatic bar after Saint-Venant, for Poisson's ratio 0.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "drawing/path.h"
#include "framework/export.h"
#include "outlines/exact_properties.h"

namespace orv3 {

// Acting on a cross section. N, N mm. Mx > 0 pulls the upper edge, My > 0 the right one. Vx and Vy
// act through the shear center, T > 0 turns counter-clockwise.
struct CSectionForces {
  double N = 0, Mx = 0, My = 0, Vx = 0, Vy = 0, T = 0;
};

// N/mm^2 at a point of the boundary or inside, in the frame of the loops.
struct CBoundaryStress {
  static constexpr std::size_t kInside = static_cast<std::size_t>(-1);

  std::size_t m_nLoop = 0;  // which loop; kInside
  CPoint m_point;
  double sigma = 0;        // along the bar, tension positive
  double tau = 0;          // resultant shear, along the boundary in the loop's sense; inside >= 0
  double mises = 0;        // sqrt(sigma^2 + 3 tau^2)
  double tauError = 0;     // estimated: by how much a solution of lower degree differs
  bool m_bSharp = false;   // at a sharp re-entrant corner, where theory has no bound for tau
  bool m_bCoarse = false;  // at a concave arc too small for the mesh: tau is too low, by how much
                           // is not known
};

class ORV3CAL_API CSectionSolver {
 public:
  // Loops as for ExactProperties, which see.
  explicit CSectionSolver(std::span<const CPath> loops);
  ~CSectionSolver();
  CSectionSolver(CSectionSolver&&) noexcept;
  CSectionSolver& operator=(CSectionSolver&&) noexcept;

  const CExactProperties& Properties() const noexcept;

  // Loop by loop along the boundary, closely enough to draw. Of parts that are not joined: Vx and
  // Vy give no tau (NaN), the others act on the parts together. Empty when the figures are NaN.
  std::vector<CBoundaryStress> Stresses(const CSectionForces& forces) const;

  // At points inside, where Vx or Vy act: the shear of N, Mx, My and T alone, and so the equivalent
  // stress, is greatest on the boundary. Triangles at sharp re-entrant corners are left out.
  std::vector<CBoundaryStress> StressesInside(const CSectionForces& forces) const;

 private:
  friend struct CPropertiesAlone;
  struct CState;
  std::unique_ptr<CState> m_state;
};

}  // namespace orv3
