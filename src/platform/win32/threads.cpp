#include "platform/threads.h"

#include <windows.h>

namespace orv3 {

static_assert(sizeof(SRWLOCK) == sizeof(void*));

void CLock::lock() { AcquireSRWLockExclusive(reinterpret_cast<PSRWLOCK>(&m_pState)); }

void CLock::unlock() { ReleaseSRWLockExclusive(reinterpret_cast<PSRWLOCK>(&m_pState)); }

std::uintptr_t ThreadNumber() noexcept { return GetCurrentThreadId(); }

}  // namespace orv3
