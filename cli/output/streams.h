// Where a command reads and writes: the streams of the process, or the memory of a program that
// runs the command within itself.
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "cases/case_columns.h"

namespace orv3::cli {

struct CMemoryStreams {
  std::istringstream m_in;                 // standard input
  const CCaseColumns* m_pCases = nullptr;  // what "-" stands for as a file of cases, instead
  std::string m_strOut;
  std::string m_strError;
};

// Those of the command that runs; null for the streams of the process.
CMemoryStreams* MemoryStreams() noexcept;

// Gives a command memory in place of the process's streams, as long as it lives.
class CUseMemory {
 public:
  explicit CUseMemory(CMemoryStreams& streams) noexcept;
  CUseMemory(const CUseMemory&) = delete;
  CUseMemory& operator=(const CUseMemory&) = delete;
  ~CUseMemory();
};

std::streambuf* InputBuffer() noexcept;
void WriteOutput(std::string_view bytes);
void WriteError(std::string_view text);

// Whether somebody looks at what is written there.
bool OutputIsWatched() noexcept;
bool ErrorIsWatched() noexcept;

}  // namespace orv3::cli
