#include "outlines/section_solver.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <iterator>
#include <numbers>
#include <optional>
#include <vector>

#include "framework/elementary.h"
#include "outlines/geometric_figures.h"
#include "outlines/loops.h"
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

// Below this share of It depth^2 it is rounding, of a tube say.
constexpr double kNoIw = 1e-10;
// A figure that may be off by more is none.
constexpr double kMostError = 0.1;

// Of one part, in units of the outline's size.
CExactErrors ErrorsOf(const CSaintVenant& s) {
  const CTorsionShear& a = s.Fine();
  // What coordinates lose by rounding, as measured of plates.
  const double rounding = 5e-17 * s.Slenderness() * s.Slenderness();
  CExactErrors errors{rounding, 0, 0, rounding};
  for (const CTorsionShear* b : {&s.Coarse(), &s.Rounded()}) {
    const auto relative = [&](double CTorsionShear::*figure) {
      return std::fabs(a.*figure - b->*figure) /
             std::min(std::fabs(a.*figure), std::fabs(b->*figure));
    };
    errors.It += relative(&CTorsionShear::It);
    errors.Iw += std::fabs(a.Iw - b->Iw) / std::max(a.Iw, kLeastIw * a.It);
    errors.center += Hypot(a.m_center.x - b->m_center.x, a.m_center.y - b->m_center.y);
    errors.As += std::max(relative(&CTorsionShear::m_dFlexX), relative(&CTorsionShear::m_dFlexY));
  }
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

// The last solution that a sound mesh gives; `stopped` when the next mesh is not sound.
std::optional<CSaintVenant> SolveMesh(CSectionMesh mesh, double depth, bool joined, bool& stopped) {
  std::optional<CSaintVenant> best;
  for (int round = 0;; ++round) {
    const std::size_t triangles = mesh.m_arrTriangle.size();
    CSaintVenant solved(std::move(mesh), DegreeFor(triangles));
    if (!solved.IsSound()) break;
    best = std::move(solved);
    const bool enough = Excess(ErrorsOf(*best), depth, joined) <= 1;
    if (enough || round == kRounds || triangles > kRefinedTriangles) return best;
    auto refined = Refined(best->Mesh(), Worst(best->Shares()));
    if (!refined) break;
    mesh = std::move(*refined);
  }
  stopped = true;
  return best;
}

// A part's first meshes, and how often its arcs are halved in them.
struct CPartMeshes {
  std::vector<CSectionMesh> m_arrMesh;
  int m_nArcs = 0;
  bool m_bFold = true;  // where the part is its own mirror image

  CPartMeshes(std::span<const CPath> loops, bool fold) : m_bFold(fold) {
    m_arrMesh = MeshesOfPart(loops, m_nArcs, fold);
  }
};

// The best solution of each mesh; meshes that cannot be refined give way to ones of shorter arcs.
std::vector<CSaintVenant> SolvePart(std::span<const CPath> loops, CPartMeshes meshes, double depth,
                                    bool joined) {
  std::vector<CSaintVenant> best;
  double least = HUGE_VAL;
  const std::size_t count = meshes.m_arrMesh.size();
  while (meshes.m_arrMesh.size() == count) {
    std::vector<CSaintVenant> solved;
    bool stopped = false;
    double excess = 0;
    for (CSectionMesh& mesh : meshes.m_arrMesh) {
      auto one = SolveMesh(std::move(mesh), depth, joined, stopped);
      if (!one) break;
      excess = std::max(excess, Excess(ErrorsOf(*one), depth, joined));
      solved.push_back(std::move(*one));
    }
    if (solved.size() == count && excess < least) {
      best = std::move(solved);
      least = excess;
    }
    if (!stopped || least <= 1) break;
    meshes.m_arrMesh = MeshesOfPart(loops, ++meshes.m_nArcs, meshes.m_bFold);
  }
  return best;
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
    if (outers.size() == 1) in = 0;
    for (std::size_t k = 0; k < outers.size() && outers.size() > 1; ++k) {
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
  std::vector<std::vector<CPath>> m_outlines;     // by mesh: its part
  std::vector<std::vector<std::size_t>> m_loops;  // by mesh and its loop: the caller's
  double m_depth = 0;                             // of the section

  void Solve(std::span<const CPath> loops);
  void Unfold();
  void TakeFigures();
  std::vector<double> PlacesAlong(const CSectionMesh& mesh, const CStretch& stretch,
                                  const CSectionForces& forces) const;
  void AddStresses(std::size_t part, const CSectionForces& forces,
                   std::vector<CBoundaryStress>& to) const;
  void AddStressesInside(std::size_t part, const CSectionForces& forces,
                         std::vector<CBoundaryStress>& to) const;
  double Sigma(CPoint p, const CSectionForces& forces) const;
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
  m_depth = std::max(box.Width(), box.Height()) / m_scale;
  std::vector<CPartMeshes> meshes;
  std::size_t at = 0;
  for (const auto& part : *parts) {
    const std::vector<std::size_t> own(
        order.begin() + static_cast<std::ptrdiff_t>(at),
        order.begin() + static_cast<std::ptrdiff_t>(at + part.size()));
    at += part.size();
    const CPartMeshes& found = meshes.emplace_back(part, true);
    if (found.m_arrMesh.empty()) return;
    m_loops.insert(m_loops.end(), found.m_arrMesh.size(), own);
    m_outlines.insert(m_outlines.end(), found.m_arrMesh.size(), part);
  }
  m_properties.m_bJoined = m_loops.size() == 1;
  for (std::size_t i = 0; i < meshes.size(); ++i) {
    auto solved = SolvePart((*parts)[i], std::move(meshes[i]), m_depth, m_properties.m_bJoined);
    if (solved.empty()) {
      m_parts.clear();
      return;
    }
    std::move(solved.begin(), solved.end(), std::back_inserter(m_parts));
  }
  TakeFigures();
  CExactProperties& p = m_properties;
  if (std::isnan(p.xs)) return;
  const CThirdMoments third = ThirdMoments(loops, {m_origin.x + p.xo, m_origin.y + p.yo});
  const auto beyondRounding = [&](double beta) { return std::fabs(beta) < 1e-9 * p.i1 ? 0 : beta; };
  p.betax = beyondRounding(third.forX / p.Ix - 2 * (p.ys - p.yo));
  p.betay = beyondRounding(third.forY / p.Iy - 2 * (p.xs - p.xo));
}

// Parts whose halves have given the figures are solved once more as a whole, for the stresses.
void CSectionSolver::CState::Unfold() {
  for (std::size_t i = 0; i < m_parts.size(); ++i) {
    if (!m_parts[i].IsFolded()) continue;
    const auto& part = m_outlines[i];
    auto whole = SolvePart(part, CPartMeshes(part, false), m_depth, m_properties.m_bJoined);
    if (whole.size() != 1) {
      m_parts.clear();
      return;
    }
    m_parts[i] = std::move(whole[0]);
  }
}

void CSectionSolver::CState::TakeFigures() {
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
  if (!(p.m_error.It <= kMostError)) {
    p.It = CExactProperties::kUnknown;
    m_parts.clear();
    return;
  }
  if (!p.m_bJoined) return;
  const CTorsionShear& s = m_parts[0].Fine();
  p.Iw = s.Iw * square * square * square;
  p.xs = s.m_center.x * m_scale;
  p.ys = s.m_center.y * m_scale;
  p.Asx = square / s.m_dFlexX;
  p.Asy = square / s.m_dFlexY;
  p.m_error = ErrorsOf(m_parts[0]);
  p.m_bAccurate = Excess(p.m_error, m_depth, true) <= 1;
  if (p.Iw < kNoIw * p.It * m_depth * m_depth * square) p.Iw = 0;
  if (!(p.m_error.Iw <= kMostError)) p.Iw = CExactProperties::kUnknown;
  if (!(p.m_error.center <= kMostError * m_depth)) p.xs = p.ys = CExactProperties::kUnknown;
  if (!(p.m_error.As <= kMostError)) p.Asx = p.Asy = CExactProperties::kUnknown;
  p.m_error.center *= m_scale;
}

// At a point from the centroid.
double CSectionSolver::CState::Sigma(CPoint p, const CSectionForces& f) const {
  const CExactProperties& s = m_properties;
  const double det = s.I1 * s.I2;
  return f.N / s.A + (f.Mx * (s.Iy * p.y - s.Ixy * p.x) + f.My * (s.Ix * p.x - s.Ixy * p.y)) / det;
}

// Where along a stretch stresses are told: at equal parts, and where an arc has its extreme of
// sigma.
std::vector<double> CSectionSolver::CState::PlacesAlong(const CSectionMesh& mesh,
                                                        const CStretch& stretch,
                                                        const CSectionForces& f) const {
  std::vector<double> parts = {0, 0.25, 0.5, 0.75};
  const CEdge& edge = mesh.m_arrEdge[static_cast<std::size_t>(stretch.m_nEdge)];
  if (!edge.IsArc()) return parts;
  const CExactProperties& s = m_properties;
  const CPoint slope{f.My * s.Ix - f.Mx * s.Ixy, f.Mx * s.Iy - f.My * s.Ixy};
  const auto along = [&](double at) {
    const CPoint d = edge.Derivative(at);
    return d.x * slope.x + d.y * slope.y;
  };
  const double first = along(stretch.m_dFrom);
  if (!(first * along(stretch.m_dTo) < 0)) return parts;
  const CPoint d = edge.Derivative(stretch.m_dFrom);
  const double turn = edge.Sweep() * (stretch.m_dTo - stretch.m_dFrom);
  double angle = Atan2(-first, d.x * slope.y - d.y * slope.x);
  if (angle * turn < 0) angle += std::copysign(std::numbers::pi, turn);
  parts.push_back(std::clamp(angle / turn, 0.0, 1.0));
  std::sort(parts.begin(), parts.end());
  return parts;
}

void CSectionSolver::CState::AddStresses(std::size_t part, const CSectionForces& f,
                                         std::vector<CBoundaryStress>& to) const {
  const CSaintVenant& solved = m_parts[part];
  const CSectionMesh& mesh = solved.Mesh();
  // The stretches along the boundary in order, with the triangle that each is an edge of.
  struct CSide {
    int loop, edge;
    double from;
    std::size_t triangle, side;
    auto operator<=>(const CSide&) const = default;
  };
  std::vector<CSide> sides;
  for (std::size_t i = 0; i < mesh.m_arrTriangle.size(); ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      const int s = mesh.m_arrTriangle[i].m_stretch[k];
      if (s < 0) continue;
      const CStretch& stretch = mesh.m_arrStretch[static_cast<std::size_t>(s)];
      sides.push_back({stretch.m_nLoop, stretch.m_nEdge, stretch.m_dFrom, i, k});
    }
  }
  std::sort(sides.begin(), sides.end());
  const double square = m_scale * m_scale;
  const double twist = f.T == 0 ? 0 : f.T / m_properties.It * m_scale;
  const double shearX =
      m_properties.m_bJoined || f.Vx == 0 ? f.Vx / square : CExactProperties::kUnknown;
  const double shearY =
      m_properties.m_bJoined || f.Vy == 0 ? f.Vy / square : CExactProperties::kUnknown;
  const std::vector<char> coarse = CoarseAtArcs(mesh);
  for (const CSide& side : sides) {
    const CMeshTriangle& triangle = mesh.m_arrTriangle[side.triangle];
    const auto vertex = static_cast<std::size_t>(triangle.m_vertex[side.side]);
    const int s = triangle.m_stretch[side.side];
    for (const double at : PlacesAlong(mesh, mesh.m_arrStretch[static_cast<std::size_t>(s)], f)) {
      const auto traction = [&](CSolution of) {
        return solved.Traction(side.triangle, static_cast<int>(side.side), at, of);
      };
      const auto tau = [&](const CEdgeTraction& t) {
        return twist * t.m_dTwist + shearX * t.m_dX + shearY * t.m_dY;
      };
      const CEdgeTraction t = traction(CSolution::Fine);
      CBoundaryStress stress;
      stress.m_nLoop = m_loops[part][static_cast<std::size_t>(side.loop)];
      stress.m_point = {m_origin.x + t.m_point.x * m_scale, m_origin.y + t.m_point.y * m_scale};
      stress.sigma = Sigma(
          {t.m_point.x * m_scale - m_properties.xo, t.m_point.y * m_scale - m_properties.yo}, f);
      stress.tau = tau(t);
      stress.tauError = std::fabs(stress.tau - tau(traction(CSolution::Coarse)));
      stress.m_bCoarse = coarse[side.triangle];
      stress.mises = std::sqrt(stress.sigma * stress.sigma + 3 * stress.tau * stress.tau);
      stress.m_bSharp = at == 0 && mesh.m_arrSharp[vertex];
      to.push_back(stress);
    }
  }
}

void CSectionSolver::CState::AddStressesInside(std::size_t part, const CSectionForces& f,
                                               std::vector<CBoundaryStress>& to) const {
  const CSectionMesh& mesh = m_parts[part].Mesh();
  const double square = m_scale * m_scale;
  const double twist = f.T == 0 ? 0 : f.T / m_properties.It * m_scale;
  for (std::size_t i = 0; i < mesh.m_arrTriangle.size(); ++i) {
    const auto& corners = mesh.m_arrTriangle[i].m_vertex;
    if (std::any_of(corners.begin(), corners.end(),
                    [&](int v) { return mesh.m_arrSharp[static_cast<std::size_t>(v)] != 0; }))
      continue;
    const auto tau = [&](const CInnerTraction& t) {
      return Hypot(twist * t.m_twist.x + (f.Vx * t.m_x.x + f.Vy * t.m_y.x) / square,
                   twist * t.m_twist.y + (f.Vx * t.m_x.y + f.Vy * t.m_y.y) / square);
    };
    const std::vector<CInnerTraction> coarse = m_parts[part].Inside(i, CSolution::Coarse);
    std::size_t point = 0;
    for (const CInnerTraction& t : m_parts[part].Inside(i, CSolution::Fine)) {
      CBoundaryStress stress;
      stress.m_nLoop = CBoundaryStress::kInside;
      const CPoint at{t.m_point.x * m_scale, t.m_point.y * m_scale};
      stress.m_point = {m_origin.x + at.x, m_origin.y + at.y};
      stress.sigma = Sigma({at.x - m_properties.xo, at.y - m_properties.yo}, f);
      stress.tau = tau(t);
      stress.tauError = std::fabs(stress.tau - tau(coarse[point++]));
      stress.mises = std::sqrt(stress.sigma * stress.sigma + 3 * stress.tau * stress.tau);
      to.push_back(stress);
    }
  }
}

// Without what stresses need.
struct CPropertiesAlone {
  static CExactProperties Of(std::span<const CPath> loops) {
    CSectionSolver::CState state;
    state.Solve(loops);
    return state.m_properties;
  }
};

CExactProperties ExactProperties(std::span<const CPath> loops) {
  return CPropertiesAlone::Of(loops);
}

CSectionSolver::CSectionSolver(std::span<const CPath> loops) : m_state(new CState) {
  m_state->Solve(loops);
  m_state->Unfold();
}
CSectionSolver::~CSectionSolver() = default;
CSectionSolver::CSectionSolver(CSectionSolver&&) noexcept = default;
CSectionSolver& CSectionSolver::operator=(CSectionSolver&&) noexcept = default;

const CExactProperties& CSectionSolver::Properties() const noexcept {
  return m_state->m_properties;
}

std::vector<CBoundaryStress> CSectionSolver::Stresses(const CSectionForces& forces) const {
  std::vector<CBoundaryStress> stresses;
  for (std::size_t i = 0; i < m_state->m_parts.size(); ++i)
    m_state->AddStresses(i, forces, stresses);
  return stresses;
}

std::vector<CBoundaryStress> CSectionSolver::StressesInside(const CSectionForces& forces) const {
  std::vector<CBoundaryStress> stresses;
  if (m_state->m_parts.size() != 1 || (forces.Vx == 0 && forces.Vy == 0)) return stresses;
  m_state->AddStressesInside(0, forces, stresses);
  return stresses;
}

}  // namespace orv3
