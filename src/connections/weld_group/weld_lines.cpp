#include "connections/weld_group/weld_lines.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "framework/elementary.h"

namespace orv3 {
namespace {

constexpr double kParallel = 0.17;  // sine of 10 degrees
constexpr double kMostLeg = 1.2;    // of the plate between two legs

// A point and the way from it into its weld.
struct CEnd {
  std::size_t m_nWeld;
  double m_dX;
  double m_dY;
  double m_dWayX;  // of length 1
  double m_dWayY;
};

std::vector<CEnd> EndsOf(std::span<const CWeldLine> welds) {
  std::vector<CEnd> ends;
  for (std::size_t i = 0; i < welds.size(); ++i) {
    const CWeldLine& weld = welds[i];
    const double x = (weld.m_dX2 - weld.m_dX1) / weld.Length();
    const double y = (weld.m_dY2 - weld.m_dY1) / weld.Length();
    ends.push_back({i, weld.m_dX1, weld.m_dY1, x, y});
    ends.push_back({i, weld.m_dX2, weld.m_dY2, -x, -y});
  }
  std::stable_sort(ends.begin(), ends.end(),
                   [](const CEnd& a, const CEnd& b) { return a.m_dX < b.m_dX; });
  return ends;
}

bool GoesOn(const CEnd& a, const CEnd& b, double gap) noexcept {
  const double along = a.m_dWayX * b.m_dWayX + a.m_dWayY * b.m_dWayY;
  const double across = a.m_dWayX * b.m_dWayY - a.m_dWayY * b.m_dWayX;
  return along < 0 && std::fabs(across) <= kParallel &&
         Hypot(b.m_dX - a.m_dX, b.m_dY - a.m_dY) <= gap;
}

double LargestLeg(std::span<const CWeldLine> welds) noexcept {
  double largest = 0;
  for (const CWeldLine& weld : welds) largest = std::max(largest, weld.m_dHf);
  return largest;
}

bool AreTooClose(const CWeldLine& a, const CWeldLine& b) noexcept {
  const CWeldLine& line = a.Length() >= b.Length() ? a : b;
  const CWeldLine& other = a.Length() >= b.Length() ? b : a;
  const double length = line.Length();
  const double x = (line.m_dX2 - line.m_dX1) / length;
  const double y = (line.m_dY2 - line.m_dY1) / length;
  const auto along = [&](double px, double py) {
    return (px - line.m_dX1) * x + (py - line.m_dY1) * y;
  };
  const auto across = [&](double px, double py) {
    return (py - line.m_dY1) * x - (px - line.m_dX1) * y;
  };
  const double start = along(other.m_dX1, other.m_dY1);
  const double run = along(other.m_dX2, other.m_dY2) - start;
  const double side = across(other.m_dX1, other.m_dY1);
  const double rise = across(other.m_dX2, other.m_dY2) - side;
  if (std::fabs(rise) > kParallel * other.Length()) return false;
  const double from = std::max(0.0, std::min(start, start + run));
  const double to = std::min(length, std::max(start, start + run));
  const double tolerance = std::min(0.1, other.Length() / 1000);  // mm
  if (to - from <= tolerance) return false;
  const double first = side + rise * (from - start) / run;
  const double last = side + rise * (to - start) / run;
  const double nearest = first * last <= 0 ? 0 : std::min(std::fabs(first), std::fabs(last));
  return nearest * (1 + 1e-9) < std::min(a.m_dHf, b.m_dHf) / kMostLeg;
}

}  // namespace

std::vector<double> RunLengths(std::span<const CWeldLine> welds) {
  std::vector<std::size_t> run(welds.size());
  std::iota(run.begin(), run.end(), std::size_t{0});
  const auto first = [&](std::size_t i) {
    while (run[i] != i) i = run[i] = run[run[i]];
    return i;
  };
  const std::vector<CEnd> ends = EndsOf(welds);
  const double reach = LargestLeg(welds);
  for (std::size_t i = 0; i < ends.size(); ++i) {
    for (std::size_t j = i + 1; j < ends.size() && ends[j].m_dX <= ends[i].m_dX + reach; ++j) {
      const double gap = std::min(welds[ends[i].m_nWeld].m_dHf, welds[ends[j].m_nWeld].m_dHf);
      if (GoesOn(ends[i], ends[j], gap)) run[first(ends[i].m_nWeld)] = first(ends[j].m_nWeld);
    }
  }
  std::vector<double> lengths(welds.size());
  for (std::size_t i = 0; i < welds.size(); ++i) lengths[first(i)] += welds[i].Length();
  for (std::size_t i = 0; i < welds.size(); ++i) lengths[i] = lengths[first(i)];
  return lengths;
}

std::optional<std::pair<std::size_t, std::size_t>> WeldsTooClose(std::span<const CWeldLine> welds) {
  const auto left = [&](std::size_t i) { return std::min(welds[i].m_dX1, welds[i].m_dX2); };
  std::vector<std::size_t> order(welds.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return left(a) < left(b); });
  const double reach = LargestLeg(welds);
  for (std::size_t i = 0; i < order.size(); ++i) {
    const CWeldLine& weld = welds[order[i]];
    const double right = std::max(weld.m_dX1, weld.m_dX2) + reach;
    for (std::size_t j = i + 1; j < order.size() && left(order[j]) <= right; ++j)
      if (AreTooClose(weld, welds[order[j]])) return std::minmax(order[i], order[j]);
  }
  return std::nullopt;
}

}  // namespace orv3
