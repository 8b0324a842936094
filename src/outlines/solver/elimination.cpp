#include "outlines/solver/elimination.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <queue>
#include <tuple>

namespace orv3 {
namespace {

using Eigen::MatrixXd;

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
    // Lines of symmetry stay on the border.
    for (std::size_t i = 0; i < mesh.m_arrTriangle.size(); ++i) {
      for (int s : mesh.m_arrTriangle[i].m_stretch)
        m_unions[i].border += s >= 0 && mesh.m_arrStretch[Index(s)].m_nLoop < 0;
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
    // Whole, so that offers alike in cost follow one another alike in every standard library.
    bool operator<(const COffer& other) const {
      return std::tuple{cost, a, b} > std::tuple{other.cost, other.a, other.b};
    }
  };

  CUnion& Of(int i) { return m_unions[Index(i)]; }

  void Share(int a, int b, int edges) {
    for (const auto& [one, beside] : {std::pair{a, b}, std::pair{b, a}}) {
      auto& list = Of(one).beside;
      const auto found =
          std::find_if(list.begin(), list.end(),
                       [other = beside](const auto& entry) { return entry.first == other; });
      if (found != list.end()) {
        found->second += edges;
      } else {
        list.push_back({beside, edges});
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

// Takes from `rest` four columns `step` apart from each other, each by its first number, over
// `count` rows. Rows are independent, so a compiler's vector instructions leave the figures alone.
void SubtractFour(double* __restrict rest, const double* __restrict first, Eigen::Index step,
                  Eigen::Index count) {
  const double *a = first, *b = a + step, *c = b + step, *d = c + step;
  const double shares[] = {*a, *b, *c, *d};
  for (Eigen::Index i = 0; i < count; ++i)
    rest[i] -= shares[0] * a[i] + shares[1] * b[i] + shares[2] * c[i] + shares[3] * d[i];
}

}  // namespace

std::vector<std::pair<int, int>> JoiningOrder(const CSectionMesh& mesh) {
  return CJoiner(mesh).Order();
}

CElimination::CElimination(std::vector<int> sharing, std::size_t elements)
    : m_sharing(std::move(sharing)), m_borders(elements) {
  m_eliminated.reserve(2 * elements);
}

void CElimination::PrepareFront() {
  CFront& front = m_front;
  front.m_place.clear();
  front.m_inner = std::count_if(front.m_all.begin(), front.m_all.end(),
                                [&](int unknown) { return m_sharing[Index(unknown)] == 1; });
  Eigen::Index nextInner = 0, nextOuter = front.m_inner;
  for (int unknown : front.m_all)
    front.m_place.push_back(m_sharing[Index(unknown)] == 1 ? nextInner++ : nextOuter++);
  const std::size_t size = front.m_all.size();
  front.m_lower.resize(std::max(front.m_lower.size(), (size + kForces) * size));
}

void CElimination::Add(std::size_t element, std::span<const CRow> rows, const MatrixXd& matrix,
                       const CElementFields& force) {
  m_rows.clear();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].unknown >= 0) m_rows.push_back(static_cast<Eigen::Index>(i));
  }
  const auto row = [&](Eigen::Index i) { return rows[static_cast<std::size_t>(i)]; };
  std::sort(m_rows.begin(), m_rows.end(),
            [&](Eigen::Index a, Eigen::Index b) { return row(a).unknown < row(b).unknown; });
  m_front.m_all.clear();
  for (Eigen::Index i : m_rows) m_front.m_all.push_back(row(i).unknown);
  PrepareFront();
  auto lower = m_front.Lower();
  m_placed.resize(m_rows.size());
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    m_placed[static_cast<std::size_t>(m_front.m_place[i])] = m_rows[i];
  double* to = lower.data();
  for (std::size_t j = 0; j < m_placed.size(); ++j) {
    const double sign = row(m_placed[j]).sign;
    for (std::size_t i = j; i < m_placed.size(); ++i)
      to[i] = sign * row(m_placed[i]).sign * matrix(m_placed[i], m_placed[j]);
    to += lower.rows();
  }
  for (Eigen::Index j = 0; j < lower.cols(); ++j) {
    const Eigen::Index of = m_placed[static_cast<std::size_t>(j)];
    lower.col(j).tail<kForces>() = row(of).sign * force.row(of).transpose();
  }
  EliminateFront();
  Leave(m_borders[element]);
}

void CElimination::Join(std::size_t a, std::size_t b) {
  CBorder& one = m_borders[a];
  CBorder& other = m_borders[b];
  m_front.m_all.clear();
  std::set_union(one.unknowns.begin(), one.unknowns.end(), other.unknowns.begin(),
                 other.unknowns.end(), std::back_inserter(m_front.m_all));
  auto with = other.unknowns.begin();
  for (int unknown : one.unknowns) {
    while (with != other.unknowns.end() && *with < unknown) ++with;
    if (with != other.unknowns.end() && *with == unknown) --m_sharing[Index(unknown)];
  }
  PrepareFront();
  auto lower = m_front.Lower();
  for (Eigen::Index j = 0; j < lower.cols(); ++j) lower.col(j).tail(lower.rows() - j).setZero();
  AddBorder(one);
  AddBorder(other);
  EliminateFront();
  Leave(one);
  other = {};
}

void CElimination::AddBorder(const CBorder& border) {
  m_rows.clear();
  std::size_t at = 0;
  for (int unknown : border.unknowns) {
    while (m_front.m_all[at] != unknown) ++at;
    m_rows.push_back(m_front.m_place[at]);
  }
  auto lower = m_front.Lower();
  for (Eigen::Index force = 0; force < kForces; ++force) m_rows.push_back(lower.cols() + force);
  const double* from = border.m_lower.data();
  for (std::size_t j = 0; j < border.unknowns.size(); ++j) {
    const Eigen::Index column = m_rows[j];
    double* to = &lower(0, column);
    if (column < m_front.m_inner) {
      for (std::size_t i = j; i < m_rows.size(); ++i) to[m_rows[i]] += *from++;
      continue;
    }
    // Places rise with the unknowns, but for those that are eliminated now and stand first.
    for (std::size_t i = j; i < m_rows.size(); ++i) {
      const Eigen::Index row = m_rows[i];
      (row < column ? lower(column, row) : to[row]) += *from++;
    }
  }
}

// The factor's columns of the inner unknowns, and what they leave of the others. Columns are
// eliminated four at a time, so that the rest is read and written a quarter as often.
void CElimination::EliminateFront() {
  auto a = m_front.Lower();
  const Eigen::Index inner = m_front.m_inner, rows = a.rows(), columns = a.cols();
  for (Eigen::Index from = 0; from < inner; from += 4) {
    const Eigen::Index to = std::min(from + 4, inner);
    for (Eigen::Index k = from; k < to; ++k) {
      m_positive = m_positive && a(k, k) > 0;
      a.col(k).tail(rows - k) /= std::sqrt(a(k, k));
      for (Eigen::Index j = k + 1; j < to; ++j)
        a.col(j).tail(rows - j) -= a(j, k) * a.col(k).tail(rows - j);
    }
    for (Eigen::Index j = to; j < columns; ++j) {
      if (to - from == 4) {
        SubtractFour(&a(j, j), &a(j, from), rows, rows - j);
      } else {
        for (Eigen::Index k = from; k < to; ++k)
          a.col(j).tail(rows - j) -= a(j, k) * a.col(k).tail(rows - j);
      }
    }
  }
}

void CElimination::Leave(CBorder& left) {
  const auto a = m_front.Lower();
  const Eigen::Index inner = m_front.m_inner, rows = a.rows(), columns = a.cols();
  const CEliminated done{m_done.size(), m_factors.size(), inner, columns - inner};
  left.unknowns.clear();
  for (int unknown : m_front.m_all)
    (m_sharing[Index(unknown)] == 1 ? m_done : left.unknowns).push_back(unknown);
  left.m_lower.clear();
  for (Eigen::Index j = inner; j < columns; ++j)
    left.m_lower.insert(left.m_lower.end(), &a(j, j), &a(0, j) + rows);
  if (inner == 0) return;
  m_done.insert(m_done.end(), left.unknowns.begin(), left.unknowns.end());
  m_factors.insert(m_factors.end(), a.data(), a.data() + rows * inner);
  m_eliminated.push_back(done);
}

Eigen::Matrix3Xd CElimination::Solution() const {
  if (!m_positive) return {};
  Eigen::Matrix3Xd solution(kForces, m_sharing.size());
  for (std::size_t i = 0; i < m_kept.size(); ++i)
    solution.col(m_kept[i]) = m_keptValues.col(static_cast<Eigen::Index>(i));
  Eigen::Matrix3Xd border;
  for (auto e = m_eliminated.rbegin(); e != m_eliminated.rend(); ++e) {
    const Eigen::Index inner = e->m_inner, outer = e->m_outer;
    const int* unknown = &m_done[e->m_unknowns];
    const Eigen::Map<const MatrixXd> factors(&m_factors[e->m_columns], inner + outer + kForces,
                                             inner);
    border.resize(kForces, outer);
    for (Eigen::Index i = 0; i < outer; ++i) border.col(i) = solution.col(unknown[inner + i]);
    for (Eigen::Index k = inner - 1; k >= 0; --k) {
      const auto factor = factors.col(k);
      Eigen::Vector3d value = factor.tail<kForces>();
      for (Eigen::Index i = 0; i < outer; ++i) value -= factor[inner + i] * border.col(i);
      for (Eigen::Index i = k + 1; i < inner; ++i) value -= factor[i] * solution.col(unknown[i]);
      solution.col(unknown[k]) = value / factor[k];
    }
  }
  return solution;
}

}  // namespace orv3
