#include "outlines/touching_parts.h"

#include <cmath>

#include "outlines/geometric_figures.h"
#include "outlines/loops.h"
#include "outlines/outline_check.h"

namespace orv3 {
namespace {

constexpr std::size_t kMostLoops = 100;
constexpr double kMove = 1e-7;

bool IsLoop(const CPath& loop) { return loop.m_bClosed && !loop.m_arrVertex.empty(); }

bool IsWithin(const CPath& inner, const CPath& outer) {
  const CBox a = PathBounds({&inner, 1}), b = PathBounds({&outer, 1});
  const CVertex& v = inner.m_arrVertex[0];
  return a.left >= b.left && a.right <= b.right && a.bottom >= b.bottom && a.top <= b.top &&
         std::fabs(LoopArea(inner)) < std::fabs(LoopArea(outer)) && Encloses(outer, {v.x, v.y});
}

// The greatest loop around another; itself where there is none.
std::size_t PartOf(std::span<const CPath> loops, std::size_t i) {
  std::size_t part = i;
  for (std::size_t k = 0; k < loops.size(); ++k) {
    const bool greater = std::fabs(LoopArea(loops[k])) > std::fabs(LoopArea(loops[part]));
    if (greater && IsWithin(loops[i], loops[k])) part = k;
  }
  return part;
}

}  // namespace

std::optional<std::vector<CPath>> PartsCleared(std::span<const CPath> loops) {
  if (loops.size() < 2 || loops.size() > kMostLoops) return std::nullopt;
  for (const CPath& loop : loops) {
    if (!IsLoop(loop)) return std::nullopt;
  }
  const CBox all = PathBounds(loops);
  std::vector<CPath> cleared;
  for (std::size_t i = 0; i < loops.size(); ++i) {
    const CBox part = PathBounds(loops.subspan(PartOf(loops, i), 1));
    cleared.push_back(Moved(loops[i], kMove * (part.left + part.right - all.left - all.right) / 2,
                            kMove * (part.bottom + part.top - all.bottom - all.top) / 2));
  }
  if (CheckLoops(cleared)) return std::nullopt;
  return cleared;
}

CExactProperties FiguresOfParts(std::span<const CPath> loops, const CExactProperties& apart) {
  CExactProperties exact = GeometricFigures(loops);
  exact.It = apart.It;
  exact.m_error.It = apart.m_error.It;
  exact.m_bAccurate = apart.m_bAccurate;
  return exact;
}

}  // namespace orv3
