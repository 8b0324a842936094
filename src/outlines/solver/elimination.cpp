#include "outlines/solver/elimination.h"

#include <algorithm>
#include <array>
#include <queue>

namespace orv3 {
namespace {

using Eigen::MatrixXd;

std::size_t Index(int i) { return static_cast<std::size_t>(i); }

// A set of triangles: its border edges, and with whom it shares how many of them.
struct CUnion {
  int border = 0;
  std::vector<std::pair<int, int>> beside;
  int version = 0;
};

class CJoiner {
 public:
  explicit CJoiner(const CSectionMesh& mesh) : m_unions(mesh.m_arrTriangle.size()) {
    std::vector<std::array<int, 3>> edges;  // ends, triangle
    for (std::size_t i = 0; i < mesh.m_arrTriangle.size(); ++i) {
      const auto& v = mesh.m_arrTriangle[i].m_vertex;
      for (std::size_t e = 0; e < 3; ++e) {
        edges.push_back(
            {std::min(v[e], v[(e + 1) % 3]), std::max(v[e], v[(e + 1) % 3]), static_cast<int>(i)});
      }
    }
    std::sort(edges.begin(), edges.end());
    for (std::size_t i = 1; i < edges.size(); ++i) {
      if (edges[i][0] != edges[i - 1][0] || edges[i][1] != edges[i - 1][1]) continue;
      Share(edges[i - 1][2], edges[i][2], 1);
    }
    for (std::size_t i = 0; i < m_unions.size(); ++i) Offer(static_cast<int>(i));
  }

  std::vector<std::pair<int, int>> Order() {
    std::vector<std::pair<int, int>> order;
    while (!m_queue.empty()) {
      const COffer offer = m_queue.top();
      m_queue.pop();
      const auto [a, b] = std::pair{offer.a, offer.b};
      if (Of(a).version != offer.versionA || Of(b).version != offer.versionB) continue;
      order.push_back({a, b});
      Join(a, b);
    }
    return order;
  }

 private:
  struct COffer {
    int cost, a, b, versionA, versionB;
    bool operator<(const COffer& other) const {
      return std::pair{cost, a} > std::pair{other.cost, other.a};
    }
  };

  CUnion& Of(int i) { return m_unions[Index(i)]; }

  void Share(int a, int b, int edges) {
    for (const auto& [one, other] : {std::pair{a, b}, std::pair{b, a}}) {
      auto& list = Of(one).beside;
      const auto found = std::find_if(list.begin(), list.end(),
                                      [&](const auto& entry) { return entry.first == other; });
      if (found != list.end()) {
        found->second += edges;
      } else {
        list.push_back({other, edges});
      }
      Of(one).border += edges;
    }
  }

  void Offer(int a) {
    for (const auto& [b, edges] : Of(a).beside) {
      m_queue.push({Of(a).border + Of(b).border - 2 * edges, a, b, Of(a).version, Of(b).version});
    }
  }

  void Join(int a, int b) {
    const auto lost = std::exchange(Of(b).beside, {});
    ++Of(a).version;
    Of(b).version = -1;
    const auto forget = [&](int in, int who) {
      auto& list = Of(in).beside;
      const auto found = std::find_if(list.begin(), list.end(),
                                      [&](const auto& entry) { return entry.first == who; });
      Of(in).border -= found->second;
      list.erase(found);
    };
    for (const auto& [c, edges] : lost) {
      forget(c, b);
      if (c != a) Share(a, c, edges);
    }
    Offer(a);
  }

