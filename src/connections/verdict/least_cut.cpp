#include "connections/verdict/least_cut.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "framework/elementary.h"

namespace orv3 {
namespace {

// The best way from the near edge to the hole of one line.
struct CWay {
  double m_dCost;  // length less holes, mm
  double m_dLength;
  int m_nBefore;  // the line before, -1 from the edge
};

CLeastCut Traced(const std::vector<CWay>& ways, int last, double length) {
  CLeastCut cut;
  cut.m_dLength = length;
  for (int line = last; line >= 0; line = ways[static_cast<std::size_t>(line)].m_nBefore)
    cut.m_arrLine.push_back(line);
  std::reverse(cut.m_arrLine.begin(), cut.m_arrLine.end());
  return cut;
}

}  // namespace

CLeastCut LeastCut(std::span<const double> gaps, double across, double deduct) {
  const double whole = std::accumulate(gaps.begin(), gaps.end(), 0.0);
  CLeastCut cut;
  if (across == 0) {
    cut.m_dLength = whole;
    cut.m_arrLine.resize(gaps.size() + 1);
    std::iota(cut.m_arrLine.begin(), cut.m_arrLine.end(), 0);
    return cut;
  }
  std::vector<CWay> ways;
  ways.reserve(gaps.size() + 1);
  double at = 0;
  double bestCost = HUGE_VAL;
  int best = 0;
  for (std::size_t i = 0; i <= gaps.size(); ++i) {
    CWay way = {at - deduct, at, -1};
    const auto from = [&](std::size_t line, double leg) {
      const double cost = ways[line].m_dCost + leg - deduct;
      if (cost < way.m_dCost) way = {cost, ways[line].m_dLength + leg, static_cast<int>(line)};
    };
    if (i >= 2) from(i - 2, gaps[i - 2] + gaps[i - 1]);
    if (i >= 1) from(i - 1, Hypot(gaps[i - 1], across));
    ways.push_back(way);
    if (way.m_dCost + whole - at < bestCost) {
      bestCost = way.m_dCost + whole - at;
      best = static_cast<int>(i);
    }
    if (i < gaps.size()) at += gaps[i];
  }
  const auto last = static_cast<std::size_t>(best);
  const double rest = std::accumulate(gaps.begin() + best, gaps.end(), 0.0);
  return Traced(ways, best, ways[last].m_dLength + rest);
}

}  // namespace orv3
