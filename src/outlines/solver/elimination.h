// Cholesky elimination of finite element equations along the mesh.
//
// Elements are joined two by two, those first whose union has the shortest border; whatever
// unknowns no other element shares are eliminated at once, by dense algebra. A thin-walled section
// is a chain of triangles, and its fronts stay a few dozen unknowns wide.
#pragma once

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "outlines/mesh/section_mesh.h"
#include "outlines/solver/eigen.h"
#include "outlines/solver/shape_functions.h"

namespace orv3 {

inline std::size_t Index(int i) { return static_cast<std::size_t>(i); }

// The pairs to join; the union keeps the first one's number.
std::vector<std::pair<int, int>> JoiningOrder(const CSectionMesh& mesh);

class CElimination {
 public:
  static constexpr Eigen::Index kForces = CElementFields::ColsAtCompileTime;

  // sharing: by unknown, how many elements have it.
  CElimination(std::vector<int> sharing, std::size_t elements);

  // By row of the matrix: the unknown, -1 for one that is held at 0, and the sign it counts with.
  struct CRow {
    int unknown = -1;
    double sign = 1;
  };
  void Add(std::size_t element, std::span<const CRow> rows, const Eigen::MatrixXd& matrix,
           const CElementFields& force);
  void Join(std::size_t a, std::size_t b);
  // The unknowns that are left when all is joined, where held(unknown, force) says of each whether
  // it is held at 0; of a force for which none is, the first one is.
  template <class Held>
  void SolveBorder(std::size_t joined, Held held);
  // A column for each unknown; empty when the matrix is not positive.
  Eigen::Matrix3Xd Solution() const;

 private:
  // The equations of the unknowns that a union shares with others, in rising order: the columns of
  // the lower triangle one after the other, each with the forces below it.
  struct CBorder {
    std::vector<int> unknowns;
    std::vector<double> m_lower;
  };
  // The same of all unknowns of a union, those that it does not share first; one at a time. Columns
  // of equal height, what is above the diagonal without meaning.
  struct CFront {
    std::vector<int> m_all;             // in rising order
    std::vector<Eigen::Index> m_place;  // of each of them
    Eigen::Index m_inner = 0;
    std::vector<double> m_lower;

    Eigen::Map<Eigen::MatrixXd> Lower() {
      const auto size = static_cast<Eigen::Index>(m_all.size());
      return {m_lower.data(), size + kForces, size};
    }
  };
  // Its unknowns and its columns of the factor, in m_done and m_factors.
  struct CEliminated {
    std::size_t m_unknowns, m_columns;
    Eigen::Index m_inner, m_outer;
  };
  // Of m_front.m_all; its numbers have no meaning yet.
  void PrepareFront();
  void AddBorder(const CBorder& border);
  void EliminateFront();
  void Leave(CBorder& left);

  std::vector<int> m_sharing;
  std::vector<CBorder> m_borders;
  std::vector<CEliminated> m_eliminated;
  std::vector<int> m_done;  // inner unknowns, then outer ones
  std::vector<double> m_factors;
  CFront m_front;
  std::vector<Eigen::Index> m_rows, m_placed;
  std::vector<int> m_kept;  // unknowns solved by SolveBorder
  Eigen::Matrix3Xd m_keptValues;
  bool m_positive = true;
};

template <class Held>
void CElimination::SolveBorder(std::size_t joined, Held held) {
  const CBorder& border = m_borders[joined];
  const auto count = static_cast<Eigen::Index>(border.unknowns.size());
  m_kept = border.unknowns;
  m_keptValues.setZero(kForces, count);
  Eigen::MatrixXd lower = Eigen::MatrixXd::Zero(count + kForces, count);
  const double* from = border.m_lower.data();
  for (Eigen::Index j = 0; j < count; from += count + kForces - j++)
    std::copy_n(from, count + kForces - j, &lower(j, j));
  for (Eigen::Index force = 0; force < kForces && count > 0; ++force) {
    std::vector<Eigen::Index> free;
    for (Eigen::Index i = 0; i < count; ++i) {
      if (!held(border.unknowns[static_cast<std::size_t>(i)], force)) free.push_back(i);
    }
    if (free.size() == border.unknowns.size()) free.erase(free.begin());
    const Eigen::LLT<Eigen::MatrixXd> factor(lower(free, free));
    m_positive = m_positive && factor.info() == Eigen::Success;
    const Eigen::VectorXd right = lower(count + force, free).transpose();
    m_keptValues(force, free) = factor.solve(right).transpose();
  }
}

}  // namespace orv3
