#include "platform/terminal.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

namespace orv3 {

bool ErrorIsTerminal() noexcept { return _isatty(2) != 0; }

bool OutputIsTerminal() noexcept { return _isatty(1) != 0; }

CErrorSilence::CErrorSilence() noexcept : m_nKept(_dup(2)) {
  const int nowhere = m_nKept < 0 ? -1 : _open("NUL", _O_WRONLY);
  if (nowhere < 0) return;
  std::fflush(stderr);
  _dup2(nowhere, 2);
  _close(nowhere);
}

CErrorSilence::~CErrorSilence() {
  if (m_nKept < 0) return;
  std::fflush(stderr);
  _dup2(m_nKept, 2);
  _close(m_nKept);
}

}  // namespace orv3
