#include "outlines/section_solver.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "outlines/crossing.h"
#include "outlines/geometric_figures.h"
#include "outlines/outline_moments.h"
#include "outlines/solver/saint_venant.h"

namespace orv3 {
namespace {

using Eigen::VectorXd;

// Limits of the error estimates.
constexpr double kItLimit = 1e-3;
constexpr double kIwLimit = 3e-3;
constexpr double kAsLimit = 3e-3;
constexpr double kCenterLimit = 5e-4;  // of the depth

// Meshes beyond these sizes take shape functions of less degree, and are not refined further.
constexpr std::size_t kRefinedTriangles = 4000;
constexpr std::size_t kQuarticTriangles = 20000;
constexpr int kRounds = 12;

int DegreeFor(std::size_t triangles) {
  if (triangles <= kRefinedTriangles) return 6;
  return triangles <= kQuarticTriangles ? 4 : 2;
}

// The warping of a section matters beside its It over lengths of its own size; below this share of
// It depth^2 an error of Iw is measured by the share.
constexpr double kLeastIw = 1e-4;

// Of one part, in units of the outline's size.
CExactErrors ErrorsOf(const CSaintVenant& s) {
  const CTorsionShear &a = s.Fine(), &b = s.Coarse();
  const auto relative = [](double x, double y) { return std::fabs(x - y) / std::fabs(x); };
  CExactErrors errors;
  errors.It = relative(a.It, b.It);
  errors.Iw = std::fabs(a.Iw - b.Iw) / std::max(a.Iw, kLeastIw * a.It);
  errors.center = std::hypot(a.m_center.x - b.m_center.x, a.m_center.y - b.m_center.y);
  errors.As = std::max(relative(a.m_dFlexX, b.m_dFlexX), relative(a.m_dFlexY, b.m_dFlexY));
  return errors;
}

// By how much the worst estimate is above its limit; the depth is that of the enclosing rectangle.
double Excess(const CExactErrors& e, double depth, bool joined) {
  double excess = e.It / kItLimit;
  if (joined) {
    excess = std::max({excess, e.Iw / kIwLimit, e.As / kAsLimit, e.center / depth / kCenterLimit});
  }
  return excess;
}

// The triangles that hold the most of what the two solutions differ by.
std::vector<char> Worst(const std::vector<double>& shares) {
  const double most = *std::max_element(shares.begin(), shares.end());
  std::vector<char> marked;
  for (double share : shares) marked.push_back(share > 0.1 * most);
  return marked;
}

std::optional<CSaintVenant> SolvePart(CSectionMesh mesh, double depth, bool joined) {
  for (int round = 0;; ++round) {
    const std::size_t triangles = mesh.m_arrTriangle.size();
    CSaintVenant solved(mesh, DegreeFor(triangles));
    if (!solved.IsSound()) return std::nullopt;
    const bool enough = Excess(ErrorsOf(solved), depth, joined) <= 1;
    if (enough || round == kRounds || triangles > kRefinedTriangles) return solved;
    mesh = Refined(mesh, Worst(solved.Shares()));
  }
}

// Outer loops, each with its holes; nothing when a hole lies in none.
std::optional<std::vector<std::vector<CPath>>> PartsOf(std::span<const CPath> loops,
                                                       std::vector<std::size_t>& order) {
  struct COuter {
    std::size_t loop;
    double area;
  };
  std::vector<COuter> outers;
  for (std::size_t i = 0; i < loops.size(); ++i) {
    const double area = LoopArea(loops[i]);
    if (area > 0) outers.push_back({i, area});
  }
  std::vector<std::vector<std::size_t>> members;
  for (const COuter& outer : outers) members.push_back({outer.loop});
  for (std::size_t i = 0; i < loops.size(); ++i) {
    if (!(LoopArea(loops[i]) < 0)) continue;
    const CVertex& v = loops[i].m_arrVertex[0];
    std::optional<std::size_t> in;
    for (std::size_t k = 0; k < outers.size(); ++k) {
      if (Encloses(loops[outers[k].loop], {v.x, v.y}) && (!in || outers[k].area < outers[*in].area))
        in = k;
    }
    if (!in) return std::nullopt;
    members[*in].push_back(i);
  }
  std::vector<std::vector<CPath>> parts;
  for (const auto& member : members) {
    parts.emplace_back();
    for (std::size_t i : member) {
      parts.back().push_back(loops[i]);
      order.push_back(i);
    }
  }
  return parts;
}

}  // namespace

struct CSectionSolver::CState {
  CExactProperties m_properties;
  double m_scale = 1;  // lengths of the loops by those of the solutions
  CPoint m_origin;     // of the solutions' frame in that of the loops
  std::vector<CSaintVenant> m_parts;
  std::vector<std::vector<std::size_t>> m_loops;  // by mesh and its loop: the caller's

