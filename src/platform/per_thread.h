// CPerThread: one value for each thread that asks for it.
//
// Used instead of thread_local objects with a destructor: the run-time library keeps a Windows DLL
// loaded until every thread that has such an object ends, so a host could not unload the library. A
// value outlives its thread, and a later thread that the system gives the same number finds it.
#pragma once

#include <mutex>
#include <thread>
#include <unordered_map>

namespace orv3 {

template <class VALUE>
class CPerThread {
 public:
  // The calling thread's value; the reference stays valid.
  VALUE& Here() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_mapValue[std::this_thread::get_id()];
  }

 private:
  std::mutex m_mutex;
  std::unordered_map<std::thread::id, VALUE> m_mapValue;
};

}  // namespace orv3
