#include "connections/bolt_thread.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "connections/bolt_group.h"
#include "framework/number_text.h"

namespace orv3 {
namespace {

struct CThread {
  int m_nD;
  double m_dDe;
};

auto ReadThreads() {
  std::array<CThread, std::size(NormalBoltData::m_strBolt)> threads{};
  std::transform(std::begin(NormalBoltData::m_strBolt), std::end(NormalBoltData::m_strBolt),
                 threads.begin(), [](const auto& row) {
                   return CThread{ToInt(row[0]), ToDouble(row[1])};
                 });
  return threads;
}

}  // namespace

double EffectiveDiameter(int d) noexcept {
  static const auto kThreads = ReadThreads();
  const auto at = std::lower_bound(kThreads.begin(), kThreads.end(), d,
                                   [](const CThread& row, int size) { return row.m_nD < size; });
  return at != kThreads.end() && at->m_nD == d ? at->m_dDe : 0;
}

}  // namespace orv3
