// A progress bar on standard error, for work that takes longer than a second and somebody watches.
#pragma once

#include <chrono>

namespace orv3::cli {

class CProgress {
 public:
  CProgress();
  ~CProgress();
  CProgress(const CProgress&) = delete;
  CProgress& operator=(const CProgress&) = delete;
  // Shows how much is done, for work of few large pieces.
  void Share(double done) {
    if (m_bWatched) Show(done);
  }
  // Counts one piece of work; looks at the clock now and then only.
  void Step(double done) {
    if (m_bWatched && ++m_nSteps % 512 == 0) Show(done);
  }

 private:
  using CClock = std::chrono::steady_clock;
  void Show(double done);

  bool m_bWatched;
  bool m_bShown = false;
  long long m_nSteps = 0;
  CClock::time_point m_start;
  CClock::time_point m_next;
};

}  // namespace orv3::cli