  std::vector<CUnion> m_unions;
  std::priority_queue<COffer> m_queue;
};

}  // namespace

std::vector<std::pair<int, int>> JoiningOrder(const CSectionMesh& mesh) {
  return CJoiner(mesh).Order();
}

CElimination::CElimination(std::vector<int> sharing, std::size_t elements)
    : m_sharing(std::move(sharing)), m_borders(elements) {
  m_eliminated.reserve(2 * elements);
}

void CElimination::Add(std::size_t element, const std::vector<int>& unknowns,
                       const MatrixXd& matrix, const MatrixXd& force) {
  std::vector<int> rows;
  for (std::size_t i = 0; i < unknowns.size(); ++i) {
    if (unknowns[i] >= 0) rows.push_back(static_cast<int>(i));
  }
  std::sort(rows.begin(), rows.end(),
            [&](int a, int b) { return unknowns[Index(a)] < unknowns[Index(b)]; });
  CBorder all;
  for (int row : rows) all.unknowns.push_back(unknowns[Index(row)]);
  all.matrix = matrix(rows, rows);
  all.force = force(rows, Eigen::all);
  m_forces = force.cols();
  Eliminate(std::move(all), m_borders[element]);
}

void CElimination::Join(std::size_t a, std::size_t b) {
  const CBorder one = std::move(m_borders[a]), other = std::move(m_borders[b]);
  m_borders[b] = {};
  CBorder all;
  std::set_union(one.unknowns.begin(), one.unknowns.end(), other.unknowns.begin(),
                 other.unknowns.end(), std::back_inserter(all.unknowns));
  const auto size = static_cast<Eigen::Index>(all.unknowns.size());
  all.matrix = MatrixXd::Zero(size, size);
  all.force = MatrixXd::Zero(size, m_forces);
  for (const CBorder* part : {&one, &other}) {
    std::vector<Eigen::Index> rows;
    std::size_t at = 0;
    for (int unknown : part->unknowns) {
      while (all.unknowns[at] != unknown) ++at;
      rows.push_back(static_cast<Eigen::Index>(at));
    }
    for (std::size_t j = 0; j < rows.size(); ++j) {
      const auto column = static_cast<Eigen::Index>(j);
      for (std::size_t i = 0; i < rows.size(); ++i)
        all.matrix(rows[i], rows[j]) += part->matrix(static_cast<Eigen::Index>(i), column);
      all.force.row(rows[j]) += part->force.row(column);
    }
  }
  std::size_t at = 0;
  for (int unknown : one.unknowns) {
    while (at < other.unknowns.size() && other.unknowns[at] < unknown) ++at;
    if (at < other.unknowns.size() && other.unknowns[at] == unknown) --m_sharing[Index(unknown)];
  }
  Eliminate(std::move(all), m_borders[a]);
}

void CElimination::Eliminate(CBorder all, CBorder& left) {
  std::vector<int> inner, outer;
  CEliminated e;
  for (std::size_t i = 0; i < all.unknowns.size(); ++i) {
    const int unknown = all.unknowns[i];
    const bool own = m_sharing[Index(unknown)] == 1;
    (own ? inner : outer).push_back(static_cast<int>(i));
    (own ? e.m_arrUnknown : e.m_arrBorder).push_back(unknown);
  }
  if (inner.empty()) {
    left = std::move(all);
    return;
  }
  left.unknowns = e.m_arrBorder;
  left.matrix = all.matrix(outer, outer);
  left.force = all.force(outer, Eigen::all);
  const Eigen::LLT<MatrixXd> factor(all.matrix(inner, inner));
  m_positive = m_positive && factor.info() == Eigen::Success;
  const MatrixXd coupling = all.matrix(inner, outer);
  e.m_own = factor.solve(all.force(inner, Eigen::all));
  e.m_of = factor.solve(coupling);
  left.matrix.noalias() -= coupling.transpose() * e.m_of;
  left.force.noalias() -= coupling.transpose() * e.m_own;
  m_eliminated.push_back(std::move(e));
}

MatrixXd CElimination::Solution() const {
  if (!m_positive) return {};
  MatrixXd solution = MatrixXd::Zero(static_cast<Eigen::Index>(m_sharing.size()), m_forces);
  for (auto e = m_eliminated.rbegin(); e != m_eliminated.rend(); ++e) {
    solution(e->m_arrUnknown, Eigen::all) = e->m_own;
    if (!e->m_arrBorder.empty()) {
      solution(e->m_arrUnknown, Eigen::all) -= e->m_of * solution(e->m_arrBorder, Eigen::all);
    }
  }
  return solution;
}

}  // namespace orv3
