// A program's standard streams: whether they go to somebody's eyes, and what must not.
#pragma once

#include "framework/export.h"

namespace orv3 {

// Whether standard error is a terminal.
ORV3CAL_API bool ErrorIsTerminal() noexcept;
ORV3CAL_API bool OutputIsTerminal() noexcept;

// Keeps what a library writes to standard error from the user for as long as it lives.
class ORV3CAL_API CErrorSilence {
 public:
  CErrorSilence() noexcept;
  CErrorSilence(const CErrorSilence&) = delete;
  CErrorSilence& operator=(const CErrorSilence&) = delete;
  ~CErrorSilence();

 private:
  int m_nKept;  // where standard error goes otherwise; -1 when it could not be kept
};

}  // namespace orv3
