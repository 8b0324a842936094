// Cholesky elimination of finite element equations along the mesh.
//
// Elements are joined two by two, those first whose union has the shortest border; whatever
// unknowns no other element shares are eliminated at once, by dense algebra. A thin-walled section
// is a chain of triangles, and its fronts stay a few dozen unknowns wide.
#pragma once

#include <Eigen/Dense>
#include <utility>
#include <vector>

#include "outlines/mesh/section_mesh.h"

namespace orv3 {

// The pairs to join; the union keeps the first one's number.
std::vector<std::pair<int, int>> JoiningOrder(const CSectionMesh& mesh);

class CElimination {
 public:
  // sharing: by unknown, how many elements have it.
  CElimination(std::vector<int> sharing, std::size_t elements);

  // unknowns: by row of the matrix; -1 for one that is held at 0.
  void Add(std::size_t element, const std::vector<int>& unknowns, const Eigen::MatrixXd& matrix,
           const Eigen::MatrixXd& force);
  void Join(std::size_t a, std::size_t b);
  // A row for each unknown; empty when the matrix is not positive.
  Eigen::MatrixXd Solution() const;

 private:
  // The equations of the unknowns that a union shares with others, in rising order: the lower
  // triangle, and the forces as further rows.
  struct CBorder {
    std::vector<int> unknowns;
    Eigen::MatrixXd m_lower;
  };
  // The same of all unknowns of a union, those that it does not share first.
  struct CFront {
    std::vector<int> m_inner, m_outer;
    std::vector<Eigen::Index> m_place;  // of all in rising order
    Eigen::MatrixXd m_lower;
  };
  struct CEliminated {
    std::vector<int> m_inner, m_outer;
    Eigen::MatrixXd m_factor;
  };
  CFront FrontOf(const std::vector<int>& all) const;
  void Eliminate(CFront front, CBorder& left);

  std::vector<int> m_sharing;
  std::vector<CBorder> m_borders;
  std::vector<CEliminated> m_eliminated;
  Eigen::Index m_forces = 0;
  bool m_positive = true;
};

}  // namespace orv3