  void Solve(std::span<const CPath> loops);
  void TakeFigures(double depth);
};

void CSectionSolver::CState::Solve(std::span<const CPath> loops) {
  const CBox box = PathBounds(loops);
  m_origin = {box.left, box.bottom};
  // A power of two, so that scaling rounds nothing.
  int exponent = 0;
  std::frexp(std::max(box.Width(), box.Height()), &exponent);
  m_scale = std::ldexp(1.0, exponent);
  std::vector<CPath> scaled;
  for (const CPath& loop : loops) {
    if (loop.m_arrVertex.size() < 2 || !IsFinite(loop)) return;
    CPath path = Moved(loop, -m_origin.x, -m_origin.y);
    for (CVertex& v : path.m_arrVertex) {
      v.x /= m_scale;
      v.y /= m_scale;
    }
    scaled.push_back(std::move(path));
  }
  m_properties = GeometricFigures(loops);
  if (!(m_properties.A > 0)) return;
  std::vector<std::size_t> order;
  const auto parts = PartsOf(scaled, order);
  if (!parts) return;
  const double depth = std::max(box.Width(), box.Height()) / m_scale;
  std::vector<CSectionMesh> meshes;
  std::size_t at = 0;
  for (const auto& part : *parts) {
    const std::vector<std::size_t> own(
        order.begin() + static_cast<std::ptrdiff_t>(at),
        order.begin() + static_cast<std::ptrdiff_t>(at + part.size()));
    at += part.size();
    auto found = MeshesOfPart(part);
    if (found.empty()) return;
    for (CSectionMesh& mesh : found) {
      meshes.push_back(std::move(mesh));
      m_loops.push_back(own);
    }
  }
  m_properties.m_bJoined = meshes.size() == 1;
  for (CSectionMesh& mesh : meshes) {
    auto solved = SolvePart(std::move(mesh), depth, m_properties.m_bJoined);
    if (!solved) {
      m_parts.clear();
      return;
    }
    m_parts.push_back(std::move(*solved));
  }
  TakeFigures(depth);
}

void CSectionSolver::CState::TakeFigures(double depth) {
  CExactProperties& p = m_properties;
  double area = 0;
  for (const CSaintVenant& part : m_parts) area += part.Area();
  // Loops that overlap or lie in each other the wrong way fill another area than they enclose.
  const double square = m_scale * m_scale;
  if (!(std::fabs(area * square - p.A) <= 1e-3 * p.A)) {
    m_parts.clear();
    return;
  }
  p.It = 0;
  double error = 0;
  for (const CSaintVenant& part : m_parts) {
    p.It += part.Fine().It * square * square;
    error += ErrorsOf(part).It * part.Fine().It * square * square;
  }
  p.m_error.It = error / p.It;
  p.m_bAccurate = p.m_error.It <= kItLimit;
  if (!p.m_bJoined) return;
  const CTorsionShear& s = m_parts[0].Fine();
  p.Iw = s.Iw * square * square * square;
  p.xs = s.m_center.x * m_scale;
  p.ys = s.m_center.y * m_scale;
  p.Asx = square / s.m_dFlexX;
  p.Asy = square / s.m_dFlexY;
  p.m_error = ErrorsOf(m_parts[0]);
  p.m_bAccurate = Excess(p.m_error, depth, true) <= 1;
  p.m_error.center *= m_scale;
}

CSectionSolver::CSectionSolver(std::span<const CPath> loops) : m_state(new CState) {
  m_state->Solve(loops);
}
CSectionSolver::~CSectionSolver() = default;
CSectionSolver::CSectionSolver(CSectionSolver&&) noexcept = default;
CSectionSolver& CSectionSolver::operator=(CSectionSolver&&) noexcept = default;

const CExactProperties& CSectionSolver::Properties() const noexcept {
  return m_state->m_properties;
}

std::vector<CBoundaryStress> CSectionSolver::Stresses(const CSectionForces&) const { return {}; }

}  // namespace orv3
