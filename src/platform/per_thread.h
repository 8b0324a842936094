// CPerThread: one value for each thread that asks for it.
//
// Used instead of thread_local objects with a destructor: the run-time library keeps a Windows DLL
// loaded until every thread that has such an object ends, so a host could not unload the library. A
// value outlives its thread, and a later thread that the system gives the same number finds it.
#pragma once

#include <cstdint>
#include <mutex>
#include <unordered_map>

#include "platform/threads.h"

namespace orv3 {

template <class VALUE>
class CPerThread {
 public:
  // The calling thread's value; the reference stays valid.
  VALUE& Here() {
    const std::lock_guard lock(m_lock);
    return m_mapValue[ThreadNumber()];
  }

 private:
  CLock m_lock;
  std::unordered_map<std::uintptr_t, VALUE> m_mapValue;
};

}  // namespace orv3
