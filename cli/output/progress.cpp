#include "output/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "output/streams.h"

namespace orv3::cli {
namespace {

constexpr int kWidth = 40;

}  // namespace

CProgress::CProgress()
    : m_bWatched(ErrorIsWatched()),
      m_start(CClock::now()),
      m_next(m_start + std::chrono::seconds(1)) {}

CProgress::~CProgress() {
  if (m_bShown) std::fprintf(stderr, "\r%*s\r", kWidth + 40, "");
}

void CProgress::Show(double done) {
  const auto now = CClock::now();
  if (now < m_next) return;
  m_next = now + std::chrono::milliseconds(200);
  m_bShown = true;
  const int filled = std::clamp(static_cast<int>(done * kWidth), 0, kWidth);
  const std::string bar(static_cast<std::size_t>(filled), '#');
  std::fprintf(stderr, "\r[%-*s] %3.0f %%", kWidth, bar.c_str(), 100 * done);
  if (m_nSteps > 0) std::fprintf(stderr, "  %lld cases", m_nSteps);
  std::fflush(stderr);
}

}  // namespace orv3::cli
