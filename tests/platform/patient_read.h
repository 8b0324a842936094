// Reads a file that other tests, running at the same time, may have open for themselves.
#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "platform/whole_file.h"

inline orv3::CFileError ReadPatiently(const CString& path, std::string& bytes) {
  constexpr int kTries = 500;
  orv3::CFileError error = orv3::ReadWholeFile(path, bytes);
  for (int i = 1; error == orv3::CFileError::Busy && i < kTries; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds{10});
    error = orv3::ReadWholeFile(path, bytes);
  }
  return error;
}
