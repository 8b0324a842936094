#include "output/streams.h"

#include <cstdio>
#include <iostream>

#include "platform/terminal.h"

namespace orv3::cli {
namespace {

CMemoryStreams* g_pStreams = nullptr;  // one command runs at a time

}  // namespace

CMemoryStreams* MemoryStreams() noexcept { return g_pStreams; }

CUseMemory::CUseMemory(CMemoryStreams& streams) noexcept { g_pStreams = &streams; }

CUseMemory::~CUseMemory() { g_pStreams = nullptr; }

std::streambuf* InputBuffer() noexcept {
  return g_pStreams != nullptr ? g_pStreams->m_in.rdbuf() : std::cin.rdbuf();
}

void WriteOutput(std::string_view bytes) {
  if (g_pStreams != nullptr) {
    g_pStreams->m_strOut += bytes;
  } else {
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
  }
}

void WriteError(std::string_view text) {
  if (g_pStreams != nullptr) {
    g_pStreams->m_strError += text;
  } else {
    std::fwrite(text.data(), 1, text.size(), stderr);
  }
}

bool OutputIsWatched() noexcept { return g_pStreams == nullptr && OutputIsTerminal(); }

bool ErrorIsWatched() noexcept { return g_pStreams == nullptr && ErrorIsTerminal(); }

}  // namespace orv3::cli
