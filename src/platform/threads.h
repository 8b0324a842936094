// Locks and the number of the calling thread.
//
// On Windows both are the system's own: those of the C++ run-time library keep memory that they
// never give back, so each loading and unloading of the library would cost a host some.
#pragma once

#include <cstdint>
#include <mutex>

namespace orv3 {

// For std::lock_guard.
class CLock {
 public:
  void lock();
  void unlock();

 private:
#ifdef _WIN32
  void* m_pState = nullptr;  // a slim lock, which needs no end
#else
  std::mutex m_mutex;
#endif
};

// Equal for no two threads that live at the same time.
std::uintptr_t ThreadNumber() noexcept;

}  // namespace orv3
