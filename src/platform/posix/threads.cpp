#include "platform/threads.h"

#include <pthread.h>

namespace orv3 {

void CLock::lock() { m_mutex.lock(); }

void CLock::unlock() { m_mutex.unlock(); }

std::uintptr_t ThreadNumber() noexcept { return static_cast<std::uintptr_t>(pthread_self()); }

}  // namespace orv3
