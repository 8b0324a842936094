#include "outlines/solver/elimination.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
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
  std::vector<std::pair<int, Eigen::Index>> rows;
  for (std::size_t i = 0; i < unknowns.size(); ++i) {
    if (unknowns[i] >= 0) rows.push_back({unknowns[i], static_cast<Eigen::Index>(i)});
  }
  std::sort(rows.begin(), rows.end());
  m_forces = force.cols();
  std::vector<int> all;
  for (const auto& [unknown, row] : rows) all.push_back(unknown);
  CFront front = FrontOf(all);
  for (std::size_t j = 0; j < rows.size(); ++j) {
    const Eigen::Index column = front.m_place[j];
    for (std::size_t i = 0; i < rows.size(); ++i)
      front.m_lower(front.m_place[i], column) = matrix(rows[i].second, rows[j].second);
    front.m_lower.col(column).tail(m_forces) = force.row(rows[j].second).transpose();
  }
  Eliminate(std::move(front), m_borders[element]);
}

void CElimination::Join(std::size_t a, std::size_t b) {
  const CBorder one = std::move(m_borders[a]), other = std::move(m_borders[b]);
  m_borders[b] = {};
  std::vector<int> all, both;
  std::set_union(one.unknowns.begin(), one.unknowns.end(), other.unknowns.begin(),
                 other.unknowns.end(), std::back_inserter(all));
  std::set_intersection(one.unknowns.begin(), one.unknowns.end(), other.unknowns.begin(),
                        other.unknowns.end(), std::back_inserter(both));
  for (int unknown : both) --m_sharing[Index(unknown)];
  CFront front = FrontOf(all);
  for (const CBorder* part : {&one, &other}) {
    std::vector<Eigen::Index> rows;
    std::size_t at = 0;
    for (int unknown : part->unknowns) {
      while (all[at] != unknown) ++at;
      rows.push_back(front.m_place[at]);
    }
    // Places rise with the unknowns, but for those that are eliminated now and stand first.
    const auto count = static_cast<Eigen::Index>(rows.size());
    for (Eigen::Index j = 0; j < count; ++j) {
      const Eigen::Index column = rows[static_cast<std::size_t>(j)];
      for (Eigen::Index i = j; i < count; ++i) {
        const Eigen::Index row = rows[static_cast<std::size_t>(i)];
        front.m_lower(std::max(row, column), std::min(row, column)) += part->m_lower(i, j);
      }
      front.m_lower.col(column).tail(m_forces) += part->m_lower.col(j).tail(m_forces);
    }
  }
  Eliminate(std::move(front), m_borders[a]);
}

CElimination::CFront CElimination::FrontOf(const std::vector<int>& all) const {
  CFront front;
  for (int unknown : all) {
    (m_sharing[Index(unknown)] == 1 ? front.m_inner : front.m_outer).push_back(unknown);
  }
  const auto inner = static_cast<Eigen::Index>(front.m_inner.size());
  Eigen::Index nextInner = 0, nextOuter = inner;
  for (int unknown : all)
    front.m_place.push_back(m_sharing[Index(unknown)] == 1 ? nextInner++ : nextOuter++);
  const auto size = static_cast<Eigen::Index>(all.size());
  front.m_lower = MatrixXd::Zero(size + m_forces, size);
  return front;
}

// The factor's columns of the inner unknowns; what is left is the border's.
void CElimination::Eliminate(CFront front, CBorder& left) {
  MatrixXd& a = front.m_lower;
  const auto inner = static_cast<Eigen::Index>(front.m_inner.size());
  const Eigen::Index rows = a.rows(), columns = a.cols();
  for (Eigen::Index k = 0; k < inner; ++k) {
    m_positive = m_positive && a(k, k) > 0;
    const double root = std::sqrt(a(k, k));
    a.col(k).tail(rows - k) /= root;
    for (Eigen::Index j = k + 1; j < columns; ++j)
      a.col(j).tail(rows - j) -= a(j, k) * a.col(k).tail(rows - j);
  }
  left.unknowns = front.m_outer;
  left.m_lower = a.bottomRightCorner(rows - inner, columns - inner);
  if (inner == 0) return;
  m_eliminated.push_back({std::move(front.m_inner), std::move(front.m_outer), a.leftCols(inner)});
}

MatrixXd CElimination::Solution() const {
  if (!m_positive) return {};
  MatrixXd solution = MatrixXd::Zero(static_cast<Eigen::Index>(m_sharing.size()), m_forces);
  MatrixXd border;
  for (auto e = m_eliminated.rbegin(); e != m_eliminated.rend(); ++e) {
    const Eigen::Index inner = e->m_factor.cols();
    MatrixXd own = e->m_factor.bottomRows(m_forces).transpose();
    const auto outer = static_cast<Eigen::Index>(e->m_outer.size());
    border.resize(outer, m_forces);
    for (Eigen::Index i = 0; i < outer; ++i)
      border.row(i) = solution.row(e->m_outer[static_cast<std::size_t>(i)]);
    own -= e->m_factor.middleRows(inner, outer).transpose().lazyProduct(border);
    for (Eigen::Index k = inner - 1; k >= 0; --k) {
      own.row(k) /= e->m_factor(k, k);
      own.topRows(k) -= e->m_factor.row(k).head(k).transpose() * own.row(k);
    }
    for (Eigen::Index k = 0; k < inner; ++k)
      solution.row(e->m_inner[static_cast<std::size_t>(k)]) = own.row(k);
  }
  return solution;
}

}  // namespace orv3
